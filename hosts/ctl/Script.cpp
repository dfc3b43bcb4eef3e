#include "hosts/ctl/Script.h"

#include "hosts/ctl/CommandLine.h"
#include "hosts/ctl/Commands.h"
#include "hosts/ctl/ShellWords.h"

#include <fstream>
#include <iostream>
#include <optional>

namespace ctl {
namespace {

Failure atLine(std::size_t number, const Failure& failure) {
    return {failure.status(), "Line " + std::to_string(number) + ": " + failure.what()};
}

bool namesAConnection(const Options& options) {
    return options.server || options.port || options.user || options.domain || options.passwordFile ||
           options.settings || options.activity;
}

Options parseLine(const std::vector<std::string>& words, Format format) {
    std::vector<const char*> arguments{"vantrelctl"};
    std::ranges::transform(words, std::back_inserter(arguments), [](const std::string& word) { return word.c_str(); });
    auto parsed = parseCommandLine(static_cast<int>(arguments.size()), arguments.data(), format);
    auto* const options = std::get_if<Options>(&parsed);
    if (options == nullptr || options->command == CommandKind::script) {
        throw Failure(ExitStatus::usage, "This can't be used in a script");
    }
    if (namesAConnection(*options)) {
        throw Failure(ExitStatus::usage,
                      "Give connection, settings and activity file for the whole script, not for a line of it");
    }
    return std::move(*options);
}

std::vector<ScriptLine> readScriptFile(const Options& options) {
    if (options.script == "-") {
        return readScript(std::cin, options.format);
    }
    std::ifstream file(options.script);
    std::vector<ScriptLine> lines;
    if (file) {
        lines = readScript(file, options.format);
    }
    if (!file.eof()) {
        throw Failure(ExitStatus::usage, "The script " + options.script + " can't be read");
    }
    return lines;
}

// Empty on success.
std::optional<Failure> carryOutLine(const ScriptLine& line, Session& session, std::ostream& out) {
    try {
        session.beginCommand();
        carryOut(line.options, session, out);
        return std::nullopt;
    } catch (const Failure& failure) {
        return atLine(line.number, failure);
    } catch (const std::exception& exception) {
        return atLine(line.number, {ExitStatus::refused, exception.what()});
    } catch (const char* text) { // what the wire layer throws
        return atLine(line.number, {ExitStatus::refused, text});
    }
}

} // namespace

std::vector<ScriptLine> readScript(std::istream& text, Format format) {
    std::vector<ScriptLine> lines;
    std::string line;
    for (std::size_t number = 1; std::getline(text, line); ++number) {
        try {
            const auto words = shellWords(line);
            if (!words.empty()) {
                lines.push_back({.number = number, .options = parseLine(words, format)});
            }
        } catch (const Failure& failure) {
            throw atLine(number, failure);
        }
    }
    return lines;
}

void runScript(const Options& options, Session& session, std::ostream& out, std::ostream& errors) {
    const auto lines = readScriptFile(options);
    session.logIn();
    std::size_t failed = 0;
    for (const auto& line : lines) {
        const auto failure = carryOutLine(line, session, out);
        if (!failure) {
            continue;
        }
        if (!options.keepGoing || failure->status() == ExitStatus::noConnection) {
            throw *failure;
        }
        errors << "vantrelctl: " << failure->what() << '\n';
        ++failed;
    }
    if (failed > 0) {
        throw Failure(ExitStatus::refused,
                      std::to_string(failed) + " of " + std::to_string(lines.size()) + " commands failed");
    }
}

} // namespace ctl
