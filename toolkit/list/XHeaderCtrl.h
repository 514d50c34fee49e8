#pragma once

#include <afxcmn.h>

#include "frame/Export.h"
#include "frame/LifeWatch.h"

class CXListCtrl;

/// The header of a CXListCtrl, bound to the list's native header. It paints itself, so that a title can carry a check
/// box, a mixed mark, a cross or a sort arrow, coded in the header item's image number (the XHC_ states of
/// XListCtrlData.h). Lengths are in pixels. No setter repaints. The list is not owned.
class INSTRUMENT_UI_API CXHeaderCtrl : public CHeaderCtrl
{
    DECLARE_DYNCREATE(CXHeaderCtrl)

public:
    CXHeaderCtrl();

    /// The list that hears of direct column clicks; null for none.
    void SetList(CXListCtrl * list) { m_list = list; }
    /// A DrawText alignment flag for every title; all bits set: each column's own format.
    void SetAlignment(unsigned int alignment) { m_alignment = alignment; }
    /// The colour of the titles. Does not repaint.
    void SetTextColor(COLORREF color) { m_textColor = color; }
    /// Item images come from the header's image list instead of the built-in marks.
    void SetUseImageList(bool use) { m_useImageList = use; }
    /// A button press on an item counts as a column click.
    void SetDirectColumnClick() { m_directColumnClick = true; }
    /// Room left and right of an item's content, and between image and text.
    int GetSpacing() const { return m_spacing; }
    /// The dots an inch that it is shown with, 96 at first: marks, distances, images and its least height follow; the
    /// list's SetDpi calls it. An image list set from now on is for this resolution. FALSE below 48 and above 960.
    BOOL SetDpi(UINT dpi);
    /// See SetDpi.
    UINT GetDpi() const { return m_dpi; }

    /// Called for an owner-drawn item; draws nothing.
    virtual void DrawHeaderItem(LPDRAWITEMSTRUCT item);
    /// Draws mark or image, bitmap and title. Does nothing without HDI_FORMAT in the item's mask.
    virtual void DrawHeaderItem(CDC * dc, CRect rect, LPHDITEM item);

protected:
    /// Draws background, edges and all items.
    void PaintHeader(CDC * dc);
    /// The mark or image at the left of the rectangle; the width used, 0 if there is none.
    int DrawItemImage(CDC * dc, CRect rect, LPHDITEM item, bool right);
    /// The bitmap at the right of the rectangle; the width used.
    int DrawItemBitmap(CDC * dc, CRect rect, LPHDITEM item, CSize size);
    /// The title in what is left of the rectangle.
    void DrawItemText(CDC * dc, CRect rect, LPHDITEM item);

    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg void OnPaint();
    afx_msg void OnSysColorChange();
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg LRESULT OnInsertItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetImageList(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnLayout(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    class Access;

    void ReadColors();

    CXListCtrl * m_list = nullptr;
    unsigned int m_alignment = 0xFFFFFFFF;
    COLORREF m_textColor;
    int m_dividers = 1;
    int m_doubleBuffer = 1;
    int m_layoutWiden = 0;
    int m_spacing = 6;
    bool m_useImageList = false;
    bool m_directColumnClick = false;
    int m_imageWidth = 0;
    int m_imageHeight = 0;
    UINT m_dpi = 96;
    UINT m_imageDpi = 96;
    COLORREF m_colorHighlight;
    COLORREF m_colorShadow;
    COLORREF m_colorFace;
    COLORREF m_colorText;
    LifeSign m_life;
};
