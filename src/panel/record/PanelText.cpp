#include "panel/record/PanelText.h"

QString PanelText::named(const QString& name, const QString& text) {
    //: A name, and what is said of it
    return tr("%1: %2").arg(name, text);
}

QString PanelText::joined(const QStringList& sentences) {
    QString text;
    for (const QString& sentence : sentences) {
        if (text.isEmpty() || sentence.isEmpty())
            text += sentence;
        else
            //: Two sentences
            text = tr("%1 %2").arg(text, sentence);
    }
    return text;
}
