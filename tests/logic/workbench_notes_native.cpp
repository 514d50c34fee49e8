// Ending the program while it stores what the user says.

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "logic/NotesStore.h"

using namespace workbench;

namespace
{
namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr int kills = 60;
constexpr int recordings = 300;

fs::path Recording(int i)
{
    return "/recordings/" + std::to_string(i) + ".wav";
}

/// Says the same number about all recordings, one number after the other, and tells each that is stored.
[[noreturn]] void WriteForEver(fs::path const & file, int pipe)
{
    {
        NotesStore store(file, {}, 1h);
        for (int number = 1;; ++number)
        {
            RecordingNotes notes;
            notes.comment = std::to_wstring(number);
            for (int i = 0; i < recordings; ++i)
            {
                store.Set(Recording(i), notes);
            }
            if (!store.Flush() || ::write(pipe, &number, sizeof number) != sizeof number)
            {
                ::_exit(1);
            }
        }
    }
}
} // namespace

TEST(WorkbenchNotesKilled, TheFileIsAnOldOrTheNewOneAtEveryMoment)
{
    std::filesystem::path const folder = fs::temp_directory_path() / "workbench_notes_killed";
    fs::remove_all(folder);
    fs::create_directories(folder);
    std::filesystem::path const file = folder / "Notes.txt";
    std::mt19937 random(11); // NOLINT: the same moments each time
    for (int kill = 0; kill < kills; ++kill)
    {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        auto const child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0)
        {
            ::close(ends[0]);
            WriteForEver(file, ends[1]);
        }
        ::close(ends[1]);
        // After the first one that is stored, at any moment.
        int stored = 0;
        ASSERT_EQ(::read(ends[0], &stored, sizeof stored), static_cast<ssize_t>(sizeof stored));
        ::usleep(random() % 20'000);
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status));
        for (int number = 0; ::read(ends[0], &number, sizeof number) == static_cast<ssize_t>(sizeof number);)
        {
            stored = number;
        }
        ::close(ends[0]);

        std::ifstream stream(file, std::ios::binary);
        NotesReading const reading = ReadNotes(std::string(std::istreambuf_iterator<char>(stream), {}));
        EXPECT_FALSE(reading.damaged);
        ASSERT_EQ(reading.notes.size(), static_cast<std::size_t>(recordings));
        std::wstring const comment = reading.notes.begin()->second.notes.comment;
        EXPECT_TRUE(comment == std::to_wstring(stored) || comment == std::to_wstring(stored + 1)) << stored;
        for (auto const & [key, recording] : reading.notes)
        {
            EXPECT_EQ(recording.notes.comment, comment);
        }
    }
    fs::remove_all(folder);
}
