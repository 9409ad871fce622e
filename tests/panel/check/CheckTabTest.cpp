#include "panel/record/AngleText.h"
#include "support/PanelOnScreen.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFont>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabWidget>
#include <QTest>

namespace {

/// Whether a widget shows all of its text.
bool isWhole(const QWidget* widget) {
    if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
        QStyleOptionComboBox option;
        option.initFrom(box);
        const QRect room =
            box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
        for (int i = 0; i < box->count(); ++i) {
            if (box->fontMetrics().horizontalAdvance(box->itemText(i)) > room.width())
                return false;
        }
        return true;
    }
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (label && label->wordWrap())
        return label->height() >= label->heightForWidth(label->width());
    return (!label && !qobject_cast<const QAbstractButton*>(widget)) || widget->width() >= widget->sizeHint().width();
}

} // namespace

class CheckTabTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fits_data() {
        const Rows<SampleRecord, int> row({"sample", "page"});
        for (const char* title : {"British grid", "UTM", "Lambert one parallel", "Cassini"}) {
            for (const int page : {0, 1, 2, 3})
                row(title + QByteArray(", page ") + QByteArray::number(page), SampleRecord::named(title), page);
        }
    }

    /// In the room that a window of 800 x 600 leaves it, with letters 30 % larger than usual, nothing is cut or
    /// scrolls.
    void fits() {
        QFETCH(SampleRecord, sample);
        QFETCH(int, page);
        const QFont usual = QApplication::font();
        QFont larger = usual;
        larger.setPixelSize(17);
        QApplication::setFont(larger);
        {
            PanelOnScreen screen(*sample.record(), PanelOnScreen::Check);
            screen.choose("Show angles in", int(AngleNotation::DegreesMinutesSeconds));
            screen.panel.resize(516, 548);
            screen.panel.findChild<QTabWidget*>()->setCurrentIndex(page);
            QApplication::processEvents();
            for (const QScrollArea* area : screen.findAll<QScrollArea>()) {
                QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
                QCOMPARE(area->verticalScrollBar()->maximum(), 0);
            }
            for (const QWidget* widget : screen.panel.currentWidget()->findChildren<QWidget*>()) {
                if (widget->isVisible() && !isWhole(widget))
                    QFAIL(qPrintable(widget->metaObject()->className() + (" " + widget->accessibleName()) + " " +
                                     widget->property("text").toString()));
            }
        }
        QApplication::setFont(usual);
    }
};

ROOM_TEST(CheckTabTest)
#include "CheckTabTest.moc"
