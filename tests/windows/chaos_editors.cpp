// A host that does its worst while an editor of the report list opens, is at work and ends.

#include <memory>
#include <utility>

#include "chaos_Chaos.h"
#include "ListTestHost.h"

namespace
{
constexpr UINT edit_id = 99;
// Between the combo and its drop-down.
constexpr UINT drop_item_chosen = WM_USER + 1;
constexpr UINT toggle_drop = WM_USER + 0x65;

class EditorWorld : public chaos::Chaos
{
public:
    /// Its cache of device contexts, for windows that paint within one another: it grows to that size and stays.
    static constexpr int kept_by_the_system = 48;

    explicit EditorWorld(unsigned int seed) : Chaos(seed)
    {
        m_button.Create(L"b", WS_CHILD | WS_VISIBLE, CRect(5, 210, 60, 230), &m_host, 32);
        m_host.onNotify = [this](NMHDR const & header) { Hear(header); };
    }
    ~EditorWorld() override
    {
        m_host.onNotify = nullptr;
        m_list.reset();
        m_button.DestroyWindow();
    }

protected:
    /// Disturbs with what its editors tell and ask it.
    class List : public tests::TestList
    {
    public:
        explicit List(EditorWorld & world) : m_world(world) {}

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            bool const tells = message == WM_COMMAND;
            bool const ofEdit = tells && LOWORD(wParam) == edit_id;
            bool const ofFocus = ofEdit && (HIWORD(wParam) == EN_SETFOCUS || HIWORD(wParam) == EN_KILLFOCUS);
            // What an edit tells of its text or asks may come within native code of the list, which does not stand the
            // loss of its rows.
            bool const within = (ofEdit && !ofFocus) || message == WM_CTLCOLOREDIT;
            if ((tells && !within) || (within && m_native == 0))
            {
                EditorWorld & world = m_world;
                List const * const self = this;
                HWND const outer = world.m_telling;
                if (ofEdit)
                    world.m_telling = reinterpret_cast<HWND>(lParam);
                world.Disturb();
                world.m_telling = outer;
                if (world.m_list.get() != self || m_hWnd == nullptr)
                    return 0;
            }
            return TestList::WindowProc(message, wParam, lParam);
        }
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            EditorWorld const & world = m_world;
            List const * const self = this;
            ++m_native;
            LRESULT const result = TestList::DefWindowProc(message, wParam, lParam);
            if (world.m_list.get() == self)
                --m_native;
            return result;
        }

