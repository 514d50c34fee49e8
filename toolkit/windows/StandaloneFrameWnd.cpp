#include "windows/StandaloneFrameWnd.h"

#include <algorithm>
#include <new>

#include "frame/CoreLibrary.h"
#include "frame/ToolkitModule.h"
#include "frame/WindowAlive.h"
#include "resource_ids.h"
#include "windows/FrameGrid.h"

IMPLEMENT_DYNCREATE(CStandaloneFrameWnd, CMDIChildWndEx)

BEGIN_MESSAGE_MAP(CStandaloneFrameWnd, CMDIChildWndEx)
    ON_WM_DESTROY()
    ON_WM_CREATE()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDBLCLK()
    ON_WM_MOVING()
    ON_WM_SIZING()
END_MESSAGE_MAP()

bool CStandaloneFrameWnd::g_touchFreeze = false;

namespace
{
constexpr wchar_t name_before_window[] = L"in Vorbereitung";
constexpr int no_index = -1;
constexpr int first_pane_size = 100;
} // namespace

CStandaloneFrameWnd::CStandaloneFrameWnd()
    : m_fenster(name_before_window, CFensterManager::window_mdi_child),
      m_icon(nullptr),
      m_split(false),
      m_rows(0),
      m_cols(0),
      m_paneClasses(nullptr),
      m_paneSize{first_pane_size, first_pane_size},
      m_hasUser(false),
      m_user(nullptr)
{
    CResourceModuleScope const scope(g_toolkitModule.hModule);
    if (CWinApp * const app = AfxGetApp())
        m_icon = app->LoadIcon(TOOLKIT_ICON_STANDARD);
}

CStandaloneFrameWnd::~CStandaloneFrameWnd()
{
    delete[] m_paneClasses;
}

bool CStandaloneFrameWnd::Erzeugen(CString const & title, CRuntimeClass * viewClass, unsigned long style)
{
    CCreateContext context{};
    context.m_pNewViewClass = viewClass;
    if (!CMDIChildWnd::Create(nullptr, title, style, rectDefault, nullptr, nullptr))
        return false;
    WindowHold const hold(*this);
    if (viewClass == nullptr || CreateView(&context, AFX_IDW_PANE_FIRST) == nullptr || hold.Lost())
        return false;
    return ShowFirstTime();
}

bool CStandaloneFrameWnd::SplitFrameErzeugen(CString const & title, unsigned long long rows, unsigned long long columns,
                                             CRuntimeClass ** viewClasses)
{
    m_split = true;
    m_rows = rows;
    m_cols = columns;
    std::optional<std::size_t> const count = frame_grid::CellCount(rows, columns);
    auto ** const classes = count && viewClasses != nullptr ? new (std::nothrow) CRuntimeClass *[*count] : nullptr;
    if (classes == nullptr)
        return false;
    std::copy_n(viewClasses, *count, classes);
    delete[] m_paneClasses;
    m_paneClasses = classes;
    // The grid comes into being in OnCreateClient.
    if (!CMDIChildWnd::Create(nullptr, title, WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, rectDefault, nullptr,
                              nullptr))
        return false;
    return ShowFirstTime();
}

/// What follows the creation. False if the frame has ended meanwhile.
bool CStandaloneFrameWnd::ShowFirstTime()
{
    WindowHold const hold(*this);
    InitialUpdateFrame(nullptr, TRUE);
    if (hold.Lost())
        return false;
    ::SendMessageW(hold.Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(m_icon));
    if (hold.Lost())
        return false;
    if (m_hasUser)
        m_user->m_frameLebt = true;
    return true;
}

BOOL CStandaloneFrameWnd::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext * pContext)
{
    if (!m_split)
        return CMDIChildWndEx::OnCreateClient(lpcs, pContext);
    if (!m_splitter.CreateStatic(this, static_cast<int>(m_rows), static_cast<int>(m_cols), WS_CHILD | WS_VISIBLE,
                                 AFX_IDW_PANE_FIRST))
        return 0;
    WindowHold const hold(*this);
    WindowHold const grid(m_splitter);
    CRuntimeClass ** next = m_paneClasses;
    for (unsigned long long row = 0; row < m_rows; ++row)
    {
        for (unsigned long long column = 0; column < m_cols; ++column)
        {
            bool const made = m_splitter.CreateView(static_cast<int>(row), static_cast<int>(column), *next,
                                                    CSize(m_paneSize[1], m_paneSize[0]), pContext) != FALSE;
            if (hold.Lost())
                return 0;
            if (!made || grid.Lost())
            {
                m_splitter.DestroyWindow();
                return 0;
            }
            ++next;
        }
    }
    return 1;
}

void CStandaloneFrameWnd::BitteUmNachricht(CStandaloneFrameUser * user)
{
    m_hasUser = true;
    m_user = user;
    user->m_frameLebt = true;
}

