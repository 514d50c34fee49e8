// A dialog that grows with its controls, remembers its place, is half transparent while inactive, can be dragged by its
// background, and has a popup menu of callables.
#include "Gallery.h"

constexpr int dialog_template = 100, level = 101, note = 102;

class CTriggerDialog : public CDialog3d
{
public:
    CTriggerDialog() : CDialog3d(NO_DLL, dialog_template, nullptr)
    {
        SetGrabAndMove(true);
        DurchsichtigkeitBeiInaktiv(160);
    }

private:
    BOOL OnInitDialog() override
    {
        CDialog3d::OnInitDialog();
        D3dLayoutChild(level, CEdges::TOP_LEFT(), nullptr);
        D3dLayoutChild(note, CEdges::TOP_LEFT_BOTTOM_RIGHT(), nullptr);
        D3dLayoutChild(IDOK, CEdges::BOTTOM_RIGHT(), nullptr);
        D3dLayoutChild(IDCANCEL, CEdges::BOTTOM_RIGHT(), nullptr);
        D3dLayoutComplete(CDialogResizer::RESIZE_BOTH);
        for (wchar_t const * const choice : {L"-6.0", L"-12.0", L"-20.0"})
        {
            SendDlgItemMessage(level, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice));
        }
        SetDlgItemText(level, L"-12.0");
        SetDlgItemText(note, L"A click with the right button on the background opens the popup menu.");
        return TRUE;
    }
    void OnOK() override { DestroyWindow(); }
    void OnCancel() override { DestroyWindow(); }
    afx_msg void OnRButtonUp(UINT, CPoint point)
    {
        CPopupConfig popup;
        popup.Add(L"Loud", [this] { SetDlgItemText(level, L"-6.0"); });
        popup.Add(L"Quiet", [this] { SetDlgItemText(level, L"-20.0"); });
        ClientToScreen(&point);
        ActivatePopup(popup, point.x, point.y);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTriggerDialog, CDialog3d)
    ON_WM_RBUTTONUP()
END_MESSAGE_MAP()

class CDialogsApp : public CGalleryApp
{
    bool OpenWindow() override
    {
        m_pMainWnd = &m_dialog;
        return m_dialog.DisplayDialog() != 0;
    }
    CTriggerDialog m_dialog;
};

CDialogsApp theApp;
