#pragma once
// What printing, preview and application share. Inside framework.dll only.

#include <afxwin.h>

namespace framework
{
constexpr UINT any_page = 0xFFFF; // as the last page: not known

struct PrintAccess
{
    /// What IsPrinting says, whatever the device is.
    static void SetPrinting(CDC & dc, bool printing) { dc.m_printing = printing; }
};

/// The paper, and what of it can be printed on, in the device's units.
CSize PaperSize(HDC device);
CRect PrintableArea(HDC device);

/// Whether the system has any printer; its dialogs don't all end without one.
bool HasPrinter();
/// A context for the printer that the command line names; null without one. The caller's to delete.
HDC CommandLinePrinter();
/// The number of pages side by side in a preview, kept by the application.
UINT PreviewPages();
void KeepPreviewPages(UINT count);
} // namespace framework
