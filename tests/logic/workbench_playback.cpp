// What an audio device gets of a recording.

#include <gtest/gtest.h>

#include <vector>

#include "logic/PlaybackStream.h"
#include "logic/Player.h"
#include "workbench_WavBuilder.h"

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
    wav::Bytes const bytes = Recording(1, samples);
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
    wav::Bytes const bytes = Recording(3, {1, 2, 3, 11, 12, 13, 21, 22, 23});
    auto stream = PlaybackStream::Open(wav::Source(bytes), {});
    ASSERT_TRUE(stream);
    EXPECT_EQ(stream->Channels(), 2U);
    EXPECT_EQ(ReadAll(*stream, 100), (Samples{1, 2, 11, 12, 21, 22}));
}

TEST(PlaybackStream, OfAStretchGivesThatAlone)
{
    wav::Bytes const bytes = Recording(1, {0, 1, 2, 3, 4, 5, 6, 7});
    auto stream = PlaybackStream::Open(wav::Source(bytes), {2, 5});
    ASSERT_TRUE(stream);
    EXPECT_EQ(ReadAll(*stream, 2), (Samples{2, 3, 4}));
    stream = PlaybackStream::Open(wav::Source(bytes), {6, 100});
    ASSERT_TRUE(stream);
    EXPECT_EQ(stream->Stretch(), (FrameRange{6, 8}));
}

TEST(PlaybackStream, LoopsWithoutAGap)
{
    wav::Bytes const bytes = Recording(1, {0, 1, 2, 3, 4});
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
    wav::Bytes const bytes = Recording(1, Samples(100));
    auto stream = PlaybackStream::Open(wav::Source(bytes), {10, 20});
    ASSERT_TRUE(stream);
    EXPECT_EQ(stream->FrameAfter(0), 10U);
    EXPECT_EQ(stream->FrameAfter(9), 19U);
    EXPECT_EQ(stream->FrameAfter(25), 19U);
    stream = PlaybackStream::Open(wav::Source(bytes), {10, 20});
    ASSERT_TRUE(stream);
    stream->SetLoop(true);
    Samples buffer(28);
    ASSERT_EQ(stream->Read(buffer), 28U);
    EXPECT_EQ(stream->FrameAfter(9), 19U);
    EXPECT_EQ(stream->FrameAfter(10), 10U);
    EXPECT_EQ(stream->FrameAfter(25), 15U);
    // Without the loop from now on, the pass that is under way is the last one.
    stream->SetLoop(false);
    EXPECT_EQ(stream->Read(buffer), 2U);
    EXPECT_EQ(stream->FrameAfter(29), 19U);
    EXPECT_EQ(stream->FrameAfter(35), 19U);
}

TEST(PlaybackStream, LimitsWhatTheGainTakesBeyondFullScale)
{
    wav::Bytes const bytes = Recording(1, {100, -100, 20000, -20000});
    auto stream = PlaybackStream::Open(wav::Source(bytes), {});
    ASSERT_TRUE(stream);
    stream->SetGain(2.0);
    EXPECT_EQ(ReadAll(*stream, 8), (Samples{200, -200, 32767, -32768}));
}

