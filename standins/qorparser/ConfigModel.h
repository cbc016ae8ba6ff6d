// The model configuration: COM objects over the elements of ModelConfig.Xml.
#pragma once

#include <memory>

#include "neighbours/qormodel.h"
#include "standins/qorparser/XmlTree.h"

namespace qorparser {

// The model of a loaded file; null when the document isn't a model configuration.
QORMODEL::IQORConfigModelPtr MakeConfigModel(const std::shared_ptr<const XmlElement>& document);

} // namespace qorparser
