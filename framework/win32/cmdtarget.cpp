// Command targets: finding the handler of a command or notification in the message maps, and calling it.

#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace framework
{
struct CmdTargetAccess
{
    static const AFX_MSGMAP * Map(CCmdTarget const & target) { return target.GetMessageMap(); }
};

namespace
{
BOOL DispatchCommand(CCmdTarget * target, const AFX_MSGMAP_ENTRY & entry, UINT id, void * extra,
                     AFX_CMDHANDLERINFO * info)
{
    if (info != nullptr)
    {
        info->pTarget = target;
        info->pmf = entry.pfn;
        return TRUE;
    }
    auto const call = DecodingOf(entry).command;
    ASSERT(call != nullptr); // a window message's entry
    return call != nullptr ? call(*target, entry.pfn, id, extra) : FALSE;
}
} // namespace

const AFX_MSGMAP_ENTRY * FindEntry(const AFX_MSGMAP_ENTRY * entries, UINT message, UINT code, UINT id)
{
    for (AFX_MSGMAP_ENTRY const * entry = entries; entry->nSig != AfxSig_end; ++entry)
    {
        if (entry->nMessage == message && entry->nCode == code && id >= entry->nID && id <= entry->nLastID)
            return entry;
    }
    return nullptr;
}

BOOL CmdUiAccess::DoUpdate(CCmdUI & ui, CCmdTarget * target, BOOL disableIfNoHandler)
{
    if (ui.m_nID == 0 || LOWORD(ui.m_nID) == 0xFFFF)
        return TRUE;
    ui.m_bEnableChanged = FALSE;
    CWnd * const window = DYNAMIC_DOWNCAST(CWnd, target);
    HWND const handle = SafeHandle(window);
    BOOL const handled = target->OnCmdMsg(ui.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &ui, nullptr);
    if (handle != nullptr && CWnd::FromHandlePermanent(handle) != window)
        return handled; // the handler has ended the target
    if (!handled)
        ASSERT(!ui.m_bEnableChanged);
    if (disableIfNoHandler && !ui.m_bEnableChanged)
    {
        AFX_CMDHANDLERINFO info{};
        ui.Enable(target->OnCmdMsg(ui.m_nID, CN_COMMAND, &ui, &info));
    }
    return handled;
}

void CmdUiAccess::SetIndexMax(CCmdUI & ui, UINT count)
{
    ui.m_nIndexMax = count;
}

UINT CmdUiAccess::IndexMax(CCmdUI const & ui)
{
    return ui.m_nIndexMax;
}

void CmdUiAccess::SetParentMenu(CCmdUI & ui, CMenu * menu)
{
    ui.m_pParentMenu = menu;
}

CMenu * CmdUiAccess::ParentMenu(CCmdUI const & ui)
{
    return ui.m_pParentMenu;
}

BOOL CmdUiAccess::EnableChanged(CCmdUI const & ui)
{
    return ui.m_bEnableChanged;
}

void CmdUiAccess::SetEnableChanged(CCmdUI & ui, BOOL changed)
{
    ui.m_bEnableChanged = changed;
}

BOOL CmdUiAccess::TakeContinueRouting(CCmdUI & ui)
{
    BOOL const wanted = ui.m_bContinueRouting;
    ui.m_bContinueRouting = FALSE;
    return wanted;
}
} // namespace framework

CCmdTarget::CCmdTarget() = default;
CCmdTarget::~CCmdTarget() = default;

const AFX_MSGMAP * PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP * CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    UINT message = WM_COMMAND;
    auto code = static_cast<UINT>(nCode);
    if (code != CN_UPDATE_COMMAND_UI)
    {
        if (HIWORD(code) != 0)
            message = HIWORD(code);
        code = LOWORD(code);
    }
    for (AFX_MSGMAP const * map = framework::CmdTargetAccess::Map(*this); map->pfnGetBaseMap != nullptr;
         map = map->pfnGetBaseMap())
    {
        if (AFX_MSGMAP_ENTRY const * const entry = framework::FindEntry(map->lpEntries, message, code, nID))
            return framework::DispatchCommand(this, *entry, nID, pExtra, pHandlerInfo);
    }
    return FALSE;
}

void CCmdTarget::BeginWaitCursor()
{
    if (CWinApp * const app = AfxGetApp())
        app->DoWaitCursor(1);
}

void CCmdTarget::EndWaitCursor()
{
    if (CWinApp * const app = AfxGetApp())
        app->DoWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    if (CWinApp * const app = AfxGetApp())
        app->DoWaitCursor(0);
}

CWaitCursor::CWaitCursor()
{
    if (CWinApp * const app = AfxGetApp())
        app->DoWaitCursor(1);
}

CWaitCursor::~CWaitCursor()
{
    if (CWinApp * const app = AfxGetApp())
        app->DoWaitCursor(-1);
}

void CWaitCursor::Restore()
{
    if (CWinApp * const app = AfxGetApp())
        app->DoWaitCursor(0);
}

CCmdUI::CCmdUI()
    : m_nID(0),
      m_nIndex(0),
      m_pMenu(nullptr),
      m_pSubMenu(nullptr),
      m_pOther(nullptr),
      m_bEnableChanged(FALSE),
      m_bContinueRouting(FALSE),
      m_nIndexMax(0),
      m_pParentMenu(nullptr)
{
}

CCmdUI::~CCmdUI() = default;

void CCmdUI::ContinueRouting()
{
    m_bContinueRouting = TRUE;
}

void CCmdUI::Enable(BOOL bOn)
{
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu != nullptr)
            return;
        ::EnableMenuItem(m_pMenu->m_hMenu, m_nIndex,
                         static_cast<UINT>(MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED)));
    }
    else if (m_pOther != nullptr)
    {
        // A disabled window can't give the focus away any more.
        if (!bOn && ::GetFocus() == m_pOther->m_hWnd)
            ::SendMessage(::GetParent(m_pOther->m_hWnd), WM_NEXTDLGCTL, 0, FALSE);
        m_pOther->EnableWindow(bOn);
    }
    m_bEnableChanged = TRUE;
}

void CCmdUI::SetCheck(int nCheck)
{
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu != nullptr)
            return;
        ::CheckMenuItem(m_pMenu->m_hMenu, m_nIndex,
                        static_cast<UINT>(MF_BYPOSITION | (nCheck != 0 ? MF_CHECKED : MF_UNCHECKED)));
    }
    else if (m_pOther != nullptr)
    {
        if (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON)
            m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    }
}

void CCmdUI::SetRadio(BOOL bOn)
{
    SetCheck(bOn ? 1 : 0);
    if (m_pMenu == nullptr || m_pSubMenu != nullptr)
        return;
    MENUITEMINFO info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE;
    if (!::GetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info))
        return;
    info.fType |= MFT_RADIOCHECK;
    ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
}

void CCmdUI::SetText(LPCTSTR lpszText)
{
    ASSERT(lpszText != nullptr);
    if (m_pMenu != nullptr)
    {
        if (m_pSubMenu != nullptr)
            return;
        MENUITEMINFO info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(lpszText);
        ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
    }
    else if (m_pOther != nullptr)
    {
        CString present;
        m_pOther->GetWindowText(present);
        if (present != lpszText)
            m_pOther->SetWindowText(lpszText);
    }
}
