// Hosts that end the combo, its parent or its drop window, or take its items away, from within what they hear.

#include "combo_ComboTest.h"
#include "GuardedHeap.h"

using namespace combo_test;

namespace
{
enum class Deed
{
    // The first three end the combo's window.
    delete_combo,
    destroy_combo,
    destroy_parent,
    close_drop,
    toggle_drop,
    reset_items,
};

constexpr Deed deeds[] = {Deed::delete_combo, Deed::destroy_combo, Deed::destroy_parent,
                          Deed::close_drop,   Deed::toggle_drop,   Deed::reset_items};

struct Scene
{
    char const * name;
    DWORD style;
    DWORD flags;
    /// What the host does its deed in; the codes of notifications, or a call.
    std::vector<std::string> moments;
    /// What is done with the combo; it may be gone after each step.
    std::vector<std::function<void(HWND combo, HWND edit)>> steps;
};

void Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    ::SendMessage(window, message, wParam, lParam);
}

void Press(HWND window, WORD key)
{
    ::PostMessage(window, WM_KEYDOWN, key, 1);
    tests::PumpPosted();
}

std::vector<Scene> Scenes()
{
    auto const toggle = [](HWND combo, HWND) { Send(combo, XListCtrl::WM_ADVCOMBO_TOGGLE_DROP); };
    auto const choose = [](HWND combo, HWND) { Send(combo, XListCtrl::WM_ADVCOMBO_SELECTED, 1); };
    auto const close = [](HWND combo, HWND) { Send(combo, XListCtrl::WM_ADVCOMBO_CLOSE_DROP); };
    auto const focus = [](HWND combo, HWND) { ::SetFocus(combo); };
    auto const leave = [](HWND combo, HWND) { ::SetFocus(::GetParent(combo)); };
    auto const key = [](WORD code) { return [code](HWND combo, HWND) { Press(combo, code); }; };
    auto const editKey = [](WORD code) { return [code](HWND, HWND edit) { Press(edit, code); }; };
    auto const type = [](wchar_t character) {
        return [character](HWND, HWND edit) {
            ::PostMessage(edit, WM_CHAR, static_cast<WPARAM>(character), 1);
            tests::PumpPosted();
        };
    };
    auto const outside = [](HWND, HWND) {
        HWND const drop = ::GetCapture();
        Send(drop, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(-30, -30));
        tests::PumpPosted();
    };
    auto const wheel = [](HWND combo, HWND) { Send(combo, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120))); };
    DWORD const append = XListCtrl::combo_auto_append;
    DWORD const suggest = XListCtrl::combo_auto_suggest;
    return {
        {"toggle", CBS_DROPDOWNLIST, 0, {"DROPDOWN", "SELENDCANCEL", "CLOSEUP"}, {toggle, toggle}},
        {"choice", CBS_DROPDOWNLIST, 0, {"SELENDOK", "CLOSEUP", "SELCHANGE", "complete"}, {toggle, choose, close}},
        {"choice with edit",
         CBS_DROPDOWN,
         0,
         {"SETFOCUS", "SELENDOK", "CLOSEUP", "SELCHANGE"},
         {toggle, choose, close}},
        {"return",
         CBS_DROPDOWNLIST,
         0,
         {"SELENDOK", "CLOSEUP", "SELCHANGE", "complete"},
         {toggle, key(VK_DOWN), key(VK_RETURN)}},
        {"escape", CBS_DROPDOWNLIST, 0, {"SELENDCANCEL", "CLOSEUP"}, {toggle, key(VK_ESCAPE)}},
        {"escape when closed", CBS_DROPDOWNLIST, 0, {"cancel"}, {key(VK_ESCAPE)}},
        {"F4", CBS_DROPDOWNLIST, 0, {"DROPDOWN", "SELENDCANCEL", "CLOSEUP"}, {key(VK_F4), key(VK_F4)}},
        {"press outside", CBS_DROPDOWNLIST, 0, {"SETFOCUS", "SELENDCANCEL", "CLOSEUP"}, {toggle, outside}},
        {"press outside with edit", CBS_DROPDOWN, 0, {"SELENDCANCEL", "CLOSEUP", "complete"}, {focus, toggle, outside}},
        {"focus", CBS_DROPDOWNLIST, 0, {"SETFOCUS", "cancel"}, {focus, leave}},
        {"focus with edit", CBS_DROPDOWN, 0, {"SETFOCUS", "cancel", "SELENDCANCEL", "KILLFOCUS"}, {focus, leave}},
        {"leaving when open", CBS_DROPDOWN, 0, {"SELENDCANCEL", "CLOSEUP"}, {focus, toggle, leave}},
        {"arrow", CBS_DROPDOWNLIST, 0, {"SELENDOK", "SELCHANGE"}, {key(VK_DOWN), wheel}},
        {"arrow with edit",
         CBS_DROPDOWN,
         0,
         {"EDITUPDATE", "EDITCHANGE", "SELENDOK", "SELCHANGE"},
         {focus, editKey(VK_DOWN)}},
        {"append", CBS_DROPDOWN, append, {"EDITUPDATE", "EDITCHANGE"}, {focus, type(L'i')}},
        {"suggest", CBS_DROPDOWN, suggest, {"DROPDOWN", "SELENDCANCEL", "CLOSEUP"}, {focus, type(L'i'), type(L't')}},
        {"suggest and choose",
         CBS_DROPDOWN,
         suggest | append,
         {"DROPDOWN", "SELENDOK", "CLOSEUP", "SELCHANGE"},
         {focus, type(L'i'), choose, close}},
        {"reset",
         CBS_DROPDOWN,
         0,
         {"EDITUPDATE", "EDITCHANGE"},
         {type(L'i'), [](HWND combo, HWND) { Send(combo, CB_RESETCONTENT); }}},
        {"page in an open list",
         CBS_DROPDOWN,
         suggest,
         {"EDITUPDATE", "EDITCHANGE", "DROPDOWN", "CLOSEUP"},
         {focus, toggle, editKey(VK_NEXT), editKey(VK_NEXT)}},
    };
}

