#include "StarRating.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>

#include "DrawingScopes.h"
#include "frame/RegisteredMessages.h"

namespace
{
// Pixels at the usual resolution.
constexpr int padding = 5; // ahead of the first star
constexpr int gap = 1;     // and between two

int StarSize(CRect const & cell)
{
    return std::max(cell.Height() * 2 / 3, 1);
}

/// Five tips, and the corners between them.
void DrawStar(CDC & dc, CRect const & place)
{
    constexpr double corner = 0.45; // of the way from the middle to a tip
    POINT points[10];
    double const radius = place.Width() / 2.0;
    double angle = -std::numbers::pi / 2;
    bool isTip = true;
    for (POINT & point : points)
    {
        double const distance = isTip ? radius : radius * corner;
        point.x = static_cast<LONG>(std::lround(place.left + radius + distance * std::cos(angle)));
        point.y = static_cast<LONG>(std::lround(place.top + radius + distance * std::sin(angle)));
        angle += std::numbers::pi / 5;
        isTip = !isTip;
    }
    dc.Polygon(points, static_cast<int>(std::size(points)));
}
} // namespace

CRect CStarRating::StarRect(CRect const & cell, int star) const
{
    int const size = StarSize(cell);
    CPoint const corner(cell.left + Scaled(padding) + star * (size + Scaled(gap)),
                        cell.top + (cell.Height() - size) / 2);
    return CRect(corner, CSize(size, size));
}

void CStarRating::Paint(XLISTCTRLDATA const & cell, CDC & dc, CRect const & rect, COLORREF text, COLORREF background)
{
    // Stars with lines that are rounded up look full.
    CPen pen(PS_SOLID, std::max(m_dotsPerInch / USER_DEFAULT_SCREEN_DPI, 1), text);
    CBrush full(text);
    CBrush empty(background);
    ContextStateScope const saved(dc);
    dc.FillSolidRect(rect, background);
    dc.IntersectClipRect(rect);
    dc.SelectObject(&pen);
    for (int star = 0; star < star_count; ++star)
    {
        dc.SelectObject(star < StarsOf(cell.comboCurrentId) ? &full : &empty);
        DrawStar(dc, StarRect(rect, star));
    }
}

CXListCellKind::Change CStarRating::Rate(XLISTCTRLDATA & cell, int stars)
{
    cell.comboCurrentId = RatingOf(stars);
    auto const word = cell.comboStrings.find(cell.comboCurrentId);
    return {WM_XLISTCTRL_COMBO_SELECTION,
            word != cell.comboStrings.end() ? std::optional(CString(word->second)) : std::nullopt};
}

std::optional<CXListCellKind::Change> CStarRating::Press(XLISTCTRLDATA & cell, CRect const & rect, CPoint point)
{
    for (int star = 0; star < star_count; ++star)
    {
        if (StarRect(rect, star).PtInRect(point))
        {
            bool const isPresent = StarsOf(cell.comboCurrentId) == star + 1;
            return Rate(cell, isPresent ? 0 : star + 1);
        }
    }
    return {};
}

std::optional<CXListCellKind::Change> CStarRating::Key(XLISTCTRLDATA & cell, unsigned int key)
{
    // Digits alone look for names.
    auto const stars = static_cast<int>(key) - '0';
    if (stars < 0 || stars > star_count || ::GetKeyState(VK_CONTROL) >= 0 || ::GetKeyState(VK_SHIFT) >= 0)
    {
        return {};
    }
    return Rate(cell, stars);
}

std::optional<long long> CStarRating::SortValue(XLISTCTRLDATA const & cell) const
{
    return StarsOf(cell.comboCurrentId);
}
