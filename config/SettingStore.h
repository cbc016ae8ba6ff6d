// Storing of a value in the settings file.
#pragma once

#include "base/Text.h"

namespace varnoke {

/// Puts the value into the file, through a copy of it that then takes its place: whatever happens, the file
/// is the old one or the new one. A missing file is made in UTF-16; one that would lose text, or that the
/// profile functions would misread, becomes UTF-16. Only a file in a folder that can't be written to is
/// changed in place. False when the file is read-only, when the disk is full and on any other failure; then
/// the old file stays. Processes take turns.
bool StoreSetting(base::TextRef path, base::TextRef section, base::TextRef key, base::TextRef value);

} // namespace varnoke
