#include "geodesy/CustomCatalogue.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/Path.h"
#include "geodesy/DlgEllipsoid.h"
#include "geodesy/DlgGeoid.h"
#include "support/Files.h"
#include "support/LayoutText.h"
#include "support/MarkingTranslator.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/OwnHome.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QDoubleValidator>
#include <QFile>
#include <QFileDialog>
#include <QHash>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRegExp>
#include <QTemporaryDir>
#include <QTest>

#include <cstdarg>
#include <cstdio>
#include <memory>

namespace {

const QString ellipsoid = QStringLiteral("Ellipsoid"), geoid = QStringLiteral("Geoid");
const QString refused = QStringLiteral("information|please input correct param!");

QString appFolder;         ///< what "$(APP_DIR)" stands for
QStringList resolvedPaths; ///< what was resolved: format and argument
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
    for (const auto& [name, flag] :
         {std::pair<QString, QString>{"WGS 84", "1"}, {"plain", {}}, {"mine", "0"}, {"mine too", "0"}})
        addEntry(catalogue, kind, name, flag);
    catalogue.takeCalls();
}

template <class Widget> Widget* child(const QDialog* dialog, int index) {
    return dialog->findChildren<Widget*>(QString(), Qt::FindDirectChildrenOnly).value(index);
}

QComboBox* nameBox(const QDialog* dialog) {
    return child<QComboBox>(dialog, 0);
}

/// The two fields beside the name: two numbers, or a file and an ellipsoid.
QStringList fields(const QDialog* dialog) {
    const auto* number = child<QLineEdit>(dialog, 1);
    return {child<QLineEdit>(dialog, 0)->text(), number ? number->text() : child<QComboBox>(dialog, 1)->currentText()};
}

/// What the dialog shows, as modes.txt has it.
QString shown(const QDialog* dialog) {
    QStringList texts;
    const auto show = [&texts](bool takesInput, const QString& text) {
        texts << (takesInput ? text : '(' + text + ')');
    };
    for (const QObject* each : dialog->children()) {
        if (const auto* box = qobject_cast<const QComboBox*>(each))
            show(box->isEnabled(), box->isEditable() ? '[' + box->currentText() + ']' : box->currentText());
        else if (const auto* edit = qobject_cast<const QLineEdit*>(each))
            show(!edit->isReadOnly(), edit->text());
    }
    for (const QPushButton* each : dialog->findChildren<QPushButton*>())
        show(each->isEnabled(), each->text().section(':', -1));
    return texts.join("; ");
}

void enter(const QDialog* dialog, const QString& name, const QStringList& values) {
    if (nameBox(dialog)->isEditable())
        nameBox(dialog)->setEditText(name);
    child<QLineEdit>(dialog, 0)->setText(values[0]);
    if (auto* number = child<QLineEdit>(dialog, 1))
        number->setText(values[1]);
    else
        child<QComboBox>(dialog, 1)->setCurrentIndex(child<QComboBox>(dialog, 1)->findText(values[1]));
}

QPushButton* button(const QDialog* dialog, const QString& text) {
    for (QPushButton* each : dialog->findChildren<QPushButton*>()) {
        if (each->text().section(':', -1) == text)
            return each;
    }
    return nullptr;
}

/// The messages, all of which are translated in the QObject context, as they read without a translation.
QStringList messages() {
    QStringList texts = MessageBoxDouble::texts();
    for (QString& text : texts)
        text = text.count("QObject:") == 2 ? text.remove("QObject:") : text + " (not translated)";
    return texts;
}

/// The stored record as its four texts.
QStringList stored(const RecordingCatalogue& catalogue, const QString& kind, const QString& name) {
    const IDictionary* record = (kind == ellipsoid ? catalogue.ellipsoids : catalogue.geoids).find(name);
    QStringList texts;
    for (int i = 0; record && i < record->count(); ++i)
        texts << CustomCatalogue::text(*record, record->getKey(i));
    return texts;
}

/// Whether a model file is in its place when its entry comes: it is copied first.
class GeoidsThatLookForTheFile : public RecordingCatalogue {
public:
    void addGeoid(IDictionary* record) override {
        fileWasThere = QFile::exists(file);
        RecordingCatalogue::addGeoid(record);
    }

    QString file;
    bool fileWasThere = false;
};

