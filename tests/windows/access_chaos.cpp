// A client that asks accessible objects at random, and a host that does its worst meanwhile.

#include <array>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "access_AccessTest.h"
#include "chaos_Chaos.h"
#include "controls/ColorButton.h"
#include "controls/IdNameMultiselectCtrl.h"
#include "controls/LevelSliderCtrl.h"
#include "controls/XEditBrowseCtrl.h"
#include "frame/LifeWatch.h"
#include "ListTestHost.h"
#include "segments/DigiStatic.h"

using access_tests::Held;
using access_tests::Number;

namespace
{
constexpr DWORD child_style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;

/// A control whose host does something whenever it is asked for anything.
template <class Control> class Hostile : public Control
{
public:
    explicit Hostile(chaos::Chaos & host) : m_world(host) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        switch (message)
        {
        case WM_GETTEXT:
        case WM_GETTEXTLENGTH:
        case WM_GETOBJECT:
        case BM_GETSTATE:
        case BM_CLICK:
        case TBM_GETPOS:
        case TBM_GETRANGEMAX: {
            LifeWatch const life(m_life);
            HWND const window = this->m_hWnd;
            m_world.Disturb();
            if (life.Over() || this->m_hWnd != window || window == nullptr)
                return 0;
            break;
        }
        default:
            break;
        }
        return Control::WindowProc(message, wParam, lParam);
    }

private:
    chaos::Chaos & m_world;
    LifeSign m_life;
};

/// A field without a dialog.
class Field : public CXEditBrowseCtrl
{
public:
    void OnBrowse() override {}
};

/// A kind of cell of the host's own.
class HostileKind : public CXListCellKind
{
public:
    explicit HostileKind(chaos::Chaos & host) : m_world(host) {}
    void Paint(XLISTCTRLDATA const &, CDC & dc, CRect const & rect, COLORREF, COLORREF background) override
    {
        dc.FillSolidRect(rect, background);
    }
    std::optional<Change> Press(XLISTCTRLDATA &, CRect const &, CPoint) override
    {
        m_world.Disturb();
        return Change{};
    }
    std::optional<CString> ExportText(XLISTCTRLDATA const &) const override
    {
        m_world.Disturb();
        return CString(L"own");
    }

private:
    chaos::Chaos & m_world;
};

class World final : public chaos::Chaos
{
public:
    explicit World(unsigned int seed) : Chaos(seed)
    {
        m_strings[1] = L"one";
        m_strings[2] = L"two";
        m_host.onNotify = [this](NMHDR const & header) {
            // The native list stands no loss of its rows while it changes states.
            if (header.code == LVN_INSERTITEM)
                Disturb();
        };
    }
    ~World() override
    {
        m_host.onNotify = nullptr;
        m_kept.clear();
        EndAll();
    }

    // What came of the client's calls, so that nobody takes a client for one that asks nothing.
    static inline int s_answered = 0;
    static inline int s_refused = 0;
    static inline int s_lost = 0;

protected:
    void Operate() override
    {
        if (OneIn(30))
            Note("pump"), tests::PumpPosted(20);
        else if (m_kept.empty() || OneIn(8))
            AskForObject();
        else if (OneIn(3))
            ActAsHost();
        else
            ActAsClient();
    }
    void CheckInvariants() override
    {
        for (HRESULT const result : std::exchange(m_unexpected, {}))
            ADD_FAILURE() << "an answer that is not documented: " << std::hex << result;
    }

private:
    /// An object that the client keeps.
    struct Kept
    {
        explicit Kept(IAccessible * kept, bool isControl) : control(isControl) { *object.Out() = kept; }
        Held<IAccessible> object;
        /// The object of a control itself. Once it has lost that, it never finds it again.
        bool control;
        bool lost = false;
    };

    static constexpr std::size_t most_kept = 40;
    static constexpr int most_rows = 20;

    // --- The host ---

