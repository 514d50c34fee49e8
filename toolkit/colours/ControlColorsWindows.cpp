// The choice of colours: kept with windows as a property, and for the process.

#include "colours/ControlColors.h"

#include <afxwin.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <mutex>
#include <vector>

namespace
{
constexpr int system_colors = 31;

std::atomic<ControlColorSet> process_choice{ControlColorSet::standard};
/// Whether any window has ever had a choice of its own: only then ancestors are asked.
std::atomic<bool> windows_choose{false};

LPCWSTR PropertyName()
{
    static ATOM const atom = ::GlobalAddAtomW(L"instrument_ui.ControlColors");
    return reinterpret_cast<LPCWSTR>(static_cast<ULONG_PTR>(atom));
}

// A property holds the number of the set, counted from 1.
HANDLE AsProperty(ControlColorSet set)
{
    return reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(set) + 1);
}

/// The parent of a child, the owner of another window.
HWND Above(HWND window)
{
    return reinterpret_cast<HWND>(::GetWindowLongPtrW(window, GWLP_HWNDPARENT));
}

ControlColorSet ChoiceFor(HWND window)
{
    if (windows_choose.load(std::memory_order_relaxed))
    {
        for (; window != nullptr; window = Above(window))
        {
            if (HANDLE const property = ::GetPropW(window, PropertyName()))
                return static_cast<ControlColorSet>(reinterpret_cast<ULONG_PTR>(property) - 1);
        }
    }
    return process_choice.load(std::memory_order_relaxed);
}

bool IsHighContrastOn()
{
    HIGHCONTRASTW contrast = {};
    contrast.cbSize = sizeof(contrast);
    return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

ControlColorSet Resolved(ControlColorSet choice)
{
    if (choice != ControlColorSet::follow_system)
        return choice;
    return IsHighContrastOn() ? ControlColorSet::high_contrast : ControlColorSet::standard;
}

COLORREF AskSystem(int number)
{
    return ::GetSysColor(number);
}

/// Worked out once for the system's present colours.
ControlColors PresentHighContrast()
{
    static std::mutex access;
    static std::array<COLORREF, system_colors> known{};
    static ControlColors colors = control_colors::HighContrast(&AskSystem);
    std::array<COLORREF, system_colors> present{};
    for (int number = 0; number < system_colors; ++number)
        present[static_cast<std::size_t>(number)] = ::GetSysColor(number);
    std::lock_guard<std::mutex> const lock(access);
    if (present != known)
    {
        known = present;
        colors = control_colors::HighContrast(&AskSystem);
    }
    return colors;
}

BOOL CALLBACK CollectOwn(HWND window, LPARAM list)
{
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process == ::GetCurrentProcessId())
        reinterpret_cast<std::vector<HWND> *>(list)->push_back(window);
    return TRUE;
}

bool IsBelow(HWND window, HWND root)
{
    while (window != nullptr && window != root)
        window = Above(window);
    return window == root;
}

/// Invalidates the window, all below it and what they own; null for all windows of the process.
void RepaintBelow(HWND root)
{
    constexpr UINT all = RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN;
    std::vector<HWND> windows;
    ::EnumWindows(&CollectOwn, reinterpret_cast<LPARAM>(&windows));
    for (HWND const window : windows)
    {
        if (root == nullptr || IsBelow(window, root))
            ::RedrawWindow(window, nullptr, nullptr, all);
    }
    if (root != nullptr)
        ::RedrawWindow(root, nullptr, nullptr, all);
}
} // namespace

namespace control_colors
{
void UseForProcess(ControlColorSet set)
{
    if (process_choice.exchange(set) != set)
        RepaintBelow(nullptr);
}

ControlColorSet ChosenForProcess()
{
    return process_choice;
}

bool UseFor(HWND window, ControlColorSet set)
{
    if (!::IsWindow(window))
        return false;
    HANDLE const property = AsProperty(set);
    if (::GetPropW(window, PropertyName()) == property)
        return true;
    if (!::SetPropW(window, PropertyName(), property))
        return false;
    windows_choose = true;
    RepaintBelow(window);
    return true;
}

void RemoveFrom(HWND window)
{
    if (::RemovePropW(window, PropertyName()) != nullptr)
        RepaintBelow(window);
}

ControlColorSet SetOf(HWND window)
{
    return Resolved(ChoiceFor(window));
}

ControlColors Of(HWND window)
{
    return Of(SetOf(window));
}

ControlColors Of(ControlColorSet set)
{
    switch (Resolved(set))
    {
    case ControlColorSet::dark:
        return Dark();
    case ControlColorSet::high_contrast:
        return PresentHighContrast();
    case ControlColorSet::standard:
    case ControlColorSet::follow_system:
        break;
    }
    return Standard(&AskSystem);
}

LRESULT AnswerColorQuestion(HWND parent, UINT message, WPARAM context)
{
    if (message < WM_CTLCOLORMSGBOX || message > WM_CTLCOLORSTATIC)
        return 0;
    ControlColorSet const set = SetOf(parent);
    if (set == ControlColorSet::standard)
        return 0;
    ControlColors const colors = Of(set);
    COLORREF ground = colors.window;
    switch (message)
    {
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
        break;
    case WM_CTLCOLORSTATIC:
        // Fields that are read-only or disabled; a disabled one paints its text in a colour of its own.
        ground = colors.inactiveSelection;
        break;
    case WM_CTLCOLORSCROLLBAR:
        ground = colors.face;
        break;
    default:
        return 0;
    }
    auto const dc = reinterpret_cast<HDC>(context);
    ::SetTextColor(dc, colors.windowText);
    ::SetBkColor(dc, ground);
    ::SetDCBrushColor(dc, ground);
    return reinterpret_cast<LRESULT>(::GetStockObject(DC_BRUSH));
}
} // namespace control_colors
