#pragma once
// The names of colours that all colour bars of a program share. The bars themselves are not offered.

#include <afxtempl.h>
#include <afxwin.h>

class FRAMEWORK_API CMFCColorBar
{
public:
    CMFCColorBar() = delete;

    // Names a colour, or gives it another name.
    static void SetColorName(COLORREF color, CString const & strName);

protected:
    static CMap<COLORREF, COLORREF, CString, LPCTSTR> m_ColorNames;
};
