#pragma once

#include "platform/projection/IEpsgRegistry.h"

#include <QWidget>

class FieldEdit;
class MessageLine;
class QCheckBox;
class QLabel;
class QLineEdit;
class QTableView;
class QVBoxLayout;
class RegistryModel;

/// Finds a system of the registry by its code, by words of its name and area, or by a point that it must cover.
class NameSearch : public QWidget {
    Q_OBJECT

public:
    /// `model` outlives the page.
    explicit NameSearch(RegistryModel& model, QWidget* parent = nullptr);

    /// Null while none is chosen.
    const RegistrySystem* selected() const;

Q_SIGNALS:
    /// Another system was chosen, or none.
    void selectionChanged();

    /// The chosen system is the one wanted.
    void activated();

private Q_SLOTS:
    void _onSearchChanged();
    void _onSelectionChanged();

private:
    void buildSearch(QVBoxLayout* layout);
    void buildTable(QVBoxLayout* layout);

    RegistryModel& model;
    QLineEdit* searchEdit;
    FieldEdit* latitudeEdit;
    FieldEdit* longitudeEdit;
    MessageLine* pointMessage;
    QCheckBox* deprecatedBox;
    QTableView* table;
    QLabel* countLabel;
    QByteArray shownCode;
};
