// What the user sets in the workbench: stored and read back, also from a store that somebody has spoiled.

#include "Settings.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <set>
#include <string>

#include "logic/Texts.h"
#include "TestApp.h"

using workbench::ReadSettings;
using workbench::Settings;
using workbench::StoreSettings;

namespace
{
/// Lets the application keep its settings in a file of the test's own.
class WorkbenchSettings : public testing::Test
{
protected:
    void SetUp() override
    {
        std::filesystem::remove(m_file);
        tests::App().m_pszProfileName = m_name.c_str();
    }
    void TearDown() override
    {
        tests::App().m_pszProfileName = m_former;
        std::filesystem::remove(m_file);
    }

    void Write(wchar_t const * entry, wchar_t const * value)
    {
        ASSERT_TRUE(tests::App().WriteProfileString(L"Settings", entry, value));
    }

private:
    std::filesystem::path const m_file = std::filesystem::temp_directory_path() / "workbench_settings_test.ini";
    std::wstring const m_name = m_file.wstring();
    LPCTSTR const m_former = tests::App().m_pszProfileName;
};
} // namespace

TEST_F(WorkbenchSettings, AreThoseOfANewObjectAtFirst)
{
    Settings const settings = ReadSettings();
    EXPECT_TRUE(settings.fadeIn);
    EXPECT_TRUE(settings.dragByBackground);
    EXPECT_EQ(settings.inactiveOpacity, 50);
    EXPECT_EQ(settings.spectrogramScale, 1u);
    EXPECT_TRUE(settings.startFolders.empty());
    EXPECT_EQ(workbench::ReadLanguage(), workbench::users_default_language);
}

TEST_F(WorkbenchSettings, ComeBackAsTheyWereStored)
{
    Settings settings;
    settings.fadeIn = false;
    settings.dragByBackground = false;
    settings.inactiveOpacity = 75;
    settings.spectrogramScale = 8;
    settings.startFolders = {L"C:\\recordings", L"D:\\with blanks and ; signs"};
    settings.recentFolders = {L"D:\\last", L"C:\\before"};
    settings.waveform = {RGB(1, 2, 3), RGB(4, 5, 6), RGB(7, 8, 9), RGB(250, 251, 252)};
    settings.amplification = 18;
    settings.spectrogram = {4096, 75};
    settings.frequencyScale = workbench::FrequencyScale::logarithmic;
    settings.hiddenColumns = {3, 11};
    settings.folderPane = false;
    settings.folderPaneWidth = 44;
    settings.exportFile = L"C:\\lists\\list of today.html";
    settings.exportHidden = {5};
    settings.exportLines = 2;
    settings.contrast = ControlColorSet::follow_system;
    ASSERT_TRUE(StoreSettings(settings));
    ASSERT_TRUE(workbench::StoreLanguage(1031));
    Settings const read = ReadSettings();
    EXPECT_FALSE(read.fadeIn);
    EXPECT_FALSE(read.dragByBackground);
    EXPECT_EQ(read.inactiveOpacity, 75);
    EXPECT_EQ(read.spectrogramScale, 8u);
    EXPECT_EQ(read.startFolders, settings.startFolders);
    EXPECT_EQ(read.recentFolders, settings.recentFolders);
    EXPECT_EQ(read.waveform, settings.waveform);
    EXPECT_EQ(read.amplification, 18);
    EXPECT_EQ(read.spectrogram, settings.spectrogram);
    EXPECT_EQ(read.frequencyScale, workbench::FrequencyScale::logarithmic);
    EXPECT_EQ(read.hiddenColumns, settings.hiddenColumns);
    EXPECT_EQ(read.folderPane, std::optional(false));
    EXPECT_EQ(read.folderPaneWidth, 44);
    EXPECT_EQ(read.exportFile, settings.exportFile);
    EXPECT_EQ(read.exportHidden, settings.exportHidden);
    EXPECT_EQ(read.exportLines, 2);
    EXPECT_EQ(read.contrast, ControlColorSet::follow_system);
    EXPECT_EQ(workbench::ReadLanguage(), 1031);
}

TEST_F(WorkbenchSettings, ASpectrogramThatCannotBeIsAsAtFirst)
{
    Write(L"SpectrogramWindow", L"1000");
    Write(L"SpectrogramOverlap", L"40");
    Write(L"FrequencyScale", L"7");
    EXPECT_EQ(ReadSettings().spectrogram, workbench::SpectrogramSettings());
    EXPECT_EQ(ReadSettings().frequencyScale, workbench::FrequencyScale::linear);
    Write(L"SpectrogramWindow", L"4294967295");
    EXPECT_EQ(ReadSettings().spectrogram.window, 0u);
}

