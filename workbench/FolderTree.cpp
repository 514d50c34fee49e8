#include "FolderTree.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "logic/StoredLists.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

namespace
{

constexpr int c_imageSize = 16; // on a screen of the usual resolution
constexpr int c_imageFolder = 0;
constexpr int c_imageRecording = 1;

constexpr UINT c_enterInterval = 10; // milliseconds
// What one turn of entering items may take, so that the window answers in between.
constexpr std::chrono::milliseconds c_enterSlice(10);
// So many items are entered between two looks at the clock.
constexpr int c_itemsAtOnce = 16;

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
    auto const size = metrics.Scaled(c_imageSize);
    VERIFY(m_images.Create(size, size, ILC_COLOR32 | ILC_MASK, 2, 0));
    for (auto const icon : {IDI_FOLDER, IDI_RECORDING})
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
    auto const * const record = item != nullptr ? GetItemData(item) : nullptr;
    auto const known = record != nullptr && record->id >= 0 && record->id < static_cast<int>(m_paths.size());
    return known ? m_paths[static_cast<std::size_t>(record->id)] : std::filesystem::path();
}

HTREEITEM CFolderTree::FolderItem(std::filesystem::path const & folder) const
{
    auto const found = m_folders.find(workbench::PathKey(folder));
    return found != m_folders.end() ? found->second : nullptr;
}

CFolderTree::Knowledge CFolderTree::KnowledgeOf(HTREEITEM folder) const
{
    auto const * const record = GetItemData(folder);
    return record != nullptr ? static_cast<Knowledge>(record->clavis[0]) : unread;
}

void CFolderTree::Note(HTREEITEM folder, Knowledge knowledge)
{
    if (auto * const record = GetItemData(folder))
    {
        record->clavis[0] = knowledge;
    }
}

void CFolderTree::SetHasChildren(HTREEITEM folder, bool has)
{
    TVITEMW item{};
    item.mask = TVIF_CHILDREN;
    item.hItem = folder;
    item.cChildren = has ? 1 : 0;
    SetItem(&item);
}

HTREEITEM CFolderTree::AddFolder(std::filesystem::path const & folder, HTREEITEM parent, HTREEITEM after)
{
    // Beside recordings that are there already, its sort key puts it ahead of them.
    auto const key = parent != TVI_ROOT ? static_cast<int>(key_folder) : -1;
    auto const item = InsertTreeItem(LabelOf(folder).c_str(), c_imageFolder, c_imageFolder, parent, type_folder,
                                     Remember(folder), after, key);
    if (item != nullptr)
    {
        m_folders.try_emplace(workbench::PathKey(folder), item);
        Note(item, unread);
        SetHasChildren(item, true);
    }
    return item;
}

void CFolderTree::AddRecording(std::filesystem::path const & file, HTREEITEM parent)
{
    // They come in their order, of which a search for the place would know no more.
    auto const item = InsertTreeItem(file.filename().c_str(), c_imageRecording, c_imageRecording, parent,
                                     type_recording, Remember(file), TVI_LAST, -1);
    if (item != nullptr)
    {
        GetItemData(item)->sortKey = key_recording;
        m_recordings.insert_or_assign(workbench::PathKey(file), item);
    }
}

void CFolderTree::AddPlaces(std::vector<std::filesystem::path> const & folders)
{
    for (auto const & folder : folders)
    {
        if (FolderItem(folder) == nullptr)
        {
            AddFolder(folder, TVI_ROOT, TVI_LAST);
        }
    }
}

