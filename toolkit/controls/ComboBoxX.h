#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <list>
#include <map>

#include "frame/Export.h"

/// A combo box whose rows have a number each, with a tip that shows a text too wide for its field, completion while
/// typing, and a drop-down that grows to its longest entry. Created directly, or put in the place of a dialog's combo
/// box by subclassing. The number of a row is its item data; -1 is that of the blank row. For the user-interface thread
/// alone.
class INSTRUMENT_UI_API CComboBoxX : public CComboBox
{
public:
    CComboBoxX();
    CComboBoxX(CComboBoxX const &) = delete;
    CComboBoxX & operator=(CComboBoxX const &) = delete;
    ~CComboBoxX() override;

    /// The row, or a negative number if there is none. A null text counts as an empty one.
    int AddItem(wchar_t const * text, int data);
    /// Adds the texts in their order, numbered from firstData.
    void FillItems(std::list<CString> const & items, int firstData, bool clearFirst);
    /// Empties the control and adds the items in the order of their numbers. blankRow: a dash with the number -1 comes
    /// first, unless an item has that number.
    void FillItems(std::map<int, CString> const & items, bool blankRow);
    /// The first row with the number; -1 if there is none.
    int FindItemData(int data);
    /// Selects the first row with the number and gives it; -1, and the selection as it was, if there is none.
    int SelectItemData(int data);
    /// The number of the selected row, or defaultData.
    int GetSelectedItemData(int defaultData);

    /// Whether a typed text is completed by the first row that begins with it. Off at first.
    void AutoComplete(bool complete);
    /// Whether the drop-down fits itself to its entries each time it opens. On at first.
    void AutoFit(bool fit);
    /// Whether the Return key is reported to the owner, or else the parent, as WM_NOTIFY with NM_RETURN, and goes
    /// nowhere else. Off at first.
    void Editable(bool editable);
    /// Widens the drop-down to its longest entry, measured in the system's font, whatever the control's; false if it
    /// was wide enough. It never gets narrower.
    bool FitToWidth();
    /// Makes the drop-down as wide as the control.
    void FitToEditWidth();
    /// The dots an inch that it is shown with, 96 at first: the fitted drop-down and the tip follow. The font stays the
    /// host's. FALSE, and nothing else, below 48 and above 960.
    BOOL SetDpi(UINT dpi);
    /// See SetDpi.
    UINT GetDpi() const { return m_dpi; }
    /// Whether it takes its window's resolution, at once and whenever that changes. Off at first.
    void FollowDpi(BOOL follow);

    BOOL PreTranslateMessage(MSG * msg) override;

protected:
    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * result) override;
    /// Ends the tip with the window.
    void PostNcDestroy() override;

    /// Before the list opens: fits its width where that is wanted.
    void OnDropdown();
    afx_msg void OnEditupdate();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

    HWND m_toolTipWnd;
    TOOLINFOW m_toolInfo;
    bool m_editable;
    bool m_autoComplete;
    bool m_completeNow;
    bool m_autoFit;

private:
    void EndTip();
    void ShowTip(bool show);
    CRect TextField() const;

    UINT m_dpi = 96;
    bool m_followsDpi = false;
};
