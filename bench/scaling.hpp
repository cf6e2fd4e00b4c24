// Shapes of input and use whose cost may not grow faster than their size.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace scaling {

using Work = std::function<void()>;

enum class Rule {
    linear,   // twice the size costs twice, in time and memory
    constant, // the size makes no difference
    even,     // each of many costs what one alone costs
};

struct Shape {
    std::string name;
    std::string work; // what is done with it
    Rule rule;
    bool limited; // whether the time for each element has an absolute limit: not where each gives an object or more
    std::function<Work(int64_t n)> prepare; // what the work needs is made here and not measured
};

std::vector<Shape> allShapes();

// Costs that break their rules, each in its way: all of them have to be noticed.
std::vector<Shape> badShapes();

} // namespace scaling
