// A drawing program: an application object, a main window with a menu, a message map, mouse input and painting.

#include <afxwin.h>

#include <memory>
#include <vector>

#include "../SelfTest.h"
#include "resource.h"

CSelfTest theSelfTest;

/// One line drawn without lifting the pen.
class CStroke : public CObject
{
    DECLARE_DYNAMIC(CStroke)

public:
    CStroke(COLORREF colour, int width) : m_colour(colour), m_width(width) {}

    void Add(CPoint point) { m_points.push_back(point); }
    size_t PointCount() const { return m_points.size(); }
    void Draw(CDC & dc) const
    {
        if (m_points.empty())
            return;
        CPen pen(PS_SOLID, m_width, m_colour);
        CPen * const previous = dc.SelectObject(&pen);
        dc.MoveTo(m_points.front());
        for (CPoint const & point : m_points)
            dc.LineTo(point);
        dc.SelectObject(previous);
    }

private:
    std::vector<CPoint> m_points;
    COLORREF m_colour;
    int m_width;
};

IMPLEMENT_DYNAMIC(CStroke, CObject)

class CDrawingWindow : public CWnd
{
    DECLARE_DYNAMIC(CDrawingWindow)

public:
    BOOL CreateMain();

protected:
    BOOL PreCreateWindow(CREATESTRUCT & cs) override;
    void PostNcDestroy() override { delete this; }

    int OnCreate(LPCREATESTRUCT lpCreateStruct);
    void OnPaint();
    BOOL OnEraseBkgnd(CDC * pDC);
    void OnLButtonDown(UINT nFlags, CPoint point);
    void OnMouseMove(UINT nFlags, CPoint point);
    void OnLButtonUp(UINT nFlags, CPoint point);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnInitMenuPopup(CMenu * pPopupMenu, UINT nIndex, BOOL bSysMenu);
    void OnPenColour(UINT nID);
    void OnPenThick() { m_thick = !m_thick; }
    void OnUndo();
    void OnClear();
    void OnExit() { PostMessage(WM_CLOSE); }
    LRESULT OnSelfTest(WPARAM wParam, LPARAM lParam);

private:
    void ShowCount();
    COLORREF PixelAt(int x, int y);

    std::vector<std::unique_ptr<CStroke>> m_strokes;
    CStroke * m_current = nullptr; // the last of the strokes while the button is down
    UINT m_pen = ID_PEN_BLACK;
    bool m_thick = false;

    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(CDrawingWindow, CWnd)

BEGIN_MESSAGE_MAP(CDrawingWindow, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_KEYDOWN()
    ON_WM_INITMENUPOPUP()
    ON_COMMAND_RANGE(ID_PEN_BLACK, ID_PEN_RED, &CDrawingWindow::OnPenColour)
    ON_COMMAND(ID_PEN_THICK, &CDrawingWindow::OnPenThick)
    ON_COMMAND(ID_DRAWING_UNDO, &CDrawingWindow::OnUndo)
    ON_COMMAND(ID_DRAWING_CLEAR, &CDrawingWindow::OnClear)
    ON_COMMAND(ID_PROGRAM_EXIT, &CDrawingWindow::OnExit)
    ON_MESSAGE(CSelfTest::message, &CDrawingWindow::OnSelfTest)
END_MESSAGE_MAP()

BOOL CDrawingWindow::CreateMain()
{
    LPCTSTR const className = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_CROSS), nullptr,
                                                  ::LoadIcon(nullptr, IDI_APPLICATION));
    CMenu menu;
    if (!menu.LoadMenu(IDR_MAIN_MENU))
        return FALSE;
    return CreateEx(0, className, _T(""), WS_OVERLAPPEDWINDOW, 100, 100, 400, 300, nullptr, menu.Detach());
}

BOOL CDrawingWindow::PreCreateWindow(CREATESTRUCT & cs)
{
    cs.style |= WS_CLIPCHILDREN;
    return CWnd::PreCreateWindow(cs);
}

int CDrawingWindow::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    ShowCount();
    return 0;
}

void CDrawingWindow::ShowCount()
{
    CString format;
    VERIFY(format.LoadString(IDS_TITLE));
    CString title;
    title.Format(format, static_cast<int>(m_strokes.size()));
    SetWindowText(title);
}

void CDrawingWindow::OnPaint()
{
    CPaintDC dc(this);
    for (std::unique_ptr<CStroke> const & stroke : m_strokes)
        stroke->Draw(dc);
}

BOOL CDrawingWindow::OnEraseBkgnd(CDC * pDC)
{
    CRect client;
    GetClientRect(&client);
    pDC->FillSolidRect(client, RGB(255, 255, 255));
    return TRUE;
}

void CDrawingWindow::OnLButtonDown(UINT, CPoint point)
{
    m_strokes.push_back(
        std::make_unique<CStroke>(m_pen == ID_PEN_RED ? RGB(255, 0, 0) : RGB(0, 0, 0), m_thick ? 5 : 1));
    m_current = m_strokes.back().get();
    m_current->Add(point);
    SetCapture();
    ShowCount();
}

void CDrawingWindow::OnMouseMove(UINT, CPoint point)
{
    if (m_current == nullptr || GetCapture() != this)
        return;
    m_current->Add(point);
    CClientDC dc(this);
    m_current->Draw(dc);
}

