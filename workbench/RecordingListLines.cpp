// The contents of the list's lines, a cell of its own kind for each value.

#include "RecordingList.h"

#include <algorithm>
#include <utility>

#include "colours/ControlColors.h"
#include "frame/CoreLibrary.h"
#include "logic/ReadableColours.h"
#include "logic/RecordingDetails.h"
#include "logic/TextFormat.h"
#include "logic/Texts.h"
#include "RecordingCells.h"
#include "RecordingOverview.h"
#include "StarRating.h"

using workbench::ValueText;

namespace
{

constexpr wchar_t const * reading_text = workbench::Translatable(L"reading...");
constexpr wchar_t const * unread_text = workbench::Translatable(L"not read yet");

// Places in the image list.
constexpr int image_ok = 0;
constexpr int image_damaged = 1;
constexpr int image_unreadable = 2;

constexpr COLORREF bar_colour = RGB(33, 102, 172);
constexpr COLORREF empty_bar_colour = RGB(224, 224, 224); // of the list, whatever the system's colours are
constexpr COLORREF clipped_colour = RGB(200, 48, 40);
constexpr COLORREF damaged_colour = RGB(255, 226, 160);

// A bar at 0 would show no text.
constexpr int least_bar_percent = 2;

// The width of a status image and the room left of it, on a screen of the usual resolution.
constexpr int image_room = 26;

/// Text at the right edge can come out a pixel wider than it was measured; the blank keeps its last digit whole.
std::wstring AtRightEdge(std::wstring const & text)
{
    return text + L' ';
}

} // namespace

void CRecordingList::ShowFiles(std::vector<std::filesystem::path> const & files, std::vector<Notes> const & notes)
{
    Batch const batch(*this);
    RemoveLines();
    for (std::size_t i = 0; i < files.size(); ++i)
    {
        AppendFile(files[i], notes[i]);
    }
}

void CRecordingList::RemoveLines()
{
    CancelToolTips();
    EndEditing();
    EndDrag();
    Batch const batch(*this);
    m_touched = true;
    ++m_generation;
    m_notes.clear();
    m_noted.clear();
    m_sources.clear();
    m_order.clear();
    m_wanted.clear();
    m_late = false;
    m_holds = false;
    m_heldFocus = -1;
    m_wantedTop = -1;
    m_history.Clear();
    m_places.clear();
    m_totals.Clear();
    m_reference = -1;
    m_boldLine = -1;
    m_needs = m_least;
    DeleteAllItems();
    ForgetOrder();
    Tell(changed_selection | changed_marks);
}

void CRecordingList::AppendFile(std::filesystem::path const & file, Notes const & notes)
{
    Batch const batch(*this);
    int const line = LineCount();
    m_notes.push_back(notes);
    m_places.push_back(-1);
    m_order.push_back(line);
    Source & source = m_sources.emplace_back();
    source.file = file;
    source.searched = workbench::SearchedText(file, notes.comment);
    source.shown = Passes(line);
    m_totals.Append(notes.checked);
    // Two folders that are shown together can have one each: the first one counts.
    bool const isReference = notes.reference && m_reference < 0;
    if (isReference)
    {
        m_reference = line;
    }
    if (source.shown && m_wanted.empty())
    {
        AddRow(line, -1);
    }
    else if (source.shown)
    {
        m_wanted.push_back(line);
    }
    if (isReference)
    {
        ShowReference();
    }
}

wchar_t const * CRecordingList::WaitingText(bool isBeingRead)
{
    return workbench::Text(isBeingRead ? reading_text : unread_text);
}

