#pragma once

#include <afxdialogex.h>

#include <memory>

#include "dialogs/DialogDrag.h"
#include "dialogs/DialogFade.h"
#include "dialogs/PopupConfig.h"
#include "frame/Export.h"
#include "frame/LifeWatch.h"
#include "layout/DialogResizer.h"
#include "windows/FensterManager.h"

/// The base of the suite's dialogs: a template from the right module, a remembered position under a name that outlives
/// the caption, resizing by edges, alpha fades, dragging by the client area, and popup menus described by data.
///
/// The object may be opened and closed as often as wanted; closing stores the position. Lengths are in pixels, alpha is
/// 0 (not to be seen) to 255 (opaque), times are in milliseconds. For the user-interface thread alone.
///
/// A template with WS_THICKFRAME makes the dialog resizable; its size at the first opening is then the smallest one.
class INSTRUMENT_UI_API CDialog3d : public CDialogEx
{
public:
    /// A dialog's icon.
    enum icon_t
    {
        ICON_STANDARD = 0,
        ICON_DISC = 1,
        ICON_SCOPE = 2,
        ICON_DIAL = 3
    };

    /// The grip in the lower right corner of a dialog that can be resized.
    class INSTRUMENT_UI_API CSizeGrip : public CScrollBar
    {
    public:
        CSizeGrip();
        CSizeGrip(CSizeGrip const &) = delete;
        CSizeGrip & operator=(CSizeGrip const &) = delete;
        ~CSizeGrip() override;

        using CScrollBar::Create;
        /// Creates the grip as a child of the dialog, places and shows it; the creation's result. The dialog must have
        /// a window.
        virtual BOOL Create(CWnd * dialog);

    protected:
        afx_msg LRESULT OnNcHitTest(CPoint point);

        DECLARE_MESSAGE_MAP()

    private:
        friend class CDialog3d;

        void Place();

        CSize m_size;
    };

    /// Stands for "no library": the template is the application's own.
    static AFX_EXTENSION_MODULE const NO_DLL;

    /// While set, no dialog of the process can be moved or sized, and no drag starts. One that runs goes on.
    static bool g_touchFreeze;

    /// module: whose resources hold the template. dialogId: the template. parent: the owner of the modal dialog, may be
    /// null.
    CDialog3d(AFX_EXTENSION_MODULE module, unsigned int dialogId, CWnd * parent);
    CDialog3d(CDialog3d const &) = delete;
    CDialog3d & operator=(CDialog3d const &) = delete;
    ~CDialog3d() override;

    BOOL OnCmdMsg(UINT id, int code, void * extra, AFX_CMDHANDLERINFO * info) override;
    void PreSubclassWindow() override;
    BOOL PreTranslateMessage(MSG * message) override;
    /// Shows the dialog and returns when it is closed: what EndDialog was given, or -1 without a template.
    INT_PTR DoModal() override;
    BOOL OnInitDialog() override;

    /// Opens the dialog without waiting for its end; non-zero if it is open. One that is open already stays as and
    /// where it is, also below other windows.
    virtual int DisplayDialog();

    /// Whether the dialog has a window.
    bool IsOpen() const;
    /// Whether the dialog was open when the program last ended. A dialog that has not been open yet is created for that
    /// out of sight and destroyed again, since its name may only be known then.
    bool OpenInitially();

    /// Moves the dialog to its stored position. Not in pane-child mode.
    void FensterpositionLaden();
    /// Stores the present position.
    void FensterpositionSpeichern();

    /// Sets the caption, and until the first opening the genuine title as well.
    void SetDialogTitle(CString const & title);
    /// The caption.
    CString const & GetDialogTitle() const;
    /// Sets the name under which the position is stored. From the first opening on it is fixed: false, nothing changed.
    /// A dialog without one takes its template's caption when it first opens.
    bool SetGenuineTitle(CString const & title);
    /// The name under which the position is stored.
    CString const & GetGenuineTitle() const;

    /// Chooses the icon, which shows at the next opening; an unknown one gives the standard icon.
    void SelectIcon(icon_t icon);

    /// Fades in to opaque.
    void Einblenden(unsigned long ms);
    /// Fades out wholly.
    void Ausblenden(unsigned long ms);
    /// Fades from the present alpha to this one, in place of a fade that runs. alpha: brought into 0 to 255. ms: 25 or
    /// more; less takes one tick. A change of fewer units than ms / 25 does nothing, as hosts expect.
    void Ueberblenden(int alpha, unsigned long ms);
    /// Sets the alpha at once.
    void DurchsichtigkeitSetzen(unsigned char alpha);
    /// The alpha to which the dialog fades when it becomes inactive; 255 turns that off.
    void DurchsichtigkeitBeiInaktiv(unsigned char alpha);

    /// Whether the user can drag the dialog by its client area; not at first.
    void SetGrabAndMove(bool enable);

