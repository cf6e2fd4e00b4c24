// Time and memory of every shape of input and use against its size, and whether they grow no faster than it:
//
//     scaling [--small] [--markdown] [--tsv <file>] [--only <part of a shape's name>] [--bad]
//
// --small takes small sizes and generous limits, and none in absolute time: a test for a busy machine. --bad is
// small too and takes costs that break their rules, to see that it is noticed. The exit status is 1 when a rule is
// broken.

#include "scaling.hpp"
#include "heap.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <quill/quill.h>
#include <thread>

using scaling::Rule;
using scaling::Shape;
using scaling::Work;

namespace {

struct Limits {
    std::vector<int64_t> sizes;
    int64_t step;          // times the size,
    double growth;         // less than this times the cost
    double constant;       // at any size against the smallest one
    double even;           // for each of many against one alone
    int64_t limitedSize;   // for the absolute limit; 0 for none
    double longestElement; // ns
    int repetitions;
};

Limits const full{{1000, 2000, 4000, 8000, 10000, 16000, 32000, 64000}, 2, 2.5, 1.5, 1.25, 10000, 100, 5};
Limits const small{{250, 500, 1000, 2000}, 8, 20, 3, 3, 1000, 10000, 3};
constexpr int attempts = 10;           // of a measurement that breaks a rule
constexpr double shortestRun = 100e3;  // ns; shorter works are repeated
constexpr int64_t fewBytes = 16 << 10; // what does not depend on the size, at most

struct Point {
    int64_t n;
    double time; // ns
    heap::Use memory;
};

struct Options {
    bool markdown = false;
    bool bad = false;
    Limits const *limits = &full;
    char const *tsv = nullptr;
    char const *only = "";
};

// Processor time: what other processes do meanwhile does not count.
double now() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

// Of the fastest of several repetitions, each of as many runs as make the clock's own time not count.
double timeOf(Work const &work, int repetitions) {
    auto const elapsed = [&](int64_t runs) {
        double const start = now();
        for (int64_t i = 0; i < runs; i++) work();
        return now() - start;
    };
    int64_t runs = 1;
    double best = elapsed(runs);
    while (best < shortestRun) best = elapsed(runs *= 2);
    for (int i = 1; i < repetitions; i++) best = std::min(best, elapsed(runs));
    return best / static_cast<double>(runs);
}

void pause(int milliseconds) {
    timespec const time{0, milliseconds * 1000000L};
    nanosleep(&time, nullptr);
}

// One shape at all sizes. Times that break the rule are measured again, after ever longer pauses: the machine may have
// been busy, and what made it so may have filled the caches.
class Measurement {
public:
    Measurement(Shape const &measured, Limits const &allowed) : shape(measured), limits(allowed) {
        if (shape.rule == Rule::even) add(1);
        for (int64_t n : limits.sizes) add(n);
        for (int i = 1; i < attempts && !brokenByTime().empty(); i++) {
            pause(1 << i);
            for (Point &point : points) retry(point);
        }
    }

    // In a thread of its own, which has kept no blocks: those of small works would not be the heap's. When all times are
    // measured: malloc is slower in a process that has had a second thread.
    void measureMemory() {
        for (Point &point : points) {
            Work const work = shape.prepare(point.n);
            std::thread([&] { point.memory = heap::use(work); }).join();
        }
    }

    Shape const &shape;
    Limits const &limits;
    std::vector<Point> points;

    // The greatest growth at one step, or against the first size.
    double worstTime() const {
        return worst([](Point const &point) { return point.time; });
    }
    double worstMemory() const {
        return std::max(worst([](Point const &point) { return withFew(point.memory.asked); }),
                        worst([](Point const &point) { return withFew(point.memory.highest); }));
    }
    Point const &at(int64_t n) const {
        return *std::find_if(points.begin(), points.end(), [n](Point const &point) { return point.n == n; });
    }

