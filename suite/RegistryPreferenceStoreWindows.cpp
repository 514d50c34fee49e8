#include "RegistryPreferenceStore.h"

#include <afxwin.h>

#include <optional>
#include <vector>

#include "PreferenceValueNames.h"

namespace
{
static_assert(sizeof(wchar_t) == sizeof(char16_t));

class RegistryKey
{
public:
    RegistryKey() = default;
    RegistryKey(RegistryKey const &) = delete;
    RegistryKey & operator=(RegistryKey const &) = delete;
    ~RegistryKey()
    {
        if (m_key != nullptr)
            ::RegCloseKey(m_key);
    }

    LSTATUS Create(CString const & subkey, REGSAM access)
    {
        return ::RegCreateKeyExW(HKEY_CURRENT_USER, subkey, 0, nullptr, REG_OPTION_NON_VOLATILE, access, nullptr,
                                 &m_key, nullptr);
    }

    LSTATUS Open(CString const & subkey, REGSAM access)
    {
        return ::RegOpenKeyExW(HKEY_CURRENT_USER, subkey, 0, access, &m_key);
    }

    operator HKEY() const { return m_key; }

private:
    HKEY m_key = nullptr;
};

std::u16string UnitsOf(wchar_t const * key)
{
    std::wstring_view const view(key);
    return std::u16string(view.begin(), view.end());
}

/// Nothing for a key that the registry cannot hold.
std::optional<std::wstring> ValueNameOf(wchar_t const * key, std::size_t index)
{
    if (key == nullptr)
        return std::nullopt;
    std::optional<std::u16string> const name = preference_value_names::ValueName(UnitsOf(key), index);
    if (!name)
        return std::nullopt;
    return std::wstring(name->begin(), name->end());
}

lookup::result ResultOf(LSTATUS status)
{
    switch (status)
    {
    case ERROR_SUCCESS:
        return lookup::success;
    case ERROR_ACCESS_DENIED:
        return lookup::access_denied;
    default:
        return lookup::failure;
    }
}

/// The names of all values that belong to the key.
std::vector<std::wstring> ValueNamesOf(HKEY subkey, std::u16string const & key)
{
    std::vector<std::wstring> names;
    std::vector<wchar_t> buffer(preference_value_names::max_length + 1);
    for (DWORD number = 0;; ++number)
    {
        DWORD length = static_cast<DWORD>(buffer.size());
        LSTATUS const status =
            ::RegEnumValueW(subkey, number, buffer.data(), &length, nullptr, nullptr, nullptr, nullptr);
        if (status != ERROR_SUCCESS)
            return names;
        auto const parsed =
            preference_value_names::ParseValueName(std::u16string(buffer.begin(), buffer.begin() + length));
        if (parsed && parsed->key == key)
            names.emplace_back(buffer.data(), length);
    }
}
} // namespace

class RegistryPreferenceStore::Entry final : public CVeskEntry
{
public:
    Entry(RegistryPreferenceStore & store, std::wstring key) : m_store(store), m_key(std::move(key)) {}

    void SetInt(int value, std::size_t index) override { m_store.LookupSetInt(m_key.c_str(), value, index); }
    int GetIntFb(std::size_t index, int fallback) override
    {
        return m_store.LookupGetInt(m_key.c_str(), index, fallback);
    }

private:
    RegistryPreferenceStore & m_store;
    std::wstring const m_key;
};

RegistryPreferenceStore::RegistryPreferenceStore(CString const & subkey) : m_subkey(subkey) {}

RegistryPreferenceStore::RegistryPreferenceStore(CString const & company, CString const & application)
    : m_subkey(L"Software\\" + company + L"\\" + application + L"\\Preferences")
{
}

RegistryPreferenceStore::~RegistryPreferenceStore() = default;

CVeskEntry * RegistryPreferenceStore::CreateEntry(wchar_t const * key, int)
{
    if (!ValueNameOf(key, 0))
        return nullptr;
    std::unique_ptr<Entry> & entry = m_entries[key];
    if (!entry)
        entry = std::make_unique<Entry>(*this, key);
    return entry.get();
}

lookup::result RegistryPreferenceStore::LookupSetBool(wchar_t const * key, bool value, std::size_t index)
{
    return LookupSetInt(key, value ? 1 : 0, index);
}

lookup::result RegistryPreferenceStore::LookupSetInt(wchar_t const * key, int value, std::size_t index)
{
    std::optional<std::wstring> const name = ValueNameOf(key, index);
    if (!name)
        return lookup::bad_key;
    RegistryKey subkey;
    LSTATUS status = subkey.Create(m_subkey, KEY_SET_VALUE);
    if (status == ERROR_SUCCESS)
    {
        status = ::RegSetValueExW(subkey, name->c_str(), 0, REG_DWORD, reinterpret_cast<BYTE const *>(&value),
                                  sizeof(value));
    }
    return ResultOf(status);
}

bool RegistryPreferenceStore::LookupGetBool(wchar_t const * key, std::size_t index, bool fallback)
{
    return LookupGetInt(key, index, fallback ? 1 : 0) != 0;
}

int RegistryPreferenceStore::LookupGetInt(wchar_t const * key, std::size_t index, int fallback)
{
    std::optional<std::wstring> const name = ValueNameOf(key, index);
    if (!name)
        return fallback;
    int value = 0;
    DWORD size = sizeof(value);
    LSTATUS const status =
        ::RegGetValueW(HKEY_CURRENT_USER, m_subkey, name->c_str(), RRF_RT_REG_DWORD, nullptr, &value, &size);
    return status == ERROR_SUCCESS && size == sizeof(value) ? value : fallback;
}

int RegistryPreferenceStore::Delete(wchar_t const * key)
{
    if (key == nullptr)
        return 0;
    RegistryKey subkey;
    if (subkey.Open(m_subkey, KEY_QUERY_VALUE | KEY_SET_VALUE) != ERROR_SUCCESS)
        return 0;
    std::vector<std::wstring> const names = ValueNamesOf(subkey, UnitsOf(key));
    bool deleted = !names.empty();
    for (std::wstring const & name : names)
    {
        LSTATUS const status = ::RegDeleteValueW(subkey, name.c_str());
        // Another program may have been faster.
        deleted = (status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND) && deleted;
    }
    return deleted ? 1 : 0;
}
