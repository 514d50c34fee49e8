// Dialog data exchange and validation, both ways, on the controls of IDD_EXCHANGE.

#include <afxwin.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <functional>

#include "Input.h"
#include "MessageRecorder.h"
#include "Pump.h"
#include "resource.h"
#include "ScopedWindow.h"
#include "TestApp.h"

namespace
{
/// A dialog whose exchange the test writes.
class CExchangeDialog : public CDialog
{
public:
    using Exchange = std::function<void(CDataExchange *)>;

    Exchange m_exchange;
    int m_textChanges = 0;

protected:
    void DoDataExchange(CDataExchange * pDX) override
    {
        CDialog::DoDataExchange(pDX);
        if (m_exchange)
            m_exchange(pDX);
    }
    void OnChangeText() { ++m_textChanges; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CExchangeDialog, CDialog)
    ON_EN_CHANGE(IDC_TEXT, &CExchangeDialog::OnChangeText)
END_MESSAGE_MAP()

class DataExchange : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_dialog.Create(IDD_EXCHANGE, m_host)); }
    void TearDown() override
    {
        if (m_dialog.m_hWnd != nullptr)
            m_dialog.DestroyWindow();
    }

    HWND Item(int id) { return ::GetDlgItem(m_dialog.m_hWnd, id); }
    void SetText(int id, LPCTSTR text) { m_dialog.SetDlgItemText(id, text); }
    std::wstring Text(int id)
    {
        wchar_t text[200] = {};
        m_dialog.GetDlgItemText(id, text, 200);
        return text;
    }
    BOOL Exchange(BOOL save, CExchangeDialog::Exchange exchange)
    {
        m_dialog.m_exchange = std::move(exchange);
        return m_dialog.UpdateData(save);
    }
    BOOL Load(CExchangeDialog::Exchange exchange) { return Exchange(FALSE, std::move(exchange)); }
    BOOL Save(CExchangeDialog::Exchange exchange) { return Exchange(TRUE, std::move(exchange)); }

    /// Saves the text into a T; the messages that come up, none if it is taken.
    template <class T> std::vector<std::wstring> SaveText(int id, LPCTSTR text, T & value)
    {
        SetText(id, text);
        BOOL const saved = Save([&](CDataExchange * pDX) { DDX_Text(pDX, id, value); });
        std::vector<std::wstring> messages = tests::App().TakeMessages();
        EXPECT_EQ(saved, messages.empty() ? TRUE : FALSE);
        return messages;
    }

    tests::ScopedWindow m_host;
    CExchangeDialog m_dialog;
};

using Texts = std::vector<std::wstring>;

TEST_F(DataExchange, NumbersAreShown)
{
    BYTE byteValue = 255;
    short shortValue = -32768;
    int intValue = -7;
    UINT uintValue = 4294967295u;
    long longValue = -2147483647L;
    DWORD dwordValue = 4000000000u;
    float floatValue = 1.5f;
    double doubleValue = -0.000125;
    EXPECT_TRUE(Load([&](CDataExchange * pDX) {
        EXPECT_FALSE(pDX->m_bSaveAndValidate);
        EXPECT_EQ(pDX->m_pDlgWnd, &m_dialog);
        DDX_Text(pDX, IDC_BYTE, byteValue);
        DDX_Text(pDX, IDC_SHORT, shortValue);
        DDX_Text(pDX, IDC_INT, intValue);
        DDX_Text(pDX, IDC_UINT, uintValue);
        DDX_Text(pDX, IDC_LONG, longValue);
        DDX_Text(pDX, IDC_DWORD, dwordValue);
        DDX_Text(pDX, IDC_FLOAT, floatValue);
        DDX_Text(pDX, IDC_DOUBLE, doubleValue);
    }));
    EXPECT_EQ(Text(IDC_BYTE), L"255");
    EXPECT_EQ(Text(IDC_SHORT), L"-32768");
    EXPECT_EQ(Text(IDC_INT), L"-7");
    EXPECT_EQ(Text(IDC_UINT), L"4294967295");
    EXPECT_EQ(Text(IDC_LONG), L"-2147483647");
    EXPECT_EQ(Text(IDC_DWORD), L"4000000000");
    EXPECT_EQ(Text(IDC_FLOAT), L"1.5");
    EXPECT_EQ(Text(IDC_DOUBLE), L"-0.000125");
}

