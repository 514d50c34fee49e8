#pragma once
// Internal to the sources of CAdvComboBox.

#include "frame/WindowAlive.h"
#include "list/combo/AdvComboBox.h"

namespace XListCtrl
{
/// Tells whether the combo and its window are still there after a call that can run the host's code.
class CAdvComboBox::Watch : public WindowAlive
{
public:
    explicit Watch(CAdvComboBox const & combo) : WindowAlive(combo, combo.m_life) {}
};
} // namespace XListCtrl
