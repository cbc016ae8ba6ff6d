// Sample drawing files.
#pragma once

#include <string>

namespace samples {

/// A .dwg file of the given version ("AC1015", "AC1018") with a header and a preview section, but without
/// drawing content: enough for transfers and for viewers of previews. `dib` is a bitmap without its file
/// header.
std::string MakeDrawing(const char* version, const std::string& dib);

} // namespace samples
