#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <map>
#include <set>

#include "controls/IdNameMultiselectListCtlr.h"
#include "frame/Export.h"
#include "frame/LifeWatch.h"

/// Lets the user tick any of a list of named things, each known by an id. It takes the place of a button of a dialog
/// template and makes its list and buttons when it is sized or painted first; until then it is data only. Data outlives
/// the window.
///
/// A selection that contains -1 means all items, also those that the map gets later; -1 is no id. What the user does is
/// posted to the parent as WM_IDNAME_MULTISELECT_EVENT. Setters store: call RefreshContent or RefreshSelection to show
/// changes. For the user-interface thread alone.
class INSTRUMENT_UI_API CIdNameMultiselectCtrl : public CButton
{
    DECLARE_DYNAMIC(CIdNameMultiselectCtrl)

public:
    CIdNameMultiselectCtrl();
    CIdNameMultiselectCtrl(CIdNameMultiselectCtrl const &) = delete;
    CIdNameMultiselectCtrl & operator=(CIdNameMultiselectCtrl const &) = delete;
    ~CIdNameMultiselectCtrl() override;

    /// Replaces the items. Call RefreshContent to show them, here and after each change of them.
    void SetTheMap(std::map<int, CString> const & map);
    /// An id that is there already keeps its name.
    void AddItem(int id, CString const & name);
    /// Takes all items away.
    void ResetTheMap();
    /// The items: names by id.
    std::map<int, CString> const & TheMap() const;
    /// An empty text for an unknown id.
    CString const & GetName(int id) const;

    /// The selected ids; -1 among them stands for all items.
    void SetSelection(std::set<int> const & ids);
    /// This id alone.
    void SetSelection(int id);
    /// Selects all items.
    void SetSelectionAll();
    /// Selects nothing.
    void SetSelectionNone();
    /// As it was read back last or set; the user's ticks count after RetrieveSelection, and OK does that.
    std::set<int> const & TheSelection() const;

    /// Rows show the id in front of the name, and keep the order of the ids.
    void ShowIds(bool show);
    /// Ticked items come first at the next RefreshContent. On at first.
    void ShowGroupedSelection(bool grouped);
    /// Names in the order of their characters, within each group.
    void SortAlphabetically(bool sort);
    /// Shows the buttons for OK and cancel; there is no way back.
    void EnableOkCancel();
    /// The text of the one row that an empty map gives; empty for the toolkit's own.
    void SetEmptyMapMessage(CString const & text);

    /// Fills the list from the map and ticks what is selected. Nothing without a list.
    void RefreshContent();
    /// Ticks what is selected.
    void RefreshSelection();
    /// Takes the ticks for the selection, with -1 as well if all rows are ticked. Of an empty map nothing is selected;
    /// otherwise the selection stays while there is no list.
    void RetrieveSelection();
    /// The ticks have been read since they were set last.
    bool SelectionRetrieved() const;
    /// The dots an inch that it is shown with, 96 at first: the strip of buttons and its icons follow. The font stays
    /// the host's. FALSE, and nothing else, below 48 and above 960.
    BOOL SetDpi(UINT dpi);
    /// See SetDpi.
    UINT GetDpi() const { return m_dpi; }
    /// Whether it takes its window's resolution, at once and whenever that changes. Off at first.
    void FollowDpi(BOOL follow);

    BOOL PreTranslateMessage(MSG * message) override;
    /// Makes the list and the buttons if there are none yet.
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    void PreSubclassWindow() override;

    /// Makes list and buttons in that part of the client area. Does nothing once they are there.
    void CreateControls(CRect & rect);
    /// Enters one row. startIndex: where its group begins.
    void ItemEintragen(int id, wchar_t const * name, int startIndex);
    /// Posts WM_IDNAME_MULTISELECT_EVENT to the parent, or else to the owner.
    void SendMessageToParent(WPARAM wParam, LPARAM lParam);

    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnDestroy();
    afx_msg void OnSelectAll();
    afx_msg void OnSelectNone();
    afx_msg void OnCancelButton();
    afx_msg void OnOkButton();
    afx_msg LRESULT OnListCtrlMessageMessage(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    std::map<int, CString> m_theMap;
    std::set<int> m_theSelection;
    bool m_selectionRetrieved;
    bool m_okCancel;
    bool m_grouped;
    bool m_sorted;
    bool m_showIds;
    CString m_emptyMapMessage;
    /// List, buttons and tooltip exist.
    bool m_controlsCreated;
    CIdNameMultiselectListCtlr m_list;
    CButton m_selectAll;
    CButton m_selectNone;
    CButton m_cancel;
    CButton m_ok;
    CToolTipCtrl m_toolTip;

private:
    class Rows;
    class Parts;

    void EndParts();
    void DestroyIcons();
    void PlaceParts();
    void ScaleIcons();

    HICON m_icons[4];
    bool m_creating;
    /// Where the parts are.
    CRect m_partsArea;
    UINT m_dpi = 96;
    bool m_followsDpi = false;
    LifeSign m_life;
};
