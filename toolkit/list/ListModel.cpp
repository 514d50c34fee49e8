#include "list/ListModel.h"

#include <algorithm>
#include <unordered_set>

namespace
{
constexpr COLORREF link_color = 0xFF0000;
constexpr COLORREF unlinked_color = 0;

void SetBits(XLISTCTRLDATA & cell, unsigned int bits, bool on)
{
    cell.properties = on ? cell.properties | bits : cell.properties & ~bits;
}

wchar_t const * OrEmpty(wchar_t const * text)
{
    return text != nullptr ? text : L"";
}
} // namespace

ListModel::HeldRow::HeldRow(ListModel & model, int row)
    : m_watch(model),
      m_model(model),
      m_row(row),
      m_object(model.RowOf(row))
{
    if (m_object != nullptr)
        m_use = m_object->use();
}

XLISTCTRLDATA * ListModel::HeldRow::Cell(int col) const
{
    if (!IsSameRow() || col < 0 || col >= m_model.m_items.ColumnCount() ||
        static_cast<unsigned int>(col) >= m_object->capacity())
    {
        return nullptr;
    }
    return m_object->cells() + col;
}

int ListModel::HeldRow::Row()
{
    if (!IsSameRow())
        return -1;
    if (m_model.RowOf(m_row) != m_object)
        m_row = m_model.PlaceOf(m_object);
    return m_row;
}

// Rows

int ListModel::InsertRow(NewRow const & row, std::function<int(XLISTCTRLROW & object)> const & insert)
{
    XLISTCTRLROW * const object = TakeRow();
    XLISTCTRLDATA & cell = *object->cells();
    cell.textColor = row.text;
    cell.backgroundColor = row.background;
    cell.imageIndex = row.image;
    cell.itemData64 = row.data;
    cell.itemDataPtr = const_cast<void *>(row.ptr);

    Watch const watch(*this);
    unsigned int const use = object->use();
    int index = -1;
    {
        Pin const pin(*this, object);
        index = insert(*object);
    }
    if (!watch.IsAlive())
        return -1;
    // The insertion itself is the only change, as always but for a host that changes rows when it hears of it; one that
    // was refused before it reached the native list is none.
    if (watch.Changes() == 1 || (index < 0 && watch.Changes() == 0))
    {
        if (index < 0)
            pool.GiveBack(object);
        else
            memory.Remember(index, object);
        return index;
    }
    PutRowsInOrder();
    return watch.IsAlive() && object->use() == use ? PlaceOf(object) : -1;
}

bool ListModel::DeleteRow(int row)
{
    XLISTCTRLROW * given = nullptr;
    if (row < 0 || m_items.Identity() == nullptr || !m_items.ObjectAt(row, given))
        return false;
    Watch const watch(*this);
    unsigned long long expected = 0;
    bool const own = given != nullptr && (memory.AreRowsKnown() || pool.Owns(given));
    unsigned int const id = m_items.IdOf(row);
    if (given != nullptr)
    {
        m_items.Hang(row, nullptr);
        ++expected;
    }
    if (!watch.IsAlive())
        return false;
    // The host may have heard of it and have moved rows.
    bool const deleted = m_items.Delete(watch.Changes() == expected ? row : m_items.FindId(id));
    if (!watch.IsAlive())
        return deleted;
    if (watch.Changes() != expected + 1)
        PutRowsInOrder();
    else if (own)
        pool.GiveBack(given);
    return deleted;
}

bool ListModel::DeleteAllRows()
{
    if (m_items.Identity() == nullptr)
    {
        pool.GiveBackAll();
        return false;
    }
    Watch const watch(*this);
    // Rows stay in use until no item shows them any more: the host hears of each one that goes.
    bool const deleted = m_items.DeleteAll();
    if (!watch.IsAlive())
        return deleted;
    if (m_items.RowCount() != 0 || !m_pinned.empty())
    {
        PutRowsInOrder();
        return deleted;
    }
    pool.GiveBackAll();
    memory.SetInStep(true);
    return deleted;
}

