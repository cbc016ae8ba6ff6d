// A dialog template from a module's resources, in memory and ready for the system.
#pragma once

#include <afx.h>

#include <vector>

class CDialogTemplate {
public:
    // The place of an ActiveX control.
    struct OleControl {
        int nID;
        CString strClass; // class identifier in braces
    };

    // Loads the template and turns each control whose window class is a class identifier into an empty
    // host window with the same id, place and style; those that the dialog's initialisation resource doesn't
    // list are left out. False when there is no such template.
    bool Load(LPCTSTR lpszTemplateName);

    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }
    const std::vector<OleControl>& OleControls() const { return m_oleControls; }
    // Whether the template leaves it to the framework where the dialog opens.
    bool HasFreePlace() const { return m_bFreePlace; }

private:
    void ReadInitEntries(LPCTSTR lpszTemplateName);
    bool IsListed(int nID) const;
    void ReadHeader();
    void ReadItem();
    void Copy(size_t nWords);
    void CopyText();
    void CopyTextOrOrdinal();
    void Align();
    DWORD ReadDword(size_t nOffset) const;

    const WORD* m_pSource = nullptr; // next word to be read; only while loading
    const WORD* m_pSourceStart = nullptr;
    std::vector<WORD> m_words;
    std::vector<OleControl> m_oleControls;
    bool m_bExtended = false;
    bool m_bFreePlace = false;
    WORD m_nItems = 0;
    size_t m_nItemCountAt = 0;  // where the copy holds its number of items
    std::vector<WORD> m_listed; // ids in the initialisation resource
};
