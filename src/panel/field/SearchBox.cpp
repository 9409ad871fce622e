#include "panel/field/SearchBox.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSortFilterProxyModel>

SearchBox::SearchBox(QWidget* parent) : QComboBox(parent), filter(new QSortFilterProxyModel(this)) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(16);
    // Its width is the form's, not the longest name's.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(20);

    filter->setSourceModel(model());
    filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto* searching = new QCompleter(filter, this);
    searching->setCompletionMode(QCompleter::UnfilteredPopupCompletion); // the filter has done it
    searching->setCaseSensitivity(Qt::CaseInsensitive);
    searching->setMaxVisibleItems(16);
    setCompleter(searching);

    connect(lineEdit(), SIGNAL(textEdited(QString)), this, SLOT(_onTextEdited(QString)));
    connect(this, SIGNAL(activated(int)), this, SLOT(_onActivated(int)));
}

void SearchBox::setReadOnly(bool on) {
    readOnly = on;
    lineEdit()->setReadOnly(on);
}

void SearchBox::setNames(const QStringList& names) {
    const QString text = lineEdit()->text();
    const int cursor = lineEdit()->cursorPosition();
    clear();
    addItems(names);
    setCurrentIndex(findText(shown, Qt::MatchExactly | Qt::MatchCaseSensitive));
    lineEdit()->setText(text);
    lineEdit()->setCursorPosition(cursor);
}

void SearchBox::setShownName(const QString& name) {
    shown = name;
    setCurrentIndex(findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive));
    lineEdit()->setText(name);
    lineEdit()->setCursorPosition(0);
}

void SearchBox::showPopup() {
    if (readOnly)
        return;
    Q_EMIT listNeeded();
    QComboBox::showPopup();
}

void SearchBox::choose(const QString& name) {
    setShownName(name);
    Q_EMIT chosen(name);
}

void SearchBox::_onTextEdited(const QString& text) {
    Q_EMIT listNeeded();
    // Every word, in any order: "(?=.*word)" looks ahead without moving on.
    QString pattern = "^";
    const QStringList words = text.split(' ', Qt::SkipEmptyParts);
    for (const QString& word : words)
        pattern += "(?=.*" + QRegularExpression::escape(word) + ')';
    filter->setFilterRegularExpression(QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption));
}

void SearchBox::_onActivated(int index) {
    choose(itemText(index));
}

bool SearchBox::event(QEvent* event) {
    // Keeps Escape from being taken as a shortcut, of a dialog for example.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QComboBox::event(event);
}

void SearchBox::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        event->accept();
        completer()->popup()->hide();
        if (takesAnyText) {
            Q_EMIT cancelled();
            return;
        }
        setShownName(shown);
        lineEdit()->selectAll();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!takesAnyText && lineEdit()->isModified() && filter->rowCount() == 1) {
            completer()->popup()->hide();
            choose(filter->index(0, 0).data().toString());
            return;
        }
        QComboBox::keyPressEvent(event);
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        // They open the list instead of choosing the next name at once.
        showPopup();
        return;
    default:
        QComboBox::keyPressEvent(event);
    }
}

void SearchBox::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    if (takesAnyText)
        Q_EMIT left();
    else
        setShownName(shown);
}

void SearchBox::wheelEvent(QWheelEvent* event) {
    event->ignore(); // scrolling over it must not change the record
}
