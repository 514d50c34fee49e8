// Texts, values and kinds of the report list's cells, and their combo strings.

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>
#include <vector>

#include "list_CellTest.h"

using tests::ListHost;

namespace
{
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF own_color = static_cast<COLORREF>(-1);
/// Bits of the look, and one of the kinds.
constexpr unsigned int marked = XLP_ENABLED | XLP_BOLD | XLP_MODIFIED | XLP_SORT_FIRST | XLP_CUSTOMDRAW;

class ListKinds : public tests::CellTest
{
protected:
    XLISTCTRLDATA & Cell(int row, int col) { return *m_list.GetRowItemData(row, col); }
    CString Text(int row, int col) { return m_list.GetItemText(row, col); }
    /// Gives the cell bits that a change of kind may keep or not, and a check state.
    void Mark(int row, int col)
    {
        Cell(row, col).properties = marked;
        Cell(row, col).checkedState = XLC_CHECKED;
        m_list.TakeUpdateRect();
    }

    std::map<int, wchar_t const *> const m_strings = {{3, L"three"}, {1, L"one"}, {7, L"seven"}, {9, L"one"}};
};
} // namespace

// Texts and values

TEST_F(ListKinds, TextReturnsACellToText)
{
    m_list.SetItemText(1, 1, 5);
    EXPECT_TRUE(m_list.SetItemText(1, 1, L"five"));
    EXPECT_EQ(Text(1, 1), L"five");
    EXPECT_EQ(m_list.GetItemValueType(1, 1), XLV_TEXT);
    EXPECT_EQ(Cell(1, 1).intValue, 5) << "the value stays behind";
    EXPECT_TRUE(m_list.SetItemText(1, 1, static_cast<wchar_t const *>(nullptr)));
    EXPECT_EQ(Text(1, 1), L"");
    EXPECT_TRUE(m_list.SetItemText(1, 0, L"first"));
    EXPECT_EQ(Text(1, 0), L"first");
}

TEST_F(ListKinds, TextRepaintsItsCell)
{
    m_list.SetItemText(1, 1, L"five");
    CRect const changed = m_list.TakeUpdateRect();
    CRect common;
    common.IntersectRect(changed, Around(1, 1));
    EXPECT_EQ(common, Around(1, 1));
}

TEST_F(ListKinds, TextOfABadCellIsRefused)
{
    for (auto const & [row, col] : {std::pair(-1, 0), std::pair(5, 0), std::pair(0, -1), std::pair(0, 3)})
    {
        EXPECT_FALSE(m_list.SetItemText(row, col, L"x"));
        EXPECT_FALSE(m_list.SetItemText(row, col, L"x", red, green));
        EXPECT_FALSE(m_list.SetItemText(row, col, 1));
        EXPECT_FALSE(m_list.SetItemText(row, col, 1.0F, nullptr));
        EXPECT_FALSE(m_list.SetItemFloatVal(row, col, 1.0F, L"x"));
        EXPECT_FALSE(m_list.SetItemFloatVal(row, col, 1.0F, nullptr));
        EXPECT_FALSE(m_list.SetItemDatetime(row, col, CTime(1)));
        EXPECT_FALSE(m_list.SetItemImage(row, col, 1));
        EXPECT_EQ(m_list.GetComboText(row, col), L"");
    }
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
    EXPECT_EQ(m_list.GetItemCount(), 5);
    EXPECT_EQ(Text(0, 0), L"r0");
}

TEST_F(ListKinds, TextWithColoursKeepsTheValueType)
{
    m_list.SetItemText(1, 1, 5);
    EXPECT_TRUE(m_list.SetItemText(1, 1, L"x", red, green));
    EXPECT_EQ(Text(1, 1), L"x");
    EXPECT_EQ(m_list.GetItemValueType(1, 1), XLV_INT);
    EXPECT_EQ(Cell(1, 1).textColor, red);
    EXPECT_EQ(Cell(1, 1).backgroundColor, green);
}

