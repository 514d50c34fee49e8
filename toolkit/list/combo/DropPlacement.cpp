#include "list/combo/DropPlacement.h"

#include <algorithm>

#include "layout/Resolution.h"

namespace XListCtrl
{
namespace
{
/// The list's border, above and below.
constexpr int border_height = 2;
constexpr int text_margin = 8;

void PlaceVertically(DropRequest const & request, DropPlace & place)
{
    int const rowHeight = std::max(request.itemHeight, 1);
    int const natural = rowHeight * request.itemCount + border_height;
    bool const isLimited = request.maxVisible != -1 && request.maxVisible <= request.itemCount;
    int const limited = isLimited ? rowHeight * request.maxVisible : 0;
    int const room = request.workBottom - request.y;

    place.y = request.y;
    if (room / rowHeight < request.minVisible)
    {
        int const bottom = request.y - request.comboHeight;
        place.y = std::max(bottom - (isLimited ? limited + border_height : natural), 0);
        place.height = isLimited ? bottom - place.y : std::min(natural, bottom - place.y);
    }
    else if (isLimited)
    {
        place.height = std::min(limited, room) + border_height;
    }
    else if (natural <= room)
    {
        place.height = std::max(natural, request.arrowHeight);
    }
    else
    {
        place.height = room;
    }
}

void PlaceHorizontally(DropRequest const & request, DropPlace & place)
{
    place.width = request.widestText + request.scrollWidth + resolution::Scaled(text_margin, request.dpi);
    if (place.width < request.listWidth)
        place.width = request.cx;
    place.width = std::max(place.width, request.comboWidth);

    place.x = request.x;
    if (place.width > request.workRight - request.x)
        place.x = request.workRight - place.width;
    if (place.x == 0 && place.width > request.workRight)
        place.width = request.workRight;
}
} // namespace

DropPlace PlaceDrop(DropRequest const & request)
{
    DropPlace place;
    PlaceVertically(request, place);
    PlaceHorizontally(request, place);
    return place;
}

GripResult SizeByGrip(GripRequest const & request)
{
    GripResult result;
    long long const width = request.width < request.comboWidth
                                ? request.comboWidth
                                : std::min(static_cast<long long>(request.width), request.maxWidth);
    result.right = static_cast<int>(request.left + width);
    if (request.height < request.arrowHeight)
        result.bottom = request.top + request.arrowWidth + 1; // the width, as hosts expect
    else if (request.height > request.maxHeight)
        result.bottom = static_cast<int>(request.top + request.maxHeight);
    else
        result.bottom = request.top + request.height + 2;
    return result;
}
} // namespace XListCtrl
