#pragma once

#include <afx.h>

#include <functional>

#include "frame/Export.h"
#include "windows/SettingsTree.h"

namespace registry_settings
{
/// The registry below an application's key as a settings tree.
class INSTRUMENT_UI_API RegistrySettingsTree final : public SettingsTree
{
public:
    /// applicationKey: opens the application's key, or makes it; it is asked anew each time and its key closed by this
    /// object. Usually CWinApp::GetAppRegistryKey. Where it gives null or is empty, nothing can be
    /// opened.
    explicit RegistrySettingsTree(std::function<HKEY()> applicationKey);

    key_t Open(std::u16string const & subkey, access_t access) override;
    key_t OpenSubkey(key_t key, std::u16string const & name) override;
    key_t CreateSubkey(key_t key, std::u16string const & name) override;
    void Close(key_t key) override;

    counts_t Count(key_t key) override;
    bool DescribeValue(key_t key, std::uint32_t index, registry_entry & entry) override;
    bool ReadValue(key_t key, std::uint32_t index, registry_entry & entry) override;
    bool SubkeyName(key_t key, std::uint32_t index, std::u16string & name) override;

    bool SetValue(key_t key, registry_entry const & entry) override;
    void EmptyKey(key_t key) override;
    void DeleteKey(std::u16string const & subkey) override;

private:
    std::function<HKEY()> m_applicationKey;
};
} // namespace registry_settings
