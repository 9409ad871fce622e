#pragma once

#include "catalogue/DictionaryGuard.h"

#include <QStringList>

struct ReadDefinition;

/// A definition that somebody pasted, as the record that it becomes and in words, translated.
class PastedDefinition {
public:
    /// Reads the text; see IProjectionModule::readDefinition().
    explicit PastedDefinition(const QString& text);

    bool isHeld() const { return held; }

    /// What takes the place of a record's values: all that an import writes but the name, and the datum's name, the
    /// source and the text itself. Empty when it is not held.
    const IDictionary& values() const { return *record; }

    /// What was understood, line by line: the name, the method and its parameters, the ellipsoid, the datum, the shift,
    /// the source, and what is left out. Empty when it is not held.
    QStringList understood() const;

    /// Why it is not held, and where in the text that lies, as far as it can be told. Empty for an empty text.
    QString reason() const { return problem; }

    /// Where that lies, in characters of the text; -1 when unknown.
    int place() const { return position; }

private:
    void take(const QString& text, const ReadDefinition& definition);
    void refuse(const QString& text, const ReadDefinition& definition, const QString& why);

    DictionaryGuard record;
    bool held = false;
    QString name;
    QStringList notes;
    QString problem;
    int position = -1;
};
