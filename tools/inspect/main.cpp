// quill-inspect: shows, checks and re-encodes SIP messages.

#include "catalogue.hpp"
#include "human_view.hpp"
#include "input.hpp"
#include "json_view.hpp"
#include "messages.hpp"
#include "output.hpp"
#include <algorithm>
#include <CLI/CLI.hpp>
#include <csignal>

using namespace inspect;

namespace {

/// The worst one is the exit status.
enum Status { allDecoded = 0, someUndecoded = 1, trouble = 2 };

struct Options {
    bool stream = false;
    bool json = false;
    bool encode = false;
    bool raw = false;
    bool headers = false;
    std::vector<std::string> files;
};

/// The library's own bytes of each message, and nothing else.
class EncodeView : public View {
public:
    void message(Origin const &, quillMessage const *message) override {
        Buffer const bytes(quillMessageEncode(message));
        writeOutput({reinterpret_cast<char const *>(coBufferBacking(bytes.get())),
                     static_cast<size_t>(coBufferLength(bytes.get()))});
    }
};

std::unique_ptr<View> viewFor(Options const &options) {
    if (options.json) return std::make_unique<JsonView>(!options.raw);
    if (options.encode) return std::make_unique<EncodeView>();
    return std::make_unique<HumanView>(!options.raw, outputHasColor());
}

Status inspectFile(std::string const &file, bool stream, View &view) {
    Buffer bytes;
    try {
        bytes = readInput(file);
    } catch (std::system_error const &error) {
        complain("cannot read " + file + ": " + error.code().message());
        return trouble;
    }
    Origin origin{file};
    auto take = [&](quillMessage const *message) {
        view.message(origin, message);
        origin.index++;
    };
    Trouble const rest = stream ? decodeStream(bytes.get(), take) : decodeDatagram(bytes.get(), take);
    if (!rest) return allDecoded;
    view.undecoded(origin);
    complain(file + ": message " + std::to_string(origin.index) + ": " + *rest);
    return someUndecoded;
}

Status inspectFiles(Options const &options) {
    Library const library;
    std::unique_ptr<View> const view = viewFor(options);
    Status status = allDecoded;
    for (std::string const &file : options.files) status = std::max(status, inspectFile(file, options.stream, *view));
    return status;
}

void listHeaders(Options const &options) {
    Library const library;
    writeOutput(options.json ? catalogueJson() : catalogueText());
}

Status run(int argc, char **argv) {
    Options options;
    CLI::App app("Shows SIP messages: start line, headers with their lines and parts, and body.", "quill-inspect");
    CLI::Option *files = app.add_option("FILE", options.files, "files to read; - or none: standard input");
    files->type_name("");
    CLI::Option *stream =
        app.add_flag("--stream", options.stream, "a file holds the bytes of a connection, not one datagram");
    CLI::Option *json = app.add_flag("--json", options.json, "one JSON object a message on one line");
    CLI::Option *encode = app.add_flag("--encode", options.encode, "write the canonical bytes of each message");
    encode->excludes(json);
    CLI::Option *raw = app.add_flag("--raw", options.raw, "leave the headers' lines as they are: no parts");
    raw->excludes(encode);
    app.add_flag("--headers", options.headers, "list the headers that are taken apart; with --json as objects")
        ->excludes(files, stream, encode, raw);
    app.set_version_flag("--version", "quill-inspect " QUILL_INSPECT_VERSION);
    app.footer(
        "Below the lines of a header stand its parts, or ! and what does not parse; nothing stands below a header\n"
        "that Quill has no type for.\n"
        "\n"
        "Exit status: 0 when everything decoded, 1 when something did not, 2 for wrong usage,\n"
        "an unreadable file or output that cannot be written.");
    try {
        app.parse(argc, argv);
    } catch (CLI::Success const &request) { // --help, --version
        std::ostringstream text;
        app.exit(request, text, text);
        writeOutput(text.str());
        return allDecoded;
    } catch (CLI::ParseError const &error) {
        complain(std::string(error.what()) + " (--help tells more)");
        return trouble;
    }
    if (options.headers) {
        listHeaders(options);
        return allDecoded;
    }
    if (options.files.empty()) options.files = {"-"};
    return inspectFiles(options);
}

} // namespace

int main(int argc, char **argv) {
    std::signal(SIGPIPE, SIG_IGN); // a closed pipe is a failed write like any other
    try {
        Status const status = run(argc, argv);
        flushOutput();
        return status;
    } catch (OutputError const &error) {
        std::string const line = "quill-inspect: cannot write: " + error.code().message() + '\n';
        std::fwrite(line.data(), 1, line.size(), stderr);
    } catch (std::exception const &error) {
        std::string const line = std::string("quill-inspect: ") + error.what() + '\n';
        std::fwrite(line.data(), 1, line.size(), stderr);
    }
    return trouble;
}
