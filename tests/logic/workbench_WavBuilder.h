#pragma once
// Puts WAV files together byte by byte, right and wrong ones.

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "logic/ByteSource.h"

namespace wav
{

using Bytes = std::vector<std::byte>;

inline void Put(Bytes & bytes, std::uint64_t value, int count)
{
    for (int i = 0; i < count; ++i)
    {
        bytes.push_back(static_cast<std::byte>(value >> (8 * i)));
    }
}

inline void PutText(Bytes & bytes, std::string_view text)
{
    for (char const c : text)
    {
        bytes.push_back(static_cast<std::byte>(c));
    }
}

/// The body of a format chunk of 16 bytes.
inline Bytes Format(unsigned tag, unsigned channels, unsigned rate, unsigned frameBytes, unsigned bits)
{
    Bytes bytes;
    Put(bytes, tag, 2);
    Put(bytes, channels, 2);
    Put(bytes, rate, 4);
    Put(bytes, std::uint64_t{rate} * frameBytes, 4);
    Put(bytes, frameBytes, 2);
    Put(bytes, bits, 2);
    return bytes;
}

/// The body of an extensible format chunk of 40 bytes.
inline Bytes Extensible(unsigned subTag, unsigned channels, unsigned rate, unsigned frameBytes, unsigned bits,
                        unsigned validBits)
{
    Bytes bytes = Format(0xFFFE, channels, rate, frameBytes, bits);
    Put(bytes, 22, 2);
    Put(bytes, validBits, 2);
    Put(bytes, 3, 4);
    Put(bytes, subTag, 2);
    for (unsigned const b : {0x00, 0x00, 0x00, 0x00, 0x10, 0x00, 0x80, 0x00, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71})
    {
        Put(bytes, b, 1);
    }
    return bytes;
}

/// A whole file. Sizes are right until `Patch32` makes them wrong.
class File
{
public:
    File()
    {
        PutText(m_bytes, "RIFF");
        Put(m_bytes, 4, 4);
        PutText(m_bytes, "WAVE");
    }

    /// Adds a chunk, padded to an even size.
    File & Chunk(std::string_view id, Bytes const & body)
    {
        PutText(m_bytes, id);
        Put(m_bytes, body.size(), 4);
        m_lastBody = m_bytes.size();
        m_bytes.insert(m_bytes.end(), body.begin(), body.end());
        if (body.size() % 2 == 1)
        {
            Put(m_bytes, 0, 1);
        }
        return Patch32(4, static_cast<std::uint32_t>(m_bytes.size() - 8));
    }

    /// Writes another size into the header of the chunk added last.
    File & LastChunkSize(std::uint32_t size) { return Patch32(m_lastBody - 4, size); }

    File & Patch32(std::size_t offset, std::uint32_t value)
    {
        for (std::size_t i = 0; i < 4; ++i)
        {
            m_bytes[offset + i] = static_cast<std::byte>(value >> (8 * i));
        }
        return *this;
    }

    /// Cuts the file off at so many bytes.
    File & Cut(std::size_t size)
    {
        m_bytes.resize(size);
        return *this;
    }

    Bytes const & Content() const { return m_bytes; }

private:
    Bytes m_bytes;
    std::size_t m_lastBody = 0;
};

/// A source that owns its bytes.
class OwningSource : public workbench::ByteSource
{
public:
    explicit OwningSource(Bytes bytes) : m_bytes(std::move(bytes)) {}

    std::uint64_t Size() const override { return m_bytes.size(); }
    std::size_t Read(std::uint64_t offset, std::span<std::byte> buffer) override
    {
        largestRead = std::max(largestRead, buffer.size());
        return workbench::MemoryByteSource(m_bytes).Read(offset, buffer);
    }

    std::size_t largestRead = 0;

private:
    Bytes m_bytes;
};

inline std::unique_ptr<workbench::ByteSource> Source(Bytes bytes)
{
    return std::make_unique<OwningSource>(std::move(bytes));
}

/// 16-bit samples as the body of a data chunk.
inline Bytes Samples16(std::vector<std::int16_t> const & samples)
{
    Bytes bytes;
    for (short const s : samples)
    {
        Put(bytes, static_cast<std::uint16_t>(s), 2);
    }
    return bytes;
}

} // namespace wav
