#pragma once

#include <afxwin.h>

#include <array>
#include <functional>

#include "Panel.h"
#include "RecordingList.h"
#include "ScreenMetrics.h"

/// The list of recordings with the strip above it by which it is filtered, which shows only while it is used: words,
/// and choices that a recording must fit as well.
class CListPanel : public CPanel
{
public:
    /// Creates the panel and the list in it. List and metrics must outlive the window.
    bool CreatePanel(CWnd & parent, UINT id, UINT listId, workbench::ScreenMetrics & metrics, CRecordingList & list);

    /// Shows the strip and gives its field the focus, or hides it, which ends the filter.
    void ShowFilter(bool show);
    bool ShowsFilter() const { return m_showsFilter; }

    /// Shows what it says in the present language.
    void ShowTexts();

    /// Called when the list has been filtered otherwise.
    std::function<void()> m_onFiltered;

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnSetFocus(CWnd * other);
    afx_msg void OnFilterChange();

    void Arrange();
    std::array<CWnd *, 5> Parts();

    workbench::ScreenMetrics * m_metrics = nullptr;
    CRecordingList * m_list = nullptr;
    bool m_showsFilter = false;
    CStatic m_label;
    CEdit m_words;
    CButton m_marked;
    CComboBox m_rating;
    CComboBox m_state;
};
