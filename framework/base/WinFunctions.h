#pragma once
// The window-free functions of the Win32 API on rectangles, and the generic-text names, for builds without the Windows
// SDK. Included by WinTypes.h.

#include "WinTypes.h"

#if !defined(_WIN32)

inline BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom)
{
    if (rect == nullptr)
        return FALSE;
    *rect = {left, top, right, bottom};
    return TRUE;
}

inline BOOL SetRectEmpty(LPRECT rect)
{
    return SetRect(rect, 0, 0, 0, 0);
}

inline BOOL CopyRect(LPRECT target, LPCRECT source)
{
    if (target == nullptr || source == nullptr)
        return FALSE;
    *target = *source;
    return TRUE;
}

inline BOOL IsRectEmpty(LPCRECT rect)
{
    return rect == nullptr || rect->left >= rect->right || rect->top >= rect->bottom;
}

inline BOOL EqualRect(LPCRECT a, LPCRECT b)
{
    return a != nullptr && b != nullptr && a->left == b->left && a->top == b->top && a->right == b->right &&
           a->bottom == b->bottom;
}

inline BOOL PtInRect(LPCRECT rect, POINT point)
{
    return rect != nullptr && point.x >= rect->left && point.x < rect->right && point.y >= rect->top &&
           point.y < rect->bottom;
}

inline BOOL OffsetRect(LPRECT rect, int x, int y)
{
    if (rect == nullptr)
        return FALSE;
    *rect = {rect->left + x, rect->top + y, rect->right + x, rect->bottom + y};
    return TRUE;
}

inline BOOL InflateRect(LPRECT rect, int x, int y)
{
    if (rect == nullptr)
        return FALSE;
    *rect = {rect->left - x, rect->top - y, rect->right + x, rect->bottom + y};
    return TRUE;
}

inline BOOL IntersectRect(LPRECT target, LPCRECT a, LPCRECT b)
{
    if (target == nullptr || a == nullptr || b == nullptr)
        return FALSE;
    if (IsRectEmpty(a) || IsRectEmpty(b) || a->left >= b->right || b->left >= a->right || a->top >= b->bottom ||
        b->top >= a->bottom)
    {
        SetRectEmpty(target);
        return FALSE;
    }
    *target = {a->left > b->left ? a->left : b->left, a->top > b->top ? a->top : b->top,
               a->right < b->right ? a->right : b->right, a->bottom < b->bottom ? a->bottom : b->bottom};
    return TRUE;
}

inline BOOL UnionRect(LPRECT target, LPCRECT a, LPCRECT b)
{
    if (target == nullptr || a == nullptr || b == nullptr)
        return FALSE;
    if (IsRectEmpty(a))
    {
        if (IsRectEmpty(b))
        {
            SetRectEmpty(target);
            return FALSE;
        }
        *target = *b;
        return TRUE;
    }
    if (IsRectEmpty(b))
    {
        *target = *a;
        return TRUE;
    }
    *target = {a->left < b->left ? a->left : b->left, a->top < b->top ? a->top : b->top,
               a->right > b->right ? a->right : b->right, a->bottom > b->bottom ? a->bottom : b->bottom};
    return TRUE;
}

/// Cuts b off a where b covers a whole side of it. FALSE when nothing is left.
inline BOOL SubtractRect(LPRECT target, LPCRECT a, LPCRECT b)
{
    if (target == nullptr || a == nullptr || b == nullptr)
        return FALSE;
    if (IsRectEmpty(a))
    {
        SetRectEmpty(target);
        return FALSE;
    }
    RECT const source = *a;
    RECT common;
    BOOL const cut = IntersectRect(&common, a, b);
    *target = source;
    if (!cut)
        return TRUE;
    if (EqualRect(&common, &source))
    {
        SetRectEmpty(target);
        return FALSE;
    }
    if (common.top == source.top && common.bottom == source.bottom)
    {
        if (common.left == source.left)
            target->left = common.right;
        else if (common.right == source.right)
            target->right = common.left;
    }
    else if (common.left == source.left && common.right == source.right)
    {
        if (common.top == source.top)
            target->top = common.bottom;
        else if (common.bottom == source.bottom)
            target->bottom = common.top;
    }
    return TRUE;
}

/// number * numerator / denominator, rounded to the nearest (halves away from zero). -1 when the denominator is 0 or
/// the result does not fit.
inline int MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0)
        return -1;
    long long const product = static_cast<long long>(number) * numerator;
    long long const divisor = denominator;
    long long const magnitude = product < 0 ? -product : product;
    long long const size = divisor < 0 ? -divisor : divisor;
    long long const rounded = (magnitude + size / 2) / size;
    long long const result = ((product < 0) != (divisor < 0)) ? -rounded : rounded;
    return result > INT32_MAX || result < INT32_MIN ? -1 : static_cast<int>(result);
}

#define _tcslen std::wcslen
#define _tcscmp std::wcscmp
#define _tcsncmp std::wcsncmp
#define _tcscoll std::wcscoll
#define _tcschr std::wcschr
#define _tcsrchr std::wcsrchr
#define _tcsstr std::wcsstr
#define _tcspbrk std::wcspbrk
#define _tcsspn std::wcsspn
#define _tcscspn std::wcscspn
#define _tcsicmp wcscasecmp
#define _tcsnicmp wcsncasecmp
#define _tcstol std::wcstol
#define _tcstoul std::wcstoul
#define _tcstod std::wcstod
#define _tcstoi64 std::wcstoll
#define _tcstoui64 std::wcstoull
#define _wcsicmp wcscasecmp
#define _wcsnicmp wcsncasecmp
#define _istalpha std::iswalpha
#define _istalnum std::iswalnum
#define _istdigit std::iswdigit
#define _istxdigit std::iswxdigit
#define _istspace std::iswspace
#define _istupper std::iswupper
#define _istlower std::iswlower
#define _istprint std::iswprint
#define _istpunct std::iswpunct
#define _totupper std::towupper
#define _totlower std::towlower

inline int _wtoi(wchar_t const * text)
{
    return static_cast<int>(std::wcstol(text, nullptr, 10));
}

inline long long _wtoi64(wchar_t const * text)
{
    return std::wcstoll(text, nullptr, 10);
}

inline double _wtof(wchar_t const * text)
{
    return std::wcstod(text, nullptr);
}

#define _ttoi _wtoi
#define _ttoi64 _wtoi64
#define _tstoi _wtoi
#define _tstof _wtof

#endif
