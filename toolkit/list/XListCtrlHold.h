#pragma once
// What the list holds over calls that can run the host's code. Such code may delete rows and columns, destroy the
// window or delete the list itself. These classes live on the stack alone.

#include "frame/WindowAlive.h"
#include "list/XListCtrl.h"
#include "list/XListCtrlState.h"

/// Tells whether the list, the window that it had and its rows are still there.
class CXListCtrl::Watch : public WindowAlive
{
public:
    explicit Watch(CXListCtrl const & list)
        : WindowAlive(list, list.m_rows->life),
          m_list(list),
          m_changes(list.m_rows->memory.Changes())
    {
    }

    /// How many messages since then may have changed rows; only of a list that is there.
    unsigned long long Changes() const { return m_list.m_rows->memory.Changes() - m_changes; }
    /// The list is there, and so are its rows, at their places.
    bool IsUnchanged() const { return IsAlive() && Changes() == 0; }

private:
    CXListCtrl const & m_list;
    unsigned long long m_changes;
};

/// Keeps a row object in use that does not hang from a native item yet, or for a moment does not any more.
class CXListCtrl::Pin
{
public:
    Pin(CXListCtrl & list, XLISTCTRLROW const * row) : m_watch(list), m_list(list)
    {
        list.m_rows->pinned.push_back(row);
    }
    ~Pin()
    {
        if (m_watch.IsThere())
            m_list.m_rows->pinned.pop_back();
    }
    Pin(Pin const &) = delete;
    Pin & operator=(Pin const &) = delete;

private:
    Watch m_watch;
    CXListCtrl & m_list;
};

/// Follows a row. After each call that can run the host's code, its place and its cells are asked for again.
class CXListCtrl::HeldRow
{
public:
    HeldRow(CXListCtrl & list, int row) : m_watch(list), m_list(list), m_row(row), m_object(list.RowOf(row))
    {
        if (m_object != nullptr)
            m_use = m_object->use();
    }

    bool IsListAlive() const { return m_watch.IsAlive(); }
    /// The cell, while the row object is not some other row's; null beyond the list's columns or the row's.
    XLISTCTRLDATA * Cell(int col) const
    {
        if (!IsSameRow() || col < 0 || col >= m_list.m_columnCount ||
            static_cast<unsigned int>(col) >= m_object->capacity())
        {
            return nullptr;
        }
        return m_object->cells() + col;
    }
    /// Where the row is now; -1 if it is gone, or never had an object.
    int Row()
    {
        if (!IsSameRow())
            return -1;
        if (m_list.RowOf(m_row) != m_object)
            m_row = m_list.PlaceOf(m_object);
        return m_row;
    }

private:
    bool IsSameRow() const { return m_watch.IsAlive() && m_object != nullptr && m_object->use() == m_use; }

    Watch m_watch;
    CXListCtrl & m_list;
    int m_row;
    XLISTCTRLROW * m_object;
    unsigned int m_use = 0;
};
