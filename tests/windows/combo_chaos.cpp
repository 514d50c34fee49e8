// Combos whose parent deletes, destroys, opens, closes and empties them in every notification, call and message.

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "chaos_Chaos.h"
#include "list/combo/AdvComboBox.h"
#include "list/combo/AdvComboEdit.h"
#include "list/combo/DropListBox.h"
#include "list/combo/DropWnd.h"

namespace
{
class ComboWorld;

class ChaoticCombo : public XListCtrl::CAdvComboBox
{
public:
    ChaoticCombo(ComboWorld & world, CWnd * parent) : CAdvComboBox(0, parent), m_world(world) {}
    ~ChaoticCombo() override;

    void OnComboCancel() override;
    void OnComboComplete() override;

    using CAdvComboBox::m_edit;
    /// Within a message of the edit field. It is the window system's, and does not stand its own end there.
    int m_held = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    ComboWorld & m_world;
};

class ComboHolder : public tests::ScopedWindow
{
public:
    explicit ComboHolder(ComboWorld & world) : m_world(world) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    ComboWorld & m_world;
};

class ComboWorld : public chaos::Chaos
{
public:
    explicit ComboWorld(unsigned int seed) : Chaos(seed), m_host(*this) {}
    ~ComboWorld() override
    {
        while (!m_combos.empty())
            delete m_combos.back();
        ::ReleaseCapture();
    }

    bool Lives(ChaoticCombo const * combo) const
    {
        return std::find(m_combos.begin(), m_combos.end(), combo) != m_combos.end();
    }
    void Leave(ChaoticCombo * combo) { std::erase(m_combos, combo); }

protected:
    void Operate() override;
    void CheckInvariants() override
    {
        for (ChaoticCombo const * const combo : m_combos)
        {
            if (combo->m_hWnd == nullptr)
            {
                EXPECT_EQ(combo->GetDropWnd(), nullptr);
                EXPECT_EQ(combo->m_edit, nullptr);
            }
        }
        EXPECT_LE(tests::ThreadWindows(), 1 + static_cast<int>(m_combos.size()) + s_others);
    }

private:
    void Make();
    void PressKey(ChaoticCombo & combo);
    void PointAt(ChaoticCombo & combo);
    void ChangeItems(ChaoticCombo & combo);

    static constexpr int s_others = 8; // what the input method and others keep
    ComboHolder m_host;
    std::vector<ChaoticCombo *> m_combos;
};

ChaoticCombo::~ChaoticCombo()
{
    m_world.Leave(this);
}

void ChaoticCombo::OnComboCancel()
{
    m_world.Disturb();
}

void ChaoticCombo::OnComboComplete()
{
    m_world.Disturb();
}

LRESULT ChaoticCombo::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    ComboWorld & world = m_world; // this object may end
    if (message == WM_NCDESTROY || message == WM_DESTROY || message == WM_NCCREATE || message == WM_CREATE ||
        !world.Lives(this))
    {
        return CAdvComboBox::WindowProc(message, wParam, lParam);
    }
    bool const edits =
        (message == WM_COMMAND && lParam != 0) || message == WM_CTLCOLOREDIT || message == WM_CTLCOLORSTATIC;
    m_held += edits;
    world.Disturb();
    if (!world.Lives(this) || m_hWnd == nullptr)
        return 0;
    LRESULT const result = CAdvComboBox::WindowProc(message, wParam, lParam);
    if (world.Lives(this))
        world.Disturb();
    if (world.Lives(this))
        m_held -= edits;
    return result;
}

LRESULT ComboHolder::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND)
        m_world.Disturb();
    return ScopedWindow::WindowProc(message, wParam, lParam);
}

