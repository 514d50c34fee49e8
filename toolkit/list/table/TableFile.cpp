#include "list/table/TableFile.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace
{
constexpr std::size_t most_at_once = 1 << 20;
constexpr int move_tries = 20; // a scanner may hold the file for a moment
constexpr DWORD retry_interval = 10;

/// What is in the way at the end most often, a file that is kept by another program or must not be written, is known
/// before the work.
bool MayReplace(std::wstring const & path)
{
    HANDLE const present =
        ::CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (present == INVALID_HANDLE_VALUE)
        return ::GetLastError() == ERROR_FILE_NOT_FOUND;
    ::CloseHandle(present);
    return true;
}

bool Move(std::wstring const & from, std::wstring const & to)
{
    for (int tries = move_tries; tries > 0; --tries)
    {
        if (::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
            return true;
        ::Sleep(retry_interval);
    }
    return false;
}
} // namespace

TableFile::TableFile(std::wstring const & path)
{
    std::error_code error;
    // The process's folder may be another one by the end.
    std::filesystem::path const whole = std::filesystem::absolute(path, error);
    if (error || !MayReplace(whole.wstring()))
        return;
    m_path = whole.wstring();
    wchar_t draft[MAX_PATH] = {};
    if (::GetTempFileNameW(whole.parent_path().c_str(), L"tab", 0, draft) == 0)
        return;
    m_draft = draft;
    m_file = ::CreateFileW(draft, GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    m_written = m_file != INVALID_HANDLE_VALUE;
}

TableFile::~TableFile()
{
    Close();
    if (!m_draft.empty())
        ::DeleteFileW(m_draft.c_str());
}

bool TableFile::Write(std::string_view bytes)
{
    while (m_written && !bytes.empty())
    {
        auto const count = static_cast<DWORD>(std::min(bytes.size(), most_at_once));
        DWORD written = 0;
        m_written = ::WriteFile(m_file, bytes.data(), count, &written, nullptr) != 0 && written != 0;
        bytes.remove_prefix(written);
    }
    return m_written;
}

bool TableFile::Finish()
{
    m_written = m_written && ::FlushFileBuffers(m_file) != 0;
    Close();
    if (!m_written || !Move(m_draft, m_path))
        return false;
    m_draft.clear();
    return true;
}

void TableFile::Close()
{
    HANDLE const file = std::exchange(m_file, INVALID_HANDLE_VALUE);
    if (file != INVALID_HANDLE_VALUE)
        ::CloseHandle(file);
}
