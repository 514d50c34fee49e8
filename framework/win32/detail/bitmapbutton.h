#pragma once
// A push button that shows pictures.

#include "gdi.h"
#include "stdctrls.h"

class FRAMEWORK_API CBitmapButton : public CButton
{
    DECLARE_DYNAMIC(CBitmapButton)

public:
    CBitmapButton();
    ~CBitmapButton() override;

    BOOL LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = nullptr,
                     LPCTSTR lpszBitmapResourceFocus = nullptr, LPCTSTR lpszBitmapResourceDisabled = nullptr);
    BOOL LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0, UINT nIDBitmapResourceFocus = 0,
                     UINT nIDBitmapResourceDisabled = 0);
    BOOL AutoLoad(UINT nID, CWnd * pParent);
    void SizeToContent();

protected:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

private:
    CBitmap m_bitmap;
    CBitmap m_bitmapSel;
    CBitmap m_bitmapFocus;
    CBitmap m_bitmapDisabled;
};
