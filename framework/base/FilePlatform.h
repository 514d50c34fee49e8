#pragma once
// Private to the framework's sources: the platform's files, as CFile needs them. Failures throw CFileException with the
// path given, unless said otherwise.

#include "afx.h"

namespace framework::files
{
/// The full path. False when there is none of less than MAX_PATH characters.
bool FullPath(LPCTSTR path, CString & full);
/// hFileNull, with the platform's error, when the file can't be opened.
HANDLE Open(LPCTSTR path, UINT flags, LONG & error);
/// What CFileException calls the platform's error.
int CauseOf(LONG error);
/// False when the platform reports a failure.
bool Close(HANDLE file);
HANDLE Duplicate(HANDLE file, LPCTSTR path);
UINT Read(HANDLE file, void * bytes, UINT count, LPCTSTR path);
void Write(HANDLE file, void const * bytes, UINT count, LPCTSTR path);
void Flush(HANDLE file, LPCTSTR path);
ULONGLONG Seek(HANDLE file, LONGLONG offset, UINT from, LPCTSTR path);
ULONGLONG Length(HANDLE file, LPCTSTR path);
void SetLength(HANDLE file, ULONGLONG length, LPCTSTR path);
void Lock(HANDLE file, ULONGLONG position, ULONGLONG count, bool lock, LPCTSTR path);
/// All but the name. False when the file isn't there.
bool Status(LPCTSTR path, CFileStatus & status);
bool Status(HANDLE file, CFileStatus & status);
void SetStatus(LPCTSTR path, CFileStatus const & status);
void Rename(LPCTSTR from, LPCTSTR to);
void Remove(LPCTSTR path);
bool IsSeparator(TCHAR ch);

/// A stream on an open file, which it takes over. Null, with the platform's error, when there is none.
FILE * OpenStream(HANDLE file, UINT flags, LONG & error);
HANDLE HandleOf(FILE * stream);
/// Whether the stream stands at the position then.
bool SeekStream(FILE * stream, LONGLONG offset, UINT from);
/// Negative when it can't be told.
LONGLONG StreamPosition(FILE * stream);
LONG StreamError();
/// False when the stream can't take the text.
bool WriteText(FILE * stream, LPCTSTR text, bool wide);
/// As fgets. False at the end, or on a failure that ferror tells of.
bool ReadText(FILE * stream, LPTSTR text, UINT room, bool wide);
} // namespace framework::files
