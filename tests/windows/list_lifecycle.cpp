// Life and look of the report list: members at the start, creation by code and from a dialog template, destruction.

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "Bitmap.h"
#include "frame/InternalMessages.h"
#include "GdiHandleCount.h"
#include "ListTestHost.h"
#include "MessageRecorder.h"
#include "Pump.h"

using tests::ListDialog;
using tests::ListHost;
using tests::TestList;

namespace
{
DWORD ExtendedStyle(TestList & list)
{
    return static_cast<DWORD>(::SendMessageW(list.m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
}

struct MapEntry
{
    UINT message;
    UINT code;
    UINT firstId;
    UINT lastId;

    bool operator==(MapEntry const &) const = default;
};

MapEntry Reflected(int code)
{
    return {WM_NOTIFY + WM_REFLECT_BASE, static_cast<WORD>(code), 0, 0};
}

MapEntry Plain(UINT message)
{
    return {message, 0, 0, 0};
}

MapEntry ToolTipText(int code)
{
    return {WM_NOTIFY, static_cast<WORD>(code), 0, 0xFFFF};
}
} // namespace

TEST(ListLifecycle, RunTimeClass)
{
    TestList list;
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CXListCtrl)));
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CListCtrl)));
    EXPECT_STREQ(RUNTIME_CLASS(CXListCtrl)->m_lpszClassName, "CXListCtrl");
    EXPECT_EQ(RUNTIME_CLASS(CXListCtrl)->m_pfnCreateObject, nullptr);
}

