// How much two threads do against one, each on a processor of its own.
//
//     threads [<rounds>]
//
// "own messages": each decodes messages of its own, reads their typed core and encodes them. "one shared message": both
// read the typed core of one message object. Rounds of one thread, on either processor, and of two take turns. A rate is
// iterations by the time of the clock; the rate by processor time leaves out what other processes took meanwhile, and
// is what the library itself allows. The exit status says nothing of the ratios: they depend on the machine.

#include "objects.hpp"
#include "workloads.h"

#include <algorithm>
#include <atomic>
#include <ctime>
#include <fstream>
#include <functional>
#include <iterator>
#include <pthread.h>
#include <sched.h>
#include <thread>
#include <vector>

using namespace bench;

namespace {

constexpr double roundLength = 50e6; // ns
constexpr int iterationsAtOnce = 50;
constexpr int skipped = 77; // the exit status

double now(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

// Iterations a nanosecond, by the clock and by processor time.
struct Rate {
    double clock;
    double processor;
};

void stayOn(int processor) {
    cpu_set_t only;
    CPU_ZERO(&only);
    CPU_SET(processor, &only);
    if (pthread_setaffinity_np(pthread_self(), sizeof only, &only) == 0) return;
    std::perror("pthread_setaffinity_np");
    std::exit(2);
}

using Work = std::function<void()>;

// Begins when `waiting` others have come too.
Rate rateOf(Work const &work, int processor, std::atomic<int> &waiting) {
    stayOn(processor);
    waiting--;
    while (waiting > 0) {
    }
    double const start = now(CLOCK_MONOTONIC);
    double const processorStart = now(CLOCK_THREAD_CPUTIME_ID);
    double elapsed = 0;
    double iterations = 0;
    do {
        for (int i = 0; i < iterationsAtOnce; i++) work();
        iterations += iterationsAtOnce;
        elapsed = now(CLOCK_MONOTONIC) - start;
    } while (elapsed < roundLength);
    return {iterations / elapsed, iterations / (now(CLOCK_THREAD_CPUTIME_ID) - processorStart)};
}

// The rate of all processors together.
Rate round(std::vector<int> const &processors, std::function<Work()> const &prepare) {
    std::vector<Rate> rates(processors.size());
    std::vector<std::thread> threads;
    std::atomic<int> waiting = static_cast<int>(processors.size());
    for (size_t i = 0; i < processors.size(); i++)
        threads.emplace_back([&, i] { rates[i] = rateOf(prepare(), processors[i], waiting); });
    for (std::thread &thread : threads) thread.join();
    Rate all{};
    for (Rate const &rate : rates) {
        all.clock += rate.clock;
        all.processor += rate.processor;
    }
    return all;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double best(std::vector<double> const &values) { return *std::max_element(values.begin(), values.end()); }

void printRow(char const *what, char const *by, std::vector<double> const &one, std::vector<double> const &two) {
    std::printf("| %s | %s | %.0f | %.0f | %.2f | %.2f |\n", what, by, 1 / median(one), 2 / median(two),
                median(two) / median(one), best(two) / best(one));
}

void compare(char const *what, int rounds, std::vector<int> const &pair, std::function<Work()> const &prepare) {
    std::vector<double> oneByClock, twoByClock, oneByProcessor, twoByProcessor;
    for (int i = 0; i < rounds; i++) {
        Rate const first = round({pair[0]}, prepare);
        Rate const both = round(pair, prepare);
        Rate const second = round({pair[1]}, prepare);
        oneByClock.push_back((first.clock + second.clock) / 2);
        oneByProcessor.push_back((first.processor + second.processor) / 2);
        twoByClock.push_back(both.clock);
        twoByProcessor.push_back(both.processor);
    }
    printRow(what, "the clock", oneByClock, twoByClock);
    printRow(what, "processor time", oneByProcessor, twoByProcessor);
}

void readCore(quillMessage const *message) {
    core read;
    coreRead(message, &read);
    coreRelease(&read);
}

// The first two processors that the program may use; fewer where there are no two.
std::vector<int> processors() {
    cpu_set_t allowed;
    std::vector<int> found;
    if (sched_getaffinity(0, sizeof allowed, &allowed) != 0) return found;
    for (int i = 0; i < CPU_SETSIZE && found.size() < 2; i++)
        if (CPU_ISSET(i, &allowed)) found.push_back(i);
    return found;
}

void compareAll(int rounds, std::vector<int> const &pair) {
    std::ifstream file(QUILL_CORPUS "/invite.sip", std::ios::binary);
    std::string const text{std::istreambuf_iterator<char>(file), {}};
    std::printf(
        "| two threads against one, invite | rate by | ns, one | ns, each of two | ratio of medians | of the best |\n"
        "| --- | --- | ---: | ---: | ---: | ---: |\n");
    compare("own messages", rounds, pair, [&] {
        return [bytes = std::shared_ptr<coBuffer>(bufferOf(text))] {
            auto const message = decoded(bytes.get());
            readCore(message.get());
            encodedLength(message.get());
        };
    });
    auto const shared = decoded(bufferOf(text).get());
    compare("one shared message", rounds, pair, [&] { return [&] { readCore(shared.get()); }; });
}

} // namespace

int main(int argc, char **argv) {
    int const rounds = argc > 1 ? std::atoi(argv[1]) : 21;
    std::vector<int> const pair = processors();
    if (argc > 2 || rounds < 1) {
        std::fprintf(stderr, "usage: threads [<rounds>]\n");
        return 2;
    }
    if (pair.size() < 2) {
        std::fprintf(stderr, "threads: there is one processor only\n");
        return skipped;
    }
    coModuleLoad(quillModule());
    compareAll(rounds, pair);
    coModuleUnload(quillModule());
    return 0;
}
