#pragma once
// The measures of the control benchmark: each prints its lines and tells whether its goals are met. And what they
// share.

#include <afxwin.h>

#include <chrono>

namespace bench
{
bool LayoutOf1000Children();
bool FillingAList();
bool RefillingAList();
bool MemoryOfARow();
bool PaintingAPageOfText();
bool PaintingPagesOfOtherKinds();
bool SortingAList();
bool ExportingAList();
bool PaintingSegmentCharacters();
bool OpeningRecordings();

template <class Work> double Nanoseconds(Work && work)
{
    using Clock = std::chrono::steady_clock;
    auto const began = Clock::now();
    work();
    return std::chrono::duration<double, std::nano>(Clock::now() - began).count();
}

inline void PumpAll()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
    {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}
} // namespace bench
