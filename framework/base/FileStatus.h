#pragma once
// What is known of a file without opening it. Included by afxdlgs.h.

#if defined(_WIN32)

class CAtlTransactionManager;

/// What a file's folder knows of it.
struct CFileStatus
{
    CTime m_ctime; // made
    CTime m_mtime; // changed last
    CTime m_atime; // read last
    ULONGLONG m_size = 0;
    BYTE m_attribute = 0; // CFile::Attribute bits
    BYTE _m_padding = 0;
    TCHAR m_szFullName[MAX_PATH] = {};
};

/// Of files, what is asked without opening them. Reading and writing are not offered.
class FRAMEWORK_API CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)

public:
    enum Attribute
    {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20
    };

    /// FALSE for a file that isn't there, and for a path that is too long. Transactions are not supported.
    static BOOL PASCAL GetStatus(LPCTSTR lpszFileName, CFileStatus & rStatus, CAtlTransactionManager * pTM = nullptr);
};

#endif
