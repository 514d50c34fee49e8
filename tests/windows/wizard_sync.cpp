// What threads wait for, and files in shared memory.

#include <afxadv.h>
#include <afxdisp.h>
#include <afxmt.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <thread>

namespace
{
/// Whether another thread gets the object at once. It gives it back.
bool OtherThreadGets(CSyncObject & object)
{
    bool got = false;
    std::thread([&] {
        got = object.Lock(0) != FALSE;
        if (got)
            object.Unlock();
    }).join();
    return got;
}

std::string Contents(HGLOBAL memory, size_t size)
{
    std::string contents(static_cast<char const *>(::GlobalLock(memory)), size);
    ::GlobalUnlock(memory);
    return contents;
}
} // namespace

TEST(WizardSync, MutexIsOneThreads)
{
    CMutex mutex;
    EXPECT_TRUE(OtherThreadGets(mutex));
    {
        CSingleLock lock(&mutex);
        EXPECT_FALSE(lock.IsLocked());
        EXPECT_TRUE(lock.Lock());
        EXPECT_TRUE(lock.IsLocked());
        EXPECT_FALSE(OtherThreadGets(mutex));
        EXPECT_TRUE(lock.Unlock());
        EXPECT_TRUE(OtherThreadGets(mutex));
        EXPECT_TRUE(lock.Lock(0));
    }
    EXPECT_TRUE(OtherThreadGets(mutex));
    CSingleLock const held(&mutex, TRUE);
    EXPECT_FALSE(OtherThreadGets(mutex));
}

TEST(WizardSync, MutexOwnedAtFirstIsHeld)
{
    CMutex mutex(TRUE);
    EXPECT_FALSE(OtherThreadGets(mutex));
    EXPECT_TRUE(mutex.Unlock());
    EXPECT_FALSE(mutex.Unlock());
    EXPECT_TRUE(OtherThreadGets(mutex));
}

TEST(WizardSync, EventsAreSetAndReset)
{
    CEvent automatic;
    EXPECT_FALSE(automatic.Lock(0));
    EXPECT_TRUE(automatic.SetEvent());
    EXPECT_TRUE(automatic.Lock(0));
    EXPECT_FALSE(automatic.Lock(0));
    CEvent manual(TRUE, TRUE);
    EXPECT_TRUE(manual.Lock(0));
    EXPECT_TRUE(manual.Lock(0));
    EXPECT_TRUE(manual.Unlock());
    EXPECT_TRUE(manual.Lock(0));
    EXPECT_TRUE(manual.ResetEvent());
    EXPECT_FALSE(manual.Lock(0));
    EXPECT_EQ(::WaitForSingleObject(manual, 0), static_cast<DWORD>(WAIT_TIMEOUT));
}

TEST(WizardSync, SemaphoreCounts)
{
    CSemaphore semaphore(2, 2);
    EXPECT_TRUE(semaphore.Lock(0));
    EXPECT_TRUE(semaphore.Lock(0));
    EXPECT_FALSE(semaphore.Lock(0));
    LONG former = -1;
    EXPECT_TRUE(semaphore.Unlock(2, &former));
    EXPECT_EQ(former, 0);
    EXPECT_FALSE(semaphore.Unlock());
    CSingleLock lock(&semaphore, TRUE);
    EXPECT_TRUE(lock.Unlock(1, &former));
    EXPECT_EQ(former, 1);
}

