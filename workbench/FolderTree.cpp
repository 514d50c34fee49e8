#include "FolderTree.h"

#include <algorithm>
#include <chrono>
#include <unordered_set>
#include <utility>

#include "logic/StoredLists.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

namespace
{

constexpr int image_size = 16; // on a screen of the usual resolution
constexpr int image_folder = 0;
constexpr int image_recording = 1;

constexpr UINT enter_interval = 10; // milliseconds
// What one turn of entering items may take, so that the window answers in between.
constexpr std::chrono::milliseconds enter_slice(10);
// So many items are entered between two looks at the clock.
constexpr int items_at_once = 16;

using Clock = std::chrono::steady_clock;

/// What the item of a place says, which may be a drive.
std::wstring LabelOf(std::filesystem::path const & folder)
{
    auto name = folder.filename().wstring();
    if (name.empty())
    {
        name = folder.parent_path().filename().wstring();
    }
    return name.empty() ? folder.wstring() : name;
}

} // namespace

BEGIN_MESSAGE_MAP(CFolderTree, CXTreeCtrl)
    ON_WM_TIMER()
    ON_NOTIFY_REFLECT(TVN_ITEMEXPANDINGW, &CFolderTree::OnItemExpanding)
    ON_NOTIFY_REFLECT(TVN_SELCHANGEDW, &CFolderTree::OnSelectionChanged)
    ON_NOTIFY_REFLECT(TVN_GETINFOTIPW, &CFolderTree::OnGetInfoTip)
    ON_NOTIFY_REFLECT(NM_DBLCLK, &CFolderTree::OnDoubleClick)
    ON_MESSAGE(message_folder_read, &CFolderTree::OnFolderRead)
END_MESSAGE_MAP()

bool CFolderTree::CreateTree(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics)
{
    constexpr DWORD style = WS_CHILD | WS_TABSTOP | WS_BORDER | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_HASLINES |
                            TVS_SHOWSELALWAYS | TVS_INFOTIP;
    if (!Create(style, CRect(), &parent, id))
    {
        return false;
    }
    SetFont(&metrics.Font(), FALSE);
    int const size = metrics.Scaled(image_size);
    VERIFY(m_images.Create(size, size, ILC_COLOR32 | ILC_MASK, 2, 0));
    for (int const icon : {IDI_FOLDER, IDI_RECORDING})
    {
        m_images.Add(static_cast<HICON>(
            ::LoadImageW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(icon), IMAGE_ICON, size, size, LR_SHARED)));
    }
    SetImageList(&m_images, TVSIL_NORMAL);
    return true;
}

void CFolderTree::Stop()
{
    m_reading.reset();
    m_waiting.clear();
    m_entering.reset();
}

// --- Items ---

/// Keeps a path for the record of its item.
int CFolderTree::Remember(std::filesystem::path const & path)
{
    m_paths.push_back(path);
    return static_cast<int>(m_paths.size()) - 1;
}

std::filesystem::path CFolderTree::PathOf(HTREEITEM item) const
{
    CXTreeCtrl::ItemData const * const record = item != nullptr ? GetItemData(item) : nullptr;
    bool const known = record != nullptr && record->id >= 0 && record->id < static_cast<int>(m_paths.size());
    return known ? m_paths[static_cast<std::size_t>(record->id)] : std::filesystem::path();
}

HTREEITEM CFolderTree::FolderItem(std::filesystem::path const & folder) const
{
    auto const found = m_folders.find(workbench::PathKey(folder));
    return found != m_folders.end() ? found->second : nullptr;
}

CFolderTree::Knowledge CFolderTree::KnowledgeOf(HTREEITEM folder) const
{
    CXTreeCtrl::ItemData const * const record = GetItemData(folder);
    return record != nullptr ? static_cast<Knowledge>(record->clavis[0]) : unread;
}

void CFolderTree::Note(HTREEITEM folder, Knowledge knowledge)
{
    if (CXTreeCtrl::ItemData * const record = GetItemData(folder))
    {
        record->clavis[0] = knowledge;
    }
}

