// Combo box and drop-down in the sets of colours.

#include "Bitmap.h"
#include "colours/ControlColors.h"
#include "combo_ComboTest.h"

using namespace combo_test;

namespace
{
class ComboColors : public ComboTest
{
protected:
    static std::unique_ptr<tests::Canvas> ShotOf(CWnd & window)
    {
        window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        CRect client;
        window.GetClientRect(client);
        auto canvas = std::make_unique<tests::Canvas>(client.Width(), client.Height(), RGB(1, 2, 3));
        canvas->CopyFromScreen(window.m_hWnd);
        return canvas;
    }
};

constexpr ControlColorSet adapting_sets[] = {ControlColorSet::dark, ControlColorSet::high_contrast};
} // namespace

TEST_F(ComboColors, ComboIsTheSets)
{
    MakeCombo();
    std::unique_ptr<tests::Canvas> const before = ShotOf(*m_combo);
    for (ControlColorSet const set : adapting_sets)
    {
        control_colors::UseFor(m_combo->m_hWnd, set);
        ControlColors const colors = control_colors::Of(set);
        std::unique_ptr<tests::Canvas> const shot = ShotOf(*m_combo);
        EXPECT_EQ(shot->Pixel(5, 5), colors.window);
        int const button = shot->Width() - 2 - ::GetSystemMetrics(SM_CXHSCROLL);
        CRect const area(button, 2, shot->Width() - 2, shot->Height() - 2);
        EXPECT_GT(shot->Count(colors.face, area), 50);
        EXPECT_GE(shot->Count(colors.buttonText, area), 16);
        m_combo->EnableWindow(FALSE);
        EXPECT_EQ(ShotOf(*m_combo)->Pixel(5, 5), colors.face);
        m_combo->EnableWindow(TRUE);
    }
    control_colors::UseFor(m_combo->m_hWnd, ControlColorSet::standard);
    EXPECT_TRUE(SamePixels(*ShotOf(*m_combo), *before));
}

TEST_F(ComboColors, DropDownIsTheCombos)
{
    MakeCombo();
    for (wchar_t const * const text : {L"one", L"two", L"HHHH"})
        m_combo->AddString(text);
    for (ControlColorSet const set : adapting_sets)
    {
        control_colors::UseFor(m_combo->m_hWnd, set);
        ControlColors const colors = control_colors::Of(set);
        m_combo->ShowDropDown(TRUE);
        ASSERT_NE(m_combo->m_drop, nullptr);
        std::unique_ptr<tests::Canvas> const shot = ShotOf(*m_combo->GetDropWnd());
        EXPECT_EQ(shot->Pixel(shot->Width() / 2, 0), colors.dropFrame);
        EXPECT_GT(shot->Count(colors.window), 200);
        EXPECT_GT(shot->Count(colors.windowText), 10);
        m_combo->ShowDropDown(FALSE);
    }
}
