#pragma once
// The extended frames, panes and docking, and the application that keeps its workspace.

#include <afxautohidebar.h>
#include <afxbasepane.h>
#include <afxbasetabbedpane.h>
#include <afxdockablepane.h>
#include <afxdockingmanager.h>
#include <afxframewndex.h>
#include <afxmdichildwndex.h>
#include <afxmdiframewndex.h>
#include <afxmultipaneframewnd.h>
#include <afxpane.h>
#include <afxpanedivider.h>
#include <afxpaneframewnd.h>
#include <afxtabbedpane.h>
#include <afxwinappex.h>
