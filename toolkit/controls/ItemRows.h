#pragma once
// What the extended combo box and list box have in common: rows with a number each. Internal to the module.
//
// Every message to a control may run its host's code, which may end the window or delete the object. The functions go
// by the window then: an object that has lost it is not touched again.

#include <afxwin.h>

#include <list>
#include <map>

#include "frame/GraphicsScopes.h"
#include "frame/WindowAlive.h"

namespace item_rows
{
/// The row, or a negative number where none was added.
template <typename Control> int Add(Control & control, wchar_t const * text, int data)
{
    HWND const window = control.m_hWnd;
    if (window == nullptr)
        return -1;
    int const row = control.AddString(text != nullptr ? text : L"");
    if (row >= 0 && StillHas(&control, window))
        control.SetItemData(row, static_cast<DWORD_PTR>(data));
    return row;
}

template <typename Control>
void Fill(Control & control, std::list<CString> const & items, int firstData, bool clearFirst)
{
    HWND const window = control.m_hWnd;
    if (window == nullptr)
        return;
    std::list<CString> const kept(items);
    if (clearFirst)
        control.ResetContent();
    auto data = static_cast<unsigned int>(firstData);
    for (CString const & text : kept)
    {
        if (!StillHas(&control, window))
            return;
        Add(control, text, static_cast<int>(data++));
    }
}

/// blankText: of the row with the value -1 that comes first where the items have none of that key; null for none.
template <typename Control>
void Fill(Control & control, std::map<int, CString> const & items, wchar_t const * blankText)
{
    constexpr int blank_value = -1;
    HWND const window = control.m_hWnd;
    if (window == nullptr)
        return;
    std::map<int, CString> const kept(items);
    control.ResetContent();
    if (blankText != nullptr && !kept.contains(blank_value) && StillHas(&control, window))
        Add(control, blankText, blank_value);
    for (auto const & [data, text] : kept)
    {
        if (!StillHas(&control, window))
            return;
        Add(control, text, data);
    }
}

template <typename Control> int Find(Control & control, int data)
{
    HWND const window = control.m_hWnd;
    int const count = window != nullptr ? control.GetCount() : 0;
    for (int row = 0; row < count && StillHas(&control, window); ++row)
    {
        if (static_cast<int>(control.GetItemData(row)) == data)
            return row;
    }
    return -1;
}

template <typename Control> int Select(Control & control, int data)
{
    HWND const window = control.m_hWnd;
    int const row = Find(control, data);
    if (row >= 0 && StillHas(&control, window))
        control.SetCurSel(row);
    return row;
}

template <typename Control> int Selected(Control & control, int defaultData)
{
    HWND const window = control.m_hWnd;
    int const row = window != nullptr ? control.GetCurSel() : -1;
    return row >= 0 && StillHas(&control, window) ? static_cast<int>(control.GetItemData(row)) : defaultData;
}

/// The width of a text in the window's font, or in the system's where it has none.
inline int TextWidth(HWND window, CString const & text)
{
    auto const font = reinterpret_cast<HFONT>(::SendMessage(window, WM_GETFONT, 0, 0));
    return TextMeasure(window, font).Width(text);
}
} // namespace item_rows