TEST_F(ListKinds, NullTextWithColoursLeavesTheText)
{
    m_list.SetItemText(1, 1, L"kept");
    m_list.UpdateWindow();
    m_list.TakeUpdateRect();
    EXPECT_TRUE(m_list.SetItemText(1, 1, nullptr, red, own_color));
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    EXPECT_EQ(Text(1, 1), L"kept");
    EXPECT_EQ(Cell(1, 1).textColor, red);
    EXPECT_EQ(Cell(1, 1).backgroundColor, ::GetSysColor(COLOR_WINDOW));
    EXPECT_TRUE(m_list.SetItemText(1, 1, nullptr, own_color, green));
    EXPECT_EQ(Cell(1, 1).textColor, ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(Cell(1, 1).backgroundColor, green);
}

TEST_F(ListKinds, IntIsShownInDecimal)
{
    EXPECT_TRUE(m_list.SetItemText(1, 1, -1234567));
    EXPECT_EQ(Text(1, 1), L"-1234567");
    EXPECT_EQ(Cell(1, 1).intValue, -1234567);
    EXPECT_EQ(m_list.GetItemValueType(1, 1), XLV_INT);
    EXPECT_TRUE(m_list.SetItemText(1, 1, std::numeric_limits<int>::min()));
    EXPECT_EQ(Text(1, 1), L"-2147483648");
}

TEST_F(ListKinds, FloatIsShownWithTwoDecimals)
{
    EXPECT_TRUE(m_list.SetItemText(1, 1, 3.5F, nullptr));
    EXPECT_EQ(Text(1, 1), L" 3.50");
    EXPECT_EQ(Cell(1, 1).floatValue, 3.5F);
    EXPECT_EQ(m_list.GetItemValueType(1, 1), XLV_FLOAT);
    m_list.SetItemText(1, 1, L"text");
    EXPECT_EQ(m_list.GetItemValueType(1, 1), XLV_TEXT);
    EXPECT_TRUE(m_list.SetItemText(1, 1, 3.5F, L"%.1f dB"));
    EXPECT_EQ(Text(1, 1), L"3.5 dB");
}

TEST_F(ListKinds, LongNumberIsCutTo49Characters)
{
    EXPECT_TRUE(m_list.SetItemText(1, 1, 1.0F, L"%060.1f"));
    EXPECT_EQ(Text(1, 1), CString(L'0', 49));
    EXPECT_TRUE(m_list.SetItemText(1, 1, 1.0F, L"%049.1f"));
    EXPECT_EQ(Text(1, 1), CString(L'0', 46) + L"1.0");
    EXPECT_TRUE(m_list.SetItemText(1, 1, 1.0F, L"%050.1f"));
    EXPECT_EQ(Text(1, 1), CString(L'0', 47) + L"1.");
    std::wstring const literal(500, L'x');
    EXPECT_TRUE(m_list.SetItemText(1, 1, 1.0F, literal.c_str()));
    EXPECT_EQ(Text(1, 1), CString(L'x', 49));
    EXPECT_TRUE(m_list.SetItemText(1, 2, std::numeric_limits<float>::max(), nullptr));
    EXPECT_EQ(Text(1, 2).Left(15), L"340282346638528");
    EXPECT_EQ(Text(1, 2).GetLength(), 42);
    EXPECT_TRUE(m_list.SetItemText(1, 1, 7)) << "the other buffer";
    EXPECT_EQ(Text(1, 1), L"7");
}

TEST_F(ListKinds, FloatStandsBehindItsText)
{
    EXPECT_TRUE(m_list.SetItemFloatVal(1, 1, 2.25F, L"two and a quarter"));
    EXPECT_EQ(Text(1, 1), L"two and a quarter");
    EXPECT_EQ(Cell(1, 1).floatValue, 2.25F);
    EXPECT_EQ(m_list.GetItemValueType(1, 1), XLV_FLOAT);
    for (wchar_t const * const text : {static_cast<wchar_t const *>(nullptr), L""})
    {
        m_list.SetItemText(1, 1, L"old");
        EXPECT_TRUE(m_list.SetItemFloatVal(1, 1, 12.5F, text));
        EXPECT_EQ(Text(1, 1), L"12.50");
        EXPECT_EQ(Cell(1, 1).floatValue, 12.5F);
        EXPECT_EQ(m_list.GetItemValueType(1, 1), XLV_FLOAT);
    }
}

TEST_F(ListKinds, TimeChangesNeitherTextNorScreen)
{
    m_list.SetItemText(1, 1, L"old");
    m_list.UpdateWindow();
    m_list.TakeUpdateRect();
    EXPECT_TRUE(m_list.SetItemDatetime(1, 1, CTime(86400)));
    EXPECT_EQ(Text(1, 1), L"old");
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
    EXPECT_EQ(Cell(1, 1).timeValue, CTime(86400));
    EXPECT_EQ(m_list.GetItemValueType(1, 1), XLV_DATETIME);
}

TEST_F(ListKinds, NativeSetOverwritesTheImage)
{
    m_list.SetItemImage(1, 1, 5);
    m_list.UpdateWindow();
    m_list.TakeUpdateRect();
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = 1;
    item.iSubItem = 1;
    item.pszText = const_cast<wchar_t *>(L"set");
    item.iImage = 3;
    EXPECT_EQ(m_list.SetItem(&item), 1);
    EXPECT_EQ(Text(1, 1), L"set");
    EXPECT_EQ(Cell(1, 1).imageIndex, 3) << "although no image was asked for";
    CRect common;
    common.IntersectRect(m_list.TakeUpdateRect(), Around(1, 1));
    EXPECT_EQ(common, Around(1, 1));
}

TEST_F(ListKinds, NativeSetThatFailsGivesZero)
{
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.pszText = const_cast<wchar_t *>(L"set");
    item.iImage = 3;
    item.iItem = -1;
    EXPECT_EQ(m_list.SetItem(&item), -1);
    EXPECT_EQ(m_list.SetItem(nullptr), -1);
    item.iItem = 5;
    EXPECT_EQ(m_list.SetItem(&item), 0);
    item.iItem = m_list.InsertForeignItem(5, L"foreign");
    EXPECT_EQ(m_list.SetItem(&item), 0) << "no cells";
    EXPECT_EQ(Text(5, 0), L"set") << "but the native text";
}

TEST_F(ListKinds, NativeSetKeepsTheRow)
{
    m_list.SetItemData(1, 9LL);
    LVITEMW item{};
    item.mask = LVIF_PARAM | LVIF_TEXT;
    item.iItem = 1;
    item.pszText = const_cast<wchar_t *>(L"set");
    item.lParam = 1234;
    EXPECT_EQ(m_list.SetItem(&item), 1);
    EXPECT_EQ(Text(1, 0), L"set");
    EXPECT_EQ(m_list.GetItemData64(1), 9);
}

TEST_F(ListKinds, ImageOfTheFirstColumnIsAlsoTheNativeOne)
{
    auto const nativeImage = [this](int row, int col) {
        LVITEMW item{};
        item.mask = LVIF_IMAGE;
        item.iItem = row;
        item.iSubItem = col;
        ::SendMessageW(m_list.m_hWnd, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return item.iImage;
    };
    EXPECT_TRUE(m_list.SetItemImage(1, 1, 2));
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    EXPECT_EQ(Cell(1, 1).imageIndex, 2);
    EXPECT_NE(nativeImage(1, 1), 2);
    EXPECT_TRUE(m_list.SetItemImage(1, 0, 2));
    EXPECT_EQ(Cell(1, 0).imageIndex, 2);
    EXPECT_EQ(nativeImage(1, 0), 2);
}

// Kinds

TEST_F(ListKinds, EditForgetsTheLook)
{
    Mark(1, 1);
    Cell(1, 1).properties &= ~XLP_ENABLED;
    EXPECT_TRUE(m_list.SetEdit(1, 1, true));
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    EXPECT_EQ(Cell(1, 1).properties, 3U);
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_NONE);
    EXPECT_FALSE(m_list.GetBold(1, 1));
    EXPECT_FALSE(m_list.GetModified(1, 1));
}

TEST_F(ListKinds, PlainKeepsTheLook)
{
    auto const isPlain = [this] {
        EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
        EXPECT_EQ(Cell(1, 1).properties, marked & 0xFF01);
        EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_NONE);
    };
    Mark(1, 1);
    EXPECT_TRUE(m_list.SetEdit(1, 1, false));
    isPlain();
    Mark(1, 1);
    EXPECT_TRUE(m_list.SetHyperlink(1, 1, false, false));
    isPlain();
    Mark(1, 1);
    m_list.DeleteProgress(1, 1);
    isPlain();
    Mark(1, 1);
    EXPECT_TRUE(m_list.SetComboBox(1, 1, std::map<int, wchar_t const *>(), 1, 1));
    isPlain();
    Cell(1, 1).properties = XLP_EDIT | XLP_BOLD;
    EXPECT_TRUE(m_list.SetEdit(1, 1, false));
    EXPECT_EQ(Cell(1, 1).properties, XLP_BOLD) << "stays disabled";
}

