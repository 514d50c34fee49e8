// CArchive: what is stored, byte by byte, and loaded again.

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "framework_ArchiveContents.h"
#include "framework_Support.h"

using archive_contents::CBranch;
using archive_contents::CLeaf;

namespace
{
using Bytes = std::vector<BYTE>;

// As unsigned long long, whatever the platform calls 64 bits.
constexpr ULONGLONG large = 0x1122334455667788ULL;

class Archive : public ::testing::Test
{
protected:
    ~Archive() override { CLeaf::DeleteAll(); }

    template <class Store> Bytes Stored(Store store)
    {
        CMemFile file(1 << 22);
        CArchive ar(&file, CArchive::store);
        store(ar);
        ar.Close();
        Bytes bytes(static_cast<size_t>(file.GetLength()));
        file.SeekToBegin();
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    }
    template <class Load> void Loaded(Bytes const & bytes, Load load)
    {
        CMemFile file(const_cast<BYTE *>(bytes.data()), static_cast<UINT>(bytes.size()));
        CArchive ar(&file, CArchive::load);
        load(ar);
        ar.Close();
        EXPECT_EQ(file.GetPosition(), bytes.size());
    }
    template <class Collection> Bytes StoredCollection(Collection & collection)
    {
        return Stored([&](CArchive & ar) { collection.Serialize(ar); });
    }
    template <class Collection> void LoadCollection(Collection & collection, Bytes const & bytes)
    {
        Loaded(bytes, [&](CArchive & ar) { collection.Serialize(ar); });
    }
};

using FrameworkArchive = Archive;
using FrameworkArchiveObjects = Archive;
using FrameworkArchiveCollections = Archive;

template <class Statement> int CauseOf(Statement statement)
{
    try
    {
        statement();
    }
    catch (CArchiveException * exception)
    {
        int const cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return -1;
}

// Of an object of the class that follows.
Bytes ClassBytes(char const * name, WORD schema)
{
    std::string const text(name);
    Bytes bytes = {
        0xFF, 0xFF, static_cast<BYTE>(schema), static_cast<BYTE>(schema >> 8), static_cast<BYTE>(text.size()), 0};
    for (char const ch : text)
        bytes.push_back(static_cast<BYTE>(ch));
    return bytes;
}

Bytes operator+(Bytes a, Bytes const & b)
{
    for (BYTE const byte : b)
        a.push_back(byte);
    return a;
}

Bytes Wide(std::string const & text)
{
    Bytes bytes = {0xFF, 0xFE, 0xFF, static_cast<BYTE>(text.size())};
    for (char const ch : text)
    {
        bytes.push_back(static_cast<BYTE>(ch));
        bytes.push_back(0);
    }
    return bytes;
}

Bytes LeafBytes(int number, std::string const & text)
{
    return Bytes({static_cast<BYTE>(number), 0, 0, 0}) + Wide(text);
}

// A file that can only be read on and on, in small portions.
class CStream : public CFile
{
public:
    explicit CStream(Bytes bytes) : m_bytes(std::move(bytes)) {}
    UINT Read(void * lpBuf, UINT nCount) override
    {
        size_t const count = std::min<size_t>({nCount, 3, m_bytes.size() - m_at});
        std::copy_n(m_bytes.data() + m_at, count, static_cast<BYTE *>(lpBuf));
        m_at += count;
        return static_cast<UINT>(count);
    }
    ULONGLONG GetLength() const override { AfxThrowNotSupportedException(); }

private:
    Bytes m_bytes;
    size_t m_at = 0;
};

class CFullFile : public CMemFile
{
public:
    void Write(void const *, UINT) override { AfxThrowFileException(CFileException::diskFull); }
};

// Elements of which eight share a byte.
struct Bit
{
    bool on = false;
};

struct Point
{
    int x;
    int y;
};

class COwner : public CObject
{
public:
    void Serialize(CArchive & ar) override
    {
        ar.MapObject(this);
        if (ar.IsStoring())
            ar << static_cast<CObject *>(m_leaf);
        else
            ar >> m_leaf;
    }
    CObject * m_leaf = nullptr;
};

class CBack : public CLeaf
{
    DECLARE_SERIAL(CBack)
public:
    void Serialize(CArchive & ar) override
    {
        if (ar.IsStoring())
            ar << m_back;
        else
            ar >> m_back;
    }
    CObject * m_back = nullptr;
};
IMPLEMENT_SERIAL(CBack, CLeaf, 0)

class CPlain : public CObject
{
    DECLARE_DYNCREATE(CPlain)
};
IMPLEMENT_DYNCREATE(CPlain, CObject)

// Asks twice for the schema.
class CAsking : public CLeaf
{
    DECLARE_SERIAL(CAsking)
public:
    void Serialize(CArchive & ar) override
    {
        if (!ar.IsLoading())
            return;
        m_first = ar.GetObjectSchema();
        m_second = ar.GetObjectSchema();
    }
    UINT m_first = 77;
    UINT m_second = 77;
};
IMPLEMENT_SERIAL(CAsking, CLeaf, VERSIONABLE_SCHEMA | 9)
} // namespace

template <> void AFXAPI SerializeElements<Bit>(CArchive & ar, Bit * pElements, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; i += 8)
    {
        BYTE byte = 0;
        INT_PTR const count = std::min<INT_PTR>(8, nCount - i);
        for (INT_PTR bit = 0; ar.IsStoring() && bit < count; ++bit)
            byte |= static_cast<BYTE>(pElements[i + bit].on ? 1 << bit : 0);
        if (ar.IsStoring())
            ar << byte;
        else
            ar >> byte;
        for (INT_PTR bit = 0; ar.IsLoading() && bit < count; ++bit)
            pElements[i + bit].on = (byte >> bit & 1) != 0;
    }
}

