#pragma once
// The edit field over a table's cell. Internal to the module.

#include "list/XEdit.h"

/// As the report list's, with keys that lead on to other cells.
class CXTableEdit : public XListCtrl::CXEdit
{
public:
    using CXEdit::CXEdit;

    /// Where the user goes with the key that ended it.
    enum class Way
    {
        stay,
        forth,
        back
    };
    Way LastWay() const { return m_way; }

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    /// True for a key that ends it; the object may be gone then.
    bool TakesKey(WPARAM key);

    Way m_way = Way::stay;
};
