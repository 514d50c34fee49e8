// The order of the list's lines.

#include "RecordingList.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <string>
#include <utility>

#include "logic/TextFormat.h"

namespace
{

/// Whether lines are compared as words, for which the case of letters does not count.
bool HasWords(int column)
{
    return column == CRecordingList::column_name || column == CRecordingList::column_comment ||
           column == CRecordingList::column_status;
}

} // namespace

int CRecordingList::LineAt(int row) const
{
    // A row keeps its line's number plus 1; one that does not exist gives 0.
    return GetItemData(row) - 1;
}

int CRecordingList::PlaceOf(int line) const
{
    if (line < 0 || line >= LineCount())
    {
        return -1;
    }
    auto const known = static_cast<std::size_t>(line);
    if (!m_sources[known].hasRow)
    {
        return -1;
    }
    if (known >= m_places.size() || LineAt(m_places[known]) != line)
    {
        // Lines have moved since.
        m_places.assign(m_notes.size(), -1);
        for (int row = 0; row < GetItemCount(); ++row)
        {
            int const other = LineAt(row);
            if (other >= 0 && other < LineCount())
            {
                m_places[static_cast<std::size_t>(other)] = row;
            }
        }
    }
    return m_places[known];
}

/// The lines are in no column's order any more.
void CRecordingList::ForgetOrder()
{
    m_sortedColumn = -1;
    SortByColumn(-1, true, true, nullptr);
    FitColumns();
    ShowHeaderCheck();
}

void CRecordingList::SortLines(Column column, bool ascending)
{
    if (column == column_check)
    {
        return;
    }
    EndEditing();
    m_sortedColumn = column;
    m_ascending = ascending;
    // Asked for once a line, not once a comparison.
    auto const ranks = HasWords(column) ? RanksOfTexts(column) : std::vector<double>();
    std::vector<SortKey> keys;
    keys.reserve(m_sources.size());
    for (int line = 0; line < LineCount(); ++line)
    {
        keys.push_back(ranks.empty() ? KeyOf(line, column) : SortKey{false, ranks[static_cast<std::size_t>(line)]});
    }
    std::vector<int> const rows = LinesWithRows();
    std::ranges::stable_sort(m_order, [&keys, ascending](int a, int b) {
        auto const & keyA = keys[static_cast<std::size_t>(a)];
        auto const & keyB = keys[static_cast<std::size_t>(b)];
        if (keyA.last || keyB.last)
        {
            return keyB.last && !keyA.last;
        }
        return ascending ? keyA.value < keyB.value : keyB.value < keyA.value;
    });
    ArrangeRows(rows, column);
}

/// The lines that have rows, from top to bottom, as long as rows are as the order says.
std::vector<int> CRecordingList::LinesWithRows() const
{
    std::vector<int> lines;
    lines.reserve(m_order.size());
    std::ranges::copy_if(m_order, std::back_inserter(lines),
                         [this](int line) { return m_sources[static_cast<std::size_t>(line)].hasRow; });
    return lines;
}

/// Puts the rows, which are those of these lines, into the lines' order. A column's title gets the arrow; negative:
/// none.
void CRecordingList::ArrangeRows(std::vector<int> rows, int column)
{
    if (!m_wanted.empty())
    {
        // Those that are there may not be the first ones any more.
        MakeRowsAnew(ShownLines());
        rows = LinesWithRows();
    }
    std::vector<int> const lines = LinesWithRows();
    std::vector<int> places(m_sources.size(), -1);
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        places[static_cast<std::size_t>(lines[i])] = static_cast<int>(i);
    }
    m_rowPlaces.clear();
    std::ranges::transform(rows, std::back_inserter(m_rowPlaces),
                           [&places](int line) { return places[static_cast<std::size_t>(line)]; });
    SortByColumn(column < 0 ? column_name : column, m_ascending, column >= 0, &CompareInList);
    if (column < 0)
    {
        SortByColumn(-1, true, true, nullptr);
    }
    m_places = std::move(places);
    FitColumns();
    // It goes with the marks of the other columns.
    ShowHeaderCheck();
    if (int const chosen = ChosenRow(); chosen >= 0)
    {
        EnsureVisible(chosen, FALSE);
    }
}

void CRecordingList::SetOrder(workbench::ListOrder const & order)
{
    EndEditing();
    std::vector<int> const rows = LinesWithRows();
    std::vector<bool> isNamed(m_sources.size());
    std::vector<int> lines;
    auto const take = [&](int line) {
        if (line >= 0 && line < LineCount() && !isNamed[static_cast<std::size_t>(line)])
        {
            isNamed[static_cast<std::size_t>(line)] = true;
            lines.push_back(line);
        }
    };
    std::ranges::for_each(order.lines, take);
    std::ranges::for_each(m_order, take);
    m_order = std::move(lines);
    m_sortedColumn = order.column > column_check && order.column < column_count ? order.column : -1;
    m_ascending = order.ascending;
    ArrangeRows(rows, m_sortedColumn);
}

