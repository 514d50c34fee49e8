// Stand-alone frames and frames of documents, with views and users that open, change and end them in every message and
// call that they get.

#include <afxcontrolbars.h>
#include <afxext.h>

#include <algorithm>
#include <vector>

#include "chaos_Chaos.h"
#include "MemoryPreferenceStore.h"
#include "windows/StandaloneFrameUser.h"
#include "windows/StandaloneFrameWnd.h"

namespace
{
class World;
World * g_world = nullptr;

void DisturbTheWorld();

/// A view that disturbs the world in what it is told.
class ChaoticView : public CView
{
    DECLARE_DYNCREATE(ChaoticView)

protected:
    void OnDraw(CDC *) override {}
    BOOL PreCreateWindow(CREATESTRUCT & cs) override;
    void OnInitialUpdate() override
    {
        HWND const window = m_hWnd;
        DisturbTheWorld();
        if (::IsWindow(window))
            CView::OnInitialUpdate();
    }
    void OnActivateView(BOOL bActivate, CView * pActivateView, CView * pDeactiveView) override
    {
        HWND const window = m_hWnd;
        DisturbTheWorld();
        if (::IsWindow(window) && bActivate)
            CView::OnActivateView(bActivate, pActivateView, pDeactiveView);
    }
    void OnActivateFrame(UINT, CFrameWnd *) override { DisturbTheWorld(); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        bool const quiet = message == WM_NCDESTROY || message == WM_NCCREATE;
        HWND const window = m_hWnd;
        if (!quiet)
            DisturbTheWorld();
        if (!::IsWindow(window))
            return 0;
        return CView::WindowProc(message, wParam, lParam);
    }
};

class ChaoticDocument : public CDocument
{
    DECLARE_DYNCREATE(ChaoticDocument)

public:
    BOOL OnNewDocument() override;
    void OnChangedViewList() override
    {
        CDocument::OnChangedViewList(); // it may be gone after this
    }
    void PreCloseFrame(CFrameWnd * pFrame) override
    {
        HWND const window = pFrame->m_hWnd;
        DisturbTheWorld();
        if (::IsWindow(window))
            CDocument::PreCloseFrame(pFrame);
    }
    void DeleteContents() override {}
};

class ChaoticChild : public CMDIChildWndEx
{
    DECLARE_DYNCREATE(ChaoticChild)
};

class ChaoticMain : public CMDIFrameWndEx
{
public:
    BOOL Show()
    {
        if (!Create(nullptr, L"Chaos", WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, CRect(50, 50, 850, 650)))
            return FALSE;
        ShowWindow(SW_SHOWNOACTIVATE);
        return TRUE;
    }
};

class User : public CStandaloneFrameUser
{
public:
    ~User() override;
    CStandaloneFrameWnd * Open(wchar_t const * title, CRuntimeClass * viewClass)
    {
        return CreateFrame(title, viewClass);
    }
    void BeiFrameAbleben() override;
    void MausLDoppelKlick(unsigned int, CPoint, int) override { DisturbTheWorld(); }
    void MausRDoppelKlick(unsigned int, CPoint, int) override { DisturbTheWorld(); }
    void MenueKommando(int, int) override { DisturbTheWorld(); }

