#include "geodesy/CustomCatalogue.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/Path.h"
#include "geodesy/DlgEllipsoid.h"
#include "geodesy/DlgGeoid.h"
#include "support/MessageBoxDouble.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdarg>
#include <cstdio>
#include <functional>
#include <memory>

using namespace CustomCatalogue;

namespace {

const QString ellipsoid = QStringLiteral("Ellipsoid");
const QString geoid = QStringLiteral("Geoid");
const QString refused = QStringLiteral("information|please input correct param!");

QString appFolder; ///< what "$(APP_DIR)" stands for
int pathBufferSize = 0;

std::unique_ptr<QDialog> create(const QString& kind, ICoordSystem* catalogue, int mode) {
    if (kind == ellipsoid)
        return std::make_unique<DlgEllipsoid>(nullptr, catalogue, mode);
    return std::make_unique<DlgGeoid>(nullptr, catalogue, mode);
}

/// An entry with values of its own: `name` and a digit for an ellipsoid, `name` and a known ellipsoid for a geoid.
void addEntry(RecordingCatalogue& catalogue, const QString& kind, const QString& name, const QString& flag) {
    if (kind == ellipsoid)
        catalogue.addTestEllipsoid(name, QString::number(6378000 + catalogue.ellipsoids.count()), "298.30", flag);
    else
        catalogue.addTestGeoid(name, name + ".ggf", "WGS 84", flag);
}

/// "WGS 84" (shipped), "plain" (without a flag), "mine" and "mine too" (the user's own).
void fill(RecordingCatalogue& catalogue, const QString& kind) {
    if (kind == geoid)
        catalogue.addTestEllipsoid("WGS 84", "6378137.0", "298.257223563", "1");
    addEntry(catalogue, kind, "WGS 84", "1");
    addEntry(catalogue, kind, "plain", QString());
    addEntry(catalogue, kind, "mine", "0");
    addEntry(catalogue, kind, "mine too", "0");
    catalogue.takeCalls();
}

template <class Widget> Widget* child(const QDialog* dialog, int index) {
    return dialog->findChildren<Widget*>(QString(), Qt::FindDirectChildrenOnly).value(index);
}

QComboBox* nameBox(const QDialog* dialog) {
    return child<QComboBox>(dialog, 0);
}

/// The two fields beside the name.
QStringList fields(const QString& kind, const QDialog* dialog) {
    const QString first = child<QLineEdit>(dialog, 0)->text();
    return {first,
            kind == ellipsoid ? child<QLineEdit>(dialog, 1)->text() : child<QComboBox>(dialog, 1)->currentText()};
}

void enter(const QString& kind, const QDialog* dialog, const QString& name, const QStringList& values) {
    if (nameBox(dialog)->isEditable())
        nameBox(dialog)->setEditText(name);
    child<QLineEdit>(dialog, 0)->setText(values[0]);
    if (kind == ellipsoid)
        child<QLineEdit>(dialog, 1)->setText(values[1]);
    else
        child<QComboBox>(dialog, 1)->setCurrentIndex(child<QComboBox>(dialog, 1)->findText(values[1]));
}

QPushButton* button(const QDialog* dialog, const QString& text) {
    for (QPushButton* each : dialog->findChildren<QPushButton*>()) {
        if (each->text().remove('&') == text)
            return each;
    }
    return nullptr;
}

/// The stored record as its four texts.
QStringList stored(const RecordingCatalogue& catalogue, const QString& kind, const QString& name) {
    const IDictionary* record = (kind == ellipsoid ? catalogue.ellipsoids : catalogue.geoids).find(name);
    QStringList texts;
    for (int i = 0; record && i < record->count(); ++i)
        texts << text(*record, record->getKey(i));
    return texts;
}

/// Presses `opener`, which runs a modal dialog, and does `work` in it; the dialog is closed if `work` leaves it open.
void inModalDialog(QPushButton* opener, const std::function<void(QDialog*)>& work) {
    QTimer::singleShot(0, opener, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        work(dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
    opener->click();
}

void choose(const QDialog* dialog, const QString& path) {
    inModalDialog(button(dialog, "Browser"), [&](QDialog* files) {
        QCOMPARE(files->windowTitle(), QString("selete file"));
        auto* fileDialog = qobject_cast<QFileDialog*>(files);
        QVERIFY(fileDialog);
        QCOMPARE(fileDialog->nameFilters(), QStringList("Geiod File(*.ggf *.vgf)"));
        QCOMPARE(fileDialog->directory(), QDir(appFolder + "/../etc/Vornhalde/data/GeoidData"));
        if (path.isEmpty())
            return;
        files->findChild<QLineEdit*>("fileNameEdit")->setText(path);
        QMetaObject::invokeMethod(files, "accept");
    });
}

template <class... Values> void row(const QByteArray& title, const Values&... values) {
    QTestData& data = QTest::newRow(title);
    ((data << values), ...);
}

QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

} // namespace

/// In place of the utility library's: the folder of the executable is the test's to choose.
void process_resolve_path(char* buffer, int size, const char* format, ...) {
    const QByteArray resolved = QByteArray(format).replace("$(APP_DIR)", appFolder.toLocal8Bit());
    va_list values;
    va_start(values, format);
    const int length = std::vsnprintf(buffer, static_cast<size_t>(size), resolved.constData(), values);
    va_end(values);
    if (length >= size)
        buffer[0] = '\0';
    pathBufferSize = size;
}

class CustomCatalogueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void modes_data();
    void modes();
    void selection_data();
    void selection();
    void emptyList_data();
    void emptyList();
    void confirm_data();
    void confirm();
    void nested_data();
    void nested();
    void deletion_data();
    void deletion();
    void typedNameStaysTyped_data();
    void typedNameStaysTyped();
    void typedNumber_data();
    void typedNumber();
    void modelFile_data();
    void modelFile();

private:
    QStringList saves(const QString& kind) const;

    QTemporaryDir home;
    int aliveAtStart = 0;
};

void CustomCatalogueTest::initTestCase() {
    qputenv("HOME", home.path().toLocal8Bit());
    qunsetenv("XDG_CONFIG_HOME");
    QLocale::setDefault(QLocale(QLocale::German));
}

void CustomCatalogueTest::init() {
    MessageBoxDouble::reset();
    appFolder = home.path();
    aliveAtStart = dictionary_alive_count();
}

void CustomCatalogueTest::cleanup() {
    QCOMPARE(dictionary_alive_count(), aliveAtStart);
}

QStringList CustomCatalogueTest::saves(const QString& kind) const {
    const QString save = "save" + kind + "s(%1)";
    return {save.arg(""), save.arg(home.path() + "/Documents/ArvelaGnss/Data/" + kind + "_custom.xml")};
}

void CustomCatalogueTest::modes_data() {
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QStringList>("buttons");

    const QStringList wgs84{"6378000", "298.30"};
    row("ellipsoid list", ellipsoid, 0, "WGS 84", wgs84, QStringList{"Add", "(Edit)", "(Delete)"});
    row("ellipsoid add", ellipsoid, 1, "", QStringList{"", ""}, QStringList{"OK", "Cancel"});
    row("ellipsoid edit", ellipsoid, 2, "WGS 84", wgs84, QStringList{"OK", "Cancel"});
    const QStringList file{"WGS 84.ggf", "WGS 84"};
    row("geoid list", geoid, 0, "WGS 84", file, QStringList{"(Browser)", "Add", "(Edit)", "(Delete)"});
    row("geoid add", geoid, 1, "", QStringList{"", "WGS 84"}, QStringList{"Browser", "OK", "Cancel"});
    row("geoid edit", geoid, 2, "WGS 84", file, QStringList{"Browser", "OK", "Cancel"});
}

void CustomCatalogueTest::modes() {
    QFETCH(QString, kind);
    QFETCH(int, mode);
    RecordingCatalogue catalogue;
    fill(catalogue, kind);
    const auto dialog = create(kind, &catalogue, mode);

    const bool isEllipsoid = kind == ellipsoid;
    QCOMPARE(dialog->windowTitle(), QString(isEllipsoid ? "Edit Ellipsoid" : "New Geoid"));
    QCOMPARE(dialog->minimumSize(), isEllipsoid ? QSize(280, 160) : QSize(400, 160));
    QStringList labels;
    for (const QLabel* label : dialog->findChildren<QLabel*>())
        labels << label->text();
    QCOMPARE(labels, isEllipsoid ? QStringList({"Ellipsoid Name", "ellipsoid a(m)", "ellipsoid f"})
                                 : QStringList({"Geoid Name", "File Path", "Ellipsoid Name"}));
    QStringList buttons;
    for (const QPushButton* each : dialog->findChildren<QPushButton*>())
        buttons << QString(each->isEnabled() ? "%1" : "(%1)").arg(each->text().remove('&'));
    QTEST(buttons, "buttons");

    QTEST(nameBox(dialog.get())->currentText(), "name");
    QCOMPARE(nameBox(dialog.get())->count(), 4);
    QCOMPARE(nameBox(dialog.get())->isEditable(), mode == AddMode);
    QCOMPARE(nameBox(dialog.get())->isEnabled(), mode != EditMode);
    QTEST(fields(kind, dialog.get()), "values");
    QCOMPARE(child<QLineEdit>(dialog.get(), 0)->isReadOnly(), kind == geoid || mode == ListMode);
    if (isEllipsoid)
        QCOMPARE(child<QLineEdit>(dialog.get(), 1)->isReadOnly(), mode == ListMode);
    else
        QCOMPARE(child<QComboBox>(dialog.get(), 1)->isEnabled(), mode != ListMode);
    QVERIFY(!button(dialog.get(), "OK") || child<QDialogButtonBox>(dialog.get(), 0));
}

void CustomCatalogueTest::selection_data() {
    QTest::addColumn<QString>("flag");
    QTest::addColumn<bool>("own");
    row("0", "0", true);
    row("1", "1", false);
    row("missing", QString(), false);
    row("a text", "own", true);
    row("empty", "", true);
    row("00 and a tail", " 00x", true);
    row("negative", "-1", false);
}

/// What the list enables for an entry that is selected, and what it shows of one without values.
void CustomCatalogueTest::selection() {
    QFETCH(QString, flag);
    for (const QString& kind : {ellipsoid, geoid}) {
        RecordingCatalogue catalogue;
        fill(catalogue, kind);
        addEntry(catalogue, kind, "last", flag);
        const auto dialog = create(kind, &catalogue, ListMode);
        nameBox(dialog.get())->setCurrentIndex(4);
        QTEST(button(dialog.get(), "Edit")->isEnabled(), "own");
        QTEST(button(dialog.get(), "Delete")->isEnabled(), "own");
        QVERIFY(button(dialog.get(), "Add")->isEnabled());

        IDictionary* record = (kind == ellipsoid ? catalogue.ellipsoids : catalogue.geoids).find("mine");
        for (const char* key : {EllipsoidKey::a, EllipsoidKey::f, GeoidKey::file, GeoidKey::ellipsoid})
            record->remove(key);
        nameBox(dialog.get())->setCurrentIndex(2);
        QCOMPARE(fields(kind, dialog.get()), QStringList({"", ""}));
    }
}

void CustomCatalogueTest::emptyList_data() {
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("nullList");
    row("ellipsoid, empty", ellipsoid, false);
    row("ellipsoid, null", ellipsoid, true);
    row("geoid, empty", geoid, false);
    row("geoid, null", geoid, true);
}

void CustomCatalogueTest::emptyList() {
    QFETCH(QString, kind);
    RecordingCatalogue catalogue;
    QFETCH(bool, nullList);
    catalogue.nullLists = nullList;
    const auto dialog = create(kind, &catalogue, ListMode);
    QCOMPARE(nameBox(dialog.get())->count(), 0);
    QCOMPARE(fields(kind, dialog.get()), QStringList({"", ""}));
    for (const char* text : {"Add", "Edit", "Delete"})
        QVERIFY2(button(dialog.get(), text)->isEnabled(), text);

    catalogue.takeCalls();
    button(dialog.get(), "Delete")->click();
    QCOMPARE(MessageBoxDouble::texts(), QStringList());
    inModalDialog(button(dialog.get(), "Edit"), [](QDialog* edit) { button(edit, "OK")->click(); });
    QCOMPARE(MessageBoxDouble::texts(), QStringList(refused));
    QCOMPARE(catalogue.calls.filter(QRegExp("^(add|delete|save)")), QStringList());
}

void CustomCatalogueTest::confirm_data() {
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("answer"); // to a question: 1 confirmed, 0 declined
    QTest::addColumn<bool>("accepted");

    for (const QString& kind : {ellipsoid, geoid}) {
        const auto add = [&kind](const char* title, const QString& name, const QStringList& values,
                                 const QString& message, int answer, bool accepted, int mode = AddMode) {
            row(kind.toLatin1() + ": " + title, kind, mode, name, values, message, answer, accepted);
        };
        const bool isEllipsoid = kind == ellipsoid;
        const QStringList good =
            isEllipsoid ? QStringList{"6378137.000", "298.257223563"} : QStringList{"a.ggf", "WGS 84"};
        const QString shipped = isEllipsoid ? "Warning|new add ellipsoid name can't same as system!"
                                            : "Warning|new geoid name can't same with system name!";
        const QString cover = isEllipsoid ? "?Warning|has same name as system, whether cover?"
                                          : "?Warning|has same file name, whether or not covered?";
        add("new", "new", good, "", 0, true);
        add("blanks are a name", "  ", good, "", 0, true);
        add("name kept as typed", QString::fromUtf8(" 100%s <Größe> 北 "), good, "", 0, true);
        add("names differ in case", "wgs 84", good, "", 0, true);
        add("no name", "", good, refused, 0, false);
        add("comma in the name", "a,b", good, refused, 0, false);
        add("first value missing", "new", {"", good[1]}, refused, 0, false);
        add("second value missing", "new", {good[0], ""}, refused, 0, false);
        add("first check first", "WGS 84", {"", good[1]}, refused, 0, false);
        add("shipped name", "WGS 84", good, shipped, 1, false);
        add("name of an entry without a flag", "plain", good, shipped, 1, false);
        add("own name, covered", "mine", good, cover, 1, true);
        add("own name, declined", "mine", good, cover, 0, false);
        add("edit", "mine", good, "", 0, true, EditMode);
        add("edit without a value", "mine", {"", good[1]}, refused, 0, false, EditMode);
    }

    for (const QByteArray number : {"6378137", "6378137.", ".5", "6.378137e6", "0065536.10", "1E-3"}) {
        row("a " + number, ellipsoid, int(AddMode), "new", QStringList{number, "300"}, "", 0, true);
        row("f " + number, ellipsoid, int(AddMode), "new", QStringList{"1", number}, "", 0, true);
    }
    for (const QByteArray number :
         {"0", "0.0", "-0", ".", "-6378137", "1e999", "1e-999", "nan", "inf", "-inf", "Infinity", "0x10", "1p3",
          "6378137,0", "6,378,137", "6 378 137", "6378137m", "1.2.3", "\u0661\u0662"}) {
        row("a " + number, ellipsoid, int(EditMode), "mine", QStringList{number, "300"}, refused, 0, false);
        row("f " + number, ellipsoid, int(AddMode), "new", QStringList{"1", number}, refused, 0, false);
    }
}

void CustomCatalogueTest::confirm() {
    QFETCH(QString, kind);
    QFETCH(int, mode);
    QFETCH(QString, name);
    QFETCH(QStringList, values);
    QFETCH(QString, message);
    QFETCH(int, answer);
    QFETCH(bool, accepted);
    RecordingCatalogue catalogue;
    fill(catalogue, kind);
    const QStringList before = stored(catalogue, kind, name);
    const auto dialog = create(kind, &catalogue, mode);
    selectName(nameBox(dialog.get()), name);
    enter(kind, dialog.get(), name, values);
    dialog->show();
    catalogue.takeCalls();
    MessageBoxDouble::answers = {answer};

    button(dialog.get(), "OK")->click();

    QCOMPARE(MessageBoxDouble::texts(), message.isEmpty() ? QStringList() : QStringList(message));
    if (!message.isEmpty())
        QCOMPARE(MessageBoxDouble::messages[0].parent, dialog.get());
    QStringList calls;
    if (mode == AddMode && message != refused)
        calls << "get" + kind + "(" + name + ")";
    if (accepted && mode == EditMode && kind == ellipsoid)
        calls << "deleteEllipsoid(" + name + ")";
    if (accepted)
        calls << "add" + kind + "(" + name + ")" << saves(kind);
    QCOMPARE(catalogue.takeCalls(), calls);
    QCOMPARE(stored(catalogue, kind, name), accepted ? QStringList{name} + values + QStringList{"0"} : before);
    QCOMPARE(dialog->isVisible(), !accepted);
    QCOMPARE(dialog->result(), int(accepted ? QDialog::Accepted : QDialog::Rejected));
    QCOMPARE(fields(kind, dialog.get()), values);
    QCOMPARE(nameBox(dialog.get())->currentText(), name);
}

void CustomCatalogueTest::nested_data() {
    QTest::addColumn<QString>("opener");
    QTest::addColumn<QString>("closer");
    QTest::addColumn<QString>("current"); // in the list afterwards; "mine" before
    row("add", "Add", "OK", "new");
    row("add, cancelled", "Add", "Cancel", "mine");
    row("edit", "Edit", "OK", "mine");
    row("edit, cancelled", "Edit", "Cancel", "mine");
    row("edit, escaped", "Edit", "", "mine");
}

void CustomCatalogueTest::nested() {
    QFETCH(QString, opener);
    QFETCH(QString, closer);
    for (const QString& kind : {ellipsoid, geoid}) {
        RecordingCatalogue catalogue;
        fill(catalogue, kind);
        const auto list = create(kind, &catalogue, ListMode);
        selectName(nameBox(list.get()), "mine");
        const QStringList before = fields(kind, list.get());
        const QStringList entered = kind == ellipsoid ? QStringList{"7.0", "8.00"} : QStringList{"b.vgf", "WGS 84"};
        bool done = false;
        inModalDialog(button(list.get(), opener), [&](QDialog* dialog) {
            QCOMPARE(dialog->parentWidget(), list.get());
            const bool edit = opener == "Edit";
            QCOMPARE(nameBox(dialog)->currentText(), QString(edit ? "mine" : ""));
            QCOMPARE(fields(kind, dialog)[0], edit ? before[0] : QString());
            enter(kind, dialog, "new", entered);
            if (closer.isEmpty())
                QTest::keyClick(dialog, Qt::Key_Escape);
            else
                button(dialog, closer)->click();
            QVERIFY(!dialog->isVisible());
            done = true;
        });
        QVERIFY(done);
        QTEST(nameBox(list.get())->currentText(), "current");
        QCOMPARE(fields(kind, list.get()), closer == "OK" ? entered : before);
        QVERIFY(button(list.get(), "Edit")->isEnabled());
        QCOMPARE(catalogue.takeCalls().filter(QRegExp("^save")), closer == "OK" ? saves(kind) : QStringList());
    }
}

void CustomCatalogueTest::deletion_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("answer");
    row("confirmed", "mine", 1);
    row("declined", "mine", 0);
    row("place marker in the name", "%1 %2", 1);
    row("the only one", "only", 1);
}

