// Written by make_public_functions.py. Uses what the public headers declare, so that a function that the module
// does not export keeps this program from being linked.

// clang-format off
#include "instrument_ui.h"

#include "clipboard/Clipboard.h"
#include "colours/ControlColors.h"
#include "colours/Farbtabellen.h"
#include "controls/ColorButton.h"
#include "controls/ColorControl.h"
#include "controls/ComboBoxX.h"
#include "controls/FreeIconButton.h"
#include "controls/IdNameMultiselectCtrl.h"
#include "controls/IdNameMultiselectDlg.h"
#include "controls/IdNameMultiselectListCtlr.h"
#include "controls/LevelSliderCtrl.h"
#include "controls/ListBoxX.h"
#include "controls/XEditBrowseCtrl.h"
#include "controls/XTreeCtrl.h"
#include "controls/XTreeItems.h"
#include "dialogs/Dialog3d.h"
#include "dialogs/DialogDrag.h"
#include "dialogs/DialogFade.h"
#include "dialogs/FolderDialog.h"
#include "dialogs/KeyGroups.h"
#include "dialogs/PopupConfig.h"
#include "dialogs/PropertyPage3d.h"
#include "dialogs/PropertySheet3d.h"
#include "dialogs/SprachauswahlDlg.h"
#include "frame/CoreLibrary.h"
#include "frame/Export.h"
#include "frame/PreferenceStore.h"
#include "frame/RegisteredMessages.h"
#include "layout/DialogResizer.h"
#include "layout/Edges.h"
#include "list/XHeaderCtrl.h"
#include "list/XListCellKind.h"
#include "list/XListCtrl.h"
#include "list/XListCtrlData.h"
#include "list/table/NumberFormat.h"
#include "list/table/TableFeed.h"
#include "list/table/TableForms.h"
#include "list/table/TableOrder.h"
#include "list/table/TableSource.h"
#include "list/table/TableText.h"
#include "list/table/XTableCtrl.h"
#include "segments/ColorScheme.h"
#include "segments/DigiStatic.h"
#include "segments/DigiStyle.h"
#include "segments/LedTextAnzeiger.h"
#include "windows/DockableViewPane.h"
#include "windows/FensterManager.h"
#include "windows/MainFrmInterface.h"
#include "windows/MemorySettingsTree.h"
#include "windows/MenueManager.h"
#include "windows/RegistrySettingsTree.h"
#include "windows/SettingsFile.h"
#include "windows/SettingsTree.h"
#include "windows/StandaloneFrameMigrationHelper.h"
#include "windows/StandaloneFrameUser.h"
#include "windows/StandaloneFrameWnd.h"

#include <type_traits>
#include <utility>

using namespace registry_settings;
using namespace xtree;

