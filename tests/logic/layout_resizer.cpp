// Where the layout engine puts the children of a dialog.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <random>

#include "layout_ResizerTest.h"

namespace
{
using namespace resizer_tests;

class LayoutResizer : public ResizerTest
{
};
} // namespace

TEST_F(LayoutResizer, BottomRightMovesAndKeepsTheSize)
{
    EXPECT_RECT(PlacedWith(CEdges::BOTTOM_RIGHT(), 450, 340), 60, 60, 160, 100);
}

TEST_F(LayoutResizer, AllFourEdgesStretch)
{
    EXPECT_RECT(PlacedWith(CEdges::TOP_LEFT_BOTTOM_RIGHT(), 450, 340), 10, 20, 160, 100);
}

TEST_F(LayoutResizer, BottomThirdTruncates)
{
    EXPECT_RECT(PlacedWith(CEdges::BOTTOM_THIRD(), 400, 400), 10, 86, 110, 160);
}

// 1000 pixels of growth in each direction show the fractions in tenths of a permille.
TEST_F(LayoutResizer, EveryConstantSetsItsPairOfFractions)
{
    struct Case
    {
        char const * name;
        CEdges edges;
        int left, top, right, bottom;
    };
    Case const cases[] = {
        {"LEFT", CEdges::LEFT(), 0, 0, 0, 0},
        {"RIGHT", CEdges::RIGHT(), 10000, 0, 10000, 0},
        {"TOP", CEdges::TOP(), 0, 0, 0, 0},
        {"BOTTOM", CEdges::BOTTOM(), 0, 10000, 0, 10000},
        {"LEFT_HALF", CEdges::LEFT_HALF(), 0, 0, 5000, 0},
        {"RIGHT_HALF", CEdges::RIGHT_HALF(), 5000, 0, 10000, 0},
        {"TOP_HALF", CEdges::TOP_HALF(), 0, 0, 0, 5000},
        {"BOTTOM_HALF", CEdges::BOTTOM_HALF(), 0, 5000, 0, 10000},
        {"HORI_CENTER", CEdges::HORI_CENTER(), 5000, 0, 5000, 0},
        {"VERT_CENTER", CEdges::VERT_CENTER(), 0, 5000, 0, 5000},
        {"TOP_THIRD", CEdges::TOP_THIRD(), 0, 0, 0, 3333},
        {"TOP_TWOTHIRD", CEdges::TOP_TWOTHIRD(), 0, 0, 0, 6667},
        {"BOTTOM_THIRD", CEdges::BOTTOM_THIRD(), 0, 6667, 0, 10000},
        {"BOTTOM_TWOTHIRD", CEdges::BOTTOM_TWOTHIRD(), 0, 3333, 0, 10000},
        {"LEFT_RIGHT", CEdges::LEFT_RIGHT(), 0, 0, 10000, 0},
        {"TOP_BOTTOM", CEdges::TOP_BOTTOM(), 0, 0, 0, 10000},
        {"TOP_LEFT", CEdges::TOP_LEFT(), 0, 0, 0, 0},
        {"TOP_RIGHT", CEdges::TOP_RIGHT(), 10000, 0, 10000, 0},
        {"BOTTOM_LEFT", CEdges::BOTTOM_LEFT(), 0, 10000, 0, 10000},
        {"BOTTOM_RIGHT", CEdges::BOTTOM_RIGHT(), 10000, 10000, 10000, 10000},
        {"TOP_LEFT_RIGHT", CEdges::TOP_LEFT_RIGHT(), 0, 0, 10000, 0},
        {"BOTTOM_LEFT_RIGHT", CEdges::BOTTOM_LEFT_RIGHT(), 0, 10000, 10000, 10000},
        {"TOP_LEFT_BOTTOM", CEdges::TOP_LEFT_BOTTOM(), 0, 0, 0, 10000},
        {"TOP_RIGHT_BOTTOM", CEdges::TOP_RIGHT_BOTTOM(), 10000, 0, 10000, 10000},
        {"TOP_LEFT_BOTTOM_RIGHT", CEdges::TOP_LEFT_BOTTOM_RIGHT(), 0, 0, 10000, 10000},
        {"TOP_CENTER", CEdges::TOP_CENTER(), 5000, 0, 5000, 0},
        {"BOTTOM_CENTER", CEdges::BOTTOM_CENTER(), 5000, 10000, 5000, 10000},
        // Contradictions are settled by the order of the tests.
        {"LEFT|LEFT_HALF", CEdges::LEFT() | CEdges::LEFT_HALF(), 0, 0, 5000, 0},
        {"LEFT_HALF|RIGHT_HALF", CEdges::LEFT_HALF() | CEdges::RIGHT_HALF(), 5000, 0, 10000, 0},
        {"RIGHT_HALF|RIGHT", CEdges::RIGHT_HALF() | CEdges::RIGHT(), 10000, 0, 10000, 0},
        {"LEFT_HALF|RIGHT", CEdges::LEFT_HALF() | CEdges::RIGHT(), 10000, 0, 10000, 0},
        {"LEFT|RIGHT_HALF|RIGHT", CEdges::LEFT_RIGHT() | CEdges::RIGHT_HALF(), 5000, 0, 10000, 0},
        {"LEFT|LEFT_HALF|RIGHT", CEdges::LEFT_RIGHT() | CEdges::LEFT_HALF(), 0, 0, 10000, 0},
        {"RIGHT|HORI_CENTER", CEdges::RIGHT() | CEdges::HORI_CENTER(), 5000, 0, 5000, 0},
        {"LEFT|HORI_CENTER", CEdges::LEFT() | CEdges::HORI_CENTER(), 5000, 0, 5000, 0},
        {"TOP|TOP_HALF", CEdges::TOP() | CEdges::TOP_HALF(), 0, 0, 0, 5000},
        {"TOP_HALF|TOP_THIRD", CEdges::TOP_HALF() | CEdges::TOP_THIRD(), 0, 0, 0, 3333},
        {"TOP_THIRD|TOP_TWOTHIRD", CEdges::TOP_THIRD() | CEdges::TOP_TWOTHIRD(), 0, 0, 0, 6667},
        {"TOP_TWOTHIRD|BOTTOM", CEdges::TOP_TWOTHIRD() | CEdges::BOTTOM(), 0, 10000, 0, 10000},
        {"TOP|TOP_TWOTHIRD|BOTTOM", CEdges::TOP_BOTTOM() | CEdges::TOP_TWOTHIRD(), 0, 0, 0, 10000},
        {"BOTTOM|BOTTOM_HALF", CEdges::BOTTOM() | CEdges::BOTTOM_HALF(), 0, 5000, 0, 10000},
        {"BOTTOM_HALF|BOTTOM_THIRD", CEdges::BOTTOM_HALF() | CEdges::BOTTOM_THIRD(), 0, 6667, 0, 10000},
        {"BOTTOM_THIRD|BOTTOM_TWOTHIRD", CEdges::BOTTOM_THIRD() | CEdges::BOTTOM_TWOTHIRD(), 0, 3333, 0, 10000},
        {"BOTTOM_TWOTHIRD|VERT_CENTER", CEdges::BOTTOM_TWOTHIRD() | CEdges::VERT_CENTER(), 0, 5000, 0, 5000},
        {"TOP|VERT_CENTER", CEdges::TOP() | CEdges::VERT_CENTER(), 0, 5000, 0, 5000},
    };
    for (Case const & one : cases)
    {
        CRect const place = PlacedWith(one.edges, 400 + 10000, 300 + 10000);
        EXPECT_RECT(place, 10 + one.left, 20 + one.top, 110 + one.right, 60 + one.bottom) << one.name;
    }
}

