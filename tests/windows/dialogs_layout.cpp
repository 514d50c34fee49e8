// Resizing of real dialogs: limits, children, the size grip.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "dialogs_Dialog3dTest.h"

using namespace dialog_tests;

namespace
{
class Dialog3dLayout : public DialogTest
{
protected:
    Dialog3dLayout() : m_dialog(IDD_SIZABLE) {}

    CRect Place(int id)
    {
        CRect rect;
        m_dialog.ClientCoordinates(id, rect);
        return rect;
    }
    MINMAXINFO Limits(TestDialog & dialog)
    {
        MINMAXINFO info{};
        info.ptMinTrackSize = {1, 2};
        info.ptMaxTrackSize = {3, 4};
        dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
        return info;
    }
    void Open(CDialogResizer::resize_dims_t dims = CDialogResizer::RESIZE_BOTH)
    {
        m_dialog.m_onInit = [this, dims] {
            m_dialog.D3dLayoutChild(IDC_NAME, CEdges::LEFT_RIGHT(), nullptr);
            m_dialog.D3dLayoutChild(IDC_CLOSE_UP, CEdges::BOTTOM_RIGHT(), nullptr);
            m_dialog.D3dLayoutChild(IDOK, CRect(5000, 10000, 5000, 10000), nullptr);
            m_name = Place(IDC_NAME);
            m_up = Place(IDC_CLOSE_UP);
            m_ok = Place(IDOK);
            m_design = OuterOf(m_dialog).Size();
            m_dialog.D3dLayoutComplete(dims);
        };
        ASSERT_NE(m_dialog.DisplayDialog(), 0);
    }

    TestDialog m_dialog;
    CRect m_name;
    CRect m_up;
    CRect m_ok;
    CSize m_design;
};
} // namespace

TEST_F(Dialog3dLayout, TheControlsFollowTheSize)
{
    Open();
    EXPECT_EQ(Place(IDC_NAME), m_name);
    m_dialog.SetSize(m_design.cx + 41, m_design.cy + 30);
    EXPECT_EQ(Place(IDC_NAME), CRect(m_name.left, m_name.top, m_name.right + 41, m_name.bottom));
    EXPECT_EQ(Place(IDC_CLOSE_UP), m_up + CPoint(41, 30));
    EXPECT_EQ(Place(IDOK), m_ok + CPoint(20, 30));
    m_dialog.SetSize(m_design.cx, m_design.cy);
    EXPECT_EQ(Place(IDC_NAME), m_name);
    EXPECT_EQ(Place(IDC_CLOSE_UP), m_up);
    EXPECT_EQ(Place(IDOK), m_ok);
}

TEST_F(Dialog3dLayout, AStoredSizeIsLaidOutAtTheOpening)
{
    CSize design;
    {
        TestDialog probe(IDD_SIZABLE);
        probe.SetDialogTitle(L"Probe");
        probe.DisplayDialog();
        design = OuterOf(probe).Size();
    }
    StorePlace(L"Sizable_dialog", CRect(CPoint(90, 80), design + CSize(60, 50)));
    Open();
    EXPECT_EQ(OuterOf(m_dialog), CRect(CPoint(90, 80), design + CSize(60, 50)));
    EXPECT_EQ(Place(IDC_NAME).Width(), m_name.Width() + 60);
    MINMAXINFO const limits = Limits(m_dialog);
    EXPECT_EQ(CPoint(limits.ptMinTrackSize), CPoint(design.cx, design.cy)) << "the template's size is the design size";
}

TEST_F(Dialog3dLayout, AReopenedDialogKeepsItsDesignSize)
{
    Open();
    m_dialog.SetSize(m_design.cx + 80, m_design.cy + 70);
    CRect const up = m_up;
    m_dialog.DestroyWindow();
    ASSERT_NE(m_dialog.DisplayDialog(), 0);
    EXPECT_EQ(OuterOf(m_dialog).Size(), CSize(m_design.cx, m_design.cy)) << "measured anew with the stored size";
    EXPECT_EQ(Place(IDC_CLOSE_UP), up + CPoint(80, 70));
}

TEST_F(Dialog3dLayout, TheDesignSizeIsTheLeast)
{
    Open();
    MINMAXINFO const limits = Limits(m_dialog);
    EXPECT_EQ(CPoint(limits.ptMinTrackSize), CPoint(m_design.cx, m_design.cy));
    EXPECT_EQ(CPoint(limits.ptMaxTrackSize), CPoint(3, 4)) << "both directions are free";
    EXPECT_EQ(m_dialog.DefaultedCount(WM_GETMINMAXINFO), 0) << "the base handler is not called";
    m_dialog.SetSize(50, 40);
    EXPECT_EQ(OuterOf(m_dialog).Size(), m_design);
}

