// Damaged input against every reader.
#pragma once

#include <cstdint>

namespace soak {

/// So many inputs in all, spread over the readers. Ends the program with a line that names reader and seed
/// when one of them crashes, hangs or leaves memory behind.
void RunReaders(uint64_t inputs, uint64_t firstSeed);

} // namespace soak
