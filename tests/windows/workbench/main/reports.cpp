// Reports about the marked recordings.

#include <algorithm>
#include <string>
#include <vector>

#include "logic/SafeFile.h"
#include "MainWindowTest.h"

namespace
{
namespace fs = std::filesystem;

/// The bytes of base64, for what the test looks into.
std::string Decoded(std::string_view text)
{
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string bytes;
    unsigned bits = 0;
    int count = 0;
    for (char const character : text)
    {
        std::size_t const digit = digits.find(character);
        if (digit == digits.npos)
        {
            break;
        }
        bits = bits << 6 | static_cast<unsigned>(digit);
        count += 6;
        if (count >= 8)
        {
            count -= 8;
            bytes += static_cast<char>(bits >> count);
        }
    }
    return bytes;
}

class WorkbenchReport : public tests::MainWindowTest
{
protected:
    CRecordingList & List() { return m_window->List(); }
    void ShowMarked(int count, std::vector<int> const & marked)
    {
        m_window->ShowTargets({Folder(count)});
        ASSERT_TRUE(WaitUntilRead());
        ASSERT_TRUE(tests::PumpUntil([this] { return List().ChosenLine() == 0; }));
        List().SetFocus();
        List().SelectLines(marked, marked.front());
        List().SendMessage(WM_KEYDOWN, VK_SPACE);
        tests::PumpPosted();
        ASSERT_EQ(List().Totals().Checked(), marked.size());
    }
    bool WaitUntilWritten()
    {
        return tests::PumpUntil([this] { return !m_window->Report().IsWriting(); }, tests::read_limit);
    }
    std::string Page() const { return workbench::ReadWholeFile(m_file).value_or(""); }
    static std::size_t Count(std::string const & page, std::string_view text)
    {
        std::size_t count = 0;
        for (std::size_t place = page.find(text); place != page.npos; place = page.find(text, place + 1))
        {
            ++count;
        }
        return count;
    }

