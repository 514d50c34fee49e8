#include "HelpKey.h"

#include <utility>

namespace workbench
{

namespace
{

thread_local HelpKey * s_present = nullptr;

} // namespace

HelpKey::HelpKey(HWND frame, std::function<void(HWND, bool)> pressed)
    : m_frame(frame),
      m_pressed(std::move(pressed)),
      m_hook(::SetWindowsHookExW(WH_GETMESSAGE, &HelpKey::OnMessage, nullptr, ::GetCurrentThreadId()))
{
    s_present = this;
}

HelpKey::~HelpKey()
{
    s_present = nullptr;
    ::UnhookWindowsHookEx(m_hook);
}

LRESULT CALLBACK HelpKey::OnMessage(int code, WPARAM removed, LPARAM parameter)
{
    auto & message = *reinterpret_cast<MSG *>(parameter);
    if (code == HC_ACTION && removed == PM_REMOVE && s_present != nullptr && message.message == WM_KEYDOWN &&
        message.wParam == VK_F1 && ::GetAncestor(message.hwnd, GA_ROOT) != s_present->m_frame)
    {
        message.message = WM_NULL;
        auto const pressed = s_present->m_pressed;
        pressed(message.hwnd, ::GetKeyState(VK_CONTROL) < 0);
    }
    return ::CallNextHookEx(nullptr, code, removed, parameter);
}

} // namespace workbench
