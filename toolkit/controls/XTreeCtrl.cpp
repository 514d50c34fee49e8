#include "controls/XTreeCtrl.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

#include "frame/RegisteredMessages.h"
#include "frame/WindowAlive.h"
#include "layout/WindowDpi.h"

namespace
{
constexpr int no_sort_key = -1;
/// The value of TVI_SORT.
constexpr int sort_by_text = -65533;

constexpr unsigned int only_report_double_click = 64;
constexpr unsigned int any_keys = 255;
constexpr unsigned int normal_keys = 0x17;
constexpr unsigned int control_keys = 0x11;
constexpr unsigned int control_keys_and_space = 0x31;

wchar_t * TextOf(wchar_t const * text)
{
    return const_cast<wchar_t *>(text != nullptr ? text : L"");
}

TVINSERTSTRUCTW WithImages(wchar_t const * text, int image, int selectedImage)
{
    TVINSERTSTRUCTW insert{};
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = TextOf(text);
    insert.item.iImage = image;
    insert.item.iSelectedImage = selectedImage;
    return insert;
}

void CopyClavis(int const * from, int count, XTreeItemData & to)
{
    std::copy_n(from, count, to.clavis);
}
} // namespace

// --- What is held over calls that can run the host's code ---

/// Hears of items before they are deleted, as long as the control is there. Lives on the stack alone.
class CXTreeCtrl::Watch
{
public:
    explicit Watch(CXTreeCtrl const & tree) : m_tree(tree), m_outer(tree.m_watches), m_life(tree.m_life)
    {
        tree.m_watches = this;
    }
    Watch(Watch const &) = delete;
    Watch & operator=(Watch const &) = delete;
    virtual ~Watch()
    {
        if (IsThere())
            m_tree.m_watches = m_outer;
    }

    bool IsThere() const { return !m_life.Over(); }
    Watch * Outer() const { return m_outer; }
    /// The item and all below it are about to go; TVI_ROOT: all items.
    virtual void Deleting(HTREEITEM item) = 0;

protected:
    CXTreeCtrl const & m_tree;

private:
    Watch * m_outer;
    LifeWatch m_life;
};

/// What the logic sees of the tree. None of its questions runs the host's code.
class CXTreeCtrl::Items
{
public:
    using Item = HTREEITEM;
    explicit Items(CXTreeCtrl const & tree) : m_tree(tree) {}

    HTREEITEM First(HTREEITEM item) const { return m_tree.Next(item, TVGN_CHILD); }
    HTREEITEM Next(HTREEITEM item) const { return m_tree.Next(item, TVGN_NEXT); }
    ItemData const * Record(HTREEITEM item) const { return m_tree.GetItemData(item); }

private:
    CXTreeCtrl const & m_tree;
};

/// Goes through items while the host may delete some: it ends if it stands on one of them or below.
class CXTreeCtrl::ItemWalk : public Watch
{
public:
    ItemWalk(CXTreeCtrl const & tree, HTREEITEM start, bool withLaterSiblings)
        : Watch(tree),
          m_items(tree),
          m_walk(m_items, start, withLaterSiblings)
    {
    }

    HTREEITEM Current() const { return m_walk.Current(); }
    int Level() const { return m_walk.Level(); }
    /// The control must be there.
    void Advance() { m_walk.Advance(); }
    void Deleting(HTREEITEM item) override
    {
        std::vector<HTREEITEM> const & path = m_walk.Path();
        if (path.empty())
            return;
        if (std::find(path.begin(), path.end(), item) != path.end() || m_tree.IsSameOrBelow(path.front(), item))
            m_walk.End();
    }

private:
    Items m_items;
    xtree::Walk<Items> m_walk;
};

/// The items on the way from the top of a deletion down to the one that is deleted next, each with the child to visit
/// next.
class CXTreeCtrl::Deletion : public Watch
{
public:
    struct Step
    {
        HTREEITEM item;
        HTREEITEM child;
    };

