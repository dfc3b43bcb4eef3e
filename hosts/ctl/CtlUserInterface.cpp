#include "hosts/ctl/CtlUserInterface.h"

#include "forms/Form.h"
#include "hosts/ctl/BoxReply.h"
#include "hosts/ctl/FormDriver.h"

namespace ctl {

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
        throw leftOver(*step);
    }
}

platform::Answer CtlUserInterface::messageBox(platform::WindowHandle /*owner*/, const wire::WideString& text,
                                              const wire::WideString& caption, std::uint32_t boxStyle) {
    const bool going = goesOn();
    const auto reply = replyTo(going ? steps_.next() : nullptr, text, caption, boxStyle);
    if (reply.takesStep) {
        steps_.done();
    }
    if (!reply.said.empty()) {
        errors_ << "vantrelctl: " << reply.said << '\n';
    }
    if (reply.failure) {
        fail(*reply.failure);
    }
    return reply.answer;
}

// The name stands on the line of the question.
platform::Answer CtlUserInterface::messageBoxAbout(platform::WindowHandle owner, const wire::WideString& object,
                                                   const wire::WideString& text, const wire::WideString& caption,
                                                   std::uint32_t boxStyle) {
    return messageBox(owner, withObject(text, object), caption, boxStyle);
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
    if (step == nullptr && reader_) {
        if (!std::exchange(hasRead_, true)) {
            reader_(form);
        }
        form.userCancelled();
        return;
    }
    if (step == nullptr) {
        throw leftOpen(form);
    }
    if (step->kind == Step::Kind::answer) {
        throw notAsked(*step);
    }
    const Step taken = *step;
    steps_.done();
    perform(form, taken);
}

} // namespace ctl
