#include <afxwin.h>

#include <gtest/gtest.h>

#include "ChildProgram.h"
#include "HangWatch.h"

namespace
{
DWORD WINAPI WaitForever(void *)
{
    ::Sleep(INFINITE);
    return 0;
}

CHILD_PROGRAM(StandsStill)
{
    ::CloseHandle(::CreateThread(nullptr, 0, WaitForever, nullptr, 0, nullptr));
    tests::WatchForHang(std::chrono::milliseconds(1));
    ::Sleep(INFINITE);
    return 0;
}

TEST(HangWatch, SaysWhereEachThreadStandsAndEndsTheProgram)
{
    tests::ChildProgram child("StandsStill");
    ASSERT_TRUE(child.WaitForEnd());
    EXPECT_EQ(child.ExitCode(), tests::exit_code_of_a_hang);
    std::string const text = child.ErrorText();
    std::size_t const first = text.find("\nthread ");
    ASSERT_NE(first, std::string::npos) << text;
    EXPECT_NE(text.find("\nthread ", first + 1), std::string::npos) << text;
    EXPECT_NE(text.find("support_tests.exe"), std::string::npos) << text;
}
} // namespace
