// The settings below the application's registry key go to one file and come back.
#include <filesystem>

#include "Gallery.h"

using namespace registry_settings;

class CSettingsWindow : public CGalleryWindow
{
    void Fill() override
    {
        CRect room;
        GetClientRect(room);
        m_report.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE | ES_READONLY, room, this, 1);
        std::filesystem::path const folder = std::filesystem::temp_directory_path() / L"instrument gallery";
        std::filesystem::create_directories(folder);
        settings_file_names const files = settings_files(folder);

        CWinApp & app = *AfxGetApp(); // below its registry key
        app.WriteProfileInt(L"Trigger", L"Level", -12);
        app.WriteProfileString(L"Trigger", L"Channel", L"Left");
        RegistrySettingsTree tree([&app] { return app.GetAppRegistryKey(); });
        Say(L"export", export_registry_settings(tree, files));
        Say(L"the file has been written", std::filesystem::exists(files.saved));

        // An exported file counts once it has been given the plain name.
        std::filesystem::rename(files.saved, files.plain);
        app.WriteProfileInt(L"Trigger", L"Level", 0);
        Say(L"import", import_registry_settings(tree, files));
        Say(L"level is -12 again", static_cast<int>(app.GetProfileInt(L"Trigger", L"Level", 1)) == -12);
        m_report.SetWindowText(m_text);
    }
    void Say(wchar_t const * what, bool right) { m_text += CString(what) + (right ? L": yes\r\n" : L": NO\r\n"); }

    CEdit m_report;
    CString m_text;
};

CGalleryProgram<CSettingsWindow> theApp(L"Settings file", CSize(300, 80));
