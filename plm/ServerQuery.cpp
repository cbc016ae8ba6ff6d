// Queries of the server's objects.
#include <afxwin.h>

#include "plm/ServerQuery.h"
#include "base/WholeFile.h"
#include "module/Guarded.h"
#include "module/ModulePaths.h"
#include "plm/XmlDocument.h"
#include "neighbours/durvell.h"

namespace varnoke {

namespace {

const wchar_t kFilterHead[] = L"<?xml version=\"1.0\"?><searchfilter><archivefilter>"
                              L"<filter logiccode=\"and\" field=\"DEL\" comparetype=\"=\" value=\"0\"/>"
                              L"<filter logiccode=\"and\" field=\"NAME\" comparetype=\"=\" value=\"";
const wchar_t kFilterTail[] = L"\"/></archivefilter></searchfilter>";

/// Where the server puts its answer; there is no file yet. Where users may not write beside the library it is
/// the user's temporary folder.
CString ResultPath() {
    const wchar_t name[] = L"USER.Xml";
    CString path = JoinPath(ModuleFolder(), name);
    if (!base::WriteWholeFile(path, std::string())) path = JoinPath(TemporaryFolder(), name);
    ::DeleteFileW(path);
    return path;
}

} // namespace

CString QueryDrawingName(const CString& userName) {
    // The server takes the name as it stands, without any escaping.
    const CString filter = kFilterHead + userName + kFilterTail;
    const CString resultFile = ResultPath();
    dvl_QueryObjs(L"USER", L"", L"-1", L"0", L"", filter, L"", resultFile);
    const CString location = ReadObjectProperty(resultFile, L"LOCATION");
    ::DeleteFileW(resultFile);
    return location;
}

CString ReadObjectProperty(const CString& xmlFile, const CString& name) {
    return Guarded(CString(), [&] {
        CString value;
        if (xmlFile.IsEmpty() || name.IsEmpty()) return value;
        const base::XmlDocumentPtr document = base::LoadXmlFile(xmlFile);
        if (!document) return value;
        base::XmlElementPtr property(
            SelectNode(document, L"root/objs/type/obj/pro[@name=\"" + name + L"\"]"));
        if (property) AttributeReader(L"value").Read(property, value);
        return value;
    });
}

} // namespace varnoke
