#include "list/table/TableSort.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <memory>
#include <numeric>
#include <utility>

#include "list/table/NaturalOrder.h"

namespace
{
// A value's first key. The doubles, as whole numbers in their order, leave room behind the greatest one. A text has its
// first six bytes there, and eight in each further key.
constexpr std::uint64_t text_keys = 0xFFF8ULL << 48;
constexpr std::uint64_t not_a_number_key = 0xFFFDULL << 48;
constexpr std::uint64_t blank_key = 0xFFFEULL << 48;
constexpr std::uint64_t first_text_mask = (1ULL << 48) - 1;
constexpr std::size_t first_text_bytes = 6;
constexpr std::size_t further_text_bytes = 8;
/// From there on, not every whole number is a double.
constexpr double exact_limit = 9007199254740992.0;

std::uint64_t KeyOf(double value)
{
    auto const bits = std::bit_cast<std::uint64_t>(value + 0.0);
    return bits >> 63 != 0 ? ~bits : bits | 1ULL << 63;
}

double NumberOf(std::uint64_t key)
{
    return std::bit_cast<double>(key >> 63 != 0 ? key & ~(1ULL << 63) : ~key);
}

bool IsText(TableValue const & value)
{
    return value.Kind() == TableKind::text || value.Kind() == TableKind::link;
}

/// The number that a value counts as, but for what no double can hold of it.
double NumberOf(TableValue const & value)
{
    switch (value.Kind())
    {
    case TableKind::floating:
    case TableKind::progress:
        return value.Number();
    case TableKind::blank:
    case TableKind::text:
    case TableKind::whole:
    case TableKind::time:
    case TableKind::tick:
    case TableKind::link:
        break;
    }
    return static_cast<double>(value.Whole());
}

/// What NumberOf has left.
long long RestOf(TableValue const & value)
{
    if (value.Kind() != TableKind::whole && value.Kind() != TableKind::time)
        return 0;
    auto const number = static_cast<double>(value.Whole());
    constexpr double beyond = 9223372036854775808.0;
    if (number >= beyond)
        return value.Whole() - std::numeric_limits<long long>::max() - 1;
    return value.Whole() - static_cast<long long>(number);
}

/// So many of the next bytes, the first one on top; zeros behind the end.
std::uint64_t TakeBytes(NaturalBytes & bytes, std::size_t count)
{
    std::uint64_t key = 0;
    for (std::size_t i = 0; i < count; ++i)
    {
        unsigned char const next = bytes.Next();
        key = key << 8 | next;
        if (next == 0)
        {
            key <<= 8 * (count - 1 - i);
            break;
        }
    }
    return key;
}

std::uint64_t FirstKey(TableValue const & value, bool descending)
{
    if (value.Kind() == TableKind::blank)
        return blank_key;
    if (IsText(value))
    {
        NaturalBytes bytes(value.Text());
        std::uint64_t const key = TakeBytes(bytes, first_text_bytes);
        return text_keys | (descending ? key ^ first_text_mask : key);
    }
    double const number = NumberOf(value);
    if (std::isnan(number))
        return not_a_number_key;
    return KeyOf(descending ? -number : number);
}

std::uint64_t RestKey(TableValue const & value, bool descending)
{
    auto const key = static_cast<std::uint64_t>(RestOf(value)) ^ 1ULL << 63;
    return descending ? ~key : key;
}

/// One row while it is sorted. The number comes in halves, so that twelve bytes are enough.
struct Record
{
    std::uint32_t high;
    std::uint32_t low;
    TableRow row;

    std::uint64_t Key() const { return static_cast<std::uint64_t>(high) << 32 | low; }
    void SetKey(std::uint64_t key)
    {
        high = static_cast<std::uint32_t>(key >> 32);
        low = static_cast<std::uint32_t>(key);
    }
};
static_assert(sizeof(Record) == 3 * sizeof(TableRow));

/// Records that are alike so far, and by what they are sorted next.
struct Run
{
    std::size_t begin;
    std::size_t end;
    std::uint32_t column;
    /// What of the column: 0 for the first key, else where in the text the next one begins, or the rest of numbers.
    std::size_t offset;
};

class Sorter
{
public:
    Sorter(TableAccess & access, std::span<TableSortColumn const> columns, Record * records, std::size_t count)
        : m_access(access),
          m_columns(columns),
          m_records(records),
          m_count(count)
    {
    }

    bool Sort()
    {
        m_access.Progress().Expect(2 * m_count, m_access.Progress().Done(), 1000);
        m_runs.push_back({0, m_count, 0, 0});
        while (!m_runs.empty())
        {
            Run const run = m_runs.back();
            m_runs.pop_back();
            if (m_access.Stopped())
                return false;
            if (run.column == m_columns.size())
                SortByRow(run.begin, run.end);
            else if (!SortRun(run))
                return false;
        }
        m_access.Progress().Expect(1, 1000, 1000);
        return true;
    }

private:
    bool Descending(Run const & run) const { return m_columns[run.column].descending; }

