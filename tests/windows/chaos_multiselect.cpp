// Multiselects, their list and their dialog, and browse edits, whose host changes and ends them in every message that
// they get.
//
// Native controls do not stand everything. A plain program without us shows what the host here leaves out:
// - Rows of a native list go, or its window, while it paints or tells of rows that change or go; while it asks whether
//   one may change it writes into that afterwards.
// - The window of a native control ends while it paints, or handles a press.
// - The text of a native edit field changes, or its window ends, while it tells of a change.
// - A native control is sized, or gets another message, before it has been told that it is made.
// With each block of the native code on pages of its own, that are not used again, this was seen too:
// - An edit field goes on with what it has freed if its window ends in the messages that begin its painting.
// - So does a list if its window ends in the messages of its frame that it causes itself: as it handles a new size, and
//   when its scroll bars come or go with a row.
// Nor does a window's object stand its end while the window is being made or ends, or that of a member is being made.

#include <algorithm>
#include <memory>
#include <set>
#include <type_traits>
#include <vector>

#include "chaos_Chaos.h"
#include "controls/XEditBrowseCtrl.h"
#include "frame/RegisteredMessages.h"

namespace
{
/// Whether the native control stands it that its parent does its worst in this message.
bool StandsTheWorst(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND)
        return HIWORD(wParam) != EN_UPDATE && HIWORD(wParam) != EN_CHANGE;
    if (message != WM_NOTIFY)
        return true;
    UINT const code = reinterpret_cast<NMHDR const *>(lParam)->code;
    return code != LVN_DELETEALLITEMS && code != LVN_DELETEITEM && code != LVN_ITEMCHANGING &&
           code != LVN_ITEMCHANGED && code != NM_CUSTOMDRAW;
}

/// Whether a native list may cause the message itself by a change of its frame.
bool IsOfTheFrame(UINT message)
{
    return message == WM_WINDOWPOSCHANGING || message == WM_WINDOWPOSCHANGED || message == WM_NCCALCSIZE ||
           message == WM_SIZE || message == WM_NCPAINT || message == WM_STYLECHANGING || message == WM_STYLECHANGED;
}

/// A control that disturbs its world before and after each message.
template <class World, class Base> class Chaotic : public Base
{
public:
    explicit Chaotic(World & world) : m_world(world) { m_world.Enter(this); }
    ~Chaotic() override
    {
        m_world.Leave(this);
        if (this->m_hWnd != nullptr)
            this->DestroyWindow();
    }

    /// Above 0 while it must not end.
    int m_held = 0;
    /// Above 0 while its window must not end, nor it.
    int m_windowHeld = 0;
    /// Its window is being made.
    bool m_isMade = false;
    /// The native list that is part of it is being made.
    bool IsMakingItsList() const
    {
        if constexpr (std::is_base_of_v<CIdNameMultiselectCtrl, Base>)
            return this->m_list.m_hWnd != nullptr && this->m_selectAll.m_hWnd == nullptr;
        else
            return false;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        World & world = m_world; // this object may end
        bool const quiet = message == WM_NCDESTROY || message == WM_DESTROY || message == WM_NCCREATE;
        if (quiet || !StandsTheWorst(message, wParam, lParam) || !world.Lives(this))
        {
            m_held += quiet;
            LRESULT const result = Base::WindowProc(message, wParam, lParam);
            if (world.Lives(this))
                m_held -= quiet;
            return result;
        }
        // A member's window is being made.
        bool const holds = message == WM_PARENTNOTIFY;
        // A member is being made, or may be painting.
        bool const holdsWindow = holds || message == WM_ERASEBKGND || message == WM_PRINTCLIENT ||
                                 (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) ||
                                 (std::is_base_of_v<CListCtrl, Base> && m_native > 0 && IsOfTheFrame(message));
        m_held += holds;
        m_windowHeld += holdsWindow;
        world.Disturb();
        if (!world.Lives(this))
            return 0;
        LRESULT result = 0;
        if (this->m_hWnd != nullptr)
        {
            result = Base::WindowProc(message, wParam, lParam);
            if (!world.Lives(this))
                return result;
            world.Disturb();
        }
        if (world.Lives(this))
        {
            m_held -= holds;
            m_windowHeld -= holdsWindow;
        }
        return result;
    }

    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        bool const holds = message == WM_PAINT || message == WM_LBUTTONDOWN;
        m_windowHeld += holds;
        ++m_native;
        World & world = m_world;
        LRESULT const result = Base::DefWindowProc(message, wParam, lParam);
        if (world.Lives(this))
        {
            --m_native;
            m_windowHeld -= holds;
        }
        return result;
    }

