#pragma once
// What programs without components use of ATL.

#include <afx.h>
#include <atlcomtime.h>

#ifndef ATLASSERT
#define ATLASSERT(expr) ASSERT(expr)
#endif
#ifndef ATLVERIFY
#define ATLVERIFY(expr) VERIFY(expr)
#endif
#ifndef ATLTRACE
#define ATLTRACE TRACE
#endif
#ifndef ATLENSURE
#define ATLENSURE(expr) ENSURE(expr)
#endif
