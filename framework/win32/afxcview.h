#pragma once
// Views that are a list or a tree.

#include <afxcmn.h>
#include <afxwin.h>

class FRAMEWORK_API CListView : public CCtrlView
{
    DECLARE_DYNCREATE(CListView)

public:
    CListView();
    ~CListView() override;

    CListCtrl & GetListCtrl() const;
    /// The list gives up that image list, without ending it.
    void RemoveImageList(int nImageList);
    BOOL PreCreateWindow(CREATESTRUCT & cs) override;

private:
    mutable CListCtrl m_list; // speaks to the view's window, and isn't attached to it
};

class FRAMEWORK_API CTreeView : public CCtrlView
{
    DECLARE_DYNCREATE(CTreeView)

public:
    CTreeView();
    ~CTreeView() override;

    CTreeCtrl & GetTreeCtrl() const;
    BOOL PreCreateWindow(CREATESTRUCT & cs) override;

private:
    mutable CTreeCtrl m_tree; // speaks to the view's window, and isn't attached to it
};
