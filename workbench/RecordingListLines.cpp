// The contents of the list's lines, a cell of its own kind for each value.

#include "RecordingList.h"

#include <algorithm>

#include "RecordingOverview.h"
#include "frame/CoreLibrary.h"
#include "logic/RecordingDetails.h"
#include "logic/TextFormat.h"
#include "logic/Texts.h"

namespace
{

constexpr auto c_readingText = workbench::Translatable(L"reading...");

// Places in the image list.
constexpr int c_imageOk = 0;
constexpr int c_imageDamaged = 1;
constexpr int c_imageUnreadable = 2;

constexpr COLORREF c_barColour = RGB(33, 102, 172);
constexpr COLORREF c_clippedColour = RGB(200, 48, 40);
constexpr COLORREF c_damagedColour = RGB(255, 226, 160);

// A bar at 0 would show no text.
constexpr int c_leastBarPercent = 2;

// The width of a status image and the room left of it.
constexpr int c_imageRoom = 26;

/// Text at the right edge can come out a pixel wider than it was measured; the blank keeps its last digit whole.
std::wstring AtRightEdge(std::wstring text)
{
    return text + L' ';
}

} // namespace

void CRecordingList::ShowFiles(std::vector<std::filesystem::path> const & files, std::vector<Notes> const & notes)
{
    SetRedraw(FALSE);
    SetBatchInsertMode(true);
    DeleteAllItems();
    m_needs = m_least;
    for (std::size_t i = 0; i < files.size(); ++i)
    {
        auto const line = AddItem(L"", nullptr, static_cast<long long>(i));
        if (line >= 0)
        {
            PrepareLine(line, files[i], notes[i]);
        }
    }
    ShowHeaderCheck();
    ShowReference();
    SetRedraw(TRUE);
    SetBatchInsertMode(false);
    FitColumns();
}

void CRecordingList::ShowReading(int line, std::filesystem::path const & file)
{
    PrepareLine(line, file, NotesOf(line));
    ShowReference();
}

/// Makes the cells what they are for a recording that can be read, without its values.
void CRecordingList::PrepareLine(int line, std::filesystem::path const & file, Notes const & notes)
{
    auto const name = file.filename().wstring();
    SetEnabled(line, true);
    RemoveCustomDraw(line, column_overview);
    DeleteProgress(line, column_peak);
    SetRowColors(line, ::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW));
    for (int column = column_overview; column < column_rating; ++column)
    {
        SetItemText(line, column, L"");
        SetItemColors(line, column, ::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW),
                      XLISTCTRLDATA::no_gradient);
    }

    SetCheckbox(line, column_check, notes.checked ? XLC_CHECKED : XLC_UNCHECKED);
    SetItemText(line, column_name, name.c_str());
    SetHyperlink(line, column_name, true, true);
    SetItemToolTipText(line, column_name, file.c_str());
    SetRadioButton(line, column_reference, notes.reference ? XLC_RADIO_ON : XLC_RADIO_OFF);
    SetComboBoxGlobalStrings(line, column_rating, notes.rating, 0);
    SetItemText(line, column_comment, notes.comment.c_str());
    SetEdit(line, column_comment, true);
    SetItemText(line, column_status, workbench::Text(c_readingText));
    SetItemImage(line, column_status, -1);
    Require(column_name, WidthOf(name));
}

void CRecordingList::ShowAnalysis(int line, std::shared_ptr<workbench::RecordingAnalysis const> const & analysis)
{
    if (line < 0 || line >= GetItemCount())
    {
        return;
    }
    if (analysis->file.lastWrite)
    {
        CTime const time(*analysis->file.lastWrite);
        auto const text = UserDateTimeText(time, dtf_date_time_without_seconds);
        SetItemText(line, column_date, text);
        SetItemDatetime(line, column_date, time);
        Require(column_date, WidthOf(text.GetString()));
    }
    ShowStatus(line, *analysis);
    if (analysis->problem)
    {
        ShowProblem(line, *analysis);
    }
    else
    {
        ShowValues(line, analysis);
    }
    FitColumns();
}

void CRecordingList::ShowStatus(int line, workbench::RecordingAnalysis const & analysis)
{
    auto const damaged = analysis.info.IsCutOff() || analysis.invalidSamples > 0;
    auto const status = analysis.StatusText();
    SetItemText(line, column_status, status.c_str());
    SetItemImage(line, column_status, analysis.problem ? c_imageUnreadable : damaged ? c_imageDamaged : c_imageOk);
    Require(column_status, WidthOf(status) + c_imageRoom);
}

