#pragma once
// What the bodies of the control classes share. Inside framework.dll only.

#include <afxwin.h>

#include <initializer_list>

namespace framework
{
/// Registers the window classes of the common controls; classes: ICC_ flags.
void LoadControlClasses(DWORD classes);

/// Creates the control as a child of the parent. classes: ICC_ flags of what must be registered, 0 for nothing.
BOOL CreateControl(CWnd & control, DWORD classes, LPCTSTR className, LPCTSTR text, DWORD style, RECT const & rect,
                   CWnd * parent, UINT id);
BOOL CreateControlEx(CWnd & control, DWORD classes, DWORD exStyle, LPCTSTR className, LPCTSTR text, DWORD style,
                     RECT const & rect, CWnd * parent, UINT id);

/// Takes a thread's image list objects out of a control before the control ends, so that the objects stay the owners.
/// The messages can run the host's code: false if that has ended the control.
bool ReleaseImages(CWnd const & control, UINT getMessage, UINT setMessage, std::initializer_list<int> kinds);

/// Collects a text of unknown length: read fills a buffer of so many characters and is asked again with a larger
/// one while it fills the buffer.
template <class Read> CString CollectText(Read read)
{
    constexpr int largest_text = 1 << 20;
    CString text;
    for (int size = 256; size <= largest_text; size *= 4)
    {
        TCHAR * const buffer = text.GetBuffer(size);
        buffer[0] = 0;
        bool const taken = read(buffer, size);
        int const length = taken ? lstrlen(buffer) : 0;
        text.ReleaseBuffer(length);
        if (length < size - 1)
            break;
    }
    return text;
}

inline CPoint PointOf(DWORD packed)
{
    return CPoint(static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed)));
}
inline CSize SizeOf(DWORD packed)
{
    return CSize(LOWORD(packed), HIWORD(packed));
}
} // namespace framework
