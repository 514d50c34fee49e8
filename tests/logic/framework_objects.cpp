// Run-time classes, casts, assertions and exceptions.

#include <framework_testing.h>

#include <cerrno>
#include <string>

#include "framework_Support.h"

namespace
{
class CTestBase : public CObject
{
    DECLARE_DYNAMIC(CTestBase)
};

class CTestDerived : public CTestBase
{
    DECLARE_DYNCREATE(CTestDerived)
    int m_value = 5;
};

class CTestOther : public CObject
{
    DECLARE_DYNCREATE(CTestOther)
};

class CTestInvalid : public CObject
{
public:
    void AssertValid() const override { ++s_calls; }
    static int s_calls;
};
int CTestInvalid::s_calls = 0;

class CTestException : public CException
{
public:
    explicit CTestException(bool & deleted) : m_deleted(deleted) {}
    ~CTestException() override { m_deleted = true; }
    bool & m_deleted;
};

// Installs a handler that notes failed assertions.
class AssertRecorder
{
public:
    AssertRecorder()
    {
        s_count = 0;
        m_previous = framework::SetAssertHandler(&Note);
    }
    ~AssertRecorder() { framework::SetAssertHandler(m_previous); }
    static int s_count;
    static std::string s_file;
    static int s_line;

private:
    static bool Note(char const * file, int line)
    {
        ++s_count;
        s_file = file;
        s_line = line;
        return true;
    }
    framework::AssertHandler m_previous;
};
int AssertRecorder::s_count = 0;
std::string AssertRecorder::s_file;
int AssertRecorder::s_line = 0;
} // namespace

IMPLEMENT_DYNAMIC(CTestBase, CObject)
IMPLEMENT_DYNCREATE(CTestDerived, CTestBase)
IMPLEMENT_DYNCREATE(CTestOther, CObject)

TEST(FrameworkObject, RuntimeClassDescribesTheClass)
{
    CRuntimeClass const * const found = RUNTIME_CLASS(CTestDerived);
    EXPECT_STREQ("CTestDerived", found->m_lpszClassName);
    EXPECT_EQ(static_cast<int>(sizeof(CTestDerived)), found->m_nObjectSize);
    EXPECT_EQ(0xFFFFU, found->m_wSchema);
    EXPECT_EQ(RUNTIME_CLASS(CTestBase), found->m_pfnGetBaseClass());
    CTestDerived const object;
    EXPECT_EQ(found, object.GetRuntimeClass());
    EXPECT_FALSE(object.IsSerializable());
    EXPECT_EQ(5, object.m_value);
}

TEST(FrameworkObject, KindsFollowDerivation)
{
    CTestDerived const object;
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CTestDerived)));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CTestBase)));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(object.IsKindOf(RUNTIME_CLASS(CTestOther)));
    EXPECT_FALSE(RUNTIME_CLASS(CTestBase)->IsDerivedFrom(RUNTIME_CLASS(CTestDerived)));
}

TEST(FrameworkObject, DynamicCreation)
{
    CObject * const object = RUNTIME_CLASS(CTestDerived)->CreateObject();
    ASSERT_NE(nullptr, object);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CTestDerived)));
    delete object;
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CTestBase)->CreateObject());
}

