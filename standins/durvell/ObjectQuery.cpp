// Selection of objects from an object file.
#include "standins/durvell/ObjectQuery.h"

#include "base/ComApartment.h"
#include "standins/common/Text.h"
#include "standins/durvell/SearchFilter.h"
#include "standins/durvell/TemporaryFile.h"
#include "standins/durvell/Xml.h"

using namespace standins;

namespace durvell {

using InstructionPtr = _com_ptr_t<_com_IIID<IXMLDOMProcessingInstruction, &IID_IXMLDOMProcessingInstruction>>;

static XmlElementPtr AddElement(const XmlDocumentPtr& document, IXMLDOMNode* parent, const wchar_t* name) {
    XmlElementPtr element;
    XmlNodePtr added;
    if (SUCCEEDED(document->createElement(_bstr_t(name), &element))) parent->appendChild(element, &added);
    return added ? element : XmlElementPtr();
}

static bool AddCopy(const XmlElementPtr& parent, IXMLDOMNode* object) {
    XmlNodePtr copy, added;
    return SUCCEEDED(object->cloneNode(VARIANT_TRUE, &copy)) && SUCCEEDED(parent->appendChild(copy, &added));
}

// An empty result document; its type element, which takes the objects, is handed out.
static XmlDocumentPtr NewResult(const std::wstring& objectType, XmlElementPtr& type) {
    const XmlDocumentPtr document = NewXmlDocument();
    InstructionPtr declaration;
    XmlNodePtr added;
    if (SUCCEEDED(document->createProcessingInstruction(
            _bstr_t(L"xml"), _bstr_t(L"version=\"1.0\" encoding=\"UTF-8\""), &declaration)))
        document->appendChild(declaration, &added);
    const XmlElementPtr root = AddElement(document, document, L"root");
    const XmlElementPtr objs = root ? AddElement(document, root, L"objs") : nullptr;
    type = objs ? AddElement(document, objs, L"type") : nullptr;
    if (!type || FAILED(type->setAttribute(_bstr_t(L"id"), _variant_t(objectType.c_str())))) return nullptr;
    return document;
}

Result QueryObjects(const std::wstring& objectFile, const std::wstring& objectType,
                    const std::wstring& filterXml, const std::wstring& resultFile) {
    const base::ComApartment apartment;
    SearchFilter filter;
    if (!filter.Parse(filterXml)) return ResultBadFilter;
    const XmlDocumentPtr objects = LoadXmlFile(objectFile);
    if (!objects) return ResultBadObjectFile;

    XmlElementPtr type;
    const XmlDocumentPtr result = NewResult(objectType, type);
    if (!result) return ResultInternal;
    for (const XmlNodePtr& object : Select(objects, L"/root/objs/type/obj")) {
        if (filter.Matches(object) && !AddCopy(type, object)) return ResultInternal;
    }
    TemporaryFile temporary(ParentFolder(resultFile));
    const bool placed = temporary.FillFrom(result) && temporary.MoveTo(resultFile, MOVEFILE_REPLACE_EXISTING);
    return placed ? ResultOk : ResultFileError;
}

} // namespace durvell
