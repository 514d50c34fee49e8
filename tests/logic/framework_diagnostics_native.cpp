// Reports that end the program or go to standard error; as a Windows program they go to the debugger.

#include <string>

#include "framework_Support.h"

namespace
{
class CDumped : public CObject
{
    DECLARE_DYNAMIC(CDumped)
};
IMPLEMENT_DYNAMIC(CDumped, CObject)
} // namespace

TEST(FrameworkAssertDeathTest, WithoutHandlerTheProgramEnds)
{
    EXPECT_DEATH(AfxAssertFailedLine("file.cpp", 17), "file.cpp\\(17\\): assertion failed");
}

TEST(FrameworkDump, ObjectsAndValues)
{
    testing::internal::CaptureStderr();
    CDumped const object;
    afxDump << 5 << " " << CString(L"text") << " " << CRect(1, 2, 3, 4) << "\n" << object;
    afxDump << static_cast<CObject const *>(nullptr);
    TRACE(L"traced %s %d\n", CString(L"x"), 3);
    afxDump.Flush();
    std::string const text = testing::internal::GetCapturedStderr();
    EXPECT_NE(std::string::npos, text.find("5 text (L 1, T 2, R 3, B 4)\na CDumped at $"));
    EXPECT_NE(std::string::npos, text.find("NULL"));
#ifdef _DEBUG
    EXPECT_NE(std::string::npos, text.find("traced x 3\n"));
#endif
}

TEST(FrameworkDump, HexDump)
{
    testing::internal::CaptureStderr();
    BYTE bytes[] = {1, 0xAB, 3};
    afxDump.HexDump(L">", bytes, 3, 2);
    EXPECT_EQ("> 01 AB\n> 03\n", testing::internal::GetCapturedStderr());
}