TEST_F(DataExchange, RealNumbersAreShownWithTheDigitsOfTheirType)
{
    float floatValue = 1.0f / 3;
    double doubleValue = 1.0 / 3;
    Load([&](CDataExchange * pDX) {
        DDX_Text(pDX, IDC_FLOAT, floatValue);
        DDX_Text(pDX, IDC_DOUBLE, doubleValue);
    });
    EXPECT_EQ(Text(IDC_FLOAT), L"0.333333");
    EXPECT_EQ(Text(IDC_DOUBLE), L"0.333333333333333");
}

TEST_F(DataExchange, NumbersAreRead)
{
    BYTE byteValue = 0;
    EXPECT_EQ(SaveText(IDC_BYTE, _T("200"), byteValue), Texts{});
    EXPECT_EQ(byteValue, 200);
    short shortValue = 0;
    EXPECT_EQ(SaveText(IDC_SHORT, _T("-32768"), shortValue), Texts{});
    EXPECT_EQ(shortValue, -32768);
    int intValue = 0;
    EXPECT_EQ(SaveText(IDC_INT, _T("  +12\t"), intValue), Texts{});
    EXPECT_EQ(intValue, 12);
    UINT uintValue = 0;
    EXPECT_EQ(SaveText(IDC_UINT, _T("4294967295"), uintValue), Texts{});
    EXPECT_EQ(uintValue, 4294967295u);
    long longValue = 0;
    EXPECT_EQ(SaveText(IDC_LONG, _T("-2147483648"), longValue), Texts{});
    EXPECT_EQ(longValue, LONG_MIN);
    DWORD dwordValue = 0;
    EXPECT_EQ(SaveText(IDC_DWORD, _T("4000000000"), dwordValue), Texts{});
    EXPECT_EQ(dwordValue, 4000000000u);
    float floatValue = 0;
    EXPECT_EQ(SaveText(IDC_FLOAT, _T("-2.5e3"), floatValue), Texts{});
    EXPECT_EQ(floatValue, -2500.0f);
    double doubleValue = 0;
    EXPECT_EQ(SaveText(IDC_DOUBLE, _T(".125 "), doubleValue), Texts{});
    EXPECT_EQ(doubleValue, 0.125);
}

TEST_F(DataExchange, WhatIsNoIntegerIsRefused)
{
    Texts const refusal = {L"Please enter an integer."};
    int value = 5;
    for (LPCTSTR const text : {_T(""), _T("  "), _T("x"), _T("12x"), _T("1 2"), _T("1.5"), _T("-"), _T("2147483648")})
        EXPECT_EQ(SaveText(IDC_INT, text, value), refusal) << testing::PrintToString(std::wstring(text));
    short shortValue = 5;
    EXPECT_EQ(SaveText(IDC_SHORT, _T("32768"), shortValue), refusal);
    long longValue = 5;
    EXPECT_EQ(SaveText(IDC_LONG, _T("-2147483649"), longValue), refusal);
    EXPECT_EQ(value, 5);
    EXPECT_EQ(shortValue, 5);
    EXPECT_EQ(longValue, 5);
}

TEST_F(DataExchange, WhatIsNoUnsignedNumberIsRefused)
{
    Texts const refusal = {L"Please enter a positive integer."};
    UINT value = 5;
    for (LPCTSTR const text : {_T(""), _T("-1"), _T("x"), _T("4294967296")})
        EXPECT_EQ(SaveText(IDC_UINT, text, value), refusal) << testing::PrintToString(std::wstring(text));
    DWORD dwordValue = 5;
    EXPECT_EQ(SaveText(IDC_DWORD, _T("-1"), dwordValue), refusal);
    EXPECT_EQ(value, 5u);
    EXPECT_EQ(dwordValue, 5u);
}

TEST_F(DataExchange, WhatIsNoByteIsRefused)
{
    Texts const refusal = {L"Please enter an integer between 0 and 255."};
    BYTE value = 5;
    for (LPCTSTR const text : {_T(""), _T("-1"), _T("256"), _T("ten")})
        EXPECT_EQ(SaveText(IDC_BYTE, text, value), refusal) << testing::PrintToString(std::wstring(text));
    EXPECT_EQ(value, 5);
}