TEST_F(LayoutResizer, FractionsAreTakenAsGiven)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & child = m_platform.AddChild(dialog, child_place);
    CDialogResizer resizer(dialog, L"");
    CRect const fractions(1250, -2500, 20000, 9999);
    resizer.PositionChild(&child, fractions, nullptr);
    Resize(dialog, 400 + 79, 300 + 81);
    resizer.OnSize();
    // 1250 x 79 = 98750; -2500 x 81 = -202500, towards zero; 20000 x 79; 9999 x 81 = 809919
    EXPECT_RECT(m_platform.PlaceOf(child), 10 + 9, 20 - 20, 110 + 158, 60 + 80);
}

// 10000 x 300000 leaves 32 bits: 3,000,000,000 - 2^32 = -1,294,967,296, and a ten thousandth of that is -129496.
TEST_F(LayoutResizer, ProductsWrapAroundIn32Bits)
{
    CRect const place = PlacedWith(CEdges::RIGHT(), 400 + 300000, 300);
    EXPECT_RECT(place, 10 - 129496, 20, 110 - 129496, 60);
}

TEST_F(LayoutResizer, GrowingAndComingBackRestoresEveryDesignRectangle)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CEdges const edges[] = {CEdges::BOTTOM_RIGHT(),    CEdges::TOP_LEFT_BOTTOM_RIGHT(), CEdges::BOTTOM_THIRD(),
                            CEdges::BOTTOM_TWOTHIRD(), CEdges::HORI_CENTER(),           CEdges::RIGHT_HALF()};
    std::vector<CWnd *> children;
    CDialogResizer resizer(dialog, L"");
    for (CEdges const & one : edges)
    {
        int const shift = static_cast<int>(children.size()) * 7;
        children.push_back(&m_platform.AddChild(dialog, CRect(shift, shift + 1, shift + 33, shift + 20)));
        resizer.PositionChild(children.back(), one, nullptr);
    }
    for (int const growth : {1, 2, 3, 7, 99, 1000, 12345})
    {
        Resize(dialog, 400 + growth, 300 + growth);
        resizer.OnSize();
        Resize(dialog, 400, 300);
        resizer.OnSize();
        for (std::size_t at = 0; at < children.size(); ++at)
        {
            int const shift = static_cast<int>(at) * 7;
            EXPECT_RECT(m_platform.PlaceOf(*children[at]), shift, shift + 1, shift + 33, shift + 20) << at;
        }
    }
}

