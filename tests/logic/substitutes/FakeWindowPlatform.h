#pragma once
// The window manager's window system in the logic tests: windows that are records, and a log of what was asked of them.

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "windows/WindowPlatform.h"

/// One window of the substitute. Tests read and set its fields.
struct FakeWindow
{
    std::string name;
    bool alive = true;
    bool iconic = false;
    bool zoomed = false;
    WINDOWPLACEMENT placement{};
    FakeWindow * owner = nullptr;
    CPoint clientOrigin{0, 0};
    bool hasSystemMenu = true;
    DWORD style = 0;
    /// Called when the window is destroyed, by whatever way.
    std::function<void()> onDestroy;
    /// Called with "EnableMenuItem", "SetStyle" or "Redraw" when that is done to it, as a real window is sent messages.
    std::function<void(std::string const &)> onChange;

    /// The window object that stands for it.
    CWnd * Object() { return reinterpret_cast<CWnd *>(this); }
};

class FakeWindowPlatform final : public WindowPlatform
{
public:
    /// The one of this program.
    static FakeWindowPlatform & Current();

    void Reset();
    /// The window stays in memory until Reset.
    FakeWindow & Add(std::string name);

    CRect WorkArea() override;
    std::vector<ScreenArea> Screens() override;
    int CaptionHeight() override;
    std::optional<CPoint> PlacementOrigin(CWnd const & window) override;
    bool IsWindow(CWnd const & window) override;
    bool IsIconic(CWnd const & window) override;
    bool IsZoomed(CWnd const & window) override;
    void GetPlacement(CWnd const & window, WINDOWPLACEMENT & placement) override;
    void SetPlacement(CWnd & window, WINDOWPLACEMENT const & placement) override;
    CWnd * Owner(CWnd const & window) override;
    void ClientToScreen(CWnd const & window, CPoint & point) override;
    void Show(CWnd & window, int command) override;
    void Destroy(CWnd & window) override;
    void DestroyMdiChild(CWnd & window) override;
    void ActivateMdiChild(CWnd & window) override;
    HMENU SystemMenu(CWnd const & window) override;
    void EnableMenuItem(HMENU menu, unsigned int command, unsigned int state) override;
    DWORD Style(CWnd const & window) override;
    void SetStyle(CWnd & window, DWORD style) override;
    void Redraw(CWnd & window, unsigned int flags) override;

    CRect workArea{0, 0, 1920, 1080};
    int workAreaReads = 0;
    std::vector<ScreenArea> screens;
    int screenReads = 0;
    int captionHeight = 30;
    CPoint placementOrigin{0, 0};
    /// What changes something, with the window's name: "Show NAME 2", "Destroy NAME", "EnableMenuItem NAME f000 3" ...
    std::vector<std::string> calls;

private:
    static void End(FakeWindow & window);
    static void Tell(FakeWindow const & window, char const * change);

    std::deque<FakeWindow> m_windows;
};
