// The workbench's texts in its languages: those of the sources, and those of its menus and dialogs.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

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
    ~LanguageScope() { SetLanguage(Language::english); }
};

/// UTF-8 to wide, in either width of wchar_t; the texts have no characters beyond the first plane.
std::wstring Widen(std::string const & text)
{
    std::wstring wide;
    for (std::size_t i = 0; i < text.size();)
    {
        auto const lead = static_cast<unsigned char>(text[i]);
        unsigned int const length = lead < 0x80 ? 1u : lead < 0xE0 ? 2u : 3u;
        unsigned int code = length == 1 ? lead : lead & (0xFFu >> (length + 1));
        for (unsigned int k = 1u; k < length; ++k)
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
    for (std::filesystem::directory_entry const & entry :
         std::filesystem::recursive_directory_iterator(WORKBENCH_SOURCES))
    {
        if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h")
            continue;
        std::string const source = ReadFile(entry.path());
        for (std::sregex_iterator match(source.begin(), source.end(), use), end; match != end; ++match)
            texts.insert(Unescaped((*match)[1]));
    }
    return texts;
}

/// The contents of the literals in a text, in their order.
std::vector<std::string> Literals(std::string const & text)
{
    std::vector<std::string> literals;
    std::regex const literal(R"re("((?:[^"\\]|\\.)*)")re");
    for (std::sregex_iterator match(text.begin(), text.end(), literal), end; match != end; ++match)
        literals.push_back(Unescaped((*match)[1]));
    return literals;
}

/// The entries of the catalogue: by the English text, the texts in all languages by their number.
std::map<std::string, std::vector<std::string>> Entries()
{
    std::map<std::string, std::vector<std::string>> entries;
    std::string const source = ReadFile(std::filesystem::path(WORKBENCH_SOURCES) / "logic" / "Texts.cpp");
    std::regex const entry(R"re(\{L"(?:[^"\\]|\\.)*"(?:,\s*L"(?:[^"\\]|\\.)*")*\})re");
    for (std::sregex_iterator match(source.begin(), source.end(), entry), end; match != end; ++match)
    {
        std::vector<std::string> const texts = Literals(match->str());
        EXPECT_TRUE(entries.emplace(texts.front(), texts).second) << "twice: " << texts.front();
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

/// What Alt selects a text by, in capitals, or 0. Keys beyond ASCII are no good: not every keyboard has them.
char AccessKey(std::string const & text)
{
    std::size_t const mark = text.find('&');
    return mark == std::string::npos ? '\0'
                                     : static_cast<char>(std::toupper(static_cast<unsigned char>(text[mark + 1])));
}

/// The keys after the tab: how many, and the last one where it has the same name in every language (A, F2).
std::string Shortcut(std::string const & text)
{
    std::size_t const tab = text.find('\t');
    auto const keys = tab == std::string::npos ? std::string() : text.substr(tab + 1);
    std::string const last = keys.substr(keys.find_last_of('+', std::max<std::size_t>(keys.size(), 2) - 2) + 1);
    return std::to_string(Count(keys, '+')) + ' ' + (last.size() <= 2 ? last : "a named key");
}

bool OpensADialog(std::string const & text)
{
    return text.substr(0, text.find('\t')).ends_with("...");
}

/// What an entry has in a language, or else its English text.
std::string const & TextIn(std::size_t language, std::vector<std::string> const & texts)
{
    return language < texts.size() ? texts[language] : texts.front();
}

/// For messages: the resources are in the order of the languages.
std::string NameOf(std::size_t language)
{
    return "language " + (language < language_count ? std::to_string(language_facts[language].id) : "that is none");
}

/// Both texts fill the same place.
void ExpectSameForm(std::string const & english, std::string const & text)
{
    // A percent sign before a blank is one of a sentence.
    EXPECT_EQ(Conversions(english), Conversions(text)) << text;
    EXPECT_EQ(Count(english, '&'), Count(text, '&')) << text;
    if (Count(english, '&') == 1)
    {
        EXPECT_TRUE(std::isalnum(static_cast<unsigned char>(AccessKey(text)))) << text;
    }
    EXPECT_EQ(Count(english, '|'), Count(text, '|')) << text;
    EXPECT_EQ(Shortcut(english), Shortcut(text)) << text;
    EXPECT_EQ(OpensADialog(english), OpensADialog(text)) << text;
}

/// The menus and dialogs of the resources in the languages that they are in, in the order of the file.
std::vector<std::string> ResourcesByLanguage()
{
    std::istringstream lines(ReadFile(std::filesystem::path(WORKBENCH_SOURCES) / "workbench.rc"));
    std::vector<std::string> languages;
    bool isInside = false;
    std::regex const start(R"re(^\w+ (?:MENU|DIALOGEX)\b.*)re");
    for (std::string line; std::getline(lines, line);)
    {
        if (line.starts_with("LANGUAGE "))
            languages.emplace_back();
        isInside = isInside || std::regex_match(line, start);
        if (isInside)
            languages.back() += line + '\n';
        isInside = isInside && line != "END";
    }
    return languages;
}

/// The lines of resources with their texts taken out.
std::vector<std::string> Form(std::string const & resources)
{
    std::vector<std::string> form;
    std::istringstream lines(std::regex_replace(resources, std::regex(R"re("[^"]*")re"), "\"\""));
    for (std::string line; std::getline(lines, line);)
        form.push_back(line);
    return form;
}

/// The texts of each menu, pop-up and dialog, as they stand beside each other on the screen.
std::vector<std::vector<std::string>> Groups(std::string const & resources)
{
    std::vector<std::vector<std::string>> groups;
    std::vector<std::vector<std::string>> open;
    std::istringstream lines(resources);
    for (std::string line; std::getline(lines, line);)
    {
        std::string const word = line.substr(std::min(line.find_first_not_of(' '), line.size()));
        if (word == "BEGIN")
        {
            open.emplace_back();
        }
        else if (word == "END")
        {
            groups.push_back(open.back());
            open.pop_back();
        }
        else if (std::vector<std::string> const texts = Literals(line); !texts.empty() && !open.empty())
        {
            open.back().push_back(texts.front());
        }
    }
    return groups;
}

} // namespace

TEST(WorkbenchTexts, EveryTextOfTheSourcesIsThereInAllLanguages)
{
    std::set<std::string> const texts = TextsOfTheSources();
    auto const entries = Entries();
    EXPECT_GT(texts.size(), 60u);
    for (std::string const & text : texts)
    {
        auto const entry = entries.find(text);
        ASSERT_NE(entry, entries.end()) << text;
        EXPECT_EQ(entry->second.size(), language_count) << text;
    }
}

TEST(WorkbenchTexts, EveryEntryOfTheCatalogueIsUsed)
{
    std::set<std::string> const texts = TextsOfTheSources();
    for (auto const & [english, all] : Entries())
        EXPECT_EQ(texts.count(english), 1u) << english;
}

TEST(WorkbenchTexts, EveryEntryIsFoundInAllLanguages)
{
    auto const entries = Entries();
    for (std::size_t language = 0; language < language_count; ++language)
    {
        LanguageScope const scope(static_cast<Language>(language));
        for (auto const & [english, texts] : entries)
            EXPECT_EQ(Text(Widen(english).c_str()), Widen(TextIn(language, texts))) << english;
    }
}

TEST(WorkbenchTexts, ATextHasTheSameConversionsAccessKeyAndShortcutInAllLanguages)
{
    for (auto const & [english, texts] : Entries())
    {
        for (std::string const & text : texts)
            ExpectSameForm(english, text);
    }
}

TEST(WorkbenchTexts, MenusAndDialogsAreThereInAllLanguages)
{
    std::vector<std::string> const resources = ResourcesByLanguage();
    ASSERT_EQ(resources.size(), language_count);
    std::vector<std::string> const english = Literals(resources.front());
    EXPECT_GT(english.size(), 90u);
    for (std::size_t number = 0; number < resources.size(); ++number)
    {
        SCOPED_TRACE(NameOf(number));
        std::string const & language = resources[number];
        std::vector<std::string> const form = Form(language);
        std::vector<std::string> const wanted = Form(resources.front());
        auto const [line, wantedLine] = std::ranges::mismatch(form, wanted);
        EXPECT_TRUE(line == form.end() && wantedLine == wanted.end())
            << (line == form.end() ? "the end" : *line) << " instead of "
            << (wantedLine == wanted.end() ? "the end" : *wantedLine);
        std::vector<std::string> const texts = Literals(language);
        ASSERT_EQ(texts.size(), english.size());
        for (std::size_t i = 0; i < texts.size(); ++i)
            ExpectSameForm(english[i], texts[i]);
    }
}

TEST(WorkbenchTexts, AnAccessKeyIsThereOnceInAMenuOrDialog)
{
    std::vector<std::string> const resources = ResourcesByLanguage();
    for (std::size_t number = 0; number < resources.size(); ++number)
    {
        SCOPED_TRACE(NameOf(number));
        std::vector<std::vector<std::string>> const groups = Groups(resources[number]);
        EXPECT_GT(groups.size(), 10u);
        for (std::vector<std::string> const & group : groups)
        {
            std::set<char> keys;
            for (std::string const & text : group)
                EXPECT_TRUE(AccessKey(text) == '\0' || keys.insert(AccessKey(text)).second) << text;
        }
    }
}

TEST(WorkbenchTexts, KeysHaveTheirNamesInEachLanguage)
{
    auto const expectNone = [](std::string const & text, std::vector<std::string> const & names) {
        std::size_t const tab = text.find('\t');
        for (std::string const & name : tab == std::string::npos ? std::vector<std::string>() : names)
            EXPECT_EQ(text.find(name, tab), std::string::npos) << text;
    };
    std::vector<std::vector<std::string>> const foreign{{},
                                                        {"Ctrl", "Shift", "Enter", "Del", "Page", "Arrow", "Home"},
                                                        {"Strg", "Shift", "Enter", "Del", "Page", "Arrow", "Home"}};
    ASSERT_EQ(foreign.size(), language_count) << "add the names of keys that are others in the new language";
    std::vector<std::string> const resources = ResourcesByLanguage();
    ASSERT_EQ(resources.size(), language_count);
    for (std::size_t language = 0; language < language_count; ++language)
    {
        for (std::string const & text : Literals(resources[language]))
            expectNone(text, foreign.at(language));
        for (auto const & [english, texts] : Entries())
            expectNone(TextIn(language, texts), foreign.at(language));
    }
}

TEST(WorkbenchTexts, WhatHasNoEntryStaysAsItIs)
{
    LanguageScope const german(Language::german);
    EXPECT_STREQ(Text(L"Instrument Workbench"), L"Instrument Workbench");
    EXPECT_STREQ(Text(L""), L"");
}

TEST(WorkbenchTexts, EnglishIsTheFirstLanguageAndComesBack)
{
    EXPECT_STREQ(Text(L"Settings"), L"Settings");
    {
        LanguageScope const german(Language::german);
        EXPECT_STREQ(Text(L"Settings"), L"Einstellungen");
    }
    EXPECT_STREQ(Text(L"Settings"), L"Settings");
}

TEST(WorkbenchTexts, ALanguageIsTheSameInEveryCountry)
{
    for (std::size_t language = 0; language < language_count; ++language)
    {
        EXPECT_EQ(LanguageOf(language_facts[language].id), static_cast<Language>(language));
        EXPECT_TRUE(SpeaksLanguage(language_facts[language].id));
    }
    EXPECT_EQ(LanguageOf(2055), Language::german);  // Switzerland
    EXPECT_EQ(LanguageOf(3079), Language::german);  // Austria
    EXPECT_EQ(LanguageOf(2058), Language::spanish); // Mexico
    EXPECT_TRUE(SpeaksLanguage(2058));
    for (unsigned short const other : {2052, 1024, 0}) // Chinese, the user's default, none
    {
        EXPECT_EQ(LanguageOf(other), Language::english);
        EXPECT_FALSE(SpeaksLanguage(other));
    }
}

TEST(WorkbenchTexts, FaultsAndDetailsAreTold)
{
    LanguageScope const german(Language::german);
    ReadProblem problem{ReadFault::unknown_format};
    problem.formatTag = 0x55;
    EXPECT_EQ(problem.Text(), L"unbekanntes Format (Kennung 0x0055)");
    problem.formatTag = 1;
    problem.bitsPerSample = 12;
    EXPECT_EQ(problem.Text(), L"unbekanntes Format (12 Bit PCM)");

    RecordingAnalysis analysis;
    analysis.problem = ReadProblem{ReadFault::not_wav};
    std::vector<DetailLine> const lines = DescribeRecording("a.wav", analysis, L"");
    EXPECT_EQ(lines.front().label, L"Datei");
    EXPECT_EQ(lines.back(), (DetailLine{L"Zustand", L"keine WAV-Datei"}));
}
