// Check boxes and radio buttons of the report list, and the column headers that follow them.

#include <gtest/gtest.h>

#include "list_CellTest.h"

namespace
{
using ListChecks = tests::CellTest;
} // namespace

TEST_F(ListChecks, CheckboxTakesItsFourStates)
{
    for (int const state : {XLC_UNCHECKED, XLC_CHECKED, XLC_CROSSED, XLC_NONE})
    {
        EXPECT_TRUE(m_list.SetCheckbox(1, 1, state));
        EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
        EXPECT_EQ(m_list.GetCheckbox(1, 1), state);
        EXPECT_EQ(m_list.GetItemCheckedState(1, 1), state);
    }
    m_list.SetCheckbox(1, 1, XLC_CHECKED);
    for (int const state : {-2, 3, 4, 5})
        EXPECT_FALSE(m_list.SetCheckbox(1, 1, state)) << state;
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_CHECKED);
    EXPECT_FALSE(m_list.SetCheckbox(5, 1, XLC_CHECKED));
    EXPECT_FALSE(m_list.SetCheckbox(1, 3, XLC_CHECKED));
    EXPECT_EQ(m_list.GetCheckbox(5, 1), XLC_NONE);
    EXPECT_EQ(m_list.GetItemCheckedState(1, -1), XLC_NONE);
}

TEST_F(ListChecks, CheckboxKeepsLookAndEnabledBit)
{
    m_list.SetItemProperty(1, 1, 0xFFFE, true);
    m_list.SetEnabled(1, 1, false);
    EXPECT_TRUE(m_list.SetCheckbox(1, 1, XLC_CHECKED));
    EXPECT_EQ(m_list.GetRowItemData(1, 1)->properties, 0xFF00U);
    m_list.SetItemProperty(1, 2, 0x1FFFE, true);
    EXPECT_TRUE(m_list.SetCheckbox(1, 2, XLC_NONE));
    EXPECT_EQ(m_list.GetRowItemData(1, 2)->properties, 0xFF01U);
    EXPECT_TRUE(m_list.SetRadioButton(1, 1, XLC_RADIO_OFF));
    EXPECT_EQ(m_list.GetRowItemData(1, 1)->properties, 0xFF00U);
}

TEST_F(ListChecks, RawCheckedStateLeavesThePropertiesAlone)
{
    m_list.SetEdit(1, 1, true);
    m_list.TakeUpdateRect();
    m_list.SetItemCheckedState(1, 1, 42);
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    EXPECT_EQ(m_list.GetItemCheckedState(1, 1), 42);
    EXPECT_EQ(m_list.GetRowItemData(1, 1)->properties, XLP_ENABLED | XLP_EDIT);
    m_list.SetItemCheckedState(5, 1, 42);
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
}

TEST_F(ListChecks, RadioButtonOnSwitchesTheFormerOneOff)
{
    for (int row = 0; row < 5; ++row)
        EXPECT_TRUE(m_list.SetRadioButton(row, 1, XLC_RADIO_OFF));
    EXPECT_EQ(m_list.GetActiveRadioItem(1), -1);
    EXPECT_TRUE(m_list.SetRadioButton(3, 1, XLC_RADIO_ON));
    EXPECT_EQ(m_list.GetActiveRadioItem(1), 3);
    m_list.TakeUpdateRect();
    EXPECT_TRUE(m_list.SetRadioButton(1, 1, XLC_RADIO_ON));
    CRect both;
    both.UnionRect(Around(1, 1), Around(3, 1));
    EXPECT_EQ(m_list.TakeUpdateRect(), both);
    EXPECT_EQ(m_list.GetActiveRadioItem(1), 1);
    EXPECT_EQ(m_list.GetCheckbox(3, 1), XLC_RADIO_OFF);
    EXPECT_TRUE(m_list.GetItemRadioOn(1, 1));
    EXPECT_FALSE(m_list.GetItemRadioOn(3, 1));
    EXPECT_TRUE(m_list.SetRadioButton(1, 1, XLC_RADIO_ON)) << "again";
    EXPECT_TRUE(m_list.GetItemRadioOn(1, 1));
    EXPECT_TRUE(m_list.SetRadioButton(1, 1, XLC_NONE));
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_NONE);
}

