// The line at the main window's lower edge.

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "ScopedWindow.h"
#include "StatusStrip.h"

namespace
{
TEST(StatusStrip, ATextThatIsCutIsAToolTip)
{
    constexpr wchar_t text[] = L"a text that tells of recordings, of the marked ones, and of the reference";
    tests::ScopedWindow host;
    workbench::ScreenMetrics metrics;
    CStatusStrip strip;
    ASSERT_TRUE(strip.CreateStrip(host, 5, metrics));
    tests::WindowCloser const closer(strip);
    strip.ShowText(text);
    auto const tip = [&strip] {
        CString told;
        std::pair<HWND, CString *> of(strip.m_hWnd, &told);
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM to) -> BOOL {
                wchar_t name[40] = L"";
                ::GetClassNameW(window, name, 40);
                auto & [parent, shown] = *reinterpret_cast<std::pair<HWND, CString *> *>(to);
                wchar_t words[400] = L"";
                TOOLINFOW tool{};
                tool.cbSize = sizeof tool;
                tool.hwnd = parent;
                tool.uId = 1;
                tool.lpszText = words;
                if (CString(name) == L"tooltips_class32" &&
                    ::SendMessageW(window, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)))
                {
                    ::SendMessageW(window, TTM_GETTEXTW, 400, reinterpret_cast<LPARAM>(&tool));
                    *shown = words;
                }
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&of));
        return std::wstring(told.GetString());
    };
    strip.MoveWindow(0, 0, 60, 20);
    EXPECT_EQ(tip(), text);
    strip.MoveWindow(0, 0, 2000, 20);
    EXPECT_EQ(tip(), L"");
    strip.MoveWindow(0, 0, 60, 20);
    strip.ShowText(L"a");
    EXPECT_EQ(tip(), L"");
}
} // namespace
