#include "tree/DlgInputName.h"

#include "support/LayoutText.h"
#include "support/MarkingTranslator.h"
#include "support/MessageBoxDouble.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"
#include "support/TextTable.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

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

    void checks_data() { textRows("names.txt"); }
    void checks() {
        const auto [title, nameType, group, quoted, message] = textRow<5>();
        QString typed = quoted.mid(1, quoted.size() - 2);
        typed.replace("\\0", QString(QChar(0))).replace("\\ud83d", QString(QChar(0xD83D)));
        DlgInputName dialog(nullptr, &catalogue);
        QCOMPARE(dialog.nameType, 0);
        dialog.groupName = group;
        dialog.nameType = nameType.toInt();
        dialog.nameEdit->setText(typed);
        dialog.show();
        QTest::keyClick(dialog.nameEdit, Qt::Key_Return);
        QCOMPARE(dialog.isVisible(), !message.isEmpty());
        QCOMPARE(dialog.result(), message.isEmpty() ? int(QDialog::Accepted) : int(QDialog::Rejected));
        QCOMPARE(dialog.getName(), typed);
        const QString shown = "DlgInputName:information|DlgInputName:" + message;
        QCOMPARE(MessageBoxDouble::texts().join("; "), message.isEmpty() ? QString() : shown);
        for (const auto& each : qAsConst(MessageBoxDouble::messages))
            QCOMPARE(each.parent, &dialog);
    }

private:
    const MarkingTranslator translator;
    RecordingCatalogue catalogue;
};

ROOM_TEST(DlgInputNameTest)
#include "DlgInputNameTest.moc"
