#pragma once
// A file that is whole or as it was before. Internal to the module.

#include <afxwin.h>

#include <string>
#include <string_view>

/// Writes a file beside the one that it is to replace, and moves it over that. For one thread.
class TableFile
{
public:
    /// Begins it, if there is no other file in its place or one that may be replaced.
    explicit TableFile(std::wstring const & path);
    /// What was not finished goes.
    ~TableFile();
    TableFile(TableFile const &) = delete;
    TableFile & operator=(TableFile const &) = delete;

    /// Adds something at the end. False if that failed, and from then on.
    bool Write(std::string_view bytes);
    /// Puts it in its place. False if that or anything before failed.
    bool Finish();

private:
    void Close();

    std::wstring m_path;
    std::wstring m_draft;
    HANDLE m_file = INVALID_HANDLE_VALUE;
    bool m_written = false;
};