    explicit Deletion(CXTreeCtrl const & tree) : Watch(tree) {}

    void Enter(HTREEITEM item) { steps.push_back({item, m_tree.Next(item, TVGN_CHILD)}); }
    void Deleting(HTREEITEM item) override
    {
        if (steps.empty())
            return;
        auto const gone =
            std::find_if(steps.begin(), steps.end(), [item](Step const & step) { return step.item == item; });
        steps.erase(gone, steps.end());
        if (!steps.empty() && m_tree.IsSameOrBelow(steps.front().item, item))
            steps.clear();
        for (Step & step : steps)
        {
            if (step.child == item)
                step.child = m_tree.Next(item, TVGN_NEXT);
        }
    }

    std::vector<Step> steps;
};

/// An item from the moment on when the native tree has it.
class CXTreeCtrl::Insertion : public Watch
{
public:
    Insertion(CXTreeCtrl const & tree, TVINSERTSTRUCTW const & description) : Watch(tree), m_description(&description)
    {
    }

    void Inserted(LPARAM description, HTREEITEM result)
    {
        if (description == reinterpret_cast<LPARAM>(m_description))
            item = result;
    }
    void Deleting(HTREEITEM gone) override
    {
        if (item != nullptr && m_tree.IsSameOrBelow(item, gone))
            item = nullptr;
    }

    HTREEITEM item = nullptr;

private:
    TVINSERTSTRUCTW const * m_description;
};

/// A record that is to go to the stock later; null once somebody else has put it there.
class CXTreeCtrl::PendingRecord
{
public:
    PendingRecord(CXTreeCtrl & tree, ItemData * theRecord)
        : record(theRecord),
          m_tree(tree),
          m_outer(tree.m_pending),
          m_life(tree.m_life)
    {
        tree.m_pending = this;
    }
    PendingRecord(PendingRecord const &) = delete;
    PendingRecord & operator=(PendingRecord const &) = delete;
    ~PendingRecord()
    {
        if (!m_life.Over())
            m_tree.m_pending = m_outer;
    }

    void PutIntoStock()
    {
        if (record == nullptr)
            return;
        ItemData const * const returned = record;
        xtree::ReturnRecord(m_tree.m_itemsInUse, m_tree.m_itemStock, returned);
        for (PendingRecord * each = m_tree.m_pending; each != nullptr; each = each->m_outer)
        {
            if (each->record == returned)
                each->record = nullptr;
        }
    }
    PendingRecord * Outer() const { return m_outer; }

    ItemData * record;

private:
    CXTreeCtrl & m_tree;
    PendingRecord * m_outer;
    LifeWatch m_life;
};

// --- The control ---

IMPLEMENT_DYNAMIC(CXTreeCtrl, CTreeCtrl)

BEGIN_MESSAGE_MAP(CXTreeCtrl, CTreeCtrl)
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

CXTreeCtrl::CXTreeCtrl() : m_keyFlags(0) {}

CXTreeCtrl::~CXTreeCtrl()
{
    // While there are records: the parent hears of the items that go.
    if (m_hWnd != nullptr)
        DestroyWindow();
    AllesInDenVorrat();
    xtree::FreeRecords(m_itemStock);
}

LRESULT CXTreeCtrl::Native(UINT message, WPARAM wParam, LPARAM lParam) const
{
    if (m_hWnd == nullptr)
        return 0;
    // As long as the native window procedure is the window's own, nobody else has it.
    if (m_subclassing)
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    return const_cast<CXTreeCtrl *>(this)->CTreeCtrl::DefWindowProc(message, wParam, lParam);
}

