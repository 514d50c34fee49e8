#pragma once
// What the tutorial programs check when they are started with /selftest: each runs a short script of actions on its own
// window and ends with code 0, or with 1 after telling on stderr what went wrong.

#include <afxwin.h>

#include <cstdio>

class CSelfTest
{
public:
    static constexpr UINT message = WM_APP + 100; // posted to the main window, which then runs its script

    /// Whether the program's command line asks for the script.
    static bool IsWanted() { return ::_tcsstr(::GetCommandLine(), _T("/selftest")) != nullptr; }

    void Check(bool good, char const * what, int line)
    {
        if (good)
            return;
        std::fprintf(stderr, "line %d: not so: %s\n", line, what);
        std::fflush(stderr);
        m_failed = true;
    }
    /// Marks the end of the script; a program that never gets there has failed.
    void Finish() { m_finished = true; }
    int ExitCode() const { return m_failed || !m_finished ? 1 : 0; }

private:
    bool m_failed = false;
    bool m_finished = false;
};

extern CSelfTest theSelfTest;

#define SELFTEST_CHECK(condition) theSelfTest.Check((condition), #condition, __LINE__)
