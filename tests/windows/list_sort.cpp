// Sorting a list by a column: order, marks, and what moves with the rows.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "ListTestHost.h"

namespace
{
using tests::CountingList;
using tests::TestList;
using Strings = std::vector<CString>;

class ListSort : public testing::Test
{
protected:
    /// Rows "r0", "r1", ... with these whole numbers in column 1, told apart by their data word.
    void FillNumbers(std::vector<int> const & numbers)
    {
        m_host.Fill(3, static_cast<int>(numbers.size()));
        for (int row = 0; row < m_list.GetItemCount(); ++row)
        {
            m_list.SetItemText(row, 1, numbers[static_cast<std::size_t>(row)]);
            m_list.SetItemData(row, static_cast<long long>(row));
        }
    }
    void FillTexts(std::vector<wchar_t const *> const & texts)
    {
        m_host.Fill(3, static_cast<int>(texts.size()));
        for (int row = 0; row < m_list.GetItemCount(); ++row)
        {
            m_list.SetItemText(row, 1, texts[static_cast<std::size_t>(row)]);
            m_list.SetItemData(row, static_cast<long long>(row));
        }
    }
    /// The rows as they now stand, by their numbers before the sort.
    std::vector<int> Order()
    {
        std::vector<int> order;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
            order.push_back(m_list.GetItemData(row));
        return order;
    }
    /// The header states of all columns.
    std::vector<int> Marks() const
    {
        std::vector<int> marks;
        for (int col = 0; col < m_list.GetColumnCount(); ++col)
            marks.push_back(m_list.GetHeaderCheckedState(col));
        return marks;
    }

    tests::ListHost m_host;
    TestList & m_list = m_host.list;
};

TEST_F(ListSort, PutsNumbersInOrderInBothDirections)
{
    FillNumbers({3, 1, 2});
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"1", L"2", L"3"}));
    EXPECT_EQ(m_list.Texts(0), (Strings{L"r1", L"r2", L"r0"}));
    EXPECT_EQ(Order(), (std::vector<int>{1, 2, 0}));
    m_list.SortByColumn(1, false, false, nullptr);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"3", L"2", L"1"}));
    EXPECT_EQ(Order(), (std::vector<int>{0, 2, 1}));
}

TEST_F(ListSort, ComparesNumbersByValueAndTextsByCharacter)
{
    FillNumbers({10, 9, -1, 100});
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"-1", L"9", L"10", L"100"}));
    m_list.DeleteAllItems();
    m_list.DeleteAllColumns();
    FillTexts({L"10", L"9", L"b", L"B", L"", L"a"});
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"", L"10", L"9", L"B", L"a", L"b"}));
    m_list.SortByColumn(1, false, false, nullptr);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"b", L"a", L"B", L"9", L"10", L""}));
}

TEST_F(ListSort, EqualTextsKeepTheirOrder)
{
    FillTexts({L"ab", L"a", L"b", L"", L"abc", L"a", L"b", L"", L"a"});
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(Order(), (std::vector<int>{3, 7, 1, 5, 8, 0, 4, 2, 6}));
    m_list.SortByColumn(1, false, false, nullptr);
    EXPECT_EQ(Order(), (std::vector<int>{2, 6, 4, 0, 1, 5, 8, 3, 7}));
}

TEST_F(ListSort, ComparesTextsOfAnyLength)
{
    m_host.Fill(2, 0);
    // Around the sizes of buffers that double.
    std::vector<int> const lengths = {1025, 255, 1023, 256, 254, 512, 257, 511, 1024, 510};
    for (int const length : lengths)
        m_list.AddItem(std::wstring(static_cast<std::size_t>(length), L'x').c_str(), nullptr, length);
    m_list.SortByColumn(0, true, false, nullptr);
    EXPECT_EQ(Order(), (std::vector<int>{254, 255, 256, 257, 510, 511, 512, 1023, 1024, 1025}));
}

