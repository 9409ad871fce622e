#pragma once

#include "Oracle.h"
#include "TextGenerator.h"

/// What a careful reader makes of a text.
enum class Expectation {
    Says,     ///< it says its meaning without doubt
    Open,     ///< its meaning or nothing
    Doubtful, ///< nothing: a definition is a guess
};

struct Count {
    int texts = 0;
    int right = 0;
    int withheld = 0; ///< though the text says it
    int wrong = 0;

    void add(const Count& other);
    void print(const char* name) const;
    static void printHead();
};

/// Sends texts through the tool's import.
class Judge {
public:
    /// Right is what is expected; a meaning, within the text's tolerance. Prints a text that came out wrong.
    Count judge(const QByteArray& title, Expectation expectation, const GeneratedText& generated) const;

    /// Whether PROJ can compute what the text means: parallels on both sides of the equator give no cone.
    bool canJudge(const Meaning& meaning) const { return !oracle.gridOf(meaning).isEmpty(); }

private:
    Oracle oracle;
};
