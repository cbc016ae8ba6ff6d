// The TLS directory: tells the loader where the module's thread-local variables begin and end.
// Variables with constructors or destructors are not supported, so there are no callbacks.
#include <windows.h>

#pragma section(".tls", long, read, write)
#pragma section(".tls$ZZZ", long, read, write)

extern "C" {

// The linker sorts by section name: thread-local variables lie in .tls$ between these two.
__declspec(allocate(".tls")) char _tls_start = 0;
__declspec(allocate(".tls$ZZZ")) char _tls_end = 0;

// The loader stores the module's slot here; code that reads a thread-local variable uses it.
ULONG _tls_index = 0;

extern const IMAGE_TLS_DIRECTORY64 _tls_used;
const IMAGE_TLS_DIRECTORY64 _tls_used = {reinterpret_cast<ULONGLONG>(&_tls_start),
                                         reinterpret_cast<ULONGLONG>(&_tls_end),
                                         reinterpret_cast<ULONGLONG>(&_tls_index),
                                         /* AddressOfCallBacks */ 0,
                                         /* SizeOfZeroFill */ 0,
                                         /* Characteristics */ 0};
}
