#include <afxcmn.h>

#include <algorithm>
#include <cstring>

#include "detail/DialogAccess.h"
#include "detail/ModalOwner.h"
#include "detail/SheetWindow.h"
#include "detail/WndAccess.h"

using framework::PropertySheetAccess;
using framework::SheetPage;
using framework::SheetWindow;

namespace framework
{
namespace
{
constexpr DWORD default_style = DS_MODALFRAME | DS_3DLOOK | DS_CONTEXTHELP | WS_POPUP | WS_VISIBLE | WS_CAPTION;

/// The sheet that the thread is making, for the native callback, which is given nothing that tells.
thread_local CPropertySheet * being_made = nullptr;

/// Gives a template, of the old form or extended, those styles. Whether it has a font is not for them to say.
void SetStyles(void * dialogTemplate, DWORD style, DWORD exStyle)
{
    auto * const words = static_cast<WORD *>(dialogTemplate);
    bool const extended = words[0] == 1 && words[1] == 0xFFFF;
    constexpr int behind_help_id = 4; // words
    WORD * const stylePlace = extended ? words + behind_help_id + 2 : words;
    WORD * const exStylePlace = extended ? words + behind_help_id : words + 2;
    DWORD former = 0;
    std::memcpy(&former, stylePlace, sizeof former);
    style = (style & ~static_cast<DWORD>(DS_SETFONT)) | (former & DS_SETFONT);
    std::memcpy(stylePlace, &style, sizeof style);
    std::memcpy(exStylePlace, &exStyle, sizeof exStyle);
}

int CALLBACK SheetCallback(HWND window, UINT message, LPARAM lParam)
{
    CPropertySheet * const sheet = being_made;
    if (sheet != nullptr)
    {
        SheetState const & state = PropertySheetAccess::State(*sheet);
        if (message == PSCB_PRECREATE && state.modeless)
            SetStyles(reinterpret_cast<void *>(lParam), state.style, state.exStyle);
        if ((sheet->m_psh.dwFlags & PSH_USECALLBACK) != 0 && sheet->m_psh.pfnCallback != nullptr)
            return sheet->m_psh.pfnCallback(window, message, lParam);
    }
    return 0;
}

/// The native sheet may leave the focus in the page that it has hidden; it goes to the first control of the present
/// one.
void LeaveHiddenPage(HWND sheet)
{
    HWND const focus = ::GetFocus();
    if (focus == nullptr || !::IsChild(sheet, focus) || ::IsWindowVisible(focus))
        return;
    auto const page = reinterpret_cast<HWND>(::SendMessage(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
    HWND first = page != nullptr ? ::GetNextDlgTabItem(page, nullptr, FALSE) : nullptr;
    if (first == nullptr)
        first = reinterpret_cast<HWND>(::SendMessage(sheet, PSM_GETTABCONTROL, 0, 0));
    if (first != nullptr)
        ::SetFocus(first);
}
} // namespace
} // namespace framework

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
    ON_MESSAGE(PSM_PRESSBUTTON, &CPropertySheet::HandlePressButton)
    ON_WM_CLOSE()
    ON_WM_SYSCOMMAND()
END_MESSAGE_MAP()

CPropertySheet::CPropertySheet()
{
    Init(nullptr, nullptr, 0);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd * pParentWnd, UINT iSelectPage)
{
    Construct(nIDCaption, pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd * pParentWnd, UINT iSelectPage)
{
    Construct(pszCaption, pParentWnd, iSelectPage);
}

CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd * pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader)
{
    Construct(nIDCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd * pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader)
{
    Construct(pszCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

CPropertySheet::~CPropertySheet()
{
    if (std::shared_ptr<SheetWindow> const window = m_sheetState.window)
    {
        window->ForgetObject();
        if (m_hWnd != nullptr && window->PutOffEnd())
        {
            bool const outermost = ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&AfxWndProc);
            if (outermost)
                UnsubclassWindow();
            else
                Detach();
        }
        else
            window->End();
    }
    if (m_hWnd != nullptr)
        CWnd::DestroyWindow();
    for (SheetPage const & each : m_sheetState.pages)
        PropertySheetAccess::State(*each.page).sheet = nullptr;
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd * pParentWnd, UINT iSelectPage)
{
    CString caption;
    VERIFY(caption.LoadString(nIDCaption));
    Init(caption, pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd * pParentWnd, UINT iSelectPage)
{
    Init(pszCaption, pParentWnd, iSelectPage);
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd * pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader)
{
    Construct(nIDCaption, pParentWnd, iSelectPage);
    SetBitmaps(hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd * pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader)
{
    Construct(pszCaption, pParentWnd, iSelectPage);
    SetBitmaps(hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheet::Init(LPCTSTR caption, CWnd * parent, UINT selectPage)
{
    ASSERT(m_hWnd == nullptr);
    m_sheetState.caption = caption;
    m_sheetState.parent = parent;
    m_psh = {};
    m_psh.dwSize = sizeof(m_psh);
    m_psh.dwFlags = PSH_PROPSHEETPAGE;
    m_psh.pszCaption = m_sheetState.caption;
    m_psh.nStartPage = selectPage;
}

void CPropertySheet::SetBitmaps(HBITMAP watermark, HPALETTE palette, HBITMAP header)
{
    if (watermark != nullptr)
    {
        m_psh.hbmWatermark = watermark;
        m_psh.dwFlags |= PSH_USEHBMWATERMARK | PSH_WATERMARK;
    }
    if (palette != nullptr)
    {
        m_psh.hplWatermark = palette;
        m_psh.dwFlags |= PSH_USEHPLWATERMARK;
    }
    if (header != nullptr)
    {
        m_psh.hbmHeader = header;
        m_psh.dwFlags |= PSH_USEHBMHEADER | PSH_HEADER;
    }
}

void CPropertySheet::PreSubclassWindow()
{
    CWnd::PreSubclassWindow();
    if (m_sheetState.window != nullptr && m_sheetState.window->Handle() == nullptr)
        SheetWindow::Watch(m_hWnd, m_sheetState.window);
}

bool CPropertySheet::CreateSheet(HWND parent)
{
    ASSERT(m_hWnd == nullptr);
    // A page without a template would have no window.
    for (SheetPage const & each : m_sheetState.pages)
    {
        if (!PropertySheetAccess::HasTemplate(*each.page))
        {
            TRACE("CPropertySheet: a page has no template\n");
            return false;
        }
    }
    auto const window = std::make_shared<SheetWindow>(*this);
    std::vector<HPROPSHEETPAGE> natives;
    for (SheetPage & each : m_sheetState.pages)
    {
        PropertySheetAccess::State(*each.page).shown = false;
        each.native = window->MakePage(*each.page);
        if (each.native == nullptr)
        {
            for (HPROPSHEETPAGE const native : natives)
                ::DestroyPropertySheetPage(native);
            return false;
        }
        natives.push_back(each.native);
    }

    PROPSHEETHEADER header = m_psh;
    header.hwndParent = parent;
    header.dwFlags = (header.dwFlags & ~static_cast<DWORD>(PSH_PROPSHEETPAGE)) | PSH_MODELESS | PSH_USECALLBACK;
    header.pfnCallback = framework::SheetCallback;
    header.nPages = static_cast<UINT>(natives.size());
    header.phpage = natives.data();
    if (header.hInstance == nullptr)
        header.hInstance = AfxGetInstanceHandle();

    m_sheetState.window = window;
    m_sheetState.button = IDCANCEL;
    CPropertySheet * const outer = std::exchange(framework::being_made, this);
    m_sheetState.ended = false;
    window->SetCreating(true);
    AfxHookWindowCreate(this);
    ::PropertySheet(&header);
    bool const hooked = AfxUnhookWindowCreate();
    framework::being_made = outer;
    bool const kept = window->Object() != nullptr;
    window->SetCreating(false); // ends the window if it has been ended meanwhile
    if (!kept)
        return false; // with it the object has gone
    if (!hooked)
        PostNcDestroy();
    return window->Object() != nullptr && window->Handle() != nullptr;
}

BOOL CPropertySheet::Create(CWnd * pParentWnd, DWORD dwStyle, DWORD dwExStyle)
{
    bool const given = dwStyle != static_cast<DWORD>(-1);
    m_sheetState.style = given ? dwStyle : framework::default_style | (IsWizard() ? 0 : WS_SYSMENU);
    m_sheetState.exStyle = dwExStyle;
    m_sheetState.modeless = true;
    return CreateSheet(framework::SafeHandle(pParentWnd));
}

INT_PTR CPropertySheet::DoModal()
{
    ASSERT(m_hWnd == nullptr);
    framework::ModalOwner owner(m_sheetState.parent);
    owner.Disable();
    m_sheetState.modeless = false;
    INT_PTR result = -1;
    bool const made = CreateSheet(owner.Window());
    if (made)
    {
        DWORD flags = MLF_SHOWONIDLE;
        if ((GetStyle() & DS_NOIDLEMSG) != 0)
            flags |= MLF_NOIDLEMSG;
        if (!m_sheetState.ended)
            RunModalLoop(flags);
        result = m_sheetState.button;
        if (m_hWnd != nullptr)
        {
            SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
        }
    }
    owner.Enable();
    if (made && m_hWnd != nullptr)
    {
        owner.ActivateAfter(m_hWnd);
        DestroyWindow();
    }
    return result;
}

void CPropertySheet::EndDialog(int nEndID)
{
    ASSERT(::IsWindow(m_hWnd));
    m_sheetState.button = nEndID;
    m_sheetState.ended = true;
    if (m_sheetState.modeless)
        DestroyWindow();
    else
        CWnd::EndModalLoop(nEndID);
}

BOOL CPropertySheet::ContinueModal()
{
    // The native sheet has no active page any more once it is over.
    return m_hWnd != nullptr && CWnd::ContinueModal() && ::SendMessage(m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0) != 0;
}

BOOL CPropertySheet::DestroyWindow()
{
    std::shared_ptr<SheetWindow> const window = m_sheetState.window;
    if (m_hWnd != nullptr && window != nullptr)
    {
        if (window->PutOffEnd())
            return TRUE;
        window->End();
    }
    return CWnd::DestroyWindow();
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM)
{
    std::shared_ptr<SheetWindow> const window = m_sheetState.window;
    try
    {
        return OnInitDialog();
    }
    catch (...)
    {
        if (window != nullptr)
            window->PutOffEnd();
        throw;
    }
}

BOOL CPropertySheet::OnInitDialog()
{
    HWND const sheet = m_hWnd;
    HWND const tabs = ::GetDlgItem(sheet, AFX_IDC_TAB_CONTROL);
    if (!m_sheetState.stacked && tabs != nullptr)
        ::SetWindowLong(tabs, GWL_STYLE, ::GetWindowLong(tabs, GWL_STYLE) & ~TCS_MULTILINE);
    auto const result = static_cast<BOOL>(Default()); // makes the tabs and the first page
    if (FromHandlePermanent(sheet) != this)
        return result;
    if (m_sheetState.modeless && !IsWizard())
        HideButtons();
    if (FromHandlePermanent(sheet) == this && (GetStyle() & WS_CHILD) == 0)
        CenterWindow();
    return result;
}

void CPropertySheet::HideButtons()
{
    HWND const ok = ::GetDlgItem(m_hWnd, IDOK);
    CRect button;
    if (ok != nullptr)
        ::GetWindowRect(ok, &button);
    for (int const id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP})
    {
        if (HWND const each = ::GetDlgItem(m_hWnd, id))
        {
            ::ShowWindow(each, SW_HIDE);
            ::EnableWindow(each, FALSE);
        }
    }
    if (ok == nullptr)
        return;
    CRect inside;
    GetClientRect(&inside);
    ClientToScreen(&inside);
    CRect whole;
    GetWindowRect(&whole);
    int const height = whole.Height() - std::max<int>(inside.bottom - button.top, 0);
    SetWindowPos(nullptr, 0, 0, whole.Width(), height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CPropertySheet::AddPage(CPropertyPage * pPage)
{
    ASSERT(pPage != nullptr);
    if (pPage == nullptr)
        return;
    framework::PageState & page = PropertySheetAccess::State(*pPage);
    ASSERT(page.sheet == nullptr);
    if (page.sheet == this)
        return;
    PropertySheetAccess::Forget(*pPage);
    std::shared_ptr<SheetWindow> const window = m_sheetState.window;
    HPROPSHEETPAGE native = nullptr;
    if (window != nullptr && window->Handle() != nullptr)
    {
        native = window->MakePage(*pPage);
        if (native == nullptr)
        {
            TRACE("CPropertySheet: a page has no template\n");
            return;
        }
        page.shown = false;
    }
    page.sheet = this;
    m_sheetState.pages.push_back({pPage, native});
    if (native != nullptr)
        window->AddPage(native);
}

void CPropertySheet::RemovePage(CPropertyPage * pPage)
{
    int const index = GetPageIndex(pPage);
    if (index >= 0)
        RemovePage(index);
}

void CPropertySheet::RemovePage(int nPage)
{
    std::vector<SheetPage> & pages = m_sheetState.pages;
    ASSERT(nPage >= 0 && nPage < GetPageCount());
    if (nPage < 0 || nPage >= GetPageCount())
        return;
    SheetPage const removed = pages[static_cast<size_t>(nPage)];
    pages.erase(pages.begin() + nPage);
    PropertySheetAccess::State(*removed.page).sheet = nullptr;
    std::shared_ptr<SheetWindow> const window = m_sheetState.window;
    if (removed.native != nullptr && window != nullptr && window->Handle() != nullptr)
        window->RemovePage(removed.native);
}

int CPropertySheet::GetPageCount() const
{
    return static_cast<int>(m_sheetState.pages.size());
}

CPropertyPage * CPropertySheet::GetPage(int nPage) const
{
    ASSERT(nPage >= 0 && nPage < GetPageCount());
    return nPage >= 0 && nPage < GetPageCount() ? m_sheetState.pages[static_cast<size_t>(nPage)].page : nullptr;
}

int CPropertySheet::GetPageIndex(CPropertyPage * pPage)
{
    std::vector<SheetPage> const & pages = m_sheetState.pages;
    auto const found =
        std::find_if(pages.begin(), pages.end(), [pPage](SheetPage const & each) { return each.page == pPage; });
    return found != pages.end() ? static_cast<int>(found - pages.begin()) : -1;
}

int CPropertySheet::GetActiveIndex() const
{
    if (m_hWnd == nullptr)
        return static_cast<int>(m_psh.nStartPage);
    std::vector<SheetPage> const & pages = m_sheetState.pages;
    auto const window = reinterpret_cast<HWND>(::SendMessage(m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0));
    auto const found = std::find_if(pages.begin(), pages.end(), [window](SheetPage const & each) {
        return window != nullptr && each.page->m_hWnd == window;
    });
    if (found != pages.end())
        return static_cast<int>(found - pages.begin());
    auto const tabs = reinterpret_cast<HWND>(::SendMessage(m_hWnd, PSM_GETTABCONTROL, 0, 0));
    return static_cast<int>(::SendMessage(tabs, TCM_GETCURSEL, 0, 0));
}

CPropertyPage * CPropertySheet::GetActivePage() const
{
    if (m_hWnd == nullptr)
        return m_psh.nStartPage < m_sheetState.pages.size() ? m_sheetState.pages[m_psh.nStartPage].page : nullptr;
    auto const window = reinterpret_cast<HWND>(::SendMessage(m_hWnd, PSM_GETCURRENTPAGEHWND, 0, 0));
    return DYNAMIC_DOWNCAST(CPropertyPage, CWnd::FromHandlePermanent(window));
}

BOOL CPropertySheet::SetActivePage(int nPage)
{
    if (m_hWnd != nullptr)
        return static_cast<BOOL>(::SendMessage(m_hWnd, PSM_SETCURSEL, static_cast<WPARAM>(nPage), 0));
    m_psh.nStartPage = static_cast<UINT>(nPage);
    return TRUE;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage * pPage)
{
    int const index = GetPageIndex(pPage);
    ASSERT(index >= 0);
    return index >= 0 && SetActivePage(index);
}

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle)
{
    ASSERT((nStyle & ~static_cast<UINT>(PSH_PROPTITLE)) == 0);
    if (m_hWnd != nullptr)
    {
        ::SendMessage(m_hWnd, PSM_SETTITLE, nStyle, reinterpret_cast<LPARAM>(lpszText));
        return;
    }
    m_sheetState.caption = lpszText;
    m_psh.pszCaption = m_sheetState.caption;
    m_psh.dwFlags = (m_psh.dwFlags & ~static_cast<DWORD>(PSH_PROPTITLE)) | nStyle;
}

void CPropertySheet::SetWizardMode()
{
    m_psh.dwFlags |= PSH_WIZARD;
}

void CPropertySheet::SetFinishText(LPCTSTR lpszText)
{
    ASSERT(::IsWindow(m_hWnd));
    ::SendMessage(m_hWnd, PSM_SETFINISHTEXT, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CPropertySheet::SetWizardButtons(DWORD dwFlags)
{
    ASSERT(::IsWindow(m_hWnd));
    PostMessage(PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(dwFlags));
}

void CPropertySheet::EnableStackedTabs(BOOL bStacked)
{
    m_sheetState.stacked = bStacked != FALSE;
}

CTabCtrl * CPropertySheet::GetTabControl() const
{
    ASSERT(::IsWindow(m_hWnd));
    return framework::SendForWindow<CTabCtrl>(m_hWnd, PSM_GETTABCONTROL);
}

void CPropertySheet::PressButton(int nButton)
{
    ASSERT(::IsWindow(m_hWnd));
    PostMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(nButton));
}

void CPropertySheet::MapDialogRect(LPRECT lpRect) const
{
    ASSERT(::IsWindow(m_hWnd));
    ::MapDialogRect(m_hWnd, lpRect);
}

LRESULT CPropertySheet::HandlePressButton(WPARAM wParam, LPARAM)
{
    switch (wParam)
    {
    case PSBTN_OK:
        m_sheetState.button = IDOK;
        break;
    case PSBTN_CANCEL:
        m_sheetState.button = IDCANCEL;
        break;
    case PSBTN_FINISH:
        m_sheetState.button = ID_WIZFINISH;
        break;
    default:
        break;
    }
    return Default();
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    std::shared_ptr<SheetWindow> const window = m_sheetState.window;
    if (CWnd::OnCommand(wParam, lParam))
        return TRUE;
    if (window != nullptr && window->Object() == nullptr)
        return TRUE; // a handler has deleted the sheet
    int const id = LOWORD(wParam);
    if (id != IDOK && id != IDCANCEL && id != ID_WIZFINISH)
        return FALSE;
    // The Escape key asks for a button that is hidden, too.
    HWND const button = ::GetDlgItem(m_hWnd, id);
    if (button != nullptr && !::IsWindowEnabled(button))
        return TRUE;
    m_sheetState.button = id;
    return FALSE;
}

void CPropertySheet::OnClose()
{
    m_sheetState.button = IDCANCEL;
    if (m_sheetState.modeless)
        DestroyWindow();
    else
        Default();
}

void CPropertySheet::OnSysCommand(UINT nID, LPARAM)
{
    constexpr UINT command_mask = 0xFFF0;
    if ((nID & command_mask) == SC_CLOSE)
    {
        m_sheetState.button = IDCANCEL;
        if (m_sheetState.modeless)
        {
            SendMessage(WM_CLOSE);
            return;
        }
    }
    Default();
}

BOOL CPropertySheet::PreTranslateMessage(MSG * pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    bool const key = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    bool const mouse = pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST;
    if (!key && !mouse)
        return FALSE;
    // Ctrl with Tab, Page up or Page down goes through the pages, which the native sheet knows best.
    bool const turnsPages = pMsg->wParam == VK_TAB || pMsg->wParam == VK_PRIOR || pMsg->wParam == VK_NEXT;
    if (pMsg->message == WM_KEYDOWN && turnsPages && ::GetKeyState(VK_CONTROL) < 0 &&
        ::SendMessage(m_hWnd, PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(pMsg)) != 0)
    {
        if (m_hWnd != nullptr)
            framework::LeaveHiddenPage(m_hWnd);
        return TRUE;
    }
    return m_hWnd != nullptr && IsDialogMessage(pMsg);
}

BOOL CPropertySheet::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return framework::DialogAccess::RouteBeyond(*this, nID, nCode, pExtra, pHandlerInfo);
}
