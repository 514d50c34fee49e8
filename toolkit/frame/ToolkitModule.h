#pragma once
// The module's own record and instance. Internal to the module.

#include <afxwin.h>

/// The record of this module. Its hModule is the handle to load the toolkit's resources with. Filled at load, constant
/// afterwards.
extern AFX_EXTENSION_MODULE g_toolkitModule;

/// The instance handle that the entry function was given; null before the load has succeeded.
extern HINSTANCE g_toolkitInstance;
