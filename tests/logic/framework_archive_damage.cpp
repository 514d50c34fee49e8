// Archives that are damaged, cut off or made to do harm.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

#include "framework_ArchiveContents.h"
#include "framework_Support.h"

using archive_contents::CBranch;
using archive_contents::CLeaf;
using archive_contents::LoadContents;
using archive_contents::StoredContents;

namespace
{
using Bytes = std::vector<BYTE>;

// Can be created by its name, but not stored.
class CCreated : public CObject
{
    DECLARE_DYNCREATE(CCreated)
};
IMPLEMENT_DYNCREATE(CCreated, CObject)

// The values that lengths, counts and tags become something else at.
void PutMagic(Bytes & bytes, std::mt19937 & random)
{
    static constexpr BYTE magic[][4] = {{0xFF, 0xFF, 0xFF, 0xFF}, {0xFF, 0xFF, 0xFF, 0x7F}, {0xFF, 0x7F, 0x00, 0x00},
                                        {0xFF, 0xFE, 0xFF, 0xFF}, {0x00, 0x80, 0x01, 0x80}, {0xFF, 0x7F, 0x01, 0x00},
                                        {0x00, 0x00, 0x00, 0x80}, {0x01, 0x00, 0x02, 0x00}};
    size_t const at = random() % bytes.size();
    BYTE const * const chosen = magic[random() % std::size(magic)];
    size_t const count = std::min<size_t>(1 + random() % 4, bytes.size() - at);
    std::memcpy(bytes.data() + at, chosen, count);
}

void Mutate(Bytes & bytes, std::mt19937 & random)
{
    if (bytes.empty())
        return;
    size_t const at = random() % bytes.size();
    size_t const count = std::min<size_t>(1 + random() % 16, bytes.size() - at);
    auto const place = bytes.begin() + static_cast<ptrdiff_t>(at);
    switch (random() % 7)
    {
    case 0:
        bytes[at] = static_cast<BYTE>(random());
        break;
    case 1:
        bytes[at] ^= static_cast<BYTE>(1U << (random() % 8));
        break;
    case 2:
        PutMagic(bytes, random);
        break;
    case 3:
        bytes.erase(place, place + static_cast<ptrdiff_t>(count));
        break;
    case 4:
        bytes.insert(place, count, static_cast<BYTE>(random()));
        break;
    case 5: {
        Bytes const piece(place, place + static_cast<ptrdiff_t>(count));
        size_t const target = random() % bytes.size();
        bytes.insert(bytes.begin() + static_cast<ptrdiff_t>(target), piece.begin(), piece.end());
        break;
    }
    default:
        bytes.resize(at);
    }
}

template <class Load> int CauseOf(Bytes const & bytes, Load load)
{
    CMemFile file(const_cast<BYTE *>(bytes.data()), static_cast<UINT>(bytes.size()));
    int cause = -1;
    try
    {
        CArchive ar(&file, CArchive::load);
        load(ar);
    }
    catch (CArchiveException * exception)
    {
        cause = exception->m_cause;
        exception->Delete();
    }
    CLeaf::DeleteAll();
    return cause;
}

int CauseOfObject(Bytes const & bytes, CRuntimeClass const * expected = nullptr)
{
    return CauseOf(bytes, [&](CArchive & ar) { ar.ReadObject(expected); });
}

// Of an object of the class that follows.
Bytes NewObject(char const * name, WORD schema)
{
    size_t const length = std::strlen(name);
    Bytes bytes = {0xFF, 0xFF, static_cast<BYTE>(schema), static_cast<BYTE>(schema >> 8), static_cast<BYTE>(length), 0};
    for (size_t i = 0; i < length; ++i)
        bytes.push_back(static_cast<BYTE>(name[i]));
    return bytes;
}

Bytes operator+(Bytes a, Bytes const & b)
{
    for (BYTE const byte : b)
        a.push_back(byte);
    return a;
}
} // namespace

TEST(FrameworkArchiveDamage, ContentsLoadUndamaged)
{
    Bytes const bytes = StoredContents();
    EXPECT_GT(bytes.size(), 300U);
    EXPECT_EQ(LoadContents(bytes.data(), bytes.size()), -1);
}

TEST(FrameworkArchiveDamage, EveryShorterArchiveEndsAtItsEnd)
{
    Bytes const bytes = StoredContents();
    for (size_t size = 0; size < bytes.size(); ++size)
        EXPECT_EQ(LoadContents(bytes.data(), size), CArchiveException::endOfFile) << size << " bytes";
}

TEST(FrameworkArchiveDamage, EveryOtherByteIsSurvived)
{
    Bytes const bytes = StoredContents();
    for (size_t at = 0; at < bytes.size(); ++at)
    {
        for (int const value : {0x00, 0x01, 0x7F, 0x80, 0xFE, 0xFF})
        {
            Bytes damaged = bytes;
            damaged[at] = static_cast<BYTE>(value);
            LoadContents(damaged.data(), damaged.size());
        }
    }
}

