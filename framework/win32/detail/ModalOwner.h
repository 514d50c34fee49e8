#pragma once
// The owner of a modal window: found at the start, disabled while the window is up, enabled again at the end.

#include <afxwin.h>

namespace framework
{
class ModalOwner
{
public:
    /// parent: where the caller's choice is, null for the application's main window.
    explicit ModalOwner(CWnd * parent);
    ~ModalOwner() { Enable(); }
    ModalOwner(ModalOwner const &) = delete;
    ModalOwner & operator=(ModalOwner const &) = delete;

    /// Null if there is no owner.
    HWND Window() const { return m_owner; }
    /// Disables the owner as well as its top-level window. The system's own dialogs do that themselves.
    void Disable();
    /// Gives the owner and its top-level window the state back that they had. Comes before the modal window goes,
    /// since the system would activate another program's window otherwise.
    void Enable();
    /// Makes the owner the active window, if the modal one is that.
    void ActivateAfter(HWND modal);

private:
    HWND m_owner = nullptr;
    HWND m_top = nullptr;
    bool m_disabled = false;
    bool m_wasEnabled = false;
};
} // namespace framework
