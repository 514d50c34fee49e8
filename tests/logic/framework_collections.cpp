// Arrays, lists and maps.

#include <afxtempl.h>

#include <memory>
#include <set>

#include "framework_Support.h"

namespace
{
class CNode : public CObject
{
public:
    explicit CNode(int number) : m_number(number) {}
    int m_number;
};

struct Key
{
    int number;
    bool operator==(Key const &) const = default;
};

// Counts living objects, and all that were made.
struct Counted
{
    Counted() : Counted(0) {}
    Counted(Counted const & other) : Counted(other.value) {}
    Counted & operator=(Counted const &) = default;
    ~Counted() { --living; }
    int value;
    static int living;
    static int made;

private:
    explicit Counted(int number) : value(number)
    {
        ++living;
        ++made;
    }
};
int Counted::living = 0;
int Counted::made = 0;
} // namespace

template <> UINT AFXAPI HashKey<Key const &>(Key const & key)
{
    return static_cast<UINT>(key.number);
}

TEST(FrameworkArray, StartsEmpty)
{
    CArray<int, int> const array;
    EXPECT_EQ(0, array.GetSize());
    EXPECT_EQ(0, array.GetCount());
    EXPECT_EQ(-1, array.GetUpperBound());
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_INVALID_ARG(array.GetAt(0));
}

TEST(FrameworkArray, SetSizeMakesZeroElementsAndCutsOthers)
{
    CArray<int, int> array;
    array.SetSize(3);
    EXPECT_EQ(0, array[2]);
    array[2] = 5;
    array.SetSize(2);
    array.SetSize(3);
    EXPECT_EQ(0, array[2]);
    EXPECT_INVALID_ARG(array.SetSize(-1));
    EXPECT_EQ(3, array.GetSize());
}

TEST(FrameworkArray, GrowByIsTheStepOfAllocation)
{
    CArray<int, int> array;
    array.SetSize(0, 100);
    array.Add(1);
    int const * const data = array.GetData();
    for (int i = 1; i < 100; ++i)
        array.Add(i);
    EXPECT_EQ(data, array.GetData());
    array.Add(7);
    EXPECT_NE(data, array.GetData());
}

TEST(FrameworkArray, ElementAccess)
{
    CArray<CPoint, CPoint> array;
    EXPECT_EQ(0, array.Add(CPoint(1, 2)));
    EXPECT_EQ(1, array.Add(CPoint(3, 4)));
    array.SetAt(0, CPoint(5, 6));
    array.ElementAt(1).x = 7;
    array.GetAt(1).y = 8;
    EXPECT_TRUE(array[0] == CPoint(5, 6));
    EXPECT_TRUE(array[1] == CPoint(7, 8));
    EXPECT_INVALID_ARG(array[2]);
    EXPECT_INVALID_ARG(array[-1]);
    EXPECT_INVALID_ARG(array.SetAt(2, CPoint()));
    CArray<CPoint, CPoint> const & constant = array;
    EXPECT_TRUE(constant.GetAt(0) == constant[0]);
    EXPECT_EQ(&constant.ElementAt(1), constant.GetData() + 1);
}

TEST(FrameworkArray, SetAtGrowFillsTheGap)
{
    CArray<CString, LPCTSTR> array;
    array.SetAtGrow(3, L"x");
    EXPECT_EQ(4, array.GetSize());
    EXPECT_STREQ(L"", array[1]);
    EXPECT_STREQ(L"x", array[3]);
    array.SetAtGrow(1, L"y");
    EXPECT_EQ(4, array.GetSize());
    EXPECT_INVALID_ARG(array.SetAtGrow(-1, L"z"));
}

TEST(FrameworkArray, AnOwnElementMayBeAdded)
{
    CArray<CString> array;
    array.Add(L"first");
    for (int i = 0; i < 50; ++i)
        array.Add(array[0]);
    array.InsertAt(0, array[50], 3);
    EXPECT_EQ(54, array.GetSize());
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        EXPECT_STREQ(L"first", array[i]);
}

