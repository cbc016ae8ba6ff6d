// The return file of a back-sign run: which of the kept message's documents were signed.
#include <afxwin.h>

#include "plm/ReturnFile.h"
#include "base/Paths.h"
#include "base/WholeFile.h"
#include "module/Failure.h"
#include "plm/NoCase.h"
#include "plm/StartSignMessage.h"
#include "plm/XmlDocument.h"

namespace varnoke {

namespace {

NoCaseSet NonEmptyNames(const CStringList& names) {
    NoCaseSet set;
    for (POSITION position = names.GetHeadPosition(); position;) {
        const CString& name = names.GetNext(position);
        if (!name.IsEmpty()) set.insert(name);
    }
    return set;
}

bool RemoveNode(IXMLDOMDocument* document, const wchar_t* path) {
    const base::XmlNodePtr node = SelectNode(document, path);
    if (!node) return false;
    base::XmlNodePtr parent, removed;
    Succeeded(node->get_parentNode(&parent));
    Succeeded(parent->removeChild(node, &removed));
    return true;
}

/// Appends "SignRet" to each document of the group; false when the group or a document is incomplete.
class DocumentMarker {
public:
    DocumentMarker(IXMLDOMDocument* document, const CString& keyName, NoCaseSet signedNames)
        : m_writer(document), m_keyName(keyName), m_signedNames(std::move(signedNames)) {}

    bool MarkAll(IXMLDOMNode* group) {
        base::XmlNodePtr object = FirstChild(group);
        if (!object) return Fail(Cause::DocumentsMissing);
        for (; object; MoveToNext(object)) {
            bool isSigned = false;
            if (!LookUp(object, isSigned)) return false;
            m_writer.AppendProperty(object, L"SignRet", isSigned ? L"1" : L"0");
        }
        return true;
    }

private:
    /// Whether a key property names a signed document; properties behind that one are not looked at.
    bool LookUp(IXMLDOMNode* object, bool& isSigned) {
        base::XmlNodePtr child = FirstChild(object);
        if (!child) return Fail(Cause::ObjectEmpty);
        for (; child && !isSigned; MoveToNext(child)) {
            CString name, value;
            if (!m_reader.Read(child, name, value)) return Fail(Cause::PropertyIncomplete);
            isSigned = name.CompareNoCase(m_keyName) == 0 && m_signedNames.count(value) != 0;
        }
        return true;
    }

    ElementWriter m_writer;
    PropertyReader m_reader;
    CString m_keyName;
    NoCaseSet m_signedNames;
};

} // namespace

bool WriteReturnFile(const CStringList& signedNames, const CString& keyName, const CString& workFolder,
                     const CString& returnFile) {
    const base::XmlDocumentPtr document = LoadKeptMessage(workFolder);
    if (!document) return false;
    if (!RemoveNode(document, L"root/objs/type[@id=\"LoginInfo\"]")) return Fail(Cause::LoginMissing);
    if (!RemoveNode(document, L"root/objs/type[@id=\"step\"]")) return Fail(Cause::StepsMissing);
    const base::XmlNodePtr group = SelectNode(document, L"root/objs/type");
    if (!group) return Fail(Cause::DocumentsMissing);
    if (!DocumentMarker(document, keyName, NonEmptyNames(signedNames)).MarkAll(group)) return false;
    const CString path = returnFile.Left(returnFile.ReverseFind(L'.')) + L"_Ret.Xml";
    base::RemoveLeftFiles(base::FolderPrefix(path));
    return base::SaveXml(document, path) || FailWithLastError(Cause::ReturnFileNotWritten, path);
}

} // namespace varnoke
