#pragma once
// What the tests of the small controls from a host's side have in common.

#include <afxcmn.h>
#include <afxdialogex.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "Bitmap.h"
#include "controls/ColorButton.h"
#include "controls/ComboBoxX.h"
#include "controls/FreeIconButton.h"
#include "controls/LevelSliderCtrl.h"
#include "controls/ListBoxX.h"
#include "controls/XEditBrowseCtrl.h"
#include "controls/XTreeCtrl.h"
#include "DialogTemplate.h"
#include "frame/RegisteredMessages.h"
#include "GdiHandleCount.h"
#include "ImportPatch.h"
#include "Input.h"
#include "MessageRecorder.h"
#include "PrintValues.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "TestApp.h"

namespace outside::controls
{
/// A parent that remembers what it receives.
class Host : public tests::ScopedWindow
{
public:
    struct Seen
    {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };

    using tests::ScopedWindow::ScopedWindow;

    int Count(UINT message) const
    {
        int count = 0;
        for (Seen const & each : seen)
            count += each.message == message ? 1 : 0;
        return count;
    }
    std::vector<Seen> Of(UINT message) const
    {
        std::vector<Seen> found;
        for (Seen const & each : seen)
        {
            if (each.message == message)
                found.push_back(each);
        }
        return found;
    }
    /// Notifications of WM_COMMAND with the code.
    int Commands(UINT code) const
    {
        int count = 0;
        for (Seen const & each : seen)
            count += each.message == WM_COMMAND && HIWORD(each.wParam) == code ? 1 : 0;
        return count;
    }

    std::vector<Seen> seen;
    /// True: the message is done with.
    std::function<bool(UINT, WPARAM, LPARAM, LRESULT &)> hook;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        seen.push_back({message, wParam, lParam});
        LRESULT result = 0;
        if (hook && hook(message, wParam, lParam, result))
            return result;
        return tests::ScopedWindow::WindowProc(message, wParam, lParam);
    }
};

struct TimerCall
{
    HWND window;
    UINT_PTR id;
    UINT period;
};

/// Notes the timers that are set and killed by toolkit and framework.
class TimerSpy
{
public:
    TimerSpy()
        : m_a(L"instrument_ui.dll", "SetTimer", &Set),
          m_b(L"framework.dll", "SetTimer", &Set),
          m_c(L"instrument_ui.dll", "KillTimer", &Kill),
          m_d(L"framework.dll", "KillTimer", &Kill)
    {
        set().clear();
        killed().clear();
    }
    static std::vector<TimerCall> & set()
    {
        static std::vector<TimerCall> calls;
        return calls;
    }
    static std::vector<TimerCall> & killed()
    {
        static std::vector<TimerCall> calls;
        return calls;
    }

private:
    static UINT_PTR WINAPI Set(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure)
    {
        set().push_back({window, id, period});
        return ::SetTimer(window, id, period, procedure);
    }
    static BOOL WINAPI Kill(HWND window, UINT_PTR id)
    {
        killed().push_back({window, id, 0});
        return ::KillTimer(window, id);
    }

    tests::ImportPatch m_a, m_b, m_c, m_d;
};

/// The entries of one class's own message map.
struct MapEntry
{
    UINT message;
    UINT code;
    UINT first;
    UINT last;
    UINT registered;
};
inline std::vector<MapEntry> EntriesOf(AFX_MSGMAP const * map)
{
    std::vector<MapEntry> entries;
    for (AFX_MSGMAP_ENTRY const * entry = map->lpEntries; entry->nSig != 0; ++entry)
    {
        UINT registered = 0;
        if (entry->nMessage == 0xC000)
            registered = *reinterpret_cast<UINT const *>(entry->nSig);
        entries.push_back({entry->nMessage, entry->nCode, entry->nID, entry->nLastID, registered});
    }
    return entries;
}
inline bool Handles(std::vector<MapEntry> const & entries, UINT message)
{
    return std::any_of(entries.begin(), entries.end(), [&](MapEntry const & each) { return each.message == message; });
}

inline std::wstring TextOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

inline std::wstring ClassOf(HWND window)
{
    wchar_t name[256] = {};
    ::GetClassNameW(window, name, 256);
    return name;
}

inline HMODULE Toolkit()
{
    return ::GetModuleHandleW(L"instrument_ui.dll");
}

inline std::wstring W(CString const & text)
{
    return std::wstring(static_cast<wchar_t const *>(text));
}

/// An icon of one colour, 32 by 32, opaque.
class SolidIcon
{
public:
    explicit SolidIcon(COLORREF colour, int edge = 32)
    {
        HDC const screen = ::GetDC(nullptr);
        HBITMAP const picture = ::CreateCompatibleBitmap(screen, edge, edge);
        HDC const dc = ::CreateCompatibleDC(screen);
        HGDIOBJ const former = ::SelectObject(dc, picture);
        RECT const all = {0, 0, edge, edge};
        HBRUSH const brush = ::CreateSolidBrush(colour);
        ::FillRect(dc, &all, brush);
        ::DeleteObject(brush);
        ::SelectObject(dc, former);
        ::DeleteDC(dc);
        ::ReleaseDC(nullptr, screen);
        std::vector<BYTE> const bits(static_cast<std::size_t>(edge * edge / 8), BYTE{0});
        HBITMAP const mask = ::CreateBitmap(edge, edge, 1, 1, bits.data());
        ICONINFO info = {TRUE, 0, 0, mask, picture};
        m_icon = ::CreateIconIndirect(&info);
        ::DeleteObject(mask);
        ::DeleteObject(picture);
    }
    ~SolidIcon() { ::DestroyIcon(m_icon); }
    SolidIcon(SolidIcon const &) = delete;
    SolidIcon & operator=(SolidIcon const &) = delete;
    operator HICON() const { return m_icon; }

private:
    HICON m_icon;
};
} // namespace outside::controls
