// The tree control with records on its items.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <set>

#include "controls_TreeTest.h"
#include "GdiHandleCount.h"
#include "Input.h"
#include "MessageRecorder.h"
#include "Pump.h"

namespace
{
constexpr DWORD style = WS_CHILD | WS_VISIBLE | TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT;
constexpr int other_key[8] = {11, 12, 13, 14, 15, 16, 17, 18};

using Lines = std::vector<CString>;

class TreeControl : public testing::Test
{
protected:
    void SetUp() override
    {
        m_tree = std::make_unique<tests::TestTree>();
        ASSERT_TRUE(m_tree->Create(style, CRect(0, 0, 300, 250), m_host, 7));
    }
    std::vector<int> KeyOf(HTREEITEM item)
    {
        int const * const key = m_tree->GetItemClavis(item);
        return std::vector<int>(key, key + 8);
    }
    CPoint PlaceOf(HTREEITEM item)
    {
        CRect rect;
        EXPECT_TRUE(m_tree->GetItemRect(item, &rect, TRUE));
        return rect.CenterPoint();
    }
    bool IsExpanded(HTREEITEM item) { return m_tree->GetItemState(item, TVIS_EXPANDED) != 0; }
    HTREEITEM Find(int type, int id, wchar_t const * text, HTREEITEM start, bool exact = false)
    {
        return m_tree->FindItem(type, id, nullptr, text, start, exact);
    }

    tests::TreeParent m_host;
    std::unique_ptr<tests::TestTree> m_tree;
};

/// "a" with "aa" (with "aaa") and "ab", and "b" with "ba"; ids 1 to 6 in that order, types 0 and 1 in turns.
class FilledTree : public TreeControl
{
protected:
    void SetUp() override
    {
        TreeControl::SetUp();
        a = m_tree->Add(L"a", nullptr, 0, 1);
        aa = m_tree->Add(L"aa", a, 1, 2);
        aaa = m_tree->Add(L"aaa", aa, 0, 3);
        ab = m_tree->Add(L"ab", a, 1, 4);
        b = m_tree->Add(L"b", nullptr, 0, 5);
        ba = m_tree->Add(L"ba", b, 1, 6);
    }
    HTREEITEM a, aa, aaa, ab, b, ba;
};
} // namespace

TEST_F(TreeControl, IsATreeControlWithOneHandlerAndNoKeysLetThrough)
{
    EXPECT_TRUE(m_tree->IsKindOf(RUNTIME_CLASS(CTreeCtrl)));
    EXPECT_STREQ(m_tree->GetRuntimeClass()->m_lpszClassName, "CXTreeCtrl");
    AFX_MSGMAP const * const map = tests::TestTree::GetThisMessageMap();
    EXPECT_EQ(map->lpEntries[0].nMessage, static_cast<UINT>(WM_LBUTTONDBLCLK));
    EXPECT_EQ(map->lpEntries[1].nMessage, 0u);
    EXPECT_EQ(m_tree->m_keyFlags, 0u);
    EXPECT_TRUE(m_tree->m_itemsInUse.empty());
    EXPECT_TRUE(m_tree->m_itemStock.empty());
}

TEST_F(TreeControl, SortKeysPutItemsInOrderAndEqualOnesInOrderOfArrival)
{
    HTREEITEM const parent = m_tree->InsertTreeItem(L"parent", nullptr, TVI_LAST, -1);
    m_tree->InsertTreeItem(L"5 first", parent, TVI_FIRST, 5);
    m_tree->InsertTreeItem(L"3", parent, TVI_LAST, 3);
    m_tree->InsertTreeItem(L"5 second", parent, TVI_FIRST, 5);
    EXPECT_EQ(m_tree->Outline(), (Lines{L"parent", L".3", L".5 first", L".5 second"}));
    EXPECT_EQ(m_tree->GetItemData(m_tree->GetChildItem(parent))->sortKey, 3);
}

TEST_F(TreeControl, ItemsWithoutASortKeyCountAsSmallerThanAnyPositiveOne)
{
    HTREEITEM const parent = m_tree->Add(L"parent");
    m_tree->Add(L"plain", parent);
    m_tree->Add(L"2", parent, -1, -1, 2);
    m_tree->Add(L"0", parent, -1, -1, 0);
    EXPECT_EQ(m_tree->Outline(), (Lines{L"parent", L".plain", L".0", L".2"}));
}

