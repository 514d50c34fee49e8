// Completion of a typed text, and what is too wide for its field.

#include <gtest/gtest.h>

#include <vector>

#include "controls/FieldWidths.h"
#include "controls/TypeAhead.h"

namespace
{
/// A field whose first row that begins with the text, in capitals or not, is taken.
class Field : public CompletionField
{
public:
    explicit Field(std::vector<CString> rows) : m_rows(std::move(rows)) {}

    CString Text() override { return m_text; }
    std::optional<Selection> Selected() override { return m_selection; }
    bool TakeRow(CString const & beginning) override
    {
        for (CString const & row : m_rows)
        {
            if (row.Left(beginning.GetLength()).CompareNoCase(beginning) == 0)
            {
                m_text = row;
                m_selection = Selection{0, row.GetLength()};
                return true;
            }
        }
        return false;
    }
    void SetText(CString const & text) override
    {
        ++m_textsSet;
        m_text = text;
        m_selection = Selection{0, 0};
    }
    void Select(Selection selection) override
    {
        ++m_selections;
        m_selection = selection;
    }

    /// The caret stands behind what is typed, unless told otherwise.
    void Type(wchar_t const * text, std::optional<Selection> selection)
    {
        m_text = text;
        m_selection = selection;
        CompleteTyped(*this);
    }

    CString m_text;
    std::optional<Selection> m_selection;
    int m_textsSet = 0;
    int m_selections = 0;

private:
    std::vector<CString> m_rows;
};

std::vector<CString> const rows = {L"Channel 2", L"Amplitude", L"amperes", L"Channel 1"};
} // namespace

TEST(TypeAhead, FirstRowThatBeginsWithTheTextIsTakenAndItsTailSelected)
{
    Field field(rows);
    field.Type(L"am", CompletionField::Selection{2, 2});
    EXPECT_EQ(field.m_text, L"Amplitude");
    EXPECT_EQ(field.m_selection->start, 2);
    EXPECT_EQ(field.m_selection->end, -1);
    EXPECT_EQ(field.m_textsSet, 0);
}

TEST(TypeAhead, RowsComeFromTheTop)
{
    Field field(rows);
    field.Type(L"CHAN", CompletionField::Selection{4, 4});
    EXPECT_EQ(field.m_text, L"Channel 2");
}

TEST(TypeAhead, UnknownSelectionCountsAsTheEnd)
{
    Field field(rows);
    field.Type(L"ch", {});
    EXPECT_EQ(field.m_text, L"Channel 2");
    EXPECT_EQ(field.m_selection->start, 2);
    EXPECT_EQ(field.m_selection->end, -1);
}

TEST(TypeAhead, CaretWithinTheTextKeepsItsPlace)
{
    Field field(rows);
    field.Type(L"chan", CompletionField::Selection{1, 2});
    EXPECT_EQ(field.m_text, L"Channel 2");
    EXPECT_EQ(field.m_selection->start, 1);
    EXPECT_EQ(field.m_selection->end, 2);
}

TEST(TypeAhead, WithoutARowTheTextIsPutBackWithItsSelection)
{
    Field field(rows);
    field.Type(L"xy", CompletionField::Selection{1, 1});
    EXPECT_EQ(field.m_text, L"xy");
    EXPECT_EQ(field.m_textsSet, 1);
    EXPECT_EQ(field.m_selection->start, 1);
    EXPECT_EQ(field.m_selection->end, 1);
}

TEST(TypeAhead, WithoutARowAnUnknownSelectionIsLeft)
{
    Field field(rows);
    field.Type(L"xy", {});
    EXPECT_EQ(field.m_textsSet, 1);
    EXPECT_EQ(field.m_selections, 0);
}

TEST(TypeAhead, KeysThatDeleteDoNotComplete)
{
    EXPECT_FALSE(KeyCompletes(8));
    EXPECT_FALSE(KeyCompletes(46));
    EXPECT_TRUE(KeyCompletes('A'));
    EXPECT_TRUE(KeyCompletes(13));
}

TEST(FieldWidths, TextSixPixelsNarrowerThanItsFieldShowsNoTip)
{
    EXPECT_FALSE(IsTooWide(94, 100));
    EXPECT_TRUE(IsTooWide(95, 100));
    EXPECT_TRUE(IsTooWide(0, 5));
}

TEST(FieldWidths, ButtonIsLeftOutOfTheField)
{
    EXPECT_EQ(ComboTextField(CRect(0, 0, 120, 21), 17), CRect(0, 0, 101, 21));
}

TEST(FieldWidths, DropDownNeedsRoomForScrollBarAndEdges)
{
    EXPECT_EQ(DropWidth(200, 17, 2), 221);
    EXPECT_EQ(DropWidth(0, 17, 2), 21);
}

TEST(FieldWidths, TipShowsTheEndOfATextOf80Characters)
{
    CString const kept(L'a', 79);
    EXPECT_EQ(TipText(kept), kept);
    CString text;
    for (int i = 0; i < 80; ++i)
        text += static_cast<wchar_t>(L'0' + i % 10);
    CString const shown = TipText(text);
    EXPECT_EQ(shown.GetLength(), 79);
    EXPECT_EQ(shown.Left(3), L"...");
    EXPECT_EQ(shown.Mid(3), text.Right(76));
    EXPECT_EQ(TipText(CString(L'b', 5000)), L"..." + CString(L'b', 76));
    EXPECT_EQ(TipText(L""), L"");
}
