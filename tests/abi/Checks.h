// The checks of the Microsoft-ABI test program; they need no streams, unlike a test framework.
#pragma once

namespace checks {

void Check(bool holds, const char* text, const char* file, int line);

// Each runs the checks of one file.
void Runtime();
void Modules();
void Library();

} // namespace checks

#define CHECK(condition) checks::Check((condition), #condition, __FILE__, __LINE__)