HTREEITEM CXTreeCtrl::Next(HTREEITEM item, UINT relation) const
{
    return reinterpret_cast<HTREEITEM>(Native(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM CXTreeCtrl::StartOf(HTREEITEM start) const
{
    return start == TVI_ROOT ? Next(nullptr, TVGN_ROOT) : start;
}

bool CXTreeCtrl::IsSameOrBelow(HTREEITEM item, HTREEITEM top) const
{
    if (top == nullptr || top == TVI_ROOT)
        return true;
    while (item != nullptr && item != top)
        item = Next(item, TVGN_PARENT);
    return item != nullptr;
}

void CXTreeCtrl::NoteDeletion(HTREEITEM item)
{
    for (Watch * watch = m_watches; watch != nullptr; watch = watch->Outer())
        watch->Deleting(item);
}

LRESULT CXTreeCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == TVM_DELETEITEM)
        NoteDeletion(reinterpret_cast<HTREEITEM>(lParam));
    else if (message == WM_DESTROY)
        NoteDeletion(TVI_ROOT);
    LifeWatch const life(m_life);
    LRESULT const result = CTreeCtrl::DefWindowProc(message, wParam, lParam);
    if (life.Over())
        return result;
    switch (message)
    {
    case WM_CREATE:
        TakeLengths();
        break;
    case TVM_SETINDENT:
        m_indent = {static_cast<int>(Native(TVM_GETINDENT, 0, 0)), m_dpi};
        break;
    case TVM_SETITEMHEIGHT:
        // -1: by the font again.
        m_itemHeight = static_cast<int>(wParam) > 0 ? GivenLength{static_cast<int>(wParam), m_dpi} : GivenLength{};
        break;
    default:
        window_dpi::Heed(*this, m_followsDpi, message);
        break;
    }
    if (message != TVM_INSERTITEMW || life.Over())
        return result;
    for (Watch * watch = m_watches; watch != nullptr; watch = watch->Outer())
    {
        if (auto * const insertion = dynamic_cast<Insertion *>(watch))
            insertion->Inserted(lParam, reinterpret_cast<HTREEITEM>(result));
    }
    return result;
}

// --- Resolution ---

void CXTreeCtrl::PreSubclassWindow()
{
    LifeWatch const life(m_life);
    CTreeCtrl::PreSubclassWindow();
    if (life.Over())
        return;
    m_subclassing = true;
    TakeLengths();
    if (!life.Over())
        m_subclassing = false;
}

void CXTreeCtrl::TakeLengths()
{
    m_itemHeight = {};
    m_indent = {static_cast<int>(Native(TVM_GETINDENT, 0, 0)), resolution::usual};
    // One that is being created is no tree yet.
    if (m_indent.pixels == 0)
        return;
    if (m_followsDpi)
        m_dpi = window_dpi::Of(m_hWnd);
    if (m_dpi != resolution::usual)
        ScaleLengths();
}

// The host may hear of scroll bars that come or go.
void CXTreeCtrl::ScaleLengths()
{
    auto const scaled = [this](GivenLength const & length) {
        return static_cast<WPARAM>(resolution::Scaled(length.pixels, m_dpi, length.dpi));
    };
    LifeWatch const life(m_life);
    Native(TVM_SETINDENT, scaled(m_indent), 0);
    if (!life.Over() && m_itemHeight.dpi != 0)
        Native(TVM_SETITEMHEIGHT, scaled(m_itemHeight), 0);
}

BOOL CXTreeCtrl::SetDpi(UINT dpi)
{
    if (!resolution::IsServed(dpi))
        return FALSE;
    if (dpi == m_dpi)
        return TRUE;
    m_dpi = dpi;
    if (m_hWnd != nullptr && m_indent.pixels != 0)
        ScaleLengths();
    return TRUE;
}

void CXTreeCtrl::FollowDpi(BOOL follow)
{
    window_dpi::Follow(*this, m_followsDpi, follow);
}

// --- Insertion ---

HTREEITEM CXTreeCtrl::Insert(TVINSERTSTRUCTW & insert, HTREEITEM parent, int sortKey, int type, int id)
{
    if (m_hWnd == nullptr)
        return nullptr;
    if (sortKey == sort_by_text)
        insert.hInsertAfter = TVI_SORT;
    else if (sortKey != no_sort_key)
        insert.hInsertAfter = FindSortPosition(parent, sortKey);

    Insertion insertion(*this, insert);
    CTreeCtrl::InsertItem(&insert);
    if (!insertion.IsThere() || insertion.item == nullptr)
        return nullptr;
    ItemData * const record = NeuesItemData();
    record->sortKey = sortKey;
    record->type = type;
    record->id = id;
    PendingRecord pending(*this, record);
    SetItem(insertion.item, TVIF_PARAM, nullptr, 0, 0, 0, 0, reinterpret_cast<LPARAM>(record));
    if (!insertion.IsThere())
        return nullptr;
    if (insertion.item == nullptr)
        pending.PutIntoStock();
    return insertion.item;
}

HTREEITEM CXTreeCtrl::InsertTreeItem(wchar_t const * text, HTREEITEM parent, HTREEITEM insertAfter, int sortKey)
{
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent != nullptr ? parent : TVI_ROOT;
    insert.hInsertAfter = insertAfter;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = TextOf(text);
    return Insert(insert, parent, sortKey, -1, -1);
}

HTREEITEM CXTreeCtrl::InsertTreeItem(wchar_t const * text, int image, int selectedImage, HTREEITEM parent,
                                     HTREEITEM insertAfter, int sortKey)
{
    TVINSERTSTRUCTW insert = WithImages(text, image, selectedImage);
    insert.hParent = parent != nullptr ? parent : TVI_ROOT;
    insert.hInsertAfter = insertAfter;
    return Insert(insert, parent, sortKey, -1, -1);
}

HTREEITEM CXTreeCtrl::InsertTreeItem(wchar_t const * text, int image, int selectedImage, HTREEITEM parent, int type,
                                     int id, HTREEITEM insertAfter, int sortKey)
{
    TVINSERTSTRUCTW insert = WithImages(text, image, selectedImage);
    insert.hParent = parent;
    insert.hInsertAfter = insertAfter;
    return Insert(insert, parent, sortKey, type, id);
}

HTREEITEM CXTreeCtrl::FindSortPosition(HTREEITEM parent, int sortKey)
{
    Items const items(*this);
    auto const found = xtree::FindSortPosition(items, parent, Next(nullptr, TVGN_ROOT), sortKey);
    using Place = decltype(found.place);
    if (found.place == Place::behind)
        return found.item;
    return found.place == Place::first ? TVI_FIRST : TVI_LAST;
}

int CXTreeCtrl::DeleteAllItems()
{
    return CTreeCtrl::DeleteAllItems();
}

int CXTreeCtrl::DeleteItem(HTREEITEM item)
{
    return CTreeCtrl::DeleteItem(item);
}

HTREEITEM CXTreeCtrl::InsertItem(wchar_t const * text, HTREEITEM parent, HTREEITEM insertAfter)
{
    return CTreeCtrl::InsertItem(text, parent, insertAfter);
}

HTREEITEM CXTreeCtrl::InsertItem(wchar_t const * text, int image, int selectedImage, HTREEITEM parent,
                                 HTREEITEM insertAfter)
{
    return CTreeCtrl::InsertItem(text, image, selectedImage, parent, insertAfter);
}

// --- Records ---

CXTreeCtrl::ItemData * CXTreeCtrl::NeuesItemData()
{
    return xtree::TakeRecord(m_itemsInUse, m_itemStock);
}

void CXTreeCtrl::AllesInDenVorrat()
{
    xtree::ReturnAllRecords(m_itemsInUse, m_itemStock);
    for (PendingRecord * each = m_pending; each != nullptr; each = each->Outer())
        each->record = nullptr;
}

CXTreeCtrl::ItemData * CXTreeCtrl::GetItemData(HTREEITEM item)
{
    return const_cast<ItemData *>(static_cast<CXTreeCtrl const *>(this)->GetItemData(item));
}

CXTreeCtrl::ItemData const * CXTreeCtrl::GetItemData(HTREEITEM item) const
{
    if (item == nullptr)
        return nullptr;
    TVITEMW description{};
    description.mask = TVIF_PARAM | TVIF_HANDLE;
    description.hItem = item;
    if (!Native(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&description)))
        return nullptr;
    return reinterpret_cast<ItemData const *>(description.lParam);
}

