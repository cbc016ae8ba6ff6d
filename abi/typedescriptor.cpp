// The table that the compiler lets every type descriptor begin with, under the name that it gives it.

// Its one function is the destructor. Descriptors are static data, so nothing ever calls it.
extern "C" {
extern const void* const g_typeDescriptorTable[1] __asm__("??_7type_info@@6B@");
const void* const g_typeDescriptorTable[1] = {nullptr};
}
