// One JSON object a line for each message.
#ifndef QUILL_INSPECT_JSON_VIEW_HPP
#define QUILL_INSPECT_JSON_VIEW_HPP

#include "view.hpp"

namespace inspect {

class JsonView : public View {
public:
    explicit JsonView(bool withTypes) : typed(withTypes) {}
    void message(Origin const &origin, quillMessage const *message) override;
    void undecoded(Origin const &origin) override;

private:
    bool const typed;
};

} // namespace inspect

#endif
