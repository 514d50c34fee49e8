// Dialogs whose host destroys, deletes and changes them in every message that they get.

#include <afxpriv.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "chaos_Chaos.h"
#include "dialogs/Dialog3d.h"
#include "MemoryPreferenceStore.h"
#include "resource.h"

namespace
{
class DialogWorld;

class ManagerCount : public CFensterManager
{
public:
    static std::size_t Now() { return m_managerListe.size(); }
};

class ChaosDialog : public CDialog3d
{
public:
    ChaosDialog(DialogWorld & world, UINT id, CWnd * parent);
    ~ChaosDialog() override;

    using CDialog3d::ActivatePopup;
    using CDialog3d::D3dLayoutChild;
    using CDialog3d::D3dLayoutComplete;
    using CDialog3d::D3dLayoutMoveChild;
    using CDialog3d::D3dLayoutTouch;
    using CDialog3d::EnableCloseButton;
    using CDialog3d::GetMaxID;
    using CDialog3d::m_fadeInOnCreate;

    /// Calls of ours that hold the object: it may not be deleted within.
    int m_held = 0;
    bool m_modal = false;
    /// Messages being handled during which Wine does not stand the window's end; see Pins.
    int m_pinned = 0;
    bool m_resizable;

protected:
    BOOL OnInitDialog() override;
    BOOL OnCmdMsg(UINT id, int code, void * extra, AFX_CMDHANDLERINFO * info) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnOK() override {}
    void OnCancel() override {}

private:
    bool Pins(UINT message, WPARAM wParam, LPARAM lParam) const;

    DialogWorld & m_world;
};

class DialogWorld : public chaos::Chaos
{
public:
    explicit DialogWorld(unsigned int seed) : Chaos(seed), m_managers(ManagerCount::Now())
    {
        CVeskBase::SetPreferenceVesk(&m_store);
    }
    ~DialogWorld() override
    {
        while (!m_dialogs.empty())
            delete m_dialogs.back();
        CDialog3d::SetTouchFreeze(false);
        CVeskBase::SetPreferenceVesk(nullptr);
        tests::App().Reset();
    }

    bool Lives(ChaosDialog const * dialog) const
    {
        return std::find(m_dialogs.begin(), m_dialogs.end(), dialog) != m_dialogs.end();
    }
    void Enter(ChaosDialog * dialog) { m_dialogs.push_back(dialog); }
    void Leave(ChaosDialog * dialog) { std::erase(m_dialogs, dialog); }

    /// Wine keeps a device context, with a region and a bitmap, for each that was once in use at the same time, and
    /// loses the font of a caption whose window ends while it is asked for its text.
    static constexpr int kept_by_the_system = 200;

protected:
    void Operate() override;
    void CheckInvariants() override
    {
        EXPECT_EQ(ManagerCount::Now(), m_managers + m_dialogs.size());
        for (ChaosDialog * const dialog : m_dialogs)
        {
            EXPECT_EQ(dialog->IsOpen(), dialog->m_hWnd != nullptr);
            if (dialog->m_hWnd != nullptr)
            {
                EXPECT_EQ(CWnd::FromHandlePermanent(dialog->m_hWnd), dialog);
            }
            EXPECT_EQ(dialog->m_held, 0);
            EXPECT_FALSE(dialog->m_modal);
        }
        EXPECT_TRUE(m_host.IsWindowEnabled()) << "left disabled by a modal dialog";
    }

private:
    bool MayEnd(ChaosDialog const & dialog) const;
    void Make();
    void Open(ChaosDialog & dialog);
    void Layout(ChaosDialog & dialog);
    void Mouse(ChaosDialog & dialog);
    void Popup(ChaosDialog & dialog);
    void Control(ChaosDialog & dialog);
    void Modal(ChaosDialog & dialog);
    CString Text();

