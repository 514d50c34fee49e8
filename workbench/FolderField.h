#pragma once

#include "controls/XEditBrowseCtrl.h"
#include "frame/LifeWatch.h"

/// An edit field whose button lets the user choose a folder.
class CFolderField : public CXEditBrowseCtrl
{
public:
    /// title: says what the folder is for.
    void PrepareFolderBrowser(CString const & title);

    void OnBrowse() override;

private:
    CString m_title;
    bool m_choosing = false;
    LifeSign m_sign;
};