    // What rule is broken; empty where none is.
    std::string broken() const { return worstMemory() < limit() ? brokenByTime() : "memory"; }
    // Of a cost at a size: what falls to one element, where the size makes a difference.
    double share(double cost, int64_t n) const {
        return shape.rule == Rule::constant ? cost : cost / static_cast<double>(n);
    }
    double elementAt(int64_t n) const { return share(at(n).time, n); }

private:
    std::string brokenByTime() const {
        if (worstTime() >= limit()) return "time";
        if (shape.limited && limits.limitedSize && elementAt(limits.limitedSize) > limits.longestElement) return "slow";
        return "";
    }

    double limit() const {
        switch (shape.rule) {
        case Rule::linear:
            return limits.growth;
        case Rule::constant:
            return limits.constant;
        case Rule::even:
            return limits.even;
        }
        return 0;
    }

    void add(int64_t n) {
        Work const work = shape.prepare(n);
        work(); // first use fills what is kept
        points.push_back({n, timeOf(work, limits.repetitions), {}});
    }
    void retry(Point &point) const {
        point.time = std::min(point.time, timeOf(shape.prepare(point.n), limits.repetitions));
    }

    static double withFew(int64_t bytes) { return static_cast<double>(std::max(bytes, fewBytes)); }

    template <class Cost> double worst(Cost const &cost) const {
        double most = 0;
        for (Point const &point : points) most = std::max(most, growth(point, cost));
        return most;
    }
    template <class Cost> double growth(Point const &point, Cost const &cost) const {
        Point const &first = points.front();
        if (shape.rule == Rule::constant) return cost(point) / cost(first);
        if (shape.rule == Rule::even) return cost(point) / static_cast<double>(point.n) / cost(first);
        for (Point const &larger : points)
            if (larger.n == limits.step * point.n) return cost(larger) / cost(point);
        return 0;
    }
};

std::string title(Shape const &shape) { return shape.name + ": " + shape.work; }

// Tables

std::string siBytes(int64_t bytes) {
    char text[32];
    if (bytes < 10000)
        std::snprintf(text, sizeof text, "%ld", static_cast<long>(bytes));
    else
        std::snprintf(text, sizeof text, "%.0fk", static_cast<double>(bytes) / 1000);
    return text;
}

std::string microseconds(double ns) {
    char text[32];
    std::snprintf(text, sizeof text, ns < 1e3 ? "%.3f" : ns < 1e5 ? "%.1f" : "%.0f", ns / 1000);
    return text;
}

std::string decimal(double value, char const *format) {
    char text[32];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

void printRow(std::string const &first, std::vector<std::string> const &cells) {
    std::printf("%-58s", first.c_str());
    for (std::string const &cell : cells) std::printf("%9s", cell.c_str());
    std::printf("\n");
}

void printHeading(Options const &options, std::string const &first, std::vector<std::string> const &last) {
    std::vector<std::string> cells;
    for (int64_t n : options.limits->sizes) cells.push_back(std::to_string(n));
    cells.insert(cells.end(), last.begin(), last.end());
    printRow(first, cells);
}

void printTimes(Options const &options, std::vector<Measurement> const &all) {
    int64_t const n = options.limits->limitedSize ? options.limits->limitedSize : options.limits->sizes.back();
    printHeading(options, "time in µs, n =", {"ns each", "growth", "rule"});
    for (Measurement const &one : all) {
        std::vector<std::string> cells;
        for (int64_t size : options.limits->sizes) cells.push_back(microseconds(one.at(size).time));
        cells.push_back(one.shape.rule == Rule::constant ? "-" : decimal(one.elementAt(n), "%.0f"));
        cells.push_back(decimal(one.worstTime(), "%.2f"));
        cells.push_back(one.broken().empty() ? "holds" : "BROKEN");
        printRow(title(one.shape), cells);
    }
}

void printMemory(Options const &options, std::vector<Measurement> const &all) {
    printHeading(options, "most heap bytes at a time, n =", {"growth"});
    for (Measurement const &one : all) {
        std::vector<std::string> cells;
        for (int64_t size : options.limits->sizes) cells.push_back(siBytes(one.at(size).memory.highest));
        cells.push_back(decimal(one.worstMemory(), "%.2f"));
        printRow(title(one.shape), cells);
    }
}

// One table of both, for each element.
void printMarkdown(Options const &options, std::vector<Measurement> const &all) {
    std::vector<int64_t> const &sizes = options.limits->sizes;
    std::printf("| | ns for each of %ld |", static_cast<long>(sizes.front()));
    for (int64_t n : {options.limits->limitedSize, sizes.back()}) std::printf(" of %ld |", static_cast<long>(n));
    std::printf(" growth of time | heap bytes for each | growth of memory |\n| --- |%s\n",
                " ---: | ---: | ---: | ---: | ---: | ---: |");
    for (Measurement const &one : all) {
        std::printf("| %s |", title(one.shape).c_str());
        for (int64_t n : {sizes.front(), options.limits->limitedSize, sizes.back()}) {
            double const share = one.share(one.at(n).time, n);
            std::printf(share < 10 ? " %.1f |" : " %.0f |", share);
        }
        auto const bytes = static_cast<double>(one.at(sizes.back()).memory.highest);
        std::printf(" %.2f | %.0f | %.2f |\n", one.worstTime(), one.share(bytes, sizes.back()), one.worstMemory());
    }
}

bool writeTsv(char const *path, std::vector<Measurement> const &all) {
    std::FILE *file = std::fopen(path, "w");
    if (!file) return false;
    std::fprintf(file, "shape\twork\trule\tn\tns\tasked\thighest\n");
    char const *const rules[] = {"linear", "constant", "even"};
    for (Measurement const &one : all)
        for (Point const &point : one.points)
            std::fprintf(file, "%s\t%s\t%s\t%ld\t%.0f\t%ld\t%ld\n", one.shape.name.c_str(), one.shape.work.c_str(),
                         rules[static_cast<int>(one.shape.rule)], static_cast<long>(point.n), point.time,
                         static_cast<long>(point.memory.asked), static_cast<long>(point.memory.highest));
    return std::fclose(file) == 0;
}

bool readOptions(int argc, char **argv, Options *options) {
    for (int i = 1; i < argc; i++) {
        if (!std::strcmp(argv[i], "--small"))
            options->limits = &small;
        else if (!std::strcmp(argv[i], "--markdown"))
            options->markdown = true;
        else if (!std::strcmp(argv[i], "--bad"))
            options->bad = true, options->limits = &small;
        else if (!std::strcmp(argv[i], "--tsv") && i + 1 < argc)
            options->tsv = argv[++i];
        else if (!std::strcmp(argv[i], "--only") && i + 1 < argc)
            options->only = argv[++i];
        else
            return false;
    }
    return true;
}

int report(Options const &options, std::vector<Measurement> const &all) {
    if (options.markdown) {
        printMarkdown(options, all);
    } else {
        printTimes(options, all);
        std::printf("\n");
        printMemory(options, all);
    }
    std::fflush(stdout);
    if (options.tsv && !writeTsv(options.tsv, all)) {
        std::perror(options.tsv);
        return 2;
    }
    int broken = 0;
    for (Measurement const &one : all) {
        if (one.broken().empty()) continue;
        broken++;
        std::fprintf(stderr, "%s breaks its rule: %s (growth of time %.2f, of memory %.2f)\n", title(one.shape).c_str(),
                     one.broken().c_str(), one.worstTime(), one.worstMemory());
    }
    std::fprintf(stderr, "%d of %zu shapes are broken\n", broken, all.size());
    return broken > 0;
}

} // namespace

int main(int argc, char **argv) {
    Options options;
    if (!readOptions(argc, argv, &options)) {
        std::fprintf(stderr,
                     "usage: scaling [--small] [--markdown] [--tsv <file>] [--only <part of a name>] [--bad]\n");
        return 2;
    }
    coModuleLoad(quillModule());
    int status = 2;
    {
        std::vector<Measurement> all;
        std::vector<Shape> const shapes = options.bad ? scaling::badShapes() : scaling::allShapes();
        for (Shape const &shape : shapes)
            if (title(shape).find(options.only) != std::string::npos) all.emplace_back(shape, *options.limits);
        for (Measurement &one : all) one.measureMemory();
        if (all.empty())
            std::fprintf(stderr, "scaling: no shape has \"%s\" in its name\n", options.only);
        else
            status = report(options, all);
    }
    coModuleUnload(quillModule());
    return status;
}
