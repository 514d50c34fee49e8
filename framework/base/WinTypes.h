#pragma once
// The plain Win32 types and constants that window-free code uses. On Windows they come from the system; elsewhere this
// header defines them with the same sizes.

#if defined(_WIN32)

#include <windows.h>
#include <tchar.h>

// The system's macro would swallow CTime::GetCurrentTime.
#undef GetCurrentTime

#else

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cwchar>
#include <cwctype>

#define CALLBACK
#define WINAPI
#define APIENTRY
#define PASCAL
#define __cdecl
#define __stdcall
#define CONST const
#define FAR

using BOOL = int;
using BYTE = std::uint8_t;
using CHAR = char;
using UCHAR = unsigned char;
using SHORT = std::int16_t;
using USHORT = std::uint16_t;
using WORD = std::uint16_t;
using INT = int;
using UINT = unsigned int;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using DWORD = std::uint32_t;
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using DWORDLONG = unsigned long long;
using DWORD64 = unsigned long long;
using INT32 = std::int32_t;
using UINT32 = std::uint32_t;
using INT64 = long long;
using UINT64 = unsigned long long;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using SIZE_T = std::size_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using HRESULT = LONG;
using SCODE = LONG;
using FLOAT = float;
using DOUBLE = double;
using DATE = double;
using ATOM = WORD;
using COLORREF = DWORD;
using LCID = DWORD;
using LANGID = WORD;
using __int64 = long long;
using __time64_t = std::int64_t;

using WCHAR = wchar_t;
using TCHAR = wchar_t;
using LPSTR = char *;
using PSTR = char *;
using LPCSTR = char const *;
using PCSTR = char const *;
using LPWSTR = wchar_t *;
using PWSTR = wchar_t *;
using LPCWSTR = wchar_t const *;
using PCWSTR = wchar_t const *;
using LPTSTR = TCHAR *;
using PTSTR = TCHAR *;
using LPCTSTR = TCHAR const *;
using PCTSTR = TCHAR const *;
using PVOID = void *;
using LPVOID = void *;
using LPCVOID = void const *;
using PBYTE = BYTE *;
using LPBYTE = BYTE *;
using PUINT = UINT *;
using PINT = INT *;
using LPINT = INT *;
using PLONG = LONG *;
using PDWORD = DWORD *;
using LPDWORD = DWORD *;
using LPWORD = WORD *;
using LPBOOL = BOOL *;
using PBOOL = BOOL *;
using LPCOLORREF = COLORREF *;

#define TRUE 1
#define FALSE 0
#define MAX_PATH 260
#define VOID void
#define _MAX_PATH 260

#define __TEXT_WIDE(text) L##text
#define TEXT(text) __TEXT_WIDE(text)
#define _TEXT(text) __TEXT_WIDE(text)
#define _T(text) __TEXT_WIDE(text)
using _TCHAR = wchar_t;

using HANDLE = void *;
using HGLOBAL = HANDLE;
using HLOCAL = HANDLE;
#define DECLARE_HANDLE(name)                                                                                           \
    struct name##__                                                                                                    \
    {                                                                                                                  \
        int unused;                                                                                                    \
    };                                                                                                                 \
    using name = name##__ *
DECLARE_HANDLE(HWND);
DECLARE_HANDLE(HMENU);
DECLARE_HANDLE(HINSTANCE);
DECLARE_HANDLE(HICON);
DECLARE_HANDLE(HBITMAP);
DECLARE_HANDLE(HDC);
DECLARE_HANDLE(HFONT);
DECLARE_HANDLE(HBRUSH);
DECLARE_HANDLE(HPEN);
DECLARE_HANDLE(HPALETTE);
DECLARE_HANDLE(HRGN);
DECLARE_HANDLE(HRSRC);
DECLARE_HANDLE(HACCEL);
DECLARE_HANDLE(HHOOK);
DECLARE_HANDLE(HKEY);
DECLARE_HANDLE(HMONITOR);
DECLARE_HANDLE(HDWP);
using HMODULE = HINSTANCE;
using HCURSOR = HICON;
using HGDIOBJ = void *;
#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)))