private:
    World & m_world;
    /// Above 0 while native code handles a message.
    int m_native = 0;
};

/// Disturbs the world in what controls tell.
template <class World> class Holder : public tests::ScopedWindow
{
public:
    explicit Holder(World & world) : m_world(world) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        bool const tells = message == WM_NOTIFY || message == WM_COMMAND || message == WM_DRAWITEM;
        if (tells && StandsTheWorst(message, wParam, lParam))
            m_world.Disturb();
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }

private:
    World & m_world;
};

std::map<int, CString> RandomMap(chaos::Chaos & chaos)
{
    std::map<int, CString> map;
    for (int i = chaos.Pick(12); i > 0; --i)
        map[chaos.Pick(30)] = CString(static_cast<wchar_t>(L'a' + chaos.Pick(26)), chaos.Pick(6));
    return map;
}

std::set<int> RandomSelection(chaos::Chaos & chaos)
{
    std::set<int> ids;
    for (int i = chaos.Pick(6); i > 0; --i)
        ids.insert(chaos.Pick(31) - 1);
    return ids;
}

void Press(chaos::Chaos & chaos, HWND list)
{
    LPARAM const place = MAKELPARAM(chaos.Pick(60), chaos.Pick(100));
    // The native list waits for the end within the press.
    ::PostMessageW(list, WM_LBUTTONUP, 0, place);
    ::SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, place);
}

/// A random change of a multiselect.
void ChangeMultiselect(chaos::Chaos & chaos, CIdNameMultiselectCtrl & control)
{
    switch (chaos.Pick(8))
    {
    case 0:
        control.SetTheMap(RandomMap(chaos));
        break;
    case 1:
        control.SetSelection(RandomSelection(chaos));
        break;
    case 2:
    case 3:
        control.RefreshContent();
        break;
    case 4:
        control.RefreshSelection();
        break;
    case 5:
        control.RetrieveSelection();
        break;
    case 6:
        control.ShowIds(chaos.OneIn(2));
        control.SortAlphabetically(chaos.OneIn(2));
        control.ShowGroupedSelection(chaos.OneIn(2));
        break;
    default: // a press of one of the buttons
        ::SendMessageW(control.m_hWnd, WM_COMMAND, static_cast<WPARAM>(32803 + chaos.Pick(4)), 0);
        break;
    }
}

