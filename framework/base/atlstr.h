#pragma once
// The string types of programs.

#include "cstringt.h"

using CStringW = ATL::CStringT<wchar_t, ATL::StrTraitMFC_DLL<wchar_t>>;
using CStringA = ATL::CStringT<char, ATL::StrTraitMFC_DLL<char>>;
using CString = ATL::CStringT<TCHAR, ATL::StrTraitMFC_DLL<TCHAR>>;
static_assert(sizeof(CString) == sizeof(void *));