CView * CStandaloneFrameWnd::GetSplitPane(int row, int column)
{
    if (!m_split || !frame_grid::BeforeEnds(row, column, m_rows, m_cols) || m_splitter.m_hWnd == nullptr)
        return nullptr;
    return DYNAMIC_DOWNCAST(CView, m_splitter.GetPane(row, column));
}

void CStandaloneFrameWnd::MenueKommando(int first, int second)
{
    if (m_user != nullptr)
        m_user->MenueKommando(first, second);
}

void CStandaloneFrameWnd::FensterWeg()
{
    if (m_hWnd == nullptr)
        return;
    CMDIFrameWnd * const frame = GetMDIFrame();
    if (frame == nullptr)
        return;
    // Held by its handle: whoever hears of the style may end the main frame.
    HWND const window = frame->m_hWnd;
    LONG const style =
        ::SetWindowLongW(window, GWL_STYLE, ::GetWindowLongW(window, GWL_STYLE) & ~static_cast<LONG>(FWS_ADDTOTITLE));
    if (!::IsWindow(window))
        return;
    ::SetWindowLongW(window, GWL_STYLE, style);
    if (StillHas(frame, window))
        frame->OnUpdateFrameTitle(1);
}

CFensterManager * CStandaloneFrameWnd::FensterManager()
{
    return &m_fenster;
}

CFensterManager const * CStandaloneFrameWnd::FensterManager() const
{
    return &m_fenster;
}

void CStandaloneFrameWnd::FensterpositionLaden()
{
    m_fenster.ReadMyPosition(this);
}

void CStandaloneFrameWnd::FensterpositionSpeichern()
{
    m_fenster.CalcMyPosition(this);
    m_fenster.SaveMyPosition(false);
}

bool CStandaloneFrameWnd::OpenInitially() const
{
    return m_fenster.OpenInitially();
}

void CStandaloneFrameWnd::EnableCloseButton(bool enable)
{
    CMenu * const menu = GetSystemMenu(FALSE);
    if (menu != nullptr)
        menu->EnableMenuItem(SC_CLOSE, enable ? MF_ENABLED : MF_GRAYED | MF_DISABLED);
}

bool CStandaloneFrameWnd::IsInTouchFreeze()
{
    return g_touchFreeze;
}

void CStandaloneFrameWnd::SetTouchFreeze(bool freeze)
{
    g_touchFreeze = freeze;
}

BOOL CStandaloneFrameWnd::PreCreateWindow(CREATESTRUCT & cs)
{
    cs.style &= ~static_cast<LONG>(FWS_ADDTOTITLE);
    return CMDIChildWndEx::PreCreateWindow(cs);
}

void CStandaloneFrameWnd::ActivateFrame(int)
{
    CMDIChildWndEx::ActivateFrame(static_cast<int>(m_fenster.WhatsMyStyle()));
}

int CStandaloneFrameWnd::IsReadOnly()
{
    return 1;
}

int CStandaloneFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    WindowHold const hold(*this);
    if (CMDIChildWndEx::OnCreate(lpCreateStruct) == -1)
        return -1;
    m_fenster.WhoAmI(lpCreateStruct->lpszName);
    m_fenster.ReadMyPosition(this);
    return hold.Lost() ? -1 : 0;
}

void CStandaloneFrameWnd::OnDestroy()
{
    WindowHold const hold(*this);
    if (m_hasUser)
    {
        m_hasUser = false;
        m_user->BeiFrameAbleben();
        if (hold.Lost())
            return;
    }
    m_fenster.CalcMyPosition(this);
    m_fenster.SaveMyPosition(true);
    CMDIChildWndEx::OnDestroy();
}

void CStandaloneFrameWnd::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    WindowHold const hold(*this);
    if (m_user != nullptr)
        m_user->MausLDoppelKlick(nFlags, point, no_index);
    if (!hold.Lost())
        CMDIChildWndEx::OnLButtonDblClk(nFlags, point);
}

void CStandaloneFrameWnd::OnRButtonDblClk(UINT nFlags, CPoint point)
{
    WindowHold const hold(*this);
    if (m_user != nullptr)
        m_user->MausRDoppelKlick(nFlags, point, no_index);
    if (!hold.Lost())
        CMDIChildWndEx::OnRButtonDblClk(nFlags, point);
}

void CStandaloneFrameWnd::OnMoving(UINT nSide, LPRECT lpRect)
{
    CMDIChildWndEx::OnMoving(nSide, lpRect);
    if (g_touchFreeze)
        GetWindowRect(lpRect);
}

void CStandaloneFrameWnd::OnSizing(UINT nSide, LPRECT lpRect)
{
    CMDIChildWndEx::OnSizing(nSide, lpRect);
    if (g_touchFreeze)
        GetWindowRect(lpRect);
}
