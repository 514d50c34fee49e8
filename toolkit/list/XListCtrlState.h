#pragma once
// What the list's sources keep in it and no host needs to see.

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

#include "frame/LifeWatch.h"
#include "list/CellPainters.h"
#include "list/RowMemory.h"
#include "list/XListColumnFit.h"
#include "list/XListCtrl.h"
#include "list/XListRowPool.h"

namespace XListCtrl
{
class CXCombo;
class CXEdit;
} // namespace XListCtrl

struct CXListCtrl::RowState
{
    static constexpr std::size_t first_pool_capacity = 16;

    CXListRowPool pool{first_pool_capacity};
    RowMemory memory;
    /// Row objects that operations under way keep in use.
    std::vector<XLISTCTRLROW const *> pinned;
    /// The next change is an operation of this class, which keeps the books itself.
    bool ownChange = false;
    /// Likewise of columns.
    bool ownColumnChange = false;
    /// Some cell has had a kind of the host's own: only then rows are asked for them.
    bool hadKinds = false;
    /// Ends with the list, for whoever must know.
    LifeSign life;
};

/// What AutosizeColumnWidth works with.
struct CXListCtrl::FitState
{
    std::vector<int> widths;
    CColumnFitMemory memory;
};

struct CXListCtrl::SortState
{
    int column = -1;
    bool ascending = true;
    /// Stand in for missing row objects during a sort. Kept, since a parent may refuse that an item loses its own.
    std::vector<std::unique_ptr<XLISTCTRLROW>> standIns;
    std::size_t standInsInUse = 0;
};

struct CXListCtrl::DragState
{
    // The cursors of a drag, by the numbers of the system's resources.
    static constexpr long long arrow_cursor = 32512;
    static constexpr long long refusing_cursor = 32648;

    bool enabled = false;
    int source = -1;
    int target = -1;
    long long cursor = arrow_cursor;
    CImageList image;
    /// Trades of two rows under way: for a moment both share one object.
    int rowSwaps = 0;
};

/// Not owned by anything else: EndEdit and EndCombo end the objects with their windows.
struct CXListCtrl::EditorState
{
    /// The cell's text when an editor opened.
    CString savedText;
    XListCtrl::CXEdit * edit = nullptr;
    int editRow = 0;
    int editCol = 0;
    XListCtrl::CXCombo * combo = nullptr;
    int comboRow = 0;
    int comboCol = 0;
    CRect comboRect;
    /// How many combos were opened so far.
    unsigned int comboOpenings = 0;
    /// The list keeps its window from painting until a timer ends that.
    bool updateLocked = false;
};

struct CXListCtrl::PaintState
{
    CellPalette palette;
    /// The paint under way; null outside of one. Not owned.
    PaintScope * scope = nullptr;
};

template <class Visit> void CXListCtrl::VisitRows(Visit && visit) const
{
    if (RowsAreKnown())
    {
        for (auto const & row : m_rows->pool.InUse())
            visit(*row);
        return;
    }
    for (XLISTCTRLROW * const row : RowsFromTop())
    {
        if (row != nullptr)
            visit(*row);
    }
}
