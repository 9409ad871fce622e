#include "platform/desktop/VornMessageBox.h"

#include "support/ModalDriver.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QtWidgets>

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

QWidget* focused(QWidget* box) {
    return box->focusWidget() ? box->focusWidget() : box;
}

/// Closes a box that a failed test leaves open, so that it does not wait for ever.
auto leaver(QMessageBox* box) {
    return qScopeGuard([box] {
        if (box->isVisible())
            box->done(-1);
    });
}

} // namespace

/// The real boxes, in the hands of a user.
class VornMessageBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void question_data() {
        const Rows<QVector<int>, QMessageBox::StandardButton> row({"keys", "answer"});
        row("its letter: Yes", {Qt::Key_Y}, QMessageBox::Yes);
        row("its letter: No", {Qt::Key_N}, QMessageBox::No);
        row("Tab and Space", {Qt::Key_Tab, Qt::Key_Space}, QMessageBox::NoButton);
        row("Tab and Enter", {Qt::Key_Tab, Qt::Key_Return}, QMessageBox::NoButton);
        row("Tab twice and Space", {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space}, QMessageBox::NoButton);
        row("Tab twice and Enter", {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Enter}, QMessageBox::NoButton);
        row("mouse: Yes", {}, QMessageBox::Yes);
        row("mouse: No", {}, QMessageBox::No);
    }

    /// Before `keys` (or else a click) answer it, what must not answer it does not. NoButton: the focused button
    /// counts.
    void question() {
        QFETCH(QVector<int>, keys);
        QFETCH(QMessageBox::StandardButton, answer);
        QWidget parent;
        const QString text = "Delete <b>x</b> & 100%1\nof \"it\"?", title = "Title <i>";
        ModalDriver::onNextDialog([&](QDialog* dialog) {
            auto* box = qobject_cast<QMessageBox*>(dialog);
            QVERIFY(QTest::qWaitForWindowActive(box));
            const auto leave = leaver(box);
            QCOMPARE(box->windowTitle(), title);
            QCOMPARE(box->text(), text);
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(box->icon(), QMessageBox::Question);
            QCOMPARE(box->parentWidget(), &parent);
            QCOMPARE(int(box->standardButtons()), int(QMessageBox::Yes | QMessageBox::No));
            for (QPushButton* button : box->findChildren<QPushButton*>())
                QVERIFY(!button->isDefault() && !button->hasFocus());

            for (const int key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Delete})
                QTest::keyClick(focused(box), Qt::Key(key));
            box->close();
            QTest::qWait(150); // a button pressed by its letter is down for a moment
            QVERIFY(box->isVisible());

            for (const int key : keys) {
                if (auto* button = qobject_cast<QPushButton*>(focused(box))) {
                    QTest::keyClick(button, Qt::Key_Escape);
                    answer = box->standardButton(button);
                }
                QVERIFY(box->isVisible());
                QTest::keyClick(focused(box), Qt::Key(key));
            }
            if (keys.isEmpty())
                QTest::mouseClick(box->button(answer), Qt::LeftButton);
            QTRY_VERIFY(!box->isVisible());
        });
        const int result = VornMessageBox::information(&parent, title, text);
        QVERIFY(answer != QMessageBox::NoButton);
        QCOMPARE(result, answer == QMessageBox::Yes ? 1 : 0);
    }

    void notice_data() {
        const Rows<int> row({"key"});
        row("Enter", Qt::Key_Return);
        row("Escape", Qt::Key_Escape);
        row("Space", Qt::Key_Space);
        row("the frame's close button", 0);
    }

    void notice() {
        QFETCH(int, key);
        QWidget parent;
        ModalDriver::onNextDialog([&](QDialog* dialog) {
            auto* box = qobject_cast<QMessageBox*>(dialog);
            QVERIFY(QTest::qWaitForWindowActive(box));
            const auto leave = leaver(box);
            QCOMPARE(box->windowTitle(), QString("information"));
            QCOMPARE(box->text(), QString("<b>x</b>"));
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(box->icon(), QMessageBox::Information);
            QCOMPARE(box->parentWidget(), &parent);
            QCOMPARE(int(box->standardButtons()), int(QMessageBox::Ok));
            if (key == 0)
                box->close();
            else
                QTest::keyClick(focused(box), Qt::Key(key));
            QTRY_VERIFY(!box->isVisible());
        });
        VornMessageBox::information_ok(&parent, "information", "<b>x</b>");
        QCOMPARE(ModalDriver::pending(), 0);
    }
};

ROOM_TEST(VornMessageBoxTest)
#include "VornMessageBoxTest.moc"
