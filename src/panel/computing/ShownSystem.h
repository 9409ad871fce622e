#pragma once

#include "catalogue/DictionaryGuard.h"
#include "platform/projection/IProjectedSystem.h"

#include <QByteArray>
#include <QString>

#include <memory>

/// A system as it is shown: a copy of its record, and the projection that this record defines. It never changes; all
/// that draw it or compute with it share it, so whatever event reaches them, they hold what they look at.
class ShownSystem {
public:
    /// The system of `record`. The projection of `earlier` (may be null) is taken over where the definition is the
    /// same.
    static std::shared_ptr<const ShownSystem> of(const IDictionary& record, const ShownSystem* earlier);

    const IDictionary& record() const { return *values; }
    QString name() const;

    /// Null where the record defines none; problem() says why.
    const IProjectedSystem* projection() const { return projected.get(); }

    /// In one line, translated; empty when there is a projection.
    const QString& problem() const { return reason; }

private:
    DictionaryGuard values;
    QByteArray definition;
    QString reason;
    std::shared_ptr<const IProjectedSystem> projected;
};
