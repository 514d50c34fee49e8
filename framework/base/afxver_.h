#pragma once
// The framework's calling and storage macros.

#if defined(_WIN32)

#if !defined(_UNICODE) || !defined(UNICODE)
#error The framework is built for Unicode: define UNICODE and _UNICODE.
// The compiler would go on and report what follows from it.
#include "framework needs UNICODE and _UNICODE"
#endif

// The headers name types of Windows 7. A program for older systems still decides itself what it calls.
#if defined(_WIN32_WINNT) && _WIN32_WINNT < 0x0601
#undef _WIN32_WINNT
#define _WIN32_WINNT 0x0601
#undef WINVER
#define WINVER 0x0601
#undef NTDDI_VERSION
#define NTDDI_VERSION 0x06010000
#undef _WIN32_IE
#define _WIN32_IE 0x0800
#endif

#endif

#include "FrameworkExport.h"
#include "WinTypes.h"

#define AFXAPI
#define AFXAPIP *
#define AFX_CDECL __cdecl
#define AFX_MSG_CALL
#define AFX_INLINE inline
#define AFX_DATA
#define AFX_DATADEF
#define AFX_API
#define AFX_NOVTABLE
#define AFX_COMDAT
#define AFX_EXT_CLASS
#define AFX_IMPORT_DATA
#define BASED_CODE
#define _MFC_VER 0x0E00

#if defined(_WIN32)
#undef AFX_EXT_CLASS
#if defined(_AFXEXT)
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#endif
#endif

#ifndef UNUSED
#ifdef _DEBUG
#define UNUSED(x)
#else
#define UNUSED(x) (static_cast<void>(x))
#endif
#endif
#define UNUSED_ALWAYS(x) (static_cast<void>(x))

struct __POSITION;
/// A place in a collection. Null is no place.
using POSITION = __POSITION *;
