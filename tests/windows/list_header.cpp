// What the list's header does: its messages, its clicks, and the header operations of the list.

#include <memory>

#include "Input.h"
#include "list_HeaderTest.h"
#include "ListTestHost.h"
#include "MessageRecorder.h"
#include "Pump.h"

namespace
{
using namespace list_header;

/// Changes system colours for as long as it lives.
class SystemColors
{
public:
    explicit SystemColors(COLORREF color)
    {
        for (size_t i = 0; i < std::size(indices); ++i)
            m_former[i] = ::GetSysColor(indices[i]);
        COLORREF const colors[] = {color, color + 1, color + 2, color + 3};
        ::SetSysColors(static_cast<int>(std::size(indices)), indices, colors);
    }
    ~SystemColors() { ::SetSysColors(static_cast<int>(std::size(indices)), indices, m_former); }
    SystemColors(SystemColors const &) = delete;
    SystemColors & operator=(SystemColors const &) = delete;

private:
    static constexpr int indices[] = {COLOR_BTNFACE, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW, COLOR_BTNTEXT};
    COLORREF m_former[std::size(indices)];
};

/// Keeps the colours that titles are drawn with.
class TitleColors : public CDC
{
public:
    explicit TitleColors(tests::Canvas & canvas) { Attach(canvas.Dc().m_hDC); }
    ~TitleColors() override { Detach(); }
    int DrawText(LPCTSTR, int, LPRECT, UINT) override
    {
        m_colors.push_back(GetTextColor());
        return 0;
    }
    std::vector<COLORREF> m_colors;
};

class ListHeader : public HeaderTest
{
protected:
    ListHeader() : HeaderTest(m_header) {}

    TestHeader m_header;
};

TEST_F(ListHeader, IsMadeByItsRuntimeClass)
{
    CRuntimeClass const * const runtimeClass = RUNTIME_CLASS(CXHeaderCtrl);
    EXPECT_STREQ(runtimeClass->m_lpszClassName, "CXHeaderCtrl");
    EXPECT_TRUE(runtimeClass->IsDerivedFrom(RUNTIME_CLASS(CHeaderCtrl)));
    std::unique_ptr<CObject> const made(RUNTIME_CLASS(CXHeaderCtrl)->CreateObject());
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CXHeaderCtrl)));
    EXPECT_EQ(static_cast<CXHeaderCtrl *>(made.get())->GetSpacing(), spacing);
}

TEST_F(ListHeader, DoesNotErase)
{
    Add(50);
    tests::Canvas canvas(header_width, header_height, RGB(1, 2, 3));
    EXPECT_EQ(m_header.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc().m_hDC)), 1);
    EXPECT_EQ(canvas.Count(RGB(1, 2, 3)), header_width * header_height);
}

TEST_F(ListHeader, InsertsAndDeletesNatively)
{
    EXPECT_EQ(Add(50), 0);
    EXPECT_EQ(Add(60), 1);
    char title[] = "narrow";
    HDITEMA item = {};
    item.mask = HDI_WIDTH | HDI_TEXT | HDI_FORMAT;
    item.fmt = HDF_STRING;
    item.cxy = 30;
    item.pszText = title;
    EXPECT_EQ(m_header.SendMessage(HDM_INSERTITEMA, 2, reinterpret_cast<LPARAM>(&item)), 2);
    EXPECT_EQ(m_header.GetItemCount(), 3);
    EXPECT_EQ(Item(2), CRect(110, 0, 140, header_height));
    EXPECT_TRUE(m_header.DeleteItem(0));
    EXPECT_EQ(m_header.GetItemCount(), 2);
    EXPECT_FALSE(m_header.DeleteItem(7));
}

TEST_F(ListHeader, LaysOutNativelyWithoutWidening)
{
    CHeaderCtrl native;
    ASSERT_TRUE(native.Create(WS_CHILD | HDS_HORZ, CRect(0, 0, 50, header_height), m_host, 9));
    auto const layout = [](CHeaderCtrl & header) {
        CRect rect(3, 4, 150, 90);
        WINDOWPOS position = {};
        HDLAYOUT request = {&rect, &position};
        EXPECT_TRUE(header.Layout(&request));
        return std::pair(rect, CRect(CPoint(position.x, position.y), CSize(position.cx, position.cy)));
    };
    EXPECT_EQ(layout(m_header), layout(native));
    EXPECT_EQ(layout(m_header).first.right, 150);
    native.DestroyWindow();
}