/// What the worlds of the controls have in common.
template <class Derived, class Base> class ControlWorld : public chaos::Chaos
{
public:
    using Control = Chaotic<Derived, Base>;
    /// Its cache of device contexts, each with a region and a bitmap, for windows that paint within one another: grows
    /// to that size and stays.
    static constexpr int kept_by_the_system = 84;

    explicit ControlWorld(unsigned int seed) : Chaos(seed), m_host(static_cast<Derived &>(*this)) {}
    ~ControlWorld() override
    {
        while (!m_controls.empty())
            delete m_controls.back();
    }

    bool Lives(Control const * control) const
    {
        return std::find(m_controls.begin(), m_controls.end(), control) != m_controls.end();
    }
    void Enter(Control * control) { m_controls.push_back(control); }
    void Leave(Control * control) { std::erase(m_controls, control); }

protected:
    /// Whether native code stands the end of the control's window.
    bool MayEnd(Control const & control) const
    {
        return m_painting == 0 && control.m_windowHeld == 0 && !control.IsMakingItsList();
    }
    void Operate() override
    {
        constexpr std::size_t most = 3;
        if (m_controls.empty() || (m_controls.size() < most && OneIn(8)))
        {
            Note("make");
            MakeWindow(*new Control(static_cast<Derived &>(*this)));
            return;
        }
        Control & control = *m_controls[static_cast<std::size_t>(Pick(static_cast<int>(m_controls.size())))];
        if (control.m_isMade)
            return;
        HWND const window = control.m_hWnd;
        switch (Pick(16))
        {
        case 0:
            Note("delete");
            if (MayEnd(control) && control.m_held == 0 && OneIn(2))
                delete &control;
            break;
        case 1:
            Note("destroy the window");
            if (MayEnd(control) && OneIn(4))
                control.DestroyWindow();
            break;
        case 2:
            Note("make the window again");
            if (window == nullptr && control.m_held == 0 && control.m_windowHeld == 0)
                MakeWindow(control);
            break;
        case 3:
        case 4:
            Note("size");
            ::SetWindowPos(window, nullptr, Pick(50), Pick(50), Pick(250), Pick(150), SWP_NOZORDER);
            break;
        case 5:
            Note("paint");
            ++m_painting;
            ::RedrawWindow(window, nullptr, nullptr,
                           RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
            --m_painting;
            break;
        case 6:
            Note("handle messages");
            if (!MayEnd(control))
                break; // a press waits for its end
            ++m_painting;
            tests::PumpPosted(20);
            --m_painting;
            break;
        default:
            Note("change");
            static_cast<Derived &>(*this).Change(control);
            break;
        }
    }
    void CheckInvariants() override
    {
        for (Control * const control : m_controls)
        {
            if (control->m_hWnd != nullptr)
            {
                EXPECT_EQ(CWnd::FromHandlePermanent(control->m_hWnd), control);
            }
        }
    }

private:
    void MakeWindow(Control & control)
    {
        control.m_isMade = true;
        static_cast<Derived &>(*this).Create(control, &m_host);
        control.m_isMade = false;
    }

    Holder<Derived> m_host;
    std::vector<Control *> m_controls;
    /// Above 0 while controls and what they are made of may be painting.
    int m_painting = 0;
};

class MultiselectWorld : public ControlWorld<MultiselectWorld, CIdNameMultiselectCtrl>
{
public:
    using ControlWorld::ControlWorld;

    void Create(Control & control, CWnd * parent)
    {
        control.SetTheMap(RandomMap(*this));
        if (OneIn(2))
            control.EnableOkCancel();
        control.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 200, 150), parent, 5);
    }
    void Change(Control & control)
    {
        if (control.IsMakingItsList() || !OneIn(20))
        {
            ChangeMultiselect(*this, control);
            return;
        }
        ++control.m_windowHeld;
        Press(*this, ::GetDlgItem(control.m_hWnd, 32802));
        --control.m_windowHeld;
    }
};

class ListWorld : public ControlWorld<ListWorld, CIdNameMultiselectListCtlr>
{
public:
    using ControlWorld::ControlWorld;

    void Create(Control & list, CWnd * parent)
    {
        list.Create(WS_CHILD | WS_VISIBLE | LVS_LIST, CRect(10, 10, 200, 150), parent, 5);
    }
    void Change(Control & list)
    {
        HWND const window = list.m_hWnd;
        if (window == nullptr)
            return;
        switch (Pick(8))
        {
        case 0:
        case 1:
        case 2:
        case 3:
            list.InsertItem(LVIF_TEXT | LVIF_PARAM, 0, L"row", 0, 0, 0, Pick(9));
            break;
        case 4:
            list.DeleteItem(Pick(5));
            break;
        case 5:
            if (OneIn(3))
                list.DeleteAllItems();
            break;
        default:
            Press(*this, window);
            break;
        }
    }
};

