// The registered messages of the module: their numbers, and their use in a message map.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <set>
#include <type_traits>
#include <vector>

#include "frame/RegisteredMessages.h"

namespace
{
struct NamedMessage
{
    wchar_t const * name;
    unsigned int number;
};

std::vector<NamedMessage> ExportedMessages()
{
    return {
        {L"WM_IDNAME_MULTISELECT_EVENT", WM_IDNAME_MULTISELECT_EVENT},
        {L"WM_XEDITBROWSE_COMPLETED", WM_XEDITBROWSE_COMPLETED},
        {L"WM_XLISTCTRL_CHECKBOX_CLICKED", WM_XLISTCTRL_CHECKBOX_CLICKED},
        {L"WM_XLISTCTRL_COLUMNCLICK", WM_XLISTCTRL_COLUMNCLICK},
        {L"WM_XLISTCTRL_COMBO_SELECTION", WM_XLISTCTRL_COMBO_SELECTION},
        {L"WM_XLISTCTRL_EDIT_END", WM_XLISTCTRL_EDIT_END},
        {L"WM_XLISTCTRL_ITEM_DBLCLICKED", WM_XLISTCTRL_ITEM_DBLCLICKED},
        {L"WM_XLISTCTRL_PUSHBUTTON", WM_XLISTCTRL_LINK_CLICKED},
        {L"WM_XTREECTRL_DBLCLK", WM_XTREECTRL_DBLCLK},
    };
}

class CListener : public CWnd
{
public:
    WPARAM m_row = 0;
    LPARAM m_column = 0;

private:
    LRESULT OnEditEnd(WPARAM row, LPARAM column)
    {
        m_row = row;
        m_column = column;
        return 17;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CListener, CWnd)
    ON_REGISTERED_MESSAGE(WM_XLISTCTRL_EDIT_END, &CListener::OnEditEnd)
END_MESSAGE_MAP()
} // namespace

TEST(RegisteredMessages, AreNumbersOfUnsigned32Bits)
{
    static_assert(std::is_same_v<decltype(WM_XLISTCTRL_EDIT_END), unsigned int const>);
    static_assert(sizeof WM_XLISTCTRL_EDIT_END == 4);
    std::set<unsigned int> numbers;
    for (NamedMessage const & message : ExportedMessages())
    {
        EXPECT_GE(message.number, 0xC000U) << message.name;
        EXPECT_LE(message.number, 0xFFFFU) << message.name;
        numbers.insert(message.number);
    }
    EXPECT_EQ(numbers.size(), 9U);
}

TEST(RegisteredMessages, AnotherModuleGetsTheSameNumberForTheName)
{
    for (NamedMessage const & message : ExportedMessages())
    {
        EXPECT_EQ(RegisterWindowMessageW(message.name), message.number) << message.name;
    }
}

TEST(RegisteredMessages, LinkClickedIsRegisteredAsPushButton)
{
    EXPECT_EQ(WM_XLISTCTRL_LINK_CLICKED, RegisterWindowMessageW(L"WM_XLISTCTRL_PUSHBUTTON"));
    EXPECT_NE(WM_XLISTCTRL_LINK_CLICKED, RegisterWindowMessageW(L"WM_XLISTCTRL_LINK_CLICKED"));
}

TEST(RegisteredMessages, TheInternalOnesAreNotExported)
{
    HMODULE const module = GetModuleHandleW(L"instrument_ui.dll");
    ASSERT_NE(module, nullptr);
    for (char const * name :
         {"WM_XCOMBOLIST_COMPLETE", "WM_XCOMBOLIST_VK_ESCAPE", "WM_XCOMBOLIST_VK_RETURN", "WM_XCOMBOLIST_KEYDOWN",
          "WM_XCOMBOLIST_LBUTTONUP", "WM_XEDIT_KILL_FOCUS", "WM_XEDIT_VK_ESCAPE"})
    {
        EXPECT_EQ(GetProcAddress(module, name), nullptr) << name;
    }
}

TEST(RegisteredMessages, ServeInAMessageMapOfTheHost)
{
    CListener listener;
    ASSERT_TRUE(listener.CreateEx(0, AfxRegisterWndClass(0), L"listener", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    EXPECT_EQ(listener.SendMessage(WM_XLISTCTRL_EDIT_END, 3, 4), 17);
    EXPECT_EQ(listener.m_row, 3U);
    EXPECT_EQ(listener.m_column, 4);
    EXPECT_EQ(listener.SendMessage(WM_XLISTCTRL_COLUMNCLICK, 5, 6), 0);
    EXPECT_EQ(listener.m_row, 3U);
    listener.DestroyWindow();
}
