// Five hundred openings and five thousand repaints of each small control leave nothing behind.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "controls/ColorButton.h"
#include "controls/ComboBoxX.h"
#include "controls/FreeIconButton.h"
#include "controls/LevelSliderCtrl.h"
#include "controls/ListBoxX.h"
#include "controls/XEditBrowseCtrl.h"
#include "controls/XTreeCtrl.h"
#include "GdiHandleCount.h"
#include "ImportPatch.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "TestApp.h"
#include "ThreadWindows.h"

namespace
{
constexpr int openings = 500;
constexpr int repaints = 5000;

/// The timers that toolkit and framework have set and not killed, of windows that are there.
class Timers
{
public:
    static int Count()
    {
        std::erase_if(s_timers,
                      [](Timer const & timer) { return timer.window != nullptr && !::IsWindow(timer.window); });
        return static_cast<int>(s_timers.size());
    }

private:
    struct Timer
    {
        HWND window;
        UINT_PTR id;
        bool operator==(Timer const &) const = default;
    };
    static UINT_PTR WINAPI Set(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure)
    {
        UINT_PTR const result = ::SetTimer(window, id, period, procedure);
        Timer const timer{window, window != nullptr ? id : result};
        if (std::find(s_timers.begin(), s_timers.end(), timer) == s_timers.end())
            s_timers.push_back(timer);
        return result;
    }
    static BOOL WINAPI Kill(HWND window, UINT_PTR id)
    {
        std::erase(s_timers, Timer{window, id});
        return ::KillTimer(window, id);
    }

    static inline std::vector<Timer> s_timers;
    tests::ImportPatch m_patches[4] = {{L"instrument_ui.dll", "SetTimer", &Set},
                                       {L"framework.dll", "SetTimer", &Set},
                                       {L"instrument_ui.dll", "KillTimer", &Kill},
                                       {L"framework.dll", "KillTimer", &Kill}};
};

/// What must be after a test as it was before.
struct Counts
{
    int gdiObjects = tests::GdiHandleCount();
    int windows = 0;
    int timers = Timers::Count();

    /// parent: its children count, and theirs.
    explicit Counts(HWND parent = nullptr) : windows(tests::ThreadWindows())
    {
        if (parent != nullptr)
            ::EnumChildWindows(parent, &Add, reinterpret_cast<LPARAM>(&windows));
    }

private:
    static BOOL CALLBACK Add(HWND, LPARAM counter)
    {
        ++*reinterpret_cast<int *>(counter);
        return TRUE;
    }
};

void ExpectNothingMore(Counts const & before, Counts const & after)
{
    constexpr int kept_by_the_system = 4; // fonts
    EXPECT_LE(after.gdiObjects, before.gdiObjects + kept_by_the_system);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_EQ(after.timers, before.timers);
}

BOOL Create(CColorButton & button, CWnd * parent)
{
    return button.Create(L"text", WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 30), parent, 5);
}
BOOL Create(CFreeIconButton & button, CWnd * parent)
{
    return button.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 40, 40), parent, 5);
}
BOOL Create(CLevelSliderCtrl & slider, CWnd * parent)
{
    return slider.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 120, 30), parent, 5);
}
BOOL Create(CComboBoxX & combo, CWnd * parent)
{
    BOOL const created = combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 80, 100), parent, 5);
    combo.AddItem(L"a text that is much too wide for its field", 1);
    combo.SetCurSel(0);
    return created;
}
BOOL Create(CListBoxX & list, CWnd * parent)
{
    BOOL const created = list.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 100), parent, 5);
    list.AddItem(L"text", 1);
    return created;
}

BOOL Create(CIdNameMultiselectListCtlr & list, CWnd * parent)
{
    BOOL const created = list.Create(WS_CHILD | WS_VISIBLE | LVS_LIST, CRect(0, 0, 120, 100), parent, 5);
    list.InsertItem(0, L"text");
    return created;
}
BOOL Create(CXTreeCtrl & tree, CWnd * parent)
{
    BOOL const created = tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS, CRect(0, 0, 120, 100), parent, 5);
    HTREEITEM const item = tree.InsertTreeItem(L"a text that is much too wide for the tree", nullptr, TVI_LAST, -1);
    tree.InsertTreeItem(L"below", item, TVI_LAST, 1);
    tree.ExpandTree(-1);
    return created;
}
BOOL Create(CIdNameMultiselectCtrl & control, CWnd * parent)
{
    control.EnableOkCancel();
    control.AddItem(1, L"one");
    control.AddItem(2, L"two");
    BOOL const created = control.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 150), parent, 5);
    control.RedrawWindow();
    return created;
}
BOOL Create(CXEditBrowseCtrl & field, CWnd * parent)
{
    BOOL const created = field.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(0, 0, 120, 24), parent, 5);
    field.PrepareFileOpenBrowser(L"", L"", L"");
    field.AddItem(1, L"one");
    field.SetSelection(1);
    field.PrepareIdNameBrowser();
    field.SendMessage(WM_NCMOUSEMOVE, HTBORDER, MAKELPARAM(215, 112));
    return created;
}

/// Cancelled as soon as it is up.
class BriefDialog : public CIdNameMultiselectDlg
{
public:
    BriefDialog()
    {
        m_placement = CRect(120, 120, 320, 300);
        m_control.AddItem(1, L"one");
    }

protected:
    BOOL OnInitDialog() override
    {
        CIdNameMultiselectDlg::OnInitDialog();
        PostMessage(WM_COMMAND, IDCANCEL);
        return TRUE;
    }
};

