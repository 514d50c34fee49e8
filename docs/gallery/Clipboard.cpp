// The clipboard: text, a table in two forms at once, data of one's own, and reading back.
#include "Gallery.h"

enum
{
    copy_text = 1,
    copy_table,
    copy_data,
    show_text
};

class CClipboardWindow : public CGalleryWindow
{
    void Fill() override
    {
        auto const button = [this](CButton & control, wchar_t const * text, int id) {
            control.Create(text, WS_CHILD | WS_VISIBLE, CRect(CPoint(10, id * 35 - 25), CSize(140, 27)), this, id);
        };
        button(m_text, L"Copy text", copy_text);
        button(m_table, L"Copy table", copy_table);
        button(m_data, L"Copy data", copy_data);
        button(m_show, L"What is there?", show_text);
        m_found.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | ES_MULTILINE | ES_READONLY, CRect(160, 10, 400, 142), this,
                       9);
        OnCopyTable();
        OnShow();
    }
    // Each call is a whole transaction and tells the user itself what has failed.
    afx_msg void OnCopyText() { Clipboard::StringToClipboard(L"Peak: -6.0 dBFS"); }
    afx_msg void OnCopyTable()
    {
        Clipboard::HtmlToClipboard(L"<table><tr><td>Peak</td><td>-6.0</td></tr></table>", L"Peak\t-6.0 dBFS");
    }
    afx_msg void OnCopyData() { Clipboard::DataToClipboard(L"Gallery levels", "-6.0;-12.5", 10); }
    afx_msg void OnShow()
    {
        CString text;
        m_found.SetWindowText(Clipboard::StringFromClipboard(text) ? L"Text on the clipboard:\r\n" + text
                                                                   : CString(L"No text on the clipboard."));
    }
    DECLARE_MESSAGE_MAP()

    CButton m_text, m_table, m_data, m_show;
    CEdit m_found;
};

BEGIN_MESSAGE_MAP(CClipboardWindow, CGalleryWindow)
    ON_BN_CLICKED(copy_text, &CClipboardWindow::OnCopyText)
    ON_BN_CLICKED(copy_table, &CClipboardWindow::OnCopyTable)
    ON_BN_CLICKED(copy_data, &CClipboardWindow::OnCopyData)
    ON_BN_CLICKED(show_text, &CClipboardWindow::OnShow)
END_MESSAGE_MAP()

CGalleryProgram<CClipboardWindow> theApp(L"Clipboard", CSize(410, 155));
