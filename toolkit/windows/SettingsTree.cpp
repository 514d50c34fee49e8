#include "windows/SettingsTree.h"

#include <utility>

namespace registry_settings
{
namespace
{
/// The keys on the way from the root to the current one, without the root. They are kept in memory of their own, since
/// the keys of a damaged file may be nested deeper than the stack is. Whatever is still open is closed in the end.
template <typename Level> class OpenKeys
{
public:
    explicit OpenKeys(SettingsTree & tree) : m_tree(tree) {}
    ~OpenKeys()
    {
        while (!IsEmpty())
            Leave();
    }
    OpenKeys(OpenKeys const &) = delete;
    OpenKeys & operator=(OpenKeys const &) = delete;

    bool IsEmpty() const { return m_levels.empty(); }
    Level & Current() { return m_levels.back(); }
    void Enter(Level level) { m_levels.push_back(level); }
    void Leave()
    {
        m_tree.Close(m_levels.back().key);
        m_levels.pop_back();
    }

private:
    SettingsTree & m_tree;
    std::vector<Level> m_levels;
};

struct WalkLevel
{
    SettingsTree::key_t key;
    std::uint32_t subkeys;
    std::uint32_t nextSubkey = 0;
};

struct ReplayLevel
{
    SettingsTree::key_t key;
};

bool AppendValues(SettingsTree & tree, SettingsTree::key_t key, std::uint32_t count, registry_entry_list & list)
{
    for (std::uint32_t index = 0; index < count; ++index)
    {
        registry_entry entry;
        if (!tree.DescribeValue(key, index, entry) || entry.value_type == value_type_none)
            return false;
        entry.kind = entry_value;
        if (!tree.ReadValue(key, index, entry))
            return false;
        list.push_back(std::move(entry));
    }
    return true;
}

registry_entry KeyRecord(entry_kind_t kind, std::u16string name)
{
    registry_entry entry;
    entry.kind = kind;
    entry.name = std::move(name);
    return entry;
}

/// Appends all that lies in the root.
bool Walk(SettingsTree & tree, SettingsTree::key_t root, registry_entry_list & list)
{
    OpenKeys<WalkLevel> keys(tree);
    SettingsTree::counts_t counts = tree.Count(root);
    if (!AppendValues(tree, root, counts.values, list))
        return false;
    WalkLevel rootLevel{root, counts.subkeys};
    for (;;)
    {
        WalkLevel & level = keys.IsEmpty() ? rootLevel : keys.Current();
        if (level.nextSubkey == level.subkeys)
        {
            if (keys.IsEmpty())
                return true;
            keys.Leave();
            list.push_back(KeyRecord(entry_key_end, {}));
            continue;
        }
        std::u16string name;
        if (!tree.SubkeyName(level.key, level.nextSubkey++, name))
            return false;
        SettingsTree::key_t const parent = level.key;
        list.push_back(KeyRecord(entry_key_begin, name));
        SettingsTree::key_t const key = tree.OpenSubkey(parent, name);
        if (key == 0)
            return false;
        counts = tree.Count(key);
        keys.Enter({key, counts.subkeys});
        if (!AppendValues(tree, key, counts.values, list))
            return false;
    }
}

/// Carries the list out in the root, from its front.
bool Replay(SettingsTree & tree, SettingsTree::key_t root, registry_entry_list & list)
{
    OpenKeys<ReplayLevel> keys(tree);
    while (!list.empty())
    {
        registry_entry const & entry = list.front();
        SettingsTree::key_t const current = keys.IsEmpty() ? root : keys.Current().key;
        switch (entry.kind)
        {
        case entry_value:
            if (!tree.SetValue(current, entry))
                return false;
            list.pop_front();
            break;
        case entry_key_begin: {
            SettingsTree::key_t const key = tree.CreateSubkey(current, entry.name);
            if (key == 0)
                return false;
            keys.Enter({key});
            list.pop_front();
            break;
        }
        case entry_key_end:
            list.pop_front();
            if (keys.IsEmpty())
                return true;
            keys.Leave();
            break;
        default:
            return false;
        }
    }
    return true;
}
} // namespace

bool read_registry_tree(SettingsTree & tree, registry_entry_list & list)
{
    list.clear();
    SettingsTree::key_t const root = tree.Open({}, SettingsTree::access_t::read);
    if (root == 0)
        return false;
    bool const done = Walk(tree, root, list);
    tree.Close(root);
    return done;
}

bool write_registry_tree(SettingsTree & tree, registry_entry_list & list)
{
    if (!delete_registry_tree(tree, {}))
        return false;
    // For reading, and never closed: hosts expect both.
    SettingsTree::key_t const root = tree.Open({}, SettingsTree::access_t::read);
    return root != 0 && Replay(tree, root, list);
}

bool delete_registry_tree(SettingsTree & tree, std::u16string const & subkey)
{
    SettingsTree::key_t const key = tree.Open(subkey, SettingsTree::access_t::remove);
    if (key == 0)
        return false;
    tree.EmptyKey(key);
    tree.Close(key);
    tree.DeleteKey(subkey);
    return true;
}

bool registry_key_exists(SettingsTree & tree, std::u16string const & subkey)
{
    SettingsTree::key_t const key = tree.Open(subkey, SettingsTree::access_t::read);
    if (key == 0)
        return false;
    tree.Close(key);
    return true;
}
} // namespace registry_settings
