#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <list>

#include "controls/XTreeItems.h"
#include "frame/Export.h"
#include "frame/LifeWatch.h"

/// A tree control with a record on every item: type, id, key (clavis), pointer and sort key. Items are found by these
/// values, inserted in an order by sort key, and the records of deleted items are used again. For the user-interface
/// thread alone.
///
/// Keys are arrays of eight integers; the operations named Clavis copy the first six. Operations on a null item, or on
/// one without a record, do nothing and give null, -1 or false.
class INSTRUMENT_UI_API CXTreeCtrl : public CTreeCtrl
{
    DECLARE_DYNAMIC(CXTreeCtrl)

public:
    /// A record stays readable after its item has gone; only the control's destructor frees it.
    using ItemData = XTreeItemData;

    CXTreeCtrl();
    CXTreeCtrl(CXTreeCtrl const &) = delete;
    CXTreeCtrl & operator=(CXTreeCtrl const &) = delete;
    /// Ends the window, too.
    ~CXTreeCtrl() override;

    /// A null parent is the top level. sortKey -1: at insertAfter (TVI_FIRST, TVI_LAST, TVI_SORT or an item);
    /// -65533, the value of TVI_SORT: sorted by text; any other: by sort keys, ahead of the first sibling with a
    /// greater one, whatever insertAfter says. At the top level the place is looked for among the children of the first
    /// top-level item, as hosts expect: all but TVI_FIRST and TVI_LAST is then the platform's matter. Null if the item
    /// could not be inserted, or the host has deleted it in the meantime. A null text counts as an empty one.
    HTREEITEM InsertTreeItem(wchar_t const * text, HTREEITEM parent, HTREEITEM insertAfter, int sortKey);
    HTREEITEM InsertTreeItem(wchar_t const * text, int image, int selectedImage, HTREEITEM parent,
                             HTREEITEM insertAfter, int sortKey);
    HTREEITEM InsertTreeItem(wchar_t const * text, int image, int selectedImage, HTREEITEM parent, int type, int id,
                             HTREEITEM insertAfter, int sortKey);

    // Records.
    /// The item's record; null without one.
    ItemData * GetItemData(HTREEITEM item);
    ItemData const * GetItemData(HTREEITEM item) const;
    /// Null if nothing is selected.
    ItemData * GetSelectedItemData();
    /// The record's type; -1 without a record.
    int GetItemType(HTREEITEM item) const;
    /// The record's id; -1 without a record.
    int GetItemId(HTREEITEM item) const;
    /// The record's own eight integers.
    int * GetItemClavis(HTREEITEM item);
    /// The same, and the record's type and id.
    int * GetItemClavis(HTREEITEM item, int & type, int & id);
    /// The record's pointer, which is not owned.
    void * GetItemDataPtr(HTREEITEM item) const;
    /// Sets the record's pointer, which is not owned.
    void SetItemDataPtr(HTREEITEM item, void * ptr);
    /// With a key its six integers are copied and the last two become -1; null leaves the key.
    void SetItemData(HTREEITEM item, int type, int id, int const * clavis);
    /// Six integers from the key, which must not be null, and the last two.
    void SetItemData(HTREEITEM item, int type, int id, int const * clavis, int clavis6, int clavis7);
    /// All eight integers of the key, which must not be null.
    void SetItemData8(HTREEITEM item, int type, int id, int const * clavis);
    /// Six integers; the last two stay.
    void SetItemClavis(HTREEITEM item, int const * clavis);
    /// All eight integers of the key.
    void SetItemClavis8(HTREEITEM item, int const * clavis);

    // Search. Keys are read as eight integers. exact: all must be equal, -1 being a value like any other, and only a
    // null key fits all; otherwise -1 fits all, in each place of the key too. A search ends without a hit if the host
    // deletes what it stands on.
    /// The label must equal the text as well, if there is one.
    bool ItemDataMatch(HTREEITEM item, int type, int id, int const * clavis, wchar_t const * text, bool exact) const;
    /// ItemDataMatch where -1 fits all, without a text.
    bool ItemDataMatchBest(HTREEITEM item, int type, int id, int const * clavis) const;
    /// ItemDataMatch where all must be equal, without a text.
    bool ItemDataMatchExact(HTREEITEM item, int type, int id, int const * clavis) const;
    /// The first hit at start, its later siblings and below them, each item before its children. TVI_ROOT: the first
    /// item of the top level.
    HTREEITEM FindItem(int type, int id, int const * clavis, HTREEITEM start, bool exact);
    /// The same, where the label must equal the text as well, if there is one.
    HTREEITEM FindItem(int type, int id, int const * clavis, wchar_t const * text, HTREEITEM start, bool exact);
    /// The first hit among the parent's children alone. TVI_ROOT stands for the first item of the top level, which
    /// itself is not looked at, as hosts expect.
    HTREEITEM FindChildItem(int type, int id, int const * clavis, wchar_t const * text, HTREEITEM parent, bool exact);
    /// Appends the hits at start and below it, not at its siblings, as hosts expect, and gives their number. TVI_ROOT:
    /// the first item of the top level.
    unsigned int FindAllItems(std::list<HTREEITEM> & result, int type, int id, int const * clavis, HTREEITEM start,
                              bool exact);
    /// Appends start and all below it, and gives their number.
    unsigned int CollectAllItems(std::list<HTREEITEM> & result, HTREEITEM start);

