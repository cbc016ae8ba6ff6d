// The standard exceptions that libstdc++'s headers only declare.
#include <exception>
#include <functional>
#include <memory>
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

bad_function_call::~bad_function_call() noexcept {}
const char* bad_function_call::what() const noexcept {
    return "call of an empty function";
}

bad_weak_ptr::~bad_weak_ptr() noexcept {}
const char* bad_weak_ptr::what() const noexcept {
    return "expired weak pointer";
}

void __throw_bad_alloc() {
    throw bad_alloc();
}

void __throw_bad_array_new_length() {
    throw bad_array_new_length();
}

void __throw_bad_function_call() {
    throw bad_function_call();
}

} // namespace std
