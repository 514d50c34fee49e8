#pragma once
// Counts the allocations of a loaded module.

#include <afxwin.h>

namespace bench
{
/// For its life, what the module imports as `operator new`, `operator new[]`, `malloc`, `calloc` and `realloc` counts
/// its calls. Allocations by inlined code count as well, since they go through the module's imports; those of other
/// modules, the native controls among them, don't. One object at a time.
class ModuleAllocations
{
public:
    explicit ModuleAllocations(wchar_t const * module);
    ~ModuleAllocations();
    ModuleAllocations(ModuleAllocations const &) = delete;
    ModuleAllocations & operator=(ModuleAllocations const &) = delete;

    /// Calls since the object was made. 0 for a module that is not loaded.
    unsigned long long Count() const;
};
} // namespace bench
