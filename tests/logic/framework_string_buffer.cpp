// The buffers of strings: sharing, writing, lengths, locking, managers.

#include <string>
#include <thread>
#include <vector>

#include "framework_Support.h"

TEST(FrameworkStringBuffer, IsOnePointer)
{
    EXPECT_EQ(sizeof(void *), sizeof(CString));
    EXPECT_EQ(sizeof(void *), sizeof(CStringA));
}

TEST(FrameworkStringBuffer, PointsAtItsCharacters)
{
    CString const text = L"abc";
    void * raw = nullptr;
    std::memcpy(&raw, static_cast<void const *>(&text), sizeof raw);
    EXPECT_EQ(static_cast<void const *>(text.GetString()), raw);
}

TEST(FrameworkStringBuffer, DataStandsBeforeTheCharacters)
{
    CString const text = L"abc";
    auto const * const data = reinterpret_cast<CStringData const *>(text.GetString()) - 1;
    EXPECT_EQ(3, data->nDataLength);
    EXPECT_GE(data->nAllocLength, 3);
    EXPECT_FALSE(data->IsShared());
    EXPECT_FALSE(data->IsLocked());
    CString const second = text;
    EXPECT_TRUE(data->IsShared());
    EXPECT_EQ(2, data->nRefs);
    EXPECT_EQ(text.GetManager(), data->pStringMgr);
}

TEST(FrameworkStringBuffer, EmptyStringsShareOneBuffer)
{
    CString const a;
    CString b = L"x";
    b.Empty();
    EXPECT_EQ(a.GetString(), b.GetString());
    EXPECT_TRUE(a.IsEmpty());
    EXPECT_EQ(0, a.GetAllocLength());
    EXPECT_EQ(L'\0', a.GetString()[0]);
}

TEST(FrameworkStringBuffer, CopySharesUntilWritten)
{
    CString a = L"text";
    CString b = a;
    EXPECT_EQ(a.GetString(), b.GetString());
    b.SetAt(0, L'n');
    EXPECT_NE(a.GetString(), b.GetString());
    EXPECT_STREQ(L"text", a);
    EXPECT_STREQ(L"next", b);
}

TEST(FrameworkStringBuffer, AssignmentSharesAndSelfAssignmentKeeps)
{
    CString a = L"text";
    CString b = L"other";
    b = a;
    EXPECT_EQ(a.GetString(), b.GetString());
    CString & self = a;
    a = self;
    EXPECT_STREQ(L"text", a);
}

TEST(FrameworkStringBuffer, GetBufferGivesAnOwnBuffer)
{
    CString a = L"text";
    CString const b = a;
    LPTSTR const buffer = a.GetBuffer();
    buffer[0] = L'T';
    a.ReleaseBuffer();
    EXPECT_STREQ(L"Text", a);
    EXPECT_STREQ(L"text", b);
}

TEST(FrameworkStringBuffer, GetBufferKeepsTextAndMakesRoom)
{
    CString text = L"ab";
    LPTSTR const buffer = text.GetBuffer(100);
    EXPECT_STREQ(L"ab", buffer);
    EXPECT_GE(text.GetAllocLength(), 100);
    buffer[2] = L'c';
    buffer[3] = 0;
    text.ReleaseBuffer();
    EXPECT_EQ(3, text.GetLength());
}

TEST(FrameworkStringBuffer, GetBufferOfLessThanTheTextKeepsItWhole)
{
    CString text = L"abcdef";
    EXPECT_STREQ(L"abcdef", text.GetBuffer(2));
    EXPECT_EQ(6, text.GetLength());
}

TEST(FrameworkStringBuffer, NegativeBufferLengthIsInvalid)
{
    CString text = L"abc";
    EXPECT_INVALID_ARG(text.GetBuffer(-1));
    EXPECT_INVALID_ARG(text.Preallocate(-1));
    EXPECT_STREQ(L"abc", text);
}

