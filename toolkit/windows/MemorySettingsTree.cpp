#include "windows/MemorySettingsTree.h"

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

namespace registry_settings
{
namespace
{
constexpr std::uint64_t no_node = 0;
constexpr std::uint64_t root_node = 1;

constexpr std::size_t longest_key_name = 255;
constexpr std::size_t longest_value_name = 16383;

std::u16string UpToNull(std::u16string const & name)
{
    return name.substr(0, name.find(u'\0'));
}

std::u16string Folded(std::u16string name)
{
    for (char16_t & unit : name)
    {
        if (unit >= u'a' && unit <= u'z')
            unit = static_cast<char16_t>(unit - u'a' + u'A');
    }
    return name;
}

template <typename Subkeys> auto PlaceOf(Subkeys & subkeys, std::u16string const & folded)
{
    return std::lower_bound(subkeys.begin(), subkeys.end(), folded,
                            [](auto const & subkey, std::u16string const & name) { return subkey.first < name; });
}

/// The names of a path, which may end with one backslash; nothing if one of them can't be a key's.
std::optional<std::vector<std::u16string>> NamesOf(std::u16string const & path)
{
    std::u16string const whole = UpToNull(path);
    std::vector<std::u16string> names;
    for (std::size_t at = 0; at < whole.size();)
    {
        std::size_t const end = std::min(whole.find(u'\\', at), whole.size());
        if (end == at || end - at > longest_key_name)
            return std::nullopt;
        names.push_back(whole.substr(at, end - at));
        at = end + 1;
    }
    return names;
}
} // namespace

/// The keys of the tree, and those that are open.
class MemorySettingsTree::Nodes
{
public:
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

    explicit Nodes(rights_t rights) : m_rights(rights), m_lastNode(root_node)
    {
        m_byNumber[root_node].parent = no_node;
    }

    Node * NodeOf(key_t key);
    bool Allows(key_t key, use_t use) const;
    key_t Hand(node_t node, use_t use);
    node_t Find(node_t start, std::u16string const & path, bool create);
    Value * ValueAt(key_t key, std::uint32_t index);

    /// The nodes stand side by side, so that deleting a deep tree needs no deep stack.
    std::unordered_map<node_t, Node> m_byNumber;
    std::unordered_map<key_t, OpenKey> m_open;

private:
    node_t Subkey(node_t parent, std::u16string const & name, bool create);

