#pragma once

#include "Judge.h"

#include <QMap>

#include <proj.h>

/// Systems of the EPSG registry as texts in other units and from other meridians, in three dialects.
class UnitRun {
public:
    UnitRun();
    ~UnitRun();

    UnitRun(const UnitRun&) = delete;
    UnitRun& operator=(const UnitRun&) = delete;

    /// Takes `count` systems of the registry, and each `every`-th of the texts; prints its tables. False when a text
    /// came out wrong.
    bool run(int count, int every);

private:
    struct System {
        QByteArray code;
        int method;
        QMap<QByteArray, double> values; ///< see TextGenerator::write()
        TextGenerator::Spheroid spheroid;
    };

    QVector<System> readSystems() const;
    System readSystem(const char* code) const;
    void take(const System& system, Dialect dialect, const TextGenerator::Layout& layout);

    PJ_CONTEXT* context;
    Judge judge;
    QMap<QByteArray, Count> byDialect;
    QMap<QByteArray, Count> byUnit;
};
