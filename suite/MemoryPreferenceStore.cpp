#include "MemoryPreferenceStore.h"

class MemoryPreferenceStore::Entry final : public CVeskEntry
{
public:
    void SetInt(int value, std::size_t index) override { m_values[index] = value; }

    int GetIntFb(std::size_t index, int fallback) override
    {
        auto const found = m_values.find(index);
        return found == m_values.end() ? fallback : found->second;
    }

    /// Whether there was a value.
    bool Clear()
    {
        bool const filled = !m_values.empty();
        m_values.clear();
        return filled;
    }

private:
    std::map<std::size_t, int> m_values;
};

MemoryPreferenceStore::MemoryPreferenceStore() = default;
MemoryPreferenceStore::~MemoryPreferenceStore() = default;

CVeskEntry * MemoryPreferenceStore::CreateEntry(wchar_t const * key, int)
{
    if (key == nullptr)
        return nullptr;
    std::unique_ptr<Entry> & entry = m_entries[key];
    if (!entry)
        entry = std::make_unique<Entry>();
    return entry.get();
}

lookup::result MemoryPreferenceStore::LookupSetBool(wchar_t const * key, bool value, std::size_t index)
{
    return LookupSetInt(key, value ? 1 : 0, index);
}

lookup::result MemoryPreferenceStore::LookupSetInt(wchar_t const * key, int value, std::size_t index)
{
    CVeskEntry * const entry = CreateEntry(key, 0);
    if (entry == nullptr)
        return lookup::bad_key;
    entry->SetInt(value, index);
    return lookup::success;
}

bool MemoryPreferenceStore::LookupGetBool(wchar_t const * key, std::size_t index, bool fallback)
{
    return LookupGetInt(key, index, fallback ? 1 : 0) != 0;
}

int MemoryPreferenceStore::LookupGetInt(wchar_t const * key, std::size_t index, int fallback)
{
    if (key == nullptr)
        return fallback;
    auto const found = m_entries.find(key);
    return found == m_entries.end() ? fallback : found->second->GetIntFb(index, fallback);
}

int MemoryPreferenceStore::Delete(wchar_t const * key)
{
    if (key == nullptr)
        return 0;
    auto const found = m_entries.find(key);
    return found != m_entries.end() && found->second->Clear() ? 1 : 0;
}
