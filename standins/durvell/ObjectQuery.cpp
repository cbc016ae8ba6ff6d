// Selection of objects from an object file.
#include "standins/durvell/ObjectQuery.h"

#include "standins/common/Owned.h"
#include "standins/durvell/SearchFilter.h"
#include "standins/durvell/Xml.h"

namespace durvell {

static IXMLDOMElementPtr AddElement(const IXMLDOMDocument2Ptr& document, IXMLDOMNode* parent,
                                    const wchar_t* name) {
    IXMLDOMElementPtr element;
    IXMLDOMNodePtr added;
    if (SUCCEEDED(document->createElement(_bstr_t(name), &element))) parent->appendChild(element, &added);
    return added ? element : IXMLDOMElementPtr();
}

static bool AddCopy(const IXMLDOMElementPtr& parent, IXMLDOMNode* object) {
    IXMLDOMNodePtr copy, added;
    return SUCCEEDED(object->cloneNode(VARIANT_TRUE, &copy)) && SUCCEEDED(parent->appendChild(copy, &added));
}

// An empty result document; its type element, which takes the objects, is handed out.
static IXMLDOMDocument2Ptr NewResult(const std::wstring& objectType, IXMLDOMElementPtr& type) {
    const IXMLDOMDocument2Ptr document = NewDocument();
    if (!document) return nullptr;
    InstructionPtr declaration;
    IXMLDOMNodePtr added;
    if (SUCCEEDED(document->createProcessingInstruction(
            _bstr_t(L"xml"), _bstr_t(L"version=\"1.0\" encoding=\"UTF-8\""), &declaration)))
        document->appendChild(declaration, &added);
    const IXMLDOMElementPtr root = AddElement(document, document, L"root");
    const IXMLDOMElementPtr objs = root ? AddElement(document, root, L"objs") : nullptr;
    type = objs ? AddElement(document, objs, L"type") : nullptr;
    if (!type || FAILED(type->setAttribute(_bstr_t(L"id"), _variant_t(objectType.c_str())))) return nullptr;
    return document;
}

Result QueryObjects(const std::wstring& objectFile, const std::wstring& objectType,
                    const std::wstring& filterXml, const std::wstring& resultFile) {
    const standins::ComApartment apartment;
    SearchFilter filter;
    if (!filter.Parse(filterXml)) return ResultBadFilter;
    const IXMLDOMDocument2Ptr objects = LoadXmlFile(objectFile);
    if (!objects) return ResultBadObjectFile;

    IXMLDOMElementPtr type;
    const IXMLDOMDocument2Ptr result = NewResult(objectType, type);
    if (!result) return ResultInternal;
    const IXMLDOMNodeListPtr list = Select(objects, L"/root/objs/type/obj");
    const long count = CountOf(list);
    for (long i = 0; i < count; ++i) {
        const IXMLDOMNodePtr object = ItemAt(list, i);
        if (filter.Matches(object) && !AddCopy(type, object)) return ResultInternal;
    }
    return SUCCEEDED(result->save(_variant_t(resultFile.c_str()))) ? ResultOk : ResultFileError;
}

} // namespace durvell
