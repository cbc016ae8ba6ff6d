// A DLL that tells in which order its static objects come and go.
#include <windows.h>

namespace {

int g_order = 0; // digits of the objects constructed so far
void (*g_onDestruction)(int) = nullptr;
thread_local int t_value = 7;

struct Noted {
    explicit Noted(int digit) : digit(digit) { g_order = g_order * 10 + digit; }
    ~Noted() {
        if (g_onDestruction) g_onDestruction(digit);
    }
    int digit;
};
Noted g_first(1);
Noted g_second(2);

} // namespace

extern "C" {

// Constructs the third object at the first call.
__declspec(dllexport) int ProbeOrder(void (*onDestruction)(int)) {
    static Noted third(3);
    g_onDestruction = onDestruction;
    return g_order;
}

__declspec(dllexport) int ProbeThreadValue(int added) {
    return t_value += added;
}
}
