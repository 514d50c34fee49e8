// What the id-name multiselect does with items, selection and ticks, on rows in memory.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "controls/IdNameSelection.h"

namespace
{
using id_name::Ids;
using id_name::Map;

class MemoryRows : public id_name::Rows
{
public:
    struct Row
    {
        CString text;
        int id;
        bool ticked;
    };
    std::vector<Row> rows;

    int Count() const override { return static_cast<int>(rows.size()); }
    void Clear() override { rows.clear(); }
    void Insert(int place, wchar_t const * text, int id) override
    {
        rows.insert(rows.begin() + place, {CString(text), id, false});
    }
    CString Text(int row) const override { return At(row).text.Left(id_name::longest_row_text); }
    int Id(int row) const override { return At(row).id; }
    bool IsTicked(int row) const override { return At(row).ticked; }
    void SetTicked(int row, bool ticked) override { rows[static_cast<std::size_t>(row)].ticked = ticked; }

    std::vector<int> Order() const
    {
        std::vector<int> ids;
        for (Row const & row : rows)
            ids.push_back(row.id);
        return ids;
    }
    std::vector<CString> Texts() const
    {
        std::vector<CString> texts;
        for (Row const & row : rows)
            texts.push_back(row.text);
        return texts;
    }

private:
    Row const & At(int row) const { return rows[static_cast<std::size_t>(row)]; }
};

Map const letters{{1, L"d"}, {2, L"b"}, {3, L"c"}, {4, L"a"}};
using Numbers = std::vector<int>;
using Names = std::vector<CString>;

MemoryRows Filled(Map const & map, Ids const & selection, id_name::Order const & order)
{
    MemoryRows rows;
    id_name::Fill(rows, map, selection, order, L"(none)");
    id_name::TickSelected(rows, selection);
    return rows;
}

CString Name(int id)
{
    static Map const names{{1, L"A"}, {2, L"B"}, {3, L"CCCC"}};
    auto const found = names.find(id);
    return found != names.end() ? found->second : CString();
}

/// Ten pixels a character.
int Width(CString const & text)
{
    return 10 * text.GetLength();
}
} // namespace

TEST(MultiselectRows, AnEmptyMapGivesOneRowWhoseTickMeansNothing)
{
    MemoryRows rows = Filled({}, {}, {});
    ASSERT_EQ(rows.Count(), 1);
    EXPECT_EQ(rows.rows[0].text, L"(none)");
    EXPECT_EQ(rows.rows[0].id, -1);
    rows.SetTicked(0, true);
    EXPECT_EQ(id_name::TickedIds(rows, true), Ids{});
}

TEST(MultiselectRows, SelectedItemsComeFirstInTheOrderOfTheirIds)
{
    EXPECT_EQ(Filled(letters, {3, 2}, {true, false, false}).Order(), (Numbers{2, 3, 1, 4}));
    EXPECT_EQ(Filled(letters, {3, 2}, {false, false, false}).Order(), (Numbers{1, 2, 3, 4}));
}

TEST(MultiselectRows, WithGroupsAndSortingEachGroupIsSortedForItself)
{
    EXPECT_EQ(Filled(letters, {1, 3}, {true, true, false}).Texts(), (Names{L"c", L"d", L"a", L"b"}));
    EXPECT_EQ(Filled(letters, {1, 3}, {false, true, false}).Texts(), (Names{L"a", L"b", L"c", L"d"}));
}

TEST(MultiselectRows, TheAllSentinelAloneKeepsPlainOrderAndTicksEverything)
{
    MemoryRows const rows = Filled(letters, {-1}, {true, false, false});
    EXPECT_EQ(rows.Order(), (Numbers{1, 2, 3, 4}));
    EXPECT_EQ(id_name::TickedIds(rows, false), (Ids{-1, 1, 2, 3, 4}));
}

TEST(MultiselectRows, ShownIdsKeepTheOrderOfIdsWhateverSortingSays)
{
    EXPECT_EQ(Filled(letters, {}, {true, true, true}).Texts(), (Names{L"1: d", L"2: b", L"3: c", L"4: a"}));
    EXPECT_EQ(Filled({{-5, L"x"}}, {}, {true, true, true}).Texts(), (Names{L"-5: x"}));
}

TEST(MultiselectRows, OneRowUntickedGivesExactlyTheTickedIds)
{
    MemoryRows rows = Filled(letters, {-1}, {});
    rows.SetTicked(1, false);
    EXPECT_EQ(id_name::TickedIds(rows, false), (Ids{1, 3, 4}));
    for (int row = 0; row < rows.Count(); ++row)
        rows.SetTicked(row, false);
    EXPECT_EQ(id_name::TickedIds(rows, false), Ids{});
}

TEST(MultiselectRows, NamesAreOrderedByTheirCharactersAndEqualOnesByTheirIds)
{
    Map const map{{1, L"ä"}, {2, L"z"}, {3, L"Z"}, {4, L"z"}, {5, L""}, {6, L"a"}};
    EXPECT_EQ(Filled(map, {}, {true, true, false}).Order(), (Numbers{5, 3, 6, 2, 4, 1}));
}