TEST_F(DataExchange, WhatIsNoRealNumberIsRefused)
{
    Texts const refusal = {L"Please enter a number."};
    double value = 5;
    for (LPCTSTR const text : {_T(""), _T("."), _T("1.5x"), _T("nan"), _T("inf"), _T("1e999")})
        EXPECT_EQ(SaveText(IDC_DOUBLE, text, value), refusal) << testing::PrintToString(std::wstring(text));
    float floatValue = 5;
    EXPECT_EQ(SaveText(IDC_FLOAT, _T("1e39"), floatValue), refusal);
    EXPECT_EQ(value, 5);
    EXPECT_EQ(floatValue, 5);
}

TEST_F(DataExchange, FailureShowsAWarningAndSelectsTheTextOfTheControl)
{
    m_dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(tests::BringToFront(m_dialog.m_hWnd));
    SetText(IDC_INT, _T("12x4"));
    m_dialog.GetDlgItem(IDC_TEXT)->SetFocus();
    int value = 0;
    CString never = _T("untouched");
    EXPECT_FALSE(Save([&](CDataExchange * pDX) {
        DDX_Text(pDX, IDC_INT, value);
        DDX_Text(pDX, IDC_TEXT, never);
    }));
    std::vector<tests::TestApp::Message> const messages = tests::App().Take();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].type, static_cast<UINT>(MB_ICONEXCLAMATION));
    EXPECT_EQ(messages[0].helpId, 0xF110u);
    EXPECT_EQ(::GetFocus(), Item(IDC_INT));
    DWORD first = 99;
    DWORD last = 99;
    ::SendMessage(Item(IDC_INT), EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    EXPECT_EQ(first, 0u);
    EXPECT_EQ(last, 4u);
    EXPECT_EQ(never, _T("untouched")); // what comes later is not exchanged
}

TEST_F(DataExchange, OkKeepsTheDialogOpenUntilTheDataAreGood)
{
    m_dialog.ShowWindow(SW_SHOW);
    int value = 0;
    m_dialog.m_exchange = [&](CDataExchange * pDX) { DDX_Text(pDX, IDC_INT, value); };
    SetText(IDC_INT, _T("bad"));
    m_dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_TRUE(m_dialog.IsWindowVisible());
    EXPECT_EQ(tests::App().TakeMessages().size(), 1u);
    SetText(IDC_INT, _T("3"));
    m_dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_FALSE(m_dialog.IsWindowVisible());
    EXPECT_EQ(value, 3);
}

TEST_F(DataExchange, FailThrowsAUserException)
{
    bool thrown = false;
    bool saved = Save([&](CDataExchange * pDX) {
        pDX->PrepareCtrl(IDC_CHECK);
        try
        {
            pDX->Fail();
        }
        catch (CUserException * exception)
        {
            thrown = true;
            exception->Delete();
        }
    });
    EXPECT_TRUE(thrown);
    EXPECT_TRUE(saved);
}

TEST_F(DataExchange, MissingControlThrowsNotSupported)
{
    bool thrown = false;
    Save([&](CDataExchange * pDX) {
        try
        {
            pDX->PrepareEditCtrl(31000);
        }
        catch (CNotSupportedException * exception)
        {
            thrown = true;
            exception->Delete();
        }
    });
    EXPECT_TRUE(thrown);
}

TEST_F(DataExchange, PrepareGivesTheControl)
{
    Save([&](CDataExchange * pDX) {
        EXPECT_EQ(pDX->PrepareCtrl(IDC_CHECK), Item(IDC_CHECK));
        EXPECT_EQ(pDX->PrepareEditCtrl(IDC_TEXT), Item(IDC_TEXT));
    });
}