    bool SortRun(Run const & run)
    {
        std::size_t offset = run.offset;
        if (offset != rest_of_numbers && offset > first_text_bytes + 2 * further_text_bytes)
        {
            // So much alike may go on: to where the texts differ, at once.
            if (!FindCommonBytes(run, offset))
                return false;
            if (offset == all_alike)
            {
                m_runs.push_back({run.begin, run.end, run.column + 1, 0});
                return true;
            }
        }
        m_present = run;
        m_present.offset = offset;
        if (!ReadKeys() || !JoinKeys())
            return false;
        SortKeys(run.begin, run.end);
        return true;
    }

    /// Where a column has few values, which their keys tell, the next column's keys are joined to them: the rows are
    /// then put in order by both at once.
    bool JoinKeys()
    {
        m_joined = false;
        std::size_t const size = m_present.end - m_present.begin;
        if (m_present.offset != 0 || m_present.column + 1 == m_columns.size() || size <= few_records)
            return true;
        m_places.assign(2 * most_values, no_value);
        m_values.clear();
        std::size_t at = m_present.begin;
        while (at != m_present.end)
        {
            std::uint64_t const key = m_records[at].Key();
            std::uint32_t const value = ValueOf(key);
            if (value == no_value || NextOffset(key) != 0)
                break;
            m_records[at++].high = value;
        }
        if (at != m_present.end || m_values.size() == 1)
        {
            while (at-- != m_present.begin)
                m_records[at].SetKey(m_values[m_records[at].high]);
            return true;
        }
        std::vector<std::uint32_t> byRank(m_values.size());
        std::iota(byRank.begin(), byRank.end(), 0U);
        std::sort(byRank.begin(), byRank.end(),
                  [this](std::uint32_t a, std::uint32_t b) { return m_values[a] < m_values[b]; });
        std::vector<std::uint64_t> ranks(m_values.size());
        int const bits = std::bit_width(m_values.size() - 1);
        for (std::size_t rank = 0; rank < byRank.size(); ++rank)
            ranks[byRank[rank]] = static_cast<std::uint64_t>(rank) << (64 - bits);
        m_joined = true;
        TableSortColumn const & next = m_columns[m_present.column + 1];
        for (std::size_t i = m_present.begin; i != m_present.end; ++i)
        {
            if (!m_access.Read(m_records[i].row, next.column, m_value))
                return false;
            m_records[i].SetKey(ranks[m_records[i].high] | FirstKey(m_value, next.descending) >> bits);
        }
        return true;
    }

    /// The number of a key among those seen; no_value if there are too many.
    std::uint32_t ValueOf(std::uint64_t key)
    {
        std::size_t place = (key * 0x9E3779B97F4A7C15ULL) >> (64 - std::bit_width(2 * most_values - 1));
        while (m_places[place] != no_value && m_values[m_places[place]] != key)
            place = (place + 1) % m_places.size();
        if (m_places[place] == no_value && m_values.size() < most_values)
        {
            m_places[place] = static_cast<std::uint32_t>(m_values.size());
            m_values.push_back(key);
        }
        return m_places[place];
    }

    /// The keys of the present run.
    bool ReadKeys()
    {
        unsigned int const column = m_columns[m_present.column].column;
        bool const descending = Descending(m_present);
        for (std::size_t i = m_present.begin; i != m_present.end; ++i)
        {
            if (!m_access.Read(m_records[i].row, column, m_value))
                return false;
            m_records[i].SetKey(m_present.offset == 0                 ? FirstKey(m_value, descending)
                                : m_present.offset == rest_of_numbers ? RestKey(m_value, descending)
                                                                      : TextKey(descending));
            if ((i & 0xFFF) == 0xFFF)
                m_access.Progress().Work(m_present.column == 0 && m_present.offset == 0 ? 0x1000 : 0);
        }
        return true;
    }

    std::uint64_t TextKey(bool descending) const
    {
        NaturalBytes bytes(m_value.Text());
        for (std::size_t i = 0; i < m_present.offset; ++i)
            bytes.Next();
        std::uint64_t const key = TakeBytes(bytes, further_text_bytes);
        return descending ? ~key : key;
    }

