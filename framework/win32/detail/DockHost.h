#pragma once
// The windows of a frame's panes, in the places that the layout gives them. Inside framework.dll only.

#include <afxautohidebar.h>
#include <afxdockingmanager.h>
#include <afxmultipaneframewnd.h>
#include <afxpanedivider.h>
#include <afxtabbedpane.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "DockLayout.h"

namespace framework
{
class DockDrag;

constexpr UINT first_own_id = 0x10000;    // of panes whose identifier another has
extern UINT const arrange_message;        // to a frame: its panes are laid out anew
constexpr UINT_PTR slide_watch_timer = 2; // of a strip, while a pane of it is shown

/// Sizes that follow from the system's fonts and their resolution.
struct DockSizes
{
    int caption = 18;
    int tabs = 20;
    int strip = 22;
    int gap = 4; // between a text and what is beside it
    int sensitivity = 20;

    static DockSizes Measure();
};

/// Where a drag would end.
struct DockLanding
{
    enum class Kind
    {
        none,
        floating,
        side,
        beside,
        tab
    };

    Kind kind = Kind::none;
    DockSide side = DockSide::left;
    bool outer = false;
    UINT target = 0;
    int index = -1;
    CRect rect{0, 0, 0, 0}; // on the screen: where it will be
};

/// One for each frame with docking. Any call that sends a message may end the frame, and the host with it: Life tells.
class DockHost
{
public:
    /// Whether the host is still there.
    class Life
    {
    public:
        explicit Life(DockHost const & host) : m_alive(host.m_alive) {}
        explicit operator bool() const { return *m_alive; }

    private:
        std::shared_ptr<bool> m_alive;
    };

    DockHost(CDockingManager & manager, CFrameWnd & frame);
    ~DockHost();
    DockHost(DockHost const &) = delete;
    DockHost & operator=(DockHost const &) = delete;

    static CDockingManager * ManagerOf(CWnd const * frame);
    /// The host of a frame that can have one, made if it has none yet.
    static DockHost * Of(CWnd * frame);

    CFrameWnd & Frame() const { return m_frame; }
    CDockingManager & Manager() const { return m_manager; }
    DockLayout & Layout() { return m_layout; }
    /// The frame's window ends.
    void FrameEnds();

    // Panes
    bool Register(CDockablePane & pane);
    void Leave(CDockablePane & pane, bool destroyed);
    CDockablePane * Pane(UINT id) const;
    /// The pane itself, or the one in front of the tabs that it is.
    UINT FrontOf(CDockablePane const & pane) const;
    /// What moves when its caption is dragged.
    std::vector<UINT> DraggedWith(CDockablePane const & pane) const;
    CMFCAutoHideBar * Strip(DockSide side) const { return m_strips[static_cast<size_t>(side)]; }
    /// One of the host's own windows ends, or could not be made: the object may be gone.
    void WindowEnds(CWnd const * window);
    /// The panes that show as tabs of a place.
    std::vector<CDockablePane *> TabsOf(UINT group) const;
    CTabbedPane * Tabbed(UINT group) const;
    CPaneFrameWnd * MiniFrame(UINT frame) const;
    std::vector<CDockablePane *> Panes() const;
    CBasePane * FindBar(UINT id) const;

    // What programs and users want. Each lays out anew.
    bool Dock(CDockablePane & pane, DockSide side, bool outer, int extent);
    bool Beside(CDockablePane & pane, CDockablePane & target, DockSide side, int extent);
    bool Attach(CDockablePane & pane, CDockablePane & target, int index, bool activate);
    bool Float(CDockablePane & pane, CRect const & rect, AFX_DOCK_METHOD method, bool show);
    bool DockBack(DockContent const & content);
    void Toggle(DockContent const & content); // docked and floating
    void Show(CDockablePane & pane, bool show, bool activate);
    bool Fold(CDockablePane & pane, bool fold, std::optional<DockSide> side);
    void Activate(UINT pane, bool focus);
    void Close(UINT pane);
    void CloseFrame(UINT frame);
    void SlideOut(UINT pane);
    void SlideBack();
    /// Slides back what neither the mouse nor the focus is at.
    void WatchSlid();
    UINT Slid() const { return m_slid; }
    bool Cycle(bool back);
    void FrameMoved(UINT frame, CRect const & rect);
    CSize LeastOf(UINT frame);
    int MoveDivider(CPaneDivider const & divider, int offset);
    int TryDivider(CPaneDivider const & divider, int offset) const;

    // Arranging
    void Arrange();
    /// As soon as the messages that run are over.
    void ArrangeSoon();
    void ArrangeFrame(UINT frame);
    /// Floating frames that no screen has any more come back, as the screens are by now.
    void BringOntoScreen();
    void Lock(bool lock);
    void RepaintCaptions();
    /// What the frame's panes share, in its coordinates.
    CRect SpaceOf(UINT frame) const;
    bool InArrange() const { return m_arranging; }
    CRect Space() const { return m_space; }
    CRect Centre() const { return m_centre; }
    DockSizes const & Sizes() const { return m_sizes; }
    void TitleChanged(CDockablePane & pane);
    void LeastSizeChanged(CDockablePane & pane);
    void MeasureAgain();

    // Dragging
    void BeginDrag(DockContent const & content, CPoint screen);
    void BeginDivider(CPaneDivider & divider, CPoint screen);
    void BeginButton(CDockablePane & pane, UINT hit);
    bool Dragging() const;
    void CancelDrag();
    DockLanding FindLanding(DockContent const & content, CPoint screen, CPoint grip, bool floatOnly);
    void Land(DockContent const & content, DockLanding const & landing);

