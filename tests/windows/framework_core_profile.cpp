// Settings of the application, the command line, and texts with inserts.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "resource.h"

namespace
{
constexpr wchar_t company[] = L"framework_core_profile";

/// An application beside the program's own, for its settings only.
class Settings
{
public:
    explicit Settings(bool registry) : m_scope(&m_state), m_app(std::make_unique<App>(registry)) {}
    ~Settings()
    {
        m_app->DelRegTree(HKEY_CURRENT_USER, CString(L"Software\\") + company);
        if (m_app->m_pszRegistryKey == nullptr)
            ::DeleteFile(m_app->m_pszProfileName);
    }
    Settings(Settings const &) = delete;
    Settings & operator=(Settings const &) = delete;
    CWinApp * operator->() const { return m_app.get(); }

private:
    class App : public CWinApp
    {
    public:
        explicit App(bool registry) : CWinApp(L"profile test")
        {
            if (registry)
            {
                SetRegistryKey(company);
                return;
            }
            wchar_t folder[MAX_PATH] = {};
            ::GetTempPath(MAX_PATH, folder);
            m_pszProfileName = ::_wcsdup(CString(folder) + L"framework_core_profile.ini");
        }
    };

    AFX_MODULE_STATE m_state;
    AFX_MAINTAIN_STATE2 m_scope;
    std::unique_ptr<App> m_app;
};

class CoreProfile : public testing::TestWithParam<bool>
{
protected:
    Settings m_app{GetParam()};
};

TEST_P(CoreProfile, NumbersAreKept)
{
    EXPECT_EQ(m_app->GetProfileInt(L"section", L"number", 12), 12u);
    EXPECT_TRUE(m_app->WriteProfileInt(L"section", L"number", -5));
    EXPECT_EQ(static_cast<int>(m_app->GetProfileInt(L"section", L"number", 12)), -5);
}

TEST_P(CoreProfile, TextsAreKeptAndDeletedByANullValue)
{
    EXPECT_STREQ(m_app->GetProfileString(L"section", L"text", L"default"), L"default");
    EXPECT_STREQ(m_app->GetProfileString(L"section", L"text"), L"");
    EXPECT_TRUE(m_app->WriteProfileString(L"section", L"text", L"gr\u00FC\u00DFe"));
    EXPECT_STREQ(m_app->GetProfileString(L"section", L"text", L"default").Left(2), L"gr");
    EXPECT_TRUE(m_app->WriteProfileString(L"section", L"text", nullptr));
    EXPECT_STREQ(m_app->GetProfileString(L"section", L"text", L"default"), L"default");
}

TEST_P(CoreProfile, NullEntryDeletesTheSection)
{
    m_app->WriteProfileInt(L"section", L"one", 1);
    m_app->WriteProfileInt(L"other", L"one", 1);
    EXPECT_TRUE(m_app->WriteProfileString(L"section", nullptr, nullptr));
    EXPECT_EQ(m_app->GetProfileInt(L"section", L"one", 0), 0u);
    EXPECT_EQ(m_app->GetProfileInt(L"other", L"one", 0), 1u);
}

TEST_P(CoreProfile, BytesAreKept)
{
    LPBYTE data = nullptr;
    UINT size = 99;
    EXPECT_FALSE(m_app->GetProfileBinary(L"section", L"bytes", &data, &size));
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(size, 0u);
    BYTE bytes[] = {0, 0x1F, 0xFF, 0x80};
    EXPECT_TRUE(m_app->WriteProfileBinary(L"section", L"bytes", bytes, sizeof bytes));
    ASSERT_TRUE(m_app->GetProfileBinary(L"section", L"bytes", &data, &size));
    ASSERT_EQ(size, sizeof bytes);
    EXPECT_EQ(std::memcmp(data, bytes, size), 0);
    delete[] data;
}

INSTANTIATE_TEST_SUITE_P(Stores, CoreProfile, testing::Bool(),
                         [](auto const & info) { return info.param ? "Registry" : "File"; });

TEST(CoreProfileRegistry, KeyIsTheCompanysThenTheApplications)
{
    Settings app(true);
    HKEY const key = app->GetSectionKey(L"section");
    ASSERT_NE(key, nullptr);
    ::RegCloseKey(key);
    HKEY found = nullptr;
    EXPECT_EQ(::RegOpenKeyEx(HKEY_CURRENT_USER, L"Software\\framework_core_profile\\profile test\\section", 0, KEY_READ,
                             &found),
              ERROR_SUCCESS);
    ::RegCloseKey(found);
}

TEST(CoreProfileRegistry, ValueOfAnotherTypeIsNotTaken)
{
    Settings app(true);
    app->WriteProfileString(L"section", L"value", L"text");
    EXPECT_EQ(app->GetProfileInt(L"section", L"value", 3), 3u);
    app->WriteProfileInt(L"section", L"value", 4);
    EXPECT_STREQ(app->GetProfileString(L"section", L"value", L"default"), L"default");
}

// The command line

TEST(CoreCommandLine, FileNameMeansOpening)
{
    CCommandLineInfo info;
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileNew);
    info.ParseParam(L"a.wav", FALSE, FALSE);
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileNew);
    info.ParseParam(L"b.wav", FALSE, TRUE);
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileOpen);
    EXPECT_STREQ(info.m_strFileName, L"a.wav");
}

TEST(CoreCommandLine, PrintingNamesThePrinter)
{
    CCommandLineInfo info;
    info.ParseParam(L"pt", TRUE, FALSE);
    for (LPCTSTR const value : {L"file", L"printer", L"driver", L"port"})
        info.ParseParam(value, FALSE, FALSE);
    info.ParseParam(L"more", FALSE, TRUE);
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FilePrintTo);
    EXPECT_STREQ(info.m_strFileName, L"file");
    EXPECT_STREQ(info.m_strPrinterName, L"printer");
    EXPECT_STREQ(info.m_strDriverName, L"driver");
    EXPECT_STREQ(info.m_strPortName, L"port");
}

TEST(CoreCommandLine, EmbeddingShowsNoSplash)
{
    CCommandLineInfo info;
    info.ParseParam("embedding", TRUE, TRUE);
    EXPECT_TRUE(info.m_bRunEmbedded);
    EXPECT_FALSE(info.m_bShowSplash);
}

// Texts with inserts

TEST(CoreFormat, InsertsAreNumbered)
{
    LPCTSTR const texts[] = {L"one", nullptr, L"three"};
    CString text;
    AfxFormatStrings(text, L"%3 %1 [%2] %4 100%% %", texts, 3);
    EXPECT_STREQ(text, L"three one [] ? 100% %");
}
} // namespace
