// Formatting. The C library's own wide formats differ between platforms in what %s and %l mean, so the directives are
// read here and only numbers go to the C library, one at a time.

#include "afx.h"

#include <climits>
#include <cstdio>
#include <optional>
#include <vector>

#include "StringText.h"

namespace
{
using framework::AppendText;

enum class Size
{
    usual,
    character,
    short_number,
    long_number,
    bits32,
    bits64,
    pointer,
    long_double,
    wide
};

struct Directive
{
    std::string flags;
    bool left = false;
    bool zero = false;
    int width = -1;
    int precision = -1;
    Size size = Size::usual;
};

// One va_list, passed on by reference.
struct Arguments
{
    explicit Arguments(va_list source) { va_copy(list, source); }
    Arguments(Arguments const &) = delete;
    Arguments & operator=(Arguments const &) = delete;
    ~Arguments() { va_end(list); }
    int Int() { return va_arg(list, int); }
    long long Int64() { return va_arg(list, long long); }
    double Double() { return va_arg(list, double); }
    long double LongDouble() { return va_arg(list, long double); }
    void const * Address() { return va_arg(list, void const *); }

    va_list list;
};

// One value that stands for a whole argument list.
struct Slot
{
    long long value;
    int Int() { return static_cast<int>(value); }
    long long Int64() { return value; }
    [[noreturn]] double Double() { AtlThrow(E_INVALIDARG); }
    [[noreturn]] long double LongDouble() { AtlThrow(E_INVALIDARG); }
    void const * Address() { return reinterpret_cast<void const *>(static_cast<std::intptr_t>(value)); }
};

template <class Char> class Formatter
{
public:
    Formatter(Char const * format, std::basic_string<Char> & target) : m_at(format), m_target(target) {}

    template <class Source> void Run(Source & source)
    {
        while (*m_at != 0)
        {
            if (*m_at != '%')
            {
                m_target += *m_at++;
                continue;
            }
            ++m_at;
            RunDirective(source);
        }
    }

private:
    using Text = std::basic_string<Char>;
    static constexpr bool is_wide = std::is_same_v<Char, wchar_t>;

    bool Skip(char wanted)
    {
        if (*m_at != static_cast<Char>(wanted))
            return false;
        ++m_at;
        return true;
    }
    bool Skip(char first, char second, char third)
    {
        if (m_at[0] != static_cast<Char>(first) || m_at[1] != static_cast<Char>(second) ||
            m_at[2] != static_cast<Char>(third))
            return false;
        m_at += 3;
        return true;
    }
    int Number()
    {
        constexpr int limit = 100'000'000;
        int value = 0;
        for (; *m_at >= '0' && *m_at <= '9'; ++m_at)
            value = value < limit ? value * 10 + static_cast<int>(*m_at - '0') : value;
        return value;
    }
    void ReadFlags(Directive & directive)
    {
        for (;; ++m_at)
        {
            if (*m_at != '-' && *m_at != '+' && *m_at != ' ' && *m_at != '#' && *m_at != '0')
                return;
            directive.flags += static_cast<char>(*m_at);
            directive.left = directive.left || *m_at == '-';
            directive.zero = directive.zero || *m_at == '0';
        }
    }
    template <class Source> void ReadWidth(Directive & directive, Source & source)
    {
        if (Skip('*'))
        {
            directive.width = source.Int();
            if (directive.width < 0)
            {
                directive.left = true;
                directive.flags += '-';
                directive.width = directive.width == INT_MIN ? INT_MAX : -directive.width;
            }
        }
        else if (*m_at >= '0' && *m_at <= '9')
        {
            directive.width = Number();
        }
        if (Skip('.'))
            directive.precision = Skip('*') ? source.Int() : Number();
    }
    void ReadSize(Directive & directive)
    {
        if (Skip('I', '6', '4') || Skip('j'))
            directive.size = Size::bits64;
        else if (Skip('I', '3', '2'))
            directive.size = Size::bits32;
        else if (Skip('I') || Skip('z') || Skip('t'))
            directive.size = Size::pointer;
        else if (Skip('h'))
            directive.size = Skip('h') ? Size::character : Size::short_number;
        else if (Skip('l'))
            directive.size = Skip('l') ? Size::bits64 : Size::long_number;
        else if (Skip('L'))
            directive.size = Size::long_double;
        else if (Skip('w'))
            directive.size = Size::wide;
    }

    template <class Source> void RunDirective(Source & source)
    {
        Directive directive;
        ReadFlags(directive);
        ReadWidth(directive, source);
        ReadSize(directive);
        Char const conversion = *m_at;
        if (conversion == 0)
            return;
        ++m_at;
        switch (conversion)
        {
        case 'd':
        case 'i':
            PutNumber(directive, "lld", Signed(directive, source));
            break;
        case 'u':
        case 'o':
        case 'x':
        case 'X':
            PutNumber(directive, std::string("ll") + static_cast<char>(conversion), Unsigned(directive, source));
            break;
        case 'e':
        case 'E':
        case 'f':
        case 'F':
        case 'g':
        case 'G':
        case 'a':
        case 'A':
            if (directive.size == Size::long_double)
                PutNumber(directive, std::string("L") + static_cast<char>(conversion), source.LongDouble());
            else
                PutNumber(directive, std::string(1, static_cast<char>(conversion)), source.Double());
            break;
        case 'p':
            PutPointer(directive, source.Address());
            break;
        case 'c':
        case 'C':
            PutCharacter(directive, TakesWide(directive, conversion == 'C'), source.Int());
            break;
        case 's':
        case 'S':
            PutString(directive, TakesWide(directive, conversion == 'S'), source.Address());
            break;
        case 'n':
            // Writing through an argument is not offered.
            AtlThrow(E_INVALIDARG);
        default:
            m_target += conversion;
            break;
        }
    }

    static bool TakesWide(Directive const & directive, bool other)
    {
        if (directive.size == Size::long_number || directive.size == Size::wide)
            return true;
        if (directive.size == Size::short_number)
            return false;
        return is_wide != other;
    }
    static bool Is64(Directive const & directive)
    {
        return directive.size == Size::bits64 ||
               (directive.size == Size::pointer && sizeof(void *) == sizeof(long long));
    }
    template <class Source> static long long Signed(Directive const & directive, Source & source)
    {
        if (Is64(directive))
            return source.Int64();
        int const value = source.Int();
        if (directive.size == Size::character)
            return static_cast<signed char>(value);
        return directive.size == Size::short_number ? static_cast<short>(value) : value;
    }
    template <class Source> static unsigned long long Unsigned(Directive const & directive, Source & source)
    {
        if (Is64(directive))
            return static_cast<unsigned long long>(source.Int64());
        auto const value = static_cast<unsigned int>(source.Int());
        if (directive.size == Size::character)
            return static_cast<unsigned char>(value);
        return directive.size == Size::short_number ? static_cast<unsigned short>(value) : value;
    }

    template <class Value> void PutNumber(Directive const & directive, std::string const & conversion, Value value)
    {
        std::string format(1, '%');
        format += directive.flags;
        if (directive.width >= 0)
            format += std::to_string(directive.width);
        if (directive.precision >= 0)
            format.append(1, '.').append(std::to_string(directive.precision));
        format += conversion;
        char room[64];
        int const length = std::snprintf(room, sizeof room, format.c_str(), value);
        if (length < 0)
            AtlThrow(E_INVALIDARG);
        if (static_cast<size_t>(length) < sizeof room)
        {
            m_target.append(room, room + length);
            return;
        }
        std::vector<char> larger(static_cast<size_t>(length) + 1);
        std::snprintf(larger.data(), larger.size(), format.c_str(), value);
        m_target.append(larger.data(), larger.data() + length);
    }
    void PutPointer(Directive const & directive, void const * address)
    {
        char room[2 * sizeof(void *) + 1];
        std::snprintf(room, sizeof room, "%0*llX", static_cast<int>(2 * sizeof(void *)),
                      static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(address)));
        PutPadded(directive, Text(room, room + std::strlen(room)));
    }
    void PutCharacter(Directive const & directive, bool wide, int code)
    {
        if (wide == is_wide)
        {
            PutPadded(directive, Text(1, static_cast<Char>(code)));
            return;
        }
        if (wide)
        {
            auto const ch = static_cast<wchar_t>(code);
            PutPadded(directive, Converted(&ch, 1));
        }
        else
        {
            char const ch = static_cast<char>(code);
            PutPadded(directive, Converted(&ch, 1));
        }
    }
    void PutString(Directive const & directive, bool wide, void const * address)
    {
        if (address == nullptr)
        {
            char const null[] = "(null)";
            PutPadded(directive, Cut(directive, Text(null, null + sizeof null - 1)));
        }
        else if (wide)
        {
            auto const * const text = static_cast<wchar_t const *>(address);
            PutPadded(directive, Cut(directive, Converted(text, Length(directive, text))));
        }
        else
        {
            auto const * const text = static_cast<char const *>(address);
            PutPadded(directive, Cut(directive, Converted(text, Length(directive, text))));
        }
    }
    // With a precision the text need not be terminated.
    template <class Other> static int Length(Directive const & directive, Other const * text)
    {
        int length = 0;
        while ((directive.precision < 0 || length < directive.precision) && text[length] != 0)
            ++length;
        return length;
    }
    template <class Other> static Text Converted(Other const * text, int length)
    {
        if constexpr (std::is_same_v<Char, Other>)
            return Text(text, static_cast<size_t>(length));
        else if constexpr (is_wide)
            return framework::ToWide(text, length);
        else
            return framework::ToNarrow(text, length);
    }
    static Text Cut(Directive const & directive, Text text)
    {
        if (directive.precision >= 0 && text.size() > static_cast<size_t>(directive.precision))
            text.resize(static_cast<size_t>(directive.precision));
        return text;
    }
    void PutPadded(Directive const & directive, Text const & text)
    {
        size_t const width = directive.width > 0 ? static_cast<size_t>(directive.width) : 0;
        size_t const padding = width > text.size() ? width - text.size() : 0;
        if (!directive.left)
            m_target.append(padding, static_cast<Char>(directive.zero ? '0' : ' '));
        m_target += text;
        if (directive.left)
            m_target.append(padding, static_cast<Char>(' '));
    }

