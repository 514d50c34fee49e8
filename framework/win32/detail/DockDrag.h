#pragma once
// A pane, a divider or a button of a caption between press and release. Inside framework.dll only.

#include <afxwin.h>

#include "DockHost.h"

namespace framework
{
/// The window has the mouse, and shows where the drag would end. It belongs to none of the panes, which may end
/// meanwhile.
class DockDrag : public CWnd
{
public:
    explicit DockDrag(DockHost & host);
    ~DockDrag() override;

    void StartPanes(DockContent const & content, CPoint screen);
    void StartDivider(CPaneDivider & divider, CPoint screen);
    void StartButton(CDockablePane & pane, UINT hit);
    /// Ends it without effect.
    void Cancel();
    bool Running() const { return m_kind != Kind::none; }
    void PaneEnds(UINT pane);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    enum class Kind
    {
        none,
        panes,
        divider,
        button
    };

    bool Start(Kind kind, CPoint screen);
    void Follow(CPoint screen);
    void Finish(CPoint screen);
    void Stop();
    void ShowAt(CRect const & rect, DockLanding::Kind shape);
    CRect DividerAt(CPoint screen) const;
    static LRESULT CALLBACK OnKey(int code, WPARAM wParam, LPARAM lParam);

    DockHost & m_host;
    Kind m_kind = Kind::none;
    DockContent m_content{UINT{0}};
    CPaneDivider * m_divider = nullptr;
    HWND m_button = nullptr; // the window whose caption has it
    UINT m_hit = 0;
    CPoint m_start{0, 0};
    CPoint m_grip{0, 0}; // where the pane was taken hold of
    bool m_moved = false;
    DockLanding m_landing;
    CRect m_shown{0, 0, 0, 0};
    DockLanding::Kind m_shape = DockLanding::Kind::none;
    HHOOK m_keys = nullptr;
};
} // namespace framework
