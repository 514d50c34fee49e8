#pragma once
// What programs that read the screen are still to be told of a table: one word of a kind, however much has happened.
// Knows no window.

#include <optional>

#include "list/table/TableSource.h"

/// Places of one kind of news: none, one, or so many that the table stands for them.
class TableNewsPlaces
{
public:
    /// Stands for the row as a whole.
    static constexpr unsigned int any_column = 0xFFFFFFFF;

    struct Place
    {
        TableRow position;
        /// What stood there.
        TableRow row;
        unsigned int column;

        friend bool operator==(Place const &, Place const &) = default;
    };

    void Add(Place const & place)
    {
        if (!m_one)
        {
            m_one = place;
            return;
        }
        if (m_one->row != place.row)
        {
            m_several = true;
            return;
        }
        // The cell says more than the row; two cells are the row.
        if (m_one->column == any_column)
            m_one = place;
        else if (place.column != any_column && place.column != m_one->column)
            m_one->column = any_column;
    }
    void AddMany() { m_several = true; }

    bool AreSeveral() const { return m_several; }
    /// Nothing where there are none, or several.
    std::optional<Place> One() const { return m_several ? std::nullopt : m_one; }

private:
    std::optional<Place> m_one;
    bool m_several = false;
};

struct TableNews
{
    /// They will be told.
    bool wished = false;
    bool focus = false;
    /// Rows or columns stand elsewhere, or there are others.
    bool order = false;
    TableNewsPlaces selection;
    TableNewsPlaces values;
};
