// Reading and writing of data files.
#include "standins/qorparser/DataFile.h"

namespace qorparser {
namespace {

using namespace QORMODEL;
using _com_util::CheckError;

_bstr_t ToBstr(std::wstring_view text) {
    return _bstr_t(std::wstring(text).c_str());
}

// Whether the element has the name and these attributes, and neither other attributes nor text.
bool IsElement(const XmlElement& element, std::wstring_view name,
               std::initializer_list<std::wstring_view> attributes) {
    if (element.name != name || element.hasText || element.attributes.size() != attributes.size())
        return false;
    for (const std::wstring_view attribute : attributes)
        if (!element.Attribute(attribute)) return false;
    return true;
}

bool IsProperty(const XmlElement& element) {
    return IsElement(element, L"pro", {L"name", L"value"}) && !element.Value(L"name").empty() &&
           element.children.empty();
}

// Whether the element's children are properties and at most `locals` local objects.
bool HasProperties(const XmlElement& element, int locals) {
    for (const XmlElement& child : element.children) {
        if (IsProperty(child)) continue;
        if (!IsElement(child, L"local", {}) || --locals < 0 || !HasProperties(child, 0)) return false;
    }
    return true;
}

bool IsEntry(const XmlElement& element) {
    return IsElement(element, L"obj", {L"type", L"state"}) && HasProperties(element, 1);
}

void ReadProperties(const XmlElement& element, IQORDataObject* object) {
    for (const XmlElement& child : element.children)
        if (child.name == L"pro")
            CheckError(object->SetProperty(ToBstr(child.Value(L"name")), ToBstr(child.Value(L"value"))));
}

void WriteProperties(std::wstring& xml, IQORDataObject* object, const wchar_t* indent) {
    long count = 0;
    CheckError(object->GetPropertyCount(&count));
    for (long index = 0; index < count; ++index) {
        _bstr_t name, value;
        CheckError(object->GetPropertyName(index, name.GetAddress()));
        CheckError(object->GetProperty(name, value.GetAddress()));
        xml.append(indent).append(L"<pro name=\"");
        AppendEscaped(xml, std::wstring_view(name, name.length()));
        xml.append(L"\" value=\"");
        AppendEscaped(xml, std::wstring_view(value, value.length()));
        xml.append(L"\"/>\r\n");
    }
}

void WriteEntry(std::wstring& xml, IQORDataEntry* entry) {
    _bstr_t type, state;
    CheckError(entry->GetType(type.GetAddress()));
    CheckError(entry->GetState(state.GetAddress()));
    IQORDataObjectPtr local;
    CheckError(entry->GetLocalObject(&local));
    xml.append(L"  <obj type=\"");
    AppendEscaped(xml, std::wstring_view(type, type.length()));
    xml.append(L"\" state=\"");
    AppendEscaped(xml, std::wstring_view(state, state.length()));
    xml.append(L"\">\r\n");
    WriteProperties(xml, entry, L"    ");
    xml.append(L"    <local>\r\n");
    WriteProperties(xml, local, L"      ");
    xml.append(L"    </local>\r\n  </obj>\r\n");
}

} // namespace

bool IsDataFile(const XmlElement& document) {
    if (!IsElement(document, L"qordata", {})) return false;
    for (const XmlElement& child : document.children)
        if (!IsEntry(child)) return false;
    return true;
}

void ReadEntries(const XmlElement& document, IQORDataModel* model) {
    for (const XmlElement& element : document.children) {
        IQORDataEntryPtr entry;
        CheckError(model->CreateEntry(ToBstr(element.Value(L"type")), &entry));
        CheckError(entry->SetState(ToBstr(element.Value(L"state"))));
        ReadProperties(element, entry);
        IQORDataObjectPtr local;
        CheckError(entry->GetLocalObject(&local));
        if (const XmlElement* properties = element.Child(L"local")) ReadProperties(*properties, local);
        CheckError(model->AddEntry(entry));
    }
}

std::wstring WriteEntries(IQORDataModel* model) {
    std::wstring xml = L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<qordata>\r\n";
    long count = 0;
    CheckError(model->GetCount(&count));
    for (long index = 0; index < count; ++index) {
        IQORDataEntryPtr entry;
        CheckError(model->GetEntry(index, &entry));
        WriteEntry(xml, entry);
    }
    return xml.append(L"</qordata>\r\n");
}

} // namespace qorparser