    Char const * m_at;
    Text & m_target;
};

template <class Char> void Format(ATL::CSimpleStringT<Char> & target, Char const * format, va_list list)
{
    if (format == nullptr)
        AtlThrow(E_INVALIDARG);
    std::basic_string<Char> text;
    Arguments arguments(list);
    Formatter<Char>(format, text).Run(arguments);
    AppendText(target, text);
}

#if !defined(_WIN32)
// The inserts of a message, each of which is a string or an integer. They are read in order as they are first needed.
class Inserts
{
public:
    explicit Inserts(va_list * list) : m_list(list) {}
    Slot At(int number)
    {
        while (static_cast<int>(m_values.size()) < number)
            m_values.push_back(va_arg(*m_list, long long));
        return Slot{m_values[static_cast<size_t>(number) - 1]};
    }

private:
    va_list * m_list;
    std::vector<long long> m_values;
};

// Reads "!spec!" behind an insert's number; "%s" when there is none.
template <class Char> std::basic_string<Char> ReadInsertFormat(Char const *& at)
{
    std::basic_string<Char> format(1, static_cast<Char>('%'));
    if (*at != '!')
        return format += static_cast<Char>('s');
    for (++at; *at != '!'; ++at)
    {
        if (*at == 0 || *at == '*')
            AtlThrow(E_INVALIDARG);
        format += *at;
    }
    ++at;
    return format;
}

