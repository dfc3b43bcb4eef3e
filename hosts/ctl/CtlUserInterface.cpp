#include "hosts/ctl/CtlUserInterface.h"

#include "forms/Form.h"
#include "hosts/ctl/FormDriver.h"
#include "hosts/ctl/PrintableText.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace ctl {
namespace {

using platform::Answer;
namespace style = platform::boxStyle;

struct Buttons {
    std::string_view words; // as --answer takes them
    std::vector<Answer> answers;
    Answer least; // what changes nothing
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

} // namespace

void CtlUserInterface::fail(const Failure& failure) {
    if (!failure_) {
        failure_ = failure;
    }
}

bool CtlUserInterface::goesOn() {
    if (!failure_ && beforeStep) {
        try {
            beforeStep();
        } catch (const Failure& failure) {
            fail(failure);
        }
    }
    return !failure_;
}

void CtlUserInterface::finish() {
    if (failure_) {
        throw *failure_;
    }
    if (const Step* const step = steps_.next()) {
        throw Failure(ExitStatus::refused, "Nothing was there to take the step " + step->written);
    }
}

Answer CtlUserInterface::messageBox(platform::WindowHandle /*owner*/, const wire::WideString& text,
                                    const wire::WideString& caption, std::uint32_t boxStyle) {
    const Buttons buttons = buttonsOf(boxStyle);
    const std::string line = shown(caption) + ": " + shown(text.substr(0, text.find_last_not_of(u' ') + 1));
    if (!goesOn()) {
        return buttons.least;
    }
    const Step* const step = steps_.next();
    const bool answered = step != nullptr && step->kind == Step::Kind::answer;
    if (answered && std::ranges::find(buttons.answers, step->answer) != buttons.answers.end()) {
        const Answer answer = step->answer;
        steps_.done();
        return buttons.answers.size() == 1 ? statement(line, boxStyle & style::iconMask) : answer;
    }
    if (buttons.answers.size() == 1) {
        fail({ExitStatus::refused, line});
    } else {
        fail({ExitStatus::refused, line + " (answer with --answer " + std::string(buttons.words) + ")"});
    }
    return buttons.least;
}

Answer CtlUserInterface::statement(const std::string& line, std::uint32_t icon) {
    if (icon == style::iconWarning || icon == style::iconStop) {
        fail({ExitStatus::refused, line});
    } else {
        errors_ << "vantrelctl: " << line << '\n';
    }
    return Answer::ok;
}

int CtlUserInterface::runModal(forms::Form& form, platform::WindowHandle /*owner*/) {
    form.open();
    try {
        while (!form.ended() && goesOn()) {
            drive(form);
        }
    } catch (const Failure& failure) {
        fail(failure);
    }
    if (!form.ended()) {
        form.userCancelled();
    }
    return form.result();
}

void CtlUserInterface::drive(forms::Form& form) {
    const Step* const step = steps_.next();
    if (step == nullptr) {
        throw Failure(ExitStatus::refused, "The form \"" + shown(form.title()) +
                                               "\" was left open; end it with --press, for instance --press \"" +
                                               shown(form.okButton().label()) + '"');
    }
    if (step->kind == Step::Kind::answer) {
        throw Failure(ExitStatus::refused, "No question was asked for the step " + step->written);
    }
    const Step taken = *step;
    steps_.done();
    perform(form, taken);
}

} // namespace ctl
