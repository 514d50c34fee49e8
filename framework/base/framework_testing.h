#pragma once
// What tests of framework programs may intercept.

#include "FrameworkExport.h"

namespace framework
{
/// Called for each failed assertion. True: handled, the program goes on. False: the usual report.
using AssertHandler = bool (*)(char const * file, int line);

/// Installs the handler (null: none) and gives the one before.
FRAMEWORK_API AssertHandler SetAssertHandler(AssertHandler handler);
} // namespace framework