TEST_F(ListHeader, ColorsFollowTheSystemButTheTitlesDoesNot)
{
    constexpr COLORREF first = RGB(40, 50, 60);
    COLORREF const title = ::GetSysColor(COLOR_BTNTEXT);
    ASSERT_NE(title, first + 3);
    AddTitle(60, L"t");
    AddTitle(60, L"t");
    {
        SystemColors const colors(first);
        m_header.SendMessage(WM_SYSCOLORCHANGE);
        tests::Canvas canvas(header_width, header_height);
        TitleColors dc(canvas);
        m_header.PaintHeader(&dc);
        EXPECT_EQ(canvas.Pixel(30, 12), first);
        EXPECT_EQ(canvas.Pixel(5, 0), first + 1);
        EXPECT_EQ(canvas.Pixel(119, 12), first + 2);
        EXPECT_EQ(dc.m_colors, (std::vector<COLORREF>{title, title}));
    }
    m_header.SendMessage(WM_SYSCOLORCHANGE);
    tests::Canvas canvas(header_width, header_height);
    Paint(canvas);
    EXPECT_EQ(canvas.Pixel(150, 12), ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(ListHeader, ADoubleClickIsSentOnAsAPress)
{
    Add(60);
    tests::MessageRecorder recorder({WM_LBUTTONDOWN, WM_LBUTTONDBLCLK});
    recorder.Watch(m_header.m_hWnd, "header");
    m_header.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON | MK_CONTROL, MAKELPARAM(20, 7));
    EXPECT_TRUE(recorder.Matches({
        {"header", WM_LBUTTONDBLCLK},
        {"header", WM_LBUTTONDOWN, tests::Way::sent, MK_LBUTTON | MK_CONTROL, MAKELPARAM(20, 7)},
    }));
    m_header.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(20, 7));
}

TEST_F(ListHeader, ADirectClickWithoutListIsAPressOnly)
{
    // On the divider, where the native header begins to drag.
    CPoint const divider(59, 7);
    Add(60);
    m_header.SetDirectColumnClick();
    m_header.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(divider.x, divider.y));
    EXPECT_EQ(::GetCapture(), m_header.m_hWnd);
    m_header.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(divider.x, divider.y));
    EXPECT_EQ(::GetCapture(), nullptr);
}

class ListHeaderScreen : public HeaderTest
{
protected:
    ListHeaderScreen() : HeaderTest(m_header, WS_OVERLAPPEDWINDOW | WS_VISIBLE) {}

    TestHeader m_header;
};

TEST_F(ListHeaderScreen, PaintsItselfOnTheScreen)
{
    Add(60, XHC_MIXED);
    Add(60, XHC_SORT_ASCENDING);
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    ASSERT_TRUE(tests::MoveMouse({2, 2}));
    m_header.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    tests::Canvas expected(header_width, header_height);
    Paint(expected);
    tests::Canvas shown(header_width, header_height);
    shown.CopyFromScreen(m_header.m_hWnd);
    EXPECT_TRUE(SamePixels(shown, expected));
}

TEST_F(ListHeaderScreen, AChangedItemRepaintsItself)
{
    Add(60);
    m_header.UpdateWindow();
    EXPECT_FALSE(m_header.GetUpdateRect(nullptr));
    SetState(0, XHC_CHECKED);
    EXPECT_TRUE(m_header.GetUpdateRect(nullptr));
}

// --- In a list ---

class ListWithHeader : public testing::Test
{
protected:
    explicit ListWithHeader(DWORD style = tests::TestList::default_style | LVS_NOSORTHEADER) : m_host(style) {}

    void SetUp() override
    {
        m_host.Fill(3, 4);
        m_header = m_list.Header();
        ASSERT_NE(m_header, nullptr);
        ASSERT_TRUE(tests::BringToFront(m_host.parent.m_hWnd));
        tests::PumpPosted();
        m_host.TakePosted();
    }

    CPoint MiddleOf(int col) const
    {
        CRect rect;
        EXPECT_TRUE(::SendMessage(m_header, HDM_GETITEMRECT, col, reinterpret_cast<LPARAM>(&rect)));
        return tests::ClientPoint(m_header, rect.CenterPoint());
    }
    /// Moves the mouse there and waits until it rests: a late report of where it was before, from when another window
    /// stood there, may take it back.
    void MoveTo(CPoint screen)
    {
        constexpr ULONGLONG rest = 50; // ms
        ULONGLONG since = ::GetTickCount64();
        ASSERT_TRUE(tests::MoveMouse(screen));
        EXPECT_TRUE(tests::PumpUntil([&] {
            CPoint now;
            ::GetCursorPos(&now);
            if (now != screen)
            {
                since = ::GetTickCount64();
                tests::MoveMouse(screen);
            }
            return ::GetTickCount64() - since >= rest;
        }));
    }
    /// Clicks with the real mouse and waits for the header to see it.
    void Click(CPoint screen)
    {
        MoveTo(screen);
        tests::MessageRecorder recorder({WM_LBUTTONUP});
        recorder.Watch(m_header, "header");
        tests::Click(screen);
        EXPECT_TRUE(tests::PumpUntil([&] { return recorder.Count("header", WM_LBUTTONUP) == 1; }));
    }
    void DoubleClick(CPoint screen)
    {
        MoveTo(screen);
        tests::MessageRecorder recorder({WM_LBUTTONUP, WM_LBUTTONDBLCLK});
        recorder.Watch(m_header, "header");
        tests::DoubleClick(screen);
        EXPECT_TRUE(tests::PumpUntil([&] { return recorder.Count("header", WM_LBUTTONUP) == 2; }));
        EXPECT_EQ(recorder.Count("header", WM_LBUTTONDBLCLK), 1);
    }
    int Image(int col) const
    {
        HDITEM item = {};
        item.mask = HDI_IMAGE;
        EXPECT_TRUE(::SendMessage(m_header, HDM_GETITEM, col, reinterpret_cast<LPARAM>(&item)));
        return item.iImage;
    }
    void SetImage(int col, int image)
    {
        HDITEM item = {};
        item.mask = HDI_IMAGE;
        item.iImage = image;
        EXPECT_TRUE(::SendMessage(m_header, HDM_SETITEM, col, reinterpret_cast<LPARAM>(&item)));
    }

