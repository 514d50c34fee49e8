#pragma once
// A second process of the test program, which runs one function instead of the tests: for what only another program can
// show.
//
//     CHILD_PROGRAM(WritesAndEnds)
//     {
//         return Write(argument) ? 0 : 1;
//     }
//
//     tests::ChildProgram child("WritesAndEnds", subkey);
//     ASSERT_TRUE(child.WaitForEnd());
//     EXPECT_EQ(child.ExitCode(), 0);

#include <windows.h>

#include <optional>
#include <string>

namespace tests
{
class ChildProgram
{
public:
    /// name: that of a CHILD_PROGRAM. argument: what it is given.
    explicit ChildProgram(std::string const & name, std::wstring const & argument = {});
    /// Kills the child if it still runs.
    ~ChildProgram();
    ChildProgram(ChildProgram const &) = delete;
    ChildProgram & operator=(ChildProgram const &) = delete;

    bool Started() const { return m_process != nullptr; }
    /// False if it still runs after 5 minutes, which only a hang reaches.
    bool WaitForEnd();
    void Kill();
    DWORD ExitCode() const;
    /// What it has written to its error output. Call it after the end.
    std::string ErrorText();

private:
    HANDLE m_process = nullptr;
    HANDLE m_errors = nullptr;
};

using ChildFunction = int (*)(std::wstring const & argument);
bool RegisterChild(std::string const & name, ChildFunction function);

/// In a child: runs its function and gives the exit code. In any other process: nothing.
std::optional<int> RunAsChild();
} // namespace tests

/// The function of a child; its result is the exit code.
#define CHILD_PROGRAM(name)                                                                                            \
    static int name(std::wstring const & argument);                                                                    \
    [[maybe_unused]] static bool const name##Registered = tests::RegisterChild(#name, name);                           \
    static int name([[maybe_unused]] std::wstring const & argument)
