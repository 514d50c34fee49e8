// The small controls, with hosts that change, destroy and delete them in every message that they get. A native control
// does not stand its own end within its procedure, so the host ends one only while none of its native code runs.

#include <algorithm>
#include <vector>

#include "Bitmap.h"
#include "chaos_Chaos.h"
#include "controls/ColorButton.h"
#include "controls/ComboBoxX.h"
#include "controls/FreeIconButton.h"
#include "controls/LevelSliderCtrl.h"
#include "controls/ListBoxX.h"

namespace
{
template <typename Control> class World;

/// A control that disturbs its world before and after each message.
template <typename Control> class Chaotic : public Control
{
public:
    explicit Chaotic(World<Control> & world) : m_world(world) { m_world.Enter(this); }
    ~Chaotic() override
    {
        m_world.Leave(this);
        if (this->m_hWnd != nullptr)
            this->DestroyWindow();
    }

    /// Above 0 while it must not end.
    int m_held = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        World<Control> & world = m_world; // this object may end
        // Between the question for a text's length and that for the text no reader expects a longer one.
        bool const quiet = message == WM_NCDESTROY || message == WM_DESTROY || message == WM_NCCREATE ||
                           message == LB_GETTEXTLEN || message == LB_GETTEXT || message == CB_GETLBTEXTLEN ||
                           message == CB_GETLBTEXT;
        if (quiet || !world.Lives(this))
            return Control::WindowProc(message, wParam, lParam);
        world.Disturb();
        if (!world.Lives(this) || this->m_hWnd == nullptr)
            return 0;
        LRESULT const result = Control::WindowProc(message, wParam, lParam);
        if (world.Lives(this))
            world.Disturb();
        return result;
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        ++m_held;
        LRESULT const result = Control::DefWindowProc(message, wParam, lParam);
        --m_held;
        return result;
    }

private:
    World<Control> & m_world;
};

/// Disturbs the world in the notifications of its controls.
template <typename Control> class Holder : public tests::ScopedWindow
{
public:
    explicit Holder(World<Control> & world) : m_world(world) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_COMMAND || message == WM_NOTIFY || message == WM_DRAWITEM)
            m_world.Disturb();
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }

private:
    World<Control> & m_world;
};

/// What differs between the controls.
class Deeds
{
public:
    explicit Deeds(chaos::Chaos & chaos) : m_chaos(chaos) {}