TEST_F(ListSort, ComparesLongTextsToTheirEnd)
{
    std::wstring const common(700, L'x');
    m_host.Fill(2, 0);
    for (wchar_t const * const end : {L"c", L"a", L"", L"b"})
        m_list.AddItem((common + end).c_str(), nullptr, 0);
    m_list.SortByColumn(0, true, false, nullptr);
    std::vector<std::wstring> ends;
    for (int row = 0; row < 4; ++row)
    {
        CString const text = m_list.GetItemText(row, 0);
        ends.push_back(text.Mid(700).GetString());
    }
    EXPECT_EQ(ends, (std::vector<std::wstring>{L"", L"a", L"b", L"c"}));
}

TEST_F(ListSort, KeepsARowThatSortsLastBehindInBothDirections)
{
    FillNumbers({5, 1, 9, 3});
    m_list.SetItemProperty(1, 1, XLP_SORT_LAST, true);
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"3", L"5", L"9", L"1"}));
    m_list.SortByColumn(1, false, false, nullptr);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"9", L"5", L"3", L"1"}));
}

TEST_F(ListSort, KeepsARowThatSortsFirstAheadInBothDirections)
{
    FillNumbers({5, 9, 1, 3});
    m_list.SetItemProperty(3, 1, XLP_SORT_FIRST, true);
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"3", L"1", L"5", L"9"}));
    m_list.SortByColumn(1, false, false, nullptr);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"3", L"9", L"5", L"1"}));
}

TEST_F(ListSort, ReadsATextAmongNumbersAsZeroIfTheFirstOfThePairIsANumber)
{
    FillNumbers({5, 7});
    m_list.SetItemText(1, 1, L"zzz");
    m_list.GetRowItemData(1, 1)->intValue = 0;
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"zzz", L"5"}));
    // Now the text comes first and decides that texts are compared.
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"5", L"zzz"}));
}

TEST_F(ListSort, GoesByEachKindOfValue)
{
    m_host.Fill(4, 3);
    float const floats[] = {2.5F, -1.0F, 2.25F};
    time_t const times[] = {3000, 1000, 2000};
    int const percents[] = {90, 100, 5};
    for (int row = 0; row < 3; ++row)
    {
        m_list.SetItemData(row, row);
        m_list.SetItemFloatVal(row, 1, floats[row], L"same");
        m_list.SetItemDatetime(row, 2, CTime(times[row]));
        m_list.SetProgress(row, 3, false, nullptr);
        m_list.UpdateProgress(row, 3, percents[row], 0);
    }
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(Order(), (std::vector<int>{1, 2, 0}));
    m_list.SortByColumn(2, false, false, nullptr);
    EXPECT_EQ(Order(), (std::vector<int>{0, 2, 1}));
    m_list.SortByColumn(3, true, false, nullptr);
    EXPECT_EQ(Order(), (std::vector<int>{2, 0, 1}));
}

TEST_F(ListSort, EqualRowsKeepTheirOrder)
{
    FillNumbers({2, 1, 2, 1, 2, 1});
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(Order(), (std::vector<int>{1, 3, 5, 0, 2, 4}));
    m_list.SortByColumn(1, false, false, nullptr);
    EXPECT_EQ(Order(), (std::vector<int>{0, 2, 4, 1, 3, 5}));
}

TEST_F(ListSort, MarksTheHeaderOfItsColumnAlone)
{
    FillNumbers({3, 1, 2});
    m_list.SetHeaderCheckedState(0, XHC_CHECKED);
    m_list.SetHeaderCheckedState(2, XHC_SORT_ASCENDING);
    m_list.SortByColumn(1, true, true, nullptr);
    EXPECT_EQ(Marks(), (std::vector<int>{0, 5, 0}));
    m_list.SortByColumn(1, false, true, nullptr);
    EXPECT_EQ(Marks(), (std::vector<int>{0, 6, 0}));
    m_list.SortByColumn(0, true, false, nullptr);
    EXPECT_EQ(Marks(), (std::vector<int>{0, 6, 0}));
}