TEST(MultiselectRows, EnteringOneAfterTheOtherGivesTheOrderOfAFill)
{
    std::mt19937 random(5);
    CString const prefix(L'x', 498);
    for (int round = 0; round < 200; ++round)
    {
        Map map;
        Ids selection;
        for (int i = 0; i < 30; ++i)
        {
            CString name(static_cast<wchar_t>(L'a' + random() % 4), static_cast<int>(random() % 4));
            // Beyond the limit of what is looked at.
            map[static_cast<int>(random() % 100)] = random() % 3 == 0 ? prefix + name : name;
            selection.insert(static_cast<int>(random() % 100));
        }
        id_name::Order const order{round % 2 == 0, round % 3 != 0, round % 7 == 0};
        MemoryRows one;
        int startOfGroup = 0;
        for (bool const selected : {true, false})
        {
            for (auto const & [id, name] : map)
            {
                if ((order.grouped && selection.contains(id)) == selected)
                    id_name::Enter(one, id, name, startOfGroup, order);
            }
            startOfGroup = one.Count();
        }
        EXPECT_EQ(Filled(map, selection, order).Order(), one.Order()) << "round " << round;
    }
}

TEST(MultiselectRows, TenThousandIdsAreReadBackExactly)
{
    std::mt19937 random(17);
    for (int round = 0; round < 8; ++round)
    {
        Map map;
        while (map.size() < 10000)
        {
            int const id = static_cast<int>(random() % 1000000);
            map[id].Format(L"name %d", static_cast<int>(random() % 5000));
        }
        Ids selection;
        for (std::pair<int const, CString> const & item : map)
        {
            if (random() % 2 == 0)
                selection.insert(item.first);
        }
        id_name::Order const order{(round & 1) != 0, (round & 2) != 0, (round & 4) != 0};
        MemoryRows const rows = Filled(map, selection, order);
        EXPECT_EQ(rows.Count(), 10000);
        EXPECT_EQ(id_name::TickedIds(rows, false), selection);
        EXPECT_EQ(id_name::TickedIds(Filled(map, {-1}, order), false), id_name::EveryId(map));
        EXPECT_EQ(id_name::TickedIds(Filled(map, {}, order), false), Ids{});
    }
}

TEST(MultiselectRows, ALongNameBehindAnIdIsCut)
{
    CString const name(L'n', 600);
    EXPECT_EQ(Filled({{12, name}}, {}, {true, false, true}).rows[0].text.GetLength(), 499);
    EXPECT_EQ(Filled({{12, name}}, {}, {true, false, false}).rows[0].text.GetLength(), 600);
}

TEST(JoinedNames, AreJoinedAndCutByWidth)
{
    // "A, " and "B" are 40 pixels together, and the room beside the names is 50.
    EXPECT_EQ(id_name::JoinedNames({1, 2}, Name, Width, 90), L"A, B");
    EXPECT_EQ(id_name::JoinedNames({1, 2}, Name, Width, 89), L"A, \u2026");
    EXPECT_EQ(id_name::JoinedNames({1, 2, 3}, Name, Width, 149), L"A, B, \u2026");
    EXPECT_EQ(id_name::JoinedNames({1, 2, 3}, Name, Width, 150), L"A, B, CCCC");
}

TEST(JoinedNames, TheFirstNameIsTakenHoweverLong)
{
    EXPECT_EQ(id_name::JoinedNames({3}, Name, Width, 0), L"CCCC");
}

TEST(JoinedNames, AnUnknownIdHasAnEmptyName)
{
    EXPECT_EQ(id_name::JoinedNames({99}, Name, Width, 500), L"");
    EXPECT_EQ(id_name::JoinedNames({1, 99}, Name, Width, 500), L"A, ");
    EXPECT_EQ(id_name::JoinedNames({-7, 1}, Name, Width, 500), L"A") << "nothing stands ahead of the comma";
}

TEST(JoinedNames, NoMoreNamesAreLookedAtThanFit)
{
    Ids ids;
    for (int id = 0; id < 5000; ++id)
        ids.insert(id);
    int asked = 0;
    id_name::JoinedNames(
        ids,
        [&](int) {
            ++asked;
            return CString(L"name");
        },
        Width, 300);
    EXPECT_LE(asked, 10);
}

TEST(MultiselectPlaces, WithoutOkTheTwoButtonsShareTheStripInQuarters)
{
    id_name::Places const places = id_name::PlacesIn(CRect(1, 1, 102, 81), false);
    EXPECT_EQ(places.list, CRect(1, 1, 102, 59));
    EXPECT_EQ(places.selectAll, CRect(1, 60, 51, 81));
    EXPECT_EQ(places.selectNone, CRect(51, 60, 102, 81));
    EXPECT_EQ(places.cancel, CRect(52, 60, 77, 81));
    EXPECT_EQ(places.ok, CRect(77, 60, 102, 81));
}

TEST(MultiselectPlaces, WithOkTheStripIsInSixths)
{
    id_name::Places const places = id_name::PlacesIn(CRect(0, 0, 100, 70), true);
    EXPECT_EQ(places.list, CRect(0, 0, 100, 48));
    EXPECT_EQ(places.selectAll, CRect(0, 49, 32, 70));
    EXPECT_EQ(places.selectNone, CRect(32, 49, 68, 70));
    EXPECT_EQ(places.cancel, CRect(68, 49, 84, 70));
    EXPECT_EQ(places.ok, CRect(84, 49, 100, 70));
}
