// What is asked and said when files go to the trash.

#include <gtest/gtest.h>

#include <vector>

#include "logic/TrashTexts.h"

namespace
{

using namespace workbench;

TEST(WorkbenchTrashTexts, OneFileIsNamed)
{
    std::vector<std::filesystem::path> const files{L"/recordings/a.wav"};
    EXPECT_EQ(TrashQuestion(files), L"Move this file to the trash?\n\na.wav");
}

TEST(WorkbenchTrashTexts, OfSeveralTheFirstAreNamed)
{
    std::vector<std::filesystem::path> files;
    for (wchar_t const * const name : {L"a", L"b", L"c", L"d", L"e"})
    {
        files.emplace_back(std::wstring(L"/r/") + name);
    }
    EXPECT_EQ(TrashQuestion(files), L"Move these 5 files to the trash?\n\na\nb\nc\nd\ne");
    files.resize(1205, L"/r/z");
    EXPECT_EQ(TrashQuestion(files), L"Move these 1,205 files to the trash?\n\na\nb\nc\nd\ne\nand 1,200 more");
}

TEST(WorkbenchTrashTexts, FailuresHaveNameAndReason)
{
    std::vector<FileFailure> failures{{L"/r/a.wav", 32}};
    EXPECT_EQ(TrashFailureText(failures),
              L"This file could not be moved to the trash:\n\na.wav: another program is using it");
    failures.emplace_back(L"/r/b.wav", 5);
    failures.emplace_back(L"/r/c.wav", 1234);
    EXPECT_EQ(TrashFailureText(failures), L"3 files could not be moved to the trash:\n\n"
                                          L"a.wav: another program is using it\n"
                                          L"b.wav: you have no permission for it\n"
                                          L"c.wav: error 1234");
}

} // namespace
