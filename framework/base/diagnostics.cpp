// Assertions, traces and dumps.

#include "afx.h"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "framework_testing.h"

namespace
{
std::atomic<framework::AssertHandler> s_assertHandler = nullptr;
}

constinit CDumpContext afxDump;

namespace framework
{
AssertHandler SetAssertHandler(AssertHandler handler)
{
    return s_assertHandler.exchange(handler);
}

void TraceText(wchar_t const * text)
{
#if defined(_WIN32)
    ::OutputDebugStringW(text);
#else
    TraceText(CStringA(text).GetString());
#endif
}

void TraceText(char const * text)
{
#if defined(_WIN32)
    ::OutputDebugStringA(text);
#else
    std::fputs(text, stderr);
#endif
}
} // namespace framework

BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine)
{
    framework::AssertHandler const handler = s_assertHandler;
    if (handler != nullptr && handler(lpszFileName, nLine))
        return FALSE;
    CStringA report;
    report.Format("%s(%d): assertion failed\n", lpszFileName, nLine);
    framework::TraceText(report.GetString());
#if defined(_WIN32)
    if (::GetConsoleWindow() == nullptr)
    {
        int const answer = ::MessageBoxA(nullptr, report.GetString(), "Assertion failed",
                                         MB_TASKMODAL | MB_ICONHAND | MB_ABORTRETRYIGNORE | MB_SETFOREGROUND);
        if (answer == IDIGNORE)
            return FALSE;
        if (answer == IDRETRY)
            return TRUE;
    }
    std::fputs(report.GetString(), stderr);
#endif
    AfxAbort();
}

void AFXAPI AfxAssertValidObject(CObject const * pOb, LPCSTR lpszFileName, int nLine)
{
    if (pOb == nullptr)
    {
        if (AfxAssertFailedLine(lpszFileName, nLine))
            AfxDebugBreak();
        return;
    }
    pOb->AssertValid();
}

void AFXAPI AfxDebugBreak()
{
#if defined(_WIN32)
    ::DebugBreak();
#else
    std::raise(SIGTRAP);
#endif
}

void AFXAPI AfxAbort()
{
    std::abort();
}

void AFXAPI AfxDump(CObject const * pOb)
{
    afxDump << pOb;
}

BOOL AFXAPI AfxIsValidAddress(void const * lp, UINT_PTR, BOOL)
{
    // Whether memory may be read can't be asked without changing it.
    return lp != nullptr;
}

BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int)
{
    return lpsz != nullptr;
}

BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, int)
{
    return lpsz != nullptr;
}

void CDumpContext::Flush()
{
    std::fflush(stderr);
}

void CDumpContext::HexDump(LPCTSTR lpszLine, BYTE * pby, int nBytes, int nWidth)
{
    for (int i = 0; i < nBytes; ++i)
    {
        if (nWidth <= 0 || i % nWidth == 0)
            *this << lpszLine;
        CStringA byte;
        byte.Format(" %02X", pby[i]);
        *this << byte.GetString();
        if (i + 1 == nBytes || (nWidth > 0 && (i + 1) % nWidth == 0))
            *this << "\n";
    }
}

CDumpContext & CDumpContext::operator<<(LPCSTR lpsz)
{
    framework::TraceText(lpsz == nullptr ? "NULL" : lpsz);
    return *this;
}

CDumpContext & CDumpContext::operator<<(LPCWSTR lpsz)
{
    framework::TraceText(lpsz == nullptr ? L"NULL" : lpsz);
    return *this;
}

CDumpContext & CDumpContext::operator<<(void const * lp)
{
    CStringA text;
    text.Format("$%p", lp);
    return *this << text.GetString();
}

CDumpContext & CDumpContext::operator<<(CObject const * pOb)
{
    if (pOb == nullptr)
        return *this << "NULL";
    pOb->Dump(*this);
    return *this;
}

CDumpContext & CDumpContext::operator<<(CObject const & ob)
{
    return *this << &ob;
}

CDumpContext & CDumpContext::operator<<(BYTE by)
{
    return *this << static_cast<UINT>(by);
}

CDumpContext & CDumpContext::operator<<(WORD w)
{
    return *this << static_cast<UINT>(w);
}

CDumpContext & CDumpContext::operator<<(int n)
{
    return *this << static_cast<LONGLONG>(n);
}

CDumpContext & CDumpContext::operator<<(UINT u)
{
    return *this << static_cast<ULONGLONG>(u);
}

CDumpContext & CDumpContext::operator<<(long l)
{
    return *this << static_cast<LONGLONG>(l);
}

CDumpContext & CDumpContext::operator<<(unsigned long dw)
{
    return *this << static_cast<ULONGLONG>(dw);
}

CDumpContext & CDumpContext::operator<<(LONGLONG n)
{
    CStringA text;
    text.Format("%I64d", n);
    return *this << text.GetString();
}

CDumpContext & CDumpContext::operator<<(ULONGLONG n)
{
    CStringA text;
    text.Format("%I64u", n);
    return *this << text.GetString();
}

CDumpContext & CDumpContext::operator<<(float f)
{
    return *this << static_cast<double>(f);
}

CDumpContext & CDumpContext::operator<<(double d)
{
    CStringA text;
    text.Format("%g", d);
    return *this << text.GetString();
}

CDumpContext & CDumpContext::operator<<(SIZE size)
{
    return *this << "(" << size.cx << " x " << size.cy << ")";
}

CDumpContext & CDumpContext::operator<<(POINT point)
{
    return *this << "(" << point.x << ", " << point.y << ")";
}

CDumpContext & CDumpContext::operator<<(RECT const & rect)
{
    return *this << "(L " << rect.left << ", T " << rect.top << ", R " << rect.right << ", B " << rect.bottom << ")";
}

CDumpContext & CDumpContext::operator<<(CTime const & time)
{
    return *this << "CTime(" << static_cast<LONGLONG>(time.GetTime()) << ")";
}

CDumpContext & CDumpContext::operator<<(CTimeSpan const & span)
{
    return *this << "CTimeSpan(" << static_cast<LONGLONG>(span.GetTimeSpan()) << ")";
}
