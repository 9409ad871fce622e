#pragma once

#include <QCoreApplication>

/// Translates in the panel's context, for classes that do not know the panel itself.
class PanelText {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordParam)

public:
    /// "Name: text", as the language has its colon.
    static QString named(const QString& name, const QString& text);

    /// Two sentences, or parts of one text, one behind the other; the second may be empty.
    static QString joined(const QString& first, const QString& second);
};