TEST_F(TreeControl, WithoutSortKeyTheGivenPlaceCountsAndTheValueOfTviSortSortsByText)
{
    HTREEITEM const second = m_tree->InsertTreeItem(L"second", nullptr, TVI_LAST, -1);
    m_tree->InsertTreeItem(L"first", nullptr, TVI_FIRST, -1);
    m_tree->InsertTreeItem(L"third", nullptr, second, -1);
    EXPECT_EQ(m_tree->Outline(), (Lines{L"first", L"second", L"third"}));
    for (wchar_t const * text : {L"c", L"a", L"b"})
        m_tree->InsertTreeItem(text, second, TVI_LAST, -65533);
    EXPECT_EQ(m_tree->Outline(), (Lines{L"first", L"second", L".a", L".b", L".c", L"third"}));
    EXPECT_EQ(m_tree->GetItemData(m_tree->GetChildItem(second))->sortKey, -65533);
}

TEST_F(TreeControl, ASortedInsertAtTheTopLevelLooksAtTheChildrenOfTheFirstItem)
{
    EXPECT_EQ(m_tree->FindSortPosition(nullptr, 5), TVI_LAST);
    HTREEITEM const first = m_tree->Add(L"first", nullptr, -1, -1, 9);
    EXPECT_EQ(m_tree->FindSortPosition(nullptr, 5), TVI_LAST) << "the key 9 at the top level does not count";
    HTREEITEM const child = m_tree->Add(L"child", first, -1, -1, 3);
    m_tree->Add(L"late", first, -1, -1, 7);
    EXPECT_EQ(m_tree->FindSortPosition(nullptr, 2), TVI_FIRST);
    EXPECT_EQ(m_tree->FindSortPosition(nullptr, 5), child);
    EXPECT_EQ(m_tree->FindSortPosition(nullptr, 7), TVI_LAST);
    m_tree->InsertTreeItem(L"ahead", nullptr, TVI_LAST, 2);
    m_tree->InsertTreeItem(L"ahead too", 0, 0, nullptr, TVI_LAST, 2);
    m_tree->InsertTreeItem(L"last", 0, 0, nullptr, 1, 1, TVI_FIRST, 8);
    EXPECT_EQ(m_tree->Outline(), (Lines{L"ahead", L"first", L".child", L".late", L"ahead too", L"last"}));
}

TEST_F(TreeControl, TheOverloadsSetTextImagesAndRecord)
{
    CImageList images;
    images.Create(16, 16, ILC_COLOR32, 3, 1);
    CBitmap bitmap;
    bitmap.CreateBitmap(48, 16, 1, 32, nullptr);
    images.Add(&bitmap, RGB(0, 0, 0));
    m_tree->SetImageList(&images, TVSIL_NORMAL);
    HTREEITEM const plain = m_tree->InsertTreeItem(L"plain", nullptr, TVI_LAST, 1);
    HTREEITEM const pictured = m_tree->InsertTreeItem(L"pictured", 1, 2, nullptr, TVI_LAST, -1);
    HTREEITEM const full = m_tree->InsertTreeItem(L"full", 2, 1, nullptr, 5, 6, TVI_LAST, -1);
    int image = -1;
    int selectedImage = -1;
    m_tree->GetItemImage(pictured, image, selectedImage);
    EXPECT_EQ(std::pair(image, selectedImage), std::pair(1, 2));
    m_tree->GetItemImage(full, image, selectedImage);
    EXPECT_EQ(std::pair(image, selectedImage), std::pair(2, 1));
    EXPECT_EQ(m_tree->GetItemText(plain), L"plain");
    EXPECT_EQ(m_tree->GetItemType(pictured), -1);
    EXPECT_EQ(m_tree->GetItemType(full), 5);
    EXPECT_EQ(m_tree->GetItemId(full), 6);
    EXPECT_EQ(m_tree->GetItemData(plain)->sortKey, 1);
    m_tree->SetImageList(nullptr, TVSIL_NORMAL);
}

