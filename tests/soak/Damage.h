// Random damage to a file's bytes, the same for the same seed.
#pragma once

#include <cstdint>
#include <string>

namespace soak {

/// A small generator, so that a seed gives the same damage with every compiler.
class Random {
public:
    explicit Random(uint64_t seed) : m_state(seed) {}
    uint64_t Next();
    /// Below the limit, which must not be 0.
    size_t Below(size_t limit) { return static_cast<size_t>(Next() % limit); }

private:
    uint64_t m_state;
};

/// The sample with one to eight faults: bytes changed, inserted, removed, doubled, moved or cut off.
std::string Damaged(const std::string& sample, uint64_t seed);

} // namespace soak
