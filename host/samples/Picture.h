// Preview pictures of the sample drawings: bitmaps without their file headers.
#pragma once

#include <afxwin.h>

#include <string>

namespace samples {

/// A drawing sheet: frame, part, title block with the drawing's name and number. `variant` chooses the part.
std::string DrawSheet(const CString& name, const CString& number, int variant);

/// A person's signature in a seal frame.
std::string DrawSignature(const CString& person);

} // namespace samples
