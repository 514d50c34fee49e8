// What the user says about recordings: its text, its file, damage, and several programs at once.

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "logic/NotesStore.h"
#include "logic/RecordingNotes.h"
#include "logic/SafeFile.h"

using namespace workbench;

namespace
{
namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto hang_limit = 60s;

/// An absolute path in the platform's own manner.
fs::path Recording(std::string const & name)
{
#ifdef _WIN32
    return fs::path("C:\\recordings") / name;
#else
    return fs::path("/recordings") / name;
#endif
}

RecordingNotes Comment(std::wstring const & comment)
{
    RecordingNotes notes;
    notes.comment = comment;
    return notes;
}

NotesByKey Named(std::vector<std::pair<std::wstring, RecordingNotes>> const & all)
{
    NotesByKey notes;
    for (auto const & [path, each] : all)
    {
        PutNotes(notes, NotesKey(path), {path, each});
    }
    return notes;
}

RecordingNotes NotesIn(NotesByKey const & notes, std::wstring const & path)
{
    auto const found = notes.find(NotesKey(path));
    return found != notes.end() ? found->second.notes : RecordingNotes();
}

class WorkbenchNotesStore : public testing::Test
{
protected:
    void SetUp() override
    {
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }
    void TearDown() override { fs::remove_all(m_folder); }

