#pragma once
// A header on its own, without a list, that lets a test at its painting.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Bitmap.h"
#include "list/XHeaderCtrl.h"
#include "list/XListCtrlData.h"
#include "ScopedWindow.h"

namespace list_header
{
inline constexpr int header_height = 24;
inline constexpr int header_width = 200;
inline constexpr int spacing = 6;
inline constexpr int box_size = 13;
inline constexpr COLORREF frame_color = 0x996633;

class TestHeader : public CXHeaderCtrl
{
public:
    using CXHeaderCtrl::DrawHeaderItem;
    using CXHeaderCtrl::DrawItemBitmap;
    using CXHeaderCtrl::DrawItemImage;
    using CXHeaderCtrl::DrawItemText;
    using CXHeaderCtrl::PaintHeader;
};

/// The header in a parent of its own. The header object is the derived class's.
class HeaderTest : public testing::Test
{
protected:
    explicit HeaderTest(TestHeader & header, DWORD parentStyle = WS_OVERLAPPEDWINDOW)
        : m_host(CRect(100, 100, 500, 300), parentStyle),
          m_base(header)
    {
    }

    void SetUp() override
    {
        ASSERT_TRUE(
            m_base.Create(WS_CHILD | WS_VISIBLE | HDS_HORZ, CRect(0, 0, header_width, header_height), m_host, 3));
    }
    void TearDown() override { m_base.DestroyWindow(); }

    /// Appends an item without a title; its index.
    int Add(int width, int state = XHC_NONE, int format = HDF_LEFT)
    {
        HDITEM item = {};
        item.mask = HDI_WIDTH | HDI_FORMAT | HDI_IMAGE;
        item.cxy = width;
        item.fmt = format;
        item.iImage = state;
        return m_base.InsertItem(m_base.GetItemCount(), &item);
    }
    int AddTitle(int width, std::wstring title, int format = HDF_LEFT)
    {
        HDITEM item = {};
        item.mask = HDI_WIDTH | HDI_FORMAT | HDI_TEXT;
        item.cxy = width;
        item.fmt = format | HDF_STRING;
        item.pszText = title.data();
        return m_base.InsertItem(m_base.GetItemCount(), &item);
    }
    void SetState(int index, int state)
    {
        HDITEM item = {};
        item.mask = HDI_IMAGE;
        item.iImage = state;
        EXPECT_TRUE(m_base.SetItem(index, &item));
    }
    CRect Item(int index) const
    {
        CRect rect;
        EXPECT_TRUE(m_base.GetItemRect(index, &rect));
        return rect;
    }
    /// Where an item's mark goes.
    CRect Box(int index) const
    {
        CRect const item = Item(index);
        return CRect(CPoint(item.left + spacing, item.top + (item.Height() - box_size) / 2), CSize(box_size, box_size));
    }
    void Paint(tests::Canvas & canvas) { m_base.PaintHeader(&canvas.Dc()); }

    tests::ScopedWindow m_host;

private:
    TestHeader & m_base;
};

/// Keeps what it is asked to draw.
class RecordingHeader : public TestHeader
{
public:
    struct Drawn
    {
        CRect rect;
        HDITEM item;
        std::wstring text;
    };

    void DrawHeaderItem(LPDRAWITEMSTRUCT item) override
    {
        CXHeaderCtrl::DrawHeaderItem(item);
        m_ownerDrawn.push_back(*item);
    }
    void DrawHeaderItem(CDC * dc, CRect rect, LPHDITEM item) override
    {
        m_drawn.push_back({rect, *item, item->pszText});
        CXHeaderCtrl::DrawHeaderItem(dc, rect, item);
    }

    std::vector<DRAWITEMSTRUCT> m_ownerDrawn;
    std::vector<Drawn> m_drawn;
};

/// A header that is painted on a picture.
class HeaderPaintTest : public HeaderTest
{
protected:
    HeaderPaintTest() : HeaderTest(m_header) {}

    RecordingHeader m_header;
    tests::Canvas m_canvas{header_width, header_height};
};
} // namespace list_header
