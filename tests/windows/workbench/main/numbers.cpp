// Numbers follow the user's region.

#include <string>

#include "DetailsDialog.h"
#include "logic/NumberSigns.h"
#include "logic/Texts.h"
#include "MainWindowTest.h"

namespace
{

class WorkbenchNumbers : public tests::MainWindowTest
{
protected:
    void TearDown() override
    {
        ::SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, m_decimal);
        ::SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, m_grouping);
        MainWindowTest::TearDown();
        workbench::SetNumberSigns({});
    }
    void ChangeRegion(wchar_t const * decimal, wchar_t const * grouping)
    {
        ASSERT_TRUE(::SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, decimal));
        ASSERT_TRUE(::SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, grouping));
        m_window->SendMessage(WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"intl"));
    }
    std::wstring Details()
    {
        CString text;
        m_window->Details().GetDlgItemText(IDC_DETAIL_TEXT, text);
        return text.GetString();
    }
    std::wstring Cell(int row, int column)
    {
        std::wstring text = m_window->List().GetItemText(row, column).GetString();
        return text.substr(0, text.find_last_not_of(L' ') + 1);
    }

private:
    static CString Fact(LCTYPE fact)
    {
        wchar_t text[16] = L"";
        ::GetLocaleInfoW(LOCALE_USER_DEFAULT, fact, text, 16);
        return text;
    }
    CString const m_decimal = Fact(LOCALE_SDECIMAL);
    CString const m_grouping = Fact(LOCALE_STHOUSAND);
};

} // namespace

TEST_F(WorkbenchNumbers, AChangeOfTheRegionCountsAtOnceInTheListTheDetailsAndTheStatus)
{
    m_window->ShowTargets({Folder(3)});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ShowDetails(0));
    ChangeRegion(L",", L".");
    EXPECT_EQ(Cell(0, CRecordingList::column_duration), L"0:00,010");
    EXPECT_EQ(Cell(2, CRecordingList::column_rate), L"48.000");
    EXPECT_NE(Details().find(L"Size:\t1.004 bytes\r\n"), std::wstring::npos);
    EXPECT_NE(Status().find(L": 0 dBFS peak, -3,0 dBFS RMS."), std::wstring::npos);
    ChangeRegion(L"::", L"'");
    EXPECT_EQ(Cell(0, CRecordingList::column_duration), L"0:00::010");
    EXPECT_EQ(Cell(2, CRecordingList::column_rate), L"48'000");
    EXPECT_NE(Details().find(L"Size:\t1'004 bytes\r\n"), std::wstring::npos);
}

TEST_F(WorkbenchNumbers, TheHelpHasThemInEachLanguage)
{
    LCID const locale = ::GetThreadLocale();
    ASSERT_TRUE(m_window->Help().Show(workbench::HelpTopic::measures));
    auto const has = [this](wchar_t const * number) {
        CString text;
        m_window->Help().GetDlgItemText(IDC_HELP_PAGE, text);
        return text.Find(number) >= 0;
    };
    for (auto const & language : workbench::language_facts)
    {
        m_window->ChooseLanguage(language.id);
        ChangeRegion(L",", L".");
        EXPECT_TRUE(has(L": -0,691 + 10")) << language.id;
        ChangeRegion(L".", L",");
        EXPECT_TRUE(has(L": -0.691 + 10")) << language.id;
    }
    m_window->ChooseLanguage(1033);
    ::SetThreadLocale(locale);
    ::SetThreadUILanguage(0);
}

TEST_F(WorkbenchNumbers, SortingIsByTheValues)
{
    std::filesystem::path const folder = Folder(0);
    std::filesystem::create_directories(folder);
    tests::WriteRecording(folder / "a.wav", 96000);
    tests::WriteRecording(folder / "b.wav", 8000);
    tests::WriteRecording(folder / "c.wav", 192000);
    m_window->ShowTargets({folder});
    ASSERT_TRUE(WaitUntilRead());
    ChangeRegion(L",", L".");
    m_window->List().SortLines(CRecordingList::column_rate, true);
    EXPECT_EQ(Cell(0, CRecordingList::column_rate), L"8.000");
    EXPECT_EQ(Cell(1, CRecordingList::column_rate), L"96.000");
    EXPECT_EQ(Cell(2, CRecordingList::column_rate), L"192.000");
}

TEST_F(WorkbenchNumbers, TheDetailsHaveAllLinesOfARecording)
{
    m_window->ShowTargets({Folder(1)});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_TRUE(m_window->ShowDetails(0));
    EXPECT_TRUE(Details().ends_with(L"Status:\tOK\r\n"));
}
