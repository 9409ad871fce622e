#pragma once

#include "panel/DlgCoordParam.h"
#include "panel/field/MessageLine.h"
#include "support/RecordingCatalogue.h"

#include <QtTest>
#include <QtWidgets>

/// The panel in a window, on a catalogue with a few ellipsoids and a geoid, and a hand that types.
class PanelOnScreen {
public:
    enum Tab { Ellipsoid, Projection, Shift, Height, Check, Definition };

    explicit PanelOnScreen(const IDictionary& record, Tab tab = Projection, bool readOnly = false)
        : panel(&catalogue, nullptr, readOnly), edits(&panel, SIGNAL(dataChanged())) {
        catalogue.addTestEllipsoid("WGS 84", "6378137", "298.257223563", "1");
        catalogue.addTestEllipsoid("GRS 1980", "6378137", "298.257222101", "1");
        catalogue.addTestEllipsoid("Bessel 1841", "6377397.155", "299.1528128", "1");
        catalogue.addTestEllipsoid("Bessel Namibia", "6377483.865280419", "299.1528128", "1");
        catalogue.addTestGeoid("EGM2008", "egm2008.ggf", "WGS 84", "1");
        panel.resize(640, 560);
        panel.show();
        QApplication::setActiveWindow(&panel);
        show(record, tab);
        QApplication::processEvents();
    }

    void show(const IDictionary& record) {
        panel.setCoordParam(record);
        edits.clear();
    }

    void show(const IDictionary& record, int tab) {
        panel.setCurrentIndex(tab);
        show(record);
    }

    const IDictionary& record() const { return panel.getMetaData(); }
    const char* value(const char* key) const { return record().getValue(key); }
    double number(const char* key) const { return dictionary_number(record(), key, qQNaN()); }

    template <typename Widget> QList<Widget*> findAll() const {
        QList<Widget*> visible;
        for (Widget* widget : panel.findChildren<Widget*>()) {
            if (widget->isVisible())
                visible << widget;
        }
        return visible;
    }

    /// A visible widget by its accessible name or, if it is a button, its text; null when there is none.
    template <typename Widget> Widget* find(const QString& name) const {
        for (Widget* widget : findAll<Widget>()) {
            const auto* button = qobject_cast<QAbstractButton*>(widget);
            if (widget->accessibleName() == name || (button && button->text() == name))
                return widget;
        }
        return nullptr;
    }

    QLineEdit* field(const char* label) const { return find<QLineEdit>(DlgCoordParam::tr(label)); }
    QString shown(const char* label) const { return field(label)->text(); }

    QPushButton* button(const char* text) const { return find<QPushButton>(text); }

    /// Replaces the field's text by typing.
    QLineEdit* type(const char* label, const QString& typed) const {
        QLineEdit* edit = field(label);
        edit->setFocus();
        edit->selectAll();
        if (typed.isEmpty())
            QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, typed);
        return edit;
    }

    void choose(const QString& box, int index) const {
        auto* combo = find<QComboBox>(box);
        combo->setCurrentIndex(index);
        Q_EMIT combo->activated(index);
    }

    void chooseMethod(ProjectionMethod method) const {
        choose("Projection method", find<QComboBox>("Projection method")->findData(int(method)));
    }

    /// Every message on the visible tab, the problem first; none that a greyed tab does not show.
    QStringList messages() const {
        QStringList texts;
        for (const MessageLine* line : findAll<MessageLine>()) {
            if (!line->text().isEmpty() && line->isEnabled())
                texts << line->text();
        }
        return texts;
    }

    RecordingCatalogue catalogue;
    DlgCoordParam panel;
    QSignalSpy edits;
};
