#pragma once
// Who called whom, as lines on the error output: a module and a place within it each. Names of functions: `addr2line -f
// -e` with the module, its image base added.

#include <windows.h>

namespace tests
{
/// A line on the error output: a format of wsprintfA for a number, the place within its module and the module's name.
void WritePlace(char const * format, DWORD what, std::size_t at);

/// The callers of the function that the context is of, the nearest first.
void WriteCallers(CONTEXT const & context);

/// What all threads of this process do but the calling one. They go on afterwards.
void WriteOtherThreads();
} // namespace tests
