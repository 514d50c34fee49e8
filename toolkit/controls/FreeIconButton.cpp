#include "controls/FreeIconButton.h"

#include <memory>

#include "access/ControlTarget.h"
#include "frame/ToolkitResources.h"
#include "resources/resource_ids.h"

IMPLEMENT_DYNAMIC(CFreeIconButton, CButton)

BEGIN_MESSAGE_MAP(CFreeIconButton, CButton)
END_MESSAGE_MAP()

CFreeIconButton::CFreeIconButton() : m_icon(LoadToolkitIcon(TOOLKIT_ICON_DISC)) {}

CFreeIconButton::~CFreeIconButton() = default;

void CFreeIconButton::PreSubclassWindow()
{
    CButton::PreSubclassWindow();
    ModifyStyle(0, BS_OWNERDRAW | BS_BITMAP | BS_FLAT);
}

void CFreeIconButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    CDC * const dc = item != nullptr ? CDC::FromHandle(item->hDC) : nullptr;
    if (dc == nullptr)
        return;
    dc->SetBkMode(TRANSPARENT);
    if (m_icon != nullptr)
        dc->DrawIcon(0, 0, m_icon);
}

LRESULT CFreeIconButton::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (AsksForControl(message, lParam))
        return AnswerWithObject(std::make_shared<ButtonTarget>(*this, m_life), wParam);
    return CButton::DefWindowProc(message, wParam, lParam);
}
