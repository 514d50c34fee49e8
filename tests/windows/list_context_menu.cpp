// The context menu of a list.

#include "list_InputTest.h"

namespace
{
constexpr UINT first_command = 101;
constexpr UINT second_command = 102;

bool MenuIsOpen()
{
    HWND const menu = ::FindWindowW(L"#32768", nullptr);
    return menu != nullptr && ::IsWindowVisible(menu);
}

struct Choice
{
    int command;
    int row;
    int col;
    friend bool operator==(Choice const &, Choice const &) = default;
};

class ListContextMenu : public list_input::ListInputTest
{
protected:
    void SetUp() override
    {
        ListInputTest::SetUp();
        m_list.PopUpMenu().AppendMenu(MF_STRING, first_command, L"first");
        m_list.PopUpMenu().AppendMenu(MF_STRING, second_command, L"second");
        Listen(m_list);
    }
    void Listen(tests::TestList & list)
    {
        list.m_onContextCommand = [this](int command, int row, int col) { m_choices.push_back({command, row, col}); };
    }
    /// The request for a menu, as the system sends it.
    void AskFor(CPoint screen)
    {
        m_list.SendMessageW(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_list.m_hWnd), MAKELPARAM(screen.x, screen.y));
    }
    /// Requests for a menu that the list passed on to its parent.
    int PassedOn() const { return m_input.Count("parent", WM_CONTEXTMENU); }
    /// Watches for a menu that opens against expectation, and closes it.
    void CloseUnexpected(tests::LaterActions & later)
    {
        for (int times = 0; times < 4; ++times)
        {
            later.Add(
                [this] {
                    ++m_unexpected;
                    ::EndMenu();
                },
                MenuIsOpen);
        }
    }

    std::vector<Choice> m_choices;
    int m_unexpected = 0;
};

TEST_F(ListContextMenu, RightClickOnACellOpensItAndTheChoiceComesWithTheCell)
{
    tests::LaterActions later;
    later.Add(
        [] {
            tests::Key(VK_DOWN);
            tests::Key(VK_DOWN);
            tests::Key(VK_RETURN);
        },
        MenuIsOpen);
    list_input::Click(Screen(Middle(3, 2)), tests::Button::right);
    EXPECT_TRUE(tests::PumpUntil([this] { return !m_choices.empty(); }));
    EXPECT_FALSE(later.Failed());
    EXPECT_EQ(m_choices, (std::vector<Choice>{{second_command, 3, 2}}));
    EXPECT_EQ(m_list.GetSelectedItem(), 3);
    EXPECT_EQ(PassedOn(), 0);
}

TEST_F(ListContextMenu, EscapeChoosesNothing)
{
    tests::LaterActions later;
    later.Add([] { tests::Key(VK_ESCAPE); }, MenuIsOpen);
    AskFor(Screen(Middle(1, 1)));
    EXPECT_TRUE(later.Done());
    EXPECT_FALSE(later.Failed());
    EXPECT_TRUE(m_choices.empty());
    EXPECT_EQ(PassedOn(), 0);
}

TEST_F(ListContextMenu, DisabledCellsHaveIt)
{
    m_list.SetEnabled(2, 0, false);
    tests::LaterActions later;
    later.Add(
        [] {
            tests::Key(VK_DOWN);
            tests::Key(VK_RETURN);
        },
        MenuIsOpen);
    AskFor(Screen(Middle(2, 0)));
    EXPECT_EQ(m_choices, (std::vector<Choice>{{first_command, 2, 0}}));
}

TEST_F(ListContextMenu, HandlerMayGoAwayWhileItIsOpen)
{
    tests::LaterActions later;
    later.Add(
        [this] {
            m_list.m_onContextCommand = nullptr;
            tests::Key(VK_DOWN);
            tests::Key(VK_RETURN);
        },
        MenuIsOpen);
    AskFor(Screen(Middle(2, 0)));
    EXPECT_TRUE(later.Done());
    EXPECT_TRUE(m_choices.empty());
}

TEST_F(ListContextMenu, EmptySpaceHasNoneAndTheRequestGoesToTheParent)
{
    tests::LaterActions later;
    CloseUnexpected(later);
    ClickAt(EmptySpace(), tests::Button::right);
    int const already = PassedOn();
    AskFor(Screen(EmptySpace()));
    EXPECT_EQ(PassedOn(), already + 1);
    EXPECT_EQ(m_unexpected, 0);
    EXPECT_TRUE(m_choices.empty());
}

