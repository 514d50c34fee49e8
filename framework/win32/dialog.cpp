#include <afxpriv.h>
#include <afxwin.h>

#include "detail/DialogAccess.h"
#include "detail/ModalOwner.h"

namespace framework
{
namespace
{
/// The start of a template in memory, old form (DLGTEMPLATE) or extended.
struct TemplateHead
{
    DWORD style;
    short x;
    short y;
};

#pragma pack(push, 1)
struct ExtendedTemplate
{
    WORD version;
    WORD signature;
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
    WORD itemCount;
    short x;
    short y;
};
#pragma pack(pop)

constexpr WORD extended_signature = 0xFFFF;

TemplateHead HeadOf(LPCDLGTEMPLATE dialogTemplate)
{
    auto const & extended = *reinterpret_cast<ExtendedTemplate const *>(dialogTemplate);
    if (extended.signature == extended_signature)
        return {extended.style, extended.x, extended.y};
    return {dialogTemplate->style, dialogTemplate->x, dialogTemplate->y};
}

/// The template of the name and the module that has it; null if there is none.
LPCDLGTEMPLATE LoadTemplate(LPCTSTR name, HINSTANCE & instance)
{
    instance = AfxFindResourceHandle(name, RT_DIALOG);
    HRSRC const resource = ::FindResource(instance, name, RT_DIALOG);
    HGLOBAL const loaded = resource != nullptr ? ::LoadResource(instance, resource) : nullptr;
    return loaded != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
}

/// Locks a memory handle for the scope.
class GlobalLockScope
{
public:
    explicit GlobalLockScope(HGLOBAL handle)
        : m_handle(handle),
          m_pointer(handle != nullptr ? ::GlobalLock(handle) : nullptr)
    {
    }
    ~GlobalLockScope()
    {
        if (m_pointer != nullptr)
            ::GlobalUnlock(m_handle);
    }
    GlobalLockScope(GlobalLockScope const &) = delete;
    GlobalLockScope & operator=(GlobalLockScope const &) = delete;
    LPCDLGTEMPLATE Template() const { return static_cast<LPCDLGTEMPLATE>(m_pointer); }

private:
    HGLOBAL m_handle;
    void * m_pointer;
};

LPCTSTR TemplateName(DialogState const & state)
{
    return state.templateName.IsEmpty() ? MAKEINTRESOURCE(state.templateId) : state.templateName.GetString();
}

void SetTemplateName(DialogState & state, LPCTSTR name)
{
    if (IS_INTRESOURCE(name))
    {
        state.templateName.Empty();
        state.templateId = static_cast<UINT>(reinterpret_cast<UINT_PTR>(name));
        if (state.helpId == 0)
            state.helpId = state.templateId;
    }
    else
    {
        state.templateName = name;
        state.templateId = 0;
    }
}
} // namespace

/// The dialog procedure of all dialogs of the framework; it does what a message map doesn't.
INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    CDialog * const dialog = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(window));
    if (dialog == nullptr)
        return TRUE; // not one of ours; the system chooses the focus
    try
    {
        return dialog->OnInitDialog();
    }
    catch (CException * exception)
    {
        exception->ReportError();
        exception->Delete();
    }
    if (CWnd::FromHandlePermanent(window) == dialog)
        dialog->EndDialog(-1);
    return FALSE;
}

bool DialogAccess::CreateWindowOf(CDialog & dialog, LPCDLGTEMPLATE dialogTemplate, HWND parent, HINSTANCE instance)
{
    DialogState & state = dialog.m_state;
    TemplateHead const head = HeadOf(dialogTemplate);
    state.result = -1;
    state.ended = false;
    state.centre = head.x == 0 && head.y == 0 && (head.style & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN)) == 0 &&
                   (head.style & WS_CHILD) == 0;

    AfxHookWindowCreate(&dialog);
    bool alive = true;
    state.creation = &alive;
    HWND const window = ::CreateDialogIndirect(instance, dialogTemplate, parent, DialogProcedure);
    bool const hooked = AfxUnhookWindowCreate();
    if (!alive)
        return false; // a dialog that deletes itself with its window has lost that in OnInitDialog
    state.creation = nullptr;
    if (!hooked)
        dialog.PostNcDestroy(); // the window has never come into being, so nothing else says that it is gone

    // A window that was destroyed in OnInitDialog is given like any other.
    if (window == nullptr || !::IsWindow(window))
        return false;
    if (state.ended) // EndDialog from OnInitDialog
    {
        ::DestroyWindow(window);
        return false;
    }
    return true;
}

