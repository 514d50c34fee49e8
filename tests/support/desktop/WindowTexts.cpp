// Prints what the windows of the desktop say, for scripts that wait for a state: a line for each that shows, those
// within others indented, with its control's number, class, text, and whether it has the focus. With a number as an
// argument: the place of the control of that number alone, "left top right bottom".

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{
constexpr UINT patience = 2000; // milliseconds

int g_wanted = 0;

std::string Utf8(wchar_t const * text)
{
    char bytes[4096] = "";
    ::WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes, sizeof bytes, nullptr, nullptr);
    std::string line(bytes);
    for (char & character : line)
        character = character == '\n' || character == '\r' ? ' ' : character;
    return line;
}

void Print(HWND window, int depth)
{
    if (!::IsWindowVisible(window))
        return;
    RECT place{};
    ::GetWindowRect(window, &place);
    int const id = ::GetDlgCtrlID(window);
    bool const isChild = (::GetWindowLongW(window, GWL_STYLE) & WS_CHILD) != 0;
    if (g_wanted != 0)
    {
        if (isChild && id == g_wanted)
            std::printf("%ld %ld %ld %ld\n", place.left, place.top, place.right, place.bottom);
    }
    else
    {
        wchar_t name[64] = L"";
        ::GetClassNameW(window, name, 64);
        wchar_t text[1024] = L"";
        DWORD_PTR length = 0;
        bool const answers = ::SendMessageTimeoutW(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text),
                                                   SMTO_ABORTIFHUNG, patience, &length) != 0;
        GUITHREADINFO thread{};
        thread.cbSize = sizeof thread;
        ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &thread);
        std::printf("%*s%d %s [%s]%s%s%s\n", depth * 2, "", isChild ? id : 0, Utf8(name).c_str(), Utf8(text).c_str(),
                    answers ? "" : " busy", thread.hwndFocus == window ? " focus" : "",
                    ::GetForegroundWindow() == window ? " foreground" : "");
    }
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        Print(child, depth + 1);
}

BOOL CALLBACK PrintTop(HWND window, LPARAM)
{
    Print(window, 0);
    return TRUE;
}
} // namespace

int main(int count, char ** arguments)
{
    g_wanted = count > 1 ? std::atoi(arguments[1]) : 0;
    ::EnumWindows(PrintTop, 0);
    return 0;
}
