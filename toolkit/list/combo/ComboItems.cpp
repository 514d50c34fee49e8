#include "list/combo/ComboItems.h"

#include <algorithm>
#include <cwchar>
#include <iterator>
#include <utility>

namespace XListCtrl
{
namespace
{
bool BeginsWith(combo_item const & item, std::wstring const & text)
{
    return std::wcsncmp(item.text.c_str(), text.c_str(), text.size()) == 0;
}

bool Is(combo_item const & item, std::wstring const & text)
{
    return std::wcscmp(item.text.c_str(), text.c_str()) == 0;
}
} // namespace

combo_item * ComboItems::At(std::int64_t index) const
{
    if (index < 0 || index >= Count())
        return nullptr;
    m_cursor = std::next(m_items.begin(), static_cast<std::ptrdiff_t>(index));
    return &*m_cursor;
}

int ComboItems::Add(std::wstring text)
{
    combo_item item;
    item.text = std::move(text);
    m_items.push_back(std::move(item));
    return Count() - 1;
}

int ComboItems::Insert(int index, std::wstring text)
{
    if (index < none)
        return none;
    if (index == none || index > Count() || m_items.empty())
        return Add(std::move(text));
    m_cursor = std::next(m_items.begin(), index);
    combo_item item;
    item.text = std::move(text);
    m_items.insert(m_cursor, std::move(item));
    if (index <= m_selected)
        ++m_selected;
    return index;
}

int ComboItems::Delete(int index)
{
    if (At(index) == nullptr)
        return none;
    m_cursor = m_items.erase(m_cursor);
    return Count();
}

void ComboItems::Reset()
{
    m_items.clear();
    m_cursor = m_items.end();
    m_text.clear();
    m_selected = none;
}

void ComboItems::Load(std::wstring const & lines)
{
    m_items.clear();
    m_cursor = m_items.end();
    std::size_t begin = lines.find_first_not_of(L'\n');
    while (begin != std::wstring::npos)
    {
        std::size_t const end = lines.find(L'\n', begin);
        Add(lines.substr(begin, end == std::wstring::npos ? end : end - begin));
        begin = lines.find_first_not_of(L'\n', end);
    }
}

template <class Predicate> int ComboItems::Search(int start, Predicate const & fits) const
{
    if (start == none)
        start = 0;
    if (start < 0 || start >= Count())
        return none;
    m_cursor = std::find_if(std::next(m_items.begin(), start), m_items.end(), fits);
    return m_cursor == m_items.end() ? none : static_cast<int>(std::distance(m_items.begin(), m_cursor));
}

int ComboItems::Find(int start, std::wstring const & text) const
{
    return Search(start, [&](combo_item const & item) { return BeginsWith(item, text); });
}

int ComboItems::FindExact(int start, std::wstring const & text) const
{
    return Search(start, [&](combo_item const & item) { return Is(item, text); });
}

int ComboItems::Select(std::int64_t index)
{
    if (index == none)
    {
        m_selected = none;
        m_text.clear();
        return none;
    }
    if (m_items.empty())
    {
        m_selected = index;
        return none;
    }
    combo_item const * const item = At(index);
    if (item == nullptr)
        return none;
    m_selected = index;
    m_text = item->text;
    return static_cast<int>(index);
}

int ComboItems::SelectExact(int start, std::wstring const & text)
{
    int const found = FindExact(start, text);
    return found == none ? none : Select(found);
}

void ComboItems::TakeSelectedText()
{
    if (combo_item const * const item = At(m_selected); item != nullptr)
        m_text = item->text;
}

std::optional<int> ComboItems::Neighbour(bool forward) const
{
    std::int64_t const count = Count();
    if (forward)
    {
        if (m_selected >= count || m_selected < none)
            return std::nullopt;
        std::int64_t index = m_selected + 1;
        for (m_cursor = std::next(m_items.begin(), index); m_cursor != m_items.end(); ++m_cursor, ++index)
        {
            if (m_cursor->disabled == 0)
                return static_cast<int>(index);
        }
        return std::nullopt;
    }
    std::int64_t index = std::min(m_selected, count);
    if (index <= 0)
        return std::nullopt;
    m_cursor = std::next(m_items.begin(), index);
    while (m_cursor != m_items.begin())
    {
        --m_cursor;
        --index;
        if (m_cursor->disabled == 0)
            return static_cast<int>(index);
    }
    return std::nullopt;
}

std::optional<int> ComboItems::PageNeighbour(bool forward) const
{
    int const count = Count();
    if (count == 0)
        return std::nullopt;
    int const present = m_selected < 0 || m_selected >= count ? 0 : static_cast<int>(m_selected);
    return forward ? std::min(present + page, count - 1) : std::max(present - page, 0);
}

combo_item const * ComboItems::Completion(std::wstring const & typed) const
{
    return Find(none, typed) == none ? nullptr : &*m_cursor;
}

std::list<combo_item> ComboItems::Suggestions(std::wstring const & typed) const
{
    std::list<combo_item> offered;
    for (m_cursor = m_items.begin(); m_cursor != m_items.end(); ++m_cursor)
    {
        if (BeginsWith(*m_cursor, typed) && !Is(*m_cursor, typed))
            offered.push_back(*m_cursor);
    }
    return offered;
}
} // namespace XListCtrl
