// Random damage to a file's bytes.
#include "tests/soak/Damage.h"

#include <algorithm>

namespace soak {

namespace {

// Pieces that parsers treat in a way of their own.
const std::string kPieces[] = {"<",           ">",        "\"",
                               "'",           "&",        "&#0;",
                               "]]>",         "<!--",     "<![CDATA[",
                               "<!DOCTYPE a", "<?xml ?>", "\xEF\xBB\xBF",
                               "\xFF\xFE",    "\xC0\x80", std::string(1, '\0'),
                               "[",           "]\r\n",    "=",
                               "%s%n",        "\r\n",     "999999999999",
                               "-1",          "../",      "/obj><obj"};

void DamageOnce(std::string& text, Random& random) {
    const size_t at = text.empty() ? 0 : random.Below(text.size());
    const size_t length = (std::min)(text.size() - at, size_t(1) + random.Below(random.Below(4) ? 8 : 200));
    switch (random.Below(7)) {
    case 0:
        if (!text.empty()) text[at] = static_cast<char>(text[at] ^ (1 << random.Below(8)));
        break;
    case 1:
        if (!text.empty()) text[at] = static_cast<char>(random.Next());
        break;
    case 2:
        text.erase(at, length);
        break;
    case 3:
        text.insert(at, text.substr(at, length));
        break;
    case 4:
        text.insert(at, kPieces[random.Below(std::size(kPieces))]);
        break;
    case 5:
        if (!text.empty()) std::swap(text[at], text[random.Below(text.size())]);
        break;
    default:
        if (random.Below(8) == 0) text.resize(at);
        break;
    }
}

} // namespace

uint64_t Random::Next() {
    uint64_t mixed = m_state += 0x9E3779B97F4A7C15u;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
}

std::string Damaged(const std::string& sample, uint64_t seed) {
    Random random(seed);
    std::string text = sample;
    for (size_t left = 1 + random.Below(8); left > 0; --left) {
        DamageOnce(text, random);
    }
    return text;
}

} // namespace soak