void choose(const QDialog* dialog, const QString& path) {
    ModalDriver::onNextDialog([&](QDialog* opened) {
        auto* files = qobject_cast<QFileDialog*>(opened);
        QCOMPARE(files->windowTitle(), QString("QObject:selete file"));
        QCOMPARE(files->nameFilters(), QStringList("QObject:Geiod File(*.ggf *.vgf)"));
        QCOMPARE(files->directory(), QDir(appFolder + "/../etc/Vornhalde/data/GeoidData"));
        files->findChild<QLineEdit*>("fileNameEdit")->setText(path);
        QMetaObject::invokeMethod(files, path.isEmpty() ? "reject" : "accept");
    });
    button(dialog, "Browser")->click();
}

} // namespace

/// In place of the utility library's: the folder of the executable is the test's to choose.
void process_resolve_path(char* buffer, int size, const char* format, ...) {
    const QByteArray resolved = QByteArray(format).replace("$(APP_DIR)", appFolder.toLocal8Bit());
    va_list values, again;
    va_start(values, format);
    va_copy(again, values);
    const bool hasValue = resolved.contains("%s");
    resolvedPaths << QString(format) + '|' + QString::fromLocal8Bit(hasValue ? va_arg(again, const char*) : "");
    va_end(again);
    const int length = std::vsnprintf(buffer, static_cast<size_t>(size), resolved.constData(), values);
    va_end(values);
    if (length >= size)
        buffer[0] = '\0';
    pathBufferSize = size;
}

class CustomCatalogueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }

    void init() {
        MessageBoxDouble::reset();
        appFolder = home.path();
        aliveAtStart = dictionary_alive_count();
    }

    void cleanup() { QCOMPARE(dictionary_alive_count(), aliveAtStart); }

    void modes_data() { textRows("modes.txt"); }
    void modes() {
        const auto [title, kind, mode, window, layout, expected] = textRow<6>();
        RecordingCatalogue catalogue;
        fill(catalogue, kind);
        const auto dialog = create(kind, &catalogue, mode.toInt());
        const QSize size = dialog->minimumSize();
        QCOMPARE(QString("%1, %2 x %3").arg(dialog->windowTitle()).arg(size.width()).arg(size.height()), window);
        QCOMPARE(layoutText(dialog->layout()), layout);
        QCOMPARE(shown(dialog.get()), expected);
        QCOMPARE(nameBox(dialog.get())->count(), 4);
    }

    /// What the list enables for an entry that is selected, and what it shows of one without values.
    void selection() {
        const QStringList flagsOfOwn = {"0", "own", "", " 00x"}, flagsOfOthers = {"1", QString(), "-1"};
        for (const QString& kind : {ellipsoid, geoid}) {
            RecordingCatalogue catalogue;
            fill(catalogue, kind);
            for (const QString& flag : flagsOfOwn + flagsOfOthers)
                addEntry(catalogue, kind, flag.isNull() ? "no flag" : "flag " + flag, flag);
            const auto dialog = create(kind, &catalogue, CustomCatalogue::ListMode);
            for (int i = 4; i < nameBox(dialog.get())->count(); ++i) {
                nameBox(dialog.get())->setCurrentIndex(i);
                const bool own = i < 4 + flagsOfOwn.size();
                QCOMPARE(shown(dialog.get()).section("; ", -3),
                         QString(own ? "Add; Edit; Delete" : "Add; (Edit); (Delete)"));
            }
            IDictionary* record = (kind == ellipsoid ? catalogue.ellipsoids : catalogue.geoids).find("mine");
            for (const char* key : {EllipsoidKey::a, EllipsoidKey::f, GeoidKey::file, GeoidKey::ellipsoid})
                record->remove(key);
            nameBox(dialog.get())->setCurrentIndex(2);
            QCOMPARE(fields(dialog.get()), QStringList({"", ""}));
        }
    }

    void emptyList_data() {
        const Rows<QString, bool> row({"kind", "nullList"});
        for (const QString& kind : {ellipsoid, geoid}) {
            row(kind.toLatin1() + ", null", kind, true);
            row(kind.toLatin1() + ", empty", kind, false);
        }
    }

    void emptyList() {
        QFETCH(QString, kind);
        QFETCH(bool, nullList);
        RecordingCatalogue catalogue;
        catalogue.nullLists = nullList;
        const auto dialog = create(kind, &catalogue, CustomCatalogue::ListMode);
        QCOMPARE(nameBox(dialog.get())->count(), 0);
        QCOMPARE(shown(dialog.get()).remove("(Browser); "), QString("; (); (); Add; Edit; Delete"));

        catalogue.takeCalls();
        button(dialog.get(), "Delete")->click();
        QCOMPARE(messages(), QStringList());
        ModalDriver::onNextDialog([](QDialog* edit) {
            button(edit, "OK")->click();
            edit->reject();
        });
        button(dialog.get(), "Edit")->click();
        QCOMPARE(messages(), QStringList(refused));
        QCOMPARE(catalogue.calls.filter(QRegExp("^(add|delete|save)")), QStringList());
    }

    void confirm_data() { textRows("confirm.txt"); }
    void confirm() {
        const auto [title, mode, quoted, entered, outcome] = textRow<5>();
        const QString name = QString(quoted.mid(1, quoted.size() - 2)).replace("\\0", QString(QChar(0)));
        for (const auto& [kind, first, second] :
             {std::make_tuple(ellipsoid, "6378137.000", "298.257223563"), {geoid, "a.ggf", "WGS 84"}})
            confirmed(kind, modeOf(mode), name, {entered == "second" ? "" : first, entered == "first" ? "" : second},
                      outcome);
    }

    void number_data() { textRows("numbers.txt"); }
    void number() {
        const auto [number, outcome] = textRow<2>();
        confirmed(ellipsoid, CustomCatalogue::EditMode, "mine", {number, "300"}, outcome);
        confirmed(ellipsoid, CustomCatalogue::AddMode, "new", {"1", number}, outcome);
    }

    void nested_data() {
        // current: in the list afterwards; "mine" before
        const Rows<QString, QString, QString> row({"opener", "closing", "current"});
        row("add", "Add", "OK", "new");
        row("add, cancelled", "Add", "Cancel", "mine");
        row("edit", "Edit", "OK", "mine");
        row("edit, cancelled", "Edit", "Cancel", "mine");
        row("edit, escaped", "Edit", "", "mine");
    }

    void nested() {
        QFETCH(QString, opener);
        QFETCH(QString, closing);
        QFETCH(QString, current);
        const bool edit = opener == "Edit", confirmed = closing == "OK";
        for (const QString& kind : {ellipsoid, geoid}) {
            RecordingCatalogue catalogue;
            fill(catalogue, kind);
            const auto list = create(kind, &catalogue, CustomCatalogue::ListMode);
            CustomCatalogue::selectName(nameBox(list.get()), "mine");
            const QStringList before = fields(list.get());
            const QStringList entered = kind == ellipsoid ? QStringList{"7.0", "8.00"} : QStringList{"b.vgf", "WGS 84"};
            ModalDriver::onNextDialog([&](QDialog* dialog) {
                QCOMPARE(dialog->parentWidget(), list.get());
                QCOMPARE(nameBox(dialog)->currentText(), QString(edit ? "mine" : ""));
                QCOMPARE(fields(dialog)[0], edit ? before[0] : QString());
                enter(dialog, "new", entered);
                if (closing.isEmpty())
                    QTest::keyClick(dialog, Qt::Key_Escape);
                else
                    button(dialog, closing)->click();
                QVERIFY(!dialog->isVisible());
            });
            button(list.get(), opener)->click();
            QCOMPARE(ModalDriver::pending(), 0);
            QCOMPARE(nameBox(list.get())->currentText(), current);
            QCOMPARE(fields(list.get()), confirmed ? entered : before);
            QVERIFY(button(list.get(), "Edit")->isEnabled());
            QCOMPARE(catalogue.takeCalls().filter(QRegExp("^save")), confirmed ? saves(kind) : QStringList());
        }
    }

    void deletion_data() {
        const Rows<QString, int> row({"name", "answer"});
        row("confirmed", "mine", 1);
        row("declined", "mine", 0);
        row("place marker and markup in the name", "%1 <b>2</b>", 1);
        row("the only one", "only", 1);
    }

    void deletion() {
        QFETCH(QString, name);
        QFETCH(int, answer);
        for (const QString& kind : {ellipsoid, geoid}) {
            RecordingCatalogue catalogue;
            if (name != "only")
                fill(catalogue, kind);
            else if (kind == geoid)
                for (const char* each : {"Bessel", "WGS 84"})
                    catalogue.addTestEllipsoid(each, "1", "2", "1");
            if (stored(catalogue, kind, name).isEmpty())
                addEntry(catalogue, kind, name, "0");
            const auto list = create(kind, &catalogue, CustomCatalogue::ListMode);
            const QString first = shown(list.get());
            CustomCatalogue::selectName(nameBox(list.get()), name);
            const QString before = shown(list.get());
            catalogue.takeCalls();
            MessageBoxDouble::reset();
            MessageBoxDouble::answers = {answer};
            button(list.get(), "Delete")->click();
            QCOMPARE(messages(),
                     QStringList("?Warning|Are you sure you want to delete " + kind.toLower() + " [" + name + "]?"));
            QCOMPARE(MessageBoxDouble::messages[0].parent, list.get());
            QCOMPARE(catalogue.takeCalls().mid(0, 3),
                     answer ? QStringList("delete" + kind + "(" + name + ")") + saves(kind) : QStringList());
            QCOMPARE(stored(catalogue, kind, name).isEmpty(), answer == 1);
            QString after = answer ? first : before;
            if (name == "only") // with nothing to show, an ellipsoid's fields are empty; a geoid's stay as they were
                after = kind == ellipsoid ? "; (); (); Add; Edit; Delete" : QString(before).remove(0, name.size());
            QCOMPARE(shown(list.get()), after);
        }
    }

    /// Neither the name nor the values typed before it turn into those of an entry.
    void typedNameStaysTyped() {
        RecordingCatalogue catalogue;
        fill(catalogue, ellipsoid);
        for (const QString typed : {"WGS", "wgs 84", "mine"}) {
            const auto dialog = create(ellipsoid, &catalogue, CustomCatalogue::AddMode);
            QComboBox* const name = nameBox(dialog.get());
            dialog->show();
            QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
            auto* a = child<QLineEdit>(dialog.get(), 0);
            QTest::keyClicks(a, "6378001.50");
            name->setFocus();
            QTest::keyClicks(name, typed);
            QTest::keyClick(name, Qt::Key_Tab);
            QVERIFY(a->hasFocus());
            QCOMPARE(name->lineEdit()->text(), typed);
            QCOMPARE(a->text(), QString("6378001.50"));

            MessageBoxDouble::reset();
            QTest::keyClick(name, Qt::Key_Return);
            QCOMPARE(messages(), QStringList(refused)); // f is empty
            QCOMPARE(name->count(), 4);

            // Choosing from the list does fill in, the first entry included.
            name->setCurrentIndex(0);
            QCOMPARE(name->lineEdit()->text(), QString("WGS 84"));
            QCOMPARE(fields(dialog.get()), QStringList({"6378000", "298.30"}));
        }
    }

    /// The keys that the number fields take, in a locale whose decimal separator is a comma.
    void typedNumber() {
        RecordingCatalogue catalogue;
        const auto dialog = create(ellipsoid, &catalogue, CustomCatalogue::AddMode);
        for (int i : {0, 1}) {
            auto* edit = child<QLineEdit>(dialog.get(), i);
            for (const auto& [keys, text] : {std::make_pair("298.257223563", "298.257223563"),
                                             {"298,25", "298,25"},
                                             {"-5", "5"},
                                             {"0x1f nan", "01"},
                                             {"0.1234567890123", "0.123456789012"}}) {
                edit->clear();
                QTest::keyClicks(edit, keys);
                QCOMPARE(edit->text(), QString(text));
            }
            const auto* validator = qobject_cast<const QDoubleValidator*>(edit->validator());
            QCOMPARE(validator->parent(), edit); // each its own
            QVERIFY(validator->bottom() == 0.0 && validator->top() == 65535.0 && validator->decimals() == 12);
        }
    }

    void modelFile_data() { textRows("models.txt"); }

    void modelFile() {
        const auto [title, modeName, choices, file, content, answer] = textRow<6>();
        const int mode = modeOf(modeName);
        const QStringList chosen = QString(choices).split(", ", Qt::SkipEmptyParts);
        const QTemporaryDir root;
        const QString folder = root.path() + "/etc/Vornhalde/data/GeoidData/";
        for (const QString& each : {folder, root.path() + "/bin", root.path() + "/elsewhere"})
            QDir().mkpath(each);
        appFolder = root.path() + "/bin";
        QVERIFY(setContent(folder + "there.ggf", "there"));
        for (const QString& name : {QString("there.ggf"), QString(file)})
            QVERIFY(setContent(root.path() + "/elsewhere/" + name, "elsewhere"));

        GeoidsThatLookForTheFile catalogue;
        catalogue.file = folder + file;
        fill(catalogue, geoid);
        const auto dialog = create(geoid, &catalogue, mode);
        CustomCatalogue::selectName(nameBox(dialog.get()), "mine");
        resolvedPaths.clear();
        if (mode == CustomCatalogue::AddMode)
            nameBox(dialog.get())->setEditText(answer.isEmpty() ? "new" : "mine");
        for (const QString& path : chosen)
            choose(dialog.get(), path == "cancel"             ? QString()
                                 : path.startsWith("folder/") ? folder + path.section('/', 1)
                                                              : root.path() + "/elsewhere/" + path);
        QCOMPARE(fields(dialog.get()), QStringList({file, "WGS 84"}));

        if (content == "too long")
            appFolder = root.path() + "/bin" + QString("/.").repeated(500);
        MessageBoxDouble::answers = {answer == "covered" ? 1 : 0};
        button(dialog.get(), "OK")->click();
        const bool added = answer != "declined";
        if (added)
            QCOMPARE(stored(catalogue, geoid, nameBox(dialog.get())->currentText()).value(1), QString(file));
        QCOMPARE(contentOf(folder + file), content == "too long" ? QByteArray("(missing)") : content);
        QCOMPARE(contentOf(folder + "there.ggf"), QByteArray("there"));
        QCOMPARE(QDir(folder).entryList(QDir::Files).count(), content == "elsewhere" ? 2 : 1);
        QCOMPARE(catalogue.fileWasThere, added && (content == "elsewhere" || content == "there"));
        const QString dataFolder = "$(APP_DIR)/../etc/Vornhalde/data/GeoidData/";
        QStringList resolved = QVector<QString>(chosen.count(), dataFolder + "|").toList();
        if (!chosen.isEmpty() && added)
            resolved << dataFolder + "%s|" + file;
        QCOMPARE(resolvedPaths, resolved);
        QVERIFY(chosen.isEmpty() || pathBufferSize == 1000);
        QVERIFY(!QApplication::overrideCursor());
    }

