#pragma once
// The combo box that lies over a cell of the report list while its entry is being chosen. Internal to the module.

#include "list/combo/AdvComboBox.h"

namespace XListCtrl
{
/// Tells the list by WM_XCOMBOLIST_VK_ESCAPE and WM_XCOMBOLIST_COMPLETE that choosing has ended. The list ends the
/// combo some time later, since the combo is still at work then.
class CXCombo : public CAdvComboBox
{
public:
    /// list: who is told, not owned.
    explicit CXCombo(CWnd * list) : CAdvComboBox(0, list), m_list(list) {}
    CXCombo(CXCombo const &) = delete;
    CXCombo & operator=(CXCombo const &) = delete;

    void OnComboCancel() override;
    void OnComboComplete() override;
    /// The list is told nothing any more.
    void SetClosing() { m_list = nullptr; }

protected:
    afx_msg void OnKillFocus(CWnd * newWindow);
    DECLARE_MESSAGE_MAP()

private:
    CWnd * m_list;
};
} // namespace XListCtrl
