#include "support/PanelOnScreen.h"

#include "panel/record/AngleText.h"
#include "panel/record/LengthUnit.h"
#include "support/PanelRecords.h"
#include "support/RecordText.h"

#include <QApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QtNumeric>

PanelOnScreen::PanelOnScreen(const IDictionary& record, Tab tab, bool readOnly)
    : panel(&catalogue, nullptr, readOnly), edits(&panel, SIGNAL(dataChanged())) {
    catalogue.addTestEllipsoid("WGS 84", "6378137", "298.257223563", "1");
    catalogue.addTestEllipsoid("GRS 1980", "6378137", "298.257222101", "1");
    catalogue.addTestEllipsoid("Bessel 1841", "6377397.155", "299.1528128", "1");
    catalogue.addTestEllipsoid("Bessel Namibia", "6377483.865280419", "299.1528128", "1");
    catalogue.addTestGeoid("EGM2008", "egm2008.ggf", "WGS 84", "1");
    panel.resize(640, 560);
    open(panel);
    show(record, tab);
    QApplication::processEvents();
    acts["show"] = [this](const QString& text) { show(*PanelRecords::of(text)); };
    acts["mark"] = [this](const QString&) { mark(); };
    acts["mark edits"] = [this](const QString&) { edits.clear(); };
    acts["refresh"] = [this](const QString&) { panel.setCoordParam(this->record()); };
    sights["edits"] = [this](const QString&) { return QString::number(edits.count()); };
    sights["changed"] = [this](const QString&) {
        const QStringList now = recordText(this->record()), keys = PanelRecords::changedKeys(before, this->record());
        return now != told ? "not told of" : keys.isEmpty() && now != before ? "order" : keys.join(' ');
    };
    sights["value"] = [this](const QString& key) {
        const char* const text = value(key.toLatin1());
        return text ? QString::fromLocal8Bit(text) : "(none)";
    };
    sights["number"] = [this](const QString& key) {
        return QString::number(number(key.toLatin1()), 'g', QLocale::FloatingPointShortest);
    };
    QObject::connect(&panel, &DlgCoordParam::dataChanged, [this] { told = recordText(this->record()); });
}

PanelOnScreen::PanelOnScreen(const QString& start)
    : PanelOnScreen(*PanelRecords::of(start.section(": ", 1)), Ellipsoid,
                    start.section(": ", 0, 0).endsWith("read-only")) {
    turnTo(start.section(QRegularExpression("[,:]"), 0, 0));
    QApplication::processEvents();
}

PanelOnScreen::~PanelOnScreen() {
    AngleText::setNotation(AngleNotation::DecimalDegrees);
    LengthUnit::choose(LengthUnit::Metre);
}

void PanelOnScreen::show(const IDictionary& record) {
    panel.setCoordParam(record);
    mark();
}

void PanelOnScreen::show(const IDictionary& record, int tab) {
    panel.setCurrentIndex(tab);
    show(record);
}

const IDictionary& PanelOnScreen::record() const {
    return panel.getMetaData();
}

const char* PanelOnScreen::value(const char* key) const {
    return record().getValue(key);
}

double PanelOnScreen::number(const char* key) const {
    return dictionary_number(record(), key, qQNaN());
}

void PanelOnScreen::mark() {
    told = before = recordText(record());
    edits.clear();
}
