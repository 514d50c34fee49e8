#pragma once
// What the tests of panes share: a main frame with panes and dynamic commands, views, a registry key and a folder of
// the test's own.

#include <afxcontrolbars.h>
#include <afxext.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "MemoryPreferenceStore.h"
#include "Pump.h"
#include "TestApp.h"
#include "windows/DockableViewPane.h"
#include "windows/FensterManager.h"
#include "windows/MainFrmInterface.h"
#include "windows/StandaloneFrameMigrationHelper.h"
#include "windows/StandaloneFrameUser.h"
#include "windows/StandaloneFrameWnd.h"

namespace panes
{
inline int g_views = 0;
/// Run once each by a view: within its creation, at its first update, and when it is given a size.
inline std::function<void(CView &)> g_whileCreated;
inline std::function<void(CView &)> g_atInitialUpdate;
inline std::function<void(CView &)> g_atSize;

class PaneView : public CView
{
    DECLARE_DYNCREATE(PaneView)

public:
    PaneView() { ++g_views; }
    ~PaneView() override { --g_views; }

    int m_initialUpdates = 0;

protected:
    void OnDraw(CDC *) override {}
    void OnInitialUpdate() override;
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnSize(UINT type, int cx, int cy);

    DECLARE_MESSAGE_MAP()
};

/// A view whose window never comes into being.
class RefusingView : public PaneView
{
    DECLARE_DYNCREATE(RefusingView)

protected:
    BOOL PreCreateWindow(CREATESTRUCT &) override { return FALSE; }
};

class PaneFrame : public CMDIFrameWndEx, public CMainFrmInterface
{
    DECLARE_DYNCREATE(PaneFrame)

public:
    PaneFrame() : CMainFrmInterface(this) {}

    using CMainFrmInterface::add_menu_lookup_item;
    using CMainFrmInterface::assign_panes;
    using CMainFrmInterface::dismiss_menu_callbacks;
    using CMainFrmInterface::lookup_item;
    using CMainFrmInterface::menu;
    using CMainFrmInterface::menu_elements;
    using CMainFrmInterface::menu_range;
    using CMainFrmInterface::release_orphan_panes;

    int register_pane(CDockableViewPane *& pane, int id) override
    {
        ++m_registrations;
        return CMainFrmInterface::register_pane(pane, id);
    }

    int m_registrations = 0;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDynamic(UINT id) { menu(id); }

    DECLARE_MESSAGE_MAP()
};

class PaneTest : public testing::Test
{
protected:
    static constexpr unsigned int first_command = 36000;
    static constexpr unsigned int end_of_commands = 36100;

    void SetUp() override;
    void TearDown() override;

    /// Makes the application's registry key have that key below it.
    void StoreKey(CString const & subkey) const;
    bool HasKey(CString const & subkey) const;
    /// The pane that `id` stands for in the frame.
    CDockableViewPane & Pane(int id) { return *m_frame->panes().at(static_cast<unsigned int>(id)); }
    /// A view on the heap, connected with a new pane.
    PaneView * Connected(CDockableViewPane *& pane, wchar_t const * title = L"Scope");
    CRect ClientOf(CWnd const & window) const
    {
        CRect rect;
        window.GetClientRect(&rect);
        return rect;
    }
    /// The commands of the frame's accelerators, in their order.
    std::vector<int> Accelerators() const;

    MemoryPreferenceStore m_store;
    PaneFrame * m_frame = nullptr; // deletes itself
    HWND m_window = nullptr;

private:
    LPCTSTR m_formerKey = nullptr;
    LPCTSTR m_formerProfile = nullptr;
};
} // namespace panes
