#pragma once

#include "logic/NumberSigns.h"

namespace workbench
{

/// The signs that the user's region writes numbers with, as they are now.
NumberSigns UserNumberSigns();

/// Has numbers written with them from now on. Gives whether they are others than before.
bool UseUserNumbers();

} // namespace workbench
