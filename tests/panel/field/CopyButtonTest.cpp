#include "panel/field/CopyButton.h"

#include "support/RoomTest.h"

#include <QtTest>
#include <QtWidgets>

class CopyButtonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answersForAMoment() {
        CopyButton button("Copy");
        button.show();
        const QSize size = button.size();
        button.copy("+proj=tmerc");
        QCOMPARE(QApplication::clipboard()->text(), QString("+proj=tmerc"));
        QCOMPARE(button.text(), QString("Copied"));
        QCOMPARE(button.sizeHint().expandedTo(button.minimumSize()), size);
        QTRY_COMPARE(button.text(), QString("Copy"));
    }
};

ROOM_TEST(CopyButtonTest)
#include "CopyButtonTest.moc"
