#pragma once
// A heap that notices writes into freed memory and beyond the ends of blocks, for tests whose host does its worst:
//
//     tests::GuardedHeap heap;             // from here on, new, delete, malloc and free of all our modules are guarded
//     for (int step = 0; step < 10000; ++step)
//     {
//         Chaos(step);
//         if (step % 100 == 0)
//             ASSERT_EQ(heap.Check(), 0u) << "in step " << step;
//     }                                    // the end of the object checks once more and fails the test
//
// It covers the program, the compiler's C++ library and every loaded library that uses the latter: instrument_ui.dll
// and framework.dll, and with them CString and the containers of the standard library. Memory that Windows and the
// native controls allocate for themselves is not covered, nor are variables with an alignment beyond 16 bytes.
//
// Each block stands between two guards. A freed block is filled with a pattern and kept in a quarantine; it is checked
// when it leaves it, in Check and at the end. What is found is printed at once, with the block's address, its size, the
// place of the damage and the running number of its allocation. The same program with the same seed gives the same
// numbers, so SetBreak(number) stops a second run in a debugger at that allocation. Fresh memory holds 0xCD, freed
// memory 0xDD, guards 0xFD: a crash at such an address is a read of what has gone.
//
// A fault (a bad address, a trap of the compiler's, a stack that is full) ends the program, with a word of where it
// was: window systems pass over faults in window procedures. Names of functions: `addr2line -f -e` with the module, its
// image base added.
//
// One object at a time. Blocks from before its life are left as they are; blocks that outlive it stay valid.

#include <windows.h>

#include <cstddef>
#include <vector>

namespace tests
{
class GuardedHeap
{
public:
    enum class Damage
    {
        after_free,  ///< a write into a block that was freed
        behind,      ///< a write behind the end of a block
        before,      ///< a write before its beginning
        double_free, ///< a block that was freed twice
    };

    struct Error
    {
        Damage damage;
        void * block;
        std::size_t size;
        /// First broken byte, counted from the block's beginning.
        std::ptrdiff_t offset;
        /// The running number of the allocation, from 1.
        unsigned long long number;
    };

    /// quarantine: how many bytes of freed blocks are kept before the oldest goes back to the system.
    explicit GuardedHeap(std::size_t quarantine = 64 << 20);
    /// Errors that nobody has taken fail the test.
    ~GuardedHeap();
    GuardedHeap(GuardedHeap const &) = delete;
    GuardedHeap & operator=(GuardedHeap const &) = delete;

    /// Checks all guards and the whole quarantine. The number of errors so far that nobody has taken. Each broken block
    /// counts once.
    std::size_t Check();
    /// The errors that were found so far, without a look for new ones.
    std::size_t Errors() const;
    /// Gives the errors and forgets them.
    std::vector<Error> Take();

    /// What was allocated in the object's life and lives still: a leak grows with the number of repetitions.
    std::size_t LiveBlocks() const;
    std::size_t LiveBytes() const;
    /// Allocations in the object's life: above 0 whenever the guarded code has allocated.
    unsigned long long Allocations() const;

    /// True for a guarded block that is in use.
    static bool Owns(void const * block);
    /// The allocation of this number stops in the debugger.
    static void SetBreak(unsigned long long number);

    /// That of a program that was ended because of a fault.
    static constexpr UINT exit_code_of_a_fault = 77;

private:
    void * m_faults;
};
} // namespace tests
