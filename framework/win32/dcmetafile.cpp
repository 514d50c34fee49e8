// Printing, escapes and metafiles.

#include "detail/GdiHandles.h"

IMPLEMENT_DYNAMIC(CMetaFileDC, CDC)

namespace
{
// Whether a record of a metafile changes the state of a context. The others draw, or make or delete an object.
bool ChangesState(UINT function)
{
    switch (function)
    {
    case META_SETBKCOLOR:
    case META_SETBKMODE:
    case META_SETMAPMODE:
    case META_SETROP2:
    case META_SETPOLYFILLMODE:
    case META_SETSTRETCHBLTMODE:
    case META_SETTEXTCHAREXTRA:
    case META_SETTEXTCOLOR:
    case META_SETTEXTJUSTIFICATION:
    case META_SETWINDOWORG:
    case META_SETWINDOWEXT:
    case META_SETVIEWPORTORG:
    case META_SETVIEWPORTEXT:
    case META_OFFSETWINDOWORG:
    case META_SCALEWINDOWEXT:
    case META_OFFSETVIEWPORTORG:
    case META_SCALEVIEWPORTEXT:
    case META_MOVETO:
    case META_EXCLUDECLIPRECT:
    case META_INTERSECTCLIPRECT:
    case META_OFFSETCLIPRGN:
    case META_SELECTCLIPREGION:
    case META_SELECTOBJECT:
    case META_SETTEXTALIGN:
    case META_SETMAPPERFLAGS:
    case META_SAVEDC:
    case META_RESTOREDC:
        return true;
    default:
        return false;
    }
}

int CALLBACK PlayRecord(HDC output, HANDLETABLE * table, METARECORD * record, int objects, LPARAM attributes)
{
    auto const count = static_cast<UINT>(objects);
    ::PlayMetaFileRecord(output, table, record, count);
    if (ChangesState(record->rdFunction))
        ::PlayMetaFileRecord(reinterpret_cast<HDC>(attributes), table, record, count);
    return 1;
}
} // namespace

int CDC::StartDoc(LPDOCINFO lpDocInfo)
{
    return ::StartDoc(m_hDC, lpDocInfo);
}

int CDC::StartDoc(LPCTSTR lpszDocName)
{
    DOCINFO info = {};
    info.cbSize = sizeof info;
    info.lpszDocName = lpszDocName;
    return StartDoc(&info);
}

int CDC::StartPage()
{
    return ::StartPage(m_hDC);
}

int CDC::EndPage()
{
    return ::EndPage(m_hDC);
}

int CDC::EndDoc()
{
    return ::EndDoc(m_hDC);
}

int CDC::AbortDoc()
{
    return ::AbortDoc(m_hDC);
}

int CDC::SetAbortProc(BOOL(CALLBACK * lpfn)(HDC, int))
{
    int const result = ::SetAbortProc(m_hDC, lpfn);
    if (result > 0)
        m_abortProc = lpfn;
    return result;
}

BOOL CDC::QueryAbort() const
{
    return m_abortProc == nullptr || m_abortProc(m_hDC, 0);
}

int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
{
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

int CDC::Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize, LPSTR lpszOutputData)
{
    return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
}

int CDC::DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData)
{
    return ::DrawEscape(m_hDC, nEscape, nInputSize, lpszInputData);
}

BOOL CDC::PlayMetaFile(HMETAFILE hMF)
{
    if (m_hAttribDC == nullptr || m_hAttribDC == m_hDC)
        return ::PlayMetaFile(m_hDC, hMF);
    return ::EnumMetaFile(m_hDC, hMF, PlayRecord, reinterpret_cast<LPARAM>(m_hAttribDC));
}

BOOL CDC::PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds)
{
    return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
}

BOOL CDC::AddMetaFileComment(UINT nDataSize, BYTE const * pCommentData)
{
    return ::GdiComment(m_hDC, nDataSize, pCommentData);
}

CMetaFileDC::CMetaFileDC() = default;

CMetaFileDC::~CMetaFileDC()
{
    // A metafile nobody closed is thrown away.
    if (::GetObjectType(m_hDC) == OBJ_ENHMETADC)
        ::DeleteEnhMetaFile(CloseEnhanced());
    else if (m_hDC != nullptr)
        ::DeleteMetaFile(Close());
}

BOOL CMetaFileDC::Create(LPCTSTR lpszFilename)
{
    SetOutputDC(::CreateMetaFile(lpszFilename));
    return m_hDC != nullptr;
}

BOOL CMetaFileDC::CreateEnhanced(CDC * pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds, LPCTSTR lpszDescription)
{
    HDC const reference = pDCRef == nullptr ? nullptr : pDCRef->m_hAttribDC;
    SetOutputDC(::CreateEnhMetaFile(reference, lpszFileName, lpBounds, lpszDescription));
    return m_hDC != nullptr;
}

HMETAFILE CMetaFileDC::Close()
{
    HDC const output = m_hDC;
    ReleaseOutputDC();
    return ::CloseMetaFile(output);
}

HENHMETAFILE CMetaFileDC::CloseEnhanced()
{
    HDC const output = m_hDC;
    ReleaseOutputDC();
    return ::CloseEnhMetaFile(output);
}