    std::string Text() const
    {
        std::ifstream file(m_file, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void Write(std::string const & text) const { std::ofstream(m_file, std::ios::binary) << text; }
    std::vector<std::string> Others() const
    {
        std::vector<std::string> names;
        for (std::filesystem::directory_entry const & entry : fs::directory_iterator(m_folder))
        {
            if (entry.path() != m_file && entry.path().extension() != ".lock")
            {
                names.push_back(entry.path().filename().string());
            }
        }
        std::ranges::sort(names);
        return names;
    }
    template <typename Condition> static bool WaitUntil(Condition condition)
    {
        for (auto const end = std::chrono::steady_clock::now() + hang_limit; !condition();)
        {
            if (std::chrono::steady_clock::now() > end)
            {
                return false;
            }
            std::this_thread::sleep_for(1ms);
        }
        return true;
    }

    fs::path const m_folder = fs::temp_directory_path() / "workbench_notes_test";
    fs::path const m_file = m_folder / "Notes.txt";
};
} // namespace

TEST(WorkbenchNotes, ComeBackFromTheirTextAsTheyWere)
{
    std::vector<std::pair<std::wstring, RecordingNotes>> const all{
        {L"C:\\a.wav", {true, false, 0, L""}},
        {L"C:\\b.wav", {false, true, 3, L"tabs\tand\nlines\r\\ and \\t"}},
        {L"C:\\\u00C4rger \u4E2D \U0001F3B5.wav", {true, true, 1, L"\u00FC \u20AC \U0001F3B5"}},
        {L"C:\\lone \xD83C surrogate.wav", {false, false, 2, L"\xDFB5"}},
        {L"C:\\tab\t.wav", {false, false, 0, L" "}},
    };
    NotesByKey const notes = Named(all);
    NotesReading const reading = ReadNotes(NotesText(notes));
    EXPECT_FALSE(reading.damaged);
    ASSERT_EQ(reading.notes.size(), all.size());
    for (auto const & [path, each] : all)
    {
        EXPECT_EQ(NotesIn(reading.notes, path), each);
        EXPECT_EQ(reading.notes.at(NotesKey(path)).path, path);
    }
}

TEST(WorkbenchNotes, TakeNoRoomWhereTheySayNothing)
{
    NotesByKey notes = Named({{L"a", {}}, {L"b", Comment(L"x")}});
    EXPECT_EQ(notes.size(), 1U);
    PutNotes(notes, NotesKey(L"b"), {L"b", {}});
    EXPECT_TRUE(notes.empty());
    EXPECT_EQ(NotesText(notes), "Instrument Workbench notes 1\n");
}

TEST(WorkbenchNotes, AreKeptByPathWhateverItsCase)
{
    EXPECT_EQ(NotesKey(L"C:\\Data\\\u00E4\u00F6\u0431\u03B1.WAV"), NotesKey(L"c:\\dATA\\\u00C4\u00D6\u0411\u0391.wav"));
    EXPECT_NE(NotesKey(L"C:\\a.wav"), NotesKey(L"C:\\b.wav"));
    EXPECT_NE(NotesKey(L"C:\\a.wav"), NotesKey(L"C:\\\u00E4.wav"));
    EXPECT_EQ(NotesPath(Recording("sub") / ".." / "a.wav"), NotesPath(Recording("a.wav")));
    EXPECT_EQ(NotesPath(Recording(".") / "a.wav"), NotesPath(Recording("a.wav")));
    EXPECT_EQ(NotesPath(Recording("a.wav").root_path() / ".." / "a.wav"),
              NotesPath(Recording("a.wav").root_path() / "a.wav"));
    EXPECT_EQ(NotesPath(Recording("") / "" / ".hidden.wav"), NotesPath(Recording(".hidden.wav")));
    EXPECT_EQ(NotesPath(Recording("a.wav").generic_string()), NotesPath(Recording("a.wav")));
    EXPECT_EQ(NotesPath("a.wav"), NotesPath(fs::current_path() / "a.wav"));
}

TEST(WorkbenchNotes, OfADamagedTextWholeLinesAreRead)
{
    std::string const text =
        NotesText(Named({{L"a", Comment(L"one")}, {L"b", Comment(L"two")}, {L"c", Comment(L"three")}}));
    // Cut off in the last line: its comment would be another one.
    NotesReading reading = ReadNotes(std::string_view(text).substr(0, text.size() - 3));
    EXPECT_TRUE(reading.damaged);
    EXPECT_EQ(reading.notes.size(), 2U);
    EXPECT_EQ(NotesIn(reading.notes, L"b").comment, L"two");
    // Something in between.
    std::string spoiled = text;
    spoiled.replace(spoiled.find("two"), 3, "tow");
    reading = ReadNotes(spoiled);
    EXPECT_TRUE(reading.damaged);
    EXPECT_EQ(reading.notes.size(), 2U);
    EXPECT_EQ(NotesIn(reading.notes, L"c").comment, L"three");
    // Without its head, or with that of a later version.
    EXPECT_TRUE(ReadNotes(std::string_view(text).substr(text.find('\n') + 1)).damaged);
    EXPECT_EQ(ReadNotes(std::string_view(text).substr(text.find('\n') + 1)).notes.size(), 3U);
    std::string later = text;
    later[later.find('\n') - 1] = '2';
    EXPECT_TRUE(ReadNotes(later).damaged);
    EXPECT_EQ(ReadNotes(later).notes.size(), 3U);
    // Other line ends, as some editors leave them, spoil nothing.
    std::string windows;
    for (char const c : text)
    {
        windows += c == '\n' ? std::string("\r\n") : std::string(1, c);
    }
    EXPECT_FALSE(ReadNotes(windows).damaged);
    EXPECT_EQ(ReadNotes(windows).notes.size(), 3U);
    EXPECT_FALSE(ReadNotes("").damaged);
}

TEST(WorkbenchNotes, NoTextIsTooStrange)
{
    std::mt19937 random(7); // NOLINT: the same texts each time
    std::string const good = NotesText(Named({{L"a", Comment(L"\u00FC\U0001F3B5")}, {L"b", {true, true, 9, L"x"}}}));
    for (int i = 0; i < 20'000; ++i)
    {
        std::string text = good;
        for (unsigned int changes = random() % 6; changes > 0; --changes)
        {
            std::size_t const at = random() % text.size();
            switch (random() % 3)
            {
            case 0:
                text[at] = static_cast<char>(random());
                break;
            case 1:
                text.erase(at, random() % 9);
                break;
            default:
                text.insert(at, 1, "\t\n\\\r\0\xFF"[random() % 6]);
                break;
            }
            if (text.empty())
            {
                break;
            }
        }
        NotesReading const reading = ReadNotes(text);
        // Nothing is made up: what is read is what was written.
        for (auto const & [key, recording] : reading.notes)
        {
            EXPECT_TRUE(key == L"A" ? recording.notes == Comment(L"\u00FC\U0001F3B5")
                                    : key == L"B" && recording.notes == (RecordingNotes{true, true, 9, L"x"}));
        }
    }
}

TEST_F(WorkbenchNotesStore, KeepsNotesUntilTheNextStart)
{
    RecordingNotes const said{true, true, 2, L"loud"};
    {
        NotesStore store(m_file);
        EXPECT_EQ(store.Of(Recording("a.wav")), RecordingNotes());
        store.Set(Recording("a.wav"), said);
        EXPECT_EQ(store.Of(Recording("A.WAV")), said);
        EXPECT_TRUE(store.Flush());
        store.Set(Recording("b.wav"), Comment(L"stored at the end"));
    }
    NotesStore store(m_file);
    EXPECT_EQ(store.Of(Recording("A.wav")), said);
    EXPECT_EQ(store.Of(Recording("b.wav")).comment, L"stored at the end");
    EXPECT_TRUE(Others().empty());
}

TEST_F(WorkbenchNotesStore, StoresByItselfAndAllChangesAtOnce)
{
    NotesStore store(m_file, {}, 300ms);
    for (int i = 0; i < 1000; ++i)
    {
        store.Set(Recording("a.wav"), Comment(std::to_wstring(i)));
    }
    ASSERT_TRUE(WaitUntil([&] { return ReadNotes(Text()).notes.size() == 1 && store.Writes() > 0; }));
    EXPECT_LE(store.Writes(), 2);
    EXPECT_EQ(ReadNotes(Text()).notes.begin()->second.notes.comment, L"999");
    // The same again is no change.
    int const writes = store.Writes();
    store.Set(Recording("a.wav"), Comment(L"999"));
    EXPECT_TRUE(store.Flush());
    EXPECT_EQ(store.Writes(), writes);
    // And notes that say nothing any more leave nothing.
    store.Set(Recording("a.wav"), {});
    EXPECT_TRUE(store.Flush());
    EXPECT_TRUE(ReadNotes(Text()).notes.empty());
}

TEST_F(WorkbenchNotesStore, MakesItsFolder)
{
    std::filesystem::path const file = m_folder / "company" / "program" / "Notes.txt";
    {
        NotesStore store(file);
        store.Set(Recording("a.wav"), Comment(L"x"));
        EXPECT_TRUE(store.Flush());
    }
    EXPECT_EQ(NotesStore(file).Of(Recording("a.wav")).comment, L"x");
}

TEST_F(WorkbenchNotesStore, KeepsADamagedFileAndReadsTheRest)
{
    std::string good = NotesText(Named({{NotesPath(Recording("a.wav")), Comment(L"one")}}));
    Write(good + "something else\n");
    {
        NotesStore store(m_file);
        EXPECT_EQ(store.Of(Recording("a.wav")).comment, L"one");
        ASSERT_TRUE(store.Flush());
    }
    EXPECT_EQ(Text(), good);
    ASSERT_EQ(Others(), std::vector<std::string>{"Notes damaged 1.txt"});
    std::ifstream kept(m_folder / "Notes damaged 1.txt", std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(kept), {}), good + "something else\n");
    // Another one gets another name.
    std::string foreign(100'000, '\0');
    foreign.replace(50'000, 5, "\n\n\xFF\n\t");
    Write(foreign);
    {
        NotesStore store(m_file);
        store.Set(Recording("b.wav"), Comment(L"two"));
    }
    EXPECT_EQ(Others(), (std::vector<std::string>{"Notes damaged 1.txt", "Notes damaged 2.txt"}));
    EXPECT_EQ(fs::file_size(m_folder / "Notes damaged 2.txt"), foreign.size());
    EXPECT_EQ(NotesStore(m_file).Of(Recording("b.wav")).comment, L"two");
}

TEST_F(WorkbenchNotesStore, KeepsNotesThatCannotBeStoredAndTriesAgain)
{
    // A folder stands where the file should be.
    fs::create_directories(m_file / "in the way");
    std::atomic<int> told = 0;
    NotesStore store(m_file, [&told] { ++told; });
    store.Set(Recording("a.wav"), Comment(L"x"));
    EXPECT_FALSE(store.Flush());
    EXPECT_TRUE(store.HasFailed());
    EXPECT_TRUE(WaitUntil([&] { return told == 1; }));
    EXPECT_EQ(store.Of(Recording("a.wav")).comment, L"x");
    fs::remove_all(m_file);
    EXPECT_TRUE(store.Flush());
    EXPECT_FALSE(store.HasFailed());
    EXPECT_TRUE(WaitUntil([&] { return told == 2; }));
    EXPECT_EQ(NotesStore(m_file).Of(Recording("a.wav")).comment, L"x");
}

TEST_F(WorkbenchNotesStore, ALaterSaveKeepsWhatAnotherProgramSaid)
{
    NotesStore first(m_file);
    NotesStore second(m_file);
    first.Set(Recording("a.wav"), Comment(L"first"));
    first.Set(Recording("both.wav"), Comment(L"first"));
    ASSERT_TRUE(first.Flush());
    second.Set(Recording("b.wav"), Comment(L"second"));
    second.Set(Recording("both.wav"), Comment(L"second"));
    ASSERT_TRUE(second.Flush());
    EXPECT_EQ(second.Of(Recording("a.wav")).comment, L"first");
    EXPECT_EQ(first.Of(Recording("b.wav")).comment, L"");
    first.Refresh();
    EXPECT_EQ(first.Of(Recording("a.wav")).comment, L"first");
    EXPECT_EQ(first.Of(Recording("b.wav")).comment, L"second");
    EXPECT_EQ(first.Of(Recording("both.wav")).comment, L"second");
    // What one takes back does not return with the other's next save.
    first.Set(Recording("a.wav"), {});
    ASSERT_TRUE(first.Flush());
    second.Set(Recording("c.wav"), Comment(L"more"));
    ASSERT_TRUE(second.Flush());
    EXPECT_EQ(ReadNotes(Text()).notes.size(), 3U);
}

TEST_F(WorkbenchNotesStore, ManyWritersAtOnceLoseNothing)
{
    constexpr int writers = 4;
    constexpr int each = 25;
    std::vector<std::thread> threads;
    std::atomic<int> failed = 0;
    for (int writer = 0; writer < writers; ++writer)
    {
        threads.emplace_back([&, writer] {
            NotesStore store(m_file, {}, 0ms);
            for (int i = 0; i < each; ++i)
            {
                store.Set(Recording(std::to_string(writer) + "-" + std::to_string(i) + ".wav"), Comment(L"x"));
                failed += store.Flush() ? 0 : 1;
            }
        });
    }
    for (std::thread & thread : threads)
    {
        thread.join();
    }
    EXPECT_EQ(failed, 0);
    NotesReading const reading = ReadNotes(Text());
    EXPECT_FALSE(reading.damaged);
    EXPECT_EQ(reading.notes.size(), static_cast<std::size_t>(writers * each));
    EXPECT_TRUE(Others().empty());
}

TEST_F(WorkbenchNotesStore, AFileIsWholeWheneverItIsRead)
{
    {
        NotesStore store(m_file);
        for (int i = 0; i < 500; ++i)
        {
            store.Set(Recording(std::to_string(i) + ".wav"), Comment(L"x"));
        }
    }
    std::atomic<bool> stop = false;
    std::thread writer([&] {
        NotesStore store(m_file, {}, 0ms);
        for (int i = 0; !stop; ++i)
        {
            store.Set(Recording("0.wav"), Comment(std::to_wstring(i)));
            store.Flush();
        }
    });
    int wrong = 0;
    for (int i = 0; i < 100; ++i)
    {
        std::optional<std::string> const text = ReadWholeFile(m_file);
        if (text && !text->empty())
        {
            NotesReading const reading = ReadNotes(*text);
            wrong += reading.damaged || reading.notes.size() != 500 ? 1 : 0;
        }
    }
    stop = true;
    writer.join();
    EXPECT_EQ(wrong, 0);
}

TEST_F(WorkbenchNotesStore, ALeftOverDraftIsNoHindrance)
{
    {
        NotesStore store(m_file);
        store.Set(Recording("a.wav"), Comment(L"old"));
    }
    // A program was ended while it wrote.
    fs::path draft = m_file;
    draft += ".new";
    std::ofstream(draft, std::ios::binary) << "Instrument Workbench notes 1\nhalf a li";
    {
        NotesStore store(m_file);
        EXPECT_EQ(store.Of(Recording("a.wav")).comment, L"old");
        store.Set(Recording("b.wav"), Comment(L"new"));
    }
    EXPECT_TRUE(Others().empty());
    EXPECT_EQ(ReadNotes(Text()).notes.size(), 2U);
}

TEST_F(WorkbenchNotesStore, TwentyThousandNotesAreOneWrite)
{
    constexpr int count = 20'000;
    {
        NotesStore store(m_file, {}, 10s);
        for (int i = 0; i < count; ++i)
        {
            store.Set(Recording(std::to_string(i) + ".wav"), {true, false, i % 4, L"number " + std::to_wstring(i)});
        }
        EXPECT_TRUE(store.Flush());
        EXPECT_EQ(store.Writes(), 1);
    }
    NotesStore store(m_file);
    for (int i = 0; i < count; ++i)
    {
        ASSERT_EQ(store.Of(Recording(std::to_string(i) + ".wav")).comment, L"number " + std::to_wstring(i));
    }
}
