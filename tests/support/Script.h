#pragma once

#include <QByteArrayList>
#include <QMap>
#include <QString>

#include <functional>
#include <initializer_list>

/// What is done and what is seen then, told in a text file of the test's folder. A script begins with "= title |
/// start", what `start` means is the test's own; then come its steps, "done | seen", each side with any number of
/// parts, parted by "; ":
///   done: "word" or "word=text" is one of the acts
///   seen: "word=text" is what one of the sights gives, and "word:name=text" what it gives for that name. In the text
///   "*"
///         stands for anything, and "500±0.1" for any number (with whatever behind it) that is no farther off.
/// "~" stands for a blank.
class Script {
public:
    using Act = std::function<void(const QString& text)>;
    using Sight = std::function<QString(const QString& name)>;

    Script();
    virtual ~Script();

    /// Makes the files' scripts rows of the test: for its `_data()`, with the columns "start" and "steps".
    static void addRows(std::initializer_list<const char*> files);

    /// Plays the row's script.
    void play();

    QMap<QString, Act> acts;
    QMap<QString, Sight> sights;

protected:
    virtual void act(const QString& word, const QString& text);
    virtual QString see(const QString& what);
};
