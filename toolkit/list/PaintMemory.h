#pragma once
// What stays the same while a list paints itself once, so that it is asked for once a row or column instead of once a
// cell.

#include <afx.h>
#include <atltypes.h>

#include <cstddef>
#include <optional>
#include <vector>

/// Each question is answered from memory, or by ask() the first time. Whatever arrives at the list meanwhile and could
/// change an answer has to end in Forget.
class PaintMemory
{
public:
    /// All is asked for again.
    void Forget() { *this = PaintMemory(); }

    /// The bounds of a cell. All cells of a row share top and bottom, all cells of a column left and right. Empty where
    /// they have to be found; told with RememberBounds.
    std::optional<CRect> Bounds(int row, int col) const
    {
        Column const * const column = row == m_row ? Find(col) : nullptr;
        if (column == nullptr || !column->edgesKnown)
            return {};
        return CRect(column->left, m_top, column->right, m_bottom);
    }
    void RememberBounds(int row, int col, CRect const & bounds)
    {
        m_row = row;
        m_top = bounds.top;
        m_bottom = bounds.bottom;
        Column & column = At(col);
        column.left = bounds.left;
        column.right = bounds.right;
        column.edgesKnown = true;
    }
    /// How the texts of a column are aligned.
    template <class Ask> unsigned int Alignment(int col, Ask && ask)
    {
        if (Column const * const known = Find(col); known != nullptr && known->alignment)
            return *known->alignment;
        unsigned int const alignment = ask();
        At(col).alignment = alignment;
        return alignment;
    }
    /// Left and right of the first column's place if another column stands ahead of it, else empty.
    template <class Ask> CRect MovedFirstColumn(Ask && ask)
    {
        if (!m_movedFirst)
        {
            CRect const place = ask();
            m_movedFirst = place;
        }
        return *m_movedFirst;
    }
    /// The first row that shows.
    template <class Ask> int TopRow(Ask && ask)
    {
        if (m_topRow < 0)
        {
            int const row = ask();
            m_topRow = row;
        }
        return m_topRow;
    }
    /// Whether the row is selected; of one row at a time.
    template <class Ask> bool IsSelected(int row, Ask && ask)
    {
        if (m_stateRow != row)
        {
            bool const selected = ask();
            m_selected = selected;
            m_stateRow = row;
        }
        return m_selected;
    }
    template <class Ask> bool HasFocus(Ask && ask)
    {
        if (!m_focused)
        {
            bool const focused = ask();
            m_focused = focused;
        }
        return *m_focused;
    }

private:
    struct Column
    {
        int left = 0;
        int right = 0;
        bool edgesKnown = false;
        std::optional<unsigned int> alignment;
    };
    Column const * Find(int col) const
    {
        auto const index = static_cast<std::size_t>(col);
        return index < m_columns.size() ? &m_columns[index] : nullptr;
    }
    Column & At(int col)
    {
        auto const index = static_cast<std::size_t>(col);
        if (m_columns.size() <= index)
            m_columns.resize(index + 1);
        return m_columns[index];
    }

    std::vector<Column> m_columns;
    int m_row = -1;
    int m_top = 0;
    int m_bottom = 0;
    int m_topRow = -1;
    std::optional<CRect> m_movedFirst;
    int m_stateRow = -1;
    bool m_selected = false;
    std::optional<bool> m_focused;
};
