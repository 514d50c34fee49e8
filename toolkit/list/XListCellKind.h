#pragma once
// Kinds of list cells that a host brings itself.

#include <afx.h>
#include <atltypes.h>

#include <optional>

#include "frame/Export.h"
#include "list/XListCtrlData.h"

class CDC;

/// A kind of cell beside those of the list. One object may serve any number of cells, of several lists; whatever
/// differs between cells is in their records. While a cell has such a kind, the list paints it by that alone, offers it
/// presses and keys first, and sorts and exports it by what the kind says. For the user-interface thread alone.
class INSTRUMENT_UI_API CXListCellKind
{
public:
    CXListCellKind() = default;
    CXListCellKind(CXListCellKind const &) = delete;
    CXListCellKind & operator=(CXListCellKind const &) = delete;
    virtual ~CXListCellKind();

    /// What a press or a key has made of a cell.
    struct Change
    {
        /// One of the list's messages, or one of the host's, that tells the parent with row and column.
        unsigned int message;
        /// The text that the cell shows from now on, for those who read it; the present one stays without.
        std::optional<CString> text;
    };

    /// Paints all of the rectangle, which is the cell's, in client coordinates. The colours are those that the cell is
    /// drawn in now, selected or not. Gives the context back as it was.
    virtual void Paint(XLISTCTRLDATA const & cell, CDC & dc, CRect const & rect, COLORREF text,
                       COLORREF background) = 0;
    /// A left press at that point of the rectangle, on an enabled cell. What it changed; nothing to leave the press to
    /// the kind that the cell would be without. The list marks cell and list as changed, repaints and tells the parent.
    virtual std::optional<Change> Press(XLISTCTRLDATA & cell, CRect const & rect, CPoint point);
    /// A key (a VK_ code) in the list, while the cell's row has the focus and the cell is enabled. Of several such
    /// cells the cell cursor's is asked first, then the others from the left until one takes it. Likewise.
    virtual std::optional<Change> Key(XLISTCTRLDATA & cell, unsigned int key);
    /// What the list's own sort goes by; nothing to sort as without the kind. The same cell gives the same value until
    /// it is changed.
    virtual std::optional<long long> SortValue(XLISTCTRLDATA const & cell) const;
    /// What is exported; nothing to export as without the kind.
    virtual std::optional<CString> ExportText(XLISTCTRLDATA const & cell) const;
};
