// Start-sign messages of any size for measuring.
#include "bench/MessageText.h"

namespace bench {

namespace {

std::wstring Property(const std::wstring& name, const std::wstring& value) {
    return L"<pro name=\"" + name + L"\" value=\"" + value + L"\"/>";
}

} // namespace

std::wstring MessageText(const wchar_t* prefix, int documents, int properties) {
    std::wstring text = L"<?xml version=\"1.0\"?><root><objs><type id=\"LoginInfo\"><obj>" +
                        Property(L"UserName", L"wang") + Property(L"Password", L"secret") +
                        Property(L"PLMServer", L"plm.example") + L"</obj></type><type id=\"step\"><obj>" +
                        Property(L"STEPNAME", L"审核") + L"</obj></type><type id=\"DOC\">";
    for (int document = 0; document < documents; ++document) {
        const std::wstring number = std::to_wstring(document);
        text += L"<obj>" + Property(L"FNAME", prefix + number + L".dwg");
        for (int property = 1; property < properties; ++property) {
            text += Property(L"PROPERTY" + std::to_wstring(property), L"value of document " + number);
        }
        text += L"</obj>";
    }
    return text + L"</type></objs></root>";
}

} // namespace bench