void CFolderTree::SetHasChildren(HTREEITEM folder, bool has)
{
    TVITEMW item{};
    item.mask = TVIF_CHILDREN;
    item.hItem = folder;
    // What stays as it is is not painted anew.
    if (!GetItem(&item) || (item.cChildren != 0) != has)
    {
        item.cChildren = has ? 1 : 0;
        SetItem(&item);
    }
}

/// sortKey: -1 where the place is given.
HTREEITEM CFolderTree::AddFolder(std::filesystem::path const & folder, HTREEITEM parent, HTREEITEM after, int sortKey)
{
    HTREEITEM const item = InsertTreeItem(LabelOf(folder).c_str(), image_folder, image_folder, parent, type_folder,
                                          Remember(folder), after, sortKey);
    if (item != nullptr)
    {
        GetItemData(item)->sortKey = key_folder;
        m_folders.try_emplace(workbench::PathKey(folder), item);
        Note(item, unread);
        SetHasChildren(item, true);
    }
    return item;
}

void CFolderTree::AddRecording(std::filesystem::path const & file, HTREEITEM parent, HTREEITEM after, int sortKey)
{
    HTREEITEM const item = InsertTreeItem(file.filename().c_str(), image_recording, image_recording, parent,
                                          type_recording, Remember(file), after, sortKey);
    if (item != nullptr)
    {
        GetItemData(item)->sortKey = key_recording;
        m_recordings.insert_or_assign(workbench::PathKey(file), item);
    }
}

void CFolderTree::AddPlaces(std::vector<std::filesystem::path> const & folders)
{
    for (std::filesystem::path const & folder : folders)
    {
        if (FolderItem(folder) == nullptr)
        {
            AddFolder(folder, TVI_ROOT, TVI_LAST, -1);
        }
    }
}

void CFolderTree::ShowOpened(std::vector<std::filesystem::path> const & folders)
{
    std::unordered_set<std::wstring> keys;
    for (std::filesystem::path const & folder : folders)
    {
        keys.insert(workbench::PathKey(folder));
    }
    for (std::filesystem::path const & former : std::exchange(m_opened, folders))
    {
        HTREEITEM const item = FolderItem(former);
        if (item != nullptr && !keys.contains(workbench::PathKey(former)))
        {
            SetItemState(item, 0, TVIS_BOLD);
        }
    }
    for (std::filesystem::path const & folder : m_opened)
    {
        HTREEITEM item = FolderItem(folder);
        if (item == nullptr)
        {
            item = AddFolder(folder, TVI_ROOT, TVI_FIRST, -1);
        }
        if (item == nullptr)
        {
            continue;
        }
        if (KnowledgeOf(item) != reading)
        {
            Read(item);
        }
        if ((GetItemState(item, TVIS_BOLD) & TVIS_BOLD) == 0)
        {
            SetItemState(item, TVIS_BOLD, TVIS_BOLD);
            Reveal(item);
        }
    }
}

void CFolderTree::RevealOpened()
{
    for (std::filesystem::path const & folder : m_opened)
    {
        if (HTREEITEM const item = FolderItem(folder))
        {
            Reveal(item);
        }
    }
}

void CFolderTree::Reveal(HTREEITEM folder)
{
    Expand(folder, TVE_EXPAND);
    EnsureVisible(folder);
}

void CFolderTree::SelectRecording(std::filesystem::path const & file)
{
    auto const found = m_recordings.find(workbench::PathKey(file));
    if (found == m_recordings.end())
    {
        m_wanted = file;
        return;
    }
    m_wanted.clear();
    if (GetSelectedItem() != found->second)
    {
        // Whoever looks at a closed folder is not shown what is in it.
        HTREEITEM const parent = GetParentItem(found->second);
        if (parent == nullptr || (GetItemState(parent, TVIS_EXPANDED) & TVIS_EXPANDED) != 0)
        {
            SelectItem(found->second);
        }
    }
}

// --- Reading folders ---