    tests::ListHost m_host;
    tests::TestList & m_list = m_host.list;
    HWND m_header = nullptr;
};

TEST_F(ListWithHeader, IsBoundToTheListsHeader)
{
    CWnd const * const window = CWnd::FromHandlePermanent(m_header);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->IsKindOf(RUNTIME_CLASS(CXHeaderCtrl)));
}

TEST_F(ListWithHeader, APressIsNoColumnClickByItself)
{
    Click(MiddleOf(1));
    EXPECT_EQ(m_host.TakePosted(), tests::PostedRows{});
}

TEST_F(ListWithHeader, ADirectPressIsAColumnClick)
{
    m_list.SetHeaderDirectColumnClick();
    Click(MiddleOf(1));
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 0, 1}}));
}

TEST_F(ListWithHeader, ADirectPressCountsBeforeTheButtonGoesUp)
{
    m_list.SetHeaderDirectColumnClick();
    MoveTo(MiddleOf(2));
    tests::MessageRecorder recorder({WM_LBUTTONDOWN, WM_LBUTTONUP});
    recorder.Watch(m_header, "header");
    tests::Press();
    EXPECT_TRUE(tests::PumpUntil([&] { return recorder.Count("header", WM_LBUTTONDOWN) == 1; }));
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 0, 2}}));
    tests::Release();
    EXPECT_TRUE(tests::PumpUntil([&] { return recorder.Count("header", WM_LBUTTONUP) == 1; }));
    EXPECT_EQ(m_host.TakePosted(), tests::PostedRows{});
}

TEST_F(ListWithHeader, ADoubleClickCountsAsTwoDirectPresses)
{
    m_list.SetHeaderDirectColumnClick();
    DoubleClick(MiddleOf(0));
    EXPECT_EQ(m_host.TakePosted(),
              (tests::PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 0, 0}, {WM_XLISTCTRL_COLUMNCLICK, 0, 0}}));
}

TEST_F(ListWithHeader, ADirectPressFindsMovedColumns)
{
    m_list.SetHeaderDirectColumnClick();
    int order[] = {2, 0, 1};
    ASSERT_TRUE(::SendMessage(m_header, HDM_SETORDERARRAY, 3, reinterpret_cast<LPARAM>(order)));
    Click(tests::ClientPoint(m_header, {10, 5}));
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 0, 2}}));
}

TEST_F(ListWithHeader, APressBehindTheLastColumnIsNoColumnClick)
{
    m_list.SetHeaderDirectColumnClick();
    Click(tests::ClientPoint(m_header, {300, 5}));
    EXPECT_EQ(m_host.TakePosted(), tests::PostedRows{});
}

TEST_F(ListWithHeader, ADirectPressDrivesTheCheckBoxesOfItsColumn)
{
    m_list.SetHeaderDirectColumnClick();
    m_list.SetHeaderAutoCheckbox(true);
    m_list.SetCheckbox(1, 1, XLC_UNCHECKED);
    m_list.SetCheckbox(3, 1, XLC_UNCHECKED);
    m_list.SetHeaderCheckedState(1, XHC_UNCHECKED);
    DoubleClick(MiddleOf(1));
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 1, 1},
                                                      {WM_XLISTCTRL_CHECKBOX_CLICKED, 3, 1},
                                                      {WM_XLISTCTRL_COLUMNCLICK, 1, 1},
                                                      {WM_XLISTCTRL_CHECKBOX_CLICKED, 1, 1},
                                                      {WM_XLISTCTRL_CHECKBOX_CLICKED, 3, 1},
                                                      {WM_XLISTCTRL_COLUMNCLICK, 0, 1}}));
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_UNCHECKED);
}

