#pragma once
// Where the panes of a frame are: the arithmetic of docking, without windows. Inside the framework only.

#include <afx.h>
#include <atltypes.h>

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <vector>

#include "FrameworkExport.h"

namespace framework
{
enum class DockSide : std::uint8_t
{
    left,
    top,
    right,
    bottom
};

enum class DockPlace : std::uint8_t
{
    none,     // it has not been placed yet
    docked,   // in the frame
    floating, // in a floating frame
    folded    // in the strip at a side of the frame
};

/// A pane as the layout knows it.
struct DockPane
{
    DockPlace place = DockPlace::none;
    bool visible = true;
    bool present = true; // it has a window; a stored pane may still wait for its own
    CSize minSize{0, 0};
    CSize size{200, 150};        // of its place when it was docked last
    CRect floatRect{0, 0, 0, 0}; // of its frame when it floated last
    DockSide foldSide = DockSide::left;
};

/// A part of the space: some panes that share a place by tabs, the centre, or parts beside or above each other.
struct DockNode
{
    enum class Kind : std::uint8_t
    {
        tabs,
        split,
        centre
    };

    Kind kind = Kind::tabs;
    bool across = false; // of a split: its parts are beside each other, not above
    UINT id = 0;         // unique in its layout; not stored
    int extent = 0;      // wanted along the split that it is in
    UINT active = 0;     // the pane in front
    std::vector<UINT> panes;
    std::vector<DockNode> children;

    // Worked out anew by each arrangement
    bool shown = false;
    bool hasCentre = false;
    bool stretched = false; // it has the room of a centre that doesn't show, whatever it wants
    CSize least{0, 0};
    CSize arranged{0, 0};
};

struct DockMetrics
{
    int divider = 4;         // between parts
    int tabs = 20;           // what tabs add to the height of a place
    CSize centre{40, 40};    // the least size of the centre
    bool centreShown = true; // if not, what is next to the centre has its room
};

/// Where everything goes in a rectangle.
struct DockPlan
{
    struct Group
    {
        UINT id;
        CRect rect;
        std::vector<UINT> panes; // the visible ones
        UINT active;
    };
    struct Divider
    {
        UINT split;
        int index; // of the part before it
        CRect rect;
        bool across; // it stands between parts beside each other
    };

    std::vector<Group> groups;
    std::vector<Divider> dividers;
    std::optional<CRect> centre;
    CSize least{0, 0}; // of the rectangle, for all to have their least sizes
};

/// What is moved as one: some panes, which get one place with tabs, or all that is visible in a floating frame.
struct DockContent
{
    std::vector<UINT> panes;
    UINT frame = 0;

    DockContent(UINT pane) : panes{pane} {}
    explicit DockContent(std::vector<UINT> somePanes) : panes(std::move(somePanes)) {}
    static DockContent Frame(UINT id)
    {
        DockContent content{std::vector<UINT>{}};
        content.frame = id;
        return content;
    }
};

/// A pane is known by its identifier. It may have a place in the frame and one in a floating frame at the same time and
/// is shown in one of them: so it gets back to the other.
class FRAMEWORK_API DockLayout
{
public:
    struct Frame
    {
        UINT id;
        CRect rect; // on the screen
        std::optional<DockNode> tree;
    };

    DockLayout();

    /// Makes a pane known, or present again. Its place stays as it was stored.
    DockPane & AddPane(UINT pane, CSize minSize, CSize size);
    /// It has no window any more; its places are kept.
    void LeavePane(UINT pane);
    /// Takes it out altogether.
    void RemovePane(UINT pane);
    /// Panes without a window that the predicate wants go.
    template <typename Predicate> void RemoveAbsent(Predicate const & unwanted);

