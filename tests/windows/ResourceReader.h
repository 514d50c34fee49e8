#pragma once
// Reads resources of a loaded module as they are stored, in one language and without any search.

#include <afxwin.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tests
{
using Bytes = std::vector<std::byte>;

/// The languages that a resource is stored in; empty if there is no such resource.
std::set<WORD> ResourceLanguages(HMODULE module, LPCWSTR type, LPCWSTR name);

/// The numbers under which resources of that type are stored.
std::set<int> ResourceIds(HMODULE module, LPCWSTR type);

/// The resource of exactly that language; empty if there is none.
Bytes ReadResource(HMODULE module, LPCWSTR type, LPCWSTR name, WORD language);

/// All non-empty texts of the string tables, by language and id.
std::map<std::pair<WORD, int>, std::wstring> ReadStringTables(HMODULE module);

/// One picture of a group icon, as the group's directory tells it.
struct IconFrame
{
    int width;
    int height;
    int bits;
    WORD pictureId;
};
std::vector<IconFrame> ReadIconGroup(HMODULE module, int id, WORD language);

struct DialogItem
{
    DWORD style;
    DWORD exStyle;
    short x, y, width, height;
    DWORD id;
    std::wstring windowClass; // "#80" for the button class and so on, as stored
    std::wstring text;
};

struct StoredDialog
{
    DWORD style = 0;
    DWORD exStyle = 0;
    short width = 0, height = 0;
    std::wstring title;
    WORD pointSize = 0;
    std::wstring face;
    std::vector<DialogItem> items;
};

/// An extended dialog template. Fails the test if the bytes are no such template or end early.
StoredDialog ParseDialogTemplate(Bytes const & bytes);

/// Makes a language the calling thread's for the search of resources, and restores the former one.
class ScopedLanguage
{
public:
    explicit ScopedLanguage(WORD language);
    ~ScopedLanguage();
    ScopedLanguage(ScopedLanguage const &) = delete;
    ScopedLanguage & operator=(ScopedLanguage const &) = delete;

private:
    LCID m_formerLocale;
    LANGID m_formerLanguage;
};
} // namespace tests
