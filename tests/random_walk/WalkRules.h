#pragma once

#include "ToolOnScreen.h"
#include "catalogue/CoordParamKey.h"
#include "panel/field/FieldEdit.h"
#include "panel/field/MessageLine.h"
#include "panel/field/SearchBox.h"
#include "panel/record/AngleText.h"
#include "panel/record/DatumFields.h"
#include "panel/record/DefinitionState.h"
#include "panel/record/ProjectionFields.h"
#include "platform/projection/IProjectedSystem.h"
#include "platform/projection/IProjectionModule.h"
#include "platform/sdk/Catalogue.h"
#include "support/RecordText.h"
#include "tree/DlgInputName.h"

#include <QSet>
#include <QtWidgets>

#include <cmath>

/// What must hold after every step, whatever was done.
class WalkRules {
public:
    explicit WalkRules(ToolOnScreen& itsTool) : tool(itsTool), after(itsTool.loaded) {
        tool.saved = tool.loaded;
        ellipsoidsAndGeoids = CatalogueText::ellipsoidsAndGeoids(*tool.catalogue);
        otherDictionaries = dictionary_alive_count() - ownedByCatalogue();
    }

    /// To be called before a step.
    void beginStep() {
        before = after;
        announcedBefore = tool.announced();
    }

    /// The first rule that does not hold, told with what was found; empty when all of them do.
    QString broken() {
        after = CatalogueText::systems(*tool.catalogue);
        const CatalogueText others =
            std::exchange(ellipsoidsAndGeoids, CatalogueText::ellipsoidsAndGeoids(*tool.catalogue));
        areOthersNew = !others.difference(ellipsoidsAndGeoids).isEmpty();
        if (tool.isStarted) {
            const QString difference = tool.loaded.difference(tool.saved);
            if (!difference.isEmpty())
                return "the start loaded\n" + difference;
            if (tool.leftBehind > mostLeftBehind)
                return QString("%1 widgets outlived the window").arg(tool.leftBehind);
            tool.isStarted = false;
            before = after;
            for (const QByteArray& record : qAsConst(after.records))
                learn(record);
        }
        QString text;
        for (const auto& rule :
             {&WalkRules::dialogsAreGone, &WalkRules::treeMirrorsCatalogue, &WalkRules::shownRecordIsTheAnnounced,
              &WalkRules::onlyTheShownRecordWasEdited, &WalkRules::saveKnowsWhatIsUnsaved,
              &WalkRules::fieldsShowTheRecord, &WalkRules::definitionComputesOrSaysWhyNot,
              &WalkRules::recordsAreReleased, &WalkRules::changedTextsAreSound, &WalkRules::filesHoldTheCatalogue}) {
            text = (this->*rule)();
            if (!text.isEmpty())
                break;
        }
        return text;
    }

private:
    static constexpr int mostLeftBehind = 2; ///< a tooltip, for example

    static const ParamField* fieldOf(const IDictionary& record, const QByteArray& key) {
        for (const ParamField* field : {&DatumFields::semiMajorAxis(), &DatumFields::inverseFlattening()}) {
            if (key == field->key)
                return field;
        }
        for (const ParamField& field : DatumFields::shift()) {
            if (key == field.key)
                return &field;
        }
        const ProjectionFields* const projection = ProjectionFields::ofRecord(record);
        return projection ? projection->field(key.constData()) : nullptr;
    }

    /// Whether typing goes there, at least once the window is active.
    static bool hasKeyboard(const QWidget* widget) { return widget->window()->focusWidget() == widget; }

    static QString joined(const QByteArrayList& texts) { return QString::fromLocal8Bit(texts.join(" | ")); }