TEST_F(LayoutResizer, ClampsEachDirectionForItself)
{
    EXPECT_RECT(PlacedWith(CEdges::TOP_LEFT_BOTTOM_RIGHT(), 450, 200), 10, 20, 160, 60);
    EXPECT_RECT(PlacedWith(CEdges::TOP_LEFT_BOTTOM_RIGHT(), 300, 340), 10, 20, 110, 100);
}

TEST_F(LayoutResizer, TheSecondPositionChildReplacesTheFirstWholly)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & child = m_platform.AddChild(dialog, child_place);
    CDialogResizer resizer(dialog, L"");
    CRect const first(1, 2, 3, 4);
    resizer.PositionChild(&child, CEdges::BOTTOM_RIGHT(), &first);
    resizer.PositionChild(&child, CEdges::LEFT_RIGHT(), nullptr);
    Resize(dialog, 450, 340);
    m_platform.calls.clear();
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 10, 20, 160, 60);
    EXPECT_EQ(m_platform.calls.size(), 3U) << "one rectangle read, one move, one invalidation";
}

TEST_F(LayoutResizer, PositionChildMovesNothing)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & child = m_platform.AddChild(dialog, child_place);
    CDialogResizer resizer(dialog, L"");
    CRect const elsewhere(200, 100, 250, 120);
    resizer.PositionChild(&child, CEdges::BOTTOM_RIGHT(), &elsewhere);
    EXPECT_RECT(m_platform.PlaceOf(child), 10, 20, 110, 60);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 200, 100, 250, 120);
}

