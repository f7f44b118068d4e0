#pragma once

#include <compare>
#include <map>
#include <string>

namespace Bench {

/// What was measured: a work, a contender, a document, and how many threads did it at the same time. Zero threads stand
/// for the normal case: one, by its processor time and not by the clock on the wall.
struct Measured {
    std::string work;
    std::string contender;
    std::string document;
    int threads = 0;

    auto operator<=>(const Measured&) const = default;
};

struct Results {
    std::map<Measured, double> seconds;      ///< for one run, the median of all rounds
    std::map<Measured, double> bytesPerByte; ///< peak memory of a load per byte of the document
};

} // namespace Bench