TEST(FrameworkObject, ClassesAreFoundByName)
{
    EXPECT_EQ(RUNTIME_CLASS(CTestDerived), CRuntimeClass::FromName("CTestDerived"));
    EXPECT_EQ(RUNTIME_CLASS(CTestOther), CRuntimeClass::FromName(L"CTestOther"));
    EXPECT_EQ(RUNTIME_CLASS(CObject), CRuntimeClass::FromName("CObject"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CTestNothing"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName(static_cast<LPCSTR>(nullptr)));
    CObject * const object = CRuntimeClass::CreateObject("CTestOther");
    ASSERT_NE(nullptr, object);
    EXPECT_EQ(RUNTIME_CLASS(CTestOther), object->GetRuntimeClass());
    delete object;
    EXPECT_EQ(nullptr, CRuntimeClass::CreateObject(L"CTestNothing"));
}

TEST(FrameworkObject, AClassLeavesTheListWithItsRegistration)
{
    static CRuntimeClass const passing = {"CTestPassing", 1, 0xFFFF, nullptr, nullptr, nullptr};
    static CRuntimeClass const staying = {"CTestStaying", 1, 0xFFFF, nullptr, nullptr, nullptr};
    {
        AFX_CLASSINIT const first(&passing);
        EXPECT_EQ(&passing, CRuntimeClass::FromName("CTestPassing"));
    }
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CTestPassing"));
    {
        auto * const lower = new AFX_CLASSINIT(&passing);
        AFX_CLASSINIT const upper(&staying);
        delete lower;
        EXPECT_EQ(nullptr, CRuntimeClass::FromName("CTestPassing"));
        EXPECT_EQ(&staying, CRuntimeClass::FromName("CTestStaying"));
    }
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CTestStaying"));
}

TEST(FrameworkObject, AllClassesAreVisited)
{
    int found = 0;
    AfxDoForAllClasses(
        [](CRuntimeClass const * each, void * context) {
            if (each == RUNTIME_CLASS(CTestDerived) || each == RUNTIME_CLASS(CTestBase))
                ++*static_cast<int *>(context);
        },
        &found);
    EXPECT_EQ(2, found);
}

TEST(FrameworkObject, DownCasts)
{
    CTestDerived derived;
    CObject * const object = &derived;
    EXPECT_EQ(&derived, DYNAMIC_DOWNCAST(CTestDerived, object));
    EXPECT_EQ(&derived, DYNAMIC_DOWNCAST(CTestBase, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CTestOther, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CTestBase, static_cast<CObject *>(nullptr)));
    EXPECT_EQ(&derived, STATIC_DOWNCAST(CTestDerived, object));
}

TEST(FrameworkObject, DebugNew)
{
    CTestOther * const object = new (__FILE__, __LINE__) CTestOther;
    EXPECT_EQ(RUNTIME_CLASS(CTestOther), object->GetRuntimeClass());
    delete object;
    alignas(CTestOther) unsigned char room[sizeof(CTestOther)];
    CTestOther * const placed = new (static_cast<void *>(room)) CTestOther;
    EXPECT_EQ(static_cast<void *>(room), placed);
    placed->~CTestOther();
}

TEST(FrameworkAssert, HandlerReceivesFileAndLine)
{
    AssertRecorder const recorder;
    EXPECT_FALSE(AfxAssertFailedLine("file.cpp", 17));
    EXPECT_EQ(1, AssertRecorder::s_count);
    EXPECT_EQ("file.cpp", AssertRecorder::s_file);
    EXPECT_EQ(17, AssertRecorder::s_line);
}

TEST(FrameworkAssert, HandlerIsGivenBack)
{
    framework::AssertHandler const mine = [](char const *, int) { return true; };
    framework::AssertHandler const before = framework::SetAssertHandler(mine);
    EXPECT_EQ(mine, framework::SetAssertHandler(before));
}

TEST(FrameworkAssert, VerifyAlwaysEvaluates)
{
    AssertRecorder const recorder;
    int calls = 0;
    VERIFY(++calls != 0);
    EXPECT_EQ(1, calls);
    EXPECT_EQ(0, AssertRecorder::s_count);
}

TEST(FrameworkAssert, EnsureThrows)
{
    AssertRecorder const recorder;
    CObject const * const nothing = nullptr;
    EXPECT_INVALID_ARG(ENSURE(1 > 2));
    EXPECT_INVALID_ARG(ENSURE_VALID(nothing));
    ENSURE(2 > 1);
}

#ifdef _DEBUG
TEST(FrameworkAssert, FailuresAreReportedWhereTheyAre)
{
    AssertRecorder const recorder;
    ASSERT(2 > 1);
    EXPECT_EQ(0, AssertRecorder::s_count);
    int const line = __LINE__ + 1;
    ASSERT(1 > 2);
    EXPECT_EQ(1, AssertRecorder::s_count);
    EXPECT_EQ(line, AssertRecorder::s_line);
    EXPECT_EQ(__FILE__, AssertRecorder::s_file);
    VERIFY(1 > 2);
    EXPECT_EQ(2, AssertRecorder::s_count);
    CTestOther other;
    ASSERT_KINDOF(CTestBase, &other);
    EXPECT_EQ(3, AssertRecorder::s_count);
    EXPECT_NE(nullptr, STATIC_DOWNCAST(CTestOther, static_cast<CObject *>(&other)));
    EXPECT_EQ(3, AssertRecorder::s_count);
}

TEST(FrameworkAssert, ValidityIsAskedOfTheObject)
{
    AssertRecorder const recorder;
    CTestInvalid const object;
    CTestInvalid::s_calls = 0;
    ASSERT_VALID(&object);
    EXPECT_EQ(1, CTestInvalid::s_calls);
    ASSERT_VALID(static_cast<CObject const *>(nullptr));
    EXPECT_EQ(1, AssertRecorder::s_count);
    int only = 0;
    DEBUG_ONLY(only = 1);
    EXPECT_EQ(1, only);
}
#endif

TEST(FrameworkDiagnostics, NullIsNoAddress)
{
    int number = 0;
    EXPECT_TRUE(AfxIsValidAddress(&number, sizeof number));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_TRUE(AfxIsValidString(L"x"));
    EXPECT_TRUE(AfxIsValidString("x"));
    EXPECT_FALSE(AfxIsValidString(static_cast<LPCTSTR>(nullptr)));
}

TEST(FrameworkException, EachThrowFunctionThrowsItsClass)
{
    EXPECT_TRUE((ThrowsPointer<CMemoryException>([] { AfxThrowMemoryException(); })));
    EXPECT_TRUE((ThrowsPointer<CNotSupportedException>([] { AfxThrowNotSupportedException(); })));
    EXPECT_TRUE((ThrowsPointer<CResourceException>([] { AfxThrowResourceException(); })));
    EXPECT_TRUE((ThrowsPointer<CUserException>([] { AfxThrowUserException(); })));
    EXPECT_TRUE((ThrowsPointer<CInvalidArgException>([] { AfxThrowInvalidArgException(); })));
    EXPECT_TRUE((ThrowsPointer<CSimpleException>([] { AfxThrowInvalidArgException(); })));
    EXPECT_TRUE((ThrowsPointer<CException>([] { AfxThrowFileException(CFileException::diskFull); })));
    EXPECT_TRUE((ThrowsPointer<CMemoryException>([] { AtlThrow(E_OUTOFMEMORY); })));
    EXPECT_TRUE((ThrowsPointer<CInvalidArgException>([] { AtlThrow(E_INVALIDARG); })));
    EXPECT_TRUE((ThrowsPointer<CNotSupportedException>([] { AtlThrow(E_FAIL); })));
}

TEST(FrameworkException, CatchDeletes)
{
    bool deleted = false;
    bool caught = false;
    TRY
    {
        THROW(new CTestException(deleted));
    }
    CATCH(CMemoryException, e)
    {
        ADD_FAILURE();
    }
    AND_CATCH(CTestException, e)
    {
        caught = true;
        EXPECT_FALSE(deleted);
        EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CException)));
    }
    END_CATCH
    EXPECT_TRUE(caught);
    EXPECT_TRUE(deleted);
}

