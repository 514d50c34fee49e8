#pragma once

#include <afxwin.h>

#include <functional>

namespace workbench
{

/// Puts a picture on the clipboard as an enhanced metafile. size: in pixels of the window's screen. False if the
/// picture cannot be made or the clipboard refuses it, of which the user has then been told.
bool CopyPicture(CWnd & window, CSize size, std::function<void(CDC &, CRect const &)> const & draw);

} // namespace workbench
