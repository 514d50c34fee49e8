// Strings out of a module's string table.

#include <string>
#include <vector>

#include "framework_Support.h"

namespace
{
constexpr UINT first_id = 1600;
constexpr WORD english = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
constexpr WORD german = MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN);

// The block of the sixteen strings from FirstId on, of which the first and the last are given.
std::vector<WORD> StringBlock(std::wstring const & first, std::wstring const & last)
{
    std::vector<WORD> block;
    for (int i = 0; i < 16; ++i)
    {
        std::wstring const text = i == 0 ? first : i == 15 ? last : std::wstring();
        block.push_back(static_cast<WORD>(text.size()));
        block.insert(block.end(), text.begin(), text.end());
    }
    return block;
}

void AddBlock(HANDLE update, WORD language, std::vector<WORD> block)
{
    ::UpdateResourceW(update, RT_STRING, MAKEINTRESOURCEW(first_id / 16 + 1), language, block.data(),
                      static_cast<DWORD>(block.size() * sizeof(WORD)));
}

// A copy of the framework's module with two string tables, loaded as data.
class FrameworkStringResources : public testing::Test
{
protected:
    void SetUp() override
    {
        HMODULE own = nullptr;
        ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                             reinterpret_cast<LPCWSTR>(RUNTIME_CLASS(CObject)), &own);
        wchar_t path[MAX_PATH] = {};
        ::GetModuleFileNameW(own, path, MAX_PATH);
        wchar_t folder[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, folder);
        wchar_t file[MAX_PATH] = {};
        ::GetTempFileNameW(folder, L"str", 0, file);
        m_file = file;
        ASSERT_TRUE(::CopyFileW(path, file, FALSE));
        HANDLE const update = ::BeginUpdateResourceW(file, FALSE);
        ASSERT_NE(nullptr, update);
        AddBlock(update, english, StringBlock(L"first %d", L"last"));
        AddBlock(update, german, StringBlock(L"erster", L"letzter"));
        ASSERT_TRUE(::EndUpdateResourceW(update, FALSE));
        m_module = ::LoadLibraryExW(file, nullptr, LOAD_LIBRARY_AS_DATAFILE);
        ASSERT_NE(nullptr, m_module);
    }
    void TearDown() override
    {
        if (m_module != nullptr)
            ::FreeLibrary(m_module);
        ::DeleteFileW(m_file);
    }

    CString m_file;
    HMODULE m_module = nullptr;
};
} // namespace

TEST_F(FrameworkStringResources, LanguageIsChosen)
{
    CString text;
    EXPECT_TRUE(text.LoadString(m_module, first_id, english));
    EXPECT_STREQ(L"first %d", text);
    EXPECT_TRUE(text.LoadString(m_module, first_id + 15, english));
    EXPECT_STREQ(L"last", text);
    EXPECT_TRUE(text.LoadString(m_module, first_id, german));
    EXPECT_STREQ(L"erster", text);
    EXPECT_TRUE(text.LoadString(m_module, first_id + 15));
    EXPECT_TRUE(text == L"last" || text == L"letzter");
}

TEST_F(FrameworkStringResources, NarrowTextIsConverted)
{
    CStringA text;
    EXPECT_TRUE(text.LoadString(m_module, first_id + 15, german));
    EXPECT_STREQ("letzter", text);
}

TEST_F(FrameworkStringResources, MissingStringLeavesTheText)
{
    CString text = L"old";
    EXPECT_FALSE(text.LoadString(m_module, first_id + 1, english));
    EXPECT_FALSE(text.LoadString(m_module, first_id + 16, english));
    EXPECT_FALSE(text.LoadString(m_module, first_id, MAKELANGID(LANG_FRENCH, SUBLANG_FRENCH)));
    EXPECT_STREQ(L"old", text);
}
