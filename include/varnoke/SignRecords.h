// Records that cross the exported interface. The host reads them field by field, so the order of the fields
// is part of the interface.
#pragma once

#include <afxwin.h>
#include <afxtempl.h>

#include "varnoke/Export.h"

/// The PLM login carried by a start-sign message. Texts are empty when unset.
struct SLoginInfo {
    CString m_strUserName;
    CString m_strPassword;
    CString m_strPLMServer;
};

/// One property of a PLM object.
struct SSignPro {
    CString m_strName;
    CString m_strValue;
};

/// One PLM object: the list of its properties, in message order.
struct SSignObj : CList<SSignPro*, SSignPro*> {};

/// A sign step type or a sign file type: its objects in message order.
struct SSignType {
    CList<SSignObj*, SSignObj*> m_lstObj;
    CString m_strId; ///< identifier of a sign file type; empty for the list of sign steps
};

/// One file to transfer.
struct SSignFileDULItem {
    CString m_strRemoteName; ///< the server's identification of the file
    CString m_strLocalName;  ///< relative to the folder of the list
    long m_nState = 0;       ///< 1 after success, 2 after a failed download, untouched when skipped
};

/// Files to download or to upload.
struct SSignFileDUL {
    CString m_strFolder; ///< local folder of the documents, with or without a trailing backslash
    CList<SSignFileDULItem*, SSignFileDULItem*> m_lstItem;
};

/// The parameters of one signature. Numbers are 0 and texts empty where nothing else is given.
struct SSignInfo {
    CString m_strFirstText;  ///< first text of the signature, filled by the host
    CString m_strSecondText; ///< second text of the signature, filled by the host
    CString m_strUserName;   ///< the signer
    CString m_strRole;       ///< in which the signer signs
    CString m_strSealName;

    /// Placement of the signature, filled by the host. The server receives A, B - D, E, F - H, C, D, G, H.
    double m_dA = 0;
    double m_dB = 0;
    double m_dC = 0;
    double m_dD = 0;
    double m_dE = 0;
    double m_dF = 0;
    double m_dG = 0;
    double m_dH = 0;

    long m_nSealIndex = 0; ///< which of the signer's seals, from the settings
    CString m_strPin;      ///< of the seal, from the settings

    CString m_strDateText; ///< the date as the server prints it
    double m_dDateOffsetX = 0;
    double m_dDateOffsetY = 0;
    double m_dDateFontSize = 1;
    long m_nDateTextColor = 200; ///< red in the low byte, then green, then blue
    CString m_strDateFontName;
    long m_nReserved1 = 0;

    /// What the user chose in the sign dialog.
    CString m_strDlgDateText;
    CString m_strDlgDateFormat;
    CString m_strDlgDateLocation;
    CString m_strDlgDateFontSize;  ///< decimal
    CString m_strDlgDateTextColor; ///< colour value, decimal
    long m_nScope = 0;             ///< 1 current document, 2 opened documents, 3 all documents
    double m_adReserved2[4] = {};

    long m_nLocationStyle = 0; ///< of the seal
    double m_dLocationXCheck = 0;
    double m_dLocationYCheck = 0;
    double m_adReserved3[4] = {};

    long m_nDateLocationStyle = 0;
    double m_dDateLocationXCheck = 0;
    double m_dDateLocationYCheck = 0;

    CString m_strTempDrawing; ///< full path of the temporary drawing file
    CString m_strReserved4;
};

/// Release of the records that the library hands out. Each gives 1 for a released record, 0 for a null
/// pointer or when releasing failed. A record must be released once; its elements and texts go with it. Null
/// elements of a list are skipped. Call on the host's user-interface thread.
extern "C" {
VARNOKE_API long Cmn_ReleaseLoginInfo(SLoginInfo* record);
VARNOKE_API long Cmn_ReleaseSignType(SSignType* record);
VARNOKE_API long Cmn_ReleaseSignFileDUL(SSignFileDUL* record);
VARNOKE_API long Cmn_ReleaseSignInfo(SSignInfo* record);
}
