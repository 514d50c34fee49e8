// The small controls at other resolutions.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>

#include "Bitmap.h"
#include "controls/ColorButton.h"
#include "controls/ComboBoxX.h"
#include "controls/FreeIconButton.h"
#include "controls/IdNameMultiselectCtrl.h"
#include "controls/LevelSliderCtrl.h"
#include "controls/ListBoxX.h"
#include "controls/XEditBrowseCtrl.h"
#include "controls/XTreeCtrl.h"
#include "GdiHandleCount.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
constexpr UINT dpi_changed_after_parent = 0x02E3;
constexpr COLORREF ground = RGB(1, 2, 3);

template <class Control> void CheckRange(Control & control)
{
    EXPECT_EQ(control.GetDpi(), 96u);
    EXPECT_FALSE(control.SetDpi(47));
    EXPECT_FALSE(control.SetDpi(961));
    EXPECT_EQ(control.GetDpi(), 96u);
    EXPECT_TRUE(control.SetDpi(144));
    EXPECT_EQ(control.GetDpi(), 144u);
}

template <class Control> void CheckFollowing(Control & control)
{
    control.SetDpi(144);
    control.SendMessage(dpi_changed_after_parent, 0, 0);
    EXPECT_EQ(control.GetDpi(), 144u);
    control.FollowDpi(TRUE);
    EXPECT_EQ(control.GetDpi(), 96u);
    control.SetDpi(192);
    control.SendMessage(dpi_changed_after_parent, 0, 0);
    EXPECT_EQ(control.GetDpi(), 96u);
    control.FollowDpi(FALSE);
}

template <class Button> std::unique_ptr<tests::Canvas> Painted(Button & button, int width, int height)
{
    auto canvas = std::make_unique<tests::Canvas>(width, height, ground);
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_BUTTON;
    item.hwndItem = button.m_hWnd;
    item.hDC = canvas->Dc().m_hDC;
    item.rcItem = CRect(0, 0, width, height);
    button.DrawItem(&item);
    return canvas;
}

class DpiControls : public testing::Test
{
protected:
    tests::ScopedWindow m_host{CRect(100, 100, 700, 500)};
};

TEST_F(DpiControls, TheIconOfAnIconButtonFollows)
{
    CFreeIconButton button;
    ASSERT_TRUE(button.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), m_host, 5));
    std::unique_ptr<tests::Canvas> const usual = Painted(button, 100, 100);
    CRect const at96 = usual->BoundsOfOther(ground);
    CheckRange(button);
    button.SetDpi(192);
    CRect const at192 = Painted(button, 100, 100)->BoundsOfOther(ground);
    EXPECT_NEAR(at192.Width(), 2 * at96.Width(), 4);
    EXPECT_NEAR(at192.Height(), 2 * at96.Height(), 4);
    button.SetDpi(96);
    EXPECT_TRUE(tests::SamePixels(*usual, *Painted(button, 100, 100)));
    CheckFollowing(button);
    button.DestroyWindow();
}

TEST_F(DpiControls, TheIconOfAColourButtonFollowsInItsMiddle)
{
    CColorButton button;
    ASSERT_TRUE(button.Create(L"", WS_CHILD | WS_VISIBLE | BS_ICON, CRect(0, 0, 120, 120), m_host, 5));
    button.ResetColors();
    button.DrawFrame(false);
    button.SetIcons(::LoadIcon(nullptr, IDI_ERROR), nullptr, 32);
    std::unique_ptr<tests::Canvas> const usual = Painted(button, 120, 120);
    CRect const at96 = usual->BoundsOfOther(ground);
    CheckRange(button);
    button.SetDpi(192);
    CRect const at192 = Painted(button, 120, 120)->BoundsOfOther(ground);
    EXPECT_NEAR(at192.Width(), 2 * at96.Width(), 4);
    EXPECT_NEAR(at192.CenterPoint().x, at96.CenterPoint().x, 2);
    EXPECT_NEAR(at192.CenterPoint().y, at96.CenterPoint().y, 2);
    button.SetDpi(96);
    EXPECT_TRUE(tests::SamePixels(*usual, *Painted(button, 120, 120)));
    CheckFollowing(button);
    button.DestroyWindow();
}

