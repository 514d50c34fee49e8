#pragma once
// What keys and presses do with a table's focus and selection.

#include <optional>

#include "list/table/TableModel.h"

namespace table_input
{
enum class Move
{
    up,
    down,
    page_up,
    page_down,
    first,
    last
};

/// Where the focus goes: among so many rows, of which the first one seen is top, and so many fit. Nothing without rows.
/// A page goes to the edge of what is seen first, and one page on from there.
std::optional<TableRow> Moved(Move move, TableRow focus, TableRow size, TableRow top, TableRow page);

/// A press on a row, or the focus moving there by a key: the row alone is selected; with shift all from the anchor on,
/// with control only the focus moves. Both: from the anchor on, beside what is selected.
void Go(TableModel & model, TableRow position, bool shift, bool control);
/// A press with control, or the space bar: the row is selected or not any more, and becomes the anchor.
void Flip(TableModel & model, TableRow position);
} // namespace table_input

/// Characters that are typed one after the other to find a row.
class TypedText
{
public:
    /// Beyond so many milliseconds a new text begins.
    static constexpr long long longest_pause = 1000;

    struct Search
    {
        std::wstring text;
        /// Whether the row with the focus may be the one looked for: not where the same character came again.
        bool fromFocus;
    };
    Search Add(wchar_t character, long long now);
    /// Whether the next character goes on with the text.
    bool GoesOn(long long now) const { return !m_text.empty() && now >= m_last && now - m_last <= longest_pause; }
    void Forget() { m_text.clear(); }

private:
    std::wstring m_text;
    long long m_last = 0;
};
