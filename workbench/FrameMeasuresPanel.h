#pragma once

#include <afxwin.h>

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "frame/LifeWatch.h"
#include "list/table/XTableCtrl.h"
#include "logic/FrameMeasuresJob.h"
#include "logic/FrameTable.h"
#include "Panel.h"
#include "ScreenMetrics.h"

/// The analysis frames of a recording as a table, with a strip to choose among them. They are measured on a thread
/// while the table shows what there is by then; not before the panel is seen. The row of the cursor's time is selected,
/// and a row that the user selects moves the cursor.
class CFrameMeasuresPanel : public CPanel
{
public:
    /// Creates the panel. The metrics must outlive the window.
    bool CreatePanel(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics);

    /// The width in which all columns are seen.
    int WantedWidth() const;

    /// Shows a recording in place of the present one, or what is wrong with it. name: for files that it is exported to.
    void ShowRecording(std::wstring name, std::filesystem::path const & path);
    void ShowRecording(std::wstring name, workbench::OpenBytes open);
    /// Shows a text in place of a recording.
    void ShowText(std::wstring text);

    /// Selects the row of the cursor, as soon as it is measured; none where the filter keeps it out.
    void ShowCursor(std::uint64_t frame);
    /// Called with the frame of a row that the user has chosen.
    std::function<void(std::uint64_t frame)> m_onFrame;

    /// Called with a file that has been written.
    std::function<void(std::filesystem::path const & file)> m_onExported;

    /// Whether rows are still to come, or wait to be seen.
    bool IsFilling() const { return m_open != nullptr || (m_job && !m_job->GetResult()); }
    CXTableCtrl & Table() { return m_table; }
    /// What the strip says of the table.
    std::wstring StatusText() const;

    /// Gives the table a cell cursor, or takes it away.
    void EnableCellCursor(bool enable) { m_table.EnableCellCursor(enable); }

    /// Copies the selected rows, if the table has the focus; false if it has not.
    bool CopySelection();

    /// Shows what it says in the present language.
    void ShowTexts();

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    DECLARE_MESSAGE_MAP()

private:
    static constexpr UINT message_begin = WM_APP + 1;
    static constexpr UINT message_told = WM_APP + 2;
    static constexpr UINT_PTR look_timer = 1;

    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnSetFocus(CWnd * other);
    afx_msg void OnPaint();
    afx_msg void OnDestroy();
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnContextMenu(CWnd * window, CPoint point);
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    afx_msg void OnFilterChange();
    afx_msg void OnExport();
    afx_msg LRESULT OnBegin(WPARAM, LPARAM);
    afx_msg LRESULT OnTold(WPARAM, LPARAM);

    int StatusWidth();
    void Arrange();
    void ShowColumns();
    void ShowStatus();
    void Begin();
    void End();
    void Look();
    void ChooseCursorRow();
    void OnChosen();
    void Export();
    bool TranslateStripKey(MSG * message);
    workbench::FrameRaster const * Raster() const;
    void AppendColumnMenus(CMenu & menu);
    void DoWithColumn(UINT command);

    workbench::ScreenMetrics * m_metrics = nullptr;
    CXTableCtrl m_table;
    CStatic m_label;
    CComboBox m_column; ///< that the filter is for
    CEdit m_words;
    CStatic m_status;
    CButton m_export;
    std::wstring m_name;
    std::wstring m_text;                    ///< in place of a recording
    std::optional<std::wstring> m_noNumber; ///< what the filter has in place of a number
    workbench::OpenBytes m_open;            ///< of what is to be measured once it is seen
    std::shared_ptr<std::atomic<bool>> m_told = std::make_shared<std::atomic<bool>>(false); ///< and not looked at yet
    std::shared_ptr<workbench::FrameTable> m_source;
    std::unique_ptr<workbench::FrameMeasuresJob> m_job;
    std::uint64_t m_cursor = 0;
    bool m_wantsRow = false;          ///< the cursor's row is still to be selected
    bool m_stopsExport = false;       ///< by the user
    std::filesystem::path m_exported; ///< that is being written
    LifeSign m_life;
};
