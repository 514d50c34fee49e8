#pragma once

#include <afxwin.h>

namespace workbench
{

/// Gives the controls of an open dialog the texts that its template has in the present language; those without a text
/// there keep theirs. Gives the template's caption.
CString ShowTemplateTexts(CWnd & dialog, UINT templateId);

/// That caption alone.
CString TemplateCaption(UINT templateId);

} // namespace workbench
