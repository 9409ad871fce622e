#pragma once

#include "panel/computing/SystemSearch.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class FoundSystemsModel;
class MessageLine;
class PlaceTable;
class QCheckBox;
class QLabel;
class QTableView;
class QVBoxLayout;
class RegistryModel;
struct RegistryShift;

/// Finds the systems that give known coordinates: of the registry and of the user's own catalogue. The search goes on
/// while the window stays alive; what is typed meanwhile starts it anew.
class PlaceSearch : public QWidget {
    Q_OBJECT

public:
    /// All outlive the page; `catalogue` may be null, `reasons` knows what the record can't hold.
    PlaceSearch(IProjectionModule& module, ICoordSystem* catalogue, const RegistryModel& reasons,
                QWidget* parent = nullptr);

    /// Null while none is chosen.
    const FoundSystem* selected() const;

    /// How the chosen system fits, in a line, translated; with that shift as well where it is not null. Empty while
    /// none is chosen.
    QString description(const RegistryShift* shift) const;

Q_SIGNALS:
    /// Another system was chosen, or none.
    void selectionChanged();

    /// The chosen system is the one wanted.
    void activated();

private Q_SLOTS:
    void _onPlacesChanged();
    void _onSearch();
    void _onWork();
    void _onPaste();
    void _onEntered();

private:
    void buildPlaces(QVBoxLayout* layout);
    void buildResults(QVBoxLayout* layout);
    void showFound(bool isDone);
    QString summary(bool isDone) const;

    IProjectionModule& module;
    SystemSearch search;
    FoundSystemsModel* model;
    PlaceTable* placeTable;
    MessageLine* problemLine;
    QCheckBox* deprecatedBox;
    QTableView* table;
    QLabel* summaryLabel;
    QTimer pause; ///< until the typing is over
    QTimer slice; ///< runs while a search does
    QElapsedTimer sinceShown;
    QVector<KnownCoordinates> places; ///< of the search
    bool deprecatedToo = false;
};