TEST(PlaybackStream, ThereIsNoneOfNothing)
{
    EXPECT_FALSE(PlaybackStream::Open(std::unique_ptr<ByteSource>(), {}));
    EXPECT_FALSE(PlaybackStream::Open(std::filesystem::path("no such recording.wav"), {}));
    wav::Bytes const bytes = Recording(1, {1, 2, 3});
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
    wav::Bytes const bytes = Recording(1, {1, 2, 3, 4, 5, 6});
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

/// Plays when it is told to, block by block.
class FakeDevice : public AudioDevice
{
public:
    struct State
    {
        bool there = true;
        bool open = false;
        bool paused = false;
        Samples heard;
        std::vector<Samples> waiting;
        std::uint32_t rate = 0;
        std::size_t channels = 0;

        /// Has so many blocks been heard.
        void Play(std::size_t blocks)
        {
            for (; blocks > 0 && !waiting.empty() && !paused; --blocks)
            {
                heard.insert(heard.end(), waiting.front().begin(), waiting.front().end());
                waiting.erase(waiting.begin());
            }
        }
    };

    explicit FakeDevice(State & state) : m_state(state) {}
    ~FakeDevice() override { m_state.open = false; }

    bool Open(std::uint32_t sampleRate, std::size_t channels) override
    {
        m_state.rate = sampleRate;
        m_state.channels = channels;
        m_state.open = m_state.there;
        return m_state.there;
    }
    bool HasRoom() const override { return m_state.waiting.size() < 3; }
    void Write(std::span<std::int16_t const> samples) override
    {
        m_state.waiting.emplace_back(samples.begin(), samples.end());
    }
    bool IsDone() const override { return m_state.waiting.empty(); }
    std::uint64_t FramesHeard() const override { return m_state.heard.size() / m_state.channels; }
    void Pause(bool paused) override { m_state.paused = paused; }

private:
    State & m_state;
};

class PlayerTest : public testing::Test
{
protected:
    /// A ramp of 10,000 frames.
    PlayerTest()
    {
        for (int i = 0; i < 10000; ++i)
            m_samples.push_back(static_cast<std::int16_t>(i));
        m_bytes = Recording(1, m_samples);
    }

    PlayStart Play(FrameRange const & stretch) { return m_player.Play(wav::Source(m_bytes), stretch); }

    Samples m_samples;
    wav::Bytes m_bytes;
    FakeDevice::State m_device;
    Player m_player{[this] { return std::make_unique<FakeDevice>(m_device); }};
};

TEST_F(PlayerTest, PlaysFromTheFirstToTheLastAndEnds)
{
    ASSERT_EQ(Play({}), PlayStart::playing);
    EXPECT_EQ(m_device.rate, 8000U);
    EXPECT_TRUE(m_player.IsPlaying());
    EXPECT_EQ(m_player.Position(), 0U);
    for (int i = 0; i < 100 && m_player.IsPlaying(); ++i)
    {
        m_device.Play(1);
        EXPECT_EQ(m_player.Position().value_or(9999), std::min<std::uint64_t>(m_device.heard.size(), 9999));
        m_player.Poll();
    }
    EXPECT_EQ(m_device.heard, m_samples);
    EXPECT_FALSE(m_player.IsPlaying());
    EXPECT_FALSE(m_device.open);
    EXPECT_FALSE(m_player.Position());
}

TEST_F(PlayerTest, PausesAndGoesOn)
{
    ASSERT_EQ(Play({100, 9000}), PlayStart::playing);
    m_device.Play(1);
    m_player.Poll();
    m_player.Pause(true);
    EXPECT_TRUE(m_player.IsPaused());
    auto const heard = m_device.heard.size();
    m_device.Play(5);
    m_player.Poll();
    EXPECT_EQ(m_device.heard.size(), heard);
    EXPECT_TRUE(m_player.IsPlaying());
    m_player.Pause(false);
    for (int i = 0; i < 100 && m_player.IsPlaying(); ++i)
    {
        m_device.Play(1);
        m_player.Poll();
    }
    EXPECT_EQ(m_device.heard, Samples(m_samples.begin() + 100, m_samples.begin() + 9000));
}

TEST_F(PlayerTest, LoopsUntilItIsStopped)
{
    m_player.SetLoop(true);
    ASSERT_EQ(Play({0, 1000}), PlayStart::playing);
    for (int i = 0; i < 50; ++i)
    {
        m_device.Play(1);
        m_player.Poll();
        ASSERT_LT(m_player.Position().value_or(9999), 1000U);
    }
    EXPECT_TRUE(m_player.IsPlaying());
    EXPECT_GT(m_device.heard.size(), 1000U);
    m_player.Stop();
    EXPECT_FALSE(m_player.IsPlaying());
    EXPECT_FALSE(m_device.open);
}

TEST_F(PlayerTest, WithoutADeviceSaysSo)
{
    m_device.there = false;
    EXPECT_EQ(Play({}), PlayStart::no_device);
    EXPECT_FALSE(m_player.IsPlaying());
    Player none([] { return std::unique_ptr<AudioDevice>(); });
    EXPECT_EQ(none.Play(wav::Source(m_bytes), {}), PlayStart::no_device);
}

TEST_F(PlayerTest, AnUnreadableRecordingIsNotPlayedAndTheFormerEnds)
{
    ASSERT_EQ(Play({}), PlayStart::playing);
    EXPECT_EQ(m_player.Play(std::filesystem::path("no such recording.wav"), {}), PlayStart::unreadable);
    EXPECT_FALSE(m_player.IsPlaying());
    m_player.Poll();
    m_player.Pause(true);
    m_player.Stop();
}

TEST_F(PlayerTest, GainCountsFromTheNextBlockOn)
{
    m_player.SetGain(2.0);
    ASSERT_EQ(Play({0, 10}), PlayStart::playing);
    m_device.Play(1);
    EXPECT_EQ(m_device.heard, (Samples{0, 2, 4, 6, 8, 10, 12, 14, 16, 18}));
}

} // namespace
