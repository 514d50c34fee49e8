#pragma once
// What the extension module offers to its host: two shapes, a text, a dialog.

#include <afxwin.h>

#include "resource.h"

class AFX_EXT_CLASS CShape : public CObject
{
    DECLARE_DYNAMIC(CShape)

public:
    virtual int Area() const = 0;
    virtual CString Name() const = 0;
};

class AFX_EXT_CLASS CSquare : public CShape
{
    DECLARE_DYNCREATE(CSquare)

public:
    int Area() const override { return m_side * m_side; }
    CString Name() const override;

    int m_side = 3;
};

/// Asks for a size; its template lies in the extension module.
class AFX_EXT_CLASS CSizeDialog : public CDialog
{
public:
    explicit CSizeDialog(CWnd * parent = nullptr);

    int m_size = 0; // 1 to 100

protected:
    void DoDataExchange(CDataExchange * pDX) override;

    DECLARE_MESSAGE_MAP()
};
