#include "ModuleAllocations.h"

#include <cstddef>
#include <cstring>
#include <utility>
#include <vector>

namespace
{
using New = void * (*)(std::size_t);
using Calloc = void * (*)(std::size_t, std::size_t);
using Realloc = void * (*)(void *, std::size_t);

unsigned long long count = 0;
New realNew;
New realNewArray;
New realMalloc;
Calloc realCalloc;
Realloc realRealloc;

void * CountedNew(std::size_t size)
{
    ++count;
    return realNew(size);
}
void * CountedNewArray(std::size_t size)
{
    ++count;
    return realNewArray(size);
}
void * CountedMalloc(std::size_t size)
{
    ++count;
    return realMalloc(size);
}
void * CountedCalloc(std::size_t number, std::size_t size)
{
    ++count;
    return realCalloc(number, size);
}
void * CountedRealloc(void * block, std::size_t size)
{
    ++count;
    return realRealloc(block, size);
}

/// An imported function by its name in the object file, where its address is kept, and what stands in for it.
struct Substitute
{
    char const * name;
    void ** real;
    void * counted;
};
Substitute const substitutes[] = {
    {"_Znwy", reinterpret_cast<void **>(&realNew), reinterpret_cast<void *>(&CountedNew)},
    {"_Znay", reinterpret_cast<void **>(&realNewArray), reinterpret_cast<void *>(&CountedNewArray)},
    {"malloc", reinterpret_cast<void **>(&realMalloc), reinterpret_cast<void *>(&CountedMalloc)},
    {"calloc", reinterpret_cast<void **>(&realCalloc), reinterpret_cast<void *>(&CountedCalloc)},
    {"realloc", reinterpret_cast<void **>(&realRealloc), reinterpret_cast<void *>(&CountedRealloc)},
};

struct Replaced
{
    void ** place;
    void * former;
};
std::vector<Replaced> replaced;

void Write(void ** place, void * function)
{
    DWORD former = 0;
    ::VirtualProtect(place, sizeof(*place), PAGE_READWRITE, &former);
    *place = function;
    ::VirtualProtect(place, sizeof(*place), former, &former);
}
} // namespace

bench::ModuleAllocations::ModuleAllocations(wchar_t const * module)
{
    count = 0;
    auto * const base = reinterpret_cast<BYTE *>(::GetModuleHandleW(module));
    if (base == nullptr)
        return;
    auto const & headers =
        *reinterpret_cast<IMAGE_NT_HEADERS const *>(base + reinterpret_cast<IMAGE_DOS_HEADER const *>(base)->e_lfanew);
    IMAGE_DATA_DIRECTORY const & directory = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    auto const * import = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR const *>(base + directory.VirtualAddress);
    for (; import->Name != 0; ++import)
    {
        auto const * name = reinterpret_cast<IMAGE_THUNK_DATA const *>(base + import->OriginalFirstThunk);
        auto * address = reinterpret_cast<IMAGE_THUNK_DATA *>(base + import->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++address)
        {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            auto const & byName = *reinterpret_cast<IMAGE_IMPORT_BY_NAME const *>(base + name->u1.AddressOfData);
            for (Substitute const & substitute : substitutes)
            {
                if (std::strcmp(reinterpret_cast<char const *>(byName.Name), substitute.name) == 0)
                {
                    auto ** const place = reinterpret_cast<void **>(&address->u1.Function);
                    *substitute.real = *place;
                    replaced.push_back({place, *place});
                    Write(place, substitute.counted);
                }
            }
        }
    }
}

bench::ModuleAllocations::~ModuleAllocations()
{
    for (Replaced const & each : replaced)
        Write(each.place, each.former);
    replaced.clear();
}

unsigned long long bench::ModuleAllocations::Count() const
{
    return count;
}