TEST_F(Dialog3dLayout, ADialogMayGrowInOneDirectionAlone)
{
    Open(CDialogResizer::RESIZE_HORIZONTAL);
    MINMAXINFO limits = Limits(m_dialog);
    EXPECT_EQ(CPoint(limits.ptMinTrackSize), CPoint(m_design.cx, m_design.cy));
    EXPECT_EQ(CPoint(limits.ptMaxTrackSize), CPoint(3, m_design.cy));
    m_dialog.D3dLayoutComplete(CDialogResizer::RESIZE_VERTICAL);
    limits = Limits(m_dialog);
    EXPECT_EQ(CPoint(limits.ptMaxTrackSize), CPoint(m_design.cx, 4));
    m_dialog.D3dLayoutComplete(CDialogResizer::RESIZE_NONE);
    limits = Limits(m_dialog);
    EXPECT_EQ(CPoint(limits.ptMaxTrackSize), CPoint(m_design.cx, 4)) << "no directions change nothing";
}

TEST_F(Dialog3dLayout, ADialogWithoutAFrameHasNoLimitsAndNoGrip)
{
    TestDialog fixed;
    ASSERT_NE(fixed.DisplayDialog(), 0);
    fixed.m_defaulted.clear();
    MINMAXINFO const limits = Limits(fixed);
    EXPECT_EQ(CPoint(limits.ptMinTrackSize), CPoint(1, 2));
    EXPECT_EQ(CPoint(limits.ptMaxTrackSize), CPoint(3, 4));
    EXPECT_EQ(fixed.DefaultedCount(WM_GETMINMAXINFO), 0) << "the base handler is not called";
    EXPECT_EQ(fixed.Grip(), nullptr);
}

TEST_F(Dialog3dLayout, AMissingFrameIsShownToTheUserAndTheDialogGoesOn)
{
    TestDialog fixed;
    fixed.SetDialogTitle(L"Spektrum");
    CRect name;
    fixed.m_onInit = [&] {
        fixed.ClientCoordinates(IDC_NAME, name);
        fixed.D3dLayoutChild(IDC_NAME, CEdges::LEFT_RIGHT(), nullptr);
        fixed.D3dLayoutChild(IDC_NAME, CRect(0, 0, 10000, 0), nullptr);
        fixed.D3dLayoutComplete(CDialogResizer::RESIZE_BOTH);
        fixed.D3dLayoutMoveChild(IDC_NAME, nullptr, nullptr, false);
        fixed.D3dLayoutTouch();
    };
    ASSERT_NE(fixed.DisplayDialog(), 0);
    std::vector<tests::TestApp::Message> const messages = tests::App().Take();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, L"Achtung: Dialog-Ressource zu 'Spektrum' hat nicht die 'Resizing'-Eigenschaft!");
    EXPECT_EQ(messages[0].type & MB_ICONMASK, static_cast<UINT>(MB_ICONERROR));
    EXPECT_TRUE(fixed.IsWindowVisible());
    fixed.SetSize(600, 400);
    CRect after;
    fixed.ClientCoordinates(IDC_NAME, after);
    EXPECT_EQ(after, name);
    fixed.D3dLayoutComplete(CDialogResizer::RESIZE_NONE);
    EXPECT_TRUE(tests::App().Take().empty());
}

TEST_F(Dialog3dLayout, AControlsDesignCanBeShifted)
{
    Open();
    CSize const offset(5, 6);
    CSize const growth(7, 8);
    m_dialog.D3dLayoutMoveChild(IDC_CLOSE_UP, &offset, &growth, false);
    EXPECT_EQ(Place(IDC_CLOSE_UP), m_up) << "not before the layout";
    m_dialog.D3dLayoutTouch();
    CRect expected = m_up + CPoint(offset);
    expected.right += growth.cx;
    expected.bottom += growth.cy;
    EXPECT_EQ(Place(IDC_CLOSE_UP), expected);
}

TEST_F(Dialog3dLayout, AMoveLaysOutAsWell)
{
    Open();
    m_dialog.GetDlgItem(IDC_NAME)->MoveWindow(0, 0, 10, 10);
    m_dialog.SetWindowPos(nullptr, 333, 222, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(Place(IDC_NAME), m_name);
}

TEST_F(Dialog3dLayout, ASizeInvalidatesTheWholeDialog)
{
    Open();
    tests::PumpPosted();
    m_dialog.UpdateWindow();
    m_dialog.ValidateRect(nullptr);
    m_dialog.SetSize(m_design.cx + 10, m_design.cy);
    CRect update;
    m_dialog.GetUpdateRect(&update);
    CRect client;
    m_dialog.GetClientRect(&client);
    EXPECT_EQ(update, client);
}

// --- The grip ---

TEST_F(Dialog3dLayout, TheGripSitsBehindTheControlsInTheCorner)
{
    Open();
    HWND const grip = m_dialog.Grip();
    ASSERT_NE(grip, nullptr);
    CSize const size(::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL));
    auto const place = [&] {
        CRect rect;
        ::GetWindowRect(grip, &rect);
        m_dialog.ScreenToClient(&rect);
        return rect;
    };
    auto const corner = [&] {
        CRect client;
        m_dialog.GetClientRect(&client);
        return CRect(client.BottomRight() - size, size);
    };
    EXPECT_EQ(place(), corner());
    EXPECT_EQ(::GetWindow(grip, GW_HWNDNEXT), nullptr);
    EXPECT_EQ(::GetDlgCtrlID(grip), 0);
    EXPECT_TRUE(::IsWindowVisible(grip));
    EXPECT_TRUE(::IsWindowEnabled(grip));
    auto const style = static_cast<DWORD>(::GetWindowLongW(grip, GWL_STYLE));
    EXPECT_EQ(style & 0x44000010u, 0x44000010u);

    CButton late;
    late.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &m_dialog, 2000);
    m_dialog.SetSize(m_design.cx + 50, m_design.cy + 60);
    EXPECT_EQ(place(), corner());
    EXPECT_EQ(::GetWindow(grip, GW_HWNDNEXT), nullptr);
}