    bool Create(CColorButton & button, CWnd * parent)
    {
        // Once: not every platform's button takes another icon without a loss.
        static BYTE const bits[32 * 4] = {};
        static HICON const icon = ::CreateIcon(nullptr, 32, 32, 1, 1, bits, bits);
        bool const created = button.Create(L"caption", WS_CHILD | WS_VISIBLE, CRect(10, 10, 110, 50), parent, 5);
        button.SetIcons(icon, m_chaos.OneIn(2) ? nullptr : icon, m_chaos.Pick(60));
        return created;
    }
    bool Create(CFreeIconButton & button, CWnd * parent)
    {
        return button.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 50, 50), parent, 5);
    }
    bool Create(CLevelSliderCtrl & slider, CWnd * parent)
    {
        return slider.Create(WS_CHILD | WS_VISIBLE | (m_chaos.OneIn(2) ? TBS_VERT : TBS_HORZ), CRect(10, 10, 110, 110),
                             parent, 5);
    }
    bool Create(CComboBoxX & combo, CWnd * parent)
    {
        // Without the scrolling, some native edit fields read beyond themselves where a text is too wide for them.
        DWORD const style = CBS_AUTOHSCROLL | (m_chaos.OneIn(2) ? CBS_DROPDOWN : CBS_DROPDOWNLIST);
        bool const created =
            combo.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | style, CRect(10, 10, 80, 150), parent, 5);
        combo.AutoComplete(true);
        combo.Editable(m_chaos.OneIn(2));
        return created;
    }
    bool Create(CListBoxX & list, CWnd * parent)
    {
        return list.Create(WS_CHILD | WS_VISIBLE | LBS_NOTIFY | WS_VSCROLL, CRect(10, 10, 80, 150), parent, 5);
    }

    void Change(CColorButton & button)
    {
        switch (m_chaos.Pick(8))
        {
        case 0:
            button.SetColors(Color(), Color(), Color(), Color());
            break;
        case 1:
            button.ResetColors();
            break;
        case 2:
            button.DrawFrame(m_chaos.OneIn(2));
            button.DrawFocusFrame(m_chaos.OneIn(2));
            break;
        case 3:
            button.SetRolloverDelay(static_cast<unsigned int>(m_chaos.Pick(50)));
            break;
        case 4: {
            CColorControl copy(button);
            copy.SetHotFgColor(Color());
            CColorControl other;
            other = copy;
            static_cast<CColorControl &>(button) = m_chaos.OneIn(2) ? other : copy;
            break;
        }
        default:
            DrawItem(button);
            break;
        }
    }
    void Change(CFreeIconButton & button) { DrawItem(button); }
    void Change(CLevelSliderCtrl & slider)
    {
        switch (m_chaos.Pick(5))
        {
        case 0:
            slider.SetMainColor(Color());
            break;
        case 1:
            slider.SetSecondColor(Color());
            break;
        case 2: {
            HWND const window = slider.m_hWnd;
            ::SendMessage(window, TBM_SETRANGEMIN, TRUE, m_chaos.Pick(10));
            ::SendMessage(window, TBM_SETRANGEMAX, TRUE, m_chaos.Pick(10));
            ::SendMessage(window, TBM_SETPOS, TRUE, m_chaos.Pick(10));
            break;
        }
        default: {
            NMCUSTOMDRAW draw{};
            tests::Canvas canvas(100, 40);
            HDC const dc = canvas.Dc().Detach();
            draw.hdr = {slider.m_hWnd, 5, static_cast<UINT>(NM_CUSTOMDRAW)};
            draw.dwDrawStage = CDDS_ITEMPREPAINT;
            draw.dwItemSpec = static_cast<DWORD_PTR>(1 + m_chaos.Pick(3));
            draw.hdc = dc;
            draw.rc = CRect(10, 10, 90, 14);
            ::SendMessage(Parent(slider), WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&draw));
            canvas.Dc().Attach(dc);
            break;
        }
        }
    }
    void Change(CComboBoxX & combo)
    {
        HWND const window = combo.m_hWnd;
        switch (m_chaos.Pick(10))
        {
        case 0:
            combo.FitToWidth();
            break;
        case 1:
            combo.FitToEditWidth();
            break;
        case 2:
            ::SendMessage(window, CB_SHOWDROPDOWN, m_chaos.OneIn(2), 0);
            break;
        case 3:
        case 4: {
            WPARAM const keys[] = {VK_RETURN, VK_BACK, 'A', 'B', VK_DELETE};
            MSG key{window, WM_KEYDOWN, keys[m_chaos.Pick(5)], 0, 0, {}};
            combo.PreTranslateMessage(&key);
            break;
        }
        case 5: {
            // The edit field's procedure runs meanwhile.
            int & held = static_cast<Chaotic<CComboBoxX> &>(combo).m_held;
            ++held;
            ::SendMessage(::FindWindowExW(window, nullptr, L"Edit", nullptr), WM_CHAR,
                          static_cast<WPARAM>(L'a' + m_chaos.Pick(3)), 0);
            --held;
            break;
        }
        case 6:
            ::SendMessage(Parent(combo), WM_COMMAND, MAKEWPARAM(5, m_chaos.OneIn(2) ? CBN_EDITUPDATE : CBN_DROPDOWN),
                          reinterpret_cast<LPARAM>(window));
            break;
        default:
            ChangeRows(combo);
            break;
        }
    }
    void Change(CListBoxX & list)
    {
        switch (m_chaos.Pick(4))
        {
        case 0: {
            TOOLINFOW info{};
            info.cbSize = sizeof info;
            list.OnToolHitTest(CPoint(m_chaos.Pick(100), m_chaos.Pick(150)), &info);
            break;
        }
        case 1: {
            NMTTDISPINFOW info{};
            info.hdr.code = TTN_NEEDTEXTW;
            info.hdr.idFrom = static_cast<UINT_PTR>(m_chaos.Pick(12));
            LRESULT result = 0;
            list.OnToolTipText(0, &info.hdr, &result);
            break;
        }
        default:
            ChangeRows(list);
            break;
        }
    }

private:
    COLORREF Color() { return static_cast<COLORREF>(m_chaos.Pick(0x1000000)); }
    CString Text() { return CString(static_cast<wchar_t>(L'a' + m_chaos.Pick(3)), m_chaos.Pick(90)); }
    static HWND Parent(CWnd const & control) { return ::GetParent(control.m_hWnd); }

    /// The host's request to paint on a picture of its own.
    void DrawItem(CButton & button)
    {
        tests::Canvas canvas(100, 40);
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.CtlID = 5;
        item.itemState = static_cast<UINT>(m_chaos.Pick(8));
        item.hwndItem = button.m_hWnd;
        item.hDC = canvas.Dc();
        item.rcItem = CRect(0, 0, 100, 40);
        ::SendMessage(Parent(button), WM_DRAWITEM, 5, reinterpret_cast<LPARAM>(&item));
    }
    template <typename Rows> void ChangeRows(Rows & rows)
    {
        switch (m_chaos.Pick(6))
        {
        case 0:
            rows.FillItems({Text(), Text(), Text()}, m_chaos.Pick(5), m_chaos.OneIn(2));
            break;
        case 1: {
            std::map<int, CString> const items{{m_chaos.Pick(5) - 1, Text()}, {7, Text()}};
            if constexpr (std::is_base_of_v<CComboBoxX, Rows>)
                rows.FillItems(items, m_chaos.OneIn(2));
            else
                rows.FillItems(items);
            break;
        }
        case 2:
            rows.FindItemData(m_chaos.Pick(5));
            break;
        case 3:
            rows.SelectItemData(m_chaos.Pick(5));
            break;
        case 4:
            rows.GetSelectedItemData(3);
            break;
        default:
            rows.AddItem(Text(), m_chaos.Pick(9));
            break;
        }
    }

    chaos::Chaos & m_chaos;
};