void CustomCatalogueTest::deletion() {
    QFETCH(QString, name);
    QFETCH(int, answer);
    for (const QString& kind : {ellipsoid, geoid}) {
        RecordingCatalogue catalogue;
        if (name != "only")
            fill(catalogue, kind);
        if (stored(catalogue, kind, name).isEmpty())
            addEntry(catalogue, kind, name, "0");
        const auto list = create(kind, &catalogue, ListMode);
        selectName(nameBox(list.get()), name);
        catalogue.takeCalls();
        MessageBoxDouble::reset();
        MessageBoxDouble::answers = {answer};
        button(list.get(), "Delete")->click();
        QCOMPARE(MessageBoxDouble::texts(),
                 QStringList("?Warning|Are you sure you want to delete " + kind.toLower() + " [" + name + "]?"));
        QCOMPARE(MessageBoxDouble::messages[0].parent, list.get());
        QCOMPARE(catalogue.takeCalls().mid(0, 3),
                 answer ? QStringList("delete" + kind + "(" + name + ")") + saves(kind) : QStringList());
        QCOMPARE(stored(catalogue, kind, name).isEmpty(), answer == 1);
        if (name == "only") {
            QCOMPARE(nameBox(list.get())->count(), 0);
            QCOMPARE(fields(kind, list.get())[0], QString());
            continue;
        }
        QCOMPARE(nameBox(list.get())->currentText(), answer ? QString("WGS 84") : name);
        QCOMPARE(button(list.get(), "Delete")->isEnabled(), answer == 0);
    }
}