    template <class Control, class... Arguments> void Make(std::unique_ptr<Control> & control, Arguments... arguments)
    {
        if (control == nullptr)
            control = std::make_unique<Hostile<Control>>(*this);
        if (control->m_hWnd == nullptr)
            control->Create(arguments...);
    }
    void OpenAll()
    {
        Make(m_button, L"&Button", child_style, CRect(10, 210, 80, 230), &m_host, 11U);
        Make(m_slider, child_style | TBS_HORZ, CRect(90, 210, 180, 230), &m_host, 12U);
        Make(m_display, L"display", WS_CHILD | WS_VISIBLE, CRect(190, 210, 280, 230), &m_host, 13U);
        Make(m_browse, child_style | WS_BORDER, CRect(10, 240, 150, 260), &m_host, 14U);
        Make(m_multiselect, L"group", child_style, CRect(160, 240, 300, 340), &m_host, 15U);
        Make(m_list, tests::TestList::default_style, CRect(0, 0, 360, 200), static_cast<CWnd *>(&m_host), 16U);
        if (m_list == nullptr || m_list->m_hWnd == nullptr || m_list->GetColumnCount() > 0)
            return;
        m_list->AddColumns(3);
        m_list->AddRows(5);
        auto const act = [this](int, int) { Disturb(); };
        m_list->m_onCellClick = act;
        m_list->m_onStateChange = act;
    }
    void EndAll()
    {
        m_list.reset();
        m_multiselect.reset();
        m_browse.reset();
        m_display.reset();
        m_slider.reset();
        m_button.reset();
    }
    /// Now and then, so that there is something to ask for most of the time.
    template <class Control> void End(std::unique_ptr<Control> & control)
    {
        if (!OneIn(5))
            return;
        if (OneIn(2))
            std::exchange(control, nullptr).reset();
        else if (control != nullptr && control->m_hWnd != nullptr)
            control->DestroyWindow();
    }
    bool HasList() const { return m_list != nullptr && m_list->m_hWnd != nullptr; }

    void ActAsHost()
    {
        Note("host");
        switch (Pick(24))
        {
        case 0:
            return End(m_list);
        case 1:
            return End(m_button);
        case 2:
            return End(m_slider);
        case 3:
            return End(m_display);
        case 4:
            return End(m_browse);
        case 5:
            return End(m_multiselect);
        case 6:
        case 7:
        case 23:
            return OpenAll();
        case 8:
            if (m_display != nullptr)
                m_display->SetText(OneIn(4) ? L"?" : std::to_wstring(Pick(100)).c_str());
            return;
        case 9:
            if (m_slider != nullptr && m_slider->m_hWnd != nullptr)
                m_slider->SetPos(Pick(100));
            return;
        case 10:
            if (m_browse != nullptr && m_browse->m_hWnd != nullptr)
                m_browse->PrepareIdNameBrowser();
            return;
        case 11:
            if (m_multiselect == nullptr)
                return;
            m_multiselect->SetTheMap({{1, L"left"}, {2, L"right"}, {Pick(9), L"other"}});
            m_multiselect->RefreshContent();
            return;
        case 12:
            if (m_button != nullptr && m_button->m_hWnd != nullptr)
                m_button->EnableWindow(OneIn(2) ? FALSE : TRUE);
            return;
        default:
            if (HasList())
                ActOnList();
            return;
        }
    }
    void ActOnList()
    {
        int const row = Pick(m_list->GetItemCount() + 1);
        int const col = Pick(m_list->GetColumnCount() + 1);
        switch (Pick(16))
        {
        case 0:
            m_list->DeleteItem(row);
            return;
        case 1:
            m_list->DeleteAllItems();
            return;
        case 2:
            m_list->EnableCellCursor(!OneIn(3));
            return;
        case 3:
            m_list->SetCellCursor(row, col);
            return;
        case 4:
            m_list->SetCheckbox(row, col, XLC_UNCHECKED);
            return;
        case 5:
            m_list->SetEdit(row, col, true);
            return;
        case 6:
            m_list->SetComboBox(row, col, &m_strings, 1, 1);
            return;
        case 7:
            m_list->SetCellKind(row, col, std::make_shared<HostileKind>(*this));
            return;
        case 8:
            m_list->SetProgress(row, col, true, nullptr);
            return;
        case 9:
            m_list->SetEnabled(row, col, OneIn(2));
            return;
        case 10:
            m_list->SetBatchInsertMode(OneIn(3));
            return;
        case 11:
            m_list->SetHeaderCheckedState(col, Pick(XHC_END));
            return;
        case 12:
            m_list->SortByColumn(col, OneIn(2), true, nullptr);
            return;
        case 13:
            if (m_list->GetColumnCount() < 6)
                m_list->AddColumns(1);
            else
                m_list->DeleteColumn(col);
            return;
        case 14: {
            constexpr std::array<UINT, 8> keys = {VK_LEFT,   VK_RIGHT, VK_SPACE, VK_TAB,
                                                  VK_RETURN, VK_F2,    VK_DOWN,  VK_HOME};
            m_list->SendMessageW(WM_KEYDOWN, keys[static_cast<std::size_t>(Pick(keys.size()))], 0);
            return;
        }
        default:
            if (m_list->GetItemCount() < most_rows)
                m_list->InsertItem(Pick(m_list->GetItemCount() + 1), L"row", nullptr, 0);
            return;
        }
    }

