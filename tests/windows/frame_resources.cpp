// What the module's resources hold, read as stored: texts, icons, menu, dialog templates, manifest.

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>

#include "ResourceReader.h"

namespace
{
constexpr WORD german = 1031;
constexpr WORD english = 1033;
constexpr WORD english_neutral = 9;
constexpr WORD spanish = 3082;

HMODULE Module()
{
    return GetModuleHandleW(L"instrument_ui.dll");
}

std::string Utf8(std::wstring const & text)
{
    std::string result(WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, result.data(), static_cast<int>(result.size()), nullptr, nullptr);
    result.pop_back();
    return result;
}

/// Lines of language, tab, id, tab, text; the two characters \n in a text stand for a line break.
std::map<std::pair<WORD, int>, std::string> ExpectedStrings()
{
    std::ifstream file(std::filesystem::path(TEST_DATA_DIR) / "strings.tsv", std::ios::binary);
    EXPECT_TRUE(file) << TEST_DATA_DIR;
    std::map<std::pair<WORD, int>, std::string> texts;
    for (std::string line; std::getline(file, line);)
    {
        std::size_t const first = line.find('\t');
        std::size_t const second = line.find('\t', first + 1);
        std::string text = line.substr(second + 1);
        for (std::size_t at; (at = text.find("\\n")) != std::string::npos;)
        {
            text.replace(at, 2, "\n");
        }
        int const id = std::stoi(line.substr(first + 1));
        texts[{static_cast<WORD>(std::stoi(line)), id}] = text;
    }
    return texts;
}

std::string ReadManifest()
{
    std::set<WORD> const languages = tests::ResourceLanguages(Module(), RT_MANIFEST, MAKEINTRESOURCEW(2));
    if (languages.size() != 1)
    {
        ADD_FAILURE() << "stored in " << languages.size() << " languages";
        return {};
    }
    tests::Bytes const bytes = tests::ReadResource(Module(), RT_MANIFEST, MAKEINTRESOURCEW(2), *languages.begin());
    return std::string(reinterpret_cast<char const *>(bytes.data()), bytes.size());
}

/// The activation context that the loader makes of the manifest.
class ManifestContext
{
public:
    ManifestContext()
    {
        ACTCTXW parameters = {};
        parameters.cbSize = sizeof parameters;
        parameters.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        parameters.hModule = Module();
        parameters.lpResourceName = MAKEINTRESOURCEW(2);
        m_context = CreateActCtxW(&parameters);
        m_active = m_context != INVALID_HANDLE_VALUE && ActivateActCtx(m_context, &m_cookie);
    }
    ~ManifestContext()
    {
        if (m_active)
        {
            DeactivateActCtx(0, m_cookie);
        }
        if (m_context != INVALID_HANDLE_VALUE)
        {
            ReleaseActCtx(m_context);
        }
    }
    ManifestContext(ManifestContext const &) = delete;
    ManifestContext & operator=(ManifestContext const &) = delete;

    bool IsActive() const { return m_active; }
    HANDLE Handle() const { return m_context; }

private:
    HANDLE m_context = INVALID_HANDLE_VALUE;
    ULONG_PTR m_cookie = 0;
    bool m_active = false;
};

void ExpectItem(tests::DialogItem const & item, std::wstring const & windowClass, int id, CRect const & place,
                std::wstring const & text)
{
    EXPECT_EQ(item.windowClass, windowClass);
    EXPECT_EQ(static_cast<int>(item.id), id);
    EXPECT_EQ(item.x, place.left);
    EXPECT_EQ(item.y, place.top);
    EXPECT_EQ(item.width, place.Width());
    EXPECT_EQ(item.height, place.Height());
    EXPECT_EQ(item.text, text);
    EXPECT_EQ(item.style & (WS_CHILD | WS_VISIBLE), static_cast<DWORD>(WS_CHILD | WS_VISIBLE)) << Utf8(text);
}

CRect Place(int left, int top, int width, int height)
{
    return CRect(left, top, left + width, top + height);
}

constexpr wchar_t const * button_class = L"#80";
constexpr wchar_t const * static_class = L"#82";
constexpr wchar_t const * combo_class = L"#85";
constexpr DWORD button_type_bits = 0xF;

struct LanguageDialogTexts
{
    WORD language;
    wchar_t const * title;
    wchar_t const * prompt;
    wchar_t const * note;
    wchar_t const * ok;
    wchar_t const * cancel;
};
} // namespace