TEST_F(ListSort, ANegativeColumnTakesTheMarksAwayAndSortsNothing)
{
    FillNumbers({3, 1, 2});
    m_list.SetHeaderCheckedState(1, XHC_SORT_DESCENDING);
    m_list.SortByColumn(-1, true, false, nullptr);
    EXPECT_EQ(Marks(), (std::vector<int>{0, 6, 0}));
    m_list.SortByColumn(-1, true, true, nullptr);
    EXPECT_EQ(Marks(), (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(Order(), (std::vector<int>{0, 1, 2}));
}

TEST_F(ListSort, AColumnPastTheEndChangesNothing)
{
    FillNumbers({3, 1, 2});
    m_list.SetHeaderCheckedState(1, XHC_SORT_DESCENDING);
    m_list.SortByColumn(3, true, true, nullptr);
    EXPECT_EQ(Marks(), (std::vector<int>{0, 6, 0}));
    EXPECT_EQ(Order(), (std::vector<int>{0, 1, 2}));
}

TEST_F(ListSort, AnEmptyListGetsItsMark)
{
    m_host.Fill(3, 0);
    m_list.SortByColumn(2, false, true, nullptr);
    EXPECT_EQ(Marks(), (std::vector<int>{0, 0, 6}));
}

TEST_F(ListSort, AListWithoutAWindowIsLeftAlone)
{
    FillNumbers({3, 1});
    m_list.DestroyWindow();
    m_list.SortByColumn(1, true, true, nullptr);
    m_list.SortByColumn(1, true, true, [](long long, long long, long long) { return 0; });
    EXPECT_EQ(m_list.m_hWnd, nullptr);
}

// --- A host's own comparison ---

struct Compared
{
    std::vector<std::pair<long long, long long>> pairs;
    bool listRight = true;
    bool unmoved = true;
    CXListCtrl * list = nullptr;
} compared;

int CompareDataWords(long long a, long long b, long long list)
{
    auto * const control = reinterpret_cast<CXListCtrl *>(static_cast<LONG_PTR>(list));
    compared.pairs.push_back({a, b});
    compared.listRight = compared.listRight && control == compared.list;
    // The rows stand at their places before the sort: each one's number is its data word.
    compared.unmoved = compared.unmoved && control->GetItemData(static_cast<int>(a)) == a &&
                       control->GetItemData(static_cast<int>(b)) == b;
    int const first = control->GetRowItemDataDirect(static_cast<int>(a), 1)->intValue;
    int const second = control->GetRowItemDataDirect(static_cast<int>(b), 1)->intValue;
    return second - first;
}

TEST_F(ListSort, AHostsComparisonGetsIndicesOfTheUnsortedListAndTheList)
{
    FillNumbers({3, 1, 2, 8, 5, 5, 0});
    compared = {};
    compared.list = &m_list;
    m_list.SortByColumn(1, true, true, &CompareDataWords);
    // The direction is the comparison's own affair.
    EXPECT_EQ(m_list.Texts(1), (Strings{L"8", L"5", L"5", L"3", L"2", L"1", L"0"}));
    EXPECT_EQ(Marks(), (std::vector<int>{0, 5, 0}));
    EXPECT_TRUE(compared.listRight);
    EXPECT_TRUE(compared.unmoved);
    EXPECT_FALSE(compared.pairs.empty());
    for (auto const & [a, b] : compared.pairs)
        EXPECT_TRUE(a >= 0 && a < 7 && b >= 0 && b < 7 && a != b) << a << ", " << b;
}

int contradiction = 0;

TEST_F(ListSort, AContradictoryComparisonLosesNoRow)
{
    FillNumbers(std::vector<int>(100, 1));
    m_list.SortByColumn(1, true, false, [](long long, long long, long long) { return 1; });
    m_list.SortByColumn(1, true, false, [](long long, long long, long long) { return ++contradiction % 3 - 1; });
    std::vector<int> rows = Order();
    std::sort(rows.begin(), rows.end());
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(rows[static_cast<std::size_t>(i)], i);
}

int comparisons = 0;

TEST_F(ListSort, AComparisonThatDeletesARowEndsTheSort)
{
    FillNumbers({4, 3, 2, 1});
    comparisons = 0;
    m_list.SortByColumn(1, true, false, [](long long, long long, long long list) {
        ++comparisons;
        reinterpret_cast<CXListCtrl *>(static_cast<LONG_PTR>(list))->DeleteItem(0);
        return 1;
    });
    EXPECT_EQ(comparisons, 1);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"3", L"2", L"1"}));
    EXPECT_EQ(Order(), (std::vector<int>{1, 2, 3}));
}