private:
    static int modeOf(const QByteArray& name) {
        return name == "add" ? CustomCatalogue::AddMode : CustomCatalogue::EditMode;
    }

    /// Fills in a dialog and presses OK; `outcome` as in confirm.txt.
    void confirmed(const QString& kind, int mode, const QString& name, const QStringList& values,
                   const QByteArray& outcome) const {
        const bool isEllipsoid = kind == ellipsoid, accepted = outcome == "accepted" || outcome == "covered";
        const QString cover = isEllipsoid ? "?Warning|has same name as system, whether cover?"
                                          : "?Warning|has same file name, whether or not covered?";
        const QString shipped = isEllipsoid ? "Warning|new add ellipsoid name can't same as system!"
                                            : "Warning|new geoid name can't same with system name!";
        const QHash<QByteArray, QString> message{
            {"refused", refused}, {"shipped", shipped}, {"covered", cover}, {"declined", cover}};
        RecordingCatalogue catalogue;
        fill(catalogue, kind);
        const QStringList before = stored(catalogue, kind, name);
        const auto dialog = create(kind, &catalogue, mode);
        CustomCatalogue::selectName(nameBox(dialog.get()), name);
        enter(dialog.get(), name, values);
        dialog->show();
        catalogue.takeCalls();
        MessageBoxDouble::reset();
        MessageBoxDouble::answers = {outcome == "declined" ? 0 : 1};

        button(dialog.get(), "OK")->click();

        QCOMPARE(messages().join("; "), message.value(outcome));
        for (const auto& each : qAsConst(MessageBoxDouble::messages))
            QCOMPARE(each.parent, dialog.get());
        QStringList calls;
        if (mode == CustomCatalogue::AddMode && outcome != "refused")
            calls << "get" + kind + "(" + name + ")";
        if (accepted && mode == CustomCatalogue::EditMode && isEllipsoid)
            calls << "deleteEllipsoid(" + name + ")";
        if (accepted)
            calls << "add" + kind + "(" + name + ")" << saves(kind);
        QCOMPARE(catalogue.takeCalls(), calls);
        QCOMPARE(stored(catalogue, kind, name), accepted ? QStringList{name} + values + QStringList{"0"} : before);
        QCOMPARE(dialog->isVisible(), !accepted);
        QCOMPARE(dialog->result(), int(accepted ? QDialog::Accepted : QDialog::Rejected));
        QCOMPARE(fields(dialog.get()), values);
        QCOMPARE(nameBox(dialog.get())->currentText(), name);
    }

    QStringList saves(const QString& kind) const {
        const QString save = "save" + kind + "s(%1)";
        return {save.arg(""), save.arg(home.path() + "/Documents/ArvelaGnss/Data/" + kind + "_custom.xml")};
    }

    const MarkingTranslator translator;
    OwnHome home;
    int aliveAtStart = 0;
};

ROOM_TEST(CustomCatalogueTest)
#include "CustomCatalogueTest.moc"
