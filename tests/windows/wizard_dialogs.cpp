// The system's dialogs for fonts, printers, pages and tasks.

#include <afxdlgs.h>
#include <afxtaskdialog.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
class CTestFontDialog : public CFontDialog
{
public:
    using CFontDialog::CFontDialog;
    int m_inits = 0;

protected:
    BOOL OnInitDialog() override
    {
        ++m_inits;
        return CFontDialog::OnInitDialog();
    }
};

LOGFONT Courier()
{
    LOGFONT font{};
    font.lfHeight = -20;
    font.lfWeight = FW_BOLD;
    font.lfItalic = TRUE;
    ::lstrcpy(font.lfFaceName, _T("Tahoma"));
    return font;
}

/// Writes down what it hears of, and ends itself by the buttons that a test names.
class CTestTaskDialog : public CTaskDialog
{
public:
    using CTaskDialog::ClickCommandControl;
    using CTaskDialog::ClickRadioButton;
    using CTaskDialog::CTaskDialog;

    std::vector<std::string> m_heard;
    std::vector<int> m_clicks; // commands, in the dialog
    int m_refused = 0;

    bool Heard(char const * what) const { return std::find(m_heard.begin(), m_heard.end(), what) != m_heard.end(); }

    HRESULT OnInit() override { return Hear("init"); }
    HRESULT OnCreate() override
    {
        Hear("create");
        for (int const id : m_clicks)
            ClickCommandControl(id);
        return S_OK;
    }
    HRESULT OnDestroy() override { return Hear("destroy"); }
    HRESULT OnCommandControlClick(int id) override
    {
        Hear("click " + std::to_string(id));
        return id == m_refused ? S_FALSE : S_OK;
    }
    HRESULT OnRadioButtonClick(int id) override { return Hear("radio " + std::to_string(id)); }
    HRESULT OnVerificationCheckboxClick(BOOL checked) override { return Hear(checked ? "checked" : "unchecked"); }

private:
    HRESULT Hear(std::string const & what)
    {
        m_heard.push_back(what);
        return S_OK;
    }
};
} // namespace

TEST(WizardFontDialog, StartsWithTheFontGiven)
{
    LOGFONT font = Courier();
    CFontDialog const dialog(&font);
    EXPECT_EQ(dialog.GetFaceName(), _T("Tahoma"));
    EXPECT_EQ(dialog.GetWeight(), FW_BOLD);
    EXPECT_TRUE(dialog.IsBold());
    EXPECT_TRUE(dialog.IsItalic());
    EXPECT_FALSE(dialog.IsUnderline());
    EXPECT_FALSE(dialog.IsStrikeOut());
    EXPECT_EQ(dialog.m_cf.lpLogFont, &font);
    EXPECT_NE(dialog.m_cf.Flags & CF_INITTOLOGFONTSTRUCT, 0U);
    CFontDialog const other;
    EXPECT_EQ(other.m_cf.Flags & CF_INITTOLOGFONTSTRUCT, 0U);
    EXPECT_NE(other.m_cf.Flags & CF_EFFECTS, 0U);
}

TEST(WizardFontDialog, TakesAndGivesACharacterFormat)
{
    CHARFORMAT format{};
    format.cbSize = sizeof(format);
    format.dwMask = CFM_SIZE | CFM_BOLD | CFM_UNDERLINE | CFM_FACE | CFM_COLOR;
    format.dwEffects = CFE_BOLD | CFE_UNDERLINE;
    format.yHeight = 240;
    format.crTextColor = RGB(1, 2, 3);
    ::lstrcpy(format.szFaceName, _T("Tahoma"));
    CFontDialog dialog(format, CF_SCREENFONTS | CF_EFFECTS);
    EXPECT_EQ(dialog.GetFaceName(), _T("Tahoma"));
    EXPECT_TRUE(dialog.IsBold());
    EXPECT_TRUE(dialog.IsUnderline());
    EXPECT_FALSE(dialog.IsItalic());
    EXPECT_EQ(dialog.GetColor(), RGB(1, 2, 3));
    EXPECT_EQ(dialog.m_cf.lpLogFont->lfHeight, -16);
    dialog.m_cf.iPointSize = 120;
    CHARFORMAT again{};
    dialog.GetCharFormat(again);
    EXPECT_EQ(again.dwEffects, static_cast<DWORD>(CFE_BOLD | CFE_UNDERLINE));
    EXPECT_EQ(again.yHeight, 240);
    EXPECT_EQ(again.crTextColor, RGB(1, 2, 3));
    EXPECT_EQ(CString(again.szFaceName), _T("Tahoma"));
}

