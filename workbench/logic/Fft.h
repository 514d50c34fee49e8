#pragma once
// The discrete Fourier transform of a power of two of complex numbers.

#include <cstddef>
#include <span>
#include <vector>

namespace workbench
{

/// The transform of one size. Its tables are computed once; transforming changes nothing in them.
class Fft
{
public:
    /// The size is rounded up to a power of two, at least 2.
    explicit Fft(std::size_t size);

    std::size_t Size() const { return m_order.size(); }

    /// Transforms in place, without scaling: entry k becomes the sum over n of x[n] exp(-2 pi i k n / size). Both parts
    /// have `Size()` numbers; with any other length nothing is done.
    void Transform(std::span<float> real, std::span<float> imaginary) const;

private:
    std::vector<std::size_t> m_order; ///< the place of each number before the first stage: its bits reversed
    std::vector<float> m_cosines;     ///< of all stages, one behind the other: 1, 2, 4, ... numbers
    std::vector<float> m_sines;
};

} // namespace workbench
