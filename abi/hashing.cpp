// Hash function and growth rule of the unordered containers.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <unordered_set>

namespace std {

// FNV-1a with 64 bits.
size_t _Hash_bytes(const void* bytes, size_t length, size_t seed) {
    constexpr uint64_t OFFSET_BASIS = 14695981039346656037ULL;
    constexpr uint64_t PRIME = 1099511628211ULL;
    uint64_t hash = OFFSET_BASIS ^ seed;
    const auto* byte = static_cast<const unsigned char*>(bytes);
    for (size_t i = 0; i < length; ++i)
        hash = (hash ^ byte[i]) * PRIME;
    return hash;
}

namespace __detail {

namespace {

// The largest prime below each power of two; a table of more buckets than the last has other problems.
constexpr size_t BUCKET_COUNTS[] = {
    3,       7,       13,       31,       61,       127,       251,       509,       1021,       2039,
    4093,    8191,    16381,    32749,    65521,    131071,    262139,    524287,    1048573,    2097143,
    4194301, 8388593, 16777213, 33554393, 67108859, 134217689, 268435399, 536870909, 1073741789, 2147483647};

} // namespace

// Also notes at how many elements the table has to grow again.
size_t _Prime_rehash_policy::_M_next_bkt(size_t wanted) const {
    // An empty table has the one bucket inside the object and grows at the first insertion.
    if (wanted == 0) return 1;
    const size_t* count = lower_bound(begin(BUCKET_COUNTS), end(BUCKET_COUNTS) - 1, wanted);
    _M_next_resize = static_cast<size_t>(*count * static_cast<double>(_M_max_load_factor));
    return *count;
}

pair<bool, size_t> _Prime_rehash_policy::_M_need_rehash(size_t buckets, size_t elements, size_t added) const {
    constexpr size_t SMALLEST = 11;
    const size_t total = elements + added;
    if (total <= _M_next_resize) return {false, 0};
    const size_t planned = _M_next_resize == 0 ? max(total, SMALLEST) : total;
    const auto needed = static_cast<size_t>(planned / static_cast<double>(_M_max_load_factor)) + 1;
    if (needed > buckets) return {true, _M_next_bkt(max(needed, buckets * _S_growth_factor))};
    _M_next_resize = static_cast<size_t>(buckets * static_cast<double>(_M_max_load_factor));
    return {false, 0};
}

} // namespace __detail
} // namespace std
