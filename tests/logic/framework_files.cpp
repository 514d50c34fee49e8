// CFile, CStdioFile and CMemFile.

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "framework_Support.h"

namespace
{
/// A folder of its own for a test, which goes with it.
class Folder
{
public:
    Folder()
    {
        std::string const name = ::testing::UnitTest::GetInstance()->current_test_info()->name();
        m_path = std::filesystem::temp_directory_path() / ("framework files " + name);
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~Folder()
    {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }
    CString operator/(char const * name) const { return CString((m_path / name).string().c_str()); }
    std::string Contents(char const * name) const
    {
        std::ifstream stream(m_path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }
    void Put(char const * name, std::string const & contents) const
    {
        std::ofstream(m_path / name, std::ios::binary) << contents;
    }
    bool Has(char const * name) const { return std::filesystem::exists(m_path / name); }

private:
    std::filesystem::path m_path;
};

template <class Statement> int CauseOf(Statement statement)
{
    try
    {
        statement();
    }
    catch (CFileException * exception)
    {
        int const cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return -1;
}

std::string Rest(CFile & file)
{
    std::string text(1000, '\0');
    text.resize(file.Read(text.data(), static_cast<UINT>(text.size())));
    return text;
}

// Notes what it is asked for.
class CWatchedMemFile : public CMemFile
{
public:
    explicit CWatchedMemFile(UINT growBytes) : CMemFile(growBytes) {}
    using CMemFile::m_nBufferSize;
    int m_growths = 0;

protected:
    void GrowFile(SIZE_T dwNewLen) override
    {
        ++m_growths;
        CMemFile::GrowFile(dwNewLen);
    }
};

class CPoorMemFile : public CMemFile
{
protected:
    BYTE * Alloc(SIZE_T) override { return nullptr; }
};
} // namespace

TEST(FrameworkFile, IsClosedAtFirst)
{
    CFile file;
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
    EXPECT_EQ(static_cast<HANDLE>(file), CFile::hFileNull);
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
    file.Close();
    file.Abort();
}

TEST(FrameworkFile, CreatesWritesAndReads)
{
    Folder const folder;
    {
        CFile file(folder / "a.bin", CFile::modeCreate | CFile::modeReadWrite);
        file.Write("hello world", 11);
        EXPECT_EQ(file.GetPosition(), 11U);
        EXPECT_EQ(file.GetLength(), 11U);
        file.Flush();
        file.SeekToBegin();
        EXPECT_EQ(Rest(file), "hello world");
        EXPECT_EQ(Rest(file), "");
    }
    EXPECT_EQ(folder.Contents("a.bin"), "hello world");
}

TEST(FrameworkFile, CreatingTruncatesUnlessToldNotTo)
{
    Folder const folder;
    folder.Put("a.bin", "before");
    CFile(folder / "a.bin", CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite).Write("X", 1);
    EXPECT_EQ(folder.Contents("a.bin"), "Xefore");
    CFile(folder / "a.bin", CFile::modeCreate | CFile::modeWrite).Write("X", 1);
    EXPECT_EQ(folder.Contents("a.bin"), "X");
    CFile(folder / "b.bin", CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite).Write("Y", 1);
    EXPECT_EQ(folder.Contents("b.bin"), "Y");
}

TEST(FrameworkFile, OpenTellsWhyNot)
{
    Folder const folder;
    CFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(folder / "missing", CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(error.m_lOsError, 2);
    EXPECT_EQ(error.m_strFileName, folder / "missing");
    EXPECT_EQ(file.m_hFile, CFile::hFileNull);
    EXPECT_TRUE(file.GetFilePath().IsEmpty());
    EXPECT_FALSE(file.Open(folder / "missing", CFile::modeRead));
    EXPECT_FALSE(file.Open(nullptr, CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::badPath);
    EXPECT_FALSE(file.Open(folder / "x" + CString(L'x', 400), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::badPath);
    EXPECT_FALSE(file.Open(folder / "", CFile::modeReadWrite, &error));
    EXPECT_EQ(error.m_cause, CFileException::accessDenied);
}

TEST(FrameworkFile, ConstructorThrowsWhatOpenTells)
{
    Folder const folder;
    EXPECT_EQ(CauseOf([&] { CFile const file(folder / "missing", CFile::modeRead); }), CFileException::fileNotFound);
}

TEST(FrameworkFile, ClosedFileThrows)
{
    CFile file;
    char byte = 0;
    EXPECT_EQ(CauseOf([&] { file.Read(&byte, 1); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.Write(&byte, 1); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.SeekToEnd(); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.GetPosition(); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.GetLength(); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { std::unique_ptr<CFile> const copy(file.Duplicate()); }), CFileException::invalidFile);
    EXPECT_EQ(file.Read(&byte, 0), 0U);
}

TEST(FrameworkFile, ReadOnlyFileTakesNothing)
{
    Folder const folder;
    folder.Put("a.bin", "abc");
    CFile file(folder / "a.bin", CFile::modeRead);
    EXPECT_GE(CauseOf([&] { file.Write("x", 1); }), CFileException::genericException);
    file.Close();
    EXPECT_EQ(folder.Contents("a.bin"), "abc");
}

TEST(FrameworkFile, SeeksFromAnywhere)
{
    Folder const folder;
    folder.Put("a.bin", "0123456789");
    CFile file(folder / "a.bin", CFile::modeReadWrite);
    EXPECT_EQ(file.Seek(4, CFile::begin), 4U);
    EXPECT_EQ(file.Seek(-1, CFile::current), 3U);
    EXPECT_EQ(file.Seek(-2, CFile::end), 8U);
    EXPECT_EQ(Rest(file), "89");
    EXPECT_EQ(file.SeekToEnd(), 10U);
    EXPECT_EQ(file.Seek(5, CFile::end), 15U);
    EXPECT_EQ(file.GetLength(), 10U);
    EXPECT_EQ(CauseOf([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
    EXPECT_EQ(file.GetPosition(), 15U);
}

TEST(FrameworkFile, ChangesItsLength)
{
    Folder const folder;
    folder.Put("a.bin", "0123456789");
    CFile file(folder / "a.bin", CFile::modeReadWrite);
    file.SetLength(3);
    EXPECT_EQ(file.GetPosition(), 3U);
    EXPECT_EQ(file.GetLength(), 3U);
    file.SetLength(5);
    EXPECT_EQ(file.GetPosition(), 5U);
    file.Close();
    EXPECT_EQ(folder.Contents("a.bin"), std::string("012\0\0", 5));
}

TEST(FrameworkFile, DuplicateSharesThePosition)
{
    Folder const folder;
    folder.Put("a.bin", "0123456789");
    CFile file(folder / "a.bin", CFile::modeRead);
    std::unique_ptr<CFile> const copy(file.Duplicate());
    EXPECT_NE(copy->m_hFile, file.m_hFile);
    EXPECT_EQ(copy->GetFilePath(), file.GetFilePath());
    copy->Seek(7, CFile::begin);
    EXPECT_EQ(file.GetPosition(), 7U);
    file.Close();
    EXPECT_EQ(Rest(*copy), "789");
}

TEST(FrameworkFile, LockedRangeIsNotLockedTwice)
{
    Folder const folder;
    folder.Put("a.bin", "0123456789");
    CFile first(folder / "a.bin", CFile::modeReadWrite | CFile::shareDenyNone);
    CFile second(folder / "a.bin", CFile::modeReadWrite | CFile::shareDenyNone);
    first.LockRange(2, 3);
    EXPECT_EQ(CauseOf([&] { second.LockRange(4, 1); }), CFileException::lockViolation);
    second.LockRange(5, 2);
    first.UnlockRange(2, 3);
    second.LockRange(2, 3);
    second.UnlockRange(2, 3);
    second.UnlockRange(5, 2);
}

TEST(FrameworkFile, TellsItsNames)
{
    Folder const folder;
    CString const path = folder / "name.with.dots";
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    EXPECT_EQ(file.GetFilePath(), path);
    EXPECT_EQ(file.GetFileName(), L"name.with.dots");
    EXPECT_EQ(file.GetFileTitle(), L"name.with");
    file.SetFilePath(folder / "other");
    EXPECT_EQ(file.GetFileName(), L"other");
    EXPECT_EQ(file.GetFileTitle(), L"other");
    EXPECT_FALSE(folder.Has("other"));
}

TEST(FrameworkFile, AttachedHandleStaysOpen)
{
    Folder const folder;
    folder.Put("a.bin", "abc");
    CFile file(folder / "a.bin", CFile::modeRead);
    {
        CFile const other(file.m_hFile);
        EXPECT_EQ(other.GetLength(), 3U);
    }
    EXPECT_EQ(Rest(file), "abc");
}

TEST(FrameworkFile, HasStatus)
{
    Folder const folder;
    folder.Put("a.bin", "abcde");
    CFileStatus status;
    EXPECT_TRUE(CFile::GetStatus(folder / "a.bin", status));
    EXPECT_EQ(status.m_size, 5U);
    EXPECT_EQ(status.m_attribute & (CFile::directory | CFile::readOnly), 0);
    EXPECT_EQ(CString(status.m_szFullName), folder / "a.bin");
    EXPECT_GT(status.m_mtime.GetYear(), 2000);
    EXPECT_GT(status.m_ctime.GetYear(), 2000);
    EXPECT_TRUE(CFile::GetStatus(folder / "", status));
    EXPECT_NE(status.m_attribute & CFile::directory, 0);
    EXPECT_FALSE(CFile::GetStatus(folder / "missing", status));
    CFile const file(folder / "a.bin", CFile::modeRead);
    CFileStatus open;
    EXPECT_TRUE(file.GetStatus(open));
    EXPECT_EQ(open.m_size, 5U);
    EXPECT_EQ(CString(open.m_szFullName), folder / "a.bin");
    EXPECT_TRUE(CFile().GetStatus(open));
    EXPECT_EQ(open.m_szFullName[0], 0);
}

TEST(FrameworkFile, StatusIsSet)
{
    Folder const folder;
    folder.Put("a.bin", "abcde");
    CFileStatus status;
    EXPECT_TRUE(CFile::GetStatus(folder / "a.bin", status));
    CTime const before = status.m_atime;
    status.m_mtime = CTime(2001, 2, 3, 4, 5, 6);
    status.m_atime = CTime();
    status.m_ctime = CTime();
    status.m_attribute |= CFile::readOnly;
    CFile::SetStatus(folder / "a.bin", status);
    CFileStatus changed;
    EXPECT_TRUE(CFile::GetStatus(folder / "a.bin", changed));
    EXPECT_TRUE(changed.m_mtime == CTime(2001, 2, 3, 4, 5, 6));
    EXPECT_TRUE(changed.m_atime == before);
    EXPECT_NE(changed.m_attribute & CFile::readOnly, 0);
    EXPECT_EQ(CauseOf([&] { CFile::Remove(folder / "a.bin"); }), CFileException::accessDenied);
    changed.m_attribute = CFile::normal;
    CFile::SetStatus(folder / "a.bin", changed);
    EXPECT_TRUE(CFile::GetStatus(folder / "a.bin", changed));
    EXPECT_EQ(changed.m_attribute & CFile::readOnly, 0);
    EXPECT_EQ(CauseOf([&] { CFile::SetStatus(folder / "missing", changed); }), CFileException::fileNotFound);
}

TEST(FrameworkFile, RenamesAndRemoves)
{
    Folder const folder;
    folder.Put("a.bin", "abcde");
    folder.Put("b.bin", "other");
    EXPECT_EQ(CauseOf([&] { CFile::Rename(folder / "a.bin", folder / "b.bin"); }), CFileException::accessDenied);
    EXPECT_EQ(CauseOf([&] { CFile::Rename(folder / "missing", folder / "c.bin"); }), CFileException::fileNotFound);
    CFile::Rename(folder / "a.bin", folder / "c.bin");
    EXPECT_FALSE(folder.Has("a.bin"));
    EXPECT_EQ(folder.Contents("c.bin"), "abcde");
    CFile::Remove(folder / "c.bin");
    EXPECT_FALSE(folder.Has("c.bin"));
    EXPECT_EQ(CauseOf([&] { CFile::Remove(folder / "c.bin"); }), CFileException::fileNotFound);
}

TEST(FrameworkFile, ExceptionTellsFileAndSystemError)
{
    Folder const folder;
    try
    {
        CFile::Remove(folder / "missing");
        ADD_FAILURE();
    }
    catch (CFileException * exception)
    {
        EXPECT_EQ(exception->m_lOsError, 2);
        EXPECT_EQ(exception->m_strFileName, folder / "missing");
        TCHAR message[300];
        EXPECT_TRUE(exception->GetErrorMessage(message, 300));
        EXPECT_EQ(CString(message), (folder / "missing") + L" was not found.");
        exception->Delete();
    }
}

TEST(FrameworkStdioFile, WritesAndReadsLines)
{
    Folder const folder;
    {
        CStdioFile file(folder / "a.txt", CFile::modeCreate | CFile::modeWrite | CFile::typeText);
        file.WriteString(L"first\n");
        file.WriteString(L"\n");
        file.WriteString(CString(L'x', 1000) + L"\n");
        file.WriteString(L"last");
    }
    CStdioFile file(folder / "a.txt", CFile::modeRead | CFile::typeText);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"first");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, CString(L'x', 1000));
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"last");
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_EQ(line, L"");
}

TEST(FrameworkStdioFile, LineOfTheBuffersLengthIsOneLine)
{
    Folder const folder;
    for (int const length : {254, 255, 256, 510, 511})
    {
        folder.Put("a.txt", std::string(static_cast<size_t>(length), 'x') + "\nnext\n");
        CStdioFile file(folder / "a.txt", CFile::modeRead);
        CString line;
        EXPECT_TRUE(file.ReadString(line));
        EXPECT_EQ(line.GetLength(), length);
        EXPECT_TRUE(file.ReadString(line));
        EXPECT_EQ(line, L"next");
        EXPECT_FALSE(file.ReadString(line));
    }
}

TEST(FrameworkStdioFile, ReadsIntoRoomWithTheLinesEnd)
{
    Folder const folder;
    folder.Put("a.txt", "ab\ncdef\n");
    CStdioFile file(folder / "a.txt", CFile::modeRead);
    TCHAR room[4];
    EXPECT_EQ(file.ReadString(room, 4), room);
    EXPECT_EQ(CString(room), L"ab\n");
    EXPECT_EQ(file.ReadString(room, 4), room);
    EXPECT_EQ(CString(room), L"cde");
    EXPECT_EQ(file.ReadString(room, 4), room);
    EXPECT_EQ(CString(room), L"f\n");
    EXPECT_EQ(file.ReadString(room, 4), nullptr);
}

TEST(FrameworkStdioFile, BinaryTextIsUtf16)
{
    Folder const folder;
    CStdioFile(folder / "a.txt", CFile::modeCreate | CFile::modeWrite | CFile::typeBinary).WriteString(L"a\n\x20AC");
    EXPECT_EQ(folder.Contents("a.txt"), std::string("a\0\n\0\xAC\x20", 6));
    CStdioFile file(folder / "a.txt", CFile::modeRead | CFile::typeBinary);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"a");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"\x20AC");
}

TEST(FrameworkStdioFile, SeeksAndTellsItsLength)
{
    Folder const folder;
    UINT const flags = CFile::modeCreate | CFile::modeReadWrite | CFile::shareDenyNone | CFile::typeBinary;
    CStdioFile file(folder / "a.bin", flags);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetLength(), 10U);
    EXPECT_EQ(file.GetPosition(), 10U);
    EXPECT_EQ(file.Seek(3, CFile::begin), 3U);
    char part[3] = {};
    EXPECT_EQ(file.Read(part, 3), 3U);
    EXPECT_EQ(std::string(part, 3), "345");
    EXPECT_EQ(file.Seek(-2, CFile::current), 4U);
    EXPECT_EQ(file.GetLength(), 10U);
    EXPECT_EQ(file.GetPosition(), 4U);
    EXPECT_EQ(CauseOf([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
    file.SetLength(6);
    EXPECT_EQ(file.GetLength(), 6U);
    file.Flush();
    EXPECT_EQ(folder.Contents("a.bin"), "012345");
}

TEST(FrameworkStdioFile, ContinuesAnExistingFile)
{
    Folder const folder;
    folder.Put("a.txt", "before\n");
    {
        CStdioFile file(folder / "a.txt", CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite);
        file.SeekToEnd();
        file.WriteString(L"after");
    }
    EXPECT_EQ(folder.Contents("a.txt"), "before\nafter");
}

TEST(FrameworkStdioFile, OpenTellsWhyNotAndConstructorThrows)
{
    Folder const folder;
    CStdioFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(folder / "missing", CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(file.m_pStream, nullptr);
    EXPECT_EQ(CauseOf([&] { CStdioFile const other(folder / "missing", CFile::modeRead); }),
              CFileException::fileNotFound);
}

TEST(FrameworkStdioFile, StreamOfAnotherStaysOpen)
{
    std::FILE * const stream = std::tmpfile();
    ASSERT_NE(stream, nullptr);
    {
        CStdioFile file(stream);
        file.Write("abc", 3);
        EXPECT_EQ(file.GetLength(), 3U);
    }
    EXPECT_EQ(std::fputs("def", stream) < 0, false);
    EXPECT_EQ(std::fclose(stream), 0);
}

TEST(FrameworkStdioFile, DoesNotSupportLocksAndDuplicates)
{
    Folder const folder;
    CStdioFile file(folder / "a.txt", CFile::modeCreate | CFile::modeWrite);
    EXPECT_TRUE(ThrowsPointer<CNotSupportedException>([&] { file.Duplicate(); }));
    EXPECT_TRUE(ThrowsPointer<CNotSupportedException>([&] { file.LockRange(0, 1); }));
    EXPECT_TRUE(ThrowsPointer<CNotSupportedException>([&] { file.UnlockRange(0, 1); }));
}

TEST(FrameworkStdioFile, ClosedFileThrows)
{
    CStdioFile file;
    char byte = 0;
    CString line;
    EXPECT_EQ(CauseOf([&] { file.Read(&byte, 1); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.Write(&byte, 1); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.Seek(0, CFile::begin); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.ReadString(line); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.WriteString(L"x"); }), CFileException::invalidFile);
}

TEST(FrameworkMemFile, GrowsInSteps)
{
    CWatchedMemFile file(100);
    EXPECT_EQ(file.GetLength(), 0U);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.m_nBufferSize, 100U);
    std::string const large(250, 'x');
    file.Write(large.data(), 250);
    EXPECT_EQ(file.m_nBufferSize, 300U);
    EXPECT_EQ(file.m_growths, 2);
    EXPECT_EQ(file.GetLength(), 260U);
    file.SeekToBegin();
    EXPECT_EQ(Rest(file), "0123456789" + large);
    EXPECT_EQ(Rest(file), "");
}

TEST(FrameworkMemFile, LargeFileIsNotCopiedAtEachStep)
{
    CWatchedMemFile file(16);
    std::string const part(16, 'x');
    for (int i = 0; i < 100'000; ++i)
        file.Write(part.data(), 16);
    EXPECT_EQ(file.GetLength(), 1'600'000U);
    EXPECT_LT(file.m_growths, 200);
    EXPECT_LT(file.m_nBufferSize, 2'000'000U);
}

TEST(FrameworkMemFile, GapIsFilledWithZeros)
{
    CMemFile file;
    file.Write("abc", 3);
    EXPECT_EQ(file.Seek(2, CFile::end), 5U);
    EXPECT_EQ(Rest(file), "");
    file.Write("d", 1);
    file.SeekToBegin();
    EXPECT_EQ(Rest(file), std::string("abc\0\0d", 6));
    file.SetLength(2);
    EXPECT_EQ(file.GetPosition(), 2U);
    file.SetLength(4);
    file.SeekToBegin();
    EXPECT_EQ(Rest(file), std::string("ab\0\0", 4));
}

TEST(FrameworkMemFile, SeeksNowhereBeforeTheBeginning)
{
    CMemFile file;
    file.Write("abc", 3);
    EXPECT_EQ(CauseOf([&] { file.Seek(-4, CFile::end); }), CFileException::badSeek);
    EXPECT_EQ(CauseOf([&] { file.Seek(-4, CFile::current); }), CFileException::badSeek);
    EXPECT_EQ(CauseOf([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
    EXPECT_EQ(file.GetPosition(), 3U);
    EXPECT_EQ(file.Seek(-3, CFile::end), 0U);
}

TEST(FrameworkMemFile, AttachedMemoryIsReadAndWrittenInPlace)
{
    BYTE memory[] = {'a', 'b', 'c', 'd'};
    CMemFile file(memory, sizeof(memory));
    EXPECT_EQ(file.GetLength(), 4U);
    EXPECT_EQ(Rest(file), "abcd");
    file.SeekToBegin();
    file.Write("X", 1);
    EXPECT_EQ(memory[0], 'X');
    file.SeekToEnd();
    EXPECT_TRUE(ThrowsPointer<CMemoryException>([&] { file.Write("y", 1); }));
    EXPECT_EQ(file.Detach(), memory);
    EXPECT_EQ(file.GetLength(), 0U);
}

TEST(FrameworkMemFile, AttachedMemoryThatMayGrowIsEmpty)
{
    CMemFile file;
    auto * const memory = static_cast<BYTE *>(std::malloc(4));
    file.Attach(memory, 4, 10);
    EXPECT_EQ(file.GetLength(), 0U);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetLength(), 10U);
    BYTE * const grown = file.Detach();
    EXPECT_EQ(std::string(reinterpret_cast<char *>(grown), 10), "0123456789");
    std::free(grown);
}

TEST(FrameworkMemFile, NoMemoryThrows)
{
    CPoorMemFile file;
    EXPECT_TRUE(ThrowsPointer<CMemoryException>([&] { file.Write("x", 1); }));
    CMemFile other;
    EXPECT_TRUE(ThrowsPointer<CMemoryException>([&] { other.SetLength(UINT64_MAX); }));
    EXPECT_TRUE(ThrowsPointer<CMemoryException>([&] { other.SetLength(UINT64_MAX / 2); }));
    other.Seek(INT64_MAX, CFile::begin);
    EXPECT_TRUE(ThrowsPointer<CMemoryException>([&] { other.Write("x", 1); }));
    EXPECT_EQ(other.GetLength(), 0U);
}

TEST(FrameworkMemFile, GivesItsOwnMemory)
{
    CMemFile file;
    EXPECT_EQ(file.GetBufferPtr(CFile::bufferCheck), static_cast<UINT>(CFile::bufferDirect));
    void * start = nullptr;
    void * end = nullptr;
    EXPECT_EQ(file.GetBufferPtr(CFile::bufferWrite, 8, &start, &end), 8U);
    std::memcpy(start, "abcdefgh", 8);
    EXPECT_EQ(file.GetLength(), 0U);
    file.GetBufferPtr(CFile::bufferCommit, 5);
    EXPECT_EQ(file.GetLength(), 5U);
    EXPECT_EQ(file.GetPosition(), 5U);
    file.Seek(1, CFile::begin);
    EXPECT_EQ(file.GetBufferPtr(CFile::bufferRead, 100, &start, &end), 4U);
    EXPECT_EQ(std::string(static_cast<char *>(start), static_cast<char *>(end)), "bcde");
    EXPECT_EQ(file.GetPosition(), 5U);
    EXPECT_EQ(file.GetBufferPtr(CFile::bufferRead, 100, &start, &end), 0U);
}

TEST(FrameworkMemFile, DoesNotSupportLocksAndDuplicates)
{
    CMemFile file;
    EXPECT_TRUE(ThrowsPointer<CNotSupportedException>([&] { file.Duplicate(); }));
    EXPECT_TRUE(ThrowsPointer<CNotSupportedException>([&] { file.LockRange(0, 1); }));
    EXPECT_TRUE(ThrowsPointer<CNotSupportedException>([&] { file.UnlockRange(0, 1); }));
    CFileStatus status;
    file.Write("abc", 3);
    EXPECT_TRUE(file.GetStatus(status));
    EXPECT_EQ(status.m_size, 3U);
}

TEST(FrameworkMemFile, ClosedFileIsEmptyAndDoesNotGrow)
{
    CMemFile file;
    file.Write("abc", 3);
    file.Close();
    EXPECT_EQ(file.GetLength(), 0U);
    EXPECT_TRUE(ThrowsPointer<CMemoryException>([&] { file.Write("x", 1); }));
}
