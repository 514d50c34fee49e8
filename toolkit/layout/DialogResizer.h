#pragma once

#include <afx.h>
#include <atltypes.h>

#include <map>

#include "frame/Export.h"
#include "frame/LifeWatch.h"
#include "layout/Edges.h"

class CWnd;
struct tagMINMAXINFO;

/// Moves the children of one dialog whenever the dialog's size changes. Every child's rectangle is computed afresh from
/// its design rectangle and the dialog's growth since the resizer was constructed, so repeated resizing never drifts.
/// Lengths are in pixels, fractions in 1/10000 of the dialog's growth in that direction.
///
/// Whoever creates the resizer owns it. It owns neither the dialog nor the children, and must end before the dialog
/// object does. A dialog has one resizer.
class INSTRUMENT_UI_API CDialogResizer
{
public:
    /// The directions in which a dialog may grow beyond its design size; a bit set.
    enum resize_dims_t
    {
        RESIZE_NONE = 0,
        RESIZE_HORIZONTAL = 1,
        RESIZE_VERTICAL = 2,
        RESIZE_BOTH = 3
    };

    /// The dialog's present outer rectangle becomes its design and minimum size. A dialog that is no window is reported
    /// as a failed assertion. storageKey names the dialog's rectangle in the preference store; empty: nothing is
    /// stored.
    CDialogResizer(CWnd & dialog, CString const & storageKey);
    CDialogResizer(CDialogResizer const &) = delete;
    CDialogResizer & operator=(CDialogResizer const &) = delete;
    /// Stores the rectangle last seen by OnSize, unless the key is empty. Needs no live window.
    ~CDialogResizer();

    /// Registers a child, or changes a registered one wholly. Moves nothing; the child moves at the next OnSize. A null
    /// child or an id without a control does nothing.
    ///
    /// designRect is the child's place at the design size, in client coordinates of its parent; null: its present
    /// place.
    ///
    /// The constants of `edges` are tested in the order LEFT, LEFT_HALF, RIGHT_HALF, RIGHT, HORI_CENTER, and TOP,
    /// TOP_HALF, TOP_THIRD, TOP_TWOTHIRD, BOTTOM, BOTTOM_HALF, BOTTOM_THIRD, BOTTOM_TWOTHIRD, VERT_CENTER; a later one
    /// replaces what earlier ones of its direction gave, save that LEFT with RIGHT, and TOP with BOTTOM, stretch.
    void PositionChild(CWnd * child, CEdges const & edges, CRect const * designRect);
    void PositionChild(int id, CEdges const & edges, CRect const * designRect);
    /// The same with the fraction of the dialog's growth that each edge follows, in 1/10000.
    void PositionChild(CWnd * child, CRect const & fractions, CRect const * designRect);
    void PositionChild(int id, CRect const & fractions, CRect const * designRect);

    /// Changes the design rectangle of a registered child: shifts it by `offset` and adds `growth` to its size; either
    /// may be null. Moves nothing; the caller calls OnSize. An unregistered child or an id without a control does
    /// nothing. The child must not be null.
    ///
    /// scale: the amounts are first multiplied by the whole quotient of design size and present size. Hosts expect that
    /// this is 1 at the design size and 0 in a direction in which the dialog is larger. Where the dialog has no size at
    /// all the amounts are taken as they are.
    void RepositionChild(CWnd const * child, CSize const * offset, CSize const * growth, bool scale);
    void RepositionChild(int id, CSize const * offset, CSize const * growth, bool scale);

    /// Lays out all registered children for the dialog's present size, but never for less than its design size.
    void OnSize();
    /// Sets the minimum track size to the design size, and likewise the maximum in each direction missing from `dims`.
    void OnGetMinMaxInfo(tagMINMAXINFO * info, resize_dims_t dims);
    /// Moves the dialog to the stored rectangle. Does nothing with an empty key.
    void RestoreStoredPosition();

private:
    struct ChildPlacement
    {
        HWND hWnd;
        CRect designRect;
        CRect fractions;
    };

    static CRect FractionsOf(CEdges const & edges);
    static CRect Placed(ChildPlacement const & placement, CSize growth);
    void VeskLookup(bool save);

    std::map<HWND, ChildPlacement> m_children;
    CRect m_designRect;
    CRect m_currentRect;
    CString m_storageKey;
    CWnd & m_dialog;
    LifeSign m_life;
};
