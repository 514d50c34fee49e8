#pragma once

#include <afxwin.h>

#include <cstdint>
#include <list>
#include <memory>
#include <string>

#include "frame/LifeWatch.h"
#include "list/combo/ComboItems.h"
#include "list/combo/ComboMessages.h"

namespace XListCtrl
{
class CAdvComboEdit;
class CDropListBox;
class CDropWnd;

/// A combo box that draws itself and answers the CB_ messages of the standard one. It can disable items, completes or
/// suggests what is typed, and its drop-down can be sized by the user. Internal to the module.
///
/// Made by Create, by CreateEx with the class name "SuperComboBox", or by subclassing such a control of a dialog
/// template. CBS_DROPDOWNLIST and CBS_DROPDOWN are understood. Of a combo made by Create the edit field comes with
/// WM_CHILDACTIVATE, so that the combo has to be shown or moved with SetWindowPos first.
///
/// The parent hears the CBN_ notifications. Its handlers, and the overrides below, may destroy the window or delete the
/// object. Operations on items with an index outside the list give -1.
class CAdvComboBox : public CWnd
{
public:
    /// ctorWord is stored and has no effect. parent receives the notifications and is not owned; null: the window's
    /// parent.
    explicit CAdvComboBox(DWORD ctorWord = 0, CWnd * parent = nullptr);
    CAdvComboBox(CAdvComboBox const &) = delete;
    CAdvComboBox & operator=(CAdvComboBox const &) = delete;
    ~CAdvComboBox() override;

    using CWnd::Create;
    /// rect: in the parent's client pixels. The lines of the string resource of that id, if there is one, become items.
    virtual BOOL Create(DWORD style, RECT const & rect, CWnd * parent, UINT id);
    /// Escape with a closed drop-down, or the focus was lost.
    virtual void OnComboCancel() {}
    /// Return, or a drop-down that has chosen is closed.
    virtual void OnComboComplete() {}
    /// Null if it could not be made.
    virtual CFont * GetComboFont() { return m_font.get(); }

    // Items. Results are an index, a count, or 0 for success.
    int AddString(LPCTSTR text);
    int InsertString(int index, LPCTSTR text);
    int DeleteString(int index);
    int GetCount() const;
    void ResetContent();
    int FindString(int start, LPCTSTR text) const;
    int FindStringExact(int start, LPCTSTR text) const;
    int SelectString(int start, LPCTSTR text);
    /// The length plus 1.
    int GetLBText(int index, LPTSTR buffer) const;
    int GetLBText(int index, CString & text) const;
    int GetLBTextLen(int index) const;
    std::int64_t GetItemData(int index) const;
    int SetItemData(int index, std::int64_t data);
    /// 1 or 0; -1 outside the list.
    int GetItemDisabled(int index) const;
    int SetItemDisabled(int index, bool disabled);
    int GetItemFlag(int index) const;
    int SetItemFlag(int index, std::uint32_t flag);

    /// The item whose text the combo shows: free text in the edit field gives -1, whatever was selected.
    int GetCurSel() const;
    /// Hosts expect that the edit field keeps its text.
    int SetCurSel(int index);

    /// The edit field's text, or without one the text shown.
    void GetWindowText(CString & text) const;
    void SetWindowText(LPCTSTR text);
    // Only with CBS_DROPDOWN, else -1.
    int SetEditSel(int start, int end);
    DWORD GetEditSel() const;
    /// 0: 65535 characters.
    int LimitText(int characters);

    BOOL GetDroppedState() const { return m_drop != nullptr; }
    /// Of a closed drop-down: where it was last; before the first opening the combo itself. Screen pixels.
    void GetDroppedControlRect(LPRECT rect) const;
    void ShowDropDown(bool show = true);
    /// The open drop window or null. Owned by the combo; any message can end it.
    CDropWnd * GetDropWnd() const { return m_drop; }

