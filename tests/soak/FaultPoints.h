// Makes the n-th of the calls fail that Varnoke.dll makes to the system, to COM, to the XML parser and to the
// server.
#pragma once

namespace soak {

class FaultPoints {
public:
    /// Hooks the library's imports and the XML document's methods for the life of the process.
    static void Install();
    /// Calls are counted from now on; the n-th fails, none for 0.
    static void Arm(long n);
    /// Ends counting; true when the n-th call came.
    static bool Disarm();
};

} // namespace soak
