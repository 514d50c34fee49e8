#pragma once
// Reads RIFF/WAVE recordings: integer PCM of 8, 16, 24 and 32 bits, IEEE float of 32 and 64 bits, any channel count.

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "logic/ByteSource.h"

namespace workbench
{

/// Why a file is not a recording that can be shown.
enum class ReadFault
{
    cannot_be_opened, ///< missing, a folder, or access is refused
    not_wav,          ///< no RIFF/WAVE file
    big_endian,       ///< a RIFX file: WAVE with its numbers the other way round
    sixty_four_bit,   ///< an RF64 file: WAVE with 64-bit sizes
    cut_off,          ///< the file ends before its first sample
    unknown_format,   ///< the samples are coded in a way that is not read
    damaged_header,   ///< the fields of the header contradict each other, or a chunk is missing
    empty,            ///< there are no bytes or no samples
};

/// A fault and what belongs to it.
struct ReadProblem
{
    ReadFault fault = ReadFault::not_wav;
    std::uint16_t formatTag = 0;     ///< with `UnknownFormat`: the format tag of the header
    std::uint16_t bitsPerSample = 0; ///< with `UnknownFormat`: the sample width of the header

    /// The reason in the present language, without a full stop.
    std::wstring Text() const;

    bool operator==(ReadProblem const &) const = default;
};

/// How one sample is stored.
enum class SampleCoding
{
    unsigned_integer, ///< 8 bits, 128 is silence
    signed_integer,   ///< 16, 24 or 32 bits
    floating_point,   ///< 32 or 64 bits
};

/// What the header says about a recording.
struct RecordingInfo
{
    SampleCoding coding = SampleCoding::signed_integer;
    std::uint16_t channels = 0;
    std::uint16_t bitsPerSample = 0;   ///< the bits in use
    std::uint16_t bytesPerSample = 0;  ///< the bytes that one sample takes up
    std::uint32_t sampleRate = 0;      ///< frames a second
    std::uint64_t frames = 0;          ///< the frames that are there; one frame has a sample of each channel
    std::uint64_t announcedFrames = 0; ///< the frames that the header announces, more than `frames` in a cut-off file

    /// The file ends before its last announced sample.
    bool IsCutOff() const { return announcedFrames > frames; }

    bool operator==(RecordingInfo const &) const = default;
};

/// Reads one recording from front to end. It holds no more than one block of bytes in memory, whatever the file's size.
class WavReader
{
public:
    /// Reads the header. The source is kept for as long as the reader lives; null gives `CannotBeOpened`.
    static std::variant<WavReader, ReadProblem> Open(std::unique_ptr<ByteSource> source);

    /// What the header says.
    RecordingInfo const & Info() const { return m_info; }

    /// Reads the next frames into `samples`, channels interleaved, full scale at 1.0. Gives the number of whole frames;
    /// 0 at the end, or if not even one frame fits. A sample that is no number or further than `sample_limit` from
    /// zero is read as 0 and counted.
    std::size_t ReadFrames(std::span<double> samples);

    /// Goes on with that frame, or with the end if there are fewer. What lies there is read from the source again.
    void Seek(std::uint64_t frame);

    /// The number of samples read so far that were no usable numbers.
    std::uint64_t InvalidSamples() const { return m_invalidSamples; }

    /// The largest magnitude of a float sample that is taken for a measurement: 120 dB above full scale.
    static constexpr double sample_limit = 1e6;

    /// The number of bytes read from the source at once, except that one frame is read even if it is longer.
    static constexpr std::size_t block_bytes = 65536;

private:
    WavReader(std::unique_ptr<ByteSource> source, RecordingInfo const & info, std::uint64_t dataOffset);

    std::unique_ptr<ByteSource> m_source;
    RecordingInfo m_info;
    std::uint64_t m_dataOffset;
    std::uint64_t m_position;
    std::uint64_t m_framesLeft;
    std::uint64_t m_invalidSamples = 0;
    std::vector<std::byte> m_block;
};

} // namespace workbench