void CustomCatalogueTest::typedNameStaysTyped_data() {
    QTest::addColumn<QString>("typed");
    row("start of a name", "WGS");
    row("other case", "wgs 84");
    row("a whole name", "mine");
}

/// Neither the name nor the values typed before it turn into those of an entry.
void CustomCatalogueTest::typedNameStaysTyped() {
    QFETCH(QString, typed);
    RecordingCatalogue catalogue;
    fill(catalogue, ellipsoid);
    const auto dialog = create(ellipsoid, &catalogue, AddMode);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    auto* a = child<QLineEdit>(dialog.get(), 0);
    QTest::keyClicks(a, "6378001.50");
    nameBox(dialog.get())->setFocus();
    QTest::keyClicks(nameBox(dialog.get()), typed);
    QTest::keyClick(nameBox(dialog.get()), Qt::Key_Tab);
    QVERIFY(a->hasFocus());
    QCOMPARE(nameBox(dialog.get())->lineEdit()->text(), typed);
    QCOMPARE(a->text(), QString("6378001.50"));

    QTest::keyClick(nameBox(dialog.get()), Qt::Key_Return);
    QCOMPARE(MessageBoxDouble::texts(), QStringList(refused)); // f is empty
    QCOMPARE(nameBox(dialog.get())->count(), 4);

    // Choosing from the list does fill in, the first entry included.
    nameBox(dialog.get())->setCurrentIndex(0);
    QCOMPARE(nameBox(dialog.get())->lineEdit()->text(), QString("WGS 84"));
    QCOMPARE(fields(ellipsoid, dialog.get()), QStringList({"6378000", "298.30"}));
}

