// The file readers and writers of QORParser.dll, imported as C++ classes.
#pragma once

#include "neighbours/qormodel.h"

#ifdef QORPARSER_IMPLEMENTATION
#define QORPARSER_API __declspec(dllexport)
#else
#define QORPARSER_API __declspec(dllimport)
#endif

// The results of the operations below: 1 for success; 0 when the file is missing, can't be opened or
// isn't what is expected; a failing HRESULT (negative) when an operation of the model failed.
// COM must be initialised on the calling thread.

/// Reads a model configuration file (ModelConfig.Xml).
class CQORXmlConfigParser {
public:
    QORPARSER_API CQORXmlConfigParser();
    QORPARSER_API ~CQORXmlConfigParser();
    CQORXmlConfigParser(const CQORXmlConfigParser&) = delete;
    CQORXmlConfigParser& operator=(const CQORXmlConfigParser&) = delete;

    /// Puts the file's model into spModel, which is null unless the result is 1.
    QORPARSER_API int parseDataFile(const wchar_t* pszFile, QORMODEL::IQORConfigModelPtr& spModel);
};

/// Reads and writes a data file (DocSignRecord.xml).
class CQORXmlDataParser {
public:
    QORPARSER_API CQORXmlDataParser();
    QORPARSER_API ~CQORXmlDataParser();
    CQORXmlDataParser(const CQORXmlDataParser&) = delete;
    CQORXmlDataParser& operator=(const CQORXmlDataParser&) = delete;

    /// Appends the file's entries to the model. With the result 0 the model is unchanged, with a
    /// failing HRESULT it may hold a part of them. pReserved is always null.
    QORPARSER_API int parseDataFile(const wchar_t* pszFile, QORMODEL::IQORDataModel* pModel, void* pReserved);
    /// Writes all entries of the model, replacing the file as a whole: after a failure the old file is
    /// there unchanged.
    QORPARSER_API int saveToFile(QORMODEL::IQORDataModel* pModel, const wchar_t* pszFile);
};
