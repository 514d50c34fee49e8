// Memory that runs out: the handler that new asks, and the exception that comes of it.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <new>

namespace
{
/// More than there ever is. Out of the compiler's sight, which would warn.
std::size_t volatile const far_too_much = std::size_t{1} << 62;

int g_asked = 0;

int GiveUpAtTheThird(std::size_t)
{
    if (++g_asked == 3)
        AfxSetNewHandler(AfxNewHandler);
    return 1;
}

int RefuseAtOnce(std::size_t)
{
    ++g_asked;
    return 0;
}

class NewHandler : public testing::Test
{
protected:
    void SetUp() override { g_asked = 0; }
    void TearDown() override { AfxSetNewHandler(AfxNewHandler); }
};
} // namespace

TEST_F(NewHandler, AFailedAllocationThrowsTheMemoryException)
{
    EXPECT_EQ(AfxGetNewHandler(), &AfxNewHandler);
    bool caught = false;
    try
    {
        ::operator delete(::operator new(far_too_much));
    }
    catch (CMemoryException * exception)
    {
        caught = true;
        exception->Delete();
    }
    EXPECT_TRUE(caught);
    EXPECT_EQ(::operator new(far_too_much, std::nothrow), nullptr);
}

TEST_F(NewHandler, IsAskedUntilItGivesUp)
{
    EXPECT_EQ(AfxSetNewHandler(GiveUpAtTheThird), &AfxNewHandler);
    EXPECT_THROW(::operator delete(::operator new(far_too_much)), CMemoryException *);
    EXPECT_EQ(g_asked, 3);
}

TEST_F(NewHandler, OneThatRefusesOrNoneGivesTheStandardException)
{
    AfxSetNewHandler(RefuseAtOnce);
    EXPECT_THROW(::operator delete(::operator new(far_too_much)), std::bad_alloc);
    EXPECT_EQ(g_asked, 1);
    EXPECT_EQ(AfxSetNewHandler(nullptr), &RefuseAtOnce);
    EXPECT_EQ(AfxGetNewHandler(), nullptr);
    EXPECT_THROW(::operator delete(::operator new(far_too_much)), std::bad_alloc);
}