TEST(FrameworkArray, InsertAndRemove)
{
    CArray<int, int> array;
    for (int i = 0; i < 5; ++i)
        array.Add(i);
    array.InsertAt(1, 9, 2);
    EXPECT_EQ(7, array.GetSize());
    EXPECT_EQ(9, array[1]);
    EXPECT_EQ(9, array[2]);
    EXPECT_EQ(1, array[3]);
    EXPECT_EQ(4, array[6]);
    array.RemoveAt(1, 2);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(i, array[i]);
    array.InsertAt(7, 8);
    EXPECT_EQ(8, array.GetSize());
    EXPECT_EQ(0, array[6]);
    EXPECT_EQ(8, array[7]);
    EXPECT_INVALID_ARG(array.RemoveAt(8));
    EXPECT_INVALID_ARG(array.RemoveAt(7, 2));
    EXPECT_INVALID_ARG(array.RemoveAt(-1));
    EXPECT_INVALID_ARG(array.InsertAt(-1, 0));
    EXPECT_INVALID_ARG(array.InsertAt(0, 0, 0));
}

TEST(FrameworkArray, InsertArray)
{
    CArray<int, int> array;
    array.Add(1);
    array.Add(4);
    CArray<int, int> middle;
    middle.Add(2);
    middle.Add(3);
    array.InsertAt(1, &middle);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(i + 1, array[i]);
    array.InsertAt(2, &array);
    int const expected[] = {1, 2, 1, 2, 3, 4, 3, 4};
    ASSERT_EQ(8, array.GetSize());
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(expected[i], array[i]);
}

TEST(FrameworkArray, AppendAndCopy)
{
    CArray<CString> a;
    a.Add(L"a");
    CArray<CString> b;
    b.Add(L"b");
    b.Add(L"c");
    EXPECT_EQ(1, a.Append(b));
    EXPECT_EQ(3, a.GetSize());
    EXPECT_STREQ(L"c", a[2]);
    EXPECT_EQ(3, a.Append(a));
    EXPECT_EQ(6, a.GetSize());
    EXPECT_STREQ(L"c", a[5]);
    a.Copy(b);
    EXPECT_EQ(2, a.GetSize());
    EXPECT_STREQ(L"b", a[0]);
}

TEST(FrameworkArray, ElementsAreMadeAndDestroyedOnce)
{
    {
        CArray<Counted> array;
        for (int i = 0; i < 20; ++i)
            array.Add(Counted());
        array.InsertAt(3, Counted(), 4);
        array.RemoveAt(0, 5);
        EXPECT_EQ(array.GetSize(), Counted::living);
        array.SetSize(2);
        array.FreeExtra();
        EXPECT_EQ(2, Counted::living);
        array.RemoveAll();
        EXPECT_EQ(0, Counted::living);
        array.SetSize(3);
    }
    EXPECT_EQ(0, Counted::living);
}

TEST(FrameworkArray, GrowingMovesTheBytesOfItsElements)
{
    CArray<Counted> array;
    array.SetSize(3);
    array[2].value = 7;
    int const made = Counted::made;
    array.SetSize(100);
    EXPECT_EQ(Counted::made, made + 97) << "only the new ones";
    array.InsertAt(1, Counted());
    EXPECT_EQ(Counted::made, made + 97 + 3) << "the argument, its copy and the new one";
    array.RemoveAt(0);
    array.FreeExtra();
    EXPECT_EQ(Counted::made, made + 97 + 3);
    EXPECT_EQ(7, array[2].value);
    EXPECT_EQ(array.GetSize(), Counted::living);
}

TEST(FrameworkArray, FreeExtraKeepsElements)
{
    CUIntArray array;
    array.SetSize(2, 100);
    array[1] = 7;
    array.Add(8);
    array.FreeExtra();
    EXPECT_EQ(7U, array[1]);
    EXPECT_EQ(8U, array.GetAt(2));
}

