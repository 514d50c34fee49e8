#pragma once
// The measures of the control benchmark: each prints its lines and tells whether its goals are met. And what they
// share.

#include <afxwin.h>

#include "Measure.h"

namespace bench
{
bool LayoutOf1000Children();
bool FillingAList();
bool RefillingAList();
bool MemoryOfARow();
bool PaintingAPageOfText();
bool PaintingPagesOfOtherKinds();
bool SortingAList();
bool SearchingAList();
bool DeletingRows();
bool ExportingAList();
bool PaintingSegmentCharacters();
bool OpeningRecordings();
bool OpeningACombo();
bool ResizingDockedPanes();
bool ShowingATable();
bool MeasuringFrames();

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