template <typename Control> class World : public chaos::Chaos
{
    static constexpr bool has_rows = std::is_base_of_v<CComboBox, Control> || std::is_base_of_v<CListBox, Control>;

public:
    /// Plain native combo boxes and list boxes in their place lose as many GDI objects, of thousands. What the others
    /// leave is the system's cache of device contexts for windows that paint within one another: it grows once, by 15
    /// to 18 objects, and stays.
    static constexpr int kept_by_the_system = has_rows ? 60 : 2 * Chaos::kept_by_the_system;

    explicit World(unsigned int seed) : Chaos(seed), m_deeds(*this), m_host(*this) {}
    ~World() override
    {
        while (!m_controls.empty())
            delete m_controls.back();
    }

    bool Lives(Chaotic<Control> const * control) const
    {
        return std::find(m_controls.begin(), m_controls.end(), control) != m_controls.end();
    }
    void Enter(Chaotic<Control> * control) { m_controls.push_back(control); }
    void Leave(Chaotic<Control> * control) { std::erase(m_controls, control); }

protected:
    void Operate() override
    {
        constexpr std::size_t most = 4;
        if (m_controls.empty() || (m_controls.size() < most && OneIn(5)))
        {
            Note("make");
            auto * const made = new Chaotic<Control>(*this);
            ++made->m_held;
            m_deeds.Create(*made, &m_host);
            --made->m_held;
            return;
        }
        Chaotic<Control> & control = *m_controls[static_cast<std::size_t>(Pick(static_cast<int>(m_controls.size())))];
        HWND const window = control.m_hWnd;
        LPARAM const place = MAKELPARAM(Pick(90), Pick(60));
        switch (Pick(14))
        {
        case 0:
            Note("delete");
            if (control.m_held == 0)
                delete &control;
            break;
        case 1:
            Note("destroy the window");
            if (control.m_held == 0 && OneIn(3))
                control.DestroyWindow();
            break;
        case 2:
            Note("paint");
            ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
            break;
        case 3:
        case 4:
            Note("mouse");
            ::SendMessage(window, WM_MOUSEMOVE, 0, place);
            break;
        case 5:
            Note("timer");
            ::SendMessage(window, WM_TIMER, static_cast<WPARAM>(Pick(3)), 0);
            break;
        case 6:
            Note("text");
            // Nor does a native list or its edit field stand it that rows or text change while it works on them.
            if (control.m_held == 0 || !has_rows)
                ::SetWindowTextW(window, CString(L'w', Pick(60)));
            break;
        case 7:
            Note("show");
            ::ShowWindow(window, OneIn(3) ? SW_HIDE : SW_SHOW);
            ::EnableWindow(window, !OneIn(3));
            break;
        case 8:
            Note("size");
            ::SetWindowPos(window, nullptr, Pick(100), Pick(100), Pick(200), Pick(150), SWP_NOZORDER);
            break;
        default:
            Note("change");
            if (control.m_held == 0 || !has_rows)
                m_deeds.Change(control);
            break;
        }
    }
    void CheckInvariants() override
    {
        for (Chaotic<Control> * const control : m_controls)
        {
            if (control->m_hWnd != nullptr)
            {
                EXPECT_EQ(CWnd::FromHandlePermanent(control->m_hWnd), control);
            }
        }
    }

private:
    Deeds m_deeds;
    Holder<Control> m_host;
    std::vector<Chaotic<Control> *> m_controls;
};
} // namespace

TEST(ChaosControls, ColorButtonStandsAHostThatDoesItsWorst)
{
    chaos::RunAll<World<CColorButton>>();
}

TEST(ChaosControls, FreeIconButtonStandsAHostThatDoesItsWorst)
{
    chaos::RunAll<World<CFreeIconButton>>();
}

TEST(ChaosControls, LevelSliderStandsAHostThatDoesItsWorst)
{
    chaos::RunAll<World<CLevelSliderCtrl>>();
}

TEST(ChaosControls, ComboBoxStandsAHostThatDoesItsWorst)
{
    chaos::RunAll<World<CComboBoxX>>();
}

TEST(ChaosControls, ListBoxStandsAHostThatDoesItsWorst)
{
    chaos::RunAll<World<CListBoxX>>();
}
