#include "panel/field/SearchBox.h"

#include "support/RoomTest.h"

#include <QtTest>
#include <QtWidgets>

class SearchBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void searches() {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* box = new SearchBox;
        layout->addWidget(box);
        layout->addWidget(new QPushButton);
        window.show();
        QApplication::setActiveWindow(&window);
        box->setNames({"WGS 84", "GRS 1980", "Bessel 1841", "Bessel Namibia"});
        box->setShownName("GRS 1980");
        QSignalSpy chosen(box, SIGNAL(chosen(QString)));
        const auto found = [box] { return box->completer()->completionModel()->rowCount(); };
        const auto search = [box](const QString& typed) {
            box->setFocus();
            box->lineEdit()->selectAll();
            QTest::keyClicks(box, typed);
        };
        QAbstractItemView* list = box->completer()->popup();
        search("bess");
        QCOMPARE(found(), 2);
        QVERIFY(list->isVisible());
        QCOMPARE(chosen.count(), 0);
        QTest::keyClick(list, Qt::Key_Escape);
        QCOMPARE(box->currentText(), QString("GRS 1980"));
        QVERIFY(!list->isVisible());
        QVERIFY(window.isVisible());

        search("1841 BESS");
        QCOMPARE(found(), 1);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(chosen.takeFirst().first().toString(), QString("Bessel 1841"));

        search("wgs");
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(chosen.takeFirst().first().toString(), QString("WGS 84"));

        // What is no name of the list gives way when the user leaves; arrow keys open the list and choose nothing.
        search("no such");
        QTest::keyClick(box, Qt::Key_Tab);
        QCOMPARE(box->currentText(), QString("WGS 84"));
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Down);
        box->hidePopup();
        QCOMPARE(chosen.count(), 0);
    }
};

ROOM_TEST(SearchBoxTest)
#include "SearchBoxTest.moc"
