#pragma once

#include <map>
#include <memory>
#include <string>

#include "frame/PreferenceStore.h"

/// A preference store that lives and ends with its object: for trials, and for programs that keep nothing. A boolean is
/// kept as the number 0 or 1; any other number read as a boolean is true. A null key is refused.
class MemoryPreferenceStore : public CResourceVesk
{
public:
    MemoryPreferenceStore();
    MemoryPreferenceStore(MemoryPreferenceStore const &) = delete;
    MemoryPreferenceStore & operator=(MemoryPreferenceStore const &) = delete;
    ~MemoryPreferenceStore() override;

    CVeskEntry * CreateEntry(wchar_t const * key, int kind) override;
    lookup::result LookupSetBool(wchar_t const * key, bool value, std::size_t index) override;
    lookup::result LookupSetInt(wchar_t const * key, int value, std::size_t index) override;
    bool LookupGetBool(wchar_t const * key, std::size_t index, bool fallback) override;
    int LookupGetInt(wchar_t const * key, std::size_t index, int fallback) override;
    int Delete(wchar_t const * key) override;

private:
    class Entry;

    std::map<std::wstring, std::unique_ptr<Entry>> m_entries;
};