TEST(ModuleStrings, AreThoseOfTheTableAndNoOthers)
{
    auto const expected = ExpectedStrings();
    ASSERT_EQ(expected.size(), 126U);
    auto const stored = tests::ReadStringTables(Module());
    for (auto const & [key, text] : expected)
    {
        auto const found = stored.find(key);
        if (found == stored.end())
        {
            ADD_FAILURE() << "missing: language " << key.first << ", id " << key.second;
            continue;
        }
        EXPECT_EQ(Utf8(found->second), text) << "language " << key.first << ", id " << key.second;
    }
    for (auto const & [key, text] : stored)
    {
        EXPECT_EQ(expected.count(key), 1U) << "not in the table: language " << key.first << ", id " << key.second;
    }
}

TEST(ModuleStrings, EnglishId14IsTheGermanText)
{
    auto const stored = tests::ReadStringTables(Module());
    ASSERT_EQ(stored.count({german, 14}), 1U);
    ASSERT_EQ(stored.count({english, 14}), 1U);
    EXPECT_EQ(stored.at({german, 14}), L"(keine Eintr\u00E4ge)");
    EXPECT_EQ(stored.at({english, 14}), stored.at({german, 14}));
}

TEST(ModuleStrings, SpanishHasNoId14)
{
    auto const stored = tests::ReadStringTables(Module());
    EXPECT_EQ(stored.count({spanish, 13}), 1U);
    EXPECT_EQ(stored.count({spanish, 14}), 0U);
}

TEST(ModuleStrings, LineBreaksAreSingleCharacters)
{
    auto const stored = tests::ReadStringTables(Module());
    EXPECT_EQ(stored.at({english, 5}), L"Time span is not valid\n(begins after end).");
    EXPECT_EQ(stored.at({spanish, 6}), L"El tiempo indicado est\u00E1 \nen el futuro. \u00BFUtilizar tiempo?");
}

TEST(ModuleIcons, AreStoredInGermanOnly)
{
    std::set<int> const ids = {121, 123, 124, 125, 126, 127, 128, 129, 131};
    EXPECT_EQ(tests::ResourceIds(Module(), RT_GROUP_ICON), ids);
    for (int const id : ids)
    {
        EXPECT_EQ(tests::ResourceLanguages(Module(), RT_GROUP_ICON, MAKEINTRESOURCEW(id)), std::set<WORD>{german})
            << id;
    }
}

TEST(ModuleIcons, HaveTheFramesOfTheTable)
{
    using Size = std::pair<int, int>;
    for (int const id : {121, 123, 124, 125, 126, 127, 128, 129, 131})
    {
        std::map<Size, std::set<int>> depths;
        std::vector<tests::IconFrame> const frames = tests::ReadIconGroup(Module(), id, german);
        for (tests::IconFrame const & frame : frames)
        {
            depths[{frame.width, frame.height}].insert(frame.bits);
        }
        EXPECT_EQ(depths.size(), 2U) << id;
        EXPECT_EQ((depths[Size{32, 32}].size()), id == 131 ? 2U : 1U) << id;
        EXPECT_EQ((depths[Size{16, 16}].size()), 2U) << id;
        EXPECT_EQ(frames.size(), id == 131 ? 4U : 3U) << id;
        EXPECT_EQ((depths[Size{32, 32}].count(32)), 1U) << id << ": the picture with alpha";
        EXPECT_EQ((depths[Size{16, 16}].count(32)), 1U) << id << ": the picture with alpha";
    }
}

TEST(ModuleIcons, PicturesAgreeWithTheirDirectory)
{
    for (int const id : tests::ResourceIds(Module(), RT_GROUP_ICON))
    {
        for (tests::IconFrame const & frame : tests::ReadIconGroup(Module(), id, german))
        {
            tests::Bytes const picture =
                tests::ReadResource(Module(), RT_ICON, MAKEINTRESOURCEW(frame.pictureId), german);
            ASSERT_GE(picture.size(), sizeof(BITMAPINFOHEADER)) << id;
            BITMAPINFOHEADER header;
            std::memcpy(&header, picture.data(), sizeof header);
            EXPECT_EQ(header.biWidth, frame.width) << id;
            EXPECT_EQ(header.biHeight, 2 * frame.height) << id << ": colours above the mask";
            EXPECT_EQ(header.biBitCount, frame.bits) << id;
        }
    }
}

