// Five hundred openings and five thousand repaints of each small control leave nothing behind.

#include "controls/ColorButton.h"
#include "controls/ComboBoxX.h"
#include "controls/FreeIconButton.h"
#include "controls/LevelSliderCtrl.h"
#include "controls/ListBoxX.h"
#include "controls/XEditBrowseCtrl.h"
#include "controls/XTreeCtrl.h"

#include "GdiHandleCount.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "ThreadWindows.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{
constexpr int openings = 500;
constexpr int repaints = 5000;

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

/// A field whose drop-down is cancelled as soon as it is up.
class BriefField : public CXEditBrowseCtrl
{
public:
    bool IsOpen() const { return m_dialog.m_hWnd != nullptr && m_dialog.IsWindowVisible(); }
    void Close() { m_dialog.EndDialog(IDCANCEL); }
};

/// Does it a few times, then `times` times more, and compares windows and GDI objects.
void LeavesNothing(int times, std::function<void()> const & open)
{
    auto const repeat = [&](int count) {
        for (int i = 0; i < count; ++i)
            open();
        tests::PumpPosted();
    };
    repeat(10);
    int const windows = tests::ThreadWindows();
    int const objects = tests::GdiHandleCount();
    repeat(times);
    EXPECT_EQ(tests::ThreadWindows(), windows);
    constexpr int kept_by_the_system = 4; // fonts
    EXPECT_LE(tests::GdiHandleCount(), objects + kept_by_the_system);
}

template <typename Control> void OpenOften()
{
    tests::ScopedWindow parent(CRect(100, 100, 400, 300), WS_POPUP | WS_VISIBLE);
    auto const open = [&parent](int times) {
        for (int i = 0; i < times; ++i)
        {
            Control control;
            ASSERT_TRUE(Create(control, parent));
            control.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5)); // a tip or a timer
            if (i % 2 == 0)
                control.DestroyWindow();
        }
        tests::PumpPosted();
    };
    open(20);
    int const windows = tests::ThreadWindows();
    int const objects = tests::GdiHandleCount();
    open(openings);
    EXPECT_EQ(tests::ThreadWindows(), windows);
    constexpr int kept_by_the_system = 4; // fonts
    EXPECT_LE(tests::GdiHandleCount(), objects + kept_by_the_system);
}

template <typename Control> void RepaintOften()
{
    tests::ScopedWindow parent(CRect(100, 100, 400, 300), WS_POPUP | WS_VISIBLE);
    Control control;
    tests::WindowCloser const closer(control);
    ASSERT_TRUE(Create(control, parent));
    tests::PumpPosted();
    EXPECT_EQ(tests::GdiGrowth(
                  [&control] {
                      for (int i = 0; i < repaints / 2; ++i)
                          control.RedrawWindow();
                  },
                  2),
              0);
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
    LeavesNothing(openings, [] { EXPECT_EQ(BriefDialog().DoModal(), IDCANCEL); });
}

TEST(ControlCountsOfDropDowns, OpeningsLeaveNothingBehind)
{
    tests::ScopedWindow parent(CRect(100, 100, 400, 300), WS_POPUP | WS_VISIBLE);
    BriefField field;
    tests::WindowCloser const closer(field);
    ASSERT_TRUE(Create(field, parent));
    constexpr int drop_downs = 150; // each waits for a timer
    LeavesNothing(drop_downs, [&] {
        tests::LaterActions later;
        later.Add([&] { field.Close(); }, [&] { return field.IsOpen(); });
        field.OnBrowse();
        EXPECT_FALSE(later.Failed());
    });
}