TEST_F(ListContextMenu, WithoutHandlerTheRequestGoesToTheParent)
{
    tests::LaterActions later;
    CloseUnexpected(later);
    m_list.m_onContextCommand = nullptr;
    AskFor(Screen(Middle(1, 1)));
    EXPECT_EQ(PassedOn(), 1);
    EXPECT_EQ(m_unexpected, 0);
}

TEST_F(ListContextMenu, HeaderHasNone)
{
    tests::LaterActions later;
    CloseUnexpected(later);
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(1, 0, LVIR_BOUNDS, cell));
    // A header that covers rows.
    ::SetWindowPos(m_list.Header(), nullptr, 0, 0, 320, cell.bottom, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CRect header;
    ::GetWindowRect(m_list.Header(), &header);
    int col = -1;
    ASSERT_EQ(m_list.GetPointItem(cell.CenterPoint(), col), 1);
    AskFor(Screen(cell.CenterPoint()));
    EXPECT_EQ(PassedOn(), 1);
    AskFor({header.left + 20, header.bottom - 1});
    EXPECT_EQ(PassedOn(), 2);
    EXPECT_EQ(m_unexpected, 0);
}

TEST_F(ListContextMenu, FirstPixelBelowTheHeaderHasIt)
{
    tests::LaterActions later;
    later.Add(
        [] {
            tests::Key(VK_DOWN);
            tests::Key(VK_RETURN);
        },
        MenuIsOpen);
    CRect header;
    ::GetWindowRect(m_list.Header(), &header);
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(0, 0, LVIR_BOUNDS, cell));
    CPoint const at(header.left + 20, std::max<int>(header.bottom, Screen(cell.TopLeft()).y));
    AskFor(at);
    EXPECT_EQ(m_choices, (std::vector<Choice>{{first_command, 0, 0}}));
}

TEST_F(ListContextMenu, KeyboardRequestGoesToTheParent)
{
    tests::LaterActions later;
    CloseUnexpected(later);
    AskFor({-1, -1});
    EXPECT_EQ(PassedOn(), 1);
    EXPECT_EQ(m_unexpected, 0);
}

TEST_F(ListContextMenu, ItemWithoutCellsHasIt)
{
    m_list.InsertForeignItem(0, L"foreign");
    tests::LaterActions later;
    later.Add(
        [] {
            tests::Key(VK_DOWN);
            tests::Key(VK_RETURN);
        },
        MenuIsOpen);
    AskFor(Screen(Middle(0, 1)));
    EXPECT_EQ(m_choices, (std::vector<Choice>{{first_command, 0, 1}}));
}

TEST_F(ListContextMenu, ListFromATemplateHasNoMenuUntilItsHostMakesOne)
{
    tests::ListDialog dialog;
    ASSERT_TRUE(dialog.Open());
    tests::TestList & list = dialog.list;
    list.AddColumns(2);
    list.AddRows(2);
    Listen(list);
    EXPECT_EQ(list.PopUpMenu().GetSafeHmenu(), nullptr);
    tests::MessageRecorder recorder({WM_CONTEXTMENU});
    recorder.Watch(dialog.m_hWnd, "dialog");
    CRect cell;
    ASSERT_TRUE(list.GetSubItemRect(1, 0, LVIR_BOUNDS, cell));
    CPoint const at = tests::ClientPoint(list.m_hWnd, cell.CenterPoint());
    auto const ask = [&] {
        list.SendMessageW(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list.m_hWnd), MAKELPARAM(at.x, at.y));
    };
    ask();
    EXPECT_TRUE(m_choices.empty());
    EXPECT_EQ(recorder.Count("dialog", WM_CONTEXTMENU), 0);

    ASSERT_TRUE(list.PopUpMenu().CreatePopupMenu());
    list.PopUpMenu().AppendMenu(MF_STRING, first_command, L"first");
    ASSERT_TRUE(tests::BringToFront(dialog.m_hWnd));
    tests::LaterActions later;
    later.Add(
        [] {
            tests::Key(VK_DOWN);
            tests::Key(VK_RETURN);
        },
        MenuIsOpen);
    ask();
    EXPECT_EQ(m_choices, (std::vector<Choice>{{first_command, 1, 0}}));
}
} // namespace
