#pragma once

#include <QByteArray>
#include <QString>

class IDictionary;

/// What there is to compute with: a record's PROJ definition, or the reason why there is none.
struct DefinitionState {
    QByteArray definition;
    QString problem; ///< in one line, translated; empty when there is a definition and a module that can use it

    static DefinitionState of(const IDictionary& record);
};
