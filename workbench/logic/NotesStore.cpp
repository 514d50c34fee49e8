#include "logic/NotesStore.h"

#include <exception>
#include <string>
#include <system_error>
#include <utility>

#include "logic/SafeFile.h"

namespace workbench
{

namespace
{

constexpr std::chrono::milliseconds retry_delay(2000);
constexpr int most_kept = 20; // damaged files

/// Where a damaged file is kept: a name that is free, or else the last one.
std::filesystem::path DamagedName(std::filesystem::path const & file)
{
    std::filesystem::path name;
    for (int i = 1; i <= most_kept; ++i)
    {
        name = file.parent_path() / file.stem();
        name += " damaged " + std::to_string(i);
        name += file.extension();
        std::error_code error;
        if (!std::filesystem::exists(name, error))
        {
            break;
        }
    }
    return name;
}

} // namespace

NotesStore::NotesStore(std::filesystem::path file, std::function<void()> notify, std::chrono::milliseconds delay)
    : m_file(std::move(file)),
      m_notify(std::move(notify)),
      m_delay(delay)
{
    if (std::optional<std::string> const text = ReadWholeFile(m_file))
    {
        NotesReading reading = ReadNotes(*text);
        m_notes = std::move(reading.notes);
        m_repair = reading.damaged;
    }
    m_thread = std::thread([this] { Run(); });
}

NotesStore::~NotesStore()
{
    {
        std::lock_guard const lock(m_mutex);
        m_stop = true;
    }
    m_wake.notify_all();
    m_thread.join();
}

RecordingNotes NotesStore::Of(std::filesystem::path const & recording) const
{
    std::wstring const key = NotesKey(NotesPath(recording));
    std::lock_guard const lock(m_mutex);
    auto const found = m_notes.find(key);
    return found != m_notes.end() ? found->second.notes : RecordingNotes();
}

void NotesStore::Set(std::filesystem::path const & recording, RecordingNotes const & notes)
{
    std::wstring path = NotesPath(recording);
    std::wstring const key = NotesKey(path);
    {
        std::lock_guard const lock(m_mutex);
        auto const found = m_notes.find(key);
        if ((found != m_notes.end() ? found->second.notes : RecordingNotes()) == notes)
        {
            return;
        }
        NotedRecording const noted{std::move(path), notes};
        PutNotes(m_notes, key, noted);
        m_changes[key] = noted;
    }
    m_wake.notify_all();
}

bool NotesStore::Flush()
{
    std::unique_lock lock(m_mutex);
    // One that is under way may have begun before the last change.
    m_done.wait(lock, [this] { return !m_writing; });
    if (m_changes.empty() && !m_repair)
    {
        return true;
    }
    int const before = m_attempts;
    m_hurry = true;
    m_wake.notify_all();
    m_done.wait(lock, [this, before] { return m_attempts != before; });
    return !m_failed;
}

void NotesStore::Refresh()
{
    Flush();
    std::optional<std::string> const text = ReadWholeFile(m_file);
    if (!text)
    {
        return;
    }
    NotesReading reading = ReadNotes(*text);
    std::lock_guard const lock(m_mutex);
    m_notes = std::move(reading.notes);
    m_repair = reading.damaged;
    Overlay();
    m_wake.notify_all();
}

bool NotesStore::HasFailed() const
{
    std::lock_guard const lock(m_mutex);
    return m_failed;
}

int NotesStore::Writes() const
{
    std::lock_guard const lock(m_mutex);
    return m_writes;
}

/// Puts over what was read what is not stored yet.
void NotesStore::Overlay()
{
    for (auto const & [key, recording] : m_changes)
    {
        PutNotes(m_notes, key, recording);
    }
}

void NotesStore::Run()
{
    auto const urged = [this] { return m_stop || m_hurry; };
    std::unique_lock lock(m_mutex);
    for (;;)
    {
        m_wake.wait(lock, [this] { return m_stop || m_repair || !m_changes.empty(); });
        if (m_changes.empty() && !m_repair)
        {
            return;
        }
        m_wake.wait_for(lock, m_failed ? retry_delay : m_delay, urged);
        m_hurry = false;
        m_writing = true;
        auto changes = std::exchange(m_changes, {});
        bool const last = m_stop;
        lock.unlock();
        std::optional<NotesByKey> stored;
        try
        {
            stored = Merge(changes);
        }
        catch (std::exception const &)
        {
            // Without memory, or with a name that the system has no path for: as a disk that refuses.
        }
        lock.lock();
        m_writing = false;
        bool const failed = !stored;
        if (stored)
        {
            m_notes = std::move(*stored);
            m_repair = false;
            ++m_writes;
            Overlay();
        }
        else
        {
            // What was said since is newer.
            m_changes.merge(changes);
        }
        ++m_attempts;
        bool const turned = std::exchange(m_failed, failed) != failed;
        m_done.notify_all();
        if (failed && last)
        {
            return;
        }
        if (turned && m_notify)
        {
            lock.unlock();
            m_notify();
            lock.lock();
        }
    }
}

/// Reads the file anew and writes it with the changes. Gives what is in it then; nothing if that failed.
std::optional<NotesByKey> NotesStore::Merge(NotesByKey const & changes) const
{
    std::error_code error;
    std::filesystem::create_directories(m_file.parent_path(), error);
    std::filesystem::path lockFile = m_file;
    lockFile += ".lock";
    FileLock const lock(lockFile);
    std::optional<std::string> const text = lock.IsHeld() ? ReadWholeFile(m_file) : std::nullopt;
    if (!text)
    {
        return std::nullopt;
    }
    NotesReading reading = ReadNotes(*text);
    if (reading.damaged && !ReplaceWholeFile(DamagedName(m_file), *text))
    {
        return std::nullopt;
    }
    for (auto const & [key, recording] : changes)
    {
        PutNotes(reading.notes, key, recording);
    }
    return ReplaceWholeFile(m_file, NotesText(reading.notes)) ? std::optional(std::move(reading.notes)) : std::nullopt;
}

} // namespace workbench
