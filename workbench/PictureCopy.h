#pragma once

#include <afxwin.h>

#include <filesystem>
#include <functional>
#include <string>

namespace workbench
{

/// Draws a picture into a rectangle of a device context.
using Drawing = std::function<void(CDC &, CRect const &)>;

/// Puts a picture on the clipboard as an enhanced metafile and as a bitmap. size: in pixels of the window's screen.
/// False if the picture cannot be made or the clipboard refuses it, of which the user has then been told.
bool CopyPicture(CWnd & window, CSize size, Drawing const & draw);

/// Writes a picture as a PNG file; a file of that name is replaced. False if it cannot be made or written, and then a
/// file that was there before is as it was, and `error` has the system's number of the reason, or 0.
bool SavePicture(CWnd & window, CSize size, Drawing const & draw, std::filesystem::path const & file,
                 unsigned long * error = nullptr);

/// A picture as a PNG file has it; empty if it cannot be made.
std::string PngPicture(CWnd & window, CSize size, Drawing const & draw);

} // namespace workbench
