#pragma once
// A preference store for tests: keeps its values in memory and logs every call in order.

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "frame/PreferenceStore.h"

class RecordingStore final : public CResourceVesk
{
public:
    /// Becomes the process's store for its own life.
    RecordingStore();
    RecordingStore(RecordingStore const &) = delete;
    RecordingStore & operator=(RecordingStore const &) = delete;
    ~RecordingStore() override;

    CVeskEntry * CreateEntry(wchar_t const * key, int kind) override;
    lookup::result LookupSetBool(wchar_t const * key, bool value, std::size_t index) override;
    lookup::result LookupSetInt(wchar_t const * key, int value, std::size_t index) override;
    bool LookupGetBool(wchar_t const * key, std::size_t index, bool fallback) override;
    int LookupGetInt(wchar_t const * key, std::size_t index, int fallback) override;
    int Delete(wchar_t const * key) override;

    /// "set KEY[INDEX]=VALUE", "get KEY[INDEX]", "delete KEY", "entry KEY KIND", booleans as true and false.
    std::vector<std::string> calls;
    std::map<std::pair<std::wstring, std::size_t>, int> values;

private:
    class Entry;

    std::map<std::wstring, std::unique_ptr<Entry>> m_entries;
};
