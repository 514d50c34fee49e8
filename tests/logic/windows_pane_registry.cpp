// Identifiers of a main frame's panes, on panes without windows.

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <set>

#include "windows/PaneRegistry.h"

namespace
{
constexpr unsigned int base = 10742;

struct Pane
{
    void * m_view = nullptr;
    void * View() const { return m_view; }
};

struct Frame
{
    std::map<unsigned int, Pane *> m_panes;
    Pane m_pool[pane_registry::max_panes];
    unsigned int m_base = base;

    int Register(Pane *& pane, int id) { return pane_registry::Register(m_panes, m_pool, m_base, pane, id); }
    int Register(int id)
    {
        Pane * pane = nullptr;
        return Register(pane, id);
    }
    void Assign(std::set<unsigned int> const & stored)
    {
        pane_registry::Assign(m_panes, m_pool, m_base, [&](unsigned int id) { return stored.count(id) != 0; });
    }
    long long ElementOf(unsigned int id) const { return m_panes.at(id) - m_pool; }
};
} // namespace

TEST(PaneIdentifiers, BeginAtTheBase)
{
    Frame frame;
    Pane * pane = nullptr;
    EXPECT_EQ(frame.Register(pane, -1), 10742);
    EXPECT_EQ(pane, &frame.m_pool[0]);
    EXPECT_EQ(frame.Register(pane, -1), 10743);
    EXPECT_EQ(pane, &frame.m_pool[1]);
}

TEST(PaneIdentifiers, OfAFreePaneAreGivenAgain)
{
    Frame frame;
    Pane * first = nullptr;
    frame.Register(first, -1);
    Pane * pane = nullptr;
    EXPECT_EQ(frame.Register(pane, 10742), 10742);
    EXPECT_EQ(pane, first);
    EXPECT_EQ(frame.m_panes.size(), 1u);
}

TEST(PaneIdentifiers, OfAPaneInUseAreReplacedByTheLowestFree)
{
    Frame frame;
    Pane * pane = nullptr;
    frame.Register(pane, -1);
    pane->m_view = pane;
    EXPECT_EQ(frame.Register(pane, 10742), 10743);
    EXPECT_EQ(pane, &frame.m_pool[1]);
}

TEST(PaneIdentifiers, ThatAreUnknownAreReplacedByTheLowestFree)
{
    Frame frame;
    EXPECT_EQ(frame.Register(10750), 10742);
    EXPECT_EQ(frame.Register(1), 10743);
}

TEST(PaneIdentifiers, TheHundredAndFirstIsRefused)
{
    Frame frame;
    for (int id = 10742; id < 10842; ++id)
        EXPECT_EQ(frame.Register(-1), id);
    Pane * pane = &frame.m_pool[3];
    EXPECT_EQ(frame.Register(pane, -1), -1);
    EXPECT_EQ(pane, &frame.m_pool[3]);
    // Also one that is there and free.
    EXPECT_EQ(frame.Register(pane, 10742), -1);
    EXPECT_EQ(frame.m_panes.size(), 100u);
}

TEST(PaneIdentifiers, WithStoredStateFillThePoolFromItsStart)
{
    Frame frame;
    frame.Assign({10745, 10750});
    ASSERT_EQ(frame.m_panes.size(), 2u);
    EXPECT_EQ(frame.ElementOf(10745), 0);
    EXPECT_EQ(frame.ElementOf(10750), 1);
}

TEST(PaneIdentifiers, OutsideTheRangeAreNotAssigned)
{
    Frame frame;
    frame.Assign({10741, 10742, 10841, 10842});
    ASSERT_EQ(frame.m_panes.size(), 2u);
    EXPECT_EQ(frame.ElementOf(10742), 0);
    EXPECT_EQ(frame.ElementOf(10841), 1);
}

TEST(PaneIdentifiers, ThatAreThereAlreadyKeepTheirElement)
{
    Frame frame;
    frame.Register(-1);
    frame.Register(-1);
    frame.Assign({10742, 10743, 10760});
    ASSERT_EQ(frame.m_panes.size(), 3u);
    EXPECT_EQ(frame.ElementOf(10742), 0);
    EXPECT_EQ(frame.ElementOf(10743), 1);
    EXPECT_EQ(frame.ElementOf(10760), 2);
}

TEST(PaneIdentifiers, OfAGapShareTheElementOfAnAssignedOne)
{
    Frame frame;
    frame.Assign({10745, 10750});
    Pane * pane = nullptr;
    EXPECT_EQ(frame.Register(pane, -1), 10742);
    EXPECT_EQ(pane, &frame.m_pool[0]);
    EXPECT_EQ(pane, frame.m_panes.at(10745));
}

TEST(PaneIdentifiers, StayInThePoolAtTheHighestBase)
{
    Frame frame;
    frame.m_base = 0xFFFFFFFF;
    Pane * pane = nullptr;
    frame.Register(pane, -1);
    EXPECT_EQ(pane, &frame.m_pool[0]);
    frame.Register(pane, -1);
    EXPECT_EQ(pane, &frame.m_pool[0]);
}

// Against a model that goes by sets and looks every identifier up.
TEST(PaneIdentifiers, AreThoseOfAPlainModelInARandomWalk)
{
    for (unsigned int seed = 1; seed <= 200; ++seed)
    {
        std::mt19937 random(seed);
        auto const below = [&](unsigned int end) { return random() % end; };
        auto const frame = std::make_unique<Frame>();
        std::map<unsigned int, unsigned int> model; // identifier to element
        std::set<unsigned int> used;                // elements with a view
        if (below(2) != 0)
        {
            std::set<unsigned int> stored;
            unsigned int const count = below(30);
            for (unsigned int i = 0; i < count; ++i)
                stored.insert(base - 5 + below(110));
            frame->Assign(stored);
            for (unsigned int id = base; id < base + 100; ++id)
            {
                if (stored.count(id) != 0)
                    model.emplace(id, static_cast<unsigned int>(model.size()));
            }
        }
        for (int step = 0; step < 300; ++step)
        {
            int const id = below(3) == 0 ? -1 : static_cast<int>(base - 3 + below(106));
            int expected = -1;
            if (model.size() < 100)
            {
                auto const known = id >= 0 ? model.find(static_cast<unsigned int>(id)) : model.end();
                if (known != model.end() && used.count(known->second) == 0)
                    expected = id;
                else
                {
                    unsigned int free = base;
                    while (model.count(free) != 0)
                        ++free;
                    model.emplace(free, free - base);
                    expected = static_cast<int>(free);
                }
            }
            Pane * pane = nullptr;
            ASSERT_EQ(frame->Register(pane, id), expected) << "seed " << seed << ", step " << step;
            if (expected < 0)
            {
                ASSERT_EQ(pane, nullptr);
                continue;
            }
            unsigned int const element = model.at(static_cast<unsigned int>(expected));
            ASSERT_EQ(pane, &frame->m_pool[element]) << "seed " << seed << ", step " << step;
            if (below(2) != 0)
            {
                pane->m_view = pane;
                used.insert(element);
            }
        }
    }
}