namespace
{
/// Keeps the compiler from leaving it out.
template <typename T> void Use(T used)
{
    [[maybe_unused]] static T volatile place;
    place = used;
}

void UseAll()
{
    // clipboard/Clipboard.h
    Use(+[](CString const & a0) -> bool { return Clipboard::StringToClipboard(std::forward<CString const &>(a0)); });
    Use(+[](wchar_t const * a0, wchar_t const * a1) -> bool { return Clipboard::HtmlToClipboard(std::forward<wchar_t const *>(a0), std::forward<wchar_t const *>(a1)); });
    Use(+[](HENHMETAFILE__ * const a0) -> bool { return Clipboard::WmfToClipboard(std::forward<HENHMETAFILE__ * const>(a0)); });
    Use(+[](wchar_t const * a0, void * a1) -> bool { return Clipboard::HandleToClipboard(std::forward<wchar_t const *>(a0), std::forward<void *>(a1)); });
    Use(+[](wchar_t const * a0, char const * a1, unsigned int a2) -> bool { return Clipboard::DataToClipboard(std::forward<wchar_t const *>(a0), std::forward<char const *>(a1), std::forward<unsigned int>(a2)); });
    Use(+[](CString & a0) -> bool { return Clipboard::StringFromClipboard(std::forward<CString &>(a0)); });

    // colours/ControlColors.h
    Use(+[] { delete new ControlColors; });
    Use(+[](COLORREF a0, COLORREF a1) -> double { return control_colors::ContrastOf(std::forward<COLORREF>(a0), std::forward<COLORREF>(a1)); });
    Use(+[](COLORREF a0, COLORREF a1, COLORREF a2) -> COLORREF { return control_colors::MarkOn(std::forward<COLORREF>(a0), std::forward<COLORREF>(a1), std::forward<COLORREF>(a2)); });
    Use(+[](COLORREF a0, COLORREF a1, COLORREF a2) -> COLORREF { return control_colors::TextOn(std::forward<COLORREF>(a0), std::forward<COLORREF>(a1), std::forward<COLORREF>(a2)); });
    Use(+[](SystemColorLookup a0) -> ControlColors { return control_colors::Standard(std::forward<SystemColorLookup>(a0)); });
    Use(+[]() -> ControlColors { return control_colors::Dark(); });
    Use(+[](SystemColorLookup a0) -> ControlColors { return control_colors::HighContrast(std::forward<SystemColorLookup>(a0)); });
    Use(+[](ControlColorSet a0) -> void { return control_colors::UseForProcess(std::forward<ControlColorSet>(a0)); });
    Use(+[]() -> ControlColorSet { return control_colors::ChosenForProcess(); });
    Use(+[](HWND a0, ControlColorSet a1) -> bool { return control_colors::UseFor(std::forward<HWND>(a0), std::forward<ControlColorSet>(a1)); });
    Use(+[](HWND a0) -> void { return control_colors::RemoveFrom(std::forward<HWND>(a0)); });
    Use(+[](HWND a0) -> ControlColorSet { return control_colors::SetOf(std::forward<HWND>(a0)); });
    Use(+[](HWND a0) -> ControlColors { return control_colors::Of(std::forward<HWND>(a0)); });
    Use(+[](ControlColorSet a0) -> ControlColors { return control_colors::Of(std::forward<ControlColorSet>(a0)); });
    Use(+[](HWND a0, UINT a1, WPARAM a2) -> LRESULT { return control_colors::AnswerColorQuestion(std::forward<HWND>(a0), std::forward<UINT>(a1), std::forward<WPARAM>(a2)); });

    // colours/Farbtabellen.h
    Use(&Farbtabellen::ScopePalette);
    Use(&Farbtabellen::FarbenGreyLdRGB);
    Use(&Farbtabellen::FarbenStandardRGB);
    Use(&Farbtabellen::FarbenGoldRGB);
    Use(&Farbtabellen::FarbenOceanRGB);
    Use(&Farbtabellen::FarbenEarthRGB);
    Use(&Farbtabellen::FarbenTemperaturRGB);
    Use(&Farbtabellen::FarbenGreyDlRGB);
    Use(&Farbtabellen::FarbenSommerRGB);
    Use(&Farbtabellen::FarbenRegenbogenRGB);
    Use(+[](int a0) -> COLORREF { return Farbtabellen::ScopeFarbe(std::forward<int>(a0)); });
    Use(+[](COLORREF a0) -> unsigned int { return Farbtabellen::ScopeFarbIndex(std::forward<COLORREF>(a0)); });
    Use(+[]() -> CPalette * { return Farbtabellen::ScopeFarbenPalette(); });
    Use(+[](int a0) -> int { return Farbtabellen::SelvaneFarbIndex(std::forward<int>(a0)); });
    Use(+[](int a0) -> COLORREF { return Farbtabellen::SelvaneFarbe(std::forward<int>(a0)); });
    Use(+[]() -> CPalette * { return Farbtabellen::SelvaneFarbenPalette(); });
    Use(+[](int a0) -> COLORREF { return Farbtabellen::DruckFarbe(std::forward<int>(a0)); });
    Use(+[](COLORREF a0, unsigned int a1) -> DWORD { return Farbtabellen::MakeArgb(std::forward<COLORREF>(a0), std::forward<unsigned int>(a1)); });
    Use(+[](int a0, unsigned int a1) -> DWORD { return Farbtabellen::ArgbFarbe(std::forward<int>(a0), std::forward<unsigned int>(a1)); });
    Use(+[](unsigned int a0) -> COLORREF const * { return Farbtabellen::SpektrogrammFarbtabelle(std::forward<unsigned int>(a0)); });
    Use(+[](int a0) -> COLORREF const * { return Farbtabellen::SpektrogrammFarbtabelleSopeFarbe(std::forward<int>(a0)); });
    Use(+[](unsigned int a0) -> CString const & { return Farbtabellen::SpektrogrammFarbtabellenName(std::forward<unsigned int>(a0)); });

    // controls/ColorButton.h
    Use(+[]() { delete new CColorButton(); });
    Use(+[](CColorButton & object) -> void { return object.CColorButton::ResetColors(); });
    Use(+[](CColorButton & object, HICON a0, HICON a1, int a2) -> void { return object.CColorButton::SetIcons(std::forward<HICON>(a0), std::forward<HICON>(a1), std::forward<int>(a2)); });
    Use(+[](CColorButton & object, bool a0) -> void { return object.CColorButton::DrawFrame(std::forward<bool>(a0)); });
    Use(+[](CColorButton & object, bool a0) -> void { return object.CColorButton::DrawFocusFrame(std::forward<bool>(a0)); });
    Use(+[](CColorButton & object, UINT a0) -> BOOL { return object.CColorButton::SetDpi(std::forward<UINT>(a0)); });
    Use(+[](CColorButton const & object) -> UINT { return object.CColorButton::GetDpi(); });
    Use(+[](CColorButton & object, BOOL a0) -> void { return object.CColorButton::FollowDpi(std::forward<BOOL>(a0)); });
    Use(+[](CColorButton & object, LPDRAWITEMSTRUCT a0) -> void { return object.CColorButton::DrawItem(std::forward<LPDRAWITEMSTRUCT>(a0)); });

    // controls/ColorControl.h
    Use(+[]() { delete new CColorControl(); });
    Use(+[](CColorControl const & a0) { delete new CColorControl(std::forward<CColorControl const &>(a0)); });
    Use(+[](CColorControl & object, CColorControl const & a0) -> CColorControl & { return object.CColorControl::operator=(std::forward<CColorControl const &>(a0)); });
    Use(+[](CColorControl const & object, CColorControl::Color_e a0) -> unsigned long { return object.CColorControl::RgbColor(std::forward<CColorControl::Color_e>(a0)); });
    Use(+[](CColorControl & object, unsigned long a0, unsigned long a1, unsigned long a2, unsigned long a3) -> void { return object.CColorControl::SetColors(std::forward<unsigned long>(a0), std::forward<unsigned long>(a1), std::forward<unsigned long>(a2), std::forward<unsigned long>(a3)); });
    Use(+[](CColorControl & object, unsigned long a0, unsigned long a1) -> void { return object.CColorControl::SetColors(std::forward<unsigned long>(a0), std::forward<unsigned long>(a1)); });
    Use(+[](CColorControl & object, CColorControl::Color_e a0, CColorControl::Color_e a1, CColorControl::Color_e a2, CColorControl::Color_e a3) -> void { return object.CColorControl::SetColors(std::forward<CColorControl::Color_e>(a0), std::forward<CColorControl::Color_e>(a1), std::forward<CColorControl::Color_e>(a2), std::forward<CColorControl::Color_e>(a3)); });
    Use(+[](CColorControl & object, CColorControl::Color_e a0, CColorControl::Color_e a1) -> void { return object.CColorControl::SetColors(std::forward<CColorControl::Color_e>(a0), std::forward<CColorControl::Color_e>(a1)); });
    Use(+[](CColorControl & object, unsigned long a0) -> void { return object.CColorControl::SetFgColor(std::forward<unsigned long>(a0)); });
    Use(+[](CColorControl & object, CColorControl::Color_e a0) -> void { return object.CColorControl::SetFgColor(std::forward<CColorControl::Color_e>(a0)); });
    Use(+[](CColorControl & object, unsigned long a0) -> void { return object.CColorControl::SetBgColor(std::forward<unsigned long>(a0)); });
    Use(+[](CColorControl & object, CColorControl::Color_e a0) -> void { return object.CColorControl::SetBgColor(std::forward<CColorControl::Color_e>(a0)); });
    Use(+[](CColorControl & object, unsigned long a0) -> void { return object.CColorControl::SetHotFgColor(std::forward<unsigned long>(a0)); });
    Use(+[](CColorControl & object, unsigned long a0) -> void { return object.CColorControl::SetHotBgColor(std::forward<unsigned long>(a0)); });
    Use(+[](CColorControl & object, unsigned long a0, unsigned long a1) -> void { return object.CColorControl::SetDisabledColors(std::forward<unsigned long>(a0), std::forward<unsigned long>(a1)); });
    Use(+[](CColorControl & object, unsigned long a0) -> void { return object.CColorControl::SetDisabledFgColor(std::forward<unsigned long>(a0)); });
    Use(+[](CColorControl & object, unsigned long a0) -> void { return object.CColorControl::SetDisabledBgColor(std::forward<unsigned long>(a0)); });
    Use(+[](CColorControl & object, unsigned int a0) -> void { return object.CColorControl::SetRolloverDelay(std::forward<unsigned int>(a0)); });

    // controls/ComboBoxX.h
    Use(+[]() { delete new CComboBoxX(); });
    Use(+[](CComboBoxX & object, wchar_t const * a0, int a1) -> int { return object.CComboBoxX::AddItem(std::forward<wchar_t const *>(a0), std::forward<int>(a1)); });
    Use(+[](CComboBoxX & object, std::list<CString> const & a0, int a1, bool a2) -> void { return object.CComboBoxX::FillItems(std::forward<std::list<CString> const &>(a0), std::forward<int>(a1), std::forward<bool>(a2)); });
    Use(+[](CComboBoxX & object, std::map<int, CString> const & a0, bool a1) -> void { return object.CComboBoxX::FillItems(std::forward<std::map<int, CString> const &>(a0), std::forward<bool>(a1)); });
    Use(+[](CComboBoxX & object, int a0) -> int { return object.CComboBoxX::FindItemData(std::forward<int>(a0)); });
    Use(+[](CComboBoxX & object, int a0) -> int { return object.CComboBoxX::SelectItemData(std::forward<int>(a0)); });
    Use(+[](CComboBoxX & object, int a0) -> int { return object.CComboBoxX::GetSelectedItemData(std::forward<int>(a0)); });
    Use(+[](CComboBoxX & object, bool a0) -> void { return object.CComboBoxX::AutoComplete(std::forward<bool>(a0)); });
    Use(+[](CComboBoxX & object, bool a0) -> void { return object.CComboBoxX::AutoFit(std::forward<bool>(a0)); });
    Use(+[](CComboBoxX & object, bool a0) -> void { return object.CComboBoxX::Editable(std::forward<bool>(a0)); });
    Use(+[](CComboBoxX & object) -> bool { return object.CComboBoxX::FitToWidth(); });
    Use(+[](CComboBoxX & object) -> void { return object.CComboBoxX::FitToEditWidth(); });
    Use(+[](CComboBoxX & object, UINT a0) -> BOOL { return object.CComboBoxX::SetDpi(std::forward<UINT>(a0)); });
    Use(+[](CComboBoxX const & object) -> UINT { return object.CComboBoxX::GetDpi(); });
    Use(+[](CComboBoxX & object, BOOL a0) -> void { return object.CComboBoxX::FollowDpi(std::forward<BOOL>(a0)); });
    Use(+[](CComboBoxX & object, MSG * a0) -> BOOL { return object.CComboBoxX::PreTranslateMessage(std::forward<MSG *>(a0)); });

    // controls/FreeIconButton.h
    Use(+[]() { delete new CFreeIconButton(); });
    Use(+[](CFreeIconButton & object, UINT a0) -> BOOL { return object.CFreeIconButton::SetDpi(std::forward<UINT>(a0)); });
    Use(+[](CFreeIconButton const & object) -> UINT { return object.CFreeIconButton::GetDpi(); });
    Use(+[](CFreeIconButton & object, BOOL a0) -> void { return object.CFreeIconButton::FollowDpi(std::forward<BOOL>(a0)); });
    Use(+[](CFreeIconButton & object, LPDRAWITEMSTRUCT a0) -> void { return object.CFreeIconButton::DrawItem(std::forward<LPDRAWITEMSTRUCT>(a0)); });

    // controls/IdNameMultiselectCtrl.h
    Use(+[]() { delete new CIdNameMultiselectCtrl(); });
    Use(+[](CIdNameMultiselectCtrl & object, std::map<int, CString> const & a0) -> void { return object.CIdNameMultiselectCtrl::SetTheMap(std::forward<std::map<int, CString> const &>(a0)); });
    Use(+[](CIdNameMultiselectCtrl & object, int a0, CString const & a1) -> void { return object.CIdNameMultiselectCtrl::AddItem(std::forward<int>(a0), std::forward<CString const &>(a1)); });
    Use(+[](CIdNameMultiselectCtrl & object) -> void { return object.CIdNameMultiselectCtrl::ResetTheMap(); });
    Use(+[](CIdNameMultiselectCtrl const & object) -> std::map<int, CString> const & { return object.CIdNameMultiselectCtrl::TheMap(); });
    Use(+[](CIdNameMultiselectCtrl const & object, int a0) -> CString const & { return object.CIdNameMultiselectCtrl::GetName(std::forward<int>(a0)); });
    Use(+[](CIdNameMultiselectCtrl & object, std::set<int> const & a0) -> void { return object.CIdNameMultiselectCtrl::SetSelection(std::forward<std::set<int> const &>(a0)); });
    Use(+[](CIdNameMultiselectCtrl & object, int a0) -> void { return object.CIdNameMultiselectCtrl::SetSelection(std::forward<int>(a0)); });
    Use(+[](CIdNameMultiselectCtrl & object) -> void { return object.CIdNameMultiselectCtrl::SetSelectionAll(); });
    Use(+[](CIdNameMultiselectCtrl & object) -> void { return object.CIdNameMultiselectCtrl::SetSelectionNone(); });
    Use(+[](CIdNameMultiselectCtrl const & object) -> std::set<int> const & { return object.CIdNameMultiselectCtrl::TheSelection(); });
    Use(+[](CIdNameMultiselectCtrl & object, bool a0) -> void { return object.CIdNameMultiselectCtrl::ShowIds(std::forward<bool>(a0)); });
    Use(+[](CIdNameMultiselectCtrl & object, bool a0) -> void { return object.CIdNameMultiselectCtrl::ShowGroupedSelection(std::forward<bool>(a0)); });
    Use(+[](CIdNameMultiselectCtrl & object, bool a0) -> void { return object.CIdNameMultiselectCtrl::SortAlphabetically(std::forward<bool>(a0)); });
    Use(+[](CIdNameMultiselectCtrl & object) -> void { return object.CIdNameMultiselectCtrl::EnableOkCancel(); });
    Use(+[](CIdNameMultiselectCtrl & object, CString const & a0) -> void { return object.CIdNameMultiselectCtrl::SetEmptyMapMessage(std::forward<CString const &>(a0)); });
    Use(+[](CIdNameMultiselectCtrl & object) -> void { return object.CIdNameMultiselectCtrl::RefreshContent(); });
    Use(+[](CIdNameMultiselectCtrl & object) -> void { return object.CIdNameMultiselectCtrl::RefreshSelection(); });
    Use(+[](CIdNameMultiselectCtrl & object) -> void { return object.CIdNameMultiselectCtrl::RetrieveSelection(); });
    Use(+[](CIdNameMultiselectCtrl const & object) -> bool { return object.CIdNameMultiselectCtrl::SelectionRetrieved(); });
    Use(+[](CIdNameMultiselectCtrl & object, UINT a0) -> BOOL { return object.CIdNameMultiselectCtrl::SetDpi(std::forward<UINT>(a0)); });
    Use(+[](CIdNameMultiselectCtrl const & object) -> UINT { return object.CIdNameMultiselectCtrl::GetDpi(); });
    Use(+[](CIdNameMultiselectCtrl & object, BOOL a0) -> void { return object.CIdNameMultiselectCtrl::FollowDpi(std::forward<BOOL>(a0)); });
    Use(+[](CIdNameMultiselectCtrl & object, MSG * a0) -> BOOL { return object.CIdNameMultiselectCtrl::PreTranslateMessage(std::forward<MSG *>(a0)); });
    Use(+[](CIdNameMultiselectCtrl & object, LPDRAWITEMSTRUCT a0) -> void { return object.CIdNameMultiselectCtrl::DrawItem(std::forward<LPDRAWITEMSTRUCT>(a0)); });

    // controls/IdNameMultiselectDlg.h
    Use(+[](CWnd * a0) { delete new CIdNameMultiselectDlg(std::forward<CWnd *>(a0)); });
    Use(+[](CIdNameMultiselectDlg & object) -> INT_PTR { return object.CIdNameMultiselectDlg::DoModal(); });

    // controls/IdNameMultiselectListCtlr.h
    Use(+[] { delete new CIdNameMultiselectListCtlr; });

    // controls/LevelSliderCtrl.h
    Use(+[]() { delete new CLevelSliderCtrl(); });
    Use(+[](CLevelSliderCtrl & object, unsigned long a0) -> void { return object.CLevelSliderCtrl::SetMainColor(std::forward<unsigned long>(a0)); });
    Use(+[](CLevelSliderCtrl & object, unsigned long a0) -> void { return object.CLevelSliderCtrl::SetSecondColor(std::forward<unsigned long>(a0)); });
    Use(+[](CLevelSliderCtrl & object, UINT a0) -> BOOL { return object.CLevelSliderCtrl::SetDpi(std::forward<UINT>(a0)); });
    Use(+[](CLevelSliderCtrl const & object) -> UINT { return object.CLevelSliderCtrl::GetDpi(); });
    Use(+[](CLevelSliderCtrl & object, BOOL a0) -> void { return object.CLevelSliderCtrl::FollowDpi(std::forward<BOOL>(a0)); });

    // controls/ListBoxX.h
    Use(+[]() { delete new CListBoxX(); });
    Use(+[](CListBoxX & object, wchar_t const * a0, int a1) -> int { return object.CListBoxX::AddItem(std::forward<wchar_t const *>(a0), std::forward<int>(a1)); });
    Use(+[](CListBoxX & object, std::list<CString> const & a0, int a1, bool a2) -> void { return object.CListBoxX::FillItems(std::forward<std::list<CString> const &>(a0), std::forward<int>(a1), std::forward<bool>(a2)); });
    Use(+[](CListBoxX & object, std::map<int, CString> const & a0) -> void { return object.CListBoxX::FillItems(std::forward<std::map<int, CString> const &>(a0)); });
    Use(+[](CListBoxX & object, int a0) -> int { return object.CListBoxX::FindItemData(std::forward<int>(a0)); });
    Use(+[](CListBoxX & object, int a0) -> int { return object.CListBoxX::SelectItemData(std::forward<int>(a0)); });
    Use(+[](CListBoxX & object, int a0) -> int { return object.CListBoxX::GetSelectedItemData(std::forward<int>(a0)); });
    Use(+[](CListBoxX & object, UINT a0) -> BOOL { return object.CListBoxX::SetDpi(std::forward<UINT>(a0)); });
    Use(+[](CListBoxX const & object) -> UINT { return object.CListBoxX::GetDpi(); });
    Use(+[](CListBoxX & object, BOOL a0) -> void { return object.CListBoxX::FollowDpi(std::forward<BOOL>(a0)); });
    Use(+[](CListBoxX const & object, CPoint a0, int & a1) -> int { return object.CListBoxX::LbxZeileZumPunkt(std::forward<CPoint>(a0), std::forward<int &>(a1)); });
    Use(+[](CListBoxX const & object, CPoint a0, TOOLINFOW * a1) -> INT_PTR { return object.CListBoxX::OnToolHitTest(std::forward<CPoint>(a0), std::forward<TOOLINFOW *>(a1)); });
    Use(+[](CListBoxX & object, UINT a0, NMHDR * a1, LRESULT * a2) -> int { return object.CListBoxX::OnToolTipText(std::forward<UINT>(a0), std::forward<NMHDR *>(a1), std::forward<LRESULT *>(a2)); });

    // controls/XEditBrowseCtrl.h
    Use(+[]() { delete new CXEditBrowseCtrl(); });
    Use(+[](CXEditBrowseCtrl & object, CString const & a0, wchar_t const * a1, wchar_t const * a2) -> void { return object.CXEditBrowseCtrl::PrepareFileOpenBrowser(std::forward<CString const &>(a0), std::forward<wchar_t const *>(a1), std::forward<wchar_t const *>(a2)); });
    Use(+[](CXEditBrowseCtrl & object, CString const & a0, wchar_t const * a1, wchar_t const * a2) -> void { return object.CXEditBrowseCtrl::PrepareFileSaveAsBrowser(std::forward<CString const &>(a0), std::forward<wchar_t const *>(a1), std::forward<wchar_t const *>(a2)); });
    Use(+[](CXEditBrowseCtrl & object) -> void { return object.CXEditBrowseCtrl::PrepareIdNameBrowser(); });
    Use(+[](CXEditBrowseCtrl & object) -> void { return object.CXEditBrowseCtrl::PrepareLongIdNameBrowser(); });
    Use(+[](CXEditBrowseCtrl & object, wchar_t const * a0) -> void { return object.CXEditBrowseCtrl::SetDefaultFilename(std::forward<wchar_t const *>(a0)); });
    Use(+[](CXEditBrowseCtrl & object, CString const & a0) -> void { return object.CXEditBrowseCtrl::SetDlgTitle(std::forward<CString const &>(a0)); });
    Use(+[](CXEditBrowseCtrl & object, unsigned long a0) -> void { return object.CXEditBrowseCtrl::SetAdditionalFileFlags(std::forward<unsigned long>(a0)); });
    Use(+[](CXEditBrowseCtrl & object, unsigned int a0) -> void { return object.CXEditBrowseCtrl::SetNotifyTag(std::forward<unsigned int>(a0)); });
    Use(+[](CXEditBrowseCtrl & object) -> void { return object.CXEditBrowseCtrl::BrowseNow(); });
    Use(+[](CXEditBrowseCtrl & object) -> void { return object.CXEditBrowseCtrl::ResetTheMap(); });
    Use(+[](CXEditBrowseCtrl & object, int a0, CString const & a1) -> void { return object.CXEditBrowseCtrl::AddItem(std::forward<int>(a0), std::forward<CString const &>(a1)); });
    Use(+[](CXEditBrowseCtrl & object, std::map<int, CString> const & a0) -> void { return object.CXEditBrowseCtrl::SetTheMap(std::forward<std::map<int, CString> const &>(a0)); });
    Use(+[](CXEditBrowseCtrl & object, std::set<int> const & a0) -> void { return object.CXEditBrowseCtrl::SetSelection(std::forward<std::set<int> const &>(a0)); });
    Use(+[](CXEditBrowseCtrl & object, int a0) -> void { return object.CXEditBrowseCtrl::SetSelection(std::forward<int>(a0)); });
    Use(+[](CXEditBrowseCtrl & object) -> void { return object.CXEditBrowseCtrl::SetSelectionAll(); });
    Use(+[](CXEditBrowseCtrl & object) -> void { return object.CXEditBrowseCtrl::SetSelectionNone(); });
    Use(+[](CXEditBrowseCtrl const & object) -> std::set<int> const & { return object.CXEditBrowseCtrl::TheSelection(); });
    Use(+[](CXEditBrowseCtrl const & object) -> bool { return object.CXEditBrowseCtrl::SelectionChanged(); });
    Use(+[](CXEditBrowseCtrl & object) -> void { return object.CXEditBrowseCtrl::SelectionAcknowledged(); });
    Use(+[](CXEditBrowseCtrl & object) -> void { return object.CXEditBrowseCtrl::UpdateSelectionText(); });
    Use(+[](CXEditBrowseCtrl & object, UINT a0) -> BOOL { return object.CXEditBrowseCtrl::SetDpi(std::forward<UINT>(a0)); });
    Use(+[](CXEditBrowseCtrl const & object) -> UINT { return object.CXEditBrowseCtrl::GetDpi(); });
    Use(+[](CXEditBrowseCtrl & object, BOOL a0) -> void { return object.CXEditBrowseCtrl::FollowDpi(std::forward<BOOL>(a0)); });
    Use(+[](CXEditBrowseCtrl & object) -> void { return object.CXEditBrowseCtrl::OnBrowse(); });

    // controls/XTreeCtrl.h
    Use(+[]() { delete new CXTreeCtrl(); });
    Use(+[](CXTreeCtrl & object, wchar_t const * a0, HTREEITEM a1, HTREEITEM a2, int a3) -> HTREEITEM { return object.CXTreeCtrl::InsertTreeItem(std::forward<wchar_t const *>(a0), std::forward<HTREEITEM>(a1), std::forward<HTREEITEM>(a2), std::forward<int>(a3)); });
    Use(+[](CXTreeCtrl & object, wchar_t const * a0, int a1, int a2, HTREEITEM a3, HTREEITEM a4, int a5) -> HTREEITEM { return object.CXTreeCtrl::InsertTreeItem(std::forward<wchar_t const *>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<HTREEITEM>(a3), std::forward<HTREEITEM>(a4), std::forward<int>(a5)); });
    Use(+[](CXTreeCtrl & object, wchar_t const * a0, int a1, int a2, HTREEITEM a3, int a4, int a5, HTREEITEM a6, int a7) -> HTREEITEM { return object.CXTreeCtrl::InsertTreeItem(std::forward<wchar_t const *>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<HTREEITEM>(a3), std::forward<int>(a4), std::forward<int>(a5), std::forward<HTREEITEM>(a6), std::forward<int>(a7)); });
    Use(+[](CXTreeCtrl & object, HTREEITEM a0) -> CXTreeCtrl::ItemData * { return object.CXTreeCtrl::GetItemData(std::forward<HTREEITEM>(a0)); });
    Use(+[](CXTreeCtrl const & object, HTREEITEM a0) -> CXTreeCtrl::ItemData const * { return object.CXTreeCtrl::GetItemData(std::forward<HTREEITEM>(a0)); });
    Use(+[](CXTreeCtrl & object) -> CXTreeCtrl::ItemData * { return object.CXTreeCtrl::GetSelectedItemData(); });
    Use(+[](CXTreeCtrl const & object, HTREEITEM a0) -> int { return object.CXTreeCtrl::GetItemType(std::forward<HTREEITEM>(a0)); });
    Use(+[](CXTreeCtrl const & object, HTREEITEM a0) -> int { return object.CXTreeCtrl::GetItemId(std::forward<HTREEITEM>(a0)); });
    Use(+[](CXTreeCtrl & object, HTREEITEM a0) -> int * { return object.CXTreeCtrl::GetItemClavis(std::forward<HTREEITEM>(a0)); });
    Use(+[](CXTreeCtrl & object, HTREEITEM a0, int & a1, int & a2) -> int * { return object.CXTreeCtrl::GetItemClavis(std::forward<HTREEITEM>(a0), std::forward<int &>(a1), std::forward<int &>(a2)); });
    Use(+[](CXTreeCtrl const & object, HTREEITEM a0) -> void * { return object.CXTreeCtrl::GetItemDataPtr(std::forward<HTREEITEM>(a0)); });
    Use(+[](CXTreeCtrl & object, HTREEITEM a0, void * a1) -> void { return object.CXTreeCtrl::SetItemDataPtr(std::forward<HTREEITEM>(a0), std::forward<void *>(a1)); });
    Use(+[](CXTreeCtrl & object, HTREEITEM a0, int a1, int a2, int const * a3) -> void { return object.CXTreeCtrl::SetItemData(std::forward<HTREEITEM>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int const *>(a3)); });
    Use(+[](CXTreeCtrl & object, HTREEITEM a0, int a1, int a2, int const * a3, int a4, int a5) -> void { return object.CXTreeCtrl::SetItemData(std::forward<HTREEITEM>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int const *>(a3), std::forward<int>(a4), std::forward<int>(a5)); });
    Use(+[](CXTreeCtrl & object, HTREEITEM a0, int a1, int a2, int const * a3) -> void { return object.CXTreeCtrl::SetItemData8(std::forward<HTREEITEM>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int const *>(a3)); });
    Use(+[](CXTreeCtrl & object, HTREEITEM a0, int const * a1) -> void { return object.CXTreeCtrl::SetItemClavis(std::forward<HTREEITEM>(a0), std::forward<int const *>(a1)); });
    Use(+[](CXTreeCtrl & object, HTREEITEM a0, int const * a1) -> void { return object.CXTreeCtrl::SetItemClavis8(std::forward<HTREEITEM>(a0), std::forward<int const *>(a1)); });
    Use(+[](CXTreeCtrl const & object, HTREEITEM a0, int a1, int a2, int const * a3, wchar_t const * a4, bool a5) -> bool { return object.CXTreeCtrl::ItemDataMatch(std::forward<HTREEITEM>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int const *>(a3), std::forward<wchar_t const *>(a4), std::forward<bool>(a5)); });
    Use(+[](CXTreeCtrl const & object, HTREEITEM a0, int a1, int a2, int const * a3) -> bool { return object.CXTreeCtrl::ItemDataMatchBest(std::forward<HTREEITEM>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int const *>(a3)); });
    Use(+[](CXTreeCtrl const & object, HTREEITEM a0, int a1, int a2, int const * a3) -> bool { return object.CXTreeCtrl::ItemDataMatchExact(std::forward<HTREEITEM>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int const *>(a3)); });
    Use(+[](CXTreeCtrl & object, int a0, int a1, int const * a2, HTREEITEM a3, bool a4) -> HTREEITEM { return object.CXTreeCtrl::FindItem(std::forward<int>(a0), std::forward<int>(a1), std::forward<int const *>(a2), std::forward<HTREEITEM>(a3), std::forward<bool>(a4)); });
    Use(+[](CXTreeCtrl & object, int a0, int a1, int const * a2, wchar_t const * a3, HTREEITEM a4, bool a5) -> HTREEITEM { return object.CXTreeCtrl::FindItem(std::forward<int>(a0), std::forward<int>(a1), std::forward<int const *>(a2), std::forward<wchar_t const *>(a3), std::forward<HTREEITEM>(a4), std::forward<bool>(a5)); });
    Use(+[](CXTreeCtrl & object, int a0, int a1, int const * a2, wchar_t const * a3, HTREEITEM a4, bool a5) -> HTREEITEM { return object.CXTreeCtrl::FindChildItem(std::forward<int>(a0), std::forward<int>(a1), std::forward<int const *>(a2), std::forward<wchar_t const *>(a3), std::forward<HTREEITEM>(a4), std::forward<bool>(a5)); });
    Use(+[](CXTreeCtrl & object, std::list<HTREEITEM> & a0, int a1, int a2, int const * a3, HTREEITEM a4, bool a5) -> unsigned int { return object.CXTreeCtrl::FindAllItems(std::forward<std::list<HTREEITEM> &>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int const *>(a3), std::forward<HTREEITEM>(a4), std::forward<bool>(a5)); });
    Use(+[](CXTreeCtrl & object, std::list<HTREEITEM> & a0, HTREEITEM a1) -> unsigned int { return object.CXTreeCtrl::CollectAllItems(std::forward<std::list<HTREEITEM> &>(a0), std::forward<HTREEITEM>(a1)); });
    Use(+[](CXTreeCtrl & object, HTREEITEM a0) -> void { return object.CXTreeCtrl::DeleteTreeItem(std::forward<HTREEITEM>(a0)); });
    Use(+[](CXTreeCtrl & object, HTREEITEM a0) -> void { return object.CXTreeCtrl::DeleteAllSubItems(std::forward<HTREEITEM>(a0)); });
    Use(+[](CXTreeCtrl & object) -> void { return object.CXTreeCtrl::ResetContent(); });
    Use(+[](CXTreeCtrl & object, int a0) -> void { return object.CXTreeCtrl::ExpandTree(std::forward<int>(a0)); });
    Use(+[](CXTreeCtrl & object, unsigned int a0) -> void { return object.CXTreeCtrl::DontAbsorbKeys(std::forward<unsigned int>(a0)); });
    Use(+[](CXTreeCtrl & object) -> void { return object.CXTreeCtrl::DontAbsorbAnyKeys(); });
    Use(+[](CXTreeCtrl & object) -> void { return object.CXTreeCtrl::DontAbsorbNormalKeys(); });
    Use(+[](CXTreeCtrl & object, bool a0) -> void { return object.CXTreeCtrl::DontAbsorbControlKeys(std::forward<bool>(a0)); });
    Use(+[](CXTreeCtrl & object) -> void { return object.CXTreeCtrl::DontHandleDoubleclick(); });
    Use(+[](CXTreeCtrl & object, UINT a0) -> BOOL { return object.CXTreeCtrl::SetDpi(std::forward<UINT>(a0)); });
    Use(+[](CXTreeCtrl const & object) -> UINT { return object.CXTreeCtrl::GetDpi(); });
    Use(+[](CXTreeCtrl & object, BOOL a0) -> void { return object.CXTreeCtrl::FollowDpi(std::forward<BOOL>(a0)); });
    Use(+[](CXTreeCtrl & object, MSG * a0) -> BOOL { return object.CXTreeCtrl::PreTranslateMessage(std::forward<MSG *>(a0)); });

    // controls/XTreeItems.h
    Use(+[] { delete new XTreeItemData; });
    Use(+[](Records & a0, Records & a1) -> XTreeItemData * { return xtree::TakeRecord(std::forward<Records &>(a0), std::forward<Records &>(a1)); });
    Use(+[](Records & a0, Records & a1, XTreeItemData const * a2) -> void { return xtree::ReturnRecord(std::forward<Records &>(a0), std::forward<Records &>(a1), std::forward<XTreeItemData const *>(a2)); });
    Use(+[](Records & a0, Records & a1) -> void { return xtree::ReturnAllRecords(std::forward<Records &>(a0), std::forward<Records &>(a1)); });
    Use(+[](Records & a0) -> void { return xtree::FreeRecords(std::forward<Records &>(a0)); });
    Use(+[](XTreeItemData const * a0, int a1, int a2, int const * a3) -> bool { return xtree::MatchesBest(std::forward<XTreeItemData const *>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int const *>(a3)); });
    Use(+[](XTreeItemData const * a0, int a1, int a2, int const * a3) -> bool { return xtree::MatchesExactly(std::forward<XTreeItemData const *>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int const *>(a3)); });
    Use(+[](unsigned int a0, unsigned int a1) -> bool { return xtree::PassesKey(std::forward<unsigned int>(a0), std::forward<unsigned int>(a1)); });

    // dialogs/Dialog3d.h
    Use(+[]() { delete new CDialog3d::CSizeGrip(); });
    Use(+[](CDialog3d::CSizeGrip & object, CWnd * a0) -> BOOL { return object.CDialog3d::CSizeGrip::Create(std::forward<CWnd *>(a0)); });
    Use(&CDialog3d::NO_DLL);
    Use(&CDialog3d::g_touchFreeze);
    Use(+[](AFX_EXTENSION_MODULE a0, unsigned int a1, CWnd * a2) { delete new CDialog3d(std::forward<AFX_EXTENSION_MODULE>(a0), std::forward<unsigned int>(a1), std::forward<CWnd *>(a2)); });
    Use(+[](CDialog3d & object, UINT a0, int a1, void * a2, AFX_CMDHANDLERINFO * a3) -> BOOL { return object.CDialog3d::OnCmdMsg(std::forward<UINT>(a0), std::forward<int>(a1), std::forward<void *>(a2), std::forward<AFX_CMDHANDLERINFO *>(a3)); });
    Use(+[](CDialog3d & object) -> void { return object.CDialog3d::PreSubclassWindow(); });
    Use(+[](CDialog3d & object, MSG * a0) -> BOOL { return object.CDialog3d::PreTranslateMessage(std::forward<MSG *>(a0)); });
    Use(+[](CDialog3d & object) -> INT_PTR { return object.CDialog3d::DoModal(); });
    Use(+[](CDialog3d & object) -> BOOL { return object.CDialog3d::OnInitDialog(); });
    Use(+[](CDialog3d & object) -> int { return object.CDialog3d::DisplayDialog(); });
    Use(+[](CDialog3d const & object) -> bool { return object.CDialog3d::IsOpen(); });
    Use(+[](CDialog3d & object) -> bool { return object.CDialog3d::OpenInitially(); });
    Use(+[](CDialog3d & object) -> void { return object.CDialog3d::FensterpositionLaden(); });
    Use(+[](CDialog3d & object) -> void { return object.CDialog3d::FensterpositionSpeichern(); });
    Use(+[](CDialog3d & object, CString const & a0) -> void { return object.CDialog3d::SetDialogTitle(std::forward<CString const &>(a0)); });
    Use(+[](CDialog3d const & object) -> CString const & { return object.CDialog3d::GetDialogTitle(); });
    Use(+[](CDialog3d & object, CString const & a0) -> bool { return object.CDialog3d::SetGenuineTitle(std::forward<CString const &>(a0)); });
    Use(+[](CDialog3d const & object) -> CString const & { return object.CDialog3d::GetGenuineTitle(); });
    Use(+[](CDialog3d & object, CDialog3d::icon_t a0) -> void { return object.CDialog3d::SelectIcon(std::forward<CDialog3d::icon_t>(a0)); });
    Use(+[](CDialog3d & object, unsigned long a0) -> void { return object.CDialog3d::Einblenden(std::forward<unsigned long>(a0)); });
    Use(+[](CDialog3d & object, unsigned long a0) -> void { return object.CDialog3d::Ausblenden(std::forward<unsigned long>(a0)); });
    Use(+[](CDialog3d & object, int a0, unsigned long a1) -> void { return object.CDialog3d::Ueberblenden(std::forward<int>(a0), std::forward<unsigned long>(a1)); });
    Use(+[](CDialog3d & object, unsigned char a0) -> void { return object.CDialog3d::DurchsichtigkeitSetzen(std::forward<unsigned char>(a0)); });
    Use(+[](CDialog3d & object, unsigned char a0) -> void { return object.CDialog3d::DurchsichtigkeitBeiInaktiv(std::forward<unsigned char>(a0)); });
    Use(+[](CDialog3d & object, bool a0) -> void { return object.CDialog3d::SetGrabAndMove(std::forward<bool>(a0)); });
    Use(+[](CDialog3d & object, bool a0) -> void { return object.CDialog3d::SetPaneChildMode(std::forward<bool>(a0)); });
    Use(+[](CDialog3d const & object) -> bool { return object.CDialog3d::GetPaneChildMode(); });
    Use(+[](bool a0) -> void { return CDialog3d::SetTouchFreeze(std::forward<bool>(a0)); });
    Use(+[]() -> bool { return CDialog3d::IsInTouchFreeze(); });
    Use(+[](bool a0) -> void { return CDialog3d::PumpPaintMessages(std::forward<bool>(a0)); });
    Use(+[](unsigned int a0) -> bool { return CDialog3d::PumpWindowsMessages(std::forward<unsigned int>(a0)); });
    Use(+[](CDialog3d & object, unsigned int a0) -> void { return object.CDialog3d::DontAbsorbKeys(std::forward<unsigned int>(a0)); });
    Use(+[](CDialog3d & object) -> void { return object.CDialog3d::DontAbsorbAnyKeys(); });
    Use(+[](CDialog3d & object) -> void { return object.CDialog3d::DontAbsorbNormalKeys(); });
    Use(+[](CDialog3d & object, bool a0) -> void { return object.CDialog3d::DontAbsorbControlKeys(std::forward<bool>(a0)); });

    // dialogs/DialogDrag.h
    Use(+[](CDialogDrag & object, bool a0) -> void { return object.CDialogDrag::Enable(std::forward<bool>(a0)); });
    Use(+[](CDialogDrag const & object, unsigned int a0, bool a1) -> bool { return object.CDialogDrag::StartsWith(std::forward<unsigned int>(a0), std::forward<bool>(a1)); });
    Use(+[](CDialogDrag & object, CPoint a0, CRect const & a1) -> void { return object.CDialogDrag::Start(std::forward<CPoint>(a0), std::forward<CRect const &>(a1)); });
    Use(+[](CDialogDrag const & object) -> bool { return object.CDialogDrag::Runs(); });
    Use(+[](CDialogDrag & object, CPoint a0) -> CPoint { return object.CDialogDrag::MoveTo(std::forward<CPoint>(a0)); });
    Use(+[](CDialogDrag & object) -> bool { return object.CDialogDrag::End(); });
    Use(+[] { delete new CDialogDrag; });

    // dialogs/DialogFade.h
    Use(+[](CDialogFade const & object) -> std::uint8_t { return object.CDialogFade::Alpha(); });
    Use(+[](CDialogFade & object, std::uint8_t a0) -> void { return object.CDialogFade::SetAlpha(std::forward<std::uint8_t>(a0)); });
    Use(+[](CDialogFade & object, int a0, std::int32_t a1) -> bool { return object.CDialogFade::Start(std::forward<int>(a0), std::forward<std::int32_t>(a1)); });
    Use(+[](CDialogFade & object) -> std::optional<std::uint8_t> { return object.CDialogFade::Tick(); });
    Use(+[](CDialogFade const & object) -> int { return object.CDialogFade::Target(); });
    Use(+[](CDialogFade const & object) -> int { return object.CDialogFade::Step(); });
    Use(+[] { delete new CDialogFade; });

    // dialogs/FolderDialog.h
    Use(+[](HWND__ * a0) { delete new CFolderDialog(std::forward<HWND__ *>(a0)); });
    Use(+[](CFolderDialog const & a0) { delete new CFolderDialog(std::forward<CFolderDialog const &>(a0)); });
    Use(+[](CFolderDialog & object, CFolderDialog const & a0) -> CFolderDialog & { return object.CFolderDialog::operator=(std::forward<CFolderDialog const &>(a0)); });
    Use(+[](CFolderDialog & object) -> int { return object.CFolderDialog::DoModal(); });
    Use(+[](CFolderDialog & object) -> CString { return object.CFolderDialog::GetFolder(); });
    Use(+[](CFolderDialog & object) -> CString { return object.CFolderDialog::GetPathName(); });
    Use(+[](CFolderDialog & object, wchar_t const * a0) -> void { return object.CFolderDialog::SetInitialDir(std::forward<wchar_t const *>(a0)); });
    Use(+[](CFolderDialog & object, wchar_t const * a0) -> void { return object.CFolderDialog::SetTitleMessage(std::forward<wchar_t const *>(a0)); });
    Use(+[](CFolderDialog & object, unsigned int a0) -> void { return object.CFolderDialog::SetBrowseInfoFlags(std::forward<unsigned int>(a0)); });
    Use(+[](CFolderDialog & object, unsigned int a0) -> void { return object.CFolderDialog::AddBrowseInfoFlags(std::forward<unsigned int>(a0)); });

    // dialogs/KeyGroups.h
    Use(+[](unsigned int a0, unsigned int a1) -> bool { return KeyGroups::LeavesToOthers(std::forward<unsigned int>(a0), std::forward<unsigned int>(a1)); });

    // dialogs/PopupConfig.h
    Use(+[](CString const & a0, std::function<void()> const & a1) { delete new CPopupConfigEntry(std::forward<CString const &>(a0), std::forward<std::function<void()> const &>(a1)); });
    Use(+[](CPopupConfigEntry const & object) -> CString const & { return object.CPopupConfigEntry::Text(); });
    Use(+[](CPopupConfigEntry const & object) -> std::function<void()> const & { return object.CPopupConfigEntry::Callback(); });
    Use(+[](CPopupConfigEntry const & object) -> int { return object.CPopupConfigEntry::ID(); });
    Use(+[](CPopupConfig & object, CPopupConfigEntry a0) -> void { return object.CPopupConfig::Add(std::forward<CPopupConfigEntry>(a0)); });
    Use(+[](CPopupConfig & object, CString const & a0, std::function<void()> const & a1) -> void { return object.CPopupConfig::Add(std::forward<CString const &>(a0), std::forward<std::function<void()> const &>(a1)); });
    Use(+[](CPopupConfig & object) -> void { return object.CPopupConfig::AddSeparator(); });
    Use(+[](CPopupConfig const & object) -> std::size_t { return object.CPopupConfig::size(); });
    Use(+[](CPopupConfig const & object) -> bool { return object.CPopupConfig::empty(); });
    Use(+[](CPopupConfig const & object) { return object.CPopupConfig::begin(); });
    Use(+[](CPopupConfig const & object) { return object.CPopupConfig::end(); });
    Use(+[](CPopupConfig & object, int a0) -> void { return object.CPopupConfig::NumberAfter(std::forward<int>(a0)); });
    Use(+[](CPopupConfig const & object, unsigned int a0) -> CPopupConfigEntry const * { return object.CPopupConfig::Find(std::forward<unsigned int>(a0)); });
    Use(+[] { delete new CPopupConfig; });

    // dialogs/PropertyPage3d.h
    Use(+[](AFX_EXTENSION_MODULE a0, unsigned int a1, unsigned int a2) { delete new CPropertyPage3d(std::forward<AFX_EXTENSION_MODULE>(a0), std::forward<unsigned int>(a1), std::forward<unsigned int>(a2)); });
    Use(+[](AFX_EXTENSION_MODULE a0, unsigned int a1, CString const & a2) { delete new CPropertyPage3d(std::forward<AFX_EXTENSION_MODULE>(a0), std::forward<unsigned int>(a1), std::forward<CString const &>(a2)); });
    Use(+[](CPropertyPage3d & object, CString const & a0) -> void { return object.CPropertyPage3d::SetTitle(std::forward<CString const &>(a0)); });
    Use(+[](CPropertyPage3d & object) -> BOOL { return object.CPropertyPage3d::OnInitDialog(); });

    // dialogs/PropertySheet3d.h
    Use(+[](wchar_t const * a0, CWnd * a1, unsigned int a2) { delete new CPropertySheet3d(std::forward<wchar_t const *>(a0), std::forward<CWnd *>(a1), std::forward<unsigned int>(a2)); });
    Use(+[](unsigned int a0, CWnd * a1, unsigned int a2) -> std::unique_ptr<CPropertySheet3d> { return CPropertySheet3d::FromCaption(std::forward<unsigned int>(a0), std::forward<CWnd *>(a1), std::forward<unsigned int>(a2)); });
    Use(+[](CPropertySheet3d & object) -> int { return object.CPropertySheet3d::Display(); });
    Use(+[](CPropertySheet3d & object, CWnd * a0) -> int { return object.CPropertySheet3d::DisplayDialog(std::forward<CWnd *>(a0)); });
    Use(+[](CPropertySheet3d const & object) -> bool { return object.CPropertySheet3d::IsOpen(); });
    Use(+[](CPropertySheet3d & object) -> void { return object.CPropertySheet3d::CloseDialog(); });
    Use(+[](CPropertySheet3d & object, CString const & a0) -> void { return object.CPropertySheet3d::SetDialogTitle(std::forward<CString const &>(a0)); });
    Use(+[](CPropertySheet3d & object, bool a0) -> void { return object.CPropertySheet3d::SetResizable(std::forward<bool>(a0)); });
    Use(+[](CPropertySheet3d & object) -> BOOL { return object.CPropertySheet3d::OnInitDialog(); });

    // dialogs/SprachauswahlDlg.h
    Use(+[](unsigned short a0, CWnd * a1) { delete new CSprachauswahlDlg(std::forward<unsigned short>(a0), std::forward<CWnd *>(a1)); });
    Use(+[](CSprachauswahlDlg & object) -> INT_PTR { return object.CSprachauswahlDlg::DoModal(); });
    Use(+[](CSprachauswahlDlg const & object) -> unsigned short { return object.CSprachauswahlDlg::SprachId(); });
    Use(+[](CSprachauswahlDlg const & object) -> bool { return object.CSprachauswahlDlg::SpracheGeaendert(); });

    // frame/CoreLibrary.h
    Use(+[](HINSTANCE a0) { delete new CResourceModuleScope(std::forward<HINSTANCE>(a0)); });
    Use(+[]() { delete new CStepCounter(); });
    Use(+[](CStepCounter & object, int a0, int a1) -> void { return object.CStepCounter::set_range(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CStepCounter & object, bool a0) -> int { return object.CStepCounter::step(std::forward<bool>(a0)); });
    Use(+[](CStepCounter const & object) -> int { return object.CStepCounter::operator()(); });
    Use(+[](unsigned long a0) -> CString { return ::SystemErrorText(std::forward<unsigned long>(a0)); });
    Use(+[](CTime a0, dtf_style_t a1) -> CString { return ::UserDateTimeText(std::forward<CTime>(a0), std::forward<dtf_style_t>(a1)); });

    // frame/PreferenceStore.h
    Use(+[]() -> CResourceVesk * { return CVeskBase::PreferenceVesk(); });
    Use(+[](CResourceVesk * a0) -> void { return CVeskBase::SetPreferenceVesk(std::forward<CResourceVesk *>(a0)); });
    Use(+[] { delete new CVeskBase; });

    // frame/RegisteredMessages.h
    Use(&WM_IDNAME_MULTISELECT_EVENT);
    Use(&WM_XEDITBROWSE_COMPLETED);
    Use(&WM_XLISTCTRL_CHECKBOX_CLICKED);
    Use(&WM_XLISTCTRL_COLUMNCLICK);
    Use(&WM_XLISTCTRL_COMBO_SELECTION);
    Use(&WM_XLISTCTRL_EDIT_END);
    Use(&WM_XLISTCTRL_ITEM_DBLCLICKED);
    Use(&WM_XLISTCTRL_LINK_CLICKED);
    Use(&WM_XTREECTRL_DBLCLK);

    // layout/DialogResizer.h
    Use(+[](CWnd & a0, CString const & a1) { delete new CDialogResizer(std::forward<CWnd &>(a0), std::forward<CString const &>(a1)); });
    Use(+[](CDialogResizer & object, CWnd * a0, CEdges const & a1, CRect const * a2) -> void { return object.CDialogResizer::PositionChild(std::forward<CWnd *>(a0), std::forward<CEdges const &>(a1), std::forward<CRect const *>(a2)); });
    Use(+[](CDialogResizer & object, int a0, CEdges const & a1, CRect const * a2) -> void { return object.CDialogResizer::PositionChild(std::forward<int>(a0), std::forward<CEdges const &>(a1), std::forward<CRect const *>(a2)); });
    Use(+[](CDialogResizer & object, CWnd * a0, CRect const & a1, CRect const * a2) -> void { return object.CDialogResizer::PositionChild(std::forward<CWnd *>(a0), std::forward<CRect const &>(a1), std::forward<CRect const *>(a2)); });
    Use(+[](CDialogResizer & object, int a0, CRect const & a1, CRect const * a2) -> void { return object.CDialogResizer::PositionChild(std::forward<int>(a0), std::forward<CRect const &>(a1), std::forward<CRect const *>(a2)); });
    Use(+[](CDialogResizer & object, CWnd const * a0, CSize const * a1, CSize const * a2, bool a3) -> void { return object.CDialogResizer::RepositionChild(std::forward<CWnd const *>(a0), std::forward<CSize const *>(a1), std::forward<CSize const *>(a2), std::forward<bool>(a3)); });
    Use(+[](CDialogResizer & object, int a0, CSize const * a1, CSize const * a2, bool a3) -> void { return object.CDialogResizer::RepositionChild(std::forward<int>(a0), std::forward<CSize const *>(a1), std::forward<CSize const *>(a2), std::forward<bool>(a3)); });
    Use(+[](CDialogResizer & object) -> void { return object.CDialogResizer::OnSize(); });
    Use(+[](CDialogResizer & object, tagMINMAXINFO * a0, CDialogResizer::resize_dims_t a1) -> void { return object.CDialogResizer::OnGetMinMaxInfo(std::forward<tagMINMAXINFO *>(a0), std::forward<CDialogResizer::resize_dims_t>(a1)); });
    Use(+[](CDialogResizer & object) -> void { return object.CDialogResizer::RestoreStoredPosition(); });

    // layout/Edges.h
    Use(+[](CEdges const & a0) { delete new CEdges(std::forward<CEdges const &>(a0)); });
    Use(+[](CEdges & object, CEdges const & a0) -> CEdges & { return object.CEdges::operator=(std::forward<CEdges const &>(a0)); });
    Use(+[]() -> CEdges { return CEdges::LEFT(); });
    Use(+[]() -> CEdges { return CEdges::RIGHT(); });
    Use(+[]() -> CEdges { return CEdges::TOP(); });
    Use(+[]() -> CEdges { return CEdges::BOTTOM(); });
    Use(+[]() -> CEdges { return CEdges::LEFT_HALF(); });
    Use(+[]() -> CEdges { return CEdges::RIGHT_HALF(); });
    Use(+[]() -> CEdges { return CEdges::TOP_HALF(); });
    Use(+[]() -> CEdges { return CEdges::BOTTOM_HALF(); });
    Use(+[]() -> CEdges { return CEdges::HORI_CENTER(); });
    Use(+[]() -> CEdges { return CEdges::VERT_CENTER(); });
    Use(+[]() -> CEdges { return CEdges::TOP_THIRD(); });
    Use(+[]() -> CEdges { return CEdges::TOP_TWOTHIRD(); });
    Use(+[]() -> CEdges { return CEdges::BOTTOM_THIRD(); });
    Use(+[]() -> CEdges { return CEdges::BOTTOM_TWOTHIRD(); });
    Use(+[]() -> CEdges { return CEdges::LEFT_RIGHT(); });
    Use(+[]() -> CEdges { return CEdges::TOP_BOTTOM(); });
    Use(+[]() -> CEdges { return CEdges::TOP_LEFT(); });
    Use(+[]() -> CEdges { return CEdges::TOP_RIGHT(); });
    Use(+[]() -> CEdges { return CEdges::BOTTOM_LEFT(); });
    Use(+[]() -> CEdges { return CEdges::BOTTOM_RIGHT(); });
    Use(+[]() -> CEdges { return CEdges::TOP_LEFT_RIGHT(); });
    Use(+[]() -> CEdges { return CEdges::BOTTOM_LEFT_RIGHT(); });
    Use(+[]() -> CEdges { return CEdges::TOP_LEFT_BOTTOM(); });
    Use(+[]() -> CEdges { return CEdges::TOP_RIGHT_BOTTOM(); });
    Use(+[]() -> CEdges { return CEdges::TOP_LEFT_BOTTOM_RIGHT(); });
    Use(+[]() -> CEdges { return CEdges::TOP_CENTER(); });
    Use(+[]() -> CEdges { return CEdges::BOTTOM_CENTER(); });
    Use(+[](CEdges const & object, CEdges const & a0) -> bool { return object.CEdges::operator&(std::forward<CEdges const &>(a0)); });
    Use(+[](CEdges const & object, CEdges const & a0) -> CEdges { return object.CEdges::operator|(std::forward<CEdges const &>(a0)); });

    // list/XHeaderCtrl.h
    Use(+[]() { delete new CXHeaderCtrl(); });
    Use(+[](CXHeaderCtrl & object, CXListCtrl * a0) -> void { return object.CXHeaderCtrl::SetList(std::forward<CXListCtrl *>(a0)); });
    Use(+[](CXHeaderCtrl & object, unsigned int a0) -> void { return object.CXHeaderCtrl::SetAlignment(std::forward<unsigned int>(a0)); });
    Use(+[](CXHeaderCtrl & object, COLORREF a0) -> void { return object.CXHeaderCtrl::SetTextColor(std::forward<COLORREF>(a0)); });
    Use(+[](CXHeaderCtrl & object, bool a0) -> void { return object.CXHeaderCtrl::SetUseImageList(std::forward<bool>(a0)); });
    Use(+[](CXHeaderCtrl & object) -> void { return object.CXHeaderCtrl::SetDirectColumnClick(); });
    Use(+[](CXHeaderCtrl const & object) -> int { return object.CXHeaderCtrl::GetSpacing(); });
    Use(+[](CXHeaderCtrl & object, UINT a0) -> BOOL { return object.CXHeaderCtrl::SetDpi(std::forward<UINT>(a0)); });
    Use(+[](CXHeaderCtrl const & object) -> UINT { return object.CXHeaderCtrl::GetDpi(); });
    Use(+[](CXHeaderCtrl & object, LPDRAWITEMSTRUCT a0) -> void { return object.CXHeaderCtrl::DrawHeaderItem(std::forward<LPDRAWITEMSTRUCT>(a0)); });
    Use(+[](CXHeaderCtrl & object, CDC * a0, CRect a1, LPHDITEM a2) -> void { return object.CXHeaderCtrl::DrawHeaderItem(std::forward<CDC *>(a0), std::forward<CRect>(a1), std::forward<LPHDITEM>(a2)); });

    // list/XListCellKind.h
    Use(+[] { delete new CXListCellKind::Change; });
    Use(+[](CXListCellKind & object, XLISTCTRLDATA & a0, CRect const & a1, CPoint a2) -> std::optional<CXListCellKind::Change> { return object.CXListCellKind::Press(std::forward<XLISTCTRLDATA &>(a0), std::forward<CRect const &>(a1), std::forward<CPoint>(a2)); });
    Use(+[](CXListCellKind & object, XLISTCTRLDATA & a0, unsigned int a1) -> std::optional<CXListCellKind::Change> { return object.CXListCellKind::Key(std::forward<XLISTCTRLDATA &>(a0), std::forward<unsigned int>(a1)); });
    Use(+[](CXListCellKind const & object, XLISTCTRLDATA const & a0) -> std::optional<long long> { return object.CXListCellKind::SortValue(std::forward<XLISTCTRLDATA const &>(a0)); });
    Use(+[](CXListCellKind const & object, XLISTCTRLDATA const & a0) -> std::optional<CString> { return object.CXListCellKind::ExportText(std::forward<XLISTCTRLDATA const &>(a0)); });

    // list/XListCtrl.h
    Use(+[]() { delete new CXListCtrl(); });
    Use(+[](CXListCtrl & object, wchar_t const * a0, int a1, int a2) -> int { return object.CXListCtrl::AddColumn(std::forward<wchar_t const *>(a0), std::forward<int>(a1), std::forward<int>(a2)); });
    Use(+[](CXListCtrl & object, int a0, wchar_t const * a1, int a2, int a3, int a4) -> int { return object.CXListCtrl::InsertColumn(std::forward<int>(a0), std::forward<wchar_t const *>(a1), std::forward<int>(a2), std::forward<int>(a3), std::forward<int>(a4)); });
    Use(+[](CXListCtrl const & object) -> int { return object.CXListCtrl::GetColumnCount(); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::DeleteAllColumns(); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> int { return object.CXListCtrl::SetColumnWidth(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0) -> void { return object.CXListCtrl::AutosizeColumnWidth(std::forward<int>(a0)); });
    Use(+[](CXListCtrl & object, int a0, wchar_t const * a1, COLORREF a2, COLORREF a3, void const * a4, long long a5) -> int { return object.CXListCtrl::InsertItem(std::forward<int>(a0), std::forward<wchar_t const *>(a1), std::forward<COLORREF>(a2), std::forward<COLORREF>(a3), std::forward<void const *>(a4), std::forward<long long>(a5)); });
    Use(+[](CXListCtrl & object, int a0, wchar_t const * a1, void const * a2, long long a3) -> int { return object.CXListCtrl::InsertItem(std::forward<int>(a0), std::forward<wchar_t const *>(a1), std::forward<void const *>(a2), std::forward<long long>(a3)); });
    Use(+[](CXListCtrl & object, wchar_t const * a0, void const * a1, long long a2) -> int { return object.CXListCtrl::AddItem(std::forward<wchar_t const *>(a0), std::forward<void const *>(a1), std::forward<long long>(a2)); });
    Use(+[](CXListCtrl & object, LVITEMW const * a0) -> int { return object.CXListCtrl::InsertItem(std::forward<LVITEMW const *>(a0)); });
    Use(+[](CXListCtrl & object, int a0) -> int { return object.CXListCtrl::DeleteItem(std::forward<int>(a0)); });
    Use(+[](CXListCtrl & object) -> int { return object.CXListCtrl::DeleteAllItems(); });
    Use(+[](CXListCtrl & object, bool a0) -> void { return object.CXListCtrl::SetBatchInsertMode(std::forward<bool>(a0)); });
    Use(+[](CXListCtrl & object, bool a0) -> void { return object.CXListCtrl::EnableAll(std::forward<bool>(a0)); });
    Use(+[](CXListCtrl & object, bool a0) -> void { return object.CXListCtrl::DisableAll(std::forward<bool>(a0)); });
    Use(+[](CXListCtrl const & object, int a0) -> int { return object.CXListCtrl::GetCurSel(std::forward<int>(a0)); });
    Use(+[](CXListCtrl const & object) -> int { return object.CXListCtrl::GetSelectedItem(); });
    Use(+[](CXListCtrl const & object, int a0) -> int { return object.CXListCtrl::GetSelectedItemAfter(std::forward<int>(a0)); });
    Use(+[](CXListCtrl & object, int a0, bool a1) -> bool { return object.CXListCtrl::SetCurSel(std::forward<int>(a0), std::forward<bool>(a1)); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::SetNoSelection(); });
    Use(+[](CXListCtrl & object, int a0, int a1, wchar_t const * a2) -> bool { return object.CXListCtrl::SetItemText(std::forward<int>(a0), std::forward<int>(a1), std::forward<wchar_t const *>(a2)); });
    Use(+[](CXListCtrl & object, int a0, int a1, wchar_t const * a2, COLORREF a3, COLORREF a4) -> bool { return object.CXListCtrl::SetItemText(std::forward<int>(a0), std::forward<int>(a1), std::forward<wchar_t const *>(a2), std::forward<COLORREF>(a3), std::forward<COLORREF>(a4)); });
    Use(+[](CXListCtrl & object, int a0, int a1, int a2) -> bool { return object.CXListCtrl::SetItemText(std::forward<int>(a0), std::forward<int>(a1), std::forward<int>(a2)); });
    Use(+[](CXListCtrl & object, int a0, int a1, float a2, wchar_t const * a3) -> bool { return object.CXListCtrl::SetItemText(std::forward<int>(a0), std::forward<int>(a1), std::forward<float>(a2), std::forward<wchar_t const *>(a3)); });
    Use(+[](CXListCtrl & object, int a0, int a1, float a2, wchar_t const * a3) -> bool { return object.CXListCtrl::SetItemFloatVal(std::forward<int>(a0), std::forward<int>(a1), std::forward<float>(a2), std::forward<wchar_t const *>(a3)); });
    Use(+[](CXListCtrl & object, int a0, int a1, CTime a2) -> bool { return object.CXListCtrl::SetItemDatetime(std::forward<int>(a0), std::forward<int>(a1), std::forward<CTime>(a2)); });
    Use(+[](CXListCtrl & object, LVITEMW const * a0) -> int { return object.CXListCtrl::SetItem(std::forward<LVITEMW const *>(a0)); });
    Use(+[](CXListCtrl & object, int a0, int a1, int a2) -> bool { return object.CXListCtrl::SetItemImage(std::forward<int>(a0), std::forward<int>(a1), std::forward<int>(a2)); });
    Use(+[](CXListCtrl & object, int a0, int a1, bool a2) -> bool { return object.CXListCtrl::SetEdit(std::forward<int>(a0), std::forward<int>(a1), std::forward<bool>(a2)); });
    Use(+[](CXListCtrl & object, int a0, int a1, bool a2, bool a3) -> bool { return object.CXListCtrl::SetHyperlink(std::forward<int>(a0), std::forward<int>(a1), std::forward<bool>(a2), std::forward<bool>(a3)); });
    Use(+[](CXListCtrl & object, int a0, int a1, bool a2, wchar_t const * a3) -> bool { return object.CXListCtrl::SetProgress(std::forward<int>(a0), std::forward<int>(a1), std::forward<bool>(a2), std::forward<wchar_t const *>(a3)); });
    Use(+[](CXListCtrl & object, int a0, int a1, int a2, int a3) -> void { return object.CXListCtrl::UpdateProgress(std::forward<int>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int>(a3)); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> void { return object.CXListCtrl::DeleteProgress(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1, std::function<void(int, int, CDC *, CRect const &)> a2) -> bool { return object.CXListCtrl::SetCustomDraw(std::forward<int>(a0), std::forward<int>(a1), std::forward<std::function<void(int, int, CDC *, CRect const &)>>(a2)); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> void { return object.CXListCtrl::UpdateCustomDraw(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> void { return object.CXListCtrl::RemoveCustomDraw(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1, std::shared_ptr<CXListCellKind> a2) -> bool { return object.CXListCtrl::SetCellKind(std::forward<int>(a0), std::forward<int>(a1), std::forward<std::shared_ptr<CXListCellKind>>(a2)); });
    Use(+[](CXListCtrl const & object, int a0, int a1) -> std::shared_ptr<CXListCellKind> { return object.CXListCtrl::GetCellKind(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1, std::map<int, wchar_t const *> const & a2, int a3, int a4) -> bool { return object.CXListCtrl::SetComboBox(std::forward<int>(a0), std::forward<int>(a1), std::forward<std::map<int, wchar_t const *> const &>(a2), std::forward<int>(a3), std::forward<int>(a4)); });
    Use(+[](CXListCtrl & object, int a0, int a1, std::map<int, CString> const * a2, int a3, int a4) -> bool { return object.CXListCtrl::SetComboBox(std::forward<int>(a0), std::forward<int>(a1), std::forward<std::map<int, CString> const *>(a2), std::forward<int>(a3), std::forward<int>(a4)); });
    Use(+[](CXListCtrl & object, int a0, int a1, int a2, int a3) -> bool { return object.CXListCtrl::SetComboBoxGlobalStrings(std::forward<int>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int>(a3)); });
    Use(+[](CXListCtrl & object, int a0, int a1, bool a2, int a3) -> bool { return object.CXListCtrl::SetComboStyle(std::forward<int>(a0), std::forward<int>(a1), std::forward<bool>(a2), std::forward<int>(a3)); });
    Use(+[](CXListCtrl & object, int a0, int a1, int a2) -> bool { return object.CXListCtrl::SetComboSelection(std::forward<int>(a0), std::forward<int>(a1), std::forward<int>(a2)); });
    Use(+[](CXListCtrl & object, int a0, int a1, CString const & a2) -> bool { return object.CXListCtrl::SetComboSelection(std::forward<int>(a0), std::forward<int>(a1), std::forward<CString const &>(a2)); });
    Use(+[](CXListCtrl const & object, int a0, int a1) -> int { return object.CXListCtrl::GetComboCurSel(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> CString { return object.CXListCtrl::GetComboText(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::GlobalComboStringsReset(); });
    Use(+[](CXListCtrl & object, int a0, CString const & a1) -> void { return object.CXListCtrl::GlobalComboStringsInsert(std::forward<int>(a0), std::forward<CString const &>(a1)); });
    Use(+[](CXListCtrl const & object, CString const & a0, int a1) -> int { return object.CXListCtrl::GlobalComboStringsGetId(std::forward<CString const &>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl const & object, int a0) -> wchar_t const * { return object.CXListCtrl::GlobalComboStringsGetText(std::forward<int>(a0)); });
    Use(+[](CXListCtrl const & object, int a0, int a1) -> bool { return object.CXListCtrl::IsValidItem(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0) -> XLISTCTRLDATA * { return object.CXListCtrl::GetRowData(std::forward<int>(a0)); });
    Use(+[](CXListCtrl const & object, int a0) -> XLISTCTRLDATA const * { return object.CXListCtrl::GetRowData(std::forward<int>(a0)); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> XLISTCTRLDATA * { return object.CXListCtrl::GetRowItemData(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl const & object, int a0, int a1) -> XLISTCTRLDATA const * { return object.CXListCtrl::GetRowItemData(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> XLISTCTRLDATA * { return object.CXListCtrl::GetRowItemDataDirect(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, long long a1) -> bool { return object.CXListCtrl::SetItemData(std::forward<int>(a0), std::forward<long long>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> bool { return object.CXListCtrl::SetItemData(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, unsigned int a1) -> bool { return object.CXListCtrl::SetItemData(std::forward<int>(a0), std::forward<unsigned int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, long a1) -> bool { return object.CXListCtrl::SetItemData(std::forward<int>(a0), std::forward<long>(a1)); });
    Use(+[](CXListCtrl & object, int a0, unsigned long a1) -> bool { return object.CXListCtrl::SetItemData(std::forward<int>(a0), std::forward<unsigned long>(a1)); });
    Use(+[](CXListCtrl & object, int a0, unsigned long long a1) -> bool { return object.CXListCtrl::SetItemData(std::forward<int>(a0), std::forward<unsigned long long>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1, int a2) -> bool { return object.CXListCtrl::SetItemData(std::forward<int>(a0), std::forward<int>(a1), std::forward<int>(a2)); });
    Use(+[](CXListCtrl const & object, int a0) -> long long { return object.CXListCtrl::GetItemData64(std::forward<int>(a0)); });
    Use(+[](CXListCtrl const & object, int a0) -> int { return object.CXListCtrl::GetItemData(std::forward<int>(a0)); });
    Use(+[](CXListCtrl const & object, int a0) -> int { return object.CXListCtrl::GetItemData2(std::forward<int>(a0)); });
    Use(+[](CXListCtrl & object, int a0, void const * a1) -> bool { return object.CXListCtrl::SetItemDataPtr(std::forward<int>(a0), std::forward<void const *>(a1)); });
    Use(+[](CXListCtrl const & object, int a0) -> void * { return object.CXListCtrl::GetItemDataPtr(std::forward<int>(a0)); });
    Use(+[](CXListCtrl & object, int a0, int const * a1) -> bool { return object.CXListCtrl::SetItemIdx8(std::forward<int>(a0), std::forward<int const *>(a1)); });
    Use(+[](CXListCtrl const & object, int a0, int * a1) -> bool { return object.CXListCtrl::GetItemIdx8(std::forward<int>(a0), std::forward<int *>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int const * a1) -> bool { return object.CXListCtrl::SetItemClavis(std::forward<int>(a0), std::forward<int const *>(a1)); });
    Use(+[](CXListCtrl const & object, int a0, int * a1) -> bool { return object.CXListCtrl::GetItemClavis(std::forward<int>(a0), std::forward<int *>(a1)); });
    Use(+[](CXListCtrl const & object, long long a0) -> int { return object.CXListCtrl::FindDataItem(std::forward<long long>(a0)); });
    Use(+[](CXListCtrl const & object, int a0) -> int { return object.CXListCtrl::FindDataItem(std::forward<int>(a0)); });
    Use(+[](CXListCtrl const & object, unsigned int a0) -> int { return object.CXListCtrl::FindDataItem(std::forward<unsigned int>(a0)); });
    Use(+[](CXListCtrl const & object, long a0) -> int { return object.CXListCtrl::FindDataItem(std::forward<long>(a0)); });
    Use(+[](CXListCtrl const & object, unsigned long a0) -> int { return object.CXListCtrl::FindDataItem(std::forward<unsigned long>(a0)); });
    Use(+[](CXListCtrl const & object, unsigned long long a0) -> int { return object.CXListCtrl::FindDataItem(std::forward<unsigned long long>(a0)); });
    Use(+[](CXListCtrl const & object, void const * a0) -> int { return object.CXListCtrl::FindDataItemPtr(std::forward<void const *>(a0)); });
    Use(+[](CXListCtrl const & object, int const * a0) -> int { return object.CXListCtrl::FindDataItemClavis(std::forward<int const *>(a0)); });
    Use(+[](CXListCtrl const & object, long long a0) -> long long { return object.CXListCtrl::GetSelectedItemData(std::forward<long long>(a0)); });
    Use(+[](CXListCtrl const & object) -> void * { return object.CXListCtrl::GetSelectedItemDataPtr(); });
    Use(+[](CXListCtrl & object, int a0, int a1, unsigned int a2, bool a3) -> void { return object.CXListCtrl::SetItemProperty(std::forward<int>(a0), std::forward<int>(a1), std::forward<unsigned int>(a2), std::forward<bool>(a3)); });
    Use(+[](CXListCtrl const & object, int a0, int a1, unsigned int a2) -> bool { return object.CXListCtrl::GetItemProperty(std::forward<int>(a0), std::forward<int>(a1), std::forward<unsigned int>(a2)); });
    Use(+[](CXListCtrl & object, int a0, unsigned int a1, bool a2) -> void { return object.CXListCtrl::SetRowProperty(std::forward<int>(a0), std::forward<unsigned int>(a1), std::forward<bool>(a2)); });
    Use(+[](CXListCtrl & object, int a0, int a1, bool a2) -> bool { return object.CXListCtrl::SetBold(std::forward<int>(a0), std::forward<int>(a1), std::forward<bool>(a2)); });
    Use(+[](CXListCtrl const & object, int a0, int a1) -> bool { return object.CXListCtrl::GetBold(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1, bool a2) -> void { return object.CXListCtrl::SetModified(std::forward<int>(a0), std::forward<int>(a1), std::forward<bool>(a2)); });
    Use(+[](CXListCtrl const & object, int a0, int a1) -> bool { return object.CXListCtrl::GetModified(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1, bool a2) -> bool { return object.CXListCtrl::SetEnabled(std::forward<int>(a0), std::forward<int>(a1), std::forward<bool>(a2)); });
    Use(+[](CXListCtrl & object, int a0, bool a1) -> bool { return object.CXListCtrl::SetEnabled(std::forward<int>(a0), std::forward<bool>(a1)); });
    Use(+[](CXListCtrl const & object, int a0, int a1) -> bool { return object.CXListCtrl::GetEnabled(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl const & object, int a0) -> bool { return object.CXListCtrl::GetEnabled(std::forward<int>(a0)); });
    Use(+[](CXListCtrl & object, int a0, int a1, unsigned int a2) -> void { return object.CXListCtrl::SetItemValueType(std::forward<int>(a0), std::forward<int>(a1), std::forward<unsigned int>(a2)); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> unsigned int { return object.CXListCtrl::GetItemValueType(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, COLORREF a1, COLORREF a2) -> void { return object.CXListCtrl::SetRowColors(std::forward<int>(a0), std::forward<COLORREF>(a1), std::forward<COLORREF>(a2)); });
    Use(+[](CXListCtrl & object, int a0, int a1, COLORREF a2, COLORREF a3, COLORREF a4) -> void { return object.CXListCtrl::SetItemColors(std::forward<int>(a0), std::forward<int>(a1), std::forward<COLORREF>(a2), std::forward<COLORREF>(a3), std::forward<COLORREF>(a4)); });
    Use(+[](CXListCtrl const & object, int a0, int a1, COLORREF & a2, COLORREF & a3) -> bool { return object.CXListCtrl::GetItemColors(std::forward<int>(a0), std::forward<int>(a1), std::forward<COLORREF &>(a2), std::forward<COLORREF &>(a3)); });
    Use(+[](CXListCtrl & object, int a0, int a1, int a2) -> bool { return object.CXListCtrl::SetCheckbox(std::forward<int>(a0), std::forward<int>(a1), std::forward<int>(a2)); });
    Use(+[](CXListCtrl const & object, int a0, int a1) -> int { return object.CXListCtrl::GetCheckbox(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl const & object, int a0, int a1) -> int { return object.CXListCtrl::GetItemCheckedState(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1, int a2) -> void { return object.CXListCtrl::SetItemCheckedState(std::forward<int>(a0), std::forward<int>(a1), std::forward<int>(a2)); });
    Use(+[](CXListCtrl & object, int a0, int a1, int a2) -> bool { return object.CXListCtrl::SetRadioButton(std::forward<int>(a0), std::forward<int>(a1), std::forward<int>(a2)); });
    Use(+[](CXListCtrl const & object, int a0, int a1) -> bool { return object.CXListCtrl::GetItemRadioOn(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl const & object, int a0) -> int { return object.CXListCtrl::GetActiveRadioItem(std::forward<int>(a0)); });
    Use(+[](CXListCtrl const & object, int a0, int a1) -> unsigned long long { return object.CXListCtrl::CountCheckedItems(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, long a0) -> void { return object.CXListCtrl::SetDisplayStyle(std::forward<long>(a0)); });
    Use(+[](CXListCtrl & object) -> long { return object.CXListCtrl::GetDisplayStyle(); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::SetFullRowSelect(); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::SetHoverSelection(); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::SetWithCheckboxes(); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::SetWithGridlines(); });
    Use(+[](CXListCtrl & object, bool a0) -> bool { return object.CXListCtrl::SetEllipsis(std::forward<bool>(a0)); });
    Use(+[](CXListCtrl const & object) -> bool { return object.CXListCtrl::GetEllipsis(); });
    Use(+[](CXListCtrl & object, int a0) -> void { return object.CXListCtrl::SetCellPadding(std::forward<int>(a0)); });
    Use(+[](CXListCtrl const & object) -> int { return object.CXListCtrl::GetCellPadding(); });
    Use(+[](CXListCtrl & object, CString const & a0) -> void { return object.CXListCtrl::SetEmptyListText(std::forward<CString const &>(a0)); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::SetEmptyListTextDefault(); });
    Use(+[](CXListCtrl & object, bool a0) -> void { return object.CXListCtrl::SetListModified(std::forward<bool>(a0)); });
    Use(+[](CXListCtrl const & object) -> bool { return object.CXListCtrl::GetListModified(); });
    Use(+[](CXListCtrl & object, UINT a0) -> BOOL { return object.CXListCtrl::SetDpi(std::forward<UINT>(a0)); });
    Use(+[](CXListCtrl const & object) -> UINT { return object.CXListCtrl::GetDpi(); });
    Use(+[](CXListCtrl & object, BOOL a0) -> void { return object.CXListCtrl::FollowDpi(std::forward<BOOL>(a0)); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> void { return object.CXListCtrl::UpdateSubItem(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl const & object, int a0, int a1, int a2, CRect & a3) -> bool { return object.CXListCtrl::GetSubItemRect(std::forward<int>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<CRect &>(a3)); });
    Use(+[](CXListCtrl & object, unsigned int a0) -> void { return object.CXListCtrl::SetHeaderAlignment(std::forward<unsigned int>(a0)); });
    Use(+[](CXListCtrl & object, COLORREF a0) -> void { return object.CXListCtrl::SetHeaderTextColor(std::forward<COLORREF>(a0)); });
    Use(+[](CXListCtrl & object, bool a0) -> void { return object.CXListCtrl::SetHeaderUseImageList(std::forward<bool>(a0)); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::SetHeaderDirectColumnClick(); });
    Use(+[](CXListCtrl & object, bool a0) -> void { return object.CXListCtrl::SetHeaderAutoCheckbox(std::forward<bool>(a0)); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> bool { return object.CXListCtrl::SetHeaderCheckedState(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl const & object, int a0) -> int { return object.CXListCtrl::GetHeaderCheckedState(std::forward<int>(a0)); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::SetHeaderRemoveAllMarks(); });
    Use(+[](CXListCtrl & object, int a0, bool a1, bool a2, std::type_identity_t<int (*)(long long, long long, long long)> a3) -> void { return object.CXListCtrl::SortByColumn(std::forward<int>(a0), std::forward<bool>(a1), std::forward<bool>(a2), std::forward<std::type_identity_t<int (*)(long long, long long, long long)>>(a3)); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::EnableDragAndDrop(); });
    Use(+[](CXListCtrl & object, bool a0, int a1, int a2, int a3, int a4) -> bool { return object.CXListCtrl::ExportToClipboard(std::forward<bool>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int>(a3), std::forward<int>(a4)); });
    Use(+[](CXListCtrl & object, bool a0) -> void { return object.CXListCtrl::EnableCellCursor(std::forward<bool>(a0)); });
    Use(+[](CXListCtrl const & object) -> bool { return object.CXListCtrl::HasCellCursor(); });
    Use(+[](CXListCtrl const & object) -> std::pair<int, int> { return object.CXListCtrl::GetCellCursor(); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> bool { return object.CXListCtrl::SetCellCursor(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object, int a0, int a1, unsigned int a2) -> void { return object.CXListCtrl::OnItemStateChange(std::forward<int>(a0), std::forward<int>(a1), std::forward<unsigned int>(a2)); });
    Use(+[](CXListCtrl & object, int a0) -> void { return object.CXListCtrl::OnHeaderColumnClick(std::forward<int>(a0)); });
    Use(+[](CXListCtrl & object, CPoint const & a0, int & a1) -> int { return object.CXListCtrl::GetPointItem(std::forward<CPoint const &>(a0), std::forward<int &>(a1)); });
    Use(+[](CXListCtrl & object) -> CMenu & { return object.CXListCtrl::PopUpMenu(); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::EnableItemToolTipps(); });
    Use(+[](CXListCtrl & object, wchar_t const * a0) -> void { return object.CXListCtrl::SetDefaultToolTipText(std::forward<wchar_t const *>(a0)); });
    Use(+[](CXListCtrl & object, int a0, int a1, wchar_t const * a2) -> bool { return object.CXListCtrl::SetItemToolTipText(std::forward<int>(a0), std::forward<int>(a1), std::forward<wchar_t const *>(a2)); });
    Use(+[](CXListCtrl & object, int a0, int a1) -> CString { return object.CXListCtrl::GetItemToolTipText(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CXListCtrl & object) -> void { return object.CXListCtrl::DeleteAllToolTips(); });
    Use(+[](CXListCtrl const & object, CPoint a0, TOOLINFO * a1) -> INT_PTR { return object.CXListCtrl::OnToolHitTest(std::forward<CPoint>(a0), std::forward<TOOLINFO *>(a1)); });

    // list/XListCtrlData.h
    Use(+[](XLISTCTRLDATA & object) -> void { return object.XLISTCTRLDATA::Recycle(); });
    Use(+[](XLISTCTRLDATA & object) -> void { return object.XLISTCTRLDATA::MakePlain(); });
    Use(+[](XLISTCTRLDATA & object, int a0) -> void { return object.XLISTCTRLDATA::MakeCheck(std::forward<int>(a0)); });
    Use(+[](XLISTCTRLDATA & object) -> void { return object.XLISTCTRLDATA::MakeEdit(); });
    Use(+[](XLISTCTRLDATA & object) -> void { return object.XLISTCTRLDATA::MakeLink(); });
    Use(+[](XLISTCTRLDATA & object) -> void { return object.XLISTCTRLDATA::MakeProgress(); });
    Use(+[](XLISTCTRLDATA & object) -> void { return object.XLISTCTRLDATA::MakeCombo(); });
    Use(+[] { delete new XLISTCTRLDATA; });

    // list/table/NumberFormat.h
    Use(+[] { delete new NumberFormat; });
    Use(+[](std::wstring & a0, long long a1, NumberFormat const & a2, wchar_t a3) -> std::size_t { return ::ShowWhole(std::forward<std::wstring &>(a0), std::forward<long long>(a1), std::forward<NumberFormat const &>(a2), std::forward<wchar_t>(a3)); });
    Use(+[](std::wstring_view a0, NumberFormat const & a1, wchar_t a2) -> std::optional<long long> { return ::ParseWhole(std::forward<std::wstring_view>(a0), std::forward<NumberFormat const &>(a1), std::forward<wchar_t>(a2)); });
    Use(+[](std::wstring_view a0) -> std::wstring_view { return ::Trimmed(std::forward<std::wstring_view>(a0)); });

    // list/table/TableFeed.h
    Use(+[] { delete new TableRowRange; });
    Use(+[](TableChanges const & object) -> bool { return object.TableChanges::IsEmpty(); });
    Use(+[] { delete new TableChanges; });
    Use(+[](std::shared_ptr<TableWaker> a0) { delete new TableFeed(std::forward<std::shared_ptr<TableWaker>>(a0)); });
    Use(+[](TableFeed & object, TableRow a0, TableRow a1) -> void { return object.TableFeed::RowsChanged(std::forward<TableRow>(a0), std::forward<TableRow>(a1)); });
    Use(+[](TableFeed & object, TableRow a0) -> void { return object.TableFeed::RowsAppended(std::forward<TableRow>(a0)); });
    Use(+[](TableFeed & object) -> void { return object.TableFeed::AllChanged(); });
    Use(+[](TableFeed & object) -> TableChanges { return object.TableFeed::Take(); });
    Use(+[](std::vector<TableRowRange> & a0) -> void { return ::JoinRanges(std::forward<std::vector<TableRowRange> &>(a0)); });

    // list/table/TableForms.h
    Use(+[] { delete new TableRefused; });
    Use(+[] { delete new TablePasteReport; });

    // list/table/TableOrder.h
    Use(+[] { delete new TableSortColumn; });
    Use(+[] { delete new TableFilter::TextPart; });
    Use(+[] { delete new TableFilter::RangePart; });
    Use(+[](TableFilter const & object) -> bool { return object.TableFilter::IsEmpty(); });
    Use(+[] { delete new TableFilter; });

    // list/table/TableSource.h
    Use(+[](TableValue const & object) -> TableKind { return object.TableValue::Kind(); });
    Use(+[](TableValue const & object) -> std::wstring const & { return object.TableValue::Text(); });
    Use(+[](TableValue const & object) -> long long { return object.TableValue::Whole(); });
    Use(+[](TableValue const & object) -> double { return object.TableValue::Number(); });
    Use(+[](TableValue & object) -> void { return object.TableValue::SetBlank(); });
    Use(+[](TableValue & object, std::wstring_view a0) -> void { return object.TableValue::SetText(std::forward<std::wstring_view>(a0)); });
    Use(+[](TableValue & object, long long a0) -> void { return object.TableValue::SetWhole(std::forward<long long>(a0)); });
    Use(+[](TableValue & object, long long a0) -> void { return object.TableValue::SetTime(std::forward<long long>(a0)); });
    Use(+[](TableValue & object, bool a0) -> void { return object.TableValue::SetTick(std::forward<bool>(a0)); });
    Use(+[](TableValue & object, double a0) -> void { return object.TableValue::SetProgress(std::forward<double>(a0)); });
    Use(+[](TableValue & object, std::wstring_view a0) -> void { return object.TableValue::SetLink(std::forward<std::wstring_view>(a0)); });
    Use(+[] { delete new TableValue; });
    Use(+[](TableSource const & object, TableRow a0) -> TableKey { return object.TableSource::Key(std::forward<TableRow>(a0)); });
    Use(+[](TableSource const & object, TableKey a0) -> TableRow { return object.TableSource::RowOfKey(std::forward<TableKey>(a0)); });
    Use(+[](TableSource & object, TableRow a0, unsigned int a1, TableValue const & a2) -> bool { return object.TableSource::Write(std::forward<TableRow>(a0), std::forward<unsigned int>(a1), std::forward<TableValue const &>(a2)); });

    // list/table/TableText.h
    Use(+[] { delete new TableColumn; });
    Use(+[] { delete new TableLocale; });
    Use(+[] { delete new TableLooks; });
    Use(+[](TableColumn const & a0) -> std::wstring { return ::TitleOf(std::forward<TableColumn const &>(a0)); });
    Use(+[](TableColumn const & a0) -> std::wstring const & { return ::NameOf(std::forward<TableColumn const &>(a0)); });
    Use(+[](std::wstring & a0, TableValue const & a1, TableColumn const & a2, TableLocale const & a3) -> std::size_t { return ::ShowValue(std::forward<std::wstring &>(a0), std::forward<TableValue const &>(a1), std::forward<TableColumn const &>(a2), std::forward<TableLocale const &>(a3)); });
    Use(+[](TableValue & a0, std::wstring_view a1, TableColumn const & a2, TableLocale const & a3) -> bool { return ::ParseValue(std::forward<TableValue &>(a0), std::forward<std::wstring_view>(a1), std::forward<TableColumn const &>(a2), std::forward<TableLocale const &>(a3)); });
    Use(+[](std::wstring & a0, TableValue const & a1) -> void { return ::PlainValue(std::forward<std::wstring &>(a0), std::forward<TableValue const &>(a1)); });
    Use(+[](long long a0, int a1) -> std::wstring { return ::PlainTime(std::forward<long long>(a0), std::forward<int>(a1)); });
    Use(+[](std::wstring_view a0) -> std::optional<long long> { return ::ParsePlainTime(std::forward<std::wstring_view>(a0)); });

    // list/table/XTableCtrl.h
    Use(+[]() { delete new CXTableCtrl(); });
    Use(+[](CXTableCtrl & object, DWORD a0, RECT const & a1, CWnd * a2, UINT a3) -> BOOL { return object.CXTableCtrl::Create(std::forward<DWORD>(a0), std::forward<RECT const &>(a1), std::forward<CWnd *>(a2), std::forward<UINT>(a3)); });
    Use(+[](CXTableCtrl & object, std::shared_ptr<TableSource> const & a0) -> void { return object.CXTableCtrl::SetSource(std::forward<std::shared_ptr<TableSource> const &>(a0)); });
    Use(+[](CXTableCtrl & object, TableLocale a0) -> void { return object.CXTableCtrl::SetTableLocale(std::forward<TableLocale>(a0)); });
    Use(+[](CXTableCtrl & object, unsigned int a0) -> void { return object.CXTableCtrl::SetFrozenColumns(std::forward<unsigned int>(a0)); });
    Use(+[](CXTableCtrl const & object) -> std::shared_ptr<TableFeed> const & { return object.CXTableCtrl::Feed(); });
    Use(+[](CXTableCtrl & object, std::vector<TableSortColumn> a0) -> void { return object.CXTableCtrl::SortBy(std::forward<std::vector<TableSortColumn>>(a0)); });
    Use(+[](CXTableCtrl const & object) -> std::vector<TableSortColumn> const & { return object.CXTableCtrl::SortColumns(); });
    Use(+[](CXTableCtrl & object, TableFilter a0) -> void { return object.CXTableCtrl::SetRowFilter(std::forward<TableFilter>(a0)); });
    Use(+[](CXTableCtrl const & object) -> bool { return object.CXTableCtrl::IsOrdering(); });
    Use(+[](CXTableCtrl const & object) -> int { return object.CXTableCtrl::OrderProgress(); });
    Use(+[](CXTableCtrl & object) -> void { return object.CXTableCtrl::StopOrdering(); });
    Use(+[](CXTableCtrl const & object) -> TableRow { return object.CXTableCtrl::RowsShown(); });
    Use(+[](CXTableCtrl const & object, TableRow a0) -> TableRow { return object.CXTableCtrl::RowAt(std::forward<TableRow>(a0)); });
    Use(+[](CXTableCtrl const & object, TableRow a0) -> TableRow { return object.CXTableCtrl::PositionOf(std::forward<TableRow>(a0)); });
    Use(+[](CXTableCtrl const & object) -> std::vector<TableRow> { return object.CXTableCtrl::SelectedRows(); });
    Use(+[](CXTableCtrl const & object, TableRow a0) -> bool { return object.CXTableCtrl::IsRowSelected(std::forward<TableRow>(a0)); });
    Use(+[](CXTableCtrl const & object) -> TableRow { return object.CXTableCtrl::FocusRow(); });
    Use(+[](CXTableCtrl & object, TableRow a0) -> bool { return object.CXTableCtrl::GoToRow(std::forward<TableRow>(a0)); });
    Use(+[](CXTableCtrl & object) -> void { return object.CXTableCtrl::SelectAllRows(); });
    Use(+[](CXTableCtrl const & object, TableRow a0, unsigned int a1) -> std::wstring { return object.CXTableCtrl::ShownText(std::forward<TableRow>(a0), std::forward<unsigned int>(a1)); });
    Use(+[](CXTableCtrl & object, bool a0) -> void { return object.CXTableCtrl::EnableCellCursor(std::forward<bool>(a0)); });
    Use(+[](CXTableCtrl const & object) -> bool { return object.CXTableCtrl::HasCellCursor(); });
    Use(+[](CXTableCtrl const & object) -> std::pair<TableRow, unsigned int> { return object.CXTableCtrl::GetCellCursor(); });
    Use(+[](CXTableCtrl & object, TableRow a0, unsigned int a1) -> bool { return object.CXTableCtrl::SetCellCursor(std::forward<TableRow>(a0), std::forward<unsigned int>(a1)); });
    Use(+[](CXTableCtrl const & object) -> std::vector<unsigned int> { return object.CXTableCtrl::ShownColumns(); });
    Use(+[](CXTableCtrl & object, unsigned int a0, bool a1) -> bool { return object.CXTableCtrl::HideTableColumn(std::forward<unsigned int>(a0), std::forward<bool>(a1)); });
    Use(+[](CXTableCtrl & object, unsigned int a0, unsigned int a1) -> void { return object.CXTableCtrl::MoveTableColumn(std::forward<unsigned int>(a0), std::forward<unsigned int>(a1)); });
    Use(+[](CXTableCtrl & object, TableRow a0, unsigned int a1) -> bool { return object.CXTableCtrl::EditCell(std::forward<TableRow>(a0), std::forward<unsigned int>(a1)); });
    Use(+[](CXTableCtrl const & object) -> bool { return object.CXTableCtrl::IsEditing(); });
    Use(+[](CXTableCtrl & object, bool a0) -> bool { return object.CXTableCtrl::EndEdit(std::forward<bool>(a0)); });
    Use(+[](CXTableCtrl & object, TableForm a0, bool a1, bool a2) -> bool { return object.CXTableCtrl::CopyRows(std::forward<TableForm>(a0), std::forward<bool>(a1), std::forward<bool>(a2)); });
    Use(+[](CXTableCtrl & object, std::wstring const & a0, TableForm a1, bool a2) -> bool { return object.CXTableCtrl::ExportRows(std::forward<std::wstring const &>(a0), std::forward<TableForm>(a1), std::forward<bool>(a2)); });
    Use(+[](CXTableCtrl const & object) -> bool { return object.CXTableCtrl::IsExporting(); });
    Use(+[](CXTableCtrl const & object) -> int { return object.CXTableCtrl::ExportProgress(); });
    Use(+[](CXTableCtrl & object) -> void { return object.CXTableCtrl::StopExport(); });
    Use(+[](CXTableCtrl & object) -> TablePasteReport { return object.CXTableCtrl::PasteBlock(); });
    Use(+[](CXTableCtrl & object, UINT a0) -> BOOL { return object.CXTableCtrl::SetDpi(std::forward<UINT>(a0)); });
    Use(+[](CXTableCtrl const & object) -> UINT { return object.CXTableCtrl::GetDpi(); });
    Use(+[](CXTableCtrl & object, BOOL a0) -> void { return object.CXTableCtrl::FollowDpi(std::forward<BOOL>(a0)); });
    Use(+[](CXTableCtrl & object) -> void { return object.CXTableCtrl::UpdateNow(); });
    Use(+[](CXTableCtrl const & object) -> unsigned long long { return object.CXTableCtrl::Repaints(); });

    // segments/DigiStatic.h
    Use(+[]() { delete new CDigiStatic(); });
    Use(+[](CDigiStatic & object, wchar_t const * a0) -> void { return object.CDigiStatic::SetText(std::forward<wchar_t const *>(a0)); });
    Use(+[](CDigiStatic & object, wchar_t const * a0) -> void { return object.CDigiStatic::Format(std::forward<wchar_t const *>(a0)); });
    Use(+[](CDigiStatic & object, unsigned int a0) -> void { return object.CDigiStatic::Format(std::forward<unsigned int>(a0)); });
    Use(+[](CDigiStatic & object, COLORREF a0, COLORREF a1) -> void { return object.CDigiStatic::SetColor(std::forward<COLORREF>(a0), std::forward<COLORREF>(a1)); });
    Use(+[](CDigiStatic & object, COLORREF a0) -> COLORREF { return object.CDigiStatic::SetBkColor(std::forward<COLORREF>(a0)); });
    Use(+[](CDigiStatic const & object) -> COLORREF { return object.CDigiStatic::GetOnColor(); });
    Use(+[](CDigiStatic const & object) -> COLORREF { return object.CDigiStatic::GetOffColor(); });
    Use(+[](CDigiStatic & object, ColorScheme a0) -> void { return object.CDigiStatic::SetColorScheme(std::forward<ColorScheme>(a0)); });
    Use(+[](CDigiStatic & object, DWORD a0, DWORD a1) -> int { return object.CDigiStatic::ModifyDigiStyle(std::forward<DWORD>(a0), std::forward<DWORD>(a1)); });
    Use(+[](CDigiStatic & object, bool a0) -> void { return object.CDigiStatic::SetTransparent(std::forward<bool>(a0)); });
    Use(+[](CDigiStatic & object, CRect * a0) -> void { return object.CDigiStatic::SetButtonRect(std::forward<CRect *>(a0)); });
    Use(+[](CDigiStatic & object, bool a0) -> void { return object.CDigiStatic::SetDrawImmediately(std::forward<bool>(a0)); });

    // segments/LedTextAnzeiger.h
    Use(+[]() { delete new CLedTextAnzeiger(); });
    Use(+[](CLedTextAnzeiger const & a0) { delete new CLedTextAnzeiger(std::forward<CLedTextAnzeiger const &>(a0)); });
    Use(+[](CLedTextAnzeiger & object, CLedTextAnzeiger const & a0) -> CLedTextAnzeiger & { return object.CLedTextAnzeiger::operator=(std::forward<CLedTextAnzeiger const &>(a0)); });
    Use(+[](CLedTextAnzeiger & object, CString const & a0) -> void { return object.CLedTextAnzeiger::SetText(std::forward<CString const &>(a0)); });
    Use(+[](CLedTextAnzeiger & object, unsigned int a0) -> void { return object.CLedTextAnzeiger::SetTextAlign(std::forward<unsigned int>(a0)); });
    Use(+[](CLedTextAnzeiger & object, COLORREF a0, COLORREF a1, COLORREF a2) -> void { return object.CLedTextAnzeiger::SetColors(std::forward<COLORREF>(a0), std::forward<COLORREF>(a1), std::forward<COLORREF>(a2)); });
    Use(+[](CLedTextAnzeiger & object, unsigned int a0) -> void { return object.CLedTextAnzeiger::SetExtraSpacing(std::forward<unsigned int>(a0)); });
    Use(+[](CLedTextAnzeiger & object, bool a0) -> void { return object.CLedTextAnzeiger::ShowOffSegments(std::forward<bool>(a0)); });
    Use(+[](CLedTextAnzeiger & object, bool a0) -> void { return object.CLedTextAnzeiger::Always14Sement(std::forward<bool>(a0)); });
    Use(+[](CLedTextAnzeiger const & object) -> unsigned int { return object.CLedTextAnzeiger::TextWidht(); });
    Use(+[](CLedTextAnzeiger & object, Gdiplus::Graphics & a0, CRect & a1) -> void { return object.CLedTextAnzeiger::DrawTextW(std::forward<Gdiplus::Graphics &>(a0), std::forward<CRect &>(a1)); });

    // windows/DockableViewPane.h
    Use(+[]() { delete new CDockableViewPane(); });
    Use(+[](CDockableViewPane & object, CView & a0, wchar_t const * a1) -> bool { return object.CDockableViewPane::Connect(std::forward<CView &>(a0), std::forward<wchar_t const *>(a1)); });
    Use(+[](CDockableViewPane & object) -> CView * { return object.CDockableViewPane::View(); });
    Use(+[](CDockableViewPane & object, CRect a0) -> bool { return object.CDockableViewPane::Float(std::forward<CRect>(a0)); });

    // windows/FensterManager.h
    Use(+[](CFensterManager::window_t a0) { delete new CFensterManager(std::forward<CFensterManager::window_t>(a0)); });
    Use(+[](CString const & a0, CFensterManager::window_t a1) { delete new CFensterManager(std::forward<CString const &>(a0), std::forward<CFensterManager::window_t>(a1)); });
    Use(+[](CFensterManager & object, CString const & a0) -> void { return object.CFensterManager::WhoAmI(std::forward<CString const &>(a0)); });
    Use(+[](CFensterManager const & object) -> CString const & { return object.CFensterManager::WhoAmI(); });
    Use(+[](CFensterManager const & object) -> int { return object.CFensterManager::WhatsMyType(); });
    Use(+[](CFensterManager & object, CFensterManager::window_t a0) -> void { return object.CFensterManager::SetMyType(std::forward<CFensterManager::window_t>(a0)); });
    Use(+[](CFensterManager & object, CRect a0) -> void { return object.CFensterManager::PreferedPosition(std::forward<CRect>(a0)); });
    Use(+[](CFensterManager & object, int a0, int a1, int a2, int a3) -> void { return object.CFensterManager::PreferedPosition(std::forward<int>(a0), std::forward<int>(a1), std::forward<int>(a2), std::forward<int>(a3)); });
    Use(+[](CFensterManager & object, CWnd * a0) -> void { return object.CFensterManager::PreferedPosition(std::forward<CWnd *>(a0)); });
    Use(+[](CFensterManager & object) -> CRect { return object.CFensterManager::WhatsMyPosition(); });
    Use(+[](CFensterManager & object) -> unsigned int { return object.CFensterManager::WhatsMyStyle(); });
    Use(+[](CFensterManager & object, unsigned int a0) -> void { return object.CFensterManager::SetShowMode(std::forward<unsigned int>(a0)); });
    Use(+[]() -> bool { return CFensterManager::NowExit(); });
    Use(+[](CFensterManager & object, bool a0) -> void { return object.CFensterManager::SetNowExit(std::forward<bool>(a0)); });
    Use(+[]() -> bool { return CFensterManager::NurEinMonitor(); });
    Use(+[](bool a0) -> void { return CFensterManager::SetNurEinMonitor(std::forward<bool>(a0)); });
    Use(+[]() -> bool { return CFensterManager::KeepsWithinReach(); });
    Use(+[](bool a0) -> void { return CFensterManager::KeepWithinReach(std::forward<bool>(a0)); });
    Use(+[]() -> bool { return CFensterManager::TabbedViews(); });
    Use(+[](bool a0) -> void { return CFensterManager::SetTabbedViews(std::forward<bool>(a0)); });
    Use(+[](CFensterManager & object, CWnd * a0) -> void { return object.CFensterManager::CalcMyPosition(std::forward<CWnd *>(a0)); });
    Use(+[](CFensterManager const & object, bool a0) -> void { return object.CFensterManager::SaveMyPosition(std::forward<bool>(a0)); });
    Use(+[](CFensterManager const & object) -> void { return object.CFensterManager::SaveAllPositions(); });
    Use(+[](CFensterManager & object, CWnd * a0) -> void { return object.CFensterManager::ReadMyPosition(std::forward<CWnd *>(a0)); });
    Use(+[](CFensterManager & object) -> bool { return object.CFensterManager::EraseMyPosition(); });
    Use(+[](CFensterManager const & object) -> bool { return object.CFensterManager::OpenInitially(); });
    Use(+[](CString const & a0) -> bool { return CFensterManager::OpenInitially(std::forward<CString const &>(a0)); });
    Use(+[](CFensterManager const & object, CString const & a0) -> int { return object.CFensterManager::AlreadyOpen(std::forward<CString const &>(a0)); });
    Use(+[](CFensterManager & object, CString const & a0) -> void { return object.CFensterManager::ActivateThatWindow(std::forward<CString const &>(a0)); });
    Use(+[](CFensterManager & object, CString const & a0) -> void { return object.CFensterManager::KillThatWindow(std::forward<CString const &>(a0)); });
    Use(+[](CFensterManager & object, CString const & a0) -> void { return object.CFensterManager::MinimizeThatWindow(std::forward<CString const &>(a0)); });
    Use(+[](CFensterManager & object, CString const & a0) -> void { return object.CFensterManager::RestoreThatWindow(std::forward<CString const &>(a0)); });
    Use(+[](CFensterManager & object, CString const & a0) -> int { return object.CFensterManager::IsIconic(std::forward<CString const &>(a0)); });
    Use(+[](CFensterManager & object, CString const & a0) -> int { return object.CFensterManager::IsMaximized(std::forward<CString const &>(a0)); });
    Use(+[](CFensterManager & object) -> void { return object.CFensterManager::CloseAllViews(); });
    Use(+[](bool a0) -> void { return CFensterManager::ActivateTouchFreeze(std::forward<bool>(a0)); });

    // windows/MainFrmInterface.h
    Use(&CMainFrmInterface::id_base);
    Use(&CMainFrmInterface::max_panes);
    Use(&CMainFrmInterface::reg_workspace_settings);
    Use(&CMainFrmInterface::reg_entry_basepanes);
    Use(&CMainFrmInterface::reg_entry_panes);
    Use(+[](CMDIFrameWndEx * a0) { delete new CMainFrmInterface(std::forward<CMDIFrameWndEx *>(a0)); });
    Use(+[](CMainFrmInterface & object, CDockableViewPane *& a0, int a1) -> int { return object.CMainFrmInterface::register_pane(std::forward<CDockableViewPane *&>(a0), std::forward<int>(a1)); });
    Use(+[](CMainFrmInterface const & object) -> unsigned int { return object.CMainFrmInterface::base_id(); });
    Use(+[](CMainFrmInterface & object, unsigned int a0) -> void { return object.CMainFrmInterface::base_id(std::forward<unsigned int>(a0)); });
    Use(+[](CMainFrmInterface & object) -> std::map<unsigned int, CDockableViewPane *> & { return object.CMainFrmInterface::panes(); });
    Use(+[](CMainFrmInterface & object, unsigned int a0, wchar_t const * a1, std::function<void()> a2, unsigned short a3, unsigned char a4) -> int { return object.CMainFrmInterface::register_menu(std::forward<unsigned int>(a0), std::forward<wchar_t const *>(a1), std::forward<std::function<void()>>(a2), std::forward<unsigned short>(a3), std::forward<unsigned char>(a4)); });
    Use(+[](CMainFrmInterface & object, int a0) -> bool { return object.CMainFrmInterface::release_menu(std::forward<int>(a0)); });
    Use(+[](CMainFrmInterface const & object) -> bool { return object.CMainFrmInterface::export_registry_settings(); });
    Use(+[](CMainFrmInterface & object) -> bool { return object.CMainFrmInterface::import_registry_settings(); });

    // windows/MemorySettingsTree.h
    Use(+[](registry_settings::MemorySettingsTree::rights_t a0) { delete new registry_settings::MemorySettingsTree(std::forward<registry_settings::MemorySettingsTree::rights_t>(a0)); });
    Use(+[](registry_settings::MemorySettingsTree & object, std::u16string const & a0, registry_settings::SettingsTree::access_t a1) -> registry_settings::SettingsTree::key_t { return object.registry_settings::MemorySettingsTree::Open(std::forward<std::u16string const &>(a0), std::forward<registry_settings::SettingsTree::access_t>(a1)); });
    Use(+[](registry_settings::MemorySettingsTree & object, registry_settings::SettingsTree::key_t a0, std::u16string const & a1) -> registry_settings::SettingsTree::key_t { return object.registry_settings::MemorySettingsTree::OpenSubkey(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<std::u16string const &>(a1)); });
    Use(+[](registry_settings::MemorySettingsTree & object, registry_settings::SettingsTree::key_t a0, std::u16string const & a1) -> registry_settings::SettingsTree::key_t { return object.registry_settings::MemorySettingsTree::CreateSubkey(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<std::u16string const &>(a1)); });
    Use(+[](registry_settings::MemorySettingsTree & object, registry_settings::SettingsTree::key_t a0) -> void { return object.registry_settings::MemorySettingsTree::Close(std::forward<registry_settings::SettingsTree::key_t>(a0)); });
    Use(+[](registry_settings::MemorySettingsTree & object, registry_settings::SettingsTree::key_t a0) -> registry_settings::SettingsTree::counts_t { return object.registry_settings::MemorySettingsTree::Count(std::forward<registry_settings::SettingsTree::key_t>(a0)); });
    Use(+[](registry_settings::MemorySettingsTree & object, registry_settings::SettingsTree::key_t a0, std::uint32_t a1, registry_entry & a2) -> bool { return object.registry_settings::MemorySettingsTree::DescribeValue(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<std::uint32_t>(a1), std::forward<registry_entry &>(a2)); });
    Use(+[](registry_settings::MemorySettingsTree & object, registry_settings::SettingsTree::key_t a0, std::uint32_t a1, registry_entry & a2) -> bool { return object.registry_settings::MemorySettingsTree::ReadValue(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<std::uint32_t>(a1), std::forward<registry_entry &>(a2)); });
    Use(+[](registry_settings::MemorySettingsTree & object, registry_settings::SettingsTree::key_t a0, std::uint32_t a1, std::u16string & a2) -> bool { return object.registry_settings::MemorySettingsTree::SubkeyName(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<std::uint32_t>(a1), std::forward<std::u16string &>(a2)); });
    Use(+[](registry_settings::MemorySettingsTree & object, registry_settings::SettingsTree::key_t a0, registry_entry const & a1) -> bool { return object.registry_settings::MemorySettingsTree::SetValue(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<registry_entry const &>(a1)); });
    Use(+[](registry_settings::MemorySettingsTree & object, registry_settings::SettingsTree::key_t a0) -> void { return object.registry_settings::MemorySettingsTree::EmptyKey(std::forward<registry_settings::SettingsTree::key_t>(a0)); });
    Use(+[](registry_settings::MemorySettingsTree & object, std::u16string const & a0) -> void { return object.registry_settings::MemorySettingsTree::DeleteKey(std::forward<std::u16string const &>(a0)); });
    Use(+[](registry_settings::MemorySettingsTree const & object) -> std::size_t { return object.registry_settings::MemorySettingsTree::OpenKeyCount(); });

    // windows/MenueManager.h
    Use(+[]() { delete new CMenueManager(); });
    Use(+[](CMenueManager & object) -> unsigned int { return object.CMenueManager::GetNewID(); });
    Use(+[](CMenueManager & object, unsigned int a0) -> void { return object.CMenueManager::SetNewID(std::forward<unsigned int>(a0)); });
    Use(+[](CMenueManager & object, CMenu & a0, CString const & a1) -> unsigned int { return object.CMenueManager::AppendString(std::forward<CMenu &>(a0), std::forward<CString const &>(a1)); });
    Use(+[](CMenueManager & object, CMenu & a0) -> bool { return object.CMenueManager::AppendSeparator(std::forward<CMenu &>(a0)); });
    Use(+[]() -> CMenu * { return CMenueManager::ApplicationMenue(); });
    Use(+[]() -> void { return CMenueManager::DrawApplicationMenue(); });
    Use(+[](CMenu const & a0, CString const & a1) -> int { return CMenueManager::FindItem(std::forward<CMenu const &>(a0), std::forward<CString const &>(a1)); });
    Use(+[](CMenu const & a0, unsigned int a1) -> int { return CMenueManager::FindItem(std::forward<CMenu const &>(a0), std::forward<unsigned int>(a1)); });
    Use(+[](CMenu const & a0, CString const & a1) -> CMenu * { return CMenueManager::FindSubMenue(std::forward<CMenu const &>(a0), std::forward<CString const &>(a1)); });

    // windows/RegistrySettingsTree.h
    Use(+[](std::function<HKEY()> a0) { delete new registry_settings::RegistrySettingsTree(std::forward<std::function<HKEY()>>(a0)); });
    Use(+[](registry_settings::RegistrySettingsTree & object, std::u16string const & a0, registry_settings::SettingsTree::access_t a1) -> registry_settings::SettingsTree::key_t { return object.registry_settings::RegistrySettingsTree::Open(std::forward<std::u16string const &>(a0), std::forward<registry_settings::SettingsTree::access_t>(a1)); });
    Use(+[](registry_settings::RegistrySettingsTree & object, registry_settings::SettingsTree::key_t a0, std::u16string const & a1) -> registry_settings::SettingsTree::key_t { return object.registry_settings::RegistrySettingsTree::OpenSubkey(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<std::u16string const &>(a1)); });
    Use(+[](registry_settings::RegistrySettingsTree & object, registry_settings::SettingsTree::key_t a0, std::u16string const & a1) -> registry_settings::SettingsTree::key_t { return object.registry_settings::RegistrySettingsTree::CreateSubkey(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<std::u16string const &>(a1)); });
    Use(+[](registry_settings::RegistrySettingsTree & object, registry_settings::SettingsTree::key_t a0) -> void { return object.registry_settings::RegistrySettingsTree::Close(std::forward<registry_settings::SettingsTree::key_t>(a0)); });
    Use(+[](registry_settings::RegistrySettingsTree & object, registry_settings::SettingsTree::key_t a0) -> registry_settings::SettingsTree::counts_t { return object.registry_settings::RegistrySettingsTree::Count(std::forward<registry_settings::SettingsTree::key_t>(a0)); });
    Use(+[](registry_settings::RegistrySettingsTree & object, registry_settings::SettingsTree::key_t a0, std::uint32_t a1, registry_entry & a2) -> bool { return object.registry_settings::RegistrySettingsTree::DescribeValue(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<std::uint32_t>(a1), std::forward<registry_entry &>(a2)); });
    Use(+[](registry_settings::RegistrySettingsTree & object, registry_settings::SettingsTree::key_t a0, std::uint32_t a1, registry_entry & a2) -> bool { return object.registry_settings::RegistrySettingsTree::ReadValue(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<std::uint32_t>(a1), std::forward<registry_entry &>(a2)); });
    Use(+[](registry_settings::RegistrySettingsTree & object, registry_settings::SettingsTree::key_t a0, std::uint32_t a1, std::u16string & a2) -> bool { return object.registry_settings::RegistrySettingsTree::SubkeyName(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<std::uint32_t>(a1), std::forward<std::u16string &>(a2)); });
    Use(+[](registry_settings::RegistrySettingsTree & object, registry_settings::SettingsTree::key_t a0, registry_entry const & a1) -> bool { return object.registry_settings::RegistrySettingsTree::SetValue(std::forward<registry_settings::SettingsTree::key_t>(a0), std::forward<registry_entry const &>(a1)); });
    Use(+[](registry_settings::RegistrySettingsTree & object, registry_settings::SettingsTree::key_t a0) -> void { return object.registry_settings::RegistrySettingsTree::EmptyKey(std::forward<registry_settings::SettingsTree::key_t>(a0)); });
    Use(+[](registry_settings::RegistrySettingsTree & object, std::u16string const & a0) -> void { return object.registry_settings::RegistrySettingsTree::DeleteKey(std::forward<std::u16string const &>(a0)); });

    // windows/SettingsFile.h
    Use(+[] { delete new registry_settings::settings_file_names; });
    Use(+[](std::ostream & a0, registry_entry_list const & a1) -> bool { return registry_settings::write_settings(std::forward<std::ostream &>(a0), std::forward<registry_entry_list const &>(a1)); });
    Use(+[](std::istream & a0, registry_entry_list & a1) -> bool { return registry_settings::read_settings(std::forward<std::istream &>(a0), std::forward<registry_entry_list &>(a1)); });
    Use(+[](std::filesystem::path const & a0, registry_entry_list const & a1) -> bool { return registry_settings::write_settings_file(std::forward<std::filesystem::path const &>(a0), std::forward<registry_entry_list const &>(a1)); });
    Use(+[](std::filesystem::path const & a0, registry_entry_list & a1) -> bool { return registry_settings::read_settings_file(std::forward<std::filesystem::path const &>(a0), std::forward<registry_entry_list &>(a1)); });
    Use(+[](SettingsTree & a0, settings_file_names const & a1) -> bool { return registry_settings::export_registry_settings(std::forward<SettingsTree &>(a0), std::forward<settings_file_names const &>(a1)); });
    Use(+[](SettingsTree & a0, settings_file_names const & a1) -> bool { return registry_settings::import_registry_settings(std::forward<SettingsTree &>(a0), std::forward<settings_file_names const &>(a1)); });

    // windows/SettingsTree.h
    Use(+[](registry_settings::registry_entry const & object, registry_entry const & a0) -> bool { return object.registry_settings::registry_entry::operator==(std::forward<registry_entry const &>(a0)); });
    Use(+[] { delete new registry_settings::registry_entry; });
    Use(+[] { delete new registry_settings::SettingsTree::counts_t; });
    Use(+[](SettingsTree & a0, registry_entry_list & a1) -> bool { return registry_settings::read_registry_tree(std::forward<SettingsTree &>(a0), std::forward<registry_entry_list &>(a1)); });
    Use(+[](SettingsTree & a0, registry_entry_list & a1) -> bool { return registry_settings::write_registry_tree(std::forward<SettingsTree &>(a0), std::forward<registry_entry_list &>(a1)); });
    Use(+[](SettingsTree & a0, std::u16string const & a1) -> bool { return registry_settings::delete_registry_tree(std::forward<SettingsTree &>(a0), std::forward<std::u16string const &>(a1)); });
    Use(+[](SettingsTree & a0, std::u16string const & a1) -> bool { return registry_settings::registry_key_exists(std::forward<SettingsTree &>(a0), std::forward<std::u16string const &>(a1)); });

    // windows/StandaloneFrameMigrationHelper.h
    Use(+[](CString const & a0) -> CRect { return CStandaloneFrameMigrationHelper::VeskPosition(std::forward<CString const &>(a0)); });
    Use(+[](CStandaloneFrameWnd * a0, CDockablePane * a1) -> void { return CStandaloneFrameMigrationHelper::BringWindowToTop(std::forward<CStandaloneFrameWnd *>(a0), std::forward<CDockablePane *>(a1)); });
    Use(+[] { delete new CStandaloneFrameMigrationHelper; });

    // windows/StandaloneFrameUser.h
    Use(+[](CStandaloneFrameUser & object, CStandaloneFrameUser const & a0) -> CStandaloneFrameUser & { return object.CStandaloneFrameUser::operator=(std::forward<CStandaloneFrameUser const &>(a0)); });
    Use(+[](CStandaloneFrameUser & object) -> void { return object.CStandaloneFrameUser::BeiFrameAbleben(); });
    Use(+[](CStandaloneFrameUser & object, int a0, int a1) -> void { return object.CStandaloneFrameUser::MenueKommando(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CStandaloneFrameUser & object, int a0, unsigned long a1, void const * a2, wchar_t const * a3) -> void { return object.CStandaloneFrameUser::FrameEreignis(std::forward<int>(a0), std::forward<unsigned long>(a1), std::forward<void const *>(a2), std::forward<wchar_t const *>(a3)); });
    Use(+[](CStandaloneFrameUser & object, unsigned int a0, CPoint a1, int a2) -> void { return object.CStandaloneFrameUser::MausLDoppelKlick(std::forward<unsigned int>(a0), std::forward<CPoint>(a1), std::forward<int>(a2)); });
    Use(+[](CStandaloneFrameUser & object, unsigned int a0, CPoint a1, int a2) -> void { return object.CStandaloneFrameUser::MausRDoppelKlick(std::forward<unsigned int>(a0), std::forward<CPoint>(a1), std::forward<int>(a2)); });
    Use(+[](CStandaloneFrameUser const & object) -> bool { return object.CStandaloneFrameUser::FrameLebt(); });

    // windows/StandaloneFrameWnd.h
    Use(+[]() { delete new CStandaloneFrameWnd(); });
    Use(+[](CStandaloneFrameWnd & object, CString const & a0, CRuntimeClass * a1, unsigned long a2) -> bool { return object.CStandaloneFrameWnd::Erzeugen(std::forward<CString const &>(a0), std::forward<CRuntimeClass *>(a1), std::forward<unsigned long>(a2)); });
    Use(+[](CStandaloneFrameWnd & object, CString const & a0, unsigned long long a1, unsigned long long a2, CRuntimeClass ** a3) -> bool { return object.CStandaloneFrameWnd::SplitFrameErzeugen(std::forward<CString const &>(a0), std::forward<unsigned long long>(a1), std::forward<unsigned long long>(a2), std::forward<CRuntimeClass **>(a3)); });
    Use(+[](CStandaloneFrameWnd & object, CStandaloneFrameUser * a0) -> void { return object.CStandaloneFrameWnd::BitteUmNachricht(std::forward<CStandaloneFrameUser *>(a0)); });
    Use(+[](CStandaloneFrameWnd & object, int a0, int a1) -> CView * { return object.CStandaloneFrameWnd::GetSplitPane(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CStandaloneFrameWnd & object, int a0, int a1) -> void { return object.CStandaloneFrameWnd::MenueKommando(std::forward<int>(a0), std::forward<int>(a1)); });
    Use(+[](CStandaloneFrameWnd & object) -> void { return object.CStandaloneFrameWnd::FensterWeg(); });
    Use(+[](CStandaloneFrameWnd & object) -> CFensterManager * { return object.CStandaloneFrameWnd::FensterManager(); });
    Use(+[](CStandaloneFrameWnd const & object) -> CFensterManager const * { return object.CStandaloneFrameWnd::FensterManager(); });
    Use(+[](CStandaloneFrameWnd & object) -> void { return object.CStandaloneFrameWnd::FensterpositionLaden(); });
    Use(+[](CStandaloneFrameWnd & object) -> void { return object.CStandaloneFrameWnd::FensterpositionSpeichern(); });
    Use(+[](CStandaloneFrameWnd const & object) -> bool { return object.CStandaloneFrameWnd::OpenInitially(); });
    Use(+[](CStandaloneFrameWnd & object, bool a0) -> void { return object.CStandaloneFrameWnd::EnableCloseButton(std::forward<bool>(a0)); });
    Use(+[]() -> bool { return CStandaloneFrameWnd::IsInTouchFreeze(); });
    Use(+[](bool a0) -> void { return CStandaloneFrameWnd::SetTouchFreeze(std::forward<bool>(a0)); });
    Use(+[](CStandaloneFrameWnd & object, CREATESTRUCT & a0) -> BOOL { return object.CStandaloneFrameWnd::PreCreateWindow(std::forward<CREATESTRUCT &>(a0)); });
    Use(+[](CStandaloneFrameWnd & object, int a0) -> void { return object.CStandaloneFrameWnd::ActivateFrame(std::forward<int>(a0)); });
    Use(+[](CStandaloneFrameWnd & object) -> int { return object.CStandaloneFrameWnd::IsReadOnly(); });
}
} // namespace

int main()
{
    UseAll();
    return 0;
}
