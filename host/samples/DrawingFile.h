// Sample drawing files.
#pragma once

#include "host/samples/Bytes.h"

namespace samples {

/// A .dwg file of the given version ("AC1015", "AC1018") with a header and a preview section, but without
/// drawing content: enough for transfers and for viewers of previews. `dib` is a bitmap without its file
/// header.
Bytes MakeDrawing(const char* version, const Bytes& dib);

} // namespace samples
