// A client that asks the accessible objects of a table at random, and a host that does its worst meanwhile: its source
// ends the table while a client asks, its callbacks whenever they are called.

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "access_AccessTest.h"
#include "chaos_Chaos.h"
#include "list/table/XTableCtrl.h"

using access_tests::Held;
using access_tests::Number;

namespace
{
class World;

/// Rows whose values differ, and that are written to by a host that acts.
class ActingRows : public TableSource
{
public:
    explicit ActingRows(World & world) : m_world(world) {}

    TableRow RowCount() const override
    {
        Act();
        return static_cast<TableRow>(m_ticked.size());
    }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        Act();
        if (row >= m_ticked.size())
            return false;
        switch (column)
        {
        case 0:
            value.SetText(L"row");
            return true;
        case 1:
            value.SetTick(m_ticked[row]);
            return true;
        case 2:
            value.SetLink(L"link");
            return true;
        default:
            value.SetProgress((row * 37U) % 100);
            return true;
        }
    }
    TableKey Key(TableRow row) const override
    {
        Act();
        return row;
    }
    TableRow RowOfKey(TableKey key) const override
    {
        Act();
        return key < m_ticked.size() ? static_cast<TableRow>(key) : no_table_row;
    }
    bool Write(TableRow row, unsigned int column, TableValue const & value) override;

    void Resize(int count) { m_ticked.resize(static_cast<std::size_t>(count)); }

private:
    void Act() const;

    World & m_world;
    std::vector<bool> m_ticked = std::vector<bool>(12);
};

class World final : public chaos::Chaos
{
public:
    explicit World(unsigned int seed) : Chaos(seed) {}
    ~World() override
    {
        m_kept.clear();
        m_table.reset();
    }

    /// What the source does while a client asks, and at no other time: the table says that it must not.
    void ActWhileAsked()
    {
        if (std::exchange(m_asking, false))
        {
            Disturb();
            m_asking = true;
        }
    }

    static inline int s_answered = 0;
    static inline int s_lost = 0;

protected:
    void Operate() override
    {
        bool const asking = std::exchange(m_asking, false);
        if (OneIn(20))
            Note("pump"), tests::PumpPosted(20);
        else if (m_table == nullptr || m_table->m_hWnd == nullptr)
            Open();
        else if (m_kept.empty() || OneIn(8))
            AskForObject();
        else if (OneIn(3))
            ActAsHost();
        else
            ActAsClient();
        m_asking = asking;
    }
    void CheckInvariants() override
    {
        for (HRESULT const result : std::exchange(m_unexpected, {}))
            ADD_FAILURE() << "an answer that is not documented: " << std::hex << result;
    }

private:
    static constexpr std::size_t most_kept = 30;

