#include "logic/RecordingNotes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <clocale>
#include <cwctype>
#endif

namespace workbench
{

namespace
{

constexpr std::string_view header = "Instrument Workbench notes 1";
constexpr char field_separator = '\t';
constexpr int most_rating = 1000;
constexpr std::size_t sum_length = 8;

// A byte of a native path that is no UTF-8 stands as this and its value, which no valid text has.
[[maybe_unused]] constexpr char32_t stray_byte = 0xDC00;

/// Code points to UTF-8. Lone surrogates, which file names may have, are coded as any other.
void PutCodePoint(std::string & text, char32_t code)
{
    auto const put = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (code < 0x80)
    {
        put(code);
    }
    else if (code < 0x800)
    {
        put(0xC0 | code >> 6);
        put(0x80 | (code & 0x3F));
    }
    else if (code < 0x10000)
    {
        put(0xE0 | code >> 12);
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    }
    else
    {
        put(0xF0 | code >> 18);
        put(0x80 | (code >> 12 & 0x3F));
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    }
}

void PutUtf8(std::string & text, std::wstring_view wide)
{
    for (std::size_t i = 0; i < wide.size(); ++i)
    {
        auto code = static_cast<char32_t>(wide[i]);
        if constexpr (sizeof(wchar_t) == 2)
        {
            if (code >= 0xD800 && code < 0xDC00 && i + 1 < wide.size() && wide[i + 1] >= 0xDC00 && wide[i + 1] < 0xE000)
            {
                code = 0x10000 + ((code - 0xD800) << 10) + (static_cast<char32_t>(wide[++i]) - 0xDC00);
            }
        }
        // What separates and ends is escaped.
        switch (code)
        {
        case '\\':
            text += "\\\\";
            break;
        case '\t':
            text += "\\t";
            break;
        case '\n':
            text += "\\n";
            break;
        case '\r':
            text += "\\r";
            break;
        default:
            PutCodePoint(text, code <= 0x10FFFF ? code : 0xFFFD);
            break;
        }
    }
}

void PutWide(std::wstring & wide, char32_t code)
{
    if (sizeof(wchar_t) == 2 && code >= 0x10000)
    {
        wide += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
        wide += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
    }
    else
    {
        wide += static_cast<wchar_t>(code);
    }
}

/// The code point at the begin of the text, which it is taken from; nothing if there is none.
std::optional<char32_t> TakeCodePoint(std::string_view & text)
{
    if (text.empty())
    {
        return std::nullopt;
    }
    auto const lead = static_cast<unsigned char>(text.front());
    unsigned int const length = lead < 0x80   ? 1U
                                : lead < 0xC2 ? 0U
                                : lead < 0xE0 ? 2U
                                : lead < 0xF0 ? 3U
                                : lead < 0xF5 ? 4U
                                              : 0U;
    if (length == 0 || text.size() < length)
    {
        return std::nullopt;
    }
    auto code = static_cast<char32_t>(length == 1 ? lead : lead & (0x7FU >> length));
    for (std::size_t i = 1; i < length; ++i)
    {
        auto const byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80)
        {
            return std::nullopt;
        }
        code = code << 6 | (byte & 0x3FU);
    }
    constexpr std::array<char32_t, 5> least{0, 0, 0x80, 0x800, 0x10000};
    if (code < least[length] || code > 0x10FFFF)
    {
        return std::nullopt;
    }
    text.remove_prefix(length);
    return code;
}

/// The text without its escapes; nothing where it is no such text.
std::optional<std::wstring> Unescaped(std::string_view text)
{
    std::wstring wide;
    wide.reserve(text.size());
    while (!text.empty())
    {
        std::optional<char32_t> code = TakeCodePoint(text);
        if (code == U'\\')
        {
            code = TakeCodePoint(text);
            code = code == U't'    ? U'\t'
                   : code == U'n'  ? U'\n'
                   : code == U'r'  ? U'\r'
                   : code == U'\\' ? code
                                   : std::nullopt;
        }
        if (!code)
        {
            return std::nullopt;
        }
        PutWide(wide, *code);
    }
    return wide;
}

std::uint32_t CheckSum(std::string_view text)
{
    std::uint32_t sum = 2166136261U;
    for (char const c : text)
    {
        sum = (sum ^ static_cast<unsigned char>(c)) * 16777619U;
    }
    return sum;
}

/// The text up to the next separator, which it is taken from with it.
std::string_view TakeField(std::string_view & text)
{
    std::size_t const end = std::min(text.find(field_separator), text.size());
    std::string_view const field = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return field;
}

template <typename Number> std::optional<Number> ReadNumber(std::string_view text, int base)
{
    Number number = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

std::optional<NotedRecording> ReadLine(std::string_view line)
{
    std::string_view const sum = TakeField(line);
    if (sum.size() != sum_length || ReadNumber<std::uint32_t>(sum, 16) != CheckSum(line))
    {
        return std::nullopt;
    }
    std::string_view const marks = TakeField(line);
    auto const has = [marks](char mark) { return marks.find(mark) != marks.npos; };
    auto const rating = ReadNumber<int>(TakeField(line), 10);
    std::optional<std::wstring> path = Unescaped(TakeField(line));
    std::optional<std::wstring> comment = Unescaped(line);
    if (!rating || *rating < 0 || *rating > most_rating || !path || path->empty() || !comment)
    {
        return std::nullopt;
    }
    return NotedRecording{std::move(*path), {has('m'), has('r'), *rating, std::move(*comment)}};
}

void PutLine(std::string & text, NotedRecording const & recording)
{
    std::size_t const begin = text.size();
    text.append(sum_length, '0');
    text += field_separator;
    text += recording.notes.checked ? "m" : "";
    text += recording.notes.reference ? "r" : "";
    text += field_separator;
    text += std::to_string(recording.notes.rating);
    text += field_separator;
    PutUtf8(text, recording.path);
    text += field_separator;
    PutUtf8(text, recording.notes.comment);
    std::uint32_t const sum = CheckSum(std::string_view(text).substr(begin + sum_length + 1));
    for (std::size_t i = 0; i < sum_length; ++i)
    {
        text[begin + i] = "0123456789abcdef"[sum >> (4 * (sum_length - 1 - i)) & 0xF];
    }
    text += '\n';
}

/// Whether nothing in an absolute path could be left out. Normalising every path of a long list would take its time.
bool IsNormal(std::filesystem::path const & path)
{
    using Char = std::filesystem::path::value_type;
    std::filesystem::path::string_type const & text = path.native();
    constexpr wchar_t separator = std::filesystem::path::preferred_separator;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] == Char('/') && separator != Char('/'))
        {
            return false;
        }
        // The names of servers begin with two.
        bool const server = i == 1 && text[i] == separator && separator != Char('/');
        if (i > 0 && text[i - 1] == separator && !server && (text[i] == separator || text[i] == Char('.')))
        {
            return false;
        }
    }
    return true;
}

