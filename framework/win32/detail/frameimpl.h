#pragma once
// What the extended main frames have in common: their docking.

#include <afxdockingmanager.h>

class CFrameImpl
{
public:
    CFrameImpl() = default;
    CFrameImpl(CFrameImpl const &) = delete;
    CFrameImpl & operator=(CFrameImpl const &) = delete;

    CDockingManager & Manager() { return m_dockingManager; }
    /// Null as long as nothing is docked.
    framework::DockHost * Host() const { return m_dockingManager.m_host; }

private:
    friend class CFrameWndEx;
    friend class CMDIFrameWndEx;
    friend class CWinAppEx;

    CFrameWnd * m_frame = nullptr;
    CDockingManager m_dockingManager;
    bool m_loadDockState = true;
};