void ListModel::PutRowsInOrder(std::span<XLISTCTRLROW * const> spares)
{
    // The host hears of each repair. One that goes on moving rows for ever is left alone after a while.
    constexpr int most_tries = 8;

    Watch const watch(*this);
    for (int tries = 0; tries < most_tries; ++tries)
    {
        unsigned long long changes = memory.Changes();
        std::vector<int> const sharing = GiveBackUnshownRows();
        if (swaps != 0)
            return;
        for (int const row : sharing)
        {
            auto const spare = std::find_if(spares.begin(), spares.end(),
                                            [this](XLISTCTRLROW const * object) { return PlaceOf(object) < 0; });
            XLISTCTRLROW * const object = spare != spares.end() ? *spare : TakeRow();
            Pin const pin(*this, object);
            m_items.Hang(row, object);
            if (!watch.IsAlive())
                return;
            if (memory.Changes() != ++changes)
                break;
        }
        if (memory.Changes() == changes)
            return;
    }
}

std::vector<int> ListModel::GiveBackUnshownRows()
{
    std::unordered_set<XLISTCTRLROW const *> shown;
    std::vector<int> sharing;
    int const rows = m_items.RowCount();
    for (int row = 0; row < rows; ++row)
    {
        XLISTCTRLROW const * const object = RowOf(row);
        if (object != nullptr && !shown.insert(object).second)
            sharing.push_back(row);
    }
    std::size_t inUse = 0;
    pool.KeepOnly([&](XLISTCTRLROW const & row) {
        bool const isShown = shown.contains(&row);
        inUse += isShown ? 1 : 0;
        return isShown || std::find(m_pinned.begin(), m_pinned.end(), &row) != m_pinned.end();
    });
    memory.SetInStep(sharing.empty() && inUse == shown.size());
    return sharing;
}

XLISTCTRLROW * ListModel::RowOf(int row) const
{
    if (row < 0 || m_items.Identity() == nullptr)
        return nullptr;
    if (memory.Knows(row))
        return memory.Object();
    XLISTCTRLROW * object = nullptr;
    if (!m_items.ObjectAt(row, object))
        return nullptr;
    memory.Remember(row, object);
    return object;
}

int ListModel::PlaceOf(XLISTCTRLROW const * object) const
{
    if (object == nullptr || m_items.Identity() == nullptr)
        return -1;
    // Each row hangs from one item then, so that one seen at that place is nowhere else.
    bool const known = memory.AreRowsKnown();
    if (known && object->lastPlace() >= 0)
    {
        XLISTCTRLROW * there = nullptr;
        m_items.ObjectAt(object->lastPlace(), there);
        if (there == object)
            return object->lastPlace();
    }
    int const place = m_items.FindObject(*object);
    if (known)
        object->SetLastPlace(place);
    return place;
}

XLISTCTRLROW * ListModel::TakeRow()
{
    XLISTCTRLROW * const row = pool.Take();
    // Also a list without columns keeps its rows' words.
    row->Prepare(static_cast<unsigned int>(std::max(m_items.ColumnCount(), 1)));
    return row;
}

// Cells

XLISTCTRLDATA * ListModel::FirstCell(int row) const
{
    XLISTCTRLROW const * const object = RowOf(row);
    return object != nullptr ? object->cells() : nullptr;
}

XLISTCTRLDATA * ListModel::Cell(int row, int col) const
{
    if (col < 0 || col >= m_items.ColumnCount())
        return nullptr;
    XLISTCTRLROW const * const object = RowOf(row);
    return object != nullptr && static_cast<unsigned int>(col) < object->capacity() ? object->cells() + col : nullptr;
}

std::span<XLISTCTRLDATA> ListModel::CellsOf(int row) const
{
    XLISTCTRLROW const * const object = RowOf(row);
    int const columns = m_items.ColumnCount();
    if (object == nullptr || columns <= 0)
        return {};
    return {object->cells(), std::min(object->capacity(), static_cast<unsigned int>(columns))};
}

