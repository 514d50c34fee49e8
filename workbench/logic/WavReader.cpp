#include "logic/WavReader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <cwchar>
#include <optional>

#include "logic/Texts.h"

namespace workbench
{

namespace
{

constexpr std::uint16_t tag_pcm = 0x0001;
constexpr std::uint16_t tag_float = 0x0003;
constexpr std::uint16_t tag_extensible = 0xFFFE;

constexpr std::size_t riff_header_bytes = 12;
constexpr std::size_t chunk_header_bytes = 8;
constexpr std::size_t format_bytes = 16;
constexpr std::size_t extensible_format_bytes = 40;
constexpr std::size_t sub_format_offset = 24;
constexpr std::uint32_t unknown_size = 0xFFFFFFFF;

// A file with more chunks than this before its samples is none that a recorder wrote.
constexpr int maximum_chunks = 10000;

// Bytes 2 to 15 of the sub-format identifier when its first two are a plain format tag.
constexpr std::array<std::uint8_t, 14> sub_format_tail = {0x00, 0x00, 0x00, 0x00, 0x10, 0x00, 0x80,
                                                          0x00, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71};

std::uint16_t LittleEndian16(std::byte const * p)
{
    return static_cast<std::uint16_t>(std::to_integer<unsigned>(p[0]) | (std::to_integer<unsigned>(p[1]) << 8));
}

std::uint32_t LittleEndian32(std::byte const * p)
{
    return LittleEndian16(p) | (static_cast<std::uint32_t>(LittleEndian16(p + 2)) << 16);
}

std::uint64_t LittleEndian64(std::byte const * p)
{
    return LittleEndian32(p) | (static_cast<std::uint64_t>(LittleEndian32(p + 4)) << 32);
}

bool HasId(std::byte const * p, char const (&id)[5])
{
    return std::memcmp(p, id, 4) == 0;
}

struct Format
{
    std::uint16_t tag = 0;
    std::uint16_t channels = 0;
    std::uint32_t sampleRate = 0;
    std::uint16_t frameBytes = 0;
    std::uint16_t bitsPerSample = 0;
};

/// Reads the format chunk; empty if it is too short for what it says it is.
std::optional<Format> ParseFormat(std::span<std::byte const> chunk)
{
    if (chunk.size() < format_bytes)
    {
        return std::nullopt;
    }
    Format format;
    format.tag = LittleEndian16(&chunk[0]);
    format.channels = LittleEndian16(&chunk[2]);
    format.sampleRate = LittleEndian32(&chunk[4]);
    format.frameBytes = LittleEndian16(&chunk[12]);
    format.bitsPerSample = LittleEndian16(&chunk[14]);
    if (format.tag == tag_extensible)
    {
        if (chunk.size() < extensible_format_bytes)
        {
            return std::nullopt;
        }
        std::byte const * const subFormat = &chunk[sub_format_offset];
        if (std::memcmp(subFormat + 2, sub_format_tail.data(), sub_format_tail.size()) == 0)
        {
            format.tag = LittleEndian16(subFormat);
        }
    }
    return format;
}

std::variant<RecordingInfo, ReadProblem> CheckFormat(Format const & format)
{
    if (format.tag != tag_pcm && format.tag != tag_float)
    {
        return ReadProblem{ReadFault::unknown_format, format.tag, format.bitsPerSample};
    }
    if (format.channels == 0 || format.sampleRate == 0 || format.frameBytes == 0 ||
        format.frameBytes % format.channels != 0)
    {
        return ReadProblem{ReadFault::damaged_header};
    }
    RecordingInfo info;
    info.channels = format.channels;
    info.sampleRate = format.sampleRate;
    info.bitsPerSample = format.bitsPerSample;
    info.bytesPerSample = static_cast<std::uint16_t>(format.frameBytes / format.channels);
    unsigned int const containerBits = 8u * info.bytesPerSample;
    if (format.tag == tag_float)
    {
        if (format.bitsPerSample != 32 && format.bitsPerSample != 64)
        {
            return ReadProblem{ReadFault::unknown_format, format.tag, format.bitsPerSample};
        }
        if (format.bitsPerSample != containerBits)
        {
            return ReadProblem{ReadFault::damaged_header};
        }
        info.coding = SampleCoding::floating_point;
        return info;
    }
    if (format.bitsPerSample == 0 || format.bitsPerSample > containerBits)
    {
        return ReadProblem{ReadFault::damaged_header};
    }
    if (info.bytesPerSample > 4)
    {
        return ReadProblem{ReadFault::unknown_format, format.tag, format.bitsPerSample};
    }
    info.coding = info.bytesPerSample == 1 ? SampleCoding::unsigned_integer : SampleCoding::signed_integer;
    return info;
}

/// One sample as it stands in the file, full scale at 1.0.
double DecodeSample(std::byte const * p, RecordingInfo const & info)
{
    switch (info.coding)
    {
    case SampleCoding::unsigned_integer:
        return (std::to_integer<int>(p[0]) - 128) / 128.0;
    case SampleCoding::floating_point:
        return info.bytesPerSample == 4 ? static_cast<double>(std::bit_cast<float>(LittleEndian32(p)))
                                        : std::bit_cast<double>(LittleEndian64(p));
    case SampleCoding::signed_integer:
        break;
    }
    // Shorter samples go into the upper bits, so that all widths share one full scale.
    std::uint32_t bits = 0;
    for (int i = 0; i < info.bytesPerSample; ++i)
    {
        bits |= std::to_integer<std::uint32_t>(p[i]) << (8 * (4 - info.bytesPerSample + i));
    }
    return std::bit_cast<std::int32_t>(bits) / 2147483648.0;
}

/// Where the chunks that matter are.
struct Chunks
{
    std::optional<Format> format;
    bool formatTooShort = false;
    std::optional<std::uint64_t> dataOffset;
    std::uint64_t announcedBytes = 0;
    bool ranOut = false; ///< a chunk, or the header of one, goes on behind the end of the file
};

Chunks FindChunks(ByteSource & source, std::uint32_t riffSize)
{
    Chunks found;
    std::uint64_t const fileSize = source.Size();
    std::uint64_t offset = riff_header_bytes;
    for (int i = 0; i < maximum_chunks && !(found.dataOffset && (found.format || found.formatTooShort)); ++i)
    {
        std::array<std::byte, chunk_header_bytes> header;
        std::size_t const headerBytes = source.Read(offset, header);
        if (headerBytes < header.size())
        {
            // A file that its own header calls complete has just no more chunks.
            found.ranOut = headerBytes > 0 || riffSize + std::uint64_t{chunk_header_bytes} > fileSize;
            break;
        }
        std::uint32_t const size = LittleEndian32(&header[4]);
        std::size_t const body = offset + chunk_header_bytes;
        std::size_t const rest = fileSize - std::min(body, fileSize);
        if (HasId(header.data(), "data") && !found.dataOffset)
        {
            // Recorders that cannot go back to their header leave one of these sizes.
            bool const openEnded = size == unknown_size ||
                                   (size == 0 && (riffSize == unknown_size || riffSize + chunk_header_bytes <= body));
            found.dataOffset = body;
            found.announcedBytes = openEnded ? rest : size;
            if (openEnded)
            {
                break;
            }
        }
        else if (HasId(header.data(), "fmt ") && !found.format)
        {
            std::array<std::byte, extensible_format_bytes> bytes;
            auto const wanted = std::min<std::size_t>(size, bytes.size());
            std::size_t const got = source.Read(body, std::span(bytes).first(wanted));
            if (got < wanted)
            {
                found.ranOut = true;
                break;
            }
            found.format = ParseFormat(std::span<std::byte const>(bytes).first(got));
            found.formatTooShort = !found.format;
        }
        if (size > rest)
        {
            found.ranOut = true;
            break;
        }
        offset = body + size + (size & 1);
    }
    return found;
}

} // namespace

std::wstring ReadProblem::Text() const
{
    switch (fault)
    {
    case ReadFault::cannot_be_opened:
        return workbench::Text(L"cannot be opened");
    case ReadFault::not_wav:
        return workbench::Text(L"not a WAV file");
    case ReadFault::big_endian:
        return workbench::Text(L"big-endian WAV (RIFX)");
    case ReadFault::sixty_four_bit:
        return workbench::Text(L"64-bit WAV (RF64)");
    case ReadFault::cut_off:
        return workbench::Text(L"cut off before the first sample");
    case ReadFault::damaged_header:
        return workbench::Text(L"damaged header");
    case ReadFault::empty:
        return workbench::Text(L"empty, no samples");
    case ReadFault::unknown_format:
        break;
    }
    wchar_t text[64];
    if (formatTag == tag_pcm || formatTag == tag_float)
    {
        std::swprintf(text, std::size(text), workbench::Text(L"unknown format (%u-bit %ls)"),
                      static_cast<unsigned>(bitsPerSample),
                      formatTag == tag_pcm ? workbench::Text(L"PCM") : workbench::Text(L"float"));
    }
    else
    {
        std::swprintf(text, std::size(text), workbench::Text(L"unknown format (tag 0x%04X)"),
                      static_cast<unsigned>(formatTag));
    }
    return text;
}

std::variant<WavReader, ReadProblem> WavReader::Open(std::unique_ptr<ByteSource> source)
{
    if (!source)
    {
        return ReadProblem{ReadFault::cannot_be_opened};
    }
    if (source->Size() == 0)
    {
        return ReadProblem{ReadFault::empty};
    }
    std::array<std::byte, riff_header_bytes> header{};
    std::size_t const headerBytes = source->Read(0, header);
    if (headerBytes < 4 || !HasId(header.data(), "RIFF"))
    {
        if (headerBytes >= 4 && HasId(header.data(), "RIFX"))
        {
            return ReadProblem{ReadFault::big_endian};
        }
        if (headerBytes >= 4 && HasId(header.data(), "RF64"))
        {
            return ReadProblem{ReadFault::sixty_four_bit};
        }
        return ReadProblem{ReadFault::not_wav};
    }
    if (headerBytes < header.size())
    {
        return ReadProblem{ReadFault::cut_off};
    }
    if (!HasId(&header[8], "WAVE"))
    {
        return ReadProblem{ReadFault::not_wav};
    }
    Chunks const chunks = FindChunks(*source, LittleEndian32(&header[4]));
    if (!chunks.format || !chunks.dataOffset)
    {
        return ReadProblem{chunks.ranOut && !chunks.formatTooShort ? ReadFault::cut_off : ReadFault::damaged_header};
    }
    auto const checked = CheckFormat(*chunks.format);
    if (auto const * const problem = std::get_if<ReadProblem>(&checked))
    {
        return *problem;
    }
    auto info = std::get<RecordingInfo>(checked);
    auto const frameBytes = std::uint64_t{info.channels} * info.bytesPerSample;
    std::size_t const present = source->Size() - std::min(*chunks.dataOffset, source->Size());
    info.announcedFrames = chunks.announcedBytes / frameBytes;
    info.frames = std::min(chunks.announcedBytes, present) / frameBytes;
    if (info.frames == 0)
    {
        return ReadProblem{info.announcedFrames > 0 ? ReadFault::cut_off : ReadFault::empty};
    }
    return WavReader(std::move(source), info, *chunks.dataOffset);
}

WavReader::WavReader(std::unique_ptr<ByteSource> source, RecordingInfo const & info, std::uint64_t dataOffset)
    : m_source(std::move(source)),
      m_info(info),
      m_dataOffset(dataOffset),
      m_position(dataOffset),
      m_framesLeft(info.frames)
{
}

void WavReader::Seek(std::uint64_t frame)
{
    std::uint64_t const first = std::min(frame, m_info.frames);
    m_position = m_dataOffset + first * m_info.channels * m_info.bytesPerSample;
    m_framesLeft = m_info.frames - first;
}

std::size_t WavReader::ReadFrames(std::span<double> samples)
{
    std::size_t const channels = m_info.channels;
    std::size_t const frameBytes = channels * m_info.bytesPerSample;
    auto const wanted = static_cast<std::size_t>(std::min<std::uint64_t>(samples.size() / channels, m_framesLeft));
    auto const framesPerBlock = std::max<std::size_t>(block_bytes / frameBytes, 1);
    std::size_t done = 0;
    while (done < wanted)
    {
        std::size_t const frames = std::min(wanted - done, framesPerBlock);
        m_block.resize(frames * frameBytes);
        std::size_t const gotFrames = m_source->Read(m_position, m_block) / frameBytes;
        for (std::size_t i = 0; i < gotFrames * channels; ++i)
        {
            double value = DecodeSample(&m_block[i * m_info.bytesPerSample], m_info);
            if (!(std::abs(value) <= sample_limit))
            {
                value = 0.0;
                ++m_invalidSamples;
            }
            samples[done * channels + i] = value;
        }
        done += gotFrames;
        m_position += gotFrames * frameBytes;
        if (gotFrames < frames)
        {
            // The file became shorter since it was opened: what was read so far is all there is.
            m_info.frames -= m_framesLeft - done;
            m_framesLeft = done;
            break;
        }
    }
    m_framesLeft -= done;
    return done;
}

} // namespace workbench
