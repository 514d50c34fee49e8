// The workbench's texts in German.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "logic/RecordingAnalysis.h"
#include "logic/RecordingDetails.h"
#include "logic/Texts.h"

using namespace workbench;

namespace
{

/// Sets a language, and English again at the end of the block.
struct LanguageScope
{
    explicit LanguageScope(Language language) { SetLanguage(language); }
    LanguageScope(LanguageScope const &) = delete;
    LanguageScope & operator=(LanguageScope const &) = delete;
    ~LanguageScope() { SetLanguage(Language::English); }
};

/// UTF-8 to wide, in either width of wchar_t; the texts have no characters beyond the first plane.
std::wstring Widen(std::string const & text)
{
    std::wstring wide;
    for (std::size_t i = 0; i < text.size();)
    {
        auto const lead = static_cast<unsigned char>(text[i]);
        auto const length = lead < 0x80 ? 1u : lead < 0xE0 ? 2u : 3u;
        auto code = length == 1 ? lead : lead & (0xFFu >> (length + 1));
        for (auto k = 1u; k < length; ++k)
            code = code << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3Fu);
        wide += static_cast<wchar_t>(code);
        i += length;
    }
    return wide;
}

/// What a literal of the sources stands for; the texts use no other escapes.
std::string Unescaped(std::string const & literal)
{
    return std::regex_replace(literal, std::regex(R"(\\t)"), "\t");
}

std::string ReadFile(std::filesystem::path const & path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// All texts that the workbench's sources ask for.
std::set<std::string> TextsOfTheSources()
{
    std::set<std::string> texts;
    std::regex const use(R"re((?:Text|Translatable)\(\s*L"((?:[^"\\]|\\.)*)"\s*\))re");
    for (auto const & entry : std::filesystem::recursive_directory_iterator(WORKBENCH_SOURCES))
    {
        if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h")
            continue;
        auto const source = ReadFile(entry.path());
        for (std::sregex_iterator match(source.begin(), source.end(), use), end; match != end; ++match)
            texts.insert(Unescaped((*match)[1]));
    }
    return texts;
}

/// The entries of the catalogue: English and German.
std::map<std::string, std::string> Entries()
{
    std::map<std::string, std::string> entries;
    auto const source = ReadFile(std::filesystem::path(WORKBENCH_SOURCES) / "logic" / "Texts.cpp");
    std::regex const entry(R"re(\{L"((?:[^"\\]|\\.)*)",\s*L"((?:[^"\\]|\\.)*)"\})re");
    for (std::sregex_iterator match(source.begin(), source.end(), entry), end; match != end; ++match)
    {
        EXPECT_TRUE(entries.emplace(Unescaped((*match)[1]), Unescaped((*match)[2])).second) << "twice: " << (*match)[1];
    }
    return entries;
}

std::set<std::string> Conversions(std::string const & text)
{
    std::set<std::string> found;
    std::regex const conversion(R"(%[0-9]*l*[a-zA-Z])");
    for (std::sregex_iterator match(text.begin(), text.end(), conversion), end; match != end; ++match)
        found.insert(match->str());
    return found;
}

std::size_t Count(std::string const & text, char character)
{
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), character));
}

} // namespace

TEST(WorkbenchTexts, EveryTextOfTheSourcesHasAGermanOne)
{
    auto const texts = TextsOfTheSources();
    auto const entries = Entries();
    EXPECT_GT(texts.size(), 60u);
    for (auto const & text : texts)
        EXPECT_EQ(entries.count(text), 1u) << text;
}

TEST(WorkbenchTexts, EveryEntryOfTheCatalogueIsUsed)
{
    auto const texts = TextsOfTheSources();
    for (auto const & [english, german] : Entries())
        EXPECT_EQ(texts.count(english), 1u) << english;
}

TEST(WorkbenchTexts, EveryEntryIsFound)
{
    LanguageScope const german(Language::German);
    for (auto const & [english, text] : Entries())
        EXPECT_EQ(Text(Widen(english).c_str()), Widen(text)) << english;
}

TEST(WorkbenchTexts, TheGermanTextHasTheSameConversionsMnemonicAndKey)
{
    for (auto const & [english, german] : Entries())
    {
        // A percent sign before a blank is one of a sentence.
        EXPECT_EQ(Conversions(english), Conversions(german)) << english;
        EXPECT_EQ(Count(english, '&'), Count(german, '&')) << english;
        EXPECT_EQ(Count(english, '\t'), Count(german, '\t')) << english;
        EXPECT_EQ(Count(english, '|'), Count(german, '|')) << english;
    }
}

TEST(WorkbenchTexts, WhatHasNoEntryStaysAsItIs)
{
    LanguageScope const german(Language::German);
    EXPECT_STREQ(Text(L"Instrument Workbench"), L"Instrument Workbench");
    EXPECT_STREQ(Text(L""), L"");
}

TEST(WorkbenchTexts, EnglishIsTheFirstLanguageAndComesBack)
{
    EXPECT_STREQ(Text(L"Settings"), L"Settings");
    {
        LanguageScope const german(Language::German);
        EXPECT_STREQ(Text(L"Settings"), L"Einstellungen");
    }
    EXPECT_STREQ(Text(L"Settings"), L"Settings");
}

TEST(WorkbenchTexts, GermanOfEveryCountryIsGerman)
{
    EXPECT_EQ(LanguageOf(1031), Language::German);
    EXPECT_EQ(LanguageOf(2055), Language::German); // Switzerland
    EXPECT_EQ(LanguageOf(3079), Language::German); // Austria
    EXPECT_EQ(LanguageOf(1033), Language::English);
    EXPECT_EQ(LanguageOf(2052), Language::English); // Chinese
    EXPECT_EQ(LanguageOf(1024), Language::English);
}

TEST(WorkbenchTexts, FaultsAndDetailsAreTold)
{
    LanguageScope const german(Language::German);
    ReadProblem problem{ReadFault::unknown_format};
    problem.formatTag = 0x55;
    EXPECT_EQ(problem.Text(), L"unbekanntes Format (Kennung 0x0055)");
    problem.formatTag = 1;
    problem.bitsPerSample = 12;
    EXPECT_EQ(problem.Text(), L"unbekanntes Format (12 Bit PCM)");

    RecordingAnalysis analysis;
    analysis.problem = ReadProblem{ReadFault::not_wav};
    auto const lines = DescribeRecording("a.wav", analysis, L"");
    EXPECT_EQ(lines.front().label, L"Datei");
    EXPECT_EQ(lines.back(), (DetailLine{L"Zustand", L"keine WAV-Datei"}));
}
