#pragma once

#include "catalogue/Dictionary.h"

#include <utility>

/// A dictionary of the tool's own for the time of a scope: obtained with dictionary_get_instance(0), released with
/// dictionary_release_instance() on every path out of it.
class DictionaryGuard {
public:
    DictionaryGuard() : dictionary(dictionary_get_instance(0)) {}
    ~DictionaryGuard() { dictionary_release_instance(&dictionary); }

    DictionaryGuard(DictionaryGuard&& other) noexcept : dictionary(std::exchange(other.dictionary, nullptr)) {}
    DictionaryGuard(const DictionaryGuard&) = delete;
    DictionaryGuard& operator=(const DictionaryGuard&) = delete;

    IDictionary* get() const { return dictionary; }
    IDictionary* operator->() const { return dictionary; }
    IDictionary& operator*() const { return *dictionary; }

private:
    IDictionary* dictionary;
};
