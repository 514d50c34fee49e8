#pragma once
// What the list of recordings shows, and the natural order of names.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench
{

/// What a recording must be like to stay in the list.
struct RecordingFilter
{
    enum class State
    {
        any, ///< of a recording: it is not read
        sound,
        damaged,
        unreadable
    };

    std::wstring words; ///< each of them must occur in name, folder or comment
    bool marked = false;
    std::optional<int> rating;
    State state = State::any;

    bool operator==(RecordingFilter const &) const = default;

    /// Whether every recording stays.
    bool LetsAllThrough() const;
};

/// The text in small letters, so that texts that differ in the case of letters alone are the same.
std::wstring FoldedText(std::wstring_view text);

/// What words are looked for in, folded: the name, the folder and the comment of a recording.
std::wstring SearchedText(std::filesystem::path const & file, std::wstring_view comment);

/// A filter at work.
class FilterMatch
{
public:
    /// What is looked at.
    struct Facts
    {
        std::wstring_view text; ///< of SearchedText
        bool marked = false;
        int rating = 0;
        RecordingFilter::State state = RecordingFilter::State::any;
    };

    explicit FilterMatch(RecordingFilter filter);
    bool operator()(Facts const & facts) const;
    RecordingFilter const & Filter() const { return m_filter; }

private:
    RecordingFilter m_filter;
    std::vector<std::wstring> m_words; ///< folded
};

/// A text whose plain order is the natural one: each number is led by how many digits it has, so that "2" comes before
/// "10". Zeros that lead a number don't count.
std::wstring NaturalText(std::wstring_view text);

/// Whether a file can have that name.
bool IsFileName(std::wstring_view name);

} // namespace workbench
