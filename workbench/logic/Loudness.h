#pragma once
// The loudness of a programme as Recommendation ITU-R BS.1770 defines it.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace workbench
{

/// One second-order filter of the weighting: y = b0 x + b1 x' + b2 x'' - a1 y' - a2 y''.
struct SecondOrderFilter
{
    double b0;
    double b1;
    double b2;
    double a1;
    double a2;
};

/// The two filters of the weighting curve K, one after the other: what the head does, and what low tones lose. At
/// 48,000 Hz they are those that the Recommendation prints; for another rate they follow from the same curve.
std::array<SecondOrderFilter, 2> LoudnessWeighting(std::uint32_t sampleRate);

/// Takes all samples of a recording and gives its integrated loudness. Channels are taken for those of the usual
/// orders: left, right, centre, low tones (which do not count), left and right surround (which count 1.41 times); of
/// four, the last two are surround; of more than six all count alike.
class LoudnessMeter
{
public:
    /// Below that rate, in Hz, the weighting cannot be made.
    static constexpr std::uint32_t least_rate = 4000;

    LoudnessMeter(std::uint32_t sampleRate, std::size_t channels);

    /// Adds whole frames: a sample of each channel, full scale at 1.0.
    void Add(std::span<double const> samples);

    /// In LUFS. Nothing for less than 0.4 seconds, for silence and for rates below `least_rate`.
    std::optional<double> Result() const;

private:
    struct Channel
    {
        double weight;
        std::array<std::array<double, 2>, 2> state; ///< of each filter
        double sum;                                 ///< of the weighted squares in the present step
    };

    std::array<SecondOrderFilter, 2> m_filters;
    std::vector<Channel> m_channels;
    std::size_t m_stepFrames; ///< a tenth of a second
    std::size_t m_framesInStep = 0;
    std::vector<float> m_steps; ///< mean square of each step, over all channels
};

} // namespace workbench