    bool m_told = false; // of the end of its frame
};

class World : public chaos::Chaos
{
public:
    explicit World(unsigned int seed)
        : Chaos(seed),
          m_template(1, RUNTIME_CLASS(ChaoticDocument), RUNTIME_CLASS(ChaoticChild), RUNTIME_CLASS(ChaoticView))
    {
        g_world = this;
        CVeskBase::SetPreferenceVesk(&m_store);
        m_main = new ChaoticMain;
        m_main->Show();
        tests::App().m_pMainWnd = m_main;
    }
    ~World() override
    {
        m_main->DestroyWindow();
        while (!m_users.empty())
            delete m_users.back();
        tests::App().m_pMainWnd = nullptr;
        MSG message;
        while (::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
        {
        }
        CVeskBase::SetPreferenceVesk(nullptr);
        CStandaloneFrameWnd::SetTouchFreeze(false);
        g_world = nullptr;
    }

    bool Refuses() { return OneIn(40); }
    void Forget(User * user) { std::erase(m_users, user); }

protected:
    void Operate() override
    {
        ++m_level;
        OperateOnce();
        --m_level;
    }
    void OperateOnce()
    {
        switch (Pick(16))
        {
        case 0:
        case 1:
            OpenWithUser();
            break;
        case 2:
            Note("open a grid");
            OpenGrid();
            break;
        case 3:
            Note("open a document");
            if (Children().size() < most_frames)
                m_template.OpenDocumentFile(nullptr);
            break;
        case 4:
            Note("close a frame");
            if (CMDIChildWnd * const frame = AnyFrame())
                frame->SendMessage(WM_CLOSE);
            break;
        case 5:
            Note("destroy a frame");
            if (CMDIChildWnd * const frame = AnyFrame())
                frame->DestroyWindow();
            break;
        case 6:
            Note("activate");
            if (CMDIChildWnd * const frame = AnyFrame())
                OneIn(2) ? frame->MDIActivate() : frame->ActivateFrame(Pick(12) - 1);
            break;
        case 7:
            Note("size");
            if (CMDIChildWnd * const frame = AnyFrame())
                frame->MoveWindow(Pick(300), Pick(200), 50 + Pick(400), 50 + Pick(300));
            break;
        case 8:
            Note("double click");
            if (CMDIChildWnd * const frame = AnyFrame())
                frame->SendMessage(OneIn(2) ? WM_LBUTTONDBLCLK : WM_RBUTTONDBLCLK, 0, 0);
            break;
        case 9:
            Note("end a user without a frame");
            EndUser();
            break;
        case 10:
            Note("touch freeze");
            CStandaloneFrameWnd::SetTouchFreeze(OneIn(2));
            CFensterManager::ActivateTouchFreeze(OneIn(2));
            break;
        case 11:
            Note("new window");
            if (Children().size() < most_frames && m_main->MDIGetActive() != nullptr &&
                m_main->MDIGetActive()->GetActiveDocument() != nullptr)
                m_main->SendMessage(WM_COMMAND, ID_WINDOW_NEW);
            break;
        case 12:
            Note("all documents");
            OneIn(8) ? m_template.CloseAllDocuments(FALSE) : UpdateDocuments();
            break;
        case 13:
            Note("the frame's own operations");
            if (auto * const frame = DYNAMIC_DOWNCAST(CStandaloneFrameWnd, AnyFrame()))
                Use(*frame);
            break;
        case 14:
            Note("idle");
            tests::App().OnIdle(0);
            break;
        default:
            Note("arrange");
            OneIn(2) ? m_main->MDICascade() : m_main->MDITile();
            break;
        }
        tests::App().Reset(); // a refused document says so in a box
    }

    void CheckInvariants() override
    {
        ASSERT_TRUE(::IsWindow(m_main->m_hWnd));
        EXPECT_LE(Children().size(), most_frames + chaos::deepest);
    }

private:
    static constexpr size_t most_frames = 12;

    std::vector<CMDIChildWnd *> Children() const
    {
        std::vector<CMDIChildWnd *> children;
        for (HWND window = ::GetWindow(m_main->m_hWndMDIClient, GW_CHILD); window != nullptr;
             window = ::GetWindow(window, GW_HWNDNEXT))
        {
            if (auto * const child = DYNAMIC_DOWNCAST(CMDIChildWnd, CWnd::FromHandlePermanent(window)))
                children.push_back(child);
        }
        return children;
    }
    CMDIChildWnd * AnyFrame()
    {
        std::vector<CMDIChildWnd *> const children = Children();
        return children.empty() ? nullptr : children[static_cast<size_t>(Pick(static_cast<int>(children.size())))];
    }
    void OpenWithUser()
    {
        Note("open a frame");
        if (Children().size() >= most_frames)
            return;
        auto * const user = new User;
        m_users.push_back(user);
        CString title;
        title.Format(L"Frame %d", Pick(5));
        user->Open(title, RUNTIME_CLASS(ChaoticView));
    }
    void OpenGrid()
    {
        if (Children().size() >= most_frames)
            return;
        std::vector<CRuntimeClass *> classes(4, RUNTIME_CLASS(ChaoticView));
        (new CStandaloneFrameWnd)->SplitFrameErzeugen(L"Grid", 2, 2, classes.data());
    }
    /// A user has to stay until its frame has gone for good, which is so outside of all other operations.
    void EndUser()
    {
        if (m_level > 1)
            return;
        auto const free = std::find_if(m_users.begin(), m_users.end(), [](User * user) { return user->m_told; });
        if (free != m_users.end())
            delete *free;
    }
    void UpdateDocuments()
    {
        for (POSITION at = m_template.GetFirstDocPosition(); at != nullptr;)
        {
            CDocument * const document = m_template.GetNextDoc(at);
            OneIn(2) ? document->UpdateAllViews(nullptr) : document->SetTitle(L"Title");
            return; // the list may have changed
        }
    }
    void Use(CStandaloneFrameWnd & frame)
    {
        switch (Pick(6))
        {
        case 0:
            frame.FensterpositionLaden();
            break;
        case 1:
            frame.FensterpositionSpeichern();
            break;
        case 2:
            frame.EnableCloseButton(OneIn(2));
            break;
        case 3:
            frame.FensterWeg();
            break;
        case 4:
            frame.GetSplitPane(Pick(3), Pick(3));
            break;
        default:
            frame.RecalcLayout();
            break;
        }
    }

    MemoryPreferenceStore m_store;
    CMultiDocTemplate m_template;
    ChaoticMain * m_main = nullptr;
    std::vector<User *> m_users;
    int m_level = 0; // of operations within operations
};

void DisturbTheWorld()
{
    if (g_world != nullptr)
        g_world->Disturb();
}

User::~User()
{
    if (g_world != nullptr)
        g_world->Forget(this);
}

void User::BeiFrameAbleben()
{
    m_told = true;
    CStandaloneFrameUser::BeiFrameAbleben();
    DisturbTheWorld();
}

BOOL ChaoticView::PreCreateWindow(CREATESTRUCT & cs)
{
    return !(g_world != nullptr && g_world->Refuses()) && CView::PreCreateWindow(cs);
}

BOOL ChaoticDocument::OnNewDocument()
{
    return !(g_world != nullptr && g_world->Refuses()) && CDocument::OnNewDocument();
}

IMPLEMENT_DYNCREATE(ChaoticView, CView)
IMPLEMENT_DYNCREATE(ChaoticDocument, CDocument)
IMPLEMENT_DYNCREATE(ChaoticChild, CMDIChildWndEx)
} // namespace

TEST(ChaosFrames, SurvivesUsersViewsAndDocumentsThatDoTheirWorst)
{
    // With the focus in a window that stays, so does the window that the system makes for the input method.
    tests::ScopedWindow keeper;
    keeper.SetFocus();
    tests::PumpPosted();
    chaos::RunAll<World>();
}