    bool DockAtSide(DockContent const & content, DockSide side, bool outer, int extent = 0);
    bool DockBeside(DockContent const & content, UINT target, DockSide side, int extent = 0);
    /// The first of the panes comes in front, unless they come from a floating frame.
    bool DockAsTab(DockContent const & content, UINT target, int index = -1);
    bool Float(DockContent const & content, CRect const & rect);
    /// To the place where it was docked, or floated, last; false if there is none.
    bool DockBack(DockContent const & content);
    bool FloatBack(DockContent const & content);
    bool Show(UINT pane, bool show);
    /// To the front of its tabs.
    bool Activate(UINT pane);
    /// Puts the docked panes that share its place into the strip, or brings all of them back.
    bool Fold(UINT pane, bool fold, std::optional<DockSide> side = std::nullopt);
    void SetFrameRect(UINT frame, CRect const & rect);
    void SetMinSize(UINT pane, CSize size);

    DockMetrics metrics;

    /// Lays out the frame (0) or a floating one. The wanted sizes stay, so that a rectangle that grows again gives the
    /// same plan as before.
    DockPlan Arrange(UINT frame, CRect const & rect);
    /// Moves a divider as far as the parts beside it let it; gives how far.
    int MoveDivider(UINT frame, CRect const & rect, UINT split, int index, int offset);

    DockPane const * Find(UINT pane) const;
    DockPane * Find(UINT pane);
    std::map<UINT, DockPane> const & Panes() const { return m_panes; }
    std::vector<Frame> const & Frames() const { return m_frames; }
    Frame const * FindFrame(UINT frame) const;
    /// The place that a pane has now; null if it has none.
    DockNode const * GroupOf(UINT pane) const;
    DockNode const & Root() const { return m_root; }
    /// Those in the strip of a side, in their order.
    std::vector<UINT> Folded(DockSide side) const;
    /// The panes that share a pane's place, hidden ones too.
    std::vector<UINT> Together(UINT pane) const;
    /// What of it is shown.
    std::vector<UINT> ShownTogether(UINT pane) const;
    UINT FrameOf(UINT pane) const; // 0: none
    bool IsShown(UINT pane) const; // it has a place and is visible there, perhaps behind others
    bool HasDockedPlace(UINT pane) const;
    bool HasFloatingPlace(UINT pane) const;
    std::vector<UINT> ShownIn(UINT frame) const;
    /// Of the centre, as the pane is docked.
    DockSide SideOf(UINT pane) const;

    std::vector<std::uint8_t> Save() const;
    static std::optional<DockLayout> Load(std::span<std::uint8_t const> bytes);
    /// Whether both have the same panes at the same places.
    bool SameAs(DockLayout const & other) const;

private:
    friend struct DockLayoutStore;

    DockNode MakeGroup(std::vector<UINT> panes, UINT active);
    std::optional<DockNode> Take(DockContent const & content, std::vector<UINT> & panes);
    void Settle(std::vector<UINT> const & panes, DockPlace place);
    void DropFloating(std::vector<UINT> const & panes);
    bool InsertBeside(DockNode & place, UINT beside, DockSide side, DockNode & node, int extent);
    void NewIds(DockNode & node);
    bool IsActiveIn(UINT pane, bool floating) const;
    void Measure(DockNode & node, bool floating);
    void Place(DockNode & node, CRect const & rect, DockPlan & plan, bool floating);
    DockNode * Tree(UINT frame);
    DockNode const * GroupWith(UINT pane, bool floating) const;
    DockNode * GroupWith(UINT pane, bool floating);
    UINT NewId() { return ++m_lastId; }

    std::map<UINT, DockPane> m_panes;
    DockNode m_root;
    std::vector<Frame> m_frames;
    std::vector<UINT> m_folded;
    UINT m_lastId = 0;
};

template <typename Predicate> void DockLayout::RemoveAbsent(Predicate const & unwanted)
{
    std::vector<UINT> gone;
    for (auto const & [id, pane] : m_panes)
    {
        if (!pane.present && unwanted(id))
            gone.push_back(id);
    }
    for (UINT const id : gone)
        RemovePane(id);
}
} // namespace framework
