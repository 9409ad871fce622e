#include "panel/registry/RegistryDialog.h"

#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

class RegistryDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void onlyWhatIsHeldIsTaken_data() {
        const Rows<QString, bool> row({"code", "isHeld"});
        row("British grid", "27700", true);
        row("Krovak", "5514", false);
    }

    void onlyWhatIsHeldIsTaken() {
        QFETCH(QString, code);
        QFETCH(bool, isHeld);
        RegistryDialog dialog(*projectionModule(), nullptr, nullptr);
        dialog.show();
        QTest::keyClicks(dialog.focusWidget(), code);
        QCOMPARE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled(), isHeld);
        QString texts;
        for (const QLabel* label : dialog.findChildren<QLabel*>())
            texts += label->text();
        QCOMPARE(texts.contains("None of the methods holds this projection exactly"), !isHeld);
    }
};

ROOM_TEST(RegistryDialogTest)
#include "RegistryDialogTest.moc"
