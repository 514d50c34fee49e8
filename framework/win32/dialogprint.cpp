// The dialogs for printers and pages.

#include <afxdlgs.h>
#include <afxwin.h>

#include <cstring>

#include "detail/CommonDialogHook.h"
#include "detail/ModalOwner.h"

IMPLEMENT_DYNAMIC(CPrintDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CPageSetupDialog, CCommonDialog)

namespace
{
/// A text of the names that the system's dialogs give; empty without names.
CString NameAt(HGLOBAL names, WORD DEVNAMES::*offset)
{
    auto const * const locked = names == nullptr ? nullptr : static_cast<DEVNAMES const *>(::GlobalLock(names));
    if (locked == nullptr)
        return CString();
    CString const name(reinterpret_cast<LPCTSTR>(locked) + locked->*offset);
    ::GlobalUnlock(names);
    return name;
}

LPDEVMODE LockMode(HGLOBAL mode)
{
    return mode == nullptr ? nullptr : static_cast<LPDEVMODE>(::GlobalLock(mode));
}

HDC CreateContext(HGLOBAL names, HGLOBAL mode)
{
    if (names == nullptr)
        return nullptr;
    LPDEVMODE const settings = LockMode(mode);
    HDC const context = ::CreateDC(NameAt(names, &DEVNAMES::wDriverOffset), NameAt(names, &DEVNAMES::wDeviceOffset),
                                   NameAt(names, &DEVNAMES::wOutputOffset), settings);
    if (settings != nullptr)
        ::GlobalUnlock(mode);
    return context;
}

/// The dialog of the thread whose sample page is painted.
thread_local CPageSetupDialog * s_pageSetup = nullptr;
} // namespace

CPrintDialog::CPrintDialog(BOOL bPrintSetupOnly, DWORD dwFlags, CWnd * pParentWnd)
    : CCommonDialog(pParentWnd),
      m_pd(m_data)
{
    std::memset(&m_data, 0, sizeof(m_data));
    m_pd.lStructSize = sizeof(m_pd);
    m_pd.Flags = dwFlags | PD_ENABLEPRINTHOOK | PD_ENABLESETUPHOOK;
    m_pd.lpfnPrintHook = Hook;
    m_pd.lpfnSetupHook = Hook;
    m_pd.lCustData = reinterpret_cast<LPARAM>(this);
    m_pd.Flags &= ~static_cast<DWORD>(PD_RETURNIC);
    m_pd.Flags |= bPrintSetupOnly ? PD_PRINTSETUP : PD_RETURNDC;
}

CPrintDialog::~CPrintDialog() = default;

UINT_PTR CALLBACK CPrintDialog::Hook(HWND window, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return 0;
    auto * const dialog = reinterpret_cast<CPrintDialog *>(reinterpret_cast<PRINTDLG *>(lParam)->lCustData);
    // The dialog for a job may open that for the printer, which stays without an object.
    return dialog->m_hWnd != nullptr ? 1 : framework::AttachCommonDialog(*dialog, window);
}

INT_PTR CPrintDialog::DoModal()
{
    framework::ModalOwner owner(framework::DialogAccess::State(*this).parent);
    m_pd.hwndOwner = owner.Window();
    INT_PTR const result = ::PrintDlg(&m_pd) ? IDOK : IDCANCEL;
    owner.Enable();
    return result;
}

BOOL CPrintDialog::GetDefaults()
{
    m_pd.Flags |= PD_RETURNDEFAULT;
    BOOL const found = ::PrintDlg(&m_pd);
    m_pd.Flags &= ~static_cast<DWORD>(PD_RETURNDEFAULT);
    return found;
}

HDC CPrintDialog::CreatePrinterDC()
{
    m_pd.hDC = CreateContext(m_pd.hDevNames, m_pd.hDevMode);
    return m_pd.hDC;
}

HDC CPrintDialog::GetPrinterDC() const
{
    return m_pd.hDC;
}

LPDEVMODE CPrintDialog::GetDevMode() const
{
    return LockMode(m_pd.hDevMode);
}

CString CPrintDialog::GetDriverName() const
{
    return NameAt(m_pd.hDevNames, &DEVNAMES::wDriverOffset);
}