    /// index -1, height 10 to 50. Hosts expect that the height is not kept.
    int SetItemHeight(int index, int height);
    /// ComboFlags; the next drop window follows them.
    void ModifyComboFlags(DWORD remove, DWORD add);
    /// With fewer rows of room below the combo the drop window opens upwards.
    int GetMinVisible() const { return m_minVisible; }
    void SetMinVisible(int rows) { m_minVisible = rows; }
    /// Rows of the drop window; -1: all.
    int GetMaxVisible() const { return m_maxVisible; }
    void SetMaxVisible(int rows) { m_maxVisible = rows; }
    /// In pixels, with room for a scroll bar.
    int GetLongestItemWidth();
    /// Dots an inch: button, distances, edit field and the next drop window follow. Not served: false.
    bool SetDpi(UINT dpi);
    UINT GetDpi() const { return m_dpi; }

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    void PreSubclassWindow() override;
    void PostNcDestroy() override;

    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnSetFocus(CWnd * oldWindow);
    afx_msg void OnKillFocus(CWnd * newWindow);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnChildActivate();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg LRESULT OnSelectedItem(WPARAM index, LPARAM);
    afx_msg LRESULT OnToggleDrop(WPARAM, LPARAM);
    afx_msg LRESULT OnCloseDrop(WPARAM, LPARAM);
    afx_msg void OnEditKillFocus();
    afx_msg void OnEditSetFocus();
    afx_msg void OnEditChange();
    afx_msg void OnEditUpdate();
    afx_msg LRESULT OnCbAddString(WPARAM, LPARAM text);
    afx_msg LRESULT OnCbSetCurSel(WPARAM index, LPARAM);
    afx_msg LRESULT OnCbGetCurSel(WPARAM, LPARAM);
    afx_msg LRESULT OnCbSelectString(WPARAM start, LPARAM text);
    afx_msg LRESULT OnCbGetCount(WPARAM, LPARAM);
    afx_msg LRESULT OnCbResetContent(WPARAM, LPARAM);
    afx_msg LRESULT OnCbGetLBText(WPARAM index, LPARAM buffer);
    afx_msg LRESULT OnCbGetLBTextLen(WPARAM index, LPARAM);
    afx_msg LRESULT OnCbGetTopIndex(WPARAM, LPARAM);
    afx_msg LRESULT OnCbSetTopIndex(WPARAM index, LPARAM);
    DECLARE_MESSAGE_MAP()

    DWORD m_ctorWord;
    CWnd * m_parent;
    std::int64_t m_curSel = ComboItems::none;
    /// Only with CBS_DROPDOWN.
    CAdvComboEdit * m_edit = nullptr;
    std::wstring m_text;
    std::unique_ptr<CFont> m_font;
    /// What Create was given.
    DWORD m_style = 0;
    DWORD m_comboFlags = combo_edit_inside;
    CRect m_rcCombo;
    CRect m_rcDropSaved;
    CDropWnd * m_drop = nullptr;
    CRect m_rcButton;
    BOOL m_dropVisible = FALSE;
    bool m_dropRectValid = false;
    std::list<combo_item> m_items;
    mutable std::list<combo_item>::iterator m_iter;
    int m_wheel = 0;
    /// Paint the selection highlight.
    bool m_focused = false;
    bool m_focusNotified = false;
    /// The next close-up is no cancel.
    bool m_selMade = false;
    /// The edit field still has to get its text.
    bool m_firstPaint = true;
    int m_minVisible = 5;
    bool m_createdByCode = false;
    /// The last key may complete the text.
    DWORD m_autoAppendArmed = 1;
    bool m_hot = false;
    bool m_hotTimer = false;
    int m_maxVisible = -1;
    UINT m_dpi = 96;

private:
    class Access;
    class Watch;

    ComboItems Items() const;
    bool HasEditStyle() const;
    bool IsDropList() const;
    bool HasEdit() const;
    /// The list of the open drop window or null.
    CDropListBox * DropList() const;
    void Notify(UINT code);
    /// Tells programs that read the screen of what the parent hears.
    void TellOfNotification(UINT code) const;
    /// False if the object or its window is gone after the parent has heard.
    bool NotifyAlive(UINT code);

    void LoadItems(UINT id);
    void MakeFont();
    void MakeEdit();
    CRect EditRect() const;
    void DeleteEdit();

    std::wstring EditText() const;
    /// The text of the combo, as SetWindowText, and of its native window.
    void ShowText(std::wstring const & text);

    /// The window copies the items.
    void OpenDrop(std::list<combo_item> const & items);
    /// Ends the window and the object, and tells nobody.
    void DiscardDrop();

    void SelectPrev();
    void SelectNext();
    void SelectPageUp();
    void SelectPageDown();
    void StepInDrop(int step);
    void PageInDrop(bool down);
    void SelectClosed(int index);
    /// What a key does before it is dispatched; whether it is consumed.
    bool TakeKey(WPARAM key);
    bool TakeReturn();
    bool TakeEscape();
    bool TakeRight();
    /// The arrow and page keys; false for others.
    bool TakeNavigationKey(WPARAM key);
    void Toggle();
    void CompleteTyped(std::wstring const & typed);
    /// False if the handling of the change ends there.
    bool SuggestFor(std::wstring const & typed);

    CRect ButtonRect() const;
    CRect HotRect() const;
    void InvalidateButton();
    void PaintStyledFrame(CDC & dc, CRect const & client, CRect button, bool enabled);
    void PaintPlainFrame(CDC & dc, CRect client, CRect button, bool enabled);
    void PaintText(CDC & dc, CRect rect, bool enabled);

    /// The window of m_parent, which may be an object that lasts shorter than the window.
    HWND m_parentWindow = nullptr;
    LifeSign m_life;
};

/// Exchanges the selected index, or the text, with a variable, for DoDataExchange.
void DDX_AdvComboIndex(CDataExchange * dx, int id, CAdvComboBox & combo, int & index);
void DDX_AdvComboText(CDataExchange * dx, int id, CAdvComboBox & combo, CString & text);
} // namespace XListCtrl