void CustomCatalogueTest::typedNumber_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    row("semi-major axis", "6378137.000", "6378137.000");
    row("inverse flattening", "298.257223563", "298.257223563");
    row("decimal comma", "298,25", "298,25");
    row("sign", "-5", "5");
    row("letters", "0x1f nan", "01");
    row("twelve decimals", "0.1234567890123", "0.123456789012");
}

/// The keys that the number fields take, in a locale whose decimal separator is a comma.
void CustomCatalogueTest::typedNumber() {
    QFETCH(QString, keys);
    RecordingCatalogue catalogue;
    const auto dialog = create(ellipsoid, &catalogue, AddMode);
    for (int i : {0, 1}) {
        QTest::keyClicks(child<QLineEdit>(dialog.get(), i), keys);
        QTEST(child<QLineEdit>(dialog.get(), i)->text(), "text");
    }
}

void CustomCatalogueTest::modelFile_data() {
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("chosen"); // one after the other; "" cancels the file dialog
    QTest::addColumn<QString>("file");       // what is stored
    QTest::addColumn<QString>("content");    // of that file in the geoid data folder afterwards
    QTest::addColumn<int>("answer");         // to the question whether "mine" is covered, -1 for a new name
    const QString copy = QString::fromUtf8("modèle 10%s.ggf");

    const QStringList chosenCopy(copy);
    row("from elsewhere", int(AddMode), chosenCopy, copy, "elsewhere", -1);
    row("edited", int(EditMode), chosenCopy, copy, "elsewhere", -1);
    row("edited without a choice", int(EditMode), QStringList(), "mine.ggf", "no file", -1);
    row("an existing one stays", int(AddMode), QStringList("there.ggf"), "there.ggf", "there", -1);
    row("the existing one itself", int(AddMode), QStringList("folder/there.ggf"), "there.ggf", "there", -1);
    row("the last choice counts", int(AddMode), QStringList{"there.ggf", copy}, copy, "elsewhere", -1);
    row("a cancelled choice does not", int(AddMode), QStringList{copy, ""}, copy, "elsewhere", -1);
    row("covered", int(AddMode), chosenCopy, copy, "elsewhere", 1);
    row("not covered", int(AddMode), chosenCopy, copy, "no file", 0);
    row("folder's path too long", int(AddMode), chosenCopy, copy, "too long", -1);
}