TEST(WizardSync, CriticalSectionIsOneThreads)
{
    CCriticalSection section;
    int value = 0;
    auto const count = [&] {
        for (int i = 0; i < 20'000; ++i)
        {
            CSingleLock const lock(&section, TRUE);
            // Twice, by the same thread.
            section.Lock();
            ++value;
            section.Unlock();
        }
    };
    std::thread first(count);
    std::thread second(count);
    first.join();
    second.join();
    EXPECT_EQ(value, 40'000);
    CRITICAL_SECTION * const plain = section;
    EXPECT_EQ(plain, &section.m_sect);
}

TEST(WizardSync, NamesAreShared)
{
    CString name;
    name.Format(_T("wizard event %lu"), static_cast<unsigned long>(::GetCurrentProcessId()));
    CEvent first(FALSE, TRUE, name);
    CEvent second(FALSE, TRUE, name);
    first.SetEvent();
    EXPECT_TRUE(second.Lock(0));
    try
    {
        CMutex const other(FALSE, name);
        ADD_FAILURE();
    }
    catch (CResourceException * exception)
    {
        exception->Delete();
    }
}

TEST(WizardSync, MultiLockTakesAllOrOne)
{
    CEvent event;
    CMutex mutex;
    CSemaphore semaphore;
    CSyncObject * objects[] = {&event, &mutex, &semaphore};
    CMultiLock lock(objects, 3);
    EXPECT_EQ(lock.Lock(0), static_cast<DWORD>(WAIT_TIMEOUT));
    EXPECT_FALSE(lock.IsLocked(1));
    EXPECT_EQ(lock.Lock(0, FALSE), static_cast<DWORD>(WAIT_OBJECT_0 + 1));
    EXPECT_FALSE(lock.IsLocked(0));
    EXPECT_TRUE(lock.IsLocked(1));
    EXPECT_FALSE(OtherThreadGets(mutex));
    EXPECT_TRUE(lock.Unlock());
    EXPECT_TRUE(OtherThreadGets(mutex));
    event.SetEvent();
    EXPECT_EQ(lock.Lock(0), static_cast<DWORD>(WAIT_OBJECT_0));
    EXPECT_TRUE(lock.IsLocked(0));
    EXPECT_TRUE(lock.IsLocked(2));
    EXPECT_FALSE(semaphore.Lock(0));
    lock.Unlock();
    EXPECT_TRUE(semaphore.Lock(0));
}

TEST(WizardSync, MultiLockWakesForMessages)
{
    CEvent event;
    CSyncObject * objects[] = {&event};
    CMultiLock lock(objects, 1);
    ::PostThreadMessage(::GetCurrentThreadId(), WM_NULL, 0, 0);
    EXPECT_EQ(lock.Lock(INFINITE, FALSE, QS_ALLINPUT), static_cast<DWORD>(WAIT_OBJECT_0 + 1));
    EXPECT_FALSE(lock.IsLocked(0));
    MSG message;
    ::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE);
}

TEST(WizardSync, MultiLockRefusesWhatHasNoHandle)
{
    CCriticalSection section;
    CSyncObject * objects[] = {&section};
    EXPECT_THROW(
        try { CMultiLock const lock(objects, 1); } catch (CInvalidArgException * exception) {
            exception->Delete();
            throw 1;
        },
        int);
}

TEST(WizardSharedFile, GivesItsMemory)
{
    CSharedFile file;
    file.Write("hello", 5);
    HGLOBAL const memory = file.Detach();
    ASSERT_NE(memory, nullptr);
    EXPECT_EQ(Contents(memory, 5), "hello");
    EXPECT_EQ(file.GetLength(), 0U);
    file.Write("more", 4);
    EXPECT_EQ(file.GetLength(), 4U);
    ::GlobalFree(memory);
}

TEST(WizardSharedFile, TakesMemoryAndGrows)
{
    HGLOBAL const memory = ::GlobalAlloc(GMEM_MOVEABLE, 4);
    std::memcpy(::GlobalLock(memory), "abcd", 4);
    ::GlobalUnlock(memory);
    CSharedFile file;
    file.SetHandle(memory);
    EXPECT_GE(file.GetLength(), 4U);
    char text[4] = {};
    EXPECT_EQ(file.Read(text, 4), 4U);
    EXPECT_EQ(std::string(text, 4), "abcd");
    std::string const large(20'000, 'x');
    file.Write(large.data(), 20'000);
    HGLOBAL const grown = file.Detach();
    EXPECT_EQ(Contents(grown, 6), "abcdxx");
    ::GlobalFree(grown);
}

TEST(WizardSharedFile, MemoryThatMustNotGrowThrows)
{
    CSharedFile file;
    file.SetHandle(::GlobalAlloc(GMEM_MOVEABLE, 4), FALSE);
    std::string const large(20'000, 'x');
    EXPECT_THROW(
        try { file.Write(large.data(), 20'000); } catch (CMemoryException *) { throw 1; }, int);
    file.SeekToBegin();
    file.Write("abcd", 4);
}

TEST(WizardOle, StartsOnce)
{
    EXPECT_TRUE(AfxOleInit());
    EXPECT_TRUE(AfxOleInit());
    AfxEnableControlContainer();
    AfxOleTerm();
}

TEST(WizardOle, TimesAreReadAndWrittenAsTheLocaleHasIt)
{
    LCID const english = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
    COleDateTime date;
    EXPECT_TRUE(date.ParseDateTime(_T("2/29/2024 13:05:06"), 0, english));
    EXPECT_EQ(date.Format(_T("%Y-%m-%d %H:%M:%S")), _T("2024-02-29 13:05:06"));
    EXPECT_FALSE(date.ParseDateTime(_T("no date at all"), 0, english));
    EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(date.m_dt, 0);
    EXPECT_TRUE(date.ParseDateTime(_T("12:30:00"), VAR_TIMEVALUEONLY, english));
    EXPECT_NEAR(date.m_dt, 12.5 / 24, 1e-9);
    EXPECT_NE(COleDateTime(2024, 2, 29, 0, 0, 0).Format(VAR_DATEVALUEONLY, english).Find(_T("2024")), -1);
    VARIANT value;
    ::VariantInit(&value);
    value.vt = VT_R8;
    value.dblVal = 2.5;
    EXPECT_EQ(COleDateTime(value), COleDateTime(1900, 1, 1, 12, 0, 0));
    value.vt = VT_ERROR;
    EXPECT_EQ(COleDateTime(value).GetStatus(), COleDateTime::invalid);
    UDATE parts{};
    EXPECT_TRUE(COleDateTime(2024, 2, 29, 13, 5, 6).GetAsUDATE(parts));
    EXPECT_EQ(parts.wDayOfYear, 60);
    EXPECT_EQ(parts.st.wHour, 13);
}

TEST(WizardOle, DaysAreTheSystems)
{
    // The whole range, on both sides of day zero.
    for (double day = -657433.75; day < 2958465; day += 997.3)
    {
        DATE const date = day < 0 ? std::trunc(day) - (day - std::floor(day)) : day;
        SYSTEMTIME expected{};
        if (!::VariantTimeToSystemTime(date, &expected))
            continue;
        SYSTEMTIME parts{};
        ASSERT_TRUE(COleDateTime(date).GetAsSystemTime(parts));
        ASSERT_TRUE(parts.wYear == expected.wYear && parts.wMonth == expected.wMonth && parts.wDay == expected.wDay &&
                    parts.wDayOfWeek == expected.wDayOfWeek && parts.wHour == expected.wHour &&
                    parts.wMinute == expected.wMinute)
            << date;
    }
}