    QString dialogsAreGone() {
        if (QApplication::activeModalWidget() || QApplication::activePopupWidget())
            return "a modal widget or a popup is left";
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (qobject_cast<QDialog*>(widget) && (!qobject_cast<DlgInputName*>(widget) || widget->isVisible()))
                return QString("a dialog is left: ") + widget->metaObject()->className();
        }
        return QString();
    }

    QString treeMirrorsCatalogue() {
        QByteArrayList seen;
        for (const QTreeWidgetItem* group : tool.items(1)) {
            seen << group->text(0).toLocal8Bit();
            for (int i = 0; i < group->childCount(); ++i) {
                if (!group->child(i)->isHidden())
                    seen << (group->text(0) + ',' + group->child(i)->text(0)).toLocal8Bit();
            }
        }
        return seen == after.order
                   ? QString()
                   : QString("the tree shows\n  %1\nthe catalogue holds\n  %2").arg(joined(seen), joined(after.order));
    }

    QString shownRecordIsTheAnnounced() {
        ICoordSysGroup* const group = tool.catalogue->getGroup(tool.announcedGroup.toLocal8Bit().constData());
        const IDictionary* const held =
            group ? group->getCoordSystem(tool.announcedName.toLocal8Bit().constData()) : nullptr;
        if (!held)
            return tool.panel->isEnabled() && !tool.announcedName.isEmpty()
                       ? "the panel takes edits for a missing system"
                       : QString();
        if (!tool.panel->isEnabled())
            return "the panel takes no edits though the announced system is there";
        const QStringList shown = recordText(tool.panel->getMetaData()), stored = recordText(*held);
        return shown == stored ? QString()
                               : QString("the panel shows\n  %1\nthe catalogue holds\n  %2")
                                     .arg(shown.join(" | "), stored.join(" | "));
    }

    QString onlyTheShownRecordWasEdited() {
        QByteArrayList changed = before.changedIn(after);
        changed.removeAll(announcedBefore);
        // The one that a command of this step announced.
        changed.removeAll(tool.announced());
        return changed.isEmpty() ? QString() : "records that were not shown have changed: " + joined(changed);
    }

    /// What a step has put into a record is what its field accepts, or has come from a file or a list once.
    QString changedTextsAreSound() {
        for (const QByteArray& name : before.addedIn(after))
            learn(after.records[name]);
        for (const QByteArray& name : before.changedIn(after)) {
            const QByteArrayList path = name.split(',');
            const IDictionary* const record = tool.catalogue->getGroup(path[0])->getCoordSystem(path[1]);
            const IDictionary* const ellipsoid =
                tool.catalogue->getEllipsoid(record->getValue(CoordParamKey::ellipsoidName));
            for (int i = 0; i < record->count(); ++i) {
                const char* const key = record->getKey(i);
                const QByteArray text = record->getValue(key), line = QByteArray(key) + '=' + text;
                if (ellipsoid && text == ellipsoid->getValue(key))
                    untyped << line;
                const ParamField* const field = fieldOf(*record, key);
                const bool isSound = !field || (field->isSound(*record) && std::isfinite(text.toDouble()));
                if (!isSound && !untyped.contains(line))
                    return QString("%1 holds a refused value: %2").arg(QString::fromLocal8Bit(name), QString(line));
            }
        }
        return QString();
    }

    void learn(const QByteArray& record) {
        for (const QByteArray& line : record.split('\n'))
            untyped << line.left(line.endsWith(']') ? line.lastIndexOf('[') : line.size());
    }

    /// The button is the only record of what is unsaved; adding a group alone does not count.
    QString saveKnowsWhatIsUnsaved() {
        const bool isEnabled = tool.saveButton->isEnabled();
        if (isEnabled != (tool.changes > 0))
            return isEnabled ? "Save is enabled without a change" : "Save is disabled after a change";
        const QString unsaved = tool.saved.withoutEmptyGroups().difference(after.withoutEmptyGroups());
        return isEnabled || unsaved.isEmpty() ? QString() : "Save is disabled, but what was saved is\n" + unsaved;
    }

    QString filesHoldTheCatalogue() {
        if (!areOthersNew && !tool.isSaveNew)
            return QString();
        Catalogue loaded(QCoreApplication::applicationDirPath() + "/../etc/Vornhalde/data", QString());
        loaded.load(tool.dataFolder.toLocal8Bit().constData());
        QString other = CatalogueText::ellipsoidsAndGeoids(loaded).difference(ellipsoidsAndGeoids);
        if (tool.isSaveNew)
            other += CatalogueText::systems(loaded).difference(tool.saved);
        tool.isSaveNew = false;
        return other.isEmpty() ? QString() : "the files hold\n" + other;
    }

    int ownedByCatalogue() const { return after.records.size() + ellipsoidsAndGeoids.records.size(); }

    QString recordsAreReleased() {
        const int more = dictionary_alive_count() - ownedByCatalogue() - otherDictionaries;
        // "Check" keeps a record of its own from its first showing on.
        return more == 0 || more == 1 ? QString() : QString("%1 records are left over").arg(more);
    }

    /// A field that is not being typed into shows the record's value; what is typed has gone into the record, or is
    /// refused.
    QString fieldsShowTheRecord() {
        if (!tool.panel->isEnabled())
            return QString();
        const IDictionary& record = tool.panel->getMetaData();
        for (const FieldEdit* edit : tool.panel->findChildren<FieldEdit*>()) {
            const ParamField* const field = fieldOf(record, edit->objectName().toLatin1());
            if (!field || !edit->isVisible())
                continue;
            const FieldInput input = field->parse(edit->text());
            double value = 0.0;
            const bool isRead = field->read(record, &value);
            // The record keeps the radius of a parallel of true scale, the same for north and south.
            const bool isRadius = field->is(CoordParamKey::cuttingRadius);
            const double typed = isRadius ? std::fabs(input.value) : input.value;
            const double precision = isRadius ? 1e-6 : std::fabs(value) * 1e-14 + 1e-300;
            bool isSame = edit->text() == field->shownText(record, AngleText::notation());
            if (edit->isModified() && hasKeyboard(edit))
                isSame = !input.valid || (isRead ? std::fabs(typed - (isRadius ? std::fabs(value) : value)) <= precision
                                                 : field->optional);
            if (!isSame)
                return QString("%1 shows \"%2\", the record holds \"%3\"")
                    .arg(edit->objectName(), edit->text(), record.getValue(field->key));
        }
        for (const SearchBox* box : tool.panel->findChildren<SearchBox*>()) {
            const QString label = box->accessibleName();
            const char* const key = label == "Ellipsoid" ? CoordParamKey::ellipsoidName
                                    : label == "Datum"   ? CoordParamKey::datumName
                                                         : CoordParamKey::geoidName;
            const QString name = QString::fromLocal8Bit(record.getValue(key));
            const QString expected = name.isEmpty() && key == CoordParamKey::geoidName ? QString("(none)") : name;
            if (box->isVisible() && !hasKeyboard(box) && !hasKeyboard(box->lineEdit()) &&
                box->lineEdit()->text() != expected)
                return QString("the box shows \"%1\", the record holds \"%2\"").arg(box->lineEdit()->text(), expected);
        }
        return QString();
    }

    QString definitionComputesOrSaysWhyNot() {
        const IDictionary& record = tool.panel->getMetaData();
        for (const QLabel* label : tool.panel->findChildren<QLabel*>()) {
            static const QRegularExpression noNumber("\\b(nan|inf)\\b");
            if (label->isVisible() && label->text().contains(noNumber))
                return "a label shows " + label->text();
        }
        for (const QPlainTextEdit* text : tool.panel->findChildren<QPlainTextEdit*>()) {
            if (text->accessibleName() != "PROJ definition" || !text->isVisible())
                continue;
            QStringList reasons;
            for (const MessageLine* line : text->parentWidget()->parentWidget()->findChildren<MessageLine*>()) {
                if (line->isVisible() && line->tone() == MessageLine::Tone::Error)
                    reasons << line->text();
            }
            const QByteArray definition = text->toPlainText().toUtf8();
            if (definition.isEmpty() == reasons.join(QString()).isEmpty())
                return "neither a definition nor a reason is shown, or both: " + definition;
            if (!definition.isEmpty() && !projectionModule()->createSystem(definition))
                return "the definition shown does not compute: " + definition;
            if (definition != DefinitionState::of(record).definition)
                return "another record's definition is shown: " + definition;
        }
        return QString();
    }

    ToolOnScreen& tool;
    CatalogueText before, after, ellipsoidsAndGeoids;
    bool areOthersNew = true; ///< nobody has looked at their files since they changed
    QByteArray announcedBefore;
    QSet<QByteArray> untyped; ///< "key=text" that came from a file or a list, which taking back may bring again
    int otherDictionaries = 0;
};
