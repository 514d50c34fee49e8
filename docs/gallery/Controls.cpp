// The small controls: colours of one's own, a slider that shows its level, a combo box and a list of ticks by number,
// and a field with a browser.
#include <map>

#include "Gallery.h"

std::map<int, CString> const channels = {{1, L"Left"}, {2, L"Right"}, {3, L"Centre"}, {4, L"Surround"}};

class CControlsWindow : public CGalleryWindow
{
    void Fill() override
    {
        long const style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
        m_record.Create(L"Record", style | BS_OWNERDRAW, CRect(10, 10, 130, 36), this, 1);
        m_record.SetColors(CColorControl::White, CColorControl::Red);
        m_record.SetHotBgColor(RGB(255, 90, 90));

        m_level.Create(style | TBS_HORZ, CRect(140, 10, 360, 36), this, 2);
        m_level.SetMainColor(RGB(40, 150, 60));
        m_level.SetPos(60);

        m_channel.Create(style | CBS_DROPDOWNLIST | WS_VSCROLL, CRect(10, 46, 130, 200), this, 3);
        m_channel.FillItems(channels, true); // with a blank row
        m_channel.SelectItemData(2);

        m_file.Create(style | WS_BORDER | ES_AUTOHSCROLL, CRect(140, 46, 360, 68), this, 4);
        m_file.PrepareFileOpenBrowser(L"Recordings (*.wav)|*.wav||", L"wav", nullptr);
        m_file.SetWindowText(L"C:\\Recordings\\Door slam.wav");

        m_ticks.Create(L"", style | BS_OWNERDRAW, CRect(10, 80, 130, 180), this, 5);
        m_ticks.SetTheMap(channels);
        m_ticks.SetSelection({1, 2});
        m_ticks.RefreshContent();

        m_tree.Create(style | WS_BORDER | TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT, CRect(140, 80, 360, 180),
                      this, 6);
        HTREEITEM const folder = m_tree.InsertTreeItem(L"Recordings", 0, 0, nullptr, 1, 100, TVI_LAST, -1);
        for (auto const & [id, name] : channels)
        {
            m_tree.InsertTreeItem(name, 0, 0, folder, 2, id, TVI_LAST, -1);
        }
        m_tree.Expand(folder, TVE_EXPAND);
    }

    CColorButton m_record;
    CLevelSliderCtrl m_level;
    CComboBoxX m_channel;
    CXEditBrowseCtrl m_file;
    CIdNameMultiselectCtrl m_ticks;
    CXTreeCtrl m_tree;
};

CGalleryProgram<CControlsWindow> theApp(L"Small controls", CSize(370, 190));