    void Open()
    {
        Note("open");
        m_source = std::make_shared<ActingRows>(*this);
        m_table = std::make_unique<CXTableCtrl>();
        std::vector<TableColumn> columns(4);
        columns[0].editable = true;
        columns[1].kind = TableKind::tick;
        columns[1].editable = true;
        for (TableColumn & column : columns)
            column.title = L"column";
        columns[3].check = nullptr;
        m_table->SetColumns(columns);
        m_table->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &m_host, 7);
        m_table->SetSource(m_source);
        m_table->m_onSelectionChange = [this] { Disturb(); };
        m_table->m_onLinkClick = [this](TableRow, unsigned int) { Disturb(); };
        m_table->m_onEditRefused = [this](TableRow, unsigned int, TableRefused const &) {
            Disturb();
            return std::wstring();
        };
    }
    void ActAsHost()
    {
        Note("host");
        CXTableCtrl & table = *m_table;
        auto const row = static_cast<TableRow>(Pick(14));
        auto const column = static_cast<unsigned int>(Pick(5));
        switch (Pick(14))
        {
        case 0:
            if (OneIn(3))
                std::exchange(m_table, nullptr).reset();
            return;
        case 1:
            if (OneIn(3))
                table.DestroyWindow();
            return;
        case 2:
            table.SortBy({{column, OneIn(2)}});
            return;
        case 3:
            table.HideTableColumn(column, OneIn(2));
            return;
        case 4:
            table.MoveTableColumn(column, static_cast<unsigned int>(Pick(4)));
            return;
        case 5:
            table.EnableCellCursor(!OneIn(4));
            return;
        case 6:
            table.SetCellCursor(row, column);
            return;
        case 7:
            table.GoToRow(row);
            return;
        case 8:
            if (m_source != nullptr)
                m_source->Resize(Pick(14));
            table.Feed()->AllChanged();
            return;
        case 9:
            if (OneIn(4))
                m_source.reset();
            return;
        case 10:
            table.SetFrozenColumns(static_cast<unsigned int>(Pick(3)));
            return;
        case 11:
            table.EndEdit(OneIn(2));
            return;
        case 12:
            table.SetFocus();
            return;
        default: {
            constexpr WPARAM keys[] = {VK_LEFT, VK_RIGHT, VK_HOME, VK_END, VK_SPACE, VK_TAB, VK_RETURN, VK_F2, VK_DOWN};
            table.SendMessageW(WM_KEYDOWN, keys[Pick(static_cast<int>(std::size(keys)))], 1);
            return;
        }
        }
    }

    void AskForObject()
    {
        Note("object");
        Held<IAccessible> object;
        access_tests::Ask(m_table->m_hWnd, object);
        Keep(std::exchange(*object.Out(), nullptr));
    }
    void Keep(IAccessible * object)
    {
        if (object == nullptr)
            return;
        if (m_kept.size() >= most_kept)
            m_kept.erase(m_kept.begin() + Pick(static_cast<int>(m_kept.size())));
        m_kept.push_back(std::make_shared<Held<IAccessible>>());
        *m_kept.back()->Out() = object;
    }
    void Keep(IUnknown * given)
    {
        IAccessible * object = nullptr;
        IEnumVARIANT * several = nullptr;
        if (given == nullptr)
            return;
        given->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void **>(&object));
        given->QueryInterface(__uuidof(IEnumVARIANT), reinterpret_cast<void **>(&several));
        given->Release();
        Keep(object);
        VARIANT next{};
        while (several != nullptr && several->Next(1, &next, nullptr) == S_OK)
            Keep(static_cast<IUnknown *>(next.pdispVal));
        if (several != nullptr)
            several->Release();
    }
    long Child()
    {
        switch (Pick(4))
        {
        case 0:
            return Pick(15);
        case 1:
        case 2:
            return accessible::NumberOf({Pick(14), Pick(5)});
        default:
            return CHILDID_SELF;
        }
    }
    void Expect(HRESULT result)
    {
        static std::set<HRESULT> const documented = {
            S_OK, S_FALSE, E_INVALIDARG, CO_E_OBJNOTCONNECTED, E_NOTIMPL, E_NOINTERFACE, DISP_E_MEMBERNOTFOUND};
        if (!documented.contains(result))
            m_unexpected.push_back(result);
        s_answered += result == S_OK ? 1 : 0;
        s_lost += result == CO_E_OBJNOTCONNECTED ? 1 : 0;
    }
    void ActAsClient()
    {
        // Held, as the host may have the client forget it.
        auto const kept = m_kept[static_cast<std::size_t>(Pick(static_cast<int>(m_kept.size())))];
        IAccessible & object = *kept->Get();
        VARIANT const which = Number(Child());
        VARIANT given{};
        BSTR text = nullptr;
        IDispatch * dispatch = nullptr;
        long numbers[4] = {};
        int const question = Pick(14);
        // What these two do paints and sends messages, within which nobody stands the table's end.
        m_asking = question > 1;
        switch (question)
        {
        case 0:
            Note("action"), Expect(object.accDoDefaultAction(which));
            break;
        case 1:
            Note("select"), Expect(object.accSelect(1 << Pick(5), which));
            break;
        case 2:
            Note("name"), Expect(object.get_accName(which, &text));
            break;
        case 3:
            Note("value"), Expect(object.get_accValue(which, &text));
            break;
        case 4:
            Note("action text"), Expect(object.get_accDefaultAction(which, &text));
            break;
        case 5:
            Note("role"), Expect(object.get_accRole(which, &given));
            break;
        case 6:
            Note("state"), Expect(object.get_accState(which, &given));
            break;
        case 7:
            Note("count"), Expect(object.get_accChildCount(numbers));
            break;
        case 8:
        case 9:
            Note("child"), Expect(object.get_accChild(which, &dispatch));
            break;
        case 10:
            Note("focus"), Expect(object.get_accFocus(&given));
            break;
        case 11:
            Note("selection"), Expect(object.get_accSelection(&given));
            break;
        case 12:
            Note("location");
            Expect(object.accLocation(&numbers[0], &numbers[1], &numbers[2], &numbers[3], which));
            break;
        default:
            Note("navigate"), Expect(object.accNavigate(1 + Pick(8), which, &given));
            break;
        }
        ::SysFreeString(text);
        Keep(static_cast<IUnknown *>(dispatch));
        if (given.vt == VT_DISPATCH || given.vt == VT_UNKNOWN)
            Keep(given.punkVal);
        m_asking = false;
    }

    access_tests::ComScope m_com;
    tests::ScopedWindow m_host{CRect(100, 100, 500, 400)};
    std::shared_ptr<ActingRows> m_source;
    std::unique_ptr<CXTableCtrl> m_table;
    std::vector<std::shared_ptr<Held<IAccessible>>> m_kept;
    std::vector<HRESULT> m_unexpected;
    /// A client asks, and no native code is running.
    bool m_asking = false;
};

void ActingRows::Act() const
{
    m_world.ActWhileAsked();
}

bool ActingRows::Write(TableRow row, unsigned int, TableValue const & value)
{
    m_world.Disturb();
    if (row >= m_ticked.size() || m_world.OneIn(4))
        return false;
    m_ticked[row] = value.Whole() != 0;
    return true;
}

TEST(ChaosAccessTable, ClientsAskWhatTheyLike)
{
    chaos::RunAll<World>();
    EXPECT_GT(World::s_answered, 500);
    EXPECT_GT(World::s_lost, 50);
}
} // namespace
