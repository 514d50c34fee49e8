#pragma once
// What a random walk over a list expects of single results (ListWalk.h).

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <numeric>
#include <vector>

#include "list/XListCtrlData.h"
#include "ListReferenceModel.h"

namespace list_walk
{
/// Whether columns were fitted as they must: before and after are their widths.
inline bool FittingIsRight(std::vector<int> const & before, std::vector<int> const & after, int available, int minimum,
                           int preferred)
{
    auto const sum = [](std::vector<int> const & widths) { return std::accumulate(widths.begin(), widths.end(), 0); };
    if (sum(before) == available)
        return after == before;
    int room = available;
    preferred = std::min(preferred, static_cast<int>(before.size()) - 1);
    if (preferred >= 0)
    {
        auto const place = static_cast<std::size_t>(preferred);
        std::vector<int> alone = before;
        alone[place] += available - sum(before);
        if (alone[place] > minimum)
            return after == alone;
        // It goes on from its old width, as hosts expect.
        room += before[place] - (minimum + 1);
    }
    auto const [least, greatest] = std::minmax_element(after.begin(), after.end());
    bool const atMinimum = *greatest <= minimum + 1;
    return *least >= minimum && (sum(after) == room || (atMinimum && sum(after) > room));
}

/// The first field in which a cell is not as expected; null if there is none.
inline char const * DifferentField(XLISTCTRLDATA const & ours, list_reference::Cell const & expected)
{
    char const * different = nullptr;
    auto const check = [&](bool right, char const * field) {
        if (!right && different == nullptr)
            different = field;
    };
    auto const same = [&](auto const & a, auto const & b, char const * field) { check(a == b, field); };

    same(ours.properties, expected.properties, "properties");
    same(ours.valueType, expected.valueType, "valueType");
    same(ours.imageIndex, expected.image, "imageIndex");
    check(expected.tip == ours.toolTipText.GetString(), "toolTipText");
    same(ours.intValue, expected.number, "intValue");
    same(ours.itemData64, expected.data, "itemData64");
    same(reinterpret_cast<std::uintptr_t>(ours.itemDataPtr), expected.pointer, "itemDataPtr");
    check(std::equal(std::begin(ours.idx8), std::end(ours.idx8), expected.key.begin()), "idx8");
    same(static_cast<unsigned>(ours.textColor), expected.textColor, "textColor");
    same(static_cast<unsigned>(ours.backgroundColor), expected.background, "backgroundColor");
    same(static_cast<unsigned>(ours.gradientColor), expected.gradient, "gradientColor");
    same(ours.checkedState, expected.checked, "checkedState");
    check(std::equal(ours.comboStrings.begin(), ours.comboStrings.end(), expected.comboIds.begin(),
                     expected.comboIds.end(), [](auto const & entry, int id) { return entry.first == id; }),
          "comboStrings");
    same(ours.comboSorted, expected.comboSorted, "comboSorted");
    same(ours.comboVisibleItems, expected.comboVisible, "comboVisibleItems");
    same(ours.comboDefaultId, expected.comboDefault, "comboDefaultId");
    same(ours.comboCurrentId, expected.comboCurrent, "comboCurrentId");
    same(ours.progressValue, expected.progress, "progressValue");
    same(ours.progressDisplayValue, expected.progressDisplay, "progressDisplayValue");
    check(expected.progressFormat == ours.progressFormat.GetString(), "progressFormat");
    same(ours.progressShowText, expected.progressText, "progressShowText");
    same(static_cast<bool>(ours.customDraw), expected.painter, "customDraw");
    return different;
}
} // namespace list_walk
