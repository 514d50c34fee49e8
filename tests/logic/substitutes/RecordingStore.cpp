#include "RecordingStore.h"

namespace
{
std::string Narrow(std::wstring const & text)
{
    std::string result;
    for (wchar_t const unit : text)
        result.push_back(unit < 0x7F ? static_cast<char>(unit) : '?');
    return result;
}

std::string Place(wchar_t const * key, std::size_t index)
{
    return Narrow(key) + "[" + std::to_string(index) + "]";
}
} // namespace

class RecordingStore::Entry final : public CVeskEntry
{
public:
    Entry(RecordingStore & store, std::wstring key) : m_store(store), m_key(std::move(key)) {}

    void SetInt(int value, std::size_t index) override { m_store.LookupSetInt(m_key.c_str(), value, index); }
    int GetIntFb(std::size_t index, int fallback) override
    {
        return m_store.LookupGetInt(m_key.c_str(), index, fallback);
    }

private:
    RecordingStore & m_store;
    std::wstring const m_key;
};

RecordingStore::RecordingStore()
{
    CVeskBase::SetPreferenceVesk(this);
}

RecordingStore::~RecordingStore()
{
    CVeskBase::SetPreferenceVesk(nullptr);
}

CVeskEntry * RecordingStore::CreateEntry(wchar_t const * key, int kind)
{
    calls.push_back("entry " + Narrow(key) + " " + std::to_string(kind));
    std::unique_ptr<Entry> & entry = m_entries[key];
    if (!entry)
        entry = std::make_unique<Entry>(*this, key);
    return entry.get();
}

lookup::result RecordingStore::LookupSetBool(wchar_t const * key, bool value, std::size_t index)
{
    calls.push_back("set " + Place(key, index) + "=" + (value ? "true" : "false"));
    values[{key, index}] = value ? 1 : 0;
    return lookup::success;
}

lookup::result RecordingStore::LookupSetInt(wchar_t const * key, int value, std::size_t index)
{
    calls.push_back("set " + Place(key, index) + "=" + std::to_string(value));
    values[{key, index}] = value;
    return lookup::success;
}

bool RecordingStore::LookupGetBool(wchar_t const * key, std::size_t index, bool fallback)
{
    return LookupGetInt(key, index, fallback ? 1 : 0) != 0;
}

int RecordingStore::LookupGetInt(wchar_t const * key, std::size_t index, int fallback)
{
    calls.push_back("get " + Place(key, index));
    auto const found = values.find({key, index});
    return found == values.end() ? fallback : found->second;
}

int RecordingStore::Delete(wchar_t const * key)
{
    calls.push_back("delete " + Narrow(key));
    return std::erase_if(values, [key](auto const & value) { return value.first.first == key; }) != 0 ? 1 : 0;
}
