// Lines laid out in columns, with colours.
#ifndef QUILL_INSPECT_PAGE_HPP
#define QUILL_INSPECT_PAGE_HPP

#include "objects.hpp"
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

enum class Style { plain, title, part, name, dim, alarm };

/// A line below the lines of a header: a mark (the number of an element, or `!`), the name of a part, its text.
struct Detail {
    Style markStyle;
    std::string mark;
    std::string name;
    Style textStyle;
    std::string text;
};

/// A row of the table that a message is shown as: a name and, one under the other, its values, ready for output.
struct Row {
    Style style;
    std::string name;
    std::vector<std::string> values;
    std::vector<Detail> details = {};
};

/// Collects a message's lines.
class Page {
public:
    explicit Page(bool withColor) : colored(withColor) {}

    void put(Style style, std::string_view words);
    void line(Style style, std::string_view words);

    /// Names and values in two columns; further values of a name follow a dim plus sign, details stand below.
    void table(std::vector<Row> const &rows);

    void textBody(coString const *body);
    void binaryBody(std::span<uint8_t const> bytes);

    std::string text;

private:
    /// Marks, names and texts in three columns.
    void details(std::vector<Detail> const &details, size_t indent, size_t nameColumn);

    bool const colored;
};

} // namespace inspect

#endif
