// Dynamic menu commands and their accelerators, without a window system.

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <random>
#include <set>
#include <vector>

#include "windows/MenuRegistry.h"

using menu_registry::Add;
using menu_registry::range_t;
using menu_registry::RemoveElement;

namespace
{
struct Accelerator
{
    std::uint8_t fVirt = 0;
    std::uint16_t key = 0;
    std::uint16_t cmd = 0;

    bool operator==(Accelerator const &) const = default;
};

struct Registry
{
    menu_registry::menus_t m_menus;
    menu_registry::elements_t m_elements;
    range_t m_range{100, 103};

    int Register(unsigned int parent = 7, wchar_t const * text = L"Text")
    {
        return Add(m_menus, m_elements, menu_registry::NextFreeId(m_menus, m_range), parent, text, [] {});
    }
    bool Release(int id)
    {
        auto const entry = m_menus.find(static_cast<unsigned int>(id));
        if (entry == m_menus.end())
            return false;
        RemoveElement(m_elements, entry);
        m_menus.erase(entry);
        return true;
    }
};

void Append(std::vector<Accelerator> & table, std::uint8_t flags, std::uint16_t key, int id)
{
    table.emplace_back();
    menu_registry::AppendAccelerator(table.data(), static_cast<int>(table.size()) - 1, flags, key, id);
}

/// The table after a command was taken out.
std::vector<Accelerator> Without(std::vector<Accelerator> table, int id)
{
    int const count = menu_registry::RemoveAccelerator(table.data(), static_cast<int>(table.size()), id);
    EXPECT_EQ(count, static_cast<int>(table.size()) - 1);
    table.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return table;
}
} // namespace

TEST(MenuRegistry, AnEmptyRangeRefuses)
{
    Registry registry;
    registry.m_range = {0, 0};
    EXPECT_EQ(registry.Register(), -1);
    EXPECT_TRUE(registry.m_menus.empty());
    EXPECT_TRUE(registry.m_elements.empty());
}

TEST(MenuRegistry, ARangeThatRunsBackwardsRefuses)
{
    Registry registry;
    registry.m_range = {103, 100};
    EXPECT_EQ(registry.Register(), -1);
}

TEST(MenuRegistry, GivesTheLowestFreeIdentifierOfItsRange)
{
    Registry registry;
    EXPECT_EQ(registry.Register(), 100);
    EXPECT_EQ(registry.Register(), 101);
    EXPECT_EQ(registry.Register(), 102);
    EXPECT_EQ(registry.Register(), -1);
    EXPECT_TRUE(registry.Release(101));
    EXPECT_EQ(registry.Register(), 101);
    EXPECT_EQ(registry.Register(), -1);
}

TEST(MenuRegistry, EntersCommandsBelowTheirParent)
{
    Registry registry;
    registry.m_range = {100, 200};
    registry.Register(7, L"a");
    registry.Register(3, L"b");
    registry.Register(7, L"c");
    ASSERT_EQ(registry.m_elements.size(), 3u);
    auto const [first, end] = registry.m_elements.equal_range(7);
    std::vector<std::wstring> texts;
    for (auto element = first; element != end; ++element)
        texts.push_back(element->second->second.second);
    EXPECT_EQ(texts, (std::vector<std::wstring>{L"a", L"c"}));
}

TEST(MenuRegistry, ReleasesAnIdentifierOnce)
{
    Registry registry;
    registry.Register();
    EXPECT_FALSE(registry.Release(99));
    EXPECT_TRUE(registry.Release(100));
    EXPECT_FALSE(registry.Release(100));
    EXPECT_TRUE(registry.m_elements.empty());
}

TEST(MenuRegistry, AnIdentifierBelowTheRangeHidesThatTheFirstIsTaken)
{
    Registry registry;
    registry.Register();
    registry.Register();
    registry.m_range = {101, 110};
    EXPECT_EQ(registry.Register(), -1);
    EXPECT_EQ(registry.m_menus.size(), 2u);
    EXPECT_EQ(registry.m_elements.size(), 2u);
}