TEST_F(LayoutResizer, ANullChildAndAnUnknownIdAreIgnored)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & child = m_platform.AddChild(dialog, child_place, child_id);
    CDialogResizer resizer(dialog, L"");
    CRect const fractions(1, 2, 3, 4);
    CSize const shift(5, 5);
    resizer.PositionChild(static_cast<CWnd *>(nullptr), CEdges::RIGHT(), nullptr);
    resizer.PositionChild(static_cast<CWnd *>(nullptr), fractions, nullptr);
    resizer.PositionChild(child_id + 1, CEdges::RIGHT(), nullptr);
    resizer.PositionChild(child_id + 1, fractions, nullptr);
    resizer.RepositionChild(child_id + 1, &shift, &shift, false);
    m_platform.calls.clear();
    resizer.OnSize();
    EXPECT_TRUE(m_platform.calls.empty()) << "the table is empty";
    EXPECT_RECT(m_platform.PlaceOf(child), 10, 20, 110, 60);
}

TEST_F(LayoutResizer, TheIdFormsFindTheControl)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & child = m_platform.AddChild(dialog, child_place, child_id);
    CDialogResizer resizer(dialog, L"");
    CSize const shift(5, 6);
    Resize(dialog, 450, 340);

    resizer.PositionChild(child_id, CEdges::BOTTOM_RIGHT(), nullptr);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 60, 60, 160, 100);

    resizer.PositionChild(child_id, CRect(0, 0, 10000, 0), &child_place);
    resizer.RepositionChild(child_id, &shift, nullptr, false);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 15, 26, 165, 66);
}

TEST_F(LayoutResizer, RepositionAppliesWhatIsGiven)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & child = m_platform.AddChild(dialog, child_place);
    CDialogResizer resizer(dialog, L"");
    resizer.PositionChild(&child, CEdges::TOP_LEFT(), nullptr);
    CSize const offset(3, -4);
    CSize const growth(20, 30);

    resizer.RepositionChild(&child, &offset, nullptr, false);
    EXPECT_RECT(m_platform.PlaceOf(child), 10, 20, 110, 60) << "nothing moves before OnSize";
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 13, 16, 113, 56);
    resizer.RepositionChild(&child, nullptr, &growth, false);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 13, 16, 133, 86);
    resizer.RepositionChild(&child, &offset, &growth, false);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 16, 12, 156, 112);
    resizer.RepositionChild(&child, nullptr, nullptr, false);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 16, 12, 156, 112);
}

TEST_F(LayoutResizer, RepositionOfAnUnregisteredChildDoesNothing)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & registered = m_platform.AddChild(dialog, child_place);
    CWnd & stranger = m_platform.AddChild(dialog, CRect(1, 2, 30, 40));
    CDialogResizer resizer(dialog, L"");
    resizer.PositionChild(&registered, CEdges::TOP_LEFT(), nullptr);
    CSize const offset(3, 4);
    resizer.RepositionChild(&stranger, &offset, &offset, false);
    resizer.RepositionChild(&stranger, &offset, &offset, true);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(stranger), 1, 2, 30, 40);
    EXPECT_RECT(m_platform.PlaceOf(registered), 10, 20, 110, 60);
}

TEST_F(LayoutResizer, ScaledRepositionDropsTheDirectionThatHasGrown)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & child = m_platform.AddChild(dialog, child_place);
    CDialogResizer resizer(dialog, L"");
    resizer.PositionChild(&child, CEdges::TOP_LEFT(), nullptr);
    CSize const offset(3, 4);
    CSize const growth(20, 30);

    Resize(dialog, 401, 300);
    resizer.RepositionChild(&child, &offset, &growth, true);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 10, 24, 110, 94);
}