void CustomCatalogueTest::modelFile() {
    QFETCH(int, mode);
    QFETCH(QStringList, chosen);
    QFETCH(QString, file);
    QFETCH(int, answer);
    const QTemporaryDir root;
    QDir(root.path()).mkpath("bin");
    QDir(root.path()).mkpath("elsewhere");
    const QString folder = root.path() + "/etc/Vornhalde/data/GeoidData/";
    QDir().mkpath(folder);
    appFolder = root.path() + "/bin";
    write(folder + "there.ggf", "there");
    for (const QString& name : {QString("there.ggf"), file})
        write(root.path() + "/elsewhere/" + name, "elsewhere");

    RecordingCatalogue catalogue;
    fill(catalogue, geoid);
    const auto dialog = create(geoid, &catalogue, mode);
    selectName(nameBox(dialog.get()), "mine");
    if (mode == AddMode)
        nameBox(dialog.get())->setEditText(answer < 0 ? "new" : "mine");
    for (QString path : chosen) {
        if (!path.isEmpty() && !path.startsWith("folder/"))
            path = root.path() + "/elsewhere/" + path;
        choose(dialog.get(), path.replace("folder/", folder));
    }
    QCOMPARE(fields(geoid, dialog.get()), QStringList({file, "WGS 84"}));

    QFETCH(QString, content);
    if (content == "too long")
        appFolder = root.path() + "/bin" + QString("/.").repeated(500);
    MessageBoxDouble::answers = {answer};
    button(dialog.get(), "OK")->click();
    if (answer != 0)
        QCOMPARE(stored(catalogue, geoid, nameBox(dialog.get())->currentText()).value(1), file);
    QCOMPARE(::content(folder + file), content == "too long" ? QByteArray("no file") : content.toLatin1());
    QCOMPARE(::content(folder + "there.ggf"), QByteArray("there"));
    QCOMPARE(QDir(folder).entryList(QDir::Files).count(), content == "elsewhere" ? 2 : 1);
    QVERIFY(chosen.isEmpty() || pathBufferSize == 1000);
    QVERIFY(!QApplication::overrideCursor());
}

ROOM_TEST_MAIN(CustomCatalogueTest)
#include "CustomCatalogueTest.moc"
