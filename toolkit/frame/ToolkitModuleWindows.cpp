#include "frame/ToolkitModule.h"

#include <afxdllx.h>

AFX_EXTENSION_MODULE g_toolkitModule = {};
HINSTANCE g_toolkitInstance = nullptr;

// Nothing is undone at detach: the framework ends with the process and has the library object by then.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        if (!AfxInitExtensionModule(g_toolkitModule, instance))
        {
            return 0;
        }
        try
        {
            // Hooks the module into the application's search chain; the framework's list holds it from here on.
            new CDynLinkLibrary(g_toolkitModule);
        }
        catch (CMemoryException * exception)
        {
            // The module then works without its place in the chain.
            exception->Delete();
        }
        g_toolkitInstance = instance;
    }
    return 1;
}