TEST_F(FrameworkArchive, NumbersHaveFixedWidths)
{
    Bytes const expected = {0x12, 0x34, 0x12, 0xFE, 0xFF, 0x78, 0x56, 0x34, 0x12, 0xFF, 0xFF, 0xFF,
                            0xFF, 0x88, 0x77, 0x66, 0x55, 0x44, 0x33, 0x22, 0x11, 0xFF, 0xFF, 0xFF,
                            0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x20, 0x40, 0x00, 0x00, 0x00,
                            0x00, 0x00, 0x00, 0x04, 0xC0, 'c',  0xAC, 0x20, 0x01, 0x00};
    Bytes const bytes = Stored([](CArchive & ar) {
        ar << static_cast<BYTE>(0x12) << static_cast<WORD>(0x1234) << static_cast<short>(-2) << 0x12345678
           << 0xFFFFFFFFU << large << -1LL << 2.5F << -2.5 << 'c' << L'\x20AC' << true << false;
    });
    EXPECT_EQ(bytes, expected);

    BYTE byte = 0;
    WORD word = 0;
    short small = 0;
    int number = 0;
    unsigned natural = 0;
    ULONGLONG wide = 0;
    LONGLONG negative = 0;
    float single = 0;
    double real = 0;
    char ch = 0;
    wchar_t wideChar = 0;
    bool yes = false;
    bool no = true;
    Loaded(bytes, [&](CArchive & ar) {
        ar >> byte >> word >> small >> number >> natural >> wide >> negative >> single >> real >> ch >> wideChar >>
            yes >> no;
    });
    EXPECT_EQ(byte, 0x12);
    EXPECT_EQ(word, 0x1234);
    EXPECT_EQ(small, -2);
    EXPECT_EQ(number, 0x12345678);
    EXPECT_EQ(natural, 0xFFFFFFFFU);
    EXPECT_EQ(wide, large);
    EXPECT_EQ(negative, -1);
    EXPECT_EQ(single, 2.5F);
    EXPECT_EQ(real, -2.5);
    EXPECT_EQ(ch, 'c');
    EXPECT_EQ(wideChar, L'\x20AC');
    EXPECT_TRUE(yes);
    EXPECT_FALSE(no);
}

TEST_F(FrameworkArchive, PlatformNumbersHaveFourBytes)
{
    Bytes const bytes = Stored([](CArchive & ar) { ar << static_cast<LONG>(-2) << static_cast<DWORD>(3); });
    EXPECT_EQ(bytes, (Bytes({0xFE, 0xFF, 0xFF, 0xFF, 3, 0, 0, 0})));
    LONG negative = 0;
    DWORD natural = 0;
    Loaded(bytes, [&](CArchive & ar) { ar >> negative >> natural; });
    EXPECT_EQ(negative, -2);
    EXPECT_EQ(natural, 3U);
}

TEST_F(FrameworkArchive, TextHasItsLengthInFront)
{
    EXPECT_EQ(Stored([](CArchive & ar) { ar << CStringA("ab") << CStringA(); }), (Bytes({2, 'a', 'b', 0})));
    EXPECT_EQ(Stored([](CArchive & ar) { ar << CString(L"a\x20AC") << CString(); }),
              (Bytes({0xFF, 0xFE, 0xFF, 2, 'a', 0, 0xAC, 0x20, 0xFF, 0xFE, 0xFF, 0})));
    auto const head = [](Bytes const & bytes, size_t count) {
        return Bytes(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(count));
    };
    auto const narrow = [&](int length) { return Stored([&](CArchive & ar) { ar << CStringA('x', length); }); };
    EXPECT_EQ(head(narrow(254), 2), (Bytes({254, 'x'})));
    EXPECT_EQ(head(narrow(255), 4), (Bytes({255, 255, 0, 'x'})));
    EXPECT_EQ(head(narrow(0xFFFD), 4), (Bytes({255, 0xFD, 0xFF, 'x'})));
    EXPECT_EQ(head(narrow(0xFFFE), 8), (Bytes({255, 0xFF, 0xFF, 0xFE, 0xFF, 0, 0, 'x'})));
    EXPECT_EQ(head(Stored([&](CArchive & ar) { ar << CString(L'x', 300); }), 8),
              (Bytes({0xFF, 0xFE, 0xFF, 0xFF, 0x2C, 0x01, 'x', 0})));
}

