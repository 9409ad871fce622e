#include "tree/DlgInputName.h"

#include "support/LayoutText.h"
#include "support/MarkingTranslator.h"
#include "support/MessageBoxDouble.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QtWidgets>

class DlgInputNameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        MessageBoxDouble::reset();
        catalogue.groups.clear();
        catalogue.addTestGroup("A", {"a1"});
        catalogue.addTestGroup("B", {"b1"});
    }

    void layout() {
        const DlgInputName dialog(nullptr, &catalogue);
        QCOMPARE(layoutText(dialog.layout()), QString("column(QLineEdit, row(~, QDialogButtonBox))"));
        QCOMPARE(dialog.nameEdit->parentWidget(), &dialog);
        QCOMPARE(dialog.coordSystem, &catalogue);
        auto* buttons = dialog.findChild<QDialogButtonBox*>();
        QCOMPARE(int(buttons->standardButtons()), int(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
        QCOMPARE(buttons->button(QDialogButtonBox::Ok)->text(), QString("QObject:Ok"));
        QCOMPARE(buttons->button(QDialogButtonBox::Cancel)->text(), QString("QObject:Cancel"));
        QCOMPARE(dialog.windowTitle(), QString("DlgInputName:please input name"));
    }

    void checks_data() {
        const Rows<int, QString, QString> row({"nameType", "typed", "message"});
        const QString content = "please input valid content!";
        const QString sameGroup = "has same as coord group name!", sameSystem = "has same as coord system name!";
        for (const int type : {0, 1}) {
            row("empty", type, "", content);
            row("comma", type, "x,y", content);
            row("pasted with a NUL", type, QString("x") + QChar(0) + "y", content);
            row("pasted without its second half", type, QString("x") + QChar(0xD83D), content);
        }
        row("group: blanks pass", 0, "  ", {});
        row("group: taken, or unchanged", 0, "A", sameGroup);
        row("group: other case passes", 0, "a", {});
        row("group: a system's name passes", 0, "a1", {});
        row("system: taken, or unchanged", 1, "a1", sameSystem);
        row("system: taken in another group only", 1, "b1", {});
        row("system: a group's name passes", 1, "A", {});
        row("any other type asks for a system", 7, "a1", sameSystem);
    }

    void checks() {
        QFETCH(int, nameType);
        QFETCH(QString, typed);
        QFETCH(QString, message);
        DlgInputName dialog(nullptr, &catalogue);
        QCOMPARE(dialog.nameType, 0);
        dialog.groupName = "A";
        dialog.nameType = nameType;
        dialog.nameEdit->setText(typed);
        dialog.show();
        QTest::keyClick(dialog.nameEdit, Qt::Key_Return);
        QCOMPARE(dialog.isVisible(), !message.isNull());
        QCOMPARE(dialog.result(), message.isNull() ? int(QDialog::Accepted) : int(QDialog::Rejected));
        QCOMPARE(dialog.getName(), typed);
        const QString shown = "DlgInputName:information|DlgInputName:" + message;
        QCOMPARE(MessageBoxDouble::texts(), message.isNull() ? QStringList() : QStringList(shown));
        for (const auto& each : qAsConst(MessageBoxDouble::messages))
            QCOMPARE(each.parent, &dialog);
    }

    void groupThatIsGoneHoldsNoName() {
        DlgInputName dialog(nullptr, &catalogue);
        dialog.groupName = "gone";
        dialog.nameType = 1;
        dialog.nameEdit->setText("a1");
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

private:
    const MarkingTranslator translator;
    RecordingCatalogue catalogue;
};

ROOM_TEST(DlgInputNameTest)
#include "DlgInputNameTest.moc"
