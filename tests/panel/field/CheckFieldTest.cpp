#include "panel/field/CheckField.h"

#include "panel/field/FieldEdit.h"
#include "panel/field/MessageLine.h"
#include "support/RoomTest.h"

#include <QtTest>
#include <QtWidgets>

class CheckFieldTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void returnsToTheNumberBefore() {
        QWidget window;
        auto* grid = new QGridLayout(&window);
        auto* message = new MessageLine(&window);
        CheckField field({"", Quantity::Length, "Easting", -1e9, 1e9, 0.0}, message, grid, 0);
        auto* elsewhere = new QPushButton;
        grid->addWidget(elsewhere, 1, 0);
        window.show();
        QApplication::setActiveWindow(&window);
        auto* edit = window.findChild<FieldEdit*>();
        const auto type = [edit](const QString& text) {
            edit->setFocus();
            edit->selectAll();
            QTest::keyClicks(edit, text);
        };
        field.setValue(123456.789);
        QSignalSpy edits(&field, SIGNAL(edited()));
        type("5x5");
        QVERIFY(!field.value() && !message->text().isEmpty());
        QCOMPARE(edits.count(), 3);
        QTest::keyClick(edit, Qt::Key_Escape);
        QCOMPARE(field.value().value(), 123456.789);
        QCOMPARE(field.text(), QString("123456.7890"));
        QCOMPARE(message->text(), QString());
        QCOMPARE(edits.count(), 4);

        type("1 000 m");
        QTest::keyClick(edit, Qt::Key_Return);
        type("7x");
        elsewhere->setFocus();
        QCOMPARE(field.value().value(), 1000.0);
        QCOMPARE(field.text(), QString("1000.0000"));

        field.clear(); // there was no number before
        type("7");
        QTest::keyClick(edit, Qt::Key_Escape);
        QVERIFY(!field.value());
        QCOMPARE(field.text(), QString());
    }
};

ROOM_TEST(CheckFieldTest)
#include "CheckFieldTest.moc"
