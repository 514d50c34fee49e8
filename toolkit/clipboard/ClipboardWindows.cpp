#include "clipboard/Clipboard.h"

#include <afxwin.h>

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <memory>

#include "clipboard/HtmlBlock.h"
#include "frame/CoreLibrary.h"

namespace
{
constexpr int short_text = 1024;

UINT g_htmlFormat = 0;
wchar_t g_shortText[short_text];

void Report(DWORD error)
{
    AfxMessageBox(SystemErrorText(error));
}

/// Opens the clipboard and empties it.
bool OpenEmpty()
{
    if (!::OpenClipboard(nullptr) || !::EmptyClipboard())
    {
        Report(::GetLastError());
        return false;
    }
    return true;
}

/// Locks global memory for its scope.
class GlobalMemoryLock
{
public:
    explicit GlobalMemoryLock(HGLOBAL memory) : m_memory(memory), m_pointer(::GlobalLock(memory)) {}
    ~GlobalMemoryLock()
    {
        if (m_pointer != nullptr)
            ::GlobalUnlock(m_memory);
    }
    GlobalMemoryLock(GlobalMemoryLock const &) = delete;
    GlobalMemoryLock & operator=(GlobalMemoryLock const &) = delete;

    explicit operator bool() const { return m_pointer != nullptr; }
    template <typename T> T * As() const { return static_cast<T *>(m_pointer); }
    std::size_t Size() const { return ::GlobalSize(m_memory); }

private:
    HGLOBAL m_memory;
    void * m_pointer;
};

/// Copies bytes to global memory; false if it can't be locked.
bool Fill(HGLOBAL memory, void const * bytes, std::size_t size)
{
    GlobalMemoryLock const lock(memory);
    if (!lock)
        return false;
    std::memcpy(lock.As<char>(), bytes, size);
    return true;
}

/// Closes the clipboard, then reports.
bool CloseAndFail(DWORD error)
{
    ::CloseClipboard();
    Report(error);
    return false;
}

/// The alternative to the HTML. Whether it can be set is not told.
void SetPlainText(wchar_t const * text)
{
    std::size_t const size = (std::wcslen(text) + 1) * sizeof(wchar_t);
    HGLOBAL const memory = ::GlobalAlloc(GMEM_MOVEABLE, size);
    if (memory != nullptr && !(Fill(memory, text, size) && ::SetClipboardData(CF_UNICODETEXT, memory) != nullptr))
        ::GlobalFree(memory);
}

bool ReadWideText(CString & text)
{
    HGLOBAL const memory = ::IsClipboardFormatAvailable(CF_UNICODETEXT) ? ::GetClipboardData(CF_UNICODETEXT) : nullptr;
    if (memory == nullptr)
        return false;
    GlobalMemoryLock const lock(memory);
    if (!lock)
        return false;
    auto const * const wide = lock.As<wchar_t const>();
    // Another program's memory may lack the terminator.
    text = CString(wide, static_cast<int>(std::find(wide, wide + lock.Size() / sizeof(wchar_t), L'\0') - wide));
    return true;
}

bool ReadNarrowText(CString & text)
{
    HGLOBAL const memory = ::GetClipboardData(CF_TEXT);
    if (memory == nullptr)
        return false;
    GlobalMemoryLock const lock(memory);
    if (!lock)
        return false;
    auto const * const narrow = lock.As<char const>();
    int const length = static_cast<int>(std::find(narrow, narrow + lock.Size(), '\0') - narrow);

    std::unique_ptr<wchar_t[]> longText;
    wchar_t * target = g_shortText;
    int room = short_text;
    if (length >= short_text)
    {
        room = length + 1;
        longText = std::make_unique<wchar_t[]>(static_cast<std::size_t>(room));
        target = longText.get();
    }
    text = CString(target, ::MultiByteToWideChar(CP_ACP, 0, narrow, length, target, room));
    return true;
}
} // namespace

bool Clipboard::StringToClipboard(CString const & text)
{
    if (!OpenEmpty())
        return false;
    if (text.IsEmpty())
    {
        ::CloseClipboard();
        return true;
    }
    std::size_t const size = (static_cast<std::size_t>(text.GetLength()) + 1) * sizeof(wchar_t);
    HGLOBAL const memory = ::GlobalAlloc(GMEM_MOVEABLE, size);
    if (memory == nullptr)
        return CloseAndFail(::GetLastError());
    bool const done = Fill(memory, text.GetString(), size) && ::SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
    if (!done)
        Report(::GetLastError());
    ::CloseClipboard();
    return done;
}

bool Clipboard::HtmlToClipboard(wchar_t const * html, wchar_t const * plainText)
{
    if (!OpenEmpty())
        return false;
    if (html == nullptr || *html == L'\0')
    {
        ::CloseClipboard();
        return true;
    }
    if (g_htmlFormat == 0)
        g_htmlFormat = ::RegisterClipboardFormatW(L"HTML Format");

    std::size_t const size = HtmlBlock::SizeOf(html);
    HGLOBAL const memory = ::GlobalAlloc(GMEM_MOVEABLE, size);
    if (memory == nullptr)
        return CloseAndFail(::GetLastError());
    {
        GlobalMemoryLock const lock(memory);
        if (!lock)
        {
            DWORD const error = ::GetLastError();
            ::GlobalFree(memory);
            return CloseAndFail(error);
        }
        HtmlBlock::Build(html, {lock.As<char>(), size});
    }
    if (::SetClipboardData(g_htmlFormat, memory) == nullptr)
    {
        // It goes on, as hosts expect.
        Report(::GetLastError());
        ::GlobalFree(memory);
    }
    if (plainText != nullptr)
        SetPlainText(plainText);
    ::CloseClipboard();
    return true;
}

bool Clipboard::WmfToClipboard(HENHMETAFILE__ * const metafile)
{
    if (!OpenEmpty())
        return false;
    bool const done = ::SetClipboardData(CF_ENHMETAFILE, metafile) != nullptr;
    if (!done)
    {
        Report(::GetLastError());
        ::DeleteEnhMetaFile(metafile);
    }
    ::CloseClipboard();
    return done;
}

bool Clipboard::HandleToClipboard(wchar_t const * formatName, void * handle)
{
    if (!OpenEmpty())
        return false;
    UINT const format = ::RegisterClipboardFormatW(formatName);
    bool const done = ::SetClipboardData(format, handle) != nullptr;
    if (!done)
    {
        Report(::GetLastError());
        ::GlobalFree(handle);
    }
    ::CloseClipboard();
    return done;
}

bool Clipboard::DataToClipboard(wchar_t const * formatName, char const * data, unsigned int size)
{
    HGLOBAL const memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, size);
    if (memory == nullptr || !Fill(memory, data, size))
        return false;
    return HandleToClipboard(formatName, memory);
}

bool Clipboard::StringFromClipboard(CString & text)
{
    if (!::OpenClipboard(nullptr))
    {
        Report(::GetLastError());
        return false;
    }
    bool done = ReadWideText(text);
    if (::IsClipboardFormatAvailable(CF_TEXT) || ::IsClipboardFormatAvailable(CF_OEMTEXT))
        done = ReadNarrowText(text) || done;
    ::CloseClipboard();
    return done;
}
