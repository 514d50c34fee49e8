#pragma once
// Bars made from a dialog template. Included by afxext.h.

#include "controlbar.h"

/// A bar with the controls of a dialog template. Their notifications go to the frame.
class FRAMEWORK_API CDialogBar : public CControlBar
{
    DECLARE_DYNAMIC(CDialogBar)

public:
    CDialogBar();
    ~CDialogBar() override;

    virtual BOOL Create(CWnd * pParentWnd, LPCTSTR lpszTemplateName, UINT nStyle, UINT nID);
    virtual BOOL Create(CWnd * pParentWnd, UINT nIDTemplate, UINT nStyle, UINT nID);

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd * pTarget, BOOL bDisableIfNoHndler) override;

private:
    CSize m_sizeTemplate;

    DECLARE_MESSAGE_MAP()
};