    // Storing
    std::vector<std::uint8_t> Save();
    bool Load(std::vector<std::uint8_t> const & bytes, std::function<bool(UINT)> const & stored);

    DWORD sides = 0;     // that panes may be docked at
    DWORD foldSides = 0; // that they may be folded away to
    bool restoreDocking = true;

private:
    friend class DockDrag;

    bool ArrangeOnce();
    bool MakeFrames();
    bool MakeAllGroups();
    bool MakeGroups(UINT frame);
    bool EndUnused();
    bool ArrangeMain();
    bool ArrangeFrames();
    bool ArrangeFloating(UINT frame);
    void Renumber();
    bool ArrangeWindows(UINT frame, DockPlan const & plan, std::vector<WINDOWPOS> & moves);
    bool ArrangeTabs(CTabbedPane & tabbed, DockPlan::Group const & group);
    bool PlaceStrips(CRect & space, std::vector<WINDOWPOS> & moves);
    bool PlaceSlid();
    bool HideRest();
    bool Adopt(CDockablePane & pane, CWnd & parent);
    bool SetCaption(CDockablePane & pane, bool shown);
    void Move(std::vector<WINDOWPOS> & moves, CWnd & window, CRect const & rect, bool show);
    static void MoveAll(CWnd const & parent, std::vector<WINDOWPOS> & moves, HDWP moving);
    CPaneDivider * Divider(UINT frame, size_t index);
    void Notify(DockContent const & content, bool floated, AFX_DOCK_METHOD method);
    std::vector<UINT> PanesOf(DockContent const & content) const;
    CWnd * ParentOf(UINT frame) const;
    HWND CentreWindow() const;
    UINT FreeId(UINT wanted) const;
    int TabIndexAt(CTabbedPane const & tabbed, CPoint screen, std::vector<UINT> const & moved) const;
    static bool Apply(DockLayout & layout, DockContent const & content, DockLanding const & landing);
    bool AskToClose(CDockablePane & pane);
    bool AskToClose(CPaneFrameWnd & mini);
    bool FocusIsFree() const;
    DWORD Enabled(DockContent const & content) const;
    void PutFramesOnScreen();
    CRect OnScreen(CRect rect) const;

    CDockingManager & m_manager;
    CFrameWnd & m_frame;
    DockLayout m_layout;
    std::map<UINT, CDockablePane *> m_panes;
    std::map<UINT, CTabbedPane *> m_tabbed;
    std::map<UINT, CPaneFrameWnd *> m_frames;
    std::map<UINT, std::vector<CPaneDivider *>> m_dividers; // of the frame (0) and the floating ones
    CMFCAutoHideBar * m_strips[4] = {};
    std::map<UINT, DockPlan> m_plans; // as they were arranged last, in client coordinates
    std::unique_ptr<DockDrag> m_drag;
    DockSizes m_sizes;
    CRect m_space{0, 0, 0, 0};
    CRect m_centre{0, 0, 0, 0};
    UINT m_slid = 0; // the folded pane that is shown
    int m_locked = 0;
    bool m_arranging = false;
    bool m_again = false;
    bool m_ending = false;
    std::shared_ptr<bool> m_alive;
};

struct FrameAccess
{
    static CRect Border(CFrameWnd const & frame) { return frame.m_border; }
    static LRESULT IdleUpdate(CFrameWnd & frame, WPARAM wParam, LPARAM lParam)
    {
        return frame.HandleIdleUpdate(wParam, lParam);
    }
};

struct PaneAccess
{
    static DockHost * Host(CDockablePane const & pane) { return pane.m_host; }
    static DockHost * Host(CPaneFrameWnd const & frame) { return frame.m_host; }
    static DockHost * Host(CMFCAutoHideBar const & strip) { return strip.m_host; }
    static UINT Id(CDockablePane const & pane) { return pane.m_dockId; }
    static UINT Id(CPaneFrameWnd const & frame) { return frame.m_floatId; }
    static UINT Group(CBaseTabbedPane const & tabbed) { return tabbed.m_group; }
    static bool CaptionShown(CDockablePane const & pane) { return pane.m_captionShown; }
};

/// Gives the focus to the pane, or to the window in it.
void FocusPane(CDockablePane & pane);
/// Offers what can be done with a pane, or with the one in front of tabs. False if there is nothing.
bool ShowPaneMenu(CDockablePane & pane, CPoint screen);
/// The place of a button in a caption, in the caption's coordinates; empty if there is none.
CRect CaptionButton(CDockablePane const & pane, CRect const & caption, UINT hit);
std::vector<CDockablePane *> PanesIn(CBaseTabbedPane const & tabbed);
std::vector<CDockablePane *> PanesIn(CPaneFrameWnd const & frame, bool shown);
/// The panes in a strip with the places of their names.
std::vector<std::pair<UINT, CRect>> StripButtons(CMFCAutoHideBar & strip);
CRect TabStripOf(CTabbedPane const & tabbed);
std::vector<CRect> TabRects(CTabbedPane const & tabbed, std::vector<CDockablePane *> const & panes);
CSize LeastSize(CDockablePane const & pane, DockSizes const & sizes);
/// Selects the font of captions and tabs; gives the former one.
CFont * SelectPaneFont(CDC & dc);
/// The user has chosen another.
void RefreshPaneFont();
/// A pane's title, asked for without a message, whose handler might end whoever asks.
CString TitleOf(CDockablePane const & pane);
DockSide SideOf(DWORD alignment, DockSide otherwise);
DWORD AlignmentOf(DockSide side);
} // namespace framework
