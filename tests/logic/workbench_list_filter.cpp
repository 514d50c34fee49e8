// What the list of recordings shows while it is filtered, and the natural order of names.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "logic/RecordingFilter.h"

using namespace workbench;

namespace
{
using State = RecordingFilter::State;

bool Matches(std::wstring const & words, std::wstring const & comment = {})
{
    RecordingFilter filter;
    filter.words = words;
    std::wstring const text = SearchedText(std::filesystem::path(L"/Engines/Bench 3/Rec_10.wav"), comment);
    return FilterMatch(filter)({text, false, 0, State::sound});
}
} // namespace

TEST(RecordingFilterWords, AllMustOccurInNameFolderOrComment)
{
    EXPECT_TRUE(Matches(L""));
    EXPECT_TRUE(Matches(L"  \t "));
    EXPECT_TRUE(Matches(L"rec_1"));
    EXPECT_TRUE(Matches(L"10 bench"));
    EXPECT_TRUE(Matches(L" gines  wav noise", L"Noise at 3 kHz"));
    EXPECT_FALSE(Matches(L"rec_11"));
    EXPECT_FALSE(Matches(L"rec noise"));
    EXPECT_FALSE(Matches(L"wav/engines")) << "name and folder are no one text";
}

TEST(RecordingFilterWords, CaseDoesNotCount)
{
    EXPECT_TRUE(Matches(L"REC ENGINES"));
    EXPECT_TRUE(Matches(L"\u00E4\u00D6", L"\u00C4\u00F6"));
    EXPECT_TRUE(Matches(L"\u0436\u03B1\u0161", L"\u0416\u0391\u0160"));
    EXPECT_EQ(FoldedText(L"\u00D7\u00F7\u00DF[@"), L"\u00D7\u00F7\u00DF[@");
}

TEST(RecordingFilterMarks, EachLetsThroughWhatHasIt)
{
    RecordingFilter filter;
    EXPECT_TRUE(filter.LetsAllThrough());
    filter.words = L" ";
    EXPECT_TRUE(filter.LetsAllThrough());

    filter.marked = true;
    EXPECT_FALSE(filter.LetsAllThrough());
    EXPECT_TRUE(FilterMatch(filter)({L"", true, 0, State::any}));
    EXPECT_FALSE(FilterMatch(filter)({L"", false, 0, State::any}));

    filter = {};
    filter.rating = 0;
    EXPECT_FALSE(filter.LetsAllThrough());
    EXPECT_TRUE(FilterMatch(filter)({L"", false, 0, State::any}));
    EXPECT_FALSE(FilterMatch(filter)({L"", false, 2, State::any}));

    filter = {};
    filter.state = State::damaged;
    EXPECT_FALSE(filter.LetsAllThrough());
    EXPECT_TRUE(FilterMatch(filter)({L"", false, 0, State::damaged}));
    EXPECT_FALSE(FilterMatch(filter)({L"", false, 0, State::sound}));
    EXPECT_FALSE(FilterMatch(filter)({L"", false, 0, State::any})) << "it is not read";
}

TEST(NaturalTextOrder, NumbersByTheirValue)
{
    std::vector<std::wstring> const ordered{L"",
                                            L"rec",
                                            L"rec_",
                                            L"rec_0",
                                            L"rec_2",
                                            L"rec_2b",
                                            L"rec_10",
                                            L"rec_10.5",
                                            L"rec_99999999",
                                            L"rec_100000000",
                                            L"rec_999999999",
                                            L"rec_1000000000",
                                            L"rec_123456789012345678901234567890"};
    for (std::size_t i = 1; i < ordered.size(); ++i)
    {
        EXPECT_LT(NaturalText(ordered[i - 1]), NaturalText(ordered[i])) << i;
    }
    EXPECT_EQ(NaturalText(L"rec_007"), NaturalText(L"rec_7"));
    EXPECT_EQ(NaturalText(L"000"), NaturalText(L"0"));
    EXPECT_EQ(NaturalText(L"name"), L"name");
}

TEST(FileNames, HaveNoSignsOfPathsAndPatterns)
{
    for (wchar_t const * const name : {L"a.wav", L"a b", L".a", L"\u00E4"})
    {
        EXPECT_TRUE(IsFileName(name));
    }
    for (wchar_t const * const name :
         {L"", L".", L"..", L"a.", L"a ", L"a/b", L"a\\b", L"C:a", L"a*", L"a?", L"\"", L"a\nb"})
    {
        EXPECT_FALSE(IsFileName(name));
    }
}
