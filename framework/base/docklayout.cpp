// The arithmetic of docking.

#include "DockLayout.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace framework
{
namespace
{
constexpr int unknown_extent = 100; // of what has never been laid out

bool IsAcross(DockSide side)
{
    return side == DockSide::left || side == DockSide::right;
}

bool IsBefore(DockSide side)
{
    return side == DockSide::left || side == DockSide::top;
}

int Along(CSize size, bool across)
{
    return across ? size.cx : size.cy;
}

bool Contains(std::vector<UINT> const & list, UINT value)
{
    return std::find(list.begin(), list.end(), value) != list.end();
}

template <typename Node> Node * FindGroup(Node & node, UINT pane)
{
    if (Contains(node.panes, pane))
        return &node;
    for (Node & child : node.children)
    {
        if (Node * const found = FindGroup(child, pane))
            return found;
    }
    return nullptr;
}

DockNode * FindNode(DockNode & node, UINT id)
{
    if (node.id == id)
        return &node;
    for (DockNode & child : node.children)
    {
        if (DockNode * const found = FindNode(child, id))
            return found;
    }
    return nullptr;
}

DockNode const * FindCentre(DockNode const & node)
{
    if (node.kind == DockNode::Kind::centre)
        return &node;
    for (DockNode const & child : node.children)
    {
        if (DockNode const * const found = FindCentre(child))
            return found;
    }
    return nullptr;
}

/// Takes panes out, then what is empty. False if nothing is left.
bool Prune(DockNode & node, std::vector<UINT> const & panes)
{
    if (node.kind == DockNode::Kind::centre)
        return true;
    if (node.kind == DockNode::Kind::tabs)
    {
        std::erase_if(node.panes, [&](UINT pane) { return Contains(panes, pane); });
        if (node.panes.empty())
            return false;
        if (!Contains(node.panes, node.active))
            node.active = node.panes.front();
        return true;
    }
    std::erase_if(node.children, [&](DockNode & child) { return !Prune(child, panes); });
    return !node.children.empty();
}

/// The sizes that the parts have become their wanted ones, but for what has a size that it doesn't want.
void TakeArranged(DockNode & split)
{
    for (DockNode & child : split.children)
    {
        int const length = Along(child.arranged, split.across);
        if (child.shown && length > 0 && !child.stretched)
            child.extent = length;
    }
}

/// No split of one part, none within one of the same direction.
void Normalise(DockNode & node)
{
    for (DockNode & child : node.children)
        Normalise(child);
    std::vector<DockNode> children;
    for (DockNode & child : node.children)
    {
        if (child.kind != DockNode::Kind::split || child.across != node.across)
        {
            children.push_back(std::move(child));
            continue;
        }
        std::int64_t sum = 0;
        for (DockNode const & part : child.children)
            sum += part.extent;
        bool const scale = FindCentre(child) == nullptr && sum > 0 && child.extent > 0;
        for (DockNode & part : child.children)
        {
            if (scale)
                part.extent = std::max(1, static_cast<int>(std::int64_t{part.extent} * child.extent / sum));
            children.push_back(std::move(part));
        }
    }
    node.children = std::move(children);
    if (node.kind == DockNode::Kind::split && node.children.size() == 1)
    {
        DockNode only = std::move(node.children.front());
        only.extent = node.extent;
        node = std::move(only);
    }
}

/// Shares a length in whole units by the weights.
std::vector<int> Share(int length, std::vector<int> const & weights)
{
    std::int64_t sum = 0;
    for (int const weight : weights)
        sum += weight;
    std::vector<int> parts(weights.size(), 0);
    if (sum <= 0)
        return parts;
    std::int64_t before = 0;
    std::int64_t seen = 0;
    for (size_t at = 0; at < weights.size(); ++at)
    {
        seen += weights[at];
        std::int64_t const upTo = std::int64_t{length} * seen / sum;
        parts[at] = static_cast<int>(upTo - before);
        before = upTo;
    }
    return parts;
}

/// The lengths of parts that want some, need some, and fill the whole. The stretching part, if there is one (-1), takes
/// what the others leave.
std::vector<int> Lengths(int length, std::vector<int> wanted, std::vector<int> const & least, int stretching)
{
    std::int64_t const needed = std::accumulate(least.begin(), least.end(), std::int64_t{0});
    if (length <= needed)
        return needed > 0 ? Share(length, least) : std::vector<int>(least.size(), 0);
    size_t const count = wanted.size();
    for (size_t at = 0; at < count; ++at)
        wanted[at] = std::max({wanted[at], least[at], 1});
    if (stretching >= 0)
    {
        auto const middle = static_cast<size_t>(stretching);
        wanted[middle] = 0;
        std::int64_t const rest = length - std::accumulate(wanted.begin(), wanted.end(), std::int64_t{0});
        if (rest >= least[middle])
        {
            wanted[middle] = static_cast<int>(rest);
            return wanted;
        }
        // The others give what the stretching part lacks, each as it has more than it needs.
        std::vector<int> room(count, 0);
        std::int64_t allRoom = 0;
        for (size_t at = 0; at < count; ++at)
        {
            if (at != middle)
                room[at] = std::max(0, wanted[at] - least[at]);
            allRoom += room[at];
        }
        auto const kept = static_cast<int>(allRoom - (least[middle] - rest));
        std::vector<int> lengths = Share(kept, room);
        for (size_t at = 0; at < count; ++at)
            lengths[at] += least[at];
        // Least lengths of 1 where nothing is needed may have been taken for wanted ones.
        lengths[middle] += length - std::accumulate(lengths.begin(), lengths.end(), 0);
        return lengths;
    }
    std::vector<int> lengths(count, -1);
    for (;;)
    {
        int rest = length;
        std::vector<int> weights(count, 0);
        std::int64_t sum = 0;
        for (size_t at = 0; at < count; ++at)
        {
            if (lengths[at] >= 0)
                rest -= lengths[at];
            else
            {
                weights[at] = wanted[at];
                sum += wanted[at];
            }
        }
        bool settled = true;
        for (size_t at = 0; at < count; ++at)
        {
            if (lengths[at] < 0 && std::int64_t{rest} * weights[at] < std::int64_t{least[at]} * sum)
            {
                lengths[at] = least[at];
                settled = false;
            }
        }
        if (!settled)
            continue;
        std::vector<int> const shares = Share(rest, weights);
        for (size_t at = 0; at < count; ++at)
        {
            if (lengths[at] < 0)
                lengths[at] = shares[at];
        }
        return lengths;
    }
}

bool SameNodes(DockNode const & one, DockNode const & other)
{
    if (one.kind != other.kind || one.across != other.across || one.extent != other.extent ||
        one.active != other.active || one.panes != other.panes || one.children.size() != other.children.size())
        return false;
    return std::equal(one.children.begin(), one.children.end(), other.children.begin(), SameNodes);
}

void CollectPanes(DockNode const & node, std::vector<UINT> & panes)
{
    panes.insert(panes.end(), node.panes.begin(), node.panes.end());
    for (DockNode const & child : node.children)
        CollectPanes(child, panes);
}

/// The sides of the centre that the pane's branch lies at. False while the pane isn't found below.
bool FindSide(DockNode const & node, UINT pane, DockSide & side)
{
    int centre = -1;
    int own = -1;
    for (size_t at = 0; at < node.children.size(); ++at)
    {
        if (FindCentre(node.children[at]) != nullptr)
            centre = static_cast<int>(at);
        if (FindGroup(node.children[at], pane) != nullptr)
            own = static_cast<int>(at);
    }
    if (own < 0 || centre < 0)
        return false;
    if (own == centre)
        return FindSide(node.children[static_cast<size_t>(own)], pane, side);
    if (node.across)
        side = own < centre ? DockSide::left : DockSide::right;
    else
        side = own < centre ? DockSide::top : DockSide::bottom;
    return true;
}
} // namespace

DockLayout::DockLayout()
{
    m_root.kind = DockNode::Kind::centre;
    m_root.id = NewId();
}

// Panes

DockPane & DockLayout::AddPane(UINT pane, CSize minSize, CSize size)
{
    auto const [at, added] = m_panes.try_emplace(pane);
    at->second.present = true;
    at->second.minSize = minSize;
    if (added)
        at->second.size = size;
    return at->second;
}

void DockLayout::LeavePane(UINT pane)
{
    if (DockPane * const known = Find(pane))
        known->present = false;
}

void DockLayout::RemovePane(UINT pane)
{
    m_panes.erase(pane);
    std::erase(m_folded, pane);
    Prune(m_root, {pane});
    Normalise(m_root);
    DropFloating({pane});
}

DockPane const * DockLayout::Find(UINT pane) const
{
    auto const at = m_panes.find(pane);
    return at != m_panes.end() ? &at->second : nullptr;
}

DockPane * DockLayout::Find(UINT pane)
{
    auto const at = m_panes.find(pane);
    return at != m_panes.end() ? &at->second : nullptr;
}

void DockLayout::SetMinSize(UINT pane, CSize size)
{
    if (DockPane * const known = Find(pane))
        known->minSize = size;
}

// Finding

DockNode const * DockLayout::GroupWith(UINT pane, bool floating) const
{
    if (!floating)
        return FindGroup(m_root, pane);
    for (Frame const & frame : m_frames)
    {
        if (DockNode const * const found = frame.tree ? FindGroup(*frame.tree, pane) : nullptr)
            return found;
    }
    return nullptr;
}

DockNode * DockLayout::GroupWith(UINT pane, bool floating)
{
    return const_cast<DockNode *>(std::as_const(*this).GroupWith(pane, floating));
}

DockNode * DockLayout::Tree(UINT frame)
{
    if (frame == 0)
        return &m_root;
    for (Frame & candidate : m_frames)
    {
        if (candidate.id == frame && candidate.tree)
            return &*candidate.tree;
    }
    return nullptr;
}

DockLayout::Frame const * DockLayout::FindFrame(UINT frame) const
{
    for (Frame const & candidate : m_frames)
    {
        if (candidate.id == frame)
            return &candidate;
    }
    return nullptr;
}

UINT DockLayout::FrameOf(UINT pane) const
{
    DockPane const * const known = Find(pane);
    if (known == nullptr || known->place != DockPlace::floating)
        return 0;
    for (Frame const & frame : m_frames)
    {
        if (frame.tree && FindGroup(*frame.tree, pane) != nullptr)
            return frame.id;
    }
    return 0;
}

std::vector<UINT> DockLayout::Folded(DockSide side) const
{
    std::vector<UINT> folded;
    for (UINT const pane : m_folded)
    {
        DockPane const * const known = Find(pane);
        if (known != nullptr && known->foldSide == side && known->visible && known->present)
            folded.push_back(pane);
    }
    return folded;
}

DockNode const * DockLayout::GroupOf(UINT pane) const
{
    DockPane const * const known = Find(pane);
    return known != nullptr && known->place != DockPlace::none ? GroupWith(pane, known->place == DockPlace::floating)
                                                               : nullptr;
}

std::vector<UINT> DockLayout::Together(UINT pane) const
{
    DockNode const * const group = GroupOf(pane);
    return group != nullptr ? group->panes : std::vector<UINT>{};
}

std::vector<UINT> DockLayout::ShownTogether(UINT pane) const
{
    DockPane const * const known = Find(pane);
    std::vector<UINT> panes = Together(pane);
    std::erase_if(panes, [&](UINT other) { return !IsShown(other) || Find(other)->place != known->place; });
    return panes;
}

std::vector<UINT> DockLayout::ShownIn(UINT frame) const
{
    std::vector<UINT> panes;
    if (frame == 0)
        CollectPanes(m_root, panes);
    else if (Frame const * const found = FindFrame(frame); found != nullptr && found->tree)
        CollectPanes(*found->tree, panes);
    std::erase_if(panes, [&](UINT pane) { return !IsActiveIn(pane, frame != 0); });
    return panes;
}

bool DockLayout::IsShown(UINT pane) const
{
    DockPane const * const known = Find(pane);
    return known != nullptr && known->place != DockPlace::none && known->visible && known->present;
}

bool DockLayout::IsActiveIn(UINT pane, bool floating) const
{
    return IsShown(pane) && Find(pane)->place == (floating ? DockPlace::floating : DockPlace::docked);
}

bool DockLayout::HasDockedPlace(UINT pane) const
{
    return GroupWith(pane, false) != nullptr;
}

bool DockLayout::HasFloatingPlace(UINT pane) const
{
    return GroupWith(pane, true) != nullptr;
}

DockSide DockLayout::SideOf(UINT pane) const
{
    DockSide side = DockSide::left;
    FindSide(m_root, pane, side);
    return side;
}

// Changes

DockNode DockLayout::MakeGroup(std::vector<UINT> panes, UINT active)
{
    DockNode group;
    group.id = NewId();
    group.panes = std::move(panes);
    group.active = active;
    return group;
}

void DockLayout::NewIds(DockNode & node)
{
    node.id = NewId();
    for (DockNode & child : node.children)
        NewIds(child);
}

std::optional<DockNode> DockLayout::Take(DockContent const & content, std::vector<UINT> & panes)
{
    panes.clear();
    if (content.frame != 0)
    {
        DockNode const * const tree = Tree(content.frame);
        if (tree == nullptr)
            return std::nullopt;
        panes = ShownIn(content.frame);
        std::vector<UINT> others;
        CollectPanes(*tree, others);
        std::erase_if(others, [&](UINT pane) { return Contains(panes, pane); });
        DockNode copy = *tree;
        if (panes.empty() || !Prune(copy, others))
            return std::nullopt;
        Normalise(copy);
        NewIds(copy);
        return copy;
    }
    for (UINT const pane : content.panes)
    {
        if (Find(pane) != nullptr && !Contains(panes, pane))
            panes.push_back(pane);
    }
    if (panes.empty())
        return std::nullopt;
    return MakeGroup(panes, panes.front());
}

void DockLayout::DropFloating(std::vector<UINT> const & panes)
{
    std::erase_if(m_frames, [&](Frame & frame) {
        if (!frame.tree || !Prune(*frame.tree, panes))
            return true;
        Normalise(*frame.tree);
        return false;
    });
}

void DockLayout::Settle(std::vector<UINT> const & panes, DockPlace place)
{
    for (UINT const pane : panes)
    {
        if (DockPane * const known = Find(pane))
            known->place = place;
        std::erase(m_folded, pane);
    }
}

bool DockLayout::InsertBeside(DockNode & place, UINT beside, DockSide side, DockNode & node, int extent)
{
    bool const across = IsAcross(side);
    bool const before = IsBefore(side);
    bool const along = place.kind == DockNode::Kind::split && place.across == across;
    if (place.id == beside)
    {
        if (along)
        {
            TakeArranged(place);
            node.extent = extent > 0 ? extent : unknown_extent;
            place.children.insert(before ? place.children.begin() : place.children.end(), std::move(node));
            return true;
        }
        int const length = Along(place.arranged, across);
        DockNode split;
        split.kind = DockNode::Kind::split;
        split.across = across;
        split.id = NewId();
        split.extent = place.extent;
        node.extent = extent > 0 ? extent : length > 0 ? std::max(1, length / 2) : unknown_extent;
        DockNode former = std::move(place);
        former.extent = length > 0 ? std::max(1, length - node.extent) : node.extent;
        split.children.push_back(std::move(former));
        split.children.insert(before ? split.children.begin() : split.children.end(), std::move(node));
        place = std::move(split);
        return true;
    }
    for (size_t at = 0; at < place.children.size(); ++at)
    {
        DockNode & child = place.children[at];
        if (child.id != beside || !along)
        {
            if (InsertBeside(child, beside, side, node, extent))
                return true;
            continue;
        }
        TakeArranged(place);
        if (extent > 0)
            node.extent = extent;
        else
        {
            int const length = child.stretched ? Along(child.arranged, place.across) : child.extent;
            node.extent = std::max(1, length / 2);
            if (!child.stretched)
                child.extent = std::max(1, child.extent - node.extent);
        }
        auto const where = place.children.begin() + static_cast<std::ptrdiff_t>(before ? at : at + 1);
        place.children.insert(where, std::move(node));
        return true;
    }
    return false;
}

bool DockLayout::DockAtSide(DockContent const & content, DockSide side, bool outer, int extent)
{
    std::vector<UINT> panes;
    std::optional<DockNode> node = Take(content, panes);
    if (!node)
        return false;
    if (extent <= 0)
        extent = Along(Find(panes.front())->size, IsAcross(side));
    Prune(m_root, panes);
    Normalise(m_root);
    UINT const beside = outer ? m_root.id : FindCentre(m_root)->id;
    InsertBeside(m_root, beside, side, *node, extent);
    Normalise(m_root);
    Settle(panes, DockPlace::docked);
    return true;
}

bool DockLayout::DockBeside(DockContent const & content, UINT target, DockSide side, int extent)
{
    DockPane const * const known = Find(target);
    if (known == nullptr || known->place == DockPlace::none)
        return false;
    bool const floating = known->place == DockPlace::floating;
    std::vector<UINT> panes;
    std::optional<DockNode> node = Take(content, panes);
    if (!node || Contains(panes, target) || GroupWith(target, floating) == nullptr)
        return false;
    if (floating)
        DropFloating(panes);
    else
    {
        Prune(m_root, panes);
        Normalise(m_root);
    }
    UINT const beside = GroupWith(target, floating)->id;
    if (!floating)
    {
        InsertBeside(m_root, beside, side, *node, extent);
        Normalise(m_root);
    }
    else
    {
        for (Frame & frame : m_frames)
        {
            if (InsertBeside(*frame.tree, beside, side, *node, extent))
            {
                Normalise(*frame.tree);
                break;
            }
        }
    }
    Settle(panes, floating ? DockPlace::floating : DockPlace::docked);
    return true;
}

bool DockLayout::DockAsTab(DockContent const & content, UINT target, int index)
{
    DockPane const * const known = Find(target);
    if (known == nullptr || known->place == DockPlace::none)
        return false;
    DockPlace const place = known->place;
    bool const floating = place == DockPlace::floating;
    std::vector<UINT> panes;
    if (!Take(content, panes) || Contains(panes, target) || GroupWith(target, floating) == nullptr)
        return false;
    if (floating)
        DropFloating(panes);
    else
    {
        Prune(m_root, panes);
        Normalise(m_root);
    }
    DockNode & group = *GroupWith(target, floating);
    auto where = group.panes.end();
    if (index >= 0)
    {
        // The index counts what is shown.
        int shown = 0;
        for (where = group.panes.begin(); where != group.panes.end(); ++where)
        {
            if (IsShown(*where) && shown++ == index)
                break;
        }
    }
    group.panes.insert(where, panes.begin(), panes.end());
    group.active = panes.front();
    DockSide const side = known->foldSide;
    Settle(panes, place);
    if (place == DockPlace::folded)
    {
        for (UINT const pane : panes)
        {
            Find(pane)->foldSide = side;
            m_folded.push_back(pane);
        }
    }
    return true;
}

bool DockLayout::Float(DockContent const & content, CRect const & rect)
{
    std::vector<UINT> panes;
    std::optional<DockNode> node = Take(content, panes);
    if (!node)
        return false;
    for (UINT const pane : panes)
        Find(pane)->floatRect = rect;
    UINT const present = content.frame != 0 ? content.frame : FrameOf(panes.front());
    if (present != 0)
    {
        std::vector<UINT> shown = ShownIn(present);
        std::vector<UINT> moved = panes;
        std::sort(shown.begin(), shown.end());
        std::sort(moved.begin(), moved.end());
        if (shown == moved)
        {
            SetFrameRect(present, rect);
            return true;
        }
    }
    DropFloating(panes);
    m_frames.push_back(Frame{NewId(), rect, std::move(node)});
    Settle(panes, DockPlace::floating);
    return true;
}

bool DockLayout::DockBack(DockContent const & content)
{
    std::vector<UINT> panes;
    if (!Take(content, panes) ||
        !std::all_of(panes.begin(), panes.end(), [&](UINT pane) { return HasDockedPlace(pane); }))
        return false;
    Settle(panes, DockPlace::docked);
    GroupWith(panes.front(), false)->active = panes.front();
    return true;
}

bool DockLayout::FloatBack(DockContent const & content)
{
    std::vector<UINT> panes;
    if (!Take(content, panes))
        return false;
    // What floated apart is taken together now, as one.
    bool const together = std::any_of(m_frames.begin(), m_frames.end(), [&](Frame const & frame) {
        return frame.tree && std::all_of(panes.begin(), panes.end(),
                                         [&](UINT pane) { return FindGroup(*frame.tree, pane) != nullptr; });
    });
    if (together)
    {
        Settle(panes, DockPlace::floating);
        GroupWith(panes.front(), true)->active = panes.front();
        return true;
    }
    CRect const rect = Find(panes.front())->floatRect;
    return !rect.IsRectEmpty() && Float(DockContent(panes), rect);
}

bool DockLayout::Show(UINT pane, bool show)
{
    DockPane * const known = Find(pane);
    if (known == nullptr)
        return false;
    known->visible = show;
    return true;
}

bool DockLayout::Activate(UINT pane)
{
    DockPane const * const known = Find(pane);
    DockNode * const group = known != nullptr && known->place != DockPlace::none
                                 ? GroupWith(pane, known->place == DockPlace::floating)
                                 : nullptr;
    if (group == nullptr)
        return false;
    group->active = pane;
    return true;
}

bool DockLayout::Fold(UINT pane, bool fold, std::optional<DockSide> side)
{
    DockPane const * const known = Find(pane);
    DockNode * const group = GroupWith(pane, false);
    DockPlace const from = fold ? DockPlace::docked : DockPlace::folded;
    if (known == nullptr || group == nullptr || known->place != from)
        return false;
    DockSide const to = side.value_or(SideOf(pane));
    for (UINT const other : group->panes)
    {
        DockPane & one = *Find(other);
        if (one.place != from)
            continue;
        if (!fold)
        {
            one.place = DockPlace::docked;
            std::erase(m_folded, other);
            continue;
        }
        one.place = DockPlace::folded;
        one.foldSide = to;
        if (group->arranged.cx > 0 && group->arranged.cy > 0)
            one.size = group->arranged;
        m_folded.push_back(other);
    }
    group->active = pane;
    return true;
}

void DockLayout::SetFrameRect(UINT frame, CRect const & rect)
{
    for (Frame & candidate : m_frames)
    {
        if (candidate.id != frame)
            continue;
        candidate.rect = rect;
        for (UINT const pane : ShownIn(frame))
            Find(pane)->floatRect = rect;
    }
}

// Arranging

void DockLayout::Measure(DockNode & node, bool floating)
{
    node.least = CSize(0, 0);
    node.shown = false;
    node.hasCentre = false;
    node.stretched = false;
    if (node.kind == DockNode::Kind::centre)
    {
        node.shown = metrics.centreShown;
        node.hasCentre = true;
        if (node.shown)
            node.least = metrics.centre;
        else
            node.arranged = CSize(0, 0);
        return;
    }
    int shown = 0;
    for (UINT const pane : node.panes)
    {
        if (!IsActiveIn(pane, floating))
            continue;
        CSize const least = Find(pane)->minSize;
        node.least.cx = std::max(node.least.cx, least.cx);
        node.least.cy = std::max(node.least.cy, least.cy);
        ++shown;
    }
    if (shown > 1)
        node.least.cy += metrics.tabs;
    for (DockNode & child : node.children)
    {
        Measure(child, floating);
        node.hasCentre = node.hasCentre || child.hasCentre;
        if (!child.shown)
            continue;
        int const gap = shown++ > 0 ? metrics.divider : 0;
        if (node.across)
        {
            node.least.cx += child.least.cx + gap;
            node.least.cy = std::max(node.least.cy, child.least.cy);
        }
        else
        {
            node.least.cy += child.least.cy + gap;
            node.least.cx = std::max(node.least.cx, child.least.cx);
        }
    }
    node.shown = shown > 0;
}

void DockLayout::Place(DockNode & node, CRect const & rect, DockPlan & plan, bool floating)
{
    node.arranged = rect.Size();
    if (node.kind == DockNode::Kind::centre)
    {
        plan.centre = rect;
        return;
    }
    if (node.kind == DockNode::Kind::tabs)
    {
        DockPlan::Group group{node.id, rect, {}, 0};
        for (UINT const pane : node.panes)
        {
            if (IsActiveIn(pane, floating))
                group.panes.push_back(pane);
        }
        group.active = Contains(group.panes, node.active) ? node.active : group.panes.front();
        plan.groups.push_back(std::move(group));
        return;
    }
    std::vector<size_t> shown;
    std::vector<int> wanted;
    std::vector<int> least;
    int stretching = -1; // where the centre is, or the part before it, or else behind it
    for (size_t at = 0; at < node.children.size(); ++at)
    {
        DockNode const & child = node.children[at];
        if (child.hasCentre)
            stretching = std::max(0, static_cast<int>(shown.size()) - (child.shown ? 0 : 1));
        if (!child.shown)
            continue;
        shown.push_back(at);
        wanted.push_back(child.extent);
        least.push_back(Along(child.least, node.across));
    }
    int const length = Along(rect.Size(), node.across);
    auto const gaps = static_cast<int>(shown.size()) - 1;
    int const gap = gaps > 0 ? std::min(metrics.divider, length / gaps) : 0;
    std::vector<int> const lengths = Lengths(length - gap * gaps, std::move(wanted), least, stretching);
    int place = node.across ? rect.left : rect.top;
    int const end = node.across ? rect.right : rect.bottom;
    for (size_t at = 0; at < shown.size(); ++at)
    {
        bool const last = at + 1 == shown.size();
        int const next = last ? end : place + lengths[at];
        CRect part(rect);
        (node.across ? part.left : part.top) = place;
        (node.across ? part.right : part.bottom) = next;
        DockNode & child = node.children[shown[at]];
        child.stretched = static_cast<int>(at) == stretching && !metrics.centreShown;
        Place(child, part, plan, floating);
        if (last)
            break;
        CRect between(rect);
        (node.across ? between.left : between.top) = next;
        (node.across ? between.right : between.bottom) = next + gap;
        plan.dividers.push_back(DockPlan::Divider{node.id, static_cast<int>(shown[at]), between, node.across});
        place = next + gap;
    }
}

DockPlan DockLayout::Arrange(UINT frame, CRect const & rect)
{
    DockPlan plan;
    DockNode * const tree = Tree(frame);
    if (tree == nullptr)
        return plan;
    Measure(*tree, frame != 0);
    plan.least = tree->least;
    CRect const space(rect.left, rect.top, std::max(rect.left, rect.right), std::max(rect.top, rect.bottom));
    if (tree->shown)
        Place(*tree, space, plan, frame != 0);
    return plan;
}

int DockLayout::MoveDivider(UINT frame, CRect const & rect, UINT split, int index, int offset)
{
    Arrange(frame, rect);
    DockNode * const tree = Tree(frame);
    DockNode * const node = tree != nullptr ? FindNode(*tree, split) : nullptr;
    if (node == nullptr || node->kind != DockNode::Kind::split || index < 0 ||
        static_cast<size_t>(index) >= node->children.size())
        return 0;
    DockNode & before = node->children[static_cast<size_t>(index)];
    DockNode * after = nullptr;
    for (size_t at = static_cast<size_t>(index) + 1; at < node->children.size() && after == nullptr; ++at)
    {
        if (node->children[at].shown)
            after = &node->children[at];
    }
    if (!before.shown || after == nullptr)
        return 0;
    int const most = std::max(0, Along(after->arranged, node->across) - Along(after->least, node->across));
    int const least = std::min(0, Along(before.least, node->across) - Along(before.arranged, node->across));
    offset = std::clamp(offset, least, most);
    if (offset == 0)
        return 0;
    TakeArranged(*node);
    if (!before.stretched)
        before.extent += offset;
    if (!after->stretched)
        after->extent -= offset;
    Arrange(frame, rect);
    return offset;
}

bool DockLayout::SameAs(DockLayout const & other) const
{
    auto const samePane = [](auto const & one, auto const & two) {
        return one.first == two.first && one.second.place == two.second.place &&
               one.second.visible == two.second.visible && one.second.size == two.second.size &&
               one.second.floatRect == two.second.floatRect && one.second.foldSide == two.second.foldSide;
    };
    auto const sameFrame = [](Frame const & one, Frame const & two) {
        return one.rect == two.rect && SameNodes(*one.tree, *two.tree);
    };
    return SameNodes(m_root, other.m_root) && m_folded == other.m_folded &&
           std::equal(m_panes.begin(), m_panes.end(), other.m_panes.begin(), other.m_panes.end(), samePane) &&
           std::equal(m_frames.begin(), m_frames.end(), other.m_frames.begin(), other.m_frames.end(), sameFrame);
}
} // namespace framework
