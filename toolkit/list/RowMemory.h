#pragma once
// What a list remembers of its rows, and when it no longer may.

#include "list/XListRowPool.h"

/// The row asked for last, and whether the rows in use are those that hang from the native items, each from one. Both
/// hold only between the messages that make the native list insert, delete or move rows.
class RowMemory
{
public:
    // --- The row asked for last ---

    bool Knows(int row) const { return row == m_row; }
    /// Of the row known; null for an item without one.
    XLISTCTRLROW * Object() const { return m_object; }
    /// Nothing is remembered while a change is under way. The row object learns its place where that is known to be its
    /// only one.
    void Remember(int row, XLISTCTRLROW * object)
    {
        if (m_changesUnderWay != 0)
            return;
        m_row = row;
        m_object = object;
        if (object != nullptr && m_inStep)
            object->SetLastPlace(row);
    }
    void Forget()
    {
        m_row = -1;
        m_object = nullptr;
    }

    // --- Changes of rows ---

    /// A message that changes rows is on its way to the native list: what was remembered is over.
    void BeginChange()
    {
        Forget();
        ++m_changes;
        ++m_changesUnderWay;
    }
    void EndChange() { --m_changesUnderWay; }
    /// How many there were so far.
    unsigned long long Changes() const { return m_changes; }

    // --- Rows in use and items ---

    /// Rows were put in or taken out past the list: items have to be asked what hangs from them.
    void LoseStep() { m_inStep = false; }
    /// Says so after looking, or with no rows at all.
    void SetInStep(bool inStep) { m_inStep = inStep; }
    bool IsInStep() const { return m_inStep; }
    /// In step, and not while the native list changes its items.
    bool AreRowsKnown() const { return m_inStep && m_changesUnderWay == 0; }

private:
    int m_row = -1;
    XLISTCTRLROW * m_object = nullptr;
    int m_changesUnderWay = 0;
    unsigned long long m_changes = 0;
    bool m_inStep = true;
};
