#pragma once
// Text, HTML, metafiles and data of one's own on the system's clipboard.
//
// Each function is a whole transaction: it opens the clipboard, empties it, sets its data and closes it. A failure is
// told to the user in a message box with the system's text for the error, unless said otherwise; no attempt is
// repeated. As hosts expect, the clipboard is left open if it can't be emptied, and memory is not freed that can't be
// filled, nor that of a text that can't be set. For the user-interface thread.

#include <afx.h>

#include "frame/Export.h"

struct HENHMETAFILE__;

namespace Clipboard
{
/// Puts the text there as Unicode text. An empty text just empties the clipboard.
INSTRUMENT_UI_API bool StringToClipboard(CString const & text);

/// Puts HTML there as "HTML Format", and the plain text as Unicode text unless it is null. If html is null or empty,
/// the clipboard is just emptied and the plain text ignored. Text with "<body>" must have "<html>" and "</html>", too.
/// The block has two bytes for each character of html; what is longer in UTF-8 is cut, as hosts expect. True also if
/// only the setting of the data has failed: for the HTML that is told, for the plain text it is not.
INSTRUMENT_UI_API bool HtmlToClipboard(wchar_t const * html, wchar_t const * plainText);

/// Puts an enhanced metafile there. The clipboard becomes its owner; if setting it fails, it is deleted. If the
/// clipboard can't be opened or emptied, it stays the caller's.
INSTRUMENT_UI_API bool WmfToClipboard(HENHMETAFILE__ * const metafile);

/// Puts a handle of global memory there under a registered format of that name. The clipboard becomes its owner; if
/// setting it fails, it is freed. If the clipboard can't be opened or emptied, it stays the caller's.
INSTRUMENT_UI_API bool HandleToClipboard(wchar_t const * formatName, void * handle);

/// Puts a copy of so many bytes there under a registered format of that name. False without a message if there is no
/// memory for it or size is 0; the clipboard is then untouched.
INSTRUMENT_UI_API bool DataToClipboard(wchar_t const * formatName, char const * data, unsigned int size);

/// Reads text. False, without a message and with the text untouched, if the clipboard has none. The text in the
/// system's narrow code page goes before the Unicode text, as hosts expect: characters outside that code page come as
/// the system converts them.
INSTRUMENT_UI_API bool StringFromClipboard(CString & text);
} // namespace Clipboard