TEST(WizardFontDialog, GivesTheChosenFont)
{
    tests::ScopedWindow parent;
    LOGFONT font = Courier();
    CTestFontDialog dialog(&font, CF_EFFECTS | CF_SCREENFONTS, nullptr, &parent);
    LOGFONT during{};
    tests::LaterActions actions;
    actions.Add(
        [&] {
            dialog.GetCurrentFont(&during);
            dialog.PostMessage(WM_COMMAND, IDOK);
        },
        [&] { return dialog.m_inits == 1 && dialog.IsWindowVisible(); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_inits, 1);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(CString(during.lfFaceName), _T("Tahoma"));
    EXPECT_EQ(dialog.GetFaceName(), _T("Tahoma"));
    EXPECT_GT(dialog.GetSize(), 0);
    EXPECT_TRUE(parent.IsWindowEnabled());
    LOGFONT after{};
    dialog.GetCurrentFont(&after);
    EXPECT_EQ(after.lfWeight, font.lfWeight);
}

TEST(WizardFontDialog, CancelKeepsTheFont)
{
    tests::ScopedWindow parent;
    LOGFONT font = Courier();
    CTestFontDialog dialog(&font, CF_SCREENFONTS, nullptr, &parent);
    tests::LaterActions actions;
    actions.Add([&] { dialog.PostMessage(WM_COMMAND, IDCANCEL); },
                [&] { return dialog.m_inits == 1 && dialog.IsWindowVisible(); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(font.lfHeight, -20);
}

TEST(WizardPrintDialog, KnowsItsFlags)
{
    CPrintDialog dialog(FALSE);
    EXPECT_NE(dialog.m_pd.Flags & PD_RETURNDC, 0U);
    EXPECT_TRUE(dialog.PrintAll());
    EXPECT_FALSE(dialog.PrintRange());
    EXPECT_EQ(dialog.GetFromPage(), -1);
    EXPECT_EQ(dialog.GetToPage(), -1);
    dialog.m_pd.Flags |= PD_PAGENUMS | PD_COLLATE;
    dialog.m_pd.nFromPage = 2;
    dialog.m_pd.nToPage = 5;
    EXPECT_TRUE(dialog.PrintRange());
    EXPECT_TRUE(dialog.PrintCollate());
    EXPECT_FALSE(dialog.PrintAll());
    EXPECT_EQ(dialog.GetFromPage(), 2);
    EXPECT_EQ(dialog.GetToPage(), 5);
    CPrintDialog const setup(TRUE);
    EXPECT_NE(setup.m_pd.Flags & PD_PRINTSETUP, 0U);
    EXPECT_EQ(setup.m_pd.Flags & PD_RETURNDC, 0U);
}

TEST(WizardPrintDialog, TellsWhatItsNamesSay)
{
    struct
    {
        DEVNAMES names;
        TCHAR text[40];
    } const names = {{sizeof(DEVNAMES) / sizeof(TCHAR), sizeof(DEVNAMES) / sizeof(TCHAR) + 7,
                      sizeof(DEVNAMES) / sizeof(TCHAR) + 14, 0},
                     _T("driver\0device\0port")};
    CPrintDialog dialog(FALSE);
    EXPECT_EQ(dialog.GetDeviceName(), _T(""));
    EXPECT_EQ(dialog.GetDevMode(), nullptr);
    EXPECT_EQ(dialog.GetCopies(), 0);
    dialog.m_pd.hDevNames = ::GlobalAlloc(GMEM_MOVEABLE, sizeof(names));
    std::memcpy(::GlobalLock(dialog.m_pd.hDevNames), &names, sizeof(names));
    ::GlobalUnlock(dialog.m_pd.hDevNames);
    EXPECT_EQ(dialog.GetDriverName(), _T("driver"));
    EXPECT_EQ(dialog.GetDeviceName(), _T("device"));
    EXPECT_EQ(dialog.GetPortName(), _T("port"));
    ::GlobalFree(dialog.m_pd.hDevNames);

    dialog.m_pd.hDevMode = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DEVMODE));
    LPDEVMODE const mode = dialog.GetDevMode();
    ASSERT_NE(mode, nullptr);
    mode->dmCopies = 3;
    ::GlobalUnlock(dialog.m_pd.hDevMode);
    EXPECT_EQ(dialog.GetCopies(), 3);
    dialog.m_pd.Flags &= ~static_cast<DWORD>(PD_USEDEVMODECOPIES);
    dialog.m_pd.nCopies = 5;
    EXPECT_EQ(dialog.GetCopies(), 5);
    ::GlobalFree(dialog.m_pd.hDevMode);
}

TEST(WizardPrintDialog, DefaultsAreThoseOfThePrinter)
{
    // There may be none.
    CPrintDialog dialog(FALSE);
    BOOL const found = dialog.GetDefaults();
    EXPECT_EQ(dialog.m_pd.Flags & PD_RETURNDEFAULT, 0U);
    EXPECT_EQ(found != FALSE, !dialog.GetDeviceName().IsEmpty());
    if (dialog.m_pd.hDC != nullptr)
        ::DeleteDC(dialog.m_pd.hDC);
    ::GlobalFree(dialog.m_pd.hDevNames);
    ::GlobalFree(dialog.m_pd.hDevMode);
}

TEST(WizardPageSetup, TellsMarginsAndPaper)
{
    CPageSetupDialog dialog;
    EXPECT_NE(dialog.m_psd.Flags & PSD_MARGINS, 0U);
    dialog.m_psd.rtMargin = CRect(1, 2, 3, 4);
    dialog.m_psd.rtMinMargin = CRect(5, 6, 7, 8);
    dialog.m_psd.ptPaperSize = CPoint(210, 297);
    CRect margins;
    CRect least;
    dialog.GetMargins(&margins, &least);
    EXPECT_EQ(margins, CRect(1, 2, 3, 4));
    EXPECT_EQ(least, CRect(5, 6, 7, 8));
    EXPECT_EQ(dialog.GetPaperSize(), CSize(210, 297));
    EXPECT_EQ(dialog.PreDrawPage(0, 0, &dialog.m_psd), 0U);
    EXPECT_EQ(dialog.OnDrawPage(nullptr, WM_PSD_MARGINRECT, nullptr), 0U);
    EXPECT_EQ(dialog.GetPortName(), _T(""));
    EXPECT_EQ(dialog.CreatePrinterDC(), nullptr);
}

TEST(WizardTaskDialog, IsThereWithCommonControlsOfVersion6)
{
    EXPECT_TRUE(CTaskDialog::IsSupported());
}

TEST(WizardTaskDialog, EndsWithTheCommandClicked)
{
    CTestTaskDialog dialog(_T("content"), _T("instruction"), _T("title"), TDCBF_CANCEL_BUTTON);
    dialog.AddCommandControl(101, _T("first"));
    dialog.AddCommandControl(102, _T("second"));
    dialog.m_refused = 101;
    dialog.m_clicks = {101, 102};
    EXPECT_EQ(dialog.DoModal(nullptr), 102);
    EXPECT_EQ(dialog.GetSelectedCommandControlID(), 102);
    EXPECT_EQ(dialog.m_heard, (std::vector<std::string>{"init", "create", "click 101", "click 102", "destroy"}));
}

TEST(WizardTaskDialog, TellsTheRadioButtonChosen)
{
    CTestTaskDialog dialog(_T("content"), _T("instruction"), _T("title"), TDCBF_OK_BUTTON);
    dialog.AddRadioButton(201, _T("first"));
    dialog.AddRadioButton(202, _T("second"));
    dialog.SetDefaultRadioButton(201);
    tests::LaterActions actions;
    // The system may choose the default only after the dialog's creation.
    actions.Add([&] { dialog.ClickRadioButton(202); },
                [&] { return dialog.Heard("create") && dialog.Heard("radio 201"); });
    actions.Add([&] { dialog.ClickCommandControl(IDOK); });
    EXPECT_EQ(dialog.DoModal(nullptr), IDOK);
    EXPECT_FALSE(actions.Failed());
    EXPECT_TRUE(dialog.Heard("radio 202"));
    EXPECT_EQ(dialog.GetSelectedRadioButtonID(), 202);
}

TEST(WizardTaskDialog, KeepsItsCheckBox)
{
    CTestTaskDialog dialog(_T("content"), _T("instruction"), _T("title"), TDCBF_OK_BUTTON);
    CString text(_T("Don't ask again"));
    dialog.SetVerificationCheckboxText(text);
    dialog.SetVerificationCheckbox(TRUE);
    dialog.m_clicks = {IDOK};
    EXPECT_EQ(dialog.DoModal(nullptr), IDOK);
    EXPECT_TRUE(dialog.GetVerificationCheckboxState());
}

TEST(WizardTaskDialog, KnowsItsButtons)
{
    CTaskDialog dialog(_T("content"), _T("instruction"), _T("title"), TDCBF_OK_BUTTON | TDCBF_RETRY_BUTTON);
    EXPECT_EQ(dialog.GetCommonButtonCount(), 2);
    EXPECT_EQ(dialog.GetCommonButtonFlag(IDRETRY), TDCBF_RETRY_BUTTON);
    EXPECT_EQ(dialog.GetCommonButtonId(TDCBF_CLOSE_BUTTON), IDCLOSE);
    EXPECT_EQ(dialog.GetCommonButtonFlag(4711), 0);
    dialog.AddCommandControl(101, _T("first"), FALSE);
    dialog.AddRadioButton(201, _T("first"));
    EXPECT_FALSE(dialog.IsCommandControlEnabled(101));
    EXPECT_TRUE(dialog.IsRadioButtonEnabled(201));
    dialog.SetCommandControlOptions(101, TRUE);
    dialog.SetRadioButtonOptions(201, FALSE);
    EXPECT_TRUE(dialog.IsCommandControlEnabled(101));
    EXPECT_FALSE(dialog.IsRadioButtonEnabled(201));
    dialog.RemoveAllCommandControls();
    EXPECT_THROW(
        try { dialog.IsCommandControlEnabled(101); } catch (CInvalidArgException * exception) {
            exception->Delete();
            throw 1;
        },
        int);
    dialog.SetOptions(TDF_ENABLE_HYPERLINKS);
    EXPECT_EQ(dialog.GetOptions(), TDF_ENABLE_HYPERLINKS);
}
