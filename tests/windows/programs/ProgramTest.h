#pragma once
// The test of a program, linked to it. The program is written as a wizard writes it and knows nothing of that.
//
//     ProgramTest const theTest(Prepare, Script);
//
// Started with /selftest, the program runs both once it shows its main window; then the main window is closed, and a
// failed check, a missing end or a message box that nobody took is the program's exit code. Started with /show it runs
// Prepare alone and stays.

#include <afxwin.h>

#include <functional>

class ProgramTest
{
public:
    ProgramTest(void (*prepare)(), void (*script)());
    /// At the program's very end.
    ~ProgramTest();

    static void Check(bool good, char const * what, char const * file, int line);
    /// Waits for the condition; fails at the limit of a hang.
    static bool Wait(std::function<bool()> const & condition, char const * what, char const * file, int line);
    /// Idle time, in which commands are brought up to date.
    static void Idle();
    /// The main window as a frame.
    static CFrameWnd & Frame();
    /// The main window's child or grandchild of a class.
    template <class T> static T * Find(CWnd * parent = nullptr)
    {
        return static_cast<T *>(Find(RUNTIME_CLASS(T), parent != nullptr ? parent : AfxGetMainWnd()));
    }
    static void Command(UINT id) { AfxGetMainWnd()->SendMessage(WM_COMMAND, id); }
    static CString TextOf(HWND window);
    /// Does something once a dialog of that title shows, or one that is the box of a message if there is no title.
    static void WhenShown(LPCTSTR title, std::function<void(HWND)> action);

private:
    static void CALLBACK Start(HWND, UINT, UINT_PTR id, DWORD);
    static CWnd * Find(CRuntimeClass * wanted, CWnd * parent);
};

#define PROGRAM_CHECK(condition) ProgramTest::Check((condition), #condition, __FILE__, __LINE__)
#define PROGRAM_WAIT(condition) ProgramTest::Wait([&]() -> bool { return (condition); }, #condition, __FILE__, __LINE__)
