#pragma once

#include <afx.h>
#include <atltypes.h>

#include <set>

#include "frame/Export.h"

class CWnd;

/// The memory of one named window: where it stands, written to and read from the preference store under keys made from
/// its name, and whether it was open when the application last ended. All live managers stand in one list of the
/// process, in which a window is found by name.
///
/// A manager is bound to its window by the first call of ReadMyPosition or CalcMyPosition and keeps the pointer, which
/// it doesn't own, after the window has ended. Coordinates are in pixels. Without a preference store nothing is stored,
/// read or erased. Names are compared exactly; of two managers of one name the one at the lower address is found.
class INSTRUMENT_UI_API CFensterManager : public CObject
{
    DECLARE_DYNAMIC(CFensterManager)

public:
    /// What kind of window a manager serves.
    enum window_t
    {
        /// The application's main window; it alone may set the exit flag.
        window_main = 0,
        /// A view inside a frame; its owner's placement is meant.
        window_view = 1,
        /// A dialog of fixed size.
        window_dialog = 2,
        /// A child frame of the main frame.
        window_mdi_child = 3,
        /// A dialog that can be resized.
        window_sizable_dialog = 4
    };

    /// A manager without a name.
    explicit CFensterManager(window_t type = window_view);
    CFensterManager(CString const & name, window_t type = window_view);
    ~CFensterManager() override;

    /// Renames the window; the keys change with the name.
    void WhoAmI(CString const & name);
    CString const & WhoAmI() const;
    /// The window's type as the number of window_t.
    int WhatsMyType() const;
    /// Sets the window's type.
    void SetMyType(window_t type);

    /// The rectangle used where the store holds none, and the size of a fixed dialog.
    void PreferedPosition(CRect position);
    void PreferedPosition(int left, int top, int right, int bottom);
    /// The normal rectangle of that window's present placement. The window must not be null.
    void PreferedPosition(CWnd * window);

    /// The normal rectangle of the record.
    CRect WhatsMyPosition();
    /// The show command of the record, an SW_ value.
    unsigned int WhatsMyStyle();
    /// The show command of the record, an SW_ value.
    void SetShowMode(unsigned int showCommand);

    /// Whether the application is ending.
    static bool NowExit();
    /// Does nothing on a manager of any type but window_main.
    void SetNowExit(bool exit);
    /// Whether a position that is read is moved onto the primary screen.
    static bool NurEinMonitor();
    /// Sets that, for all windows.
    static void SetNurEinMonitor(bool onlyOne);
    /// Whether views are shown as tabs, so that the positions of views and child frames are not stored.
    static bool TabbedViews();
    /// Sets that, for all windows.
    static void SetTabbedViews(bool tabbed);

    /// Binds the window and takes its present placement into the record. A null or dead window is bound only.
    void CalcMyPosition(CWnd * window);
    /// Stores the record as it stands. closing: the window is about to end, so that it counts as open at the next start
    /// only while the application is ending. Of a window that has ended only "not open" is stored. Unbound: nothing.
    void SaveMyPosition(bool closing) const;
    /// CalcMyPosition and SaveMyPosition(false) for every manager in the list.
    void SaveAllPositions() const;
    /// Binds the window, which may be null, reads its record and applies it to a live window. The show command stays as
    /// it is, so a window that was maximised comes back in its normal rectangle; that is meant.
    void ReadMyPosition(CWnd * window);
    /// Deletes what is stored of this window; true if all four entries could be deleted.
    bool EraseMyPosition();
    /// Whether the window was open when the application last ended; false while unbound.
    bool OpenInitially() const;
    /// The same for any name; needs no manager.
    static bool OpenInitially(CString const & name);

    /// Non-zero if a manager of that name is in the list.
    int AlreadyOpen(CString const & name) const;
    // The operations below do nothing, or give 0, for an unknown name. The manager found must be bound.

    /// Activates a child frame; does nothing for other types.
    void ActivateThatWindow(CString const & name);
    /// Takes the manager out of the list, then destroys its window.
    void KillThatWindow(CString const & name);
    /// Minimises the window.
    void MinimizeThatWindow(CString const & name);
    /// Shows the window in its normal place and size.
    void RestoreThatWindow(CString const & name);
    /// Non-zero if the window is minimised.
    int IsIconic(CString const & name);
    /// Non-zero if the window is maximised.
    int IsMaximized(CString const & name);
    /// Destroys every child frame that has a manager in the list. Each must be bound.
    void CloseAllViews();
    /// Greys the system menu of every window in the list and takes the boxes of child frames away, or gives them back.
    static void ActivateTouchFreeze(bool freeze);

protected:
    /// The list's entry of that very manager, or the end.
    std::set<CFensterManager *>::const_iterator FindeMich(CFensterManager * manager) const;
    /// The first manager of that name, or the end.
    std::set<CFensterManager *>::const_iterator FindeDich(CString const & name) const;

    static std::set<CFensterManager *> m_managerListe;
    static CSize m_bildschirmGroesse;
    static bool m_nurEinMonitor;
    static bool m_schluss;
    static bool m_tabbedViews;

private:
    void init();
    void SetMyPosition(CWnd * window);
    void MoveOntoScreen(CRect const & read);
    static bool HasWindow(CFensterManager * manager);
    static void Freeze(CFensterManager & manager, bool freeze);

    CString m_name;
    window_t m_type;
    WINDOWPLACEMENT m_placement;
    int m_gestalt;
    CRect m_preferred;
    CWnd * m_wnd;
};
