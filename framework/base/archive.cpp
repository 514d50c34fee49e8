// CArchive, and the classes of objects in it.

#include "afx.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <cstring>
#include <exception>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "StackRoom.h"
#include "StringText.h"

static_assert(std::endian::native == std::endian::little, "archives hold the least byte first");

// Each object is stored with a tag of two bytes: 0 for null, 0xFFFF for an object of a class that follows with its
// schema and name, 0x8000 and a class's number for one of a class that came before, or the number of an object that
// came before. Classes and objects are numbered together from 1. From 0x7FFF on, 0x7FFF stands in place of the tag and
// four bytes follow, with the highest bit set for a class.
namespace
{
constexpr WORD null_tag = 0;
constexpr WORD new_class_tag = 0xFFFF;
constexpr WORD class_tag = 0x8000;
constexpr DWORD big_class_tag = 0x80000000;
constexpr WORD big_object_tag = 0x7FFF;
constexpr DWORD most_objects = 0x3FFFFFFE;

constexpr int least_buffer = 128;
constexpr UINT no_schema = static_cast<UINT>(-1);
constexpr WORD longest_class_name = 255;
constexpr size_t step_size = 65536;

/// Bytes of the file from its position on. None where the file can't tell.
std::optional<ULONGLONG> BytesAhead(CFile const & file)
{
    try
    {
        ULONGLONG const length = file.GetLength();
        ULONGLONG const position = file.GetPosition();
        return length > position ? length - position : 0;
    }
    catch (CException * exception)
    {
        exception->Delete();
        return {};
    }
}
} // namespace

struct CArchive::Maps
{
    struct Entry
    {
        CObject * object;
        CRuntimeClass * itsClass; // set for an entry that is a class
    };

    DWORD count = 1;
    std::unordered_map<void const *, DWORD> stored;
    std::vector<Entry> loaded = std::vector<Entry>(1);
    std::unordered_map<CRuntimeClass const *, UINT> schemas; // of the archive, where the class has another now
};

CArchive::CArchive(CFile * pFile, UINT nMode, int nBufSize, void * lpBuf)
    : m_file(pFile),
      m_mode(nMode),
      m_buffer(static_cast<BYTE *>(lpBuf)),
      m_size(static_cast<size_t>(std::max(nBufSize, least_buffer))),
      m_ownBuffer(lpBuf == nullptr || nBufSize < least_buffer),
      m_exceptions(std::uncaught_exceptions())
{
    if (pFile == nullptr)
        AfxThrowInvalidArgException();
    m_name = pFile->GetFilePath();
    if (m_ownBuffer)
        m_buffer = new BYTE[m_size];
}

// As CArchive documents it. NOLINTNEXTLINE(bugprone-exception-escape)
CArchive::~CArchive() noexcept(false)
{
    struct Ending
    {
        ~Ending() { archive.Abort(); }
        CArchive & archive;
    } const ending{*this};
    if (m_file == nullptr || (m_mode & bNoFlushOnDelete) != 0)
        return;
    if (std::uncaught_exceptions() <= m_exceptions)
    {
        Close();
        return;
    }
    // A second exception on the way would end the program.
    try
    {
        Close();
    }
    catch (CException * exception)
    {
        exception->Delete();
    }
}

void CArchive::Abort()
{
    m_file = nullptr;
    if (m_ownBuffer)
        delete[] m_buffer;
    m_buffer = nullptr;
    m_at = m_end = 0;
    delete m_maps;
    m_maps = nullptr;
}

void CArchive::Close()
{
    if (m_file != nullptr)
        Flush();
    m_file = nullptr;
}

BOOL CArchive::IsBufferEmpty() const
{
    return m_at == (IsLoading() ? m_end : 0);
}

void CArchive::Throw(int cause) const
{
    AfxThrowArchiveException(cause, m_name);
}

