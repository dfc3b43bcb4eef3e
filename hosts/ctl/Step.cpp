#include "hosts/ctl/Step.h"

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/PrintableText.h"

#include <array>
#include <utility>

namespace ctl {
namespace {

constexpr std::array<std::string_view, 4> optionNames{"--set", "--select", "--press", "--answer"};

constexpr std::array<std::pair<std::u16string_view, platform::Answer>, 4> answers{
    {{u"ok", platform::Answer::ok},
     {u"cancel", platform::Answer::cancel},
     {u"yes", platform::Answer::yes},
     {u"no", platform::Answer::no}}};

platform::Answer parseAnswer(std::string_view text) {
    for (const auto& [name, answer] : answers) {
        if (sameWord(name, wire::toWide(text))) {
            return answer;
        }
    }
    throw Failure(ExitStatus::usage, "--answer takes ok, cancel, yes or no, not \"" + std::string(text) + '"');
}

} // namespace

Step parseStep(Step::Kind kind, std::string_view argument) {
    const auto option = optionNames[static_cast<std::size_t>(kind)];
    Step step{.kind = kind, .written = std::string(option) + " \"" + shown(wire::toWide(argument.substr(0, 80))) + '"'};
    if (kind == Step::Kind::answer) {
        step.answer = parseAnswer(argument);
        return step;
    }
    if (kind == Step::Kind::press) {
        step.label = wire::toWide(argument);
        return step;
    }
    const auto equals = argument.find('=');
    if (equals == std::string_view::npos || equals == 0) {
        throw Failure(ExitStatus::usage,
                      std::string(option) + " takes LABEL=VALUE, not \"" + std::string(argument) + '"');
    }
    step.label = wire::toWide(argument.substr(0, equals));
    step.value = bearable(wire::toWide(argument.substr(equals + 1)));
    return step;
}

} // namespace ctl