void CRecordingList::ShowValues(int line, std::shared_ptr<workbench::RecordingAnalysis const> const & analysis)
{
    auto const & info = analysis->info;
    auto const duration = AtRightEdge(workbench::FormatDuration(info.frames, info.sampleRate));
    auto const milliseconds = workbench::DurationMilliseconds(info.frames, info.sampleRate);
    SetItemFloatVal(line, column_duration, static_cast<float>(milliseconds) / 1000.0F, duration.c_str());
    Require(column_duration, WidthOf(duration));
    SetItemText(line, column_channels, static_cast<int>(info.channels));
    SetItemText(line, column_rate, static_cast<int>(info.sampleRate));
    Require(column_rate, WidthOf(std::to_wstring(info.sampleRate)));

    // The bar's text is made with a whole number; to show tenths, the finished text is its format.
    auto const peak = workbench::FormatLevel(analysis->levels.peak);
    SetProgress(line, column_peak, true, peak.c_str());
    SetItemFloatVal(line, column_peak, static_cast<float>(analysis->levels.peak), peak.c_str());
    SetItemColors(line, column_peak, ::GetSysColor(COLOR_WINDOWTEXT),
                  analysis->levels.peak > 0.0 ? c_clippedColour : c_barColour, XLISTCTRLDATA::no_gradient);
    UpdateProgress(line, column_peak, std::max(workbench::LevelBarPercent(analysis->levels.peak), c_leastBarPercent),
                   0);

    auto const rms = AtRightEdge(workbench::FormatLevel(analysis->levels.rms));
    SetItemFloatVal(line, column_rms, static_cast<float>(analysis->levels.rms), rms.c_str());
    Require(column_rms, WidthOf(rms));

    // The value that the damage makes doubtful is marked.
    if (info.IsCutOff())
    {
        MarkValue(line, column_duration);
    }
    if (analysis->invalidSamples > 0)
    {
        MarkValue(line, column_rms);
    }

    auto const overview = std::make_shared<CRecordingOverview>(analysis);
    SetCustomDraw(line, column_overview, [this, overview](int row, int, CDC * dc, CRect const & rect) {
        DrawOverview(row, *dc, rect, *overview);
    });
}

void CRecordingList::MarkValue(int line, Column column)
{
    SetItemColors(line, column, ::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW), c_damagedColour);
}

/// Leaves of the line what is known of its file, and makes it one that does not react.
void CRecordingList::ShowProblem(int line, workbench::RecordingAnalysis const & analysis)
{
    SetCheckbox(line, column_check, XLC_NONE);
    SetHyperlink(line, column_name, false, true);
    SetBold(line, column_name, false);
    SetItemProperty(line, column_name, XLP_UNDERLINE, false);
    SetRadioButton(line, column_reference, XLC_NONE);
    SetComboBox(line, column_rating, std::map<int, wchar_t const *>(), 0, 0);
    SetItemText(line, column_rating, L"");
    SetEdit(line, column_comment, false);
    SetEnabled(line, false);
    auto const tip = GetItemToolTipText(line, column_name) + L": " + analysis.StatusText().c_str();
    SetItemToolTipText(line, column_name, tip);
    ShowHeaderCheck();
}

void CRecordingList::DrawOverview(int line, CDC & dc, CRect const & rect, CRecordingOverview & overview)
{
    auto background = ::GetSysColor(COLOR_WINDOW);
    auto wave = c_barColour;
    if (GetItemState(line, LVIS_SELECTED) != 0)
    {
        auto const focused = GetFocus() == this;
        background = ::GetSysColor(focused ? COLOR_HIGHLIGHT : COLOR_BTNFACE);
        wave = focused ? ::GetSysColor(COLOR_HIGHLIGHTTEXT) : wave;
    }
    overview.Draw(dc, rect, wave, background);
}

CRecordingList::Notes CRecordingList::NotesOf(int line)
{
    Notes notes;
    notes.checked = IsChecked(line);
    notes.reference = GetItemRadioOn(line, column_reference);
    notes.rating = std::max(GetComboCurSel(line, column_rating), 0);
    notes.comment = GetItemText(line, column_comment).GetString();
    return notes;
}
