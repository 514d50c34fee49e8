#pragma once
// The folder dialog's shell in the logic tests: a browser that does what the test says, and a log of what was asked.

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/FolderPlatform.h"

struct ShellItem
{
    /// None for an item outside the file system.
    std::optional<std::wstring> path;
};

struct ShellAllocator
{
};

class FakeFolderPlatform final : public FolderPlatform
{
public:
    /// The one of this program.
    static FakeFolderPlatform & Current();

    void Reset();
    /// The item stays in memory until Reset.
    ShellItem & Add(std::optional<std::wstring> path);

    ShellAllocator * Allocator() override;
    void Release(ShellAllocator & allocator) override;
    ShellItem * Browse(FolderBrowse const & browse) override;
    void Free(ShellAllocator & allocator, ShellItem & item) override;
    bool PathOf(ShellItem const & item, wchar_t (&path)[MAX_PATH]) override;
    void Select(HWND browser, wchar_t const * path) override;
    void SetStatusText(HWND browser, wchar_t const * text) override;

    /// Sends the open browser's notification to the dialog. item: null for "opened".
    int Notify(UINT message, ShellItem * item = nullptr);

    bool hasAllocator = true;
    /// What the user does in the browser; gives the item chosen, or null for cancelling.
    std::function<ShellItem *(FolderBrowse const & browse)> user;
    /// How the browser was shown last.
    FolderBrowse shown{};
    std::wstring shownTitle;
    /// "Allocator", "Browse", "Select PATH", "Status TEXT", "Free", "Release" in order.
    std::vector<std::wstring> calls;

private:
    ShellAllocator m_allocator;
    std::vector<std::unique_ptr<ShellItem>> m_items;
};