void CArchive::NeedStoring() const
{
    if (m_file == nullptr)
        Throw(CArchiveException::genericException);
    if (!IsStoring())
        Throw(CArchiveException::readOnly);
}

void CArchive::NeedLoading() const
{
    if (m_file == nullptr)
        Throw(CArchiveException::genericException);
    if (!IsLoading())
        Throw(CArchiveException::writeOnly);
}

// Objects that contain each other to any depth end here, before the stack does.
void CArchive::CheckDepth() const
{
    if (framework::StackIsLow())
        Throw(CArchiveException::genericException);
}

void CArchive::Flush()
{
    if (m_file == nullptr)
        Throw(CArchiveException::genericException);
    size_t const ahead = m_end - m_at;
    size_t const written = m_at;
    m_at = m_end = 0;
    if (IsLoading())
    {
        if (ahead != 0)
            m_file->Seek(-static_cast<LONGLONG>(ahead), CFile::current);
    }
    else if (written != 0)
    {
        m_file->Write(m_buffer, static_cast<UINT>(written));
    }
}

bool CArchive::Fill()
{
    m_at = m_end = 0;
    m_end = m_file->Read(m_buffer, static_cast<UINT>(m_size));
    return m_end != 0;
}

UINT CArchive::Read(void * lpBuf, UINT nMax)
{
    NeedLoading();
    auto * target = static_cast<BYTE *>(lpBuf);
    UINT left = nMax;
    while (left != 0)
    {
        if (m_at == m_end && left >= m_size)
        {
            UINT const count = m_file->Read(target, left);
            if (count == 0)
                break;
            target += count;
            left -= count;
            continue;
        }
        if (m_at == m_end && !Fill())
            break;
        size_t const count = std::min<size_t>(left, m_end - m_at);
        std::memcpy(target, m_buffer + m_at, count);
        m_at += count;
        target += count;
        left -= static_cast<UINT>(count);
    }
    return nMax - left;
}

void CArchive::ReadAll(void * bytes, UINT count)
{
    if (Read(bytes, count) != count)
        Throw(CArchiveException::endOfFile);
}

void CArchive::Write(void const * lpBuf, UINT nMax)
{
    NeedStoring();
    if (nMax == 0)
        return;
    if (nMax > m_size - m_at)
        Flush();
    if (nMax >= m_size)
    {
        m_file->Write(lpBuf, nMax);
        return;
    }
    std::memcpy(m_buffer + m_at, lpBuf, nMax);
    m_at += nMax;
}

template <class Value> CArchive & CArchive::Store(Value value)
{
    Write(&value, sizeof(value));
    return *this;
}

template <class Value> CArchive & CArchive::Load(Value & value)
{
    NeedLoading();
    if (m_end - m_at >= sizeof(value))
    {
        std::memcpy(&value, m_buffer + m_at, sizeof(value));
        m_at += sizeof(value);
        return *this;
    }
    Value read;
    ReadAll(&read, sizeof(read));
    value = read;
    return *this;
}

CArchive & CArchive::operator<<(BYTE by)
{
    return Store(by);
}

CArchive & CArchive::operator<<(WORD w)
{
    return Store(w);
}

CArchive & CArchive::operator<<(short w)
{
    return Store(w);
}

CArchive & CArchive::operator<<(int i)
{
    return Store(i);
}

CArchive & CArchive::operator<<(unsigned u)
{
    return Store(u);
}

CArchive & CArchive::operator<<(LONGLONG dwdw)
{
    return Store(dwdw);
}

CArchive & CArchive::operator<<(ULONGLONG dwdw)
{
    return Store(dwdw);
}

CArchive & CArchive::operator<<(float f)
{
    return Store(f);
}

CArchive & CArchive::operator<<(double d)
{
    return Store(d);
}

CArchive & CArchive::operator<<(char ch)
{
    return Store(ch);
}