class BrowseWorld : public ControlWorld<BrowseWorld, CXEditBrowseCtrl>
{
public:
    using ControlWorld::ControlWorld;

    void Create(Control & control, CWnd * parent)
    {
        control.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, CRect(10, 10, 200, 34), parent, 5);
    }
    void Change(Control & control)
    {
        HWND const window = control.m_hWnd;
        switch (Pick(10))
        {
        case 0:
            control.SetTheMap(RandomMap(*this));
            break;
        case 1:
            control.SetSelection(RandomSelection(*this));
            break;
        case 2:
        case 3:
            control.UpdateSelectionText();
            break;
        case 4:
            if (OneIn(2))
                control.PrepareIdNameBrowser();
            else
                control.PrepareLongIdNameBrowser();
            break;
        case 5:
            if (OneIn(2))
                control.PrepareFileOpenBrowser(L"", L"", L"");
            else
                control.PrepareFileSaveAsBrowser(L"", L"", nullptr);
            break;
        case 6:
            ::EnableWindow(window, !OneIn(3));
            break;
        case 7: {
            CRect rect;
            ::GetWindowRect(window, &rect);
            LPARAM const place = MAKELPARAM(rect.right - 5, rect.CenterPoint().y);
            ::SendMessageW(window, OneIn(2) ? WM_NCMOUSEMOVE : WM_NCLBUTTONDOWN, HTBORDER, place);
            break;
        }
        default:
            if (OneIn(6))
                Browse(control);
            break;
        }
    }

private:
    /// Names alone: the other dialog is the system's.
    void Browse(Control & control)
    {
        if (m_browsing || control.m_hWnd == nullptr)
            return;
        control.PrepareIdNameBrowser();
        if (!Lives(&control) || control.m_hWnd == nullptr)
            return;
        m_browsing = true;
        tests::LaterActions later;
        later.Add([this, &control] {
            for (int i = Pick(4); i >= 0; --i)
                Disturb();
            if (Lives(&control) && MayEnd(control) && OneIn(3))
                control.DestroyWindow();
            CloseDropDowns();
        });
        control.OnBrowse();
        m_browsing = false;
    }
    static void CloseDropDowns()
    {
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM) -> BOOL {
                if (::GetDlgItem(window, 1016) != nullptr)
                    ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(IDOK), 0);
                return TRUE;
            },
            0);
    }

    bool m_browsing = false;
};

class DialogWorld;

/// Disturbs its world in all that it gets, and ends after some rounds of that.
class ChaosDialog : public CIdNameMultiselectDlg
{
public:
    explicit ChaosDialog(DialogWorld & world);
    ~ChaosDialog() override;

    CIdNameMultiselectCtrl & Control() { return m_control; }
    /// Above 0 while native code, or the window's making, does not stand its end.
    int m_held = 0;
    /// Above 0 while a message may exchange the dialog's data.
    int m_exchanging = 0;

protected:
    BOOL OnInitDialog() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    static constexpr UINT round_message = WM_APP + 1;
    void Round();

    DialogWorld & m_world;
    int m_rounds;
};

/// One dialog after the other, each modal.
class DialogWorld : public chaos::Chaos
{
public:
    using Chaos::Chaos;
    static constexpr int kept_by_the_system = MultiselectWorld::kept_by_the_system;

