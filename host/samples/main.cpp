// varnoke-samples.exe: makes a server folder, messages and settings to try the reference host with.
#include <afxwin.h>

#include "base/TextEncoding.h"
#include "base/WholeFile.h"
#include "host/Console.h"
#include "host/Paths.h"
#include "host/samples/DrawingFile.h"
#include "host/samples/Picture.h"
#include "host/samples/SampleData.h"

using host::JoinPath;

namespace samples {

namespace {

/// Writes a server file, with the folders that its name asks for.
bool WriteServerFile(const CString& files, CString remoteName, const std::string& bytes) {
    remoteName.Replace(L'/', L'\\');
    for (int slash = remoteName.Find(L'\\'); slash >= 0; slash = remoteName.Find(L'\\', slash + 1)) {
        if (!host::EnsureFolder(JoinPath(files, remoteName.Left(slash)))) return false;
    }
    return base::WriteWholeFile(JoinPath(files, remoteName), bytes);
}

bool WriteDrawings(const CString& files) {
    int variant = 0;
    for (const SampleDocument& document : SampleDocuments()) {
        const std::string picture = DrawSheet(document.title, document.id, variant++);
        if (!WriteServerFile(files, document.remoteName, MakeDrawing(document.fileVersion, picture))) {
            return false;
        }
    }
    for (const SampleUser& user : SampleUsers()) {
        const std::string picture = DrawSignature(user.person);
        if (!WriteServerFile(files, user.signature, MakeDrawing("AC1015", picture))) return false;
    }
    return true;
}

bool WriteVault(const CString& vault) {
    const CString files = JoinPath(vault, L"files");
    const CString objects = JoinPath(vault, L"objects");
    return host::EnsureFolder(vault) && host::EnsureFolder(files) && host::EnsureFolder(objects) &&
           WriteDrawings(files) &&
           base::WriteWholeFile(JoinPath(objects, L"USER.xml"), base::ToUtf8(UserObjects())) &&
           base::WriteWholeFile(JoinPath(vault, L"session.ini"),
                                base::ToUtf16File(SessionSettings().GetString()));
}

bool WriteSamples(const CString& folder) {
    return host::EnsureFolder(folder) && WriteVault(JoinPath(folder, L"vault")) &&
           host::EnsureFolder(JoinPath(folder, L"work")) &&
           base::WriteWholeFile(JoinPath(folder, L"message.xml"), base::ToUtf8(StartMessage())) &&
           base::WriteWholeFile(JoinPath(folder, L"message-append.xml"), base::ToUtf8(FurtherMessage())) &&
           base::WriteWholeFile(JoinPath(folder, L"Varnoke.ini"),
                                base::ToUtf16File(LibrarySettings().GetString()));
}

} // namespace

} // namespace samples

int wmain(int argc, wchar_t** argv) {
    if (argc != 2) {
        host::PrintError(L"usage: varnoke-samples.exe OUTDIR");
        return 2;
    }
    const CString folder = host::FullPath(argv[1]);
    if (!samples::WriteSamples(folder)) {
        host::PrintError(CString(L"the samples could not be written to ") + folder);
        return 1;
    }
    host::PrintLine(folder);
    return 0;
}
