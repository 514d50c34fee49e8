// What an audio device gets of a recording.

#include "logic/PlaybackStream.h"
#include "workbench_WavBuilder.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

using namespace workbench;
using Samples = std::vector<std::int16_t>;

wav::Bytes Recording(unsigned channels, Samples const & samples)
{
    return wav::File()
        .Chunk("fmt ", wav::Format(1, channels, 8000, 2 * channels, 16))
        .Chunk("data", wav::Samples16(samples))
        .Content();
}

Samples ReadAll(PlaybackStream & stream, std::size_t room)
{
    Samples all;
    for (;;)
    {
        Samples buffer(room);
        std::size_t const frames = stream.Read(buffer);
        buffer.resize(frames * stream.Channels());
        all.insert(all.end(), buffer.begin(), buffer.end());
        if (frames < room / stream.Channels())
            return all;
    }
}

TEST(PlaybackStream, GivesTheSamplesAsTheyAre)
{
    Samples const samples = {0, 1, -1, 32767, -32768, 12345};
    auto const bytes = Recording(1, samples);
    auto stream = PlaybackStream::Open(wav::Source(bytes), {});
    ASSERT_TRUE(stream);
    EXPECT_EQ(stream->SampleRate(), 8000U);
    EXPECT_EQ(stream->Channels(), 1U);
    EXPECT_EQ(stream->Stretch(), (FrameRange{0, 6}));
    EXPECT_EQ(ReadAll(*stream, 4), samples);
    Samples more(4);
    EXPECT_EQ(stream->Read(more), 0U);
}

TEST(PlaybackStream, GivesTheFirstTwoOfMoreChannels)
{
    auto const bytes = Recording(3, {1, 2, 3, 11, 12, 13, 21, 22, 23});
    auto stream = PlaybackStream::Open(wav::Source(bytes), {});
    ASSERT_TRUE(stream);
    EXPECT_EQ(stream->Channels(), 2U);
    EXPECT_EQ(ReadAll(*stream, 100), (Samples{1, 2, 11, 12, 21, 22}));
}

TEST(PlaybackStream, OfAStretchGivesThatAlone)
{
    auto const bytes = Recording(1, {0, 1, 2, 3, 4, 5, 6, 7});
    auto stream = PlaybackStream::Open(wav::Source(bytes), {2, 5});
    ASSERT_TRUE(stream);
    EXPECT_EQ(ReadAll(*stream, 2), (Samples{2, 3, 4}));
    stream = PlaybackStream::Open(wav::Source(bytes), {6, 100});
    ASSERT_TRUE(stream);
    EXPECT_EQ(stream->Stretch(), (FrameRange{6, 8}));
}

TEST(PlaybackStream, LoopsWithoutAGap)
{
    auto const bytes = Recording(1, {0, 1, 2, 3, 4});
    auto stream = PlaybackStream::Open(wav::Source(bytes), {1, 4});
    ASSERT_TRUE(stream);
    stream->SetLoop(true);
    Samples buffer(8);
    ASSERT_EQ(stream->Read(buffer), 8U);
    EXPECT_EQ(buffer, (Samples{1, 2, 3, 1, 2, 3, 1, 2}));
    stream->SetLoop(false);
    ASSERT_EQ(stream->Read(buffer), 1U);
    EXPECT_EQ(buffer[0], 3);
}

TEST(PlaybackStream, TellsWhatIsHeard)
{
    auto const bytes = Recording(1, Samples(100));
    auto stream = PlaybackStream::Open(wav::Source(bytes), {10, 20});
    ASSERT_TRUE(stream);
    EXPECT_EQ(stream->FrameAfter(0), 10U);
    EXPECT_EQ(stream->FrameAfter(9), 19U);
    EXPECT_EQ(stream->FrameAfter(25), 19U);
    stream->SetLoop(true);
    EXPECT_EQ(stream->FrameAfter(25), 15U);
}

TEST(PlaybackStream, LimitsWhatTheGainTakesBeyondFullScale)
{
    auto const bytes = Recording(1, {100, -100, 20000, -20000});
    auto stream = PlaybackStream::Open(wav::Source(bytes), {});
    ASSERT_TRUE(stream);
    stream->SetGain(2.0);
    EXPECT_EQ(ReadAll(*stream, 8), (Samples{200, -200, 32767, -32768}));
}

TEST(PlaybackStream, ThereIsNoneOfNothing)
{
    EXPECT_FALSE(PlaybackStream::Open(std::unique_ptr<ByteSource>(), {}));
    EXPECT_FALSE(PlaybackStream::Open(std::filesystem::path("no such recording.wav"), {}));
    auto const bytes = Recording(1, {1, 2, 3});
    EXPECT_FALSE(PlaybackStream::Open(wav::Source(bytes), {5, 9}));
}

/// A source that loses its end after it was opened.
class Shrinking : public ByteSource
{
public:
    Shrinking(wav::Bytes const & bytes, std::uint64_t & size) : m_source(bytes), m_size(size) {}
    std::uint64_t Size() const override { return m_source.Size(); }
    std::size_t Read(std::uint64_t offset, std::span<std::byte> buffer) override
    {
        std::uint64_t const room = m_size - std::min(m_size, offset);
        return m_source.Read(offset,
                             buffer.first(static_cast<std::size_t>(std::min<std::uint64_t>(room, buffer.size()))));
    }

private:
    MemoryByteSource m_source;
    std::uint64_t & m_size;
};

TEST(PlaybackStream, AFileThatShrinksEndsOrLoopsWhatIsLeft)
{
    auto const bytes = Recording(1, {1, 2, 3, 4, 5, 6});
    std::uint64_t size = bytes.size();
    auto stream = PlaybackStream::Open(std::make_unique<Shrinking>(bytes, size), {});
    ASSERT_TRUE(stream);
    size -= 6;
    EXPECT_EQ(ReadAll(*stream, 4), (Samples{1, 2, 3}));
    stream = PlaybackStream::Open(std::make_unique<Shrinking>(bytes, size), {});
    if (stream)
    {
        stream->SetLoop(true);
        size = 0;
        Samples buffer(100);
        EXPECT_EQ(stream->Read(buffer), 0U) << "a loop of nothing ends";
    }
}

} // namespace
