#include "FileDrag.h"

#include <afxwin.h>
#include <objidl.h>
#include <ole2.h>
#include <shlobj.h>

#include <algorithm>
#include <string>
#include <utility>

namespace workbench
{

namespace
{

/// Files as the clipboard has them.
HGLOBAL DroppedFiles(std::vector<std::filesystem::path> const & files)
{
    std::wstring names; // each with a zero, and another one at the end
    for (std::filesystem::path const & file : files)
    {
        names += file.wstring() + L'\0';
    }
    names += L'\0';
    HGLOBAL const memory = ::GlobalAlloc(GHND, sizeof(DROPFILES) + names.size() * sizeof(wchar_t));
    if (auto * const header = memory != nullptr ? static_cast<DROPFILES *>(::GlobalLock(memory)) : nullptr)
    {
        header->pFiles = sizeof *header;
        header->fWide = TRUE;
        std::ranges::copy(names, reinterpret_cast<wchar_t *>(header + 1));
        ::GlobalUnlock(memory);
    }
    return memory;
}

/// Counts what refers to an object, which ends with the last one.
template <typename Interface> class Counted : public Interface
{
public:
    Counted() = default;
    Counted(Counted const &) = delete;
    Counted & operator=(Counted const &) = delete;
    virtual ~Counted() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void ** object) override
    {
        auto const isMine = id == __uuidof(IUnknown) || id == __uuidof(Interface);
        *object = isMine ? static_cast<Interface *>(this) : nullptr;
        if (isMine)
        {
            AddRef();
        }
        return isMine ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_count; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        ULONG const count = --m_count;
        if (count == 0)
        {
            delete this;
        }
        return count;
    }

private:
    ULONG m_count = 1;
};

/// The files on their way.
class FileData : public Counted<IDataObject>
{
public:
    explicit FileData(std::vector<std::filesystem::path> files) : m_files(std::move(files)) {}

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC * format, STGMEDIUM * medium) override
    {
        if (HRESULT const result = QueryGetData(format); result != S_OK)
        {
            return result;
        }
        *medium = {};
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = DroppedFiles(m_files);
        return medium->hGlobal != nullptr ? S_OK : E_OUTOFMEMORY;
    }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC * format) override
    {
        bool const isMine = format->cfFormat == CF_HDROP && (format->tymed & TYMED_HGLOBAL) != 0 &&
                            format->dwAspect == DVASPECT_CONTENT && format->lindex == -1;
        return isMine ? S_OK : DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC ** formats) override
    {
        FORMATETC const format{CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
        *formats = nullptr;
        return direction == DATADIR_GET ? ::SHCreateStdEnumFmtEtc(1, &format, formats) : E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC *, STGMEDIUM *) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC *, FORMATETC * out) override
    {
        out->ptd = nullptr;
        return DATA_S_SAMEFORMATETC;
    }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC *, STGMEDIUM *, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC *, DWORD, IAdviseSink *, DWORD *) override
    {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA **) override { return OLE_E_ADVISENOTSUPPORTED; }

private:
    std::vector<std::filesystem::path> const m_files;
};

/// Ends the drag with the button or Escape.
class FileSource : public Counted<IDropSource>
{
public:
    HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escape, DWORD keys) override
    {
        if (escape)
        {
            return DRAGDROP_S_CANCEL;
        }
        return (keys & MK_LBUTTON) != 0 ? S_OK : DRAGDROP_S_DROP;
    }
    HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }
};

} // namespace

bool DragFiles(std::vector<std::filesystem::path> const & files)
{
    if (FAILED(::OleInitialize(nullptr)))
    {
        return false;
    }
    auto * const data = new FileData(files);
    auto * const source = new FileSource;
    DWORD effect = DROPEFFECT_NONE;
    HRESULT const result = ::DoDragDrop(data, source, DROPEFFECT_COPY | DROPEFFECT_LINK, &effect);
    source->Release();
    data->Release();
    ::OleUninitialize();
    return result == DRAGDROP_S_DROP && effect != DROPEFFECT_NONE;
}

} // namespace workbench