void CDrawingWindow::OnLButtonUp(UINT nFlags, CPoint point)
{
    OnMouseMove(nFlags, point);
    if (GetCapture() == this)
        ::ReleaseCapture();
    m_current = nullptr;
}

void CDrawingWindow::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_BACK)
        OnUndo();
    else
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CDrawingWindow::OnInitMenuPopup(CMenu * pPopupMenu, UINT, BOOL bSysMenu)
{
    if (bSysMenu)
        return;
    pPopupMenu->EnableMenuItem(ID_DRAWING_UNDO, MF_BYCOMMAND | (m_strokes.empty() ? MF_GRAYED : MF_ENABLED));
    pPopupMenu->CheckMenuRadioItem(ID_PEN_BLACK, ID_PEN_RED, m_pen, MF_BYCOMMAND);
    pPopupMenu->CheckMenuItem(ID_PEN_THICK, MF_BYCOMMAND | (m_thick ? MF_CHECKED : MF_UNCHECKED));
}

void CDrawingWindow::OnPenColour(UINT nID)
{
    m_pen = nID;
}

void CDrawingWindow::OnUndo()
{
    if (m_strokes.empty())
        return;
    m_strokes.pop_back();
    ShowCount();
    Invalidate();
}

void CDrawingWindow::OnClear()
{
    m_strokes.clear();
    ShowCount();
    Invalidate();
}

COLORREF CDrawingWindow::PixelAt(int x, int y)
{
    CClientDC dc(this);
    return dc.GetPixel(x, y);
}

LRESULT CDrawingWindow::OnSelfTest(WPARAM, LPARAM)
{
    auto const drawLine = [this](CPoint from, CPoint to) {
        SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
        SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM((from.x + to.x) / 2, (from.y + to.y) / 2));
        SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(to.x, to.y));
    };
    auto const title = [this] {
        CString text;
        GetWindowText(text);
        return text;
    };
    CMenu * const editMenu = GetMenu()->GetSubMenu(1);
    CMenu * const penMenu = GetMenu()->GetSubMenu(2);

    SELFTEST_CHECK(AfxGetMainWnd() == this);
    SELFTEST_CHECK(IsKindOf(RUNTIME_CLASS(CDrawingWindow)) && IsKindOf(RUNTIME_CLASS(CWnd)));
    SELFTEST_CHECK(title() == _T("Drawing: 0 strokes"));
    SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(editMenu->m_hMenu), 1);
    SELFTEST_CHECK((editMenu->GetMenuState(ID_DRAWING_UNDO, MF_BYCOMMAND) & MF_GRAYED) != 0);

    drawLine({20, 50}, {120, 50});
    SELFTEST_CHECK(title() == _T("Drawing: 1 strokes"));
    SELFTEST_CHECK(m_strokes.front()->PointCount() == 3);
    SELFTEST_CHECK(GetCapture() == nullptr);
    SELFTEST_CHECK(PixelAt(60, 50) == RGB(0, 0, 0));

    SendMessage(WM_COMMAND, ID_PEN_RED);
    SendMessage(WM_COMMAND, ID_PEN_THICK);
    SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(penMenu->m_hMenu), 2);
    SELFTEST_CHECK((penMenu->GetMenuState(ID_PEN_RED, MF_BYCOMMAND) & MF_CHECKED) != 0);
    SELFTEST_CHECK((penMenu->GetMenuState(ID_PEN_BLACK, MF_BYCOMMAND) & MF_CHECKED) == 0);
    SELFTEST_CHECK((penMenu->GetMenuState(ID_PEN_THICK, MF_BYCOMMAND) & MF_CHECKED) != 0);
    drawLine({20, 100}, {120, 100});
    SELFTEST_CHECK(PixelAt(60, 102) == RGB(255, 0, 0));

    Invalidate();
    UpdateWindow();
    SELFTEST_CHECK(PixelAt(60, 50) == RGB(0, 0, 0));
    SELFTEST_CHECK(PixelAt(60, 102) == RGB(255, 0, 0));
    SELFTEST_CHECK(PixelAt(60, 75) == RGB(255, 255, 255));

    SendMessage(WM_KEYDOWN, VK_BACK);
    UpdateWindow();
    SELFTEST_CHECK(PixelAt(60, 102) == RGB(255, 255, 255));
    SELFTEST_CHECK(title() == _T("Drawing: 1 strokes"));
    SendMessage(WM_COMMAND, ID_DRAWING_CLEAR);
    UpdateWindow();
    SELFTEST_CHECK(PixelAt(60, 50) == RGB(255, 255, 255));

    theSelfTest.Finish();
    SendMessage(WM_COMMAND, ID_PROGRAM_EXIT);
    return 0;
}

class CDrawingApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        auto * const window = new CDrawingWindow;
        if (!window->CreateMain())
            return FALSE;
        m_pMainWnd = window;
        window->ShowWindow(m_nCmdShow);
        window->UpdateWindow();
        if (CSelfTest::IsWanted())
            window->PostMessage(CSelfTest::message);
        return TRUE;
    }

    int ExitInstance() override
    {
        int const result = CWinApp::ExitInstance();
        return CSelfTest::IsWanted() ? theSelfTest.ExitCode() : result;
    }
};

CDrawingApp theApp;
