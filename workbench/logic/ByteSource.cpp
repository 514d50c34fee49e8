#include "logic/ByteSource.h"

#include <algorithm>
#include <cstring>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#include <fcntl.h>
#include <io.h>
#endif

namespace workbench
{

namespace
{

std::FILE * OpenForReading(std::filesystem::path const & file)
{
#ifdef _WIN32
    constexpr DWORD all_sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE const handle =
        ::CreateFileW(file.c_str(), GENERIC_READ, all_sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
    {
        return nullptr;
    }
    int const descriptor = ::_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_RDONLY | _O_BINARY);
    if (descriptor < 0)
    {
        ::CloseHandle(handle);
        return nullptr;
    }
    std::FILE * const stream = ::_fdopen(descriptor, "rb");
    if (stream == nullptr)
    {
        ::_close(descriptor);
    }
    return stream;
#else
    return std::fopen(file.c_str(), "rb");
#endif
}

bool Seek(std::FILE * file, std::int64_t offset, int from)
{
#ifdef _WIN32
    return ::_fseeki64(file, offset, from) == 0;
#else
    return ::fseeko(file, static_cast<off_t>(offset), from) == 0;
#endif
}

std::int64_t Tell(std::FILE * file)
{
#ifdef _WIN32
    return ::_ftelli64(file);
#else
    return ::ftello(file);
#endif
}

} // namespace

std::size_t MemoryByteSource::Read(std::uint64_t offset, std::span<std::byte> buffer)
{
    if (offset >= m_bytes.size())
    {
        return 0;
    }
    auto const rest = m_bytes.subspan(static_cast<std::size_t>(offset));
    std::size_t const count = std::min(rest.size(), buffer.size());
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
    File file(OpenForReading(path));
    // What others change is seen at once, and pieces that are read are large.
    if (file)
    {
        std::setvbuf(file.get(), nullptr, _IONBF, 0);
    }
    if (!file || !Seek(file.get(), 0, SEEK_END))
    {
        return nullptr;
    }
    std::int64_t const end = Tell(file.get());
    if (end < 0)
    {
        return nullptr;
    }
    return std::unique_ptr<FileByteSource>(new FileByteSource(std::move(file), static_cast<std::uint64_t>(end)));
}

std::size_t FileByteSource::Read(std::uint64_t offset, std::span<std::byte> buffer)
{
    if (offset >= m_size || buffer.empty())
    {
        return 0;
    }
    auto const count = static_cast<std::size_t>(std::min<std::uint64_t>(m_size - offset, buffer.size()));
    if (!Seek(m_file.get(), static_cast<std::int64_t>(offset), SEEK_SET))
    {
        return 0;
    }
    return std::fread(buffer.data(), 1, count, m_file.get());
}

} // namespace workbench
