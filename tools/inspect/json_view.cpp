#include "json_view.hpp"

#include "output.hpp"
#include "text.hpp"
#include "typed.hpp"
#include <cstdio>
#include <nlohmann/json.hpp>
#include <quill/quill_generic_param_value.h>

namespace inspect {
namespace {

using Json = nlohmann::ordered_json;

Json begin(Origin const &origin, bool ok) {
    return {{"file", repaired(origin.file)}, {"index", origin.index}, {"ok", ok}};
}

/// What a part holds.
struct ContentJson {
    Json operator()(bool isSet) const { return isSet; }
    Json operator()(int64_t number) const { return number; }
    Json operator()(Quality quality) const { return static_cast<double>(quality.thousandths) / 1000; }
    Json operator()(std::string const &text) const { return text; }
    Json operator()(std::vector<Parameter> const &parameters) const {
        Json list = Json::array();
        for (Parameter const &parameter : parameters) list.push_back(one(parameter));
        return list;
    }

private:
    static Json one(Parameter const &parameter) {
        switch (parameter.type) {
        case QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN:
            return {{"name", parameter.name}, {"type", "token"}, {"value", parameter.value}};
        case QUILL_GENERIC_PARAM_VALUE_TYPE_HOST:
            return {{"name", parameter.name}, {"type", "host"}, {"value", parameter.value}};
        case QUILL_GENERIC_PARAM_VALUE_TYPE_QUOTED_STRING:
            return {{"name", parameter.name}, {"type", "quoted"}, {"value", parameter.value}};
        default:
            return {{"name", parameter.name}, {"type", nullptr}};
        }
    }
};

/// What a header says, by shape, and what an element of a list does.
struct ValueJson {
    Json operator()(std::monostate) const { return nullptr; }
    Json operator()(std::string const &scalar) const { return scalar; }
    Json operator()(Parts const &parts) const {
        Json object = Json::object();
        for (Part const &part : parts) object[part.name] = std::visit(ContentJson(), part.content);
        return object;
    }
    Json operator()(Elements const &elements) const {
        Json list = Json::array();
        for (Element const &element : elements) list.push_back(std::visit(*this, element));
        return {{"elements", std::move(list)}};
    }
    Json operator()(Tokens const &tokens) const { return {{"tokens", tokens.all}}; }
};

void addTyped(Json &json, Typed const &typed) {
    json["typed"] = typed.kind ? Json(typed.value.has_value()) : Json();
    if (typed.value) json["value"] = std::visit(ValueJson(), *typed.value);
}

Json headersOf(quillMessage const *message, bool typed) {
    Json headers = Json::array();
    eachHeader(message, [&](RawHeader const *header) {
        Json lines = Json::array();
        eachLine(header, [&](coString const *line) { lines.push_back(utf8(line)); });
        String const name(quillMessageHeaderName(header));
        Json json = {{"name", utf8(name.get())}, {"lines", std::move(lines)}};
        if (typed) addTyped(json, readTyped(header));
        headers.push_back(std::move(json));
    });
    return headers;
}

/// JSON allows most of what could command a terminal to stand in a string as it is; here none of it does.
std::string line(Json const &json) {
    std::string const plain = json.dump();
    String const text(coStringCreateFromCstr(plain.data(), static_cast<int64_t>(plain.size())));
    std::string escaped;
    for (int64_t i = 0; i < coStringLength(text.get()); i++) {
        coChar const ch = coStringCharAt(text.get(), i);
        if (isPlain(ch)) {
            appendUtf8(escaped, ch);
        } else {
            char escape[16];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(ch));
            escaped += escape;
        }
    }
    return escaped + '\n';
}

} // namespace

void JsonView::message(Origin const &origin, quillMessage const *message) {
    Json json = begin(origin, true);
    if (quillMessageIsRequest(message)) {
        String const method(quillMessageRequestMethod(message));
        String const iri(quillMessageRequestIri(message));
        json["kind"] = "request";
        json["method"] = utf8(method.get());
        json["request_iri"] = utf8(iri.get());
    } else {
        String const reason(quillMessageResponseReasonPhrase(message));
        json["kind"] = "response";
        json["status"] = quillMessageResponseStatusCode(message);
        json["reason"] = utf8(reason.get());
    }
    json["version"] = versionText(message);
    json["headers"] = headersOf(message, typed);
    Buffer const body(quillMessageBody(message));
    json["body_length"] = body ? coBufferLength(body.get()) : 0;
    writeOutput(line(json));
}

void JsonView::undecoded(Origin const &origin) { writeOutput(line(begin(origin, false))); }

} // namespace inspect