TEST_F(ListKinds, HyperlinkEnablesAndUnderlines)
{
    Mark(1, 1);
    m_list.SetEnabled(1, 1, false);
    Cell(1, 1).textColor = red;
    m_list.TakeUpdateRect();
    EXPECT_TRUE(m_list.SetHyperlink(1, 1, true, false));
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    EXPECT_EQ(Cell(1, 1).properties, 517U);
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_NONE);
    EXPECT_EQ(Cell(1, 1).textColor, red);
    EXPECT_TRUE(m_list.SetHyperlink(1, 1, true, true));
    EXPECT_EQ(Cell(1, 1).textColor, 0xFF0000U);
    EXPECT_TRUE(m_list.SetHyperlink(1, 1, false, true));
    EXPECT_EQ(Cell(1, 1).textColor, 0U);
    EXPECT_EQ(Cell(1, 1).properties, XLP_ENABLED | XLP_UNDERLINE) << "the line stays, being of the look";
}

TEST_F(ListKinds, ProgressStartsAtZero)
{
    Mark(1, 1);
    Cell(1, 1).progressValue = 5;
    Cell(1, 1).progressDisplayValue = 6;
    EXPECT_TRUE(m_list.SetProgress(1, 1, true, L"%d MB"));
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    EXPECT_EQ(Cell(1, 1).properties, 9U);
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_NONE);
    EXPECT_EQ(Cell(1, 1).progressValue, 0);
    EXPECT_EQ(Cell(1, 1).progressDisplayValue, 0);
    EXPECT_TRUE(Cell(1, 1).progressShowText);
    EXPECT_EQ(Cell(1, 1).progressFormat, L"%d MB");
    EXPECT_EQ(Cell(1, 1).backgroundColor, ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_TRUE(m_list.SetProgress(1, 1, false, nullptr));
    EXPECT_EQ(Cell(1, 1).progressFormat, L"");
    EXPECT_FALSE(Cell(1, 1).progressShowText);
}

