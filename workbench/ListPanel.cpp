#include "ListPanel.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "DrawingScopes.h"
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
constexpr int check_room = 14; // of a check box beside its text
constexpr int choice_width = 66;
constexpr int part_gap = 4;
constexpr int list_height = 120; // of the choices

using State = workbench::RecordingFilter::State;

// The choices by their places; the first one lets all through.
constexpr wchar_t const * states[] = {Translatable(L"Any status"), Translatable(L"Undamaged"), Translatable(L"Damaged"),
                                      Translatable(L"Not readable")};
constexpr State state_values[] = {State::any, State::sound, State::damaged, State::unreadable};

/// Fills a choice anew and keeps what is chosen.
void Fill(CComboBox & choice, std::vector<wchar_t const *> const & texts)
{
    int const chosen = std::max(choice.GetCurSel(), 0);
    choice.ResetContent();
    for (wchar_t const * const text : texts)
    {
        choice.AddString(text);
    }
    choice.SetCurSel(chosen);
}

} // namespace

BEGIN_MESSAGE_MAP(CListPanel, CPanel)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_EN_CHANGE(IDC_FILTER_WORDS, &CListPanel::OnFilterChange)
    ON_BN_CLICKED(IDC_FILTER_MARKED, &CListPanel::OnFilterChange)
    ON_CBN_SELCHANGE(IDC_FILTER_RATING, &CListPanel::OnFilterChange)
    ON_CBN_SELCHANGE(IDC_FILTER_STATE, &CListPanel::OnFilterChange)
END_MESSAGE_MAP()

bool CListPanel::CreatePanel(CWnd & parent, UINT id, UINT listId, workbench::ScreenMetrics & metrics,
                             CRecordingList & list)
{
    m_metrics = &metrics;
    m_list = &list;
    constexpr DWORD choice_style = WS_CHILD | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST;
    // The list comes first, so that it has the focus of the whole.
    if (!CreatePanelWindow(L"", parent, id) || !list.CreateList(*this, listId, metrics) ||
        !m_label.Create(L"", WS_CHILD | SS_CENTERIMAGE, CRect(), this) ||
        !m_words.CreateEx(WS_EX_CLIENTEDGE, L"EDIT", L"", WS_CHILD | WS_TABSTOP | ES_AUTOHSCROLL, CRect(), this,
                          IDC_FILTER_WORDS) ||
        !m_marked.Create(L"", WS_CHILD | WS_TABSTOP | BS_AUTOCHECKBOX, CRect(), this, IDC_FILTER_MARKED) ||
        !m_rating.Create(choice_style, CRect(), this, IDC_FILTER_RATING) ||
        !m_state.Create(choice_style, CRect(), this, IDC_FILTER_STATE))
    {
        return false;
    }
    for (CWnd * const window : Parts())
    {
        window->SetFont(&metrics.Font());
    }
    ShowTexts();
    return true;
}

void CListPanel::ShowTexts()
{
    m_label.SetWindowText(Text(L"Filter:"));
    m_marked.SetWindowText(Text(L"Marked"));
    std::vector<wchar_t const *> ratings{Text(L"Any rating")};
    for (int rating = 0; *CRecordingList::RatingName(rating) != L'\0'; ++rating)
    {
        ratings.push_back(CRecordingList::RatingName(rating));
    }
    Fill(m_rating, ratings);
    std::vector<wchar_t const *> stateTexts;
    std::ranges::transform(states, std::back_inserter(stateTexts), Text);
    Fill(m_state, stateTexts);
    Arrange();
}

/// The parts of the strip from left to right.
std::array<CWnd *, 5> CListPanel::Parts()
{
    return {&m_label, &m_words, &m_marked, &m_rating, &m_state};
}

