#pragma once
// The file of an application's settings: the records of a settings tree (SettingsTree.h).
//
// Little-endian, without padding: the format's version, one byte of 1, and then the records up to the file's end. A
// record is the length of its name in UTF-16 units (16 bits), the name, its kind, its value type and the length of its
// data in bytes (32 bits each), and the data.

#include <filesystem>
#include <iosfwd>

#include "frame/Export.h"
#include "windows/SettingsTree.h"

namespace registry_settings
{
/// The three files of the protocol. An export never feeds an import by itself: somebody has to give the saved file the
/// plain name. After an import that name is gone, so that a file is not applied twice.
struct settings_file_names
{
    /// What an export writes.
    std::filesystem::path saved;
    /// What an import reads.
    std::filesystem::path plain;
    /// The name that an import gives to the file that it has read.
    std::filesystem::path restored;
};

/// The suite's names in a folder; without one, in the process's current folder.
INSTRUMENT_UI_API settings_file_names settings_files(std::filesystem::path const & folder = {});

/// Writes version and records; of a name the first units up to the low 16 bits of its length. False at the first failed
/// write.
INSTRUMENT_UI_API bool write_settings(std::ostream & stream, registry_entry_list const & list);

/// Fills the list with the records; it is emptied before. False if the version is not 1, white space before it being
/// skipped, or if reading fails otherwise than by the end. A last record that is cut is left out, which is meant. The
/// lengths in a damaged file take no memory that its bytes don't need.
INSTRUMENT_UI_API bool read_settings(std::istream & stream, registry_entry_list & list);

/// The same with a file; an earlier file is overwritten. False also if the file can't be opened.
INSTRUMENT_UI_API bool write_settings_file(std::filesystem::path const & file, registry_entry_list const & list);
/// Reads a file as read_settings does. False also if the file can't be opened.
INSTRUMENT_UI_API bool read_settings_file(std::filesystem::path const & file, registry_entry_list & list);

/// Writes the whole tree to the saved file. False if the tree can't be read, and no file is then touched; or if the
/// file can't be written in full.
INSTRUMENT_UI_API bool export_registry_settings(SettingsTree & tree, settings_file_names const & files);

/// Reads the plain file, gives it its restored name and replaces the tree by it. False if the file is missing, no
/// settings file, or can't be renamed, and nothing is then changed; or if the tree can't be written (see
/// write_registry_tree).
INSTRUMENT_UI_API bool import_registry_settings(SettingsTree & tree, settings_file_names const & files);
} // namespace registry_settings