TEST(ModuleIcons, EachShowsSomethingOfItsOwn)
{
    std::set<tests::Bytes> pictures;
    std::size_t count = 0;
    for (int const id : tests::ResourceIds(Module(), RT_GROUP_ICON))
    {
        for (tests::IconFrame const & frame : tests::ReadIconGroup(Module(), id, german))
        {
            if (frame.bits != 32)
            {
                continue;
            }
            tests::Bytes const picture =
                tests::ReadResource(Module(), RT_ICON, MAKEINTRESOURCEW(frame.pictureId), german);
            std::size_t const pixels = static_cast<std::size_t>(frame.width) * frame.height;
            ASSERT_GE(picture.size(), sizeof(BITMAPINFOHEADER) + 4 * pixels) << id;
            std::size_t opaque = 0;
            for (std::size_t i = 0; i < pixels; ++i)
            {
                opaque += picture[sizeof(BITMAPINFOHEADER) + 4 * i + 3] == std::byte{255};
            }
            EXPECT_GT(opaque, pixels / 16) << id;
            EXPECT_LT(opaque, pixels) << id << ": corners are transparent";
            pictures.insert(picture);
            ++count;
        }
    }
    EXPECT_EQ(count, 18U);
    EXPECT_EQ(pictures.size(), count);
}

TEST(ModuleMenu, HoldsOnePopupWithOneEntry)
{
    EXPECT_EQ(tests::ResourceIds(Module(), RT_MENU), std::set<int>{120});
    EXPECT_EQ(tests::ResourceLanguages(Module(), RT_MENU, MAKEINTRESOURCEW(120)), std::set<WORD>{german});
    HMENU const menu = LoadMenuW(Module(), MAKEINTRESOURCEW(120));
    ASSERT_NE(menu, nullptr);
    wchar_t text[64] = L"";
    EXPECT_EQ(GetMenuItemCount(menu), 1);
    GetMenuStringW(menu, 0, text, 64, MF_BYPOSITION);
    EXPECT_STREQ(text, L"[GenericPopup]");
    HMENU const popup = GetSubMenu(menu, 0);
    EXPECT_EQ(GetMenuItemCount(popup), 1);
    GetMenuStringW(popup, 0, text, 64, MF_BYPOSITION);
    EXPECT_STREQ(text, L"[GenericPopupEntry]");
    DestroyMenu(menu);
}

TEST(ModuleDialogs, AreTwo)
{
    EXPECT_EQ(tests::ResourceIds(Module(), RT_DIALOG), (std::set<int>{130, 340}));
}

TEST(ModuleDialogs, MultiselectIsOneButton)
{
    EXPECT_EQ(tests::ResourceLanguages(Module(), RT_DIALOG, MAKEINTRESOURCEW(130)), std::set<WORD>{german});
    tests::StoredDialog const dialog =
        tests::ParseDialogTemplate(tests::ReadResource(Module(), RT_DIALOG, MAKEINTRESOURCEW(130), german));
    EXPECT_EQ(dialog.style, static_cast<DWORD>(WS_POPUP | WS_THICKFRAME | WS_SYSMENU | DS_SETFONT | DS_FIXEDSYS));
    EXPECT_EQ(dialog.exStyle, static_cast<DWORD>(WS_EX_TOOLWINDOW));
    EXPECT_EQ(dialog.width, 81);
    EXPECT_EQ(dialog.height, 55);
    EXPECT_EQ(dialog.title, L"");
    EXPECT_EQ(dialog.face, L"MS Shell Dlg");
    EXPECT_EQ(dialog.pointSize, 8);
    ASSERT_EQ(dialog.items.size(), 1U);
    ExpectItem(dialog.items[0], button_class, 1016, Place(0, 0, 81, 55), L"Button1");
    EXPECT_EQ(dialog.items[0].style, static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_TABSTOP));
}

