// Puts the toolkit beside the native controls and calls, in one run on real windows.

#include "ControlBench.h"

#include <afxwin.h>

#include <regex>

namespace
{
struct Measure
{
    char const * name;
    bool (*run)();
};
constexpr Measure measures[] = {
    {"layout", bench::LayoutOf1000Children},
    {"list-fill", bench::FillingAList},
    {"list-refill", bench::RefillingAList},
    {"list-memory", bench::MemoryOfARow},
    {"list-paint", bench::PaintingAPageOfText},
    {"list-kinds", bench::PaintingPagesOfOtherKinds},
    {"list-sort", bench::SortingAList},
    {"list-search", bench::SearchingAList},
    {"list-delete", bench::DeletingRows},
    {"list-export", bench::ExportingAList},
    {"segments", bench::PaintingSegmentCharacters},
    {"combo", bench::OpeningACombo},
    {"workbench", bench::OpeningRecordings},
    {"docking", bench::ResizingDockedPanes},
    {"table", bench::ShowingATable},
    {"frame-measures", bench::MeasuringFrames},
};
} // namespace

class CBenchApp : public CWinApp
{
};
CBenchApp theApp;

// An exception ends it, as it shall. NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char ** argv)
{
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL))
        return 2;
    std::regex const filter(argc > 1 ? argv[1] : ".");
    bool allMet = true;
    for (Measure const & measure : measures)
    {
        if (std::regex_search(measure.name, filter))
            allMet = measure.run() && allMet;
    }
    return allMet ? 0 : 1;
}
