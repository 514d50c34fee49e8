#pragma once
// 32-bit signed arithmetic that wraps around at its ends. Coordinates come from callers and from stored values, so a
// sum may pass the range; these give the low 32 bits of the exact result, as the processor does, where `+` would be
// undefined.

#include <cstdint>

namespace wrapping
{
constexpr std::int32_t Sum(std::int32_t left, std::int32_t right)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(left) + static_cast<std::uint32_t>(right));
}

constexpr std::int32_t Difference(std::int32_t left, std::int32_t right)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(left) - static_cast<std::uint32_t>(right));
}

constexpr std::int32_t Product(std::int32_t left, std::int32_t right)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(left) * static_cast<std::uint32_t>(right));
}
} // namespace wrapping