void CListPanel::ShowFilter(bool show)
{
    if (!show)
    {
        // The list takes the focus while the field that has it still shows.
        CWnd const * const focus = GetFocus();
        if (std::ranges::any_of(Parts(), [focus](auto const * part) { return part == focus; }))
        {
            m_list->SetFocus();
        }
        m_marked.SetCheck(BST_UNCHECKED);
        m_rating.SetCurSel(0);
        m_state.SetCurSel(0);
        m_words.SetWindowText(CString());
        OnFilterChange();
    }
    if (show != m_showsFilter)
    {
        m_showsFilter = show;
        for (CWnd * const window : Parts())
        {
            window->ShowWindow(show ? SW_SHOWNA : SW_HIDE);
        }
        Arrange();
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    }
    if (show)
    {
        m_words.SetFocus();
        m_words.SetSel(0, -1);
    }
}

void CListPanel::OnFilterChange()
{
    workbench::RecordingFilter filter;
    filter.marked = m_marked.GetCheck() == BST_CHECKED;
    if (int const rating = m_rating.GetCurSel(); rating > 0)
    {
        filter.rating = rating - 1;
    }
    filter.state = state_values[std::clamp(m_state.GetCurSel(), 0, static_cast<int>(std::size(state_values)) - 1)];
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
    bool const inWords = message->hwnd == m_words.m_hWnd;
    auto const isAt = [message](CWnd const & part) { return message->hwnd == part.m_hWnd; };
    bool const inStrip = m_showsFilter && std::ranges::any_of(Parts(), [&](auto const * part) { return isAt(*part); });
    bool const drops = (isAt(m_rating) && m_rating.GetDroppedState()) || (isAt(m_state) && m_state.GetDroppedState());
    if (message->message != WM_KEYDOWN || ::GetKeyState(VK_MENU) < 0 || m_metrics == nullptr)
    {
        return CPanel::PreTranslateMessage(message);
    }
    WPARAM const key = message->wParam;
    bool const control = ::GetKeyState(VK_CONTROL) < 0;
    if (key == VK_ESCAPE && !control && m_showsFilter && !m_list->IsEditing() && !drops)
    {
        ShowFilter(false);
        return TRUE;
    }
    if (inStrip && !control && !drops && (key == VK_RETURN || (inWords && (key == VK_DOWN || key == VK_NEXT))))
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
    return CPanel::PreTranslateMessage(message);
}

void CListPanel::Arrange()
{
    if (m_list == nullptr || m_list->GetSafeHwnd() == nullptr)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    int const strip = m_showsFilter ? m_metrics->Y(strip_height) : 0;
    // The list first: moved later, it would take pictures of the strip's parts along.
    m_list->MoveWindow(0, strip, client.Width(), std::max<int>(client.Height() - strip, 0));
    if (m_showsFilter)
    {
        int const high = m_metrics->Y(field_height);
        int const top = (strip - high) / 2;
        int const gap = m_metrics->X(part_gap);
        auto const label = std::min<int>(m_metrics->X(label_width), client.Width() / 6);
        auto const choice = std::min<int>(m_metrics->X(choice_width), client.Width() / 5);
        CClientDC dc(&m_marked);
        workbench::FontScope const font(dc, m_metrics->Font());
        auto const check =
            std::min<int>(dc.GetTextExtent(Text(L"Marked")).cx + m_metrics->X(check_room), client.Width() / 5);
        auto const right = std::max<int>(client.right - check - 2 * choice - 3 * gap, label);
        m_label.MoveWindow(gap, top, std::max(label - gap, 0), high);
        m_words.MoveWindow(label, top, right - label, high);
        m_marked.MoveWindow(right + gap, top, check, high);
        // A drop-down list's own height is its font's; the rest is its list's.
        m_rating.MoveWindow(right + check + 2 * gap, top, choice, m_metrics->Y(list_height));
        m_state.MoveWindow(right + check + choice + 3 * gap, top, choice, m_metrics->Y(list_height));
    }
}

void CListPanel::OnSize(UINT type, int width, int height)
{
    CPanel::OnSize(type, width, height);
    Arrange();
}

void CListPanel::OnSetFocus(CWnd *)
{
    m_list->SetFocus();
}