TEST(FrameworkArray, PlainKinds)
{
    CByteArray bytes;
    bytes.Add(255);
    CWordArray words;
    words.Add(65535);
    CDWordArray doubles;
    doubles.Add(0xFFFFFFFF);
    CPtrArray pointers;
    pointers.Add(&bytes);
    CObArray objects;
    objects.Add(&words);
    CStringArray strings;
    strings.Add(L"text");
    strings.Add(CString(L"more"));
    strings[0] += L"!";
    EXPECT_EQ(255, bytes[0]);
    EXPECT_EQ(65535, words.GetAt(0));
    EXPECT_EQ(0xFFFFFFFFU, doubles.ElementAt(0));
    EXPECT_EQ(&bytes, pointers[0]);
    EXPECT_EQ(&words, objects.GetAt(0));
    EXPECT_STREQ(L"text!", strings.GetAt(0));
    EXPECT_TRUE(objects[0]->IsKindOf(RUNTIME_CLASS(CWordArray)));
    CStringArray copy;
    copy.Copy(strings);
    copy.Append(strings);
    EXPECT_EQ(4, copy.GetSize());
    EXPECT_INVALID_ARG(bytes.GetAt(1));
}

TEST(FrameworkArray, Typed)
{
    CNode a(1);
    CNode b(2);
    CTypedPtrArray<CObArray, CNode *> array;
    array.Add(&a);
    array.Add(&b);
    EXPECT_EQ(2, array[1]->m_number);
    array.ElementAt(0) = &b;
    array.SetAt(1, &a);
    EXPECT_EQ(2, array.GetAt(0)->m_number);
    array.InsertAt(0, &a);
    array.SetAtGrow(5, &b);
    EXPECT_EQ(6, array.GetSize());
    EXPECT_EQ(nullptr, array[4]);
    CTypedPtrArray<CObArray, CNode *> second;
    second.Copy(array);
    EXPECT_EQ(6, second.Append(array));
    EXPECT_EQ(12, second.GetSize());
}

TEST(FrameworkList, EndsAndOrder)
{
    CList<int, int> list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_INVALID_ARG(list.GetHead());
    EXPECT_INVALID_ARG(list.RemoveTail());
    list.AddTail(2);
    list.AddHead(1);
    list.AddTail(3);
    EXPECT_EQ(3, list.GetCount());
    EXPECT_EQ(3, list.GetSize());
    EXPECT_EQ(1, list.GetHead());
    EXPECT_EQ(3, list.GetTail());
    list.GetHead() = 10;
    EXPECT_EQ(10, list.RemoveHead());
    EXPECT_EQ(3, list.RemoveTail());
    EXPECT_EQ(1, list.GetCount());
    list.RemoveAll();
    EXPECT_EQ(nullptr, list.GetHeadPosition());
    EXPECT_EQ(nullptr, list.GetTailPosition());
}

TEST(FrameworkList, IterationBothWays)
{
    CStringList list;
    list.AddTail(L"a");
    list.AddTail(CString(L"b"));
    list.AddTail(L"c");
    CString forward;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;)
        forward += list.GetNext(position);
    CString backward;
    for (POSITION position = list.GetTailPosition(); position != nullptr;)
        backward += list.GetPrev(position);
    EXPECT_STREQ(L"abc", forward);
    EXPECT_STREQ(L"cba", backward);
    POSITION none = nullptr;
    EXPECT_INVALID_ARG(list.GetNext(none));
    EXPECT_INVALID_ARG(list.GetAt(nullptr));
}

TEST(FrameworkList, PositionsStandWhileOthersGo)
{
    CList<int, int> list;
    POSITION const first = list.AddTail(1);
    POSITION const second = list.AddTail(2);
    POSITION const third = list.AddTail(3);
    list.RemoveAt(second);
    EXPECT_EQ(1, list.GetAt(first));
    EXPECT_EQ(3, list.GetAt(third));
    POSITION const between = list.InsertAfter(first, 5);
    list.InsertBefore(first, 0);
    list.InsertBefore(nullptr, -1);
    list.InsertAfter(nullptr, 9);
    list.SetAt(between, 6);
    int const expected[] = {-1, 0, 1, 6, 3, 9};
    POSITION position = list.GetHeadPosition();
    for (int const value : expected)
        EXPECT_EQ(value, list.GetNext(position));
    EXPECT_EQ(nullptr, position);
}

