#pragma once
// Everything that instrument_ui.dll offers to its hosts.

#include "frame/Export.h"
#include "frame/RegisteredMessages.h"

#include "frame/CoreLibrary.h"
#include "frame/PreferenceStore.h"

#include "clipboard/Clipboard.h"

#include "colours/ControlColors.h"
#include "colours/Farbtabellen.h"

#include "layout/Edges.h"
#include "layout/DialogResizer.h"

#include "dialogs/KeyGroups.h"
#include "dialogs/PopupConfig.h"
#include "dialogs/Dialog3d.h"
#include "dialogs/PropertyPage3d.h"
#include "dialogs/PropertySheet3d.h"
#include "dialogs/FolderDialog.h"
#include "dialogs/SprachauswahlDlg.h"

#include "windows/FensterManager.h"
#include "windows/MenueManager.h"
#include "windows/StandaloneFrameUser.h"
#include "windows/StandaloneFrameWnd.h"
#include "windows/DockableViewPane.h"
#include "windows/MainFrmInterface.h"
#include "windows/StandaloneFrameMigrationHelper.h"
#include "windows/RegistrySettingsTree.h"
#include "windows/MemorySettingsTree.h"
#include "windows/SettingsFile.h"

#include "list/XListCtrl.h"
#include "list/table/XTableCtrl.h"

#include "controls/ColorControl.h"
#include "controls/ColorButton.h"
#include "controls/FreeIconButton.h"
#include "controls/LevelSliderCtrl.h"
#include "controls/ComboBoxX.h"
#include "controls/ListBoxX.h"
#include "controls/IdNameMultiselectCtrl.h"
#include "controls/IdNameMultiselectDlg.h"
#include "controls/IdNameMultiselectListCtlr.h"
#include "controls/XEditBrowseCtrl.h"
#include "controls/XTreeCtrl.h"

#include "segments/ColorScheme.h"
#include "segments/DigiStyle.h"
#include "segments/DigiStatic.h"
#include "segments/LedTextAnzeiger.h"
