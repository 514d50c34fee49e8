#include "logic/ByteSource.h"

#include <algorithm>
#include <cstring>
#include <system_error>

namespace workbench
{

std::size_t MemoryByteSource::Read(std::uint64_t offset, std::span<std::byte> buffer)
{
    if (offset >= m_bytes.size())
    {
        return 0;
    }
    auto const rest = m_bytes.subspan(static_cast<std::size_t>(offset));
    auto const count = std::min(rest.size(), buffer.size());
    if (count > 0)
    {
        std::memcpy(buffer.data(), rest.data(), count);
    }
    return count;
}

std::unique_ptr<FileByteSource> FileByteSource::Open(std::filesystem::path const & path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
    {
        return nullptr;
    }
    std::ifstream stream(path, std::ios::binary);
    if (!stream || !stream.seekg(0, std::ios::end))
    {
        return nullptr;
    }
    auto const end = stream.tellg();
    if (end < 0)
    {
        return nullptr;
    }
    return std::unique_ptr<FileByteSource>(new FileByteSource(std::move(stream), static_cast<std::uint64_t>(end)));
}

std::size_t FileByteSource::Read(std::uint64_t offset, std::span<std::byte> buffer)
{
    if (offset >= m_size || buffer.empty())
    {
        return 0;
    }
    auto const count = static_cast<std::size_t>(std::min<std::uint64_t>(m_size - offset, buffer.size()));
    m_stream.clear();
    if (!m_stream.seekg(static_cast<std::streamoff>(offset)))
    {
        return 0;
    }
    m_stream.read(reinterpret_cast<char *>(buffer.data()), static_cast<std::streamsize>(count));
    return static_cast<std::size_t>(m_stream.gcount());
}

} // namespace workbench