/// Has a folder's contents read, behind those that wait already.
void CFolderTree::Read(HTREEITEM folder)
{
    bool const first = KnowledgeOf(folder) == unread;
    Note(folder, reading);
    if (first && GetChildItem(folder) == nullptr)
    {
        InsertTreeItem(Text(L"reading..."), image_folder, image_folder, folder, type_note, -1, TVI_LAST, key_note);
    }
    m_waiting.push_back(PathOf(folder));
    ReadNext();
}

void CFolderTree::ReadNext()
{
    if (m_reading || m_entering || m_waiting.empty())
    {
        return;
    }
    m_readFolder = std::move(m_waiting.front());
    m_waiting.pop_front();
    HWND const window = m_hWnd;
    auto const before = m_contents.find(workbench::PathKey(m_readFolder));
    m_reading =
        std::make_unique<workbench::FolderReading>(m_readFolder, before != m_contents.end() ? before->second : nullptr,
                                                   [window] { ::PostMessageW(window, message_folder_read, 0, 0); });
}

LRESULT CFolderTree::OnFolderRead(WPARAM, LPARAM)
{
    auto result = m_reading ? m_reading->Take() : std::nullopt;
    if (!result)
    {
        return 0; // of a reading that was given up
    }
    m_reading.reset();
    if (FolderItem(m_readFolder) != nullptr)
    {
        m_contents.insert_or_assign(workbench::PathKey(m_readFolder), std::move(result->contents));
        m_entering = Entering{m_readFolder, std::move(result->steps)};
        SetTimer(enter_timer, enter_interval, nullptr);
        EnterSome();
    }
    ReadNext();
    return 0;
}

/// Takes an item away with all that is known of it and of what is below it.
void CFolderTree::Remove(HTREEITEM item)
{
    auto const forget = [](auto & items, std::wstring const & key, HTREEITEM gone) {
        if (auto const found = items.find(key); found != items.end() && found->second == gone)
        {
            items.erase(found);
        }
    };
    std::list<HTREEITEM> all;
    CollectAllItems(all, item);
    for (auto const each : all)
    {
        m_top = each == m_top ? nullptr : m_top;
        std::wstring const key = workbench::PathKey(PathOf(each));
        if (GetItemType(each) == type_folder)
        {
            forget(m_folders, key, each);
            m_contents.erase(key);
        }
        else
        {
            forget(m_recordings, key, each);
        }
    }
    DeleteTreeItem(item);
}

/// Follows one change of a folder's contents.
void CFolderTree::Take(workbench::FolderStep const & step, HTREEITEM folder)
{
    auto const & items = step.isFolder ? m_folders : m_recordings;
    auto const itemOf = [&](std::filesystem::path const & path) -> HTREEITEM {
        auto const found = items.find(workbench::PathKey(path));
        if (path.empty() || (found != items.end() && GetParentItem(found->second) == folder))
        {
            return path.empty() ? nullptr : found->second;
        }
        // A folder can be in the tree twice, as a place of its own, too.
        return FindChildItem(step.isFolder ? type_folder : type_recording, -1, nullptr, path.filename().c_str(), folder,
                             false);
    };
    if (step.kind == workbench::FolderStep::Kind::remove)
    {
        if (HTREEITEM const item = itemOf(step.path))
        {
            Remove(item);
        }
        return;
    }
    // Behind the one that is ahead of it; the first one by its sort key, which puts recordings behind all folders.
    HTREEITEM const previous = itemOf(step.previous);
    if (step.isFolder)
    {
        AddFolder(step.path, folder, previous != nullptr ? previous : TVI_FIRST, -1);
    }
    else
    {
        AddRecording(step.path, folder, previous, previous != nullptr ? -1 : static_cast<int>(key_folder));
    }
}

void CFolderTree::OnTimer(UINT_PTR id)
{
    if (id == enter_timer)
    {
        EnterSome();
    }
    CXTreeCtrl::OnTimer(id);
}