CXTreeCtrl::ItemData * CXTreeCtrl::GetSelectedItemData()
{
    return GetItemData(Next(nullptr, TVGN_CARET));
}

int CXTreeCtrl::GetItemType(HTREEITEM item) const
{
    ItemData const * const record = GetItemData(item);
    return record != nullptr ? record->type : -1;
}

int CXTreeCtrl::GetItemId(HTREEITEM item) const
{
    ItemData const * const record = GetItemData(item);
    return record != nullptr ? record->id : -1;
}

int * CXTreeCtrl::GetItemClavis(HTREEITEM item)
{
    ItemData * const record = GetItemData(item);
    return record != nullptr ? record->clavis : nullptr;
}

int * CXTreeCtrl::GetItemClavis(HTREEITEM item, int & type, int & id)
{
    type = GetItemType(item);
    id = GetItemId(item);
    return GetItemClavis(item);
}

void * CXTreeCtrl::GetItemDataPtr(HTREEITEM item) const
{
    ItemData const * const record = GetItemData(item);
    return record != nullptr ? record->ptr : nullptr;
}

void CXTreeCtrl::SetItemDataPtr(HTREEITEM item, void * ptr)
{
    if (ItemData * const record = GetItemData(item))
        record->ptr = ptr;
}

void CXTreeCtrl::SetItemData(HTREEITEM item, int type, int id, int const * clavis)
{
    if (clavis != nullptr)
    {
        SetItemData(item, type, id, clavis, -1, -1);
        return;
    }
    if (ItemData * const record = GetItemData(item))
    {
        record->type = type;
        record->id = id;
    }
}