TEST_F(ListSort, AComparisonThatInsertsARowEndsTheSort)
{
    FillNumbers({4, 3, 2});
    comparisons = 0;
    m_list.SortByColumn(1, true, false, [](long long, long long, long long list) {
        ++comparisons;
        reinterpret_cast<CXListCtrl *>(static_cast<LONG_PTR>(list))->InsertItem(0, L"new", nullptr, 9);
        return 1;
    });
    EXPECT_EQ(comparisons, 1);
    EXPECT_EQ(Order(), (std::vector<int>{9, 0, 1, 2}));
}

TEST_F(ListSort, AComparisonThatSortsLeavesThatOrder)
{
    FillNumbers({2, 3, 1});
    comparisons = 0;
    m_list.SortByColumn(1, true, false, [](long long, long long, long long list) {
        ++comparisons;
        reinterpret_cast<CXListCtrl *>(static_cast<LONG_PTR>(list))->SortByColumn(1, false, false, nullptr);
        return 1;
    });
    EXPECT_EQ(comparisons, 1);
    EXPECT_EQ(m_list.Texts(1), (Strings{L"3", L"2", L"1"}));
}

/// A list whose memory shows any write after its end. One at a time.
class RememberedList : public TestList
{
public:
    ~RememberedList() override
    {
        if (m_hWnd != nullptr)
            DestroyWindow();
    }
    static void * operator new(std::size_t size) { return size <= sizeof(s_memory) ? s_memory : nullptr; }
    static void operator delete(void *) { std::fill(std::begin(s_memory), std::end(s_memory), ended); }
    /// True if the object has ended and nothing wrote to it since.
    static bool EndedUntouched()
    {
        return std::all_of(std::begin(s_memory), std::end(s_memory), [](unsigned char byte) { return byte == ended; });
    }

private:
    static constexpr unsigned char ended = 0xDD;
    alignas(std::max_align_t) static inline unsigned char s_memory[0x4000] = {};
};

/// Such a list with rows "2", "1", "0" in its two columns.
RememberedList * MakeRememberedList(CWnd & parent)
{
    auto * const list = new RememberedList;
    EXPECT_TRUE(list->Create(TestList::default_style, CRect(0, 0, 100, 100), &parent, 8));
    list->AddColumns(2);
    for (int number = 2; number >= 0; --number)
        list->SetItemText(list->AddItem(std::to_wstring(number).c_str(), nullptr, number), 1, number);
    return list;
}

TEST_F(ListSort, AComparisonMayDeleteTheListObject)
{
    RememberedList * const list = MakeRememberedList(m_host.parent);
    comparisons = 0;
    list->SortByColumn(1, true, true, [](long long, long long, long long sorted) {
        ++comparisons;
        delete static_cast<RememberedList *>(reinterpret_cast<CXListCtrl *>(static_cast<LONG_PTR>(sorted)));
        return 1;
    });
    EXPECT_EQ(comparisons, 1);
    EXPECT_TRUE(RememberedList::EndedUntouched());
}

/// A parent that knows the texts of rows which have none of their own.
class TextParent : public tests::ListParent
{
public:
    std::function<std::wstring(int row)> m_textOf;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result) override
    {
        auto & info = *reinterpret_cast<NMLVDISPINFOW *>(lParam);
        if (info.hdr.code == LVN_GETDISPINFOW && (info.item.mask & LVIF_TEXT) != 0 && m_textOf)
        {
            // The callback may end the list.
            auto const textOf = m_textOf;
            m_text = textOf(info.item.iItem);
            info.item.pszText = m_text.data();
        }
        return ListParent::OnNotify(wParam, lParam, result);
    }

private:
    std::wstring m_text;
};

class ListSortAskingTheParent : public testing::Test
{
protected:
    ListSortAskingTheParent()
    {
        m_list = new RememberedList;
        EXPECT_TRUE(m_list->Create(TestList::default_style, CRect(0, 0, 100, 100), &m_host, 8));
        m_list->SetRedraw(FALSE);
        m_list->AddColumns(2);
        for (int row = 0; row < 4; ++row)
            m_list->AddItem(LPSTR_TEXTCALLBACKW, nullptr, row);
    }
    ~ListSortAskingTheParent() override
    {
        m_host.m_textOf = nullptr;
        delete m_list;
    }
    std::vector<int> Order() const
    {
        std::vector<int> order;
        for (int row = 0; row < m_list->GetItemCount(); ++row)
            order.push_back(m_list->GetItemData(row));
        return order;
    }

