// Texts of the multiselect in the three languages, and the stored template of its dialog.

#include <cstring>

#include "ControlTest.h"

namespace outside::controls
{
namespace
{

class Multi : public CIdNameMultiselectCtrl
{
public:
    using CIdNameMultiselectCtrl::m_cancel;
    using CIdNameMultiselectCtrl::m_list;
    using CIdNameMultiselectCtrl::m_ok;
    using CIdNameMultiselectCtrl::m_selectAll;
    using CIdNameMultiselectCtrl::m_selectNone;
    using CIdNameMultiselectCtrl::m_toolTip;
};

class ScopedLanguage
{
public:
    explicit ScopedLanguage(WORD language) : m_locale(::GetThreadLocale()), m_language(::SetThreadUILanguage(0))
    {
        ::SetThreadLocale(MAKELCID(language, SORT_DEFAULT));
        ::SetThreadUILanguage(language);
    }
    ~ScopedLanguage()
    {
        ::SetThreadLocale(m_locale);
        ::SetThreadUILanguage(m_language);
    }

private:
    LCID m_locale;
    LANGID m_language;
};

struct Texts
{
    WORD language;
    wchar_t const * all;
    wchar_t const * none;
    wchar_t const * ok;
    wchar_t const * cancel;
};

TEST(OutsideLanguages, TipsAndTheRowOfAnEmptyMap)
{
    for (Texts const & texts : {Texts{1031, L"alle wählen", L"alle abwählen", L"OK", L"Abbruch"},
                                Texts{1033, L"select all", L"deselect all", L"OK", L"Cancel"},
                                Texts{3082, L"seleccionar todos", L"seleccionar ningún", L"Aceptar", L"Cancelar"}})
    {
        ScopedLanguage const language(texts.language);
        Host host;
        Multi multi;
        ASSERT_TRUE(multi.Create(L"", WS_CHILD, CRect(0, 0, 200, 200), host, 3));
        auto const tip = [&](CButton & button) {
            CString text;
            multi.m_toolTip.GetText(text, &button);
            return W(text);
        };
        EXPECT_EQ(tip(multi.m_selectAll), texts.all);
        EXPECT_EQ(tip(multi.m_selectNone), texts.none);
        EXPECT_EQ(tip(multi.m_ok), texts.ok);
        EXPECT_EQ(tip(multi.m_cancel), texts.cancel);
        // Spanish has none of its own.
        EXPECT_EQ(W(multi.m_list.GetItemText(0, 0)), L"(keine Einträge)") << texts.language;
        // The captions are German in every language.
        EXPECT_EQ(TextOf(multi.m_selectAll), L"Alle wählen");
        EXPECT_EQ(TextOf(multi.m_cancel), L"Abbruch");
        multi.DestroyWindow();
    }
}

TEST(OutsideLanguages, StoredTemplateOfTheDialog)
{
    HRSRC const found = ::FindResourceExW(Toolkit(), RT_DIALOG, MAKEINTRESOURCEW(130), 1031);
    ASSERT_NE(found, nullptr);
    auto const * const bytes = static_cast<unsigned char const *>(::LockResource(::LoadResource(Toolkit(), found)));
    auto const word = [bytes](int at) {
        WORD value = 0;
        std::memcpy(&value, bytes + at, sizeof(value));
        return value;
    };
    auto const dword = [&](int at) { return static_cast<DWORD>(MAKELONG(word(at), word(at + 2))); };
    ASSERT_EQ(word(2), 0xFFFF);
    EXPECT_EQ(dword(8), static_cast<DWORD>(WS_EX_TOOLWINDOW));
    EXPECT_EQ(dword(12), static_cast<DWORD>(WS_POPUP | WS_THICKFRAME | WS_SYSMENU | DS_SETFONT | DS_FIXEDSYS));
    EXPECT_EQ(word(16), 1);
    EXPECT_EQ(word(22), 81);
    EXPECT_EQ(word(24), 55);
    // No menu, class or title; then the font.
    EXPECT_EQ(word(26), 0);
    EXPECT_EQ(word(28), 0);
    EXPECT_EQ(word(30), 0);
    EXPECT_EQ(word(32), 8);
    std::wstring face;
    int at = 38;
    for (; word(at) != 0; at += 2)
        face += static_cast<wchar_t>(word(at));
    EXPECT_EQ(face, L"MS Shell Dlg");
    at = (at + 2 + 3) / 4 * 4;
    EXPECT_EQ(dword(at + 8), static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_TABSTOP));
    EXPECT_EQ(word(at + 12), 0);
    EXPECT_EQ(word(at + 14), 0);
    EXPECT_EQ(word(at + 16), 81);
    EXPECT_EQ(word(at + 18), 55);
    EXPECT_EQ(dword(at + 20), 1016u);
    EXPECT_EQ(dword(at + 24), 0x0080FFFFu);
    std::wstring text;
    for (int each = at + 28; word(each) != 0; each += 2)
        text += static_cast<wchar_t>(word(each));
    EXPECT_EQ(text, L"Button1");
}
} // namespace
} // namespace outside::controls
