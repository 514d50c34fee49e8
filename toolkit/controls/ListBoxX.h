#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <list>
#include <map>

#include "frame/Export.h"

/// A list box whose rows have a number each, with a tip that shows a row's text where it is too wide for the list.
/// Created directly, or put in the place of a dialog's list box by subclassing. The number of a row is its item data.
/// For the user-interface thread alone.
class INSTRUMENT_UI_API CListBoxX : public CListBox
{
public:
    CListBoxX();
    CListBoxX(CListBoxX const &) = delete;
    CListBoxX & operator=(CListBoxX const &) = delete;
    ~CListBoxX() override;

    /// The row, or a negative number if there is none. A null text counts as an empty one.
    int AddItem(wchar_t const * text, int data);
    /// Adds the texts in their order, numbered from firstData.
    void FillItems(std::list<CString> const & items, int firstData, bool clearFirst);
    /// Empties the control and adds the items in the order of their numbers.
    void FillItems(std::map<int, CString> const & items);
    /// The first row with the number; -1 if there is none.
    int FindItemData(int data);
    /// Selects the first row with the number and gives it; -1, and the selection as it was, if there is none.
    int SelectItemData(int data);
    /// The number of the selected row, or defaultData.
    int GetSelectedItemData(int defaultData);

    /// The dots an inch that it is shown with, 96 at first: a row's edges follow, by which its text is too wide or not.
    /// The font, and with it the rows' height, stays the host's. FALSE, and nothing else, below 48 and above 960.
    BOOL SetDpi(UINT dpi);
    /// See SetDpi.
    UINT GetDpi() const { return m_dpi; }
    /// Whether it takes its window's resolution, at once and whenever that changes. Off at first.
    void FollowDpi(BOOL follow);

    /// The row at a point of the client area, with 0 in outside; -1, with 1 in outside, where there is none.
    int LbxZeileZumPunkt(CPoint point, int & outside) const;
    /// The row whose text is too wide for the list; -1 for none.
    INT_PTR OnToolHitTest(CPoint point, TOOLINFOW * info) const override;
    /// Gives a tip its row's text: at most 79 characters, of a longer one its end behind three dots.
    int OnToolTipText(UINT id, NMHDR * header, LRESULT * result);

protected:
    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()

private:
    UINT m_dpi = 96;
    bool m_followsDpi = false;
};
