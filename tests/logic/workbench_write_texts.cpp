// What is said of files that could not be written.

#include <gtest/gtest.h>

#include "logic/Texts.h"
#include "logic/WriteTexts.h"

namespace
{

using namespace workbench;

TEST(WorkbenchWriteTexts, FileAndReasonAreNamed)
{
    EXPECT_EQ(WriteFailureText(L"a.csv", 112), L"This file could not be written:\n\na.csv: the medium is full");
    EXPECT_EQ(WriteFailureText(L"a.csv", 5),
              L"This file could not be written:\n\na.csv: you have no permission for it");
    EXPECT_EQ(WriteFailureText(L"No:", L"a.csv", 0), L"No:\n\na.csv") << "nothing is known";
}

TEST(WorkbenchWriteTexts, EveryReasonIsOneOfTheLanguage)
{
    struct Reasons
    {
        Language language;
        wchar_t const * gone;
        wchar_t const * full;
    };
    for (auto const & [language, gone, full] :
         {Reasons{Language::English, L"the folder is not there any more", L"the medium is full"},
          {Language::German, L"der Ordner ist nicht mehr da", L"der Datentr\u00E4ger ist voll"},
          {Language::Spanish, L"la carpeta ya no est\u00E1", L"el medio est\u00E1 lleno"}})
    {
        SetLanguage(language);
        for (unsigned long const error : {2UL, 3UL, 15UL, 21UL, 53UL, 64UL, 67UL})
        {
            EXPECT_EQ(WriteErrorText(error), gone) << error;
        }
        EXPECT_EQ(WriteErrorText(39), full);
        EXPECT_EQ(WriteErrorText(112), full);
        EXPECT_NE(WriteErrorText(29), std::wstring());
        EXPECT_EQ(WriteErrorText(0), std::wstring());
    }
    SetLanguage(Language::English);
}

} // namespace
