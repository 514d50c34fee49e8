// What a wizard's sources and resources expect of the headers.

#include <afxcmn.h>
#include <afxdisp.h>
#include <afxdlgs.h>
#include <afxdtctl.h>
#include <afxext.h>
#include <afxmt.h>
#include <afxole.h>
#include <afxwin.h>
#include <atlbase.h>

#include <gtest/gtest.h>

#if !defined(__AFX_H__) || !defined(__AFXWIN_H__) || !defined(__AFXEXT_H__) || !defined(__AFXDISP_H__)
#error include 'stdafx.h' before including this file
#endif

static_assert(_MFC_VER >= 0x0700);

namespace
{
char const BASED_CODE s_section[] = "Settings";

CString Text(UINT id)
{
    CString text;
    return text.LoadString(id) ? text : CString();
}
} // namespace

// Values that stored tool bars, registries and help files hold.
static_assert(ID_FILE_MRU_FILE1 == 0xE110 && ID_FILE_MRU_FILE2 == 0xE111 && ID_FILE_MRU_FILE16 == 0xE11F);
static_assert(ID_FILE_MRU_LAST == ID_FILE_MRU_FILE16 && ID_FILE_MRU_FIRST == ID_FILE_MRU_FILE1);
static_assert(ID_APPLY_NOW == 0x3021 && ID_WIZBACK == 0x3023 && ID_WIZNEXT == 0x3024 && ID_WIZFINISH == 0x3025);
static_assert(ID_VIEW_SMALLICON == 0xE810 && ID_VIEW_DETAILS == 0xE813);
static_assert(ID_RECORD_FIRST == 0xE900 && ID_RECORD_PREV == 0xE903);
static_assert(AFX_IDI_STD_MDIFRAME == 31233 && AFX_IDI_STD_FRAME == 31234);
static_assert(AFX_IDS_SCSIZE == 0xEF00 && AFX_IDS_SCCLOSE == 0xEF06 && AFX_IDS_MDICHILD == 0xEF1F);

TEST(WizardHeaders, MacrosOfOldStand)
{
    EXPECT_STREQ(s_section, "Settings");
    ATLASSERT(true);
    ATLVERIFY(true);
}

TEST(WizardResources, HoldTheProgramsTextsAndTheFrameworks)
{
    EXPECT_EQ(Text(AFX_IDS_APP_TITLE), _T("wizard"));
    EXPECT_EQ(Text(AFX_IDS_IDLEMESSAGE), _T("Ready"));
    EXPECT_EQ(Text(ID_FILE_MRU_FILE1), _T("Open this document"));
    EXPECT_EQ(Text(AFX_IDS_UNTITLED), _T("Untitled"));
    EXPECT_EQ(Text(AFX_IDP_ASK_TO_SAVE), _T("Save changes to %1?"));
    EXPECT_EQ(Text(AFX_IDS_PRINTPAGENUM), _T("Page %u"));
    HMODULE const module = ::GetModuleHandle(nullptr);
    EXPECT_NE(::FindResource(module, MAKEINTRESOURCE(AFX_IDD_PRINTDLG), RT_DIALOG), nullptr);
    EXPECT_NE(::FindResource(module, MAKEINTRESOURCE(AFX_IDD_PREVIEW_TOOLBAR), RT_DIALOG), nullptr);
}

TEST(WizardResources, PrintDialogOpens)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(AFX_IDD_PRINTDLG));
    EXPECT_NE(dialog.GetDlgItem(AFX_IDC_PRINT_DOCNAME), nullptr);
    EXPECT_NE(dialog.GetDlgItem(AFX_IDC_PRINT_PAGENUM), nullptr);
    dialog.DestroyWindow();
}
