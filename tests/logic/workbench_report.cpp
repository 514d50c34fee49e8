// The report about recordings, and the file that it is written into.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

#include "logic/NumberSigns.h"
#include "logic/Report.h"
#include "logic/SafeFile.h"

namespace
{

using namespace workbench;

/// Why a page is not one that every browser reads the same: tags that don't close in their order, values without
/// quotation marks, marks that stand for themselves. Empty for a good one.
std::string FaultOf(std::string_view page)
{
    std::vector<std::string> open;
    constexpr std::array<std::string_view, 4> single{"meta", "img", "br", "!DOCTYPE"};
    for (std::size_t place = 0; place < page.size();)
    {
        if (static_cast<unsigned char>(page[place]) > 0x7E)
        {
            return "not ASCII";
        }
        if (page[place] == '>' && (open.empty() || open.back() != "style"))
        {
            return "stray >";
        }
        if (page[place] == '&')
        {
            std::size_t const end = page.find(';', place);
            if (end == page.npos || end - place > 9)
            {
                return "stray &";
            }
        }
        if (page[place] != '<')
        {
            ++place;
            continue;
        }
        std::size_t end = place + 1;
        for (bool quoted = false; end < page.size() && (quoted || page[end] != '>'); ++end)
        {
            quoted = quoted != (page[end] == '"');
            if (!quoted && page[end] == '=' && page[end + 1] != '"')
            {
                return "a value without quotation marks";
            }
            if (!quoted && page[end] == '<')
            {
                return "stray <";
            }
        }
        std::string_view const tag = page.substr(place + 1, end - place - 1);
        place = end + 1;
        auto const name = std::string(tag.substr(0, tag.find(' ')));
        if (name.starts_with('/'))
        {
            if (open.empty() || open.back() != name.substr(1))
            {
                return "closes too early: " + name;
            }
            open.pop_back();
        }
        else if (std::ranges::find(single, name) == single.end())
        {
            open.push_back(name);
        }
    }
    return open.empty() ? std::string() : "stays open: " + open.back();
}

ReportedRecording Reported(std::wstring const & name)
{
    ReportedRecording recording;
    recording.file = std::filesystem::path(L"/recordings") / name;
    auto analysis = std::make_shared<RecordingAnalysis>();
    analysis->info.channels = 2;
    analysis->info.sampleRate = 48000;
    analysis->info.bitsPerSample = 16;
    analysis->info.frames = 96000;
    analysis->info.announcedFrames = 96000;
    analysis->levels = {-1.5, -10.25};
    analysis->loudness = -23.04;
    analysis->tone.frequency = 997.0;
    recording.analysis = analysis;
    return recording;
}

std::string PageOf(std::vector<ReportedRecording> const & recordings, std::vector<ReportPicture> const & pictures = {})
{
    std::string page = ReportBegin({L"Report", L"en", L"1 May 2026"}, recordings);
    for (ReportedRecording const & recording : recordings)
    {
        page += ReportSection(recording, pictures);
    }
    return page + ReportEnd();
}

bool Has(std::string const & page, std::string_view text)
{
    return page.find(text) != page.npos;
}

TEST(Report, TheCheckOfPagesFindsFaults)
{
    EXPECT_EQ(FaultOf("<p>a</p>"), "");
    EXPECT_NE(FaultOf("<p>a"), "");
    EXPECT_NE(FaultOf("<p><b>a</p></b>"), "");
    EXPECT_NE(FaultOf("<p class=x>a</p>"), "");
    EXPECT_NE(FaultOf("<p>a > b</p>"), "");
    EXPECT_NE(FaultOf("<p>a & b</p>"), "");
}

TEST(Report, HasAllMeasuresInATableAndASectionForEachRecording)
{
    std::string const page = PageOf({Reported(L"a.wav"), Reported(L"b.wav")});
    EXPECT_EQ(FaultOf(page), "");
    EXPECT_TRUE(page.starts_with("<!DOCTYPE html>"));
    EXPECT_TRUE(Has(page, "<td>a.wav</td><td class=\"number\">0:02.000</td><td class=\"number\">2</td>"
                          "<td class=\"number\">48,000</td><td class=\"number\">-1.5</td>"));
    EXPECT_TRUE(Has(page, "<h2>b.wav</h2>"));
    EXPECT_TRUE(Has(page, "-23.0 LUFS"));
    for (char const * const style : {"color-scheme: light dark", "@media print"})
    {
        EXPECT_TRUE(Has(page, style));
    }
    // Nothing is fetched from elsewhere.
    for (char const * const link : {"http", "file:", "<link", "<script", "url("})
    {
        EXPECT_FALSE(Has(page, link)) << link;
    }
}

TEST(Report, BeginsWithDateFoldersAndNumber)
{
    ReportedRecording other = Reported(L"c.wav");
    other.file = L"/elsewhere/c.wav";
    std::string const page = PageOf({Reported(L"a.wav"), Reported(L"b.wav"), other});
    EXPECT_EQ(FaultOf(page), "");
    EXPECT_TRUE(Has(page, "<h1>Report</h1>\r\n<table>\r\n<tbody>\r\n"
                          "<tr><th scope=\"row\">Date</th><td>1 May 2026</td></tr>\r\n"
                          "<tr><th scope=\"row\">Folder</th><td>/recordings<br>/elsewhere</td></tr>\r\n"
                          "<tr><th scope=\"row\">Recordings</th><td>3</td></tr>\r\n"));
}

TEST(Report, ASectionHasRatingAndComment)
{
    ReportedRecording recording = Reported(L"a.wav");
    recording.rating = L"Good";
    recording.notes.comment = L"loud & clear";
    std::string const section = ReportSection(recording, {});
    EXPECT_TRUE(Has(section, "<tr><th scope=\"row\">Rating</th><td>Good</td></tr>"));
    EXPECT_TRUE(Has(section, "<tr><th scope=\"row\">Comment</th><td>loud &amp; clear</td></tr>"));
    std::string const none = ReportSection(Reported(L"a.wav"), {});
    EXPECT_FALSE(Has(none, "Rating"));
    EXPECT_FALSE(Has(none, "Comment"));
}

TEST(Report, NumbersHaveTheSignsOfTheRegion)
{
    NumberSigns signs;
    signs.decimal = L",";
    signs.grouping = L".";
    SetNumberSigns(signs);
    std::string const page = PageOf({Reported(L"a.wav")});
    SetNumberSigns({});
    EXPECT_TRUE(Has(page, "<td class=\"number\">48.000</td><td class=\"number\">-1,5</td>"));
    EXPECT_TRUE(Has(page, "<td>48.000 Hz</td>"));
    EXPECT_FALSE(Has(page, "48000"));
    EXPECT_FALSE(Has(page, "-1.5"));
}

TEST(Report, AFileIsCalledAfterFolderAndDay)
{
    EXPECT_EQ(ReportFileName(L"/a/Takes", 2026, 5, 1), L"Report Takes 2026-05-01");
    EXPECT_EQ(ReportFileName(L"", 2026, 11, 22), L"Report 2026-11-22");
}

TEST(Report, WhatTheUserWroteIsText)
{
    ReportedRecording recording = Reported(L"<b>\"R&B\".wav");
    recording.notes.comment = L"</td><script>alert(1)</script>\nsecond \u00E4\U0001F3B5";
    recording.rating = L"<Good>";
    recording.date = L"1 < 2";
    std::vector<ReportPicture> const pictures{{L"Wave \"form\" > 1", "png", 10, 5}};
    std::string const page = PageOf({recording}, pictures);
    EXPECT_EQ(FaultOf(page), "");
    EXPECT_FALSE(Has(page, "<script"));
    EXPECT_FALSE(Has(page, "<b>"));
    EXPECT_TRUE(Has(page, "&lt;/td&gt;&lt;script&gt;alert(1)&lt;/script&gt;<br>second &#228;&#127925;"));
    EXPECT_TRUE(Has(page, "alt=\"Wave &quot;form&quot; &gt; 1: &lt;b&gt;&quot;R&amp;B&quot;.wav\""));
}

TEST(Report, RecordingsWithoutMeasuresHaveTheirRow)
{
    ReportedRecording unread;
    unread.file = L"/unread.wav";
    ReportedRecording unreadable = Reported(L"broken.wav");
    auto analysis = std::make_shared<RecordingAnalysis>();
    analysis->problem = ReadProblem{ReadFault::cannot_be_opened};
    unreadable.analysis = analysis;
    std::string const page = PageOf({unread, unreadable});
    EXPECT_EQ(FaultOf(page), "");
    EXPECT_TRUE(Has(page, "<td>not read yet</td></tr>"));
    EXPECT_TRUE(Has(page, "<td>cannot be opened</td></tr>"));
    EXPECT_EQ(FaultOf(PageOf({})), "");
}

TEST(Report, PicturesAreInThePage)
{
    std::vector<ReportPicture> const pictures{{L"Waveform", "\x89PNG", 720, 180}, {L"Spectrogram", "", 1, 1}};
    std::string const page = PageOf({Reported(L"a.wav")}, pictures);
    EXPECT_TRUE(Has(page, "<img src=\"data:image/png;base64,iVBORw==\" alt=\"Waveform: a.wav\" width=\"720\" "
                          "height=\"180\">"));
    EXPECT_FALSE(Has(page, "Spectrogram")) << "a picture that there is not";
}

TEST(Report, Base64IsAsPublished)
{
    EXPECT_EQ(Base64(""), "");
    EXPECT_EQ(Base64("f"), "Zg==");
    EXPECT_EQ(Base64("fo"), "Zm8=");
    EXPECT_EQ(Base64("foo"), "Zm9v");
    EXPECT_EQ(Base64("foob"), "Zm9vYg==");
    EXPECT_EQ(Base64("fooba"), "Zm9vYmE=");
    EXPECT_EQ(Base64("foobar"), "Zm9vYmFy");
    EXPECT_EQ(Base64(std::string("\xFF\xFE\x00", 3)), "//4A");
}

class DraftOfAFile : public testing::Test
{
protected:
    void SetUp() override
    {
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder);
        std::ofstream(m_file) << "before";
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }
    std::string Contents() const { return ReadWholeFile(m_file).value_or("none"); }
    long Files() const { return static_cast<long>(std::distance(std::filesystem::directory_iterator(m_folder), {})); }