/// Gives a line a row, the last one for a negative place.
void CRecordingList::AddRow(int line, int row)
{
    auto & source = m_sources[static_cast<std::size_t>(line)];
    row = row < 0 ? AddItem(L"", nullptr, line + 1) : InsertItem(row, L"", nullptr, line + 1);
    if (row < 0)
    {
        return;
    }
    Touch(row);
    source.hasRow = true;
    m_places[static_cast<std::size_t>(line)] = row;
    Notes notes = NotesOf(line);
    notes.reference = line == m_reference;
    PrepareRow(row, source.file, notes, WaitingText(source.reading));
    source.isStale = false;
    source.newNotes = 0;
    if (source.analysis)
    {
        FillRow(row, source.analysis);
    }
    if (line == m_boldLine)
    {
        SetBold(row, column_name, true);
    }
    if (m_holds && (source.isHeld || line == m_heldFocus))
    {
        int const state = (source.isHeld ? LVIS_SELECTED : 0) | (line == m_heldFocus ? LVIS_FOCUSED : 0);
        SetItemState(row, static_cast<UINT>(state), static_cast<UINT>(state));
    }
}

void CRecordingList::ShowReading(int line, std::filesystem::path const & file)
{
    if (line < 0 || line >= LineCount())
    {
        return;
    }
    Batch const batch(*this);
    auto & source = m_sources[static_cast<std::size_t>(line)];
    source.analysis = nullptr;
    source.reading = true;
    {
        int const row = PlaceOf(line);
        Notes notes = NotesOf(line);
        m_totals.SetState(static_cast<std::size_t>(line), workbench::RecordingTotals::State::unread, 0);
        // A recording that could not be read may be one again.
        m_totals.SetChecked(static_cast<std::size_t>(line), notes.checked);
        if (notes.reference && m_reference < 0)
        {
            m_reference = line;
        }
        notes.reference = line == m_reference;
        if (row >= 0)
        {
            Touch(row);
            ResetRow(row);
            source.newNotes = 0;
            PrepareRow(row, file, notes, WaitingText(true));
        }
        ShowReference();
        if (row >= 0)
        {
            SetBold(row, column_name, line == m_boldLine);
        }
        Tell(changed_marks);
    }
}

void CRecordingList::Rename(int line, std::filesystem::path const & file)
{
    if (line < 0 || line >= LineCount())
    {
        return;
    }
    auto & source = m_sources[static_cast<std::size_t>(line)];
    source.file = file;
    source.searched = workbench::SearchedText(file, NotesOf(line).comment);
    if (int const row = PlaceOf(line); row >= 0)
    {
        auto const name = file.filename().wstring();
        SetItemText(row, column_name, name.c_str());
        SetItemToolTipText(row, column_name, file.c_str());
        Require(column_name, WidthOf(name));
        FitColumns();
    }
}

/// Takes the values of an earlier reading away.
void CRecordingList::ResetRow(int row)
{
    RemoveCustomDraw(row, column_overview);
    DeleteProgress(row, column_peak);
    for (int column = column_overview; column < column_count; ++column)
    {
        if (column == column_rating || column == column_comment || column == column_status)
        {
            continue;
        }
        SetItemText(row, column, L"");
        SetItemColors(row, column, ::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW),
                      XLISTCTRLDATA::no_gradient);
    }
    SetItemImage(row, column_status, -1);
}

/// Makes the cells what they are for a recording that can be read, without its values.
void CRecordingList::PrepareRow(int row, std::filesystem::path const & file, Notes const & notes,
                                wchar_t const * status)
{
    auto const name = file.filename().wstring();
    SetRowColors(row, ::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW));
    SetCheckbox(row, column_check, notes.checked ? XLC_CHECKED : XLC_UNCHECKED);
    SetItemText(row, column_name, name.c_str());
    SetHyperlink(row, column_name, true, false);
    SetItemColors(row, column_name, workbench::LinkColourOn(::GetSysColor(COLOR_WINDOW)), ::GetSysColor(COLOR_WINDOW),
                  XLISTCTRLDATA::no_gradient);
    SetItemToolTipText(row, column_name, file.c_str());
    SetRadioButton(row, column_reference, notes.reference ? XLC_RADIO_ON : XLC_RADIO_OFF);
    SetComboBoxGlobalStrings(row, column_rating, notes.rating, 0);
    SetCellKind(row, column_rating, m_stars);
    SetItemText(row, column_comment, notes.comment.c_str());
    SetEdit(row, column_comment, true);
    SetItemText(row, column_status, status);
    Require(column_name, WidthOfName(name));
}