TEST(FrameworkStringBuffer, ImpossibleLengthIsOutOfMemory)
{
    CString text;
    EXPECT_TRUE((ThrowsPointer<CMemoryException>([&] { text.GetBuffer(0x7fffffff); })));
}

TEST(FrameworkStringBuffer, ReleaseBufferTakesGivenLength)
{
    CString text = L"abcdef";
    text.GetBuffer();
    text.ReleaseBuffer(3);
    EXPECT_EQ(3, text.GetLength());
    EXPECT_STREQ(L"abc", text);
    EXPECT_INVALID_ARG(text.ReleaseBuffer(text.GetAllocLength() + 1));
    EXPECT_INVALID_ARG(text.ReleaseBuffer(-2));
}

TEST(FrameworkStringBuffer, ReleaseBufferOfEmptyStringIsHarmless)
{
    CString text;
    text.ReleaseBuffer();
    text.ReleaseBufferSetLength(0);
    EXPECT_EQ(0, text.GetLength());
}

TEST(FrameworkStringBuffer, GetBufferSetLengthSetsTheLength)
{
    CString text;
    LPTSTR const buffer = text.GetBufferSetLength(4);
    for (int i = 0; i < 4; ++i)
        buffer[i] = L'x';
    EXPECT_EQ(4, text.GetLength());
    EXPECT_STREQ(L"xxxx", text);
}

TEST(FrameworkStringBuffer, LockedBufferIsCopiedNotShared)
{
    CString text = L"abc";
    LPTSTR const buffer = text.LockBuffer();
    CString const copy = text;
    EXPECT_NE(static_cast<LPCTSTR>(buffer), copy.GetString());
    EXPECT_STREQ(L"abc", copy);
    text = CString(L"xy");
    EXPECT_EQ(static_cast<LPCTSTR>(buffer), text.GetString());
    EXPECT_STREQ(L"xy", buffer);
    text.Empty();
    EXPECT_EQ(static_cast<LPCTSTR>(buffer), text.GetString());
    EXPECT_EQ(0, text.GetLength());
    text.UnlockBuffer();
    text = L"z";
    CString const shared = text;
    EXPECT_EQ(text.GetString(), shared.GetString());
}

TEST(FrameworkStringBuffer, LockedBufferDoesNotMove)
{
    CString text = L"abc";
    text.LockBuffer();
    EXPECT_INVALID_ARG(text.Preallocate(1000));
    text.UnlockBuffer();
    text.Preallocate(1000);
    EXPECT_GE(text.GetAllocLength(), 1000);
}

TEST(FrameworkStringBuffer, LocksNest)
{
    CString text = L"abc";
    auto * const data = reinterpret_cast<CStringData *>(text.GetBuffer()) - 1;
    data->Lock();
    data->Lock();
    data->Unlock();
    EXPECT_TRUE(data->IsLocked());
    data->Unlock();
    EXPECT_FALSE(data->IsLocked());
    EXPECT_EQ(1, data->nRefs);
}

TEST(FrameworkStringBuffer, FreeExtraGivesRoomBack)
{
    CString text = L"abc";
    text.Preallocate(1000);
    EXPECT_GE(text.GetAllocLength(), 1000);
    text.FreeExtra();
    EXPECT_LT(text.GetAllocLength(), 100);
    EXPECT_STREQ(L"abc", text);
    text.GetBuffer(50);
    text.ReleaseBuffer(0);
    text.FreeExtra();
    EXPECT_EQ(0, text.GetAllocLength());
}

TEST(FrameworkStringBuffer, SetStringTakesExactlyTheLength)
{
    CString text;
    text.SetString(L"abcdef", 3);
    EXPECT_STREQ(L"abc", text);
    text.SetString(L"a\0b", 3);
    EXPECT_EQ(3, text.GetLength());
    EXPECT_EQ(L'b', text[2]);
    text.SetString(nullptr);
    EXPECT_TRUE(text.IsEmpty());
    text = L"x";
    text.SetString(nullptr, 0);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_INVALID_ARG(text.SetString(nullptr, 1));
    EXPECT_INVALID_ARG(text.SetString(L"abc", -1));
}

