// What files do on Windows alone: sharing, and searching folders.

#include <set>
#include <string>

#include "framework_Support.h"

namespace
{
class Folder
{
public:
    Folder()
    {
        TCHAR root[MAX_PATH];
        ::GetTempPath(MAX_PATH, root);
        m_path.Format(_T("%sframework find %lu"), root, static_cast<unsigned long>(::GetCurrentProcessId()));
        ::CreateDirectory(m_path, nullptr);
    }
    ~Folder()
    {
        CFileFind find;
        for (BOOL more = find.FindFile(m_path + _T("\\*")); more;)
        {
            more = find.FindNextFile();
            if (find.IsDots())
                continue;
            ::SetFileAttributes(find.GetFilePath(), FILE_ATTRIBUTE_NORMAL);
            find.IsDirectory() ? ::RemoveDirectory(find.GetFilePath()) : ::DeleteFile(find.GetFilePath());
        }
        find.Close();
        ::RemoveDirectory(m_path);
    }
    CString operator/(LPCTSTR name) const { return m_path + _T('\\') + name; }
    void Put(LPCTSTR name, UINT size) const
    {
        CFile file(*this / name, CFile::modeCreate | CFile::modeWrite);
        file.SetLength(size);
    }
    CString m_path;
};

int CauseOfOpening(CString const & path, UINT flags)
{
    CFile file;
    CFileException error;
    return file.Open(path, flags, &error) ? CFileException::none : error.m_cause;
}
} // namespace

TEST(FrameworkFileSharing, DeniesWhatItSays)
{
    Folder const folder;
    CString const path = folder / _T("shared.bin");
    UINT const reading = CFile::modeRead | CFile::shareDenyNone;
    UINT const writing = CFile::modeWrite | CFile::shareDenyNone;
    struct Row
    {
        UINT share;
        int reader;
        int writer;
    };
    constexpr int violation = CFileException::sharingViolation;
    Row const rows[] = {{CFile::shareExclusive, violation, violation},
                        {CFile::shareCompat, violation, violation},
                        {CFile::shareDenyWrite, CFileException::none, violation},
                        {CFile::shareDenyRead, violation, CFileException::none},
                        {CFile::shareDenyNone, CFileException::none, CFileException::none}};
    for (Row const & row : rows)
    {
        CFile const file(path, CFile::modeCreate | CFile::modeReadWrite | row.share);
        EXPECT_EQ(CauseOfOpening(path, reading), row.reader) << row.share;
        EXPECT_EQ(CauseOfOpening(path, writing), row.writer) << row.share;
    }
    EXPECT_EQ(CauseOfOpening(path, reading), CFileException::none);
}

TEST(FrameworkFileSharing, HandleIsInheritedUnlessToldNotTo)
{
    Folder const folder;
    for (UINT const flag : {0U, static_cast<UINT>(CFile::modeNoInherit)})
    {
        CFile const file(folder / _T("a.bin"), CFile::modeCreate | CFile::modeWrite | flag);
        DWORD flags = 0;
        ASSERT_TRUE(::GetHandleInformation(file, &flags));
        EXPECT_EQ((flags & HANDLE_FLAG_INHERIT) != 0, flag == 0);
    }
}

TEST(FrameworkFileFind, FindsEachFileOnce)
{
    Folder const folder;
    folder.Put(_T("a.txt"), 3);
    folder.Put(_T("b.txt"), 5);
    folder.Put(_T("c.bin"), 7);
    ::CreateDirectory(folder / _T("d.txt"), nullptr);
    CFileFind find;
    EXPECT_EQ(find.GetFileName(), _T(""));
    BOOL more = find.FindFile(folder / _T("*.txt"));
    EXPECT_TRUE(more);
    std::set<std::wstring> names;
    ULONGLONG sizes = 0;
    int folders = 0;
    while (more)
    {
        more = find.FindNextFile();
        names.insert(find.GetFileName().GetString());
        sizes += find.GetLength();
        folders += find.IsDirectory() ? 1 : 0;
        EXPECT_EQ(find.GetFilePath(), folder / find.GetFileName());
        EXPECT_EQ(find.GetFileTitle().GetLength(), 1);
        EXPECT_EQ(find.GetFileURL(), _T("file://") + find.GetFilePath());
        EXPECT_EQ(find.GetRoot(), folder.m_path);
        EXPECT_FALSE(find.IsDots());
        CTime time;
        EXPECT_TRUE(find.GetLastWriteTime(time));
        EXPECT_GT(time.GetYear(), 2000);
        FILETIME stamp{};
        EXPECT_TRUE(find.GetCreationTime(&stamp));
        EXPECT_NE(stamp.dwHighDateTime, 0U);
    }
    EXPECT_EQ(names, (std::set<std::wstring>{L"a.txt", L"b.txt", L"d.txt"}));
    EXPECT_EQ(sizes, 8U);
    EXPECT_EQ(folders, 1);
    EXPECT_FALSE(find.FindNextFile());
    find.Close();
    EXPECT_EQ(find.GetFileName(), _T(""));
}

TEST(FrameworkFileFind, KnowsDotsAndAttributes)
{
    Folder const folder;
    folder.Put(_T("a.txt"), 3);
    ::SetFileAttributes(folder / _T("a.txt"), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    CFileFind find;
    int dots = 0;
    for (BOOL more = find.FindFile(folder / _T("*.*")); more;)
    {
        more = find.FindNextFile();
        dots += find.IsDots() ? 1 : 0;
        if (find.IsDirectory())
            continue;
        EXPECT_TRUE(find.IsReadOnly());
        EXPECT_TRUE(find.IsHidden());
        EXPECT_FALSE(find.IsSystem());
        EXPECT_FALSE(find.IsNormal());
        EXPECT_TRUE(find.MatchesMask(FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
    }
    EXPECT_EQ(dots, 2);
}

TEST(FrameworkFileFind, FindsNothingWhereThereIsNothing)
{
    Folder const folder;
    CFileFind find;
    EXPECT_FALSE(find.FindFile(folder / _T("*.none")));
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_FALSE(find.FindNextFile());
    EXPECT_FALSE(find.FindFile(CString(_T('x'), 400)));
}
