#include "BusyDialog.h"

#include <afxcmn.h>
#include <objbase.h>

#include <utility>

#include "resource.h"

namespace
{

constexpr UINT message_done = WM_APP + 1;
constexpr UINT_PTR progress_timer = 1;
constexpr UINT progress_period = 50; // milliseconds
constexpr int whole = 1000;
constexpr UINT_PTR show_timer = 2;
constexpr UINT show_delay = 300; // milliseconds
constexpr std::size_t few_items = 200;

} // namespace

BEGIN_MESSAGE_MAP(CBusyDialog, CDialog3d)
    ON_WM_TIMER()
    ON_WM_WINDOWPOSCHANGING()
    ON_MESSAGE(message_done, &CBusyDialog::OnDone)
END_MESSAGE_MAP()

CBusyDialog::CBusyDialog(CWnd & owner, CString const & what, std::size_t count,
                         std::function<void(std::size_t item)> work)
    : CDialog3d(NO_DLL, IDD_BUSY, &owner),
      m_what(what),
      m_count(count),
      m_work(std::move(work))
{
    CString title;
    owner.GetWindowText(title);
    SetDialogTitle(title);
    SetGenuineTitle(L"Progress");
}

CBusyDialog::~CBusyDialog()
{
    Stop();
}

std::size_t CBusyDialog::Run()
{
    DoModal();
    Stop();
    return m_done;
}

bool CBusyDialog::DoAll(CWnd & owner, CString const & what, std::size_t count,
                        std::function<void(std::size_t item)> const & work)
{
    if (count > few_items)
    {
        return CBusyDialog(owner, what, count, work).Run() == count;
    }
    for (std::size_t item = 0; item < count; ++item)
    {
        work(item);
    }
    return true;
}

void CBusyDialog::Stop()
{
    m_stop = true;
    if (m_thread.joinable())
    {
        m_thread.join();
    }
}

BOOL CBusyDialog::OnInitDialog()
{
    CDialog3d::OnInitDialog();
    SetDlgItemText(IDC_BUSY_TEXT, m_what);
    SendDlgItemMessage(IDC_BUSY_PROGRESS, PBM_SETRANGE32, 0, whole);
    SetTimer(progress_timer, progress_period, nullptr);
    SetTimer(show_timer, show_delay, nullptr);
    m_thread = std::thread([this, dialog = m_hWnd] { Work(dialog); });
    return TRUE;
}

void CBusyDialog::Work(HWND dialog)
{
    HRESULT const com = ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    while (m_done < m_count && !m_stop)
    {
        m_work(m_done);
        ++m_done;
    }
    if (SUCCEEDED(com))
    {
        ::CoUninitialize();
    }
    ::PostMessageW(dialog, message_done, 0, 0);
}

/// The modal loop would show it at once.
void CBusyDialog::OnWindowPosChanging(WINDOWPOS * place)
{
    if (!m_mayShow)
    {
        place->flags &= ~static_cast<UINT>(SWP_SHOWWINDOW);
    }
    CDialog3d::OnWindowPosChanging(place);
}

void CBusyDialog::OnTimer(UINT_PTR id)
{
    if (id == show_timer)
    {
        KillTimer(show_timer);
        m_mayShow = true;
        ShowWindow(SW_SHOW);
        return;
    }
    std::size_t const part = m_count > 0 ? m_done * whole / m_count : 0;
    SendDlgItemMessage(IDC_BUSY_PROGRESS, PBM_SETPOS, part);
    CDialog3d::OnTimer(id);
}

LRESULT CBusyDialog::OnDone(WPARAM, LPARAM)
{
    EndDialog(IDOK);
    return 0;
}

/// The item that is being worked on is finished; the thread then says that it has ended.
void CBusyDialog::OnCancel()
{
    m_stop = true;
    GetDlgItem(IDCANCEL)->EnableWindow(FALSE);
}
