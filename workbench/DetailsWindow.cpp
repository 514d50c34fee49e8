#include "DetailsWindow.h"

#include <algorithm>

#include "resource.h"

namespace
{

constexpr wchar_t c_title[] = L"Recording Details";
constexpr std::size_t c_mostLines = 11;

// Lengths in dialog units.
constexpr int c_margin = 9;
constexpr int c_labelWidth = 52;
constexpr int c_textWidth = 220;
constexpr int c_linePitch = 13;
constexpr int c_spacing = 6;
constexpr int c_buttonWidth = 60;
constexpr int c_buttonHeight = 15;

} // namespace

BEGIN_MESSAGE_MAP(CDetailsWindow, CWnd)
    ON_WM_CLOSE()
    ON_WM_ACTIVATE()
    ON_WM_SETFOCUS()
    ON_COMMAND(IDOK, &CDetailsWindow::OnCloseCommand)
    ON_COMMAND(IDCANCEL, &CDetailsWindow::OnCloseCommand)
END_MESSAGE_MAP()

CDetailsWindow::CDetailsWindow() : m_memory(c_title, CFensterManager::window_dialog) {}

bool CDetailsWindow::Show(CWnd & owner, workbench::ScreenMetrics & metrics,
                          std::vector<workbench::DetailLine> const & lines)
{
    if (GetSafeHwnd() == nullptr && !CreateWindowFor(owner, metrics))
    {
        return false;
    }
    for (std::size_t i = 0; i < m_lines.size(); ++i)
    {
        auto & line = *m_lines[i];
        auto const used = i < lines.size();
        line.label.SetWindowText(used ? (lines[i].label + L':').c_str() : L"");
        line.text.SetWindowText(used ? lines[i].text.c_str() : L"");
        line.text.ShowWindow(used ? SW_SHOWNA : SW_HIDE);
    }
    ShowWindow(SW_SHOW);
    SetActiveWindow();
    return true;
}

bool CDetailsWindow::CreateWindowFor(CWnd & owner, workbench::ScreenMetrics & metrics)
{
    constexpr DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    CSize const margin(metrics.X(c_margin), metrics.Y(c_margin));
    auto const textLeft = margin.cx + metrics.X(c_labelWidth);
    auto const right = textLeft + metrics.X(c_textWidth);
    auto const pitch = metrics.Y(c_linePitch);
    CSize const button(metrics.X(c_buttonWidth), metrics.Y(c_buttonHeight));
    auto const buttonTop = margin.cy + static_cast<int>(c_mostLines) * pitch + metrics.Y(c_spacing);

    CRect window(0, 0, right + margin.cx, buttonTop + button.cy + margin.cy);
    ::AdjustWindowRectEx(&window, style, FALSE, 0);
    CRect place;
    owner.GetWindowRect(&place);
    window.MoveToXY(place.CenterPoint().x - window.Width() / 2, place.CenterPoint().y - window.Height() / 2);
    auto const windowClass =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1),
                            ::LoadIconW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(IDI_WORKBENCH)));
    if (!CreateEx(0, windowClass, c_title, style, window, &owner, 0))
    {
        return false;
    }

    auto created = true;
    m_lines.clear();
    for (std::size_t i = 0; i < c_mostLines; ++i)
    {
        auto const top = margin.cy + static_cast<int>(i) * pitch;
        auto const bottom = top + metrics.LineHeight();
        auto & line = *m_lines.emplace_back(std::make_unique<Line>());
        created = created &&
                  line.label.Create(L"", WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX,
                                    CRect(margin.cx, top, textLeft, bottom), this) &&
                  line.text.Create(WS_CHILD | WS_TABSTOP | ES_READONLY | ES_AUTOHSCROLL,
                                   CRect(textLeft, top, right, bottom), this, 0);
        line.label.SetFont(&metrics.Font());
        line.text.SetFont(i == 0 ? &metrics.BoldFont() : &metrics.Font());
    }
    created = created && m_close.Create(L"&Close", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON,
                                        CRect(CPoint(right - button.cx, buttonTop), button), this, IDCANCEL);
    m_close.SetFont(&metrics.Font());
    if (!created)
    {
        DestroyWindow();
        return false;
    }
    m_lastFocus = m_close.m_hWnd;
    m_memory.PreferedPosition(window);
    m_memory.ReadMyPosition(this);
    return true;
}

BOOL CDetailsWindow::PreTranslateMessage(MSG * message)
{
    return CWnd::PreTranslateMessage(message) || IsDialogMessage(message);
}

void CDetailsWindow::OnActivate(UINT state, CWnd * other, BOOL minimized)
{
    CWnd::OnActivate(state, other, minimized);
    if (state == WA_INACTIVE)
    {
        auto const * const focus = GetFocus();
        m_lastFocus = focus != nullptr && IsChild(focus) ? focus->m_hWnd : m_lastFocus;
    }
}

void CDetailsWindow::OnSetFocus(CWnd *)
{
    if (::IsWindow(m_lastFocus))
    {
        ::SetFocus(m_lastFocus);
    }
}

void CDetailsWindow::OnClose()
{
    m_memory.CalcMyPosition(this);
    m_memory.SaveMyPosition(true);
    DestroyWindow();
}

void CDetailsWindow::OnCloseCommand()
{
    PostMessage(WM_CLOSE);
}
