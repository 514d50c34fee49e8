#include "views_FramesTest.h"

namespace frames
{
IMPLEMENT_DYNCREATE(TestDocument, CDocument)
IMPLEMENT_DYNCREATE(TestView, CView)
IMPLEMENT_DYNCREATE(RefusingView, TestView)
IMPLEMENT_DYNCREATE(PlainPane, CWnd)
IMPLEMENT_DYNCREATE(TestMain, CMDIFrameWndEx)
IMPLEMENT_DYNCREATE(TestChild, CMDIChildWndEx)

BEGIN_MESSAGE_MAP(TestView, CView)
    ON_WM_CREATE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(TestMain, CMDIFrameWndEx)
    ON_COMMAND(ID_TEST_KEY, &TestMain::OnKey)
    ON_COMMAND(ID_TEST_CHECKED, &TestMain::OnChecked)
    ON_UPDATE_COMMAND_UI(ID_TEST_CHECKED, &TestMain::OnUpdateChecked)
    ON_UPDATE_COMMAND_UI(ID_TEST_GROWING, &TestMain::OnUpdateGrowing)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(TestChild, CMDIChildWndEx)
    ON_COMMAND_EX(ID_TEST_ROUTED, &TestChild::OnRouted)
END_MESSAGE_MAP()
} // namespace frames
