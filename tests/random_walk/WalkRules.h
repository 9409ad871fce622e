#pragma once

#include "CatalogueText.h"

#include <QSet>
#include <QString>

class ToolOnScreen;

/// What must hold after every step, whatever was done.
class WalkRules {
public:
    explicit WalkRules(ToolOnScreen& tool);

    /// To be called before a step.
    void beginStep();

    /// The first rule that does not hold, told with what was found; empty when all of them do.
    QString broken();

private:
    QString treeMirrorsCatalogue() const;
    QString shownRecordIsTheAnnounced() const;
    QString onlyTheShownRecordWasEdited() const;
    QString changedTextsAreSound();
    QString saveKnowsWhatIsUnsaved() const;
    QString filesHoldTheCatalogue();
    QString recordsAreReleased() const;
    QString dialogsAreGone() const;
    QString fieldsShowTheRecord() const;
    QString definitionComputesOrSaysWhyNot() const;
    int ownedByCatalogue() const;
    void learn(const QByteArray& record);

    ToolOnScreen& tool;
    CatalogueText before;
    CatalogueText after;
    CatalogueText ellipsoidsAndGeoids;
    bool areOthersNew = true; ///< nobody has looked at their files since they changed
    QByteArray announcedBefore;
    QSet<QByteArray> untyped; ///< "key=text" that came from a file or a list, which taking back may bring again
    int otherDictionaries;
};
