#pragma once
// How the recordings of folders were shown last, kept in a file.

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "logic/NotesStore.h"

namespace workbench
{

/// How the recordings of a folder are shown. They are known by their names in it.
struct FolderView
{
    /// What of the chosen recording is shown.
    struct Stretch
    {
        std::uint64_t frames = 0; ///< that the recording has
        std::uint64_t first = 0;
        std::uint64_t end = 0;
        std::uint64_t cursor = 0;

        bool operator==(Stretch const &) const = default;
    };

    int column = -1; ///< by which they are sorted; negative: by none
    bool ascending = true;
    std::vector<std::wstring> order; ///< where they are in an order of the user's
    std::vector<std::wstring> selected;
    std::wstring chosen;
    std::optional<Stretch> stretch;

    bool operator==(FolderView const &) const = default;
};

/// The view as a text: a line for each thing that there is to say. Names have no line ends.
std::wstring FolderViewText(FolderView const & view);

/// Reads what FolderViewText wrote; lines that it doesn't know are passed over.
FolderView ReadFolderView(std::wstring_view text);

/// The file's part below a folder, or all of it where it is elsewhere; and back.
std::wstring NameInFolder(std::filesystem::path const & folder, std::filesystem::path const & file);
std::filesystem::path FileInFolder(std::filesystem::path const & folder, std::wstring const & name);

/// The views of all folders, stored as notes are: by a thread, soon after they have changed, and whole at every moment.
class FolderViews
{
public:
    /// Less than notes wait: a view changes often, and not much.
    static constexpr std::chrono::milliseconds usual_delay{200};

    explicit FolderViews(std::filesystem::path file, std::chrono::milliseconds delay = usual_delay);

    FolderView Of(std::filesystem::path const & folder) const;
    void Set(std::filesystem::path const & folder, FolderView const & view);
    /// Stores at once what is waiting. False if that failed.
    bool Flush() { return m_store.Flush(); }

private:
    NotesStore m_store; ///< where folders have their views for a comment
};

} // namespace workbench
