#pragma once
// Marks what framework.dll offers. On Linux the plain part of the framework is a static library.

#if defined(_WIN32)
#if defined(FRAMEWORK_BUILD)
#define FRAMEWORK_API __declspec(dllexport)
#else
#define FRAMEWORK_API __declspec(dllimport)
#endif
#else
#define FRAMEWORK_API
#endif