void CXTreeCtrl::SetItemData(HTREEITEM item, int type, int id, int const * clavis, int clavis6, int clavis7)
{
    ItemData * const record = GetItemData(item);
    if (record == nullptr)
        return;
    record->type = type;
    record->id = id;
    CopyClavis(clavis, ItemData::short_clavis_length, *record);
    record->clavis[6] = clavis6;
    record->clavis[7] = clavis7;
}

void CXTreeCtrl::SetItemData8(HTREEITEM item, int type, int id, int const * clavis)
{
    ItemData * const record = GetItemData(item);
    if (record == nullptr)
        return;
    record->type = type;
    record->id = id;
    CopyClavis(clavis, ItemData::clavis_length, *record);
}

void CXTreeCtrl::SetItemClavis(HTREEITEM item, int const * clavis)
{
    if (ItemData * const record = GetItemData(item))
        CopyClavis(clavis, ItemData::short_clavis_length, *record);
}

void CXTreeCtrl::SetItemClavis8(HTREEITEM item, int const * clavis)
{
    if (ItemData * const record = GetItemData(item))
        CopyClavis(clavis, ItemData::clavis_length, *record);
}

// --- Search ---

bool CXTreeCtrl::ItemDataMatchBest(HTREEITEM item, int type, int id, int const * clavis) const
{
    return xtree::MatchesBest(GetItemData(item), type, id, clavis);
}

bool CXTreeCtrl::ItemDataMatchExact(HTREEITEM item, int type, int id, int const * clavis) const
{
    return xtree::MatchesExactly(GetItemData(item), type, id, clavis);
}