    /// Moves the offset to the first byte in which texts of the run differ.
    bool FindCommonBytes(Run const & run, std::size_t & offset)
    {
        unsigned int const column = m_columns[run.column].column;
        std::wstring first;
        std::size_t common = all_alike;
        for (std::size_t i = run.begin; i != run.end; ++i)
        {
            if (!m_access.Read(m_records[i].row, column, m_value))
                return false;
            if (i == run.begin)
            {
                first = m_value.Text();
                continue;
            }
            if (m_value.Text() == first)
                continue;
            NaturalBytes left(first);
            NaturalBytes right(m_value.Text());
            for (std::size_t at = 0; at < common; ++at)
            {
                unsigned char const next = left.Next();
                if (next != right.Next())
                    common = at;
                if (next == 0)
                    break;
            }
        }
        // Values may have changed meanwhile: the offset never goes back.
        offset = std::max(offset, common);
        return true;
    }

    /// Sorts records by their keys, and notes those with the same key for what comes next.
    void SortKeys(std::size_t begin, std::size_t end)
    {
        m_parts.clear();
        m_parts.push_back({begin, end});
        while (!m_parts.empty())
        {
            auto const [from, to] = m_parts.back();
            m_parts.pop_back();
            if (to - from <= few_records)
            {
                std::sort(m_records + from, m_records + to, [](Record const & a, Record const & b) {
                    std::uint64_t const first = a.Key();
                    std::uint64_t const second = b.Key();
                    return first != second ? first < second : a.row < b.row;
                });
                NoteRuns(from, to);
            }
            else
            {
                Distribute(from, to);
            }
        }
    }

    /// Records in order, also by row where keys are the same.
    void NoteRuns(std::size_t begin, std::size_t end)
    {
        while (begin != end)
        {
            std::uint64_t const key = m_records[begin].Key();
            std::size_t next = begin + 1;
            while (next != end && m_records[next].Key() == key)
                ++next;
            Note(begin, next, key, true);
            begin = next;
        }
    }

    void Note(std::size_t begin, std::size_t end, std::uint64_t key, bool inRowOrder)
    {
        std::size_t const size = end - begin;
        if (size > 1)
        {
            if (m_joined)
            {
                // The next column's keys have lost their last bits.
                m_runs.push_back({begin, end, m_present.column + 1, 0});
                return;
            }
            if (std::size_t const offset = NextOffset(key); offset != 0)
            {
                m_runs.push_back({begin, end, m_present.column, offset});
                return;
            }
            if (m_present.column + 1 < m_columns.size() || !inRowOrder)
            {
                m_runs.push_back({begin, end, m_present.column + 1, 0});
                return;
            }
        }
        m_access.Progress().Work(size);
    }

    /// Where the next key of values with that key in the present run begins; 0 if it says all.
    std::size_t NextOffset(std::uint64_t key) const
    {
        bool const descending = Descending(m_present);
        if (m_present.offset == 0)
        {
            if (key >= not_a_number_key)
                return 0;
            if (key >= text_keys)
                return ((descending ? ~key : key) & 0xFF) != 0 ? first_text_bytes : 0;
            return std::fabs(NumberOf(key)) >= exact_limit ? rest_of_numbers : 0;
        }
        if (m_present.offset == rest_of_numbers)
            return 0;
        return ((descending ? ~key : key) & 0xFF) != 0 ? m_present.offset + further_text_bytes : 0;
    }

    /// Puts records where their first differing bits belong.
    void Distribute(std::size_t begin, std::size_t end)
    {
        std::uint64_t all = ~0ULL;
        std::uint64_t any = 0;
        bool sorted = true;
        std::uint64_t last = 0;
        for (std::size_t i = begin; i != end; ++i)
        {
            std::uint64_t const key = m_records[i].Key();
            all &= key;
            any |= key;
            sorted = sorted && key >= last && (i == begin || m_records[i].row > m_records[i - 1].row || key != last);
            last = key;
        }
        if (sorted)
        {
            NoteRuns(begin, end);
            return;
        }
        std::uint64_t const differing = all ^ any;
        if (differing == 0)
        {
            Note(begin, end, all, false);
            return;
        }
        int const bits = end - begin > many_records ? most_bits : fewer_bits;
        int const highest = 63 - std::countl_zero(differing);
        int const shift = std::max(0, highest + 1 - bits);
        std::uint64_t const mask = (1ULL << (highest + 1 - shift)) - 1;
        std::size_t const buckets = mask + 1;
        std::size_t * const next = m_next;
        std::size_t * const ends = m_ends;
        std::fill_n(ends, buckets, 0);
        for (std::size_t i = begin; i != end; ++i)
            ++ends[m_records[i].Key() >> shift & mask];
        std::size_t at = begin;
        for (std::size_t bucket = 0; bucket < buckets; ++bucket)
        {
            next[bucket] = at;
            at += ends[bucket];
            ends[bucket] = at;
        }
        for (std::size_t bucket = 0; bucket < buckets; ++bucket)
        {
            while (next[bucket] != ends[bucket])
            {
                Record moved = m_records[next[bucket]];
                std::size_t target = moved.Key() >> shift & mask;
                while (target != bucket)
                {
                    std::swap(moved, m_records[next[target]++]);
                    target = moved.Key() >> shift & mask;
                }
                m_records[next[bucket]++] = moved;
            }
        }
        std::size_t from = begin;
        for (std::size_t bucket = 0; bucket < buckets; ++bucket)
        {
            std::size_t const to = ends[bucket];
            if (to != from)
                m_parts.push_back({from, to});
            from = to;
        }
    }

