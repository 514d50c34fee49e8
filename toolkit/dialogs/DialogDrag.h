#pragma once
// Dragging of a window by its client area, as positions that know no window. All positions are screen pixels.

#include <afx.h>
#include <atltypes.h>

#include "frame/Export.h"

/// One window's drag: where the window goes while the mouse moves.
class INSTRUMENT_UI_API CDialogDrag
{
public:
    /// Whether a press may start a drag at all; off at first.
    void Enable(bool enable) { m_enabled = enable; }
    /// Whether a press with those mouse flags (MK_ values) starts a drag. frozen: the windows must stay where they are.
    bool StartsWith(unsigned int mouseFlags, bool frozen) const;

    /// Starts a drag with the mouse at that place; window: its rectangle then.
    void Start(CPoint mouse, CRect const & window);
    /// Whether a drag runs.
    bool Runs() const { return m_runs; }
    /// The window's new left top corner. Only while a drag runs.
    CPoint MoveTo(CPoint mouse);
    /// Ends the drag; false if none ran.
    bool End();

private:
    bool m_enabled = false;
    bool m_runs = false;
    CPoint m_mouse = CPoint(0, 0);
    CPoint m_corner = CPoint(0, 0);
};
