#pragma once
// What the list's sources keep in it and no host needs to see.

#include <cstddef>
#include <memory>
#include <vector>

#include "access/AccessObject.h"
#include "list/CellColors.h"
#include "list/CellPainters.h"
#include "list/ListModel.h"
#include "list/XListColumnFit.h"
#include "list/XListCtrl.h"

namespace XListCtrl
{
class CXCombo;
class CXEdit;
} // namespace XListCtrl

/// The native list as the model of its rows sees it.
class CXListCtrl::Items final : public ListItems
{
public:
    explicit Items(CXListCtrl & list) : m_list(list) {}
    void const * Identity() const override { return m_list.m_hWnd; }
    int RowCount() const override { return m_list.RowCount(); }
    int ColumnCount() const override { return m_list.m_columnCount; }
    bool ObjectAt(int row, XLISTCTRLROW *& object) const override;
    int FindObject(XLISTCTRLROW const & object) const override;
    unsigned int IdOf(int row) const override;
    int FindId(unsigned int id) const override { return static_cast<int>(m_list.MapIDToIndex(id)); }
    std::vector<XLISTCTRLROW *> ObjectsFromTop() const override { return m_list.RowsFromTop(); }
    void MarkModified() override { m_list.m_listModified = true; }
    bool HeadersFollow() const override { return m_list.m_headerAutoCheckbox; }
    int HeaderState(int col) const override { return m_list.GetHeaderCheckedState(col); }
    bool Repaints() const override { return !m_list.m_batchInsert; }
    bool SetHeaderState(int col, int state) override { return m_list.SetHeaderCheckedState(col, state); }
    void UpdateHeader() override { m_list.m_header.UpdateWindow(); }
    bool ShowText(int row, int col, wchar_t const * text) override { return m_list.ShowText(row, col, text); }
    void Repaint(int row, int col) override { m_list.UpdateSubItem(row, col); }
    void TellOfCheck(int row, int col) override;
    void Hang(int row, XLISTCTRLROW const * object) override { m_list.SetNativeParam(row, object); }
    bool Delete(int row) override;
    bool DeleteAll() override;

private:
    CXListCtrl & m_list;
};

struct CXListCtrl::RowState
{
    explicit RowState(CXListCtrl & list) : items(list), model(items) {}

    Items items;
    ListModel model;
    /// The next change is an operation of this class, which keeps the books itself.
    bool ownChange = false;
    /// Likewise of columns.
    bool ownColumnChange = false;
    /// Some cell has had a kind of the host's own: only then rows are asked for them.
    bool hadKinds = false;
};

/// What those who ask for accessible objects get, and what they are told.
struct CXListCtrl::AccessState
{
    /// Shared with the objects, who lose the list through it. Made when first asked for.
    std::shared_ptr<AccessTarget> target;
    bool redrawOff = false;
    /// Something has changed that is told once the batch is over.
    bool changed = false;
};

/// What AutosizeColumnWidth works with.
struct CXListCtrl::FitState
{
    std::vector<int> widths;
    CColumnFitMemory memory;
};

struct CXListCtrl::SortState
{
    int column = -1;
    bool ascending = true;
    /// Stand in for missing row objects during a sort. Kept, since a parent may refuse that an item loses its own.
    std::vector<std::unique_ptr<XLISTCTRLROW>> standIns;
    std::size_t standInsInUse = 0;
};

struct CXListCtrl::DragState
{
    bool enabled = false;
    int source = -1;
    int target = -1;
    /// A name of the system's.
    LPCWSTR cursor = IDC_ARROW;
    CImageList image;
};

/// Not owned by anything else: EndEdit and EndCombo end the objects with their windows.
struct CXListCtrl::EditorState
{
    /// The cell's text when an editor opened.
    CString savedText;
    XListCtrl::CXEdit * edit = nullptr;
    int editRow = 0;
    int editCol = 0;
    XListCtrl::CXCombo * combo = nullptr;
    int comboRow = 0;
    int comboCol = 0;
    CRect comboRect;
    /// How many combos were opened so far.
    unsigned int comboOpenings = 0;
    /// The list keeps its window from painting until a timer ends that.
    bool updateLocked = false;
};

struct CXListCtrl::PaintState
{
    /// Takes the colours of the set that the window is painted in now.
    void FollowSet(HWND window);

    ControlColors palette;
    /// Of the standard set: what new cells get, in any set.
    ControlColors standard;
    CellDefaults defaults;
    /// The paint under way; null outside of one. Not owned.
    PaintScope * scope = nullptr;
};

template <class Visit> void CXListCtrl::VisitRows(Visit && visit) const
{
    m_rows->model.VisitRows(visit);
}