void CRecordingList::ShowAnalysis(int line, std::shared_ptr<workbench::RecordingAnalysis const> const & analysis)
{
    if (line < 0 || line >= LineCount())
    {
        return;
    }
    Batch const batch(*this);
    auto & source = m_sources[static_cast<std::size_t>(line)];
    source.analysis = analysis;
    source.reading = false;
    if (int const row = PlaceOf(line); row >= 0)
    {
        Touch(row);
        FillRow(row, analysis);
    }
    using State = workbench::RecordingTotals::State;
    m_totals.SetState(static_cast<std::size_t>(line), analysis->problem ? State::unreadable : State::readable,
                      workbench::DurationMilliseconds(analysis->info.frames, analysis->info.sampleRate));
    if (analysis->problem && m_reference == line)
    {
        m_reference = -1;
        ShowReference();
    }
    Reconsider(line);
    Tell(changed_marks);
}

/// Shows in a row what is known of its file.
void CRecordingList::FillRow(int row, std::shared_ptr<workbench::RecordingAnalysis const> const & analysis)
{
    ShowDate(row, *analysis);
    ShowStatus(row, *analysis);
    if (analysis->problem)
    {
        ShowProblem(row, *analysis);
    }
    else
    {
        ShowValues(row, analysis);
    }
}

void CRecordingList::ShowDate(int row, workbench::RecordingAnalysis const & analysis)
{
    if (analysis.file.lastWrite)
    {
        CTime const time(*analysis.file.lastWrite);
        CString const text = UserDateTimeText(time, dtf_date_time_without_seconds);
        SetItemText(row, column_date, text);
        SetItemDatetime(row, column_date, time);
        Require(column_date, WidthOfValue(text.GetString()));
    }
}

void CRecordingList::ShowStatus(int row, workbench::RecordingAnalysis const & analysis)
{
    bool const damaged = analysis.info.IsCutOff() || analysis.invalidSamples > 0;
    std::wstring const status = analysis.StatusText();
    SetItemText(row, column_status, status.c_str());
    SetItemImage(row, column_status, analysis.problem ? image_unreadable : damaged ? image_damaged : image_ok);
    Require(column_status, WidthOfValue(status) + m_metrics->Scaled(image_room));
}

/// The values in the form that the user's region gives them.
void CRecordingList::ShowNumbers(int row, workbench::RecordingAnalysis const & analysis)
{
    workbench::RecordingInfo const & info = analysis.info;
    std::wstring const duration = AtRightEdge(ValueText(column_duration, analysis));
    std::uint64_t const milliseconds = workbench::DurationMilliseconds(info.frames, info.sampleRate);
    SetItemFloatVal(row, column_duration, static_cast<float>(milliseconds) / 1000.0F, duration.c_str());
    Require(column_duration, WidthOfValue(duration));
    SetItemText(row, column_channels, static_cast<int>(info.channels));
    // Beyond the largest int, too; a number that size is sorted by well enough as a float.
    std::wstring const rate = ValueText(column_rate, analysis);
    SetItemFloatVal(row, column_rate, static_cast<float>(info.sampleRate), rate.c_str());
    Require(column_rate, WidthOfValue(rate));

    // The bar's text is made with a whole number; to show tenths, the finished text is its format.
    std::wstring const peak = ValueText(column_peak, analysis);
    SetProgress(row, column_peak, true, peak.c_str());
    SetItemFloatVal(row, column_peak, static_cast<float>(analysis.levels.peak), peak.c_str());
    SetItemColors(row, column_peak, workbench::ReadableColour(::GetSysColor(COLOR_WINDOWTEXT), empty_bar_colour),
                  analysis.levels.peak > 0.0 ? clipped_colour : bar_colour, XLISTCTRLDATA::no_gradient);
    UpdateProgress(row, column_peak, std::max(workbench::LevelBarPercent(analysis.levels.peak), least_bar_percent), 0);

    std::wstring const rms = AtRightEdge(ValueText(column_rms, analysis));
    SetItemFloatVal(row, column_rms, static_cast<float>(analysis.levels.rms), rms.c_str());
    Require(column_rms, WidthOfValue(rms));

    for (Column const column : {column_crest, column_loudness, column_frequency, column_distortion})
    {
        std::wstring const text = AtRightEdge(ValueText(column, analysis));
        SetItemText(row, column, text.c_str());
        Require(column, WidthOfValue(text));
    }
}

