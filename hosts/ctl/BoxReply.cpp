#include "hosts/ctl/BoxReply.h"

#include "forms/Form.h"
#include "hosts/ctl/PrintableText.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace ctl {
namespace {

using platform::Answer;
namespace style = platform::boxStyle;

struct Buttons {
    std::string_view words; // as in --answer
    std::vector<Answer> answers;
    Answer least; // the answer that changes nothing
};

Buttons buttonsOf(std::uint32_t boxStyle) {
    switch (boxStyle & style::buttonMask) {
    case style::okCancel:
        return {"ok|cancel", {Answer::ok, Answer::cancel}, Answer::cancel};
    case style::yesNoCancel:
        return {"yes|no|cancel", {Answer::yes, Answer::no, Answer::cancel}, Answer::cancel};
    case style::yesNo:
        return {"yes|no", {Answer::yes, Answer::no}, Answer::no};
    default:
        return {"ok", {Answer::ok}, Answer::ok};
    }
}

BoxReply statement(std::string line, std::uint32_t icon) {
    BoxReply reply{.answer = Answer::ok, .takesStep = true, .said = {}, .failure = {}};
    if (icon == style::iconWarning || icon == style::iconStop) {
        reply.failure = Failure(ExitStatus::refused, line);
    } else {
        reply.said = std::move(line);
    }
    return reply;
}

} // namespace

wire::WideString withObject(wire::WideStringView text, wire::WideStringView object) {
    wire::WideString line(text.substr(0, text.find_last_not_of(u' ') + 1));
    if (!object.empty()) {
        line.append(u" \"").append(object).append(u"\"");
    }
    return line;
}

BoxReply replyTo(const Step* next, wire::WideStringView text, wire::WideStringView caption, std::uint32_t boxStyle) {
    const Buttons buttons = buttonsOf(boxStyle);
    const std::string line = shown(caption) + ": " + shown(text.substr(0, text.find_last_not_of(u' ') + 1));
    const bool single = buttons.answers.size() == 1;
    if (next != nullptr && next->kind == Step::Kind::answer &&
        std::ranges::find(buttons.answers, next->answer) != buttons.answers.end()) {
        return single ? statement(line, boxStyle & style::iconMask)
                      : BoxReply{.answer = next->answer, .takesStep = true, .said = {}, .failure = {}};
    }
    const auto hint = single ? "" : " (answer with --answer " + std::string(buttons.words) + ")";
    return {
        .answer = buttons.least, .takesStep = false, .said = {}, .failure = Failure(ExitStatus::refused, line + hint)};
}

Failure leftOpen(forms::Form& form) {
    return {ExitStatus::refused, "The form \"" + shown(form.title()) +
                                     "\" was left open; end it with --press, for instance --press \"" +
                                     shown(form.okButton().label()) + '"'};
}

Failure notAsked(const Step& step) {
    return {ExitStatus::refused, "No question was asked for the step " + step.written};
}

Failure leftOver(const Step& step) {
    return {ExitStatus::refused, "There was no form or message box for the step " + step.written};
}

} // namespace ctl
