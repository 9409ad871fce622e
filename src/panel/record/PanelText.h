#pragma once

#include <QCoreApplication>
#include <QStringList>

/// Translates in the panel's context, for classes that do not know the panel itself.
class PanelText {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordParam)

public:
    /// "Name: text", as the language has its colon.
    static QString named(const QString& name, const QString& text);

    /// Sentences, one behind the other; empty ones are left out.
    static QString joined(const QStringList& sentences);
};
