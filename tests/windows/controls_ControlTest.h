#pragma once
// What the tests of the combo box and the list box with numbered rows share.

#include <gtest/gtest.h>

#include <functional>
#include <list>
#include <map>
#include <type_traits>
#include <utility>

#include "Bitmap.h"
#include "Input.h"
#include "MessageRecorder.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "ThreadWindows.h"

namespace controls
{
/// A control that runs an action before a message, in place of the message.
template <typename Control> class Watched : public Control
{
public:
    void On(UINT message, std::function<void()> action)
    {
        m_message = message;
        m_action = std::move(action);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == m_message && m_action)
        {
            auto const action = std::exchange(m_action, nullptr);
            action();
            return 0;
        }
        return Control::WindowProc(message, wParam, lParam);
    }

private:
    UINT m_message = 0;
    std::function<void()> m_action;
};

/// The width of a text in a window's font.
inline int TextWidth(CWnd & window, CString const & text)
{
    CClientDC dc(&window);
    CFont * const font = window.GetFont();
    CFont * const former = font != nullptr ? dc.SelectObject(font) : nullptr;
    int const width = dc.GetTextExtent(text).cx;
    if (former != nullptr)
        dc.SelectObject(former);
    return width;
}

// What combo box and list box have in common. Box: CComboBoxX or CListBoxX.

template <typename Box> CString RowText(Box const & box, int row)
{
    CString text;
    if constexpr (std::is_base_of_v<CComboBox, Box>)
        box.GetLBText(row, text);
    else
        box.GetText(row, text);
    return text;
}

template <typename Box> int RowData(Box const & box, int row)
{
    return static_cast<int>(box.GetItemData(row));
}

template <typename Box> void ExpectRowsAreAddedWithTheirNumbers(Box & box)
{
    EXPECT_EQ(box.AddItem(L"one", 11), 0);
    EXPECT_EQ(box.AddItem(L"two", -5), 1);
    EXPECT_EQ(box.AddItem(nullptr, 7), 2);
    EXPECT_EQ(RowText(box, 0), L"one");
    EXPECT_EQ(RowData(box, 1), -5);
    EXPECT_EQ(RowText(box, 2), L"");
}

/// box: one that sorts.
template <typename Box> void ExpectSortedRowsKeepTheirNumbers(Box & box)
{
    EXPECT_EQ(box.AddItem(L"b", 2), 0);
    EXPECT_EQ(box.AddItem(L"a", 1), 0);
    EXPECT_EQ(RowData(box, 0), 1);
    EXPECT_EQ(RowData(box, 1), 2);
    box.FillItems(std::list<CString>{L"z", L"c"}, 10, true);
    ASSERT_EQ(box.GetCount(), 2);
    EXPECT_EQ(RowText(box, 0), L"c");
    EXPECT_EQ(RowData(box, 0), 11);
}

template <typename Box> void ExpectRowsOfAListAreNumberedInOrder(Box & box)
{
    box.FillItems(std::list<CString>{L"b", L"a"}, 10, true);
    box.FillItems(std::list<CString>{L"c"}, 20, false);
    ASSERT_EQ(box.GetCount(), 3);
    EXPECT_EQ(RowText(box, 0), L"b");
    EXPECT_EQ(RowData(box, 0), 10);
    EXPECT_EQ(RowData(box, 1), 11);
    EXPECT_EQ(RowData(box, 2), 20);
    box.FillItems(std::list<CString>{L"d"}, 0x7FFFFFFF, true);
    ASSERT_EQ(box.GetCount(), 1);
    EXPECT_EQ(RowData(box, 0), 0x7FFFFFFF);
}

template <typename Box> void ExpectRowsAreFoundByTheirNumbersFromTheTop(Box & box)
{
    box.FillItems(std::list<CString>{L"a", L"b"}, 4, true);
    box.AddItem(L"c", 5);
    EXPECT_EQ(box.FindItemData(5), 1) << "the first of two";
    EXPECT_EQ(box.FindItemData(99), -1);
}

template <typename Box> void ExpectAnUnknownNumberKeepsTheSelection(Box & box)
{
    EXPECT_EQ(box.GetSelectedItemData(99), 99) << "nothing selected";
    box.FillItems(std::list<CString>{L"a", L"b"}, 4, true);
    EXPECT_EQ(box.GetSelectedItemData(99), 99);
    EXPECT_EQ(box.SelectItemData(5), 1);
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_EQ(box.SelectItemData(77), -1);
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_EQ(box.GetSelectedItemData(0), 5);
}

template <typename Box> void ExpectABoxWithoutAWindowHasNoRows(Box & box)
{
    EXPECT_LT(box.AddItem(L"a", 1), 0);
    box.FillItems(std::list<CString>{L"a"}, 1, true);
    EXPECT_EQ(box.FindItemData(0), -1);
    EXPECT_EQ(box.SelectItemData(0), -1);
    EXPECT_EQ(box.GetSelectedItemData(12), 12);
}

/// The box, made with new, is deleted in place of the message, which the action must bring about.
template <typename Box> void ExpectItMayEndIn(UINT message, Watched<Box> * doomed, std::function<void()> const & action)
{
    bool ended = false;
    doomed->On(message, [&ended, doomed] {
        ended = true;
        delete doomed;
    });
    action();
    EXPECT_TRUE(ended);
    if (!ended)
        delete doomed;
}
} // namespace controls