void ListModel::Repaint(HeldRow & held, int col)
{
    if (m_items.Repaints())
        m_items.Repaint(held.Row(), col);
}

bool ListModel::SetText(int row, int col, wchar_t const * text)
{
    return ChangeText(row, col, text, [](XLISTCTRLDATA & cell) { cell.valueType = XLV_TEXT; });
}

bool ListModel::SetInteger(int row, int col, int value, wchar_t const * text)
{
    return ChangeText(row, col, text, [value](XLISTCTRLDATA & cell) {
        cell.intValue = value;
        cell.valueType = XLV_INT;
    });
}

bool ListModel::SetReal(int row, int col, float value, wchar_t const * text)
{
    return ChangeText(row, col, text, [value](XLISTCTRLDATA & cell) {
        cell.floatValue = value;
        cell.valueType = XLV_FLOAT;
    });
}

bool ListModel::SetProperty(int row, int col, unsigned int bits, bool on)
{
    return ChangeCell(row, col, [bits, on](XLISTCTRLDATA & cell) { SetBits(cell, bits, on); });
}

bool ListModel::HasProperty(int row, int col, unsigned int bits) const
{
    XLISTCTRLDATA const * const cell = Cell(row, col);
    return cell != nullptr && (cell->properties & bits) != 0;
}

void ListModel::SetRowProperty(int row, unsigned int bits, bool on)
{
    for (XLISTCTRLDATA & cell : CellsOf(row))
        SetBits(cell, bits, on);
}

bool ListModel::SetRowEnabled(int row, bool enabled)
{
    if (FirstCell(row) == nullptr)
        return false;
    SetRowProperty(row, XLP_ENABLED, enabled);
    m_items.Repaint(row, -1);
    return true;
}

bool ListModel::IsRowEnabled(int row) const
{
    std::span<XLISTCTRLDATA> const cells = CellsOf(row);
    return std::any_of(cells.begin(), cells.end(),
                       [](XLISTCTRLDATA const & cell) { return (cell.properties & XLP_ENABLED) != 0; });
}

bool ListModel::SetColors(int row, int col, COLORREF text, COLORREF background, COLORREF gradient)
{
    return ChangeCell(row, col, [=](XLISTCTRLDATA & cell) {
        cell.textColor = text;
        cell.backgroundColor = background;
        cell.gradientColor = gradient;
    });
}

void ListModel::DeleteAllToolTips()
{
    VisitRows([columns = m_items.ColumnCount()](XLISTCTRLROW const & row) {
        int const reached = std::min(columns, static_cast<int>(row.capacity()));
        for (int col = 0; col < reached; ++col)
            row.cells()[col].toolTipText.Empty();
    });
}

// Kinds

bool ListModel::SetEdit(int row, int col, bool on)
{
    return ChangeCell(row, col, [on](XLISTCTRLDATA & cell) { on ? cell.MakeEdit() : cell.MakePlain(); });
}

bool ListModel::SetHyperlink(int row, int col, bool on, bool setColor)
{
    return ChangeCell(row, col, [on, setColor](XLISTCTRLDATA & cell) {
        on ? cell.MakeLink() : cell.MakePlain();
        if (setColor)
            cell.textColor = on ? link_color : unlinked_color;
    });
}

bool ListModel::SetProgress(int row, int col, bool showText, wchar_t const * format, COLORREF bar)
{
    return ChangeCell(row, col, [=](XLISTCTRLDATA & cell) {
        cell.MakeProgress();
        cell.progressValue = 0;
        cell.progressDisplayValue = 0;
        cell.progressShowText = showText;
        cell.progressFormat = OrEmpty(format);
        cell.backgroundColor = bar;
    });
}

bool ListModel::UpdateProgress(int row, int col, int value, int displayValue)
{
    return ChangeCell(row, col, [value, displayValue](XLISTCTRLDATA & cell) {
        cell.progressValue = std::max(value, 0);
        cell.progressDisplayValue = cell.progressFormat.IsEmpty() ? cell.progressValue : displayValue;
    });
}

