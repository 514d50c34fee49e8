#pragma once
// Declarations for programs and extension modules that use the framework as a library.

#include <afxwin.h>
