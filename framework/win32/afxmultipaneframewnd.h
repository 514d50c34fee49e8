#pragma once
// A floating frame with room for several panes beside each other.

#include "afxpaneframewnd.h"

class FRAMEWORK_API CMultiPaneFrameWnd : public CPaneFrameWnd
{
    DECLARE_DYNCREATE(CMultiPaneFrameWnd)
};
