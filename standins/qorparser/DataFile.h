// Data files: the entries of a data model as XML.
#pragma once

#include <string>

#include "neighbours/qormodel.h"
#include "standins/qorparser/XmlTree.h"

namespace qorparser {

// Whether the document is a data file with no element, attribute or text in it that the model could not hold.
bool IsDataFile(const XmlElement& document);

// Appends the entries of a data file to the model. Throws _com_error when the model fails.
void ReadEntries(const XmlElement& document, QORMODEL::IQORDataModel* model);

// The model as the text of a data file. Throws _com_error when the model fails.
std::wstring WriteEntries(QORMODEL::IQORDataModel* model);

} // namespace qorparser
