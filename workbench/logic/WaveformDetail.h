#pragma once
// The waveform of one recording at any zoom, from its overview down to the single sample.

#include <atomic>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include "logic/RecordingAnalysis.h"
#include "logic/TimeWindow.h"
#include "logic/Waveform.h"

namespace workbench
{

/// Gives the columns of any stretch. Wide stretches come from the recording's overview, narrow ones are read from its
/// file; for those between a finer overview is made on a thread of its own. Where the file is gone or has changed, the
/// overview has to do. All operations are for one thread, the owner's.
class WaveformDetail
{
public:
    /// The most frames that are read for one picture.
    static constexpr std::uint64_t most_read = std::uint64_t{1} << 19;

    /// The most buckets of the finer overview, of all lanes together.
    static constexpr std::size_t most_buckets = std::size_t{1} << 21;

    /// An empty path means that there is nothing but the overview. `notify` is called on a thread of the object's own
    /// when the finer overview is there, and must not call the object.
    WaveformDetail(std::shared_ptr<RecordingAnalysis const> analysis, std::filesystem::path path,
                   std::function<void()> notify = {});

    /// Gives up what is being made and waits for the thread's end.
    ~WaveformDetail();

    WaveformDetail(WaveformDetail const &) = delete;
    WaveformDetail & operator=(WaveformDetail const &) = delete;

    /// For each lane, least and greatest sample of each of `width` columns of a stretch; each column has one frame at
    /// least. The first call that needs the finer overview starts it.
    std::vector<std::vector<MinMax>> Columns(FrameRange const & wanted, std::size_t width);

    /// The greatest amplitude of all lanes in a short stretch, exactly where the file can be read; 0 for an empty one.
    double Amplitude(FrameRange const & wanted);

    /// Whether the finer overview is being made.
    bool IsRefining() const { return m_thread.joinable() && !m_done; }

    /// The frames that the last call of `Columns` may have widened a column by, less one: 1 means that it was exact.
    std::uint64_t Coarseness() const { return m_coarseness; }

private:
    /// A stretch of samples from the file.
    struct Block
    {
        FrameRange range;
        std::vector<float> samples; ///< lanes interleaved
    };

    void Refine();
    bool OpenFile();
    bool Read(FrameRange const & range);
    std::vector<std::vector<MinMax>> FromBlock(FrameRange const & range, std::size_t width) const;

    std::shared_ptr<RecordingAnalysis const> m_analysis;
    std::filesystem::path m_path;
    std::function<void()> m_notify;
    std::optional<WavReader> m_reader;
    bool m_unreadable = false;
    Block m_block;
    std::uint64_t m_coarseness = 1;
    Waveform m_finer; ///< written by the thread before m_done is set
    std::atomic<bool> m_done = false;
    std::atomic<bool> m_stop = false;
    std::thread m_thread;
};

} // namespace workbench
