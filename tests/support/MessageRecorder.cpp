#include "MessageRecorder.h"

#include <algorithm>
#include <iomanip>
#include <map>
#include <sstream>

namespace tests
{
namespace
{
std::vector<MessageRecorder *> & Recorders()
{
    static std::vector<MessageRecorder *> recorders;
    return recorders;
}

// One pair of hooks serves all recorders.
HHOOK g_sentHook;
HHOOK g_retrievedHook;

std::string MessageName(UINT message)
{
#define TEST_MESSAGE(name)                                                                                             \
    {                                                                                                                  \
        name, #name                                                                                                    \
    }
    static std::map<UINT, std::string> const names = {TEST_MESSAGE(WM_CREATE),
                                                      TEST_MESSAGE(WM_DESTROY),
                                                      TEST_MESSAGE(WM_MOVE),
                                                      TEST_MESSAGE(WM_SIZE),
                                                      TEST_MESSAGE(WM_ACTIVATE),
                                                      TEST_MESSAGE(WM_SETFOCUS),
                                                      TEST_MESSAGE(WM_KILLFOCUS),
                                                      TEST_MESSAGE(WM_ENABLE),
                                                      TEST_MESSAGE(WM_SETREDRAW),
                                                      TEST_MESSAGE(WM_SETTEXT),
                                                      TEST_MESSAGE(WM_GETTEXT),
                                                      TEST_MESSAGE(WM_PAINT),
                                                      TEST_MESSAGE(WM_CLOSE),
                                                      TEST_MESSAGE(WM_ERASEBKGND),
                                                      TEST_MESSAGE(WM_SHOWWINDOW),
                                                      TEST_MESSAGE(WM_SETCURSOR),
                                                      TEST_MESSAGE(WM_MOUSEACTIVATE),
                                                      TEST_MESSAGE(WM_WINDOWPOSCHANGING),
                                                      TEST_MESSAGE(WM_WINDOWPOSCHANGED),
                                                      TEST_MESSAGE(WM_NOTIFY),
                                                      TEST_MESSAGE(WM_STYLECHANGING),
                                                      TEST_MESSAGE(WM_STYLECHANGED),
                                                      TEST_MESSAGE(WM_GETDLGCODE),
                                                      TEST_MESSAGE(WM_NCDESTROY),
                                                      TEST_MESSAGE(WM_NCCREATE),
                                                      TEST_MESSAGE(WM_KEYDOWN),
                                                      TEST_MESSAGE(WM_KEYUP),
                                                      TEST_MESSAGE(WM_CHAR),
                                                      TEST_MESSAGE(WM_SYSKEYDOWN),
                                                      TEST_MESSAGE(WM_SYSKEYUP),
                                                      TEST_MESSAGE(WM_INITDIALOG),
                                                      TEST_MESSAGE(WM_COMMAND),
                                                      TEST_MESSAGE(WM_SYSCOMMAND),
                                                      TEST_MESSAGE(WM_TIMER),
                                                      TEST_MESSAGE(WM_HSCROLL),
                                                      TEST_MESSAGE(WM_VSCROLL),
                                                      TEST_MESSAGE(WM_CTLCOLOREDIT),
                                                      TEST_MESSAGE(WM_CTLCOLORSTATIC),
                                                      TEST_MESSAGE(WM_MOUSEMOVE),
                                                      TEST_MESSAGE(WM_LBUTTONDOWN),
                                                      TEST_MESSAGE(WM_LBUTTONUP),
                                                      TEST_MESSAGE(WM_LBUTTONDBLCLK),
                                                      TEST_MESSAGE(WM_RBUTTONDOWN),
                                                      TEST_MESSAGE(WM_RBUTTONUP),
                                                      TEST_MESSAGE(WM_MOUSEWHEEL),
                                                      TEST_MESSAGE(WM_PARENTNOTIFY),
                                                      TEST_MESSAGE(WM_CAPTURECHANGED),
                                                      TEST_MESSAGE(WM_MOUSELEAVE),
                                                      TEST_MESSAGE(WM_CONTEXTMENU),
                                                      TEST_MESSAGE(WM_DRAWITEM),
                                                      TEST_MESSAGE(WM_MEASUREITEM),
                                                      TEST_MESSAGE(WM_CANCELMODE)};
#undef TEST_MESSAGE
    auto const found = names.find(message);
    if (found != names.end())
        return found->second;
    std::ostringstream text;
    if (message >= 0xC000)
    {
        char name[128];
        if (::GetClipboardFormatNameA(message, name, sizeof(name)) != 0)
            return name; // registered messages and clipboard formats share one table of names
    }
    text << "0x" << std::hex << std::setw(4) << std::setfill('0') << message;
    return text.str();
}

bool Fits(ReceivedMessage const & received, ExpectedMessage const & expected)
{
    return received.window == expected.window && received.message == expected.message && received.way == expected.way &&
           (!expected.wParam || *expected.wParam == received.wParam) &&
           (!expected.lParam || *expected.lParam == received.lParam) &&
           (!expected.code || expected.code == received.code) && (!expected.id || *expected.id == received.id);
}

std::string Describe(ReceivedMessage const & received)
{
    std::ostringstream text;
    text << received.window << ' ' << MessageName(received.message)
         << (received.way == Way::posted ? " posted" : " sent");
    if (received.code)
        text << " code " << static_cast<int>(*received.code) << " id " << received.id;
    else
        text << std::hex << " w " << received.wParam << " l " << received.lParam;
    return text.str();
}

std::string Describe(ExpectedMessage const & expected)
{
    std::ostringstream text;
    text << expected.window << ' ' << MessageName(expected.message)
         << (expected.way == Way::posted ? " posted" : " sent");
    if (expected.code)
        text << " code " << static_cast<int>(*expected.code);
    if (expected.id)
        text << " id " << *expected.id;
    text << std::hex;
    if (expected.wParam)
        text << " w " << *expected.wParam;
    if (expected.lParam)
        text << " l " << *expected.lParam;
    if (expected.optional)
        text << " (optional)";
    return text.str();
}
} // namespace

MessageRecorder::MessageRecorder(std::set<UINT> only) : m_only(std::move(only))
{
    if (Recorders().empty())
    {
        g_sentHook = ::SetWindowsHookEx(WH_CALLWNDPROC, OnSent, nullptr, ::GetCurrentThreadId());
        g_retrievedHook = ::SetWindowsHookEx(WH_GETMESSAGE, OnRetrieved, nullptr, ::GetCurrentThreadId());
    }
    Recorders().push_back(this);
}

MessageRecorder::~MessageRecorder()
{
    std::erase(Recorders(), this);
    if (Recorders().empty())
    {
        ::UnhookWindowsHookEx(g_sentHook);
        ::UnhookWindowsHookEx(g_retrievedHook);
    }
}

void MessageRecorder::Watch(HWND window, std::string name)
{
    m_windows.emplace_back(window, std::move(name));
}

int MessageRecorder::Count(std::string const & window, UINT message) const
{
    return static_cast<int>(std::count_if(m_received.begin(), m_received.end(), [&](ReceivedMessage const & received) {
        return received.window == window && received.message == message;
    }));
}

LRESULT CALLBACK MessageRecorder::OnSent(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION)
    {
        auto const & sent = *reinterpret_cast<CWPSTRUCT const *>(lParam);
        for (MessageRecorder * const recorder : Recorders())
            recorder->Record(sent.hwnd, sent.message, sent.wParam, sent.lParam, Way::sent);
    }
    return ::CallNextHookEx(g_sentHook, code, wParam, lParam);
}

