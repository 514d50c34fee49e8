// How cells compare when a list is sorted, and the order that comparisons give.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "list/XListSort.h"

namespace
{
constexpr float nan_value = std::numeric_limits<float>::quiet_NaN();

XLISTCTRLDATA IntCell(int value, unsigned int properties = XLP_ENABLED)
{
    XLISTCTRLDATA cell;
    cell.properties = properties;
    cell.valueType = XLV_INT;
    cell.intValue = value;
    return cell;
}

XLISTCTRLDATA FloatCell(float value)
{
    XLISTCTRLDATA cell;
    cell.valueType = XLV_FLOAT;
    cell.floatValue = value;
    return cell;
}

XLISTCTRLDATA DateCell(__time64_t value)
{
    XLISTCTRLDATA cell;
    cell.valueType = XLV_DATETIME;
    cell.timeValue = CTime(value);
    return cell;
}

XLISTCTRLDATA ProgressCell(int value)
{
    XLISTCTRLDATA cell;
    cell.MakeProgress();
    cell.progressValue = value;
    return cell;
}

XLISTCTRLDATA TextCell(unsigned int properties = XLP_ENABLED)
{
    XLISTCTRLDATA cell;
    cell.properties = properties;
    return cell;
}

int NoTexts()
{
    ADD_FAILURE() << "texts were asked for";
    return 0;
}

/// The results in both directions, without any text.
std::pair<int, int> Both(XLISTCTRLDATA const & a, XLISTCTRLDATA const & b)
{
    return {CompareRows(ListSortKey(&a), ListSortKey(&b), true, &NoTexts),
            CompareRows(ListSortKey(&a), ListSortKey(&b), false, &NoTexts)};
}

using Directions = std::pair<int, int>;

TEST(ListSortCells, AMissingCellEqualsEveryOther)
{
    XLISTCTRLDATA const last = IntCell(1, XLP_ENABLED | XLP_SORT_LAST);
    EXPECT_EQ(CompareRows(ListSortKey(nullptr), ListSortKey(&last), true, &NoTexts), 0);
    EXPECT_EQ(CompareRows(ListSortKey(&last), ListSortKey(nullptr), true, &NoTexts), 0);
    EXPECT_EQ(CompareRows(ListSortKey(nullptr), ListSortKey(nullptr), false, &NoTexts), 0);
}

TEST(ListSortCells, RowsThatSortLastStayBehindInBothDirections)
{
    XLISTCTRLDATA const last = IntCell(1, XLP_ENABLED | XLP_SORT_LAST);
    XLISTCTRLDATA const otherLast = IntCell(2, XLP_ENABLED | XLP_SORT_LAST);
    XLISTCTRLDATA const plain = IntCell(5);
    EXPECT_EQ(Both(last, plain), Directions(1, 1));
    EXPECT_EQ(Both(plain, last), Directions(-1, -1));
    EXPECT_EQ(Both(last, otherLast), Directions(0, 0));
}

TEST(ListSortCells, RowsThatSortFirstStayAheadInBothDirections)
{
    XLISTCTRLDATA const first = IntCell(9, XLP_ENABLED | XLP_SORT_FIRST);
    XLISTCTRLDATA const otherFirst = IntCell(2, XLP_ENABLED | XLP_SORT_FIRST);
    XLISTCTRLDATA const plain = IntCell(5);
    EXPECT_EQ(Both(first, plain), Directions(-1, -1));
    EXPECT_EQ(Both(plain, first), Directions(1, 1));
    EXPECT_EQ(Both(first, otherFirst), Directions(0, 0));
}

TEST(ListSortCells, LastGoesBeforeFirstWhereARowHasBoth)
{
    XLISTCTRLDATA const both = IntCell(1, XLP_ENABLED | XLP_SORT_FIRST | XLP_SORT_LAST);
    XLISTCTRLDATA const first = IntCell(1, XLP_ENABLED | XLP_SORT_FIRST);
    XLISTCTRLDATA const last = IntCell(1, XLP_ENABLED | XLP_SORT_LAST);
    EXPECT_EQ(Both(both, IntCell(0)), Directions(1, 1));
    EXPECT_EQ(Both(both, first), Directions(1, 1));
    EXPECT_EQ(Both(first, both), Directions(-1, -1));
    EXPECT_EQ(Both(both, last), Directions(0, 0));
    EXPECT_EQ(Both(first, last), Directions(-1, -1));
    EXPECT_EQ(Both(last, first), Directions(1, 1));
}

TEST(ListSortCells, WholeNumbersCompareWithTheirSign)
{
    EXPECT_EQ(Both(IntCell(-3), IntCell(2)), Directions(-1, 1));
    EXPECT_EQ(Both(IntCell(2), IntCell(-3)), Directions(1, -1));
    EXPECT_EQ(Both(IntCell(2), IntCell(2)), Directions(0, 0));
    int const least = std::numeric_limits<int>::min();
    int const greatest = std::numeric_limits<int>::max();
    EXPECT_EQ(Both(IntCell(least), IntCell(greatest)), Directions(-1, 1));
}

TEST(ListSortCells, FloatsCompareAndANaNEqualsEverything)
{
    EXPECT_EQ(Both(FloatCell(-0.5F), FloatCell(0.25F)), Directions(-1, 1));
    EXPECT_EQ(Both(FloatCell(0.25F), FloatCell(-0.5F)), Directions(1, -1));
    EXPECT_EQ(Both(FloatCell(0.0F), FloatCell(-0.0F)), Directions(0, 0));
    EXPECT_EQ(Both(FloatCell(nan_value), FloatCell(1)), Directions(0, 0));
    EXPECT_EQ(Both(FloatCell(1), FloatCell(nan_value)), Directions(0, 0));
    EXPECT_EQ(Both(FloatCell(nan_value), FloatCell(nan_value)), Directions(0, 0));
}

TEST(ListSortCells, DatesCompareWithTheirSign)
{
    EXPECT_EQ(Both(DateCell(-5), DateCell(3)), Directions(-1, 1));
    EXPECT_EQ(Both(DateCell(5'000'000'000), DateCell(4'999'999'999)), Directions(1, -1));
    EXPECT_EQ(Both(DateCell(7), DateCell(7)), Directions(0, 0));
}

TEST(ListSortCells, ProgressComparesPercentWhateverTheValueType)
{
    EXPECT_EQ(Both(ProgressCell(10), ProgressCell(90)), Directions(-1, 1));
    XLISTCTRLDATA numbered = ProgressCell(10);
    numbered.valueType = XLV_INT;
    numbered.intValue = 1000;
    EXPECT_EQ(Both(numbered, ProgressCell(90)), Directions(-1, 1));
    EXPECT_EQ(Both(ProgressCell(90), numbered), Directions(1, -1));
}

TEST(ListSortCells, AnUnknownValueTypeEqualsEverything)
{
    XLISTCTRLDATA unknown = IntCell(1);
    unknown.valueType = 4;
    EXPECT_EQ(Both(unknown, IntCell(2)), Directions(0, 0));
}

TEST(ListSortCells, TheFirstCellsKindDecidesHowBothAreRead)
{
    XLISTCTRLDATA text = TextCell();
    text.floatValue = 7.0F;
    EXPECT_EQ(Both(FloatCell(1.0F), text), Directions(-1, 1));
    // A text has no number, which then reads 0.
    EXPECT_EQ(Both(IntCell(5), TextCell()), Directions(1, -1));
    EXPECT_EQ(Both(IntCell(-5), TextCell()), Directions(-1, 1));
    // The other way round the texts decide.
    XLISTCTRLDATA const number = IntCell(5);
    XLISTCTRLDATA const cell = TextCell();
    EXPECT_EQ(CompareRows(ListSortKey(&cell), ListSortKey(&number), true, [] { return -1; }), -1);
}

TEST(ListSortCells, TextsGiveOneOrTheOtherDirection)
{
    XLISTCTRLDATA const a = TextCell();
    XLISTCTRLDATA const b = TextCell();
    for (int const lower : {-1, -7})
    {
        EXPECT_EQ(CompareRows(ListSortKey(&a), ListSortKey(&b), true, [lower] { return lower; }), -1);
        EXPECT_EQ(CompareRows(ListSortKey(&a), ListSortKey(&b), false, [lower] { return lower; }), 1);
        EXPECT_EQ(CompareRows(ListSortKey(&a), ListSortKey(&b), true, [lower] { return -lower; }), 1);
        EXPECT_EQ(CompareRows(ListSortKey(&a), ListSortKey(&b), false, [lower] { return -lower; }), -1);
    }
    EXPECT_EQ(CompareRows(ListSortKey(&a), ListSortKey(&b), true, [] { return 0; }), 0);
    EXPECT_EQ(CompareRows(ListSortKey(&a), ListSortKey(&b), false, [] { return 0; }), 0);
}

/// The rules once more, one after the other, with nothing of the code under test.
int ExpectedComparison(XLISTCTRLDATA const & a, XLISTCTRLDATA const & b, int d, int texts)
{
    bool const lastA = (a.properties / 2048) % 2 == 1;
    bool const lastB = (b.properties / 2048) % 2 == 1;
    if (lastA)
        return lastB ? 0 : 1;
    if (lastB)
        return -1;
    bool const firstA = (a.properties / 4096) % 2 == 1;
    bool const firstB = (b.properties / 4096) % 2 == 1;
    if (firstA)
        return firstB ? 0 : -1;
    if (firstB)
        return 1;
    auto const sign = [](double difference) { return difference < 0 ? -1 : difference > 0 ? 1 : 0; };
    if ((a.properties / 8) % 2 == 1)
        return d * sign(static_cast<double>(a.progressValue) - b.progressValue);
    switch (a.valueType)
    {
    case 0:
        return d * sign(texts);
    case 1:
        return d * sign(static_cast<double>(a.intValue) - b.intValue);
    case 2:
        return d * sign(static_cast<double>(a.floatValue) - b.floatValue);
    case 3:
        return d * sign(static_cast<double>(a.timeValue.GetTime()) - static_cast<double>(b.timeValue.GetTime()));
    default:
        return 0;
    }
}

TEST(ListSortCells, FollowTheRulesForRandomCells)
{
    std::mt19937 random(20);
    auto const below = [&random](unsigned end) { return static_cast<int>(random() % end); };
    float const floats[] = {nan_value, -1, 0, 0.5F, std::numeric_limits<float>::infinity()};
    auto const cell = [&] {
        XLISTCTRLDATA made;
        made.properties = XLP_ENABLED;
        if (below(3) == 0)
            made.properties |= XLP_PROGRESS;
        if (below(4) == 0)
            made.properties |= XLP_SORT_LAST;
        if (below(4) == 0)
            made.properties |= XLP_SORT_FIRST;
        made.valueType = static_cast<unsigned int>(below(5));
        made.intValue = below(5) - 2;
        made.floatValue = floats[below(5)];
        made.timeValue = CTime(static_cast<__time64_t>(below(5)) - 2);
        made.progressValue = below(5);
        return made;
    };
    for (int i = 0; i < 20000; ++i)
    {
        XLISTCTRLDATA const a = cell();
        XLISTCTRLDATA const b = cell();
        int const texts = below(5) - 2;
        bool const ascending = below(2) == 0;
        ASSERT_EQ(CompareRows(ListSortKey(&a), ListSortKey(&b), ascending, [texts] { return texts; }),
                  ExpectedComparison(a, b, ascending ? 1 : -1, texts))
            << "case " << i;
    }
}

// --- The order ---

std::vector<int> OrderOf(std::vector<int> const & keys)
{
    return SortedOrder(static_cast<int>(keys.size()), [&keys](int a, int b) {
        return keys[static_cast<std::size_t>(a)] - keys[static_cast<std::size_t>(b)];
    });
}

TEST(ListSortOrder, OfNothingAndOfOneRow)
{
    int calls = 0;
    auto const count = [&calls](int, int) { return ++calls; };
    EXPECT_EQ(SortedOrder(0, count), std::vector<int>());
    EXPECT_EQ(SortedOrder(-1, count), std::vector<int>());
    EXPECT_EQ(SortedOrder(1, count), std::vector<int>{0});
    EXPECT_EQ(calls, 0);
}

TEST(ListSortOrder, NamesTheRowsByTheirIndicesBeforeTheSort)
{
    EXPECT_EQ(OrderOf({3, 1, 2}), (std::vector<int>{1, 2, 0}));
    EXPECT_EQ(OrderOf({1, 2, 3}), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(OrderOf({5, 4, 3, 2, 1}), (std::vector<int>{4, 3, 2, 1, 0}));
}

TEST(ListSortOrder, IsRightAndKeepsEqualRowsForEveryLength)
{
    std::mt19937 random(1);
    for (int length = 0; length < 200; ++length)
    {
        std::vector<int> keys;
        for (int i = 0; i < length; ++i)
            keys.push_back(static_cast<int>(random() % 20));
        std::vector<int> expected(keys.size());
        std::iota(expected.begin(), expected.end(), 0);
        std::stable_sort(expected.begin(), expected.end(), [&keys](int a, int b) {
            return keys[static_cast<std::size_t>(a)] < keys[static_cast<std::size_t>(b)];
        });
        ASSERT_EQ(OrderOf(keys), expected) << "length " << length;
    }
}

TEST(ListSortOrder, OfContradictoryComparisonsHasEveryRowOnce)
{
    std::mt19937 random(2);
    std::vector<std::function<int(int, int)>> const contradictory = {
        [](int, int) { return 1; },
        [](int, int) { return -1; },
        [&random](int, int) { return static_cast<int>(random() % 3) - 1; },
        // Each goes ahead of the next one, and the last one ahead of the first.
        [](int a, int b) { return (b - a + 30) % 3 - 1; },
    };
    for (auto const & compare : contradictory)
    {
        for (int const length : {2, 3, 10, 1000})
        {
            int calls = 0;
            std::vector<int> order = SortedOrder(length, [&](int a, int b) {
                EXPECT_TRUE(a >= 0 && a < length && b >= 0 && b < length && a != b);
                ++calls;
                return compare(a, b);
            });
            std::sort(order.begin(), order.end());
            std::vector<int> all(static_cast<std::size_t>(length));
            std::iota(all.begin(), all.end(), 0);
            EXPECT_EQ(order, all);
            EXPECT_LE(calls, length * (1 + static_cast<int>(std::ceil(std::log2(length)))));
        }
    }
}

/// So many comparisons does the order of these keys take.
int ComparisonsFor(std::vector<int> const & keys)
{
    int calls = 0;
    SortedOrder(static_cast<int>(keys.size()), [&](int a, int b) {
        ++calls;
        return keys[static_cast<std::size_t>(a)] - keys[static_cast<std::size_t>(b)];
    });
    return calls;
}

TEST(ListSortOrder, TakesOneLookAtRowsThatAreInOrderOrInTheOppositeOne)
{
    std::vector<int> keys(1000);
    std::iota(keys.begin(), keys.end(), 0);
    EXPECT_EQ(ComparisonsFor(keys), 999);
    std::vector<int> const opposite(keys.rbegin(), keys.rend());
    EXPECT_EQ(ComparisonsFor(opposite), 999);
    EXPECT_EQ(OrderOf(opposite), opposite);
    EXPECT_EQ(ComparisonsFor(std::vector<int>(1000, 7)), 999);
    // Two rows at the end of ordered ones.
    keys.insert(keys.end(), {500, 3});
    EXPECT_LT(ComparisonsFor(keys), 3 * 1000);
}

TEST(ListSortOrder, FallingRunsWithEqualRowsKeepTheirOrder)
{
    EXPECT_EQ(OrderOf({3, 2, 2, 1}), (std::vector<int>{3, 1, 2, 0}));
    EXPECT_EQ(OrderOf({2, 2, 1, 1}), (std::vector<int>{2, 3, 0, 1}));
    EXPECT_EQ(OrderOf({5, 5, 5}), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(OrderOf({4, 3, 3, 3, 2}), (std::vector<int>{4, 1, 2, 3, 0}));
}

TEST(ListSortOrder, IsRightForRunsOfEveryShape)
{
    std::mt19937 random(9);
    for (int round = 0; round < 2000; ++round)
    {
        std::vector<int> keys;
        int const runs = 1 + static_cast<int>(random() % 6);
        for (int run = 0; run < runs; ++run)
        {
            int key = static_cast<int>(random() % 30);
            int const step = static_cast<int>(random() % 5) - 2;
            for (int i = static_cast<int>(random() % 12); i >= 0; --i, key += step)
                keys.push_back(key);
        }
        std::vector<int> expected(keys.size());
        std::iota(expected.begin(), expected.end(), 0);
        std::stable_sort(expected.begin(), expected.end(), [&keys](int a, int b) {
            return keys[static_cast<std::size_t>(a)] < keys[static_cast<std::size_t>(b)];
        });
        ASSERT_EQ(OrderOf(keys), expected) << "round " << round;
    }
}

// --- Rows with marks ---

/// Rows of one column with these cells and texts.
class MarkedRows
{
public:
    void Add(XLISTCTRLDATA const & cell, std::wstring const & text = {})
    {
        XLISTCTRLROW * const row = m_pool.Take();
        row->Prepare(1);
        row->cells()[0] = cell;
        m_rows.push_back(row);
        m_texts.push_back(text);
    }
    /// A row that is younger than the column.
    void AddWithoutCell()
    {
        m_rows.push_back(m_pool.Take());
        m_texts.emplace_back();
    }
    /// How the marks compare each pair must be how the cells and texts do.
    void Check(bool ascending)
    {
        CListRowOrder order(0, ascending);
        for (XLISTCTRLROW * const row : m_rows)
            order.Add(*row);
        m_textsAsked = order.NeedsTexts();
        if (m_textsAsked)
        {
            for (std::size_t i = 0; i < m_rows.size(); ++i)
                order.AddText(*m_rows[i], m_texts[i]);
            order.EndTexts();
        }
        for (std::size_t a = 0; a < m_rows.size(); ++a)
        {
            for (std::size_t b = 0; b < m_rows.size(); ++b)
            {
                if (a == b)
                    continue;
                int const expected = m_rows[a]->cells() == nullptr || m_rows[b]->cells() == nullptr
                                         ? 0
                                         : ExpectedComparison(*m_rows[a]->cells(), *m_rows[b]->cells(),
                                                              ascending ? 1 : -1, m_texts[a].compare(m_texts[b]));
                ASSERT_EQ(order.Compare(*m_rows[a], *m_rows[b]), expected)
                    << a << " with " << b << (ascending ? " ascending" : " descending");
            }
        }
    }
    bool TextsAsked() const { return m_textsAsked; }

private:
    CXListRowPool m_pool{16};
    std::vector<XLISTCTRLROW *> m_rows;
    std::vector<std::wstring> m_texts;
    bool m_textsAsked = false;
};

TEST(ListSortMarks, CompareAsTheCellsDoForEveryKindOfColumn)
{
    std::mt19937 random(33);
    auto const below = [&random](unsigned end) { return static_cast<int>(random() % end); };
    float const infinity = std::numeric_limits<float>::infinity();
    float const floats[] = {-infinity, -1.5F, -0.0F, 0.0F, 1e-30F, 0.5F, infinity, nan_value};
    int const ints[] = {std::numeric_limits<int>::min(), -1, 0, 1, std::numeric_limits<int>::max()};
    __time64_t const times[] = {std::numeric_limits<__time64_t>::min(), -1, 0, 5'000'000'000,
                                std::numeric_limits<__time64_t>::max()};
    std::wstring const ends[] = {L"", L"a", L"ab", L"abcdefgh", L"abcdefgi", L"B", L"\u00e4", L"\ud7ff", L"\uffff"};
    for (int round = 0; round < 3000; ++round)
    {
        // One kind alone, or one of several for each row.
        int const only = below(8) - 2;
        bool const withNaN = below(4) == 0;
        std::wstring const common(static_cast<std::size_t>(below(8)), L'x');
        MarkedRows rows;
        for (int i = below(8); i >= 0; --i)
        {
            int const kind = only >= 0 ? only : below(6);
            XLISTCTRLDATA cell;
            if (kind == 5)
                cell.MakeProgress();
            cell.valueType = static_cast<unsigned int>(kind == 5 ? below(5) : kind);
            if (below(6) == 0)
                cell.properties |= XLP_SORT_LAST;
            if (below(6) == 0)
                cell.properties |= XLP_SORT_FIRST;
            cell.intValue = ints[below(5)];
            cell.floatValue = floats[below(withNaN ? 8 : 7)];
            cell.timeValue = CTime(times[below(5)]);
            cell.progressValue = below(3);
            if (below(40) == 0)
                rows.AddWithoutCell();
            rows.Add(cell, common + ends[below(9)]);
        }
        rows.Check(true);
        rows.Check(false);
        if (testing::Test::HasFatalFailure())
            FAIL() << "round " << round;
    }
}

TEST(ListSortMarks, TextsAreAskedForWhereTheyDecide)
{
    MarkedRows numbers;
    numbers.Add(IntCell(1));
    numbers.Add(IntCell(2));
    numbers.Check(true);
    EXPECT_FALSE(numbers.TextsAsked());
    MarkedRows one;
    one.Add(TextCell(), L"a");
    one.Add(TextCell(XLP_ENABLED | XLP_SORT_LAST), L"b");
    one.Check(true);
    EXPECT_FALSE(one.TextsAsked());
    one.Add(IntCell(1), L"c");
    one.Check(true);
    EXPECT_TRUE(one.TextsAsked());
}

TEST(ListSortMarks, ATextGivenTwiceForARowCountsOnce)
{
    CXListRowPool pool(2);
    XLISTCTRLROW * const a = pool.Take();
    XLISTCTRLROW * const b = pool.Take();
    CListRowOrder order(0, true);
    for (XLISTCTRLROW * const row : {a, b})
    {
        row->Prepare(1);
        order.Add(*row);
    }
    order.AddText(*a, L"xxb");
    order.AddText(*b, L"xxa");
    order.AddText(*a, L"xx");
    order.EndTexts();
    EXPECT_GT(order.Compare(*a, *b), 0);
    EXPECT_LT(order.Compare(*b, *a), 0);
}
} // namespace