struct tagPOINT
{
    LONG x;
    LONG y;
};
using POINT = tagPOINT;
using PPOINT = tagPOINT *;
using LPPOINT = tagPOINT *;

struct tagSIZE
{
    LONG cx;
    LONG cy;
};
using SIZE = tagSIZE;
using PSIZE = tagSIZE *;
using LPSIZE = tagSIZE *;

struct tagRECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
using RECT = tagRECT;
using PRECT = tagRECT *;
using LPRECT = tagRECT *;
using LPCRECT = tagRECT const *;

struct tagWINDOWPLACEMENT
{
    UINT length;
    UINT flags;
    UINT showCmd;
    POINT ptMinPosition;
    POINT ptMaxPosition;
    RECT rcNormalPosition;
};
using WINDOWPLACEMENT = tagWINDOWPLACEMENT;
using LPWINDOWPLACEMENT = tagWINDOWPLACEMENT *;
static_assert(sizeof(WINDOWPLACEMENT) == 44);

struct tagMINMAXINFO
{
    POINT ptReserved;
    POINT ptMaxSize;
    POINT ptMaxPosition;
    POINT ptMinTrackSize;
    POINT ptMaxTrackSize;
};
using MINMAXINFO = tagMINMAXINFO;
using LPMINMAXINFO = tagMINMAXINFO *;

struct tagWINDOWPOS
{
    HWND hwnd;
    HWND hwndInsertAfter;
    int x;
    int y;
    int cx;
    int cy;
    UINT flags;
};
using WINDOWPOS = tagWINDOWPOS;
using LPWINDOWPOS = tagWINDOWPOS *;

struct _SYSTEMTIME
{
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek;
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};
using SYSTEMTIME = _SYSTEMTIME;
using LPSYSTEMTIME = _SYSTEMTIME *;

struct _FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};
using FILETIME = _FILETIME;
using LPFILETIME = _FILETIME *;

struct _GUID
{
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
};
using GUID = _GUID;

#define MAKEWORD(low, high)                                                                                            \
    (static_cast<WORD>((static_cast<DWORD_PTR>(low) & 0xffU) | ((static_cast<DWORD_PTR>(high) & 0xffU) << 8)))
#define MAKELONG(low, high)                                                                                            \
    (static_cast<LONG>((static_cast<DWORD>(static_cast<DWORD_PTR>(low) & 0xffffU)) |                                   \
                       (static_cast<DWORD>(static_cast<DWORD_PTR>(high) & 0xffffU) << 16)))
#define LOWORD(value) (static_cast<WORD>(((DWORD_PTR)(value)) & 0xffffU))
#define HIWORD(value) (static_cast<WORD>((((DWORD_PTR)(value)) >> 16) & 0xffffU))
#define LOBYTE(value) (static_cast<BYTE>(((DWORD_PTR)(value)) & 0xffU))
#define HIBYTE(value) (static_cast<BYTE>((((DWORD_PTR)(value)) >> 8) & 0xffU))
#define MAKEWPARAM(low, high) (static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKELPARAM(low, high) (static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKELRESULT(low, high) (static_cast<LRESULT>(static_cast<DWORD>(MAKELONG(low, high))))
#define GET_X_LPARAM(value) (static_cast<int>(static_cast<SHORT>(LOWORD(value))))
#define GET_Y_LPARAM(value) (static_cast<int>(static_cast<SHORT>(HIWORD(value))))
#define MAKEINTRESOURCEA(id) (reinterpret_cast<LPSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(id))))
#define MAKEINTRESOURCEW(id) (reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(id))))
#define MAKEINTRESOURCE MAKEINTRESOURCEW
#define IS_INTRESOURCE(name) ((reinterpret_cast<ULONG_PTR>(name) >> 16) == 0)
#define MAKELANGID(primary, sub) ((static_cast<WORD>(sub) << 10) | static_cast<WORD>(primary))
#define PRIMARYLANGID(language) (static_cast<WORD>(language) & 0x3ff)
#define SUBLANGID(language) (static_cast<WORD>(language) >> 10)
#define MAKELCID(language, sort)                                                                                       \
    (static_cast<DWORD>((static_cast<DWORD>(static_cast<WORD>(sort)) << 16) |                                          \
                        static_cast<DWORD>(static_cast<WORD>(language))))