bool DialogAccess::RouteBeyond(CWnd & dialog, UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    // Commands and their updates go on to the window that owns the dialog and to the thread; notifications of the
    // dialog's own controls, whose identifiers are below the range of commands, stay here.
    constexpr UINT first_command = 0x8000;
    constexpr UINT first_system_command = 0xF000;
    bool const command = nCode == CN_COMMAND || static_cast<UINT>(nCode) == CN_UPDATE_COMMAND_UI;
    if (!command || nID < first_command || nID >= first_system_command)
        return false;
    CWnd * const owner = dialog.GetParent();
    if (owner != nullptr && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return true;
    CWinThread * const thread = AfxGetThread();
    return thread != nullptr && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void DialogAccess::SetTemplate(CDialog & dialog, LPCTSTR name)
{
    SetTemplateName(dialog.m_state, name);
}

LPCTSTR DialogAccess::TemplateName(CDialog const & dialog)
{
    return framework::TemplateName(dialog.m_state);
}
} // namespace framework

using framework::DialogAccess;

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
    ON_MESSAGE(WM_HELPHITTEST, &CDialog::OnHelpHitTest)
END_MESSAGE_MAP()

CDialog::CDialog() = default;

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd * pParentWnd)
{
    framework::SetTemplateName(m_state, lpszTemplateName);
    m_state.parent = pParentWnd;
}

CDialog::CDialog(UINT nIDTemplate, CWnd * pParentWnd)
{
    framework::SetTemplateName(m_state, MAKEINTRESOURCE(nIDTemplate));
    m_state.parent = pParentWnd;
}

CDialog::~CDialog()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd * pParentWnd)
{
    framework::SetTemplateName(m_state, lpszTemplateName);
    HINSTANCE instance = nullptr;
    LPCDLGTEMPLATE const dialogTemplate = framework::LoadTemplate(lpszTemplateName, instance);
    return dialogTemplate != nullptr && DialogAccess::CreateModeless(*this, dialogTemplate, pParentWnd, instance);
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd * pParentWnd)
{
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd * pParentWnd, void * lpDialogInit)
{
    ASSERT(lpDialogTemplate != nullptr);
    if (lpDialogTemplate == nullptr)
        return FALSE;
    m_state.initData = lpDialogInit;
    return DialogAccess::CreateModeless(*this, lpDialogTemplate, pParentWnd, AfxGetInstanceHandle());
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd * pParentWnd)
{
    framework::GlobalLockScope const lock(hDialogTemplate);
    return CreateIndirect(lock.Template(), pParentWnd, nullptr);
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd * pParentWnd, void * lpDialogInit)
{
    ASSERT(lpDialogTemplate != nullptr && m_state.memoryTemplate == nullptr && m_state.globalTemplate == nullptr);
    m_state.memoryTemplate = lpDialogTemplate;
    m_state.initData = lpDialogInit;
    if (pParentWnd != nullptr)
        m_state.parent = pParentWnd;
    return lpDialogTemplate != nullptr;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd * pParentWnd)
{
    ASSERT(hDialogTemplate != nullptr && m_state.memoryTemplate == nullptr && m_state.globalTemplate == nullptr);
    m_state.globalTemplate = hDialogTemplate;
    if (pParentWnd != nullptr)
        m_state.parent = pParentWnd;
    return hDialogTemplate != nullptr;
}

bool DialogAccess::CreateModeless(CDialog & dialog, LPCDLGTEMPLATE dialogTemplate, CWnd * parent, HINSTANCE instance)
{
    if (parent == nullptr)
        parent = AfxGetMainWnd();
    dialog.m_state.modal = false;
    return CreateWindowOf(dialog, dialogTemplate, parent != nullptr ? parent->GetSafeHwnd() : nullptr, instance);
}

