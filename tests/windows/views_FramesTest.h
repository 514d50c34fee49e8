#pragma once
// What the tests of frames share: a main frame, documents, views.

#include <afxcontrolbars.h>
#include <afxext.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "MemoryPreferenceStore.h"
#include "Pump.h"
#include "TestApp.h"
#include "views_resource.h"
#include "windows/FensterManager.h"

namespace frames
{
/// What happened, in order, in all the classes below.
inline std::vector<std::string> g_log;
/// Run by a view within its creation, at its first update and in its end.
inline std::function<void(CView &)> g_whileCreated;
inline std::function<void(CView &)> g_atInitialUpdate;
inline int g_views = 0;
inline int g_documents = 0;
inline int g_frames = 0;

class TestDocument : public CDocument
{
    DECLARE_DYNCREATE(TestDocument)

public:
    TestDocument() { ++g_documents; }
    ~TestDocument() override { --g_documents; }

    BOOL OnNewDocument() override
    {
        g_log.push_back("document new");
        return !m_refuse && CDocument::OnNewDocument();
    }
    void DeleteContents() override { g_log.push_back("document empty"); }

    inline static bool m_refuse = false;

    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override
    {
        if (nID == ID_TEST_ROUTED && nCode == CN_COMMAND && pHandlerInfo == nullptr)
            g_log.push_back("document asked");
        return CDocument::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }
};

class TestView : public CView
{
    DECLARE_DYNCREATE(TestView)

public:
    TestView() { ++g_views; }
    ~TestView() override { --g_views; }

    int m_updates = 0;
    int m_draws = 0;
    LPARAM m_hint = 0;
    CView * m_sender = nullptr;

    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override
    {
        if (nID == ID_TEST_ROUTED && nCode == CN_COMMAND && pHandlerInfo == nullptr)
            g_log.push_back("view asked");
        return CView::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

protected:
    void OnDraw(CDC *) override { ++m_draws; }
    void OnInitialUpdate() override
    {
        g_log.push_back("view initial update");
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
    void OnUpdate(CView * pSender, LPARAM lHint, CObject * pHint) override
    {
        ++m_updates;
        m_hint = lHint;
        m_sender = pSender;
        CView::OnUpdate(pSender, lHint, pHint);
    }
    void OnActivateView(BOOL bActivate, CView * pActivateView, CView * pDeactiveView) override
    {
        g_log.push_back(bActivate ? "view active" : "view inactive");
        CView::OnActivateView(bActivate, pActivateView, pDeactiveView);
    }
    afx_msg int OnCreate(LPCREATESTRUCT lpcs)
    {
        if (CView::OnCreate(lpcs) == -1)
            return -1;
        g_log.push_back("view created");
        if (g_whileCreated)
        {
            auto const action = std::exchange(g_whileCreated, {});
            action(*this);
        }
        return 0;
    }
    afx_msg void OnDestroy()
    {
        g_log.push_back("view destroyed");
        CView::OnDestroy();
    }

    DECLARE_MESSAGE_MAP()
};

/// Views that can be told from each other.
template <int number> class NumberedView : public TestView
{
public:
    static CRuntimeClass * Class()
    {
        static CRuntimeClass runtimeClass = MakeClass();
        return &runtimeClass;
    }
    CRuntimeClass * GetRuntimeClass() const override { return Class(); }

private:
    static CRuntimeClass MakeClass()
    {
        CRuntimeClass made = *RUNTIME_CLASS(TestView);
        made.m_lpszClassName = "NumberedView";
        made.m_pfnCreateObject = []() { return static_cast<CObject *>(new NumberedView); };
        made.m_pfnGetBaseClass = []() { return RUNTIME_CLASS(TestView); };
        return made;
    }
};

/// A view whose window never comes into being.
class RefusingView : public TestView
{
    DECLARE_DYNCREATE(RefusingView)

protected:
    BOOL PreCreateWindow(CREATESTRUCT &) override { return FALSE; }
};

/// A pane that is no view.
class PlainPane : public CWnd
{
    DECLARE_DYNCREATE(PlainPane)

protected:
    void PostNcDestroy() override { delete this; }
};

class TestMain : public CMDIFrameWndEx
{
    DECLARE_DYNCREATE(TestMain)

public:
    TestMain() { ++g_frames; }
    ~TestMain() override { --g_frames; }

    int m_keys = 0;

    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override
    {
        if (nID == ID_TEST_ROUTED && nCode == CN_COMMAND && pHandlerInfo == nullptr)
            g_log.push_back("main asked");
        return CMDIFrameWndEx::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

protected:
    afx_msg void OnKey() { ++m_keys; }
    afx_msg void OnUpdateChecked(CCmdUI * pCmdUI) { pCmdUI->SetCheck(TRUE); }
    afx_msg void OnChecked() {}
    afx_msg void OnUpdateGrowing(CCmdUI * pCmdUI)
    {
        if (pCmdUI->m_pMenu != nullptr)
            pCmdUI->m_pMenu->InsertMenu(pCmdUI->m_nIndex++, MF_BYPOSITION | MF_STRING, ID_TEST_GROWN, L"Grown");
        pCmdUI->Enable(TRUE);
    }

    DECLARE_MESSAGE_MAP()
};

class TestChild : public CMDIChildWndEx
{
    DECLARE_DYNCREATE(TestChild)

public:
    TestChild() { ++g_frames; }
    ~TestChild() override { --g_frames; }

    bool m_takes = false;

    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override
    {
        if (nID == ID_TEST_ROUTED && nCode == CN_COMMAND && pHandlerInfo == nullptr)
            g_log.push_back("child asked");
        return CMDIChildWndEx::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

protected:
    afx_msg BOOL OnRouted(UINT)
    {
        g_log.push_back("child routed");
        return m_takes;
    }

    DECLARE_MESSAGE_MAP()
};

/// A main frame on the screen, and a store in memory.
class FramesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        CVeskBase::SetPreferenceVesk(&m_store);
        CFensterManager::SetNurEinMonitor(false);
        g_log.clear();
        m_main = new TestMain;
        ASSERT_TRUE(m_main->LoadFrame(IDR_MAIN, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE));
        tests::App().m_pMainWnd = m_main;
        m_main->SetWindowPos(nullptr, 60, 40, 900, 700, SWP_NOZORDER);
        m_main->ShowWindow(SW_SHOWNORMAL);
        m_main->UpdateWindow();
        m_main->SetForegroundWindow();
        tests::PumpPosted();
        g_log.clear();
        m_window = m_main->m_hWnd;
    }
    void TearDown() override
    {
        g_whileCreated = {};
        g_atInitialUpdate = {};
        if (::IsWindow(m_window))
            ::DestroyWindow(m_window);
        tests::App().m_pMainWnd = nullptr;
        MSG message;
        while (::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
        {
        }
        CVeskBase::SetPreferenceVesk(nullptr);
        CFensterManager::SetNurEinMonitor(true);
        CFensterManager(CFensterManager::window_main).SetNowExit(false);
        EXPECT_EQ(g_views, 0);
        EXPECT_EQ(g_documents, 0);
        EXPECT_EQ(g_frames, 0);
    }

    CString TitleOf(CWnd const & window) const
    {
        CString title;
        window.GetWindowText(title);
        return title;
    }

    MemoryPreferenceStore m_store;
    TestMain * m_main = nullptr;
    HWND m_window = nullptr;
};
} // namespace frames