TEST(ModuleDialogs, LanguageChooserHasTheSamePlacesInBothLanguages)
{
    EXPECT_EQ(tests::ResourceLanguages(Module(), RT_DIALOG, MAKEINTRESOURCEW(340)),
              (std::set<WORD>{english_neutral, german}));
    LanguageDialogTexts const expected[] = {
        {german, L"Anzeigesprache w\u00E4hlen",
         L"W\u00E4hlen Sie die Anzeigesprache des Messprogramms f\u00FCr das aktuelle Projekt:",
         L"Hinweis: die Sprache bereits offener Fenster \u00E4ndert sich erst, wenn diese geschlossen und wieder "
         L"ge\u00F6ffnet werden.",
         L"OK", L"Abbruch"},
        {english_neutral, L"Choose Display Language", L"Choose a display language for the current measurement project:",
         L"Note: the language of already open windows will change only after they are closed and re-opened.", L"OK",
         L"Cancel"},
    };
    for (LanguageDialogTexts const & texts : expected)
    {
        tests::StoredDialog const dialog =
            tests::ParseDialogTemplate(tests::ReadResource(Module(), RT_DIALOG, MAKEINTRESOURCEW(340), texts.language));
        EXPECT_EQ(dialog.width, 149);
        EXPECT_EQ(dialog.height, 94);
        EXPECT_EQ(dialog.title, texts.title);
        EXPECT_EQ(dialog.face, L"MS Shell Dlg");
        EXPECT_EQ(dialog.pointSize, 8);
        ASSERT_EQ(dialog.items.size(), 5U);
        int const anonymous = -1;
        ExpectItem(dialog.items[0], static_class, anonymous, Place(7, 7, 135, 16), texts.prompt);
        ExpectItem(dialog.items[1], combo_class, 1044, Place(7, 25, 135, 178), L"");
        ExpectItem(dialog.items[2], static_class, anonymous, Place(7, 42, 135, 24), texts.note);
        ExpectItem(dialog.items[3], button_class, IDOK, Place(38, 73, 50, 14), texts.ok);
        ExpectItem(dialog.items[4], button_class, IDCANCEL, Place(92, 73, 50, 14), texts.cancel);
        EXPECT_EQ(dialog.items[1].style & (CBS_DROPDOWNLIST | CBS_SORT), static_cast<DWORD>(CBS_DROPDOWN))
            << "with an edit field, and not sorted";
        EXPECT_EQ(dialog.items[3].style & button_type_bits, static_cast<DWORD>(BS_DEFPUSHBUTTON));
        EXPECT_EQ(dialog.items[4].style & button_type_bits, static_cast<DWORD>(BS_PUSHBUTTON));
    }
}

TEST(ModuleDialogs, LayoutOfTheLanguageChooserIsOnlyItsVersion)
{
    EXPECT_EQ(tests::ResourceIds(Module(), L"AFX_DIALOG_LAYOUT"), std::set<int>{340});
    EXPECT_EQ(tests::ResourceLanguages(Module(), L"AFX_DIALOG_LAYOUT", MAKEINTRESOURCEW(340)),
              (std::set<WORD>{english_neutral, german}));
    for (WORD const language : {english_neutral, german})
    {
        EXPECT_EQ(tests::ReadResource(Module(), L"AFX_DIALOG_LAYOUT", MAKEINTRESOURCEW(340), language),
                  tests::Bytes(sizeof(WORD)));
    }
}

TEST(ModuleManifest, DeclaresControlsLevelAndDpi)
{
    std::string const manifest = ReadManifest();
    EXPECT_NE(manifest.find("name=\"Microsoft.Windows.Common-Controls\" version=\"6.0.0.0\""), std::string::npos);
    EXPECT_NE(manifest.find("requestedExecutionLevel level=\"asInvoker\" uiAccess=\"false\""), std::string::npos);
    EXPECT_NE(manifest.find("<dpiAware xmlns=\"http://schemas.microsoft.com/SMI/2005/WindowsSettings\">true<"),
              std::string::npos);
}

TEST(ModuleManifest, IsUnderstoodByTheLoader)
{
    ManifestContext const context;
    ASSERT_TRUE(context.IsActive()) << GetLastError();

    ACTCTX_SECTION_KEYED_DATA found = {};
    found.cbSize = sizeof found;
    EXPECT_TRUE(
        FindActCtxSectionStringW(0, nullptr, ACTIVATION_CONTEXT_SECTION_DLL_REDIRECTION, L"comctl32.dll", &found))
        << "version 6 of the common controls lies beside the system's";

    ACTIVATION_CONTEXT_RUN_LEVEL_INFORMATION level = {};
    SIZE_T written = 0;
    EXPECT_TRUE(QueryActCtxW(0, context.Handle(), nullptr, RunlevelInformationInActivationContext, &level, sizeof level,
                             &written));
    EXPECT_EQ(level.RunLevel, ACTCTX_RUN_LEVEL_AS_INVOKER);

    wchar_t value[8] = L"";
    EXPECT_TRUE(QueryActCtxSettingsW(0, context.Handle(), L"http://schemas.microsoft.com/SMI/2005/WindowsSettings",
                                     L"dpiAware", value, 8, &written));
    EXPECT_STREQ(value, L"true");
}

TEST(ModuleVersion, NamesTheFile)
{
    tests::Bytes const bytes = tests::ReadResource(Module(), RT_VERSION, MAKEINTRESOURCEW(VS_VERSION_INFO), english);
    ASSERT_FALSE(bytes.empty());
    std::wstring const text(reinterpret_cast<wchar_t const *>(bytes.data()), bytes.size() / sizeof(wchar_t));
    EXPECT_NE(text.find(L"instrument_ui.dll"), std::wstring::npos);
}
