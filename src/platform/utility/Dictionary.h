#pragma once

#include "catalogue/IDictionary.h"

#include <QByteArray>
#include <QHash>

#include <cmath>
#include <limits>
#include <vector>

/// The one kind of dictionary there is.
///
/// A record has some 25 keys. That few are found faster by going through them (the lengths mostly differ) than through
/// a hash, which would also cost more memory than the record itself. A dictionary that grows far beyond gets one.
class Dictionary final : public IDictionary {
public:
    Dictionary();
    ~Dictionary() override;

    Dictionary(const Dictionary&) = delete;
    Dictionary& operator=(const Dictionary&) = delete;

    static int aliveCount();

    void clear() override;
    const char* getValue(const char* key) const override;
    int count() const override;
    const char* getKey(int index) const override;
    bool getNumber(const char* key, double* number) const override;
    void setText(const char* key, const char* text) override;
    void setNumber(const char* key, const char* text, double number) override;
    void remove(const char* key) override;

private:
    static constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

    // Byte arrays keep their data in place when the vector grows, so texts that were handed out stay valid.
    struct Entry {
        QByteArray key;
        QByteArray text;
        double number = noNumber; ///< noNumber for a value that was set from a text

        bool hasNumber() const { return !std::isnan(number); }
    };

    /// Makes the places of a long record when enough was searched for.
    bool hasPlaces() const;
    void dropPlaces();
    const Entry* find(const char* key) const;
    void append(const char* key, const char* text, double number);

    std::vector<Entry> entries;
    mutable QHash<QByteArray, size_t> places; ///< of all keys, or empty
    mutable int searches = 0;                 ///< through a long record since there are no places

    static int alive;
};
