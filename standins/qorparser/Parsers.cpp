// The exported parser classes.
#include "neighbours/qorparser.h"

#include "base/WholeFile.h"
#include "standins/qorparser/ConfigModel.h"
#include "standins/qorparser/DataFile.h"

using namespace qorparser;

namespace {

// The result of an operation: what the body returns, or the failure of the model or of the system.
template <class Body>
int ParserResult(Body body) {
    try {
        return body() ? 1 : 0;
    } catch (const _com_error& error) {
        return error.Error();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

} // namespace

CQORXmlConfigParser::CQORXmlConfigParser() = default;
CQORXmlConfigParser::~CQORXmlConfigParser() = default;

int CQORXmlConfigParser::parseDataFile(const wchar_t* pszFile, QORMODEL::IQORConfigModelPtr& spModel) {
    spModel = nullptr;
    return ParserResult([&] {
        if (pszFile) spModel = MakeConfigModel(LoadXmlFile(pszFile));
        return spModel;
    });
}

CQORXmlDataParser::CQORXmlDataParser() = default;
CQORXmlDataParser::~CQORXmlDataParser() = default;

int CQORXmlDataParser::parseDataFile(const wchar_t* pszFile, QORMODEL::IQORDataModel* pModel, void*) {
    return ParserResult([&] {
        const auto document = pszFile && pModel ? LoadXmlFile(pszFile) : nullptr;
        if (!document || !IsDataFile(*document)) return false;
        ReadEntries(*document, pModel);
        return true;
    });
}

int CQORXmlDataParser::saveToFile(QORMODEL::IQORDataModel* pModel, const wchar_t* pszFile) {
    return ParserResult([&] {
        return pszFile && pModel && base::WriteWholeFile(pszFile, base::ToUtf8(WriteEntries(pModel)));
    });
}
