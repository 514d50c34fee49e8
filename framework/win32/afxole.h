#pragma once
// Programs that offer or hold objects of other programs are not supported; what is left of OLE is in afxdisp.h.

#define __AFXOLE_H__

#include <afxdisp.h>