TEST(FrameworkStringBuffer, SetStringFromItself)
{
    CString text = L"abcdef";
    text.SetString(text.GetString() + 2, 3);
    EXPECT_STREQ(L"cde", text);
    CString shared = L"abcdef";
    CString const keep = shared;
    shared = shared.GetString() + 4;
    EXPECT_STREQ(L"ef", shared);
    EXPECT_STREQ(L"abcdef", keep);
}

TEST(FrameworkStringBuffer, AppendForms)
{
    CString text = L"a";
    text.Append(L"bc");
    text.Append(CString(L"d"));
    text.Append(L"efgh", 2);
    text.AppendChar(L'!');
    EXPECT_STREQ(L"abcdef!", text);
    text.Append(nullptr);
    text.Append(L"", 0);
    EXPECT_STREQ(L"abcdef!", text);
    text.Append(L"x\0y", 3);
    EXPECT_EQ(8, text.GetLength());
    EXPECT_INVALID_ARG(text.Append(nullptr, 2));
    EXPECT_INVALID_ARG(text.Append(L"x", -1));
}

TEST(FrameworkStringBuffer, AppendItself)
{
    CString text = L"ab";
    for (int i = 0; i < 6; ++i)
        text.Append(text);
    EXPECT_EQ(128, text.GetLength());
    text += text.GetString() + 126;
    EXPECT_EQ(130, text.GetLength());
    EXPECT_EQ(L'b', text[129]);
}

TEST(FrameworkStringBuffer, AppendKeepsEmbeddedNulls)
{
    CString const source(L"a\0b", 3);
    CString text = L"x";
    text += source;
    EXPECT_EQ(4, text.GetLength());
    EXPECT_EQ(L'b', text[3]);
}

