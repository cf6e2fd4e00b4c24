#include "human_view.hpp"

#include "details.hpp"
#include "output.hpp"
#include "page.hpp"
#include "text.hpp"
#include <algorithm>
#include <co/co_charset.h>

namespace inspect {
namespace {

std::vector<Row> startLine(quillMessage const *message) {
    std::vector<Row> rows;
    auto add = [&](char const *name, std::string value) { rows.push_back({Style::part, name, {std::move(value)}}); };
    if (quillMessageIsRequest(message)) {
        String const method(quillMessageRequestMethod(message));
        String const iri(quillMessageRequestIri(message));
        add("method", shown(method.get()));
        add("request IRI", shown(iri.get()));
    } else {
        String const reason(quillMessageResponseReasonPhrase(message));
        add("status", std::to_string(quillMessageResponseStatusCode(message)));
        add("reason phrase", shown(reason.get()));
    }
    add("version", versionText(message));
    return rows;
}

void addHeaders(std::vector<Row> &rows, quillMessage const *message, bool typed) {
    eachHeader(message, [&](RawHeader const *header) {
        String const name(quillMessageHeaderName(header));
        Row row{Style::name, shown(name.get()), {}};
        eachLine(header, [&](coString const *line) { row.values.push_back(shown(line)); });
        if (typed) row.details = detailsOf(row.name, readTyped(header));
        rows.push_back(std::move(row));
    });
}

/// The body as text, or null when it had better be shown as bytes.
String asText(coBuffer const *body) {
    constexpr int64_t charsetUtf8 = 44, strict = 1;
    String text(coCharsetBufferToStringWithFlags(charsetUtf8, body, strict));
    if (!text) return text;
    std::u32string_view const chars(coStringBacking(text.get()), static_cast<size_t>(coStringLength(text.get())));
    bool const readable = std::all_of(chars.begin(), chars.end(), [](coChar ch) {
        bool const control = ch < 0x20 || (ch >= 0x7F && ch <= 0x9F);
        return !control || ch == '\t' || ch == '\r' || ch == '\n';
    });
    return readable ? std::move(text) : nullptr;
}

std::string count(int64_t bytes) { return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes"); }

} // namespace

void HumanView::message(Origin const &origin, quillMessage const *message) {
    Page page(colored);
    if (!first) page.text += '\n';
    first = false;
    page.put(Style::title, shown(origin.file));
    page.line(Style::plain, ", message " + std::to_string(origin.index) + ": " +
                                (quillMessageIsRequest(message) ? "request" : "response"));

    std::vector<Row> rows = startLine(message);
    addHeaders(rows, message, typed);
    Buffer const body(quillMessageBody(message));
    int64_t const length = body ? coBufferLength(body.get()) : 0;
    String const text = length > 0 ? asText(body.get()) : nullptr;
    rows.push_back({Style::part, "body", {length == 0 ? "none" : count(length) + (text ? ", text" : ", binary")}});
    page.table(rows);
    if (text)
        page.textBody(text.get());
    else if (length > 0)
        page.binaryBody({coBufferBacking(body.get()), static_cast<size_t>(length)});
    writeOutput(page.text);
}

} // namespace inspect
