// StdAfx.h : the headers that all sources of the program include
//

#if !defined(AFX_STDAFX_H__SHAPES__INCLUDED_)
#define AFX_STDAFX_H__SHAPES__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#define VC_EXTRALEAN // without what is hardly used of the Windows headers

#include <afxwin.h>   // core and standard components
#include <afxext.h>   // extensions
#include <afxdisp.h>  // automation classes
#include <afxdtctl.h> // the common controls of later systems
#ifndef _AFX_NO_AFXCMN_SUPPORT
#include <afxcmn.h> // the common controls
#endif              // _AFX_NO_AFXCMN_SUPPORT
#include <afxtempl.h> // collections

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_STDAFX_H__SHAPES__INCLUDED_)
