// Reader and writer of the settings file Varnoke.ini.
#pragma once

#include <afxwin.h>

#include "varnoke/Export.h"

/// Settings of the library. Nothing is cached: every getter reads the file anew and every setter writes at
/// once. Until Initialize has been called, getters give their defaults, setters give 0 and no file is
/// touched. Getters never fail: a missing or unusable value gives the default. Setters give 1 when the value
/// was written, else 0. Texts are trimmed and at most 1022 characters long. Use on one thread.
///
/// A field of exported classes; hosts see it for its size only: its members are not exported.
class CINIConfig : public CObject {
public:
    CINIConfig() = default;
    ~CINIConfig() override;

    /// Finds the settings file. `parent` is kept but not owned. Returns 1, or 0 when there is no path.
    long Initialize(CWnd* parent);
    /// Forgets the path and the parent; returns 1.
    long Uninitialize();

    CString GetServerIP() const;
    CString GetServerPort() const;
    /// The user name on the signing server of a PLM user; the user itself when none is set.
    CString GetSignServer(const CString& plmUser) const;
    /// ProgID of the signing automation server.
    CString GetProgID() const;
    /// The name that the installation gives a method of the signing server; by default the method itself.
    CString GetDynDisp(const CString& method) const;

    CString GetDesignDoMain() const;
    CString GetLocalObjectConfigId() const;
    CString GetServerObjectConfigId() const;

    /// Which of the signer's seals; any number, 0 when none is set.
    long GetIndex() const;
    CString GetPin() const;
    /// Reserved.
    long GetDelPre() const;

    /// Contains "YYYY", "MM" or "M", and "DD" or "D"; what is stored is not checked. An empty style is
    /// stored as the default.
    CString GetDateStyle() const;
    long SetDateStyle(const CString& value);
    /// One of 左上 左中 左下 中上 中中 中下 右上 右中 右下; what is stored is not checked.
    CString GetDateLocation() const;
    long SetDateLocation(const CString& value);
    /// At least 1; what is less counts, and is stored, as the default.
    long GetDateFontSize() const;
    long SetDateFontSize(long value);
    /// The colour that the dialogs show; white when none is set. Red in the low byte, then green, then blue;
    /// a negative one counts, and is stored, as white.
    long GetDateTextColor() const;
    /// The colour that a signature is placed with; 255 when none is set, 200 when reading failed.
    long GetSignDateTextColor() const;
    long SetDateTextColor(long value);
    double GetDateOffsetX() const;
    double GetDateOffsetY() const;
    CString GetDateFontName() const;

    /// 1 current document, 2 opened documents, 3 all documents; another number counts, and is stored, as 1.
    long GetScope() const;
    long SetScope(long value);

    /// Any number; how it is read is the signing server's matter.
    long GetLocationStyle() const;
    double GetLocationXCheck() const;
    double GetLocationYCheck() const;
    long GetDateLocationStyle() const;
    double GetDateLocationXCheck() const;
    double GetDateLocationYCheck() const;

private:
    friend struct varnoke::InterfaceLayout;
    CINIConfig(const CINIConfig&) = delete;
    CINIConfig& operator=(const CINIConfig&) = delete;

    CString m_path;
    CWnd* m_parentWnd = nullptr; // weak
};