TEST_F(ListKinds, ProgressValueHasNoUpperLimit)
{
    m_list.SetProgress(1, 1, true, nullptr);
    m_list.TakeUpdateRect();
    m_list.UpdateProgress(1, 1, 150, 7);
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    EXPECT_EQ(Cell(1, 1).progressValue, 150);
    EXPECT_EQ(Cell(1, 1).progressDisplayValue, 150) << "without a format of its own";
    m_list.UpdateProgress(1, 1, -3, 7);
    EXPECT_EQ(Cell(1, 1).progressValue, 0);
    EXPECT_EQ(Cell(1, 1).progressDisplayValue, 0);
    m_list.SetProgress(1, 1, true, L"%d");
    m_list.UpdateProgress(1, 1, 20, -7);
    EXPECT_EQ(Cell(1, 1).progressValue, 20);
    EXPECT_EQ(Cell(1, 1).progressDisplayValue, -7);
}

TEST_F(ListKinds, DeletedProgressLeavesTheBarsColour)
{
    m_list.SetProgress(1, 1, true, nullptr);
    m_list.UpdateProgress(1, 1, 50, 0);
    m_list.DeleteProgress(1, 1);
    EXPECT_EQ(Cell(1, 1).progressValue, 0);
    EXPECT_EQ(Cell(1, 1).progressDisplayValue, 0);
    EXPECT_EQ(Cell(1, 1).properties, XLP_ENABLED);
    EXPECT_EQ(Cell(1, 1).backgroundColor, ::GetSysColor(COLOR_HIGHLIGHT));
}

