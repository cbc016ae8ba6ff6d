// The errors of dynamic_cast and typeid.
#include <typeinfo>

namespace std {

type_info::~type_info() {}

bad_cast::~bad_cast() noexcept {}
const char* bad_cast::what() const noexcept {
    return "bad cast";
}

bad_typeid::~bad_typeid() noexcept {}
const char* bad_typeid::what() const noexcept {
    return "typeid of a null pointer";
}

void __throw_bad_cast() {
    throw bad_cast();
}

void __throw_bad_typeid() {
    throw bad_typeid();
}

} // namespace std