    std::filesystem::path const m_folder = std::filesystem::temp_directory_path() / "workbench_draft_test";
    std::filesystem::path const m_file = m_folder / "report.html";
};

TEST_F(DraftOfAFile, ReplacesItOnceItIsFinished)
{
    FileDraft draft(m_file);
    EXPECT_TRUE(draft.Append("a"));
    EXPECT_TRUE(draft.Append("b"));
    EXPECT_EQ(Contents(), "before");
    EXPECT_TRUE(draft.Finish());
    EXPECT_EQ(Contents(), "ab");
    EXPECT_EQ(Files(), 1);
    EXPECT_FALSE(draft.Finish()) << "once";
    EXPECT_EQ(Contents(), "ab");
}

TEST_F(DraftOfAFile, LeavesItWhenItIsGivenUp)
{
    {
        FileDraft draft(m_file);
        draft.Append("a");
    }
    EXPECT_EQ(Contents(), "before");
    EXPECT_EQ(Files(), 1);
}

TEST_F(DraftOfAFile, SaysThatItCannotBeWritten)
{
    FileDraft draft(m_folder / "none" / "report.html");
    EXPECT_FALSE(draft.Append("a"));
    EXPECT_FALSE(draft.Finish());
    EXPECT_EQ(draft.Error(), 3U) << "the folder is not there";
    std::filesystem::remove(m_file);
    std::filesystem::create_directories(m_file / "inside");
    unsigned long error = 0;
    EXPECT_FALSE(ReplaceWholeFile(m_file, "a", &error));
    EXPECT_EQ(error, 5U) << "a folder has the name";
    EXPECT_EQ(Files(), 1);
    EXPECT_TRUE(ReplaceWholeFile(m_folder / "other.html", "a", &error));
    EXPECT_EQ(error, 0U);
}