TEST_F(ListKinds, CustomDrawKeepsTheOtherBits)
{
    Cell(1, 1).properties = XLP_ENABLED | XLP_EDIT | XLP_BOLD;
    EXPECT_TRUE(m_list.SetCustomDraw(1, 1, [](int, int, CDC *, CRect const &) {}));
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    EXPECT_EQ(Cell(1, 1).properties, XLP_ENABLED | XLP_EDIT | XLP_BOLD | XLP_CUSTOMDRAW);
    EXPECT_TRUE(Cell(1, 1).customDraw != nullptr);
    m_list.UpdateWindow();
    m_list.TakeUpdateRect();
    m_list.UpdateCustomDraw(1, 1);
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    m_list.RemoveCustomDraw(1, 1);
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
    EXPECT_EQ(Cell(1, 1).properties, XLP_ENABLED | XLP_EDIT | XLP_BOLD);
    EXPECT_TRUE(Cell(1, 1).customDraw == nullptr);
}

TEST_F(ListKinds, KindOfABadCellIsRefused)
{
    std::map<int, CString> const owned = {{1, L"one"}};
    for (auto const & [row, col] : {std::pair(-1, 0), std::pair(5, 0), std::pair(0, -1), std::pair(0, 3)})
    {
        EXPECT_FALSE(m_list.SetEdit(row, col, true));
        EXPECT_FALSE(m_list.SetHyperlink(row, col, true, true));
        EXPECT_FALSE(m_list.SetProgress(row, col, true, nullptr));
        m_list.UpdateProgress(row, col, 1, 1);
        m_list.DeleteProgress(row, col);
        EXPECT_FALSE(m_list.SetCustomDraw(row, col, [](int, int, CDC *, CRect const &) {}));
        m_list.UpdateCustomDraw(row, col);
        m_list.RemoveCustomDraw(row, col);
        EXPECT_FALSE(m_list.SetComboBox(row, col, m_strings, 1, 1));
        EXPECT_FALSE(m_list.SetComboBox(row, col, &owned, 1, 1));
        EXPECT_FALSE(m_list.SetComboBoxGlobalStrings(row, col, 1, 1));
        EXPECT_FALSE(m_list.InitializeComboBox(row, col, 1, 1));
        EXPECT_FALSE(m_list.SetComboStyle(row, col, true, 1));
        EXPECT_FALSE(m_list.SetComboSelection(row, col, 1));
        EXPECT_FALSE(m_list.SetComboSelection(row, col, CString(L"one")));
        EXPECT_EQ(m_list.GetComboCurSel(row, col), -1);
    }
    // Column -1 repaints the row, which UpdateCustomDraw passes on.
    CRect const changed = m_list.TakeUpdateRect();
    EXPECT_EQ(changed, Around(0, -1));
}

