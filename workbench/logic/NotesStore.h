#pragma once
// Keeps what the user says about recordings in a file that several programs may share.

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

#include "logic/RecordingNotes.h"

namespace workbench
{

/// The notes of all recordings. Changes are stored by a thread of its own soon after the first of them, all at once.
/// The file is replaced as a whole, so that it is an old or the new one whenever the program ends. Before that it is
/// read again: what another program has stored meanwhile about other recordings stays. A damaged file is kept under
/// another name, and what can be read of it goes on. All operations are for one thread, the owner's.
class NotesStore
{
public:
    /// How long changes wait for others.
    static constexpr std::chrono::milliseconds usual_delay{500};

    /// Reads the file, which need not exist. `notify` is called on the store's own thread when storing begins to fail
    /// or to succeed, and must not call the store.
    explicit NotesStore(std::filesystem::path file, std::function<void()> notify = {},
                        std::chrono::milliseconds delay = usual_delay);

    /// Stores what is waiting.
    ~NotesStore();

    NotesStore(NotesStore const &) = delete;
    NotesStore & operator=(NotesStore const &) = delete;

    RecordingNotes Of(std::filesystem::path const & recording) const;

    /// Says something new about a recording, to be stored soon.
    void Set(std::filesystem::path const & recording, RecordingNotes const & notes);

    /// Stores at once what is waiting. False if that failed; it goes on waiting then.
    bool Flush();

    /// Takes over what other programs have stored since.
    void Refresh();

    /// Storing failed the last time and will be tried again.
    bool HasFailed() const;

    /// How often the file has been written.
    int Writes() const;

    std::filesystem::path const & File() const { return m_file; }

private:
    void Run();
    std::optional<NotesByKey> Merge(NotesByKey const & changes) const;
    void Overlay();

    std::filesystem::path const m_file;
    std::function<void()> const m_notify;
    std::chrono::milliseconds const m_delay;
    mutable std::mutex m_mutex; ///< guards all below
    std::condition_variable m_wake;
    std::condition_variable m_done;
    NotesByKey m_notes;
    NotesByKey m_changes;  ///< not stored yet; here notes may say nothing
    bool m_repair = false; ///< the file is to be written even without changes
    bool m_writing = false;
    bool m_hurry = false;
    bool m_stop = false;
    bool m_failed = false;
    int m_attempts = 0;
    int m_writes = 0;
    std::thread m_thread;
};

} // namespace workbench
