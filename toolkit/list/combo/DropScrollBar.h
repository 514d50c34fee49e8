#pragma once

#include <afxwin.h>

#include "frame/LifeWatch.h"

namespace XListCtrl
{
class CDropListBox;

/// The scroll bar of a drop window, a window beside the list. Internal to the module.
class CDropScrollBar : public CScrollBar
{
public:
    CDropScrollBar();
    CDropScrollBar(CDropScrollBar const &) = delete;
    CDropScrollBar & operator=(CDropScrollBar const &) = delete;
    ~CDropScrollBar() override;

    /// Takes range and page from the list, which is not owned.
    void SetListBox(CDropListBox * list);

protected:
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void VScroll(UINT code, UINT position);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg LRESULT OnSetCapture(WPARAM, LPARAM);
    afx_msg LRESULT OnReleaseCapture(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

    CDropListBox * m_list = nullptr;

private:
    /// False if this object is gone afterwards.
    bool HandCaptureOver(CPoint point);

    LifeSign m_life;
};
} // namespace XListCtrl
