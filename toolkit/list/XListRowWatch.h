#pragma once
// Tells over calls of the host's code whether a list is still there, and its rows as they were.

#include "list/XListCtrl.h"

class CXListCtrl::RowWatch
{
public:
    explicit RowWatch(CXListCtrl const & list);
    RowWatch(RowWatch const &) = delete;
    RowWatch & operator=(RowWatch const &) = delete;
    ~RowWatch();
    /// The object still exists and has its window.
    bool IsThere() const { return m_list != nullptr && m_list->m_hWnd == m_window && m_window != nullptr; }
    bool ObjectExists() const { return m_list != nullptr; }
    /// The native operations since that may have changed rows; only of a list that is there.
    unsigned long long Changes() const { return m_list->m_rowChangeCount - m_changes; }
    /// The list is there, and so are its rows, at their places.
    bool IsUnchanged() const { return IsThere() && Changes() == 0; }

private:
    friend class CXListCtrl;

    CXListCtrl const * m_list;
    HWND m_window;
    unsigned long long m_changes;
    RowWatch * m_next;
};
