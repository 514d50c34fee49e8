#pragma once
// Included by one source of an extension module, for its DllMain.

#include <afxv_dll.h>
