#include "ColumnsField.h"

#include "RecordingColumns.h"
#include "logic/Texts.h"

LRESULT CColumnsField::WindowProc(UINT message, WPARAM wide, LPARAM parameter)
{
    // The field itself keeps the word for all in the language of its first use.
    if (message == WM_SETTEXT && TheSelection().contains(workbench::every_column))
    {
        parameter = reinterpret_cast<LPARAM>(workbench::Text(L"(all)"));
    }
    return CXEditBrowseCtrl::WindowProc(message, wide, parameter);
}
