#include "dialogs/FolderDialog.h"

#include <memory>
#include <string_view>

#include "dialogs/FolderPlatform.h"

wchar_t CFolderDialog::m_initialDir[path_size] = L"";

namespace
{
// Numbers of the window system and of the shell.
constexpr int result_ok = 1;
constexpr int result_cancel = 2;
constexpr unsigned int flag_file_system_only = 1;
constexpr unsigned int flag_status_text = 4;
constexpr UINT notification_opened = 1;
constexpr UINT notification_selection_changed = 2;

struct ReleaseAllocator
{
    void operator()(ShellAllocator * allocator) const { FolderPlatform::Instance().Release(*allocator); }
};

struct FreeItem
{
    void operator()(ShellItem * item) const { FolderPlatform::Instance().Free(allocator, *item); }
    ShellAllocator & allocator;
};

void CopyPath(wchar_t (&target)[MAX_PATH], std::wstring_view path)
{
    target[path.copy(target, MAX_PATH - 1)] = L'\0';
}
} // namespace

CFolderDialog::CFolderDialog(HWND__ * owner)
    : m_owner(owner),
      m_browseFlags(flag_file_system_only | flag_status_text),
      m_pathName{}
{
}

int CFolderDialog::DoModal()
{
    return GetFolder().IsEmpty() ? result_cancel : result_ok;
}

CString CFolderDialog::GetFolder()
{
    FolderPlatform & platform = FolderPlatform::Instance();
    std::unique_ptr<ShellAllocator, ReleaseAllocator> const allocator(platform.Allocator());
    if (allocator == nullptr)
    {
        return CString();
    }
    FolderBrowse const browse{m_owner, m_pathName, m_titleMessage, m_browseFlags, &CFolderDialog::OnBrowse};
    std::unique_ptr<ShellItem, FreeItem> const item(platform.Browse(browse), FreeItem{*allocator});
    wchar_t path[path_size] = L"";
    if (item == nullptr || !platform.PathOf(*item, path))
    {
        return CString();
    }
    SetInitialDir(path);
    CopyPath(m_pathName, path);
    return path;
}

CString CFolderDialog::GetPathName()
{
    return m_pathName;
}

void CFolderDialog::SetInitialDir(wchar_t const * path)
{
    if (path != nullptr)
    {
        CopyPath(m_initialDir, path);
    }
}

void CFolderDialog::SetTitleMessage(wchar_t const * text)
{
    m_titleMessage = text;
}

void CFolderDialog::SetBrowseInfoFlags(unsigned int flags)
{
    m_browseFlags = flags;
}

void CFolderDialog::AddBrowseInfoFlags(unsigned int flags)
{
    m_browseFlags |= flags;
}

wchar_t * CFolderDialog::GetInitialDirStrPtr()
{
    return m_initialDir;
}

int CALLBACK CFolderDialog::OnBrowse(HWND browser, UINT message, LPARAM item, LPARAM)
{
    FolderPlatform & platform = FolderPlatform::Instance();
    wchar_t path[path_size] = L"";
    if (message == notification_opened)
    {
        platform.Select(browser, GetInitialDirStrPtr());
    }
    else if (message == notification_selection_changed && platform.PathOf(*reinterpret_cast<ShellItem *>(item), path))
    {
        platform.SetStatusText(browser, path);
    }
    return 0;
}