    /// In pane-child mode the dialog is a child in a pane: it remembers no position, has no grip and always follows its
    /// size. Set it before the window is created, and enter ON_WM_CREATE() in the derived class's message map.
    void SetPaneChildMode(bool paneChild);
    /// Whether the dialog is a child in a pane.
    bool GetPaneChildMode() const;

    /// See g_touchFreeze.
    static void SetTouchFreeze(bool freeze);
    /// See g_touchFreeze.
    static bool IsInTouchFreeze();

    /// Dispatches the queued paint messages; before them, with withUserMessage, those of the host's own message
    /// WM_USER + 1000. Any handler may run inside.
    static void PumpPaintMessages(bool withUserMessage);
    /// Dispatches the queued messages of that number, or all with 0. False if the program is to end, which only 0 can
    /// tell. Any handler may run inside.
    static bool PumpWindowsMessages(unsigned int message);

    /// The key groups (KeyGroups.h) that the dialog leaves to the application's frames and accelerators; 255 alone
    /// stands for every key. At first it leaves the function keys from F2.
    void DontAbsorbKeys(unsigned int mask);
    /// Leaves every key.
    void DontAbsorbAnyKeys();
    /// Leaves function keys, digits, letters and navigation.
    void DontAbsorbNormalKeys();
    /// Leaves the function keys, withSpace also Space.
    void DontAbsorbControlKeys(bool withSpace);

protected:
    /// Opens the window from that module's template; non-zero on success.
    int DisplayDialog(AFX_EXTENSION_MODULE module, unsigned int id);
    /// The same as FensterpositionSpeichern.
    void SaveDialogPosition();

    /// Lets the size be stored and read as well as the place.
    void MakeResizingDialog();
    /// Tells how a control follows the dialog's size; the arguments are those of CDialogResizer::PositionChild. Only
    /// after OnInitDialog of this class. Does nothing in a dialog without resizing, of which D3dLayoutComplete tells
    /// the user.
    void D3dLayoutChild(int id, CEdges const & edges, CRect const * designRect);
    void D3dLayoutChild(int id, CRect const & fractions, CRect const * designRect);
    /// Changes a control's design rectangle; see CDialogResizer::RepositionChild.
    void D3dLayoutMoveChild(int id, CSize const * offset, CSize const * growth, bool scale);
    /// Lays the controls out for the present size.
    void D3dLayoutTouch();
    /// Ends the calls of D3dLayoutChild: allows those directions, reads the stored position and lays the controls out.
    /// A dialog whose template has no WS_THICKFRAME shows a message instead and stays as it is.
    void D3dLayoutComplete(CDialogResizer::resize_dims_t dims);
    /// The control's rectangle in the dialog's client coordinates. The control must exist.
    void ClientCoordinates(int id, CRect & rect);
    /// Enables or greys the system menu's close command, and the button with it.
    void EnableCloseButton(bool enable);
    /// The largest id of the dialog's controls; at least 0.
    int GetMaxID();

    /// Exchanges a number with the text of a combo box. Text that is no number leaves the value as it was.
    void DDX_CBInt(CDataExchange * pDX, int id, int & value);
    /// The same with a floating number.
    void DDX_CBFloat(CDataExchange * pDX, int id, float & value);

    /// Shows the menu at that place on the screen and returns when it is closed. The chosen entry's callback runs when
    /// its command arrives, unless a message map handles a command of that number: the ids follow the largest control
    /// id. The entries are copied.
    void ActivatePopup(CPopupConfig const & config, int x, int y);

    afx_msg int OnCreate(LPCREATESTRUCT createStruct);
    afx_msg void OnDestroy();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO * info);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnActivate(UINT state, CWnd * other, BOOL minimized);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMoving(UINT side, LPRECT rect);
    afx_msg void OnSizing(UINT side, LPRECT rect);

    DECLARE_MESSAGE_MAP()

    /// Whether the window fades in when it is created.
    bool m_fadeInOnCreate;

private:
    void KeepPlace(LPRECT proposed) const;

    AFX_EXTENSION_MODULE m_module;
    unsigned int m_dialogId;
    CString m_dialogTitle;
    CFensterManager m_fenster;
    HICON m_hIcon; // shared by the system
    bool m_paneChild;
    unsigned int m_noAbsorbKeys;
    CDialogResizer::resize_dims_t m_resizeDims;
    CSizeGrip m_sizeGrip;
    std::unique_ptr<CDialogResizer> m_resizer;
    std::unique_ptr<CPopupConfig> m_popupConfig;
    CDialogDrag m_drag;
    unsigned char m_inactiveAlpha;
    CDialogFade m_fade;
    bool m_initialised; // the genuine title is fixed
    bool m_keepHidden;  // the window is only made for OpenInitially
    LifeSign m_life;
};
