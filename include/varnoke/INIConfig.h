// Reader and writer of the settings file Varnoke.ini.
#pragma once

#include <afxwin.h>

/// Settings of the library. Nothing is cached: every getter reads the file anew and every setter writes at
/// once. Until Initialize has been called, getters give their defaults, setters give 0 and no file is
/// touched. Getters never fail: a missing or unusable value gives the default. Setters give 1 when the value
/// was written, else 0. Texts are trimmed and at most 1022 characters long. Use on one thread.
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
    CString GetSignServer(const CString& key) const;
    /// ProgID of the signing automation server.
    CString GetProgID() const;
    /// The name that the installation gives a method of the signing server; by default the key itself.
    CString GetDynDisp(const CString& key) const;

    CString GetDesignDoMain() const;
    CString GetLocalObjectConfigId() const;
    CString GetServerObjectConfigId() const;

    long GetIndex() const;
    CString GetPin() const;
    long GetDelPre() const;

    CString GetDateStyle() const;
    long SetDateStyle(const CString& value);
    CString GetDateLocation() const;
    long SetDateLocation(const CString& value);
    long GetDateFontSize() const;
    long SetDateFontSize(long value);
    /// The colour that the dialogs show; white when none is set.
    long GetDateTextColor() const;
    /// The colour that a signature is placed with; 255 when none is set, 200 when reading failed.
    long GetSignDateTextColor() const;
    long SetDateTextColor(long value);
    double GetDateOffsetX() const;
    double GetDateOffsetY() const;
    CString GetDateFontName() const;

    /// 1 current document, 2 opened documents, 3 all documents.
    long GetScope() const;
    long SetScope(long value);

    long GetLocationStyle() const;
    double GetLocationXCheck() const;
    double GetLocationYCheck() const;
    long GetDateLocationStyle() const;
    double GetDateLocationXCheck() const;
    double GetDateLocationYCheck() const;

private:
    CINIConfig(const CINIConfig&) = delete;
    CINIConfig& operator=(const CINIConfig&) = delete;

    CString m_path;
    CWnd* m_parentWnd = nullptr; // weak
};
