#pragma once
// Everything that instrument_ui.dll offers to its hosts.

#include "frame/Export.h"
#include "frame/RegisteredMessages.h"

#include "frame/CoreLibrary.h"
#include "frame/PreferenceStore.h"

#include "layout/Edges.h"
#include "layout/DialogResizer.h"

#include "windows/FensterManager.h"