CArchive & CArchive::operator<<(wchar_t ch)
{
    std::u16string const units = framework::ToUtf16(&ch, 1);
    return Store(static_cast<WORD>(units.size() == 1 ? units[0] : u'\xFFFD'));
}

CArchive & CArchive::operator<<(bool b)
{
    return Store(static_cast<BYTE>(b ? 1 : 0));
}

CArchive & CArchive::operator>>(BYTE & by)
{
    return Load(by);
}

CArchive & CArchive::operator>>(WORD & w)
{
    return Load(w);
}

CArchive & CArchive::operator>>(short & w)
{
    return Load(w);
}

CArchive & CArchive::operator>>(int & i)
{
    return Load(i);
}

CArchive & CArchive::operator>>(unsigned & u)
{
    return Load(u);
}

CArchive & CArchive::operator>>(LONGLONG & dwdw)
{
    return Load(dwdw);
}

CArchive & CArchive::operator>>(ULONGLONG & dwdw)
{
    return Load(dwdw);
}

CArchive & CArchive::operator>>(float & f)
{
    return Load(f);
}

CArchive & CArchive::operator>>(double & d)
{
    return Load(d);
}

CArchive & CArchive::operator>>(char & ch)
{
    return Load(ch);
}

CArchive & CArchive::operator>>(wchar_t & ch)
{
    WORD unit = 0;
    Load(unit);
    ch = static_cast<wchar_t>(unit);
    return *this;
}

CArchive & CArchive::operator>>(bool & b)
{
    BYTE byte = 0;
    Load(byte);
    b = byte != 0;
    return *this;
}

#if defined(_WIN32)
CArchive & CArchive::operator<<(LONG l)
{
    return Store(l);
}

CArchive & CArchive::operator<<(DWORD dw)
{
    return Store(dw);
}

CArchive & CArchive::operator>>(LONG & l)
{
    return Load(l);
}

CArchive & CArchive::operator>>(DWORD & dw)
{
    return Load(dw);
}
#endif

// Text

void CArchive::StoreLength(int length)
{
    if (length < 0xFF)
    {
        Store(static_cast<BYTE>(length));
        return;
    }
    Store(static_cast<BYTE>(0xFF));
    if (length < 0xFFFE)
    {
        Store(static_cast<WORD>(length));
        return;
    }
    Store(static_cast<WORD>(0xFFFF));
    Store(static_cast<DWORD>(length));
}

void CArchive::StoreText(char const * text, int length)
{
    StoreLength(length);
    Write(text, static_cast<UINT>(length));
}

void CArchive::StoreText(wchar_t const * text, int length)
{
    std::u16string const units = framework::ToUtf16(text, length);
    if (units.size() > static_cast<size_t>(INT_MAX))
        Throw(CArchiveException::genericException);
    Store(static_cast<BYTE>(0xFF));
    Store(static_cast<WORD>(0xFFFE));
    StoreLength(static_cast<int>(units.size()));
    framework::WriteBytes(*this, units.data(), units.size() * sizeof(char16_t));
}

ULONGLONG CArchive::LoadLength(bool & wide)
{
    wide = false;
    BYTE byte = 0;
    *this >> byte;
    if (byte < 0xFF)
        return byte;
    WORD word = 0;
    *this >> word;
    if (word == 0xFFFE)
    {
        wide = true;
        *this >> byte;
        if (byte < 0xFF)
            return byte;
        *this >> word;
    }
    if (word < 0xFFFF)
        return word;
    DWORD dword = 0;
    Load(dword);
    if (dword < 0xFFFFFFFF)
        return dword;
    ULONGLONG number = 0;
    *this >> number;
    return number;
}

std::string CArchive::LoadBytes(ULONGLONG count)
{
    std::string bytes;
    while (bytes.size() < count)
    {
        // The length is believed as far as there are bytes.
        size_t const had = bytes.size();
        size_t const step = static_cast<size_t>(std::min<ULONGLONG>(count - had, std::max(step_size, had)));
        bytes.resize(had + step);
        framework::ReadBytes(*this, bytes.data() + had, step);
    }
    return bytes;
}

