#include "frame/ToolkitResources.h"

#include "frame/ToolkitModule.h"

CToolkitResourceExchange::CToolkitResourceExchange() : m_former(AfxGetResourceHandle())
{
    AfxSetResourceHandle(g_toolkitModule.hModule);
}

CToolkitResourceExchange::~CToolkitResourceExchange()
{
    AfxSetResourceHandle(m_former);
}

HICON LoadToolkitIcon(UINT id)
{
    CToolkitResourceExchange const exchange;
    LPCWSTR const name = MAKEINTRESOURCEW(id);
    return ::LoadIconW(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
}

HMENU LoadToolkitMenu(UINT id)
{
    CToolkitResourceExchange const exchange;
    LPCWSTR const name = MAKEINTRESOURCEW(id);
    return ::LoadMenuW(AfxFindResourceHandle(name, RT_MENU), name);
}

CString LoadToolkitString(UINT id)
{
    CToolkitResourceExchange const exchange;
    CString text;
    if (text.LoadString(id))
        return text;
    // The system looks for a block of sixteen texts in the order of languages, and not for each of them.
    return text.LoadString(g_toolkitModule.hModule, id, MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US)) ? text
                                                                                                      : CString();
}
