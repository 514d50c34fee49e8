// CWinApp: the printer.

#include <afxdlgs.h>
#include <winspool.h>

#include "detail/AppDocuments.h"
#include "detail/FrameSupport.h"
#include "detail/PrintSupport.h"

namespace
{
framework::AppDocuments * Documents()
{
    CWinApp * const app = AfxGetApp();
    return app != nullptr ? framework::DocumentsAccess::Get(*app) : nullptr;
}
} // namespace

bool framework::HasPrinter()
{
    DWORD size = 0;
    DWORD count = 0;
    ::EnumPrinters(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 4, nullptr, 0, &size, &count);
    return size != 0;
}

HDC framework::CommandLinePrinter()
{
    AppDocuments const * const documents = ::Documents();
    CCommandLineInfo const * const command = documents != nullptr ? documents->m_printCommand : nullptr;
    if (command == nullptr || command->m_nShellCommand != CCommandLineInfo::FilePrintTo)
        return nullptr;
    return ::CreateDC(command->m_strDriverName, command->m_strPrinterName,
                      command->m_strPortName.IsEmpty() ? nullptr : command->m_strPortName.GetString(), nullptr);
}

UINT framework::PreviewPages()
{
    AppDocuments const * const documents = ::Documents();
    return documents != nullptr ? documents->m_previewPages : 0;
}

void framework::KeepPreviewPages(UINT count)
{
    if (AppDocuments * const documents = ::Documents())
        documents->m_previewPages = count;
}

BOOL CWinApp::GetPrinterDeviceDefaults(struct tagPDW * pPrintDlg)
{
    framework::AppDocuments & documents = Documents();
    if (documents.m_deviceNames == nullptr)
    {
        if (!framework::HasPrinter())
            return FALSE;
        CPrintDialog dialog(TRUE);
        dialog.m_pd.Flags |= PD_NOWARNING;
        if (!dialog.GetDefaults())
            return FALSE;
        documents.m_deviceNames = dialog.m_pd.hDevNames;
        documents.m_deviceMode = dialog.m_pd.hDevMode;
    }
    pPrintDlg->hDevNames = documents.m_deviceNames;
    pPrintDlg->hDevMode = documents.m_deviceMode;
    return documents.m_deviceNames != nullptr;
}

void CWinApp::SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld)
{
    framework::AppDocuments & documents = Documents();
    if (documents.m_deviceNames != hDevNames)
    {
        if (bFreeOld && documents.m_deviceNames != nullptr)
            ::GlobalFree(documents.m_deviceNames);
        documents.m_deviceNames = hDevNames;
    }
    if (documents.m_deviceMode != hDevMode)
    {
        if (bFreeOld && documents.m_deviceMode != nullptr)
            ::GlobalFree(documents.m_deviceMode);
        documents.m_deviceMode = hDevMode;
    }
}

BOOL CWinApp::CreatePrinterDC(CDC & dc)
{
    CPrintDialog dialog(FALSE);
    return GetPrinterDeviceDefaults(&dialog.m_pd) && dc.Attach(dialog.CreatePrinterDC());
}

void CWinApp::OnFilePrintSetup()
{
    CPrintDialog dialog(TRUE);
    GetPrinterDeviceDefaults(&dialog.m_pd);
    dialog.m_pd.Flags |= PD_NOWARNING;
    bool const printer = framework::HasPrinter();
    if (printer && dialog.DoModal() == IDOK)
        SelectPrinter(dialog.m_pd.hDevNames, dialog.m_pd.hDevMode, FALSE);
    else if (!printer || ::CommDlgExtendedError() != 0)
        AfxMessageBox(framework::MessageText(AFX_IDP_FAILED_TO_START_PRINT));
}
