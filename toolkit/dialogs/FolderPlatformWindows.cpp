#include "dialogs/FolderPlatform.h"

#include <afxwin.h>
#include <shlobj.h>

namespace
{
IMalloc & AsMalloc(ShellAllocator & allocator)
{
    return reinterpret_cast<IMalloc &>(allocator);
}

class WindowsFolderPlatform final : public FolderPlatform
{
public:
    ShellAllocator * Allocator() override
    {
        IMalloc * allocator = nullptr;
        return SUCCEEDED(::SHGetMalloc(&allocator)) ? reinterpret_cast<ShellAllocator *>(allocator) : nullptr;
    }
    void Release(ShellAllocator & allocator) override { AsMalloc(allocator).Release(); }

    ShellItem * Browse(FolderBrowse const & browse) override
    {
        BROWSEINFOW info{};
        info.hwndOwner = browse.owner;
        info.pszDisplayName = browse.displayName;
        info.lpszTitle = browse.title;
        info.ulFlags = browse.flags;
        info.lpfn = browse.notification;
        return reinterpret_cast<ShellItem *>(::SHBrowseForFolderW(&info));
    }
    void Free(ShellAllocator & allocator, ShellItem & item) override { AsMalloc(allocator).Free(&item); }
    bool PathOf(ShellItem const & item, wchar_t (&path)[MAX_PATH]) override
    {
        return ::SHGetPathFromIDListW(reinterpret_cast<PCIDLIST_ABSOLUTE>(&item), path) != FALSE;
    }

    void Select(HWND browser, wchar_t const * path) override
    {
        ::SendMessageW(browser, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(path));
    }
    void SetStatusText(HWND browser, wchar_t const * text) override
    {
        ::SendMessageW(browser, BFFM_SETSTATUSTEXTW, 0, reinterpret_cast<LPARAM>(text));
    }
};
} // namespace

FolderPlatform & FolderPlatform::Instance()
{
    static WindowsFolderPlatform platform;
    return platform;
}