/// The path in wide characters, whatever its bytes are.
std::wstring WideText(std::filesystem::path const & path)
{
#ifdef _WIN32
    return path.native();
#else
    std::wstring wide;
    for (std::string_view text = path.native(); !text.empty();)
    {
        if (auto const code = TakeCodePoint(text))
        {
            PutWide(wide, *code);
        }
        else
        {
            PutWide(wide, stray_byte + static_cast<unsigned char>(text.front()));
            text.remove_prefix(1);
        }
    }
    return wide;
#endif
}

} // namespace

std::wstring NotesPath(std::filesystem::path const & recording)
{
    if (recording.is_absolute() && IsNormal(recording))
    {
        return WideText(recording);
    }
    std::error_code error;
    std::filesystem::path path = recording.is_absolute() ? recording : std::filesystem::absolute(recording, error);
    if (error)
    {
        path = recording;
    }
    return WideText(path.lexically_normal().make_preferred());
}

std::wstring NotesKey(std::wstring path)
{
    bool plain = true;
    for (wchar_t & c : path)
    {
        if (c >= L'a' && c <= L'z')
        {
            c = static_cast<wchar_t>(c - L'a' + L'A');
        }
        plain = plain && static_cast<char32_t>(c) < 0x80;
    }
    if (plain)
    {
        return path;
    }
#ifdef _WIN32
    auto const length = static_cast<int>(path.size());
    std::wstring upper(path.size(), L'\0');
    if (::LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, path.data(), length, upper.data(), length, nullptr,
                        nullptr, 0) == length)
    {
        return upper;
    }
#else
    static auto const locale = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (locale != nullptr)
    {
        std::ranges::transform(path, path.begin(), [](wchar_t c) {
            return static_cast<wchar_t>(::towupper_l(static_cast<std::wint_t>(c), locale));
        });
    }
#endif
    return path;
}

void PutNotes(NotesByKey & notes, std::wstring const & key, NotedRecording recording)
{
    if (recording.notes == RecordingNotes())
    {
        notes.erase(key);
    }
    else
    {
        notes[key] = std::move(recording);
    }
}

std::string NotesText(NotesByKey const & notes)
{
    // By key, so that the same notes are the same text.
    std::vector<NotesByKey::value_type const *> ordered;
    ordered.reserve(notes.size());
    for (auto const & each : notes)
    {
        ordered.push_back(&each);
    }
    std::ranges::sort(ordered, {}, [](auto const * each) -> std::wstring const & { return each->first; });
    std::string text(header);
    text += '\n';
    for (auto const * const each : ordered)
    {
        PutLine(text, each->second);
    }
    return text;
}

NotesReading ReadNotes(std::string_view text)
{
    NotesReading reading;
    if (text.empty())
    {
        return reading;
    }
    for (bool first = true; !text.empty(); first = false)
    {
        std::size_t const end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r'))
        {
            line.remove_suffix(1);
        }
        if (first && line == header)
        {
            continue;
        }
        if (std::optional<NotedRecording> recording = ReadLine(line))
        {
            std::wstring const key = NotesKey(recording->path);
            PutNotes(reading.notes, key, std::move(*recording));
            reading.damaged = reading.damaged || first;
        }
        else if (first || !line.empty())
        {
            reading.damaged = true;
        }
    }
    return reading;
}

} // namespace workbench
