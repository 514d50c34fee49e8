// The help's pages.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "logic/HelpTopics.h"

namespace
{

using namespace workbench;

std::wstring TextOf(HelpTopic topic, std::size_t language)
{
    return HelpPageOf(topic, static_cast<Language>(language)).text;
}

std::ptrdiff_t Paragraphs(std::wstring const & text)
{
    return std::ranges::count(text, L'\n');
}

} // namespace

TEST(WorkbenchHelp, EveryTopicHasATitleAndAsManyParagraphsInAllLanguages)
{
    for (int number = 0; number < help_topic_count; ++number)
    {
        auto const topic = static_cast<HelpTopic>(number);
        std::set<std::wstring> texts;
        for (std::size_t language = 0; language < language_count; ++language)
        {
            EXPECT_NE(HelpPageOf(topic, static_cast<Language>(language)).title, std::wstring()) << number;
            std::wstring const text = TextOf(topic, language);
            texts.insert(text);
            EXPECT_EQ(Paragraphs(text), Paragraphs(TextOf(topic, 0))) << number;
            EXPECT_EQ(std::ranges::count(text, L'\t'), std::ranges::count(TextOf(topic, 0), L'\t')) << number;
            EXPECT_TRUE(topic == HelpTopic::keys || text.ends_with(L".\n")) << number;
        }
        EXPECT_EQ(texts.size(), topic == HelpTopic::keys ? 1U : language_count) << number;
    }
}

TEST(WorkbenchHelp, EveryMeasureOfTheListIsExplainedUnderItsTitle)
{
    for (std::size_t language = 0; language < language_count; ++language)
    {
        SetLanguage(static_cast<Language>(language));
        auto const page = L'\n' + TextOf(HelpTopic::measures, language);
        for (wchar_t const * const title : {L"Peak (dBFS)", L"RMS (dBFS)", L"Crest (dB)", L"Loudness (LUFS)",
                                            L"Frequency (Hz)", L"Distortion (%)", L"Duration"})
        {
            EXPECT_NE(page.find(L'\n' + std::wstring(Text(title)) + L'\t'), std::wstring::npos) << title;
        }
    }
    SetLanguage(Language::english);
}

TEST(WorkbenchHelp, KeysAreThoseOfTheMenus)
{
    std::vector<MenuTexts> const menus{{L"&File", {L"Open &files...\tCtrl+O", L"Save", L"", L"E&xit\tCtrl+Q"}},
                                       {L"&Window", {L"None"}},
                                       {L"Fen&ster", {L"A && B\tF9"}}};
    auto const page = KeysPage(menus, Language::english);
    std::wstring const expected = L"File\nCtrl+O\tOpen files\nCtrl+Q\tExit\n\nFenster\nF9\tA & B\n\n";
    EXPECT_EQ(page.substr(0, expected.size()), expected);
    EXPECT_EQ(page.find(L"Window"), std::wstring::npos);
    EXPECT_NE(page.find(L"Home, End\t"), std::wstring::npos);
    EXPECT_NE(KeysPage(menus, Language::german).find(L"Pos1, Ende\t"), std::wstring::npos);
}
