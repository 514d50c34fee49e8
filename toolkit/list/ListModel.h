#pragma once
// The rows and cells of a list, and what operations and presses make of them. Knows no window: the native list, which
// keeps the order of the items and the texts that they show, is behind an interface.

#include <functional>
#include <span>
#include <utility>
#include <vector>

#include "frame/LifeWatch.h"
#include "list/CellKind.h"
#include "list/RowMemory.h"
#include "list/XListInput.h"
#include "list/XListRowPool.h"
#include "list/XListSearch.h"

/// The native list, as a model of its rows needs it. What says so can run the host's code, which may change rows or end
/// the list with its model.
class ListItems
{
public:
    /// Stands for the native list as long as it is the same; null without one.
    virtual void const * Identity() const = 0;
    virtual int RowCount() const = 0;
    /// As the list counts them.
    virtual int ColumnCount() const = 0;
    /// What hangs from the item of a row; false without that item.
    virtual bool ObjectAt(int row, XLISTCTRLROW *& object) const = 0;
    /// The row from whose item the object hangs; -1 if there is none.
    virtual int FindObject(XLISTCTRLROW const & object) const = 0;
    /// What names an item wherever it moves, and where it is then; -1 if it is gone.
    virtual unsigned int IdOf(int row) const = 0;
    virtual int FindId(unsigned int id) const = 0;
    /// All objects from the top; null where an item has none of the model's.
    virtual std::vector<XLISTCTRLROW *> ObjectsFromTop() const = 0;
    /// The user has changed some cell.
    virtual void MarkModified() = 0;
    /// The headers' check boxes follow the cells of their columns and drive them.
    virtual bool HeadersFollow() const = 0;
    /// -1 for a column without a header.
    virtual int HeaderState(int col) const = 0;

    /// False while repaints of single cells are suspended.
    virtual bool Repaints() const = 0;

    // These can run the host's code.

    virtual bool SetHeaderState(int col, int state) = 0;
    /// Has the header painted at once.
    virtual void UpdateHeader() = 0;
    /// Sets the text shown alone; false if that fails.
    virtual bool ShowText(int row, int col, wchar_t const * text) = 0;
    /// Column -1: the whole row.
    virtual void Repaint(int row, int col) = 0;
    /// Tells the parent that the user has changed a check or radio cell.
    virtual void TellOfCheck(int row, int col) = 0;

    // So can these, each of which is a change of rows that the memory is told of, refused or not.

    /// Hangs the object from the item; null for none.
    virtual void Hang(int row, XLISTCTRLROW const * object) = 0;
    /// False if that fails.
    virtual bool Delete(int row) = 0;
    virtual bool DeleteAll() = 0;

protected:
    ~ListItems() = default;
};

class ListModel
{
public:
    explicit ListModel(ListItems & items) : m_items(items) {}
    ListModel(ListModel const &) = delete;
    ListModel & operator=(ListModel const &) = delete;

    // Whoever changes items tells the memory; whoever takes rows gives them back.

    CXListRowPool pool{16};
    mutable RowMemory memory;
    /// Trades of two rows under way: for a moment both share one object.
    int swaps = 0;

    /// Tells whether model, native list and rows are as they were, after a call that can run the host's code.
    class Watch
    {
    public:
        explicit Watch(ListModel const & model)
            : m_model(model),
              m_life(model.m_life),
              m_items(model.m_items.Identity()),
              m_changes(model.memory.Changes())
        {
        }
        Watch(Watch const &) = delete;
        Watch & operator=(Watch const &) = delete;

        /// With or without its native list.
        bool IsThere() const { return !m_life.Over(); }
        bool IsAlive() const { return m_items != nullptr && IsThere() && m_model.m_items.Identity() == m_items; }
        unsigned long long Changes() const { return m_model.memory.Changes() - m_changes; }
        bool IsUnchanged() const { return IsAlive() && Changes() == 0; }

    private:
        ListModel const & m_model;
        LifeWatch m_life;
        void const * m_items;
        unsigned long long m_changes;
    };

