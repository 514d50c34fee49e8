#include <afxwin.h>
#include <commctrl.h>

#include <cerrno>
#include <cfloat>
#include <cwchar>
#include <limits>

#include "detail/DataExchange.h"

CDataExchange::CDataExchange(CWnd * pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate),
      m_pDlgWnd(pDlgWnd)
{
    ASSERT(pDlgWnd != nullptr);
}

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    ASSERT(nIDC != 0 && nIDC != -1);
    HWND const control = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), nIDC);
    if (control == nullptr)
    {
        TRACE("no control with the identifier %d\n", nIDC);
        AfxThrowNotSupportedException();
    }
    m_lastControl = control;
    m_lastIsEdit = false;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    HWND const control = PrepareCtrl(nIDC);
    m_lastIsEdit = true;
    return control;
}

void CDataExchange::Fail()
{
    if (!m_bSaveAndValidate)
        TRACE("CDataExchange::Fail outside validation\n");
    else if (m_lastControl != nullptr)
    {
        ::SetFocus(m_lastControl);
        if (m_lastIsEdit)
            ::SendMessage(m_lastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

namespace framework
{
namespace
{
LPCTSTR EnglishPrompt(Prompt prompt)
{
    switch (prompt)
    {
    case Prompt::parse_integer:
        return _T("Please enter an integer.");
    case Prompt::parse_real:
        return _T("Please enter a number.");
    case Prompt::integer_range:
        return _T("Please enter an integer between %1 and %2.");
    case Prompt::real_range:
        return _T("Please enter a number between %1 and %2.");
    case Prompt::string_size:
        return _T("Please enter no more than %1 characters.");
    case Prompt::radio_button:
        return _T("Please select a button.");
    case Prompt::parse_byte:
        return _T("Please enter an integer between 0 and 255.");
    case Prompt::parse_unsigned:
        return _T("Please enter a positive integer.");
    }
    return _T("");
}

wchar_t const * SkipSpace(wchar_t const * text)
{
    while (*text == L' ' || *text == L'\t')
        ++text;
    return text;
}

/// Whether the whole text is one decimal number, blanks around it allowed.
bool ParseSigned(LPCTSTR text, long & value)
{
    text = SkipSpace(text);
    wchar_t * end = nullptr;
    errno = 0;
    value = std::wcstol(text, &end, 10);
    return end != text && *SkipSpace(end) == 0 && errno != ERANGE;
}

bool ParseUnsigned(LPCTSTR text, unsigned long & value)
{
    text = SkipSpace(text);
    if (*text == L'-') // wcstoul would wrap it round
        return false;
    wchar_t * end = nullptr;
    errno = 0;
    value = std::wcstoul(text, &end, 10);
    return end != text && *SkipSpace(end) == 0 && errno != ERANGE;
}

bool ParseReal(LPCTSTR text, double & value)
{
    text = SkipSpace(text);
    bool const numeric = *text != 0 && std::wcschr(L"+-.0123456789", *text) != nullptr; // no "inf", no "nan"
    wchar_t * end = nullptr;
    value = std::wcstod(text, &end);
    return numeric && end != text && *SkipSpace(end) == 0 && value <= DBL_MAX && value >= -DBL_MAX;
}

template <class T> void ExchangeSigned(CDataExchange * pDX, int nIDC, T & value)
{
    HWND const control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate)
    {
        CString text;
        text.Format(_T("%ld"), static_cast<long>(value));
        SetTextOf(control, text);
        return;
    }
    long parsed = 0;
    if (!ParseSigned(TextOf(control), parsed) || parsed < std::numeric_limits<T>::min() ||
        parsed > std::numeric_limits<T>::max())
    {
        FailWithPrompt(*pDX, Prompt::parse_integer);
    }
    value = static_cast<T>(parsed);
}

template <class T> void ExchangeUnsigned(CDataExchange * pDX, int nIDC, T & value, Prompt prompt)
{
    HWND const control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate)
    {
        CString text;
        text.Format(_T("%lu"), static_cast<unsigned long>(value));
        SetTextOf(control, text);
        return;
    }
    unsigned long parsed = 0;
    if (!ParseUnsigned(TextOf(control), parsed) || parsed > std::numeric_limits<T>::max())
        FailWithPrompt(*pDX, prompt);
    value = static_cast<T>(parsed);
}

template <class T> void ExchangeReal(CDataExchange * pDX, int nIDC, T & value, int digits)
{
    HWND const control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate)
    {
        CString text;
        text.Format(_T("%.*g"), digits, static_cast<double>(value));
        SetTextOf(control, text);
        return;
    }
    double parsed = 0;
    if (!ParseReal(TextOf(control), parsed) || parsed > std::numeric_limits<T>::max() ||
        parsed < std::numeric_limits<T>::lowest())
    {
        FailWithPrompt(*pDX, Prompt::parse_real);
    }
    value = static_cast<T>(parsed);
}
} // namespace

CString PromptText(Prompt prompt, std::initializer_list<CString> arguments)
{
    CString text;
    if (!text.LoadString(static_cast<UINT>(prompt)))
        text = EnglishPrompt(prompt);
    int number = 0;
    for (CString const & argument : arguments)
    {
        CString place;
        place.Format(_T("%%%d"), ++number);
        text.Replace(place, argument);
    }
    return text;
}

void FailWithPrompt(CDataExchange & exchange, Prompt prompt, std::initializer_list<CString> arguments)
{
    {
        CString const text = PromptText(prompt, arguments); // gone before the exception goes
        AfxMessageBox(text, MB_ICONEXCLAMATION, static_cast<UINT>(prompt));
    }
    exchange.Fail();
}

CString TextOf(HWND window)
{
    int const length = ::GetWindowTextLength(window);
    CString text;
    ::GetWindowText(window, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

void SetTextOf(HWND window, LPCTSTR text)
{
    if (TextOf(window) != text)
        ::SetWindowText(window, text);
}
} // namespace framework

using framework::Prompt;

void AFXAPI DDX_Control(CDataExchange * pDX, int nIDC, CWnd & rControl)
{
    if (rControl.GetSafeHwnd() != nullptr)
        return;
    ASSERT(!pDX->m_bSaveAndValidate);
    if (!rControl.SubclassWindow(pDX->PrepareCtrl(nIDC)))
    {
        ASSERT(FALSE); // the object of a control can be attached once
        AfxThrowNotSupportedException();
    }
}

void AFXAPI DDX_Text(CDataExchange * pDX, int nIDC, BYTE & value)
{
    framework::ExchangeUnsigned(pDX, nIDC, value, Prompt::parse_byte);
}

void AFXAPI DDX_Text(CDataExchange * pDX, int nIDC, short & value)
{
    framework::ExchangeSigned(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange * pDX, int nIDC, int & value)
{
    framework::ExchangeSigned(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange * pDX, int nIDC, UINT & value)
{
    framework::ExchangeUnsigned(pDX, nIDC, value, Prompt::parse_unsigned);
}

void AFXAPI DDX_Text(CDataExchange * pDX, int nIDC, long & value)
{
    framework::ExchangeSigned(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange * pDX, int nIDC, DWORD & value)
{
    framework::ExchangeUnsigned(pDX, nIDC, value, Prompt::parse_unsigned);
}

void AFXAPI DDX_Text(CDataExchange * pDX, int nIDC, CString & value)
{
    HWND const control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = framework::TextOf(control);
    else
        framework::SetTextOf(control, value);
}

void AFXAPI DDX_Text(CDataExchange * pDX, int nIDC, float & value)
{
    framework::ExchangeReal(pDX, nIDC, value, FLT_DIG);
}

void AFXAPI DDX_Text(CDataExchange * pDX, int nIDC, double & value)
{
    framework::ExchangeReal(pDX, nIDC, value, DBL_DIG);
}
