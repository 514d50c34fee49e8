#include "detail/SheetWindow.h"

#include <algorithm>

#include "detail/ThreadState.h"

namespace framework
{
namespace
{
constexpr UINT_PTR watcher = 1;

/// Whether the native sheet looks at its pages, which it has from its initialisation to its end.
bool ConcernsPages(UINT message)
{
    constexpr UINT first = PSM_SETCURSEL;
    constexpr UINT last = PSM_RECALCPAGESIZES;
    return (message >= first && message <= last) || message == WM_COMMAND || message == WM_NOTIFY ||
           message == WM_CLOSE || message == WM_SYSCOMMAND;
}
} // namespace

void SheetWindow::Watch(HWND window, std::shared_ptr<SheetWindow> const & self)
{
    self->m_handle = window;
    auto * const kept = new std::shared_ptr<SheetWindow>(self);
    if (!::SetWindowSubclass(window, Procedure, watcher, reinterpret_cast<DWORD_PTR>(kept)))
        delete kept;
}

LRESULT CALLBACK SheetWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                        DWORD_PTR data)
{
    auto * const kept = reinterpret_cast<std::shared_ptr<SheetWindow> *>(data);
    std::shared_ptr<SheetWindow> const self = *kept;
    if (message != WM_NCDESTROY)
        return self->Handle(message, wParam, lParam);
    self->m_handle = nullptr;
    ::RemoveWindowSubclass(window, Procedure, id);
    delete kept;
    return ::DefSubclassProc(window, message, wParam, lParam);
}

LRESULT SheetWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    HWND const window = m_handle;
    if (message == WM_DESTROY)
    {
        // Its owner's end, or a host that asked the system itself. Native code that runs must still find its data,
        // which it would free now; they are lost then.
        End();
        if (m_depth > 0)
            return 0;
    }
    if (message == WM_INITDIALOG && !m_ending)
        m_native = true;
    if (!m_native && ConcernsPages(message))
        return 0;
    if (message == WM_WINDOWPOSCHANGING && m_condemned)
        reinterpret_cast<WINDOWPOS *>(lParam)->flags &= ~SWP_SHOWWINDOW;
    ++m_depth;
    LRESULT const result = ::DefSubclassProc(window, message, wParam, lParam);
    --m_depth;
    if (message == WM_INITDIALOG)
        m_ready = true;
    // A page whose window could not be made must not get another one.
    if (m_depth == 0 && DYNAMIC_DOWNCAST(CPropertyPage, CurrentThreadState().creating) != nullptr)
        AfxUnhookWindowCreate();
    CloseIfOver(message, wParam);
    // The tab control that notifies still runs: it stands neither its end nor another number of tabs.
    if (message != WM_NOTIFY)
        CatchUp();
    else if (m_depth == 0 && m_handle != nullptr && (m_condemned || !m_changes.empty()))
        ::PostMessage(m_handle, WM_NULL, 0, 0);
    return result;
}

void SheetWindow::SetCreating(bool creating)
{
    m_creating = creating;
    CatchUp();
}

void SheetWindow::End()
{
    m_ending = true;
    m_native = false;
}

bool SheetWindow::PutOffEnd()
{
    if (m_handle == nullptr)
        return false;
    if (m_ending)
        return true;
    if (m_depth == 0 && !m_creating)
        return false;
    m_condemned = true;
    ::ShowWindow(m_handle, SW_HIDE);
    return true;
}

HPROPSHEETPAGE SheetWindow::MakePage(CPropertyPage & page)
{
    if (!PropertySheetAccess::HasTemplate(page))
        return nullptr;
    auto ticket = std::make_unique<PageTicket>();
    PROPSHEETPAGE const header = PropertySheetAccess::NativeHeader(page, *ticket);
    HPROPSHEETPAGE const native = ::CreatePropertySheetPage(&header);
    if (native != nullptr)
        m_tickets.push_back(std::move(ticket));
    return native;
}

void SheetWindow::AddPage(HPROPSHEETPAGE page)
{
    m_changes.push_back({PSM_ADDPAGE, page});
    CatchUp();
}

void SheetWindow::RemovePage(HPROPSHEETPAGE page)
{
    auto const added = std::find_if(m_changes.begin(), m_changes.end(), [page](Change const & change) {
        return change.message == PSM_ADDPAGE && change.page == page;
    });
    if (added != m_changes.end())
    {
        m_changes.erase(added);
        ::DestroyPropertySheetPage(page);
        return;
    }
    m_changes.push_back({PSM_REMOVEPAGE, page});
    CatchUp();
}

void SheetWindow::Apply(Change const & change)
{
    if (change.message == PSM_ADDPAGE)
        ::SendMessage(m_handle, PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(change.page));
    else
        ::SendMessage(m_handle, PSM_REMOVEPAGE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(change.page));
}

void SheetWindow::CatchUp()
{
    if (m_depth > 0 || m_handle == nullptr || m_catchingUp)
        return;
    m_catchingUp = true;
    while (m_ready && !m_changes.empty() && !m_ending && !m_condemned && m_handle != nullptr)
    {
        Change const next = m_changes.front();
        m_changes.erase(m_changes.begin());
        Apply(next);
    }
    m_catchingUp = false;
    if (m_condemned && !m_creating && !m_ending && m_handle != nullptr)
    {
        End();
        ::DestroyWindow(m_handle);
    }
}

// The native sheet only gives up its active page when OK, Cancel or Finish has done its work; a modal loop ends by
// that.
void SheetWindow::CloseIfOver(UINT message, WPARAM wParam)
{
    if (m_depth > 0 || m_object == nullptr || m_handle == nullptr || m_ending || m_condemned)
        return;
    bool const button = message == WM_COMMAND &&
                        (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL || LOWORD(wParam) == ID_WIZFINISH);
    if (!button && message != PSM_PRESSBUTTON)
        return;
    SheetState const & state = PropertySheetAccess::State(*m_object);
    if (state.modeless && !state.pages.empty() && ::SendMessage(m_handle, PSM_GETCURRENTPAGEHWND, 0, 0) == 0)
        ::PostMessage(m_handle, WM_CLOSE, 0, 0);
}
} // namespace framework
