#include "frame/CoreLibrary.h"

#include <afxwin.h>

namespace
{
HINSTANCE ApplicationInstance()
{
    CWinApp const * const application = AfxGetApp();
    return application != nullptr && application->m_hInstance != nullptr ? application->m_hInstance
                                                                         : ::GetModuleHandleW(nullptr);
}

CString DateText(SYSTEMTIME const & time)
{
    int const length = ::GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, nullptr, 0);
    CString text;
    if (length > 0)
    {
        ::GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, text.GetBuffer(length), length);
        text.ReleaseBuffer();
    }
    return text;
}

CString TimeText(SYSTEMTIME const & time, DWORD flags)
{
    int const length = ::GetTimeFormatW(LOCALE_USER_DEFAULT, flags, &time, nullptr, nullptr, 0);
    CString text;
    if (length > 0)
    {
        ::GetTimeFormatW(LOCALE_USER_DEFAULT, flags, &time, nullptr, text.GetBuffer(length), length);
        text.ReleaseBuffer();
    }
    return text;
}
} // namespace

CResourceModuleScope::CResourceModuleScope(HINSTANCE module) : m_former(AfxGetResourceHandle())
{
    AfxSetResourceHandle(module != nullptr ? module : ApplicationInstance());
}

CResourceModuleScope::~CResourceModuleScope()
{
    AfxSetResourceHandle(m_former);
}

CString SystemErrorText(unsigned long code)
{
    wchar_t * buffer = nullptr;
    DWORD const length =
        ::FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                         nullptr, code, 0, reinterpret_cast<wchar_t *>(&buffer), 0, nullptr);
    CString text;
    if (length == 0)
    {
        text.Format(L"0x%08lX", code);
        return text;
    }
    text = CString(buffer, static_cast<int>(length));
    ::LocalFree(buffer);
    text.TrimRight();
    return text;
}

CString UserDateTimeText(CTime time, dtf_style_t style)
{
    SYSTEMTIME parts{};
    if (!time.GetAsSystemTime(parts))
        return CString();
    switch (style)
    {
    case dtf_date:
        return DateText(parts);
    case dtf_date_time:
        return DateText(parts) + L" " + TimeText(parts, 0);
    case dtf_date_time_without_seconds:
        return DateText(parts) + L" " + TimeText(parts, TIME_NOSECONDS);
    case dtf_time:
        return TimeText(parts, 0);
    case dtf_time_without_seconds:
        return TimeText(parts, TIME_NOSECONDS);
    }
    return CString();
}
