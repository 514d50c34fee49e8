#pragma once
// Which identifiers a main frame's panes have, and which object of the pool stands for which. Internal to the module.
//
// Identifiers run from a base upwards. A Pane has View(), which is null while nobody uses it.

#include <map>

namespace pane_registry
{
/// The panes of a pool, and so the identifiers that can ever be assigned.
constexpr unsigned int max_panes = 100;
constexpr int refused = -1;

template <class Pane> using panes_t = std::map<unsigned int, Pane *>;

/// The lowest identifier from base on that is not in the map, which holds none below base.
template <class Pane> unsigned int LowestFree(panes_t<Pane> const & panes, unsigned int base)
{
    unsigned int candidate = base;
    auto entry = panes.begin();
    while (candidate < base + max_panes && entry != panes.end() && entry->first == candidate)
    {
        ++candidate;
        ++entry;
    }
    return candidate;
}

/// Gives out the pane of that identifier if nobody uses it, and else the one of the lowest free identifier. Gives the
/// identifier, or `refused` if the map is full; the pane then stays as it was.
template <class Pane>
int Register(panes_t<Pane> & panes, Pane (&pool)[max_panes], unsigned int base, Pane *& pane, int id)
{
    if (panes.size() >= max_panes)
        return refused;
    auto entry = id >= 0 ? panes.find(static_cast<unsigned int>(id)) : panes.end();
    if (entry == panes.end() || entry->second->View() != nullptr)
    {
        unsigned int const free = LowestFree(panes, base);
        entry = panes.emplace(free, &pool[free - base]).first;
    }
    pane = entry->second;
    return static_cast<int>(entry->first);
}

/// Reserves panes for the identifiers that have something stored, in their order and from the pool's start whatever the
/// identifiers are. A pane given out for a gap later may share its object with one of these, as hosts expect.
/// hasState: takes an identifier and tells whether something is stored of it.
template <class Pane, class HasState>
void Assign(panes_t<Pane> & panes, Pane (&pool)[max_panes], unsigned int base, HasState hasState)
{
    for (unsigned int offset = 0; offset < max_panes; ++offset)
    {
        unsigned int const id = base + offset;
        if (panes.size() < max_panes && hasState(id))
            panes.emplace(id, &pool[panes.size()]);
    }
}
} // namespace pane_registry
