#include "platform/desktop/VornMessageBox.h"

#include "support/ModalDriver.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QtWidgets>

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

/// The real boxes, in the hands of a user.
class VornMessageBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void box_data() {
        // Keys, or none for a press of the mouse; the button that answers, NoButton for the one that has the focus
        // then.
        const Rows<bool, QVector<int>, QMessageBox::StandardButton> row({"question", "keys", "answer"});
        const auto focus = QMessageBox::NoButton;
        row("its letter: Yes", true, {Qt::Key_Y}, QMessageBox::Yes);
        row("its letter: No", true, {Qt::Key_N}, QMessageBox::No);
        row("Tab and Space", true, {Qt::Key_Tab, Qt::Key_Space}, focus);
        row("Tab and Enter", true, {Qt::Key_Tab, Qt::Key_Return}, focus);
        row("Tab twice and Space", true, {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space}, focus);
        row("Tab twice and Enter", true, {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Enter}, focus);
        row("mouse: Yes", true, {}, QMessageBox::Yes);
        row("mouse: No", true, {}, QMessageBox::No);
        row("notice: mouse", false, {}, QMessageBox::Ok);
        for (const auto key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space})
            row("notice: " + QByteArray::number(key, 16), false, {key}, QMessageBox::Ok);
    }

    void box() {
        QFETCH(bool, question);
        QFETCH(QVector<int>, keys);
        QFETCH(QMessageBox::StandardButton, answer);
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
            for (const int key : keys) {
                QVERIFY(box->isVisible());
                if (answer == QMessageBox::NoButton && key != Qt::Key_Tab) {
                    answer = box->standardButton(qobject_cast<QPushButton*>(box->focusWidget()));
                    QTest::keyClick(box->focusWidget(), Qt::Key_Escape);
                }
                QTest::keyClick(box->focusWidget(), Qt::Key(key));
            }
            if (keys.isEmpty())
                QTest::mouseClick(box->button(answer), Qt::LeftButton);
            QTRY_VERIFY(!box->isVisible());
        });
        int result = -1;
        if (question)
            result = VornMessageBox::information(&parent, title, text);
        else
            VornMessageBox::information_ok(&parent, title, text);
        QCOMPARE(ModalDriver::pending(), 0);
        QVERIFY(answer != QMessageBox::NoButton);
        QCOMPARE(result, question ? (answer == QMessageBox::Yes ? 1 : 0) : -1);
    }

private:
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
