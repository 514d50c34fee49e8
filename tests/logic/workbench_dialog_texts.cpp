// The texts of dialog templates.

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "logic/DialogTexts.h"

namespace
{

/// Writes a template field by field.
class Template
{
public:
    Template & Words(std::initializer_list<unsigned> words)
    {
        for (unsigned int const word : words)
        {
            m_bytes.push_back(static_cast<std::byte>(word & 0xFF));
            m_bytes.push_back(static_cast<std::byte>(word >> 8 & 0xFF));
        }
        return *this;
    }
    Template & Text(std::wstring_view text)
    {
        for (wchar_t const character : text)
        {
            Words({static_cast<unsigned>(character)});
        }
        return Words({0});
    }
    /// style: 0x40 for one with a font.
    Template & Head(unsigned style, unsigned controls, std::wstring_view caption)
    {
        Words({1, 0xFFFF, 0, 0, 0, 0, style, 0, controls, 0, 0, 100, 50}).Words({0}).Words({0}).Text(caption);
        return style == 0x40 ? Words({8, 400, 0x0100}).Text(L"MS Shell Dlg") : *this;
    }
    Template & Control(unsigned id, std::wstring_view text, std::initializer_list<unsigned> extra = {})
    {
        while (m_bytes.size() % 4 != 0)
        {
            m_bytes.push_back(std::byte{0});
        }
        Words({0, 0, 0, 0, 0, 0, 1, 2, 3, 4, id, id == 0xFFFF ? 0xFFFFU : 0U}).Words({0xFFFF, 0x80}).Text(text);
        return Words({static_cast<unsigned>(2 * extra.size())}).Words(extra);
    }
    std::vector<std::byte> const & Bytes() const { return m_bytes; }

private:
    std::vector<std::byte> m_bytes;
};

} // namespace

TEST(WorkbenchDialogTexts, HasItsCaptionAndTheTextsOfItsControls)
{
    Template made;
    made.Head(0x40, 3, L"Title").Control(2, L"Cancel").Control(0xFFFF, L"&Label:", {1, 2, 3}).Control(1000, L"");
    std::optional<workbench::DialogTexts> const texts = workbench::ReadDialogTexts(made.Bytes());
    ASSERT_TRUE(texts);
    EXPECT_EQ(texts->caption, L"Title");
    ASSERT_EQ(texts->controls.size(), 3U);
    EXPECT_EQ(texts->controls[0].id, 2U);
    EXPECT_EQ(texts->controls[0].text, L"Cancel");
    EXPECT_EQ(texts->controls[1].id, 0xFFFFFFFFU);
    EXPECT_EQ(texts->controls[1].text, L"&Label:");
    EXPECT_EQ(texts->controls[2].text, L"");
}

TEST(WorkbenchDialogTexts, ANumberInPlaceOfATextIsNone)
{
    Template made;
    made.Words({1, 0xFFFF, 0, 0, 0, 0, 0, 0, 1, 0, 0, 100, 50}).Words({0xFFFF, 7}).Text(L"own class").Text(L"Title");
    made.Control(3, L"");
    std::optional<workbench::DialogTexts> const texts = workbench::ReadDialogTexts(made.Bytes());
    ASSERT_TRUE(texts);
    EXPECT_EQ(texts->caption, L"Title");
    EXPECT_EQ(texts->controls.front().id, 3U);
}

TEST(WorkbenchDialogTexts, WhatIsNoneOrCutOffGivesNothing)
{
    EXPECT_FALSE(workbench::ReadDialogTexts({}));
    EXPECT_FALSE(workbench::ReadDialogTexts(Template().Words({0x10, 0, 1, 1}).Bytes()));
    Template made;
    made.Head(0x40, 1, L"Title").Control(2, L"Cancel");
    for (std::size_t size = 0; size < made.Bytes().size(); ++size)
    {
        EXPECT_FALSE(workbench::ReadDialogTexts(std::span(made.Bytes()).first(size))) << size;
    }
    EXPECT_TRUE(workbench::ReadDialogTexts(made.Bytes()));
}
