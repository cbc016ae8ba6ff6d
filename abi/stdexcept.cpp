// logic_error and what derives from it; their texts and the functions that throw them.
#include <atomic>
#include <cstddef>
#include <cstring>
#include <new>
#include <stdexcept>

namespace std {

namespace {

// The text of an error with its owners counted, so that copying an exception cannot fail.
struct SharedText {
    atomic<long> owners;
    char text[1];

    static const char* Make(const char* text, size_t length) {
        auto* shared = static_cast<SharedText*>(::operator new(sizeof(SharedText) + length));
        ::new (&shared->owners) atomic<long>(1);
        memcpy(shared->text, text, length);
        shared->text[length] = 0;
        return shared->text;
    }
    static SharedText* Of(const char* text) {
        return reinterpret_cast<SharedText*>(const_cast<char*>(text) - offsetof(SharedText, text));
    }
    static const char* AddOwner(const char* text) {
        ++Of(text)->owners;
        return text;
    }
    static void Release(const char* text) {
        if (--Of(text)->owners == 0) ::operator delete(Of(text));
    }
};

} // namespace

__cow_string::__cow_string(const char* text, size_t length) : _M_p(SharedText::Make(text, length)) {}
__cow_string::__cow_string(const __cow_string& other) noexcept : _M_p(SharedText::AddOwner(other._M_p)) {}
__cow_string::~__cow_string() {
    SharedText::Release(_M_p);
}

logic_error::logic_error(const char* text) : _M_msg(text, strlen(text)) {}
logic_error::logic_error(const logic_error&) noexcept = default;
logic_error::~logic_error() noexcept {}
const char* logic_error::what() const noexcept {
    return _M_msg._M_p;
}

length_error::length_error(const char* text) : logic_error(text) {}
length_error::~length_error() noexcept {}
out_of_range::out_of_range(const char* text) : logic_error(text) {}
out_of_range::~out_of_range() noexcept {}

void __throw_logic_error(const char* text) {
    throw logic_error(text);
}

void __throw_length_error(const char* text) {
    throw length_error(text);
}

// The arguments only name positions and sizes; the pattern says enough.
void __throw_out_of_range_fmt(const char* pattern, ...) {
    throw out_of_range(pattern);
}

} // namespace std
