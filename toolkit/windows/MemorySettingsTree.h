#pragma once

#include <cstddef>
#include <memory>

#include "windows/SettingsTree.h"

namespace registry_settings
{
/// A settings tree in memory, for systems without a registry. It takes names as the registry does: they end at a null
/// character, letters from a to z are the same in either case, a subkey's name may be a path with backslashes, a key's
/// name has 1 to 255 units and a value's 16383 at most. Values keep the order in which they were first set; subkeys are
/// in the order of their names.
class INSTRUMENT_UI_API MemorySettingsTree final : public SettingsTree
{
public:
    /// Whether the tree minds how a key was opened.
    enum class rights_t
    {
        /// A value can be set through any open key.
        unchecked,
        /// A value can be set through a created key alone, and a key be emptied through one opened for removal.
        checked
    };

    /// An empty tree.
    explicit MemorySettingsTree(rights_t rights = rights_t::unchecked);
    MemorySettingsTree(MemorySettingsTree const &) = delete;
    MemorySettingsTree & operator=(MemorySettingsTree const &) = delete;
    ~MemorySettingsTree() override;

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

    /// Keys that have been opened or created and not been closed.
    std::size_t OpenKeyCount() const;

private:
    class Nodes;

    std::unique_ptr<Nodes> m_nodes;
};
} // namespace registry_settings
