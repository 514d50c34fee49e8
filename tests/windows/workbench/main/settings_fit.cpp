// What the controls of the settings show is whole in each language; the keys that a box has.

#include <algorithm>
#include <string>
#include <vector>

#include "logic/Texts.h"
#include "MainWindowTest.h"

namespace
{
constexpr int list_page = 3;

class WorkbenchSettingsFit : public tests::MainWindowTest
{
protected:
    void TearDown() override
    {
        workbench::UseLanguage(1033);
        ::SetThreadLocale(m_locale);
        ::SetThreadUILanguage(0);
        MainWindowTest::TearDown();
    }
    CSettingsSheet & Sheet() { return m_window->SettingsSheet(); }
    void OpenSettings(int page)
    {
        ASSERT_TRUE(m_window->ShowSettings());
        ASSERT_TRUE(tests::PumpUntil([this] { return ::GetActiveWindow() == Sheet().m_hWnd; }));
        Sheet().SetActivePage(page);
    }
    CListBox & Order() { return *static_cast<CListBox *>(Sheet().GetPage(list_page)->GetDlgItem(IDC_COLUMN_ORDER)); }
    static bool InMenu()
    {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) && (info.flags & GUI_INMENUMODE) != 0;
    }
    static std::vector<DWORD_PTR> ItemsOf(CListBox const & box)
    {
        std::vector<DWORD_PTR> items;
        for (int place = 0; place < box.GetCount(); ++place)
        {
            items.push_back(box.GetItemData(place));
        }
        return items;
    }
    static CRect PlaceOf(CWnd const & window)
    {
        CRect place;
        window.GetWindowRect(&place);
        return place;
    }

private:
    LCID const m_locale = ::GetThreadLocale();
};
} // namespace

TEST_F(WorkbenchSettingsFit, EachChoiceOfABoxIsShownWhole)
{
    for (workbench::LanguageFacts const & language : workbench::language_facts)
    {
        m_window->ChooseLanguage(language.id);
        int boxes = 0;
        for (int page = 0; page < 5; ++page)
        {
            ASSERT_NO_FATAL_FAILURE(OpenSettings(page));
            CPropertyPage * const shown = Sheet().GetPage(page);
            for (CWnd * child = shown->GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
            {
                COMBOBOXINFO info{};
                info.cbSize = sizeof info;
                wchar_t name[20] = L"";
                ::GetClassNameW(child->m_hWnd, name, static_cast<int>(std::size(name)));
                if (::lstrcmpiW(name, L"COMBOBOX") != 0 || !::GetComboBoxInfo(child->m_hWnd, &info))
                {
                    continue;
                }
                auto & box = *static_cast<CComboBox *>(child);
                CClientDC dc(&box);
                CFont * const former = dc.SelectObject(box.GetFont());
                for (int item = 0; item < box.GetCount(); ++item)
                {
                    CString text;
                    box.GetLBText(item, text);
                    EXPECT_GE(CRect(info.rcItem).Width(), dc.GetTextExtent(text).cx + 4)
                        << language.id << ' ' << text.GetString();
                }
                dc.SelectObject(former);
                ++boxes;
            }
        }
        EXPECT_GE(boxes, 6) << language.id;
        m_window->CloseDialogs();
    }
}

TEST_F(WorkbenchSettingsFit, TheOrderShowsWholeColumnsClearOfWhatIsBelow)
{
    ASSERT_NO_FATAL_FAILURE(OpenSettings(list_page));
    CListBox & order = Order();
    ASSERT_GT(order.GetCount(), 10);
    CRect inside;
    order.GetClientRect(&inside);
    int const height = order.GetItemHeight(0);
    EXPECT_EQ(inside.Height() % height, 0) << inside.Height() << " for lines of " << height;
    EXPECT_GE(inside.Height() / height, 5);
    EXPECT_LT(PlaceOf(order).bottom, PlaceOf(*Sheet().GetPage(list_page)->GetDlgItem(IDC_CONTRAST)).top);
}

TEST_F(WorkbenchSettingsFit, AltWithAnArrowMovesTheColumnAndOpensNoMenu)
{
    ASSERT_NO_FATAL_FAILURE(OpenSettings(list_page));
    CListBox & order = Order();
    order.SetFocus();
    order.SetCurSel(2);
    std::vector<DWORD_PTR> moved = ItemsOf(order);
    std::swap(moved[2], moved[3]);
    tests::Key(VK_DOWN, {VK_MENU});
    ASSERT_TRUE(tests::PumpUntil([&] { return ItemsOf(order) == moved; }));
    EXPECT_EQ(order.GetCurSel(), 3);
    tests::PumpPosted();
    EXPECT_FALSE(InMenu());
    // The keys that follow are the box's, not a menu's.
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([&] { return order.GetCurSel() == 4; }));
    EXPECT_EQ(ItemsOf(order), moved);
    tests::Key(VK_UP, {VK_MENU});
    std::swap(moved[4], moved[3]);
    ASSERT_TRUE(tests::PumpUntil([&] { return ItemsOf(order) == moved; }));
    tests::PumpPosted();
    EXPECT_FALSE(InMenu());
    EXPECT_EQ(::GetFocus(), order.m_hWnd);
    // At the end it stays.
    order.SetCurSel(0);
    tests::Key(VK_UP, {VK_MENU});
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([&] { return order.GetCurSel() == 1; }));
    EXPECT_EQ(ItemsOf(order), moved);
}