    MemoryPreferenceStore m_store;
    tests::ScopedWindow m_host;
    std::vector<ChaosDialog *> m_dialogs;
    std::size_t m_managers;
    int m_loops = 0;
    int m_popups = 0;
};

ChaosDialog::ChaosDialog(DialogWorld & world, UINT id, CWnd * parent)
    : CDialog3d(NO_DLL, id, parent),
      m_resizable(id == IDD_CHAOS_SIZABLE),
      m_world(world)
{
    m_world.Enter(this);
}

ChaosDialog::~ChaosDialog()
{
    m_world.Leave(this);
    if (m_hWnd != nullptr)
        DestroyWindow();
}

BOOL ChaosDialog::OnInitDialog()
{
    DialogWorld & world = m_world; // this object may end
    world.Disturb();
    if (!world.Lives(this) || m_hWnd == nullptr)
        return FALSE;
    BOOL const result = CDialog3d::OnInitDialog();
    if (world.Lives(this))
        world.Disturb();
    return result;
}

BOOL ChaosDialog::OnCmdMsg(UINT id, int code, void * extra, AFX_CMDHANDLERINFO * info)
{
    DialogWorld & world = m_world; // this object may end
    if (info == nullptr && world.Lives(this))
    {
        world.Disturb();
        if (!world.Lives(this))
            return TRUE;
    }
    return CDialog3d::OnCmdMsg(id, code, extra, info);
}

/// Whether the window must last until the message is handled. Each of these ends brings the window system's own code
/// down under Wine: seen in a plain program without a class of ours, or with each block of that code on pages of its
/// own.
/// - Once focus or activation has been handled, the dialog's record is written to, which has ended with the window.
/// - A button that paints goes on with what it has freed after each message to its parent, for its background, its
///   colours and its custom drawing; so does an edit field after it has asked for its colours.
/// - An edit field or combo box writes to its freed memory after a notification.
/// - A menu whose owner has ended waits for input for ever.
/// - A combo box or list box that is sized goes on with what it has freed if its parent ends it meanwhile; the dialogs
///   have none.
/// Everywhere else, from the first message of its creation on, a window may end.
bool ChaosDialog::Pins(UINT message, WPARAM wParam, LPARAM lParam) const
{
    switch (message)
    {
    case WM_SETFOCUS:
    case WM_ACTIVATE:
        return true;
    case WM_COMMAND:
        return lParam != 0;
    case WM_NOTIFY:
    case WM_PRINTCLIENT:
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
        return true;
    case WM_ERASEBKGND: // a themed control has its parent paint what lies behind it
        return ::WindowFromDC(reinterpret_cast<HDC>(wParam)) != m_hWnd;
    default:
        return false;
    }
}

LRESULT ChaosDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    DialogWorld & world = m_world; // this object may end
    if (message == WM_KICKIDLE && m_modal)
        EndDialog(world.Pick(100));
    // An end within the end is no host's right.
    if (message == WM_NCDESTROY || message == WM_DESTROY || !world.Lives(this))
        return CDialog3d::WindowProc(message, wParam, lParam);
    bool const pinned = Pins(message, wParam, lParam);
    m_pinned += pinned;
    world.Disturb();
    if (!world.Lives(this))
        return 0;
    if (m_hWnd == nullptr)
    {
        m_pinned -= pinned;
        return 0;
    }
    LRESULT const result = CDialog3d::WindowProc(message, wParam, lParam);
    if (!world.Lives(this))
        return result;
    world.Disturb();
    if (world.Lives(this))
        m_pinned -= pinned;
    return result;
}

CString DialogWorld::Text()
{
    return CString(static_cast<wchar_t>(L'a' + Pick(6)), Pick(60));
}

/// Whether neither the window nor one that it owns, which ends with it, is pinned.
bool DialogWorld::MayEnd(ChaosDialog const & dialog) const
{
    for (ChaosDialog const * const pinned : m_dialogs)
    {
        if (pinned->m_pinned == 0)
            continue;
        for (HWND window = pinned->m_hWnd; window != nullptr; window = ::GetWindow(window, GW_OWNER))
        {
            if (window == dialog.m_hWnd)
                return false;
        }
    }
    return true;
}

void DialogWorld::Make()
{
    UINT const id = OneIn(2) ? IDD_CHAOS_SIZABLE : IDD_CHAOS_FIXED;
    auto * const dialog = new ChaosDialog(*this, id, OneIn(2) ? &m_host : nullptr);
    dialog->m_fadeInOnCreate = OneIn(4);
    dialog->SetGrabAndMove(OneIn(2));
}

void DialogWorld::Open(ChaosDialog & dialog)
{
    if (dialog.m_held > 0)
        return;
    ++dialog.m_held;
    if (OneIn(4))
        dialog.OpenInitially();
    else
        dialog.DisplayDialog();
    --dialog.m_held;
}

void DialogWorld::Layout(ChaosDialog & dialog)
{
    if (!dialog.m_resizable || dialog.m_hWnd == nullptr)
        return;
    switch (Pick(4))
    {
    case 0:
        dialog.D3dLayoutChild(IDC_NAME, OneIn(2) ? CEdges::LEFT_RIGHT() : CEdges::BOTTOM_RIGHT(), nullptr);
        break;
    case 1: {
        CSize const amount(Pick(9) - 4, Pick(9) - 4);
        dialog.D3dLayoutMoveChild(IDC_NAME, &amount, &amount, OneIn(2));
        break;
    }
    case 2:
        // Shows a message while the dialog is not ready yet.
        dialog.D3dLayoutComplete(OneIn(2) ? CDialogResizer::RESIZE_BOTH : CDialogResizer::RESIZE_HORIZONTAL);
        break;
    default:
        dialog.D3dLayoutTouch();
        break;
    }
}

void DialogWorld::Mouse(ChaosDialog & dialog)
{
    if (dialog.m_hWnd == nullptr)
        return;
    constexpr UINT messages[] = {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_MOUSEMOVE, WM_LBUTTONUP};
    HWND const window = dialog.m_hWnd;
    for (UINT const message : messages)
        ::SendMessage(window, message, MK_LBUTTON, MAKELPARAM(Pick(200), Pick(200)));
}