void CFolderTree::ShowOpened(std::vector<std::filesystem::path> const & folders)
{
    for (auto const & former : m_opened)
    {
        if (auto const item = FolderItem(former))
        {
            SetItemState(item, 0, TVIS_BOLD);
        }
    }
    m_opened = folders;
    for (auto const & folder : m_opened)
    {
        auto item = FolderItem(folder);
        if (item == nullptr)
        {
            item = AddFolder(folder, TVI_ROOT, TVI_FIRST);
        }
        if (item == nullptr)
        {
            continue;
        }
        SetItemState(item, TVIS_BOLD, TVIS_BOLD);
        if (KnowledgeOf(item) != reading)
        {
            Read(item);
        }
        Expand(item, TVE_EXPAND);
        EnsureVisible(item);
    }
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
        auto const parent = GetParentItem(found->second);
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
    auto const first = KnowledgeOf(folder) == unread;
    Note(folder, reading);
    if (first && GetChildItem(folder) == nullptr)
    {
        InsertTreeItem(Text(L"reading..."), c_imageFolder, c_imageFolder, folder, type_note, -1, TVI_LAST, key_note);
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
    auto const window = m_hWnd;
    m_reading = std::make_unique<workbench::FolderReading>(
        m_readFolder, [window] { ::PostMessageW(window, message_folder_read, 0, 0); });
}

LRESULT CFolderTree::OnFolderRead(WPARAM, LPARAM)
{
    auto contents = m_reading ? m_reading->Take() : std::nullopt;
    if (!contents)
    {
        return 0; // of a reading that was given up
    }
    m_reading.reset();
    auto const folder = FolderItem(m_readFolder);
    if (folder != nullptr)
    {
        StartEntering(folder, std::move(*contents));
    }
    ReadNext();
    return 0;
}

/// Enters what a folder contains in place of what was known of it; nothing is touched where that is the same.
void CFolderTree::StartEntering(HTREEITEM folder, workbench::FolderContents contents)
{
    workbench::FolderContents present;
    for (auto item = GetChildItem(folder); item != nullptr; item = GetNextSiblingItem(item))
    {
        auto & paths = GetItemType(item) == type_folder ? present.folders : present.recordings;
        if (GetItemType(item) != type_note)
        {
            paths.push_back(PathOf(item));
        }
    }
    if (present == contents && !(contents.folders.empty() && contents.recordings.empty()))
    {
        Note(folder, known);
        return;
    }
    RemoveContents(folder);
    m_entering = Entering{m_readFolder, std::move(contents)};
    SetTimer(enter_timer, c_enterInterval, nullptr);
    EnterSome();
}

/// Takes away what is in a folder, but for the note that it is being read.
void CFolderTree::RemoveContents(HTREEITEM folder)
{
    auto const forget = [](auto & items, std::wstring const & key, HTREEITEM item) {
        if (auto const found = items.find(key); found != items.end() && found->second == item)
        {
            items.erase(found);
        }
    };
    std::list<HTREEITEM> below;
    CollectAllItems(below, folder);
    below.pop_front();
    for (auto const item : below)
    {
        forget(GetItemType(item) == type_folder ? m_folders : m_recordings, workbench::PathKey(PathOf(item)), item);
    }
    SetRedraw(FALSE);
    for (auto item = GetChildItem(folder); item != nullptr;)
    {
        auto const next = GetNextSiblingItem(item);
        if (GetItemType(item) != type_note)
        {
            DeleteTreeItem(item);
        }
        item = next;
    }
    SetRedraw(TRUE);
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
    auto const folder = m_entering ? FolderItem(m_entering->folder) : nullptr;
    if (folder == nullptr)
    {
        m_entering.reset();
        KillTimer(enter_timer);
        ReadNext();
        return;
    }
    auto const end = Clock::now() + c_enterSlice;
    auto const & contents = m_entering->contents;
    auto const count = contents.folders.size() + contents.recordings.size();
    SetRedraw(FALSE);
    do
    {
        for (int i = 0; i < c_itemsAtOnce && m_entering->done < count; ++i)
        {
            auto const place = m_entering->done++;
            if (place < contents.folders.size())
            {
                AddFolder(contents.folders[place], folder, TVI_LAST);
            }
            else
            {
                AddRecording(contents.recordings[place - contents.folders.size()], folder);
            }
        }
    } while (m_entering->done < count && Clock::now() < end);
    SetRedraw(TRUE);
    if (m_entering->done == count)
    {
        m_entering.reset();
        KillTimer(enter_timer);
        FinishEntering(folder);
        ReadNext();
    }
}

void CFolderTree::FinishEntering(HTREEITEM folder)
{
    auto const open = (GetItemState(folder, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
    Note(folder, known);
    if (auto const note = FindChildItem(type_note, -1, nullptr, nullptr, folder, false))
    {
        DeleteTreeItem(note);
    }
    SetHasChildren(folder, GetChildItem(folder) != nullptr);
    if (open && GetChildItem(folder) != nullptr)
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
    auto const folder = change.itemNew.hItem;
    if ((change.action & TVE_EXPAND) != 0 && GetItemType(folder) == type_folder && KnowledgeOf(folder) == unread)
    {
        Read(folder);
    }
    *result = 0;
}

void CFolderTree::OnSelectionChanged(NMHDR * header, LRESULT * result)
{
    auto const & change = *reinterpret_cast<NMTREEVIEWW *>(header);
    auto const item = change.itemNew.hItem;
    // The arrow keys show the recordings that are listed, and go past the rest.
    auto const byKey = change.action == TVC_BYKEYBOARD && GetItemType(item) == type_recording &&
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
    auto const path = PathOf(item);
    auto const type = item != nullptr ? GetItemType(item) : -1;
    // Copies, as what they do may replace them.
    auto const onChoice = type == type_folder ? m_onFolder : type == type_recording ? m_onRecording : nullptr;
    if (onChoice && !path.empty())
    {
        onChoice(path);
    }
}

void CFolderTree::OnDoubleClick(NMHDR *, LRESULT * result)
{
    auto const item = GetSelectedItem();
    auto const path = PathOf(item);
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
