// The heap that the tests with a hostile host run on: it notices what it is there for, in every module.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "ChildProgram.h"
#include "GuardedHeap.h"
#include "windows/FensterManager.h"

namespace
{
using tests::GuardedHeap;

/// Out of the compiler's sight, which would warn of what the tests do, or leave it out.
void Write(void * block, std::ptrdiff_t offset, char value)
{
    void * volatile const hidden = block;
    static_cast<char *>(hidden)[offset] = value;
}

TEST(GuardedHeap, NoticesAWriteAfterFree)
{
    GuardedHeap heap;
    char * const block = new char[40];
    std::uintptr_t volatile const address = reinterpret_cast<std::uintptr_t>(block);
    delete[] block;
    EXPECT_EQ(heap.Check(), 0u);
    Write(reinterpret_cast<void *>(address), 17, 1);
    EXPECT_EQ(heap.Check(), 1u);
    EXPECT_EQ(heap.Check(), 1u) << "a broken block counts once";
    std::vector<GuardedHeap::Error> const errors = heap.Take();
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].damage, GuardedHeap::Damage::after_free);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(errors[0].block), address);
    EXPECT_EQ(errors[0].size, 40u);
    EXPECT_EQ(errors[0].offset, 17);
    EXPECT_EQ(heap.Errors(), 0u);
}

TEST(GuardedHeap, NoticesAWriteBehindTheEndAndBeforeTheBeginning)
{
    GuardedHeap heap;
    auto const behind = std::make_unique<char[]>(13);
    auto const before = std::make_unique<char[]>(13);
    Write(behind.get(), 12, 1);
    Write(before.get(), 0, 1);
    EXPECT_EQ(heap.Check(), 0u);
    Write(behind.get(), 13, 1);
    Write(before.get(), -1, 1);
    EXPECT_EQ(heap.Check(), 2u);
    for (GuardedHeap::Error const & error : heap.Take())
    {
        bool const isBehind = error.block == behind.get();
        EXPECT_EQ(error.damage, isBehind ? GuardedHeap::Damage::behind : GuardedHeap::Damage::before);
        EXPECT_EQ(error.offset, isBehind ? 13 : -1);
    }
}

TEST(GuardedHeap, ChecksABlockThatLeavesTheQuarantine)
{
    GuardedHeap heap(4096);
    char * const block = new char[40];
    std::uintptr_t volatile const address = reinterpret_cast<std::uintptr_t>(block);
    delete[] block;
    Write(reinterpret_cast<void *>(address), 0, 1);
    for (int count = 0; count < 100; ++count)
    {
        char * const other = new char[100];
        Write(other, 0, 1);
        delete[] other;
    }
    EXPECT_EQ(heap.Errors(), 1u) << "found without a check of all";
    heap.Take();
}

TEST(GuardedHeap, NoticesAnOverrunWhenTheBlockIsFreed)
{
    GuardedHeap heap;
    char * const block = new char[5];
    Write(block, 5, 1);
    delete[] block;
    EXPECT_EQ(heap.Errors(), 1u);
    heap.Take();
}

TEST(GuardedHeap, NoticesABlockThatIsFreedTwice)
{
    GuardedHeap heap;
    void * volatile block = std::malloc(8);
    std::free(block);
    std::free(block);
    std::vector<GuardedHeap::Error> const errors = heap.Take();
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].damage, GuardedHeap::Damage::double_free);
}

TEST(GuardedHeap, CoversTheFrameworkAndTheModule)
{
    GuardedHeap heap;
    CString text(L"a text of the framework");
    text += L" that grows";
    // The string's letters stand behind its counts, in one block.
    wchar_t const * const letters = text.GetString();
    bool found = false;
    for (std::size_t offset = 0; offset <= 64 && !found; offset += 8)
        found = GuardedHeap::Owns(reinterpret_cast<char const *>(letters) - offset);
    EXPECT_TRUE(found) << "a string of the framework";

    unsigned long long const before = heap.Allocations();
    {
        CFensterManager const manager(CFensterManager::window_dialog);
    }
    EXPECT_GT(heap.Allocations(), before) << "an object of the module";
    EXPECT_EQ(heap.Check(), 0u);
}

LRESULT CALLBACK Faulting(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_USER)
        *reinterpret_cast<int volatile *>(wParam) = 1;
    return ::DefWindowProcW(window, message, wParam, lParam);
}

CHILD_PROGRAM(FaultsInAWindowProcedure)
{
    GuardedHeap const heap;
    HWND const window = ::CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Faulting));
    ::SendMessageW(window, WM_USER, 8, 0);
    ::DestroyWindow(window);
    return 0;
}

TEST(GuardedHeap, AFaultInAWindowProcedureEndsTheProgram)
{
    tests::ChildProgram child("FaultsInAWindowProcedure");
    ASSERT_TRUE(child.WaitForEnd());
    EXPECT_EQ(child.ExitCode(), GuardedHeap::exit_code_of_a_fault);
    EXPECT_NE(child.ErrorText().find("exception c0000005"), std::string::npos);
}

TEST(GuardedHeap, CountsWhatLives)
{
    GuardedHeap heap;
    std::size_t const blocks = heap.LiveBlocks();
    std::size_t const bytes = heap.LiveBytes();
    auto number = std::make_unique<std::uint64_t>(1);
    EXPECT_EQ(heap.LiveBlocks(), blocks + 1);
    EXPECT_EQ(heap.LiveBytes(), bytes + 8);
    number.reset();
    EXPECT_EQ(heap.LiveBlocks(), blocks);
    EXPECT_EQ(heap.LiveBytes(), bytes);
}

TEST(GuardedHeap, BlocksFromBeforeAndAfterItGoTheirWay)
{
    std::wstring before(100, L'b');
    std::unique_ptr<std::wstring> after;
    void * grown = std::malloc(10);
    std::memset(grown, 7, 10);
    {
        GuardedHeap heap;
        before.append(1000, L'c');
        after = std::make_unique<std::wstring>(300, L'a');
        grown = std::realloc(grown, 20);
        void * own = std::realloc(nullptr, 10);
        std::memset(own, 9, 10);
        own = std::realloc(own, 5000);
        EXPECT_EQ(static_cast<char *>(own)[9], 9);
        std::free(own);
        void * const zeros = std::calloc(10, 10);
        EXPECT_EQ(static_cast<char *>(zeros)[99], 0);
        std::free(zeros);
    }
    EXPECT_EQ(before.size(), 1100u);
    after->append(2000, L'd');
    EXPECT_EQ((*after)[299], L'a');
    grown = std::realloc(grown, 30);
    EXPECT_EQ(static_cast<char *>(grown)[9], 7);
    std::free(grown);
    after.reset();
}
} // namespace