TEST(ListLifecycle, MessageMapIsComplete)
{
    std::vector<MapEntry> entries;
    std::vector<UINT> registered;
    for (AFX_MSGMAP_ENTRY const * entry = TestList::GetThisMessageMap()->lpEntries; entry->nSig != 0; ++entry)
    {
        if (entry->nMessage >= 0xC000)
            registered.push_back(*reinterpret_cast<UINT const *>(entry->nSig));
        else
            entries.push_back({entry->nMessage, static_cast<WORD>(entry->nCode), entry->nID, entry->nLastID});
    }
    std::vector<MapEntry> const expected = {
        Reflected(NM_CLICK),   Reflected(LVN_COLUMNCLICK), Plain(WM_CREATE),           Reflected(NM_CUSTOMDRAW),
        Plain(WM_DESTROY),     Plain(WM_LBUTTONDOWN),      Plain(WM_LBUTTONUP),        Plain(WM_LBUTTONDBLCLK),
        Plain(WM_PAINT),       Plain(WM_SYSCOLORCHANGE),   Plain(WM_ERASEBKGND),       Plain(WM_KEYDOWN),
        Plain(WM_RBUTTONDOWN), Plain(WM_NCLBUTTONDOWN),    Plain(WM_MOUSEMOVE),        Plain(WM_CONTEXTMENU),
        Plain(WM_TIMER),       ToolTipText(TTN_NEEDTEXTW), ToolTipText(TTN_NEEDTEXTA),
    };
    ASSERT_EQ(entries.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(entries[i], expected[i]) << "entry " << i << ", message " << entries[i].message;
    std::vector<UINT> const names = {
        ::RegisterWindowMessageW(L"WM_XCOMBOLIST_VK_ESCAPE"), ::RegisterWindowMessageW(L"WM_XCOMBOLIST_COMPLETE"),
        ::RegisterWindowMessageW(L"WM_XEDIT_KILL_FOCUS"), ::RegisterWindowMessageW(L"WM_XEDIT_VK_ESCAPE")};
    EXPECT_EQ(registered, names);
}

TEST(ListLifecycle, NewObjectHasItsDefaults)
{
    TestList list;
    EXPECT_FALSE(list.m_onCellClick);
    EXPECT_FALSE(list.m_onStateChange);
    EXPECT_FALSE(list.m_onDoubleClick);
    EXPECT_FALSE(list.m_onRowsSwapped);
    EXPECT_FALSE(list.m_onContextCommand);
    EXPECT_TRUE(list.GetEllipsis());
    EXPECT_FALSE(list.GetListModified());
    EXPECT_EQ(list.GetCellPadding(), 5);
    EXPECT_EQ(list.GetColumnCount(), 0);
    EXPECT_EQ(list.PopUpMenu().m_hMenu, nullptr);
}

TEST(ListLifecycle, ObjectWithoutAWindowAnswersAsWithoutRows)
{
    TestList list;
    COLORREF text = 1;
    COLORREF background = 1;
    CRect rect;
    EXPECT_FALSE(list.IsValidItem(0, 0));
    EXPECT_EQ(list.GetRowData(0), nullptr);
    EXPECT_EQ(list.GetRowItemData(0, 0), nullptr);
    EXPECT_EQ(list.AddItem(L"a", nullptr, 0), -1);
    LVITEMW item{};
    EXPECT_EQ(list.InsertItem(&item), -1);
    EXPECT_EQ(list.SetItem(&item), 0);
    EXPECT_EQ(list.DeleteItem(0), 0);
    EXPECT_EQ(list.DeleteAllItems(), 0);
    EXPECT_EQ(list.GetCurSel(-1), -1);
    EXPECT_EQ(list.GetSelectedItem(), -1);
    EXPECT_FALSE(list.SetCurSel(0, true));
    EXPECT_TRUE(list.SetCurSel(-1, true));
    EXPECT_EQ(list.FindDataItem(0LL), -1);
    EXPECT_EQ(list.FindDataItemPtr(nullptr), -1);
    EXPECT_EQ(list.GetSelectedItemData(4), 4);
    EXPECT_FALSE(list.SetItemText(0, 0, L"a"));
    EXPECT_FALSE(list.SetCheckbox(0, 0, XLC_CHECKED));
    EXPECT_EQ(list.CountCheckedItems(0, -1), 0U);
    EXPECT_FALSE(list.GetItemColors(0, 0, text, background));
    EXPECT_EQ(text, 0U);
    EXPECT_FALSE(list.GetSubItemRect(0, 0, LVIR_BOUNDS, rect));
    EXPECT_EQ(list.GetComboText(0, 0), L"");
    list.EnableAll(false);
    list.SetBatchInsertMode(true);
    list.SetBatchInsertMode(false);
    list.UpdateSubItem(0, 0);
}

// Creation

TEST(ListLifecycle, ListByCodeHasHeaderAndMenu)
{
    ListHost host;
    host.list.AddColumns(2);
    CWnd * const header = CWnd::FromHandlePermanent(host.list.Header());
    ASSERT_NE(header, nullptr);
    EXPECT_TRUE(header->IsKindOf(RUNTIME_CLASS(CXHeaderCtrl)));
    ASSERT_NE(host.list.PopUpMenu().m_hMenu, nullptr);
    EXPECT_EQ(host.list.PopUpMenu().GetMenuItemCount(), 0U);
    EXPECT_EQ(ExtendedStyle(host.list) & (LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP), 0U);
}

TEST(ListLifecycle, HeaderIsBoundOnce)
{
    ListHost host;
    HWND const header = host.list.Header();
    CWnd * const bound = CWnd::FromHandlePermanent(header);
    host.list.SubclassHeaderControl();
    EXPECT_EQ(CWnd::FromHandlePermanent(header), bound);
    EXPECT_EQ(host.list.Header(), header);
}

TEST(ListLifecycle, ListFromATemplateSelectsFullRowsAndShowsItsTips)
{
    ListDialog dialog;
    ASSERT_TRUE(dialog.Open());
    DWORD const both = LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP;
    EXPECT_EQ(ExtendedStyle(dialog.list) & both, both);
    EXPECT_EQ(dialog.list.PopUpMenu().m_hMenu, nullptr) << "no menu";
    CWnd * const header = CWnd::FromHandlePermanent(dialog.list.Header());
    ASSERT_NE(header, nullptr);
    EXPECT_TRUE(header->IsKindOf(RUNTIME_CLASS(CXHeaderCtrl)));
    EXPECT_EQ(dialog.list.AddColumn(L"a", LVCFMT_LEFT, 50), 0);
    EXPECT_EQ(dialog.list.AddItem(L"a", nullptr, 7), 0);
    EXPECT_EQ(dialog.list.GetItemData64(0), 7);
    EXPECT_TRUE(dialog.list.SetCheckbox(0, 0, XLC_CHECKED));
}

TEST(ListLifecycle, ListFromATemplateKeepsItsOtherExtendedStyles)
{
    // The list's window is made before the object is bound to it.
    tests::ScopedWindow parent;
    HWND const window = ::CreateWindowExW(0, WC_LISTVIEWW, L"", TestList::default_style, 0, 0, 100, 100, parent.m_hWnd,
                                          reinterpret_cast<HMENU>(9), nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    ::SendMessageW(window, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_GRIDLINES);
    TestList list;
    ASSERT_TRUE(list.SubclassWindow(window));
    EXPECT_EQ(ExtendedStyle(list), static_cast<DWORD>(LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP));
    list.DestroyWindow();
}

TEST(ListLifecycle, ToolTipsOfCellsReplaceTheNativeOnes)
{
    ListDialog dialog;
    ASSERT_TRUE(dialog.Open(true));
    EXPECT_EQ(ExtendedStyle(dialog.list) & (LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP),
              static_cast<DWORD>(LVS_EX_FULLROWSELECT));
}

TEST(ListLifecycle, ListInADisplayStyleWithoutAHeader)
{
    ListHost host(WS_CHILD | WS_VISIBLE | LVS_ICON);
    EXPECT_EQ(host.list.GetDisplayStyle(), LVS_ICON);
    int number = 0;
    EXPECT_EQ(host.list.AddItem(L"a", &number, 5), 0);
    EXPECT_EQ(host.list.GetItemDataPtr(0), &number);
}

// Destruction

TEST(ListLifecycle, DestroyedWindowLeavesNoRows)
{
    ListHost host;
    host.Fill(2, 3);
    XLISTCTRLDATA * const cells = host.list.GetRowData(0);
    host.list.DestroyWindow();
    EXPECT_EQ(host.list.GetRowData(0), nullptr);
    EXPECT_FALSE(host.list.IsValidItem(0, 0));
    EXPECT_EQ(host.list.AddItem(L"a", nullptr, 0), -1);
    EXPECT_FALSE(host.list.SetItemText(0, 0, L"a"));
    EXPECT_EQ(host.list.GetSelectedItem(), -1);
    host.list.EnableAll(true);

    ASSERT_TRUE(host.list.Create(TestList::default_style, CRect(0, 0, 100, 100), &host.parent, TestList::id));
    EXPECT_EQ(host.list.GetColumnCount(), 0);
    EXPECT_EQ(host.list.AddColumn(L"a", LVCFMT_LEFT, 50), 0) << "the new header is bound as well";
    EXPECT_EQ(host.list.AddItem(L"a", nullptr, 5), 0);
    EXPECT_EQ(host.list.GetRowData(0), cells) << "the rows of the former window are used again";
    EXPECT_EQ(host.list.GetItemData64(0), 5);
    EXPECT_NE(host.list.PopUpMenu().m_hMenu, nullptr);
    EXPECT_EQ(host.list.PopUpMenu().GetMenuItemCount(), 0U);
}

TEST(ListLifecycle, MenuIsEmptyInAWindowMadeAnew)
{
    ListHost host;
    host.list.PopUpMenu().AppendMenu(MF_STRING, 100, L"entry");
    HMENU const former = host.list.PopUpMenu().m_hMenu;
    host.list.DestroyWindow();
    EXPECT_TRUE(::IsMenu(former)) << "the menu goes with the object, not with its window";
    ASSERT_TRUE(host.list.Create(TestList::default_style, CRect(0, 0, 100, 100), &host.parent, TestList::id));
    EXPECT_EQ(host.list.PopUpMenu().GetMenuItemCount(), 0U);
    EXPECT_TRUE(former == host.list.PopUpMenu().m_hMenu || !::IsMenu(former));
}

TEST(ListLifecycle, ObjectMayEndBeforeItsWindow)
{
    tests::ScopedWindow parent;
    auto list = std::make_unique<TestList>();
    ASSERT_TRUE(list->Create(TestList::default_style, CRect(0, 0, 200, 100), parent, 7));
    list->AddColumns(3);
    list->AddRows(10);
    HWND const window = list->m_hWnd;
    HWND const header = list->Header();
    tests::MessageRecorder recorder({WM_DESTROY});
    recorder.Watch(window, "list");
    recorder.Watch(header, "header");
    list.reset();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_FALSE(::IsWindow(header));
    EXPECT_TRUE(recorder.Matches({
        {.window = "list", .message = WM_DESTROY},
        {.window = "header", .message = WM_DESTROY},
    })) << "the list never stands without its header";
}

TEST(ListLifecycle, LeavesNoGdiHandles)
{
    auto const life = [] {
        ListHost host;
        host.Fill(3, 5);
        host.list.SetCheckbox(1, 1, XLC_CHECKED);
        host.list.SetProgress(2, 1, true, nullptr);
        host.list.UpdateWindow();
        tests::PumpPosted();
    };
    life();
    int const before = tests::GdiHandleCount();
    life();
    EXPECT_EQ(tests::GdiHandleCount(), before);
}

// Look

TEST(ListLifecycle, DisplayStyleIsTheTwoLowBits)
{
    ListHost host;
    EXPECT_EQ(host.list.GetDisplayStyle(), LVS_REPORT);
    DWORD const others = host.list.GetStyle() & ~static_cast<DWORD>(LVS_TYPEMASK);
    host.list.SetDisplayStyle(LVS_LIST);
    EXPECT_EQ(host.list.GetDisplayStyle(), LVS_LIST);
    EXPECT_EQ(host.list.GetStyle() & ~static_cast<DWORD>(LVS_TYPEMASK), others);
    host.list.SetDisplayStyle(LVS_REPORT | LVS_SINGLESEL);
    EXPECT_EQ(host.list.GetDisplayStyle(), LVS_REPORT);
    EXPECT_EQ(host.list.GetStyle() & ~static_cast<DWORD>(LVS_TYPEMASK), others) << "no other bit";
}

TEST(ListLifecycle, ExtendedStylesAddUp)
{
    ListHost host;
    host.list.SetFullRowSelect();
    EXPECT_EQ(ExtendedStyle(host.list), 0x20U);
    host.list.SetHoverSelection();
    EXPECT_EQ(ExtendedStyle(host.list), 0xA0U);
    host.list.SetWithCheckboxes();
    EXPECT_EQ(ExtendedStyle(host.list), 0xA4U);
    host.list.SetWithGridlines();
    EXPECT_EQ(ExtendedStyle(host.list), 0xA5U);
}

TEST(ListLifecycle, SettingsOfTheLookDoNotRepaint)
{
    ListHost host;
    host.Fill(2, 2);
    host.list.TakeUpdateRect();
    EXPECT_TRUE(host.list.SetEllipsis(false));
    EXPECT_FALSE(host.list.GetEllipsis());
    EXPECT_FALSE(host.list.SetEllipsis(true));
    host.list.SetCellPadding(9);
    EXPECT_EQ(host.list.GetCellPadding(), 9);
    host.list.SetListModified(true);
    EXPECT_TRUE(host.list.GetListModified());
    host.list.SetListModified(false);
    EXPECT_FALSE(host.list.GetListModified());
    host.list.SetEmptyListText(L"nothing");
    EXPECT_EQ(host.list.TakeUpdateRect(), CRect());
}

TEST(ListLifecycle, DefaultEmptyTextComesFromTheModule)
{
    ListHost host;
    host.list.AddColumns(2);
    auto const shown = [&host](tests::Canvas & canvas) {
        host.list.RedrawWindow();
        canvas.CopyFromScreen(host.list.m_hWnd);
    };
    tests::Canvas without(300, 150);
    tests::Canvas byDefault(300, 150);
    tests::Canvas given(300, 150);
    shown(without);
    HINSTANCE const before = AfxGetResourceHandle();
    host.list.SetEmptyListTextDefault();
    EXPECT_EQ(AfxGetResourceHandle(), before);
    shown(byDefault);
    EXPECT_FALSE(tests::SamePixels(without, byDefault));
    CString text;
    ASSERT_TRUE(text.LoadString(8));
    host.list.SetEmptyListText(text);
    shown(given);
    EXPECT_TRUE(tests::SamePixels(byDefault, given));
}