    TextParent m_host;
    RememberedList * m_list = nullptr;
};

TEST_F(ListSortAskingTheParent, SortsByTheTextsThatItGives)
{
    m_host.m_textOf = [this](int row) { return std::wstring(1, L"dbca"[m_list->GetItemData(row)]); };
    m_list->SortByColumn(0, true, false, nullptr);
    EXPECT_EQ(Order(), (std::vector<int>{3, 1, 2, 0}));
}

TEST_F(ListSortAskingTheParent, AParentThatDeletesARowEndsTheSort)
{
    m_host.m_textOf = [this](int row) {
        if (row == 1 && m_list->GetItemCount() == 4)
            m_list->DeleteItem(0);
        return std::wstring(1, L"dbca"[row]);
    };
    m_list->SortByColumn(0, true, false, nullptr);
    EXPECT_EQ(Order(), (std::vector<int>{1, 2, 3}));
}

TEST_F(ListSortAskingTheParent, AParentMayDeleteTheListObject)
{
    m_host.m_textOf = [this](int) {
        delete std::exchange(m_list, nullptr);
        return std::wstring();
    };
    m_list->SortByColumn(0, true, true, nullptr);
    EXPECT_EQ(m_list, nullptr);
    EXPECT_TRUE(RememberedList::EndedUntouched());
}

TEST_F(ListSort, AComparisonThatEndsTheListEndsTheSort)
{
    FillNumbers({4, 3, 2, 1});
    m_list.SortByColumn(1, true, true, [](long long, long long, long long list) {
        auto * const control = reinterpret_cast<CXListCtrl *>(static_cast<LONG_PTR>(list));
        if (control->m_hWnd != nullptr)
            control->DestroyWindow();
        return 1;
    });
    EXPECT_EQ(m_list.m_hWnd, nullptr);
}

// --- What moves with the rows ---

