#include "FakeFolderPlatform.h"

namespace
{
// The browser's window is only passed on.
HWND BrowserWindow()
{
    return reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x5000));
}
} // namespace

FolderPlatform & FolderPlatform::Instance()
{
    return FakeFolderPlatform::Current();
}

FakeFolderPlatform & FakeFolderPlatform::Current()
{
    static FakeFolderPlatform platform;
    return platform;
}

void FakeFolderPlatform::Reset()
{
    hasAllocator = true;
    user = {};
    shown = {};
    shownTitle.clear();
    calls.clear();
    m_items.clear();
}

ShellItem & FakeFolderPlatform::Add(std::optional<std::wstring> path)
{
    m_items.push_back(std::make_unique<ShellItem>(ShellItem{std::move(path)}));
    return *m_items.back();
}

ShellAllocator * FakeFolderPlatform::Allocator()
{
    calls.push_back(L"Allocator");
    return hasAllocator ? &m_allocator : nullptr;
}

void FakeFolderPlatform::Release(ShellAllocator & allocator)
{
    calls.push_back(&allocator == &m_allocator ? L"Release" : L"Release of another");
}

ShellItem * FakeFolderPlatform::Browse(FolderBrowse const & browse)
{
    calls.push_back(L"Browse");
    shown = browse;
    shownTitle = browse.title;
    return user ? user(browse) : nullptr;
}

void FakeFolderPlatform::Free(ShellAllocator & allocator, ShellItem &)
{
    calls.push_back(&allocator == &m_allocator ? L"Free" : L"Free with another");
}

bool FakeFolderPlatform::PathOf(ShellItem const & item, wchar_t (&path)[MAX_PATH])
{
    if (!item.path)
    {
        return false;
    }
    path[item.path->copy(path, MAX_PATH - 1)] = L'\0';
    return true;
}

void FakeFolderPlatform::Select(HWND browser, wchar_t const * path)
{
    calls.push_back((browser == BrowserWindow() ? L"Select " : L"Select elsewhere ") + std::wstring(path));
}

void FakeFolderPlatform::SetStatusText(HWND browser, wchar_t const * text)
{
    calls.push_back((browser == BrowserWindow() ? L"Status " : L"Status elsewhere ") + std::wstring(text));
}

int FakeFolderPlatform::Notify(UINT message, ShellItem * item)
{
    return shown.notification(BrowserWindow(), message, reinterpret_cast<LPARAM>(item), 0);
}
