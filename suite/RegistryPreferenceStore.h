#pragma once

#include <afx.h>

#include <map>
#include <memory>
#include <string>

#include "frame/PreferenceStore.h"

/// A preference store in the registry of the present user: one subkey that holds every value as a REG_DWORD, named as
/// PreferenceValueNames.h tells. Nothing is kept in memory: each write is in the registry when it returns and survives
/// a killed process, and each read sees what another program has written. A boolean is kept as 0 or 1; any other number
/// read as a boolean is true. A value of another registry type reads as absent.
///
/// A null key, or one whose value name the registry could not hold (16,383 characters), is refused.
class RegistryPreferenceStore : public CResourceVesk
{
public:
    /// Below HKEY_CURRENT_USER, for example "Software\\Company\\Application\\Preferences". The subkey is made by the
    /// first write.
    explicit RegistryPreferenceStore(CString const & subkey);
    /// "Software\\company\\application\\Preferences" below HKEY_CURRENT_USER.
    RegistryPreferenceStore(CString const & company, CString const & application);
    RegistryPreferenceStore(RegistryPreferenceStore const &) = delete;
    RegistryPreferenceStore & operator=(RegistryPreferenceStore const &) = delete;
    ~RegistryPreferenceStore() override;

    CVeskEntry * CreateEntry(wchar_t const * key, int kind) override;
    lookup::result LookupSetBool(wchar_t const * key, bool value, std::size_t index) override;
    lookup::result LookupSetInt(wchar_t const * key, int value, std::size_t index) override;
    bool LookupGetBool(wchar_t const * key, std::size_t index, bool fallback) override;
    int LookupGetInt(wchar_t const * key, std::size_t index, int fallback) override;
    int Delete(wchar_t const * key) override;

private:
    class Entry;

    CString m_subkey;
    std::map<std::wstring, std::unique_ptr<Entry>> m_entries;
};