#define LANGIDFROMLCID(lcid) (static_cast<WORD>(lcid))

#define RGB(r, g, b)                                                                                                   \
    (static_cast<COLORREF>(static_cast<BYTE>(r) | (static_cast<WORD>(static_cast<BYTE>(g)) << 8) |                     \
                           (static_cast<DWORD>(static_cast<BYTE>(b)) << 16)))
#define GetRValue(colour) (static_cast<BYTE>(colour))
#define GetGValue(colour) (static_cast<BYTE>(static_cast<WORD>(colour) >> 8))
#define GetBValue(colour) (static_cast<BYTE>((colour) >> 16))
#define CLR_NONE 0xFFFFFFFFU
#define CLR_DEFAULT 0xFF000000U
#define CLR_INVALID 0xFFFFFFFFU

#define S_OK (static_cast<HRESULT>(0))
#define S_FALSE (static_cast<HRESULT>(1))
#define E_FAIL (static_cast<HRESULT>(0x80004005U))
#define E_NOTIMPL (static_cast<HRESULT>(0x80004001U))
#define E_POINTER (static_cast<HRESULT>(0x80004003U))
#define E_INVALIDARG (static_cast<HRESULT>(0x80070057U))
#define E_OUTOFMEMORY (static_cast<HRESULT>(0x8007000EU))
#define SUCCEEDED(result) ((static_cast<HRESULT>(result)) >= 0)
#define FAILED(result) ((static_cast<HRESULT>(result)) < 0)
#define ERROR_SUCCESS 0
#define NO_ERROR 0
#define ERROR_FILE_NOT_FOUND 2
#define ERROR_PATH_NOT_FOUND 3
#define ERROR_ACCESS_DENIED 5
#define ERROR_INVALID_PARAMETER 87
#define ERROR_INSUFFICIENT_BUFFER 122
#define ERROR_MORE_DATA 234

#define CP_ACP 0
#define CP_OEMCP 1
#define CP_THREAD_ACP 3
#define CP_UTF7 65000
#define CP_UTF8 65001

#define LANG_NEUTRAL 0x00
#define LANG_ENGLISH 0x09
#define LANG_FRENCH 0x0c
#define LANG_GERMAN 0x07
#define SUBLANG_NEUTRAL 0x00
#define SUBLANG_DEFAULT 0x01
#define SUBLANG_SYS_DEFAULT 0x02

#define MB_OK 0x00000000U
#define MB_OKCANCEL 0x00000001U
#define MB_ABORTRETRYIGNORE 0x00000002U
#define MB_YESNOCANCEL 0x00000003U
#define MB_YESNO 0x00000004U
#define MB_RETRYCANCEL 0x00000005U
#define MB_ICONERROR 0x00000010U
#define MB_ICONSTOP 0x00000010U
#define MB_ICONQUESTION 0x00000020U
#define MB_ICONEXCLAMATION 0x00000030U
#define MB_ICONWARNING 0x00000030U
#define MB_ICONINFORMATION 0x00000040U
#define IDOK 1
#define IDCANCEL 2
#define IDABORT 3
#define IDRETRY 4
#define IDIGNORE 5
#define IDYES 6
#define IDNO 7
#define IDCLOSE 8
#define IDHELP 9

#include "WinConstants.h"
#include "WinFunctions.h"

#endif