void CArchive::LoadText(ATL::CSimpleStringT<wchar_t> & text)
{
    bool wide = false;
    ULONGLONG const length = LoadLength(wide);
    if (length > static_cast<ULONGLONG>(INT_MAX / 2))
        Throw(CArchiveException::badIndex);
    std::string const bytes = LoadBytes(wide ? length * sizeof(char16_t) : length);
    std::wstring characters;
    if (wide)
    {
        std::u16string units(bytes.size() / sizeof(char16_t), u'\0');
        std::memcpy(units.data(), bytes.data(), bytes.size());
        characters = framework::FromUtf16(units);
    }
    else
    {
        characters = framework::ToWide(bytes.data(), static_cast<int>(bytes.size()));
    }
    text.Empty();
    framework::AppendText(text, characters);
}

void CArchive::LoadText(ATL::CSimpleStringT<char> & text)
{
    bool wide = false;
    ULONGLONG const length = LoadLength(wide);
    if (length > static_cast<ULONGLONG>(INT_MAX / 2))
        Throw(CArchiveException::badIndex);
    std::string bytes = LoadBytes(wide ? length * sizeof(char16_t) : length);
    if (wide)
    {
        std::u16string units(bytes.size() / sizeof(char16_t), u'\0');
        std::memcpy(units.data(), bytes.data(), bytes.size());
        std::wstring const characters = framework::FromUtf16(units);
        bytes = framework::ToNarrow(characters.data(), static_cast<int>(characters.size()));
    }
    text.Empty();
    framework::AppendText(text, bytes);
}

void CArchive::WriteString(LPCTSTR lpsz)
{
    if (lpsz == nullptr)
        AfxThrowInvalidArgException();
    std::u16string const units = framework::ToUtf16(lpsz, CString::StringLength(lpsz));
    framework::WriteBytes(*this, units.data(), units.size() * sizeof(char16_t));
}

// False at the end of the archive.
bool CArchive::ReadUnit(WORD & unit)
{
    return Read(&unit, sizeof(unit)) == sizeof(unit);
}

LPTSTR CArchive::ReadString(LPTSTR lpsz, UINT nMax)
{
    if (lpsz == nullptr)
        AfxThrowInvalidArgException();
    NeedLoading();
    // A negative number keeps the line's end.
    bool const keeps = static_cast<int>(nMax) < 0;
    UINT const room = keeps ? 0U - nMax : nMax;
    UINT length = 0;
    while (length < room)
    {
        WORD unit = 0;
        bool more = ReadUnit(unit);
        bool const ends = more && (unit == '\n' || unit == '\r');
        if (unit == '\r')
            more = ReadUnit(unit);
        if (!more && length == 0)
            return nullptr;
        if (!more || (ends && !keeps))
            break;
        lpsz[length++] = static_cast<TCHAR>(unit);
        if (ends)
            break;
    }
    lpsz[length] = 0;
    return lpsz;
}

BOOL CArchive::ReadString(CString & rString)
{
    NeedLoading();
    std::u16string line;
    bool found = false;
    WORD unit = 0;
    while (ReadUnit(unit))
    {
        found = true;
        if (unit == '\r')
            ReadUnit(unit);
        if (unit == '\n' || unit == '\r')
            break;
        line += static_cast<char16_t>(unit);
    }
    rString.Empty();
    framework::AppendText(rString, framework::FromUtf16(line));
    return found;
}

// Counts

void CArchive::WriteCount(DWORD_PTR dwCount)
{
    if (dwCount < 0xFFFF)
    {
        Store(static_cast<WORD>(dwCount));
        return;
    }
    Store(static_cast<WORD>(0xFFFF));
    if (dwCount < 0xFFFFFFFF)
    {
        Store(static_cast<DWORD>(dwCount));
        return;
    }
    Store(static_cast<DWORD>(0xFFFFFFFF));
    Store(static_cast<ULONGLONG>(dwCount));
}

