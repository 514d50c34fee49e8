#pragma once
// What the list holds over calls that can run the host's code. Such code may delete rows and columns, destroy the
// window or delete the list itself. These classes live on the stack alone.

#include "list/XListCtrl.h"
#include "list/XListCtrlState.h"

/// Tells whether the list, the window that it had and its rows are as they were.
class CXListCtrl::Watch : public ListModel::Watch
{
public:
    explicit Watch(CXListCtrl const & list) : ListModel::Watch(list.m_rows->model) {}
};

/// Follows a row. After each call that can run the host's code, its place and its cells are asked for again.
class CXListCtrl::HeldRow : public ListModel::HeldRow
{
public:
    HeldRow(CXListCtrl & list, int row) : ListModel::HeldRow(list.m_rows->model, row) {}
};