class HostileParent
{
public:
    HostileParent(Scene const & scene, std::string moment, Deed deed)
        : m_moment(std::move(moment)),
          m_deed(deed),
          m_host(std::make_unique<ComboParent>()),
          m_combo(std::make_unique<TestCombo>(m_host.get()))
    {
        m_combo->Create(WS_CHILD | WS_VISIBLE | scene.style, CRect(20, 20, 170, 42), m_host.get(), combo_id);
        for (int i = 0; i < 6; ++i)
            m_combo->AddString((L"item " + std::to_wstring(i)).c_str());
        m_combo->BringWindowToTop();
        m_combo->ModifyComboFlags(0, scene.flags);
        m_combo->UpdateWindow();
        m_host->m_onNotification = [this](UINT code) { Hear(NameOf(code)); };
        m_combo->m_onCall = [this](std::string const & call) { Hear(call); };
    }
    ~HostileParent()
    {
        m_done = true;
        m_combo.reset();
        m_host.reset();
    }

    void Run(Scene const & scene)
    {
        HWND const combo = m_combo->m_hWnd;
        HWND const edit = m_combo->m_edit != nullptr ? m_combo->m_edit->m_hWnd : nullptr;
        tests::PumpPosted();
        m_armed = true;
        for (auto const & step : scene.steps)
            step(combo, edit);
        tests::PumpPosted();
    }
    bool Done() const { return m_done; }
    bool HasDrop() const { return m_combo != nullptr && m_combo->GetDroppedState(); }
    bool HasCombo() const { return m_combo != nullptr && m_combo->m_hWnd != nullptr; }

private:
    void Hear(std::string const & what)
    {
        if (!m_armed || m_done || what != m_moment)
            return;
        m_done = true;
        switch (m_deed)
        {
        case Deed::delete_combo:
            m_combo.reset();
            break;
        case Deed::destroy_combo:
            m_combo->DestroyWindow();
            break;
        case Deed::destroy_parent:
            m_host->DestroyWindow();
            break;
        case Deed::close_drop:
            m_combo->ShowDropDown(false);
            break;
        case Deed::toggle_drop:
            m_combo->ShowDropDown(!m_combo->GetDroppedState());
            break;
        case Deed::reset_items:
            m_combo->ResetContent();
            break;
        }
    }

    std::string m_moment;
    Deed m_deed;
    bool m_armed = false;
    bool m_done = false;
    std::unique_ptr<ComboParent> m_host;
    std::unique_ptr<TestCombo> m_combo;
};
} // namespace

TEST(ComboHostile, EndsAtAnyMoment)
{
    tests::GuardedHeap heap;
    int heard = 0;
    for (Scene const & scene : Scenes())
    {
        for (std::string const & moment : scene.moments)
        {
            bool everDone = false;
            // The system's edit field does not stand its own end while it tells of a change.
            bool const editChanges = moment == "EDITUPDATE" || moment == "EDITCHANGE";
            for (Deed const deed : deeds)
            {
                if (editChanges && deed <= Deed::destroy_parent)
                    continue;
                SCOPED_TRACE(testing::Message() << scene.name << ", " << moment << ", deed " << static_cast<int>(deed));
                HostileParent host(scene, moment, deed);
                host.Run(scene);
                everDone = everDone || host.Done();
                heard += host.Done();
                if (!host.HasDrop())
                {
                    EXPECT_EQ(::GetCapture(), nullptr);
                }
                EXPECT_EQ(heap.Check(), 0u);
            }
            EXPECT_TRUE(everDone) << scene.name << " never comes to " << moment;
        }
    }
    EXPECT_GT(heard, 200);
    tests::PumpPosted();
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(ComboHostile, WindowThatLosesTheCaptureEndsTheCombo)
{
    class Captured : public tests::ScopedWindow
    {
    public:
        std::function<void()> m_onLost;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_CAPTURECHANGED && m_onLost)
                std::exchange(m_onLost, nullptr)();
            return ScopedWindow::WindowProc(message, wParam, lParam);
        }
    };
    tests::GuardedHeap heap;
    for (bool const opening : {true, false})
    {
        Captured other;
        ComboParent parent;
        auto combo = std::make_unique<TestCombo>(&parent);
        combo->Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(20, 20, 170, 42), &parent, combo_id);
        combo->AddString(L"item");
        if (!opening)
            combo->ShowDropDown();
        other.SetCapture();
        other.m_onLost = [&] { combo.reset(); };
        combo->ShowDropDown(opening);
        EXPECT_EQ(combo, nullptr);
        EXPECT_EQ(heap.Check(), 0u);
    }
    ::ReleaseCapture();
}