TEST(FrameworkException, ThrowLastKeepsTheException)
{
    bool deleted = false;
    bool outer = false;
    TRY{TRY{THROW(new CTestException(deleted));
}
CATCH_ALL(e)
{
    EXPECT_NE(nullptr, e);
    THROW_LAST();
}
END_CATCH_ALL
}
CATCH(CTestException, e)
{
    EXPECT_FALSE(e->m_deleted);
    outer = true;
}
END_CATCH
EXPECT_TRUE(outer);
EXPECT_TRUE(deleted);
}

TEST(FrameworkException, MessagesFitTheirBuffer)
{
    CMemoryException memory;
    TCHAR text[256] = _T("old");
    UINT help = 5;
    EXPECT_TRUE(memory.GetErrorMessage(text, 256, &help));
    EXPECT_STREQ(_T("Out of memory."), text);
    EXPECT_EQ(0U, help);
    TCHAR small[4] = {};
    EXPECT_TRUE(memory.GetErrorMessage(small, 4));
    EXPECT_STREQ(_T("Out"), small);
    CUserException user;
    EXPECT_FALSE(user.GetErrorMessage(text, 256));
    EXPECT_STREQ(_T(""), text);
    CException const & constant = memory;
    EXPECT_TRUE(constant.GetErrorMessage(text, 256));
}

TEST(FrameworkException, FileExceptionNamesTheFile)
{
    CFileException const exception(CFileException::fileNotFound, 2, _T("a.wav"));
    TCHAR text[256] = {};
    EXPECT_TRUE(exception.GetErrorMessage(text, 256));
    EXPECT_STREQ(_T("a.wav was not found."), text);
    EXPECT_EQ(CFileException::fileNotFound, exception.m_cause);
    EXPECT_EQ(2, exception.m_lOsError);
    EXPECT_STREQ(_T("a.wav"), exception.m_strFileName);
}

TEST(FrameworkException, FileErrorCodes)
{
    EXPECT_EQ(CFileException::none, CFileException::OsErrorToException(0));
    EXPECT_EQ(CFileException::badPath, CFileException::OsErrorToException(3));
    EXPECT_EQ(CFileException::accessDenied, CFileException::OsErrorToException(5));
    EXPECT_EQ(CFileException::sharingViolation, CFileException::OsErrorToException(32));
    EXPECT_EQ(CFileException::diskFull, CFileException::OsErrorToException(112));
    EXPECT_EQ(CFileException::genericException, CFileException::OsErrorToException(99999));
    EXPECT_EQ(CFileException::fileNotFound, CFileException::ErrnoToException(ENOENT));
    EXPECT_EQ(CFileException::accessDenied, CFileException::ErrnoToException(EACCES));
    try
    {
        CFileException::ThrowOsError(2, _T("b"));
    }
    catch (CFileException * e)
    {
        EXPECT_EQ(CFileException::fileNotFound, e->m_cause);
        e->Delete();
    }
    EXPECT_TRUE((ThrowsPointer<CFileException>([] { CFileException::ThrowErrno(ENOSPC); })));
}
