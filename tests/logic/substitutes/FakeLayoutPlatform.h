#pragma once
// The layout engine's window system in the logic tests: windows that are rectangles, and a log of what was asked of
// them.

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "layout/LayoutPlatform.h"

class FakeLayoutPlatform final : public LayoutPlatform
{
public:
    /// The one of this program.
    static FakeLayoutPlatform & Current();

    /// From a window's outer left-top corner to that of its client area.
    static constexpr int frame_width = 8;
    static constexpr int caption_height = 30;

    void Reset();

    CWnd & AddDialog(CRect const & outer);
    /// `place` in the parent's client coordinates. Behind the parent's other children in window order.
    CWnd & AddChild(CWnd & parent, CRect const & place, int id = 0);
    CWnd & AddChildWithHandle(CWnd & parent, CRect const & place, HWND handle);
    void SetOuter(CWnd & window, CRect const & outer);
    /// Takes the window away from its parent; its handle is no window any more.
    void Destroy(CWnd & window);
    /// A window's place in its parent's client coordinates.
    CRect PlaceOf(CWnd const & window) const;
    /// "name" of a window in the log: its number in the order of making, from 0.
    static std::string Name(CWnd const & window);

    HWND HandleOf(CWnd const & window) override;
    CWnd * DialogItem(CWnd & dialog, int id) override;
    bool IsWindow(HWND window) override;
    void GetWindowRect(HWND window, RECT & rect) override;
    HWND GetParent(HWND window) override;
    void ScreenToClient(HWND window, POINT & point) override;
    HWND FirstChild(HWND parent) override;
    HWND NextWindow(HWND window) override;
    void MoveWindow(HWND window, int left, int top, int width, int height) override;
    void MoveDialog(CWnd & dialog, int left, int top, int width, int height) override;
    void Invalidate(HWND window) override;
    void ReportAssertion(wchar_t const * expression, wchar_t const * source, unsigned int line) override;

    /// Called when a window has been moved, as a real one is sent messages.
    std::function<void(CWnd &)> onMove;
    bool recording = true;
    std::vector<std::string> calls;
    struct Assertion
    {
        std::wstring expression;
        std::wstring source;
        unsigned int line;
    };
    std::vector<Assertion> assertions;

private:
    struct Window
    {
        std::size_t number;
        HWND handle;
        int id;
        CRect outer;
        Window * parent;
        std::vector<Window *> children;
    };

    static Window & WindowOf(CWnd const & object);
    static CWnd & ObjectOf(Window & window);
    Window * Find(HWND handle);
    CWnd & Add(Window * parent, CRect const & outer, HWND handle, int id);
    void Log(std::string call);

    std::deque<Window> m_windows;
    std::map<HWND, Window *> m_byHandle;
};
