#pragma once
// What the tests of frames, panes and sheets from a host's side have in common.

#include <afxcontrolbars.h>
#include <afxext.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "frame/PreferenceStore.h"
#include "PrintValues.h"
#include "windows/FensterManager.h"
#include "windows/MainFrmInterface.h"
#include "windows/StandaloneFrameUser.h"
#include "windows/StandaloneFrameWnd.h"

namespace outside
{
using texts_t = std::vector<std::wstring>;

inline std::wstring Wide(CString const & text)
{
    return std::wstring(text.GetString());
}

std::wstring TextOf(HWND window);
CRect ScreenRect(HWND window);
/// The window's rectangle in its parent's client area.
CRect RectInParent(HWND window);
/// The window's rectangle in that window's client area.
CRect RectIn(HWND window, HWND of);

/// A preference store in memory that writes down, in order, what it is asked for.
class RecordingStore : public CResourceVesk
{
public:
    CVeskEntry * CreateEntry(wchar_t const * key, int kind) override;
    lookup::result LookupSetBool(wchar_t const * key, bool value, std::size_t index) override;
    lookup::result LookupSetInt(wchar_t const * key, int value, std::size_t index) override;
    bool LookupGetBool(wchar_t const * key, std::size_t index, bool fallback) override;
    int LookupGetInt(wchar_t const * key, std::size_t index, int fallback) override;
    int Delete(wchar_t const * key) override;

    bool Has(std::wstring const & key) const;
    /// -1000000 where there is none.
    int Get(std::wstring const & key, std::size_t index = 0) const;
    void Put(std::wstring const & key, int value, std::size_t index = 0) { m_values[{key, index}] = value; }
    /// The four keys of a window.
    void PutWindow(std::wstring const & name, bool open, CRect const & rect);
    CRect Position(std::wstring const & name) const;
    /// The entries of the log that begin so.
    texts_t Entries(std::wstring const & beginning) const;
    /// The place in the log of the first entry that begins so, or -1.
    int Place(std::wstring const & beginning) const;

    texts_t m_log;
    std::map<std::pair<std::wstring, std::size_t>, int> m_values;
};

/// Looks into the list of all window managers.
class Managers : public CFensterManager
{
public:
    static CFensterManager * Find(std::wstring const & name);
};

/// A main frame with everything made public.
class MainFrame : public CMDIFrameWndEx, public CMainFrmInterface
{
public:
    MainFrame();
    ~MainFrame() override;

    using CMainFrmInterface::add_menu_lookup_item;
    using CMainFrmInterface::assign_panes;
    using CMainFrmInterface::dismiss_menu_callbacks;
    using CMainFrmInterface::lookup_item;
    using CMainFrmInterface::menu;
    using CMainFrmInterface::menu_elements;
    using CMainFrmInterface::menu_range;
    using CMainFrmInterface::release_orphan_panes;

    int register_pane(CDockableViewPane *& pane, int id) override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;

    std::vector<int> m_askedPanes; // the identifiers that register_pane was called with
    bool m_refuse = false;
    std::vector<std::pair<BOOL, DWORD>> m_titles; // argument and style at each call of OnUpdateFrameTitle
    std::vector<DWORD> m_styles;                  // the styles that were set
    std::function<void()> m_onStyle;
    bool * m_gone = nullptr;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext * pContext) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnDynamic(UINT id);

    DECLARE_MESSAGE_MAP()
};

class PlainView : public CView
{
    DECLARE_DYNCREATE(PlainView)

public:
    ~PlainView() override;

    void OnInitialUpdate() override;

    int m_initialUpdates = 0;

    static void Reset();
    static std::vector<std::string> s_made; // run-time classes of the views whose windows were made, in order
    static int s_live;
    static bool s_refuse; // OnCreate fails
    static std::function<void(PlainView &)> s_onCreate;
    static std::function<void(PlainView &)> s_onUpdate; // called by OnInitialUpdate, as the last

protected:
    PlainView();
    void OnDraw(CDC *) override {}
    afx_msg int OnCreate(LPCREATESTRUCT create);

    DECLARE_MESSAGE_MAP()
};

/// A view with a child window that counts WM_INITIALUPDATE.
class NestedView : public PlainView
{
    DECLARE_DYNCREATE(NestedView)

public:
    class Child : public CWnd
    {
    public:
        int m_updates = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    };
    Child m_child;

protected:
    NestedView() = default;
    afx_msg int OnCreate(LPCREATESTRUCT create);

    DECLARE_MESSAGE_MAP()
};

/// A pane for a grid that is no view.
class PlainPane : public CWnd
{
    DECLARE_DYNCREATE(PlainPane)

protected:
    PlainPane() = default;
    void PostNcDestroy() override { delete this; }
};

class Grid0 : public PlainView
{
    DECLARE_DYNCREATE(Grid0)
};
class Grid1 : public PlainView
{
    DECLARE_DYNCREATE(Grid1)
};
class Grid2 : public PlainView
{
    DECLARE_DYNCREATE(Grid2)
};
class Grid3 : public PlainView
{
    DECLARE_DYNCREATE(Grid3)
};
class Grid4 : public PlainView
{
    DECLARE_DYNCREATE(Grid4)
};
class Grid5 : public PlainView
{
    DECLARE_DYNCREATE(Grid5)
};

/// Has no dynamic creation.
class UncreatableView : public PlainView
{
    DECLARE_DYNAMIC(UncreatableView)
};

/// A subscriber that writes down what it is told.
class User : public CStandaloneFrameUser
{
public:
    CStandaloneFrameWnd * Open(wchar_t const * title, CRuntimeClass * viewClass = RUNTIME_CLASS(PlainView));
    /// By the class that is known at compile time.
    CStandaloneFrameWnd * OpenPlain(wchar_t const * title) { return CreateFrame<PlainView>(title); }

    void BeiFrameAbleben() override;
    void MenueKommando(int first, int second) override;
    void FrameEreignis(int event, unsigned long number, void const * data, wchar_t const * text) override;
    void MausLDoppelKlick(unsigned int flags, CPoint point, int index) override;
    void MausRDoppelKlick(unsigned int flags, CPoint point, int index) override;

    texts_t m_events;
    texts_t * m_log = nullptr; // a log that is shared with others
    bool m_callsBase = true;
    std::function<void()> m_onEnd;
    std::function<void()> m_onClick;

private:
    void Note(std::wstring const & event);
};

/// A main frame on the screen, and a store that records.
class FrameTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Ends the main frame with everything in it.
    void EndMain();

    RecordingStore m_store;
    User m_user;
    User m_other;
    MainFrame * m_main = nullptr;
    bool m_mainGone = false;

private:
    CResourceVesk * m_formerStore = nullptr;
};
} // namespace outside