TEST_F(FilledTree, TheSixValuedKeyClearsTheLastTwoPartsAndSetItemClavisLeavesThem)
{
    m_tree->SetItemClavis8(aa, other_key);
    int const key[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    m_tree->SetItemClavis(aa, key);
    EXPECT_EQ(KeyOf(aa), (std::vector{1, 2, 3, 4, 5, 6, 17, 18}));
    m_tree->SetItemData(aa, 1, 2, other_key);
    EXPECT_EQ(KeyOf(aa), (std::vector{11, 12, 13, 14, 15, 16, -1, -1}));
    m_tree->SetItemData(aa, 3, 4, key, 70, 80);
    EXPECT_EQ(KeyOf(aa), (std::vector{1, 2, 3, 4, 5, 6, 70, 80}));
    m_tree->SetItemData(aa, 8, 9, nullptr);
    EXPECT_EQ(KeyOf(aa), (std::vector{1, 2, 3, 4, 5, 6, 70, 80})) << "without a key it stays";
    m_tree->SetItemData8(aa, 5, 6, other_key);
    EXPECT_EQ(KeyOf(aa), std::vector<int>(other_key, other_key + 8));
    int type = 0;
    int id = 0;
    EXPECT_EQ(m_tree->GetItemClavis(aa, type, id), m_tree->GetItemClavis(aa));
    EXPECT_EQ(type, 5);
    EXPECT_EQ(id, 6);
}

TEST_F(FilledTree, ANullItemHasNoValues)
{
    int type = 0;
    int id = 0;
    EXPECT_EQ(m_tree->GetItemData(nullptr), nullptr);
    EXPECT_EQ(m_tree->GetSelectedItemData(), nullptr);
    EXPECT_EQ(m_tree->GetItemType(nullptr), -1);
    EXPECT_EQ(m_tree->GetItemId(nullptr), -1);
    EXPECT_EQ(m_tree->GetItemClavis(nullptr), nullptr);
    EXPECT_EQ(m_tree->GetItemClavis(nullptr, type, id), nullptr);
    EXPECT_EQ(m_tree->GetItemDataPtr(nullptr), nullptr);
    m_tree->SetItemDataPtr(nullptr, this);
    m_tree->SetItemData(nullptr, 1, 2, other_key);
    m_tree->SetItemData8(nullptr, 1, 2, other_key);
    m_tree->SetItemClavis(nullptr, other_key);
    m_tree->SetItemClavis8(nullptr, other_key);
    m_tree->DeleteTreeItem(nullptr);
    EXPECT_FALSE(m_tree->ItemDataMatchBest(nullptr, -1, -1, nullptr));
    EXPECT_EQ(m_tree->GetCount(), 6u);
    HTREEITEM const bare = m_tree->InsertItem(L"bare", TVI_ROOT, TVI_LAST);
    EXPECT_EQ(m_tree->GetItemData(bare), nullptr);
    EXPECT_EQ(m_tree->GetItemType(bare), -1);
    EXPECT_FALSE(m_tree->ItemDataMatch(bare, -1, -1, nullptr, nullptr, false));
    EXPECT_NE(m_tree->InsertTreeItem(nullptr, nullptr, TVI_LAST, -1), nullptr);
}

TEST_F(FilledTree, TheSelectedItemsRecordAndThePointer)
{
    m_tree->SelectItem(ab);
    EXPECT_EQ(m_tree->GetSelectedItemData(), m_tree->GetItemData(ab));
    m_tree->SetItemDataPtr(ab, this);
    EXPECT_EQ(m_tree->GetItemDataPtr(ab), this);
}

TEST_F(FilledTree, WithTypeMinusOneBestFindsAnyTypeAndExactOnlyThatOne)
{
    EXPECT_EQ(m_tree->FindItem(-1, 4, nullptr, TVI_ROOT, false), ab);
    EXPECT_EQ(m_tree->FindItem(-1, 4, nullptr, TVI_ROOT, true), nullptr);
    HTREEITEM const untyped = m_tree->Add(L"untyped", b, -1, 4);
    EXPECT_EQ(m_tree->FindItem(-1, 4, nullptr, TVI_ROOT, true), untyped);
}

TEST_F(FilledTree, FindItemLooksAtStartItsLaterSiblingsAndBelow)
{
    EXPECT_EQ(m_tree->FindItem(-1, 6, nullptr, TVI_ROOT, false), ba);
    EXPECT_EQ(m_tree->FindItem(-1, 6, nullptr, a, false), ba);
    EXPECT_EQ(m_tree->FindItem(-1, 1, nullptr, b, false), nullptr) << "not earlier siblings";
    EXPECT_EQ(m_tree->FindItem(-1, 5, nullptr, aa, false), nullptr) << "nothing above";
    EXPECT_EQ(m_tree->FindItem(-1, 4, nullptr, aa, false), ab);
    EXPECT_EQ(m_tree->FindItem(1, -1, nullptr, TVI_ROOT, false), aa) << "the first hit from the top";
    EXPECT_EQ(m_tree->FindItem(-1, -1, nullptr, nullptr, false), nullptr);
    EXPECT_EQ(m_tree->FindItemRecursion(a, -1, 6, nullptr, nullptr, false), nullptr);
    EXPECT_EQ(m_tree->FindItemRecursion(a, -1, 3, nullptr, nullptr, false), aaa);
    EXPECT_EQ(Find(-1, -1, L"ba", TVI_ROOT), ba);
    EXPECT_EQ(Find(-1, -1, L"BA", TVI_ROOT), nullptr) << "case counts";
    EXPECT_EQ(Find(0, 6, L"ba", TVI_ROOT), nullptr);
    m_tree->ResetContent();
    EXPECT_EQ(m_tree->FindItem(-1, -1, nullptr, TVI_ROOT, false), nullptr);
}

TEST_F(FilledTree, FindChildItemNeverGivesATopLevelItemForTviRoot)
{
    EXPECT_EQ(m_tree->FindChildItem(-1, 1, nullptr, nullptr, TVI_ROOT, false), nullptr);
    EXPECT_EQ(m_tree->FindChildItem(-1, 5, nullptr, nullptr, TVI_ROOT, false), nullptr);
    EXPECT_EQ(m_tree->FindChildItem(-1, 4, nullptr, nullptr, TVI_ROOT, false), ab);
    EXPECT_EQ(m_tree->FindChildItem(-1, 3, nullptr, nullptr, a, false), nullptr) << "direct children alone";
    EXPECT_EQ(m_tree->FindChildItem(-1, -1, nullptr, L"ab", a, false), ab);
    EXPECT_EQ(m_tree->FindChildItem(-1, -1, nullptr, nullptr, nullptr, false), nullptr);
}

TEST_F(FilledTree, FindAllItemsAndCollectAllItemsStayBelowStart)
{
    std::list<HTREEITEM> found{b};
    EXPECT_EQ(m_tree->FindAllItems(found, 1, -1, nullptr, TVI_ROOT, false), 2u);
    EXPECT_EQ(found, (std::list{b, aa, ab})) << "appended, and without what is below b";
    found.clear();
    EXPECT_EQ(m_tree->CollectAllItems(found, TVI_ROOT), 4u);
    EXPECT_EQ(found, (std::list{a, aa, aaa, ab}));
    EXPECT_EQ(m_tree->CollectAllItems(found, b), 2u);
    EXPECT_EQ(m_tree->CollectAllItems(found, nullptr), 0u);
    EXPECT_EQ(m_tree->FindAllItems(found, -1, -1, nullptr, nullptr, false), 0u);
    EXPECT_EQ(found.size(), 6u);
}

TEST_F(FilledTree, ADeletedItemGivesAllRecordsBelowBackToTheStock)
{
    std::set<CXTreeCtrl::ItemData *> const records{m_tree->GetItemData(a), m_tree->GetItemData(aa),
                                                   m_tree->GetItemData(aaa), m_tree->GetItemData(ab)};
    m_tree->DeleteTreeItem(a);
    EXPECT_EQ(m_tree->Outline(), (Lines{L"b", L".ba"}));
    EXPECT_EQ(m_tree->m_itemsInUse.size(), 2u);
    EXPECT_EQ(std::set<CXTreeCtrl::ItemData *>(m_tree->m_itemStock.begin(), m_tree->m_itemStock.end()), records);
    m_tree->DeleteAllSubItems(b);
    EXPECT_EQ(m_tree->Outline(), (Lines{L"b"}));
    EXPECT_EQ(m_tree->m_itemsInUse.size(), 1u);
    EXPECT_EQ(m_tree->m_itemStock.size(), 5u);
}

TEST_F(FilledTree, ResetContentKeepsTheRecordsReadableAndARefillTakesThem)
{
    CXTreeCtrl::ItemData const * const stale = m_tree->GetItemData(ab);
    m_tree->ResetContent();
    EXPECT_EQ(stale->id, 4);
    EXPECT_EQ(m_tree->GetCount(), 0u);
    EXPECT_TRUE(m_tree->m_itemsInUse.empty());
    std::set<CXTreeCtrl::ItemData *> const records(m_tree->m_itemStock.begin(), m_tree->m_itemStock.end());
    EXPECT_EQ(records.size(), 6u);
    for (int i = 0; i < 6; ++i)
        EXPECT_TRUE(records.contains(m_tree->GetItemData(m_tree->Add(L"again"))));
    EXPECT_TRUE(m_tree->m_itemStock.empty());
}

TEST_F(FilledTree, ExpandTreeGoesThroughTheFirstTopLevelItemAlone)
{
    m_tree->ExpandTree(-1);
    EXPECT_TRUE(IsExpanded(a));
    EXPECT_TRUE(IsExpanded(aa));
    EXPECT_FALSE(IsExpanded(b));
    m_tree->ExpandTree(1);
    EXPECT_TRUE(IsExpanded(a));
    EXPECT_FALSE(IsExpanded(aa));
    m_tree->ExpandTree(2);
    EXPECT_TRUE(IsExpanded(aa));
    m_tree->Expand(b, TVE_EXPAND);
    m_tree->ExpandTree(0);
    EXPECT_FALSE(IsExpanded(a));
    EXPECT_FALSE(IsExpanded(aa));
    EXPECT_TRUE(IsExpanded(b));
}

TEST_F(TreeControl, TheNamedKeySetsAreTheseBits)
{
    m_tree->DontAbsorbNormalKeys();
    EXPECT_EQ(m_tree->m_keyFlags, 0x17u);
    m_tree->DontAbsorbControlKeys(false);
    EXPECT_EQ(m_tree->m_keyFlags, 0x11u);
    m_tree->DontAbsorbControlKeys(true);
    EXPECT_EQ(m_tree->m_keyFlags, 0x31u);
    m_tree->DontHandleDoubleclick();
    EXPECT_EQ(m_tree->m_keyFlags, 0x71u);
    m_tree->DontAbsorbAnyKeys();
    EXPECT_EQ(m_tree->m_keyFlags, 255u);
    m_tree->DontAbsorbKeys(2);
    EXPECT_EQ(m_tree->m_keyFlags, 2u);
}

namespace
{
/// Has a tip wherever the mouse is.
class TippedTree : public tests::TestTree
{
public:
    INT_PTR OnToolHitTest(CPoint, TOOLINFO * info) const override
    {
        info->hwnd = m_hWnd;
        info->uId = 1;
        GetClientRect(&info->rect);
        info->lpszText = const_cast<wchar_t *>(L"tip");
        return 1;
    }
};

std::set<HWND> ToolTipWindows()
{
    std::set<HWND> found;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            wchar_t name[32] = {};
            ::GetClassNameW(window, name, 32);
            if (CString(name) == TOOLTIPS_CLASS)
                reinterpret_cast<std::set<HWND> *>(result)->insert(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

/// Moves the mouse over the tree, which makes the window of the tip; gives that.
HWND Tip(TippedTree & tree)
{
    std::set<HWND> const before = ToolTipWindows();
    tree.EnableToolTips();
    CRect screen;
    tree.GetWindowRect(&screen);
    MSG move{tree.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(20, 20), 0, screen.CenterPoint()};
    tree.PreTranslateMessage(&move);
    std::set<HWND> after = ToolTipWindows();
    std::erase_if(after, [&](HWND window) { return before.contains(window); });
    return after.size() == 1 ? *after.begin() : nullptr;
}
} // namespace

TEST_F(TreeControl, KeyStrokesOfItsClassesAreNotTranslatedAndOthersEndTheTip)
{
    TippedTree tree;
    tests::WindowCloser const closer(tree);
    ASSERT_TRUE(tree.Create(style | TVS_NOTOOLTIPS, CRect(0, 0, 300, 250), m_host, 8));
    HWND const tip = Tip(tree);
    ASSERT_NE(tip, nullptr);
    tests::MessageRecorder recorder({TTM_ACTIVATE});
    recorder.Watch(tip, "tip");
    // A translated key stroke switches the tip off.
    auto const isTranslated = [&](UINT message, WPARAM key) {
        recorder.Clear();
        MSG stroke{tree.m_hWnd, message, key, 0, 0, {}};
        EXPECT_FALSE(tree.PreTranslateMessage(&stroke));
        return recorder.Count("tip", TTM_ACTIVATE) != 0;
    };
    EXPECT_TRUE(isTranslated(WM_KEYDOWN, 'A')) << "no class at first";
    tree.DontAbsorbKeys(4);
    EXPECT_FALSE(isTranslated(WM_KEYDOWN, 'A'));
    EXPECT_TRUE(isTranslated(WM_KEYDOWN, VK_F5));
    EXPECT_TRUE(isTranslated(WM_SYSKEYDOWN, 'A')) << "of no other message";
    tree.DontAbsorbControlKeys(true);
    EXPECT_FALSE(isTranslated(WM_KEYDOWN, VK_SPACE));
    EXPECT_FALSE(isTranslated(WM_KEYDOWN, VK_UP));
    EXPECT_TRUE(isTranslated(WM_KEYDOWN, 'A'));
    tree.DontAbsorbAnyKeys();
    EXPECT_FALSE(isTranslated(WM_KEYDOWN, VK_F1));
    tree.EnableToolTips(FALSE);
}

TEST_F(TreeControl, NoTipIsLeftOfATreeThatEnds)
{
    for (bool const windowAlone : {true, false})
    {
        auto tree = std::make_unique<TippedTree>();
        ASSERT_TRUE(tree->Create(style | TVS_NOTOOLTIPS, CRect(0, 0, 300, 250), m_host, 8));
        HWND const tip = Tip(*tree);
        ASSERT_NE(tip, nullptr);
        if (windowAlone)
            tree->DestroyWindow();
        else
            tree.reset();
        EXPECT_FALSE(::IsWindow(tip));
    }
}

TEST_F(FilledTree, ADoubleClickIsReportedWithFlagsAndItemAndOpensTheItem)
{
    tests::BringToFront(m_host.m_hWnd);
    tests::DoubleClick(tests::ClientPoint(m_tree->m_hWnd, PlaceOf(b)));
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_host.reports.empty() && IsExpanded(b); }));
    EXPECT_EQ(m_host.reports, (std::vector<tests::TreeParent::Report>{{MK_LBUTTON, b}}));
}

