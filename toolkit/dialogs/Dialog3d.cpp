#include "dialogs/Dialog3d.h"

#include <commctrl.h>

#include <cwchar>

#include "dialogs/KeyGroups.h"
#include "frame/CoreLibrary.h"
#include "frame/ToolkitResources.h"
#include "frame/WindowAlive.h"
#include "resource_ids.h"

BEGIN_MESSAGE_MAP(CDialog3d, CDialogEx)
    ON_WM_DESTROY()
    ON_WM_GETMINMAXINFO()
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_TIMER()
    ON_WM_ACTIVATE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOVING()
    ON_WM_SIZING()
END_MESSAGE_MAP()

AFX_EXTENSION_MODULE const CDialog3d::NO_DLL = {};
bool CDialog3d::g_touchFreeze = false;

namespace
{
constexpr UINT_PTR fade_timer = 99;
constexpr unsigned long fade_when_inactive = 200; // milliseconds
constexpr unsigned long fade_on_create = 200;
constexpr COLORREF unused_colour_key = 255;

// Without WS_POPUP, WS_CLIPSIBLINGS, WS_CAPTION and WS_THICKFRAME.
constexpr LONG pane_child_style_mask = 0x7B3BFFFF;

constexpr UINT_PTR hidden_opening = 1;
constexpr wchar_t hidden_property[] = L"InstrumentUiKeptHidden";

UINT IconId(CDialog3d::icon_t icon)
{
    switch (icon)
    {
    case CDialog3d::ICON_DISC:
        return TOOLKIT_ICON_DISC;
    case CDialog3d::ICON_SCOPE:
        return TOOLKIT_ICON_SCOPE;
    case CDialog3d::ICON_DIAL:
        return TOOLKIT_ICON_DIAL;
    default:
        return TOOLKIT_ICON_STANDARD;
    }
}

void ChangeExStyle(HWND window, LONG_PTR remove, LONG_PTR add)
{
    LONG_PTR const style = ::GetWindowLongPtrW(window, GWL_EXSTYLE);
    ::SetWindowLongPtrW(window, GWL_EXSTYLE, (style & ~remove) | add);
}

/// Refuses to show the window: a template with WS_VISIBLE is shown by the window system itself.
LRESULT CALLBACK KeepHidden(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR)
{
    if (message == WM_WINDOWPOSCHANGING)
    {
        auto * const position = reinterpret_cast<WINDOWPOS *>(lParam);
        if ((position->flags & SWP_SHOWWINDOW) != 0)
            position->flags = (position->flags & ~SWP_SHOWWINDOW) | SWP_NOACTIVATE | SWP_NOZORDER;
    }
    if (message == WM_NCDESTROY)
    {
        ::RemovePropW(window, hidden_property);
        ::RemoveWindowSubclass(window, KeepHidden, hidden_opening);
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}

/// For its life, no window that is kept hidden, and no control in one, gets the focus or becomes active: the window
/// that has the focus is not even told. Both the system and the dialog may want to give it.
class CFocusKeeper
{
public:
    CFocusKeeper() : m_hook(::SetWindowsHookExW(WH_CBT, Refuse, nullptr, ::GetCurrentThreadId())) {}
    ~CFocusKeeper()
    {
        if (m_hook != nullptr)
            ::UnhookWindowsHookEx(m_hook);
    }
    CFocusKeeper(CFocusKeeper const &) = delete;
    CFocusKeeper & operator=(CFocusKeeper const &) = delete;

private:
    static LRESULT CALLBACK Refuse(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_ACTIVATE || code == HCBT_SETFOCUS)
        {
            HWND const top = ::GetAncestor(reinterpret_cast<HWND>(wParam), GA_ROOT);
            if (top != nullptr && ::GetPropW(top, hidden_property) != nullptr)
                return 1;
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK m_hook;
};

/// Ends the framework's own layout of the window, where the framework has one: it would work against the resizer.
template <class Window> void EndDynamicLayout(Window & window)
{
    if constexpr (requires { window.EnableDynamicLayout(FALSE); })
        window.EnableDynamicLayout(FALSE);
}
} // namespace

CDialog3d::CDialog3d(AFX_EXTENSION_MODULE module, unsigned int dialogId, CWnd * parent)
    : CDialogEx(dialogId, parent),
      m_fadeInOnCreate(false),
      m_module(module),
      m_dialogId(dialogId),
      m_fenster(CFensterManager::window_dialog),
      m_hIcon(nullptr),
      m_paneChild(false),
      m_noAbsorbKeys(KeyGroups::function_keys),
      m_resizeDims(CDialogResizer::RESIZE_NONE),
      m_inactiveAlpha(CDialogFade::opaque),
      m_initialised(false),
      m_keepHidden(false)
{
}

CDialog3d::~CDialog3d()
{
    // Here, where the handlers of this class still run and their members live.
    if (m_hWnd != nullptr)
        DestroyWindow();
}

INT_PTR CDialog3d::DoModal()
{
    CResourceModuleScope const scope(m_module.hModule);
    return CDialogEx::DoModal();
}

int CDialog3d::DisplayDialog()
{
    if (IsOpen())
        return 1;
    return DisplayDialog(m_module, m_dialogId);
}

int CDialog3d::DisplayDialog(AFX_EXTENSION_MODULE module, unsigned int id)
{
    CResourceModuleScope const scope(module.hModule);
    return Create(id, nullptr);
}

bool CDialog3d::IsOpen() const
{
    return ::IsWindow(GetSafeHwnd()) != FALSE;
}

bool CDialog3d::OpenInitially()
{
    if (m_initialised)
        return m_fenster.OpenInitially();

    // The object may end with its window.
    LifeWatch const life(m_life);
    unsigned int const showMode = m_fenster.WhatsMyStyle();
    m_fenster.SetShowMode(SW_HIDE);
    m_keepHidden = true;
    bool open = false;
    {
        CFocusKeeper const focus;
        DisplayDialog();
        if (!life.Over())
        {
            open = m_fenster.OpenInitially();
            DestroyWindow();
        }
    }
    if (!life.Over())
    {
        m_keepHidden = false;
        m_fenster.SetShowMode(showMode);
    }
    return open;
}

void CDialog3d::PreSubclassWindow()
{
    CDialogEx::PreSubclassWindow();
    if (m_keepHidden)
    {
        ::SetPropW(m_hWnd, hidden_property, m_hWnd);
        ::SetWindowSubclass(m_hWnd, KeepHidden, hidden_opening, 0);
    }
    if (m_fadeInOnCreate)
    {
        DurchsichtigkeitSetzen(0);
        ::GdiFlush();
        Einblenden(fade_on_create);
    }
    m_drag.End();
}

int CDialog3d::OnCreate(LPCREATESTRUCT createStruct)
{
    if (CDialogEx::OnCreate(createStruct) == -1)
        return -1;
    if (m_paneChild)
    {
        LONG const style = ::GetWindowLongW(m_hWnd, GWL_STYLE);
        ::SetWindowLongW(m_hWnd, GWL_STYLE, (style & pane_child_style_mask) | WS_CHILD);
        ChangeExStyle(m_hWnd, WS_EX_CONTROLPARENT, WS_EX_TRANSPARENT);
    }
    return 0;
}

BOOL CDialog3d::OnInitDialog()
{
    CResourceModuleScope const scope(m_module.hModule);
    WindowAlive const alive(*this, m_life);
    BOOL const result = CDialogEx::OnInitDialog();
    if (!alive.IsAlive())
        return result;

    // Again: a window system may drop a layered style that was set while the window was being created.
    if (m_fadeInOnCreate && m_fade.Alpha() != CDialogFade::opaque)
        DurchsichtigkeitSetzen(m_fade.Alpha());

    if (m_hIcon == nullptr)
        SelectIcon(ICON_STANDARD);
    SendMessage(WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(m_hIcon));
    if (!alive.IsAlive())
        return result;

    bool const resizing = m_paneChild || (GetStyle() & WS_THICKFRAME) != 0;
    m_resizeDims = resizing ? CDialogResizer::RESIZE_BOTH : CDialogResizer::RESIZE_NONE;
    if (resizing)
    {
        MakeResizingDialog();
        // Before any stored position is applied: the present size is the design size.
        if (m_resizer == nullptr)
            m_resizer = std::make_unique<CDialogResizer>(*this, CString());
    }

    if (!m_initialised)
    {
        if (m_fenster.WhoAmI().IsEmpty())
        {
            CString caption;
            GetWindowText(caption);
            if (!alive.IsAlive())
                return result;
            m_fenster.WhoAmI(caption);
        }
        if (m_dialogTitle.IsEmpty())
            m_dialogTitle = m_fenster.WhoAmI();
    }
    if (!m_dialogTitle.IsEmpty())
    {
        CString const title = m_dialogTitle; // a handler may set another one
        SetWindowText(title);
        if (!alive.IsAlive())
            return result;
    }

    if (!m_paneChild)
    {
        m_fenster.PreferedPosition(this);
        m_fenster.ReadMyPosition(this);
        if (!alive.IsAlive())
            return result;
        if (resizing)
        {
            m_sizeGrip.Create(this);
            if (!alive.IsAlive())
                return result;
        }
    }
    m_initialised = true;
    return result;
}

void CDialog3d::OnDestroy()
{
    SaveDialogPosition();
    CDialogEx::OnDestroy();
    m_drag.End();
    EndDynamicLayout(*this);
}

void CDialog3d::FensterpositionLaden()
{
    if (!m_paneChild)
        m_fenster.ReadMyPosition(this);
}

void CDialog3d::FensterpositionSpeichern()
{
    SaveDialogPosition();
}

void CDialog3d::SaveDialogPosition()
{
    m_fenster.CalcMyPosition(this);
    m_fenster.SaveMyPosition(false);
}

void CDialog3d::SetDialogTitle(CString const & title)
{
    CString const shown = title; // a handler may set another one
    SetGenuineTitle(shown);
    m_dialogTitle = shown;
    if (IsOpen())
        SetWindowText(shown);
}

CString const & CDialog3d::GetDialogTitle() const
{
    return m_dialogTitle;
}

bool CDialog3d::SetGenuineTitle(CString const & title)
{
    if (m_initialised)
        return false;
    m_fenster.WhoAmI(title);
    return true;
}

CString const & CDialog3d::GetGenuineTitle() const
{
    return m_fenster.WhoAmI();
}

void CDialog3d::SelectIcon(icon_t icon)
{
    m_hIcon = LoadToolkitIcon(IconId(icon));
}

void CDialog3d::Einblenden(unsigned long ms)
{
    Ueberblenden(CDialogFade::opaque, ms);
}

void CDialog3d::Ausblenden(unsigned long ms)
{
    Ueberblenden(0, ms);
}

void CDialog3d::Ueberblenden(int alpha, unsigned long ms)
{
    if (m_fade.Start(alpha, static_cast<std::int32_t>(ms)) && IsOpen())
        SetTimer(fade_timer, CDialogFade::tick_period, nullptr);
}

void CDialog3d::DurchsichtigkeitSetzen(unsigned char alpha)
{
    m_fade.SetAlpha(alpha);
    HWND const window = GetSafeHwnd();
    if (alpha == CDialogFade::opaque)
    {
        ::SetLayeredWindowAttributes(window, unused_colour_key, alpha, LWA_ALPHA);
        ChangeExStyle(window, WS_EX_LAYERED, 0);
    }
    else
    {
        ChangeExStyle(window, 0, WS_EX_LAYERED);
        ::SetLayeredWindowAttributes(window, unused_colour_key, alpha, LWA_ALPHA);
    }
}

void CDialog3d::DurchsichtigkeitBeiInaktiv(unsigned char alpha)
{
    m_inactiveAlpha = alpha;
    if (alpha == CDialogFade::opaque && IsOpen())
        DurchsichtigkeitSetzen(CDialogFade::opaque);
}

// Hosts expect that the timer's id is not looked at: a derived class's own timer that gets here is a tick of a fade,
// and is swallowed while none runs.
void CDialog3d::OnTimer(UINT_PTR id)
{
    std::optional<std::uint8_t> const alpha = m_fade.Tick();
    if (!alpha)
    {
        KillTimer(fade_timer);
        return;
    }
    WindowAlive const alive(*this, m_life);
    DurchsichtigkeitSetzen(*alpha);
    if (alive.IsAlive())
        CDialogEx::OnTimer(id);
}

// Hosts expect that activation does not end a fade: its next tick goes on from opaque.
void CDialog3d::OnActivate(UINT state, CWnd * other, BOOL minimized)
{
    WindowAlive const alive(*this, m_life);
    if (m_inactiveAlpha < CDialogFade::opaque)
    {
        if (state == WA_INACTIVE)
            Ueberblenden(m_inactiveAlpha, fade_when_inactive);
        else
            DurchsichtigkeitSetzen(CDialogFade::opaque);
    }
    if (alive.IsAlive())
        CDialogEx::OnActivate(state, other, minimized);
}

void CDialog3d::SetPaneChildMode(bool paneChild)
{
    m_paneChild = paneChild;
}

bool CDialog3d::GetPaneChildMode() const
{
    return m_paneChild;
}

void CDialog3d::EnableCloseButton(bool enable)
{
    if (CMenu * const menu = GetSystemMenu(FALSE))
        menu->EnableMenuItem(SC_CLOSE, MF_BYCOMMAND | (enable ? MF_ENABLED : MF_GRAYED | MF_DISABLED));
}

void CDialog3d::DDX_CBInt(CDataExchange * pDX, int id, int & value)
{
    CString text;
    if (!pDX->m_bSaveAndValidate)
        text.Format(L"%d", value);
    DDX_CBString(pDX, id, text);
    if (pDX->m_bSaveAndValidate)
        std::swscanf(text, L"%d", &value);
}

void CDialog3d::DDX_CBFloat(CDataExchange * pDX, int id, float & value)
{
    CString text;
    if (!pDX->m_bSaveAndValidate)
        text.Format(L"%f", static_cast<double>(value));
    DDX_CBString(pDX, id, text);
    if (pDX->m_bSaveAndValidate)
        std::swscanf(text, L"%f", &value);
}
