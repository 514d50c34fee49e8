// The drop window's place and size against tables worked out elsewhere (data/combo/make_placements.py).

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "list/combo/DropPlacement.h"

namespace
{
using XListCtrl::DropPlace;
using XListCtrl::DropRequest;
using XListCtrl::GripRequest;
using XListCtrl::GripResult;

using Line = std::vector<int>;

std::vector<Line> Table(std::string const & name)
{
    std::ifstream file(std::string(TEST_DATA_DIR) + "/combo/" + name);
    std::string text;
    std::getline(file, text); // the names
    std::vector<Line> lines;
    while (std::getline(file, text))
    {
        std::istringstream stream(text);
        Line line;
        for (int number = 0; stream >> number;)
            line.push_back(number);
        lines.push_back(line);
    }
    return lines;
}

DropRequest RequestOf(Line const & line)
{
    DropRequest request;
    std::size_t field = 0;
    for (int * const member :
         {&request.x, &request.y, &request.cx, &request.comboWidth, &request.comboHeight, &request.workRight,
          &request.workBottom, &request.itemCount, &request.itemHeight, &request.widestText, &request.maxVisible,
          &request.minVisible, &request.listWidth, &request.scrollWidth, &request.arrowHeight})
    {
        *member = line.at(field++);
    }
    return request;
}

DropRequest Roomy()
{
    DropRequest request;
    request.x = 100;
    request.y = 200;
    request.cx = request.comboWidth = 150;
    request.comboHeight = 20;
    request.workRight = 1280;
    request.workBottom = 1024;
    request.itemHeight = 16;
    request.minVisible = 5;
    request.listWidth = 133;
    request.scrollWidth = request.arrowHeight = 17;
    return request;
}
} // namespace

namespace XListCtrl
{
void PrintTo(DropPlace const & place, std::ostream * out)
{
    *out << place.x << ", " << place.y << ", " << place.width << " x " << place.height;
}
} // namespace XListCtrl

TEST(ComboPlacement, StandsWhereTheTableSays)
{
    std::vector<Line> const table = Table("placements.tsv");
    ASSERT_GE(table.size(), 200u);
    for (std::size_t i = 0; i < table.size(); ++i)
    {
        Line const & line = table[i];
        ASSERT_EQ(line.size(), 19u);
        EXPECT_EQ(XListCtrl::PlaceDrop(RequestOf(line)), (DropPlace{line[15], line[16], line[17], line[18]}))
            << "line " << i + 2;
    }
}

TEST(ComboPlacement, ShowsAllItemsWhereThereIsRoom)
{
    DropRequest request = Roomy();
    request.itemCount = 10;
    EXPECT_EQ(XListCtrl::PlaceDrop(request), (DropPlace{100, 200, 150, 162}));
}

TEST(ComboPlacement, ShowsNoMoreItemsThanAllowed)
{
    DropRequest request = Roomy();
    request.itemCount = 5;
    request.maxVisible = 3;
    EXPECT_EQ(XListCtrl::PlaceDrop(request).height, 3 * 16 + 2);
    request.maxVisible = 8;
    EXPECT_EQ(XListCtrl::PlaceDrop(request).height, 5 * 16 + 2);
}

TEST(ComboPlacement, OpensUpwardsToTheScreensTopAtMost)
{
    DropRequest request = Roomy();
    request.itemCount = 10;
    request.y = 1024 - 5 * 16 + 1;
    EXPECT_EQ(XListCtrl::PlaceDrop(request), (DropPlace{100, request.y - 20 - 162, 150, 162}));
    request.itemCount = 100;
    EXPECT_EQ(XListCtrl::PlaceDrop(request), (DropPlace{100, 0, 150, request.y - 20}));
}

TEST(ComboPlacement, EndsAtTheWorkAreasRightEdge)
{
    DropRequest request = Roomy();
    request.itemCount = 1;
    request.x = 1200;
    DropPlace const place = XListCtrl::PlaceDrop(request);
    EXPECT_EQ(place.x + place.width, 1280);
}

TEST(ComboPlacement, StandsAListWithoutRowHeight)
{
    DropRequest request = Roomy();
    request.itemHeight = 0;
    request.itemCount = 4;
    request.maxVisible = 0x7FFFFFFF;
    EXPECT_EQ(XListCtrl::PlaceDrop(request).height, 17);
}

TEST(ComboPlacement, GripSizesAsTheTableSays)
{
    std::vector<Line> const table = Table("grips.tsv");
    ASSERT_GE(table.size(), 100u);
    for (std::size_t i = 0; i < table.size(); ++i)
    {
        Line const & line = table[i];
        ASSERT_EQ(line.size(), 11u);
        GripRequest const request = {line[0], line[1], line[2], line[3], line[4], line[5], line[6], line[7], line[8]};
        EXPECT_EQ(XListCtrl::SizeByGrip(request), (GripResult{line[9], line[10]})) << "line " << i + 2;
    }
}
