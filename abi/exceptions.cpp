// The standard exceptions that libstdc++'s headers only declare.
#include <exception>
#include <new>

namespace std {

exception::~exception() noexcept {}
const char* exception::what() const noexcept {
    return "exception";
}

bad_alloc::~bad_alloc() noexcept {}
const char* bad_alloc::what() const noexcept {
    return "out of memory";
}

bad_array_new_length::~bad_array_new_length() noexcept {}
const char* bad_array_new_length::what() const noexcept {
    return "bad array length";
}

void __throw_bad_alloc() {
    throw bad_alloc();
}

void __throw_bad_array_new_length() {
    throw bad_array_new_length();
}

} // namespace std