TEST_F(DataExchange, TextBothWays)
{
    CString text = _T("Temperatur \u00B0C");
    Load([&](CDataExchange * pDX) { DDX_Text(pDX, IDC_TEXT, text); });
    EXPECT_EQ(Text(IDC_TEXT), L"Temperatur \u00B0C");
    SetText(IDC_TEXT, _T(""));
    Save([&](CDataExchange * pDX) { DDX_Text(pDX, IDC_TEXT, text); });
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(DataExchange, TheSameTextIsNotSetAgain)
{
    CString text = _T("same");
    auto const exchange = [&](CDataExchange * pDX) { DDX_Text(pDX, IDC_TEXT, text); };
    Load(exchange);
    tests::MessageRecorder recorder({WM_SETTEXT});
    recorder.Watch(Item(IDC_TEXT), "edit");
    Load(exchange);
    EXPECT_EQ(recorder.Count("edit", WM_SETTEXT), 0);
    text = _T("other");
    Load(exchange);
    EXPECT_EQ(recorder.Count("edit", WM_SETTEXT), 1);
}

TEST_F(DataExchange, NotificationsOfTheExchangeItselfAreNotHandled)
{
    CString text = _T("changed");
    Load([&](CDataExchange * pDX) { DDX_Text(pDX, IDC_TEXT, text); });
    EXPECT_EQ(m_dialog.m_textChanges, 0);
    SetText(IDC_TEXT, _T("outside"));
    EXPECT_EQ(m_dialog.m_textChanges, 1);
}

TEST_F(DataExchange, CheckBoxWithThreeStates)
{
    int value = 0;
    auto const exchange = [&](CDataExchange * pDX) { DDX_Check(pDX, IDC_CHECK, value); };
    for (int const state : {BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED})
    {
        value = state;
        Load(exchange);
        EXPECT_EQ(m_dialog.IsDlgButtonChecked(IDC_CHECK), static_cast<UINT>(state));
        value = 99;
        Save(exchange);
        EXPECT_EQ(value, state);
    }
    value = 7;
    Load(exchange);
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(IDC_CHECK), static_cast<UINT>(BST_UNCHECKED));
    EXPECT_EQ(value, 0);
}

TEST_F(DataExchange, RadioButtonsOfOneGroup)
{
    int value = 1;
    auto const exchange = [&](CDataExchange * pDX) { DDX_Radio(pDX, IDC_RADIO_FIRST, value); };
    Load(exchange);
    EXPECT_FALSE(m_dialog.IsDlgButtonChecked(IDC_RADIO_FIRST));
    EXPECT_TRUE(m_dialog.IsDlgButtonChecked(IDC_RADIO_SECOND));
    EXPECT_FALSE(m_dialog.IsDlgButtonChecked(IDC_RADIO_THIRD));
    m_dialog.CheckRadioButton(IDC_RADIO_FIRST, IDC_RADIO_THIRD, IDC_RADIO_THIRD);
    Save(exchange);
    EXPECT_EQ(value, 2);
    value = -1;
    Load(exchange);
    EXPECT_FALSE(m_dialog.IsDlgButtonChecked(IDC_RADIO_THIRD));
    value = 5;
    Save(exchange);
    EXPECT_EQ(value, -1);
}

