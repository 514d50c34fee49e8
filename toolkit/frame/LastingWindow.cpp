#include "frame/LastingWindow.h"

#include <commctrl.h>

#include <memory>
#include <utility>

namespace
{
constexpr UINT_PTR watcher = 0x1A57;
constexpr wchar_t const * work_property = L"InstrumentUiLastingWindow";

struct Work
{
    unsigned int messages = 0;
    bool isEnded = false;
};
using SharedWork = std::shared_ptr<Work>;

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR data)
{
    auto * const kept = reinterpret_cast<SharedWork *>(data);
    SharedWork const work = *kept;
    ++work->messages;
    LRESULT const result = ::DefSubclassProc(window, message, wParam, lParam);
    --work->messages;
    if (message == WM_NCDESTROY)
    {
        ::RemovePropW(window, work_property);
        ::RemoveWindowSubclass(window, Procedure, id);
        delete kept;
        work->isEnded = false;
    }
    else if (work->messages == 0 && std::exchange(work->isEnded, false))
    {
        ::DestroyWindow(window);
    }
    return result;
}
} // namespace

void lasting_window::Watch(HWND window)
{
    auto kept = std::make_unique<SharedWork>(std::make_shared<Work>());
    if (::SetWindowSubclass(window, Procedure, watcher, reinterpret_cast<DWORD_PTR>(kept.get())))
        ::SetPropW(window, work_property, kept.release());
}

void lasting_window::End(HWND window)
{
    auto const * const kept = static_cast<SharedWork const *>(::GetPropW(window, work_property));
    SharedWork const work = kept != nullptr ? *kept : std::make_shared<Work>();
    if (work->messages == 0)
    {
        ::DestroyWindow(window);
        return;
    }
    work->isEnded = true;
    ::ShowWindow(window, SW_HIDE);
    // Which may be ending, too.
    if (::IsWindow(window))
        ::SetWindowLongPtrW(window, GWLP_HWNDPARENT, 0);
}
