#include "controls/LevelSliderCtrl.h"

#include <memory>

#include "access/ControlTarget.h"
#include "access/NativeEvents.h"
#include "colours/ControlColors.h"
#include "controls/LumaPlatform.h"
#include "controls/SliderLayout.h"
#include "frame/GraphicsScopes.h"
#include "frame/WindowAlive.h"
#include "layout/WindowDpi.h"

namespace
{
constexpr int lighter = 500;
constexpr int darker = -333;
constexpr int main_part = 0;
constexpr int second_part = 1;

void SetVertexColor(TRIVERTEX & vertex, COLORREF color)
{
    vertex.Red = GradientChannel(GetRValue(color));
    vertex.Green = GradientChannel(GetGValue(color));
    vertex.Blue = GradientChannel(GetBValue(color));
}

void Recreate(CBrush & brush, COLORREF color)
{
    brush.DeleteObject();
    brush.CreateSolidBrush(color);
}
} // namespace

IMPLEMENT_DYNAMIC(CLevelSliderCtrl, CSliderCtrl)

BEGIN_MESSAGE_MAP(CLevelSliderCtrl, CSliderCtrl)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CLevelSliderCtrl::OnReflectedCustomDraw)
END_MESSAGE_MAP()

CLevelSliderCtrl::CLevelSliderCtrl() : m_vertices{}, m_gradientRects{}
{
    InitStandardColors();
}

CLevelSliderCtrl::~CLevelSliderCtrl() = default;

void CLevelSliderCtrl::SetMainColor(unsigned long color)
{
    m_ownMainColor = true;
    UseMainColor(color);
}

void CLevelSliderCtrl::UseMainColor(COLORREF color)
{
    m_mainColor = color;
    m_mainLight = AdjustLuma(color, lighter);
    m_mainDark = AdjustLuma(color, darker);
    Recreate(m_mainBrush, m_mainColor);
    Recreate(m_mainLightBrush, m_mainLight);
    SetVertexColor(m_vertices[0], m_mainLight);
    SetVertexColor(m_vertices[1], m_mainDark);
}

void CLevelSliderCtrl::SetSecondColor(unsigned long color)
{
    m_ownSecondColor = true;
    UseSecondColor(color);
}

void CLevelSliderCtrl::UseSecondColor(COLORREF color)
{
    m_secondColor = color;
    m_secondLight = AdjustLuma(color, lighter);
    m_secondDark = AdjustLuma(color, darker);
    Recreate(m_secondBrush, m_secondColor);
    SetVertexColor(m_vertices[2], m_secondLight);
    SetVertexColor(m_vertices[3], m_secondDark);
}

void CLevelSliderCtrl::InitStandardColors()
{
    ControlColors const colors = control_colors::Of(ControlColorSet::standard);
    m_ownMainColor = m_ownSecondColor = m_adapted = false;
    UseMainColor(colors.sliderMain);
    UseSecondColor(colors.sliderSecond);
    for (TRIVERTEX & vertex : m_vertices)
        vertex.Alpha = 0;
    m_gradientRects[main_part] = {0, 1};
    m_gradientRects[second_part] = {2, 3};
}

void CLevelSliderCtrl::FollowSet()
{
    ControlColorSet const set = control_colors::SetOf(m_hWnd);
    bool const adapts = set != ControlColorSet::standard;
    if (!adapts && !m_adapted)
        return;
    m_adapted = adapts;
    ControlColors const colors = control_colors::Of(set);
    if (!m_ownMainColor && m_mainColor != colors.sliderMain)
        UseMainColor(colors.sliderMain);
    if (!m_ownSecondColor && m_secondColor != colors.sliderSecond)
        UseSecondColor(colors.sliderSecond);
}

BOOL CLevelSliderCtrl::SetDpi(UINT dpi)
{
    return window_dpi::SetAndRepaint(*this, m_dpi, dpi);
}

void CLevelSliderCtrl::FollowDpi(BOOL follow)
{
    window_dpi::Follow(*this, m_followsDpi, follow);
}

void CLevelSliderCtrl::PreSubclassWindow()
{
    CSliderCtrl::PreSubclassWindow();
    window_dpi::Begin(*this, m_followsDpi);
}

bool CLevelSliderCtrl::IsVertical() const
{
    return m_hWnd != nullptr && (GetStyle() & TBS_VERT) != 0;
}

void CLevelSliderCtrl::DrawChannel(CDC * dc, CRect & rect)
{
    bool const vertical = IsVertical();
    rect = ThickSliderChannel(rect, vertical);
    int least = 0;
    int greatest = 1;
    int position = 0;
    if (m_hWnd != nullptr)
    {
        // The questions are messages, within which the host may end the object.
        LifeWatch const life(m_lifeSign);
        HWND const window = m_hWnd;
        HDC const context = dc->m_hDC;
        least = static_cast<int>(::SendMessage(window, TBM_GETRANGEMIN, 0, 0));
        greatest = static_cast<int>(::SendMessage(window, TBM_GETRANGEMAX, 0, 0));
        position = static_cast<int>(::SendMessage(window, TBM_GETPOS, 0, 0));
        dc = CDC::FromHandle(context);
        if (life.Over())
        {
            dc->Detach();
            return;
        }
    }
    SliderParts const parts = PartsOfSlider(rect, vertical, SliderFraction(least, greatest, position));
    DrawPart(*dc, parts.main, vertical, main_part, m_mainBrush, m_mainDark, m_mainLight);
    DrawPart(*dc, parts.second, vertical, second_part, m_secondBrush, m_secondDark, m_secondLight);
    dc->Detach();
}

