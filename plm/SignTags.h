// Sign tags: markers that are kept for each document in INI files beside the documents.
#pragma once

#include <afxwin.h>

#include "varnoke/SignRecords.h"

namespace varnoke {

/// The kinds of tag; each names its file, <kind>.ini in SignData, and the section in it.
extern const wchar_t kSignTag[];
extern const wchar_t kSignLogTag[];

/// Folder and file name must be non-empty; the functions give false for empty or null ones.
bool SetTag(const wchar_t* kind, const wchar_t* folder, const wchar_t* fileName, long value);
/// 0 for a document that was never tagged.
bool GetTag(const wchar_t* kind, const wchar_t* folder, const wchar_t* fileName, long* value);

/// Records the document's modification time; false when it can't be read or written.
bool SetTimeTag(const wchar_t* folder, const wchar_t* fileName);
/// True, with *changed 1, only when the document's modification time is not the recorded one.
bool HasChanged(const wchar_t* folder, const wchar_t* fileName, long* changed);
/// The document's modification time, local, as "YYYY-MM-DD_hh:mm:ss"; the buffer holds 1024 characters.
bool CopyModificationTime(const wchar_t* folder, const wchar_t* fileName, wchar_t* buffer);

/// Whether a list can be transferred and tagged: it has items and a folder.
bool HasDocuments(const SSignFileDUL* list);

/// Sets the sign tags, and the sign-log tags if wanted, of a list to 0; false for a list without documents.
bool ResetTags(const SSignFileDUL* list, bool withLog);
/// Records the modification times of a list, likewise; documents whose time can't be read are left out.
bool RecordTimes(const SSignFileDUL* list);

} // namespace varnoke