DWORD_PTR CArchive::ReadCount()
{
    WORD word = 0;
    *this >> word;
    if (word < 0xFFFF)
        return word;
    DWORD dword = 0;
    Load(dword);
    if (dword < 0xFFFFFFFF)
        return dword;
    ULONGLONG number = 0;
    *this >> number;
    return static_cast<DWORD_PTR>(number);
}

namespace framework
{
struct ArchiveAccess
{
    /// Bytes that were read from the file, but not yet out of the archive.
    static size_t Buffered(CArchive const & ar) { return ar.m_end - ar.m_at; }
};

DWORD_PTR ReadElementCount(CArchive & ar, size_t elementSize)
{
    // Elements take a bit of the archive each, at the least.
    constexpr ULONGLONG most_a_byte = 8;
    DWORD_PTR const count = ar.ReadCount();
    if (count <= step_size / std::max<size_t>(elementSize, 1))
        return count;
    CFile * const file = ar.GetFile();
    std::optional<ULONGLONG> const ahead = BytesAhead(*file);
    if (ahead && (count - 1) / most_a_byte >= *ahead + ArchiveAccess::Buffered(ar))
        AfxThrowArchiveException(CArchiveException::endOfFile, file->GetFilePath());
    if (count > static_cast<DWORD_PTR>(PTRDIFF_MAX) / std::max<size_t>(elementSize, 1))
        AfxThrowArchiveException(CArchiveException::badIndex, file->GetFilePath());
    return count;
}

void ReadBytes(CArchive & ar, void * bytes, size_t count)
{
    auto * target = static_cast<BYTE *>(bytes);
    while (count != 0)
    {
        auto const step = static_cast<UINT>(std::min<size_t>(count, INT_MAX));
        if (ar.Read(target, step) != step)
            AfxThrowArchiveException(CArchiveException::endOfFile, ar.GetFile()->GetFilePath());
        target += step;
        count -= step;
    }
}

void WriteBytes(CArchive & ar, void const * bytes, size_t count)
{
    auto const * source = static_cast<BYTE const *>(bytes);
    while (count != 0)
    {
        auto const step = static_cast<UINT>(std::min<size_t>(count, INT_MAX));
        ar.Write(source, step);
        source += step;
        count -= step;
    }
}
} // namespace framework

// Objects

CArchive::Maps & CArchive::MapsInUse()
{
    if (m_maps == nullptr)
        m_maps = new Maps;
    return *m_maps;
}

UINT CArchive::GetObjectSchema()
{
    return std::exchange(m_objectSchema, no_schema);
}

void CArchive::SetLoadParams(UINT nGrowBy)
{
    ASSERT(IsLoading() && m_maps == nullptr);
    MapsInUse().loaded.reserve(std::min<size_t>(nGrowBy, step_size));
}

void CArchive::SetStoreParams(UINT nHashSize, UINT)
{
    ASSERT(IsStoring() && m_maps == nullptr);
    MapsInUse().stored.reserve(std::min<size_t>(nHashSize, step_size));
}

void CArchive::MapObject(CObject const * pOb)
{
    Maps & maps = MapsInUse();
    if (pOb == nullptr)
        return;
    if (maps.count >= most_objects)
        Throw(CArchiveException::badIndex);
    if (IsStoring())
        maps.stored[pOb] = maps.count;
    else
        maps.loaded.push_back({const_cast<CObject *>(pOb), nullptr});
    ++maps.count;
}