/// Enters items for a little while. The timer brings the next turn.
void CFolderTree::EnterSome()
{
    HTREEITEM const folder = m_entering ? FolderItem(m_entering->folder) : nullptr;
    if (folder == nullptr)
    {
        m_entering.reset();
        KillTimer(enter_timer);
        ReadNext();
        return;
    }
    auto const end = Clock::now() + enter_slice;
    Entering & entering = *m_entering;
    std::size_t const count = entering.steps.size();
    if (count > 0)
    {
        SetRedraw(FALSE);
        m_top = GetFirstVisibleItem();
        do
        {
            for (int i = 0; i < items_at_once && entering.done < count; ++i)
            {
                Take(entering.steps[entering.done++], folder);
            }
        } while (entering.done < count && Clock::now() < end);
        if (m_top != nullptr && GetFirstVisibleItem() != m_top)
        {
            SelectSetFirstVisible(m_top);
        }
        SetRedraw(TRUE);
    }
    if (entering.done == count)
    {
        m_entering.reset();
        KillTimer(enter_timer);
        FinishEntering(folder, count > 0);
        ReadNext();
    }
}

/// changed: items have come or gone. Opening what is open already would paint the whole tree.
void CFolderTree::FinishEntering(HTREEITEM folder, bool changed)
{
    bool const open = (GetItemState(folder, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
    Note(folder, known);
    if (HTREEITEM const note = FindChildItem(type_note, -1, nullptr, nullptr, folder, false))
    {
        DeleteTreeItem(note);
    }
    SetHasChildren(folder, GetChildItem(folder) != nullptr);
    if (changed && open && GetChildItem(folder) != nullptr)
    {
        Expand(folder, TVE_EXPAND);
    }
    // A folder that was opened while it was being read shows its contents from its beginning.
    if (!m_wanted.empty())
    {
        SelectRecording(std::exchange(m_wanted, {}));
    }
}

// --- What the user does ---

void CFolderTree::OnItemExpanding(NMHDR * header, LRESULT * result)
{
    auto const & change = *reinterpret_cast<NMTREEVIEWW *>(header);
    HTREEITEM const folder = change.itemNew.hItem;
    if ((change.action & TVE_EXPAND) != 0 && GetItemType(folder) == type_folder && KnowledgeOf(folder) == unread)
    {
        Read(folder);
    }
    *result = 0;
}

void CFolderTree::OnSelectionChanged(NMHDR * header, LRESULT * result)
{
    auto const & change = *reinterpret_cast<NMTREEVIEWW *>(header);
    HTREEITEM const item = change.itemNew.hItem;
    // The arrow keys show the recordings that are listed, and go past the rest.
    bool const byKey = change.action == TVC_BYKEYBOARD && GetItemType(item) == type_recording &&
                       std::ranges::any_of(m_opened, [&](auto const & folder) {
                           return workbench::IsSameFolder(PathOf(item).parent_path(), folder);
                       });
    if (change.action == TVC_BYMOUSE || byKey)
    {
        Choose(item);
    }
    *result = 0;
}

void CFolderTree::ChooseSelected()
{
    Choose(GetSelectedItem());
}

void CFolderTree::Choose(HTREEITEM item)
{
    std::filesystem::path const path = PathOf(item);
    int const type = item != nullptr ? GetItemType(item) : -1;
    // Copies, as what they do may replace them.
    auto const onChoice = type == type_folder ? m_onFolder : type == type_recording ? m_onRecording : nullptr;
    if (onChoice && !path.empty())
    {
        onChoice(path);
    }
}

void CFolderTree::OnDoubleClick(NMHDR *, LRESULT * result)
{
    HTREEITEM const item = GetSelectedItem();
    std::filesystem::path const path = PathOf(item);
    auto const onDetails = m_onDetails;
    if (item != nullptr && GetItemType(item) == type_recording && onDetails)
    {
        onDetails(path);
    }
    *result = 0;
}

/// The tip tells the whole path.
void CFolderTree::OnGetInfoTip(NMHDR * header, LRESULT * result)
{
    auto const & tip = *reinterpret_cast<NMTVGETINFOTIPW *>(header);
    if (tip.pszText != nullptr && tip.cchTextMax > 0)
    {
        ::lstrcpynW(tip.pszText, PathOf(tip.hItem).c_str(), tip.cchTextMax);
    }
    *result = 0;
}
