// The state of the module that this is linked into.

#include <afxwin.h>

AFX_MODULE_STATE * AFXAPI AfxGetStaticModuleState()
{
    static AFX_MODULE_STATE state([] {
        HMODULE module = nullptr;
        ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            reinterpret_cast<LPCTSTR>(&AfxGetStaticModuleState), &module);
        return module;
    }());
    return &state;
}
