// Selection of objects from an object file.
#pragma once

#include <string>

#include "standins/durvell/ResultCodes.h"

namespace durvell {

// Copies the objects of objectFile (root/objs/type/obj/pro) that match the filter to resultFile, in their
// order and under one type element with the id objectType. No match gives a file without objects, a failure
// gives no file.
Result QueryObjects(const std::wstring& objectFile, const std::wstring& objectType,
                    const std::wstring& filterXml, const std::wstring& resultFile);

} // namespace durvell
