#pragma once
// Private to the framework's sources: how much of the thread's stack is left.

namespace framework
{
/// Whether less than a quarter of the stack, or than 256 KiB of a large one, is left.
bool StackIsLow();
} // namespace framework
