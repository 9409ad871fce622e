#include "Day.h"

#include "app/VornCoordSysMainWindow.h"
#include "panel/DlgCoordParam.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "tree/DlgCoordSysGroups.h"

#include <QtTest>
#include <QtWidgets>

namespace {

enum Tab { Ellipsoid, Projection, DatumShift, Height, Check, Definition, TabCount };

constexpr int roundOfSelections = 10; ///< so many are made on one tab

const char* const geographic = R"(GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563]],)"
                               R"(PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]])";

QByteArray projected(const QByteArray& name, int meridian) {
    return "PROJCS[\"" + name + "\"," + geographic +
           R"(,PROJECTION["Transverse_Mercator"],PARAMETER["latitude_of_origin",0],PARAMETER["central_meridian",)" +
           QByteArray::number(meridian) +
           R"(],PARAMETER["scale_factor",0.9996],PARAMETER["false_easting",500000],PARAMETER["false_northing",0],)"
           R"(UNIT["metre",1]])";
}

} // namespace

Day::Day(const QString& home) {
    for (int i = 0; i < 20; ++i) {
        files << QString("%1/%2.prj").arg(home).arg(i);
        QFile file(files.last());
        file.open(QIODevice::WriteOnly);
        file.write(i % 7 == 6 ? QByteArray(geographic) : projected("New " + QByteArray::number(i), i));
    }
    window = std::make_unique<VornCoordSysMainWindow>(nullptr);
    tree = window->findChild<DlgCoordSysGroups*>();
    panel = window->findChild<DlgCoordParam*>();
    for (QPushButton* button : window->findChildren<QPushButton*>()) {
        if (button->text() == "Save" && !panel->isAncestorOf(button))
            saveButton = button;
    }
    connect(panel, SIGNAL(dataChanged()), this, SLOT(_onChanged()));
    connect(tree, SIGNAL(dataChanged()), this, SLOT(_onChanged()));
    window->show();
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
}

Day::~Day() = default;

QTreeWidgetItem* Day::firstGroup() const {
    return tree->topLevelItem(0)->child(0);
}

void Day::click(QTreeWidgetItem* item) const {
    tree->scrollToItem(item);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(item).center());
    QApplication::processEvents();
}

void Day::showTab(int tab) {
    if (panel->currentIndex() != tab)
        panel->setCurrentIndex(tab);
    // Its two pages take turns as well.
    auto* const pages = panel->currentWidget()->findChild<QTabWidget*>();
    if (tab == Check && pages && selections % (roundOfSelections * TabCount * 2) < roundOfSelections * TabCount)
        pages->setCurrentIndex(1);
    else if (pages)
        pages->setCurrentIndex(0);
    QApplication::processEvents();
}

void Day::select() {
    showTab(selections / roundOfSelections % TabCount);
    const QTreeWidgetItem* const root = tree->topLevelItem(0);
    QTreeWidgetItem* const group = root->child(selections % root->childCount());
    if (group->childCount() > 0)
        click(group->child(selections / root->childCount() % group->childCount()));
    ++selections;
}

void Day::edit() {
    showTab(edits / roundOfSelections % 3);
    QList<QLineEdit*> fields;
    for (QLineEdit* field : panel->currentWidget()->findChildren<QLineEdit*>()) {
        if (field->isVisible() && !field->isReadOnly() && !field->objectName().isEmpty() &&
            field->objectName() != "qt_spinbox_lineedit")
            fields << field;
    }
    if (!fields.isEmpty()) {
        QLineEdit* const field = fields[edits % fields.size()];
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QString::number(0.9 + edits % 1000 / 1e4));
        QTest::keyClick(field, edits % 4 ? Qt::Key_Tab : Qt::Key_Escape);
    }
    QApplication::processEvents();
    ++edits;
}

void Day::choose(const QString& file) const {
    ModalDriver::onNextDialog([file](QDialog* dialog) {
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file);
        QMetaObject::invokeMethod(dialog, "accept");
    });
}

void Day::trigger(const QString& entry) const {
    for (QAction* action : tree->findChildren<QAction*>()) {
        if (action->text() == entry)
            return action->trigger();
    }
}

void Day::import() {
    MessageBoxDouble::reset();
    const int before = firstGroup()->childCount();
    click(firstGroup()->child(0));
    choose(files[imports % files.size()]);
    trigger("ImportCoordSys");
    if (firstGroup()->childCount() > before && firstGroup()->child(0)->text(0).startsWith("New ")) {
        click(firstGroup()->child(0));
        MessageBoxDouble::answers = {1};
        trigger("DelSys");
    }
    QApplication::processEvents();
    ++imports;
}

void Day::save() {
    while (!saveButton->isEnabled())
        edit();
    ++saveCount;
    saveButton->click();
    QApplication::processEvents();
}

void Day::chooseFile() {
    choose(files[imports++ % files.size()]);
    QFileDialog::getOpenFileNames(window.get(), "Selecte WKT file", QString(), "*.txt;;*.prj");
    QApplication::processEvents();
}
