// Records that cross the exported interface. The host reads them field by field, so the order of the fields
// is part of the interface. Texts are empty and numbers 0 after construction where nothing else is given.
#pragma once

#include <afxwin.h>
#include <afxtempl.h>

#include "varnoke/Export.h"

/// The PLM login carried by a start-sign message.
struct SLoginInfo {
    CString m_strUserName;
    CString m_strPassword; ///< in plain text
    CString m_strPLMServer;
};

/// One property of a PLM object.
struct SSignPro {
    CString m_strName;
    CString m_strValue;
};

/// One PLM object: the list of its properties, in message order, which belong to it.
struct SSignObj : CList<SSignPro*, SSignPro*> {};

/// A sign step type or a sign file type: its objects in message order, which belong to it.
struct SSignType {
    CList<SSignObj*, SSignObj*> m_lstObj;
    CString m_strId; ///< identifier of a sign file type; empty for the list of sign steps
};

/// One file to transfer. The host fills the names; one without both names is skipped.
struct SSignFileDULItem {
    CString m_strRemoteName; ///< the server's identification of the file
    CString m_strLocalName;  ///< relative to the folder of the list
    /// Written by the transfers: 1 after success, 2 after a failure in a dialog's run; else untouched.
    long m_nState = 0;
};

/// Files to download or to upload; a list of the host's, whose items belong to it.
struct SSignFileDUL {
    CString m_strFolder; ///< local folder of the documents, with or without a trailing backslash
    CList<SSignFileDULItem*, SSignFileDULItem*> m_lstItem;
};

/// The parameters of one signature. CSignOpt::Sign passes the server the two sign texts, date text, user
/// name, role and the placement; the rest tells the host what was chosen.
struct SSignInfo {
    CString m_strFirstText;  ///< first text of the signature, filled by the host; it also finds it again
    CString m_strSecondText; ///< second text of the signature, filled by the host
    CString m_strUserName;   ///< the signer
    CString m_strRole;       ///< in which the signer signs
    CString m_strSealName;

    /// Placement of the signature in the drawing's coordinates, filled by the host: the letters A to H of a
    /// position. The server receives A, B - D, E, F - H, C, D, G, H, as for two rectangles with their upper
    /// left corners at (A, B) and (E, F), of width C and G and height D and H.
    double m_dA = 0;
    double m_dB = 0;
    double m_dC = 0;
    double m_dD = 0;
    double m_dE = 0;
    double m_dF = 0;
    double m_dG = 0;
    double m_dH = 0;

    long m_nSealIndex = 0; ///< which of the signer's seals: the setting as it stands, any number
    CString m_strPin;      ///< of the seal, from the settings, in plain text

    CString m_strDateText;     ///< the date as the server prints it
    double m_dDateOffsetX = 0; ///< in the drawing's units, as stored in the settings; any finite number
    double m_dDateOffsetY = 0;
    double m_dDateFontSize = 1;  ///< from the settings, at least 1
    long m_nDateTextColor = 200; ///< red in the low byte, then green, then blue
    CString m_strDateFontName;
    long m_nReserved1 = 0;

    /// What the user chose in the sign dialog; all empty or 0 when there was none.
    CString m_strDlgDateText;
    CString m_strDlgDateFormat;    ///< the date style, such as "YYYY-MM-DD"
    CString m_strDlgDateLocation;  ///< 左上 左中 左下 中上 中中 中下 右上 右中 右下
    CString m_strDlgDateFontSize;  ///< decimal
    CString m_strDlgDateTextColor; ///< colour value, decimal
    long m_nScope = 0;             ///< 1 current document, 2 opened documents, 3 all documents
    double m_adReserved2[4] = {};

    /// Where the seal goes: the settings as they stand; what a style's number means is agreed on between
    /// whoever writes the settings and the host.
    long m_nLocationStyle = 0;
    double m_dLocationXCheck = 0;
    double m_dLocationYCheck = 0;
    double m_adReserved3[4] = {};

    /// The same for the date.
    long m_nDateLocationStyle = 0;
    double m_dDateLocationXCheck = 0;
    double m_dDateLocationYCheck = 0;

    CString m_strTempDrawing; ///< full path of the temporary drawing file that showed the seal
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