/// What a line is known by in a column of words.
std::wstring CRecordingList::SortedText(int line, int column) const
{
    auto const & source = m_sources[static_cast<std::size_t>(line)];
    switch (column)
    {
    case column_name:
        return workbench::NaturalText(source.file.filename().wstring());
    case column_comment:
        return workbench::NaturalText(m_notes[static_cast<std::size_t>(line)].comment);
    default:
        return source.analysis ? source.analysis->StatusText() : std::wstring(WaitingText(line));
    }
}

/// The places that the texts of a column have among each other as the user's language orders them; the same for texts
/// that differ in the case of letters alone.
std::vector<double> CRecordingList::RanksOfTexts(int column) const
{
    std::size_t const count = m_sources.size();
    std::vector<std::string> keys(count);
    constexpr DWORD flags = LCMAP_SORTKEY | NORM_IGNORECASE;
    for (std::size_t line = 0; line < count; ++line)
    {
        auto const text = SortedText(static_cast<int>(line), column);
        auto const length = static_cast<int>(text.size());
        if (length == 0)
        {
            continue;
        }
        std::string & key = keys[line];
        int const size = ::LCMapStringW(LOCALE_USER_DEFAULT, flags, text.data(), length, nullptr, 0);
        key.resize(static_cast<std::size_t>(std::max(size, 0)));
        ::LCMapStringW(LOCALE_USER_DEFAULT, flags, text.data(), length, reinterpret_cast<wchar_t *>(key.data()), size);
    }
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::ranges::sort(order, {}, [&keys](std::size_t line) -> std::string const & { return keys[line]; });
    std::vector<double> ranks(count);
    double rank = 0.0;
    for (std::size_t i = 1; i < count; ++i)
    {
        rank += keys[order[i]] != keys[order[i - 1]] ? 1.0 : 0.0;
        ranks[order[i]] = rank;
    }
    return ranks;
}

int CRecordingList::CompareInList(long long a, long long b, long long list)
{
    auto * const control = reinterpret_cast<CXListCtrl *>(static_cast<LONG_PTR>(list));
    return static_cast<CRecordingList *>(control)->CompareRows(static_cast<int>(a), static_cast<int>(b));
}

int CRecordingList::CompareRows(int a, int b) const
{
    auto const rows = static_cast<int>(m_rowPlaces.size());
    return a < 0 || a >= rows || b < 0 || b >= rows
               ? 0
               : m_rowPlaces[static_cast<std::size_t>(a)] - m_rowPlaces[static_cast<std::size_t>(b)];
}

/// What a line is sorted by in a column of values.
CRecordingList::SortKey CRecordingList::KeyOf(int line, int column) const
{
    auto const & source = m_sources[static_cast<std::size_t>(line)];
    auto const & analysis = source.analysis;
    if (column == column_date)
    {
        // It is known of a file that cannot be read, too.
        bool const isKnown = analysis && analysis->file.lastWrite;
        return {!isKnown, isKnown ? static_cast<double>(*analysis->file.lastWrite) : 0.0};
    }
    if (!analysis || analysis->problem)
    {
        return {true, 0.0};
    }
    auto const ofMeasure = [](std::optional<double> const & value) { return SortKey{!value, value.value_or(0.0)}; };
    switch (column)
    {
    case column_reference:
        return {false, line == m_reference ? 0.0 : 1.0};
    case column_duration:
        return {false,
                static_cast<double>(workbench::DurationMilliseconds(analysis->info.frames, analysis->info.sampleRate))};
    case column_channels:
        return {false, static_cast<double>(analysis->info.channels)};
    case column_rate:
        return {false, static_cast<double>(analysis->info.sampleRate)};
    case column_peak:
        return {false, analysis->levels.peak};
    case column_rms:
        return {false, analysis->levels.rms};
    case column_rating:
        return {false, static_cast<double>(m_notes[static_cast<std::size_t>(line)].rating)};
    case column_crest:
        return std::isfinite(analysis->levels.rms) ? SortKey{false, analysis->levels.peak - analysis->levels.rms}
                                                   : SortKey{true, 0.0};
    case column_loudness:
        return ofMeasure(analysis->loudness);
    case column_frequency:
        return ofMeasure(analysis->tone.frequency);
    case column_distortion:
        return ofMeasure(analysis->tone.distortion);
    default:
        // Pictures have the order in which the files were opened.
        return {false, static_cast<double>(line)};
    }
}

/// The list's own work comes last, for it tells the parent.
void CRecordingList::SortByUser(Column column)
{
    workbench::ListOrder before = Order();
    SortLines(column, column != m_sortedColumn || !m_ascending);
    m_history.NoteOrder(std::move(before), Order());
    Tell(changed_order);
}

BOOL CRecordingList::OnTitleClick(NMHDR * header, LRESULT * result)
{
    auto const column = reinterpret_cast<NMLISTVIEW *>(header)->iSubItem;
    if (column >= 0 && column < column_count)
    {
        SortByUser(static_cast<Column>(column));
    }
    if (column != column_check)
    {
        return OnColumnClick(header, result);
    }
    // The header knows of cells alone, and not all lines have theirs as they are to be.
    CheckAll(GetHeaderCheckedState(column_check) != XHC_CHECKED);
    return OnColumnClick(header, result);
}