TEST_F(Dialog3dLayout, EveryPointOfTheGripIsABorder)
{
    Open();
    HWND const grip = m_dialog.Grip();
    for (LPARAM const point : {MAKELPARAM(0, 0), MAKELPARAM(500, 400), MAKELPARAM(-5, -5)})
        EXPECT_EQ(::SendMessageW(grip, WM_NCHITTEST, 0, point), 18);
}

TEST_F(Dialog3dLayout, AMaximisedDialogHasADisabledGrip)
{
    Open();
    HWND const grip = m_dialog.Grip();
    m_dialog.ShowWindow(SW_SHOWMAXIMIZED);
    tests::PumpPosted();
    EXPECT_FALSE(::IsWindowEnabled(grip));
    m_dialog.ShowWindow(SW_RESTORE);
    tests::PumpPosted();
    EXPECT_TRUE(::IsWindowEnabled(grip));
}

TEST_F(Dialog3dLayout, TheGripEndsWithTheWindowAndComesWithTheNext)
{
    Open();
    HWND const first = m_dialog.Grip();
    m_dialog.DestroyWindow();
    EXPECT_FALSE(::IsWindow(first));
    ASSERT_NE(m_dialog.DisplayDialog(), 0);
    EXPECT_NE(m_dialog.Grip(), nullptr);
}

TEST_F(Dialog3dLayout, AGripOfTheHostsOwn)
{
    tests::ScopedWindow window;
    CDialog3d::CSizeGrip grip;
    EXPECT_TRUE(grip.Create(&window));
    CRect rect;
    grip.GetWindowRect(&rect);
    CRect client;
    window.GetClientRect(&client);
    window.ClientToScreen(&client);
    EXPECT_EQ(rect.BottomRight(), client.BottomRight());
    grip.DestroyWindow();
}

// --- Many sizes ---

/// A suite, and so a process, of its own: it takes long.
using Dialog3dManySizes = Dialog3dLayout;

TEST_F(Dialog3dManySizes, SixtyControlsFollowAThousandSizes)
{
    constexpr int rounds_shown = 200; // in a hidden dialog controls move in half the time
    constexpr int count = 60;
    constexpr int first_id = 4000;
    constexpr unsigned int seed = 20240607;
    std::mt19937 random(seed);
    auto const number = [&random](int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); };

    struct Child
    {
        CRect design;
        CRect fractions;
        CButton window;
    };
    std::vector<std::unique_ptr<Child>> children;
    CSize design;
    m_dialog.m_onInit = [&] {
        design = OuterOf(m_dialog).Size();
        for (int index = 0; index < count; ++index)
        {
            auto child = std::make_unique<Child>();
            int const left = number(0, 200);
            int const top = number(0, 100);
            child->design = CRect(left, top, left + number(1, 60), top + number(1, 30));
            int const fromLeft = number(0, 10000);
            int const fromTop = number(0, 10000);
            child->fractions = CRect(fromLeft, fromTop, number(fromLeft, 10000), number(fromTop, 10000));
            child->window.Create(L"", WS_CHILD | WS_VISIBLE, child->design, &m_dialog,
                                 static_cast<UINT>(first_id + index));
            m_dialog.D3dLayoutChild(first_id + index, child->fractions, nullptr);
            children.push_back(std::move(child));
        }
        m_dialog.D3dLayoutComplete(CDialogResizer::RESIZE_BOTH);
    };
    ASSERT_NE(m_dialog.DisplayDialog(), 0);

    for (int round = 0; round < 1000; ++round)
    {
        if (round == rounds_shown)
            m_dialog.ShowWindow(SW_HIDE);
        int const width = number(20, 1100);
        int const height = number(20, 900);
        m_dialog.SetSize(width, height);
        CSize const size = OuterOf(m_dialog).Size();
        ASSERT_EQ(size, CSize(std::max<int>(width, design.cx), std::max<int>(height, design.cy)))
            << "within the limits";
        CSize const growth = size - design;
        for (int index = 0; index < count; ++index)
        {
            Child const & child = *children[static_cast<size_t>(index)];
            CRect const expected(child.design.left + child.fractions.left * growth.cx / 10000,
                                 child.design.top + child.fractions.top * growth.cy / 10000,
                                 child.design.right + child.fractions.right * growth.cx / 10000,
                                 child.design.bottom + child.fractions.bottom * growth.cy / 10000);
            ASSERT_EQ(Place(first_id + index), expected) << "round " << round << ", control " << index;
        }
    }
    m_dialog.DestroyWindow();
}
