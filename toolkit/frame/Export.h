#pragma once
// Marks what instrument_ui.dll offers to its hosts.
//
// INSTRUMENT_UI_BUILD is defined while the module itself is built, INSTRUMENT_UI_STATIC by programs that link the
// toolkit's logic as a static library instead (the logic tests).

#if defined(_WIN32) && defined(INSTRUMENT_UI_BUILD)
#define INSTRUMENT_UI_API __declspec(dllexport)
#elif defined(_WIN32) && !defined(INSTRUMENT_UI_STATIC)
#define INSTRUMENT_UI_API __declspec(dllimport)
#else
#define INSTRUMENT_UI_API
#endif