    /// Follows a row. After each call that can run the host's code, its place and its cells are asked for again.
    class HeldRow
    {
    public:
        HeldRow(ListModel & model, int row);

        bool IsListAlive() const { return m_watch.IsAlive(); }
        /// The cell, while the row object is not some other row's; null beyond the list's columns or the row's.
        XLISTCTRLDATA * Cell(int col) const;
        /// Where the row is now; -1 if it is gone, or never had an object.
        int Row();

    private:
        bool IsSameRow() const { return m_watch.IsAlive() && m_object != nullptr && m_object->use() == m_use; }

        Watch m_watch;
        ListModel & m_model;
        int m_row;
        XLISTCTRLROW * m_object;
        unsigned int m_use = 0;
    };

    /// Keeps a row object in use that does not hang from an item yet, or for a moment does not any more.
    class Pin
    {
    public:
        Pin(ListModel & model, XLISTCTRLROW const * row) : m_watch(model), m_model(model)
        {
            model.m_pinned.push_back(row);
        }
        ~Pin()
        {
            if (m_watch.IsThere())
                m_model.m_pinned.pop_back();
        }
        Pin(Pin const &) = delete;
        Pin & operator=(Pin const &) = delete;

    private:
        Watch m_watch;
        ListModel & m_model;
    };

    // --- Rows ---

    /// What a new row's first cell has.
    struct NewRow
    {
        COLORREF text;
        COLORREF background;
        int image;
        void const * ptr;
        long long data;
    };
    /// Inserts an item together with a row object. insert hangs the object from a new item and gives the row where that
    /// has landed, or what is negative for a refusal, which takes no row object. The same is returned, or -1 if the
    /// host has deleted the row at once.
    int InsertRow(NewRow const & row, std::function<int(XLISTCTRLROW & object)> const & insert);
    /// Deletes an item and gives its row object back; false if that fails.
    bool DeleteRow(int row);
    bool DeleteAllRows();
    /// After the host has changed rows within an operation on rows: every item has a row object of its own again, and
    /// what hangs from none is back in the pool. spares: objects in use that such items take before new ones.
    void PutRowsInOrder(std::span<XLISTCTRLROW * const> spares = {});

    /// The row object in an item; null where there is none.
    XLISTCTRLROW * RowOf(int row) const;
    /// The row that a row object hangs from; -1 if there is none.
    int PlaceOf(XLISTCTRLROW const * object) const;
    /// A row object with cells for the list's columns.
    XLISTCTRLROW * TakeRow();
    /// Calls visit(XLISTCTRLROW &) for each item's row object, in no particular order. visit runs no code of the
    /// host's.
    template <class Visit> void VisitRows(Visit && visit) const
    {
        if (memory.AreRowsKnown())
        {
            for (std::unique_ptr<XLISTCTRLROW> const & row : pool.InUse())
                visit(*row);
            return;
        }
        for (XLISTCTRLROW * const row : m_items.ObjectsFromTop())
        {
            if (row != nullptr)
                visit(*row);
        }
    }
    /// The topmost row whose object satisfies matches(XLISTCTRLROW const &); -1 if there is none.
    template <class Matches> int FindTopmost(Matches && matches) const
    {
        if (m_items.Identity() == nullptr)
            return -1;
        // While items change, a row given back may still hang from one.
        bool const known = memory.AreRowsKnown();
        return FindTopmostRow(
            known ? pool.InUse() : pool.All(), known, [this] { return m_items.RowCount(); }, matches,
            [this](XLISTCTRLROW const & row) { return PlaceOf(&row); },
            [this](int row) {
                XLISTCTRLROW * object = nullptr;
                m_items.ObjectAt(row, object);
                return object;
            });
    }

    // --- Cells; an operation without its cell changes nothing and gives false ---

    /// The row's first cell; null if there is none.
    XLISTCTRLDATA * FirstCell(int row) const;
    /// The cell if row and column are in range and the row reaches that far, else null.
    XLISTCTRLDATA * Cell(int row, int col) const;
    /// The cells of a row as far as the list's columns reach; none for a row without.
    std::span<XLISTCTRLDATA> CellsOf(int row) const;