TEST_F(FilledTree, WithoutDoubleClickHandlingItIsOnlyReported)
{
    m_tree->DontHandleDoubleclick();
    m_tree->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON | MK_CONTROL, MAKELPARAM(PlaceOf(b).x, PlaceOf(b).y));
    EXPECT_EQ(m_host.reports, (std::vector<tests::TreeParent::Report>{{MK_LBUTTON | MK_CONTROL, b}}));
    EXPECT_FALSE(IsExpanded(b));
    m_tree->DontAbsorbAnyKeys();
    m_tree->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(PlaceOf(b).x, PlaceOf(b).y));
    EXPECT_EQ(m_host.reports.size(), 2u);
    EXPECT_FALSE(IsExpanded(b)) << "all keys contain that bit";
    m_tree->DontAbsorbKeys(0);
    m_tree->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(PlaceOf(b).x, PlaceOf(b).y));
    EXPECT_EQ(m_host.reports.size(), 3u);
    EXPECT_TRUE(IsExpanded(b));
}

TEST_F(FilledTree, ADoubleClickBesideAllItemsOrAtMinusOneGoesToTheBaseAlone)
{
    m_tree->DontHandleDoubleclick();
    m_tree->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(280, 240));
    EXPECT_EQ(m_tree->doubleClicksOfTheBase, 1);
    m_tree->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(-1, -1));
    EXPECT_EQ(m_tree->doubleClicksOfTheBase, 2);
    EXPECT_TRUE(m_host.reports.empty());
    m_tree->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(PlaceOf(a).x, PlaceOf(a).y));
    EXPECT_EQ(m_tree->doubleClicksOfTheBase, 2) << "reported only";
    EXPECT_EQ(m_host.reports.size(), 1u);
}