bool ListModel::DeleteProgress(int row, int col)
{
    return ChangeCell(row, col, [](XLISTCTRLDATA & cell) {
        cell.MakePlain();
        cell.progressValue = 0;
        cell.progressDisplayValue = 0;
    });
}

bool ListModel::SetCustomDraw(int row, int col, std::function<void(int, int, CDC *, CRect const &)> painter)
{
    return ChangeCell(row, col, [&painter](XLISTCTRLDATA & cell) {
        cell.properties |= XLP_CUSTOMDRAW;
        cell.customDraw = std::move(painter);
    });
}

bool ListModel::RemoveCustomDraw(int row, int col)
{
    XLISTCTRLDATA * const cell = Cell(row, col);
    if (cell == nullptr)
        return false;
    cell->properties &= ~XLP_CUSTOMDRAW;
    cell->customDraw = nullptr;
    return true;
}

bool ListModel::InitializeCombo(int row, int col, int selectedId, int defaultId)
{
    XLISTCTRLDATA * const cell = Cell(row, col);
    if (cell == nullptr)
        return false;
    if (cell->comboStrings.empty())
    {
        cell->MakePlain();
        m_items.Repaint(row, col);
        return true;
    }
    cell->MakeCombo();
    cell->comboDefaultId = defaultId;
    auto const entry = cell->comboStrings.find(selectedId);
    SelectComboEntry(row, col, *cell, entry != cell->comboStrings.end() ? &*entry : nullptr);
    return true;
}

void ListModel::SelectComboEntry(int row, int col, XLISTCTRLDATA & cell,
                                 std::pair<int const, wchar_t const *> const * entry)
{
    cell.comboCurrentId = entry != nullptr ? entry->first : cell.comboDefaultId;
    HeldRow held(*this, row);
    // A copy: the texts are the host's, and it may take them away when it hears of this one.
    CString const text(entry != nullptr ? OrEmpty(entry->second) : L"");
    m_items.ShowText(row, col, text);
    if (held.IsListAlive())
        Repaint(held, col);
}

bool ListModel::SelectCombo(int row, int col, int id)
{
    XLISTCTRLDATA * const cell = Cell(row, col);
    if (cell == nullptr || (cell->properties & XLP_COMBO) == 0)
        return false;
    auto const entry = cell->comboStrings.find(id);
    SelectComboEntry(row, col, *cell, entry != cell->comboStrings.end() ? &*entry : nullptr);
    return true;
}

// Check states

bool ListModel::SetCheckbox(int row, int col, int state)
{
    if (state < XLC_NONE || state > XLC_CROSSED ||
        !ChangeCell(row, col, [state](XLISTCTRLDATA & cell) { cell.MakeCheck(state); }))
    {
        return false;
    }
    UpdateHeaderFromCells(col);
    return true;
}

bool ListModel::SetRadioButton(int row, int col, int state)
{
    XLISTCTRLDATA * const cell = Cell(row, col);
    if (cell == nullptr || (state != XLC_NONE && state != XLC_RADIO_ON && state != XLC_RADIO_OFF))
        return false;
    if (state == XLC_RADIO_ON)
        SetCheckedState(ActiveRadio(col), col, XLC_RADIO_OFF);
    cell->MakeCheck(state);
    m_items.Repaint(row, col);
    return true;
}

bool ListModel::SetCheckedState(int row, int col, int state)
{
    return ChangeCell(row, col, [state](XLISTCTRLDATA & cell) { cell.checkedState = state; });
}

int ListModel::CheckedState(int row, int col) const
{
    XLISTCTRLDATA const * const cell = Cell(row, col);
    return cell != nullptr ? cell->checkedState : XLC_NONE;
}

int ListModel::ActiveRadio(int col) const
{
    if (col < 0 || col >= m_items.ColumnCount())
        return -1;
    return FindTopmost([index = static_cast<unsigned int>(col)](XLISTCTRLROW const & row) {
        return index < row.capacity() && row.cells()[index].checkedState == XLC_RADIO_ON;
    });
}

