#pragma once
// What a recording's spectrum says: its strongest frequency and the harmonic distortion of a tone.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace workbench
{

/// Of the first channel.
struct ToneMeasures
{
    /// The strongest frequency in Hz; nothing for silence and for less than 256 samples.
    std::optional<double> frequency;
    /// The harmonics' RMS value beside the tone's, 0.01 for 1 %. Nothing where no tone holds more than half of the
    /// power, and where a tone has no harmonic below half the rate.
    std::optional<double> distortion;

    bool operator==(ToneMeasures const &) const = default;
};

/// Takes all samples of a recording. Looks at up to 24 pieces of it, of up to 16,384 samples each, spread over its
/// length, so that it costs little beside the reading.
class ToneMeter
{
public:
    /// The number of frames is that which will be added, or about that.
    ToneMeter(std::uint32_t sampleRate, std::size_t channels, std::uint64_t frames);

    /// Adds whole frames: a sample of each channel.
    void Add(std::span<double const> samples);

    ToneMeasures Result() const;

private:
    struct Tables;

    static Tables const & TablesOf(std::size_t size);
    void AddPiece();

    double m_rate;
    std::size_t m_channels;
    std::size_t m_size;                ///< samples a piece; 0 where there are too few for one
    Tables const * m_tables = nullptr; ///< shared by all meters of that size
    std::vector<float> m_piece;
    std::vector<float> m_imaginary;
    std::vector<double> m_power;
    std::uint64_t m_stride = 0;   ///< from one piece's first frame to the next one's
    std::uint64_t m_position = 0; ///< of the next frame behind the present piece's start
};

} // namespace workbench
