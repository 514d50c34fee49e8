#pragma once

#include <afxcmn.h>

#include "frame/Export.h"
#include "frame/LifeWatch.h"

/// The list of the id-name multiselect: rows with check boxes. A press on a row's text ticks it, too, and a press
/// anywhere on a row posts message 32802 to the parent: wParam 6, lParam the row's item value.
class INSTRUMENT_UI_API CIdNameMultiselectListCtlr : public CListCtrl
{
    DECLARE_DYNAMIC(CIdNameMultiselectListCtlr)

protected:
    void PreSubclassWindow() override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * result) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    class Access;

    /// Tells the parent, or else the owner, of a press on the row with that value.
    void TellOfPress(LPARAM id);

    LifeSign m_life;
};
