#pragma once

#include <QCoreApplication>

/// Translates in the panel's context, for classes that do not know the panel itself.
class PanelText {
    Q_DECLARE_TR_FUNCTIONS(DlgCoordParam)
};
