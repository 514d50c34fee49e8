#pragma once

#include "dialogs/Dialog3d.h"
#include "Settings.h"

/// Tells the program's name and version, and what it is built with, as the resources have it.
class CAboutDialog : public CDialog3d
{
public:
    CAboutDialog(workbench::Settings const & settings, CWnd & owner);

    BOOL OnInitDialog() override;

private:
    CFont m_boldFont;
};
