// Rows as text, and texts put into cells.

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "list/table/TableCopy.h"
#include "table_StandIn.h"

namespace
{
using namespace table_test;
using Records = std::vector<CsvRecord>;

class TableCopyTest : public testing::Test
{
protected:
    TableCopyTest()
    {
        TableColumn level = Column(L"Level", TableKind::floating);
        level.format = {NumberStyle::fixed, 1, false, UnitPlace::cell, L"dB"};
        level.editable = true;
        level.check = [](TableValue const & value) {
            return value.Kind() == TableKind::floating && value.Number() > 20 ? L"too loud" : L"";
        };
        TableColumn name = Column(L"Name");
        name.editable = true;
        m_looks.columns = {name, level, Column(L"Count", TableKind::whole)};
        m_looks.locale.decimalSign = L',';
        m_source = std::make_shared<Source>(std::vector<std::vector<TableValue>>{
            {Text(L"a;\"b\"\tc"), Number(-1.25), Whole(3)}, {Text(L"<\u00E4 & \U0001F600>"), Number(2), TableValue()}});
        m_model.SetLooks(m_looks);
        m_model.SetSource(m_source);
        m_model.FindOrder();
    }
    std::wstring Write(TableForm form, std::vector<unsigned int> columns, bool titles = true)
    {
        TableWriter writer(form, std::make_shared<TableLooks const>(m_looks), std::move(columns));
        TableProgress progress;
        TableAccess access(m_source, progress);
        std::wstring text;
        EXPECT_TRUE(WriteTable(writer, access, {0, 1}, titles, [&text](std::wstring_view piece) {
            text += piece;
            return true;
        }));
        EXPECT_EQ(progress.Done(), 1000);
        return text;
    }

    TableLooks m_looks;
    std::shared_ptr<Source> m_source;
    TableModel m_model;
};
} // namespace

TEST_F(TableCopyTest, TextIsWhatIsShownWithTabs)
{
    EXPECT_EQ(Write(TableForm::text, {1, 0}), L"Level\tName\r\n"
                                              L"-1,2 dB\ta;\"b\" c\r\n"
                                              L"2,0 dB\t<\u00E4 & \U0001F600>\r\n");
}

TEST_F(TableCopyTest, CsvHasAllDigitsAndQuotes)
{
    EXPECT_EQ(Write(TableForm::csv, {0, 1, 2}), L"Name,Level [dB],Count\r\n"
                                                L"\"a;\"\"b\"\"\tc\",-1.25,3\r\n"
                                                L"<\u00E4 & \U0001F600>,2,\r\n");
    EXPECT_EQ(Write(TableForm::csv, {2}, false), L"3\r\n\"\"\r\n");
}

TEST_F(TableCopyTest, HtmlIsAsciiWithEntities)
{
    EXPECT_EQ(Write(TableForm::html, {0, 1, 9}),
              L"<table>\r\n"
              L"<tr><th>Name</th><th>Level</th></tr>\r\n"
              L"<tr><td>a;&quot;b&quot;\tc</td><td align=\"right\">-1,2 dB</td></tr>\r\n"
              L"<tr><td>&lt;&#228; &amp; &#128512;&gt;</td><td align=\"right\">2,0 dB</td></tr>\r\n"
              L"</table>");
}

TEST_F(TableCopyTest, WritingEndsWhereItIsRefusedOrStopped)
{
    TableWriter writer(TableForm::text, std::make_shared<TableLooks const>(m_looks), {0});
    TableProgress progress;
    TableAccess access(m_source, progress);
    int pieces = 0;
    EXPECT_FALSE(WriteTable(writer, access, std::vector<TableRow>(100000, 0), false, [&pieces](std::wstring_view) {
        ++pieces;
        return false;
    }));
    EXPECT_EQ(pieces, 1);
    progress.Stop();
    EXPECT_FALSE(WriteTable(writer, access, {0}, false, [](std::wstring_view) { return true; }));
}

TEST_F(TableCopyTest, ABlockIsPutIntoCells)
{
    TablePasteReport const report = PasteTable(m_model, {{L"x", L"3,5 dB"}, {L"y"}}, 0, {0, 1, 2});
    EXPECT_TRUE(report.done);
    EXPECT_EQ(report.cells, 3U);
    EXPECT_EQ(report.refusedCells, 0U);
    EXPECT_EQ(report.rows, (std::vector<TableRowRange>{{0, 1}}));
    EXPECT_EQ(m_source->rows[0].cells[0].Text(), L"x");
    EXPECT_EQ(m_source->rows[0].cells[1].Number(), 3.5);
    EXPECT_EQ(m_source->rows[1].cells[0].Text(), L"y");
    EXPECT_EQ(m_source->rows[1].cells[1].Number(), 2);
}

TEST_F(TableCopyTest, ABlockGoesToRowsAsShown)
{
    m_model.SetSort({{1, true}});
    m_model.FindOrder();
    EXPECT_TRUE(PasteTable(m_model, {{L"1"}, {L"2"}}, 0, {1}).done);
    EXPECT_EQ(m_source->rows[1].cells[1].Number(), 1);
    EXPECT_EQ(m_source->rows[0].cells[1].Number(), 2);
}

