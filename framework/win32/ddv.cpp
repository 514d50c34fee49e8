#include <afxwin.h>
#include <commctrl.h>

#include <cfloat>

#include "detail/DataExchange.h"

namespace framework
{
namespace
{
/// format: of a T, for the limits in the message.
template <class T> void ValidateInteger(CDataExchange * pDX, T value, T minimum, T maximum, LPCTSTR format)
{
    ASSERT(minimum <= maximum);
    if (value >= minimum && value <= maximum)
        return;
    if (!pDX->m_bSaveAndValidate)
    {
        TRACE("a value is out of its range before the dialog shows it\n");
        return;
    }
    CString from;
    from.Format(format, minimum);
    CString to;
    to.Format(format, maximum);
    FailWithPrompt(*pDX, Prompt::integer_range, {from, to});
}

void ValidateReal(CDataExchange * pDX, double value, double minimum, double maximum, int digits)
{
    ASSERT(minimum <= maximum);
    if (value >= minimum && value <= maximum)
        return;
    if (!pDX->m_bSaveAndValidate)
    {
        TRACE("a value is out of its range before the dialog shows it\n");
        return;
    }
    CString from;
    from.Format(_T("%.*g"), digits, minimum);
    CString to;
    to.Format(_T("%.*g"), digits, maximum);
    FailWithPrompt(*pDX, Prompt::real_range, {from, to});
}
} // namespace
} // namespace framework

using framework::Prompt;

void AFXAPI DDV_MinMaxByte(CDataExchange * pDX, BYTE value, BYTE minVal, BYTE maxVal)
{
    framework::ValidateInteger<int>(pDX, value, minVal, maxVal, _T("%d"));
}

void AFXAPI DDV_MinMaxShort(CDataExchange * pDX, short value, short minVal, short maxVal)
{
    framework::ValidateInteger<int>(pDX, value, minVal, maxVal, _T("%d"));
}

void AFXAPI DDV_MinMaxInt(CDataExchange * pDX, int value, int minVal, int maxVal)
{
    framework::ValidateInteger<int>(pDX, value, minVal, maxVal, _T("%d"));
}

void AFXAPI DDV_MinMaxLong(CDataExchange * pDX, long value, long minVal, long maxVal)
{
    framework::ValidateInteger<long>(pDX, value, minVal, maxVal, _T("%ld"));
}

void AFXAPI DDV_MinMaxUInt(CDataExchange * pDX, UINT value, UINT minVal, UINT maxVal)
{
    framework::ValidateInteger<UINT>(pDX, value, minVal, maxVal, _T("%u"));
}

void AFXAPI DDV_MinMaxUnsigned(CDataExchange * pDX, unsigned value, unsigned minVal, unsigned maxVal)
{
    framework::ValidateInteger<unsigned>(pDX, value, minVal, maxVal, _T("%u"));
}

void AFXAPI DDV_MinMaxDWord(CDataExchange * pDX, DWORD const & value, DWORD minVal, DWORD maxVal)
{
    framework::ValidateInteger<DWORD>(pDX, value, minVal, maxVal, _T("%lu"));
}

void AFXAPI DDV_MinMaxLongLong(CDataExchange * pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal)
{
    framework::ValidateInteger<LONGLONG>(pDX, value, minVal, maxVal, _T("%lld"));
}

void AFXAPI DDV_MinMaxULongLong(CDataExchange * pDX, ULONGLONG value, ULONGLONG minVal, ULONGLONG maxVal)
{
    framework::ValidateInteger<ULONGLONG>(pDX, value, minVal, maxVal, _T("%llu"));
}

void AFXAPI DDV_MinMaxFloat(CDataExchange * pDX, float value, float minVal, float maxVal)
{
    framework::ValidateReal(pDX, value, minVal, maxVal, FLT_DIG);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange * pDX, double const & value, double minVal, double maxVal)
{
    framework::ValidateReal(pDX, value, minVal, maxVal, DBL_DIG);
}

void AFXAPI DDV_MinMaxSlider(CDataExchange * pDX, DWORD value, DWORD minVal, DWORD maxVal)
{
    ASSERT(minVal <= maxVal);
    if (!pDX->m_bSaveAndValidate)
    {
        // DDX_Slider has set the position before, and the control cut it to its old range.
        HWND const control = framework::DataExchangeAccess::LastControl(*pDX);
        ::SendMessage(control, TBM_SETRANGEMIN, FALSE, static_cast<LPARAM>(minVal));
        ::SendMessage(control, TBM_SETRANGEMAX, FALSE, static_cast<LPARAM>(maxVal));
        ::SendMessage(control, TBM_SETPOS, TRUE, static_cast<LPARAM>(value));
    }
    framework::ValidateInteger<DWORD>(pDX, value, minVal, maxVal, _T("%lu"));
}

void AFXAPI DDV_MaxChars(CDataExchange * pDX, CString const & value, int nChars)
{
    ASSERT(nChars >= 1);
    if (pDX->m_bSaveAndValidate)
    {
        if (value.GetLength() <= nChars)
            return;
        CString limit;
        limit.Format(_T("%d"), nChars);
        framework::FailWithPrompt(*pDX, Prompt::string_size, {limit});
        return;
    }
    HWND const control = framework::DataExchangeAccess::LastControl(*pDX);
    if (control != nullptr && framework::DataExchangeAccess::LastIsEdit(*pDX))
        ::SendMessage(control, EM_SETLIMITTEXT, static_cast<WPARAM>(nChars), 0);
}
