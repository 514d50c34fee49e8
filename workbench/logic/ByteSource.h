#pragma once
// Where the bytes of a recording come from: a file, or memory.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>

namespace workbench
{

/// Bytes with random access. The size is taken once; a source that shrinks afterwards gives fewer bytes than asked for.
class ByteSource
{
public:
    virtual ~ByteSource() = default;

    /// The number of bytes.
    virtual std::uint64_t Size() const = 0;

    /// Copies bytes from `offset` on into `buffer` and gives how many there were, 0 beyond the end.
    virtual std::size_t Read(std::uint64_t offset, std::span<std::byte> buffer) = 0;
};

/// Bytes in memory. The memory is not owned and must outlive the source.
class MemoryByteSource : public ByteSource
{
public:
    explicit MemoryByteSource(std::span<std::byte const> bytes) : m_bytes(bytes) {}

    std::uint64_t Size() const override { return m_bytes.size(); }
    std::size_t Read(std::uint64_t offset, std::span<std::byte> buffer) override;

private:
    std::span<std::byte const> m_bytes;
};

/// The bytes of a file, which is read piece by piece. Others may write, rename and delete it meanwhile.
class FileByteSource : public ByteSource
{
public:
    /// Opens the file; null if it cannot be opened or is a folder.
    static std::unique_ptr<FileByteSource> Open(std::filesystem::path const & path);

    std::uint64_t Size() const override { return m_size; }
    std::size_t Read(std::uint64_t offset, std::span<std::byte> buffer) override;

private:
    struct Closer
    {
        void operator()(std::FILE * file) const { std::fclose(file); }
    };
    using File = std::unique_ptr<std::FILE, Closer>;

    FileByteSource(File file, std::uint64_t size) : m_file(std::move(file)), m_size(size) {}

    File m_file;
    std::uint64_t m_size;
};

} // namespace workbench
