#pragma once
// The native window of a property sheet. Inside framework.dll only.

#include <afxdlgs.h>

namespace framework
{
/// What a native page has in place of its header's own lParam, as long as the window that shows it.
struct PageTicket
{
    std::shared_ptr<PageLink> link;
    LPARAM parameter;         // the header's own
    LPFNPSPCALLBACK callback; // the host's, or null
};

/// Keeps the native window whole while its own code runs: the system's property sheet stands neither its end nor a
/// change of its pages from within the notifications that it sends. What is asked for meanwhile is done once that code
/// has returned. It lasts as long as the window, so longer than an object that is deleted in a notification.
class SheetWindow
{
public:
    explicit SheetWindow(CPropertySheet & object) : m_object(&object) {}
    SheetWindow(SheetWindow const &) = delete;
    SheetWindow & operator=(SheetWindow const &) = delete;

    static void Watch(HWND window, std::shared_ptr<SheetWindow> const & self);

    HWND Handle() const { return m_handle; }
    /// Null once the object has ended.
    CPropertySheet * Object() const { return m_object; }
    void ForgetObject() { m_object = nullptr; }

    /// The native function that makes the window runs, or has returned.
    void SetCreating(bool creating);
    /// Whether the window's end has to wait, or is under way already. Hides the window and ends it later, if so.
    bool PutOffEnd();
    /// The window is about to be destroyed; from now on its native code is not asked about pages any more.
    void End();

    /// Null if the page has no template.
    HPROPSHEETPAGE MakePage(CPropertyPage & page);
    void AddPage(HPROPSHEETPAGE page);
    void RemovePage(HPROPSHEETPAGE page);

private:
    struct Change
    {
        UINT message; // PSM_ADDPAGE or PSM_REMOVEPAGE
        HPROPSHEETPAGE page;
    };

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR data);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void CatchUp();
    void Apply(Change const & change);
    void CloseIfOver(UINT message, WPARAM wParam);

    HWND m_handle = nullptr;
    CPropertySheet * m_object;
    std::vector<Change> m_changes;
    std::vector<std::unique_ptr<PageTicket>> m_tickets;
    int m_depth = 0; // calls of the native procedure that have not returned
    bool m_creating = false;
    bool m_native = false; // the native sheet has its data
    bool m_ready = false;  // and its pages
    bool m_condemned = false;
    bool m_ending = false;
    bool m_catchingUp = false;
};

struct PropertySheetAccess
{
    static PageState & State(CPropertyPage & page) { return page.m_pageState; }
    static SheetState & State(CPropertySheet & sheet) { return sheet.m_sheetState; }
    /// Takes the page out of its sheet, if it is in one.
    static void Forget(CPropertyPage & page);
    static bool HasTemplate(CPropertyPage & page);
    /// The header for the system, which calls the page by the ticket that this fills.
    static PROPSHEETPAGE NativeHeader(CPropertyPage & page, PageTicket & ticket);
};
} // namespace framework