TEST(FrameworkList, Finding)
{
    CStringList list;
    POSITION const first = list.AddTail(L"x");
    list.AddTail(L"y");
    POSITION const third = list.AddTail(L"x");
    EXPECT_EQ(first, list.Find(L"x"));
    EXPECT_EQ(third, list.Find(L"x", first));
    EXPECT_EQ(nullptr, list.Find(L"x", third));
    EXPECT_EQ(nullptr, list.Find(L"z"));
    EXPECT_EQ(third, list.FindIndex(2));
    EXPECT_EQ(nullptr, list.FindIndex(3));
    EXPECT_EQ(nullptr, list.FindIndex(-1));
    CList<Key> keys;
    POSITION const key = keys.AddTail(Key{3});
    EXPECT_EQ(key, keys.Find(Key{3}));
}

TEST(FrameworkList, AddingLists)
{
    CList<int, int> list;
    list.AddTail(3);
    CList<int, int> other;
    other.AddTail(1);
    other.AddTail(2);
    list.AddHead(&other);
    list.AddTail(&other);
    list.AddTail(&list);
    int const expected[] = {1, 2, 3, 1, 2, 1, 2, 3, 1, 2};
    ASSERT_EQ(10, list.GetCount());
    POSITION position = list.GetHeadPosition();
    for (int const value : expected)
        EXPECT_EQ(value, list.GetNext(position));
}

TEST(FrameworkList, Typed)
{
    CNode a(1);
    CNode b(2);
    CTypedPtrList<CObList, CNode *> list;
    list.AddTail(&a);
    list.AddHead(&b);
    EXPECT_EQ(2, list.GetHead()->m_number);
    EXPECT_EQ(1, list.GetTail()->m_number);
    POSITION position = list.GetHeadPosition();
    EXPECT_EQ(2, list.GetNext(position)->m_number);
    EXPECT_EQ(1, list.GetAt(position)->m_number);
    list.SetAt(position, &b);
    list.GetHead() = &a;
    EXPECT_EQ(1, list.RemoveHead()->m_number);
    EXPECT_EQ(2, list.RemoveTail()->m_number);
}

TEST(FrameworkMap, SetLookupRemove)
{
    CMap<int, int, CString, LPCTSTR> map;
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_FALSE(map.RemoveKey(1));
    map.SetAt(1, L"one");
    map[2] = L"two";
    map.SetAt(1, L"ONE");
    EXPECT_EQ(2, map.GetCount());
    CString value = L"old";
    EXPECT_FALSE(map.Lookup(3, value));
    EXPECT_STREQ(L"old", value);
    EXPECT_TRUE(map.Lookup(1, value));
    EXPECT_STREQ(L"ONE", value);
    EXPECT_TRUE(map.RemoveKey(1));
    EXPECT_FALSE(map.RemoveKey(1));
    EXPECT_EQ(1, map.GetSize());
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_STREQ(L"", map[9]);
    EXPECT_EQ(1, map.GetCount());
}

TEST(FrameworkMap, IterationVisitsEachOnceAndAllowsRemoval)
{
    CMap<int, int, int, int> map;
    for (int i = 0; i < 100; ++i)
        map[i] = i * i;
    std::set<int> seen;
    for (POSITION position = map.GetStartPosition(); position != nullptr;)
    {
        int key = -1;
        int value = -1;
        map.GetNextAssoc(position, key, value);
        EXPECT_EQ(key * key, value);
        EXPECT_TRUE(seen.insert(key).second);
        EXPECT_TRUE(map.RemoveKey(key));
    }
    EXPECT_EQ(100U, seen.size());
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(nullptr, map.GetStartPosition());
}

TEST(FrameworkMap, Pairs)
{
    CMap<CString, LPCTSTR, int, int> map;
    map[L"a"] = 1;
    map[L"b"] = 2;
    int sum = 0;
    for (auto * pair = map.PGetFirstAssoc(); pair != nullptr; pair = map.PGetNextAssoc(pair))
    {
        sum += pair->value;
        pair->value = 0;
    }
    EXPECT_EQ(3, sum);
    EXPECT_EQ(0, map[L"a"]);
    ASSERT_NE(nullptr, map.PLookup(L"b"));
    EXPECT_STREQ(L"b", map.PLookup(L"b")->key);
    EXPECT_EQ(nullptr, map.PLookup(L"c"));
}