TEST_F(FilledTree, TheParentMayEndTheTreeInItsReport)
{
    m_host.onReport = [&] { m_tree.reset(); };
    ::SendMessageW(m_tree->m_hWnd, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(PlaceOf(b).x, PlaceOf(b).y));
    EXPECT_EQ(m_tree, nullptr);
    EXPECT_EQ(m_host.reports.size(), 1u);
}

TEST_F(FilledTree, ADeletionWithinADeletionGivesEachRecordBackOnce)
{
    bool nested = false;
    m_host.onNotify = [&](NMHDR const & header) {
        if (header.code != TVN_DELETEITEMW || nested)
            return;
        nested = true;
        m_tree->DeleteTreeItem(ab);
    };
    m_tree->DeleteTreeItem(a);
    m_host.onNotify = {};
    EXPECT_TRUE(nested);
    m_tree->Add(L"new", b);
    EXPECT_EQ(m_tree->Outline(), (Lines{L"b", L".ba", L".new"}));
    EXPECT_EQ(m_tree->m_itemsInUse.size(), 3u);
    std::set<CXTreeCtrl::ItemData *> all(m_tree->m_itemStock.begin(), m_tree->m_itemStock.end());
    all.insert(m_tree->m_itemsInUse.begin(), m_tree->m_itemsInUse.end());
    EXPECT_EQ(all.size(), m_tree->m_itemStock.size() + 3);
}

