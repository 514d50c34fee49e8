// The report list: a kind for each cell, a sort by values, and what a user changes told by a callable.
#include <map>

#include "Gallery.h"

struct Recording
{
    wchar_t const * name;
    float peak;
    int read;
    int rating;
    bool keep;
};

constexpr Recording recordings[] = {{L"Door slam.wav", -3.2f, 100, 2, true},
                                    {L"Engine idle.wav", -11.0f, 100, 1, true},
                                    {L"Rain on glass.wav", -27.5f, 64, 1, false},
                                    {L"Sine 1 kHz.wav", -6.0f, 100, 3, false},
                                    {L"Wind gust.wav", -18.4f, 12, 2, true}};

class CListWindow : public CGalleryWindow
{
    void Fill() override
    {
        CRect room;
        GetClientRect(room);
        m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, room, this, 1);
        m_list.SetFullRowSelect();
        m_list.AddColumn(L"Recording", LVCFMT_LEFT, 140);
        m_list.AddColumn(L"Peak (dBFS)", LVCFMT_RIGHT, 100);
        m_list.AddColumn(L"Read", LVCFMT_LEFT, 110);
        m_list.AddColumn(L"Rating", LVCFMT_LEFT, 90);
        m_list.AddColumn(L"Keep", LVCFMT_CENTER, 50);
        m_list.SetBatchInsertMode(true); // one repaint for all that follows
        for (Recording const & recording : recordings)
        {
            int const row = m_list.AddItem(recording.name, &recording, 0);
            m_list.SetHyperlink(row, 0, true, true);
            m_list.SetItemText(row, 1, recording.peak, L"%.1f");
            m_list.SetProgress(row, 2, true, nullptr);
            m_list.UpdateProgress(row, 2, recording.read, recording.read);
            m_list.SetComboBox(row, 3, m_ratings, recording.rating, 1);
            m_list.SetCheckbox(row, 4, recording.keep ? XLC_CHECKED : XLC_UNCHECKED);
        }
        m_list.SetItemColors(0, 1, RGB(160, 0, 0), RGB(255, 235, 225), RGB(255, 255, 255));
        m_list.SetBatchInsertMode(false);
        m_list.SortByColumn(1, false, true, nullptr); // the loudest first
        m_list.m_onStateChange = [this](int row, int) { m_list.SetBold(row, 0, true); };
    }

    std::map<int, wchar_t const *> const m_ratings{{1, L"Usable"}, {2, L"Good"}, {3, L"Very good"}};
    CXListCtrl m_list;
};

CGalleryProgram<CListWindow> theApp(L"Report list", CSize(500, 120));
