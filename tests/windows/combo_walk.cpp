// A random walk over a combo: keys, wheel, pointer, changes of items, openings. After each input, items and selection
// are compared with a model that is written from the combo's rules alone.

#include <random>

#include "combo_ComboTest.h"

using namespace combo_test;

namespace
{
constexpr int inputs = 20000;
constexpr unsigned int seed = 20260722;

struct ModelItem
{
    std::wstring text;
    bool disabled = false;
};

/// What a drop-down list without an edit field must do.
class Model
{
public:
    std::vector<ModelItem> items;
    long long selected = -1;
    std::wstring text;
    bool open = false;
    /// The open list's own items and selection.
    std::vector<ModelItem> shown;
    int row = -1;

    int Count() const { return static_cast<int>(items.size()); }
    int Current() const
    {
        for (int i = 0; i < Count(); ++i)
        {
            if (items[static_cast<std::size_t>(i)].text == text)
                return i;
        }
        return -1;
    }
    void Painted()
    {
        if (selected >= 0 && selected < Count())
            text = items[static_cast<std::size_t>(selected)].text;
    }
    void Select(long long index)
    {
        if (index == -1)
        {
            selected = -1;
            text.clear();
        }
        else if (items.empty())
        {
            selected = index;
        }
        else if (index >= 0 && index < Count())
        {
            selected = index;
            Painted();
        }
    }
    void Insert(int index, std::wstring const & name)
    {
        if (index == -1 || index > Count() || items.empty())
        {
            items.push_back({name});
            return;
        }
        items.insert(items.begin() + index, {name});
        if (index <= selected)
            ++selected;
    }
    void Delete(int index)
    {
        if (index >= 0 && index < Count())
            items.erase(items.begin() + index);
    }
    void Reset()
    {
        items.clear();
        selected = -1;
        text.clear();
    }
    void Step(int direction)
    {
        if (open)
        {
            int const wanted = row + direction;
            if (wanted >= 0 && wanted < static_cast<int>(shown.size()))
                SelectRow(wanted);
            return;
        }
        for (long long index = selected + direction; index >= 0; index += direction)
        {
            if (index >= Count())
            {
                if (direction > 0)
                    return;
                continue;
            }
            if (!items[static_cast<std::size_t>(index)].disabled)
            {
                Select(index);
                return;
            }
        }
    }
    void Page(int direction)
    {
        if (items.empty())
            return;
        long long const from = selected < 0 || selected >= Count() ? 0 : selected;
        Select(std::clamp(from + 10LL * direction, 0LL, static_cast<long long>(Count() - 1)));
    }
    void PageInList(int direction, int top, int visible)
    {
        int const count = static_cast<int>(shown.size());
        if (count == 0 || (direction < 0 ? row == 0 : row == count - 1))
            return;
        int wanted = 0;
        if (direction < 0)
            wanted = row == -1 ? count - 1 : row == top ? std::max(top - visible + 1, 0) : top;
        else
            wanted = row == -1 ? 0 : row < top + visible - 1 ? top + visible - 1 : top + 2 * visible - 2;
        SelectRow(std::min(wanted, count - 1));
        if (row != -1)
            text = shown[static_cast<std::size_t>(row)].text;
    }
    void SelectRow(int wanted)
    {
        int const count = static_cast<int>(shown.size());
        if (wanted < 0 || wanted >= count)
            return;
        int const direction = wanted < row ? -1 : 1;
        int found = wanted;
        while (wanted != row && found >= 0 && found < count && shown[static_cast<std::size_t>(found)].disabled)
            found += direction;
        if (found < 0 || found >= count)
            found = wanted;
        if (!shown[static_cast<std::size_t>(found)].disabled)
            row = found;
    }
    void Open()
    {
        open = true;
        shown = items;
        row = -1;
        if (selected > Count() - 1)
            selected = 0;
        SelectRow(static_cast<int>(selected));
    }
    void Close() { open = false; }
    void Choose()
    {
        if (row != -1)
        {
            text = shown[static_cast<std::size_t>(row)].text;
            selected = Current();
        }
        Close();
    }
};

class ComboWalk : public ComboTest
{
protected:
    int Pick(int limit) { return static_cast<int>(m_random() % static_cast<unsigned int>(limit)); }
    /// Within the items, or just outside.
    int PickIndex() { return Pick(m_model.Count() + 3) - 1; }
    std::wstring PickName() { return std::wstring(1, static_cast<wchar_t>(L'a' + Pick(12))); }

    void Input();
    void ChangeItems();
    void Point();
    void Compare(int step);