TEST_F(FilledTree, AChildInsertedWhileTheLastOneGoesDoesNotKeepADeletionGoing)
{
    int inserted = 0;
    m_host.onNotify = [&](NMHDR const & header) {
        auto const & change = reinterpret_cast<NMTREEVIEWW const &>(header);
        if (header.code == TVN_DELETEITEMW && m_tree->GetParentItem(change.itemOld.hItem) == b)
        {
            ++inserted;
            m_tree->Add(L"placeholder", b);
        }
    };
    m_tree->DeleteAllSubItems(b);
    m_host.onNotify = {};
    EXPECT_EQ(inserted, 1);
    EXPECT_EQ(m_tree->Outline(), (Lines{L"a", L".aa", L"..aaa", L".ab", L"b", L".placeholder"}));
}

TEST_F(FilledTree, TheParentStillReadsTheRecordsWhileTheTreeEnds)
{
    std::set<int> seen;
    m_host.onNotify = [&](NMHDR const & header) {
        if (header.code != TVN_DELETEITEMW)
            return;
        auto const & change = reinterpret_cast<NMTREEVIEWW const &>(header);
        seen.insert(reinterpret_cast<CXTreeCtrl::ItemData const *>(change.itemOld.lParam)->id);
    };
    m_tree.reset();
    EXPECT_EQ(seen, (std::set{1, 2, 3, 4, 5, 6}));
}

