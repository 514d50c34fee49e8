#pragma once

#include "controls/XEditBrowseCtrl.h"

/// A field that shows which columns are chosen. Where all are, it says so in the present language.
class CColumnsField : public CXEditBrowseCtrl
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wide, LPARAM parameter) override;
};
