#include "hosts/common/DiagnosticsLog.h"
#include "hosts/ctl/CommandLine.h"
#include "hosts/ctl/Commands.h"
#include "hosts/ctl/Failure.h"
#include "hosts/ctl/PrintableText.h"
#include "hosts/ctl/Script.h"

#include <clocale>
#include <iostream>

namespace {

// Prints one line, whatever the text contains.
void say(const std::string& text) {
    std::cerr << "vantrelctl: " << ctl::shown(wire::toWide(text)) << std::endl;
}

int fail(ctl::ExitStatus status, const std::string& text) {
    say(text);
    return static_cast<int>(status);
}

int run(int count, const char* const* arguments) {
    const auto commandLine = ctl::parseCommandLine(count, arguments);
    if (const auto* const information = std::get_if<ctl::Information>(&commandLine)) {
        std::cout << information->text;
    } else {
        const auto& options = std::get<ctl::Options>(commandLine);
        ctl::Session session(options, std::cerr);
        if (options.command == ctl::CommandKind::script) {
            ctl::runScript(options, session, std::cout, std::cerr);
        } else {
            ctl::carryOut(options, session, std::cout);
        }
    }
    std::cout.flush();
    if (!std::cout) {
        return fail(ctl::ExitStatus::refused, "Standard output can't be written");
    }
    return static_cast<int>(ctl::ExitStatus::done);
}

} // namespace

int main(int count, char** arguments) {
    std::setlocale(LC_ALL, "");
    common::installDiagnosticsLog(say);
    try {
        return run(count, arguments);
    } catch (const ctl::Failure& failure) {
        return fail(failure.status(), failure.what());
    } catch (const char* text) {
        return fail(ctl::ExitStatus::refused, text);
    } catch (const std::exception& exception) {
        return fail(ctl::ExitStatus::refused, exception.what());
    }
}
