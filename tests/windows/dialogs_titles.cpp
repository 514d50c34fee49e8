// Titles of dialogs, and whether a dialog was open when the program last ended.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "dialogs_Dialog3dTest.h"

using namespace dialog_tests;

namespace
{
using Dialog3dTitles = DialogTest;
using Dialog3dOpenInitially = DialogTest;
} // namespace

// --- Titles ---

TEST_F(Dialog3dTitles, TheTemplatesCaptionNamesADialogWithoutATitle)
{
    TestDialog dialog;
    EXPECT_TRUE(dialog.GetDialogTitle().IsEmpty());
    EXPECT_TRUE(dialog.GetGenuineTitle().IsEmpty());
    dialog.DisplayDialog();
    EXPECT_EQ(dialog.GetGenuineTitle(), L"Fixed dialog");
    EXPECT_EQ(dialog.GetDialogTitle(), L"Fixed dialog");
    EXPECT_EQ(TextOf(dialog), L"Fixed dialog");
}

TEST_F(Dialog3dTitles, ATitleBeforeTheFirstOpeningSetsBothNames)
{
    TestDialog dialog;
    dialog.SetDialogTitle(L"Spectrum");
    EXPECT_EQ(dialog.GetGenuineTitle(), L"Spectrum");
    dialog.DisplayDialog();
    EXPECT_EQ(TextOf(dialog), L"Spectrum");
    EXPECT_EQ(dialog.GetGenuineTitle(), L"Spectrum");
}

TEST_F(Dialog3dTitles, AGenuineTitleAloneBecomesTheCaption)
{
    TestDialog dialog;
    EXPECT_TRUE(dialog.SetGenuineTitle(L"Identity"));
    EXPECT_TRUE(dialog.GetDialogTitle().IsEmpty());
    dialog.DisplayDialog();
    EXPECT_EQ(TextOf(dialog), L"Identity");
    EXPECT_EQ(dialog.GetDialogTitle(), L"Identity");
}

TEST_F(Dialog3dTitles, GenuineAndShownTitleMayDiffer)
{
    TestDialog dialog;
    dialog.SetDialogTitle(L"Shown");
    EXPECT_TRUE(dialog.SetGenuineTitle(L"Identity"));
    dialog.DisplayDialog();
    EXPECT_EQ(TextOf(dialog), L"Shown");
    EXPECT_EQ(dialog.GetGenuineTitle(), L"Identity");
}

TEST_F(Dialog3dTitles, ATitleAfterTheFirstOpeningChangesTheCaptionAlone)
{
    TestDialog dialog;
    dialog.SetDialogTitle(L"Before");
    dialog.DisplayDialog();
    dialog.SetDialogTitle(L"After");
    EXPECT_EQ(TextOf(dialog), L"After");
    EXPECT_EQ(dialog.GetDialogTitle(), L"After");
    EXPECT_EQ(dialog.GetGenuineTitle(), L"Before");
    EXPECT_FALSE(dialog.SetGenuineTitle(L"Other"));
    EXPECT_EQ(dialog.GetGenuineTitle(), L"Before");

    CRect const place = OuterOf(dialog);
    dialog.DestroyWindow();
    EXPECT_EQ(StoredPlace(L"Before"), place);
    EXPECT_EQ(StoredPlace(L"After"), CRect(-1, -1, -1, -1));
    EXPECT_FALSE(dialog.SetGenuineTitle(L"Other")) << "fixed for the object's life";
    dialog.SetDialogTitle(L"Closed");
    dialog.DisplayDialog();
    EXPECT_EQ(TextOf(dialog), L"Closed");
    EXPECT_EQ(dialog.GetGenuineTitle(), L"Before");
}

// --- OpenInitially ---

TEST_F(Dialog3dOpenInitially, AFreshDialogIsCreatedUnseenAndDestroyed)
{
    for (UINT const id : {IDD_FIXED, IDD_SIZABLE, IDD_SHOWN})
    {
        TestDialog dialog(id);
        EXPECT_FALSE(dialog.OpenInitially());
        EXPECT_EQ(dialog.m_displays, 1) << "through the virtual operation";
        EXPECT_EQ(dialog.m_destroys, 1);
        EXPECT_EQ(dialog.m_inits, 1);
        EXPECT_EQ(dialog.m_shown, 0) << id;
        EXPECT_FALSE(dialog.IsOpen());
        EXPECT_FALSE(dialog.SetGenuineTitle(L"Other")) << "its name is known now";

        EXPECT_NE(dialog.DisplayDialog(), 0);
        EXPECT_TRUE(dialog.IsWindowVisible()) << "the show mode is as it was";
        EXPECT_GT(dialog.m_shown, 0);
    }
}

TEST_F(Dialog3dOpenInitially, AHiddenOpeningThatFailsLeavesTheShowModeAsItWas)
{
    TestDialog dialog(2999);
    EXPECT_FALSE(dialog.OpenInitially());
    EXPECT_NE(dialog.DisplayDialog(CDialog3d::NO_DLL, IDD_FIXED), 0);
    EXPECT_TRUE(dialog.IsWindowVisible());
}

TEST_F(Dialog3dOpenInitially, ADialogThatShowsItselfStaysUnseenAsWell)
{
    TestDialog dialog;
    bool visible = false;
    dialog.m_onInit = [&] {
        dialog.ShowWindow(SW_SHOW);
        visible = visible || dialog.IsWindowVisible();
    };
    dialog.OpenInitially();
    EXPECT_EQ(dialog.m_shown, 0);
    EXPECT_FALSE(visible);
}

TEST_F(Dialog3dOpenInitially, TheAnswerIsWhatTheStoreHoldsUnderTheGenuineTitle)
{
    m_store.LookupSetBool(L"Fixed_dialog-IstOffen", true, 0);
    TestDialog dialog;
    EXPECT_TRUE(dialog.OpenInitially());
    TestDialog other;
    other.SetDialogTitle(L"Never seen");
    EXPECT_FALSE(other.OpenInitially());
}

TEST_F(Dialog3dOpenInitially, AKnownDialogIsAskedWithoutAWindow)
{
    TestDialog dialog;
    dialog.DisplayDialog();
    dialog.DestroyWindow();
    m_store.LookupSetBool(L"Fixed_dialog-IstOffen", true, 0);
    EXPECT_TRUE(dialog.OpenInitially());
    m_store.LookupSetBool(L"Fixed_dialog-IstOffen", false, 0);
    EXPECT_FALSE(dialog.OpenInitially());
    EXPECT_EQ(dialog.m_inits, 1);
    EXPECT_EQ(dialog.m_displays, 1);
}

TEST_F(Dialog3dOpenInitially, AnOpenDialogStaysOpen)
{
    TestDialog dialog;
    dialog.DisplayDialog();
    HWND const window = dialog.m_hWnd;
    dialog.OpenInitially();
    EXPECT_EQ(dialog.m_hWnd, window);
    EXPECT_TRUE(dialog.IsWindowVisible());
}

TEST_F(Dialog3dOpenInitially, TheStoredPlaceSurvivesTheHiddenOpening)
{
    StorePlace(L"Sizable_dialog", CRect(150, 160, 750, 560));
    TestDialog dialog(IDD_SIZABLE);
    dialog.OpenInitially();
    EXPECT_EQ(StoredPlace(L"Sizable_dialog"), CRect(150, 160, 750, 560));
    dialog.DisplayDialog();
    EXPECT_EQ(OuterOf(dialog), CRect(150, 160, 750, 560));
}