TEST_F(ListChecks, RadioButtonRefusesOtherStates)
{
    m_list.SetRadioButton(3, 1, XLC_RADIO_ON);
    for (int const state : {-2, 0, 1, 2, 5})
        EXPECT_FALSE(m_list.SetRadioButton(1, 1, state)) << state;
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_NONE);
    EXPECT_FALSE(m_list.SetRadioButton(5, 1, XLC_RADIO_ON));
    EXPECT_FALSE(m_list.SetRadioButton(1, 3, XLC_RADIO_ON));
    EXPECT_TRUE(m_list.GetItemRadioOn(3, 1)) << "a refusal changes nothing";
    EXPECT_EQ(m_list.GetActiveRadioItem(3), -1);
    EXPECT_EQ(m_list.GetActiveRadioItem(-1), -1);
    EXPECT_FALSE(m_list.GetItemRadioOn(5, 1));
}

TEST_F(ListChecks, CountOfPlainRowsGoesByTheSign)
{
    EXPECT_EQ(m_list.CountCheckedItems(1, -1), 5U);
    EXPECT_EQ(m_list.CountCheckedItems(1, -2), 0U);
    EXPECT_EQ(m_list.CountCheckedItems(3, -1), 0U);
    EXPECT_EQ(m_list.CountCheckedItems(-1, -1), 0U);
}

TEST_F(ListChecks, CountByState)
{
    m_list.SetCheckbox(0, 1, XLC_UNCHECKED);
    m_list.SetCheckbox(1, 1, XLC_CHECKED);
    m_list.SetCheckbox(2, 1, XLC_CHECKED);
    m_list.SetRadioButton(3, 1, XLC_RADIO_ON);
    EXPECT_EQ(m_list.CountCheckedItems(1, XLC_UNCHECKED), 1U);
    EXPECT_EQ(m_list.CountCheckedItems(1, XLC_CHECKED), 2U);
    EXPECT_EQ(m_list.CountCheckedItems(1, XLC_CROSSED), 0U);
    EXPECT_EQ(m_list.CountCheckedItems(1, XLC_RADIO_ON), 1U);
    EXPECT_EQ(m_list.CountCheckedItems(1, -1), 5U);
    EXPECT_EQ(m_list.CountCheckedItems(1, -2), 4U);
}

TEST_F(ListChecks, HeaderFollowsTheCheckboxes)
{
    m_list.SetHeaderAutoCheckbox(true);
    m_list.SetHeaderCheckedState(1, XHC_UNCHECKED);
    for (int row = 0; row < 5; ++row)
        m_list.SetCheckbox(row, 1, XLC_UNCHECKED);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_UNCHECKED);
    m_list.SetCheckbox(2, 1, XLC_CHECKED);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_MIXED);
    for (int row = 0; row < 5; ++row)
        m_list.SetCheckbox(row, 1, XLC_CHECKED);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_CHECKED);
    for (int row = 0; row < 5; ++row)
        m_list.SetCheckbox(row, 1, XLC_CROSSED);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_CROSSED);
    m_list.SetCheckbox(0, 1, XLC_NONE);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_MIXED);
}

TEST_F(ListChecks, HeaderFollowsOnlyWhereItHasACheckBox)
{
    m_list.SetHeaderAutoCheckbox(true);
    for (int const state : {XHC_NONE, XHC_SORT_ASCENDING, XHC_SORT_DESCENDING})
    {
        m_list.SetHeaderCheckedState(1, state);
        m_list.SetCheckbox(2, 1, XLC_CHECKED);
        EXPECT_EQ(m_list.GetHeaderCheckedState(1), state);
    }
    m_list.SetHeaderCheckedState(1, XHC_UNCHECKED);
    m_list.SetRadioButton(2, 1, XLC_RADIO_ON);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_UNCHECKED) << "a radio button does not count";
    m_list.SetHeaderAutoCheckbox(false);
    m_list.SetCheckbox(2, 1, XLC_CHECKED);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_UNCHECKED);
}
