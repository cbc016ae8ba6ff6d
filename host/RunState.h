// What runs have done with the documents of a work folder.
#pragma once

#include <afxwin.h>

#include <vector>

#include "base/Owned.h"
#include "host/Document.h"

namespace host {

/// How far a document got. Each step is noted after it was done, Signing before the server is called: when a
/// run ends at any moment, the note tells the next one what may have happened since.
enum class Progress { None, Signing, Signed, Uploaded, Done };

/// A placed signature.
struct SignatureNote {
    CString user;
    CString role;
    CString date; ///< as printed on the drawing
};

struct DocumentState {
    CString name;
    Progress progress = Progress::None;
    CString fingerprint; ///< of the signer and of what the message says of the document
    CString stamp;       ///< of the signed local file
    SignatureNote signature;
};

/// SignData\SignRun.log: one line per step, appended at once, so that a run over n documents writes a number
/// of bytes in proportion to n. A line that a crash cut off doesn't count. Open() writes the file anew with
/// the last line of each document.
class RunState {
public:
    /// `work` is the documents' folder. The lock on the folder must be held.
    explicit RunState(const CString& work);

    /// False when the file can't be written; Of() works all the same.
    bool Open();
    /// Notes nothing more.
    void Close() { m_file.reset(); }
    /// What earlier runs noted of the file name; an empty state when nothing was.
    DocumentState Of(const CString& name) const;
    /// False when the line could not be written: the step must not be taken then.
    bool Note(const DocumentState& state);
    /// The documents with notes, in the order of their names.
    const std::vector<DocumentState>& All() const { return m_states; }
    /// Reads the file only.
    void Read();

private:
    void Keep(const DocumentState& state);

    CString m_path;
    base::FileHandle m_file;             // appended to
    std::vector<DocumentState> m_states; // sorted by name
};

/// Tells the document as it is now from an earlier or later one under the same name.
CString FingerprintOf(const Document& document, const CString& signer);

/// Size and time of a file, to see later whether it has changed; empty without a file.
CString StampOf(const CString& path);

} // namespace host
