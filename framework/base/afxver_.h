#pragma once
// The framework's calling and storage macros.

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
