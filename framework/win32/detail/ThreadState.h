#pragma once
// What the framework keeps for each thread. Inside framework.dll only.

#include <afxwin.h>

#include "HandleMap.h"

class CToolTipCtrl;

namespace framework
{
HandleMap<CWnd> & WindowMap();
HandleMap<CDC> & DcMap();
HandleMap<CGdiObject> & GdiObjectMap();
HandleMap<CMenu> & MenuMap();
HandleMap<CImageList> & ImageListMap();
/// Deletes the temporary objects of all the thread's maps.
void DeleteTemporaryObjects();

CWnd * MakeTemporaryWnd(void * handle);
void ReleaseTemporaryWnd(CWnd * window);
CDC * MakeTemporaryDc(void * handle);
void ReleaseTemporaryDc(CDC * dc);
CGdiObject * MakeTemporaryGdiObject(void * handle);
void ReleaseTemporaryGdiObject(CGdiObject * object);
CMenu * MakeTemporaryMenu(void * handle);
void ReleaseTemporaryMenu(CMenu * menu);
CImageList * MakeTemporaryImageList(void * handle);
void ReleaseTemporaryImageList(CImageList * list);

struct ThreadState
{
    ThreadState();

    HandleMap<CWnd> windows;
    HandleMap<CDC> deviceContexts;
    HandleMap<CGdiObject> gdiObjects;
    HandleMap<CMenu> menus;
    HandleMap<CImageList> imageLists;
    int temporaryMapLocks = 0;

    MSG lastSentMessage{}; // what the innermost window procedure is handling
    MSG pumpedMessage{};   // what the loop took from the queue
    POINT lastMousePoint{};
    UINT lastMouseMessage = 0;

    CWinThread * thread = nullptr;
    AFX_MODULE_STATE * moduleState = nullptr; // null: the application's
    HHOOK messageFilterHook = nullptr;

    CWnd * creating = nullptr; // gets the next window
    HHOOK creationHook = nullptr;
    HWND lockedOut = nullptr;  // its controls' notifications are ignored while its data are exchanged
    CPtrList topLevelFrames;   // that take part in idle time
    HMENU menuInUse = nullptr; // the last that a window of the thread was told of
    wchar_t className[96]{};   // what AfxRegisterWndClass gave last

    bool toolTipsEnabled = false;   // some window has asked for them
    HWND toolTip = nullptr;         // the control that shows them
    HWND toolTipParent = nullptr;   // the window that it was made for
    CWnd * toolTipWindow = nullptr; // whose tool it showed last
    INT_PTR toolTipHit = -1;
    TOOLINFOW toolTipTool{}; // cbSize is 0 while the control has no tool
};

/// The calling thread's state; made at the first use.
ThreadState & CurrentThreadState();
} // namespace framework