TEST_F(FrameworkArchive, TextOfEveryLengthComesBack)
{
    for (int const length : {0, 1, 254, 255, 256, 0xFFFD, 0xFFFE, 0xFFFF, 0x10000, 300'000})
    {
        CString const wide(L'\x00E4', length);
        CStringA const narrow('n', length);
        CString wideAgain(L"before");
        CStringA narrowAgain("before");
        Loaded(Stored([&](CArchive & ar) { ar << wide << narrow; }),
               [&](CArchive & ar) { ar >> wideAgain >> narrowAgain; });
        EXPECT_TRUE(wideAgain == wide) << length;
        EXPECT_TRUE(narrowAgain == narrow) << length;
    }
}

TEST_F(FrameworkArchive, TextTakesEitherKind)
{
    CString wide;
    CStringA narrow;
    Loaded({2, 'a', 'b', 0xFF, 0xFE, 0xFF, 2, 'c', 0, 'd', 0}, [&](CArchive & ar) { ar >> wide >> narrow; });
    EXPECT_EQ(wide, L"ab");
    EXPECT_EQ(narrow, "cd");
}

TEST_F(FrameworkArchive, TextBeyondSixteenBitsIsAPair)
{
    CString const smile(L"\U0001F600");
    Bytes const expected = {0xFF, 0xFE, 0xFF, 2, 0x3D, 0xD8, 0x00, 0xDE};
    EXPECT_EQ(Stored([&](CArchive & ar) { ar << smile; }), expected);
    CString again;
    Loaded(expected, [&](CArchive & ar) { ar >> again; });
    EXPECT_EQ(again, smile);
    // Half of a pair stays what it is.
    CString half;
    Loaded({0xFF, 0xFE, 0xFF, 2, 0x3D, 0xD8, 'a', 0}, [&](CArchive & ar) { ar >> half; });
    EXPECT_EQ(half.GetLength(), 2);
    EXPECT_EQ(half[0], static_cast<wchar_t>(0xD83D));
}

TEST_F(FrameworkArchive, PlacesAndTimesAreNumbers)
{
    Bytes const bytes = Stored([](CArchive & ar) {
        ar << CSize(1, 2) << CPoint(3, -1) << CRect(1, 2, 3, 4) << CTime(0x0102030405) << CTimeSpan(-1);
    });
    EXPECT_EQ(bytes, (Bytes({1, 0, 0, 0, 2, 0, 0, 0, 3,    0,    0,    0,    0xFF, 0xFF, 0xFF, 0xFF,
                             1, 0, 0, 0, 2, 0, 0, 0, 3,    0,    0,    0,    4,    0,    0,    0,
                             5, 4, 3, 2, 1, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF})));
    CSize size;
    CPoint point;
    CRect rect;
    CTime time;
    CTimeSpan span;
    Loaded(bytes, [&](CArchive & ar) { ar >> size >> point >> rect >> time >> span; });
    EXPECT_TRUE(size == CSize(1, 2));
    EXPECT_TRUE(point == CPoint(3, -1));
    EXPECT_TRUE(rect == CRect(1, 2, 3, 4));
    EXPECT_EQ(time.GetTime(), 0x0102030405);
    EXPECT_EQ(span.GetTimeSpan(), -1);
}

TEST_F(FrameworkArchive, CountsTakeTwoBytesOrMore)
{
    auto const count = [&](DWORD_PTR number) { return Stored([&](CArchive & ar) { ar.WriteCount(number); }); };
    EXPECT_EQ(count(0), (Bytes({0, 0})));
    EXPECT_EQ(count(0xFFFE), (Bytes({0xFE, 0xFF})));
    EXPECT_EQ(count(0xFFFF), (Bytes({0xFF, 0xFF, 0xFF, 0xFF, 0, 0})));
    EXPECT_EQ(count(0xFFFFFFFE), (Bytes({0xFF, 0xFF, 0xFE, 0xFF, 0xFF, 0xFF})));
    EXPECT_EQ(count(0xFFFFFFFF), (Bytes({0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0})));
    for (DWORD_PTR const number : {DWORD_PTR{0}, DWORD_PTR{0xFFFE}, DWORD_PTR{0xFFFF}, DWORD_PTR{0xFFFFFFFE},
                                   DWORD_PTR{0xFFFFFFFF}, DWORD_PTR{0x100000000}})
        Loaded(count(number), [&](CArchive & ar) { EXPECT_EQ(ar.ReadCount(), number); });
}

TEST_F(FrameworkArchive, LinesEndInAnyWay)
{
    Bytes const bytes = Stored([](CArchive & ar) {
        ar.WriteString(L"one\r\n");
        ar.WriteString(L"two\n\nlast");
    });
    EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 10), (Bytes({'o', 0, 'n', 0, 'e', 0, '\r', 0, '\n', 0})));
    Loaded(bytes, [](CArchive & ar) {
        CString line;
        EXPECT_TRUE(ar.ReadString(line));
        EXPECT_EQ(line, L"one");
        EXPECT_TRUE(ar.ReadString(line));
        EXPECT_EQ(line, L"two");
        EXPECT_TRUE(ar.ReadString(line));
        EXPECT_EQ(line, L"");
        EXPECT_TRUE(ar.ReadString(line));
        EXPECT_EQ(line, L"last");
        EXPECT_FALSE(ar.ReadString(line));
        EXPECT_EQ(line, L"");
    });
}

TEST_F(FrameworkArchive, LineIsReadIntoRoom)
{
    Bytes const bytes = Stored([](CArchive & ar) { ar.WriteString(L"abcdef\r\nxy\r\nz"); });
    Loaded(bytes, [](CArchive & ar) {
        TCHAR room[5];
        EXPECT_EQ(ar.ReadString(room, 4), room);
        EXPECT_EQ(CString(room), L"abcd");
        EXPECT_EQ(ar.ReadString(room, 4), room);
        EXPECT_EQ(CString(room), L"ef");
        // A negative length keeps the end.
        EXPECT_EQ(ar.ReadString(room, static_cast<UINT>(-4)), room);
        EXPECT_EQ(CString(room), L"xy\n");
        EXPECT_EQ(ar.ReadString(room, 4), room);
        EXPECT_EQ(CString(room), L"z");
        EXPECT_EQ(ar.ReadString(room, 4), nullptr);
    });
}