void ComboWorld::Make()
{
    auto combo = std::make_unique<ChaoticCombo>(*this, &m_host);
    for (int i = 0; i < 6; ++i)
        combo->AddString((L"item " + std::to_wstring(i)).c_str());
    combo->SetItemDisabled(Pick(6), true);
    if (OneIn(2))
        combo->ModifyComboFlags(0, XListCtrl::combo_auto_append);
    if (OneIn(2))
        combo->ModifyComboFlags(0, XListCtrl::combo_auto_suggest);
    DWORD const style = WS_CHILD | WS_VISIBLE | (OneIn(2) ? CBS_DROPDOWN | CBS_AUTOHSCROLL : CBS_DROPDOWNLIST);
    combo->Create(style, CRect(10, 10, 160, 32) + CPoint(0, 40 * Pick(5)), &m_host, 1 + Pick(100));
    m_combos.push_back(combo.release());
    HWND const window = m_combos.back()->m_hWnd;
    ::SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void ComboWorld::PressKey(ChaoticCombo & combo)
{
    constexpr WORD keys[] = {VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT,   VK_RETURN, VK_ESCAPE,
                             VK_F4, VK_BACK, VK_RIGHT, VK_DELETE, VK_DOWN,   VK_DOWN};
    MSG message = {};
    message.hwnd = combo.m_hWnd;
    message.message = WM_KEYDOWN;
    message.wParam = keys[Pick(static_cast<int>(std::size(keys)))];
    message.lParam = 1;
    combo.PreTranslateMessage(&message);
}

void ComboWorld::PointAt(ChaoticCombo & combo)
{
    XListCtrl::CDropWnd * const drop = combo.GetDropWnd();
    if (drop == nullptr || drop->m_hWnd == nullptr || drop->GetListBox() == nullptr)
        return;
    constexpr UINT messages[] = {WM_MOUSEMOVE, WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP};
    UINT const message = messages[Pick(4)];
    HWND const targets[] = {drop->m_hWnd, drop->GetListBox()->m_hWnd, ::GetDlgItem(drop->m_hWnd, 100)};
    int const target = Pick(message == WM_LBUTTONDOWN ? 2 : 3); // the scroll bar's press would wait for the release
    ::SendMessage(targets[target], message, 0, MAKELPARAM(Pick(220) - 30, Pick(160) - 30));
}

void ComboWorld::ChangeItems(ChaoticCombo & combo)
{
    switch (Pick(5))
    {
    case 0:
        combo.ResetContent();
        break;
    case 1:
        combo.AddString(L"it");
        break;
    case 2:
        combo.DeleteString(Pick(4));
        break;
    case 3:
        combo.SetItemDisabled(Pick(6), OneIn(2));
        break;
    default:
        combo.SetCurSel(Pick(8) - 1);
        break;
    }
}

void ComboWorld::Operate()
{
    constexpr std::size_t most = 4;
    if (m_combos.empty() || (m_combos.size() < most && OneIn(5)))
    {
        Note("make");
        Make();
        return;
    }
    ChaoticCombo & combo = *m_combos[static_cast<std::size_t>(Pick(static_cast<int>(m_combos.size())))];
    if (combo.m_hWnd == nullptr)
    {
        Note("delete without a window");
        delete &combo;
        return;
    }
    switch (Pick(16))
    {
    case 0:
        Note("delete");
        if (combo.m_held == 0)
            delete &combo;
        break;
    case 1:
        Note("destroy");
        if (combo.m_held == 0)
            combo.DestroyWindow();
        break;
    case 2:
    case 3:
        Note("toggle");
        combo.SendMessage(XListCtrl::WM_ADVCOMBO_TOGGLE_DROP);
        break;
    case 4:
        Note("close");
        combo.SendMessage(XListCtrl::WM_ADVCOMBO_CLOSE_DROP);
        break;
    case 5:
        Note("choose");
        combo.SendMessage(XListCtrl::WM_ADVCOMBO_SELECTED, static_cast<WPARAM>(Pick(7)));
        break;
    case 6:
    case 7:
        Note("key");
        PressKey(combo);
        break;
    case 8:
    case 9:
        Note("point");
        PointAt(combo);
        break;
    case 10:
        Note("items");
        ChangeItems(combo);
        break;
    case 11:
        Note("focus");
        combo.SetFocus();
        break;
    case 12:
        Note("leave");
        m_host.SetFocus();
        break;
    case 13:
        Note("wheel");
        combo.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(OneIn(2) ? 120 : -120)));
        break;
    case 14:
        Note("type");
        if (combo.m_edit != nullptr)
            combo.m_edit->SendMessage(WM_CHAR, static_cast<WPARAM>(L"it x"[Pick(4)]), 1);
        break;
    default:
        Note("paint and pump");
        combo.EnableWindow(!OneIn(4));
        tests::PumpPosted(3);
        break;
    }
}
} // namespace

namespace
{
/// Counts accesses to memory that is not there: Wine passes over those within a window procedure.
class AccessViolations
{
public:
    AccessViolations() : m_handler(::AddVectoredExceptionHandler(1, &OnException)) { s_count = 0; }
    ~AccessViolations() { ::RemoveVectoredExceptionHandler(m_handler); }
    AccessViolations(AccessViolations const &) = delete;
    AccessViolations & operator=(AccessViolations const &) = delete;

    int Count() const { return s_count; }

private:
    static LONG CALLBACK OnException(EXCEPTION_POINTERS * pointers)
    {
        s_count += pointers->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION;
        return EXCEPTION_CONTINUE_SEARCH;
    }

    static inline int s_count = 0;
    void * m_handler;
};
} // namespace

TEST(ChaosCombos, StandAHostThatDoesItsWorst)
{
    AccessViolations const violations;
    {
        // Edit fields, scroll bars and their fonts and themes: what the system makes once and keeps takes a while to
        // come.
        tests::GuardedHeap heap;
        ComboWorld(98).Run(chaos::steps_per_seed, heap);
    }
    chaos::RunAll<ComboWorld>();
    EXPECT_EQ(violations.Count(), 0);
    EXPECT_EQ(::GetCapture(), nullptr);
}
