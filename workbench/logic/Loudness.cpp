#include "logic/Loudness.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace workbench
{

namespace
{

constexpr double offset = -0.691;        // what makes a sine of 997 Hz at full scale -3.01 LUFS
constexpr double absolute_gate = -70.0;  // LUFS
constexpr double relative_gate = -10.0;  // LU, to what passes the first gate
constexpr std::size_t steps_a_block = 4; // of 0.4 s, three quarters of which are the next one's too
constexpr double surround_weight = 1.41;
constexpr double silent = 1e-30; // a filter's memory below that is nothing but slow arithmetic

double WeightOf(std::size_t channel, std::size_t channels)
{
    switch (channels)
    {
    case 4:
        return channel < 2 ? 1.0 : surround_weight;
    case 5:
        return channel < 3 ? 1.0 : surround_weight;
    case 6:
        return channel == 3 ? 0.0 : channel < 3 ? 1.0 : surround_weight;
    default:
        return 1.0;
    }
}

double Loudness(double meanSquare)
{
    return offset + 10.0 * std::log10(meanSquare);
}

double MeanSquareOf(double loudness)
{
    return std::pow(10.0, (loudness - offset) / 10.0);
}

} // namespace

std::array<SecondOrderFilter, 2> LoudnessWeighting(std::uint32_t sampleRate)
{
    auto const warped = [sampleRate](double hertz) {
        return std::tan(std::numbers::pi * hertz / static_cast<double>(sampleRate));
    };

    constexpr double shelf_hertz = 1681.974450955533;
    constexpr double shelf_decibels = 3.999843853973347;
    constexpr double shelf_quality = 0.7071752369554196;
    constexpr double shelf_slope = 0.4996667741545416;
    double const shelf = warped(shelf_hertz);
    double const high = std::pow(10.0, shelf_decibels / 20.0);
    double const middle = std::pow(high, shelf_slope);
    double const shelfNorm = 1.0 + shelf / shelf_quality + shelf * shelf;
    SecondOrderFilter const head{
        (high + middle * shelf / shelf_quality + shelf * shelf) / shelfNorm, 2.0 * (shelf * shelf - high) / shelfNorm,
        (high - middle * shelf / shelf_quality + shelf * shelf) / shelfNorm, 2.0 * (shelf * shelf - 1.0) / shelfNorm,
        (1.0 - shelf / shelf_quality + shelf * shelf) / shelfNorm};

    constexpr double pass_hertz = 38.13547087602444;
    constexpr double pass_quality = 0.5003270373238773;
    double const pass = warped(pass_hertz);
    double const passNorm = 1.0 + pass / pass_quality + pass * pass;
    SecondOrderFilter const highPass{1.0, -2.0, 1.0, 2.0 * (pass * pass - 1.0) / passNorm,
                                     (1.0 - pass / pass_quality + pass * pass) / passNorm};
    return {head, highPass};
}

LoudnessMeter::LoudnessMeter(std::uint32_t sampleRate, std::size_t channels)
    : m_filters(LoudnessWeighting(std::max(sampleRate, least_rate))),
      m_stepFrames(sampleRate < least_rate ? 0 : (static_cast<std::size_t>(sampleRate) + 5) / 10)
{
    for (std::size_t channel = 0; channel < channels; ++channel)
    {
        m_channels.push_back({WeightOf(channel, channels), {}, 0.0});
    }
}

void LoudnessMeter::Add(std::span<double const> samples)
{
    if (m_stepFrames == 0 || m_channels.empty())
    {
        return;
    }
    std::size_t const channels = m_channels.size();
    std::size_t frames = samples.size() / channels;
    double const * from = samples.data();
    auto const [head, pass] = m_filters;
    while (frames > 0)
    {
        std::size_t const now = std::min(frames, m_stepFrames - m_framesInStep);
        for (std::size_t c = 0; c < channels; ++c)
        {
            Channel & channel = m_channels[c];
            if (channel.weight == 0.0)
            {
                continue;
            }
            auto [head1, head2] = channel.state[0];
            auto [pass1, pass2] = channel.state[1];
            double sum = 0.0;
            for (std::size_t i = 0; i < now; ++i)
            {
                double const sample = from[i * channels + c];
                double const weighted = head.b0 * sample + head1;
                head1 = head.b1 * sample - head.a1 * weighted + head2;
                head2 = head.b2 * sample - head.a2 * weighted;
                double const passed = pass.b0 * weighted + pass1;
                pass1 = pass.b1 * weighted - pass.a1 * passed + pass2;
                pass2 = pass.b2 * weighted - pass.a2 * passed;
                sum += passed * passed;
            }
            auto const kept = [](double value) { return std::abs(value) < silent ? 0.0 : value; };
            channel.state = {{{kept(head1), kept(head2)}, {kept(pass1), kept(pass2)}}};
            channel.sum += sum;
        }
        from += now * channels;
        frames -= now;
        m_framesInStep += now;
        if (m_framesInStep == m_stepFrames)
        {
            double sum = 0.0;
            for (Channel & channel : m_channels)
            {
                sum += channel.weight * channel.sum;
                channel.sum = 0.0;
            }
            m_steps.push_back(static_cast<float>(sum / static_cast<double>(m_stepFrames)));
            m_framesInStep = 0;
        }
    }
}

std::optional<double> LoudnessMeter::Result() const
{
    // The mean of the blocks above a gate.
    auto const gated = [this](double gate) {
        double sum = 0.0;
        std::size_t count = 0;
        for (std::size_t first = 0; first + steps_a_block <= m_steps.size(); ++first)
        {
            double block = 0.0;
            for (std::size_t step = first; step < first + steps_a_block; ++step)
            {
                block += static_cast<double>(m_steps[step]);
            }
            block /= static_cast<double>(steps_a_block);
            if (block > gate)
            {
                sum += block;
                ++count;
            }
        }
        return count > 0 ? sum / static_cast<double>(count) : 0.0;
    };
    double const audible = gated(MeanSquareOf(absolute_gate));
    if (!(audible > 0.0))
    {
        return std::nullopt;
    }
    return Loudness(gated(std::max(MeanSquareOf(absolute_gate), MeanSquareOf(Loudness(audible) + relative_gate))));
}

} // namespace workbench