TEST_F(FrameworkArchive, ReadsWhatIsThere)
{
    Bytes const bytes(10'000, 7);
    Loaded(bytes, [&](CArchive & ar) {
        EXPECT_TRUE(ar.IsBufferEmpty());
        Bytes part(9000);
        EXPECT_EQ(ar.Read(part.data(), 10), 10U);
        EXPECT_FALSE(ar.IsBufferEmpty());
        EXPECT_EQ(ar.Read(part.data(), 8000), 8000U);
        EXPECT_EQ(ar.Read(part.data(), 9000), 1990U);
        EXPECT_EQ(ar.Read(part.data(), 1), 0U);
        BYTE byte = 0;
        EXPECT_EQ(CauseOf([&] { ar >> byte; }), CArchiveException::endOfFile);
    });
}

TEST_F(FrameworkArchive, ClosingSetsTheFileBehindWhatWasRead)
{
    CMemFile file;
    file.Write("0123456789", 10);
    file.SeekToBegin();
    {
        CArchive ar(&file, CArchive::load);
        char byte = 0;
        ar >> byte >> byte;
        EXPECT_EQ(file.GetPosition(), 10U);
    }
    EXPECT_EQ(file.GetPosition(), 2U);
}

TEST_F(FrameworkArchive, WritesWhatIsLargerThanItsBuffer)
{
    Bytes large_bytes(100'000);
    for (size_t i = 0; i < large_bytes.size(); ++i)
        large_bytes[i] = static_cast<BYTE>(i * 7);
    Bytes const bytes = Stored([&](CArchive & ar) {
        ar << static_cast<BYTE>(1);
        ar.Write(large_bytes.data(), static_cast<UINT>(large_bytes.size()));
        ar << static_cast<BYTE>(2);
        ar.Write(nullptr, 0);
    });
    EXPECT_EQ(bytes, Bytes({1}) + large_bytes + Bytes({2}));
}

TEST_F(FrameworkArchive, BufferOfTheCallerIsUsed)
{
    CMemFile file;
    BYTE room[256] = {};
    CArchive ar(&file, CArchive::store, sizeof(room), room);
    ar << static_cast<BYTE>(0xAB);
    EXPECT_EQ(room[0], 0xAB);
    EXPECT_FALSE(ar.IsBufferEmpty());
    EXPECT_EQ(file.GetLength(), 0U);
    ar.Flush();
    EXPECT_TRUE(ar.IsBufferEmpty());
    EXPECT_EQ(file.GetLength(), 1U);
    // One that is too small is not.
    BYTE small[16] = {};
    CArchive other(&file, CArchive::store, sizeof(small), small);
    other << static_cast<BYTE>(0xAB);
    EXPECT_EQ(small[0], 0);
}

TEST_F(FrameworkArchive, DestructorWritesUnlessToldNotTo)
{
    CMemFile file;
    CArchive(&file, CArchive::store) << static_cast<BYTE>(1);
    EXPECT_EQ(file.GetLength(), 1U);
    CArchive(&file, CArchive::store | CArchive::bNoFlushOnDelete) << static_cast<BYTE>(1);
    EXPECT_EQ(file.GetLength(), 1U);
    CArchive aborted(&file, CArchive::store);
    aborted << static_cast<BYTE>(1);
    aborted.Abort();
    EXPECT_EQ(file.GetLength(), 1U);
    EXPECT_EQ(aborted.GetFile(), nullptr);
}

TEST_F(FrameworkArchive, FailureOfTheFileIsThrownByTheDestructorToo)
{
    CFullFile file;
    EXPECT_TRUE(ThrowsPointer<CFileException>([&] { CArchive(&file, CArchive::store) << static_cast<BYTE>(1); }));
    // Not a second one beside an exception that is on its way.
    EXPECT_TRUE(ThrowsPointer<CUserException>([&] {
        CArchive ar(&file, CArchive::store);
        ar << static_cast<BYTE>(1);
        AfxThrowUserException();
    }));
}

TEST_F(FrameworkArchive, HasOneDirection)
{
    CMemFile file;
    CArchive storing(&file, CArchive::store);
    BYTE byte = 0;
    EXPECT_TRUE(storing.IsStoring());
    EXPECT_FALSE(storing.IsLoading());
    EXPECT_EQ(CauseOf([&] { storing >> byte; }), CArchiveException::writeOnly);
    EXPECT_EQ(CauseOf([&] { storing.ReadObject(nullptr); }), CArchiveException::writeOnly);
    CArchive loading(&file, CArchive::load);
    EXPECT_FALSE(loading.IsStoring());
    EXPECT_TRUE(loading.IsLoading());
    EXPECT_EQ(CauseOf([&] { loading << byte; }), CArchiveException::readOnly);
    EXPECT_EQ(CauseOf([&] { loading.WriteObject(nullptr); }), CArchiveException::readOnly);
    loading.Close();
    EXPECT_EQ(CauseOf([&] { loading >> byte; }), CArchiveException::genericException);
}

TEST_F(FrameworkArchive, StreamWithoutLengthIsRead)
{
    CArray<double, double> doubles;
    for (int i = 0; i < 20'000; ++i)
        doubles.Add(i);
    CStringArray strings;
    strings.Add(CString(L'x', 70'000));
    Bytes const bytes = Stored([&](CArchive & ar) {
        doubles.Serialize(ar);
        strings.Serialize(ar);
    });
    CStream stream(bytes);
    CArchive ar(&stream, CArchive::load);
    CArray<double, double> doublesAgain;
    CStringArray stringsAgain;
    doublesAgain.Serialize(ar);
    stringsAgain.Serialize(ar);
    ASSERT_EQ(doublesAgain.GetSize(), 20'000);
    EXPECT_EQ(doublesAgain[19'999], 19'999);
    ASSERT_EQ(stringsAgain.GetSize(), 1);
    EXPECT_EQ(stringsAgain[0], strings[0]);
}

TEST_F(FrameworkArchive, ExceptionTellsItsCause)
{
    CArchiveException const none;
    EXPECT_EQ(none.m_cause, CArchiveException::none);
    CArchiveException const exception(CArchiveException::badIndex, L"some file");
    EXPECT_EQ(exception.m_strFileName, L"some file");
    TCHAR message[100];
    EXPECT_TRUE(exception.GetErrorMessage(message, 100));
    EXPECT_EQ(CString(message), L"some file has a bad format.");
    EXPECT_TRUE(ThrowsPointer<CArchiveException>([] { AfxThrowArchiveException(CArchiveException::badClass); }));
}

TEST_F(FrameworkArchiveObjects, AreStoredWithTheirClassOnce)
{
    CLeaf first(1);
    first.m_text = L"a";
    CLeaf second(2);
    Bytes const bytes =
        Stored([&](CArchive & ar) { ar << &first << static_cast<CObject *>(nullptr) << &second << &first << &second; });
    // Class 1, objects 2 and 3.
    EXPECT_EQ(bytes, ClassBytes("CLeaf", 1) + LeafBytes(1, "a") + Bytes({0, 0}) + Bytes({1, 0x80}) + LeafBytes(2, "") +
                         Bytes({2, 0}) + Bytes({3, 0}));
    Loaded(bytes, [](CArchive & ar) {
        CLeaf unset;
        CLeaf * a = nullptr;
        CObject * null = &unset;
        CLeaf * b = nullptr;
        CLeaf * c = nullptr;
        CObject const * d = nullptr;
        ar >> a >> null >> b >> c >> d;
        ASSERT_NE(a, nullptr);
        EXPECT_EQ(a->m_number, 1);
        EXPECT_EQ(a->m_text, L"a");
        EXPECT_EQ(null, nullptr);
        EXPECT_EQ(b->m_number, 2);
        EXPECT_EQ(c, a);
        EXPECT_EQ(d, b);
    });
}

TEST_F(FrameworkArchiveObjects, ReferToEachOtherInCircles)
{
    CBranch branch;
    branch.m_number = 4;
    branch.m_right = &branch;
    CLeaf leaf(5);
    branch.m_leaves.Add(&leaf);
    branch.m_leaves.Add(&leaf);
    Bytes const bytes = Stored([&](CArchive & ar) { ar << &branch; });
    EXPECT_EQ(bytes, ClassBytes("CBranch", 3) + LeafBytes(4, "") + Bytes({0, 0}) + Bytes({2, 0}) + Bytes({2, 0}) +
                         ClassBytes("CLeaf", 1) + LeafBytes(5, "") + Bytes({4, 0}));
    Loaded(bytes, [](CArchive & ar) {
        CBranch * again = nullptr;
        ar >> again;
        EXPECT_EQ(again->m_right, again);
        EXPECT_EQ(again->m_left, nullptr);
        ASSERT_EQ(again->m_leaves.GetSize(), 2);
        EXPECT_EQ(again->m_leaves[0]->m_number, 5);
        EXPECT_EQ(again->m_leaves[1], again->m_leaves[0]);
        EXPECT_EQ(again->m_schema, 3U);
    });
}

TEST_F(FrameworkArchiveObjects, HaveTheSchemaOfTheArchive)
{
    // Two of the older schema, the class once.
    Bytes const rest = LeafBytes(1, "") + Bytes({0, 0, 0, 0, 0, 0});
    Loaded(ClassBytes("CBranch", 2) + rest + Bytes({1, 0x80}) + rest, [](CArchive & ar) {
        CBranch * first = nullptr;
        CBranch * second = nullptr;
        ar >> first >> second;
        EXPECT_EQ(first->m_schema, 2U);
        EXPECT_EQ(second->m_schema, 2U);
    });
}

TEST_F(FrameworkArchiveObjects, TellTheirSchemaOnce)
{
    CAsking asking;
    Bytes const bytes = Stored([&](CArchive & ar) { ar << &asking; });
    EXPECT_EQ(bytes, ClassBytes("CAsking", 9));
    Loaded(bytes, [](CArchive & ar) {
        CAsking * again = nullptr;
        ar >> again;
        EXPECT_EQ(again->m_first, 9U);
        EXPECT_EQ(again->m_second, static_cast<UINT>(-1));
    });
}

TEST_F(FrameworkArchiveObjects, MappedOwnerIsReferredTo)
{
    CBack back;
    COwner owner;
    owner.m_leaf = &back;
    back.m_back = &owner;
    Bytes const bytes = Stored([&](CArchive & ar) { owner.Serialize(ar); });
    EXPECT_EQ(bytes, ClassBytes("CBack", 0) + Bytes({1, 0}));
    COwner again;
    Loaded(bytes, [&](CArchive & ar) { again.Serialize(ar); });
    ASSERT_NE(again.m_leaf, nullptr);
    EXPECT_EQ(static_cast<CBack *>(again.m_leaf)->m_back, &again);
}

TEST_F(FrameworkArchiveObjects, ClassIsSerialisedAlone)
{
    Bytes const bytes = Stored([](CArchive & ar) {
        ar.SerializeClass(RUNTIME_CLASS(CLeaf));
        ar.SerializeClass(RUNTIME_CLASS(CLeaf));
    });
    EXPECT_EQ(bytes, ClassBytes("CLeaf", 1) + Bytes({1, 0x80}));
    Loaded(bytes, [](CArchive & ar) {
        UINT schema = 0;
        EXPECT_EQ(ar.ReadClass(RUNTIME_CLASS(CLeaf), &schema), RUNTIME_CLASS(CLeaf));
        EXPECT_EQ(schema, 1U);
        EXPECT_EQ(ar.ReadClass(), RUNTIME_CLASS(CLeaf));
        EXPECT_EQ(ar.GetObjectSchema(), 1U);
    });
}

TEST_F(FrameworkArchiveObjects, OfAClassWithoutSchemaAreNotSupported)
{
    CPlain plain;
    EXPECT_FALSE(plain.IsSerializable());
    EXPECT_TRUE(CLeaf().IsSerializable());
    EXPECT_TRUE(ThrowsPointer<CNotSupportedException>([&] { Stored([&](CArchive & ar) { ar << &plain; }); }));
    Bytes const null = {0, 0};
    EXPECT_TRUE(ThrowsPointer<CNotSupportedException>(
        [&] { Loaded(null, [](CArchive & ar) { ar.ReadObject(RUNTIME_CLASS(CPlain)); }); }));
}

TEST_F(FrameworkArchiveObjects, BeyondTheSmallNumbersTakeLargeTags)
{
    // Class 1, objects 2 to 0x8001.
    std::vector<std::unique_ptr<CLeaf>> leaves;
    for (int i = 0; i < 0x8000; ++i)
        leaves.push_back(std::make_unique<CLeaf>(i));
    CBack back;
    Bytes const bytes = Stored([&](CArchive & ar) {
        for (std::unique_ptr<CLeaf> const & leaf : leaves)
            ar << leaf.get();
        // The numbers of the last object with a small tag and of the first with a large one.
        ar << leaves[0x7FFC].get() << leaves[0x7FFD].get() << &back << &back;
        CBack other;
        ar << &other;
    });
    Bytes const tail = Bytes({0xFE, 0x7F, 0xFF, 0x7F, 0xFF, 0x7F, 0, 0}) + ClassBytes("CBack", 0) + Bytes({0, 0}) +
                       Bytes({0xFF, 0x7F, 0x03, 0x80, 0, 0}) + Bytes({0xFF, 0x7F, 0x02, 0x80, 0, 0x80}) + Bytes({0, 0});
    EXPECT_EQ(Bytes(bytes.end() - static_cast<ptrdiff_t>(tail.size()), bytes.end()), tail);
    Loaded(bytes, [](CArchive & ar) {
        std::vector<CLeaf *> again(0x8000);
        for (CLeaf *& leaf : again)
            ar >> leaf;
        EXPECT_EQ(again[0x7FFF]->m_number, 0x7FFF);
        CLeaf * small = nullptr;
        CLeaf * large_tag = nullptr;
        CBack * first = nullptr;
        CBack * second = nullptr;
        CBack * third = nullptr;
        ar >> small >> large_tag >> first >> second >> third;
        EXPECT_EQ(small, again[0x7FFC]);
        EXPECT_EQ(large_tag, again[0x7FFD]);
        EXPECT_EQ(first, second);
        EXPECT_NE(third, first);
    });
}

TEST_F(FrameworkArchiveCollections, OfNumbersAreTheirBytes)
{
    CByteArray bytes;
    bytes.Add(1);
    bytes.Add(0xFF);
    EXPECT_EQ(StoredCollection(bytes), (Bytes({2, 0, 1, 0xFF})));
    CWordArray words;
    words.Add(0x1234);
    EXPECT_EQ(StoredCollection(words), (Bytes({1, 0, 0x34, 0x12})));
    CDWordArray dwords;
    dwords.Add(0x12345678);
    EXPECT_EQ(StoredCollection(dwords), (Bytes({1, 0, 0x78, 0x56, 0x34, 0x12})));
    CByteArray again;
    again.Add(9);
    LoadCollection(again, {2, 0, 1, 0xFF});
    ASSERT_EQ(again.GetSize(), 2);
    EXPECT_EQ(again[1], 0xFF);
    LoadCollection(again, {0, 0});
    EXPECT_EQ(again.GetSize(), 0);
}

TEST_F(FrameworkArchiveCollections, WithoutTheirOwnFormatStoreNothing)
{
    CPtrArray pointers;
    pointers.Add(&pointers);
    CUIntArray numbers;
    numbers.Add(1);
    EXPECT_TRUE(StoredCollection(pointers).empty());
    EXPECT_TRUE(StoredCollection(numbers).empty());
    EXPECT_FALSE(pointers.IsSerializable());
    EXPECT_FALSE(CUIntArray().IsSerializable());
    EXPECT_FALSE(CMapPtrToPtr().IsSerializable());
    EXPECT_FALSE(CPtrList().IsSerializable());
    EXPECT_TRUE(CByteArray().IsSerializable());
    EXPECT_TRUE(CStringList().IsSerializable());
    EXPECT_TRUE(CMapStringToString().IsSerializable());
}

TEST_F(FrameworkArchiveCollections, OfTextsAndObjectsAreTheirElements)
{
    CStringArray strings;
    strings.Add(L"a");
    strings.Add(L"");
    Bytes const texts = Bytes({2, 0}) + Wide("a") + Wide("");
    EXPECT_EQ(StoredCollection(strings), texts);
    CStringList list;
    list.AddTail(L"a");
    list.AddTail(L"");
    EXPECT_EQ(StoredCollection(list), texts);

    CLeaf leaf(1);
    CObArray objects;
    objects.Add(&leaf);
    objects.Add(nullptr);
    objects.Add(&leaf);
    Bytes const three = Bytes({3, 0}) + ClassBytes("CLeaf", 1) + LeafBytes(1, "") + Bytes({0, 0, 2, 0});
    EXPECT_EQ(StoredCollection(objects), three);
    CObList objectList;
    objectList.AddTail(&leaf);
    objectList.AddTail(static_cast<CObject *>(nullptr));
    objectList.AddTail(&leaf);
    EXPECT_EQ(StoredCollection(objectList), three);
    CObArray again;
    LoadCollection(again, three);
    ASSERT_EQ(again.GetSize(), 3);
    EXPECT_EQ(again[1], nullptr);
    EXPECT_EQ(again[2], again[0]);
}

TEST_F(FrameworkArchiveCollections, OfPairsAreKeysAndValues)
{
    CMapStringToString texts;
    texts.SetAt(L"k", L"v");
    EXPECT_EQ(StoredCollection(texts), Bytes({1, 0}) + Wide("k") + Wide("v"));
    CLeaf leaf(1);
    Bytes const object = ClassBytes("CLeaf", 1) + LeafBytes(1, "");
    CMapStringToOb named;
    named.SetAt(L"k", &leaf);
    EXPECT_EQ(StoredCollection(named), Bytes({1, 0}) + Wide("k") + object);
    CMapWordToOb numbered;
    numbered.SetAt(0x1234, &leaf);
    EXPECT_EQ(StoredCollection(numbered), Bytes({1, 0, 0x34, 0x12}) + object);
    CMapWordToOb again;
    LoadCollection(again, Bytes({1, 0, 0x34, 0x12}) + object);
    CObject * found = nullptr;
    ASSERT_TRUE(again.Lookup(0x1234, found));
    EXPECT_EQ(static_cast<CLeaf *>(found)->m_number, 1);
    CMap<int, int, WORD, WORD> plain;
    plain.SetAt(-2, 3);
    EXPECT_EQ(StoredCollection(plain), (Bytes({1, 0, 0xFE, 0xFF, 0xFF, 0xFF, 3, 0})));
}

TEST_F(FrameworkArchiveCollections, TemplatesStoreElementsAsTheyAre)
{
    CArray<Point, Point> points;
    points.Add({1, 2});
    EXPECT_EQ(StoredCollection(points), (Bytes({1, 0, 1, 0, 0, 0, 2, 0, 0, 0})));
    CList<WORD, WORD> words;
    words.AddTail(1);
    words.AddTail(2);
    EXPECT_EQ(StoredCollection(words), (Bytes({2, 0, 1, 0, 2, 0})));
    CArray<CString> texts;
    texts.Add(L"a");
    EXPECT_EQ(StoredCollection(texts), Bytes({1, 0}) + Wide("a"));
    CArray<CStringA> narrow;
    narrow.Add("a");
    EXPECT_EQ(StoredCollection(narrow), (Bytes({1, 0, 1, 'a'})));
}

TEST_F(FrameworkArchiveCollections, SpecialisationIsCalledOnceForAnArray)
{
    CArray<Bit> bits;
    bits.SetSize(100'000);
    for (INT_PTR i = 0; i < bits.GetSize(); i += 3)
        bits[i].on = true;
    Bytes const bytes = StoredCollection(bits);
    EXPECT_EQ(bytes.size(), 6U + 12'500U);
    CArray<Bit> again;
    LoadCollection(again, bytes);
    ASSERT_EQ(again.GetSize(), 100'000);
    EXPECT_TRUE(again[99'999].on);
    EXPECT_FALSE(again[99'998].on);
}

TEST_F(FrameworkArchiveCollections, ListsAndMapsKeepWhatTheyHave)
{
    CStringList list;
    list.AddTail(L"before");
    LoadCollection(list, Bytes({1, 0}) + Wide("a"));
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.GetTail(), L"a");
    CMapStringToString map;
    map.SetAt(L"k", L"before");
    map.SetAt(L"l", L"before");
    LoadCollection(map, Bytes({1, 0}) + Wide("k") + Wide("v"));
    EXPECT_EQ(map.GetCount(), 2);
    EXPECT_EQ(map[L"k"], L"v");
}

TEST_F(FrameworkArchiveCollections, AreObjectsThemselves)
{
    CByteArray array;
    array.Add(7);
    CStringList list;
    Bytes const bytes = Stored([&](CArchive & ar) { ar << &array << &list; });
    EXPECT_EQ(bytes, ClassBytes("CByteArray", 0) + Bytes({1, 0, 7}) + ClassBytes("CStringList", 0) + Bytes({0, 0}));
    Loaded(bytes, [](CArchive & ar) {
        CByteArray * first = nullptr;
        CStringList * second = nullptr;
        ar >> first >> second;
        std::unique_ptr<CByteArray> const firstOwner(first);
        std::unique_ptr<CStringList> const secondOwner(second);
        EXPECT_EQ(first->GetAt(0), 7);
        EXPECT_TRUE(second->IsEmpty());
    });
}

TEST_F(FrameworkArchiveCollections, TypedOnesComeBack)
{
    CLeaf leaf(1);
    CTypedPtrArray<CObArray, CLeaf *> array;
    array.Add(&leaf);
    CTypedPtrList<CObList, CLeaf *> list;
    list.AddTail(&leaf);
    CTypedPtrMap<CMapStringToOb, CString, CLeaf *> map;
    map.SetAt(L"k", &leaf);
    Bytes const bytes = Stored([&](CArchive & ar) {
        array.Serialize(ar);
        list.Serialize(ar);
        map.Serialize(ar);
    });
    CTypedPtrArray<CObArray, CLeaf *> arrayAgain;
    CTypedPtrList<CObList, CLeaf *> listAgain;
    CTypedPtrMap<CMapStringToOb, CString, CLeaf *> mapAgain;
    Loaded(bytes, [&](CArchive & ar) {
        arrayAgain.Serialize(ar);
        listAgain.Serialize(ar);
        mapAgain.Serialize(ar);
    });
    EXPECT_EQ(arrayAgain[0]->m_number, 1);
    EXPECT_EQ(listAgain.GetHead(), arrayAgain[0]);
    EXPECT_EQ(mapAgain[L"k"], arrayAgain[0]);
}

TEST_F(FrameworkArchiveCollections, OfAHundredThousandComeBack)
{
    constexpr int count = 100'000;
    CByteArray bytes;
    CWordArray words;
    CDWordArray dwords;
    CStringArray strings;
    CStringList stringList;
    CMapStringToString map;
    map.InitHashTable(131'071);
    CArray<double, double> doubles;
    CList<int, int> numbers;
    CMap<int, int, int, int> pairs;
    pairs.InitHashTable(131'071);
    for (int i = 0; i < count; ++i)
    {
        CString text;
        text.Format(_T("%d"), i);
        bytes.Add(static_cast<BYTE>(i));
        words.Add(static_cast<WORD>(i));
        dwords.Add(static_cast<DWORD>(i));
        strings.Add(text);
        stringList.AddTail(text);
        map.SetAt(text, text);
        doubles.Add(i);
        numbers.AddTail(i);
        pairs.SetAt(i, -i);
    }
    CObject * const stored[] = {&bytes, &words, &dwords, &strings, &stringList, &map, &doubles, &numbers, &pairs};
    Bytes const all = Stored([&](CArchive & ar) {
        for (CObject * const each : stored)
            each->Serialize(ar);
    });
    CByteArray bytesAgain;
    CWordArray wordsAgain;
    CDWordArray dwordsAgain;
    CStringArray stringsAgain;
    CStringList stringListAgain;
    CMapStringToString mapAgain;
    CArray<double, double> doublesAgain;
    CList<int, int> numbersAgain;
    CMap<int, int, int, int> pairsAgain;
    CObject * const loaded[] = {&bytesAgain, &wordsAgain,   &dwordsAgain,  &stringsAgain, &stringListAgain,
                                &mapAgain,   &doublesAgain, &numbersAgain, &pairsAgain};
    Loaded(all, [&](CArchive & ar) {
        for (CObject * const each : loaded)
            each->Serialize(ar);
    });
    ASSERT_EQ(bytesAgain.GetSize(), count);
    ASSERT_EQ(wordsAgain.GetSize(), count);
    ASSERT_EQ(dwordsAgain.GetSize(), count);
    ASSERT_EQ(stringsAgain.GetSize(), count);
    ASSERT_EQ(stringListAgain.GetCount(), count);
    ASSERT_EQ(mapAgain.GetCount(), count);
    ASSERT_EQ(doublesAgain.GetSize(), count);
    ASSERT_EQ(numbersAgain.GetCount(), count);
    ASSERT_EQ(pairsAgain.GetCount(), count);
    POSITION textPos = stringListAgain.GetHeadPosition();
    POSITION numberPos = numbersAgain.GetHeadPosition();
    int wrong = 0;
    for (int i = 0; i < count; ++i)
    {
        CString text;
        text.Format(_T("%d"), i);
        CString mapped;
        int paired = 0;
        bool const same = bytesAgain[i] == static_cast<BYTE>(i) && wordsAgain[i] == static_cast<WORD>(i) &&
                          dwordsAgain[i] == static_cast<DWORD>(i) && stringsAgain[i] == text &&
                          stringListAgain.GetNext(textPos) == text && mapAgain.Lookup(text, mapped) && mapped == text &&
                          doublesAgain[i] == i && numbersAgain.GetNext(numberPos) == i &&
                          pairsAgain.Lookup(i, paired) && paired == -i;
        wrong += same ? 0 : 1;
    }
    EXPECT_EQ(wrong, 0);
}

TEST_F(FrameworkArchiveCollections, OfAHundredThousandObjectsComeBack)
{
    constexpr int count = 100'000;
    CObArray objects;
    for (int i = 0; i < count; ++i)
        objects.Add(new CLeaf(i));
    Bytes const bytes = StoredCollection(objects);
    CLeaf::DeleteAll();
    CObArray again;
    LoadCollection(again, bytes);
    ASSERT_EQ(again.GetSize(), count);
    int wrong = 0;
    for (int i = 0; i < count; ++i)
        wrong += static_cast<CLeaf *>(again[i])->m_number == i ? 0 : 1;
    EXPECT_EQ(wrong, 0);
}
