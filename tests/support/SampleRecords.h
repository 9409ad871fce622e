#pragma once

#include "catalogue/DictionaryGuard.h"
#include "platform/projection/IProjectedSystem.h"

#include <QByteArrayList>
#include <QMetaType>
#include <QVector>

#include <memory>

/// One system of every method, and of every way to state a method's scale, for tests that must hold for all.
struct SampleRecord {
    QByteArray title;
    QVector<QPair<QByteArray, QByteArray>> values;

    /// Replaces or adds a value.
    SampleRecord with(const QByteArray& key, const QByteArray& text) const;

    DictionaryGuard record() const;
    std::unique_ptr<IProjectedSystem> system() const;

    static const QVector<SampleRecord>& all();

    /// The sample with this title.
    static const SampleRecord& named(const QByteArray& title);
};

Q_DECLARE_METATYPE(SampleRecord)
