// Small text files in a folder of the test program's own.
#pragma once
#include <afxwin.h>
#include <stdio.h>
#include <string>

namespace checks {

// Exists after the first call; without a trailing backslash.
inline CString WorkFolder() {
    wchar_t temporary[MAX_PATH];
    GetTempPathW(MAX_PATH, temporary);
    const CString folder = CString(temporary) + L"varnoke-abi";
    CreateDirectoryW(folder, nullptr);
    return folder;
}

inline void WriteText(const wchar_t* path, const char* text) {
    if (FILE* file = _wfopen(path, L"wb")) {
        fputs(text, file);
        fclose(file);
    }
}

// Empty for a missing file.
inline std::string ReadText(const wchar_t* path) {
    std::string text;
    if (FILE* file = _wfopen(path, L"rb")) {
        char block[4096];
        while (const size_t count = fread(block, 1, sizeof(block), file))
            text.append(block, count);
        fclose(file);
    }
    return text;
}

} // namespace checks
