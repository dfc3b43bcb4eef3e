#include "tests/support/FakeUserInterface.h"

#include "console/Form.h"

#include <gtest/gtest.h>

#include <exception>
#include <utility>

namespace support {
namespace {

bool offers(std::uint32_t style, console::Answer answer) {
    using console::Answer;
    switch (style & console::boxStyle::buttonMask) {
    case console::boxStyle::ok:
        return answer == Answer::ok;
    case console::boxStyle::okCancel:
        return answer == Answer::ok || answer == Answer::cancel;
    case console::boxStyle::yesNo:
        return answer == Answer::yes || answer == Answer::no;
    case console::boxStyle::yesNoCancel:
        return answer != Answer::ok;
    default:
        return false;
    }
}

console::Answer escape(std::uint32_t style) {
    switch (style & console::boxStyle::buttonMask) {
    case console::boxStyle::ok:
        return console::Answer::ok;
    case console::boxStyle::yesNo:
        return console::Answer::no;
    default:
        return console::Answer::cancel;
    }
}

// Sees to it that a form ends once and that its controls are told apart from those of other forms.
class Watcher final : public console::FormObserver {
public:
    explicit Watcher(const console::Form& form) : form_(form) {}

    void controlChanged(console::Control& control, console::Aspect /*aspect*/) override {
        EXPECT_EQ(&control.form(), &form_) << "a control of another form";
    }
    void titleChanged(console::Form& form) override { EXPECT_EQ(&form, &form_); }
    void formEnded(console::Form& form) override {
        EXPECT_EQ(&form, &form_);
        EXPECT_FALSE(std::exchange(ended_, true)) << "ended twice";
    }

private:
    const console::Form& form_;
    bool ended_ = false;
};

} // namespace

FakeUserInterface::~FakeUserInterface() {
    for (const Expected& left : expected_) {
        ADD_FAILURE() << "never came: "
                      << (left.script ? "a form" : "a box \"" + wire::toUtf8(left.text.value_or(u"")) + "\"");
    }
    if (!threads_.empty()) {
        ADD_FAILURE() << threads_.size() << " threads never ran";
    }
}

void FakeUserInterface::expectBox(console::Answer answer, std::optional<wire::WideString> text) {
    expected_.push_back({answer, std::move(text), nullptr});
}

void FakeUserInterface::expectForm(std::function<void(console::Form&)> script) {
    expected_.push_back({std::nullopt, std::nullopt, std::move(script)});
}

void FakeUserInterface::runThreads() {
    while (!threads_.empty()) {
        const auto work = std::move(threads_.front());
        threads_.pop_front();
        work();
    }
}

console::Answer FakeUserInterface::messageBox(console::WindowHandle owner, const wire::WideString& text,
                                              const wire::WideString& caption, std::uint32_t style) {
    boxes_.push_back({owner, text, caption, style});
    if (expected_.empty() || !expected_.front().answer) {
        ADD_FAILURE() << "unexpected box \"" << wire::toUtf8(text) << "\" (" << wire::toUtf8(caption) << ")";
        return escape(style);
    }
    const Expected next = std::move(expected_.front());
    expected_.pop_front();
    if (next.text) {
        EXPECT_EQ(wire::toUtf8(text), wire::toUtf8(*next.text));
    }
    EXPECT_TRUE(offers(style, *next.answer)) << "the box \"" << wire::toUtf8(text) << "\" has no such button";
    return *next.answer;
}

int FakeUserInterface::runModal(console::Form& form, console::WindowHandle owner) {
    formOwners.push_back(owner);
    Watcher watcher(form);
    form.setObserver(&watcher);
    form.open();
    forms_.push_back(form.title());
    const std::string name = wire::toUtf8(form.title());
    if (form.ended()) {
        form.setObserver(nullptr);
        return form.result();
    }
    if (expected_.empty() || !expected_.front().script) {
        ADD_FAILURE() << "unexpected form \"" << name << "\"";
        form.userCancelled();
    } else {
        const Expected next = std::move(expected_.front());
        expected_.pop_front();
        try {
            next.script(form);
        } catch (const std::exception& failure) {
            ADD_FAILURE() << "the script of \"" << name << "\" failed: " << failure.what();
        }
        EXPECT_TRUE(form.ended()) << "the script left \"" << name << "\" open";
    }
    form.setObserver(nullptr);
    return form.result();
}

void FakeUserInterface::press(std::span<const console::Key> keys) {
    presses_.emplace_back(keys.begin(), keys.end());
}

void FakeUserInterface::startThread(std::function<void()> work) {
    if (runThreadsAtOnce) {
        work();
    } else {
        threads_.push_back(std::move(work));
    }
}

} // namespace support