TEST(FrameworkArchiveDamage, TwoHundredThousandMutationsAreSurvived)
{
    Bytes const sound = StoredContents();
    std::mt19937 random(20240229);
    std::vector<int> causes(200);
    Bytes bytes = sound;
    for (int round = 0; round < 200'000; ++round)
    {
        // Damage adds up for a while.
        if (random() % 4 == 0 || bytes.size() > 4 * sound.size())
            bytes = sound;
        Mutate(bytes, random);
        ++causes[static_cast<size_t>(LoadContents(bytes.data(), bytes.size()) + 1)];
    }
    // The walk goes deep enough to meet each of them.
    EXPECT_GT(causes[0], 0);
    EXPECT_GT(causes[CArchiveException::endOfFile + 1], 0);
    EXPECT_GT(causes[CArchiveException::badIndex + 1], 0);
    EXPECT_GT(causes[CArchiveException::badClass + 1], 0);
    EXPECT_GT(causes[CArchiveException::badSchema + 1], 0);
}

TEST(FrameworkArchiveDamage, UnknownClassIsBad)
{
    EXPECT_EQ(CauseOfObject(NewObject("CNobody", 1)), CArchiveException::badClass);
}

TEST(FrameworkArchiveDamage, ClassThatCannotBeStoredIsBad)
{
    // Its schema is the one that says so.
    EXPECT_EQ(CauseOfObject(NewObject("CPtrArray", 0xFFFF)), CArchiveException::badClass);
    EXPECT_EQ(CauseOfObject(NewObject("CObject", 0xFFFF)), CArchiveException::badClass);
    EXPECT_EQ(CauseOfObject(NewObject("CCreated", 0xFFFF)), CArchiveException::badClass);
}

TEST(FrameworkArchiveDamage, ClassNameBeyondAnyIsBad)
{
    Bytes const bytes = {0xFF, 0xFF, 1, 0, 0xFF, 0xFF};
    EXPECT_EQ(CauseOfObject(bytes + Bytes(70000, 'C')), CArchiveException::badClass);
}

TEST(FrameworkArchiveDamage, OtherSchemaIsBadUnlessVersionable)
{
    EXPECT_EQ(CauseOfObject(NewObject("CLeaf", 2)), CArchiveException::badSchema);
    Bytes const rest = {5, 0, 0, 0, 0xFF, 0xFE, 0xFF, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(CauseOfObject(NewObject("CBranch", 2) + rest), -1);
}

TEST(FrameworkArchiveDamage, ObjectOfAnotherClassThanAskedForIsBad)
{
    EXPECT_EQ(CauseOfObject(NewObject("CByteArray", 0) + Bytes{0, 0}, RUNTIME_CLASS(CLeaf)),
              CArchiveException::badClass);
    // By reference, too.
    Bytes const two = NewObject("CByteArray", 0) + Bytes{0, 0, 2, 0};
    auto const load = [](CArchive & ar) {
        CObject * first = nullptr;
        ar >> first;
        std::unique_ptr<CObject> const owner(first);
        CLeaf * leaf = nullptr;
        ar >> leaf;
    };
    EXPECT_EQ(CauseOf(two, load), CArchiveException::badClass);
}

TEST(FrameworkArchiveDamage, TypedCollectionTakesNoObjectOfAnotherClass)
{
    Bytes const bytes = Bytes{1, 0} + NewObject("CLeaf", 1) + Bytes{5, 0, 0, 0, 0};
    CTypedPtrArray<CObArray, CBranch *> array;
    EXPECT_EQ(CauseOf(bytes, [&](CArchive & ar) { array.Serialize(ar); }), CArchiveException::badClass);
    EXPECT_EQ(array.GetSize(), 0);
    CTypedPtrList<CObList, CBranch *> list;
    EXPECT_EQ(CauseOf(bytes, [&](CArchive & ar) { list.Serialize(ar); }), CArchiveException::badClass);
    EXPECT_EQ(list.GetCount(), 0);
    Bytes const pair = Bytes{1, 0, 1, 'k'} + NewObject("CLeaf", 1) + Bytes{5, 0, 0, 0, 0};
    CTypedPtrMap<CMapStringToOb, CString, CBranch *> map;
    EXPECT_EQ(CauseOf(pair, [&](CArchive & ar) { map.Serialize(ar); }), CArchiveException::badClass);
    EXPECT_EQ(map.GetCount(), 0);
}

TEST(FrameworkArchiveDamage, NumberOfNothingIsBad)
{
    EXPECT_EQ(CauseOfObject({1, 0}), CArchiveException::badIndex);
    EXPECT_EQ(CauseOfObject({0xFE, 0x7F}), CArchiveException::badIndex);
    EXPECT_EQ(CauseOfObject({1, 0x80}), CArchiveException::badIndex);
    EXPECT_EQ(CauseOfObject({0, 0x80}), CArchiveException::badIndex);
    EXPECT_EQ(CauseOfObject({0xFF, 0x7F, 0xFF, 0xFF, 0xFF, 0x7F}), CArchiveException::badIndex);
    EXPECT_EQ(CauseOfObject({0xFF, 0x7F, 0xFF, 0xFF, 0xFF, 0xFF}), CArchiveException::badIndex);
}

TEST(FrameworkArchiveDamage, ClassIsNoObjectAndObjectIsNoClass)
{
    // Class 1, object 2.
    Bytes const leaf = NewObject("CLeaf", 1) + Bytes{5, 0, 0, 0, 0};
    auto const twice = [](CArchive & ar) {
        ar.ReadObject(nullptr);
        ar.ReadObject(nullptr);
    };
    EXPECT_EQ(CauseOf(leaf + Bytes{2, 0}, twice), -1);
    EXPECT_EQ(CauseOf(leaf + Bytes{1, 0}, twice), CArchiveException::badIndex);
    EXPECT_EQ(CauseOf(leaf + Bytes{2, 0x80}, twice), CArchiveException::badIndex);
}

TEST(FrameworkArchiveDamage, ObjectWhereAClassIsExpectedIsBad)
{
    EXPECT_EQ(CauseOf({0, 0}, [](CArchive & ar) { ar.SerializeClass(RUNTIME_CLASS(CLeaf)); }),
              CArchiveException::badIndex);
}

TEST(FrameworkArchiveDamage, LengthsBeyondTheArchiveAllocateNothing)
{
    Bytes const billions = {0xFF, 0xFF, 0xFE, 0xFF, 0xFF, 0x7F};
    Bytes const huge = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F};
    for (Bytes const & count : {billions, huge})
    {
        Bytes const bytes = count + Bytes(100, 0);
        auto const ends = [&](CObject && collection) {
            return CauseOf(bytes, [&](CArchive & ar) { collection.Serialize(ar); }) == CArchiveException::endOfFile;
        };
        EXPECT_TRUE(ends(CByteArray()));
        EXPECT_TRUE(ends(CWordArray()));
        EXPECT_TRUE(ends(CDWordArray()));
        EXPECT_TRUE(ends(CObArray()));
        EXPECT_TRUE(ends(CStringArray()));
        EXPECT_TRUE(ends(CObList()));
        EXPECT_TRUE(ends(CStringList()));
        EXPECT_TRUE(ends(CMapWordToOb()));
        EXPECT_TRUE(ends(CMapStringToOb()));
        EXPECT_TRUE(ends(CMapStringToString()));
        EXPECT_TRUE(ends(CArray<double, double>()));
        EXPECT_TRUE(ends(CArray<CString>()));
        EXPECT_TRUE(ends(CList<int, int>()));
        EXPECT_TRUE(ends(CMap<int, int, int, int>()));
    }
    CString text;
    Bytes const length = {0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x3F, 'a', 'b'};
    EXPECT_EQ(CauseOf(length, [&](CArchive & ar) { ar >> text; }), CArchiveException::endOfFile);
    Bytes longest = length;
    longest[9] = 0xFF;
    EXPECT_EQ(CauseOf(longest + Bytes(8, 0xFF), [&](CArchive & ar) { ar >> text; }), CArchiveException::badIndex);
}

TEST(FrameworkArchiveDamage, ObjectsInsideEachOtherEndBeforeTheStack)
{
    // Each branch has a next one to its left; the names follow once.
    Bytes bytes = NewObject("CBranch", 3);
    Bytes const inner = {5, 0, 0, 0, 0, 0x01, 0x80};
    for (int depth = 0; depth < 400'000; ++depth)
        bytes.insert(bytes.end(), inner.begin(), inner.end());
    EXPECT_EQ(CauseOfObject(bytes), CArchiveException::genericException);
}

TEST(FrameworkArchiveDamage, StoringObjectsInsideEachOtherEndsBeforeTheStack)
{
    auto * const first = new CBranch;
    CBranch * last = first;
    for (int depth = 0; depth < 400'000; ++depth)
    {
        auto * const next = new CBranch;
        last->m_left = next;
        last = next;
    }
    CMemFile file(1 << 20);
    int cause = -1;
    try
    {
        CArchive ar(&file, CArchive::store | CArchive::bNoFlushOnDelete);
        ar << first;
    }
    catch (CArchiveException * exception)
    {
        cause = exception->m_cause;
        exception->Delete();
    }
    EXPECT_EQ(cause, CArchiveException::genericException);
    CLeaf::DeleteAll();
}
