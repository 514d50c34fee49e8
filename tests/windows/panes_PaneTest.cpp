#include "panes_PaneTest.h"

namespace panes
{
IMPLEMENT_DYNCREATE(PaneView, CView)
IMPLEMENT_DYNCREATE(RefusingView, PaneView)
IMPLEMENT_DYNCREATE(PaneFrame, CMDIFrameWndEx)

BEGIN_MESSAGE_MAP(PaneView, CView)
    ON_WM_CREATE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(PaneFrame, CMDIFrameWndEx)
    ON_WM_CREATE()
    ON_COMMAND_RANGE(36000, 36099, &PaneFrame::OnDynamic)
END_MESSAGE_MAP()

void PaneView::OnInitialUpdate()
{
    ++m_initialUpdates;
    if (g_atInitialUpdate)
    {
        auto const action = std::exchange(g_atInitialUpdate, {});
        HWND const window = m_hWnd;
        action(*this);
        if (!::IsWindow(window))
            return;
    }
    CView::OnInitialUpdate();
}

int PaneView::OnCreate(LPCREATESTRUCT cs)
{
    if (CView::OnCreate(cs) == -1)
        return -1;
    if (g_whileCreated)
    {
        auto const action = std::exchange(g_whileCreated, {});
        action(*this);
    }
    return 0;
}

void PaneView::OnSize(UINT type, int cx, int cy)
{
    CView::OnSize(type, cx, cy);
    if (g_atSize)
    {
        auto const action = std::exchange(g_atSize, {});
        action(*this);
    }
}

int PaneFrame::OnCreate(LPCREATESTRUCT cs)
{
    if (CMDIFrameWndEx::OnCreate(cs) == -1)
        return -1;
    EnableDocking(CBRS_ALIGN_ANY);
    return 0;
}

void PaneTest::SetUp()
{
    CVeskBase::SetPreferenceVesk(&m_store);
    CFensterManager::SetNurEinMonitor(false);
    CWinApp & app = tests::App();
    m_formerKey = std::exchange(app.m_pszRegistryKey, L"InstrumentUiPaneTests");
    m_formerProfile = std::exchange(app.m_pszProfileName, L"Panes");
    ::RegDeleteTree(HKEY_CURRENT_USER, L"software\\InstrumentUiPaneTests");
    m_frame = new PaneFrame;
    ASSERT_TRUE(m_frame->Create(nullptr, L"Panes", WS_OVERLAPPEDWINDOW, CRect(60, 40, 960, 740)));
    tests::App().m_pMainWnd = m_frame;
    m_window = m_frame->m_hWnd;
    m_frame->base_id(CMainFrmInterface::id_base);
    m_frame->menu_range(first_command, end_of_commands);
    m_frame->ShowWindow(SW_SHOW);
    m_frame->UpdateWindow();
    tests::PumpPosted();
}

void PaneTest::TearDown()
{
    g_whileCreated = {};
    g_atInitialUpdate = {};
    g_atSize = {};
    if (::IsWindow(m_window))
        ::DestroyWindow(m_window);
    tests::App().m_pMainWnd = nullptr;
    MSG message;
    while (::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
    {
    }
    ::RegDeleteTree(HKEY_CURRENT_USER, L"software\\InstrumentUiPaneTests");
    CWinApp & app = tests::App();
    app.m_pszRegistryKey = m_formerKey;
    app.m_pszProfileName = m_formerProfile;
    CVeskBase::SetPreferenceVesk(nullptr);
    CFensterManager::SetNurEinMonitor(true);
    EXPECT_EQ(g_views, 0);
}

void PaneTest::StoreKey(CString const & subkey) const
{
    HKEY const app = tests::App().GetAppRegistryKey();
    HKEY made = nullptr;
    ASSERT_EQ(::RegCreateKeyEx(app, subkey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &made, nullptr), ERROR_SUCCESS);
    ::RegCloseKey(made);
    ::RegCloseKey(app);
}

bool PaneTest::HasKey(CString const & subkey) const
{
    HKEY const app = tests::App().GetAppRegistryKey();
    HKEY found = nullptr;
    bool const there = ::RegOpenKeyEx(app, subkey, 0, KEY_READ, &found) == ERROR_SUCCESS;
    if (there)
        ::RegCloseKey(found);
    ::RegCloseKey(app);
    return there;
}

PaneView * PaneTest::Connected(CDockableViewPane *& pane, wchar_t const * title)
{
    if (m_frame->register_pane(pane, -1) < 0)
        return nullptr;
    auto * const view = new PaneView;
    return pane->Connect(*view, title) ? view : nullptr;
}

std::vector<int> PaneTest::Accelerators() const
{
    std::vector<ACCEL> entries(static_cast<size_t>(::CopyAcceleratorTable(m_frame->m_hAccelTable, nullptr, 0)));
    ::CopyAcceleratorTable(m_frame->m_hAccelTable, entries.data(), static_cast<int>(entries.size()));
    std::vector<int> commands;
    for (ACCEL const & entry : entries)
        commands.push_back(entry.cmd);
    return commands;
}
} // namespace panes
