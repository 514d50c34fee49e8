#pragma once

#include <afxwin.h>

#include <filesystem>
#include <functional>
#include <string>

class CMainWindow;

/// A tour of the workbench's windows without a user, so that a script can take pictures of them.
///
/// At each step N, counted from 1, the walk writes "step-N.ready" into its folder, which holds the name of the
/// picture, and goes on when the script has written "step-N.done". "places.txt" gets a line for each step: the
/// picture's name and the main window's left, top, right and bottom in screen pixels.
class CWalk
{
public:
    /// The folder is made if it is missing; markers that an earlier walk left in it are removed.
    CWalk(CMainWindow & window, std::filesystem::path folder);

    /// Goes through recordings, marks, menus, dialogs in two languages and sizes. False if a marker could not be
    /// written, a wait timed out or the window ended.
    bool Run();

    /// Shows the window as it is after a restart, in one step. False as with Run.
    bool RunAfterRestart();

private:
    bool Step(char const * picture);
    bool CheckSome();
    bool SortByPeak();
    bool CopyEverything();
    bool StepInside(char const * picture, std::function<void()> const & enter, std::function<void()> const & leave);
    bool StepInMenu(char const * picture, CWnd & window, CPoint point);
    bool StepInMainMenu(char const * picture, int position);
    bool StepInDialog(char const * picture, UINT command, std::function<void(CWnd &)> const & leave);
    bool ShowSettingsPages(std::function<std::string(char const *)> const & name);
    bool GoThroughPanes(std::string const & suffix);
    bool GoThroughFrames(std::string const & suffix);
    bool GoThroughDialogs(std::string const & suffix);
    bool GoThroughLanguages();
    bool ChangeLanguage(wchar_t const * name);
    void Click(int line, int column);
    bool WriteReady(char const * picture);
    bool IsDone() const;
    bool WaitForRecordings();
    bool Resize(int left, int top, int width, int height);

    CMainWindow & m_window;
    std::filesystem::path m_folder;
    int m_step = 0;
};
