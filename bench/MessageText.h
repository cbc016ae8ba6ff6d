// Start-sign messages of any size for measuring.
#pragma once

#include <string>

namespace bench {

/// A message of `documents` documents with `properties` properties each, of which the first, "FNAME", is
/// <prefix><number>.dwg.
std::wstring MessageText(const wchar_t* prefix, int documents, int properties);

} // namespace bench
