// Messages laid out for people.
#ifndef QUILL_INSPECT_HUMAN_VIEW_HPP
#define QUILL_INSPECT_HUMAN_VIEW_HPP

#include "view.hpp"

namespace inspect {

class HumanView : public View {
public:
    /// Without types, only the lines of each header are shown.
    HumanView(bool withTypes, bool withColor) : typed(withTypes), colored(withColor) {}
    void message(Origin const &origin, quillMessage const *message) override;

private:
    bool const typed;
    bool const colored;
    bool first = true;
};

} // namespace inspect

#endif
