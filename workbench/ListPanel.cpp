#include "ListPanel.h"

#include <algorithm>
#include <iterator>

#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;
using workbench::Translatable;

namespace
{

// Lengths in dialog units.
constexpr int strip_height = 17;
constexpr int field_height = 13;
constexpr int label_width = 34;
constexpr int kind_width = 84;
constexpr int part_gap = 4;
constexpr int list_height = 120; // of the kinds

struct Kind
{
    wchar_t const * name;
    workbench::RecordingFilter filter;
};

using State = workbench::RecordingFilter::State;

Kind const kinds[] = {{Translatable(L"All"), {}},
                      {Translatable(L"Marked"), {{}, true, {}, State::any}},
                      {Translatable(L"Not rated"), {{}, false, 0, State::any}},
                      {Translatable(L"Good"), {{}, false, 1, State::any}},
                      {Translatable(L"Usable"), {{}, false, 2, State::any}},
                      {Translatable(L"Rejected"), {{}, false, 3, State::any}},
                      {Translatable(L"Undamaged"), {{}, false, {}, State::sound}},
                      {Translatable(L"Damaged"), {{}, false, {}, State::damaged}},
                      {Translatable(L"Not readable"), {{}, false, {}, State::unreadable}}};

} // namespace

BEGIN_MESSAGE_MAP(CListPanel, CWnd)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_EN_CHANGE(IDC_FILTER_WORDS, &CListPanel::OnFilterChange)
    ON_CBN_SELCHANGE(IDC_FILTER_KIND, &CListPanel::OnFilterChange)
END_MESSAGE_MAP()

bool CListPanel::CreatePanel(CWnd & parent, UINT id, UINT listId, workbench::ScreenMetrics & metrics,
                             CRecordingList & list)
{
    m_metrics = &metrics;
    m_list = &list;
    auto const windowClass =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    // The list comes first, so that it has the focus of the whole.
    if (!CreateEx(WS_EX_CONTROLPARENT, windowClass, L"", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(), &parent,
                  id) ||
        !list.CreateList(*this, listId, metrics) || !m_label.Create(L"", WS_CHILD | SS_CENTERIMAGE, CRect(), this) ||
        !m_words.CreateEx(WS_EX_CLIENTEDGE, L"EDIT", L"", WS_CHILD | WS_TABSTOP | ES_AUTOHSCROLL, CRect(), this,
                          IDC_FILTER_WORDS) ||
        !m_kind.Create(WS_CHILD | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, CRect(), this, IDC_FILTER_KIND))
    {
        return false;
    }
    for (auto * const window :
         {static_cast<CWnd *>(&m_label), static_cast<CWnd *>(&m_words), static_cast<CWnd *>(&m_kind)})
    {
        window->SetFont(&metrics.Font());
    }
    ShowTexts();
    return true;
}

void CListPanel::ShowTexts()
{
    m_label.SetWindowText(Text(L"Filter:"));
    auto const chosen = std::max(m_kind.GetCurSel(), 0);
    m_kind.ResetContent();
    for (auto const & kind : kinds)
    {
        m_kind.AddString(Text(kind.name));
    }
    m_kind.SetCurSel(chosen);
}

void CListPanel::ShowFilter(bool show)
{
    if (!show)
    {
        // The list takes the focus while the field that has it still shows.
        auto const * const focus = GetFocus();
        if (focus == &m_words || focus == &m_kind)
        {
            m_list->SetFocus();
        }
        m_kind.SetCurSel(0);
        m_words.SetWindowText(CString());
        OnFilterChange();
    }
    if (show != m_showsFilter)
    {
        m_showsFilter = show;
        for (auto * const window :
             {static_cast<CWnd *>(&m_label), static_cast<CWnd *>(&m_words), static_cast<CWnd *>(&m_kind)})
        {
            window->ShowWindow(show ? SW_SHOWNA : SW_HIDE);
        }
        Arrange();
    }
    if (show)
    {
        m_words.SetFocus();
        m_words.SetSel(0, -1);
    }
}

void CListPanel::OnFilterChange()
{
    auto const kind = static_cast<std::size_t>(std::max(m_kind.GetCurSel(), 0));
    auto filter = kinds[std::min(kind, std::size(kinds) - 1)].filter;
    CString words;
    m_words.GetWindowText(words);
    filter.words = words.GetString();
    if (filter == m_list->Filter())
    {
        return;
    }
    m_list->SetFilter(filter);
    // A copy, as what it does may replace it.
    if (auto const onFiltered = m_onFiltered)
    {
        onFiltered();
    }
}

/// The keys of the strip; those of the field are not the window's.
BOOL CListPanel::PreTranslateMessage(MSG * message)
{
    auto const inWords = message->hwnd == m_words.m_hWnd;
    auto const inStrip = m_showsFilter && (inWords || message->hwnd == m_kind.m_hWnd);
    if (message->message != WM_KEYDOWN || ::GetKeyState(VK_MENU) < 0 || m_metrics == nullptr)
    {
        return CWnd::PreTranslateMessage(message);
    }
    auto const key = message->wParam;
    auto const control = ::GetKeyState(VK_CONTROL) < 0;
    if (key == VK_ESCAPE && !control && m_showsFilter && !m_list->IsEditing() &&
        !(m_kind.m_hWnd == message->hwnd && m_kind.GetDroppedState()))
    {
        ShowFilter(false);
        return TRUE;
    }
    if (inStrip && !control && (key == VK_RETURN || (inWords && (key == VK_DOWN || key == VK_NEXT))))
    {
        m_list->SetFocus();
        if (m_list->ChosenLine() < 0)
        {
            m_list->ChooseLine(m_list->LineAt(0));
        }
        return TRUE;
    }
    if (inWords && control && key == L'A')
    {
        m_words.SetSel(0, -1);
        return TRUE;
    }
    if (inWords && ((control && (key == L'C' || key == L'V' || key == L'X' || key == L'Z')) || key == VK_DELETE))
    {
        ::TranslateMessage(message);
        ::DispatchMessageW(message);
        return TRUE;
    }
    return CWnd::PreTranslateMessage(message);
}

void CListPanel::Arrange()
{
    if (m_list == nullptr || m_list->GetSafeHwnd() == nullptr)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    auto const strip = m_showsFilter ? m_metrics->Y(strip_height) : 0;
    if (m_showsFilter)
    {
        auto const high = m_metrics->Y(field_height);
        auto const top = (strip - high) / 2;
        auto const gap = m_metrics->X(part_gap);
        auto const label = std::min<int>(m_metrics->X(label_width), client.Width() / 4);
        auto const kind = std::min<int>(m_metrics->X(kind_width), client.Width() / 3);
        auto const right = std::max<int>(client.right - kind - gap, label);
        m_label.MoveWindow(gap, top, std::max(label - gap, 0), high);
        m_words.MoveWindow(label, top, right - label, high);
        // A drop-down list's own height is its font's; the rest is its list's.
        m_kind.MoveWindow(right + gap, top, kind, m_metrics->Y(list_height));
    }
    m_list->MoveWindow(0, strip, client.Width(), std::max<int>(client.Height() - strip, 0));
    // Its titles move along with it and may keep what was below them.
    m_list->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void CListPanel::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    Arrange();
}

void CListPanel::OnSetFocus(CWnd *)
{
    m_list->SetFocus();
}
