#include "ResourceReader.h"

#include <gtest/gtest.h>

#include <cstring>

namespace tests
{
namespace
{
constexpr int strings_per_block = 16;

BOOL CALLBACK AddLanguage(HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR result)
{
    reinterpret_cast<std::set<WORD> *>(result)->insert(language);
    return TRUE;
}

BOOL CALLBACK AddId(HMODULE, LPCWSTR, LPWSTR name, LONG_PTR result)
{
    if (IS_INTRESOURCE(name))
    {
        reinterpret_cast<std::set<int> *>(result)->insert(LOWORD(reinterpret_cast<UINT_PTR>(name)));
    }
    return TRUE;
}

/// Takes values one after another; remembers an attempt to read past the end.
class Cursor
{
public:
    explicit Cursor(Bytes const & bytes) : m_bytes(bytes) {}

    template <typename T> T Take()
    {
        T value{};
        if (m_position + sizeof value > m_bytes.size())
        {
            m_ranOut = true;
            return value;
        }
        std::memcpy(&value, m_bytes.data() + m_position, sizeof value);
        m_position += sizeof value;
        return value;
    }

    /// A text that ends with zero, or "#" and a number where 0xFFFF stands before a number.
    std::wstring TakeName()
    {
        WORD character = Take<WORD>();
        if (character == 0xFFFF)
        {
            wchar_t text[8];
            swprintf_s(text, L"#%x", static_cast<unsigned>(Take<WORD>()));
            return text;
        }
        std::wstring text;
        for (; character != 0; character = Take<WORD>())
        {
            text += static_cast<wchar_t>(character);
        }
        return text;
    }

    void Align() { m_position = (m_position + 3) & ~std::size_t{3}; }
    void Skip(std::size_t count) { m_position += count; }
    bool RanOut() const { return m_ranOut; }

private:
    Bytes const & m_bytes;
    std::size_t m_position = 0;
    bool m_ranOut = false;
};
} // namespace

std::set<WORD> ResourceLanguages(HMODULE module, LPCWSTR type, LPCWSTR name)
{
    std::set<WORD> languages;
    EnumResourceLanguagesW(module, type, name, AddLanguage, reinterpret_cast<LONG_PTR>(&languages));
    return languages;
}

std::set<int> ResourceIds(HMODULE module, LPCWSTR type)
{
    std::set<int> ids;
    EnumResourceNamesW(module, type, AddId, reinterpret_cast<LONG_PTR>(&ids));
    return ids;
}

Bytes ReadResource(HMODULE module, LPCWSTR type, LPCWSTR name, WORD language)
{
    if (ResourceLanguages(module, type, name).count(language) == 0)
    {
        return {};
    }
    HRSRC const resource = FindResourceExW(module, type, name, language);
    if (resource == nullptr)
    {
        return {};
    }
    auto const * first = static_cast<std::byte const *>(LockResource(LoadResource(module, resource)));
    return Bytes(first, first + SizeofResource(module, resource));
}

std::map<std::pair<WORD, int>, std::wstring> ReadStringTables(HMODULE module)
{
    std::map<std::pair<WORD, int>, std::wstring> texts;
    for (int const block : ResourceIds(module, RT_STRING))
    {
        for (WORD const language : ResourceLanguages(module, RT_STRING, MAKEINTRESOURCEW(block)))
        {
            Bytes const bytes = ReadResource(module, RT_STRING, MAKEINTRESOURCEW(block), language);
            Cursor cursor(bytes);
            for (int i = 0; i < strings_per_block; ++i)
            {
                std::wstring text(cursor.Take<WORD>(), L'\0');
                for (wchar_t & character : text)
                {
                    character = static_cast<wchar_t>(cursor.Take<WORD>());
                }
                if (!text.empty())
                {
                    texts[{language, (block - 1) * strings_per_block + i}] = text;
                }
            }
            EXPECT_FALSE(cursor.RanOut()) << "string block " << block << ", language " << language;
        }
    }
    return texts;
}

std::vector<IconFrame> ReadIconGroup(HMODULE module, int id, WORD language)
{
    Bytes const bytes = ReadResource(module, RT_GROUP_ICON, MAKEINTRESOURCEW(id), language);
    Cursor cursor(bytes);
    EXPECT_EQ(cursor.Take<WORD>(), 0);
    EXPECT_EQ(cursor.Take<WORD>(), 1) << "type: icon";
    std::vector<IconFrame> frames(cursor.Take<WORD>());
    for (IconFrame & frame : frames)
    {
        frame.width = cursor.Take<BYTE>();
        frame.height = cursor.Take<BYTE>();
        cursor.Take<BYTE>(); // colours
        cursor.Take<BYTE>(); // reserved
        cursor.Take<WORD>(); // planes
        frame.bits = cursor.Take<WORD>();
        cursor.Take<DWORD>(); // size of the picture
        frame.pictureId = cursor.Take<WORD>();
    }
    EXPECT_FALSE(cursor.RanOut()) << "group icon " << id;
    return frames;
}

StoredDialog ParseDialogTemplate(Bytes const & bytes)
{
    constexpr WORD extended_version = 1;
    constexpr WORD extended_signature = 0xFFFF;

    StoredDialog result;
    Cursor cursor(bytes);
    EXPECT_EQ(cursor.Take<WORD>(), extended_version);
    EXPECT_EQ(cursor.Take<WORD>(), extended_signature);
    cursor.Take<DWORD>(); // help id
    result.exStyle = cursor.Take<DWORD>();
    result.style = cursor.Take<DWORD>();
    result.items.resize(cursor.Take<WORD>());
    cursor.Take<short>(); // left
    cursor.Take<short>(); // top
    result.width = cursor.Take<short>();
    result.height = cursor.Take<short>();
    EXPECT_EQ(cursor.TakeName(), L"") << "menu";
    EXPECT_EQ(cursor.TakeName(), L"") << "window class";
    result.title = cursor.TakeName();
    if (result.style & DS_SETFONT)
    {
        result.pointSize = cursor.Take<WORD>();
        cursor.Take<WORD>(); // weight
        cursor.Take<BYTE>(); // italic
        cursor.Take<BYTE>(); // character set
        result.face = cursor.TakeName();
    }
    for (DialogItem & item : result.items)
    {
        cursor.Align();
        cursor.Take<DWORD>(); // help id
        item.exStyle = cursor.Take<DWORD>();
        item.style = cursor.Take<DWORD>();
        item.x = cursor.Take<short>();
        item.y = cursor.Take<short>();
        item.width = cursor.Take<short>();
        item.height = cursor.Take<short>();
        item.id = cursor.Take<DWORD>();
        item.windowClass = cursor.TakeName();
        item.text = cursor.TakeName();
        cursor.Skip(cursor.Take<WORD>());
    }
    EXPECT_FALSE(cursor.RanOut());
    return result;
}

// Windows searches by the thread's interface language, older systems and Wine by the thread's locale.
ScopedLanguage::ScopedLanguage(WORD language)
    : m_formerLocale(GetThreadLocale()),
      m_formerLanguage(GetThreadUILanguage())
{
    SetThreadLocale(MAKELCID(language, SORT_DEFAULT));
    SetThreadUILanguage(language);
}

ScopedLanguage::~ScopedLanguage()
{
    SetThreadLocale(m_formerLocale);
    SetThreadUILanguage(m_formerLanguage);
}
} // namespace tests