    std::mt19937 m_random{seed};
    Model m_model;
    std::string m_last;
};

void ComboWalk::Input()
{
    int const what = Pick(100);
    if (what < 25)
    {
        bool const down = Pick(2) == 0;
        m_last = down ? "down" : "up";
        if (Pick(3) == 0)
            m_combo->SendMessage(WM_KEYDOWN, down ? VK_DOWN : VK_UP, 1);
        else
            PostKey(down ? VK_DOWN : VK_UP);
        m_model.Step(down ? 1 : -1);
    }
    else if (what < 35)
    {
        bool const down = Pick(2) == 0;
        m_last = down ? "page down" : "page up";
        int const top = m_model.open ? List().GetTopIndex() : 0;
        int const visible = m_model.open ? List().GetVisibleRows() : 0;
        PostKey(down ? VK_NEXT : VK_PRIOR);
        if (m_model.open)
            m_model.PageInList(down ? 1 : -1, top, visible);
        else
            m_model.Page(down ? 1 : -1);
    }
    else if (what < 45)
    {
        bool const up = Pick(2) == 0;
        m_last = "wheel";
        m_combo->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(up ? 120 : -120)), 0);
        if (!m_model.open)
            m_model.Step(up ? -1 : 1);
    }
    else if (what < 70)
    {
        ChangeItems();
    }
    else if (what < 75)
    {
        int const index = PickIndex();
        m_last = "select";
        m_combo->SetCurSel(index);
        m_model.Select(index);
    }
    else if (m_model.open)
    {
        if (what < 94)
        {
            Point();
        }
        else
        {
            bool const chooses = Pick(2) == 0;
            m_last = chooses ? "return" : "escape";
            PostKey(chooses ? VK_RETURN : VK_ESCAPE);
            if (chooses)
                m_model.Choose();
            else
                m_model.Close();
        }
    }
    else if (what == 99)
    {
        m_last = "open";
        PostKey(VK_F4);
        m_model.Open();
    }
}

void ComboWalk::ChangeItems()
{
    int const what = Pick(40);
    std::wstring const name = PickName();
    int const index = PickIndex();
    if (what == 0)
    {
        m_last = "reset";
        m_combo->ResetContent();
        m_model.Reset();
    }
    else if (what < 12)
    {
        m_last = "add";
        m_combo->AddString(name.c_str());
        m_model.items.push_back({name});
    }
    else if (what < 18)
    {
        m_last = "insert";
        m_combo->InsertString(index, name.c_str());
        m_model.Insert(index, name);
    }
    else if (what < 26)
    {
        m_last = "delete";
        m_combo->DeleteString(index);
        m_model.Delete(index);
    }
    else
    {
        m_last = "disable";
        bool const disabled = Pick(3) == 0;
        if (m_combo->SetItemDisabled(index, disabled) == 0)
            m_model.items[static_cast<std::size_t>(index)].disabled = disabled;
    }
}

void ComboWalk::Point()
{
    int const visible = std::min(List().GetVisibleRows(), List().GetCount() - List().GetTopIndex());
    if (visible <= 0)
        return;
    int const row = List().GetTopIndex() + Pick(visible);
    CRect rect;
    List().GetItemRect(row, rect);
    LPARAM const point = MAKELPARAM(rect.CenterPoint().x, rect.CenterPoint().y);
    bool const disabled = m_model.shown[static_cast<std::size_t>(row)].disabled;
    m_last = "point";
    List().SendMessage(WM_MOUSEMOVE, 0, point);
    if (!disabled)
        m_model.row = row;
    if (Pick(8) != 0)
        return;
    m_last = "click";
    HWND const list = List().m_hWnd;
    ::SendMessage(list, WM_LBUTTONDOWN, MK_LBUTTON, point);
    ::SendMessage(list, WM_LBUTTONUP, 0, point);
    tests::PumpPosted();
    if (!disabled)
        m_model.Choose();
}

void ComboWalk::Compare(int step)
{
    m_combo->RedrawWindow();
    m_model.Painted();
    SCOPED_TRACE(testing::Message() << "input " << step << ", " << m_last);
    ASSERT_EQ(m_combo->GetCount(), m_model.Count());
    ASSERT_EQ(m_combo->m_curSel, m_model.selected);
    ASSERT_EQ(m_combo->m_text, m_model.text);
    ASSERT_EQ(m_combo->GetCurSel(), m_model.Current());
    ASSERT_EQ(m_combo->GetDroppedState() != FALSE, m_model.open);
    if (m_model.open)
    {
        ASSERT_EQ(List().GetCurSel(), m_model.row);
    }
    if (step % 50 != 0)
        return;
    for (int i = 0; i < m_model.Count(); ++i)
    {
        CString text;
        m_combo->GetLBText(i, text);
        ModelItem const & item = m_model.items[static_cast<std::size_t>(i)];
        ASSERT_EQ(text, item.text.c_str());
        ASSERT_EQ(m_combo->GetItemDisabled(i), item.disabled);
    }
}
} // namespace

TEST_F(ComboWalk, AgreesWithTheModel)
{
    MakeCombo(CBS_DROPDOWNLIST, {});
    m_combo->SetMaxVisible(9);
    int openings = 0;
    int choices = 0;
    for (int step = 0; step < inputs; ++step)
    {
        Input();
        openings += m_last == "open";
        choices += m_last == "click" || m_last == "return";
        Compare(step);
        if (HasFatalFailure())
            return;
    }
    EXPECT_GT(openings, 50);
    EXPECT_GT(choices, 50);
}