TEST_F(TreeControl, OperationsWithoutAWindowDoNothing)
{
    tests::TestTree tree;
    EXPECT_EQ(tree.InsertTreeItem(L"x", nullptr, TVI_LAST, 3), nullptr);
    EXPECT_EQ(tree.FindItem(-1, -1, nullptr, TVI_ROOT, false), nullptr);
    EXPECT_EQ(tree.GetSelectedItemData(), nullptr);
    tree.ResetContent();
    tree.ExpandTree(-1);
    EXPECT_TRUE(tree.m_itemStock.empty());
}

TEST_F(TreeControl, RepaintingLeavesNoGdiObjects)
{
    for (int i = 0; i < 20; ++i)
        m_tree->Add(L"item");
    EXPECT_EQ(tests::GdiGrowth([&] {
                  for (int i = 0; i < 500; ++i)
                      m_tree->RedrawWindow();
              }),
              0);
}

namespace
{
/// What the tree should hold.
struct Model
{
    struct Node
    {
        int type, id, sortKey;
        HTREEITEM item;
        Node * parent;
        std::vector<std::unique_ptr<Node>> children;
    };
    Node top{-1, -1, -1, nullptr, nullptr, {}};
    std::vector<Node *> all;

    Node * Insert(Node & parent, int type, int id, int sortKey)
    {
        auto place = parent.children.end();
        if (sortKey != -1)
        {
            place = std::find_if(parent.children.begin(), parent.children.end(),
                                 [&](auto const & child) { return child->sortKey > sortKey; });
        }
        auto const entered =
            parent.children.insert(place, std::make_unique<Node>(Node{type, id, sortKey, nullptr, &parent, {}}));
        all.push_back(entered->get());
        return entered->get();
    }
    void Delete(Node * node)
    {
        while (!node->children.empty())
            Delete(node->children.back().get());
        std::erase(all, node);
        std::erase_if(node->parent->children, [node](auto const & child) { return child.get() == node; });
    }
    static Node const * Find(std::vector<std::unique_ptr<Model::Node>> const & siblings, std::size_t from, int type,
                             int id)
    {
        for (std::size_t i = from; i < siblings.size(); ++i)
        {
            Node const & node = *siblings[i];
            if ((type == -1 || node.type == type) && (id == -1 || node.id == id))
                return &node;
            if (Node const * const below = Find(node.children, 0, type, id))
                return below;
        }
        return nullptr;
    }
};
} // namespace

