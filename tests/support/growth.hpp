// How the cost of some work grows with its size.
#pragma once

#include <functional>
#include <support/cost.hpp>

namespace test {

// The cost of eight times as much work, over that of the work: 8 for a linear one, 64 for a quadratic one. Caches and
// a busy machine make a linear one look dearer; 30 is a fair limit.
inline double growth(int64_t size, std::function<void(int64_t)> const &work) {
    double const once = seconds([&] { work(size); });
    return seconds([&] { work(8 * size); }) / std::max(once, 1e-4);
}

constexpr double linear = 30;

} // namespace test