TEST_F(LayoutResizer, ScaledRepositionInACollapsedPaneTakesTheAmountsAsTheyAre)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & child = m_platform.AddChild(dialog, child_place);
    CDialogResizer resizer(dialog, L"");
    resizer.PositionChild(&child, CEdges::TOP_LEFT(), nullptr);
    CSize const offset(3, 4);
    CSize const growth(20, 30);

    Resize(dialog, 0, 600);
    resizer.RepositionChild(&child, &offset, &growth, true);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 13, 20, 133, 60) << "not scaled across, dropped in height as ever";
    Resize(dialog, 401, 0);
    resizer.RepositionChild(&child, &offset, &growth, true);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 13, 24, 133, 94);
}

TEST_F(LayoutResizer, AChildOrTheResizerMayEndWhileAChildIsMoved)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd * children[4];
    for (CWnd *& child : children)
        child = &m_platform.AddChild(dialog, child_place);
    auto resizer = std::make_unique<CDialogResizer>(dialog, L"");
    for (CWnd * const child : children)
        resizer->PositionChild(child, CEdges::BOTTOM_RIGHT(), nullptr);

    int moved = 0;
    m_platform.onMove = [&](CWnd & child) {
        ++moved;
        if (&child == children[0] || &child == children[2])
            m_platform.Destroy(child);
    };
    Resize(dialog, 450, 340);
    resizer->OnSize();
    EXPECT_EQ(moved, 4);
    EXPECT_RECT(m_platform.PlaceOf(*children[1]), 60, 60, 160, 100);
    EXPECT_RECT(m_platform.PlaceOf(*children[3]), 60, 60, 160, 100);

    moved = 0;
    m_platform.onMove = [&](CWnd &) {
        ++moved;
        resizer.reset();
    };
    resizer->OnSize();
    EXPECT_EQ(moved, 1);
}

TEST_F(LayoutResizer, ScaledRepositionMultipliesByTheWholeQuotient)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & child = m_platform.AddChild(dialog, child_place);
    CDialogResizer resizer(dialog, L"");
    resizer.PositionChild(&child, CEdges::TOP_LEFT(), nullptr);
    CSize const offset(3, 4);
    CSize const growth(20, 30);

    // 400 / 150 = 2, 300 / 299 = 1
    Resize(dialog, 150, 299);
    resizer.RepositionChild(&child, &offset, nullptr, true);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 16, 24, 116, 64);
    // 400 / 133 = 3, 300 / 100 = 3
    Resize(dialog, 133, 100);
    resizer.RepositionChild(&child, nullptr, &growth, true);
    resizer.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(child), 16, 24, 176, 154);
}

TEST_F(LayoutResizer, ChildrenAreMovedInWindowOrderAndOthersLeftAlone)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & first = m_platform.AddChildWithHandle(dialog, CRect(0, 0, 10, 10), reinterpret_cast<HWND>(0x9000));
    CWnd & stranger = m_platform.AddChildWithHandle(dialog, CRect(5, 5, 6, 6), reinterpret_cast<HWND>(0x8000));
    CWnd & second = m_platform.AddChildWithHandle(dialog, CRect(0, 20, 10, 30), reinterpret_cast<HWND>(0x7000));
    CWnd & third = m_platform.AddChildWithHandle(dialog, CRect(0, 40, 10, 50), reinterpret_cast<HWND>(0x7800));
    CDialogResizer resizer(dialog, L"");
    for (CWnd * const child : {&third, &first, &second})
        resizer.PositionChild(child, CEdges::RIGHT(), nullptr);
    Resize(dialog, 401, 300);
    m_platform.calls.clear();
    resizer.OnSize();
    EXPECT_EQ(m_platform.calls, (std::vector<std::string>{"GetWindowRect 0", "MoveWindow 1 1 0 10 10", "Invalidate 1",
                                                          "MoveWindow 3 1 20 10 10", "Invalidate 3",
                                                          "MoveWindow 4 1 40 10 10", "Invalidate 4"}));
    EXPECT_RECT(m_platform.PlaceOf(stranger), 5, 5, 6, 6);
}

