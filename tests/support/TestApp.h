#pragma once
// The application object of the window tests. It keeps every message box of the framework from showing, remembers
// what it would have said, and answers it:
//
//     tests::App().Answer(IDYES);                                   // for the next box; OK or Yes without it
//     dialog.Save();
//     EXPECT_EQ(tests::App().TakeMessages(), std::vector<std::wstring>{L"Overwrite?"});
//
// A test that ends with a message box it did not take has failed, as has one that leaves a window on the screen.

#include <afxwin.h>
#include <afxwinappex.h>

#include <deque>
#include <string>
#include <vector>

namespace tests
{
class TestApp : public CWinAppEx
{
public:
    struct Message
    {
        std::wstring text;
        UINT type;
        UINT helpId;
    };

    TestApp();

    /// Whether main frames load and keep their workspace; not at first.
    bool m_keepsWorkspace = false;

    using CWinAppEx::LoadState;
    BOOL LoadState(LPCTSTR lpszSectionName, CFrameImpl * pFrameImpl) override;
    void OnClosingMainFrame(CFrameImpl * pFrameImpl) override;

    int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) override;

    /// Queues an answer (IDOK, IDNO, ...) for a later message box.
    void Answer(int answer) { m_answers.push_back(answer); }
    /// The message boxes since the last call.
    std::vector<Message> Take();
    /// The texts of the message boxes since the last call of either.
    std::vector<std::wstring> TakeMessages();
    /// Drops queued answers and messages.
    void Reset();

private:
    std::deque<int> m_answers;
    std::vector<Message> m_messages;
};

/// The one application object of the test program.
TestApp & App();
} // namespace tests