/// A field whose drop-down tells whether it is up.
class BriefField : public CXEditBrowseCtrl
{
public:
    bool IsOpen() const
    {
        return m_dialog.m_hWnd != nullptr && m_dialog.IsWindowVisible() && m_dialog.m_control.IsWindowVisible();
    }
    void Close() { m_dialog.EndDialog(IDCANCEL); }
};

/// The main window, in which a drop-down is cancelled as soon as it is up and waits.
class DropDownOwner : public tests::ScopedWindow
{
public:
    DropDownOwner() : ScopedWindow(CRect(100, 100, 400, 300), WS_POPUP | WS_VISIBLE) { tests::App().m_pMainWnd = this; }
    ~DropDownOwner() override { tests::App().m_pMainWnd = nullptr; }

    BriefField m_field;
    int m_opened = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENTERIDLE && m_field.IsOpen())
        {
            ++m_opened;
            m_field.Close();
        }
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }
};

/// Does it a few times, then `times` times more, and compares what is there before and after the latter.
void LeavesNothing(int times, HWND parent, std::function<void(int)> const & action)
{
    auto const repeat = [&](int count) {
        for (int i = 0; i < count; ++i)
            action(i);
        tests::PumpPosted();
    };
    Timers const timers;
    repeat(20);
    Counts const before(parent);
    repeat(times);
    ExpectNothingMore(before, Counts(parent));
}

template <typename Control> void OpenOften()
{
    tests::ScopedWindow parent(CRect(100, 100, 400, 300), WS_POPUP | WS_VISIBLE);
    LeavesNothing(openings, parent.m_hWnd, [&](int i) {
        Control control;
        ASSERT_TRUE(Create(control, parent));
        control.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5)); // a tip or a timer
        if (i % 2 == 0)
            control.DestroyWindow();
    });
}

template <typename Control> void RepaintOften()
{
    constexpr UINT all_of_it = RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN;
    tests::ScopedWindow parent(CRect(100, 100, 400, 300), WS_POPUP | WS_VISIBLE);
    Control control;
    tests::WindowCloser const closer(control);
    ASSERT_TRUE(Create(control, parent));
    tests::PumpPosted();
    LeavesNothing(repaints, parent.m_hWnd, [&](int) { control.RedrawWindow(nullptr, nullptr, all_of_it); });
}
} // namespace

TEST(ControlCounts, OpeningsLeaveNothingBehind)
{
    OpenOften<CColorButton>();
    OpenOften<CFreeIconButton>();
    OpenOften<CLevelSliderCtrl>();
    OpenOften<CComboBoxX>();
    OpenOften<CListBoxX>();
}

TEST(ControlCounts, RepaintsLeaveNothingBehind)
{
    RepaintOften<CColorButton>();
    RepaintOften<CFreeIconButton>();
    RepaintOften<CLevelSliderCtrl>();
    RepaintOften<CComboBoxX>();
    RepaintOften<CListBoxX>();
}

TEST(ControlCountsOfTrees, OpeningsLeaveNothingBehind)
{
    OpenOften<CXTreeCtrl>();
}

TEST(ControlCountsOfPaintedTrees, RepaintsLeaveNothingBehind)
{
    RepaintOften<CXTreeCtrl>();
}

TEST(ControlCountsOfLists, OpeningsLeaveNothingBehind)
{
    OpenOften<CIdNameMultiselectListCtlr>();
}

TEST(ControlCountsOfPaintedLists, RepaintsLeaveNothingBehind)
{
    RepaintOften<CIdNameMultiselectListCtlr>();
}

TEST(ControlCountsOfFields, OpeningsAndRepaintsLeaveNothingBehind)
{
    OpenOften<CXEditBrowseCtrl>();
    RepaintOften<CXEditBrowseCtrl>();
}

TEST(ControlCountsOfMultiselects, OpeningsLeaveNothingBehind)
{
    OpenOften<CIdNameMultiselectCtrl>();
}

TEST(ControlCountsOfPaintedMultiselects, RepaintsLeaveNothingBehind)
{
    RepaintOften<CIdNameMultiselectCtrl>();
}

TEST(ControlCountsOfDialogs, OpeningsLeaveNothingBehind)
{
    LeavesNothing(openings, nullptr, [](int) { EXPECT_EQ(BriefDialog().DoModal(), IDCANCEL); });
}

TEST(ControlCountsOfDropDowns, OpeningsLeaveNothingBehind)
{
    DropDownOwner owner;
    tests::WindowCloser const closer(owner.m_field);
    ASSERT_TRUE(Create(owner.m_field, &owner));
    int calls = 0;
    LeavesNothing(openings, owner.m_hWnd, [&](int) {
        ++calls;
        owner.m_field.OnBrowse();
    });
    EXPECT_EQ(owner.m_opened, calls);
}

TEST(ControlCountsOfCombos, OpeningsOfTheListLeaveNothingBehind)
{
    tests::ScopedWindow parent(CRect(100, 100, 400, 300), WS_POPUP | WS_VISIBLE);
    CComboBoxX combo;
    tests::WindowCloser const closer(combo);
    ASSERT_TRUE(Create(combo, &parent));
    LeavesNothing(openings, parent.m_hWnd, [&](int) {
        combo.ShowDropDown(TRUE);
        ASSERT_TRUE(combo.GetDroppedState());
        combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5)); // its tip
        combo.ShowDropDown(FALSE);
    });
}
