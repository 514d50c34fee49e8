#pragma once

#include <cstddef>
#include <map>
#include <unordered_map>

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
    std::size_t OpenKeyCount() const { return m_open.size(); }

private:
    /// Numbers of nodes are not used again, so that an open key whose node is deleted finds none.
    using node_t = std::uint64_t;

    struct Value
    {
        std::u16string name;
        std::uint32_t type;
        std::vector<std::uint8_t> data;
    };
    struct Node
    {
        std::u16string name;
        node_t parent;
        std::vector<Value> values;
        std::map<std::u16string, std::size_t> valueIndexes;     // by folded name
        std::vector<std::pair<std::u16string, node_t>> subkeys; // by folded name, in its order
    };
    enum class use_t
    {
        read,
        write,
        remove
    };
    struct OpenKey
    {
        node_t node;
        use_t use;
    };

    Node * NodeOf(key_t key);
    bool Allows(key_t key, use_t use) const;
    key_t Hand(node_t node, use_t use);
    node_t Find(node_t start, std::u16string const & path, bool create);
    node_t Subkey(node_t parent, std::u16string const & name, bool create);
    Value * ValueAt(key_t key, std::uint32_t index);

    rights_t m_rights;
    /// The nodes stand side by side, so that deleting a deep tree needs no deep stack.
    std::unordered_map<node_t, Node> m_nodes;
    std::unordered_map<key_t, OpenKey> m_open;
    node_t m_lastNode;
    key_t m_lastKey = 0;
};
} // namespace registry_settings
