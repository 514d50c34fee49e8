// A host that changes the resolution, and ends things, in whatever it is told.

#include <map>
#include <memory>

#include "chaos_Chaos.h"
#include "list/XListCtrl.h"

namespace
{
class ListWorld;

class DpiChaosList : public CXListCtrl
{
public:
    explicit DpiChaosList(ListWorld & world) : m_world(world) {}

    bool MustLast() const { return m_native > 0; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    ListWorld & m_world;
    int m_native = 0;
};

class DpiChaosParent : public tests::ScopedWindow
{
public:
    explicit DpiChaosParent(ListWorld & world) : m_world(world) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    ListWorld & m_world;
};

class ListWorld : public chaos::Chaos
{
public:
    using Chaos::Chaos;

    ~ListWorld() override
    {
        if (m_list)
            m_list->DestroyWindow();
    }

protected:
    void Operate() override
    {
        if (!IsThere())
        {
            Make();
            return;
        }
        int const row = Pick(6);
        int const col = Pick(5);
        constexpr UINT resolutions[] = {48, 96, 120, 144, 192, 288, 96};
        switch (Pick(14))
        {
        case 0:
        case 1:
        case 2:
        case 3:
            Note("SetDpi");
            m_list->SetDpi(resolutions[Pick(static_cast<int>(std::size(resolutions)))]);
            break;
        case 4:
            Note("FollowDpi");
            m_list->FollowDpi(OneIn(2));
            break;
        case 5:
            Note("WM_DPICHANGED_AFTERPARENT");
            m_list->SendMessage(0x02E3, 0, 0);
            break;
        case 6:
            Note("AddColumn");
            if (m_list->GetColumnCount() < 6)
                m_list->AddColumn(L"c", LVCFMT_LEFT, 30 + Pick(80));
            break;
        case 7:
            Note("DeleteColumn");
            // Native code that walks its columns stands no end of one.
            if (!m_list->MustLast())
                m_list->DeleteColumn(col);
            break;
        case 8:
            Note("AddItem");
            if (m_list->GetItemCount() < 8)
                m_list->AddItem(L"row", nullptr, 0);
            break;
        case 9:
            Note("editors");
            m_list->SetEdit(row, col, true);
            if (IsThere())
                m_list->EnableCellCursor(OneIn(2));
            if (IsThere())
                m_list->SetCellCursor(row, col);
            if (IsThere())
                m_list->SendMessage(WM_KEYDOWN, VK_F2, 0);
            break;
        case 10:
            Note("SetColumnWidth");
            m_list->SetColumnWidth(col, Pick(120));
            break;
        case 11:
            Note("paint");
            m_list->SetCheckbox(row, col, XLC_CHECKED);
            if (IsThere())
                m_list->RedrawWindow();
            break;
        case 12:
            Note("images");
            if (m_images.GetSafeHandle() == nullptr)
                m_images.Create(12, 12, ILC_COLOR24, 2, 1);
            m_list->SetImageList(OneIn(2) ? &m_images : nullptr, OneIn(3) ? LVSIL_STATE : LVSIL_SMALL);
            break;
        default:
            if (m_list->MustLast() || !OneIn(4))
                break;
            Note("end");
            m_list->DestroyWindow();
            if (OneIn(2))
                m_list.reset();
            break;
        }
    }
    void CheckInvariants() override
    {
        if (!m_list)
            return;
        EXPECT_GE(m_list->GetDpi(), 48u);
        EXPECT_LE(m_list->GetDpi(), 288u);
    }

private:
    bool IsThere() const { return m_list && m_list->m_hWnd != nullptr; }
    void Make()
    {
        Note("make");
        if (!m_list || OneIn(2))
        {
            if (m_list && m_list->MustLast())
                return;
            m_list = std::make_unique<DpiChaosList>(*this);
        }
        DWORD const style = WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHAREIMAGELISTS;
        m_list->Create(style, CRect(0, 0, 300, 150), m_host, 7);
    }

    DpiChaosParent m_host{*this};
    CImageList m_images;
    std::unique_ptr<DpiChaosList> m_list;
};

LRESULT DpiChaosList::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    ++m_native;
    m_world.Disturb();
    LRESULT const result = CXListCtrl::WindowProc(message, wParam, lParam);
    --m_native;
    return result;
}

// The native list stands no end within its own code.
LRESULT DpiChaosList::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    ++m_native;
    LRESULT const result = CXListCtrl::DefWindowProc(message, wParam, lParam);
    --m_native;
    return result;
}

LRESULT DpiChaosParent::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    m_world.Disturb();
    return tests::ScopedWindow::WindowProc(message, wParam, lParam);
}

TEST(ChaosDpi, ListSurvives)
{
    // Repaints of a whole list among the operations take their time.
    constexpr int steps = 250;
    for (unsigned int const seed : chaos::seeds)
    {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        tests::GuardedHeap heap;
        {
            ListWorld world(seed);
            world.Run(steps, heap);
        }
        tests::PumpPosted();
        EXPECT_EQ(heap.Check(), 0u);
        if (testing::Test::HasFailure())
            return;
    }
}
} // namespace