    void Enter(ChaosDialog * dialog) { m_dialog = dialog; }

protected:
    void Operate() override
    {
        if (m_dialog == nullptr)
        {
            Note("open");
            ChaosDialog dialog(*this);
            dialog.DoModal();
            return;
        }
        ChaosDialog & dialog = *m_dialog;
        HWND const window = dialog.m_hWnd;
        if (window == nullptr)
            return;
        switch (Pick(12))
        {
        case 0:
            Note("size");
            ::SetWindowPos(window, nullptr, Pick(50), Pick(50), Pick(300), Pick(200), SWP_NOZORDER);
            break;
        case 1:
            Note("paint");
            ++dialog.m_held;
            ::RedrawWindow(window, nullptr, nullptr,
                           RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
            --dialog.m_held;
            break;
        case 2:
            Note("event");
            if (dialog.Control().m_hWnd == nullptr)
                break;
            ::SendMessageW(window, WM_IDNAME_MULTISELECT_EVENT, static_cast<WPARAM>(OneIn(4) ? Pick(7) : 6), -1);
            break;
        case 3:
            Note("end");
            if (dialog.m_held == 0 && OneIn(4))
            {
                dialog.EndDialog(IDCANCEL);
                // Without it the exchange of the dialog's data fails from then on.
                if (dialog.m_exchanging == 0 && OneIn(2))
                    dialog.Control().DestroyWindow();
            }
            break;
        case 4:
            Note("show");
            ::ShowWindow(window, OneIn(2) ? SW_HIDE : SW_SHOW);
            break;
        default:
            Note("change");
            ChangeMultiselect(*this, dialog.Control());
            break;
        }
    }
    void CheckInvariants() override { EXPECT_EQ(m_dialog, nullptr); }

private:
    ChaosDialog * m_dialog = nullptr;
};

ChaosDialog::ChaosDialog(DialogWorld & world) : m_world(world), m_rounds(world.Pick(20))
{
    m_placement = CRect(100, 100, 300, 250);
    m_control.SetTheMap(RandomMap(world));
    m_world.Enter(this);
}

ChaosDialog::~ChaosDialog()
{
    m_world.Enter(nullptr);
}

BOOL ChaosDialog::OnInitDialog()
{
    CIdNameMultiselectDlg::OnInitDialog();
    PostMessage(round_message);
    return TRUE;
}

void ChaosDialog::Round()
{
    constexpr int chances = 50;
    for (int i = 0; i < chances && m_hWnd != nullptr; ++i)
        m_world.Disturb();
    if (m_hWnd == nullptr)
        return;
    if (--m_rounds > 0)
        PostMessage(round_message);
    else if (m_world.OneIn(3))
        EndDialog(IDCANCEL);
    else
        PostMessage(WM_COMMAND, m_world.OneIn(2) ? IDOK : IDCANCEL);
}

LRESULT ChaosDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == round_message)
    {
        Round();
        return 0;
    }
    // From here on in its making the window stands what is done with it.
    bool const quiet = message == WM_NCDESTROY || message == WM_DESTROY || message == WM_NCCREATE ||
                       !StandsTheWorst(message, wParam, lParam);
    bool const holds = quiet || message == WM_PARENTNOTIFY || message == WM_INITDIALOG || message == WM_ERASEBKGND ||
                       message == WM_PAINT || message == WM_DRAWITEM || message == WM_PRINTCLIENT ||
                       (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC);
    bool const exchanges = message == WM_COMMAND || message == WM_IDNAME_MULTISELECT_EVENT;
    m_held += holds;
    m_exchanging += exchanges;
    if (!quiet)
        m_world.Disturb();
    LRESULT const result = m_hWnd != nullptr ? CIdNameMultiselectDlg::WindowProc(message, wParam, lParam) : 0;
    if (!quiet)
        m_world.Disturb();
    m_held -= holds;
    m_exchanging -= exchanges;
    return result;
}
} // namespace

TEST(ChaosMultiselect, StandsAHostThatDoesItsWorst)
{
    chaos::RunAll<MultiselectWorld>();
}

TEST(ChaosMultiselectList, StandsAHostThatDoesItsWorst)
{
    chaos::RunAll<ListWorld>();
}

TEST(ChaosMultiselectDialog, StandsAHostThatDoesItsWorst)
{
    chaos::RunAll<DialogWorld>();
}

TEST(ChaosBrowseEdit, StandsAHostThatDoesItsWorst)
{
    chaos::RunAll<BrowseWorld>();
}