TEST(FrameworkMap, HashTableSize)
{
    CMap<int, int, int, int> map;
    EXPECT_EQ(17U, map.GetHashTableSize());
    map.InitHashTable(101);
    EXPECT_EQ(101U, map.GetHashTableSize());
    map.InitHashTable(7, FALSE);
    for (int i = 0; i < 50; ++i)
        map[i] = i;
    EXPECT_EQ(7U, map.GetHashTableSize());
    EXPECT_EQ(50, map.GetCount());
}

TEST(FrameworkMap, TextKeysAreComparedByCharacters)
{
    CMapStringToString map;
    map[CString(L"key")] = L"value";
    map.SetAt(L"other", L"x");
    CString value;
    EXPECT_TRUE(map.Lookup(L"key", value));
    EXPECT_STREQ(L"value", value);
    LPCTSTR key = nullptr;
    EXPECT_TRUE(map.LookupKey(CString(L"ke") + L"y", key));
    EXPECT_STREQ(L"key", key);
    EXPECT_FALSE(map.LookupKey(L"none", key));
    EXPECT_EQ(map.HashKey(L"key"), map.HashKey(CString(L"key")));
    EXPECT_STREQ(L"value", map.PLookup(L"key")->value);
}

TEST(FrameworkMap, OwnHashFunction)
{
    CMap<Key, Key const &, int, int> map;
    map[Key{5}] = 1;
    map[Key{22}] = 2;
    EXPECT_EQ(1, map[Key{5}]);
    EXPECT_EQ(2, map[Key{22}]);
    EXPECT_EQ(2, map.GetCount());
}

TEST(FrameworkMap, PlainKindsAndTyped)
{
    CNode node(4);
    CMapPtrToPtr pointers;
    pointers[&node] = &pointers;
    CMapPtrToWord toWord;
    toWord[&node] = 7;
    CMapWordToPtr fromWord;
    fromWord[7] = &node;
    CMapWordToOb wordToObject;
    wordToObject[1] = &node;
    CMapStringToPtr named;
    named[L"n"] = &node;
    CTypedPtrMap<CMapStringToOb, CString, CNode *> typed;
    typed.SetAt(L"four", &node);
    CNode * found = nullptr;
    EXPECT_TRUE(typed.Lookup(L"four", found));
    EXPECT_EQ(4, found->m_number);
    POSITION position = typed.GetStartPosition();
    CString key;
    typed.GetNextAssoc(position, key, found);
    EXPECT_STREQ(L"four", key);
    EXPECT_EQ(nullptr, position);
    EXPECT_TRUE(typed.RemoveKey(L"four"));
    typed[L"five"] = &node;
    EXPECT_EQ(1, typed.GetCount());
    EXPECT_EQ(&pointers, pointers[&node]);
    EXPECT_EQ(7, toWord[&node]);
    EXPECT_EQ(&node, fromWord[7]);
    EXPECT_EQ(&node, wordToObject[1]);
    EXPECT_EQ(&node, named[L"n"]);
}

TEST(FrameworkCollections, AreKnownByName)
{
    for (LPCSTR const name :
         {"CByteArray", "CWordArray", "CDWordArray", "CUIntArray", "CPtrArray", "CObArray", "CStringArray", "CPtrList",
          "CObList", "CStringList", "CMapWordToPtr", "CMapPtrToWord", "CMapPtrToPtr", "CMapWordToOb", "CMapStringToPtr",
          "CMapStringToOb", "CMapStringToString"})
    {
        CRuntimeClass const * const found = CRuntimeClass::FromName(name);
        ASSERT_NE(nullptr, found) << name;
        EXPECT_TRUE(found->IsDerivedFrom(RUNTIME_CLASS(CObject)));
    }
}
