#include "platform/desktop/VornMessageBox.h"

#include "support/ModalDriver.h"
#include "support/RoomTest.h"
#include "support/TextTable.h"

#include <QDialog>
#include <QKeySequence>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

/// The real boxes, in the hands of a user.
class VornMessageBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void box_data() { textRows("boxes.txt"); }
    void box() {
        const auto row = textRow<4>();
        const bool question = row[1] == "question";
        const QByteArray& keys = row[2];
        QByteArray answer = row[3];
        QWidget parent;
        const QString text = "Delete <b>x</b> & 100%1\nof \"it\"?", title = "Title <i>";
        ModalDriver::onNextDialog([&](QDialog* dialog) {
            auto* box = qobject_cast<QMessageBox*>(dialog);
            QVERIFY(QTest::qWaitForWindowActive(box));
            QCOMPARE(box->windowTitle(), title);
            QCOMPARE(box->text(), text);
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(box->icon(), question ? QMessageBox::Question : QMessageBox::Information);
            QCOMPARE(box->parentWidget(), &parent);
            QCOMPARE(int(box->standardButtons()), int(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok));
            if (question)
                noneAnswersByAccident(box);
            for (const QString& name : QString(keys).split(' ', Qt::SkipEmptyParts)) {
                const int key = QKeySequence(name)[0];
                QVERIFY(box->isVisible());
                if (answer == "focus" && key != Qt::Key_Tab) {
                    const auto* focused = qobject_cast<QPushButton*>(box->focusWidget());
                    QVERIFY(focused);
                    answer = textOf(focused);
                    QTest::keyClick(box->focusWidget(), Qt::Key_Escape);
                }
                QTest::keyClick(box->focusWidget(), Qt::Key(key));
            }
            for (QPushButton* button : box->findChildren<QPushButton*>())
                if (keys.isEmpty() && textOf(button) == answer)
                    QTest::mouseClick(button, Qt::LeftButton);
            QTRY_VERIFY(!box->isVisible());
        });
        int result = -1;
        if (question)
            result = VornMessageBox::information(&parent, title, text);
        else
            VornMessageBox::information_ok(&parent, title, text);
        QCOMPARE(ModalDriver::pending(), 0);
        QVERIFY(answer != "focus");
        QCOMPARE(result, question ? (answer == "Yes" ? 1 : 0) : -1);
    }

private:
    static QByteArray textOf(const QPushButton* button) { return button->text().remove('&').toUtf8(); }

    static void noneAnswersByAccident(QMessageBox* box) {
        for (QPushButton* button : box->findChildren<QPushButton*>())
            QVERIFY(!button->isDefault() && !button->hasFocus());
        for (const auto key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Delete})
            QTest::keyClick(box->focusWidget(), key);
        box->close();
        QTest::qWait(150); // a button pressed by its letter is down for a moment
        QVERIFY(box->isVisible());
    }
};

ROOM_TEST(VornMessageBoxTest)
#include "VornMessageBoxTest.moc"
