// What is made of the messages.
#ifndef QUILL_INSPECT_VIEW_HPP
#define QUILL_INSPECT_VIEW_HPP

#include "objects.hpp"
#include <string>

namespace inspect {

/// Where a message comes from: a file as named by the user, and the message's place in it.
struct Origin {
    std::string file;
    int64_t index = 0;
};

class View {
public:
    View() = default;
    virtual ~View() = default;
    View(View const &) = delete;
    View &operator=(View const &) = delete;

    virtual void message(Origin const &origin, quillMessage const *message) = 0;
    /// For views that mention on standard output what does not decode.
    virtual void undecoded(Origin const &) {}
};

} // namespace inspect

#endif
