#include "FakeWindowPlatform.h"

#include <charconv>

namespace
{
// The manager passes window objects on and never looks into them, so a record of ours serves as one.
FakeWindow & WindowOf(CWnd const & object)
{
    return const_cast<FakeWindow &>(reinterpret_cast<FakeWindow const &>(object));
}

std::string Hexadecimal(unsigned int value)
{
    char digits[8];
    return std::string(digits, std::to_chars(digits, digits + sizeof(digits), value, 16).ptr);
}
} // namespace

WindowPlatform & WindowPlatform::Instance()
{
    return FakeWindowPlatform::Current();
}

FakeWindowPlatform & FakeWindowPlatform::Current()
{
    static FakeWindowPlatform platform;
    return platform;
}

void FakeWindowPlatform::Reset()
{
    workArea = CRect(0, 0, 1920, 1080);
    workAreaReads = 0;
    screens = {{CRect(0, 0, 1920, 1080), 96}};
    screenReads = 0;
    captionHeight = 30;
    placementOrigin = CPoint(0, 0);
    calls.clear();
    m_windows.clear();
}

FakeWindow & FakeWindowPlatform::Add(std::string name)
{
    m_windows.emplace_back().name = std::move(name);
    return m_windows.back();
}

void FakeWindowPlatform::End(FakeWindow & window)
{
    window.alive = false;
    if (window.onDestroy)
        window.onDestroy();
}

void FakeWindowPlatform::Tell(FakeWindow const & window, char const * change)
{
    if (window.onChange)
        window.onChange(change);
}

CRect FakeWindowPlatform::WorkArea()
{
    ++workAreaReads;
    return workArea;
}

std::vector<ScreenArea> FakeWindowPlatform::Screens()
{
    ++screenReads;
    return screens;
}

int FakeWindowPlatform::CaptionHeight()
{
    return captionHeight;
}

std::optional<CPoint> FakeWindowPlatform::PlacementOrigin(CWnd const & window)
{
    if ((WindowOf(window).style & WS_CHILD) != 0)
        return std::nullopt;
    return placementOrigin;
}

bool FakeWindowPlatform::IsWindow(CWnd const & window)
{
    return WindowOf(window).alive;
}

bool FakeWindowPlatform::IsIconic(CWnd const & window)
{
    return WindowOf(window).iconic;
}

bool FakeWindowPlatform::IsZoomed(CWnd const & window)
{
    return WindowOf(window).zoomed;
}

void FakeWindowPlatform::GetPlacement(CWnd const & window, WINDOWPLACEMENT & placement)
{
    placement = WindowOf(window).placement;
    placement.length = sizeof(placement);
}

void FakeWindowPlatform::SetPlacement(CWnd & window, WINDOWPLACEMENT const & placement)
{
    calls.push_back("SetPlacement " + WindowOf(window).name);
    WindowOf(window).placement = placement;
}

CWnd * FakeWindowPlatform::Owner(CWnd const & window)
{
    FakeWindow * const owner = WindowOf(window).owner;
    return owner != nullptr ? owner->Object() : nullptr;
}

void FakeWindowPlatform::ClientToScreen(CWnd const & window, CPoint & point)
{
    calls.push_back("ClientToScreen " + WindowOf(window).name);
    point.x += WindowOf(window).clientOrigin.x;
    point.y += WindowOf(window).clientOrigin.y;
}

void FakeWindowPlatform::Show(CWnd & window, int command)
{
    calls.push_back("Show " + WindowOf(window).name + " " + std::to_string(command));
}

void FakeWindowPlatform::Destroy(CWnd & window)
{
    calls.push_back("Destroy " + WindowOf(window).name);
    End(WindowOf(window));
}

void FakeWindowPlatform::DestroyMdiChild(CWnd & window)
{
    calls.push_back("DestroyMdiChild " + WindowOf(window).name);
    End(WindowOf(window));
}

void FakeWindowPlatform::ActivateMdiChild(CWnd & window)
{
    calls.push_back("ActivateMdiChild " + WindowOf(window).name);
}

HMENU FakeWindowPlatform::SystemMenu(CWnd const & window)
{
    FakeWindow & found = WindowOf(window);
    return found.hasSystemMenu ? reinterpret_cast<HMENU>(&found) : nullptr;
}

void FakeWindowPlatform::EnableMenuItem(HMENU menu, unsigned int command, unsigned int state)
{
    FakeWindow const & window = *reinterpret_cast<FakeWindow const *>(menu);
    calls.push_back("EnableMenuItem " + window.name + " " + Hexadecimal(command) + " " + std::to_string(state));
    Tell(window, "EnableMenuItem");
}

DWORD FakeWindowPlatform::Style(CWnd const & window)
{
    calls.push_back("Style " + WindowOf(window).name);
    return WindowOf(window).style;
}

void FakeWindowPlatform::SetStyle(CWnd & window, DWORD style)
{
    calls.push_back("SetStyle " + WindowOf(window).name + " " + Hexadecimal(style));
    WindowOf(window).style = style;
    Tell(WindowOf(window), "SetStyle");
}

void FakeWindowPlatform::Redraw(CWnd & window, unsigned int flags)
{
    calls.push_back("Redraw " + WindowOf(window).name + " " + Hexadecimal(flags));
    Tell(WindowOf(window), "Redraw");
}
