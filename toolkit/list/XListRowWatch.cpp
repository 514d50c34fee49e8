#include "list/XListRowWatch.h"

CXListCtrl::RowWatch::RowWatch(CXListCtrl const & list)
    : m_list(&list),
      m_window(list.m_hWnd),
      m_changes(list.m_rowChangeCount),
      m_next(list.m_rowWatch)
{
    list.m_rowWatch = this;
}

CXListCtrl::RowWatch::~RowWatch()
{
    // The latest one always ends first.
    if (m_list != nullptr)
        m_list->m_rowWatch = m_next;
}

void CXListCtrl::EndRowWatches()
{
    for (RowWatch * watch = m_rowWatch; watch != nullptr; watch = watch->m_next)
        watch->m_list = nullptr;
    m_rowWatch = nullptr;
}