TEST_F(WorkbenchSettings, AContrastThatCannotBeIsTheUsualOne)
{
    Write(L"Contrast", L"4");
    EXPECT_EQ(ReadSettings().contrast, ControlColorSet::standard);
}

TEST_F(WorkbenchSettings, AnOpacityOutOfItsLimitsIsNotTaken)
{
    for (wchar_t const * const value : {L"19", L"101", L"-5", L"0"})
    {
        Write(L"InactiveOpacity", value);
        EXPECT_EQ(ReadSettings().inactiveOpacity, 50) << value;
    }
    Write(L"InactiveOpacity", L"20");
    EXPECT_EQ(ReadSettings().inactiveOpacity, 20);
    Write(L"InactiveOpacity", L"100");
    EXPECT_EQ(ReadSettings().inactiveOpacity, 100);
}

TEST_F(WorkbenchSettings, BadValuesAreAsInANewObject)
{
    Settings const usual;
    for (wchar_t const * const entry : {L"TraceColour", L"BackgroundColour", L"GridColour", L"CursorColour"})
    {
        Write(entry, L"blue");
        EXPECT_EQ(ReadSettings().waveform, usual.waveform) << entry;
    }
    Write(L"CursorColour", L"#102030");
    EXPECT_EQ(ReadSettings().waveform.cursor, RGB(0x10, 0x20, 0x30)); // each for itself
    EXPECT_EQ(ReadSettings().waveform.trace, usual.waveform.trace);
    for (wchar_t const * const value : {L"7", L"-6", L"60", L"99999999", L"x"})
    {
        Write(L"Amplification", value);
        EXPECT_EQ(ReadSettings().amplification, 0) << value;
    }
    Write(L"HiddenColumns", L"3 x -1 999999 7");
    EXPECT_EQ(ReadSettings().hiddenColumns, (std::set<int>{3, 7, 13, 14, 15, 16})); // the last ones are later ones
    Write(L"FolderPane", L"7");
    EXPECT_FALSE(ReadSettings().folderPane);
    for (wchar_t const * const value : {L"-5", L"3", L"100000"})
    {
        Write(L"FolderPaneWidth", value);
        EXPECT_EQ(ReadSettings().folderPaneWidth, 0) << value;
    }
    Write(L"ExportLines", L"3");
    EXPECT_EQ(ReadSettings().exportLines, 0);
    std::wstring many;
    for (int i = 0; i < 50; ++i)
    {
        many += L"|C:\\f" + std::to_wstring(i);
    }
    Write(L"RecentFolders", many.c_str());
    EXPECT_EQ(ReadSettings().recentFolders.size(), 10U);
}

TEST_F(WorkbenchSettings, EmptyFoldersAreLeftOut)
{
    Write(L"StartFolders", L"||C:\\a||C:\\b|");
    EXPECT_EQ(ReadSettings().startFolders, (std::vector<std::filesystem::path>{L"C:\\a", L"C:\\b"}));
    Write(L"StartFolders", L"|");
    EXPECT_TRUE(ReadSettings().startFolders.empty());
}

TEST_F(WorkbenchSettings, TheOpacityBecomesAnAlpha)
{
    Settings settings;
    settings.inactiveOpacity = 100;
    EXPECT_EQ(settings.InactiveAlpha(), 255);
    settings.inactiveOpacity = 50;
    EXPECT_EQ(settings.InactiveAlpha(), 128);
    settings.inactiveOpacity = 20;
    EXPECT_EQ(settings.InactiveAlpha(), 51);
}

TEST_F(WorkbenchSettings, ALanguageChangesTextsAndResources)
{
    LCID const locale = ::GetThreadLocale();
    workbench::UseLanguage(1031);
    EXPECT_STREQ(workbench::Text(L"Settings"), L"Einstellungen");
    EXPECT_EQ(LANGIDFROMLCID(::GetThreadLocale()), 1031);
    workbench::UseLanguage(1033);
    EXPECT_STREQ(workbench::Text(L"Settings"), L"Settings");
    EXPECT_EQ(LANGIDFROMLCID(::GetThreadLocale()), 1033);
    ::SetThreadLocale(locale);
    ::SetThreadUILanguage(0);
}