void CArchive::WriteClass(CRuntimeClass const * pClassRef)
{
    NeedStoring();
    if (pClassRef == nullptr)
        AfxThrowInvalidArgException();
    if (pClassRef->m_wSchema == 0xFFFF)
        AfxThrowNotSupportedException();
    Maps & maps = MapsInUse();
    auto const known = maps.stored.find(pClassRef);
    if (known == maps.stored.end())
    {
        if (maps.count >= most_objects)
            Throw(CArchiveException::badIndex);
        *this << new_class_tag;
        pClassRef->Store(*this);
        maps.stored[pClassRef] = maps.count++;
    }
    else if (known->second < big_object_tag)
    {
        Store(static_cast<WORD>(class_tag | known->second));
    }
    else
    {
        Store(big_object_tag);
        Store(big_class_tag | known->second);
    }
}

void CArchive::WriteObject(CObject const * pOb)
{
    NeedStoring();
    Maps & maps = MapsInUse();
    if (pOb == nullptr)
    {
        Store(null_tag);
        return;
    }
    auto const known = maps.stored.find(pOb);
    if (known == maps.stored.end())
    {
        CheckDepth();
        WriteClass(pOb->GetRuntimeClass());
        MapObject(pOb);
        const_cast<CObject *>(pOb)->Serialize(*this);
    }
    else if (known->second < big_object_tag)
    {
        Store(static_cast<WORD>(known->second));
    }
    else
    {
        Store(big_object_tag);
        Store(known->second);
    }
}

CRuntimeClass * CArchive::ReadClass(CRuntimeClass const * pClassRefRequested, UINT * pSchema, DWORD * pObTag)
{
    NeedLoading();
    if (pClassRefRequested != nullptr && pClassRefRequested->m_wSchema == 0xFFFF)
        AfxThrowNotSupportedException();
    Maps & maps = MapsInUse();
    WORD tag = 0;
    *this >> tag;
    DWORD number = 0;
    if (tag == big_object_tag)
        Load(number);
    else
        number = (static_cast<DWORD>(tag & class_tag) << 16) | static_cast<DWORD>(tag & ~class_tag);
    if ((number & big_class_tag) == 0)
    {
        if (pObTag == nullptr)
            Throw(CArchiveException::badIndex);
        *pObTag = number;
        return nullptr;
    }

    CRuntimeClass * found = nullptr;
    UINT schema = 0;
    if (tag == new_class_tag)
    {
        if (maps.count >= most_objects)
            Throw(CArchiveException::badIndex);
        found = CRuntimeClass::Load(*this, &schema);
        // A class that can't be stored can't have been.
        if (found == nullptr || found->m_wSchema == 0xFFFF)
            Throw(CArchiveException::badClass);
        if ((found->m_wSchema & ~VERSIONABLE_SCHEMA) != schema)
        {
            if ((found->m_wSchema & VERSIONABLE_SCHEMA) == 0)
                Throw(CArchiveException::badSchema);
            maps.schemas[found] = schema;
        }
        maps.loaded.push_back({nullptr, found});
        ++maps.count;
    }
    else
    {
        DWORD const index = number & ~big_class_tag;
        found = index < maps.loaded.size() ? maps.loaded[index].itsClass : nullptr;
        if (found == nullptr)
            Throw(CArchiveException::badIndex);
        auto const stored = maps.schemas.find(found);
        schema = stored != maps.schemas.end() ? stored->second : found->m_wSchema & ~VERSIONABLE_SCHEMA;
    }
    if (pClassRefRequested != nullptr && !found->IsDerivedFrom(pClassRefRequested))
        Throw(CArchiveException::badClass);
    (pSchema != nullptr ? *pSchema : m_objectSchema) = schema;
    if (pObTag != nullptr)
        *pObTag = number;
    return found;
}