TEST_F(DataExchange, ListBox)
{
    for (LPCTSTR const item : {_T("Red wine"), _T("Red"), _T("Green")})
        m_dialog.SendDlgItemMessage(IDC_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    CString text = _T("nothing");
    auto const byText = [&](CDataExchange * pDX) { DDX_LBString(pDX, IDC_LIST, text); };
    auto const byExactText = [&](CDataExchange * pDX) { DDX_LBStringExact(pDX, IDC_LIST, text); };
    int index = 99;
    auto const byIndex = [&](CDataExchange * pDX) { DDX_LBIndex(pDX, IDC_LIST, index); };

    Save(byText);
    EXPECT_TRUE(text.IsEmpty());
    Save(byIndex);
    EXPECT_EQ(index, -1);
    text = _T("re");
    Load(byText);
    Save(byIndex);
    EXPECT_EQ(index, 0);
    text = _T("red");
    Load(byExactText);
    Save(byIndex);
    EXPECT_EQ(index, 1);
    index = 2;
    Load(byIndex);
    Save(byText);
    EXPECT_EQ(text, _T("Green"));
    Save(byExactText);
    EXPECT_EQ(text, _T("Green"));
    text = _T("Blue"); // not there: the selection stays
    Load(byExactText);
    Save(byIndex);
    EXPECT_EQ(index, 2);
}

TEST_F(DataExchange, ComboBox)
{
    for (LPCTSTR const item : {_T("Red wine"), _T("Red"), _T("Green")})
    {
        m_dialog.SendDlgItemMessage(IDC_COMBO, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        m_dialog.SendDlgItemMessage(IDC_DROP_LIST, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    }
    CString text;
    int index = 99;
    auto const byText = [&](CDataExchange * pDX) { DDX_CBString(pDX, IDC_COMBO, text); };
    auto const byExactText = [&](CDataExchange * pDX) { DDX_CBStringExact(pDX, IDC_COMBO, text); };
    auto const byIndex = [&](CDataExchange * pDX) { DDX_CBIndex(pDX, IDC_COMBO, index); };

    text = _T("Gr");
    Load(byText);
    EXPECT_EQ(Text(IDC_COMBO), L"Green");
    Save(byIndex);
    EXPECT_EQ(index, 2);
    text = _T("Red");
    Load(byText); // the first item that starts so
    EXPECT_EQ(Text(IDC_COMBO), L"Red wine");
    Load(byExactText);
    EXPECT_EQ(Text(IDC_COMBO), L"Red");
    text = _T("Blue"); // no item, but the edit field takes it
    Load(byExactText);
    EXPECT_EQ(Text(IDC_COMBO), L"Blue");
    SetText(IDC_COMBO, _T("typed"));
    Save(byText);
    EXPECT_EQ(text, _T("typed"));
    index = 0;
    Load(byIndex);
    EXPECT_EQ(Text(IDC_COMBO), L"Red wine");

    text = _T("Green");
    Load([&](CDataExchange * pDX) { DDX_CBStringExact(pDX, IDC_DROP_LIST, text); });
    text.Empty();
    Save([&](CDataExchange * pDX) { DDX_CBString(pDX, IDC_DROP_LIST, text); });
    EXPECT_EQ(text, _T("Green"));
}

TEST_F(DataExchange, ScrollBarAndSlider)
{
    ::SetScrollRange(Item(IDC_SCROLL), SB_CTL, 0, 100, FALSE);
    int scroll = 40;
    int slider = 60;
    auto const exchange = [&](CDataExchange * pDX) {
        DDX_Scroll(pDX, IDC_SCROLL, scroll);
        DDX_Slider(pDX, IDC_SLIDER, slider);
    };
    Load(exchange);
    EXPECT_EQ(::GetScrollPos(Item(IDC_SCROLL), SB_CTL), 40);
    EXPECT_EQ(::SendMessage(Item(IDC_SLIDER), TBM_GETPOS, 0, 0), 60);
    ::SetScrollPos(Item(IDC_SCROLL), SB_CTL, 7, FALSE);
    ::SendMessage(Item(IDC_SLIDER), TBM_SETPOS, TRUE, 8);
    Save(exchange);
    EXPECT_EQ(scroll, 7);
    EXPECT_EQ(slider, 8);
}

TEST_F(DataExchange, SliderRangeComesFromItsValidation)
{
    int slider = 250;
    auto const exchange = [&](CDataExchange * pDX) {
        DDX_Slider(pDX, IDC_SLIDER, slider);
        DDV_MinMaxSlider(pDX, slider, 200, 300);
    };
    Load(exchange);
    EXPECT_EQ(::SendMessage(Item(IDC_SLIDER), TBM_GETRANGEMIN, 0, 0), 200);
    EXPECT_EQ(::SendMessage(Item(IDC_SLIDER), TBM_GETRANGEMAX, 0, 0), 300);
    EXPECT_EQ(::SendMessage(Item(IDC_SLIDER), TBM_GETPOS, 0, 0), 250);
    slider = 0;
    EXPECT_TRUE(Save(exchange));
    EXPECT_EQ(slider, 250);
}

TEST_F(DataExchange, ControlObjectIsAttachedOnce)
{
    CEdit edit;
    auto const exchange = [&](CDataExchange * pDX) { DDX_Control(pDX, IDC_TEXT, edit); };
    Load(exchange);
    EXPECT_EQ(edit.m_hWnd, Item(IDC_TEXT));
    EXPECT_EQ(CWnd::FromHandlePermanent(Item(IDC_TEXT)), &edit);
    EXPECT_EQ(m_dialog.GetDlgItem(IDC_TEXT), &edit);
    Load(exchange);
    Save(exchange);
    EXPECT_EQ(edit.m_hWnd, Item(IDC_TEXT));
    m_dialog.DestroyWindow();
    EXPECT_EQ(edit.m_hWnd, nullptr);
}

TEST_F(DataExchange, ControlObjectGetsTheMessages)
{
    class CCountingEdit : public CEdit
    {
    public:
        int m_characters = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            m_characters += message == WM_CHAR ? 1 : 0;
            return CEdit::WindowProc(message, wParam, lParam);
        }
    };
    CCountingEdit edit;
    Load([&](CDataExchange * pDX) { DDX_Control(pDX, IDC_TEXT, edit); });
    ::SendMessage(Item(IDC_TEXT), WM_CHAR, L'a', 0);
    EXPECT_EQ(edit.m_characters, 1);
    EXPECT_EQ(Text(IDC_TEXT), L"a");
    m_dialog.DestroyWindow();
}

/// One validation that must fail and give the text.
struct RangeCase
{
    std::function<void(CDataExchange *)> validate;
    wchar_t const * text;
};

TEST_F(DataExchange, ValuesOutsideTheirRangeAreRefused)
{
    RangeCase const cases[] = {
        {[](CDataExchange * pDX) { DDV_MinMaxByte(pDX, 11, 1, 10); }, L"Please enter an integer between 1 and 10."},
        {[](CDataExchange * pDX) { DDV_MinMaxShort(pDX, -6, -5, 5); }, L"Please enter an integer between -5 and 5."},
        {[](CDataExchange * pDX) { DDV_MinMaxInt(pDX, 6, -5, 5); }, L"Please enter an integer between -5 and 5."},
        {[](CDataExchange * pDX) { DDV_MinMaxLong(pDX, 6, -5, 5); }, L"Please enter an integer between -5 and 5."},
        {[](CDataExchange * pDX) { DDV_MinMaxUInt(pDX, 0, 1, 4294967295u); },
         L"Please enter an integer between 1 and 4294967295."},
        {[](CDataExchange * pDX) { DDV_MinMaxUnsigned(pDX, 9, 1, 3); }, L"Please enter an integer between 1 and 3."},
        {[](CDataExchange * pDX) { DDV_MinMaxDWord(pDX, 9, 1, 3); }, L"Please enter an integer between 1 and 3."},
        {[](CDataExchange * pDX) { DDV_MinMaxLongLong(pDX, 1, -9000000000LL, -8000000000LL); },
         L"Please enter an integer between -9000000000 and -8000000000."},
        {[](CDataExchange * pDX) { DDV_MinMaxULongLong(pDX, 1, 2, 18446744073709551615ULL); },
         L"Please enter an integer between 2 and 18446744073709551615."},
        {[](CDataExchange * pDX) { DDV_MinMaxFloat(pDX, 2.0f, 0.5f, 1.25f); },
         L"Please enter a number between 0.5 and 1.25."},
        {[](CDataExchange * pDX) { DDV_MinMaxDouble(pDX, -1e-9, 0.0, 0.1); },
         L"Please enter a number between 0 and 0.1."},
        {[](CDataExchange * pDX) { DDV_MaxChars(pDX, _T("12345"), 4); }, L"Please enter no more than 4 characters."},
    };
    for (RangeCase const & rangeCase : cases)
    {
        EXPECT_FALSE(Save([&](CDataExchange * pDX) {
            pDX->PrepareEditCtrl(IDC_TEXT);
            rangeCase.validate(pDX);
        }));
        EXPECT_EQ(tests::App().TakeMessages(), Texts{rangeCase.text});
    }
}

TEST_F(DataExchange, LimitsBelongToTheRange)
{
    EXPECT_TRUE(Save([](CDataExchange * pDX) {
        DDV_MinMaxByte(pDX, 1, 1, 10);
        DDV_MinMaxByte(pDX, 10, 1, 10);
        DDV_MinMaxShort(pDX, -5, -5, 5);
        DDV_MinMaxInt(pDX, 5, -5, 5);
        DDV_MinMaxLong(pDX, -5, -5, 5);
        DDV_MinMaxUInt(pDX, 4294967295u, 1, 4294967295u);
        DDV_MinMaxDWord(pDX, 3, 1, 3);
        DDV_MinMaxFloat(pDX, 1.25f, 0.5f, 1.25f);
        DDV_MinMaxDouble(pDX, 0.1, 0.0, 0.1);
        DDV_MaxChars(pDX, _T("1234"), 4);
    }));
}

TEST_F(DataExchange, ValuesOutsideTheirRangeAreShownAllTheSame)
{
    int value = 99;
    EXPECT_TRUE(Load([&](CDataExchange * pDX) {
        DDX_Text(pDX, IDC_INT, value);
        DDV_MinMaxInt(pDX, value, 0, 10);
    }));
    EXPECT_EQ(Text(IDC_INT), L"99");
}

TEST_F(DataExchange, MaxCharsLimitsTheEditField)
{
    CString text;
    Load([&](CDataExchange * pDX) {
        DDX_Text(pDX, IDC_TEXT, text);
        DDV_MaxChars(pDX, text, 3);
    });
    for (wchar_t const character : std::wstring(L"abcdef"))
        ::SendMessage(Item(IDC_TEXT), WM_CHAR, character, 0);
    EXPECT_EQ(Text(IDC_TEXT), L"abc");
}
} // namespace