TEST(MenuRegistry, IsTheOneOfAPlainModelInARandomWalk)
{
    for (unsigned int seed = 1; seed <= 100; ++seed)
    {
        std::mt19937 random(seed);
        auto const below = [&](unsigned int end) { return random() % end; };
        Registry registry;
        registry.m_range = {100, 100 + below(40)};
        std::map<int, unsigned int> model; // identifier to parent
        for (int step = 0; step < 400; ++step)
        {
            if (below(5) < 3)
            {
                unsigned int const parent = below(4);
                std::optional<int> expected;
                for (int id = 100; id < static_cast<int>(registry.m_range.second) && !expected; ++id)
                {
                    if (model.count(id) == 0)
                        expected = id;
                }
                ASSERT_EQ(registry.Register(parent), expected.value_or(-1)) << "seed " << seed;
                if (expected)
                    model.emplace(*expected, parent);
            }
            else
            {
                int const id = 98 + static_cast<int>(below(45));
                ASSERT_EQ(registry.Release(id), model.erase(id) != 0) << "seed " << seed;
            }
            ASSERT_EQ(registry.m_menus.size(), model.size());
            std::set<std::pair<unsigned int, int>> elements;
            for (auto const & [parent, entry] : registry.m_elements)
                elements.emplace(parent, static_cast<int>(entry->first));
            std::set<std::pair<unsigned int, int>> expected;
            for (auto const & [id, parent] : model)
                expected.emplace(parent, id);
            ASSERT_EQ(elements, expected) << "seed " << seed;
        }
    }
}

TEST(AcceleratorTable, GetsNewOnesAtItsEnd)
{
    std::vector<Accelerator> table{{1, 2, 3}};
    Append(table, 9, 'K', 10742);
    EXPECT_EQ(table, (std::vector<Accelerator>{{1, 2, 3}, {9, 'K', 10742}}));
}

TEST(AcceleratorTable, LosesTheCommandsOwnAccelerator)
{
    std::vector<Accelerator> const table{{0, 1, 11}, {0, 2, 12}, {0, 3, 13}};
    EXPECT_EQ(Without(table, 11), (std::vector<Accelerator>{{0, 2, 12}, {0, 3, 13}}));
    EXPECT_EQ(Without(table, 12), (std::vector<Accelerator>{{0, 1, 11}, {0, 3, 13}}));
    EXPECT_EQ(Without(table, 13), (std::vector<Accelerator>{{0, 1, 11}, {0, 2, 12}}));
}

TEST(AcceleratorTable, LosesTheFirstOfACommandThatHasTwo)
{
    std::vector<Accelerator> const table{{0, 1, 11}, {0, 2, 12}, {0, 3, 11}};
    EXPECT_EQ(Without(table, 11), (std::vector<Accelerator>{{0, 2, 12}, {0, 3, 11}}));
}

TEST(AcceleratorTable, LosesItsLastWhereTheCommandHasNone)
{
    EXPECT_EQ(Without({{0, 1, 11}, {0, 2, 12}}, 99), (std::vector<Accelerator>{{0, 1, 11}}));
    EXPECT_EQ(Without({{0, 1, 11}}, 99), std::vector<Accelerator>());
    // A command's identifier is wider than the table's.
    EXPECT_EQ(Without({{0, 1, 11}, {0, 2, 12}}, 0x10000 + 11), (std::vector<Accelerator>{{0, 1, 11}}));
}

TEST(AcceleratorTable, ThatIsEmptyBecomesLessThanThat)
{
    std::vector<Accelerator> const none;
    EXPECT_TRUE(Without(none, 5).empty());
}

TEST(AcceleratorTable, IsTheOneOfAPlainModelInARandomWalk)
{
    std::mt19937 random(5);
    auto const below = [&](unsigned int end) { return random() % end; };
    std::vector<Accelerator> table;
    std::vector<Accelerator> model;
    for (int step = 0; step < 5000; ++step)
    {
        int const id = static_cast<int>(below(12));
        if (below(2) != 0 && table.size() < 20)
        {
            auto const flags = static_cast<std::uint8_t>(below(256));
            auto const key = static_cast<std::uint16_t>(below(0x10000));
            Append(table, flags, key, id);
            model.push_back({flags, key, static_cast<std::uint16_t>(id)});
        }
        else if (!table.empty())
        {
            table = Without(table, id);
            bool removed = false;
            std::vector<Accelerator> rest;
            for (Accelerator const & entry : model)
            {
                if (!removed && entry.cmd == id)
                    removed = true;
                else
                    rest.push_back(entry);
            }
            if (!removed)
                rest.pop_back();
            model = rest;
        }
        ASSERT_EQ(table, model) << "step " << step;
    }
}