TEST(FrameworkStringBuffer, GrowsInLargerSteps)
{
    CString text;
    int moves = 0;
    int room = text.GetAllocLength();
    for (int i = 0; i < 100'000; ++i)
    {
        text.AppendChar(L'x');
        moves += text.GetAllocLength() != room ? 1 : 0;
        room = text.GetAllocLength();
    }
    EXPECT_EQ(100'000, text.GetLength());
    EXPECT_LT(moves, 60);
}

TEST(FrameworkStringBuffer, GetAtReadsTheTerminatorAndNothingBeyond)
{
    CString const text = L"ab";
    EXPECT_EQ(L'a', text.GetAt(0));
    EXPECT_EQ(L'b', text[1]);
    EXPECT_EQ(L'\0', text.GetAt(2));
    EXPECT_INVALID_ARG(text.GetAt(3));
    EXPECT_INVALID_ARG(text.GetAt(-1));
    EXPECT_INVALID_ARG(text[5]);
}

TEST(FrameworkStringBuffer, SetAtOutsideIsInvalid)
{
    CString text = L"ab";
    text.SetAt(1, L'c');
    EXPECT_STREQ(L"ac", text);
    EXPECT_INVALID_ARG(text.SetAt(2, L'x'));
    EXPECT_INVALID_ARG(text.SetAt(-1, L'x'));
}

TEST(FrameworkStringBuffer, TruncateShortensOnly)
{
    CString text = L"abcdef";
    CString const keep = text;
    text.Truncate(2);
    EXPECT_STREQ(L"ab", text);
    EXPECT_STREQ(L"abcdef", keep);
    text.Truncate(2);
    EXPECT_INVALID_ARG(text.Truncate(3));
    EXPECT_INVALID_ARG(text.Truncate(-1));
}

TEST(FrameworkStringBuffer, StaticHelpers)
{
    EXPECT_EQ(3, CString::StringLength(L"abc"));
    EXPECT_EQ(0, CString::StringLength(nullptr));
    wchar_t room[6] = L".....";
    CString::CopyChars(room, L"ab", 2);
    EXPECT_STREQ(L"ab...", room);
    CString::CopyChars(room, 3, L"wxyz", 4);
    EXPECT_STREQ(L"ab...", room);
    CString::CopyChars(room, 5, L"wxyz", 4);
    EXPECT_STREQ(L"wxyz.", room);
    CString::CopyCharsOverlapped(room + 1, room, 4);
    EXPECT_STREQ(L"wwxyz", room);
}

TEST(FrameworkStringBuffer, CharacterOperatorsOfTheSimpleString)
{
    CSimpleString text(L"a", AfxGetStringManager());
    text += 'b';
    text += static_cast<unsigned char>('c');
    text += L'd';
    text += L"ef";
    text += CSimpleString(L"g", AfxGetStringManager());
    EXPECT_STREQ(L"abcdefg", text);
    CSimpleString const part(L"xyz", 2, AfxGetStringManager());
    EXPECT_STREQ(L"xy", part);
}

TEST(FrameworkStringBuffer, StrBufSetsTheLengthAtTheEnd)
{
    CString text = L"ab";
    {
        CStrBuf buffer(text, 10);
        PTSTR const characters = buffer;
        characters[2] = L'c';
        characters[3] = 0;
    }
    EXPECT_EQ(3, text.GetLength());
    {
        CStrBuf buffer(text, 5, CStrBuf::SET_LENGTH);
        PTSTR const characters = buffer;
        characters[3] = L'd';
        characters[4] = L'e';
    }
    EXPECT_STREQ(L"abcde", text);
    {
        CStrBuf buffer(text);
        buffer.SetLength(1);
        EXPECT_INVALID_ARG(buffer.SetLength(-1));
    }
    EXPECT_STREQ(L"a", text);
}

TEST(FrameworkStringBuffer, FixedStringKeepsShortTextInside)
{
    CFixedStringT<CString, 8> text(L"abc");
    auto const begin = reinterpret_cast<std::uintptr_t>(&text);
    auto const at = reinterpret_cast<std::uintptr_t>(text.GetString());
    EXPECT_TRUE(at >= begin && at < begin + sizeof text);
    EXPECT_STREQ(L"abc", text);
    text += L"defgh";
    EXPECT_STREQ(L"abcdefgh", text);
    EXPECT_TRUE(reinterpret_cast<std::uintptr_t>(text.GetString()) == at);
}

TEST(FrameworkStringBuffer, FixedStringGoesToTheHeapAndBack)
{
    CFixedStringT<CString, 4> text;
    text = L"much longer than four";
    EXPECT_STREQ(L"much longer than four", text);
    text += L" characters";
    EXPECT_STREQ(L"much longer than four characters", text);
    text.Empty();
    EXPECT_GE(text.GetAllocLength(), 4);
    text = "ab";
    EXPECT_STREQ(L"ab", text);
}

TEST(FrameworkStringBuffer, FixedStringIsCopiedNotShared)
{
    CString copy;
    {
        CFixedStringT<CString, 8> const text(L"abc");
        copy = text;
        CString const second(text);
        CFixedStringT<CString, 8> const third(text);
        EXPECT_NE(text.GetString(), copy.GetString());
        EXPECT_STREQ(L"abc", second);
        EXPECT_STREQ(L"abc", third);
    }
    EXPECT_STREQ(L"abc", copy);
    EXPECT_EQ(AfxGetStringManager(), copy.GetManager());
}

TEST(FrameworkStringBuffer, ManagerIsSetOnAnEmptyString)
{
    CString text;
    text.SetManager(AfxGetStringManager());
    text = L"x";
    EXPECT_INVALID_ARG(text.SetManager(AfxGetStringManager()));
    EXPECT_EQ(AfxGetStringManager(), text.GetManager());
}

TEST(FrameworkStringBuffer, SharedAcrossThreads)
{
    CString const text = L"shared";
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
    {
        threads.emplace_back([&text] {
            for (int i = 0; i < 2000; ++i)
            {
                CString copy = text;
                copy += L"!";
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    auto const * const data = reinterpret_cast<CStringData const *>(text.GetString()) - 1;
    EXPECT_EQ(1, data->nRefs);
    EXPECT_STREQ(L"shared", text);
}
