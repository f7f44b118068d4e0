#include "Framework/XMLSupport/TextHash.h"

#include <cstdint>
#include <cstring>
#include <ctime>

#include <sys/random.h>

namespace Framework {

namespace {

struct HashKey {
    std::uint64_t first;
    std::uint64_t second;
};

const HashKey& ProcessKey() {
    static const HashKey key = [] {
        HashKey made{};
        if (::getrandom(&made, sizeof made, GRND_NONBLOCK) != static_cast<ssize_t>(sizeof made)) {
            // So early after the start of the machine that it has no random numbers yet; hard to guess all the same.
            timespec now{};
            ::clock_gettime(CLOCK_MONOTONIC, &now);
            made.first = static_cast<std::uint64_t>(now.tv_nsec) * 0x9E3779B97F4A7C15U;
            made.second = reinterpret_cast<std::uintptr_t>(&made) ^ made.first; // NOLINT: where the stack is, is secret
        }
        made.second |= 1U;
        return made;
    }();
    return key;
}

std::uint64_t Mix(std::uint64_t left, std::uint64_t right) {
    __extension__ using Wide = unsigned __int128;
    const Wide product = static_cast<Wide>(left) * right;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64U);
}

} // namespace

std::size_t TextHash::operator()(std::string_view text) const noexcept {
    const HashKey& key = ProcessKey();
    std::uint64_t hash = key.first ^ text.size();
    while (text.size() >= sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data(), sizeof word);
        hash = Mix(hash ^ word, key.second);
        text.remove_prefix(sizeof word);
    }
    if (!text.empty()) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data(), text.size());
        hash = Mix(hash ^ word, key.second);
    }
    return hash;
}

} // namespace Framework
