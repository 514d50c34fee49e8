#pragma once
// CSplitterWnd: panes side by side. Included by afxext.h.

#include <afxwin.h>

#include <vector>

#define SPLS_DYNAMIC_SPLIT 0x0001 // the user splits panes and takes them away
#define SPLS_INVERT_TRACK 0x0002

namespace framework
{
/// A row or a column of panes.
struct SplitterLine
{
    int minimum = 0; // below it the line goes away
    int ideal = 0;
    int current = 0;
};
} // namespace framework

/// A grid of panes in a frame, with bars between them that the user moves. Each pane has the identifier that
/// IdFromRowCol gives. At most 16 rows and columns; a dynamic splitter has at most two each.
class FRAMEWORK_API CSplitterWnd : public CWnd
{
    DECLARE_DYNAMIC(CSplitterWnd)

public:
    CSplitterWnd();
    ~CSplitterWnd() override;

    virtual BOOL Create(CWnd * pParentWnd, int nMaxRows, int nMaxCols, SIZE sizeMin, CCreateContext * pContext,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL | SPLS_DYNAMIC_SPLIT,
                        UINT nID = AFX_IDW_PANE_FIRST);
    virtual BOOL CreateStatic(CWnd * pParentWnd, int nRows, int nCols, DWORD dwStyle = WS_CHILD | WS_VISIBLE,
                              UINT nID = AFX_IDW_PANE_FIRST);
    virtual BOOL CreateView(int row, int col, CRuntimeClass * pViewClass, SIZE sizeInit, CCreateContext * pContext);
    virtual BOOL CreateScrollBarCtrl(DWORD dwStyle, UINT nID);

    int GetRowCount() const;
    int GetColumnCount() const;
    void GetRowInfo(int row, int & cyCur, int & cyMin) const;
    void SetRowInfo(int row, int cyIdeal, int cyMin);
    void GetColumnInfo(int col, int & cxCur, int & cxMin) const;
    void SetColumnInfo(int col, int cxIdeal, int cxMin);
    DWORD GetScrollStyle() const;
    void SetScrollStyle(DWORD dwStyle);

    /// Null for a place outside.
    CWnd * GetPane(int row, int col) const;
    BOOL IsChildPane(CWnd * pWnd, int * pRow, int * pCol);
    int IdFromRowCol(int row, int col) const;
    BOOL IsTracking();

    virtual void RecalcLayout();
    virtual void DeleteView(int row, int col);
    virtual BOOL SplitRow(int cyBefore);
    virtual BOOL SplitColumn(int cxBefore);
    virtual void DeleteRow(int rowDelete);
    virtual void DeleteColumn(int colDelete);

    virtual CWnd * GetActivePane(int * pRow = nullptr, int * pCol = nullptr);
    virtual void SetActivePane(int row, int col, CWnd * pWnd = nullptr);
    virtual BOOL CanActivateNext(BOOL bPrev = FALSE);
    virtual void ActivateNext(BOOL bPrev = FALSE);
    virtual BOOL DoKeyboardSplit();
    virtual BOOL DoScroll(CView * pViewFrom, UINT nScrollCode, BOOL bDoScroll = TRUE);
    virtual BOOL DoScrollBy(CView * pViewFrom, CSize sizeScroll, BOOL bDoScroll = TRUE);

protected:
    enum ESplitType
    {
        splitBox,
        splitBar,
        splitIntersection,
        splitBorder
    };
    virtual void OnDrawSplitter(CDC * pDC, ESplitType nType, const CRect & rect);
    virtual void OnInvertTracker(const CRect & rect);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;

    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpcs);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg BOOL OnSetCursor(CWnd * pWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnCancelMode();
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar * pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar * pScrollBar);

private:
    /// What lies at a point: nothing, a box that splits, or the bar behind a row or column, or both where they cross.
    struct Part
    {
        bool rowBox = false;
        bool columnBox = false;
        int row = -1; // the row above a bar
        int column = -1;

        bool Any() const { return rowBox || columnBox || row >= 0 || column >= 0; }
        bool OfRows() const { return rowBox || row >= 0; }
        bool OfColumns() const { return columnBox || column >= 0; }
    };

    bool CreateFrame(CWnd * pParentWnd, SIZE minimum, DWORD dwStyle, UINT nID);
    CRect InnerRect() const;
    CRect PaneArea() const;
    Part PartAt(CPoint point) const;
    static void LayOut(std::vector<framework::SplitterLine> & lines, int count, int size);
    static int SplitRest(framework::SplitterLine const & before, framework::SplitterLine const & behind, int size);
    bool Split(bool rows, int before);
    void Delete(bool rows, int line);
    void StartTracking(Part const & part, CPoint point);
    void StopTracking(bool accept);
    void MoveTracker(CPoint point);
    void InvertTrackers();
    CRect TrackerRect(bool rows) const;
    void Track(bool rows, int line, int place);
    void ScrollPanes(bool rows, UINT code, UINT position, CScrollBar & bar);
    int ScrollBarId(bool rows, int line) const;
    void PlaceScrollBars(bool rows);

    CRuntimeClass * m_dynamicViewClass;
    int m_maxRows;
    int m_maxColumns;
    int m_rows;
    int m_columns;
    bool m_hasHorizontal; // shared scroll bars
    bool m_hasVertical;
    std::vector<framework::SplitterLine> m_rowLines;
    std::vector<framework::SplitterLine> m_columnLines;
    bool m_tracking;
    Part m_tracked;
    CPoint m_tracker; // left of the bar of columns, top of the bar of rows
    CPoint m_grip;    // from there to where the mouse holds it

    DECLARE_MESSAGE_MAP()
};
