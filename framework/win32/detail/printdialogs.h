#pragma once
// The system's dialogs for fonts, printers and pages. Included by afxdlgs.h.

#include <richedit.h>

class FRAMEWORK_API CFontDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFontDialog)

public:
    /// lplfInitial, if given, is what the dialog starts with and what it changes.
    explicit CFontDialog(LPLOGFONT lplfInitial = nullptr, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC * pdcPrinter = nullptr, CWnd * pParentWnd = nullptr);
    explicit CFontDialog(CHARFORMAT const & charformat, DWORD dwFlags = CF_SCREENFONTS, CDC * pdcPrinter = nullptr,
                         CWnd * pParentWnd = nullptr);
    ~CFontDialog() override;

    CHOOSEFONT m_cf;

    INT_PTR DoModal() override;
    /// While the dialog is up, what is chosen in it at the moment.
    void GetCurrentFont(LPLOGFONT lplf);
    void GetCharFormat(CHARFORMAT & cf) const;
    CString GetFaceName() const { return CString(m_cf.lpLogFont->lfFaceName); }
    CString GetStyleName() const { return CString(m_cf.lpszStyle); }
    /// In tenths of a point.
    int GetSize() const { return m_cf.iPointSize; }
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return m_cf.lpLogFont->lfWeight; }
    BOOL IsStrikeOut() const { return m_cf.lpLogFont->lfStrikeOut != 0; }
    BOOL IsUnderline() const { return m_cf.lpLogFont->lfUnderline != 0; }
    BOOL IsBold() const { return m_cf.lpLogFont->lfWeight == FW_BOLD; }
    BOOL IsItalic() const { return m_cf.lpLogFont->lfItalic != 0; }

private:
    static UINT_PTR CALLBACK Hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Initialise(DWORD flags, CDC * printer);

    LOGFONT m_font;
    TCHAR m_styleName[64];
};

/// The dialog for a print job, or for the printer alone. The memory in m_pd is the program's, which frees it.
class FRAMEWORK_API CPrintDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CPrintDialog)

public:
    explicit CPrintDialog(BOOL bPrintSetupOnly,
                          DWORD dwFlags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS | PD_HIDEPRINTTOFILE |
                                          PD_NOSELECTION,
                          CWnd * pParentWnd = nullptr);
    ~CPrintDialog() override;

private:
    PRINTDLG m_data;

public:
    PRINTDLG & m_pd;

    INT_PTR DoModal() override;
    /// Fills m_pd with the default printer, without a dialog. FALSE if there is none.
    BOOL GetDefaults();
    /// The chosen printer's, which the caller deletes.
    HDC CreatePrinterDC();
    HDC GetPrinterDC() const;
    /// Null without a printer. Locked in m_pd.hDevMode; the caller unlocks it.
    LPDEVMODE GetDevMode() const;
    CString GetDriverName() const;
    CString GetDeviceName() const;
    CString GetPortName() const;
    int GetCopies() const;
    BOOL PrintCollate() const { return (m_pd.Flags & PD_COLLATE) != 0; }
    BOOL PrintAll() const { return !PrintRange() && !PrintSelection(); }
    BOOL PrintSelection() const { return (m_pd.Flags & PD_SELECTION) != 0; }
    BOOL PrintRange() const { return (m_pd.Flags & PD_PAGENUMS) != 0; }
    /// -1 unless pages are chosen.
    int GetFromPage() const { return PrintRange() ? m_pd.nFromPage : -1; }
    int GetToPage() const { return PrintRange() ? m_pd.nToPage : -1; }

private:
    static UINT_PTR CALLBACK Hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

/// The dialog for paper and margins.
class FRAMEWORK_API CPageSetupDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CPageSetupDialog)

public:
    explicit CPageSetupDialog(DWORD dwFlags = PSD_MARGINS | PSD_INWININIINTLMEASURE, CWnd * pParentWnd = nullptr);
    ~CPageSetupDialog() override;

    PAGESETUPDLG m_psd;

    INT_PTR DoModal() override;
    HDC CreatePrinterDC();
    LPDEVMODE GetDevMode() const;
    CString GetDriverName() const;
    CString GetDeviceName() const;
    CString GetPortName() const;
    void GetMargins(LPRECT lpRectMargins, LPRECT lpRectMinMargins) const;
    CSize GetPaperSize() const;

    /// Before the sample page is painted. Other than 0: nothing of it is.
    virtual UINT PreDrawPage(WORD wPaper, WORD wFlags, LPPAGESETUPDLG pPSD);
    /// For each part of the sample page. Other than 0: the system doesn't paint that part.
    virtual UINT OnDrawPage(CDC * pDC, UINT nMessage, LPRECT lpRect);

private:
    static UINT_PTR CALLBACK Hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static UINT_PTR CALLBACK PaintHook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};
