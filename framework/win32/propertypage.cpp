#include <utility>

#include "detail/DialogAccess.h"
#include "detail/SheetWindow.h"

using framework::PageLink;
using framework::PropertySheetAccess;

namespace framework
{
namespace
{
/// The dialog procedure of pages.
INT_PTR CALLBACK PageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
        AfxUnhookWindowCreate();
    return DialogProcedure(window, message, wParam, lParam);
}

UINT CALLBACK PageCallback(HWND window, UINT message, LPPROPSHEETPAGE page)
{
    auto * const ticket = reinterpret_cast<PageTicket *>(page->lParam);
    UINT result = 1;
    if (ticket->callback != nullptr)
    {
        page->lParam = ticket->parameter;
        result = ticket->callback(window, message, page);
        page->lParam = reinterpret_cast<LPARAM>(ticket);
    }
    CPropertyPage * const object = ticket->link->page;
    if (message == PSPCB_CREATE && object != nullptr && object->m_hWnd == nullptr)
        AfxHookWindowCreate(object); // until WM_INITDIALOG
    return result;
}

CString CaptionOf(UINT id)
{
    CString text;
    if (id != 0)
        VERIFY(text.LoadString(id));
    return text;
}
} // namespace

bool PropertySheetAccess::HasTemplate(CPropertyPage & page)
{
    PROPSHEETPAGE & psp = page.m_psp;
    if ((psp.dwFlags & PSP_DLGINDIRECT) != 0)
        return psp.pResource != nullptr;
    if (psp.pszTemplate == nullptr)
        return false;
    if (::FindResource(psp.hInstance, psp.pszTemplate, RT_DIALOG) == nullptr)
        psp.hInstance = AfxFindResourceHandle(psp.pszTemplate, RT_DIALOG);
    return ::FindResource(psp.hInstance, psp.pszTemplate, RT_DIALOG) != nullptr;
}

PROPSHEETPAGE PropertySheetAccess::NativeHeader(CPropertyPage & page, PageTicket & ticket)
{
    PageState & state = page.m_pageState;
    if (state.link == nullptr)
        state.link = std::make_shared<PageLink>(PageLink{&page});
    PROPSHEETPAGE header = page.m_psp;
    bool const called = (header.dwFlags & PSP_USECALLBACK) != 0;
    ticket = {state.link, header.lParam, called ? header.pfnCallback : nullptr};
    header.dwFlags |= PSP_USECALLBACK;
    header.pfnCallback = PageCallback;
    header.lParam = reinterpret_cast<LPARAM>(&ticket);
    return header;
}

void PropertySheetAccess::Forget(CPropertyPage & page)
{
    if (CPropertySheet * const sheet = page.m_pageState.sheet)
        sheet->RemovePage(&page);
}
} // namespace framework

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

CPropertyPage::CPropertyPage()
{
    Init(nullptr, 0, 0, 0);
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, DWORD dwSize)
    : CPropertyPage(MAKEINTRESOURCE(nIDTemplate), nIDCaption, dwSize)
{
}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, DWORD dwSize)
{
    Init(lpszTemplateName, nIDCaption, 0, 0);
    m_psp.dwSize = dwSize;
}

CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle,
                             DWORD dwSize)
    : CPropertyPage(MAKEINTRESOURCE(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle, dwSize)
{
}

CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle,
                             DWORD dwSize)
{
    Init(lpszTemplateName, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
    m_psp.dwSize = dwSize;
}

CPropertyPage::~CPropertyPage()
{
    if (m_pageState.link != nullptr)
        m_pageState.link->page = nullptr;
    PropertySheetAccess::Forget(*this);
}

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption)
{
    Init(MAKEINTRESOURCE(nIDTemplate), nIDCaption, 0, 0);
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption)
{
    Init(lpszTemplateName, nIDCaption, 0, 0);
}

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle)
{
    Init(MAKEINTRESOURCE(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
}

void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle)
{
    Init(lpszTemplateName, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle);
}

void CPropertyPage::Init(LPCTSTR templateName, UINT caption, UINT headerTitle, UINT headerSubTitle)
{
    ASSERT(m_hWnd == nullptr);
    m_psp = {};
    m_psp.dwSize = sizeof(m_psp);
    m_psp.pfnDlgProc = framework::PageProcedure;
    if (templateName != nullptr)
    {
        framework::DialogAccess::SetTemplate(*this, templateName);
        m_psp.hInstance = AfxFindResourceHandle(templateName, RT_DIALOG);
        m_psp.pszTemplate = framework::DialogAccess::TemplateName(*this);
    }
    m_pageState.caption = framework::CaptionOf(caption);
    if (caption != 0)
    {
        m_psp.pszTitle = m_pageState.caption;
        m_psp.dwFlags |= PSP_USETITLE;
    }
    m_pageState.headerTitle = framework::CaptionOf(headerTitle);
    if (headerTitle != 0)
    {
        m_psp.pszHeaderTitle = m_pageState.headerTitle;
        m_psp.dwFlags |= PSP_USEHEADERTITLE;
    }
    m_pageState.headerSubTitle = framework::CaptionOf(headerSubTitle);
    if (headerSubTitle != 0)
    {
        m_psp.pszHeaderSubTitle = m_pageState.headerSubTitle;
        m_psp.dwFlags |= PSP_USEHEADERSUBTITLE;
    }
}

void CPropertyPage::CancelToClose()
{
    if (m_hWnd != nullptr)
        ::SendMessage(::GetParent(m_hWnd), PSM_CANCELTOCLOSE, 0, 0);
}

void CPropertyPage::SetModified(BOOL bChanged)
{
    if (m_hWnd == nullptr)
        return; // it has not been active yet
    ::SendMessage(::GetParent(m_hWnd), bChanged ? PSM_CHANGED : PSM_UNCHANGED, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam)
{
    ASSERT(::IsWindow(m_hWnd));
    return ::SendMessage(::GetParent(m_hWnd), PSM_QUERYSIBLINGS, wParam, lParam);
}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset()
{
    OnCancel();
}

void CPropertyPage::OnOK() {}

void CPropertyPage::OnCancel() {}

BOOL CPropertyPage::OnQueryCancel()
{
    return TRUE;
}

BOOL CPropertyPage::OnSetActive()
{
    // OnInitDialog has just filled a new window's controls.
    if (std::exchange(m_pageState.shown, true))
        UpdateData(FALSE);
    return TRUE;
}

BOOL CPropertyPage::OnKillActive()
{
    return UpdateData(TRUE);
}

LRESULT CPropertyPage::OnWizardBack()
{
    return 0;
}

LRESULT CPropertyPage::OnWizardNext()
{
    return 0;
}

BOOL CPropertyPage::OnWizardFinish()
{
    return TRUE;
}

void CPropertyPage::EndDialog(int nResult)
{
    auto * const sheet = DYNAMIC_DOWNCAST(CPropertySheet, GetParent());
    if (sheet != nullptr)
        sheet->EndDialog(nResult);
    else
        CDialog::EndDialog(nResult);
}

BOOL CPropertyPage::PreTranslateMessage(MSG * pMsg)
{
    HWND const parent = ::GetParent(m_hWnd);
    if (DYNAMIC_DOWNCAST(CPropertySheet, CWnd::FromHandlePermanent(parent)) == nullptr)
        return CDialog::PreTranslateMessage(pMsg);
    // Edit fields of several lines take the key for themselves.
    if (pMsg->message == WM_KEYDOWN && (pMsg->wParam == VK_ESCAPE || pMsg->wParam == VK_CANCEL))
    {
        HWND const cancel = ::GetDlgItem(parent, IDCANCEL);
        bool const takes = (::SendMessage(pMsg->hwnd, WM_GETDLGCODE, 0, 0) & DLGC_WANTALLKEYS) != 0;
        bool const edit = (::GetWindowLong(pMsg->hwnd, GWL_STYLE) & ES_MULTILINE) != 0 &&
                          (::SendMessage(pMsg->hwnd, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0;
        if (takes && edit && cancel != nullptr && ::IsWindowEnabled(cancel))
        {
            ::SendMessage(parent, WM_COMMAND, IDCANCEL, reinterpret_cast<LPARAM>(cancel));
            return TRUE;
        }
    }
    // The sheet does the rest: its keys go round both the page's controls and its own.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return CWnd::PreTranslateMessage(pMsg);
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    if (CDialog::OnNotify(wParam, lParam, pResult))
        return TRUE;
    auto const * const header = reinterpret_cast<NMHDR const *>(lParam);
    if (header->hwndFrom != m_hWnd && header->hwndFrom != ::GetParent(m_hWnd))
        return FALSE;
    LRESULT unused = 0;
    LRESULT & result = pResult != nullptr ? *pResult : unused;
    switch (header->code)
    {
    case static_cast<UINT>(PSN_SETACTIVE):
        result = OnSetActive() ? 0 : -1;
        break;
    case static_cast<UINT>(PSN_KILLACTIVE):
        result = !OnKillActive();
        break;
    case static_cast<UINT>(PSN_APPLY):
        result = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        break;
    case static_cast<UINT>(PSN_RESET):
        OnReset();
        break;
    case static_cast<UINT>(PSN_QUERYCANCEL):
        result = !OnQueryCancel();
        break;
    case static_cast<UINT>(PSN_WIZNEXT):
        result = OnWizardNext();
        break;
    case static_cast<UINT>(PSN_WIZBACK):
        result = OnWizardBack();
        break;
    case static_cast<UINT>(PSN_WIZFINISH):
        result = !OnWizardFinish();
        break;
    case static_cast<UINT>(PSN_HELP):
        SendMessage(WM_COMMAND, ID_HELP, 0);
        break;
    default:
        return FALSE;
    }
    return TRUE;
}
