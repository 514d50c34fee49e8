#pragma once
// The extended frames, panes and docking, bars that draw themselves, and the application that keeps its workspace.

#include <afxautohidebar.h>
#include <afxbasepane.h>
#include <afxbasetabbedpane.h>
#include <afxbasetoolbar.h>
#include <afxdockablepane.h>
#include <afxdockingmanager.h>
#include <afxframewndex.h>
#include <afxmdichildwndex.h>
#include <afxmdiframewndex.h>
#include <afxmenubar.h>
#include <afxmultipaneframewnd.h>
#include <afxpane.h>
#include <afxpanedivider.h>
#include <afxpaneframewnd.h>
#include <afxpopupmenu.h>
#include <afxpopupmenubar.h>
#include <afxstatusbar.h>
#include <afxtabbedpane.h>
#include <afxtoolbar.h>
#include <afxtoolbarbutton.h>
#include <afxtoolbarimages.h>
#include <afxtoolbarmenubutton.h>
#include <afxwinappex.h>
