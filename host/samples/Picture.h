// Preview pictures of the sample drawings.
#pragma once

#include "host/samples/Bytes.h"

namespace samples {

/// A drawing sheet: frame, part, title block with the drawing's name and number. `variant` chooses the part.
Bytes DrawSheet(const CString& name, const CString& number, int variant);

/// A person's signature in a seal frame.
Bytes DrawSignature(const CString& person);

} // namespace samples
