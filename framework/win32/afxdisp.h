#pragma once
// What programs without objects of other programs use of OLE: its start, and its times.

#define __AFXDISP_H__

#include <afxwin.h>
#include <atlcomtime.h>

/// Starts OLE for the thread, until the program's end. FALSE where another model has been started there.
FRAMEWORK_API BOOL AFXAPI AfxOleInit();
FRAMEWORK_API void AFXAPI AfxOleTerm(BOOL bJustRevoke = FALSE);

namespace framework
{
/// Windows here hold no controls of other programs, so there is nothing to prepare.
inline void EnableControlContainer() {}
} // namespace framework

#define AfxEnableControlContainer ::framework::EnableControlContainer
