#include "PictureCopy.h"

#include <cstdint>
#include <cstring>
#include <cwchar>
#include <vector>

#include "clipboard/Clipboard.h"
#include "DrawingScopes.h"
#include "Graphics.h"
#include "logic/SafeFile.h"

namespace workbench
{

namespace
{

constexpr wchar_t description[] = L"Instrument Workbench\0Picture\0";
constexpr int hundredths_per_millimetre = 100;
constexpr wchar_t png_type[] = L"image/png";

/// A picture in memory, of 32 bits a pixel.
class PictureBitmap
{
public:
    PictureBitmap(CWnd & window, CSize size, Drawing const & draw)
    {
        CClientDC screen(&window);
        CDC memory;
        m_header.bmiHeader.biSize = sizeof(m_header.bmiHeader);
        m_header.bmiHeader.biWidth = size.cx;
        m_header.bmiHeader.biHeight = size.cy;
        m_header.bmiHeader.biPlanes = 1;
        m_header.bmiHeader.biBitCount = 32;
        m_header.bmiHeader.biCompression = BI_RGB;
        if (size.cx <= 0 || size.cy <= 0 || !memory.CreateCompatibleDC(&screen))
        {
            return;
        }
        HBITMAP const bitmap = ::CreateDIBSection(screen.m_hDC, &m_header, DIB_RGB_COLORS, &m_bits, nullptr, 0);
        if (bitmap == nullptr || !m_bitmap.Attach(bitmap))
        {
            m_bits = nullptr;
            return;
        }
        SelectScope const selected(memory, m_bitmap.GetSafeHandle());
        draw(memory, CRect(CPoint(0, 0), size));
        ::GdiFlush();
    }

    bool IsThere() const { return m_bits != nullptr; }
    BITMAPINFO const & Header() const { return m_header; }
    void * Bits() const { return m_bits; }
    std::size_t Length() const
    {
        return sizeof(std::uint32_t) * static_cast<std::size_t>(m_header.bmiHeader.biWidth) *
               static_cast<std::size_t>(m_header.bmiHeader.biHeight);
    }

private:
    CBitmap m_bitmap;
    BITMAPINFO m_header{};
    void * m_bits = nullptr;
};

/// Puts the picture beside what is on the clipboard.
bool AddBitmap(CWnd & window, PictureBitmap const & picture)
{
    if (!picture.IsThere() || !::OpenClipboard(window.m_hWnd))
    {
        return false;
    }
    std::size_t const header = sizeof(BITMAPINFOHEADER);
    HGLOBAL const memory = ::GlobalAlloc(GMEM_MOVEABLE, header + picture.Length());
    bool given = false;
    if (void * const block = memory != nullptr ? ::GlobalLock(memory) : nullptr)
    {
        std::memcpy(block, &picture.Header().bmiHeader, header);
        std::memcpy(static_cast<char *>(block) + header, picture.Bits(), picture.Length());
        ::GlobalUnlock(memory);
        given = ::SetClipboardData(CF_DIB, memory) != nullptr;
    }
    if (!given)
    {
        ::GlobalFree(memory);
    }
    ::CloseClipboard();
    return given;
}

/// What writes PNG files; false if the system has nothing for it.
bool FindPngEncoder(CLSID & found)
{
    UINT count = 0;
    UINT bytes = 0;
    Gdiplus::GetImageEncodersSize(&count, &bytes);
    std::vector<char> memory(bytes);
    auto * const encoders = reinterpret_cast<Gdiplus::ImageCodecInfo *>(memory.data());
    if (count == 0 || Gdiplus::GetImageEncoders(count, bytes, encoders) != Gdiplus::Ok)
    {
        return false;
    }
    for (UINT i = 0; i < count; ++i)
    {
        if (std::wcscmp(encoders[i].MimeType, png_type) == 0)
        {
            found = encoders[i].Clsid;
            return true;
        }
    }
    return false;
}

} // namespace

bool CopyPicture(CWnd & window, CSize size, Drawing const & draw)
{
    CClientDC screen(&window);
    auto const hundredths = [&screen](int pixels, int millimetres, int resolution) {
        return ::MulDiv(pixels, screen.GetDeviceCaps(millimetres) * hundredths_per_millimetre,
                        screen.GetDeviceCaps(resolution));
    };
    CRect const bounds(0, 0, hundredths(size.cx, HORZSIZE, HORZRES), hundredths(size.cy, VERTSIZE, VERTRES));
    CMetaFileDC picture;
    if (!picture.CreateEnhanced(&screen, nullptr, &bounds, description))
    {
        return false;
    }
    picture.SetAttribDC(screen.m_hDC); // which measures texts
    draw(picture, CRect(CPoint(0, 0), size));
    picture.ReleaseAttribDC();
    auto * const metafile = picture.CloseEnhanced();
    if (metafile == nullptr)
    {
        return false;
    }
    bool const copied = Clipboard::WmfToClipboard(metafile);
    // If the clipboard could not even be opened, the picture has stayed here.
    if (!copied && ::GetObjectType(metafile) == OBJ_ENHMETAFILE)
    {
        ::DeleteEnhMetaFile(metafile);
    }
    // Programs that take bitmaps alone get one, too; those that take both prefer what came first.
    if (copied)
    {
        AddBitmap(window, PictureBitmap(window, size, draw));
    }
    return copied;
}

bool SavePicture(CWnd & window, CSize size, Drawing const & draw, std::filesystem::path const & file,
                 unsigned long * error)
{
    std::string const png = PngPicture(window, size, draw);
    if (error != nullptr)
    {
        *error = 0;
    }
    return !png.empty() && ReplaceWholeFile(file, png, error);
}

std::string PngPicture(CWnd & window, CSize size, Drawing const & draw)
{
    std::string png;
    GraphicsScope const graphics;
    PictureBitmap const picture(window, size, draw);
    CLSID encoder{};
    IStream * stream = nullptr;
    if (!picture.IsThere() || !FindPngEncoder(encoder) || FAILED(::CreateStreamOnHGlobal(nullptr, TRUE, &stream)))
    {
        return png;
    }
    {
        Gdiplus::Bitmap bitmap(&picture.Header(), picture.Bits());
        STATSTG facts{};
        if (bitmap.GetLastStatus() == Gdiplus::Ok && bitmap.Save(stream, &encoder, nullptr) == Gdiplus::Ok &&
            SUCCEEDED(stream->Stat(&facts, STATFLAG_NONAME)))
        {
            png.resize(static_cast<std::size_t>(facts.cbSize.QuadPart));
            ULONG length = 0;
            stream->Seek({}, STREAM_SEEK_SET, nullptr);
            if (FAILED(stream->Read(png.data(), static_cast<ULONG>(png.size()), &length)) || length != png.size())
            {
                png.clear();
            }
        }
    }
    stream->Release();
    return png;
}

} // namespace workbench
