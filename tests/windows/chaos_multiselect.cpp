// Multiselects and browse edits whose host changes and ends them in every message that they get.

#include "chaos_Chaos.h"

#include "controls/XEditBrowseCtrl.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace
{
/// One of the two controls.
template <class World, class Base> class Chaotic : public Base
{
public:
    Chaotic(World & world, CWnd * parent) : m_world(world)
    {
        m_world.Enter(this);
        ++m_held;
        m_world.MakeWindow(*this, parent);
        --m_held;
    }
    ~Chaotic() override
    {
        m_world.Leave(this);
        if (this->m_hWnd != nullptr)
            this->DestroyWindow();
    }

    int m_held = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        World & world = m_world; // this object may end
        // Whoever ends an object while the window of a member of it is being made is beyond help.
        if (message == WM_PARENTNOTIFY || message == WM_NCDESTROY || message == WM_DESTROY || message == WM_NCCREATE || !world.Lives(this))
            return Base::WindowProc(message, wParam, lParam);
        world.Disturb();
        if (!world.Lives(this) || this->m_hWnd == nullptr)
            return 0;
        LRESULT const result = Base::WindowProc(message, wParam, lParam);
        if (world.Lives(this))
            world.Disturb();
        return result;
    }

private:
    World & m_world;
};

/// What the worlds of the two have in common.
template <class Derived, class Base> class ControlWorld : public chaos::Chaos
{
public:
    using Control = Chaotic<Derived, Base>;

    explicit ControlWorld(unsigned int seed) : Chaos(seed) {}
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
    std::map<int, CString> Map()
    {
        std::map<int, CString> map;
        for (int i = Pick(12); i > 0; --i)
            map[Pick(30)] = CString(static_cast<wchar_t>(L'a' + Pick(26)), Pick(6));
        return map;
    }
    std::set<int> Selection()
    {
        std::set<int> ids;
        for (int i = Pick(6); i > 0; --i)
            ids.insert(Pick(31) - 1);
        return ids;
    }
    void Operate() override
    {
        constexpr std::size_t most = 3;
        if (m_controls.empty() || (m_controls.size() < most && OneIn(8)))
        {
            Note("make");
            new Control(static_cast<Derived &>(*this), &m_parent);
            return;
        }
        Control & control = *m_controls[static_cast<std::size_t>(Pick(static_cast<int>(m_controls.size())))];
        HWND const window = control.m_hWnd;
        switch (Pick(16))
        {
        case 0:
            Note("delete");
            if (control.m_held == 0 && OneIn(2))
                delete &control;
            break;
        case 1:
            Note("destroy the window");
            if (OneIn(4))
                control.DestroyWindow();
            break;
        case 2:
            Note("make the window again");
            if (window == nullptr && control.m_held == 0)
            {
                ++control.m_held;
                static_cast<Derived &>(*this).MakeWindow(control, &m_parent);
                if (Lives(&control))
                    --control.m_held;
            }
            break;
        case 3:
        case 4:
            Note("size");
            ::SetWindowPos(window, nullptr, Pick(50), Pick(50), Pick(250), Pick(150), SWP_NOZORDER);
            break;
        case 5:
            Note("paint");
            ::RedrawWindow(window, nullptr, nullptr,
                           RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
            break;
        default:
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
    tests::ScopedWindow m_parent;
    std::vector<Control *> m_controls;
};

class MultiselectWorld : public ControlWorld<MultiselectWorld, CIdNameMultiselectCtrl>
{
public:
    using ControlWorld::ControlWorld;

    void MakeWindow(Control & control, CWnd * parent)
    {
        control.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 200, 150), parent, 5);
    }
    void Change(Control & control)
    {
        HWND const window = control.m_hWnd;
        switch (Pick(9))
        {
        case 0:
            Note("map");
            control.SetTheMap(Map());
            break;
        case 1:
            Note("selection");
            control.SetSelection(Selection());
            break;
        case 2:
            Note("content");
            control.RefreshContent();
            break;
        case 3:
            Note("refresh the selection");
            control.RefreshSelection();
            break;
        case 4:
            Note("retrieve");
            control.RetrieveSelection();
            break;
        case 5:
            Note("look");
            control.ShowIds(OneIn(2));
            control.SortAlphabetically(OneIn(2));
            control.ShowGroupedSelection(OneIn(2));
            break;
        case 6:
            Note("command");
            ::SendMessageW(window, WM_COMMAND, static_cast<WPARAM>(32803 + Pick(4)), 0);
            break;
        case 7:
            Note("ok and cancel");
            control.EnableOkCancel();
            break;
        default: {
            Note("press");
            HWND const list = ::GetDlgItem(window, 32802);
            LPARAM const place = MAKELPARAM(Pick(60), Pick(100));
            ::PostMessageW(list, WM_LBUTTONUP, 0, place);
            ::SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, place);
            break;
        }
        }
    }
};

class BrowseWorld : public ControlWorld<BrowseWorld, CXEditBrowseCtrl>
{
public:
    using ControlWorld::ControlWorld;
    ~BrowseWorld() override = default;

    void MakeWindow(Control & control, CWnd * parent)
    {
        control.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 10, 200, 34), parent, 5);
    }
    void Change(Control & control)
    {
        switch (Pick(10))
        {
        case 0:
            Note("map");
            control.SetTheMap(Map());
            break;
        case 1:
            Note("selection");
            control.SetSelection(Selection());
            break;
        case 2:
        case 3:
            Note("text");
            control.UpdateSelectionText();
            break;
        case 4:
            Note("names");
            control.PrepareIdNameBrowser();
            break;
        case 5:
            Note("files");
            control.PrepareFileOpenBrowser(L"", L"", L"");
            break;
        case 6:
        case 7: {
            Note("mouse");
            CRect rect;
            ::GetWindowRect(control.m_hWnd, &rect);
            LPARAM const place = MAKELPARAM(rect.right - 5, rect.CenterPoint().y);
            ::SendMessageW(control.m_hWnd, OneIn(2) ? WM_NCMOUSEMOVE : WM_NCLBUTTONDOWN, HTBORDER, place);
            break;
        }
        case 8: {
            Note("browse");
            if (m_browsing || control.m_hWnd == nullptr)
                break;
            // Names alone: the other dialog is the system's.
            Control * const used = &control;
            control.PrepareIdNameBrowser();
            if (!Lives(used) || used->m_hWnd == nullptr)
                break;
            m_browsing = true;
            tests::LaterActions later;
            later.Add([this, used] {
                int const times = 1 + Pick(4);
                for (int i = 0; i < times; ++i)
                    Disturb();
                if (Lives(used) && OneIn(3))
                    used->DestroyWindow();
                CloseDropDowns();
            });
            used->OnBrowse();
            m_browsing = false;
            break;
        }
        default:
            Note("enable");
            control.EnableWindow(OneIn(3) ? FALSE : TRUE);
            break;
        }
    }

private:
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
} // namespace

TEST(ChaosMultiselect, DISABLED_StandsAHostThatDoesItsWorst)
{
    chaos::RunAll<MultiselectWorld>();
}

TEST(ChaosBrowseEdit, DISABLED_StandsAHostThatDoesItsWorst)
{
    chaos::RunAll<BrowseWorld>();
}
