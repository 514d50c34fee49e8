#include "FolderField.h"

#include "dialogs/FolderDialog.h"

void CFolderField::PrepareFolderBrowser(CString const & title)
{
    m_title = title;
    PrepareFileOpenBrowser(CString(), nullptr, nullptr); // for its button
}

void CFolderField::OnBrowse()
{
    if (m_choosing)
    {
        return;
    }
    m_choosing = true;
    LifeWatch const life(m_sign);
    CString folder;
    GetWindowText(folder);
    CWnd const * const owner = GetTopLevelParent();
    CFolderDialog dialog(owner != nullptr ? owner->m_hWnd : nullptr);
    dialog.SetTitleMessage(m_title);
    if (!folder.IsEmpty() && folder.GetLength() < MAX_PATH)
    {
        dialog.SetInitialDir(folder);
    }
    bool const chosen = dialog.DoModal() == IDOK;
    // The field can have gone meanwhile, with all that it stands in.
    if (life.Over())
    {
        return;
    }
    m_choosing = false;
    if (chosen && ::IsWindow(m_hWnd))
    {
        SetWindowText(dialog.GetPathName());
        NotifyParent(m_notifyTag, 0);
    }
}