    // Structure.
    /// With all below it. Each record is looked for among all in use.
    void DeleteTreeItem(HTREEITEM item);
    /// All below it; the item itself stays.
    void DeleteAllSubItems(HTREEITEM item);
    /// All at once, in little time.
    void ResetContent();
    /// Opens the first item of the top level so many levels deep and closes what lies deeper; -1 opens all. The other
    /// items of the top level stay as they are, as hosts expect.
    void ExpandTree(int depth);

    // Which classes of keys pass the tree on their way to the window procedure without being translated, by bits: 1 F2
    // to F12, 2 digits, 4 letters, 8 control keys, 16 arrows and their kin, 32 space; 255 all. 64 is no class: a double
    // click is reported only.
    /// Replaces all bits, 64 included.
    void DontAbsorbKeys(unsigned int flags);
    /// All classes pass.
    void DontAbsorbAnyKeys();
    /// Function keys, digits, letters and arrows pass.
    void DontAbsorbNormalKeys();
    /// Function keys and arrows pass, with space that as well.
    void DontAbsorbControlKeys(bool space);
    /// A double click is reported, but opens and closes nothing.
    void DontHandleDoubleclick();

    /// The dots an inch that it is shown with, 96 at first: the indent of the levels follows, and the height of the
    /// items once the host has set it, until it sets either anew. Font and images stay the host's. FALSE, and nothing
    /// else, below 48 and above 960.
    BOOL SetDpi(UINT dpi);
    /// See SetDpi.
    UINT GetDpi() const { return m_dpi; }
    /// Whether it takes its window's resolution, at once and whenever that changes. Off at first.
    void FollowDpi(BOOL follow);

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    // The base's, which know no records.
    /// The base's, which knows no records.
    int DeleteAllItems();
    /// The base's, which knows no records.
    int DeleteItem(HTREEITEM item);
    /// The base's, which knows no records.
    HTREEITEM InsertItem(wchar_t const * text, HTREEITEM parent, HTREEITEM insertAfter);
    HTREEITEM InsertItem(wchar_t const * text, int image, int selectedImage, HTREEITEM parent, HTREEITEM insertAfter);

    /// A record from the stock, or a new one, with all defaults but the sort key, which the caller sets.
    ItemData * NeuesItemData();
    /// Puts all records into the stock, as they are.
    void AllesInDenVorrat();
    /// An insertion position by sort key: TVI_FIRST, TVI_LAST or an item.
    HTREEITEM FindSortPosition(HTREEITEM parent, int sortKey);
    /// Opens item and all below it down to depth, where item is at level; closes what lies deeper.
    void ExpandTreeR(HTREEITEM item, int level, int depth);
    /// The first hit at item and below it.
    HTREEITEM FindItemRecursion(HTREEITEM item, int type, int id, int const * clavis, wchar_t const * text, bool exact);

    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    /// Sends WM_XTREECTRL_DBLCLK to the parent.
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    /// Records that are attached to items.
    std::list<ItemData *> m_itemsInUse;
    std::list<ItemData *> m_itemStock;
    unsigned int m_keyFlags;

private:
    class Watch;
    class Items;
    class ItemWalk;
    class Deletion;
    class Insertion;
    class PendingRecord;

    LRESULT Native(UINT message, WPARAM wParam, LPARAM lParam) const;
    HTREEITEM Next(HTREEITEM item, UINT relation) const;
    HTREEITEM StartOf(HTREEITEM start) const;
    bool IsSameOrBelow(HTREEITEM item, HTREEITEM top) const;
    void NoteDeletion(HTREEITEM item);
    HTREEITEM Insert(TVINSERTSTRUCTW & insert, HTREEITEM parent, int sortKey, int type, int id);
    void DeleteBelow(HTREEITEM top, bool topToo);
    /// False if the control is gone.
    bool DeleteOne(HTREEITEM item, ItemData * record);
    HTREEITEM FindFrom(HTREEITEM start, bool withLaterSiblings, int type, int id, int const * clavis,
                       wchar_t const * text, bool exact);

    LifeSign m_life;
    /// What is being held over calls that can run the host's code, innermost first.
    mutable Watch * m_watches = nullptr;
    PendingRecord * m_pending = nullptr;

    /// A length in pixels that somebody has given, and the resolution of that time; 0 for nobody.
    struct GivenLength
    {
        int pixels = 0;
        UINT dpi = 0;
    };
    /// Of a window that has just come.
    void TakeLengths();
    void ScaleLengths();

    UINT m_dpi = 96;
    bool m_followsDpi = false;
    bool m_subclassing = false;
    GivenLength m_indent;
    GivenLength m_itemHeight;
};