CObject * CArchive::ReadObject(CRuntimeClass const * pClass)
{
    UINT schema = 0;
    DWORD number = 0;
    CRuntimeClass * const found = ReadClass(pClass, &schema, &number);
    Maps & maps = MapsInUse();
    if (found == nullptr)
    {
        if (number >= maps.loaded.size() || maps.loaded[number].itsClass != nullptr)
            Throw(CArchiveException::badIndex);
        CObject * const known = maps.loaded[number].object;
        if (known != nullptr && pClass != nullptr && !known->IsKindOf(pClass))
            Throw(CArchiveException::badClass);
        return known;
    }
    CheckDepth();
    CObject * const created = found->CreateObject();
    if (created == nullptr)
        Throw(CArchiveException::badClass);
    MapObject(created);
    UINT const former = std::exchange(m_objectSchema, schema);
    created->Serialize(*this);
    m_objectSchema = former;
    return created;
}

void CArchive::SerializeClass(CRuntimeClass const * pClassRef)
{
    if (IsStoring())
        WriteClass(pClassRef);
    else
        ReadClass(pClassRef);
}

void CRuntimeClass::Store(CArchive & ar) const
{
    size_t const length = std::strlen(m_lpszClassName);
    if (length > longest_class_name)
        AfxThrowNotSupportedException();
    ar << static_cast<WORD>(m_wSchema) << static_cast<WORD>(length);
    ar.Write(m_lpszClassName, static_cast<UINT>(length));
}

CRuntimeClass * PASCAL CRuntimeClass::Load(CArchive & ar, UINT * pwSchemaNum)
{
    WORD schema = 0;
    WORD length = 0;
    ar >> schema >> length;
    *pwSchemaNum = schema;
    char name[longest_class_name + 1] = {};
    if (length > longest_class_name)
        return nullptr;
    framework::ReadBytes(ar, name, length);
    return FromName(name);
}

CArchive & AFXAPI operator<<(CArchive & ar, CObject const * pOb)
{
    ar.WriteObject(pOb);
    return ar;
}

CArchive & AFXAPI operator>>(CArchive & ar, CObject *& pOb)
{
    pOb = ar.ReadObject(nullptr);
    return ar;
}

CArchive & AFXAPI operator>>(CArchive & ar, CObject const *& pOb)
{
    pOb = ar.ReadObject(nullptr);
    return ar;
}

// Values of the framework

CArchive & AFXAPI operator<<(CArchive & ar, SIZE size)
{
    return ar << size.cx << size.cy;
}

CArchive & AFXAPI operator>>(CArchive & ar, SIZE & size)
{
    return ar >> size.cx >> size.cy;
}

CArchive & AFXAPI operator<<(CArchive & ar, POINT point)
{
    return ar << point.x << point.y;
}

CArchive & AFXAPI operator>>(CArchive & ar, POINT & point)
{
    return ar >> point.x >> point.y;
}

CArchive & AFXAPI operator<<(CArchive & ar, RECT const & rect)
{
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}

CArchive & AFXAPI operator>>(CArchive & ar, RECT & rect)
{
    return ar >> rect.left >> rect.top >> rect.right >> rect.bottom;
}

CArchive & AFXAPI operator<<(CArchive & ar, ATL::CTime time)
{
    return time.Serialize64(ar);
}

CArchive & AFXAPI operator>>(CArchive & ar, ATL::CTime & rtime)
{
    return rtime.Serialize64(ar);
}

CArchive & AFXAPI operator<<(CArchive & ar, ATL::CTimeSpan timeSpan)
{
    return timeSpan.Serialize64(ar);
}

CArchive & AFXAPI operator>>(CArchive & ar, ATL::CTimeSpan & rtimeSpan)
{
    return rtimeSpan.Serialize64(ar);
}

namespace ATL
{
CArchive & CTime::Serialize64(CArchive & ar)
{
    LONGLONG seconds = m_time;
    if (ar.IsStoring())
        return ar << seconds;
    ar >> seconds;
    m_time = seconds;
    return ar;
}

CArchive & CTimeSpan::Serialize64(CArchive & ar)
{
    LONGLONG seconds = m_seconds;
    if (ar.IsStoring())
        return ar << seconds;
    ar >> seconds;
    m_seconds = seconds;
    return ar;
}
} // namespace ATL
