#pragma once
// Internal to the sources of CAdvComboBox.

#include "list/combo/AdvComboBox.h"
#include "list/combo/WindowWatch.h"

namespace XListCtrl
{
/// Tells whether the combo and its window are still there after a call that can run the host's code.
class CAdvComboBox::Watch : public WindowWatch
{
public:
    explicit Watch(CAdvComboBox const & combo) : WindowWatch(combo, combo.m_life) {}
};
} // namespace XListCtrl