class ListWithHeaderButtons : public ListWithHeader
{
protected:
    ListWithHeaderButtons() : ListWithHeader(tests::TestList::default_style) {}
};

TEST_F(ListWithHeaderButtons, ANativeColumnClickArrivesByItself)
{
    Click(MiddleOf(1));
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 0, 1}}));
}

TEST_F(ListWithHeaderButtons, ANativeColumnClickArrivesBesidesADirectOne)
{
    m_list.SetHeaderDirectColumnClick();
    Click(MiddleOf(1));
    EXPECT_EQ(m_host.TakePosted(),
              (tests::PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 0, 1}, {WM_XLISTCTRL_COLUMNCLICK, 0, 1}}));
}

TEST_F(ListWithHeader, StatesAreTheItemsImages)
{
    for (int state = XHC_NONE; state < XHC_END; ++state)
    {
        EXPECT_TRUE(m_list.SetHeaderCheckedState(1, state)) << state;
        EXPECT_EQ(Image(1), state);
        EXPECT_EQ(m_list.GetHeaderCheckedState(1), state);
    }
    EXPECT_EQ(m_list.GetHeaderCheckedState(0), XHC_NONE);
}

TEST_F(ListWithHeader, OtherStatesAreRefused)
{
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_MIXED));
    for (int state : {-1, 7, 8, 1000})
    {
        EXPECT_FALSE(m_list.SetHeaderCheckedState(1, state)) << state;
    }
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_MIXED);
}

TEST_F(ListWithHeader, AStateThatComesByOtherMeansIsReadBack)
{
    SetImage(1, 7);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), 7);
}

TEST_F(ListWithHeader, ColumnsThatDoNotExistHaveNoState)
{
    EXPECT_FALSE(m_list.SetHeaderCheckedState(3, XHC_CHECKED));
    EXPECT_EQ(m_list.GetHeaderCheckedState(3), -1);
    EXPECT_EQ(m_list.GetHeaderCheckedState(-1), -1);
}

TEST_F(ListWithHeader, AHeaderThatIsGoneHasNoStates)
{
    m_list.DestroyWindow();
    EXPECT_FALSE(m_list.SetHeaderCheckedState(1, XHC_CHECKED));
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), -1);
    m_list.SetHeaderRemoveAllMarks();
}

TEST_F(ListWithHeader, ASortMarkTakesTheCheckBoxsPlace)
{
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_CHECKED));
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_SORT_ASCENDING));
    ::UpdateWindow(m_header);
    tests::Canvas shown(240, 18);
    shown.CopyFromScreen(m_header);
    EXPECT_EQ(shown.Count(0x339933), 0);
    // An outline that is no box: 7 points on a way of 8 + 2 * 5 + 2 * 6 + 6 pixels.
    EXPECT_GT(shown.Count(frame_color), 20);
    EXPECT_NE(shown.Count(frame_color), 4 * box_size - 4);
}

TEST_F(ListWithHeader, RemovingAllMarksTakesCheckBoxesToo)
{
    m_list.SetHeaderCheckedState(0, XHC_CHECKED);
    m_list.SetHeaderCheckedState(1, XHC_SORT_DESCENDING);
    SetImage(2, 9);
    m_list.SetHeaderRemoveAllMarks();
    for (int col = 0; col < 3; ++col)
    {
        EXPECT_EQ(m_list.GetHeaderCheckedState(col), XHC_NONE) << col;
    }
}

TEST_F(ListWithHeader, SettersOfTheLookDoNotRepaint)
{
    ::UpdateWindow(m_header);
    ASSERT_FALSE(::GetUpdateRect(m_header, nullptr, FALSE));
    m_list.SetHeaderAlignment(DT_CENTER);
    m_list.SetHeaderTextColor(RGB(200, 0, 0));
    m_list.SetHeaderUseImageList(true);
    m_list.SetHeaderDirectColumnClick();
    m_list.SetHeaderAutoCheckbox(true);
    EXPECT_FALSE(::GetUpdateRect(m_header, nullptr, FALSE));
    m_list.SetHeaderCheckedState(0, XHC_CHECKED);
    EXPECT_TRUE(::GetUpdateRect(m_header, nullptr, FALSE));
}

TEST_F(ListWithHeader, TheListsSettersReachTheTitles)
{
    m_list.SetHeaderTextColor(RGB(250, 0, 0));
    m_list.SetHeaderAlignment(DT_RIGHT);
    ::RedrawWindow(m_header, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    tests::Canvas shown(80, 16);
    shown.CopyFromScreen(m_header);
    CRect const title = shown.BoundsOf([](COLORREF color) { return GetRValue(color) > GetGValue(color) + 60; });
    EXPECT_FALSE(title.IsRectEmpty());
    EXPECT_GT(title.left, 40);
    EXPECT_LE(title.right, 80 - spacing);
}
} // namespace
