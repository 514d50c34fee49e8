#include "windows/RegistrySettingsTree.h"

#include <algorithm>
#include <utility>

namespace registry_settings
{
namespace
{
static_assert(sizeof(wchar_t) == sizeof(char16_t));

/// Room for the longest name of a value and its terminator.
constexpr DWORD name_room = 16384;

constexpr REGSAM removal_rights = 0x1000B;
static_assert(removal_rights == (DELETE | KEY_QUERY_VALUE | KEY_SET_VALUE | KEY_ENUMERATE_SUB_KEYS));

constexpr REGSAM creation_rights = KEY_SET_VALUE | KEY_CREATE_SUB_KEY;

/// Bytes that are no terminator.
constexpr std::size_t padding = 2 * sizeof(wchar_t);
constexpr std::uint8_t padding_byte = 0xFF;

HKEY HandleOf(SettingsTree::key_t key)
{
    return reinterpret_cast<HKEY>(key);
}

SettingsTree::key_t KeyOf(LSTATUS status, HKEY handle)
{
    return status == ERROR_SUCCESS ? reinterpret_cast<SettingsTree::key_t>(handle) : 0;
}

wchar_t const * TextOf(std::u16string const & text)
{
    return reinterpret_cast<wchar_t const *>(text.c_str());
}

bool IsText(DWORD type)
{
    return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

/// Closes the application's key with its scope.
class ApplicationKey
{
public:
    explicit ApplicationKey(std::function<HKEY()> const & open) : m_key(open ? open() : nullptr) {}
    ~ApplicationKey()
    {
        if (m_key != nullptr)
            ::RegCloseKey(m_key);
    }
    ApplicationKey(ApplicationKey const &) = delete;
    ApplicationKey & operator=(ApplicationKey const &) = delete;
    HKEY Get() const { return m_key; }

private:
    HKEY m_key;
};
} // namespace

RegistrySettingsTree::RegistrySettingsTree(std::function<HKEY()> applicationKey)
    : m_applicationKey(std::move(applicationKey))
{
}

SettingsTree::key_t RegistrySettingsTree::Open(std::u16string const & subkey, access_t access)
{
    ApplicationKey const application(m_applicationKey);
    if (application.Get() == nullptr)
        return 0;
    HKEY handle = nullptr;
    REGSAM const rights = access == access_t::read ? KEY_READ : removal_rights;
    LSTATUS const status = ::RegOpenKeyExW(application.Get(), TextOf(subkey), 0, rights, &handle);
    return KeyOf(status, handle);
}

SettingsTree::key_t RegistrySettingsTree::OpenSubkey(key_t key, std::u16string const & name)
{
    HKEY handle = nullptr;
    LSTATUS const status = ::RegOpenKeyExW(HandleOf(key), TextOf(name), 0, KEY_READ, &handle);
    return KeyOf(status, handle);
}

SettingsTree::key_t RegistrySettingsTree::CreateSubkey(key_t key, std::u16string const & name)
{
    HKEY handle = nullptr;
    LSTATUS const status = ::RegCreateKeyExW(HandleOf(key), TextOf(name), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                             creation_rights, nullptr, &handle, nullptr);
    return KeyOf(status, handle);
}

void RegistrySettingsTree::Close(key_t key)
{
    ::RegCloseKey(HandleOf(key));
}

SettingsTree::counts_t RegistrySettingsTree::Count(key_t key)
{
    DWORD subkeys = 0;
    DWORD values = 0;
    ::RegQueryInfoKeyW(HandleOf(key), nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, &values, nullptr, nullptr,
                       nullptr, nullptr);
    return {subkeys, values};
}

bool RegistrySettingsTree::DescribeValue(key_t key, std::uint32_t index, registry_entry & entry)
{
    wchar_t name[name_room];
    DWORD length = name_room;
    DWORD type = 0;
    DWORD size = 0;
    if (::RegEnumValueW(HandleOf(key), index, name, &length, nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
        return false;
    entry.name.assign(name, name + length);
    entry.value_type = type;
    entry.data.resize(size);
    return true;
}

bool RegistrySettingsTree::ReadValue(key_t key, std::uint32_t index, registry_entry & entry)
{
    wchar_t name[name_room];
    DWORD length = name_room;
    DWORD size = static_cast<DWORD>(entry.data.size());
    // Without room for data, no data would be asked for.
    BYTE nothing = 0;
    BYTE * const data = entry.data.empty() ? &nothing : entry.data.data();
    if (::RegEnumValueW(HandleOf(key), index, name, &length, nullptr, nullptr, data, &size) != ERROR_SUCCESS)
        return false;
    entry.name.assign(name, name + length);
    entry.data.resize(size);
    return true;
}

bool RegistrySettingsTree::SubkeyName(key_t key, std::uint32_t index, std::u16string & name)
{
    wchar_t text[name_room];
    DWORD length = name_room;
    if (::RegEnumKeyExW(HandleOf(key), index, text, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
        return false;
    name.assign(text, text + length);
    return true;
}

bool RegistrySettingsTree::SetValue(key_t key, registry_entry const & entry)
{
    std::uint8_t const * data = entry.data.data();
    std::vector<std::uint8_t> padded;
    if (IsText(entry.value_type))
    {
        // The system looks behind text without a terminator and takes one in if it finds it there.
        padded = entry.data;
        padded.insert(padded.end(), padding, padding_byte);
        data = padded.data();
    }
    return ::RegSetValueExW(HandleOf(key), TextOf(entry.name), 0, entry.value_type, data,
                            static_cast<DWORD>(entry.data.size())) == ERROR_SUCCESS;
}

void RegistrySettingsTree::EmptyKey(key_t key)
{
    ::RegDeleteTreeW(HandleOf(key), nullptr);
}

void RegistrySettingsTree::DeleteKey(std::u16string const & subkey)
{
    ApplicationKey const application(m_applicationKey);
    if (application.Get() != nullptr)
        ::RegDeleteKeyW(application.Get(), TextOf(subkey));
}
} // namespace registry_settings