template <class Char> void Message(ATL::CSimpleStringT<Char> & target, Char const * format, va_list * list)
{
    if (format == nullptr || list == nullptr)
        AtlThrow(E_INVALIDARG);
    std::basic_string<Char> text;
    Inserts inserts(list);
    for (Char const * at = format; *at != 0;)
    {
        if (*at != '%')
        {
            text += *at++;
            continue;
        }
        ++at;
        if (*at >= '1' && *at <= '9')
        {
            int number = static_cast<int>(*at++ - '0');
            if (*at >= '0' && *at <= '9')
                number = number * 10 + static_cast<int>(*at++ - '0');
            std::basic_string<Char> const insertFormat = ReadInsertFormat(at);
            Slot slot = inserts.At(number);
            Formatter<Char>(insertFormat.c_str(), text).Run(slot);
            continue;
        }
        if (*at == 0 || *at == '0')
            break;
        if (*at == 'n' || *at == 'r')
            text += static_cast<Char>('\r');
        if (*at == 'n')
            text += static_cast<Char>('\n');
        else if (*at != 'r')
            text += *at;
        ++at;
    }
    AppendText(target, text);
}
#else
void Message(ATL::CSimpleStringT<wchar_t> & target, wchar_t const * format, va_list * list)
{
    if (format == nullptr || list == nullptr)
        AtlThrow(E_INVALIDARG);
    wchar_t * text = nullptr;
    ::SetLastError(ERROR_SUCCESS);
    DWORD const length = ::FormatMessageW(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                                          reinterpret_cast<wchar_t *>(&text), 0, list);
    if (length == 0 && ::GetLastError() != ERROR_SUCCESS)
        AtlThrow(::GetLastError() == ERROR_NOT_ENOUGH_MEMORY ? E_OUTOFMEMORY : E_INVALIDARG);
    std::wstring const result(text != nullptr ? text : L"", length);
    ::LocalFree(text);
    AppendText(target, result);
}

void Message(ATL::CSimpleStringT<char> & target, char const * format, va_list * list)
{
    if (format == nullptr || list == nullptr)
        AtlThrow(E_INVALIDARG);
    char * text = nullptr;
    ::SetLastError(ERROR_SUCCESS);
    DWORD const length = ::FormatMessageA(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                                          reinterpret_cast<char *>(&text), 0, list);
    if (length == 0 && ::GetLastError() != ERROR_SUCCESS)
        AtlThrow(::GetLastError() == ERROR_NOT_ENOUGH_MEMORY ? E_OUTOFMEMORY : E_INVALIDARG);
    std::string const result(text != nullptr ? text : "", length);
    ::LocalFree(text);
    AppendText(target, result);
}
#endif
} // namespace

namespace framework
{
void AppendFormatted(ATL::CSimpleStringT<char> & target, char const * format, va_list arguments)
{
    Format(target, format, arguments);
}

void AppendFormatted(ATL::CSimpleStringT<wchar_t> & target, wchar_t const * format, va_list arguments)
{
    Format(target, format, arguments);
}

void AppendMessage(ATL::CSimpleStringT<char> & target, char const * format, va_list * arguments)
{
    Message(target, format, arguments);
}

void AppendMessage(ATL::CSimpleStringT<wchar_t> & target, wchar_t const * format, va_list * arguments)
{
    Message(target, format, arguments);
}
} // namespace framework