void DialogWorld::Popup(ChaosDialog & dialog)
{
    if (dialog.m_hWnd == nullptr || m_popups > 0)
        return;
    CPopupConfig config;
    config.Add(L"first", [this] { Disturb(); });
    config.AddSeparator();
    config.Add(L"second", [this] { Disturb(); });
    int const first = dialog.GetMaxID() + 1;
    HWND const window = dialog.m_hWnd;
    ++m_popups;
    ++dialog.m_pinned;
    constexpr UINT soon = 20; // milliseconds
    UINT_PTR const timer = ::SetTimer(nullptr, 0, soon, [](HWND, UINT, UINT_PTR, DWORD) { ::EndMenu(); });
    dialog.ActivatePopup(config, 100, 100);
    ::KillTimer(nullptr, timer);
    --dialog.m_pinned;
    --m_popups;
    ::SendMessage(window, WM_COMMAND, static_cast<WPARAM>(first + Pick(3)), 0);
}

void DialogWorld::Control(ChaosDialog & dialog)
{
    if (dialog.m_hWnd == nullptr)
        return;
    HWND const name = ::GetDlgItem(dialog.m_hWnd, IDC_NAME);
    if (name != nullptr && OneIn(2))
    {
        if (dialog.m_pinned == 0)
            ::DestroyWindow(name);
    }
    else
    {
        ::CreateWindowW(L"STATIC", L"new", WS_CHILD | WS_VISIBLE, Pick(50), Pick(50), 40, 20, dialog.m_hWnd,
                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(IDC_NAME)), nullptr, nullptr);
    }
}

void DialogWorld::Modal(ChaosDialog & dialog)
{
    constexpr int most_loops = 3;
    if (dialog.m_hWnd != nullptr || dialog.m_held > 0 || m_loops == most_loops)
        return;
    ++m_loops;
    ++dialog.m_held;
    dialog.m_modal = true;
    dialog.DoModal();
    dialog.m_modal = false;
    --dialog.m_held;
    --m_loops;
}

void DialogWorld::Operate()
{
    constexpr std::size_t most = 4;
    if (m_dialogs.empty() || (m_dialogs.size() < most && OneIn(6)))
    {
        Note("make");
        Make();
        return;
    }
    ChaosDialog & dialog = *m_dialogs[static_cast<std::size_t>(Pick(static_cast<int>(m_dialogs.size())))];
    HWND const window = dialog.m_hWnd;
    switch (Pick(20))
    {
    case 0:
    case 1:
        Note("open");
        Open(dialog);
        break;
    case 2:
        Note("destroy the window");
        if (MayEnd(dialog))
            dialog.DestroyWindow();
        break;
    case 3:
        Note("delete");
        if (dialog.m_held == 0 && MayEnd(dialog))
            delete &dialog;
        break;
    case 4:
        Note("show");
        ::ShowWindow(window, OneIn(2) ? SW_SHOW : OneIn(2) ? SW_HIDE : SW_MAXIMIZE);
        break;
    case 5:
    case 6:
        Note("size");
        ::SetWindowPos(window, nullptr, Pick(300), Pick(300), Pick(500), Pick(400), SWP_NOZORDER);
        break;
    case 7:
        Note("title");
        if (OneIn(3))
            dialog.SetGenuineTitle(Text());
        else
            dialog.SetDialogTitle(Text());
        break;
    case 8:
        Note("fade");
        if (OneIn(2))
            dialog.Ueberblenden(Pick(256), 25 + static_cast<unsigned long>(Pick(300)));
        else
            dialog.DurchsichtigkeitSetzen(static_cast<unsigned char>(Pick(256)));
        break;
    case 9:
        Note("tick");
        ::SendMessage(window, WM_TIMER, 99, 0);
        break;
    case 10:
        Note("activate");
        if (OneIn(2))
            dialog.DurchsichtigkeitBeiInaktiv(static_cast<unsigned char>(Pick(256)));
        ::SendMessage(window, WM_ACTIVATE, OneIn(2) ? WA_INACTIVE : WA_ACTIVE, 0);
        break;
    case 11:
        Note("layout");
        Layout(dialog);
        break;
    case 12:
        Note("position");
        if (OneIn(2))
            dialog.FensterpositionLaden();
        else
            dialog.FensterpositionSpeichern();
        break;
    case 13:
        Note("mouse");
        Mouse(dialog);
        break;
    case 14:
        Note("freeze");
        CDialog3d::SetTouchFreeze(OneIn(2));
        CFensterManager::ActivateTouchFreeze(OneIn(2));
        break;
    case 15:
        Note("popup");
        Popup(dialog);
        break;
    case 16:
        Note("pump");
        if (OneIn(2))
            CDialog3d::PumpPaintMessages(OneIn(2));
        else
            CDialog3d::PumpWindowsMessages(0);
        break;
    case 17:
        Note("control");
        Control(dialog);
        break;
    case 18:
        Note("modal");
        Modal(dialog);
        break;
    default:
        Note("icon and buttons");
        dialog.SelectIcon(static_cast<CDialog3d::icon_t>(Pick(4)));
        if (window != nullptr)
            dialog.EnableCloseButton(OneIn(2));
        break;
    }
}
} // namespace

TEST(ChaosDialogs, StandAHostThatDoesItsWorst)
{
    chaos::RunAll<DialogWorld>();
}