    fs::path const m_file = m_folder / "report.html";
};

TEST_F(WorkbenchReport, HasTheMarkedRecordingsInTheOrderOfTheList)
{
    ShowMarked(5, {0, 1, 3});
    List().SetOrder({-1, true, {3, 2, 1, 0, 4}});
    m_window->SendMessage(WM_COMMAND, ID_FIND);
    workbench::RecordingFilter filter;
    filter.words = L"r00001";
    List().SetFilter(filter);
    ASSERT_EQ(List().GetItemCount(), 1);
    ASSERT_TRUE(m_window->WriteReport(m_file));
    EXPECT_FALSE(fs::exists(m_file)) << "it is written beside the window";
    ASSERT_TRUE(WaitUntilWritten());
    std::string const page = Page();
    EXPECT_EQ(Count(page, "<section>"), 3U);
    EXPECT_LT(page.find("<h2>r00003.wav"), page.find("<h2>r00001.wav"));
    EXPECT_LT(page.find("<h2>r00001.wav"), page.find("<h2>r00000.wav"));
    EXPECT_EQ(Count(page, "<h2>r00002.wav"), 0U);
    EXPECT_EQ(Count(page, "<img "), 6U) << "a waveform and a spectrogram each";
    EXPECT_NE(Status().find(L"report written: " + m_file.wstring()), std::wstring::npos);
    EXPECT_FALSE(fs::exists(m_file.wstring() + L".new"));
}

TEST_F(WorkbenchReport, ItsPicturesAreWhatTheViewsShow)
{
    ShowMarked(1, {0});
    ASSERT_TRUE(m_window->WriteReport(m_file));
    ASSERT_TRUE(WaitUntilWritten());
    std::string const page = Page();
    constexpr std::string_view begin = "data:image/png;base64,";
    std::size_t pictures = 0;
    for (std::size_t place = page.find(begin); place != page.npos; place = page.find(begin, place + 1))
    {
        std::string const png = Decoded(std::string_view(page).substr(place + begin.size()));
        std::filesystem::path const file = m_folder / ("picture" + std::to_string(pictures++) + ".png");
        std::ofstream(file, std::ios::binary) << png;
        Gdiplus::Bitmap picture(file.c_str());
        ASSERT_EQ(picture.GetLastStatus(), Gdiplus::Ok);
        EXPECT_GT(picture.GetWidth(), 400U);
        Gdiplus::Color pixel;
        picture.GetPixel(0, 0, &pixel);
        EXPECT_EQ(pixel.ToCOLORREF(), RGB(255, 255, 255)) << "white paper";
        int other = 0;
        for (UINT i = 0; i < picture.GetWidth() * picture.GetHeight(); i += 7)
        {
            picture.GetPixel(static_cast<INT>(i % picture.GetWidth()), static_cast<INT>(i / picture.GetWidth()),
                             &pixel);
            other += pixel.ToCOLORREF() != RGB(255, 255, 255) ? 1 : 0;
        }
        EXPECT_GT(other, 300);
        auto const width = " width=\"" + std::to_string(picture.GetWidth()) + '"';
        EXPECT_NE(page.find(width, place), page.npos);
    }
    EXPECT_EQ(pictures, 2U);
}

TEST_F(WorkbenchReport, IsWrittenByMenuAndKeys)
{
    ShowMarked(2, {1});
    tests::LaterActions later;
    auto const dialog = [] { return ::FindWindowW(nullptr, L"Save Report"); };
    later.Add([] { tests::Key(L'P'); }, [] { return ::FindWindowW(L"#32768", nullptr) != nullptr; });
    later.Add(
        [this] {
            tests::Type(m_file.wstring());
            tests::Key(VK_RETURN);
        },
        [&] { return dialog() != nullptr && ::IsWindowVisible(dialog()) && ::IsChild(dialog(), ::GetFocus()); });
    tests::Key(L'F', {VK_MENU});
    ASSERT_TRUE(tests::PumpUntil([this] { return fs::exists(m_file); }));
    ASSERT_FALSE(later.Failed());
    ASSERT_TRUE(WaitUntilWritten());
    EXPECT_EQ(Count(Page(), "<h2>r00001.wav"), 1U);
}

TEST_F(WorkbenchReport, EscapeGivesItUpAndLeavesTheFormerOne)
{
    std::vector<int> all(150);
    for (std::size_t i = 0; i < all.size(); ++i)
    {
        all[i] = static_cast<int>(i);
    }
    ShowMarked(150, all);
    std::ofstream(m_file) << "before";
    ASSERT_TRUE(m_window->WriteReport(m_file));
    ASSERT_TRUE(tests::PumpUntil([this] { return CancelShows(); })) << "it shows that it can be given up";
    EXPECT_NE(Status().find(L"report being written"), std::wstring::npos);
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_window->Report().IsWriting(); }));
    EXPECT_EQ(Page(), "before");
    EXPECT_FALSE(fs::exists(m_file.wstring() + L".new"));
    EXPECT_TRUE(tests::PumpUntil([this] { return !CancelShows(); }));
    EXPECT_EQ(Status().find(L"report"), std::wstring::npos);

    // The window may go at any time.
    ASSERT_TRUE(m_window->WriteReport(m_file));
    CloseWindow();
    EXPECT_EQ(Page(), "before");
    EXPECT_FALSE(fs::exists(m_file.wstring() + L".new"));
    OpenWindow();
}

TEST_F(WorkbenchReport, SaysWhatCannotBeWritten)
{
    ShowMarked(2, {1});
    EXPECT_FALSE(m_window->WriteReport(m_folder / "none" / "report.html"));
    EXPECT_FALSE(m_window->Report().IsWriting());
    EXPECT_EQ(m_window->Report().Error(), static_cast<unsigned long>(ERROR_PATH_NOT_FOUND));
    // A folder stands in its place by the time that it is finished.
    fs::create_directories(m_file / "inside");
    ASSERT_TRUE(m_window->WriteReport(m_file));
    ASSERT_TRUE(WaitUntilWritten());
    EXPECT_TRUE(fs::is_directory(m_file));
    std::vector<std::wstring> const messages = tests::App().TakeMessages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages.front(),
              L"This file could not be written:\n\n" + m_file.wstring() + L": you have no permission for it");
    EXPECT_EQ(Status().find(L"report"), std::wstring::npos);
    EXPECT_FALSE(fs::exists(m_file.wstring() + L".new"));
}

TEST_F(WorkbenchReport, IsOfferedForMarkedRecordingsAlone)
{
    ShowMarked(2, {1});
    auto const offered = [this] {
        CMenu & file = *m_window->GetMenu()->GetSubMenu(0);
        m_window->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(file.m_hMenu), 0);
        return (file.GetMenuState(ID_WRITE_REPORT, MF_BYCOMMAND) & MF_GRAYED) == 0;
    };
    EXPECT_TRUE(offered());
    List().CheckAll(false);
    tests::PumpPosted();
    EXPECT_FALSE(offered());
    EXPECT_FALSE(m_window->WriteReport(m_file));
    EXPECT_FALSE(fs::exists(m_file));
}
} // namespace