    rights_t m_rights;
    node_t m_lastNode;
    key_t m_lastKey = 0;
};

MemorySettingsTree::Nodes::Node * MemorySettingsTree::Nodes::NodeOf(key_t key)
{
    auto const open = m_open.find(key);
    auto const node = open == m_open.end() ? m_byNumber.end() : m_byNumber.find(open->second.node);
    return node == m_byNumber.end() ? nullptr : &node->second;
}

bool MemorySettingsTree::Nodes::Allows(key_t key, use_t use) const
{
    auto const open = m_open.find(key);
    return open != m_open.end() && (m_rights == rights_t::unchecked || open->second.use == use);
}

SettingsTree::key_t MemorySettingsTree::Nodes::Hand(node_t node, use_t use)
{
    if (node == no_node)
        return 0;
    m_open[++m_lastKey] = {node, use};
    return m_lastKey;
}

MemorySettingsTree::Nodes::node_t MemorySettingsTree::Nodes::Subkey(node_t parent, std::u16string const & name,
                                                                    bool create)
{
    auto & subkeys = m_byNumber.at(parent).subkeys;
    std::u16string folded = Folded(name);
    auto const place = PlaceOf(subkeys, folded);
    if (place != subkeys.end() && place->first == folded)
        return place->second;
    if (!create)
        return no_node;
    node_t const made = ++m_lastNode;
    subkeys.insert(place, {std::move(folded), made});
    Node & node = m_byNumber[made];
    node.name = name;
    node.parent = parent;
    return made;
}

MemorySettingsTree::Nodes::node_t MemorySettingsTree::Nodes::Find(node_t start, std::u16string const & path,
                                                                  bool create)
{
    auto const names = NamesOf(path);
    if (!names)
        return no_node;
    node_t node = start;
    for (std::u16string const & name : *names)
    {
        node = Subkey(node, name, create);
        if (node == no_node)
            break;
    }
    return node;
}

MemorySettingsTree::Nodes::Value * MemorySettingsTree::Nodes::ValueAt(key_t key, std::uint32_t index)
{
    Node * const node = NodeOf(key);
    return node == nullptr || index >= node->values.size() ? nullptr : &node->values[index];
}

MemorySettingsTree::MemorySettingsTree(rights_t rights) : m_nodes(std::make_unique<Nodes>(rights)) {}

MemorySettingsTree::~MemorySettingsTree() = default;

std::size_t MemorySettingsTree::OpenKeyCount() const
{
    return m_nodes->m_open.size();
}

SettingsTree::key_t MemorySettingsTree::Open(std::u16string const & subkey, access_t access)
{
    return m_nodes->Hand(m_nodes->Find(root_node, subkey, false),
                         access == access_t::read ? Nodes::use_t::read : Nodes::use_t::remove);
}

SettingsTree::key_t MemorySettingsTree::OpenSubkey(key_t key, std::u16string const & name)
{
    return m_nodes->NodeOf(key) == nullptr
               ? 0
               : m_nodes->Hand(m_nodes->Find(m_nodes->m_open.at(key).node, name, false), Nodes::use_t::read);
}

SettingsTree::key_t MemorySettingsTree::CreateSubkey(key_t key, std::u16string const & name)
{
    return m_nodes->NodeOf(key) == nullptr
               ? 0
               : m_nodes->Hand(m_nodes->Find(m_nodes->m_open.at(key).node, name, true), Nodes::use_t::write);
}

void MemorySettingsTree::Close(key_t key)
{
    m_nodes->m_open.erase(key);
}

SettingsTree::counts_t MemorySettingsTree::Count(key_t key)
{
    Nodes::Node const * const node = m_nodes->NodeOf(key);
    if (node == nullptr)
        return {};
    return {static_cast<std::uint32_t>(node->subkeys.size()), static_cast<std::uint32_t>(node->values.size())};
}

bool MemorySettingsTree::DescribeValue(key_t key, std::uint32_t index, registry_entry & entry)
{
    Nodes::Value const * const value = m_nodes->ValueAt(key, index);
    if (value == nullptr)
        return false;
    entry.name = value->name;
    entry.value_type = value->type;
    entry.data.resize(value->data.size());
    return true;
}

bool MemorySettingsTree::ReadValue(key_t key, std::uint32_t index, registry_entry & entry)
{
    Nodes::Value const * const value = m_nodes->ValueAt(key, index);
    if (value == nullptr || value->data.size() > entry.data.size())
        return false;
    entry.name = value->name;
    entry.data = value->data;
    return true;
}

bool MemorySettingsTree::SubkeyName(key_t key, std::uint32_t index, std::u16string & name)
{
    Nodes::Node const * const node = m_nodes->NodeOf(key);
    if (node == nullptr || index >= node->subkeys.size())
        return false;
    name = m_nodes->m_byNumber.at(node->subkeys[index].second).name;
    return true;
}

bool MemorySettingsTree::SetValue(key_t key, registry_entry const & entry)
{
    Nodes::Node * const node = m_nodes->NodeOf(key);
    std::u16string name = UpToNull(entry.name);
    if (node == nullptr || !m_nodes->Allows(key, Nodes::use_t::write) || name.size() > longest_value_name)
        return false;
    auto const [place, isNew] = node->valueIndexes.try_emplace(Folded(name), node->values.size());
    if (isNew)
        node->values.push_back({std::move(name), 0, {}});
    Nodes::Value & value = node->values[place->second];
    value.type = entry.value_type;
    value.data = entry.data;
    return true;
}

void MemorySettingsTree::EmptyKey(key_t key)
{
    Nodes::Node * const node = m_nodes->NodeOf(key);
    if (node == nullptr || !m_nodes->Allows(key, Nodes::use_t::remove))
        return;
    node->values.clear();
    node->valueIndexes.clear();
    auto doomed = std::exchange(node->subkeys, {});
    while (!doomed.empty())
    {
        auto const below = m_nodes->m_byNumber.find(doomed.back().second);
        doomed.pop_back();
        doomed.insert(doomed.end(), below->second.subkeys.begin(), below->second.subkeys.end());
        m_nodes->m_byNumber.erase(below);
    }
}

void MemorySettingsTree::DeleteKey(std::u16string const & subkey)
{
    Nodes::node_t const found = m_nodes->Find(root_node, subkey, false);
    if (found == no_node || !m_nodes->m_byNumber.at(found).subkeys.empty())
        return;
    if (found == root_node)
    {
        m_nodes->m_byNumber.at(root_node).values.clear();
        m_nodes->m_byNumber.at(root_node).valueIndexes.clear();
        return;
    }
    auto & siblings = m_nodes->m_byNumber.at(m_nodes->m_byNumber.at(found).parent).subkeys;
    siblings.erase(PlaceOf(siblings, Folded(m_nodes->m_byNumber.at(found).name)));
    m_nodes->m_byNumber.erase(found);
}
} // namespace registry_settings
