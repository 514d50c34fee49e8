#pragma once

#include <afx.h>

#include "frame/Export.h"

/// Lets the user choose a folder in the shell's folder browser. The browser opens at the folder last chosen in the
/// process, by whichever object. For the user-interface thread.
class INSTRUMENT_UI_API CFolderDialog
{
public:
    /// owner: disabled while the browser is open; may be null.
    explicit CFolderDialog(HWND__ * owner);
    CFolderDialog(CFolderDialog const &) = default;
    CFolderDialog & operator=(CFolderDialog const &) = default;
    virtual ~CFolderDialog() = default;

    /// Shows the browser. IDOK (1) with a folder chosen; IDCANCEL (2) without one, also when the choice has no path in
    /// the file system or the shell fails.
    int DoModal();
    /// The same, but gives the path chosen, or an empty string.
    CString GetFolder();
    /// The path last chosen with this object. After a showing that gave none it is what the browser left there: nothing
    /// or the display name of an item.
    CString GetPathName();

    /// The folder at which browsers open from now on. Null changes nothing. Of a longer path the first 259 characters
    /// are kept.
    void SetInitialDir(wchar_t const * path);
    /// The text over the tree; null makes it empty.
    void SetTitleMessage(wchar_t const * text);
    /// Replaces the flags, BIF_ values of the shell. At first they are 5: file-system folders only, and a status text.
    void SetBrowseInfoFlags(unsigned int flags);
    /// Adds to the flags.
    void AddBrowseInfoFlags(unsigned int flags);

private:
    static constexpr int path_size = 260;

    static wchar_t * GetInitialDirStrPtr();
    static int CALLBACK OnBrowse(HWND browser, UINT message, LPARAM item, LPARAM data);

    static wchar_t m_initialDir[path_size];

    HWND m_owner;
    CString m_titleMessage;
    unsigned int m_browseFlags;
    wchar_t m_pathName[path_size];
};