    /// Shows the text and then calls change(cell), unless the row has ended meanwhile. False also if the native list
    /// refuses the text.
    template <class Change> bool ChangeText(int row, int col, wchar_t const * text, Change && change)
    {
        HeldRow held(*this, row);
        if (held.Cell(col) == nullptr || !m_items.ShowText(row, col, text))
            return false;
        if (XLISTCTRLDATA * const cell = held.Cell(col))
        {
            change(*cell);
            Repaint(held, col);
        }
        return true;
    }
    /// Calls change(cell) and repaints.
    template <class Change> bool ChangeCell(int row, int col, Change && change)
    {
        XLISTCTRLDATA * const cell = Cell(row, col);
        if (cell == nullptr)
            return false;
        change(*cell);
        m_items.Repaint(row, col);
        return true;
    }
    bool SetText(int row, int col, wchar_t const * text);
    bool SetInteger(int row, int col, int value, wchar_t const * text);
    bool SetReal(int row, int col, float value, wchar_t const * text);

    bool SetProperty(int row, int col, unsigned int bits, bool on);
    bool HasProperty(int row, int col, unsigned int bits) const;
    /// Every column, without a repaint.
    void SetRowProperty(int row, unsigned int bits, bool on);
    bool SetRowEnabled(int row, bool enabled);
    /// True as soon as one cell is enabled.
    bool IsRowEnabled(int row) const;
    bool SetColors(int row, int col, COLORREF text, COLORREF background, COLORREF gradient);
    void DeleteAllToolTips();

    bool SetEdit(int row, int col, bool on);
    bool SetHyperlink(int row, int col, bool on, bool setColor);
    bool SetProgress(int row, int col, bool showText, wchar_t const * format, COLORREF bar);
    bool UpdateProgress(int row, int col, int value, int displayValue);
    bool DeleteProgress(int row, int col);
    bool SetCustomDraw(int row, int col, std::function<void(int, int, CDC *, CRect const &)> painter);
    /// Without a repaint.
    bool RemoveCustomDraw(int row, int col);
    /// With the entries that the cell has; plain without any.
    bool InitializeCombo(int row, int col, int selectedId, int defaultId);
    /// entry: null for the default id, with an empty text even where that has one, as hosts expect.
    void SelectComboEntry(int row, int col, XLISTCTRLDATA & cell, std::pair<int const, wchar_t const *> const * entry);
    bool SelectCombo(int row, int col, int id);

    bool SetCheckbox(int row, int col, int state);
    bool SetRadioButton(int row, int col, int state);
    bool SetCheckedState(int row, int col, int state);
    int CheckedState(int row, int col) const;
    int ActiveRadio(int col) const;
    unsigned long long CountChecked(int col, int state) const;
    /// Recomputes the state of a column's header from its cells, where the header follows them.
    void UpdateHeaderFromCells(int col);

    // --- What the user does ---

    /// A press on an enabled cell. Check and radio cells are changed; all else that it comes to is the list's. The list
    /// may have ended.
    CellPress PressCell(HeldRow & held, int col);
    /// The changes of cells that an admitted press on a check or radio cell comes to.
    void FlipCheck(HeldRow & held, int col);
    void SwitchRadioOn(HeldRow & held, int col);
    /// What a press on a column's header does to header and cells; what is reported of it. The list may have ended.
    int PressHeader(int col);
    /// Gives a check cell its state, marks it and the list as changed, repaints it and tells of it.
    void ChangeCheckByUser(int row, int col, int state);

private:
    /// The same but for the list's own mark.
    void ShowCheckByUser(int row, int col, int state);
    /// Repaints the row's cell where the row is now.
    void Repaint(HeldRow & held, int col);
    /// Gives back what hangs from no item; the places of items that share another one's row object.
    std::vector<int> GiveBackUnshownRows();

    ListItems & m_items;
    /// Row objects that operations under way keep in use.
    std::vector<XLISTCTRLROW const *> m_pinned;
    LifeSign m_life;
};
