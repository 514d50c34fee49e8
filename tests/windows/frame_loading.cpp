// Loading of the toolkit's resources while the current resource module is the application's. The loading functions are
// internal to the module; they are built here once more, on the loaded module's handle.

#include <gtest/gtest.h>

#include "frame/CoreLibrary.h"
#include "frame/ToolkitModule.h"
#include "frame/ToolkitResources.h"
#include "resource.h"
#include "ResourceReader.h"
#include "ScopedWindow.h"
#include "TestApp.h"

AFX_EXTENSION_MODULE g_toolkitModule = {};

namespace
{
constexpr WORD german_language = 1031;
constexpr WORD english_language = 1033;
constexpr WORD spanish_language = 3082;
constexpr UINT missing_id = 29999;

class ToolkitResources : public testing::Test
{
protected:
    void SetUp() override
    {
        g_toolkitModule.hModule = GetModuleHandleW(L"instrument_ui.dll");
        ASSERT_NE(g_toolkitModule.hModule, nullptr);
        m_former = AfxGetResourceHandle();
        AfxSetResourceHandle(Application());
    }
    void TearDown() override { AfxSetResourceHandle(m_former); }

    static HINSTANCE Application() { return GetModuleHandleW(nullptr); }
    static HINSTANCE Module() { return g_toolkitModule.hModule; }

private:
    HINSTANCE m_former = nullptr;
};
} // namespace

TEST_F(ToolkitResources, ExchangeLastsForItsScope)
{
    {
        CToolkitResourceExchange const outer;
        EXPECT_EQ(AfxGetResourceHandle(), Module());
        {
            CToolkitResourceExchange const inner;
            EXPECT_EQ(AfxGetResourceHandle(), Module());
        }
        EXPECT_EQ(AfxGetResourceHandle(), Module());
    }
    EXPECT_EQ(AfxGetResourceHandle(), Application());
}

TEST_F(ToolkitResources, ExchangeEndsWithAnExceptionToo)
{
    try
    {
        CToolkitResourceExchange const exchange;
        throw 1;
    }
    catch (int)
    {
    }
    EXPECT_EQ(AfxGetResourceHandle(), Application());
}

TEST_F(ToolkitResources, ExchangeRestoresAnyFormerModule)
{
    HINSTANCE const other = GetModuleHandleW(L"user32.dll");
    AfxSetResourceHandle(other);
    EXPECT_NE(LoadToolkitIcon(121), nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), other);
}

TEST_F(ToolkitResources, IconsLoadAndTheApplicationsModuleIsBack)
{
    for (UINT const id : {121U, 123U, 124U, 125U, 126U, 127U, 128U, 129U, 131U})
    {
        EXPECT_NE(LoadToolkitIcon(id), nullptr) << id;
        EXPECT_EQ(AfxGetResourceHandle(), Application()) << id;
    }
    EXPECT_EQ(LoadToolkitIcon(121), LoadIconW(Module(), MAKEINTRESOURCEW(121))) << "the system's shared icon";
}

TEST_F(ToolkitResources, ApplicationsModuleIsBackAfterAFailingLoad)
{
    EXPECT_EQ(LoadToolkitIcon(missing_id), nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), Application());
    EXPECT_EQ(LoadToolkitMenu(missing_id), nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), Application());
    EXPECT_TRUE(LoadToolkitString(missing_id).IsEmpty());
    EXPECT_EQ(AfxGetResourceHandle(), Application());
}

TEST_F(ToolkitResources, MenuOfTheGenericPopupLoads)
{
    CMenu menu;
    ASSERT_TRUE(menu.Attach(LoadToolkitMenu(120)));
    EXPECT_EQ(AfxGetResourceHandle(), Application());
    CMenu * const popup = menu.GetSubMenu(0);
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->GetMenuItemCount(), 1U);
}

TEST_F(ToolkitResources, TextsComeInTheThreadsLanguage)
{
    {
        tests::ScopedLanguage const german(german_language);
        EXPECT_STREQ(LoadToolkitString(9), L"alle w\u00E4hlen");
    }
    {
        tests::ScopedLanguage const english(english_language);
        EXPECT_STREQ(LoadToolkitString(9), L"select all");
    }
    {
        tests::ScopedLanguage const spanish(spanish_language);
        EXPECT_STREQ(LoadToolkitString(9), L"seleccionar todos");
    }
}

TEST_F(ToolkitResources, AnotherLanguageServesWhereOneIsNotStored)
{
    tests::ScopedLanguage const spanish(spanish_language);
    CString const colour = LoadToolkitString(102);
    EXPECT_TRUE(colour == L"Red" || colour == L"Rot") << "the colours' names are not stored in Spanish";
    EXPECT_STREQ(LoadToolkitString(14), L"(keine Eintr\u00E4ge)") << "of this block others are";
}

TEST_F(ToolkitResources, HostFindsTextsAndIconsThroughTheChain)
{
    tests::ScopedLanguage const german(german_language);
    CString text;
    EXPECT_TRUE(text.LoadString(1));
    EXPECT_STREQ(text, L"Das angegebene Datum ist ung\u00FCltig.");
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(121), RT_GROUP_ICON), Module());
    EXPECT_EQ(AfxGetResourceHandle(), Application());
}

TEST_F(ToolkitResources, DialogOfTheNullRecordLiesInTheApplication)
{
    AFX_EXTENSION_MODULE const none = {};
    CToolkitResourceExchange const toolkitIsCurrent;
    CDialog dialog;
    tests::WindowCloser const closer(dialog);
    {
        CResourceModuleScope const scope(none.hModule);
        EXPECT_EQ(AfxGetResourceHandle(), Application());
        ASSERT_TRUE(dialog.Create(IDD_SIMPLE));
    }
    CString title;
    dialog.GetWindowText(title);
    EXPECT_STREQ(title, L"Simple");
    EXPECT_NE(dialog.GetDlgItem(IDC_APPLY), nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), Module());
}

TEST_F(ToolkitResources, DialogOfAModulesRecordLiesInThatModule)
{
    tests::ScopedLanguage const german(german_language);
    CDialog dialog;
    tests::WindowCloser const closer(dialog);
    {
        CResourceModuleScope const scope(g_toolkitModule.hModule);
        EXPECT_EQ(AfxGetResourceHandle(), Module());
        ASSERT_TRUE(dialog.Create(340));
    }
    CString title;
    dialog.GetWindowText(title);
    EXPECT_STREQ(title, L"Anzeigesprache w\u00E4hlen");
    EXPECT_NE(dialog.GetDlgItem(1044), nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), Application());
}
