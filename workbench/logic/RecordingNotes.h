#pragma once
// What the user says about recordings, and the text that keeps it.

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>

namespace workbench
{

/// What the user says about a recording.
struct RecordingNotes
{
    bool checked = false;
    bool reference = false;
    int rating = 0; ///< a place in the list of ratings
    std::wstring comment;

    bool operator==(RecordingNotes const &) const = default;
};

/// The notes of a recording that is known by its path.
struct NotedRecording
{
    std::wstring path;
    RecordingNotes notes;
};

/// By the recording's key. Notes that say nothing are not in it.
using NotesByKey = std::unordered_map<std::wstring, NotedRecording>;

/// The recording's absolute path.
std::wstring NotesPath(std::filesystem::path const & recording);

/// The same for every spelling of a path that NotesPath gives: file names differ by more than upper and lower case.
std::wstring NotesKey(std::wstring path);

/// Puts a recording's notes in, or takes them out where they say nothing.
void PutNotes(NotesByKey & notes, std::wstring const & key, NotedRecording recording);

/// The text in UTF-8: a line a recording, each with its check sum.
std::string NotesText(NotesByKey const & notes);

struct NotesReading
{
    NotesByKey notes;
    bool damaged = false; ///< there is something in the text that is no notes, or that a later version wrote
};

/// Reads what NotesText wrote. Of a damaged text, whole lines are read.
NotesReading ReadNotes(std::string_view text);

} // namespace workbench
