#include "controls/FreeIconButton.h"

#include <memory>

#include "access/ControlTarget.h"
#include "frame/ToolkitResources.h"
#include "layout/StretchedImages.h"
#include "layout/WindowDpi.h"
#include "resources/resource_ids.h"

IMPLEMENT_DYNAMIC(CFreeIconButton, CButton)

BEGIN_MESSAGE_MAP(CFreeIconButton, CButton)
END_MESSAGE_MAP()

CFreeIconButton::CFreeIconButton() : m_icon(LoadToolkitIcon(TOOLKIT_ICON_DISC)) {}

CFreeIconButton::~CFreeIconButton() = default;

BOOL CFreeIconButton::SetDpi(UINT dpi)
{
    return window_dpi::SetAndRepaint(*this, m_dpi, dpi);
}

void CFreeIconButton::FollowDpi(BOOL follow)
{
    window_dpi::Follow(*this, m_followsDpi, follow);
}

void CFreeIconButton::PreSubclassWindow()
{
    CButton::PreSubclassWindow();
    ModifyStyle(0, BS_OWNERDRAW | BS_BITMAP | BS_FLAT);
    window_dpi::Begin(*this, m_followsDpi);
}

void CFreeIconButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    CDC * const dc = item != nullptr ? CDC::FromHandle(item->hDC) : nullptr;
    if (dc == nullptr)
        return;
    dc->SetBkMode(TRANSPARENT);
    if (m_icon == nullptr)
        return;
    if (m_dpi == resolution::usual)
        dc->DrawIcon(0, 0, m_icon);
    else
        DrawStretchedIcon(*dc, m_icon, CPoint(0, 0), UsualIconSize(m_dpi));
}

LRESULT CFreeIconButton::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (AsksForControl(message, lParam))
        return AnswerWithObject(std::make_shared<ButtonTarget>(*this, m_life), wParam);
    window_dpi::Heed(*this, m_followsDpi, message);
    return CButton::DefWindowProc(message, wParam, lParam);
}
