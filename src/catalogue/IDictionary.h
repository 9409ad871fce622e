#pragma once

/// A key/value record with text values, in the order in which the keys were first set.
///
/// A value that was set from a floating-point number also keeps that number behind its text: "%f" leaves six decimals,
/// and six decimals of a degree are 0.11 m on the ground. The text is what is shown; the number is what computing,
/// copying and storing use. Setting a text drops the number.
///
/// Keys and texts are NUL-terminated 8-bit strings in the local encoding. Texts that are handed out stay valid until
/// the key is set or removed, or the dictionary is cleared or released.
///
/// Dictionaries come from dictionary_get_instance() and go with dictionary_release_instance() (see Dictionary.h).
class IDictionary {
protected:
    // Only the library that made a dictionary frees it.
    virtual ~IDictionary() = default;

public:
    /// Removes every key.
    virtual void clear() = 0;

    /// The text of `key`, or null when the key is absent.
    virtual const char* getValue(const char* key) const = 0;

    /// How many keys there are.
    virtual int count() const = 0;

    /// The key at `index` (0 to count() - 1) in insertion order, or null outside that range.
    virtual const char* getKey(int index) const = 0;

    /// Reads the number behind the text of `key` into `number`. False, with `number` untouched, when the key is absent
    /// or was set from a text.
    virtual bool getNumber(const char* key, double* number) const = 0;

    /// Sets `key` to `text` (null counts as empty), creating it at the end if absent.
    virtual void setText(const char* key, const char* text) = 0;

    /// Sets `key` to `text` with `number` behind it.
    virtual void setNumber(const char* key, const char* text, double number) = 0;

    /// Removes `key`; nothing happens when it is absent.
    virtual void remove(const char* key) = 0;
};
