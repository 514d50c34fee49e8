#include "logic/ToneMeter.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <map>
#include <mutex>
#include <numbers>

#include "logic/Fft.h"

namespace workbench
{

namespace
{

constexpr std::size_t least_size = 256;
constexpr std::size_t most_size = 16384;
constexpr std::uint64_t most_pieces = 24;
constexpr std::size_t lobe = 5; // bins to each side that a tone spreads over
constexpr int most_harmonic = 10;

/// The Blackman-Harris window of four terms: everything but the tone's own lobe is 92 dB below it.
float WindowAt(std::size_t place, std::size_t size)
{
    double const angle = 2.0 * std::numbers::pi * static_cast<double>(place) / static_cast<double>(size);
    return static_cast<float>(0.35875 - 0.48829 * std::cos(angle) + 0.14128 * std::cos(2.0 * angle) -
                              0.01168 * std::cos(3.0 * angle));
}

} // namespace

struct ToneMeter::Tables
{
    explicit Tables(std::size_t size) : transform(size)
    {
        for (std::size_t i = 0; i < size; ++i)
        {
            window.push_back(WindowAt(i, size));
        }
    }

    Fft transform;
    std::vector<float> window;
};

// Making them takes longer than measuring a short recording.
ToneMeter::Tables const & ToneMeter::TablesOf(std::size_t size)
{
    static std::mutex s_mutex;
    static std::map<std::size_t, Tables const> s_tables;
    std::lock_guard const lock(s_mutex);
    return s_tables.try_emplace(size, size).first->second;
}

ToneMeter::ToneMeter(std::uint32_t sampleRate, std::size_t channels, std::uint64_t frames)
    : m_rate(sampleRate),
      m_channels(std::max<std::size_t>(channels, 1)),
      m_size(frames < least_size || sampleRate == 0
                 ? 0
                 : std::bit_floor(static_cast<std::size_t>(std::min<std::uint64_t>(frames, most_size))))
{
    if (m_size == 0)
    {
        return;
    }
    m_tables = &TablesOf(m_size);
    m_imaginary.resize(m_size);
    m_power.resize(m_size / 2);
    m_piece.reserve(m_size);
    std::uint64_t const pieces = std::min(frames / m_size, most_pieces);
    m_stride = pieces > 1 ? (frames - m_size) / (pieces - 1) : m_size;
}

void ToneMeter::Add(std::span<double const> samples)
{
    if (m_size == 0)
    {
        return;
    }
    std::uint64_t const frames = samples.size() / m_channels;
    std::uint64_t frame = 0;
    while (frame < frames)
    {
        if (m_position >= m_size)
        {
            std::uint64_t const skipped = std::min(frames - frame, m_stride - m_position);
            frame += skipped;
            m_position += skipped;
            if (m_position >= m_stride)
            {
                m_position = 0;
            }
            continue;
        }
        std::uint64_t const now = std::min<std::uint64_t>(frames - frame, m_size - m_position);
        for (std::uint64_t i = frame; i < frame + now; ++i)
        {
            m_piece.push_back(static_cast<float>(samples[static_cast<std::size_t>(i) * m_channels]));
        }
        frame += now;
        m_position += now;
        if (m_position == m_size)
        {
            AddPiece();
            if (m_position >= m_stride)
            {
                m_position = 0;
            }
        }
    }
}

void ToneMeter::AddPiece()
{
    // A constant part would hide low tones behind its lobe.
    double sum = 0.0;
    for (float const sample : m_piece)
    {
        sum += static_cast<double>(sample);
    }
    auto const mean = static_cast<float>(sum / static_cast<double>(m_size));
    for (std::size_t i = 0; i < m_size; ++i)
    {
        m_piece[i] = (m_piece[i] - mean) * m_tables->window[i];
    }
    std::fill(m_imaginary.begin(), m_imaginary.end(), 0.0F);
    m_tables->transform.Transform(m_piece, m_imaginary);
    for (std::size_t bin = 0; bin < m_power.size(); ++bin)
    {
        auto const real = static_cast<double>(m_piece[bin]);
        auto const imaginary = static_cast<double>(m_imaginary[bin]);
        m_power[bin] += real * real + imaginary * imaginary;
    }
    m_piece.clear();
}

ToneMeasures ToneMeter::Result() const
{
    ToneMeasures measures;
    auto const strongest = std::max_element(m_power.begin(), m_power.end());
    if (strongest == m_power.end() || !(*strongest > 0.0) || !std::isfinite(*strongest))
    {
        return measures;
    }
    auto const peak = static_cast<std::size_t>(strongest - m_power.begin());
    // In the logarithm a lobe of this window is a parabola, nearly.
    double place = static_cast<double>(peak);
    if (peak > 0 && peak + 1 < m_power.size() && m_power[peak - 1] > 0.0 && m_power[peak + 1] > 0.0)
    {
        double const before = std::log(m_power[peak - 1]);
        double const at = std::log(m_power[peak]);
        double const after = std::log(m_power[peak + 1]);
        double const bend = before - 2.0 * at + after;
        place += bend < 0.0 ? 0.5 * (before - after) / bend : 0.0;
    }
    double const binWidth = m_rate / static_cast<double>(m_size);
    measures.frequency = place * binWidth;

    auto const powerAround = [this](double bin) {
        auto const middle = static_cast<std::size_t>(std::lround(bin));
        std::size_t const first = middle > lobe ? middle - lobe : 0;
        std::size_t const end = std::min(middle + lobe + 1, m_power.size());
        double power = 0.0;
        for (std::size_t i = first; i < end; ++i)
        {
            power += m_power[i];
        }
        return power;
    };
    double all = 0.0;
    for (double const power : m_power)
    {
        all += power;
    }
    double const tone = powerAround(place);
    // Below that the lobes of harmonics run into each other.
    bool const apart = place >= 2.0 * static_cast<double>(lobe) + 1.0;
    double const highest = static_cast<double>(m_power.size() - lobe - 1);
    if (!apart || tone <= 0.5 * all || 2.0 * place > highest)
    {
        return measures;
    }
    double harmonics = 0.0;
    for (int harmonic = 2; harmonic <= most_harmonic && harmonic * place <= highest; ++harmonic)
    {
        harmonics += powerAround(harmonic * place);
    }
    measures.distortion = std::sqrt(harmonics / tone);
    return measures;
}

} // namespace workbench
