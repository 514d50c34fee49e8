#pragma once
// What the tests of the report list's cells share.

#include <gtest/gtest.h>

#include "ListTestHost.h"

namespace tests
{
/// Three columns and five rows, painted and with nothing left to paint.
class CellTest : public testing::Test
{
protected:
    CellTest()
    {
        m_host.Fill(3, 5);
        m_list.TakeUpdateRect();
    }

    /// The rectangle that a repaint of the cell covers.
    CRect Around(int row, int col)
    {
        CRect rect;
        if (col >= 0)
            EXPECT_TRUE(m_list.GetSubItemRect(row, col, LVIR_BOUNDS, rect));
        else
            EXPECT_TRUE(m_list.GetItemRect(row, &rect, LVIR_BOUNDS));
        rect.InflateRect(2, 2);
        CRect client;
        m_list.GetClientRect(&client);
        rect.IntersectRect(rect, client);
        return rect;
    }

    /// Adds a column behind the rows, which then have no cell in it.
    int AddLateColumn()
    {
        int const col = m_list.AddColumn(L"late", LVCFMT_LEFT, 30);
        m_list.UpdateWindow();
        m_list.TakeUpdateRect();
        return col;
    }

    ListHost m_host;
    TestList & m_list = m_host.list;
};
} // namespace tests
