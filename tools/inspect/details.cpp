#include "details.hpp"

#include "text.hpp"
#include <algorithm>
#include <utility>

namespace inspect {
namespace {

/// "display_name" as people write it.
std::string spoken(std::string_view name) {
    if (name == "iri") return "IRI";
    std::string words(name);
    std::replace(words.begin(), words.end(), '_', ' ');
    return words;
}

/// "0.5", "1".
std::string decimal(Quality quality) {
    std::string digits = std::to_string(1000 + quality.thousandths % 1000).substr(1);
    digits.erase(digits.find_last_not_of('0') + 1);
    std::string const whole = std::to_string(quality.thousandths / 1000);
    return digits.empty() ? whole : whole + '.' + digits;
}

/// Visits what a header says, down to what a part holds.
class Details {
public:
    explicit Details(std::string const &ofHeader) : headerName(ofHeader) {}

    std::vector<Detail> list;

    void problem(std::string text) { list.push_back({Style::alarm, "!", {}, Style::alarm, std::move(text)}); }

    void operator()(Parts const &parts) {
        for (Part const &part : parts) {
            name = spoken(part.name);
            std::visit(*this, part.content);
        }
    }
    void operator()(Tokens const &tokens) {
        std::string all;
        for (std::string const &token : tokens.all) all += (all.empty() ? "" : ", ") + shown(token);
        add("tokens", all);
    }
    void operator()(Elements const &elements) {
        if (elements.empty()) add("elements", {});
        for (size_t i = 0; i < elements.size(); i++) {
            mark = std::to_string(i + 1);
            name.clear();
            std::visit(*this, elements[i]);
        }
    }

    void operator()(std::monostate) {
        problem("element " + std::exchange(mark, {}) + " does not parse as " + headerName);
    }

    void operator()(bool) { add(name, "yes"); }
    void operator()(int64_t number) { add(name, std::to_string(number)); }
    void operator()(Quality quality) { add(name, decimal(quality)); }
    void operator()(std::string const &text) { add(name, shown(text)); }
    void operator()(std::vector<Parameter> const &parameters) {
        for (Parameter const &parameter : parameters) add("parameter", shown(parameter.wire));
    }

private:
    void add(std::string const &partName, std::string text) {
        Style const style = text.empty() ? Style::dim : Style::plain;
        if (text.empty()) text = "(empty)";
        list.push_back({Style::dim, std::exchange(mark, {}), partName, style, std::move(text)});
    }

    std::string const &headerName;
    std::string mark; // the number of an element, until its first line has it
    std::string name; // of the part that is visited; a scalar element has none
};

} // namespace

std::vector<Detail> detailsOf(std::string const &headerName, Typed const &typed) {
    if (!typed.kind) return {};
    Details details(headerName);
    if (typed.value)
        std::visit(details, *typed.value);
    else
        details.problem(typed.problem);
    return std::move(details.list);
}

} // namespace inspect
