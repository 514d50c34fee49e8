#pragma once
// Stands ahead of the source of the module's entry function, which calls these substitutes instead of the framework, so
// that its failures can be had.

#include <afxdllx.h>
#include <afxwin.h>

BOOL InitialiseSubstitute(AFX_EXTENSION_MODULE & record, HMODULE module);
void TerminateSubstitute(AFX_EXTENSION_MODULE & record, BOOL all = FALSE);

class LibrarySubstitute
{
public:
    explicit LibrarySubstitute(AFX_EXTENSION_MODULE & record);
    ~LibrarySubstitute();
};

extern AFX_EXTENSION_MODULE g_recordUnderTest;
extern HINSTANCE g_instanceUnderTest;
extern "C" BOOL WINAPI EntryUnderTest(HINSTANCE instance, DWORD reason, LPVOID reserved);

#ifndef ENTRY_SUBSTITUTES_ONLY
#define g_toolkitModule g_recordUnderTest
#define g_toolkitInstance g_instanceUnderTest
#define AfxInitExtensionModule InitialiseSubstitute
#define AfxTermExtensionModule TerminateSubstitute
#define CDynLinkLibrary LibrarySubstitute
#define DllMain EntryUnderTest
#endif
