#pragma once
// A native list without a window: a table of items with texts and a parameter word each, and columns with a width and a
// header state.

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "list/ListModel.h"
#include "ListReferenceModel.h"

class ItemTable final : public ListItems
{
public:
    using Notice = list_reference::Notice;
    struct Item
    {
        std::vector<std::wstring> texts;
        XLISTCTRLROW * parameter = nullptr;
        bool selected = false;
        unsigned int id = 0;
    };
    struct Column
    {
        int width;
        int headerState;
    };

    void const * Identity() const override { return this; }
    int RowCount() const override { return static_cast<int>(items.size()); }
    int ColumnCount() const override { return static_cast<int>(columns.size()); }
    bool ObjectAt(int row, XLISTCTRLROW *& object) const override
    {
        bool const isThere = row >= 0 && row < RowCount();
        object = isThere ? items[static_cast<std::size_t>(row)].parameter : nullptr;
        return isThere;
    }
    int FindObject(XLISTCTRLROW const & object) const override
    {
        for (std::size_t row = 0; row < items.size(); ++row)
        {
            if (items[row].parameter == &object)
                return static_cast<int>(row);
        }
        return -1;
    }
    unsigned int IdOf(int row) const override { return items[static_cast<std::size_t>(row)].id; }
    int FindId(unsigned int id) const override
    {
        auto const found = std::find_if(items.begin(), items.end(), [id](Item const & item) { return item.id == id; });
        return found != items.end() ? static_cast<int>(found - items.begin()) : -1;
    }
    std::vector<XLISTCTRLROW *> ObjectsFromTop() const override
    {
        std::vector<XLISTCTRLROW *> objects;
        for (Item const & item : items)
            objects.push_back(item.parameter);
        return objects;
    }
    void MarkModified() override { modified = true; }
    bool HeadersFollow() const override { return headersFollow; }
    int HeaderState(int col) const override { return columns[static_cast<std::size_t>(col)].headerState; }
    bool Repaints() const override { return true; }
    bool SetHeaderState(int col, int state) override
    {
        if (col < 0 || col >= ColumnCount() || state < XHC_NONE || state >= XHC_END)
            return false;
        columns[static_cast<std::size_t>(col)].headerState = state;
        return true;
    }
    void UpdateHeader() override {}
    bool ShowText(int row, int col, wchar_t const * text) override
    {
        items[static_cast<std::size_t>(row)].texts[static_cast<std::size_t>(col)] = text;
        return true;
    }
    void Repaint(int, int) override {}
    void TellOfCheck(int row, int col) override { notices.push_back({Notice::What::check, row, col}); }
    void Hang(int row, XLISTCTRLROW const * object) override
    {
        Change([this, row, object] {
            if (row >= 0 && row < RowCount())
                items[static_cast<std::size_t>(row)].parameter = const_cast<XLISTCTRLROW *>(object);
        });
    }
    bool Delete(int row) override
    {
        bool const isThere = row >= 0 && row < RowCount();
        Change([this, row, isThere] {
            if (isThere)
                items.erase(items.begin() + row);
        });
        return isThere;
    }
    bool DeleteAll() override
    {
        Change([this] { items.clear(); });
        return true;
    }
    int Insert(int position, wchar_t const * text, XLISTCTRLROW * object)
    {
        Item item;
        item.texts.resize(columns.size());
        if (!item.texts.empty())
            item.texts[0] = text;
        item.parameter = object;
        item.id = m_nextId++;
        Change([this, position, &item] { items.insert(items.begin() + position, std::move(item)); });
        return position;
    }
    /// A change of the items, which the model's memory is told of, and the host behind it.
    template <class Made> void Change(Made && made)
    {
        memory->BeginChange();
        made();
        memory->EndChange();
        auto const host = onChange;
        if (host)
            host();
    }

    /// The model's.
    RowMemory * memory = nullptr;
    std::function<void()> onChange;
    std::vector<Item> items;
    std::vector<Column> columns;
    std::vector<Notice> notices;
    bool headersFollow = false;
    bool modified = false;

private:
    unsigned int m_nextId = 0;
};