INT_PTR CDialog::DoModal()
{
    ASSERT(m_hWnd == nullptr);
    HINSTANCE instance = AfxGetResourceHandle();
    framework::GlobalLockScope const lock(m_state.globalTemplate);
    LPCDLGTEMPLATE dialogTemplate = m_state.memoryTemplate != nullptr ? m_state.memoryTemplate : lock.Template();
    if (dialogTemplate == nullptr && (!m_state.templateName.IsEmpty() || m_state.templateId != 0))
        dialogTemplate = framework::LoadTemplate(framework::TemplateName(m_state), instance);
    if (dialogTemplate == nullptr)
        return -1;

    framework::ModalOwner owner(m_state.parent);
    owner.Disable();
    m_state.modal = true;
    if (DialogAccess::CreateWindowOf(*this, dialogTemplate, owner.Window(), instance))
    {
        DWORD flags = MLF_SHOWONIDLE;
        if ((GetStyle() & DS_NOIDLEMSG) != 0)
            flags |= MLF_NOIDLEMSG;
        RunModalLoop(flags);
        if (m_hWnd != nullptr)
        {
            SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
        }
    }
    owner.Enable();
    if (m_hWnd != nullptr)
    {
        owner.ActivateAfter(m_hWnd);
        DestroyWindow();
    }
    m_state.modal = false;
    return m_state.result;
}

void CDialog::EndDialog(int nResult)
{
    ASSERT(::IsWindow(m_hWnd));
    if (m_state.modal || m_state.creation != nullptr || CWnd::ContinueModal())
        EndModalLoop(nResult);
    ::EndDialog(m_hWnd, nResult);
}

BOOL CDialog::ContinueModal()
{
    return m_hWnd != nullptr && CWnd::ContinueModal();
}

void CDialog::EndModalLoop(int nResult)
{
    m_state.result = nResult;
    m_state.ended = true;
    if (CWnd::ContinueModal())
        CWnd::EndModalLoop(nResult);
}

void CDialog::MapDialogRect(LPRECT lpRect) const
{
    ASSERT(::IsWindow(m_hWnd));
    ::MapDialogRect(m_hWnd, lpRect);
}

void CDialog::NextDlgCtrl() const
{
    ASSERT(::IsWindow(m_hWnd));
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, FALSE);
}

void CDialog::PrevDlgCtrl() const
{
    ASSERT(::IsWindow(m_hWnd));
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, FALSE);
}

void CDialog::GotoDlgCtrl(CWnd * pWndCtrl)
{
    ASSERT(::IsWindow(m_hWnd));
    ::SendMessage(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->GetSafeHwnd()), TRUE);
}

void CDialog::SetDefID(UINT nID)
{
    ASSERT(::IsWindow(m_hWnd));
    ::SendMessage(m_hWnd, DM_SETDEFID, nID, 0);
}

DWORD CDialog::GetDefID() const
{
    ASSERT(::IsWindow(m_hWnd));
    return static_cast<DWORD>(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0));
}

void CDialog::SetHelpID(UINT nIDR)
{
    m_state.helpId = nIDR;
}

BOOL CDialog::OnInitDialog()
{
    bool const named = !m_state.templateName.IsEmpty() || m_state.templateId != 0;
    BOOL const filled = named ? ExecuteDlgInit(framework::TemplateName(m_state)) : ExecuteDlgInit(m_state.initData);
    if (!filled || !UpdateData(FALSE))
    {
        TRACE("CDialog: the controls could not be filled\n");
        if (m_hWnd != nullptr)
            EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnSetFont(CFont *)
{
    Default();
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    CRect before;
    GetWindowRect(&before);
    HWND const window = m_hWnd;
    LRESULT const result = Default(); // calls OnInitDialog through the dialog procedure
    if (CWnd::FromHandlePermanent(window) != this)
        return result; // window and perhaps object are gone
    CRect after;
    GetWindowRect(&after);
    if (m_state.centre && !m_state.ended && before.TopLeft() == after.TopLeft() && !IsWindowVisible())
        CenterWindow();
    return result;
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM)
{
    OnSetFont(static_cast<CFont *>(CGdiObject::FromHandle(reinterpret_cast<HFONT>(wParam))));
    return 0;
}

LRESULT CDialog::OnHelpHitTest(WPARAM, LPARAM)
{
    constexpr LRESULT first_resource_topic = 0x00020000;
    return m_state.helpId != 0 ? first_resource_topic + m_state.helpId : 0;
}

BOOL CDialog::PreTranslateMessage(MSG * pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    bool const key = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    bool const mouse = pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST;
    return (key || mouse) && IsDialogMessage(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return DialogAccess::RouteBeyond(*this, nID, nCode, pExtra, pHandlerInfo);
}
