// Built without UNICODE: must stop with one clear message.

#include <afxwin.h>
