#pragma once
// What the sources of the graphics classes share.

#include <afxwin.h>

#include <type_traits>

namespace framework
{
/// The handle of an object that may be missing.
inline HGDIOBJ HandleOf(CGdiObject const * object)
{
    return object == nullptr ? nullptr : object->m_hObject;
}
inline HDC HandleOf(CDC const * dc)
{
    return dc == nullptr ? nullptr : dc->m_hDC;
}
inline HWND HandleOf(CWnd const * window)
{
    return window == nullptr ? nullptr : window->m_hWnd;
}

/// A program may ask for the handle through a null pointer; hides from the compiler where the pointer came from, so
/// that the question whether it is null is really put.
template <class T> T * MaybeNull(T * object)
{
    T * volatile hidden = object;
    return hidden;
}

/// Changes the output context and, where it is another one, the attribute context, whose answer counts.
template <class Change, class Answer = std::invoke_result_t<Change, HDC>>
Answer OnBoth(CDC const & dc, Change change, Answer answer = Answer())
{
    if (dc.m_hDC != dc.m_hAttribDC)
        answer = change(dc.m_hDC);
    if (dc.m_hAttribDC != nullptr)
        answer = change(dc.m_hAttribDC);
    return answer;
}
} // namespace framework
