// Palettes and names of the colour tables. The names are kept from the first call on, so each language is tried in a
// process of its own.

#include <afxcolorbar.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "ChildProgram.h"
#include "colours/Farbtabellen.h"
#include "GdiHandleCount.h"
#include "ImportPatch.h"
#include "ResourceReader.h"

namespace
{
using namespace Farbtabellen;

constexpr WORD german_language = 1031;
constexpr WORD english_language = 1033;
constexpr WORD spanish_language = 3082;

struct Names : CMFCColorBar
{
    using CMFCColorBar::m_ColorNames;
};

struct Name
{
    bool isScope;
    int index;
    COLORREF colour;
    std::string german;
    std::string english;
};

std::vector<Name> ListedNames()
{
    std::ifstream file(std::filesystem::path(TEST_DATA_DIR) / "colour_names.tsv", std::ios::binary);
    EXPECT_TRUE(file) << TEST_DATA_DIR;
    std::vector<Name> names;
    for (std::string line; std::getline(file, line);)
    {
        if (line.starts_with('#'))
            continue;
        std::vector<std::string> fields;
        for (std::size_t at = 0; at <= line.size();)
        {
            std::size_t const end = std::min(line.find('\t', at), line.size());
            fields.push_back(line.substr(at, end - at));
            at = end + 1;
        }
        bool const isScope = fields.at(0) == "scope";
        unsigned long const colour = isScope ? std::stoul(fields.at(2), nullptr, 16) : 0;
        names.push_back({isScope, std::stoi(fields.at(1)), RGB(colour >> 16, colour >> 8 & 0xFF, colour & 0xFF),
                         fields.at(3), fields.at(4)});
    }
    return names;
}

std::string Utf8(CString const & text)
{
    std::string result(static_cast<std::size_t>(3 * text.GetLength()), '\0');
    result.resize(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), result.data(),
                                                               static_cast<int>(result.size()), nullptr, nullptr)));
    return result;
}

/// The differences are told on the error output.
class Differences
{
public:
    void Expect(std::string const & what, std::string const & actual, std::string const & expected)
    {
        if (actual == expected)
            return;
        std::fprintf(stderr, "%s: \"%s\" instead of \"%s\"\n", what.c_str(), actual.c_str(), expected.c_str());
        ++m_count;
    }
    int Count() const { return m_count; }

private:
    int m_count = 0;
};

std::string NameInColourBars(COLORREF colour)
{
    CString name(L"(none)");
    Names::m_ColorNames.Lookup(colour, name);
    return Utf8(name);
}

void CompareScopeNames(bool german, Differences & differences)
{
    for (Name const & name : ListedNames())
    {
        if (name.isScope)
        {
            differences.Expect("scope colour " + std::to_string(name.index), NameInColourBars(name.colour),
                               german ? name.german : name.english);
        }
    }
}

void CompareScaleNames(bool german, Differences & differences)
{
    for (Name const & name : ListedNames())
    {
        if (!name.isScope)
        {
            differences.Expect("scale " + std::to_string(name.index),
                               Utf8(SpektrogrammFarbtabellenName(static_cast<unsigned int>(name.index))),
                               german ? name.german : name.english);
        }
    }
}

void ExpectChildFindsNoDifference(char const * name, wchar_t const * argument)
{
    tests::ChildProgram child(name, argument);
    ASSERT_TRUE(child.WaitForEnd());
    EXPECT_EQ(child.ExitCode(), 0U) << child.ErrorText();
}

void ExpectEntries(CPalette & palette, COLORREF (*colourAt)(int))
{
    ASSERT_EQ(palette.GetEntryCount(), 32);
    PALETTEENTRY entries[32] = {};
    ASSERT_EQ(palette.GetPaletteEntries(0, 32, entries), 32U);
    for (int i = 0; i < 32; ++i)
    {
        EXPECT_EQ(RGB(entries[i].peRed, entries[i].peGreen, entries[i].peBlue), colourAt(i)) << i;
        EXPECT_EQ(entries[i].peFlags, 0) << i;
    }
}

CHILD_PROGRAM(NamesOfScopeColours)
{
    bool const german = argument == L"German";
    tests::ScopedLanguage const inForce(german ? german_language : english_language);
    ScopeFarbenPalette();
    Differences differences;
    CompareScopeNames(german, differences);
    return differences.Count();
}

CHILD_PROGRAM(NamesOfScopeColoursWithTheSecondPalette)
{
    bool const german = argument == L"German";
    tests::ScopedLanguage const inForce(german ? german_language : english_language);
    SelvaneFarbenPalette();
    Differences differences;
    CompareScopeNames(german, differences);
    return differences.Count();
}

CHILD_PROGRAM(NamesOfScales)
{
    bool const german = argument == L"German";
    tests::ScopedLanguage const inForce(german ? german_language : english_language);
    Differences differences;
    CompareScaleNames(german, differences);
    return differences.Count();
}

CHILD_PROGRAM(NameOfNoScale)
{
    tests::ScopedLanguage const inForce(static_cast<WORD>(std::stoi(argument)));
    std::fputs(Utf8(SpektrogrammFarbtabellenName(9)).c_str(), stderr);
    return 0;
}

CHILD_PROGRAM(NamesStayInTheFirstLanguage)
{
    Differences differences;
    {
        tests::ScopedLanguage const inForce(english_language);
        ScopeFarbenPalette();
        SpektrogrammFarbtabellenName(0);
    }
    tests::ScopedLanguage const inForce(german_language);
    ScopeFarbenPalette();
    CompareScopeNames(false, differences);
    CompareScaleNames(false, differences);
    return differences.Count();
}

int g_palettes = 0;
WORD g_version = 0;
WORD g_entries = 0;

