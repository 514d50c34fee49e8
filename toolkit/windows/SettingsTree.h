#pragma once
// A tree of keys and typed values, flattened into a list of records and built again from one.
//
// The records are also what a settings file holds (SettingsFile.h). The tree is the registry below the application's
// key (RegistrySettingsTree.h), or memory where there is no registry (MemorySettingsTree.h). Names are UTF-16.

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "frame/Export.h"

namespace registry_settings
{
/// What a record stands for. A damaged file may hold any other number.
enum entry_kind_t : std::uint32_t
{
    /// A record that was never filled.
    entry_none = 0,
    /// A value in the current key.
    entry_value = 1,
    /// Enters the subkey of that name; the records that follow belong to it.
    entry_key_begin = 2,
    /// Leaves the current key.
    entry_key_end = 3
};

/// One record of the flattened tree.
struct registry_entry
{
    /// A value's bytes as the tree gives them; empty for other kinds.
    std::vector<std::uint8_t> data;
    /// A value's type, a REG_ number; 0 for other kinds.
    std::uint32_t value_type = 0;
    /// What the record is.
    entry_kind_t kind = entry_none;
    /// A value's or key's name; empty for a key's end.
    std::u16string name;

    /// Whether all is equal.
    bool operator==(registry_entry const &) const = default;
};

/// A tree in order: of each key all its values first, then its subkeys, each between its begin and its end. The root
/// has neither.
using registry_entry_list = std::deque<registry_entry>;

/// The type of values that can't be exported.
constexpr std::uint32_t value_type_none = 0;

/// The tree, as far as it is needed here. Failures are told by results alone.
class INSTRUMENT_UI_API SettingsTree
{
public:
    /// An open key; 0 is none. Who opens or creates one closes it.
    using key_t = std::uintptr_t;

    /// What a key is opened for.
    enum class access_t
    {
        /// Reading, and what else a key opened for reading allows.
        read,
        /// Emptying the key.
        remove
    };

    /// What is in a key.
    struct counts_t
    {
        /// The number of its subkeys.
        std::uint32_t subkeys = 0;
        /// The number of its values.
        std::uint32_t values = 0;
    };

    virtual ~SettingsTree() = default;

    /// Opens a key below the root, which is the empty name. 0 if it does not exist or access is refused.
    virtual key_t Open(std::u16string const & subkey, access_t access) = 0;
    /// Opens a key's subkey for reading; 0 on failure.
    virtual key_t OpenSubkey(key_t key, std::u16string const & name) = 0;
    /// Opens a key's subkey for writing and makes it before if need be; 0 on failure.
    virtual key_t CreateSubkey(key_t key, std::u16string const & name) = 0;
    /// Closes an open key; 0 does nothing.
    virtual void Close(key_t key) = 0;

    /// Zeros on failure.
    virtual counts_t Count(key_t key) = 0;
    /// Fills in the name and the type of the key's value of that index, and gives its data as many bytes as it has. The
    /// bytes themselves are left open.
    virtual bool DescribeValue(key_t key, std::uint32_t index, registry_entry & entry) = 0;
    /// Fills in the name and the data of a value described before.
    virtual bool ReadValue(key_t key, std::uint32_t index, registry_entry & entry) = 0;
    /// The name of the key's subkey of that index.
    virtual bool SubkeyName(key_t key, std::uint32_t index, std::u16string & name) = 0;

    /// Sets the value of the entry's name, type and data.
    virtual bool SetValue(key_t key, registry_entry const & entry) = 0;
    /// Deletes all values and subkeys of a key opened for removal.
    virtual void EmptyKey(key_t key) = 0;
    /// Deletes a key below the root that has no subkeys. The root itself, the empty name, is there again when it is
    /// next opened.
    virtual void DeleteKey(std::u16string const & subkey) = 0;
};

/// Fills the list from the whole tree; it is emptied before. False if any part of the tree can't be read, which a value
/// of type 0 never can. The list then holds what was read until then.
INSTRUMENT_UI_API bool read_registry_tree(SettingsTree & tree, registry_entry_list & list);

/// Replaces the whole tree by the list, which is used up from its front. False if the tree can't be deleted or a record
/// be carried out; the tree then holds what was written until then and the list begins with that record. It is meant
/// that a key's end at the root ends it all successfully, and that missing ends are none at the end of the list. It is
/// also meant that the root is opened for reading alone and stays open: where a tree refuses values through such a key,
/// a list with values of the root fails.
INSTRUMENT_UI_API bool write_registry_tree(SettingsTree & tree, registry_entry_list & list);

/// Deletes a key below the root with all that lies beneath it. False if it can't be opened for that; what then fails is
/// not told.
INSTRUMENT_UI_API bool delete_registry_tree(SettingsTree & tree, std::u16string const & subkey);

/// Whether a key below the root can be opened for reading.
INSTRUMENT_UI_API bool registry_key_exists(SettingsTree & tree, std::u16string const & subkey);
} // namespace registry_settings
