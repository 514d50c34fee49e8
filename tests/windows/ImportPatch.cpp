#include "ImportPatch.h"

#include <cstring>

namespace tests
{
namespace
{
template <typename T> T * At(HMODULE module, ULONGLONG offset)
{
    return reinterpret_cast<T *>(reinterpret_cast<BYTE *>(module) + offset);
}

ULONG_PTR * FindEntry(HMODULE module, char const * function)
{
    auto const * const headers = At<IMAGE_NT_HEADERS>(module, At<IMAGE_DOS_HEADER>(module, 0)->e_lfanew);
    DWORD const imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto * library = At<IMAGE_IMPORT_DESCRIPTOR>(module, imports); library->Name != 0; ++library)
    {
        auto const * name = At<IMAGE_THUNK_DATA>(module, library->OriginalFirstThunk);
        auto * entry = At<IMAGE_THUNK_DATA>(module, library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++entry)
        {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            auto const * const import = At<IMAGE_IMPORT_BY_NAME>(module, name->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<char const *>(import->Name), function) == 0)
                return reinterpret_cast<ULONG_PTR *>(&entry->u1.Function);
        }
    }
    return nullptr;
}

void Write(ULONG_PTR * entry, ULONG_PTR value)
{
    DWORD former = 0;
    ::VirtualProtect(entry, sizeof(*entry), PAGE_READWRITE, &former);
    *entry = value;
    ::VirtualProtect(entry, sizeof(*entry), former, &former);
}
} // namespace

ImportPatch::ImportPatch(wchar_t const * module, char const * function, ULONG_PTR substitute)
{
    HMODULE const handle = ::GetModuleHandleW(module);
    m_entry = handle != nullptr ? FindEntry(handle, function) : nullptr;
    if (m_entry != nullptr)
    {
        m_former = *m_entry;
        Write(m_entry, substitute);
    }
}

ImportPatch::~ImportPatch()
{
    if (m_entry != nullptr)
        Write(m_entry, m_former);
}
} // namespace tests