bool CXTreeCtrl::ItemDataMatch(HTREEITEM item, int type, int id, int const * clavis, wchar_t const * text,
                               bool exact) const
{
    bool const matches = exact ? ItemDataMatchExact(item, type, id, clavis) : ItemDataMatchBest(item, type, id, clavis);
    return matches && (text == nullptr || GetItemText(item) == text);
}

HTREEITEM CXTreeCtrl::FindFrom(HTREEITEM start, bool withLaterSiblings, int type, int id, int const * clavis,
                               wchar_t const * text, bool exact)
{
    ItemWalk walk(*this, start, withLaterSiblings);
    while (walk.IsThere() && walk.Current() != nullptr)
    {
        bool const matches = ItemDataMatch(walk.Current(), type, id, clavis, text, exact);
        if (!walk.IsThere())
            break;
        if (matches)
            return walk.Current();
        walk.Advance();
    }
    return nullptr;
}

HTREEITEM CXTreeCtrl::FindItemRecursion(HTREEITEM item, int type, int id, int const * clavis, wchar_t const * text,
                                        bool exact)
{
    return FindFrom(item, false, type, id, clavis, text, exact);
}

HTREEITEM CXTreeCtrl::FindItem(int type, int id, int const * clavis, HTREEITEM start, bool exact)
{
    return FindItem(type, id, clavis, nullptr, start, exact);
}

HTREEITEM CXTreeCtrl::FindItem(int type, int id, int const * clavis, wchar_t const * text, HTREEITEM start, bool exact)
{
    return FindFrom(StartOf(start), true, type, id, clavis, text, exact);
}

HTREEITEM CXTreeCtrl::FindChildItem(int type, int id, int const * clavis, wchar_t const * text, HTREEITEM parent,
                                    bool exact)
{
    parent = StartOf(parent);
    if (parent == nullptr)
        return nullptr;
    Deletion held(*this);
    held.Enter(parent);
    while (held.IsThere() && !held.steps.empty() && held.steps.back().child != nullptr)
    {
        HTREEITEM const child = held.steps.back().child;
        bool const matches = ItemDataMatch(child, type, id, clavis, text, exact);
        if (!held.IsThere() || held.steps.empty() || held.steps.back().child != child)
            continue; // the child is gone, and its next sibling stands in its place
        if (matches)
            return child;
        held.steps.back().child = Next(child, TVGN_NEXT);
    }
    return nullptr;
}

unsigned int CXTreeCtrl::FindAllItems(std::list<HTREEITEM> & result, int type, int id, int const * clavis,
                                      HTREEITEM start, bool exact)
{
    unsigned int count = 0;
    for (ItemWalk walk(*this, StartOf(start), false); walk.Current() != nullptr; walk.Advance())
    {
        if (!ItemDataMatch(walk.Current(), type, id, clavis, nullptr, exact))
            continue;
        result.push_back(walk.Current());
        ++count;
    }
    return count;
}

unsigned int CXTreeCtrl::CollectAllItems(std::list<HTREEITEM> & result, HTREEITEM start)
{
    unsigned int count = 0;
    for (ItemWalk walk(*this, StartOf(start), false); walk.Current() != nullptr; walk.Advance())
    {
        result.push_back(walk.Current());
        ++count;
    }
    return count;
}

// --- Structure ---

void CXTreeCtrl::DeleteTreeItem(HTREEITEM item)
{
    DeleteBelow(item, true);
}

void CXTreeCtrl::DeleteAllSubItems(HTREEITEM item)
{
    DeleteBelow(item, false);
}

void CXTreeCtrl::DeleteBelow(HTREEITEM top, bool topToo)
{
    if (top == nullptr || m_hWnd == nullptr)
        return;
    Deletion deletion(*this);
    deletion.Enter(top);
    while (!deletion.steps.empty())
    {
        Deletion::Step & last = deletion.steps.back();
        if (HTREEITEM const child = last.child)
        {
            last.child = Next(child, TVGN_NEXT);
            deletion.Enter(child);
            continue;
        }
        HTREEITEM const item = last.item;
        deletion.steps.pop_back();
        if (deletion.steps.empty() && !topToo)
            return;
        if (!DeleteOne(item, GetItemData(item)))
            return;
    }
}