void CRecordingList::ShowValues(int row, std::shared_ptr<workbench::RecordingAnalysis const> const & analysis)
{
    ShowNumbers(row, *analysis);
    MarkValues(row, *analysis);
    auto const overview = std::make_shared<CRecordingOverview>(analysis, m_metrics->Resolution());
    SetCustomDraw(row, column_overview, [this, overview](int row, int, CDC * dc, CRect const & rect) {
        DrawOverview(row, *dc, rect, *overview);
    });
}

/// Marks the values that damage of the file makes doubtful.
void CRecordingList::MarkValues(int row, workbench::RecordingAnalysis const & analysis)
{
    if (analysis.info.IsCutOff())
    {
        MarkValue(row, column_duration);
    }
    if (analysis.invalidSamples > 0)
    {
        MarkValue(row, column_rms);
    }
}

void CRecordingList::GreyOut(int row)
{
    ControlColors const colors = control_colors::Of(m_hWnd);
    SetRowColors(row, workbench::ReadableColour(colors.disabled, colors.window), colors.window);
}

void CRecordingList::MarkValue(int row, Column column)
{
    // On a dark window the wash is dark as well, so that the text is read on all of it.
    ControlColors const colors = control_colors::Of(m_hWnd);
    SetItemColors(row, column, colors.windowText, colors.window,
                  workbench::ReadableColour(damaged_colour, colors.windowText));
}

/// Leaves of the line what is known of its file, in grey. It stays one that can be chosen, as it can be renamed and
/// deleted.
void CRecordingList::ShowProblem(int row, workbench::RecordingAnalysis const & analysis)
{
    if (IsEditing() && LineAt(row) == m_editedLine)
    {
        EndEditing();
    }
    SetCheckbox(row, column_check, XLC_NONE);
    SetHyperlink(row, column_name, false, false);
    SetBold(row, column_name, false);
    SetItemProperty(row, column_name, XLP_UNDERLINE, false);
    SetRadioButton(row, column_reference, XLC_NONE);
    SetCellKind(row, column_rating, nullptr);
    SetComboBox(row, column_rating, std::map<int, wchar_t const *>(), 0, 0);
    SetItemProperty(row, column_rating, XLP_COMBO, false);
    SetItemText(row, column_rating, L"");
    SetEdit(row, column_comment, false);
    GreyOut(row);
    CString const tip = GetItemToolTipText(row, column_name) + L": " + analysis.StatusText().c_str();
    SetItemToolTipText(row, column_name, tip);
}

void CRecordingList::DrawOverview(int row, CDC & dc, CRect const & rect, CRecordingOverview & overview)
{
    COLORREF text = m_colours.windowText;
    COLORREF background = m_colours.window;
    GetDrawColors(row, column_overview, text, background);
    COLORREF const colour = m_colours.adapts ? control_colors::MarkOn(background, bar_colour, text) : bar_colour;
    overview.Draw(dc, rect, colour, background);
}

CRecordingList::Notes CRecordingList::NotesOf(int line) const
{
    if (line < 0 || line >= LineCount())
    {
        return {};
    }
    return m_notes[static_cast<std::size_t>(line)];
}
