// The start and end of OLE.

#include <afxdisp.h>
#include <ole2.h>

namespace
{
thread_local bool s_started = false;
}

BOOL AFXAPI AfxOleInit()
{
    if (s_started)
        return TRUE;
    s_started = SUCCEEDED(::OleInitialize(nullptr));
    return s_started;
}

void AFXAPI AfxOleTerm(BOOL bJustRevoke)
{
    // Nothing is registered that could be revoked.
    if (bJustRevoke || !s_started)
        return;
    s_started = false;
    ::OleUninitialize();
}
