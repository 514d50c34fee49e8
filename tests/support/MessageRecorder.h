#pragma once
// Records what windows receive, in order, and compares it with a table:
//
//     tests::MessageRecorder recorder({WM_SETFOCUS, WM_KILLFOCUS, WM_COMMAND});
//     recorder.Watch(edit.m_hWnd, "edit");
//     recorder.Watch(dialog.m_hWnd, "dialog");
//     ...
//     EXPECT_TRUE(recorder.Matches({
//         {"edit", WM_SETFOCUS},
//         {"dialog", WM_COMMAND, tests::Way::sent, .code = EN_SETFOCUS},
//         {"dialog", WM_TIMER, tests::Way::posted, .optional = true},
//     }));
//
// Sent messages are recorded before the window's procedure runs, posted ones when the loop takes them out of the queue
// (also those that PreTranslateMessage then swallows). A difference prints both tables beside each other.

#include <windows.h>

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tests
{
enum class Way
{
    sent,
    posted
};

struct ReceivedMessage
{
    std::string window;
    UINT message;
    Way way;
    WPARAM wParam;
    LPARAM lParam;
    std::optional<UINT> code; // the notification's code of WM_COMMAND and WM_NOTIFY
    UINT_PTR id;              // its control's identifier
};

struct ExpectedMessage
{
    std::string window;
    UINT message = 0;
    Way way = Way::sent;
    std::optional<WPARAM> wParam = {};
    std::optional<LPARAM> lParam = {};
    std::optional<UINT> code = {};
    std::optional<UINT_PTR> id = {};
    bool optional = false;
};

class MessageRecorder
{
public:
    /// only: the messages to record; all of them if empty.
    explicit MessageRecorder(std::set<UINT> only = {});
    ~MessageRecorder();
    MessageRecorder(MessageRecorder const &) = delete;
    MessageRecorder & operator=(MessageRecorder const &) = delete;

    /// Records the window's messages under the name from now on.
    void Watch(HWND window, std::string name);
    void Clear() { m_received.clear(); }
    std::vector<ReceivedMessage> const & Received() const { return m_received; }
    /// Messages of this kind in the record.
    int Count(std::string const & window, UINT message) const;

    /// Whether the record is the table's entries in order, optional ones left out at will.
    testing::AssertionResult Matches(std::vector<ExpectedMessage> const & expected) const;

private:
    static LRESULT CALLBACK OnSent(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK OnRetrieved(int code, WPARAM wParam, LPARAM lParam);
    void Record(HWND window, UINT message, WPARAM wParam, LPARAM lParam, Way way);

    std::set<UINT> m_only;
    std::vector<std::pair<HWND, std::string>> m_windows;
    std::vector<ReceivedMessage> m_received;
};
} // namespace tests