TEST_F(ListSort, CellsWordsAndKeysMoveWithTheirRows)
{
    FillNumbers({3, 1, 2});
    int const key[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    int word = 0;
    m_list.SetItemIdx8(0, key);
    m_list.SetItemDataPtr(0, &word);
    m_list.SetCheckbox(0, 2, XLC_CHECKED);
    m_list.SetItemToolTipText(0, 1, L"tip");
    m_list.SetBold(1, 0, true);
    m_list.SortByColumn(1, true, false, nullptr);
    int found[8] = {};
    EXPECT_TRUE(m_list.GetItemIdx8(2, found));
    EXPECT_TRUE(std::equal(key, key + 8, found));
    EXPECT_EQ(m_list.GetItemDataPtr(2), &word);
    EXPECT_EQ(m_list.GetCheckbox(2, 2), XLC_CHECKED);
    EXPECT_EQ(m_list.GetCheckbox(0, 2), XLC_NONE);
    EXPECT_EQ(m_list.GetItemToolTipText(2, 1), L"tip");
    EXPECT_TRUE(m_list.GetBold(0, 0));
    EXPECT_FALSE(m_list.GetBold(1, 0));
    EXPECT_EQ(m_list.FindDataItemPtr(&word), 2);
}

TEST_F(ListSort, SelectionFocusAndNativeChecksMoveWithTheirRows)
{
    FillNumbers({3, 1, 2, 5, 4});
    m_list.SetWithCheckboxes();
    m_list.SetCheck(3, TRUE);
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(4, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    auto const state = [this](auto && has) {
        std::vector<int> numbers;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
        {
            if (has(row))
                numbers.push_back(m_list.GetItemData(row));
        }
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    };
    for (bool const ascending : {true, false, true})
    {
        m_list.SortByColumn(1, ascending, false, nullptr);
        EXPECT_EQ(state([this](int row) { return m_list.IsSelected(row); }), (std::vector<int>{0, 4}));
        EXPECT_EQ(state([this](int row) { return m_list.IsFocused(row); }), std::vector<int>{4});
        EXPECT_EQ(state([this](int row) { return m_list.GetCheck(row) != 0; }), std::vector<int>{3});
        EXPECT_EQ(m_list.GetSelectedCount(), 2U);
        EXPECT_EQ(m_list.GetNextItem(-1, LVNI_FOCUSED), ascending ? 3 : 1);
        EXPECT_EQ(m_list.GetCurSel(-1), ascending ? 2 : 1);
    }
}

TEST_F(ListSort, ImagesAndIndentsMoveWithTheirRows)
{
    FillNumbers({2, 1});
    LVITEMW item{};
    item.mask = LVIF_IMAGE | LVIF_INDENT;
    item.iImage = 7;
    item.iIndent = 2;
    ASSERT_TRUE(m_list.CListCtrl::SetItem(&item));
    m_list.SortByColumn(1, true, false, nullptr);
    item.iItem = 1;
    item.iImage = 0;
    item.iIndent = 0;
    ASSERT_TRUE(m_list.CListCtrl::GetItem(&item));
    EXPECT_EQ(item.iImage, 7);
    EXPECT_EQ(item.iIndent, 2);
}

TEST_F(ListSort, TheRowAskedForLastIsNotMistakenForAnother)
{
    FillNumbers({3, 1, 2});
    EXPECT_EQ(m_list.GetItemData(0), 0);
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(m_list.GetItemData(0), 1);
    EXPECT_EQ(m_list.GetRowItemData(0, 1)->intValue, 1);
}

TEST_F(ListSort, RowsWithoutCellsTakePartAndStayWithoutCells)
{
    // A missing cell equals every other one, so a host's comparison tells where these rows go: by their texts.
    m_host.Fill(2, 2);
    m_list.SetItemText(0, 0, L"c");
    m_list.SetItemText(1, 0, L"a");
    m_list.SetItemData(0, 100);
    m_list.SetItemData(1, 101);
    m_list.InsertForeignItem(0, L"d");
    m_list.InsertForeignItem(3, L"b");
    m_list.InsertForeignItem(4, L"e");
    m_list.SortByColumn(0, true, false, [](long long a, long long b, long long list) {
        auto * const control = reinterpret_cast<CXListCtrl *>(static_cast<LONG_PTR>(list));
        return control->GetItemText(static_cast<int>(a), 0).Compare(control->GetItemText(static_cast<int>(b), 0));
    });
    EXPECT_EQ(m_list.Texts(0), (Strings{L"a", L"b", L"c", L"d", L"e"}));
    for (int const row : {1, 3, 4})
    {
        EXPECT_EQ(m_list.Param(row), 0) << row;
        EXPECT_EQ(m_list.GetRowData(row), nullptr) << row;
    }
    EXPECT_EQ(m_list.GetItemData(0), 101);
    EXPECT_EQ(m_list.GetItemData(2), 100);
    // By the list's own comparison they equal every row.
    m_list.SortByColumn(0, false, false, nullptr);
    EXPECT_EQ(m_list.GetItemCount(), 5);
    EXPECT_EQ(m_list.FindDataItem(101LL) >= 0, true);
}

TEST_F(ListSort, AColumnYoungerThanItsRowsHasNothingToSort)
{
    FillNumbers({3, 1, 2});
    int const late = m_list.AddColumn(L"late", LVCFMT_LEFT, 30);
    ASSERT_EQ(late, 3);
    // Only the row added now has a cell there, as the texts show.
    m_list.AddItem(L"new", nullptr, 3);
    m_list.SetItemText(3, late, L"a");
    m_list.SortByColumn(late, true, true, nullptr);
    EXPECT_EQ(Order(), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(m_list.GetHeaderCheckedState(late), XHC_SORT_ASCENDING);
}

TEST_F(ListSort, IsRightForRandomColumns)
{
    m_host.Fill(3, 0);
    std::mt19937 random(5);
    for (int round = 0; round < 30; ++round)
    {
        m_list.DeleteAllItems();
        int const rows = static_cast<int>(random() % 60);
        std::vector<int> numbers;
        std::vector<std::wstring> texts;
        for (int row = 0; row < rows; ++row)
        {
            numbers.push_back(static_cast<int>(random() % 20) - 10);
            texts.push_back(std::wstring(1 + random() % 3, static_cast<wchar_t>(L'A' + random() % 40)));
            m_list.AddItem(texts.back().c_str(), nullptr, row);
            m_list.SetItemText(row, 1, numbers.back());
        }
        bool const ascending = random() % 2 == 0;
        int const col = static_cast<int>(random() % 2);
        std::vector<int> expected;
        for (int row = 0; row < rows; ++row)
            expected.push_back(row);
        std::stable_sort(expected.begin(), expected.end(), [&](int a, int b) {
            auto const first = static_cast<std::size_t>(ascending ? a : b);
            auto const second = static_cast<std::size_t>(ascending ? b : a);
            return col == 0 ? texts[first] < texts[second] : numbers[first] < numbers[second];
        });
        m_list.SortByColumn(col, ascending, false, nullptr);
        ASSERT_EQ(Order(), expected) << "round " << round;
    }
}

TEST_F(ListSort, RepaintsTheList)
{
    FillNumbers({3, 1, 2});
    m_list.UpdateWindow();
    m_list.TakeUpdateRect();
    m_list.SortByColumn(1, true, false, nullptr);
    CRect const first = m_list.TakeUpdateRect();
    EXPECT_FALSE(first.IsRectEmpty());
}

TEST_F(ListSort, RowsInOrderAlreadyGetTheMarkAndStay)
{
    FillNumbers({1, 2, 2, 3});
    m_list.SortByColumn(1, true, true, nullptr);
    EXPECT_EQ(Marks(), (std::vector<int>{0, 5, 0}));
    EXPECT_EQ(Order(), (std::vector<int>{0, 1, 2, 3}));
    m_list.SetHeaderRemoveAllMarks();
    m_list.SortByColumn(1, false, true, [](long long a, long long b, long long) { return static_cast<int>(a - b); });
    EXPECT_EQ(Marks(), (std::vector<int>{0, 6, 0}));
    EXPECT_EQ(Order(), (std::vector<int>{0, 1, 2, 3}));
}

TEST_F(ListSort, AParameterWordThatIsNoRowIsLeftAlone)
{
    FillNumbers({3, 1, 2});
    m_list.SetRedraw(FALSE);
    constexpr LPARAM alien = 16;
    m_list.CListCtrl::InsertItem(LVIF_TEXT | LVIF_PARAM, 3, L"alien", 0, 0, 0, alien);
    m_list.SortByColumn(1, true, false, nullptr);
    m_list.SortByColumn(0, true, false, nullptr);
    m_list.SortByColumn(1, true, false, [](long long a, long long b, long long) { return static_cast<int>(b - a); });
    int aliens = 0;
    for (int row = m_list.GetItemCount() - 1; row >= 0; --row)
    {
        if (m_list.Param(row) != alien)
            continue;
        ++aliens;
        m_list.CListCtrl::SetItemData(row, 0);
    }
    EXPECT_EQ(aliens, 1);
    EXPECT_EQ(m_list.GetItemCount(), 4);
    for (long long number = 0; number < 3; ++number)
        EXPECT_GE(m_list.FindDataItem(number), 0) << number;
}

TEST_F(ListSort, AsksTheNativeListForTextsAlone)
{
    CountingList list;
    ASSERT_TRUE(list.Create(TestList::default_style, CRect(0, 0, 100, 100), &m_host.parent, 8));
    tests::WindowCloser const closer(list);
    list.SetRedraw(FALSE);
    list.AddColumns(2);
    constexpr int rows = 500;
    for (int row = 0; row < rows; ++row)
        list.SetItemText(list.AddItem(std::to_wstring(row * 7 % rows).c_str(), nullptr, row), 1, row * 11 % rows);
    list.m_asked = 0;
    list.SortByColumn(1, true, false, nullptr);
    EXPECT_LT(list.m_asked, 10);
    list.m_asked = 0;
    list.SortByColumn(0, true, false, nullptr);
    EXPECT_LT(list.m_asked, rows + 10);
    EXPECT_GE(list.m_asked, rows);
    EXPECT_EQ(list.GetItemText(1, 0), L"1");
    EXPECT_EQ(list.GetItemText(2, 0), L"10");
}
} // namespace
