#include "windows/MenuRegistry.h"

int menu_registry::NextFreeId(menus_t const & menus, range_t const & range)
{
    auto const [first, end] = range;
    auto entry = menus.begin();
    for (unsigned int candidate = first; candidate < end; ++candidate)
    {
        if (entry == menus.end() || entry->first != candidate)
            return static_cast<int>(candidate);
        ++entry;
    }
    return refused;
}

int menu_registry::Add(menus_t & menus, elements_t & elements, int id, unsigned int parent, std::wstring text,
                       std::function<void()> callback)
{
    if (id < 0)
        return refused;
    auto const [entry, added] =
        menus.try_emplace(static_cast<unsigned int>(id), std::pair(std::move(callback), std::move(text)));
    if (!added)
        return refused;
    elements.emplace(parent, entry);
    return id;
}

void menu_registry::RemoveElement(elements_t & elements, menus_t::iterator entry)
{
    auto const found =
        std::find_if(elements.begin(), elements.end(), [&](auto const & element) { return element.second == entry; });
    if (found != elements.end())
        elements.erase(found);
}