// Combo cells

TEST_F(ListKinds, ComboShowsTheSelectedEntry)
{
    Mark(1, 1);
    EXPECT_TRUE(m_list.SetComboBox(1, 1, m_strings, 3, 7));
    EXPECT_EQ(Cell(1, 1).properties, 17U);
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_NONE);
    EXPECT_EQ(m_list.GetComboCurSel(1, 1), 3);
    EXPECT_EQ(m_list.GetComboText(1, 1), L"three");
    EXPECT_EQ(Cell(1, 1).comboDefaultId, 7);
    EXPECT_EQ(Cell(1, 1).comboStrings, m_strings);
    EXPECT_EQ(Cell(1, 1).comboStrings.at(3), m_strings.at(3)) << "the pointer, not the text";
}

TEST_F(ListKinds, ComboWithAnUnknownSelectionIsEmptyAndAtItsDefault)
{
    m_list.SetItemText(1, 1, L"old");
    EXPECT_TRUE(m_list.SetComboBox(1, 1, m_strings, 99, 7));
    EXPECT_EQ(m_list.GetComboCurSel(1, 1), 7);
    EXPECT_EQ(m_list.GetComboText(1, 1), L"") << "although the default has a text";
}

TEST_F(ListKinds, ComboWithoutEntriesIsPlainAndKeepsItsText)
{
    m_list.SetItemText(1, 1, L"old");
    EXPECT_TRUE(m_list.SetComboBox(1, 1, m_strings, 3, 7));
    m_list.SetItemText(1, 1, L"old");
    EXPECT_TRUE(m_list.SetComboBox(1, 1, static_cast<std::map<int, CString> const *>(nullptr), 3, 5));
    EXPECT_EQ(Cell(1, 1).properties, XLP_ENABLED);
    EXPECT_TRUE(Cell(1, 1).comboStrings.empty());
    EXPECT_EQ(m_list.GetComboText(1, 1), L"old");
    EXPECT_EQ(m_list.GetComboCurSel(1, 1), 3) << "what was, stays";
    EXPECT_EQ(Cell(1, 1).comboDefaultId, 7);
}

TEST_F(ListKinds, ComboPointsIntoTheCallersStrings)
{
    std::map<int, CString> const owned = {{4, L"four"}, {2, L"two"}};
    m_list.SetComboBox(1, 1, m_strings, 3, 7);
    EXPECT_TRUE(m_list.SetComboBox(1, 1, &owned, 2, -1));
    EXPECT_EQ(Cell(1, 1).comboStrings.size(), 2U) << "the former entries are gone";
    EXPECT_EQ(Cell(1, 1).comboStrings.at(4), owned.at(4).GetString());
    EXPECT_EQ(m_list.GetComboText(1, 1), L"two");
}

TEST_F(ListKinds, ComboOfSharedStrings)
{
    m_list.GlobalComboStringsInsert(5, L"five");
    m_list.GlobalComboStringsInsert(6, L"six");
    EXPECT_TRUE(m_list.SetComboBoxGlobalStrings(1, 1, 6, 5));
    EXPECT_EQ(m_list.GetComboText(1, 1), L"six");
    EXPECT_EQ(Cell(1, 1).comboStrings.at(5), m_list.GlobalComboStringsGetText(5));
    EXPECT_TRUE(m_list.SetComboSelection(1, 1, 5));
    EXPECT_EQ(m_list.GetComboText(1, 1), L"five");
}

TEST_F(ListKinds, ComboStyleDoesNotRepaint)
{
    EXPECT_TRUE(m_list.SetComboStyle(1, 1, true, 7));
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
    EXPECT_TRUE(Cell(1, 1).comboSorted);
    EXPECT_EQ(Cell(1, 1).comboVisibleItems, 7);
}

