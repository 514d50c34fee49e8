#pragma once

#include <afxwin.h>

#include <list>
#include <memory>
#include <vector>

#include "frame/LifeWatch.h"
#include "list/combo/ComboItems.h"

namespace XListCtrl
{
class CAdvComboBox;
class CDropScrollBar;

/// The list of a drop window. It selects what the pointer is over, and steps over disabled items. Each entry's item
/// data is its combo_item: the drop window's own, or a copy that the list owns. Internal to the module.
class CDropListBox : public CListBox
{
public:
    /// Neither is owned.
    CDropListBox(CAdvComboBox * combo, CDropScrollBar * scroll);
    CDropListBox(CDropListBox const &) = delete;
    CDropListBox & operator=(CDropListBox const &) = delete;
    ~CDropListBox() override;

    int GetBottomIndex() const;
    int GetVisibleRows() const;
    /// Selects the next item in the direction of the move that is not disabled. The result is that of LB_SETCURSEL, or
    /// the index of a disabled item, which was then not selected.
    int SetCurSel(int index);
    /// update: the scroll bar follows.
    int SetTopIdx(int index, bool update);
    /// The new entry's index. The entry has a copy of the item.
    int AddListItem(combo_item const & item);
    /// All items at once, without painting in between. They are not copied and must last as long as the list's window.
    void AddListItems(std::list<combo_item> const & items);
    /// In pixels, with the extra of the combo's flags; false if it could not be measured.
    bool GetTextSize(wchar_t const * text, int length, CSize & size);
    /// The width of the widest item, with the extra; 0 without items.
    int GetWidestText(std::list<combo_item> const & items);
    void SetComboFlags(DWORD flags) { m_comboFlags = flags; }
    /// Null outside the list.
    combo_item const * GetItem(int index) const;
    bool IsDisabled(int index) const;

    BOOL DestroyWindow() override;

protected:
    /// The native list selects whatever is pressed; disabled items are kept from it.
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg LRESULT OnSetCapture(WPARAM, LPARAM);
    afx_msg LRESULT OnReleaseCapture(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

    CAdvComboBox * m_combo;
    /// Made and never selected, as hosts expect.
    std::unique_ptr<CFont> m_font;
    CDropScrollBar * m_scroll;
    int m_lastTop = 0;
    DWORD m_comboFlags = 0;
    /// While it is FALSE, the selection steps over disabled items.
    BOOL m_allowDisabled = FALSE;

private:
    class Access;

    LRESULT AnswerGetObject(WPARAM flags);
    /// The entry's data is the item itself.
    int AddEntry(combo_item const & item);
    int RowAt(CPoint point) const;
    /// Gives the row to the combo, which closes its drop-down then; LB_ERR: that alone.
    void Choose(int selected);
    bool IsOutside(CPoint point) const;
    void HandCaptureToParent();
    void DeleteItems();

    std::vector<std::unique_ptr<combo_item>> m_copies;
    LifeSign m_life;
};
} // namespace XListCtrl
