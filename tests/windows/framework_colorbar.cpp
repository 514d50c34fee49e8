// Names of colours, as far as a program without colour bars has to do with them.

#include <afxcolorbar.h>

#include <gtest/gtest.h>

namespace
{
struct Names : CMFCColorBar
{
    using CMFCColorBar::m_ColorNames;
};

CString NameOf(COLORREF colour)
{
    CString name(L"(none)");
    Names::m_ColorNames.Lookup(colour, name);
    return name;
}
} // namespace

TEST(FrameworkColorBar, NamesColours)
{
    EXPECT_EQ(NameOf(RGB(1, 2, 3)), L"(none)");
    CMFCColorBar::SetColorName(RGB(1, 2, 3), L"Ink");
    CMFCColorBar::SetColorName(RGB(3, 2, 1), L"Rust");
    EXPECT_EQ(NameOf(RGB(1, 2, 3)), L"Ink");
    EXPECT_EQ(NameOf(RGB(3, 2, 1)), L"Rust");
    Names::m_ColorNames.RemoveKey(RGB(1, 2, 3));
    Names::m_ColorNames.RemoveKey(RGB(3, 2, 1));
}

TEST(FrameworkColorBar, GivesAColourAnotherName)
{
    CMFCColorBar::SetColorName(RGB(1, 2, 3), L"Ink");
    INT_PTR const count = Names::m_ColorNames.GetCount();
    CString name(L"Tar");
    CMFCColorBar::SetColorName(RGB(1, 2, 3), name);
    name = L"changed later";
    EXPECT_EQ(NameOf(RGB(1, 2, 3)), L"Tar");
    EXPECT_EQ(Names::m_ColorNames.GetCount(), count);
    Names::m_ColorNames.RemoveKey(RGB(1, 2, 3));
}
