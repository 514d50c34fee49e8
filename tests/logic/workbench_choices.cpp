// What the user can choose in the workbench, as values: colours of waveforms, amplification, lists as they are stored,
// and what a folder contains.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "logic/Amplification.h"
#include "logic/Axis.h"
#include "logic/FolderContents.h"
#include "logic/ReadableColours.h"
#include "logic/StoredLists.h"
#include "logic/WaveformColours.h"

using namespace workbench;
namespace fs = std::filesystem;

TEST(WorkbenchWaveformColours, AColourIsWrittenAndReadBack)
{
    EXPECT_EQ(ColourText(RGB(0x32, 0xC8, 0xFF)), L"#32C8FF");
    for (COLORREF const colour : {RGB(0, 0, 0), RGB(255, 255, 255), RGB(1, 2, 3), RGB(0xFE, 0, 0x80)})
        EXPECT_EQ(ColourOf(ColourText(colour)), colour);
    EXPECT_EQ(ColourOf(L"#abCDef"), RGB(0xAB, 0xCD, 0xEF));
}

TEST(WorkbenchWaveformColours, OtherTextsAreNoColours)
{
    for (wchar_t const * const text : {L"", L"#", L"32C8FF", L"#32C8F", L"#32C8FFF", L"#32C8FG", L"#-2C8FF", L"# 2C8FF",
                                       L"0x32C8FF", L"#32C8FF ", L"#\u0661\u0662\u0663\u0664\u0665\u0666"})
        EXPECT_FALSE(ColourOf(text)) << text;
}

TEST(WorkbenchWaveformColours, TheFirstChannelHasTheChosenColourAndOthersAreSeenBesideIt)
{
    WaveformColours colours;
    EXPECT_EQ(TraceColour(colours, 0), colours.trace);
    EXPECT_EQ(TraceColour(colours, 6), colours.trace);
    for (COLORREF const background : {RGB(0, 0, 0), RGB(255, 255, 255), RGB(128, 128, 128), RGB(255, 150, 0)})
    {
        colours.background = background;
        for (std::size_t channel = 1; channel < 6; ++channel)
            EXPECT_GE(ContrastRatio(TraceColour(colours, channel), background), 3.0) << channel;
        EXPECT_GE(ContrastRatio(ClippedColour(colours), background), 3.0);
        EXPECT_GE(ContrastRatio(LabelColour(colours), background), text_contrast);
    }
    // On the first background all of them are the scope's own.
    EXPECT_EQ(TraceColour({}, 1), RGB(0xFF, 0x96, 0x00));
    EXPECT_EQ(TraceColour({}, 3), RGB(0xFF, 0x32, 0xDC));
    EXPECT_EQ(ClippedColour({}), RGB(0xFF, 0x00, 0x00));
}

