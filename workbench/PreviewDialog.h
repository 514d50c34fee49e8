#pragma once

#include <afxwin.h>

#include <functional>

#include "WorkbenchDialog.h"

/// Draws a page into a rectangle of a device context.
using PagePainter = std::function<void(CDC &, CRect const &)>;

/// A sheet of paper in landscape, as large as the window allows.
class CPageView : public CWnd
{
public:
    bool CreateView(CWnd & parent, UINT id, CRect const & place);

    /// What is drawn inside the sheet's margins.
    PagePainter m_painter;

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg LRESULT OnPrintClient(WPARAM dc, LPARAM flags);

    void Draw(CDC & dc, CRect const & client);
};

/// Shows how a page looks on paper.
class CPreviewDialog : public CWorkbenchDialog
{
public:
    CPreviewDialog();

    /// Opens the preview of a page, or shows it in the open one. The painter is called for each painting.
    bool Show(PagePainter painter);

    /// Paints the page anew.
    void Update();

    BOOL OnInitDialog() override;

private:
    CPageView m_page;
};