TEST_F(TableCopyTest, OneRefusedCellRefusesAll)
{
    TablePasteReport const report =
        PasteTable(m_model, {{L"x", L"loud", L"1"}, {L"y", L"21", L"1", L"1"}, {L"z"}}, 0, {0, 1, 2});
    EXPECT_FALSE(report.done);
    EXPECT_EQ(report.cells, 8U);
    EXPECT_EQ(report.refusedCells, 6U);
    ASSERT_EQ(report.refused.size(), 6U);
    EXPECT_EQ(report.refused[0].refusal, TableRefusal::not_readable);
    EXPECT_EQ(report.refused[0].text, L"loud");
    EXPECT_EQ(report.refused[1].refusal, TableRefusal::not_editable);
    EXPECT_EQ(report.refused[2].refusal, TableRefusal::by_check);
    EXPECT_EQ(report.refused[2].reason, L"too loud");
    EXPECT_EQ(report.refused[2].line, 1U);
    EXPECT_EQ(report.refused[2].field, 1U);
    EXPECT_EQ(report.refused[4].refusal, TableRefusal::no_such_column);
    EXPECT_EQ(report.refused[5].refusal, TableRefusal::no_such_row);
    EXPECT_EQ(m_source->rows[0].cells[0].Text(), L"a;\"b\"\tc");
}

TEST_F(TableCopyTest, WhatWasWrittenGoesBackIfTheSourceRefuses)
{
    m_source->writes = [](TableRow row, unsigned int, TableValue const & value) {
        return row == 0 || value.Text() != L"y";
    };
    TablePasteReport const report = PasteTable(m_model, {{L"x", L"1"}, {L"y"}}, 0, {0, 1});
    EXPECT_FALSE(report.done);
    ASSERT_EQ(report.refused.size(), 1U);
    EXPECT_EQ(report.refused[0].refusal, TableRefusal::by_source);
    EXPECT_EQ(m_source->rows[0].cells[0].Text(), L"a;\"b\"\tc");
    EXPECT_EQ(m_source->rows[0].cells[1].Number(), -1.25);
}

TEST_F(TableCopyTest, NothingIsPutIntoASourceThatHasEnded)
{
    m_source.reset();
    TablePasteReport const report = PasteTable(m_model, {{L"x"}}, 0, {0});
    EXPECT_FALSE(report.done);
    EXPECT_EQ(report.refused.at(0).refusal, TableRefusal::no_such_row);
    EXPECT_FALSE(PasteTable(m_model, {{L"x"}, {L"y"}}, no_table_row - 1, {0}).done);
}

TEST(TableCsv, RecordsAreReadAsTheStandardHasThem)
{
    EXPECT_EQ(ReadCsv(L"", L',').records, (Records{}));
    EXPECT_EQ(ReadCsv(L"a,b\r\nc,d\r\n", L',').records, (Records{{L"a", L"b"}, {L"c", L"d"}}));
    EXPECT_EQ(ReadCsv(L"a,b\nc,d", L',').records, (Records{{L"a", L"b"}, {L"c", L"d"}}));
    EXPECT_EQ(ReadCsv(L"a\rb", L',').records, (Records{{L"a"}, {L"b"}}));
    EXPECT_EQ(ReadCsv(L"\"a,\"\"\r\nb\",", L',').records, (Records{{L"a,\"\r\nb", L""}}));
    EXPECT_EQ(ReadCsv(L"a\n\nb", L',').records, (Records{{L"a"}, {L""}, {L"b"}}));
    EXPECT_EQ(ReadCsv(L"a\"b\"", L',').records, (Records{{L"a\"b\""}}));
    EXPECT_EQ(ReadCsv(L"\"a\"b\"c", L',').records, (Records{{L"ab\"c"}}));
    EXPECT_EQ(ReadCsv(L" a , b ", L',').records, (Records{{L" a ", L" b "}}));
    EXPECT_EQ(ReadCsv(L"\uFEFFa", L',').records, (Records{{L"a"}}));
    EXPECT_TRUE(ReadCsv(L"\"a\"", L',').complete);
    CsvReading const open = ReadCsv(L"x,\"a\nb", L',');
    EXPECT_FALSE(open.complete);
    EXPECT_EQ(open.records, (Records{{L"x", L"a\nb"}}));
}

TEST(TableCsv, WhatWasWrittenIsReadBack)
{
    std::mt19937 random(5);
    constexpr wchar_t characters[] = {L'a', L'"', L',', L';', L'\r', L'\n', L'\t', L' ', 0xFEFF, 0xE4, 0};
    for (int i = 0; i < 5000; ++i)
    {
        Records records(random() % 4);
        std::wstring text;
        for (CsvRecord & record : records)
        {
            record.resize(1 + random() % 4);
            for (std::size_t field = 0; field < record.size(); ++field)
            {
                for (unsigned int length = random() % 5; length-- > 0;)
                    record[field].push_back(characters[random() % std::size(characters)]);
                if (field != 0)
                    text.push_back(L';');
                AppendCsvField(text, record[field], L';', record.size() == 1);
            }
            text += L"\r\n";
        }
        CsvReading const reading = ReadCsv(text, L';');
        ASSERT_TRUE(reading.complete);
        ASSERT_EQ(reading.records, records) << testing::PrintToString(text);
    }
}

TEST(TableCsv, TheSeparatorIsGuessedFromTheFirstRecord)
{
    EXPECT_EQ(GuessSeparator(L"a,b\n;;;"), L',');
    EXPECT_EQ(GuessSeparator(L"1,5;2,5;3"), L';');
    EXPECT_EQ(GuessSeparator(L"1,5\t2"), L'\t');
    EXPECT_EQ(GuessSeparator(L"\";;\",b"), L',');
    EXPECT_EQ(GuessSeparator(L""), L',');
    EXPECT_EQ(GuessSeparator(L"\"\n;\";b"), L';');
}
