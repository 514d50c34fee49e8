// Memory that runs out inside the module.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdlib>

#include "ImportPatch.h"
#include "segments/LedTextAnzeiger.h"

namespace
{
std::size_t g_limit = 0;
int g_refused = 0;

/// Memory for small blocks only.
void * LimitedMalloc(std::size_t size)
{
    if (size < g_limit)
        return std::malloc(size);
    ++g_refused;
    return nullptr;
}

class Display : public CLedTextAnzeiger
{
public:
    using CLedTextAnzeiger::m_capacity;
    using CLedTextAnzeiger::m_charCount;
    using CLedTextAnzeiger::m_text;
};
} // namespace

TEST(FailingMemory, OfTheModuleReachesTheHostAsTheFrameworksException)
{
    Display display;
    display.SetText(L"12");
    CString const text(L'8', 10000);
    {
        // The array of ten thousand pointers alone is that large.
        g_limit = 10000 * sizeof(void *);
        tests::ImportPatch const patch(L"libstdc++-6.dll", "malloc", &LimitedMalloc);
        ASSERT_TRUE(patch.Done());
        bool caught = false;
        try
        {
            display.SetText(text);
        }
        catch (CMemoryException * exception)
        {
            caught = true;
            exception->Delete();
        }
        EXPECT_TRUE(caught);
        EXPECT_EQ(g_refused, 1);
    }
    EXPECT_EQ(display.m_capacity, 20U);
    EXPECT_EQ(display.m_charCount, 0U);
    EXPECT_EQ(display.TextWidht(), 0U);
    display.SetText(text);
    EXPECT_EQ(display.m_charCount, 10000U) << "the same text once more";
    EXPECT_EQ(display.m_capacity, 10020U);
    EXPECT_EQ(display.TextWidht(), 490000U);
}