LRESULT CALLBACK MessageRecorder::OnRetrieved(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION && wParam == PM_REMOVE)
    {
        auto const & retrieved = *reinterpret_cast<MSG const *>(lParam);
        for (MessageRecorder * const recorder : Recorders())
            recorder->Record(retrieved.hwnd, retrieved.message, retrieved.wParam, retrieved.lParam, Way::posted);
    }
    return ::CallNextHookEx(g_retrievedHook, code, wParam, lParam);
}

void MessageRecorder::Record(HWND window, UINT message, WPARAM wParam, LPARAM lParam, Way way)
{
    if (!m_only.empty() && m_only.count(message) == 0)
        return;
    auto const watched = std::find_if(m_windows.begin(), m_windows.end(),
                                      [window](auto const & entry) { return entry.first == window; });
    if (watched == m_windows.end())
        return;
    ReceivedMessage received{watched->second, message, way, wParam, lParam, {}, 0};
    if (message == WM_COMMAND)
    {
        received.code = HIWORD(wParam);
        received.id = LOWORD(wParam);
    }
    else if (message == WM_NOTIFY && lParam != 0)
    {
        auto const & header = *reinterpret_cast<NMHDR const *>(lParam);
        received.code = header.code;
        received.id = header.idFrom;
    }
    m_received.push_back(std::move(received));
}

testing::AssertionResult MessageRecorder::Matches(std::vector<ExpectedMessage> const & expected) const
{
    // reach[i][j]: the first i received ones can be the first j expected ones.
    size_t const receivedCount = m_received.size();
    size_t const expectedCount = expected.size();
    std::vector<std::vector<char>> reach(receivedCount + 1, std::vector<char>(expectedCount + 1, 0));
    size_t furthest = 0;
    for (size_t i = 0; i <= receivedCount; ++i)
    {
        for (size_t j = 0; j <= expectedCount; ++j)
        {
            bool const start = i == 0 && j == 0;
            bool const leftOut = j > 0 && expected[j - 1].optional && reach[i][j - 1];
            bool const taken = i > 0 && j > 0 && reach[i - 1][j - 1] && Fits(m_received[i - 1], expected[j - 1]);
            reach[i][j] = start || leftOut || taken;
            if (reach[i][j])
                furthest = i;
        }
    }
    if (reach[receivedCount][expectedCount])
        return testing::AssertionSuccess();

    std::ostringstream text;
    text << "messages differ after the first " << furthest << " received\n"
         << std::left << std::setw(64) << "  expected"
         << "received\n";
    for (size_t i = 0; i < std::max(receivedCount, expectedCount); ++i)
    {
        text << "  " << std::setw(62) << (i < expectedCount ? Describe(expected[i]) : "")
             << (i < receivedCount ? Describe(m_received[i]) : "") << '\n';
    }
    return testing::AssertionFailure() << text.str();
}
} // namespace tests
