// Five hundred openings and five thousand repaints of each small control leave nothing behind.

#include "controls/ColorButton.h"
#include "controls/ComboBoxX.h"
#include "controls/FreeIconButton.h"
#include "controls/LevelSliderCtrl.h"
#include "controls/ListBoxX.h"

#include "GdiHandleCount.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "ThreadWindows.h"

#include <gtest/gtest.h>

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
