// The strings' member functions, which libstdc++'s headers expect to find in a library.
#include <string>

template class std::basic_string<char>;
template class std::basic_string<wchar_t>;
