// The WAV reader: sample formats, chunk layouts, and files that are broken in every way a file can be.

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

#include "logic/WavReader.h"
#include "workbench_WavBuilder.h"

namespace workbench
{

inline void PrintTo(ReadFault fault, std::ostream * out)
{
    *out << "fault " << static_cast<int>(fault);
}

} // namespace workbench

namespace
{

using namespace workbench;

std::variant<WavReader, ReadProblem> Open(wav::File const & file)
{
    return WavReader::Open(wav::Source(file.Content()));
}

struct Content
{
    RecordingInfo info;
    std::vector<double> samples;
    std::uint64_t invalid;
};

/// Reads everything in small portions; a file that cannot be read fails the test.
Content ReadAll(wav::File const & file, std::size_t framesAtOnce = 3)
{
    std::variant<WavReader, ReadProblem> opened = Open(file);
    if (!std::holds_alternative<WavReader>(opened))
    {
        ADD_FAILURE() << "not readable";
        return {};
    }
    auto & reader = std::get<WavReader>(opened);
    std::vector<double> all;
    std::vector<double> portion(framesAtOnce * reader.Info().channels);
    while (std::size_t const frames = reader.ReadFrames(portion))
    {
        all.insert(all.end(), portion.begin(),
                   portion.begin() + static_cast<std::ptrdiff_t>(frames * reader.Info().channels));
    }
    return {reader.Info(), all, reader.InvalidSamples()};
}

ReadProblem Problem(wav::Bytes bytes)
{
    std::variant<WavReader, ReadProblem> opened = WavReader::Open(wav::Source(std::move(bytes)));
    if (!std::holds_alternative<ReadProblem>(opened))
    {
        ADD_FAILURE() << "readable";
        return {};
    }
    return std::get<ReadProblem>(opened);
}

ReadFault Fault(wav::File const & file)
{
    return Problem(file.Content()).fault;
}

wav::Bytes Text(std::string_view text)
{
    wav::Bytes bytes;
    wav::PutText(bytes, text);
    return bytes;
}

wav::File Mono16(std::vector<std::int16_t> const & samples)
{
    return wav::File().Chunk("fmt ", wav::Format(1, 1, 8000, 2, 16)).Chunk("data", wav::Samples16(samples));
}

constexpr std::size_t data_body = 44; // where the samples begin in a file of Mono16

TEST(WavReader, ReadsEightBitSamplesAsUnsigned)
{
    wav::Bytes data;
    for (unsigned const b : {0u, 64u, 128u, 192u, 255u})
    {
        wav::Put(data, b, 1);
    }
    Content const content = ReadAll(wav::File().Chunk("fmt ", wav::Format(1, 1, 11025, 1, 8)).Chunk("data", data));
    EXPECT_EQ(content.samples, (std::vector<double>{-1.0, -0.5, 0.0, 0.5, 127.0 / 128.0}));
    EXPECT_EQ(content.info.coding, SampleCoding::unsigned_integer);
    EXPECT_EQ(content.info.sampleRate, 11025u);
    EXPECT_EQ(content.info.frames, 5u);
}

TEST(WavReader, ReadsSixteenBitSamples)
{
    Content const content = ReadAll(Mono16({-32768, -16384, -1, 0, 1, 32767}));
    EXPECT_EQ(content.samples, (std::vector<double>{-1.0, -0.5, -1.0 / 32768, 0.0, 1.0 / 32768, 32767.0 / 32768}));
    EXPECT_EQ(content.info.coding, SampleCoding::signed_integer);
    EXPECT_EQ(content.info.bitsPerSample, 16u);
}

TEST(WavReader, ReadsTwentyFourBitSamples)
{
    wav::Bytes data;
    for (int const s : {-8388608, -4194304, -1, 0, 1, 8388607})
    {
        wav::Put(data, static_cast<std::uint32_t>(s), 3);
    }
    Content const content = ReadAll(wav::File().Chunk("fmt ", wav::Format(1, 1, 96000, 3, 24)).Chunk("data", data));
    EXPECT_EQ(content.samples,
              (std::vector<double>{-1.0, -0.5, -1.0 / 8388608, 0.0, 1.0 / 8388608, 8388607.0 / 8388608}));
}

TEST(WavReader, ReadsThirtyTwoBitSamples)
{
    wav::Bytes data;
    for (std::uint32_t const s : {0x80000000u, 0xC0000000u, 0xFFFFFFFFu, 0u, 1u, 0x7FFFFFFFu})
    {
        wav::Put(data, s, 4);
    }
    Content const content = ReadAll(wav::File().Chunk("fmt ", wav::Format(1, 1, 48000, 4, 32)).Chunk("data", data));
    EXPECT_EQ(content.samples, (std::vector<double>{-1.0, -0.5, -1.0 / 2147483648.0, 0.0, 1.0 / 2147483648.0,
                                                    2147483647.0 / 2147483648.0}));
}

TEST(WavReader, ReadsFloatSamplesAboveFullScaleUnchanged)
{
    wav::Bytes data;
    for (float const s : {-1.5F, -0.25F, 0.0F, 1.0F, 2.0F})
    {
        wav::Put(data, std::bit_cast<std::uint32_t>(s), 4);
    }
    Content const content = ReadAll(wav::File().Chunk("fmt ", wav::Format(3, 1, 48000, 4, 32)).Chunk("data", data));
    EXPECT_EQ(content.samples, (std::vector<double>{-1.5, -0.25, 0.0, 1.0, 2.0}));
    EXPECT_EQ(content.info.coding, SampleCoding::floating_point);
    EXPECT_EQ(content.invalid, 0u);
}

TEST(WavReader, ReadsDoubleSamplesExactly)
{
    wav::Bytes data;
    for (double const s : {-0.1, 0.3, 1e-12})
    {
        wav::Put(data, std::bit_cast<std::uint64_t>(s), 8);
    }
    Content const content = ReadAll(wav::File().Chunk("fmt ", wav::Format(3, 1, 48000, 8, 64)).Chunk("data", data));
    EXPECT_EQ(content.samples, (std::vector<double>{-0.1, 0.3, 1e-12}));
}

TEST(WavReader, CountsSamplesThatAreNoUsableNumbersAndReadsThemAsSilence)
{
    wav::Bytes data;
    auto const infinity = std::numeric_limits<double>::infinity();
    for (double const s : {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity, 1.1e6, 1e6, -0.5})
    {
        wav::Put(data, std::bit_cast<std::uint64_t>(s), 8);
    }
    Content const content = ReadAll(wav::File().Chunk("fmt ", wav::Format(3, 1, 48000, 8, 64)).Chunk("data", data));
    EXPECT_EQ(content.samples, (std::vector<double>{0.0, 0.0, 0.0, 0.0, 1e6, -0.5}));
    EXPECT_EQ(content.invalid, 4u);
}

TEST(WavReader, KeepsChannelsInterleaved)
{
    Content const content = ReadAll(wav::File()
                                        .Chunk("fmt ", wav::Format(1, 3, 44100, 6, 16))
                                        .Chunk("data", wav::Samples16({8192, 16384, -16384, 0, -8192, -32768})));
    EXPECT_EQ(content.info.channels, 3u);
    EXPECT_EQ(content.info.frames, 2u);
    EXPECT_EQ(content.samples, (std::vector<double>{0.25, 0.5, -0.5, 0.0, -0.25, -1.0}));
}

TEST(WavReader, ReadsTheLargestChannelCountOfAHeader)
{
    constexpr unsigned channels = 65535;
    wav::Bytes data(std::size_t{channels} * 2, std::byte{128});
    data[channels - 1] = std::byte{255};
    Content const content =
        ReadAll(wav::File().Chunk("fmt ", wav::Format(1, channels, 8000, channels, 8)).Chunk("data", data), 1);
    ASSERT_EQ(content.info.frames, 2u);
    EXPECT_EQ(content.samples[channels - 1], 127.0 / 128.0);
    EXPECT_EQ(content.samples[channels], 0.0);
}

TEST(WavReader, ReadsExtensiblePcmWithItsContainerWidth)
{
    wav::Bytes data;
    wav::Put(data, 0x40000000u, 4);
    wav::Put(data, 0xC0000000u, 4);
    Content const content =
        ReadAll(wav::File().Chunk("fmt ", wav::Extensible(1, 2, 48000, 8, 32, 24)).Chunk("data", data));
    EXPECT_EQ(content.samples, (std::vector<double>{0.5, -0.5}));
    EXPECT_EQ(content.info.channels, 2u);
}

TEST(WavReader, ReadsExtensibleFloat)
{
    wav::Bytes data;
    wav::Put(data, std::bit_cast<std::uint32_t>(0.75F), 4);
    Content const content =
        ReadAll(wav::File().Chunk("fmt ", wav::Extensible(3, 1, 48000, 4, 32, 32)).Chunk("data", data));
    EXPECT_EQ(content.samples, (std::vector<double>{0.75}));
}

TEST(WavReader, TakesTwelveBitsInSixteenAsLeftAligned)
{
    Content const content = ReadAll(
        wav::File().Chunk("fmt ", wav::Format(1, 1, 8000, 2, 12)).Chunk("data", wav::Samples16({0x4000, -0x4000})));
    EXPECT_EQ(content.samples, (std::vector<double>{0.5, -0.5}));
    EXPECT_EQ(content.info.bitsPerSample, 12u);
    EXPECT_EQ(content.info.bytesPerSample, 2u);
}

TEST(WavReader, SkipsOtherChunksAndTheirPadding)
{
    Content const content = ReadAll(wav::File()
                                        .Chunk("JUNK", wav::Bytes(27))
                                        .Chunk("fmt ", wav::Format(1, 1, 8000, 2, 16))
                                        .Chunk("LIST", Text("INFOISFT\x03"))
                                        .Chunk("fact", wav::Bytes(4))
                                        .Chunk("data", wav::Samples16({16384}))
                                        .Chunk("id3 ", wav::Bytes(11)));
    EXPECT_EQ(content.samples, (std::vector<double>{0.5}));
    EXPECT_FALSE(content.info.IsCutOff());
}

TEST(WavReader, TakesTheFirstOfSeveralDataAndFormatChunks)
{
    Content const content = ReadAll(wav::File()
                                        .Chunk("fmt ", wav::Format(1, 1, 8000, 2, 16))
                                        .Chunk("fmt ", wav::Format(1, 1, 9999, 1, 8))
                                        .Chunk("data", wav::Samples16({16384}))
                                        .Chunk("data", wav::Samples16({1, 2, 3})));
    EXPECT_EQ(content.samples, (std::vector<double>{0.5}));
    EXPECT_EQ(content.info.sampleRate, 8000u);
}

TEST(WavReader, TakesTheFirstOfSeveralDataChunksBeforeTheFormat)
{
    Content const content = ReadAll(wav::File()
                                        .Chunk("data", wav::Samples16({16384}))
                                        .Chunk("data", wav::Samples16({1, 2, 3}))
                                        .Chunk("fmt ", wav::Format(1, 1, 8000, 2, 16)));
    EXPECT_EQ(content.samples, (std::vector<double>{0.5}));
}

TEST(WavReader, AcceptsTheDataBeforeTheFormat)
{
    Content const content =
        ReadAll(wav::File().Chunk("data", wav::Samples16({16384})).Chunk("fmt ", wav::Format(1, 1, 8000, 2, 16)));
    EXPECT_EQ(content.samples, (std::vector<double>{0.5}));
}

TEST(WavReader, AcceptsAFormatChunkLongerThanItsFields)
{
    wav::Bytes format = wav::Format(1, 1, 8000, 2, 16);
    format.resize(50);
    EXPECT_EQ(ReadAll(wav::File().Chunk("fmt ", format).Chunk("data", wav::Samples16({16384}))).samples,
              (std::vector<double>{0.5}));
}

TEST(WavReader, LeavesOutAPartOfAFrameAtTheEnd)
{
    wav::Bytes data = wav::Samples16({16384, -16384});
    wav::Put(data, 0x7F, 1);
    Content const content = ReadAll(wav::File().Chunk("fmt ", wav::Format(1, 1, 8000, 2, 16)).Chunk("data", data));
    EXPECT_EQ(content.samples, (std::vector<double>{0.5, -0.5}));
    EXPECT_FALSE(content.info.IsCutOff());
}

TEST(WavReader, TakesAnUnknownDataSizeUpToTheEndOfTheFile)
{
    Content const content = ReadAll(Mono16({16384, -16384}).LastChunkSize(0xFFFFFFFF));
    EXPECT_EQ(content.samples, (std::vector<double>{0.5, -0.5}));
    EXPECT_FALSE(content.info.IsCutOff());
}

TEST(WavReader, TakesADataSizeThatWasNeverWrittenUpToTheEndOfTheFile)
{
    for (std::uint32_t const riffSize : {0u, 36u, 0xFFFFFFFFu})
    {
        Content const content = ReadAll(Mono16({16384, -16384}).LastChunkSize(0).Patch32(4, riffSize));
        EXPECT_EQ(content.samples, (std::vector<double>{0.5, -0.5})) << riffSize;
        EXPECT_FALSE(content.info.IsCutOff()) << riffSize;
    }
}

TEST(WavReader, TakesADataSizeOfZeroBeforeAnotherChunkAsEmpty)
{
    EXPECT_EQ(Fault(Mono16({}).Chunk("LIST", wav::Bytes(10))), ReadFault::empty);
}

TEST(WavReader, GivesWhatIsThereOfACutOffRecordingAndSaysSo)
{
    Content const content = ReadAll(Mono16({16384, -16384, 1, 2}).Cut(data_body + 5));
    EXPECT_EQ(content.samples, (std::vector<double>{0.5, -0.5}));
    EXPECT_TRUE(content.info.IsCutOff());
    EXPECT_EQ(content.info.frames, 2u);
    EXPECT_EQ(content.info.announcedFrames, 4u);
}

TEST(WavReader, GivesWhatIsThereIfTheDataSizeIsFarTooLarge)
{
    Content const content = ReadAll(Mono16({16384, -16384}).LastChunkSize(0xFFFFFFFE));
    EXPECT_EQ(content.samples, (std::vector<double>{0.5, -0.5}));
    EXPECT_EQ(content.info.announcedFrames, 0x7FFFFFFFu);
    EXPECT_TRUE(content.info.IsCutOff());
}

TEST(WavReader, NoticesAFileThatBecomesShorterWhileItIsRead)
{
    class ShrinkingSource : public wav::OwningSource
    {
    public:
        using OwningSource::OwningSource;
        std::size_t Read(std::uint64_t offset, std::span<std::byte> buffer) override
        {
            auto const end = std::uint64_t{data_body} + 5;
            std::size_t const rest = offset < end ? end - offset : 0;
            return OwningSource::Read(offset, buffer.first(std::min<std::size_t>(rest, buffer.size())));
        }
    };
    auto opened = WavReader::Open(std::make_unique<ShrinkingSource>(Mono16({16384, -16384, 1, 2, 3}).Content()));
    auto & reader = std::get<WavReader>(opened);
    EXPECT_EQ(reader.Info().frames, 5u);
    std::vector<double> samples(1);
    EXPECT_EQ(reader.ReadFrames(samples), 1u);
    samples.resize(10);
    EXPECT_EQ(reader.ReadFrames(samples), 1u);
    EXPECT_EQ(samples[0], -0.5);
    EXPECT_EQ(reader.ReadFrames(samples), 0u);
    EXPECT_EQ(reader.Info().frames, 2u);
    EXPECT_TRUE(reader.Info().IsCutOff());
}

TEST(WavReader, ReadsNoFrameIntoABufferThatHoldsNone)
{
    std::variant<WavReader, ReadProblem> opened =
        Open(wav::File().Chunk("fmt ", wav::Format(1, 2, 8000, 4, 16)).Chunk("data", wav::Samples16({1, 2})));
    auto & reader = std::get<WavReader>(opened);
    std::vector<double> samples(3);
    EXPECT_EQ(reader.ReadFrames(std::span(samples).first(1)), 0u);
    EXPECT_EQ(reader.ReadFrames(samples), 1u);
}

TEST(WavReader, ReadsLongRecordingsInBlocks)
{
    std::vector<std::int16_t> samples(200'000);
    for (std::size_t i = 0; i < samples.size(); ++i)
    {
        samples[i] = static_cast<std::int16_t>(i * 7919);
    }
    auto source = std::make_unique<wav::OwningSource>(Mono16(samples).Content());
    wav::OwningSource const & watched = *source;
    std::variant<WavReader, ReadProblem> opened = WavReader::Open(std::move(source));
    auto & reader = std::get<WavReader>(opened);
    std::vector<double> read(samples.size());
    EXPECT_EQ(reader.ReadFrames(read), samples.size());
    EXPECT_EQ(watched.largestRead, WavReader::block_bytes);
    for (std::size_t i = 0; i < samples.size(); ++i)
    {
        ASSERT_EQ(read[i], samples[i] / 32768.0) << i;
    }
}

TEST(WavReader, ReportsASourceThatIsMissing)
{
    std::variant<WavReader, ReadProblem> const opened = WavReader::Open(nullptr);
    EXPECT_EQ(std::get<ReadProblem>(opened).fault, ReadFault::cannot_be_opened);
}

TEST(WavReader, ReportsAFileWithoutBytesAsEmpty)
{
    EXPECT_EQ(Problem({}).fault, ReadFault::empty);
}

TEST(WavReader, ReportsOtherFilesAsNotWav)
{
    EXPECT_EQ(Problem(Text("R")).fault, ReadFault::not_wav);
    EXPECT_EQ(Problem(Text("Hello, this is a letter to somebody.")).fault, ReadFault::not_wav);
    EXPECT_EQ(Problem(Text("RIFF\x04\x01\x01\x01"
                           "AVI LIST and more"))
                  .fault,
              ReadFault::not_wav);
}

TEST(WavReader, NamesTheOtherKindsOfWav)
{
    EXPECT_EQ(Problem(Text("RIFX and so on")).fault, ReadFault::big_endian);
    EXPECT_EQ(Problem(Text("RF64 and so on")).fault, ReadFault::sixty_four_bit);
}

TEST(WavReader, ReportsAFileThatEndsAnywhereBeforeItsFirstSampleAsCutOff)
{
    wav::File const whole = Mono16({1, 2, 3});
    for (std::size_t size = 4; size < data_body + 2; ++size)
    {
        EXPECT_EQ(Fault(wav::File(whole).Cut(size)), ReadFault::cut_off) << size;
    }
}

TEST(WavReader, ReportsAChunkThatGoesOnBehindTheEndAsCutOff)
{
    EXPECT_EQ(Fault(wav::File().Chunk("JUNK", wav::Bytes(8)).LastChunkSize(1000)), ReadFault::cut_off);
}

TEST(WavReader, ReportsAPartOfAChunkHeaderAtTheEndAsCutOff)
{
    auto file = wav::File().Chunk("fmt ", wav::Format(1, 1, 8000, 2, 16)).Chunk("data", wav::Samples16({1}));
    std::size_t const end = data_body - 8;
    EXPECT_EQ(Fault(file.Cut(end + 3).Patch32(4, static_cast<std::uint32_t>(end + 3 - 8))), ReadFault::cut_off);
}

TEST(WavReader, ReportsADamagedFormatAlsoInACutOffFile)
{
    EXPECT_EQ(Fault(wav::File().Chunk("fmt ", wav::Bytes(14)).Chunk("LIST", wav::Bytes(4)).LastChunkSize(1000)),
              ReadFault::damaged_header);
}

TEST(WavReader, ReportsUnknownFormatsWithTheirTag)
{
    ReadProblem const alaw =
        Problem(wav::File().Chunk("fmt ", wav::Format(6, 1, 8000, 1, 8)).Chunk("data", wav::Bytes(4)).Content());
    EXPECT_EQ(alaw.fault, ReadFault::unknown_format);
    EXPECT_EQ(alaw.formatTag, 6u);
    EXPECT_EQ(alaw.Text(), L"unknown format (tag 0x0006)");

    ReadProblem const extensible = Problem(
        wav::File().Chunk("fmt ", wav::Extensible(0x92, 1, 48000, 2, 16, 16)).Chunk("data", wav::Bytes(4)).Content());
    EXPECT_EQ(extensible.formatTag, 0x92u);
}

TEST(WavReader, ReportsAnExtensibleFormatOfAnotherFamilyAsUnknown)
{
    wav::Bytes format = wav::Extensible(1, 1, 48000, 2, 16, 16);
    format.back() = std::byte{0};
    ReadProblem const problem = Problem(wav::File().Chunk("fmt ", format).Chunk("data", wav::Bytes(4)).Content());
    EXPECT_EQ(problem.fault, ReadFault::unknown_format);
    EXPECT_EQ(problem.formatTag, 0xFFFEu);
}

TEST(WavReader, ReportsSampleWidthsThatItDoesNotRead)
{
    ReadProblem const half =
        Problem(wav::File().Chunk("fmt ", wav::Format(3, 1, 8000, 2, 16)).Chunk("data", wav::Bytes(4)).Content());
    EXPECT_EQ(half.Text(), L"unknown format (16-bit float)");
    ReadProblem const wide =
        Problem(wav::File().Chunk("fmt ", wav::Format(1, 1, 8000, 8, 64)).Chunk("data", wav::Bytes(8)).Content());
    EXPECT_EQ(wide.Text(), L"unknown format (64-bit PCM)");
}

TEST(WavReader, ReportsHeadersThatContradictThemselvesAsDamaged)
{
    auto const fault = [](wav::Bytes const & format) {
        return Fault(wav::File().Chunk("fmt ", format).Chunk("data", wav::Bytes(16)));
    };
    EXPECT_EQ(fault(wav::Format(1, 0, 8000, 2, 16)), ReadFault::damaged_header) << "no channels";
    EXPECT_EQ(fault(wav::Format(1, 1, 0, 2, 16)), ReadFault::damaged_header) << "no sample rate";
    EXPECT_EQ(fault(wav::Format(1, 1, 8000, 0, 16)), ReadFault::damaged_header) << "no frame size";
    EXPECT_EQ(fault(wav::Format(1, 2, 8000, 3, 16)), ReadFault::damaged_header) << "frame size no multiple";
    EXPECT_EQ(fault(wav::Format(1, 1, 8000, 1, 16)), ReadFault::damaged_header) << "more bits than bytes";
    EXPECT_EQ(fault(wav::Format(1, 1, 8000, 2, 0)), ReadFault::damaged_header) << "no bits";
    EXPECT_EQ(fault(wav::Format(3, 1, 8000, 4, 64)), ReadFault::damaged_header) << "double in four bytes";
    EXPECT_EQ(fault(wav::Bytes(14)), ReadFault::damaged_header) << "format chunk too short";
    wav::Bytes extensible = wav::Extensible(1, 1, 8000, 2, 16, 16);
    extensible.resize(24);
    EXPECT_EQ(fault(extensible), ReadFault::damaged_header) << "extensible format chunk too short";
}

TEST(WavReader, ReportsAWholeFileWithoutFormatOrDataAsDamaged)
{
    EXPECT_EQ(Fault(wav::File()), ReadFault::damaged_header);
    EXPECT_EQ(Fault(wav::File().Chunk("fmt ", wav::Format(1, 1, 8000, 2, 16))), ReadFault::damaged_header);
    EXPECT_EQ(Fault(wav::File().Chunk("data", wav::Bytes(4))), ReadFault::damaged_header);
}

TEST(WavReader, GivesUpOnAFileOfNothingButChunks)
{
    wav::File file;
    for (int i = 0; i < 10'001; ++i)
    {
        file.Chunk("JUNK", {});
    }
    file.Chunk("fmt ", wav::Format(1, 1, 8000, 2, 16)).Chunk("data", wav::Samples16({1}));
    EXPECT_EQ(Fault(file), ReadFault::damaged_header);
}

TEST(WavReader, ReportsAWholeFileWithoutSamplesAsEmpty)
{
    EXPECT_EQ(Fault(Mono16({})), ReadFault::empty);
    EXPECT_EQ(Fault(wav::File().Chunk("fmt ", wav::Format(1, 2, 8000, 4, 16)).Chunk("data", wav::Bytes(3))),
              ReadFault::empty);
}

TEST(WavReader, SaysInEnglishWhatIsWrong)
{
    auto const text = [](ReadFault fault) { return ReadProblem{fault}.Text(); };
    EXPECT_EQ(text(ReadFault::cannot_be_opened), L"cannot be opened");
    EXPECT_EQ(text(ReadFault::not_wav), L"not a WAV file");
    EXPECT_EQ(text(ReadFault::big_endian), L"big-endian WAV (RIFX)");
    EXPECT_EQ(text(ReadFault::sixty_four_bit), L"64-bit WAV (RF64)");
    EXPECT_EQ(text(ReadFault::cut_off), L"cut off before the first sample");
    EXPECT_EQ(text(ReadFault::damaged_header), L"damaged header");
    EXPECT_EQ(text(ReadFault::empty), L"empty, no samples");
}

} // namespace
