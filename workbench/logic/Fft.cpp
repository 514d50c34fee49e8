#include "logic/Fft.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>
#include <utility>

namespace workbench
{

namespace
{

/// The butterflies of a pair of halves. Plain pointers to four different places let the compiler use wide registers.
void CombineHalves(float * __restrict firstReal, float * __restrict firstImaginary, float * __restrict secondReal,
                   float * __restrict secondImaginary, float const * __restrict cosines, float const * __restrict sines,
                   std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
    {
        float const real = secondReal[i] * cosines[i] - secondImaginary[i] * sines[i];
        float const imaginary = secondReal[i] * sines[i] + secondImaginary[i] * cosines[i];
        secondReal[i] = firstReal[i] - real;
        secondImaginary[i] = firstImaginary[i] - imaginary;
        firstReal[i] += real;
        firstImaginary[i] += imaginary;
    }
}

} // namespace

Fft::Fft(std::size_t size)
{
    auto const rounded = std::bit_ceil(std::max<std::size_t>(size, 2));
    auto const bits = std::countr_zero(rounded);
    m_order.resize(rounded);
    for (std::size_t i = 1; i < rounded; ++i)
    {
        m_order[i] = m_order[i / 2] / 2 + (i % 2 << (bits - 1));
    }
    for (std::size_t half = 1; half < rounded; half *= 2)
    {
        for (std::size_t i = 0; i < half; ++i)
        {
            auto const angle = -std::numbers::pi * static_cast<double>(i) / static_cast<double>(half);
            m_cosines.push_back(static_cast<float>(std::cos(angle)));
            m_sines.push_back(static_cast<float>(std::sin(angle)));
        }
    }
}

void Fft::Transform(std::span<float> real, std::span<float> imaginary) const
{
    std::size_t const size = Size();
    if (real.size() != size || imaginary.size() != size)
    {
        return;
    }
    for (std::size_t i = 0; i < size; ++i)
    {
        if (i < m_order[i])
        {
            std::swap(real[i], real[m_order[i]]);
            std::swap(imaginary[i], imaginary[m_order[i]]);
        }
    }
    for (std::size_t half = 1; half < size; half *= 2)
    {
        float const * const cosines = m_cosines.data() + half - 1;
        float const * const sines = m_sines.data() + half - 1;
        for (std::size_t first = 0; first < size; first += 2 * half)
        {
            CombineHalves(&real[first], &imaginary[first], &real[first + half], &imaginary[first + half], cosines,
                          sines, half);
        }
    }
}

} // namespace workbench