TEST_F(DpiControls, TheStripOfAMultiselectFollowsAndComesBack)
{
    CIdNameMultiselectCtrl control;
    HWND const plain = ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE, 10, 10, 302, 240, m_host.m_hWnd,
                                         reinterpret_cast<HMENU>(5), nullptr, nullptr);
    ASSERT_TRUE(control.SubclassWindow(plain));
    control.AddItem(1, L"one");
    control.SetSelection(1);
    control.RedrawWindow();
    HWND const all = ::GetDlgItem(control.m_hWnd, 32803);
    ASSERT_NE(all, nullptr);
    CRect before;
    ::GetWindowRect(all, &before);
    CheckRange(control);
    control.SetDpi(192);
    CRect scaled;
    ::GetWindowRect(all, &scaled);
    EXPECT_EQ(scaled.Height(), before.Height() + 22);
    auto const icon = reinterpret_cast<HICON>(::SendMessageW(all, BM_GETIMAGE, IMAGE_ICON, 0));
    ICONINFO info = {};
    ASSERT_TRUE(::GetIconInfo(icon, &info));
    BITMAP mask = {};
    ::GetObjectW(info.hbmMask, sizeof mask, &mask);
    EXPECT_EQ(mask.bmWidth, 32);
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
    control.SetDpi(96);
    CRect after;
    ::GetWindowRect(all, &after);
    EXPECT_EQ(after, before);
    CheckFollowing(control);
    control.DestroyWindow();
}

class DrawnSlider : public CLevelSliderCtrl
{
public:
    /// What a thumb of that rectangle covers.
    CRect ThumbOf(CRect rect)
    {
        tests::Canvas canvas(60, 60, ground);
        // The slider takes the handle from the object that it is given.
        CDC dc;
        dc.Attach(canvas.Dc().m_hDC);
        DrawThumb(&dc, rect, false);
        return canvas.BoundsOfOther(ground);
    }
};

TEST_F(DpiControls, ASlidersThumbKeepsAScaledDistance)
{
    DrawnSlider slider;
    ASSERT_TRUE(slider.Create(WS_CHILD | WS_VISIBLE | TBS_HORZ, CRect(0, 0, 300, 80), m_host, 5));
    EXPECT_EQ(slider.ThumbOf(CRect(10, 10, 30, 40)), CRect(11, 10, 29, 40));
    CheckRange(slider);
    slider.SetDpi(192);
    EXPECT_EQ(slider.ThumbOf(CRect(10, 10, 30, 40)), CRect(12, 10, 28, 40));
    slider.SetDpi(96);
    EXPECT_EQ(slider.ThumbOf(CRect(10, 10, 30, 40)), CRect(11, 10, 29, 40));
    CheckFollowing(slider);
    slider.DestroyWindow();
}

/// The room right of the text.
int ButtonWidth(CXEditBrowseCtrl & field)
{
    CRect window;
    CRect client;
    field.GetWindowRect(&window);
    field.GetClientRect(&client);
    field.ClientToScreen(&client);
    return window.right - client.right;
}

TEST_F(DpiControls, TheButtonOfABrowseEditFollowsItsPicture)
{
    CXEditBrowseCtrl field;
    ASSERT_TRUE(field.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 60), m_host, 5));
    field.PrepareFileOpenBrowser(L"", nullptr, nullptr);
    int const before = ButtonWidth(field);
    CheckRange(field);
    field.SetDpi(192);
    EXPECT_EQ(ButtonWidth(field), before + 16);
    field.SetDpi(96);
    EXPECT_EQ(ButtonWidth(field), before);
    CheckFollowing(field);
    field.DestroyWindow();
}

TEST_F(DpiControls, AComboBoxTakesAResolutionAndFollows)
{
    CComboBoxX combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 100, 200), m_host, 5));
    CheckRange(combo);
    CheckFollowing(combo);
    combo.DestroyWindow();
}

TEST_F(DpiControls, TheEdgesOfAListBoxsRowsFollow)
{
    CListBoxX list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), m_host, 5));
    // So long that the edges of 96 find room beside it, and those of 192 don't.
    CRect row;
    list.AddItem(L"", 1);
    list.GetItemRect(0, &row);
    CClientDC dc(&list);
    CString text;
    while (dc.GetTextExtent(text + L"i").cx <= row.Width() - 6)
        text += L"i";
    list.ResetContent();
    list.AddItem(text, 1);
    EXPECT_EQ(list.OnToolHitTest(row.CenterPoint(), nullptr), -1);
    CheckRange(list);
    list.SetDpi(192);
    EXPECT_EQ(list.OnToolHitTest(row.CenterPoint(), nullptr), 0);
    list.SetDpi(96);
    EXPECT_EQ(list.OnToolHitTest(row.CenterPoint(), nullptr), -1);
    CheckFollowing(list);
    list.DestroyWindow();
}

TEST_F(DpiControls, TheIndentOfATreeFollowsAndComesBack)
{
    CXTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASLINES, CRect(0, 0, 300, 200), m_host, 5));
    int const before = static_cast<int>(tree.GetIndent());
    int const height = tree.GetItemHeight();
    CheckRange(tree);
    EXPECT_EQ(static_cast<int>(tree.GetIndent()), (before * 144 + 48) / 96);
    tree.SetDpi(192);
    EXPECT_EQ(static_cast<int>(tree.GetIndent()), 2 * before);
    EXPECT_EQ(tree.GetItemHeight(), height) << "it goes by the font";
    tree.SetDpi(48); // less than native trees take
    tree.SetDpi(96);
    EXPECT_EQ(static_cast<int>(tree.GetIndent()), before);
    CheckFollowing(tree);
    tree.DestroyWindow();
}