CString CPrintDialog::GetDeviceName() const
{
    return NameAt(m_pd.hDevNames, &DEVNAMES::wDeviceOffset);
}

CString CPrintDialog::GetPortName() const
{
    return NameAt(m_pd.hDevNames, &DEVNAMES::wOutputOffset);
}

int CPrintDialog::GetCopies() const
{
    if ((m_pd.Flags & PD_USEDEVMODECOPIES) == 0)
        return m_pd.nCopies;
    LPDEVMODE const mode = GetDevMode();
    int const copies = mode == nullptr ? m_pd.nCopies : mode->dmCopies;
    if (mode != nullptr)
        ::GlobalUnlock(m_pd.hDevMode);
    return copies;
}

CPageSetupDialog::CPageSetupDialog(DWORD dwFlags, CWnd * pParentWnd) : CCommonDialog(pParentWnd)
{
    std::memset(&m_psd, 0, sizeof(m_psd));
    m_psd.lStructSize = sizeof(m_psd);
    m_psd.Flags = dwFlags | PSD_ENABLEPAGESETUPHOOK | PSD_ENABLEPAGEPAINTHOOK;
    m_psd.lpfnPageSetupHook = Hook;
    m_psd.lpfnPagePaintHook = PaintHook;
    m_psd.lCustData = reinterpret_cast<LPARAM>(this);
}

CPageSetupDialog::~CPageSetupDialog() = default;

UINT_PTR CALLBACK CPageSetupDialog::Hook(HWND window, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return 0;
    auto * const dialog = reinterpret_cast<CPageSetupDialog *>(reinterpret_cast<PAGESETUPDLG *>(lParam)->lCustData);
    return framework::AttachCommonDialog(*dialog, window);
}

UINT_PTR CALLBACK CPageSetupDialog::PaintHook(HWND, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (s_pageSetup == nullptr)
        return 0;
    if (message == WM_PSD_PAGESETUPDLG)
        return s_pageSetup->PreDrawPage(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<LPPAGESETUPDLG>(lParam));
    if (message < WM_PSD_FULLPAGERECT || message > WM_PSD_YAFULLPAGERECT)
        return 0;
    return s_pageSetup->OnDrawPage(CDC::FromHandle(reinterpret_cast<HDC>(wParam)), message,
                                   reinterpret_cast<LPRECT>(lParam));
}

INT_PTR CPageSetupDialog::DoModal()
{
    framework::ModalOwner owner(framework::DialogAccess::State(*this).parent);
    m_psd.hwndOwner = owner.Window();
    CPageSetupDialog * const former = s_pageSetup;
    s_pageSetup = this;
    INT_PTR const result = ::PageSetupDlg(&m_psd) ? IDOK : IDCANCEL;
    s_pageSetup = former;
    owner.Enable();
    return result;
}

HDC CPageSetupDialog::CreatePrinterDC()
{
    return CreateContext(m_psd.hDevNames, m_psd.hDevMode);
}

LPDEVMODE CPageSetupDialog::GetDevMode() const
{
    return LockMode(m_psd.hDevMode);
}

CString CPageSetupDialog::GetDriverName() const
{
    return NameAt(m_psd.hDevNames, &DEVNAMES::wDriverOffset);
}

CString CPageSetupDialog::GetDeviceName() const
{
    return NameAt(m_psd.hDevNames, &DEVNAMES::wDeviceOffset);
}

CString CPageSetupDialog::GetPortName() const
{
    return NameAt(m_psd.hDevNames, &DEVNAMES::wOutputOffset);
}

void CPageSetupDialog::GetMargins(LPRECT lpRectMargins, LPRECT lpRectMinMargins) const
{
    if (lpRectMargins != nullptr)
        *lpRectMargins = m_psd.rtMargin;
    if (lpRectMinMargins != nullptr)
        *lpRectMinMargins = m_psd.rtMinMargin;
}

CSize CPageSetupDialog::GetPaperSize() const
{
    return CSize(m_psd.ptPaperSize.x, m_psd.ptPaperSize.y);
}

UINT CPageSetupDialog::PreDrawPage(WORD, WORD, LPPAGESETUPDLG)
{
    return 0;
}

UINT CPageSetupDialog::OnDrawPage(CDC *, UINT, LPRECT)
{
    return 0;
}
