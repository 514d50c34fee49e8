#include <gtest/gtest.h>

#include "list_StandIn.h"
#include "ListWalk.h"

namespace
{
class ListWalk : public testing::TestWithParam<unsigned>
{
};

TEST_P(ListWalk, FollowsTheReferenceModelFor100000Operations)
{
    ListStandIn list;
    EXPECT_EQ(list_walk::Run(list, GetParam(), 100000), "");
}

INSTANTIATE_TEST_SUITE_P(Seeds, ListWalk, testing::Values(1u, 20u, 300u));

/// A list that forgets the modified bit of a link, to see that a walk notices.
class ForgetfulList : public ListStandIn
{
public:
    void SetModified(int row, int column, bool on)
    {
        if (!GetItemProperty(row, column, XLP_LINK))
            ListStandIn::SetModified(row, column, on);
    }
};

TEST(ListWalkCheck, NoticesARareMistake)
{
    ForgetfulList list;
    std::string const difference = list_walk::Run(list, 6u, 100000);
    EXPECT_NE(difference.find("SetModified: properties"), std::string::npos) << difference;
}
} // namespace
