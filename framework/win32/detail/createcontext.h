#pragma once
// What a frame that is created knows of what it will show. Included by afxext.h.

class CDocTemplate;
class CDocument;
class CFrameWnd;
class CView;
struct CRuntimeClass;

/// Passed along while a frame and its views are created. What isn't known stays null.
struct CCreateContext
{
    CRuntimeClass * m_pNewViewClass = nullptr;
    CDocument * m_pCurrentDoc = nullptr;
    CDocTemplate * m_pNewDocTemplate = nullptr;
    CView * m_pLastView = nullptr;         // the view that the new one is modelled after
    CFrameWnd * m_pCurrentFrame = nullptr; // the frame that the new one is modelled after
};
