#pragma once
// Says where a program stands that does not come to its end: what each thread does, as lines on the error output. Then
// it ends the program, so that whoever waits for it need not end it without a word.

#include <windows.h>

#include <chrono>

namespace tests
{
/// Below ctest's own limit for a suite.
inline constexpr std::chrono::milliseconds longest_run = std::chrono::minutes(25);
/// That of a program that was ended because it stood still.
inline constexpr UINT exit_code_of_a_hang = 78;

/// From here on the program may take that long, its end included.
void WatchForHang(std::chrono::milliseconds limit = longest_run);
} // namespace tests
