#pragma once
// What the folder dialog asks of the shell.
//
// Instance() is defined once a program: by FolderPlatformWindows.cpp in the module, by a substitute in the logic tests.
// A system without such a shell defines its own, whose browser sends the same two notifications.

#include <afx.h>

/// The shell's allocator.
struct ShellAllocator;

/// An item of the shell's namespace.
struct ShellItem;

/// What the browser tells while it is open.
/// browser: its window. message: 1 once it has opened, 2 when the selection has changed. item: the selected ShellItem
/// in the latter case. The result is 0.
using FolderNotification = int(CALLBACK *)(HWND browser, UINT message, LPARAM item, LPARAM data);

/// How the browser is to be shown.
struct FolderBrowse
{
    /// May be null.
    HWND owner;
    /// Room for MAX_PATH characters; receives the display name of the item.
    wchar_t * displayName;
    /// The text over the tree.
    wchar_t const * title;
    /// The shell's BIF_ values.
    unsigned int flags;
    FolderNotification notification;
};

class FolderPlatform
{
public:
    virtual ~FolderPlatform() = default;

    static FolderPlatform & Instance();

    /// The allocator, to be released, or null.
    virtual ShellAllocator * Allocator() = 0;
    virtual void Release(ShellAllocator & allocator) = 0;

    /// Shows the browser until the user is done. The item chosen, to be freed with the allocator, or null.
    virtual ShellItem * Browse(FolderBrowse const & browse) = 0;
    virtual void Free(ShellAllocator & allocator, ShellItem & item) = 0;
    /// False for an item outside the file system.
    virtual bool PathOf(ShellItem const & item, wchar_t (&path)[MAX_PATH]) = 0;

    /// Selects the folder of that path in the browser's tree.
    virtual void Select(HWND browser, wchar_t const * path) = 0;
    virtual void SetStatusText(HWND browser, wchar_t const * text) = 0;
};