    // --- The client ---

    void AskForObject()
    {
        Note("object");
        std::vector<HWND> windows;
        for (HWND child = ::GetWindow(m_host.m_hWnd, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
            windows.push_back(child);
        if (HasList())
            windows.push_back(m_list->Header());
        if (m_multiselect != nullptr && m_multiselect->m_hWnd != nullptr)
            windows.push_back(::GetDlgItem(m_multiselect->m_hWnd, 32802));
        if (HWND const combo = tests::OpenCombo())
            windows.push_back(combo);
        if (windows.empty())
            return OpenAll();
        Held<IAccessible> object;
        access_tests::Ask(windows[static_cast<std::size_t>(Pick(static_cast<int>(windows.size())))], object);
        Keep(std::exchange(*object.Out(), nullptr), true);
    }
    void Keep(IAccessible * object, bool control)
    {
        if (object == nullptr)
            return;
        if (m_kept.size() >= most_kept)
            m_kept.erase(m_kept.begin() + Pick(static_cast<int>(m_kept.size())));
        m_kept.push_back(std::make_shared<Kept>(object, control));
    }
    void Keep(VARIANT const & given)
    {
        if (given.vt == VT_DISPATCH)
            Keep(given.pdispVal);
        else if (given.vt == VT_UNKNOWN && given.punkVal != nullptr)
            Walk(given.punkVal);
    }
    void Keep(IDispatch * given)
    {
        IAccessible * object = nullptr;
        if (given == nullptr)
            return;
        given->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void **>(&object));
        given->Release();
        Keep(object, false);
    }
    void Walk(IUnknown * several)
    {
        Held<IEnumVARIANT> list;
        several->QueryInterface(__uuidof(IEnumVARIANT), reinterpret_cast<void **>(list.Out()));
        several->Release();
        VARIANT next{};
        while (list.Get() != nullptr && list->Next(1, &next, nullptr) == S_OK)
            Keep(next);
    }
    /// Rows, cells, and what there is not.
    long Child()
    {
        switch (Pick(8))
        {
        case 0:
            return Pick(most_rows + 4);
        case 1:
            return accessible::NumberOf({Pick(most_rows + 2), Pick(8)});
        case 2:
        case 3:
            return accessible::NumberOf({Pick(6), Pick(3)});
        case 4:
            return -Pick(100000);
        case 5:
            return OneIn(2) ? 2147483647L : -2147483647L - 1;
        default:
            return CHILDID_SELF;
        }
    }
    void Expect(Kept & kept, HRESULT result)
    {
        static std::set<HRESULT> const documented = {
            S_OK, S_FALSE, E_INVALIDARG, CO_E_OBJNOTCONNECTED, E_NOTIMPL, E_NOINTERFACE, DISP_E_MEMBERNOTFOUND, E_FAIL};
        bool const gone = result == CO_E_OBJNOTCONNECTED;
        ++(gone ? s_lost : result == S_OK ? s_answered : s_refused);
        // Windows that go while their objects are asked for are the system's matter.
        if (!documented.contains(result) && FAILED(result) && kept.control)
            m_unexpected.push_back(result);
        if (kept.control && kept.lost && !gone)
            m_unexpected.push_back(result);
        kept.lost = kept.lost || gone;
        // A few are kept.
        if (gone && !OneIn(4))
            std::erase_if(m_kept, [&](auto const & each) { return each.get() == &kept; });
    }
    void ActAsClient()
    {
        // Held, as the host may have the client forget it.
        auto const kept = m_kept[static_cast<std::size_t>(Pick(static_cast<int>(m_kept.size())))];
        IAccessible & object = *kept->object.Get();
        VARIANT const which = Number(Child());
        VARIANT given{};
        BSTR text = nullptr;
        IDispatch * dispatch = nullptr;
        long numbers[4] = {};
        switch (Pick(18))
        {
        case 0:
            Note("name"), Expect(*kept, object.get_accName(which, &text));
            break;
        case 1:
            Note("value"), Expect(*kept, object.get_accValue(which, &text));
            break;
        case 2:
            Note("action text"), Expect(*kept, object.get_accDefaultAction(which, &text));
            break;
        case 3:
            Note("shortcut"), Expect(*kept, object.get_accKeyboardShortcut(which, &text));
            break;
        case 4:
            Note("role"), Expect(*kept, object.get_accRole(which, &given));
            break;
        case 5:
            Note("state"), Expect(*kept, object.get_accState(which, &given));
            break;
        case 6:
            Note("count"), Expect(*kept, object.get_accChildCount(numbers));
            break;
        case 7:
        case 8:
            Note("child"), Expect(*kept, object.get_accChild(which, &dispatch));
            break;
        case 9:
            Note("parent"), Expect(*kept, object.get_accParent(&dispatch));
            break;
        case 10:
            Note("focus"), Expect(*kept, object.get_accFocus(&given));
            break;
        case 11:
            Note("selection"), Expect(*kept, object.get_accSelection(&given));
            break;
        case 12:
            Note("select"), Expect(*kept, object.accSelect(1 << Pick(5), which));
            break;
        case 13:
            Note("location");
            Expect(*kept, object.accLocation(&numbers[0], &numbers[1], &numbers[2], &numbers[3], which));
            break;
        case 14:
            Note("navigate"), Expect(*kept, object.accNavigate(Pick(10), which, &given));
            break;
        case 15:
            Note("hit"), Expect(*kept, object.accHitTest(100 + Pick(400), 100 + Pick(400), &given));
            break;
        case 16:
        default:
            Note("action"), Expect(*kept, object.accDoDefaultAction(which));
            break;
        }
        ::SysFreeString(text);
        Keep(dispatch);
        Keep(given);
    }

    access_tests::ComScope m_com;
    tests::ListParent m_host{CRect(100, 100, 500, 500), WS_POPUP | WS_VISIBLE};
    std::map<int, CString> m_strings;
    std::unique_ptr<tests::TestList> m_list;
    std::unique_ptr<CColorButton> m_button;
    std::unique_ptr<CLevelSliderCtrl> m_slider;
    std::unique_ptr<CDigiStatic> m_display;
    std::unique_ptr<Field> m_browse;
    std::unique_ptr<CIdNameMultiselectCtrl> m_multiselect;
    std::vector<std::shared_ptr<Kept>> m_kept;
    std::vector<HRESULT> m_unexpected;
};

TEST(ChaosAccess, ClientsAskWhatTheyLike)
{
    chaos::RunAll<World>();
    EXPECT_GT(World::s_answered, 500);
    EXPECT_GT(World::s_refused, 500);
    EXPECT_GT(World::s_lost, 100);
}
} // namespace
