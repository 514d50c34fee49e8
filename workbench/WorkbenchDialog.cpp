#include "WorkbenchDialog.h"

#include <algorithm>

#include "TemplateTexts.h"

BEGIN_MESSAGE_MAP(CWorkbenchDialog, CDialog3d)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CWorkbenchDialog::CWorkbenchDialog(UINT templateId, wchar_t const * name, CWnd & owner)
    : CDialog3d(NO_DLL, templateId, &owner),
      m_template(templateId),
      m_owner(owner)
{
    SetGenuineTitle(name);
}

void BringOntoScreen(CWnd & window)
{
    CRect place;
    window.GetWindowRect(&place);
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    if (!::GetMonitorInfoW(::MonitorFromWindow(window.m_hWnd, MONITOR_DEFAULTTONEAREST), &screen))
    {
        return;
    }
    CRect const work(screen.rcWork);
    CPoint const corner(std::max<int>(work.left, std::min<int>(place.left, work.right - place.Width())),
                        std::max<int>(work.top, std::min<int>(place.top, work.bottom - place.Height())));
    if (corner != place.TopLeft())
    {
        window.SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

/// Opens with its owner, which the base class gives to modal dialogs alone.
int CWorkbenchDialog::DisplayDialog()
{
    return IsOpen() ? 1 : Create(m_template, &m_owner);
}

void CWorkbenchDialog::SetTitle(CString const & title)
{
    // Before the first opening the title would become the name, too.
    CString const name = GetGenuineTitle();
    SetDialogTitle(title);
    SetGenuineTitle(name);
}

void CWorkbenchDialog::ShowTemplateTexts(CString const & title)
{
    if (IsOpen())
    {
        SetTitle(title);
        SetWindowText(title);
        workbench::ShowTemplateTexts(*this, m_template);
    }
}

bool CWorkbenchDialog::Open(CString const & title)
{
    SetTitle(title);
    bool const opened = !IsOpen();
    if (opened)
    {
        // Activation would make a dialog opaque that is transparent while inactive, and so end its fading in.
        DurchsichtigkeitBeiInaktiv(255);
    }
    if (DisplayDialog() == 0)
    {
        return false;
    }
    if (opened)
    {
        BringOntoScreen(*this);
    }
    ShowWindow(SW_SHOW);
    SetActiveWindow();
    DurchsichtigkeitBeiInaktiv(m_alphaWhileInactive);
    if (opened && m_onOpened)
    {
        m_onOpened(*this, true);
    }
    return true;
}

void CWorkbenchDialog::Follow(workbench::Settings const & settings)
{
    m_fadeInOnCreate = settings.fadeIn;
    SetGrabAndMove(settings.dragByBackground);
    m_alphaWhileInactive = settings.InactiveAlpha();
    if (IsOpen())
    {
        DurchsichtigkeitBeiInaktiv(m_alphaWhileInactive);
    }
}

void CWorkbenchDialog::Enlarge(CSize size)
{
    MINMAXINFO design{};
    SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&design));
    CRect window;
    GetWindowRect(&window);
    CRect client;
    GetClientRect(&client);
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    bool const isStored = window.Width() > design.ptMinTrackSize.x || window.Height() > design.ptMinTrackSize.y;
    if (isStored || !::GetMonitorInfoW(::MonitorFromWindow(m_hWnd, MONITOR_DEFAULTTONEAREST), &screen))
    {
        return;
    }
    CRect wanted(CPoint(0, 0), size);
    MapDialogRect(&wanted);
    CRect const work(screen.rcWork);
    auto const width =
        std::min<int>(std::max(wanted.Width(), client.Width()) + window.Width() - client.Width(), work.Width());
    auto const height =
        std::min<int>(std::max(wanted.Height(), client.Height()) + window.Height() - client.Height(), work.Height());
    // Around the middle that it has.
    long const left = window.CenterPoint().x - width / 2;
    long const top = window.CenterPoint().y - height / 2;
    SetWindowPos(nullptr, std::clamp<int>(left, work.left, work.right - width),
                 std::clamp<int>(top, work.top, work.bottom - height), width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWorkbenchDialog::OnOK()
{
    OnCancel();
}

void CWorkbenchDialog::OnCancel()
{
    DestroyWindow();
}

void CWorkbenchDialog::OnDestroy()
{
    if (m_onOpened)
    {
        m_onOpened(*this, false);
    }
    CDialog3d::OnDestroy();
}
