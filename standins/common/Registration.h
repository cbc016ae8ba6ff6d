// Entries of a COM class in the registry.
#pragma once

#include "standins/common/ComServer.h"

namespace standins {

// Writes the class, apartment threaded and served by this DLL, and its ProgID; false when a key can't be
// written.
bool RegisterServedClass(const ServedClass& served);

// Removes both; missing entries are no error.
void UnregisterServedClass(const ServedClass& served);

} // namespace standins
