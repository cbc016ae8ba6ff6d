// The Fowler-Noll-Vo hash, variant 1a, of 64 bits.
#pragma once

#include <cstdint>

namespace base {

/// Takes units of any width one after the other. No protection against anybody who means harm.
class Fnv1a {
public:
    explicit Fnv1a(uint64_t seed = 0) : m_hash(14695981039346656037u ^ seed) {}

    void Add(uint64_t unit) { m_hash = (m_hash ^ unit) * 1099511628211u; }
    uint64_t Value() const { return m_hash; }

private:
    uint64_t m_hash;
};

} // namespace base
