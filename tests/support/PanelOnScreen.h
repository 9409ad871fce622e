#pragma once

#include "panel/DlgCoordParam.h"
#include "support/OnScreen.h"
#include "support/RecordingCatalogue.h"

#include <QSignalSpy>
#include <QStringList>

/// The panel in a window, on a catalogue with a few ellipsoids and a geoid.
///   A script starts with "Tab: record" or "Tab, read-only: record"; a record is as of PanelRecords::of().
///   done: "show=record", "refresh" (the same record again), "mark" for what is counted or compared since then
///   seen: "edits" since a record was shown or the mark, "changed" keys since then (nothing: the record is as it was),
///         of a record that is told of; "value:key" and "number:key" of the record
class PanelOnScreen : public OnScreen {
public:
    enum Tab { Ellipsoid, Projection, Shift, Height, Check, Definition };

    explicit PanelOnScreen(const IDictionary& record, Tab tab = Projection, bool readOnly = false);

    /// As a script starts.
    explicit PanelOnScreen(const QString& start);

    ~PanelOnScreen() override;

    void show(const IDictionary& record);
    void show(const IDictionary& record, int tab);

    const IDictionary& record() const;
    const char* value(const char* key) const;
    double number(const char* key) const;

private:
    void mark();

    QStringList before;
    QStringList told; ///< the record when it was last told of

public:
    RecordingCatalogue catalogue;
    DlgCoordParam panel;
    QSignalSpy edits;
};