    void SortByRow(std::size_t begin, std::size_t end)
    {
        auto const byRow = [](Record const & a, Record const & b) { return a.row < b.row; };
        if (!std::is_sorted(m_records + begin, m_records + end, byRow))
        {
            if (end - begin <= few_records)
            {
                std::sort(m_records + begin, m_records + end, byRow);
            }
            else
            {
                // The row as the key: then the same as ever.
                for (std::size_t i = begin; i != end; ++i)
                    m_records[i].SetKey(m_records[i].row);
                m_present = {begin, end, static_cast<std::uint32_t>(m_columns.size() - 1), rest_of_numbers};
                m_joined = false;
                SortKeys(begin, end);
                return;
            }
        }
        m_access.Progress().Work(end - begin);
    }

    static constexpr std::size_t rest_of_numbers = static_cast<std::size_t>(-1);
    static constexpr std::size_t all_alike = static_cast<std::size_t>(-2);
    static constexpr std::size_t few_records = 128;
    static constexpr std::size_t most_values = 2048;
    static constexpr std::uint32_t no_value = 0xFFFFFFFF;
    static constexpr std::size_t many_records = 1 << 17;
    static constexpr int most_bits = 11;
    static constexpr int fewer_bits = 8;

    TableAccess & m_access;
    std::span<TableSortColumn const> m_columns;
    Record * m_records;
    std::size_t m_count;
    TableValue m_value;
    Run m_present{};
    // Of a run whose keys are joined.
    bool m_joined = false;
    std::vector<std::uint64_t> m_values;
    std::vector<std::uint32_t> m_places;
    std::vector<Run> m_runs;
    std::vector<std::pair<std::size_t, std::size_t>> m_parts;
    std::size_t m_next[1 << most_bits];
    std::size_t m_ends[1 << most_bits];
};

int CompareValues(TableValue const & a, TableValue const & b, bool descending)
{
    std::uint64_t const first = FirstKey(a, descending);
    std::uint64_t const second = FirstKey(b, descending);
    if (first != second)
        return first < second ? -1 : 1;
    if (first >= not_a_number_key)
        return 0;
    if (first >= text_keys)
    {
        int const order = CompareNaturally(a.Text(), b.Text());
        return descending ? -order : order;
    }
    long long const left = RestOf(a);
    long long const right = RestOf(b);
    if (left == right)
        return 0;
    return (left < right) != descending ? -1 : 1;
}
} // namespace

bool SortTableRows(TableAccess & access, std::span<TableSortColumn const> columns, TableRows & rows)
{
    std::size_t const count = rows.size();
    if (columns.empty() || count == 0)
        return !access.Stopped();
    rows.Resize(3 * count);
    auto * const records = reinterpret_cast<Record *>(rows.data());
    // From the last one, as a record covers rows behind its own.
    for (std::size_t i = count; i-- > 0;)
    {
        TableRow row;
        std::memcpy(&row, rows.data() + i, sizeof(row));
        Record const record{0, 0, row};
        std::memcpy(static_cast<void *>(records + i), &record, sizeof(record));
    }
    auto const sorter = std::make_unique<Sorter>(access, columns, records, count);
    bool const sorted = sorter->Sort();
    for (std::size_t i = 0; i < count; ++i)
    {
        TableRow row;
        std::memcpy(&row, reinterpret_cast<char const *>(records + i) + offsetof(Record, row), sizeof(row));
        std::memcpy(rows.data() + i, &row, sizeof(row));
    }
    rows.Resize(count);
    rows.Fit();
    return sorted;
}

TableRowCompare::TableRowCompare(TableAccess & access, std::span<TableSortColumn const> columns)
    : m_access(access),
      m_columns(columns),
      m_values(columns.size())
{
}

void TableRowCompare::Take(TableRow row)
{
    m_row = row;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        m_access.Read(row, m_columns[i].column, m_values[i]);
}

bool TableRowCompare::ComesAheadOf(TableRow other)
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        m_access.Read(other, m_columns[i].column, m_other);
        if (int const order = CompareValues(m_values[i], m_other, m_columns[i].descending); order != 0)
            return order < 0;
    }
    return m_row < other;
}
