#include "detail/ThreadState.h"

#include <memory>

#include "detail/imagelist.h"

namespace framework
{
namespace
{
/// Frees the state when the thread ends. Objects that are destroyed later still find one: a new, empty one.
struct StateHolder
{
    ~StateHolder();
};

thread_local ThreadState * currentState = nullptr;
thread_local StateHolder holder;

StateHolder::~StateHolder()
{
    std::unique_ptr<ThreadState> const doomed(std::exchange(currentState, nullptr));
}
} // namespace

ThreadState::ThreadState()
    : windows(MakeTemporaryWnd, ReleaseTemporaryWnd),
      deviceContexts(MakeTemporaryDc, ReleaseTemporaryDc),
      gdiObjects(MakeTemporaryGdiObject, ReleaseTemporaryGdiObject),
      menus(MakeTemporaryMenu, ReleaseTemporaryMenu),
      imageLists(MakeTemporaryImageList, ReleaseTemporaryImageList)
{
}

ThreadState & CurrentThreadState()
{
    if (currentState == nullptr)
    {
        currentState = new ThreadState;
        static_cast<void>(&holder); // its first use registers its end
    }
    return *currentState;
}

HandleMap<CWnd> & WindowMap()
{
    return CurrentThreadState().windows;
}

HandleMap<CDC> & DcMap()
{
    return CurrentThreadState().deviceContexts;
}

HandleMap<CGdiObject> & GdiObjectMap()
{
    return CurrentThreadState().gdiObjects;
}

HandleMap<CMenu> & MenuMap()
{
    return CurrentThreadState().menus;
}

HandleMap<CImageList> & ImageListMap()
{
    return CurrentThreadState().imageLists;
}

void DeleteTemporaryObjects()
{
    ThreadState & state = CurrentThreadState();
    state.imageLists.DeleteTemporaries();
    state.menus.DeleteTemporaries();
    state.gdiObjects.DeleteTemporaries();
    state.deviceContexts.DeleteTemporaries();
    state.windows.DeleteTemporaries();
}
} // namespace framework

void AFXAPI AfxLockTempMaps()
{
    ++framework::CurrentThreadState().temporaryMapLocks;
}

BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps)
{
    framework::ThreadState & state = framework::CurrentThreadState();
    if (state.temporaryMapLocks > 0 && --state.temporaryMapLocks == 0 && bDeleteTemps)
        framework::DeleteTemporaryObjects();
    return state.temporaryMapLocks != 0;
}