TEST_F(ListKinds, ComboSelectionById)
{
    EXPECT_FALSE(m_list.SetComboSelection(1, 1, 3)) << "not a combo";
    m_list.SetComboBox(1, 1, m_strings, 3, 7);
    m_list.UpdateWindow();
    m_list.TakeUpdateRect();
    EXPECT_TRUE(m_list.SetComboSelection(1, 1, 1));
    EXPECT_EQ(m_list.GetComboCurSel(1, 1), 1);
    EXPECT_EQ(m_list.GetComboText(1, 1), L"one");
    EXPECT_FALSE(m_list.TakeUpdateRect().IsRectEmpty());
    EXPECT_TRUE(m_list.SetComboSelection(1, 1, 1234));
    EXPECT_EQ(m_list.GetComboCurSel(1, 1), 7) << "the default";
    EXPECT_EQ(m_list.GetComboText(1, 1), L"");
}

TEST_F(ListKinds, ComboSelectionByText)
{
    EXPECT_FALSE(m_list.SetComboSelection(1, 1, CString(L"one"))) << "not a combo";
    m_list.SetComboBox(1, 1, m_strings, 3, 7);
    EXPECT_TRUE(m_list.SetComboSelection(1, 1, CString(L"one")));
    EXPECT_EQ(m_list.GetComboCurSel(1, 1), 1) << "the first of two in the order of the ids";
    EXPECT_EQ(m_list.GetComboText(1, 1), L"one");
    EXPECT_TRUE(m_list.SetComboSelection(1, 1, CString(L"ONE")));
    EXPECT_EQ(m_list.GetComboCurSel(1, 1), 7);
    EXPECT_EQ(m_list.GetComboText(1, 1), L"");
}

TEST_F(ListKinds, ComboEntryWithoutATextIsEmpty)
{
    std::map<int, wchar_t const *> const strings = {{1, nullptr}, {2, L"two"}};
    EXPECT_TRUE(m_list.SetComboBox(1, 1, strings, 1, 2));
    EXPECT_EQ(m_list.GetComboCurSel(1, 1), 1);
    EXPECT_EQ(m_list.GetComboText(1, 1), L"");
    EXPECT_TRUE(m_list.SetComboSelection(1, 1, CString(L"two")));
    EXPECT_EQ(m_list.GetComboCurSel(1, 1), 2);
}

// The list's shared combo strings

TEST_F(ListKinds, SharedStringsKeepTheFirstText)
{
    m_list.GlobalComboStringsInsert(7, L"first");
    m_list.GlobalComboStringsInsert(7, L"second");
    EXPECT_STREQ(m_list.GlobalComboStringsGetText(7), L"first");
    EXPECT_EQ(m_list.GlobalComboStringsGetId(L"second", -3), -3);
    EXPECT_STREQ(m_list.GlobalComboStringsGetText(8), L"");
}

TEST_F(ListKinds, SharedStringsAreSearchedInTheOrderOfTheirIds)
{
    m_list.GlobalComboStringsInsert(9, L"same");
    m_list.GlobalComboStringsInsert(-4, L"same");
    m_list.GlobalComboStringsInsert(1, L"Same");
    EXPECT_EQ(m_list.GlobalComboStringsGetId(L"same", 0), -4);
    EXPECT_EQ(m_list.GlobalComboStringsGetId(L"Same", 0), 1);
    EXPECT_EQ(m_list.GlobalComboStringsGetId(L"SAME", 55), 55);
    m_list.GlobalComboStringsReset();
    EXPECT_EQ(m_list.GlobalComboStringsGetId(L"same", 55), 55);
    EXPECT_STREQ(m_list.GlobalComboStringsGetText(9), L"");
}

TEST_F(ListKinds, EachListHasItsOwnSharedStrings)
{
    ListHost other;
    m_list.GlobalComboStringsInsert(1, L"mine");
    EXPECT_STREQ(other.list.GlobalComboStringsGetText(1), L"");
}