TEST(WorkbenchAmplification, OnlyStepsAreTaken)
{
    for (int decibels = 0; decibels <= 48; decibels += 6)
        EXPECT_EQ(CheckedAmplification(decibels), decibels);
    for (int const decibels :
         {-6, -1, 1, 5, 7, 49, 54, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_EQ(CheckedAmplification(decibels), 0) << decibels;
}

TEST(WorkbenchAmplification, FitsAPeakIntoThePlot)
{
    EXPECT_EQ(FittingAmplification(0.0), 0);
    EXPECT_EQ(FittingAmplification(-5.9), 0);
    EXPECT_EQ(FittingAmplification(-6.0), 6);
    EXPECT_EQ(FittingAmplification(-40.0), 36);
    EXPECT_EQ(FittingAmplification(-300.0), 48);
    EXPECT_EQ(FittingAmplification(3.0), 0);
    EXPECT_EQ(FittingAmplification(-std::numeric_limits<double>::infinity()), 0);
    EXPECT_EQ(FittingAmplification(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(WorkbenchAmplification, LevelLinesStandForLowerLevels)
{
    std::vector<LevelLine> const plain = LevelLines(100, 12);
    std::vector<LevelLine> const amplified = LevelLines(100, 12, 12);
    ASSERT_EQ(plain.size(), amplified.size());
    EXPECT_EQ(plain.front().label, L"0");
    EXPECT_EQ(amplified.front().label, L"-12");
    EXPECT_EQ(amplified[1].label, L"-18");
    EXPECT_EQ(plain[1].amplitude, amplified[1].amplitude);
}

TEST(WorkbenchStoredLists, NumbersComeBackAndOthersAreLeftOut)
{
    EXPECT_EQ(NumbersOf(NumberText({3, 5, 11}), 13), (std::set<int>{3, 5, 11}));
    EXPECT_EQ(NumberText({}), L"");
    EXPECT_TRUE(NumbersOf(L"", 13).empty());
    EXPECT_EQ(NumbersOf(L"12 13 14 -1 0 x 3x 99999999999999999999 +4  5", 13), (std::set<int>{0, 5, 12}));
}

TEST(WorkbenchStoredLists, FoldersComeBackWithoutEmptyOnes)
{
    std::vector<fs::path> const folders{L"C:\\a b", L"D:\\c;d"};
    EXPECT_EQ(FoldersOf(FolderText(folders)), folders);
    EXPECT_EQ(FoldersOf(L"||a||b|"), (std::vector<fs::path>{L"a", L"b"}));
}

TEST(WorkbenchStoredLists, TheLastOpenedFolderIsFirstAndThereOnce)
{
    std::vector<fs::path> folders;
    for (int i = 0; i < 12; ++i)
        PutFirst(folders, L"C:\\f" + std::to_wstring(i));
    ASSERT_EQ(folders.size(), most_recent_folders);
    EXPECT_EQ(folders.front(), fs::path(L"C:\\f11"));
    EXPECT_EQ(folders.back(), fs::path(L"C:\\f2"));
    PutFirst(folders, L"c:\\F5\\");
    ASSERT_EQ(folders.size(), most_recent_folders);
    EXPECT_EQ(folders.front(), fs::path(L"c:\\F5\\"));
    PutFirst(folders, folders.back());
    EXPECT_EQ(folders.front(), fs::path(L"C:\\f2"));
    EXPECT_EQ(folders.size(), most_recent_folders);
}

TEST(WorkbenchStoredLists, AFolderContainsItselfAndWhatIsBelow)
{
    EXPECT_TRUE(IsInFolder(L"C:\\a\\b", L"C:\\a"));
    EXPECT_TRUE(IsInFolder(L"C:\\A\\b\\c", L"c:\\a\\"));
    EXPECT_TRUE(IsInFolder(L"C:\\a", L"C:\\a"));
    EXPECT_TRUE(IsInFolder(L"C:\\a", L"C:\\"));
    EXPECT_FALSE(IsInFolder(L"C:\\ab", L"C:\\a"));
    EXPECT_FALSE(IsInFolder(L"C:\\", L"C:\\a"));
}

namespace
{
class WorkbenchFolderContents : public testing::Test
{
protected:
    void SetUp() override
    {
        fs::remove_all(m_folder);
        fs::create_directories(m_folder / "sub.wav"); // a folder, whatever its name
        fs::create_directories(m_folder / "Alpha");
        for (char const * const name : {"b.wav", "A.WAV", "c.txt", "d.wave"})
            std::ofstream(m_folder / name) << "x";
    }
    void TearDown() override { fs::remove_all(m_folder); }

    fs::path const m_folder = fs::temp_directory_path() / "workbench_folder_contents_test";
};
} // namespace

TEST_F(WorkbenchFolderContents, AreFoldersAndRecordingsByName)
{
    FolderContents const contents = ContentsOf(m_folder);
    EXPECT_EQ(contents.folders, (std::vector<fs::path>{m_folder / "Alpha", m_folder / "sub.wav"}));
    EXPECT_EQ(contents.recordings,
              (std::vector<fs::path>{m_folder / "A.WAV", m_folder / "b.wav", m_folder / "d.wave"}));
    EXPECT_EQ(ContentsOf(m_folder / "gone"), FolderContents());
    EXPECT_EQ(ContentsOf(m_folder / "b.wav"), FolderContents());
    EXPECT_EQ(ContentsOf(m_folder, [] { return true; }), FolderContents());
}

TEST_F(WorkbenchFolderContents, AreReadOnAThread)
{
    std::atomic<int> told = 0;
    auto const before = std::make_shared<FolderContents>();
    before->recordings = {m_folder / "b.wav", m_folder / "old.wav"};
    FolderReading reading(m_folder, before, [&told] { ++told; });
    while (told == 0)
        std::this_thread::yield();
    EXPECT_EQ(told, 1);
    std::optional<FolderReading::Result> const result = reading.Take();
    ASSERT_TRUE(result);
    EXPECT_EQ(*result->contents, ContentsOf(m_folder));
    EXPECT_EQ(result->steps, StepsBetween(*before, *result->contents));
    EXPECT_FALSE(reading.Take());
}

TEST(WorkbenchFolderSteps, LeadFromOneToTheOther)
{
    using Kind = FolderStep::Kind;
    FolderContents const before{{"a", "c"}, {"1.wav", "3.wav", "4.wav"}};
    FolderContents const after{{"b", "c"}, {"0.wav", "1.wav", "2.wav", "4.wav", "5.wav"}};
    EXPECT_EQ(StepsBetween(before, after), (std::vector<FolderStep>{{Kind::remove, true, "a", ""},
                                                                    {Kind::add, true, "b", ""},
                                                                    {Kind::remove, false, "3.wav", ""},
                                                                    {Kind::add, false, "0.wav", ""},
                                                                    {Kind::add, false, "2.wav", "1.wav"},
                                                                    {Kind::add, false, "5.wav", "4.wav"}}));
    EXPECT_TRUE(StepsBetween(before, before).empty());
    EXPECT_EQ(StepsBetween({}, {{}, {"1.wav"}}), (std::vector<FolderStep>{{Kind::add, false, "1.wav", ""}}));
}