TEST_F(DraftOfAFile, WhatIsInTheWayIsFound)
{
    EXPECT_EQ(WriteObstacle(m_file, 10), 0U);
    EXPECT_EQ(WriteObstacle(m_file, std::numeric_limits<std::uintmax_t>::max()), 112U) << "no room";
    EXPECT_EQ(WriteObstacle(m_folder / "none" / "report.html", 10), 3U);
    EXPECT_EQ(Files(), 1);
    EXPECT_EQ(Contents(), "before");
}

#ifndef _WIN32
TEST_F(DraftOfAFile, AFullDiskIsTold)
{
    std::filesystem::create_symlink("/dev/full", m_file.string() + ".new");
    unsigned long error = 0;
    EXPECT_FALSE(ReplaceWholeFile(m_file, std::string(100'000, 'a'), &error));
    EXPECT_EQ(error, 112U);
    EXPECT_EQ(Contents(), "before");
    EXPECT_EQ(Files(), 1);
}

TEST_F(DraftOfAFile, AFolderThatGoesMeanwhileIsTold)
{
    FileDraft draft(m_file);
    EXPECT_TRUE(draft.Append("a"));
    std::filesystem::remove_all(m_folder);
    EXPECT_FALSE(draft.Finish());
    EXPECT_EQ(draft.Error(), 3U);
    EXPECT_FALSE(std::filesystem::exists(m_folder));
}
#endif

} // namespace
