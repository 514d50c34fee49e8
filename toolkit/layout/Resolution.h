#pragma once
// Lengths in pixels at a resolution in dots an inch. Whatever a control of the module measures in pixels of its own is
// said at 96 and scaled here, once. Internal to the module.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace resolution
{
/// What lengths are said at.
constexpr unsigned int usual = 96;
constexpr unsigned int least = 48;
constexpr unsigned int greatest = 960;

/// Whether controls take it.
constexpr bool IsServed(unsigned int dpi)
{
    return dpi >= least && dpi <= greatest;
}

/// A length at one resolution as it is at another, rounded to the nearest pixel, a half away from zero. From and to
/// the same it is itself.
constexpr int Scaled(int pixels, unsigned int dpi, unsigned int from = usual)
{
    std::int64_t const product = std::int64_t{pixels} * dpi;
    std::int64_t const half = from / 2;
    std::int64_t const rounded = (product + (product < 0 ? -half : half)) / from;
    return static_cast<int>(
        std::clamp<std::int64_t>(rounded, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

/// The same in fractions of a pixel.
constexpr float Scaled(float pixels, unsigned int dpi)
{
    return dpi == usual ? pixels : pixels * static_cast<float>(dpi) / static_cast<float>(usual);
}

/// The width of a line of that many pixels: never none.
constexpr int LineWidth(int pixels, unsigned int dpi)
{
    return std::max(Scaled(pixels, dpi), 1);
}

/// Lengths that follow a resolution. Each is worked out from what somebody gave it last, at the resolution of that
/// time, so that it is the same again when the resolution is, however often that changes.
class ScaledLengths
{
public:
    /// The lengths as they are. dpi: what they were scaled to last.
    void Note(std::vector<int> const & present, unsigned int dpi)
    {
        m_lengths.resize(present.size());
        for (std::size_t i = 0; i < present.size(); ++i)
        {
            if (m_lengths[i].from == 0 || (m_lengths[i].shown != present[i] && m_lengths[i].former != present[i]))
                m_lengths[i] = {present[i], dpi, present[i], present[i]};
        }
    }
    std::size_t Count() const { return m_lengths.size(); }
    /// What the length becomes, which is noted.
    int Take(std::size_t index, unsigned int dpi)
    {
        int const length = Wish(index, dpi);
        Settle(index);
        return length;
    }
    /// The same where the length becomes so only later: until it is settled, the former one is nobody's gift either.
    int Wish(std::size_t index, unsigned int dpi)
    {
        Length & length = m_lengths[index];
        length.former = length.shown;
        length.shown = Scaled(length.given, dpi, length.from);
        return length.shown;
    }
    void Settle(std::size_t index) { m_lengths[index].former = m_lengths[index].shown; }
    /// Another length takes that place: it has been given at that resolution.
    void Forget() { m_lengths.clear(); }

private:
    struct Length
    {
        int given = 0;
        /// The resolution of that; 0 for none yet.
        unsigned int from = 0;
        int shown = 0;
        /// What may be there instead as long as that is on its way; else the same.
        int former = 0;
    };
    std::vector<Length> m_lengths;
};
} // namespace resolution