TEST_F(LayoutResizer, GoneChildrenAndGrandchildrenAreSkipped)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & gone = m_platform.AddChild(dialog, child_place);
    CWnd & group = m_platform.AddChild(dialog, CRect(0, 0, 200, 200));
    CWnd & grandchild = m_platform.AddChild(group, child_place);
    CWnd & child = m_platform.AddChild(dialog, child_place);
    CDialogResizer resizer(dialog, L"");
    for (CWnd * const one : {&gone, &grandchild, &child})
        resizer.PositionChild(one, CEdges::RIGHT(), nullptr);
    m_platform.Destroy(gone);
    Resize(dialog, 410, 300);
    m_platform.calls.clear();
    resizer.OnSize();
    EXPECT_EQ(m_platform.calls,
              (std::vector<std::string>{"GetWindowRect 0", "MoveWindow 4 20 20 100 40", "Invalidate 4"}));
}

TEST_F(LayoutResizer, TheDesignRectangleIsReadInTheParentsClientCoordinates)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CWnd & group = m_platform.AddChild(dialog, CRect(50, 60, 250, 260));
    CWnd & grandchild = m_platform.AddChild(group, child_place);
    CDialogResizer ofGroup(group, L"");
    ofGroup.PositionChild(&grandchild, CEdges::TOP_LEFT(), nullptr);
    m_platform.SetOuter(dialog, CRect(0, 0, 900, 700));
    ofGroup.OnSize();
    EXPECT_RECT(m_platform.PlaceOf(grandchild), 10, 20, 110, 60);
}

// A thousand random children in random handle order, against a formula of our own in floating point.
TEST_F(LayoutResizer, AThousandRandomChildrenNeverDrift)
{
    std::mt19937 random(20240611);
    auto const number = [&random](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    constexpr int children_count = 1000;

    CWnd & dialog = m_platform.AddDialog(design_outer);
    std::vector<std::uintptr_t> handles;
    for (int at = 0; at < children_count; ++at)
        handles.push_back(0x20000 + 4 * static_cast<std::uintptr_t>(at));
    std::shuffle(handles.begin(), handles.end(), random);

    struct Child
    {
        CWnd * window;
        CRect design;
        CRect fractions;
    };
    std::vector<Child> children;
    CDialogResizer resizer(dialog, L"");
    for (std::uintptr_t const handle : handles)
    {
        int const left = number(-100, 390);
        int const top = number(-100, 290);
        CRect const design(left, top, left + number(0, 300), top + number(0, 300));
        CRect const fractions(number(-10000, 20000), number(-10000, 20000), number(-10000, 20000),
                              number(-10000, 20000));
        CWnd & window = m_platform.AddChildWithHandle(dialog, design, reinterpret_cast<HWND>(handle));
        children.push_back({&window, design, fractions});
        if (number(0, 1) == 0)
            resizer.PositionChild(&window, fractions, nullptr);
        else
            resizer.PositionChild(&window, fractions, &design);
    }

    m_platform.recording = false;
    for (int round = 0; round < 20; ++round)
    {
        int const width = number(200, 3000);
        int const height = number(200, 3000);
        Resize(dialog, width, height);
        resizer.OnSize();
        double const dx = std::max(0, width - 400);
        double const dy = std::max(0, height - 300);
        auto const expected = [](int edge, int fraction, double growth) {
            return edge + static_cast<int>(std::trunc(fraction * growth / 10000.0));
        };
        for (Child const & child : children)
        {
            ASSERT_EQ(Sides(m_platform.PlaceOf(*child.window)),
                      (std::vector<int>{expected(child.design.left, child.fractions.left, dx),
                                        expected(child.design.top, child.fractions.top, dy),
                                        expected(child.design.right, child.fractions.right, dx),
                                        expected(child.design.bottom, child.fractions.bottom, dy)}))
                << "round " << round;
        }
    }
    Resize(dialog, 400, 300);
    resizer.OnSize();
    for (Child const & child : children)
        ASSERT_EQ(Sides(m_platform.PlaceOf(*child.window)), Sides(child.design));
}
