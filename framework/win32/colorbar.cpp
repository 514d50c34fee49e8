#include "afxcolorbar.h"

CMap<COLORREF, COLORREF, CString, LPCTSTR> CMFCColorBar::m_ColorNames;

void CMFCColorBar::SetColorName(COLORREF color, CString const & strName)
{
    m_ColorNames.SetAt(color, strName);
}