unsigned long long ListModel::CountChecked(int col, int state) const
{
    unsigned long long count = 0;
    if (col < 0 || col >= m_items.ColumnCount())
        return count;
    VisitRows([index = static_cast<unsigned int>(col), state, &count](XLISTCTRLROW const & row) {
        if (index < row.capacity() && CountsAsChecked(row.cells()[index].checkedState, state))
            ++count;
    });
    return count;
}

void ListModel::UpdateHeaderFromCells(int col)
{
    if (!m_items.HeadersFollow() || !HeaderFollowsCells(m_items.HeaderState(col)))
        return;
    auto const rows = static_cast<unsigned long long>(m_items.RowCount());
    unsigned long long counts[XLC_CROSSED + 1] = {};
    VisitRows([index = static_cast<unsigned int>(col), &counts](XLISTCTRLROW const & row) {
        int const state = index < row.capacity() ? row.cells()[index].checkedState : XLC_NONE;
        if (state >= XLC_UNCHECKED && state <= XLC_CROSSED)
            ++counts[state];
    });
    m_items.SetHeaderState(col,
                           HeaderStateOfCells(rows, counts[XLC_UNCHECKED], counts[XLC_CHECKED], counts[XLC_CROSSED]));
}

// What the user does

CellPress ListModel::PressCell(HeldRow & held, int col)
{
    XLISTCTRLDATA const * const cell = held.Cell(col);
    CellPress const press = cell != nullptr ? DecideAdmittedPress(*cell) : CellPress::select_only;
    switch (press)
    {
    case CellPress::flip_check:
        FlipCheck(held, col);
        break;
    case CellPress::switch_radio_on:
        SwitchRadioOn(held, col);
        break;
    case CellPress::open_combo:
    case CellPress::open_edit:
    case CellPress::follow_link:
    case CellPress::ignored:
    case CellPress::select_only:
        break;
    }
    return press;
}

void ListModel::FlipCheck(HeldRow & held, int col)
{
    XLISTCTRLDATA const * const cell = held.Cell(col);
    if (cell == nullptr)
        return;
    ChangeCheckByUser(held.Row(), col, cell->checkedState == XLC_CHECKED ? XLC_UNCHECKED : XLC_CHECKED);
    if (held.IsListAlive())
        UpdateHeaderFromCells(col);
}

void ListModel::SwitchRadioOn(HeldRow & held, int col)
{
    ShowCheckByUser(ActiveRadio(col), col, XLC_RADIO_OFF);
    if (int const place = held.Row(); place >= 0)
        ChangeCheckByUser(place, col, XLC_RADIO_ON);
}

int ListModel::PressHeader(int col)
{
    HeaderPress const press = DecideHeaderPress(m_items.HeaderState(col), m_items.HeadersFollow());
    if (!press.changesCells)
        return press.cellState;
    Watch const watch(*this);
    m_items.SetHeaderState(col, press.headerState);
    if (watch.IsAlive())
        m_items.UpdateHeader();
    int rows = watch.IsAlive() ? m_items.RowCount() : 0;
    for (int row = 0; row < rows; ++row)
    {
        XLISTCTRLDATA const * const cell = Cell(row, col);
        if (cell == nullptr || cell->checkedState == XLC_NONE || cell->checkedState == press.cellState)
            continue;
        ChangeCheckByUser(row, col, press.cellState);
        rows = watch.IsAlive() ? m_items.RowCount() : 0;
    }
    return press.cellState;
}

void ListModel::ChangeCheckByUser(int row, int col, int state)
{
    m_items.MarkModified();
    ShowCheckByUser(row, col, state);
}

void ListModel::ShowCheckByUser(int row, int col, int state)
{
    XLISTCTRLDATA * const cell = row >= 0 ? Cell(row, col) : nullptr;
    if (cell == nullptr)
        return;
    cell->checkedState = state;
    cell->properties |= XLP_MODIFIED;
    Watch const watch(*this);
    m_items.Repaint(row, col);
    if (watch.IsAlive())
        m_items.TellOfCheck(row, col);
}
