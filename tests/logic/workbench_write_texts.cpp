// What is said of files that could not be written.

#include <gtest/gtest.h>

#include <set>
#include <string>

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
    std::set<std::wstring> reasons;
    for (std::size_t language = 0; language < language_count; ++language)
    {
        SetLanguage(static_cast<Language>(language));
        for (auto const error : {2UL, 3UL, 15UL, 21UL, 53UL, 64UL, 67UL})
        {
            EXPECT_EQ(WriteErrorText(error), Text(L"the folder is not there any more")) << error;
        }
        EXPECT_EQ(WriteErrorText(39), Text(L"the medium is full"));
        EXPECT_EQ(WriteErrorText(112), Text(L"the medium is full"));
        EXPECT_NE(WriteErrorText(29), std::wstring());
        EXPECT_EQ(WriteErrorText(0), std::wstring());
        reasons.insert(WriteErrorText(2));
        reasons.insert(WriteErrorText(112));
    }
    EXPECT_EQ(reasons.size(), 2 * language_count);
    EXPECT_TRUE(reasons.contains(L"der Ordner ist nicht mehr da"));
    EXPECT_TRUE(reasons.contains(L"der Datentr\u00E4ger ist voll"));
    SetLanguage(Language::english);
}

} // namespace