HPALETTE WINAPI RecordPalette(LOGPALETTE const * palette)
{
    ++g_palettes;
    g_version = palette->palVersion;
    g_entries = palette->palNumEntries;
    return nullptr;
}

CHILD_PROGRAM(PaletteThatCannotBeMade)
{
    tests::ImportPatch const patch(L"instrument_ui.dll", "CreatePalette", &RecordPalette);
    CPalette * const palette = ScopeFarbenPalette();
    bool const asked = patch.Done() && g_palettes == 1 && g_version == 0x300 && g_entries == 32;
    bool const sameAgain = palette != nullptr && ScopeFarbenPalette() == palette && g_palettes == 1;
    return asked && sameAgain && palette->GetSafeHandle() == nullptr ? 0 : 1;
}

CHILD_PROGRAM(NamesOfTheHostStay)
{
    // A table that the host has changed stays changed: later calls give the object at once.
    ScopeFarbenPalette();
    CMFCColorBar::SetColorName(RGB(0xFF, 0, 0), L"Signal red");
    ScopeFarbenPalette();
    Differences differences;
    differences.Expect("host's own name", NameInColourBars(RGB(0xFF, 0, 0)), "Signal red");
    return differences.Count();
}
} // namespace

TEST(ColourPalettes, ScopePaletteHasTheColoursInOrder)
{
    ASSERT_NE(ScopeFarbenPalette(), nullptr);
    ExpectEntries(*ScopeFarbenPalette(), ScopeFarbe);
}

TEST(ColourPalettes, SecondPaletteHasTheColoursInTheSecondOrder)
{
    ASSERT_NE(SelvaneFarbenPalette(), nullptr);
    ExpectEntries(*SelvaneFarbenPalette(), SelvaneFarbe);
}

TEST(ColourPalettes, AreMadeOnce)
{
    CPalette * const scope = ScopeFarbenPalette();
    CPalette * const second = SelvaneFarbenPalette();
    EXPECT_NE(scope, second);
    HGDIOBJ const handle = scope->GetSafeHandle();
    tests::GdiBalance const balance;
    EXPECT_EQ(ScopeFarbenPalette(), scope);
    EXPECT_EQ(SelvaneFarbenPalette(), second);
    EXPECT_EQ(scope->GetSafeHandle(), handle);
}

TEST(ColourPalettes, FailureOfTheSystemIsNotReported)
{
    ExpectChildFindsNoDifference("PaletteThatCannotBeMade", L"");
}

TEST(ColourPalettes, ResourceModuleIsTheApplicationsAfterwards)
{
    HINSTANCE const before = AfxGetResourceHandle();
    ScopeFarbenPalette();
    SelvaneFarbenPalette();
    SpektrogrammFarbtabellenName(0);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(ColourNames, ListHasThemAll)
{
    int scope = 0;
    int scales = 0;
    for (Name const & name : ListedNames())
        ++(name.isScope ? scope : scales);
    EXPECT_EQ(scope, 32);
    EXPECT_EQ(scales, 9);
}

TEST(ColourNames, OfScopeColoursReachTheColourBars)
{
    ExpectChildFindsNoDifference("NamesOfScopeColours", L"German");
    ExpectChildFindsNoDifference("NamesOfScopeColours", L"English");
}

TEST(ColourNames, GoByScopeIndexWithTheSecondPaletteToo)
{
    ExpectChildFindsNoDifference("NamesOfScopeColoursWithTheSecondPalette", L"German");
    ExpectChildFindsNoDifference("NamesOfScopeColoursWithTheSecondPalette", L"English");
}

TEST(ColourNames, OfScales)
{
    ExpectChildFindsNoDifference("NamesOfScales", L"German");
    ExpectChildFindsNoDifference("NamesOfScales", L"English");
}

TEST(ColourNames, OfAnUnknownScaleSayThatThereIsNone)
{
    std::pair<WORD, char const *> const texts[] = {{german_language, "(nicht definiert)"},
                                                   {english_language, "(no entries)"},
                                                   {spanish_language, "(n\u00EDngun objetos)"}};
    for (auto const & [language, text] : texts)
    {
        tests::ChildProgram child("NameOfNoScale", std::to_wstring(language));
        ASSERT_TRUE(child.WaitForEnd());
        EXPECT_EQ(child.ErrorText(), text);
    }
}

TEST(ColourNames, StayInTheLanguageOfTheFirstCall)
{
    ExpectChildFindsNoDifference("NamesStayInTheFirstLanguage", L"");
}

TEST(ColourNames, AreEnteredOnce)
{
    ExpectChildFindsNoDifference("NamesOfTheHostStay", L"");
}

TEST(ColourNames, UnknownScalesShareOneText)
{
    CString const * const unknown = &SpektrogrammFarbtabellenName(9);
    EXPECT_EQ(&SpektrogrammFarbtabellenName(4000), unknown);
    EXPECT_EQ(&SpektrogrammFarbtabellenName(UINT_MAX), unknown);
    EXPECT_NE(&SpektrogrammFarbtabellenName(8), unknown);
    EXPECT_EQ(&SpektrogrammFarbtabellenName(0), &SpektrogrammFarbtabellenName(0));
}

TEST(ColourScales, AreFilledInTheLoadedModule)
{
    EXPECT_EQ(FarbenStandardRGB[0], RGB(0x1E, 0x00, 0x50));
    EXPECT_EQ(FarbenRegenbogenRGB[32], RGB(0xA0, 0xA0, 0xA4));
    EXPECT_EQ(SpektrogrammFarbtabelle(1), &FarbenStandardRGB[0]);
    EXPECT_EQ(ScopePalette[31], RGB(0xFF, 0xFF, 0xFF));
}
