// The entry point of a window program. It lies in a static library, which each program links for itself.

#include <afxwin.h>
#include <shlwapi.h>

// Wine and Windows hand WinMain a narrow command line; the program gets the wide one, without its own name.
int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR, int show)
{
    return AfxWinMain(instance, previous, ::PathGetArgsW(::GetCommandLineW()), show);
}
