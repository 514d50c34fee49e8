// Ending the program while it stores how folders are shown.

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "logic/FolderViews.h"

using namespace workbench;

namespace
{
namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr int kills = 200;
constexpr int folders = 20;

fs::path Folder(int i)
{
    return "/data/" + std::to_string(i);
}

/// Each number stands for another view, long ones in turns with short ones.
FolderView ViewOf(int number)
{
    FolderView view;
    view.column = number % 12;
    view.chosen = L"rec_" + std::to_wstring(number) + L".wav";
    for (int i = 0; i < number % 2 * 200; ++i)
    {
        view.order.push_back(L"rec_" + std::to_wstring(i + number) + L".wav");
    }
    return view;
}

[[noreturn]] void WriteForEver(fs::path const & file, int pipe)
{
    {
        FolderViews views(file, 1h);
        for (int number = 1;; ++number)
        {
            for (int i = 0; i < folders; ++i)
            {
                views.Set(Folder(i), ViewOf(number));
            }
            if (!views.Flush() || ::write(pipe, &number, sizeof number) != sizeof number)
            {
                ::_exit(1);
            }
        }
    }
}
} // namespace

TEST(FolderViewsKilled, AreTheOldOrTheNewOnesAtEveryMoment)
{
    std::filesystem::path const folder = fs::temp_directory_path() / "workbench_views_killed";
    fs::remove_all(folder);
    fs::create_directories(folder);
    std::filesystem::path const file = folder / "Views.txt";
    std::mt19937 random(12); // NOLINT: the same moments each time
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
        ::usleep(random() % 10'000);
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
        ASSERT_EQ(reading.notes.size(), static_cast<std::size_t>(folders));
        FolderView const view = ReadFolderView(reading.notes.begin()->second.notes.comment);
        EXPECT_TRUE(view == ViewOf(stored) || view == ViewOf(stored + 1)) << stored;
        for (auto const & [key, noted] : reading.notes)
        {
            EXPECT_EQ(ReadFolderView(noted.notes.comment), view);
        }
    }
    fs::remove_all(folder);
}
