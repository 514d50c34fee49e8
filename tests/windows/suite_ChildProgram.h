#pragma once
// A second process of this test program, which runs one of its disabled tests: for what only another program can show.
//
//     tests::ChildProgram child("SuiteRegistryStore.DISABLED_ChildWrites", subkey);
//     ASSERT_TRUE(child.WaitForEnd());
//     EXPECT_EQ(child.ExitCode(), 0);

#include <windows.h>

#include <string>

namespace tests
{
class ChildProgram
{
public:
    /// argument: what Argument() gives in the child.
    explicit ChildProgram(std::string const & test, std::wstring const & argument = {});
    /// Kills the child if it still runs.
    ~ChildProgram();
    ChildProgram(ChildProgram const &) = delete;
    ChildProgram & operator=(ChildProgram const &) = delete;

    bool Started() const { return m_process != nullptr; }
    /// False if it still runs after 60 s.
    bool WaitForEnd();
    void Kill();
    DWORD ExitCode() const;
    /// What it has written to its error output. Call it after the end.
    std::string ErrorText();

    /// In the child: what the parent gave it.
    static std::wstring Argument();

private:
    HANDLE m_process = nullptr;
    HANDLE m_errors = nullptr;
};
} // namespace tests