bool CXTreeCtrl::DeleteOne(HTREEITEM item, ItemData * record)
{
    LifeWatch const life(m_life);
    PendingRecord pending(*this, record);
    CTreeCtrl::DeleteItem(item);
    if (life.Over())
        return false;
    pending.PutIntoStock();
    return true;
}

void CXTreeCtrl::ResetContent()
{
    LifeWatch const life(m_life);
    if (m_hWnd != nullptr)
        CTreeCtrl::DeleteAllItems();
    if (life.Over())
        return;
    if (Next(nullptr, TVGN_ROOT) == nullptr)
    {
        AllesInDenVorrat();
        return;
    }
    // The host has inserted items while all were deleted. Their records stay in use.
    std::unordered_set<ItemData const *> used;
    for (ItemWalk walk(*this, Next(nullptr, TVGN_ROOT), true); walk.Current() != nullptr; walk.Advance())
        used.insert(GetItemData(walk.Current()));
    std::list<ItemData *> kept;
    for (auto each = m_itemsInUse.begin(); each != m_itemsInUse.end();)
    {
        auto const present = each++;
        if (used.contains(*present))
            kept.splice(kept.end(), m_itemsInUse, present);
    }
    AllesInDenVorrat();
    m_itemsInUse.swap(kept);
}

void CXTreeCtrl::ExpandTree(int depth)
{
    ExpandTreeR(Next(nullptr, TVGN_ROOT), 0, depth);
}

void CXTreeCtrl::ExpandTreeR(HTREEITEM item, int level, int depth)
{
    ItemWalk walk(*this, item, false);
    while (walk.IsThere() && walk.Current() != nullptr)
    {
        bool const opens = depth == -1 || level + walk.Level() < depth;
        Expand(walk.Current(), opens ? TVE_EXPAND : TVE_COLLAPSE);
        if (walk.IsThere())
            walk.Advance();
    }
}

// --- Keys and mouse ---

void CXTreeCtrl::DontAbsorbKeys(unsigned int flags)
{
    m_keyFlags = flags;
}

void CXTreeCtrl::DontAbsorbAnyKeys()
{
    DontAbsorbKeys(any_keys);
}

void CXTreeCtrl::DontAbsorbNormalKeys()
{
    DontAbsorbKeys(normal_keys);
}

void CXTreeCtrl::DontAbsorbControlKeys(bool space)
{
    DontAbsorbKeys(space ? control_keys_and_space : control_keys);
}

void CXTreeCtrl::DontHandleDoubleclick()
{
    m_keyFlags |= only_report_double_click;
}

BOOL CXTreeCtrl::PreTranslateMessage(MSG * message)
{
    bool const isKey = message->message == WM_KEYDOWN || message->message == WM_KEYUP;
    if (isKey && xtree::PassesKey(m_keyFlags, static_cast<unsigned int>(message->wParam)))
        return FALSE;
    return CWnd::PreTranslateMessage(message);
}

void CXTreeCtrl::OnLButtonDblClk(UINT flags, CPoint point)
{
    if (point != CPoint(-1, -1))
    {
        WindowAlive const alive(*this, m_life);
        HTREEITEM const item = HitTest(point);
        if (!alive.IsAlive())
            return;
        if (item != nullptr)
        {
            if (CWnd * const parent = GetParent())
                parent->SendMessage(WM_XTREECTRL_DBLCLK, flags, reinterpret_cast<LPARAM>(item));
            if (!alive.IsAlive() || (m_keyFlags & only_report_double_click) != 0)
                return;
        }
    }
    CTreeCtrl::OnLButtonDblClk(flags, point);
}