TEST_F(TreeControl, ARandomWalkAgreesWithAModel)
{
    constexpr int operations = 50000;
    constexpr std::size_t most = 40;
    std::mt19937 random(2024);
    auto const pick = [&](std::size_t limit) { return static_cast<std::size_t>(random() % limit); };
    m_tree->ShowWindow(SW_HIDE);
    auto model = std::make_unique<Model>();
    std::size_t records = 0;
    for (int step = 0; step < operations; ++step)
    {
        std::vector<Model::Node *> & all = model->all;
        Model::Node * const node = all.empty() ? nullptr : all[pick(all.size())];
        std::size_t const kind = pick(20);
        if (node == nullptr || (kind < 8 && all.size() < most))
        {
            Model::Node & parent = node == nullptr || pick(4) == 0 ? model->top : *node;
            // Sorted at the top level is the platform's matter.
            int const sortKey = &parent == &model->top ? -1 : static_cast<int>(pick(6)) - 1;
            int const type = static_cast<int>(pick(3));
            int const id = static_cast<int>(pick(20));
            Model::Node * const entered = model->Insert(parent, type, id, sortKey);
            entered->item = m_tree->InsertTreeItem(L"x", 0, 0, parent.item, type, id, TVI_LAST, sortKey);
            ASSERT_NE(entered->item, nullptr);
        }
        else if (kind < 10)
        {
            m_tree->DeleteTreeItem(node->item);
            model->Delete(node);
        }
        else if (kind == 10)
        {
            m_tree->DeleteAllSubItems(node->item);
            while (!node->children.empty())
                model->Delete(node->children.back().get());
        }
        else if (kind == 11 && pick(50) == 0)
        {
            m_tree->ResetContent();
            model = std::make_unique<Model>();
        }
        else
        {
            int const type = static_cast<int>(pick(4)) - 1;
            int const id = static_cast<int>(pick(21)) - 1;
            std::vector<std::unique_ptr<Model::Node>> const & siblings = node->parent->children;
            auto const place =
                std::find_if(siblings.begin(), siblings.end(), [&](auto const & each) { return each.get() == node; });
            Model::Node const * const expected =
                Model::Find(siblings, static_cast<std::size_t>(place - siblings.begin()), type, id);
            ASSERT_EQ(m_tree->FindItem(type, id, nullptr, node->item, false),
                      expected != nullptr ? expected->item : nullptr)
                << "step " << step;
        }
        ASSERT_EQ(m_tree->m_itemsInUse.size(), model->all.size()) << "step " << step;
        records = std::max(records, model->all.size());
        ASSERT_EQ(m_tree->m_itemsInUse.size() + m_tree->m_itemStock.size(), records) << "step " << step;
    }
}

TEST_F(TreeControl, FiveThousandItemsAreFilledSearchedAndResetAndARefillTakesNoNewRecord)
{
    // Some native trees look through all items for each that they are asked about.
    constexpr int count = 5000;
    m_tree->ShowWindow(SW_HIDE);
    m_tree->SetRedraw(FALSE);
    std::set<CXTreeCtrl::ItemData const *> records;
    for (int fill = 0; fill < 2; ++fill)
    {
        for (int i = 0; i < count; ++i)
            records.insert(m_tree->GetItemData(m_tree->Add(L"item", nullptr, 1, i)));
        EXPECT_EQ(m_tree->m_itemsInUse.size(), static_cast<std::size_t>(count));
        EXPECT_TRUE(m_tree->m_itemStock.empty());
        EXPECT_EQ(records.size(), static_cast<std::size_t>(count)) << "a refill takes those of before";
        EXPECT_EQ(m_tree->GetItemId(m_tree->FindItem(1, count - 1, nullptr, TVI_ROOT, true)), count - 1);

        m_tree->messagesOfTheBase = 0;
        m_tree->ResetContent();
        EXPECT_LT(m_tree->messagesOfTheBase, 20) << "nothing an item";
        EXPECT_TRUE(m_tree->m_itemsInUse.empty());
        EXPECT_EQ(m_tree->m_itemStock.size(), static_cast<std::size_t>(count));
    }
}

TEST_F(TreeControl, ADeletedItemIsOneMessageForItselfAndOneForEachBelow)
{
    HTREEITEM const parent = m_tree->Add(L"parent");
    for (int i = 0; i < 500; ++i)
        m_tree->Add(L"child", parent);
    HTREEITEM const other = m_tree->Add(L"other");
    m_tree->ShowWindow(SW_HIDE);
    auto const messagesOf = [&](HTREEITEM item) {
        tests::MessageRecorder recorder({TVM_DELETEITEM});
        recorder.Watch(m_tree->m_hWnd, "tree");
        m_tree->DeleteTreeItem(item);
        return recorder.Count("tree", TVM_DELETEITEM);
    };
    EXPECT_EQ(messagesOf(other), 1);
    EXPECT_EQ(messagesOf(parent), 501);
    EXPECT_EQ(m_tree->m_itemStock.size(), 502u);
}