TEST_F(DpiControls, WhatTheHostGivesATreeIsOfThatResolution)
{
    CXTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), m_host, 5));
    tree.SetDpi(192);
    tree.SetIndent(60);
    tree.SetItemHeight(40);
    EXPECT_EQ(tree.GetIndent(), 60u);
    tree.SetDpi(96);
    EXPECT_EQ(tree.GetIndent(), 30u);
    EXPECT_EQ(tree.GetItemHeight(), 20);
    tree.SetDpi(144);
    EXPECT_EQ(tree.GetIndent(), 45u);
    EXPECT_EQ(tree.GetItemHeight(), 30);
    tree.SetItemHeight(-1);
    int const natural = tree.GetItemHeight();
    tree.SetDpi(192);
    EXPECT_EQ(tree.GetItemHeight(), natural);
    tree.DestroyWindow();
}

TEST_F(DpiControls, ATreeThatHadAResolutionBeforeItsWindowTakesIt)
{
    CTreeCtrl plain;
    ASSERT_TRUE(plain.Create(WS_CHILD, CRect(0, 0, 300, 200), m_host, 4));
    unsigned int const indent = plain.GetIndent();
    CXTreeCtrl created;
    EXPECT_TRUE(created.SetDpi(192));
    ASSERT_TRUE(created.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), m_host, 5));
    EXPECT_EQ(created.GetIndent(), 2 * indent);
    CXTreeCtrl subclassed;
    EXPECT_TRUE(subclassed.SetDpi(192));
    ASSERT_TRUE(subclassed.SubclassWindow(plain.UnsubclassWindow()));
    EXPECT_EQ(subclassed.GetIndent(), 2 * indent);
    created.DestroyWindow();
    subclassed.DestroyWindow();
}

/// Handles that the control leaves behind in changes of its resolution, on the average of one.
template <class Control> double HandlesLeft(Control & control)
{
    constexpr int rounds = 10;
    auto const round = [&] {
        for (UINT const dpi : {192u, 144u, 96u})
        {
            control.SetDpi(dpi);
            control.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        }
    };
    round();
    int const before = tests::GdiHandleCount();
    for (int turn = 0; turn < rounds; ++turn)
        round();
    return static_cast<double>(tests::GdiHandleCount() - before) / (3 * rounds);
}

/// Native buttons of some systems keep a copy of every icon that they ever had.
double HandlesOfANativeIcon(CWnd * parent)
{
    constexpr int rounds = 10;
    CButton button;
    button.Create(L"", WS_CHILD | WS_VISIBLE | BS_ICON, CRect(0, 0, 40, 40), parent, 9);
    button.SetIcon(::LoadIcon(nullptr, IDI_ERROR));
    int const before = tests::GdiHandleCount();
    for (int turn = 0; turn < rounds; ++turn)
        button.SetIcon(::LoadIcon(nullptr, turn % 2 == 0 ? IDI_QUESTION : IDI_ERROR));
    int const after = tests::GdiHandleCount();
    button.DestroyWindow();
    return static_cast<double>(after - before) / rounds;
}

TEST_F(DpiControls, AMultiselectLeavesNoHandlesBehindButThoseOfNativeButtons)
{
    constexpr int buttons = 4;
    CIdNameMultiselectCtrl control;
    HWND const plain = ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE, 10, 10, 302, 240, m_host.m_hWnd,
                                         reinterpret_cast<HMENU>(5), nullptr, nullptr);
    ASSERT_TRUE(control.SubclassWindow(plain));
    EXPECT_LT(HandlesLeft(control), buttons * HandlesOfANativeIcon(m_host) + 0.5);
    control.DestroyWindow();
}

TEST_F(DpiControls, ABrowseEditLeavesNoHandlesBehind)
{
    CXEditBrowseCtrl field;
    ASSERT_TRUE(field.Create(WS_CHILD | WS_VISIBLE, CRect(320, 0, 500, 60), m_host, 6));
    field.PrepareFileOpenBrowser(L"", nullptr, nullptr);
    EXPECT_LT(HandlesLeft(field), 0.5);
    field.DestroyWindow();
}

TEST_F(DpiControls, AnIconButtonLeavesNoHandlesBehind)
{
    CFreeIconButton button;
    ASSERT_TRUE(button.Create(L"", WS_CHILD | WS_VISIBLE, CRect(320, 100, 420, 200), m_host, 7));
    EXPECT_LT(HandlesLeft(button), 0.5);
    button.DestroyWindow();
}
} // namespace
