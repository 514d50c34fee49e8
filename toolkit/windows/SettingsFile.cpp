#include "windows/SettingsFile.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <istream>
#include <limits>
#include <ostream>
#include <system_error>

namespace registry_settings
{
namespace
{
constexpr char const base_name[] = "BrenholtRegistryEntries";
constexpr char const saved_suffix[] = "-saved";
constexpr char const restored_suffix[] = "-restored";
constexpr char const extension[] = ".wst";

constexpr char format_version = 1;

constexpr std::size_t bits_per_byte = 8;
constexpr std::size_t bytes_per_unit = 2;

/// What is read at a time while it is not known how much there is.
constexpr std::size_t first_block = 65536;

template <typename Number> void PutNumber(std::ostream & stream, Number number)
{
    std::array<char, sizeof(Number)> bytes;
    for (std::size_t at = 0; at < bytes.size(); ++at)
        bytes[at] = static_cast<char>(number >> (bits_per_byte * at));
    stream.write(bytes.data(), bytes.size());
}

void PutName(std::ostream & stream, std::u16string const & name)
{
    auto const length = static_cast<std::uint16_t>(name.size());
    PutNumber(stream, length);
    std::string bytes;
    bytes.reserve(length * bytes_per_unit);
    for (char16_t const unit : name.substr(0, length))
    {
        bytes.push_back(static_cast<char>(unit));
        bytes.push_back(static_cast<char>(unit >> bits_per_byte));
    }
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// Reads the records' fields. After the first read that fails, all fail.
class FieldReader
{
public:
    explicit FieldReader(std::istream & stream) : m_stream(stream)
    {
        std::streamoff const here = stream.tellg();
        if (here >= 0 && stream.seekg(0, std::ios::end))
        {
            m_left = stream.tellg() - here;
            stream.seekg(here);
        }
        stream.clear();
    }

    template <typename Number> bool GetNumber(Number & number)
    {
        std::array<char, sizeof(Number)> bytes;
        if (!Read(bytes.data(), bytes.size()))
            return false;
        std::uint64_t value = 0;
        for (std::size_t at = 0; at < bytes.size(); ++at)
            value |= std::uint64_t{static_cast<unsigned char>(bytes[at])} << (bits_per_byte * at);
        number = static_cast<Number>(value);
        return true;
    }

    bool GetBytes(std::size_t length, std::vector<std::uint8_t> & bytes)
    {
        bytes.clear();
        bytes.reserve(std::min(length, Believable()));
        while (bytes.size() < length)
        {
            std::size_t const before = bytes.size();
            bytes.resize(std::min(length, std::max(before + first_block, bytes.capacity())));
            if (!Read(reinterpret_cast<char *>(bytes.data() + before), bytes.size() - before))
                return false;
        }
        return true;
    }

    bool GetName(std::u16string & name)
    {
        std::uint16_t length = 0;
        if (!GetNumber(length) || !GetBytes(length * bytes_per_unit, m_nameBytes))
            return false;
        name.resize(length);
        for (std::size_t at = 0; at < length; ++at)
        {
            name[at] = static_cast<char16_t>(m_nameBytes[bytes_per_unit * at] | m_nameBytes[bytes_per_unit * at + 1]
                                                                                    << bits_per_byte);
        }
        return true;
    }

private:
    bool Read(char * bytes, std::size_t count)
    {
        m_left -= static_cast<std::streamoff>(count);
        return static_cast<bool>(m_stream.read(bytes, static_cast<std::streamsize>(count)));
    }

    /// How many bytes there are still, as far as that can be known.
    std::size_t Believable() const { return m_left > 0 ? static_cast<std::size_t>(m_left) : first_block; }

    std::istream & m_stream;
    /// Not above 0 also for a stream that can't tell its length.
    std::streamoff m_left = 0;
    std::vector<std::uint8_t> m_nameBytes;
};

bool ReadRecord(FieldReader & reader, registry_entry & entry)
{
    std::uint32_t kind = 0;
    std::uint32_t length = 0;
    if (!reader.GetName(entry.name) || !reader.GetNumber(kind) || !reader.GetNumber(entry.value_type) ||
        !reader.GetNumber(length))
        return false;
    entry.kind = static_cast<entry_kind_t>(kind);
    return reader.GetBytes(length, entry.data);
}
} // namespace

settings_file_names settings_files(std::filesystem::path const & folder)
{
    std::string const base = base_name;
    return {folder / (base + saved_suffix + extension), folder / (base + extension),
            folder / (base + restored_suffix + extension)};
}

bool write_settings(std::ostream & stream, registry_entry_list const & list)
{
    stream.put(format_version);
    for (registry_entry const & entry : list)
    {
        if (!stream)
            return false;
        PutName(stream, entry.name);
        PutNumber(stream, static_cast<std::uint32_t>(entry.kind));
        PutNumber(stream, entry.value_type);
        PutNumber(stream, static_cast<std::uint32_t>(entry.data.size()));
        stream.write(reinterpret_cast<char const *>(entry.data.data()),
                     static_cast<std::streamsize>(entry.data.size()));
    }
    stream.flush();
    return stream.good();
}

bool read_settings(std::istream & stream, registry_entry_list & list)
{
    list.clear();
    char version = 0;
    // Formatted input, which skips white space: hosts expect that.
    if (!(stream >> std::skipws >> version) || version != format_version)
        return false;
    FieldReader reader(stream);
    for (;;)
    {
        registry_entry entry;
        if (!ReadRecord(reader, entry))
            return stream.eof();
        list.push_back(std::move(entry));
    }
}

bool write_settings_file(std::filesystem::path const & file, registry_entry_list const & list)
{
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    return stream.is_open() && write_settings(stream, list);
}

bool read_settings_file(std::filesystem::path const & file, registry_entry_list & list)
{
    list.clear();
    std::ifstream stream(file, std::ios::binary);
    return stream.is_open() && read_settings(stream, list);
}

bool export_registry_settings(SettingsTree & tree, settings_file_names const & files)
{
    registry_entry_list list;
    return read_registry_tree(tree, list) && write_settings_file(files.saved, list);
}

bool import_registry_settings(SettingsTree & tree, settings_file_names const & files)
{
    registry_entry_list list;
    if (!read_settings_file(files.plain, list))
        return false;
    std::error_code error;
    std::filesystem::rename(files.plain, files.restored, error);
    // The file has its other name before it is applied, as hosts expect: an import that fails is not tried again.
    return !error && write_registry_tree(tree, list);
}
} // namespace registry_settings