void CLevelSliderCtrl::DrawPart(CDC & dc, CRect const & part, bool vertical, int index, CBrush & brush, COLORREF dark,
                                COLORREF light)
{
    SelectScope const selected(dc, brush.GetSafeHandle());
    GRADIENT_RECT & corners = m_gradientRects[index];
    m_vertices[corners.UpperLeft].x = part.left;
    m_vertices[corners.UpperLeft].y = part.top;
    m_vertices[corners.LowerRight].x = part.right;
    m_vertices[corners.LowerRight].y = part.bottom;
    dc.GradientFill(m_vertices, 4, &corners, 1, vertical ? GRADIENT_FILL_RECT_H : GRADIENT_FILL_RECT_V);
    if (!part.IsRectEmpty()) // there is nothing around no part
        dc.Draw3dRect(part, dark, light);
}

void CLevelSliderCtrl::DrawThumb(CDC * dc, CRect & rect, bool selected)
{
    rect = SlimSliderThumb(rect, IsVertical(), resolution::LineWidth(1, m_dpi));
    {
        CPen pen(PS_SOLID, 1, m_mainDark);
        ContextStateScope const saved(*dc);
        dc->SelectObject(&pen);
        dc->SelectObject(selected ? &m_mainLightBrush : &m_mainBrush);
        if (selected)
        {
            dc->SetBkColor(m_mainColor);
            dc->SetTextColor(m_mainLight);
        }
        int const rounding = resolution::Scaled(2, m_dpi);
        dc->RoundRect(rect, CPoint(rounding, rounding));
    }
    dc->Detach();
}

void CLevelSliderCtrl::OnReflectedCustomDraw(NMHDR * header, LRESULT * result)
{
    auto const & draw = *reinterpret_cast<NMCUSTOMDRAW const *>(header);
    CRect rect(draw.rc);
    switch (draw.dwDrawStage)
    {
    case CDDS_PREPAINT:
        FollowSet();
        *result = CDRF_NOTIFYITEMDRAW | CDRF_NOTIFYPOSTPAINT;
        break;
    case CDDS_ITEMPREPAINT: {
        *result = CDRF_SKIPDEFAULT;
        CDC * const dc = CDC::FromHandle(draw.hdc);
        if (dc == nullptr)
            break;
        if (draw.dwItemSpec == TBCD_THUMB)
            DrawThumb(dc, rect, draw.uItemState != 0);
        else if (draw.dwItemSpec == TBCD_CHANNEL)
            DrawChannel(dc, rect);
        break;
    }
    case CDDS_POSTPAINT:
    case CDDS_ITEMPOSTPAINT:
        *result = CDRF_SKIPDEFAULT;
        break;
    case CDDS_PREERASE:
    case CDDS_POSTERASE:
    case CDDS_ITEMPREERASE:
    case CDDS_ITEMPOSTERASE:
        *result = CDRF_DODEFAULT;
        break;
    default:
        break;
    }
}

// --- What programs that read the screen see ---

class CLevelSliderCtrl::Access final : public ControlTarget
{
public:
    Access(CLevelSliderCtrl & slider, LifeSign const & life) : ControlTarget(slider, life), m_slider(slider) {}

protected:
    accessible::Description DescribeSelf() override
    {
        accessible::ControlFacts const facts = Facts();
        HWND const window = Window();
        auto const least = static_cast<int>(::SendMessageW(window, TBM_GETRANGEMIN, 0, 0));
        auto const greatest = static_cast<int>(::SendMessageW(window, TBM_GETRANGEMAX, 0, 0));
        auto const position = static_cast<int>(::SendMessageW(window, TBM_GETPOS, 0, 0));
        double const fraction = SliderFraction(least, greatest, position);
        // What is below the thumb is the level of one that stands.
        return accessible::DescribeSlider(facts, IsThere() && m_slider.IsVertical() ? 1 - fraction : fraction);
    }

private:
    CLevelSliderCtrl & m_slider;
};

LRESULT CLevelSliderCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (AsksForControl(message, lParam))
        return AnswerWithObject(std::make_shared<Access>(*this, m_lifeSign), wParam);
    window_dpi::Heed(*this, m_followsDpi, message);
    if (!::IsWinEventHookInstalled(EVENT_OBJECT_VALUECHANGE))
        return CSliderCtrl::DefWindowProc(message, wParam, lParam);
    // Straight to the native slider, before and after: not every one tells of its changes.
    WindowAlive const alive(*this, m_lifeSign);
    HWND const window = m_hWnd;
    LRESULT const before = CSliderCtrl::DefWindowProc(TBM_GETPOS, 0, 0);
    LRESULT const result = CSliderCtrl::DefWindowProc(message, wParam, lParam);
    if (alive.IsAlive() && CSliderCtrl::DefWindowProc(TBM_GETPOS, 0, 0) != before)
        TellUnlessNative(EVENT_OBJECT_VALUECHANGE, window, {});
    return result;
}
