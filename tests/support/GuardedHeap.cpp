#include "GuardedHeap.h"

#include <psapi.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <deque>
#include <new>
#include <unordered_map>

#include "CallStack.h"

namespace tests
{
namespace
{
constexpr BYTE fresh_byte = 0xCD;
constexpr BYTE freed_byte = 0xDD;
constexpr BYTE guard_byte = 0xFD;
constexpr std::size_t guard_size = 32; // a multiple of 16 keeps blocks aligned
constexpr wchar_t cpp_library[] = L"libstdc++-6.dll";

/// For our own bookkeeping, which must not go through what it books.
template <typename T> struct PlainAllocator
{
    using value_type = T;
    PlainAllocator() = default;
    template <typename U> PlainAllocator(PlainAllocator<U> const &) {}
    T * allocate(std::size_t count)
    {
        // Where T is a pointer, as of a bucket, its own size is what is wanted.
        // NOLINTNEXTLINE(bugprone-sizeof-expression)
        if (void * const memory = ::HeapAlloc(::GetProcessHeap(), 0, count * sizeof(T)))
            return static_cast<T *>(memory);
        throw std::bad_alloc();
    }
    void deallocate(T * memory, std::size_t) { ::HeapFree(::GetProcessHeap(), 0, memory); }
    template <typename U> bool operator==(PlainAllocator<U> const &) const { return true; }
};

struct Block
{
    std::size_t size;
    unsigned long long number;
    bool freed;
    bool reported;
};

using Blocks = std::unordered_map<void *, Block, std::hash<void *>, std::equal_to<void *>,
                                  PlainAllocator<std::pair<void * const, Block>>>;

/// All there is, one for the process and never destroyed: blocks may be freed after everything else has gone.
struct State
{
    CRITICAL_SECTION lock;
    HANDLE heap;
    Blocks blocks;
    std::deque<void *, PlainAllocator<void *>> quarantine;
    std::vector<GuardedHeap::Error, PlainAllocator<GuardedHeap::Error>> errors;
    std::size_t quarantineLimit = 0;
    std::size_t quarantineBytes = 0;
    std::size_t liveBlocks = 0;
    std::size_t liveBytes = 0;
    unsigned long long number = 0;
    unsigned long long firstNumber = 0;
    unsigned long long breakAt = 0;
    bool on = false;
};

void * (*g_malloc)(std::size_t);
void * (*g_calloc)(std::size_t, std::size_t);
void * (*g_realloc)(void *, std::size_t);
void (*g_free)(void *);
State * g_state;

class Lock
{
public:
    Lock() { ::EnterCriticalSection(&g_state->lock); }
    ~Lock() { ::LeaveCriticalSection(&g_state->lock); }
    Lock(Lock const &) = delete;
    Lock & operator=(Lock const &) = delete;
};

char const * Text(GuardedHeap::Damage damage)
{
    switch (damage)
    {
    case GuardedHeap::Damage::after_free:
        return "written after it was freed";
    case GuardedHeap::Damage::behind:
        return "written behind its end";
    case GuardedHeap::Damage::before:
        return "written before its beginning";
    case GuardedHeap::Damage::double_free:
        return "freed twice";
    }
    return "";
}

void Report(void * address, Block & block, GuardedHeap::Damage damage, std::ptrdiff_t offset)
{
    block.reported = true;
    g_state->errors.push_back({damage, address, block.size, offset, block.number});
    // No stream of the C library, whose printing may allocate.
    char text[200];
    int const length =
        ::wsprintfA(text, "guarded heap: block %Ix of %Iu bytes, allocation %I64u: %s, byte %Id\n",
                    reinterpret_cast<std::size_t>(address), block.size, block.number, Text(damage), offset);
    DWORD written = 0;
    ::WriteFile(::GetStdHandle(STD_ERROR_HANDLE), text, static_cast<DWORD>(length), &written, nullptr);
}

/// The first byte that is not of the value, or size.
std::size_t FirstOther(BYTE const * memory, std::size_t size, BYTE value)
{
    std::uint64_t word;
    std::memset(&word, value, sizeof(word));
    std::size_t at = 0;
    for (; at + sizeof(word) <= size; at += sizeof(word))
    {
        if (std::memcmp(memory + at, &word, sizeof(word)) != 0)
            break;
    }
    while (at < size && memory[at] == value)
        ++at;
    return at;
}

void CheckBlock(void * address, Block & block)
{
    if (block.reported)
        return;
    BYTE * const memory = static_cast<BYTE *>(address);
    std::size_t at = FirstOther(memory - guard_size, guard_size, guard_byte);
    if (at < guard_size)
    {
        return Report(address, block, GuardedHeap::Damage::before,
                      static_cast<std::ptrdiff_t>(at) - static_cast<std::ptrdiff_t>(guard_size));
    }
    at = FirstOther(memory + block.size, guard_size, guard_byte);
    if (at < guard_size)
        return Report(address, block, GuardedHeap::Damage::behind, static_cast<std::ptrdiff_t>(block.size + at));
    if (!block.freed)
        return;
    at = FirstOther(memory, block.size, freed_byte);
    if (at < block.size)
        Report(address, block, GuardedHeap::Damage::after_free, static_cast<std::ptrdiff_t>(at));
}

void GiveBack(Blocks::iterator found)
{
    ::HeapFree(g_state->heap, 0, static_cast<BYTE *>(found->first) - guard_size);
    g_state->blocks.erase(found);
}

void ShrinkQuarantine(std::size_t limit)
{
    while (g_state->quarantineBytes > limit)
    {
        auto const oldest = g_state->blocks.find(g_state->quarantine.front());
        g_state->quarantine.pop_front();
        g_state->quarantineBytes -= oldest->second.size + 2 * guard_size;
        CheckBlock(oldest->first, oldest->second);
        GiveBack(oldest);
    }
}

void * Allocate(std::size_t size, bool zero)
{
    Lock const lock;
    if (size > SIZE_MAX - 2 * guard_size)
        return nullptr;
    BYTE * const memory = static_cast<BYTE *>(::HeapAlloc(g_state->heap, 0, size + 2 * guard_size));
    if (memory == nullptr)
        return nullptr;
    std::memset(memory, guard_byte, guard_size);
    std::memset(memory + guard_size, zero ? 0 : fresh_byte, size);
    std::memset(memory + guard_size + size, guard_byte, guard_size);
    unsigned long long const number = ++g_state->number;
    if (number == g_state->breakAt)
        ::DebugBreak();
    g_state->blocks.emplace(memory + guard_size, Block{size, number, false, false});
    ++g_state->liveBlocks;
    g_state->liveBytes += size;
    return memory + guard_size;
}

/// False for a block that is none of ours.
bool Free(void * address)
{
    Lock const lock;
    auto const found = g_state->blocks.find(address);
    if (found == g_state->blocks.end())
        return false;
    Block & block = found->second;
    if (block.freed)
    {
        Report(address, block, GuardedHeap::Damage::double_free, 0);
        return true;
    }
    CheckBlock(address, block);
    if (block.number > g_state->firstNumber)
    {
        --g_state->liveBlocks;
        g_state->liveBytes -= block.size;
    }
    if (!g_state->on)
    {
        GiveBack(found);
        return true;
    }
    block.freed = true;
    std::memset(address, freed_byte, block.size);
    g_state->quarantine.push_back(address);
    g_state->quarantineBytes += block.size + 2 * guard_size;
    ShrinkQuarantine(g_state->quarantineLimit);
    return true;
}

void * GuardedMalloc(std::size_t size)
{
    return g_state->on ? Allocate(size, false) : g_malloc(size);
}

void * GuardedCalloc(std::size_t count, std::size_t size)
{
    if (!g_state->on)
        return g_calloc(count, size);
    if (size != 0 && count > SIZE_MAX / size)
        return nullptr;
    return Allocate(count * size, true);
}

void GuardedFree(void * block)
{
    if (block != nullptr && !Free(block))
        g_free(block);
}

void * GuardedRealloc(void * block, std::size_t size)
{
    if (block == nullptr)
        return GuardedMalloc(size);
    std::size_t former = 0;
    {
        Lock const lock;
        auto const found = g_state->blocks.find(block);
        if (found == g_state->blocks.end())
            return g_realloc(block, size);
        former = found->second.size;
    }
    void * const grown = size != 0 ? GuardedMalloc(size) : nullptr;
    if (grown != nullptr)
        std::memcpy(grown, block, former < size ? former : size);
    if (grown != nullptr || size == 0)
        Free(block);
    return grown;
}

struct Substitute
{
    char const * name;
    void ** real;
    void * guarded;
};
Substitute const substitutes[] = {
    {"malloc", reinterpret_cast<void **>(&g_malloc), reinterpret_cast<void *>(&GuardedMalloc)},
    {"calloc", reinterpret_cast<void **>(&g_calloc), reinterpret_cast<void *>(&GuardedCalloc)},
    {"realloc", reinterpret_cast<void **>(&g_realloc), reinterpret_cast<void *>(&GuardedRealloc)},
    {"free", reinterpret_cast<void **>(&g_free), reinterpret_cast<void *>(&GuardedFree)},
};

template <typename T> T * At(HMODULE module, ULONGLONG offset)
{
    return reinterpret_cast<T *>(reinterpret_cast<BYTE *>(module) + offset);
}

/// The first of a module's imported libraries; the list ends with one without a name.
IMAGE_IMPORT_DESCRIPTOR const * FirstLibrary(HMODULE module)
{
    static IMAGE_IMPORT_DESCRIPTOR const none{};
    auto const * const headers = At<IMAGE_NT_HEADERS>(module, At<IMAGE_DOS_HEADER>(module, 0)->e_lfanew);
    DWORD const imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    return imports != 0 ? At<IMAGE_IMPORT_DESCRIPTOR>(module, imports) : &none;
}

bool UsesCppLibrary(HMODULE module)
{
    for (IMAGE_IMPORT_DESCRIPTOR const * library = FirstLibrary(module); library->Name != 0; ++library)
    {
        wchar_t name[MAX_PATH];
        ::wsprintfW(name, L"%hs", At<char const>(module, library->Name));
        if (::lstrcmpiW(name, cpp_library) == 0)
            return true;
    }
    return false;
}

void PatchImports(HMODULE module)
{
    for (IMAGE_IMPORT_DESCRIPTOR const * library = FirstLibrary(module); library->Name != 0; ++library)
    {
        auto const * name = At<IMAGE_THUNK_DATA>(module, library->OriginalFirstThunk);
        auto * entry = At<IMAGE_THUNK_DATA>(module, library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++entry)
        {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            char const * const function = At<IMAGE_IMPORT_BY_NAME>(module, name->u1.AddressOfData)->Name;
            for (Substitute const & each : substitutes)
            {
                if (std::strcmp(function, each.name) != 0)
                    continue;
                auto ** const place = reinterpret_cast<void **>(&entry->u1.Function);
                DWORD former = 0;
                ::VirtualProtect(place, sizeof(*place), PAGE_READWRITE, &former);
                *place = each.guarded;
                ::VirtualProtect(place, sizeof(*place), former, &former);
            }
        }
    }
}

/// A window system may pass over a fault in a window procedure that it has called, and the test would go on as if
/// nothing had happened.
LONG CALLBACK EndOnFault(EXCEPTION_POINTERS * fault)
{
    DWORD const code = fault->ExceptionRecord->ExceptionCode;
    if (code != EXCEPTION_ACCESS_VIOLATION && code != EXCEPTION_ILLEGAL_INSTRUCTION &&
        code != EXCEPTION_STACK_OVERFLOW && code != STATUS_HEAP_CORRUPTION)
        return EXCEPTION_CONTINUE_SEARCH;
    WritePlace("guarded heap: exception %lx at %Ix of %s\n", code,
               reinterpret_cast<std::size_t>(fault->ExceptionRecord->ExceptionAddress));
    WriteCallers(*fault->ContextRecord);
    ::TerminateProcess(::GetCurrentProcess(), GuardedHeap::exit_code_of_a_fault);
    return EXCEPTION_CONTINUE_SEARCH;
}

/// Once for the process, and for good: a guarded block may be freed at any later time.
void Install()
{
    if (g_state != nullptr)
        return;
    HMODULE const runtime = ::GetModuleHandleW(L"msvcrt.dll");
    for (Substitute const & each : substitutes)
        *each.real = reinterpret_cast<void *>(::GetProcAddress(runtime, each.name));

    g_state = new (::HeapAlloc(::GetProcessHeap(), 0, sizeof(State))) State;
    ::InitializeCriticalSection(&g_state->lock);
    g_state->heap = ::HeapCreate(0, 0, 0);

    HMODULE modules[256];
    DWORD size = 0;
    ::EnumProcessModules(::GetCurrentProcess(), modules, sizeof(modules), &size);
    HMODULE const cppLibrary = ::GetModuleHandleW(cpp_library);
    for (std::size_t at = 0; at < size / sizeof(HMODULE) && at < std::size(modules); ++at)
    {
        if (modules[at] == cppLibrary || UsesCppLibrary(modules[at]))
            PatchImports(modules[at]);
    }
}
} // namespace

GuardedHeap::GuardedHeap(std::size_t quarantine) : m_faults(::AddVectoredExceptionHandler(1, EndOnFault))
{
    Install();
    Lock const lock;
    g_state->quarantineLimit = quarantine;
    g_state->firstNumber = g_state->number;
    g_state->liveBlocks = 0;
    g_state->liveBytes = 0;
    g_state->on = true;
}

GuardedHeap::~GuardedHeap()
{
    ::RemoveVectoredExceptionHandler(m_faults);
    Check();
    {
        Lock const lock;
        g_state->on = false;
        ShrinkQuarantine(0);
    }
    for (Error const & error : Take())
    {
        ADD_FAILURE() << "guarded heap: block of " << error.size << " bytes, allocation " << error.number << ": "
                      << Text(error.damage) << ", byte " << error.offset;
    }
}

std::size_t GuardedHeap::Check()
{
    Lock const lock;
    for (auto & [address, block] : g_state->blocks)
        CheckBlock(address, block);
    return g_state->errors.size();
}

std::size_t GuardedHeap::Errors() const
{
    Lock const lock;
    return g_state->errors.size();
}

std::vector<GuardedHeap::Error> GuardedHeap::Take()
{
    Lock const lock;
    std::vector<Error> errors(g_state->errors.begin(), g_state->errors.end());
    g_state->errors.clear();
    return errors;
}

std::size_t GuardedHeap::LiveBlocks() const
{
    Lock const lock;
    return g_state->liveBlocks;
}

std::size_t GuardedHeap::LiveBytes() const
{
    Lock const lock;
    return g_state->liveBytes;
}

unsigned long long GuardedHeap::Allocations() const
{
    Lock const lock;
    return g_state->number - g_state->firstNumber;
}

bool GuardedHeap::Owns(void const * block)
{
    if (g_state == nullptr)
        return false;
    Lock const lock;
    auto const found = g_state->blocks.find(const_cast<void *>(block));
    return found != g_state->blocks.end() && !found->second.freed;
}

void GuardedHeap::SetBreak(unsigned long long number)
{
    Install();
    g_state->breakAt = number;
}
} // namespace tests
