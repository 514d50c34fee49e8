#include "windows/MemorySettingsTree.h"

#include <algorithm>
#include <optional>
#include <string_view>
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

MemorySettingsTree::MemorySettingsTree(rights_t rights) : m_rights(rights), m_lastNode(root_node)
{
    m_nodes[root_node].parent = no_node;
}

MemorySettingsTree::Node * MemorySettingsTree::NodeOf(key_t key)
{
    auto const open = m_open.find(key);
    auto const node = open == m_open.end() ? m_nodes.end() : m_nodes.find(open->second.node);
    return node == m_nodes.end() ? nullptr : &node->second;
}

bool MemorySettingsTree::Allows(key_t key, use_t use) const
{
    auto const open = m_open.find(key);
    return open != m_open.end() && (m_rights == rights_t::unchecked || open->second.use == use);
}

SettingsTree::key_t MemorySettingsTree::Hand(node_t node, use_t use)
{
    if (node == no_node)
        return 0;
    m_open[++m_lastKey] = {node, use};
    return m_lastKey;
}

MemorySettingsTree::node_t MemorySettingsTree::Subkey(node_t parent, std::u16string const & name, bool create)
{
    auto & subkeys = m_nodes.at(parent).subkeys;
    std::u16string folded = Folded(name);
    auto const place = PlaceOf(subkeys, folded);
    if (place != subkeys.end() && place->first == folded)
        return place->second;
    if (!create)
        return no_node;
    node_t const made = ++m_lastNode;
    subkeys.insert(place, {std::move(folded), made});
    Node & node = m_nodes[made];
    node.name = name;
    node.parent = parent;
    return made;
}

MemorySettingsTree::node_t MemorySettingsTree::Find(node_t start, std::u16string const & path, bool create)
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

SettingsTree::key_t MemorySettingsTree::Open(std::u16string const & subkey, access_t access)
{
    return Hand(Find(root_node, subkey, false), access == access_t::read ? use_t::read : use_t::remove);
}

SettingsTree::key_t MemorySettingsTree::OpenSubkey(key_t key, std::u16string const & name)
{
    return NodeOf(key) == nullptr ? 0 : Hand(Find(m_open.at(key).node, name, false), use_t::read);
}

SettingsTree::key_t MemorySettingsTree::CreateSubkey(key_t key, std::u16string const & name)
{
    return NodeOf(key) == nullptr ? 0 : Hand(Find(m_open.at(key).node, name, true), use_t::write);
}

void MemorySettingsTree::Close(key_t key)
{
    m_open.erase(key);
}

SettingsTree::counts_t MemorySettingsTree::Count(key_t key)
{
    Node const * const node = NodeOf(key);
    if (node == nullptr)
        return {};
    return {static_cast<std::uint32_t>(node->subkeys.size()), static_cast<std::uint32_t>(node->values.size())};
}

MemorySettingsTree::Value * MemorySettingsTree::ValueAt(key_t key, std::uint32_t index)
{
    Node * const node = NodeOf(key);
    return node == nullptr || index >= node->values.size() ? nullptr : &node->values[index];
}

bool MemorySettingsTree::DescribeValue(key_t key, std::uint32_t index, registry_entry & entry)
{
    Value const * const value = ValueAt(key, index);
    if (value == nullptr)
        return false;
    entry.name = value->name;
    entry.value_type = value->type;
    entry.data.resize(value->data.size());
    return true;
}

bool MemorySettingsTree::ReadValue(key_t key, std::uint32_t index, registry_entry & entry)
{
    Value const * const value = ValueAt(key, index);
    if (value == nullptr || value->data.size() > entry.data.size())
        return false;
    entry.name = value->name;
    entry.data = value->data;
    return true;
}

bool MemorySettingsTree::SubkeyName(key_t key, std::uint32_t index, std::u16string & name)
{
    Node const * const node = NodeOf(key);
    if (node == nullptr || index >= node->subkeys.size())
        return false;
    name = m_nodes.at(node->subkeys[index].second).name;
    return true;
}

bool MemorySettingsTree::SetValue(key_t key, registry_entry const & entry)
{
    Node * const node = NodeOf(key);
    std::u16string name = UpToNull(entry.name);
    if (node == nullptr || !Allows(key, use_t::write) || name.size() > longest_value_name)
        return false;
    auto const [place, isNew] = node->valueIndexes.try_emplace(Folded(name), node->values.size());
    if (isNew)
        node->values.push_back({std::move(name), 0, {}});
    Value & value = node->values[place->second];
    value.type = entry.value_type;
    value.data = entry.data;
    return true;
}

void MemorySettingsTree::EmptyKey(key_t key)
{
    Node * const node = NodeOf(key);
    if (node == nullptr || !Allows(key, use_t::remove))
        return;
    node->values.clear();
    node->valueIndexes.clear();
    auto doomed = std::exchange(node->subkeys, {});
    while (!doomed.empty())
    {
        auto const below = m_nodes.find(doomed.back().second);
        doomed.pop_back();
        doomed.insert(doomed.end(), below->second.subkeys.begin(), below->second.subkeys.end());
        m_nodes.erase(below);
    }
}

void MemorySettingsTree::DeleteKey(std::u16string const & subkey)
{
    node_t const found = Find(root_node, subkey, false);
    if (found == no_node || !m_nodes.at(found).subkeys.empty())
        return;
    if (found == root_node)
    {
        m_nodes.at(root_node).values.clear();
        m_nodes.at(root_node).valueIndexes.clear();
        return;
    }
    auto & siblings = m_nodes.at(m_nodes.at(found).parent).subkeys;
    siblings.erase(PlaceOf(siblings, Folded(m_nodes.at(found).name)));
    m_nodes.erase(found);
}
} // namespace registry_settings
