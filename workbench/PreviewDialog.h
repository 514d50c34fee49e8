#pragma once

#include <afxwin.h>

#include <functional>

#include "BufferedView.h"
#include "WorkbenchDialog.h"

/// Draws a page into a rectangle of a device context.
using PagePainter = std::function<void(CDC &, CRect const &)>;

/// A sheet of paper in landscape, as large as the window allows.
class CPageView : public CBufferedView
{
public:
    bool CreateView(CWnd & parent, UINT id, CRect const & place);

    /// What is drawn inside the sheet's margins.
    PagePainter m_painter;

private:
    void Draw(CDC & dc, CRect const & client) override;
};

/// Shows how a page looks on paper.
class CPreviewDialog : public CWorkbenchDialog
{
public:
    explicit CPreviewDialog(CWnd & owner);

    /// Opens the preview of a page, or shows it in the open one. The painter is called for each painting.
    bool Show(PagePainter painter);

    /// Paints the page anew.
    void Update();

    void ShowTexts() override;
    BOOL OnInitDialog() override;

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnPrint();

    CPageView m_page;
};
