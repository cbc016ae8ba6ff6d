// What the start-up code of DLLs and of programs shares.
#pragma once

namespace abi {

/// Runs the module's static initialisers in link order. False when one of them refused.
bool RunInitializers();

} // namespace abi