    private:
        EditorWorld & m_world;
        int m_native = 0;
    };

    void Hear(NMHDR const & header)
    {
        switch (header.code)
        {
        case NM_SETFOCUS:
        case NM_KILLFOCUS:
            Disturb();
            break;
        case LVN_ITEMCHANGED:
            // The native list does not stand the loss of a row while it changes states.
            if ((reinterpret_cast<NMLISTVIEW const &>(header).uChanged & LVIF_STATE) == 0)
                Disturb();
            break;
        default:
            break;
        }
    }

    HWND Edit() const { return m_list != nullptr ? tests::OpenEditOf(*m_list) : nullptr; }
    /// None that tells of a change: the native edit does not stand another one meanwhile.
    HWND TypedEdit() const { return Edit() != m_telling ? Edit() : nullptr; }
    static HWND Combo() { return tests::OpenCombo(); }

    void Open()
    {
        if (m_list == nullptr)
            m_list = std::make_unique<List>(*this);
        if (!m_list->Create(tests::TestList::default_style, CRect(0, 0, 360, 200), &m_host, tests::TestList::id))
            return;
        m_list->m_onStateChange = [this](int, int) { Disturb(); };
        m_list->AddColumns(3);
        AddRows();
    }
    void AddRows()
    {
        std::map<int, wchar_t const *> const entries{{1, L"one"}, {2, L"two"}, {3, L"three"}};
        for (int i = 0; i < 4; ++i)
        {
            int const row = m_list != nullptr ? m_list->AddItem(L"row", nullptr, i) : -1;
            if (row < 0)
                return;
            m_list->SetEdit(row, 1, true);
            if (m_list != nullptr)
                m_list->SetComboBox(row, 2, entries, 1 + i % 3, 1);
        }
    }
    void EndList() { std::unique_ptr<List> const list = std::move(m_list); }

    void Operate() override
    {
        if (m_list == nullptr || m_list->m_hWnd == nullptr)
        {
            Note("open the list");
            Open();
            return;
        }
        int const row = Pick(m_list->GetItemCount() + 2) - 1;
        switch (Pick(24))
        {
        case 0:
        case 1:
        case 2:
            Note("open an edit");
            m_list->DrawEditControl(row, 1);
            break;
        case 3:
        case 4:
        case 5:
            Note("open a combo");
            m_list->DrawComboBoxControl(row, 2);
            break;
        case 6:
            Note("type into the edit");
            ::SendMessageW(TypedEdit(), WM_CHAR, L'a' + static_cast<WPARAM>(Pick(26)), 0);
            break;
        case 7:
            Note("Return in the edit");
            ::SendMessageW(Edit(), WM_CHAR, VK_RETURN, 0);
            break;
        case 8:
            Note("Escape in the edit");
            ::SendMessageW(Edit(), WM_CHAR, VK_ESCAPE, 0);
            break;
        case 9:
            Note("a text for the edit");
            ::SendMessageW(TypedEdit(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"text"));
            break;
        case 10:
            Note("Return in the combo");
            ::SendMessageW(Combo(), WM_CHAR, VK_RETURN, 0);
            break;
        case 11:
            Note("Escape in the combo");
            ::SendMessageW(Combo(), WM_CHAR, VK_ESCAPE, 0);
            break;
        case 12:
            Note("choose in the combo");
            ::SendMessageW(Combo(), CB_SETCURSEL, static_cast<WPARAM>(Pick(3)), 0);
            break;
        case 13:
            Note("open or close the drop-down");
            ::SendMessageW(Combo(), toggle_drop, 0, 0);
            break;
        case 14:
            Note("choose in the drop-down");
            ::PostMessageW(Combo(), drop_item_chosen, static_cast<WPARAM>(Pick(3)), 0);
            break;
        case 15:
        case 16:
            Note("a timer");
            m_list->SendMessage(WM_TIMER, static_cast<WPARAM>(1 + Pick(4)));
            break;
        case 17:
            Note("give the focus away");
            m_button.SetFocus();
            break;
        case 18:
            Note("delete a row");
            m_list->DeleteItem(row);
            break;
        case 19:
            Note("more rows");
            if (m_list->GetItemCount() < 12)
                AddRows();
            else
                m_list->DeleteAllItems();
            break;
        case 20:
            Note("sort");
            m_list->SortByColumn(Pick(3), OneIn(2), false, nullptr);
            break;
        case 21:
            Note("handle messages");
            tests::PumpPosted(20);
            break;
        case 22:
            if (OneIn(3))
            {
                Note("destroy the window");
                m_list->DestroyWindow();
            }
            break;
        default:
            if (OneIn(3))
            {
                Note("delete the list");
                EndList();
            }
            break;
        }
    }

    void CheckInvariants() override
    {
        if (m_list == nullptr || m_list->m_hWnd == nullptr)
        {
            EXPECT_EQ(Combo(), nullptr) << "a combo without its list";
        }
    }

private:
    tests::ListParent m_host;
    CButton m_button;
    std::unique_ptr<List> m_list;
    /// The edit that is telling something.
    HWND m_telling = nullptr;
};

TEST(ChaosEditors, NoHostBreaksTheListByItsEditors)
{
    chaos::RunAll<EditorWorld>();
    // Nobody keeps the mouse, and nobody the screen.
    EXPECT_EQ(::GetCapture(), nullptr);
    tests::ScopedWindow window;
    EXPECT_TRUE(::LockWindowUpdate(window.m_hWnd));
    ::LockWindowUpdate(nullptr);
}
} // namespace
