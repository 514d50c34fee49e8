// A layout that follows the window's size, and a window that comes back at its place and size.
#include <memory>

#include "Gallery.h"

class CLayoutWindow : public CGalleryWindow
{
    void Fill() override
    {
        m_list.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | LBS_NOINTEGRALHEIGHT, CRect(10, 10, 290, 100), this, 1);
        m_list.AddString(L"stretches both ways");
        m_left.Create(L"one third", WS_CHILD | WS_VISIBLE | SS_SUNKEN | SS_CENTER, CRect(10, 110, 100, 130), this);
        m_right.Create(L"two thirds", WS_CHILD | WS_VISIBLE | SS_SUNKEN | SS_CENTER, CRect(105, 110, 290, 130), this);
        m_corner.Create(L"keeps to the corner", WS_CHILD | WS_VISIBLE, CRect(170, 140, 290, 165), this, 2);

        m_layout = std::make_unique<CDialogResizer>(*this, L"");
        m_layout->PositionChild(&m_list, CEdges::TOP_LEFT_BOTTOM_RIGHT(), nullptr);
        // Where each edge goes as the window grows, in 1/10000: left, top, right, bottom.
        m_layout->PositionChild(&m_left, CRect(0, 10000, 3333, 10000), nullptr);
        m_layout->PositionChild(&m_right, CRect(3333, 10000, 10000, 10000), nullptr);
        m_layout->PositionChild(&m_corner, CEdges::BOTTOM_RIGHT(), nullptr);
        m_place.PreferedPosition(CRect(40, 40, 480, 300)); // where none is stored yet: larger than designed
        m_place.ReadMyPosition(this);
    }
    afx_msg void OnSize(UINT, int, int)
    {
        if (m_layout)
        {
            m_layout->OnSize();
        }
    }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO * info)
    {
        if (m_layout)
        {
            m_layout->OnGetMinMaxInfo(info, CDialogResizer::RESIZE_BOTH); // never smaller than designed
        }
    }
    afx_msg void OnDestroy()
    {
        m_place.CalcMyPosition(this);
        m_place.SaveMyPosition(true);
        CWnd::OnDestroy();
    }
    DECLARE_MESSAGE_MAP()

    CListBox m_list;
    CStatic m_left, m_right;
    CButton m_corner;
    std::unique_ptr<CDialogResizer> m_layout;
    CFensterManager m_place{L"Layout", CFensterManager::window_main};
};

BEGIN_MESSAGE_MAP(CLayoutWindow, CGalleryWindow)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CGalleryProgram<CLayoutWindow> theApp(L"Layout and memory", CSize(300, 175));
