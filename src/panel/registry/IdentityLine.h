#pragma once

#include "panel/computing/Identification.h"
#include "panel/field/ResultLabel.h"

#include <memory>

class IDictionary;
class QTimer;
struct ProjectionFields;

/// Says which system of the EPSG registry the record is, or like which one but for what. It computes while it is
/// visible with no dialog in front of it and nothing else is to be done, some milliseconds at a time.
class IdentityLine : public ResultLabel {
    Q_OBJECT

public:
    explicit IdentityLine(QWidget* parent = nullptr);

    /// Begins with the record of that PROJ definition. Where the definition is empty nothing is claimed.
    void identify(const IDictionary& record, const QByteArray& definition);

    /// EPSG's code of the system that the record is, where an identifier can say so of it: exactly, counted in metres,
    /// on no other datum. Empty otherwise, and before that is known.
    QByteArray code() const;

    /// What that identifier says, or why the record can't bear one; translated, empty before that is known.
    QString codeRemark() const;

    /// A form with such a widget could not be made smaller than its size hint.
    bool hasHeightForWidth() const override { return false; }

Q_SIGNALS:
    /// code() may be another one.
    void identified();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private Q_SLOTS:
    void _onTimeout();

private:
    bool isSettled() const;
    QString reasonAgainstCode(const RegistryMatch& match) const;
    void showResult();
    QString sameText() const;
    QString nearestText() const;
    QString differenceText(const RegistryMatch::Difference& difference) const;

    Identification::Subject subject;
    const ProjectionFields* fields = nullptr;       ///< of the record's method
    std::unique_ptr<Identification> identification; ///< from the first record on
    bool isStarted = false;                         ///< `identification` is about `subject`
    QTimer* timer;
};
