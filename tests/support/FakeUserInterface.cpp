#include "tests/support/FakeUserInterface.h"

#include "forms/Form.h"

#include <gtest/gtest.h>

#include <exception>
#include <utility>

namespace support {
namespace {

bool offers(std::uint32_t style, platform::Answer answer) {
    using platform::Answer;
    switch (style & platform::boxStyle::buttonMask) {
    case platform::boxStyle::ok:
        return answer == Answer::ok;
    case platform::boxStyle::okCancel:
        return answer == Answer::ok || answer == Answer::cancel;
    case platform::boxStyle::yesNo:
        return answer == Answer::yes || answer == Answer::no;
    case platform::boxStyle::yesNoCancel:
        return answer != Answer::ok;
    default:
        return false;
    }
}

platform::Answer escape(std::uint32_t style) {
    switch (style & platform::boxStyle::buttonMask) {
    case platform::boxStyle::ok:
        return platform::Answer::ok;
    case platform::boxStyle::yesNo:
        return platform::Answer::no;
    default:
        return platform::Answer::cancel;
    }
}

// Checks that a form ends only once and reports only its own controls.
class Watcher final : public forms::FormObserver {
public:
    explicit Watcher(const forms::Form& form) : form_(form) {}

    void controlChanged(forms::Control& control, forms::Aspect /*aspect*/) override {
        EXPECT_EQ(&control.form(), &form_) << "a control of another form";
    }
    void titleChanged(forms::Form& form) override { EXPECT_EQ(&form, &form_); }
    void formEnded(forms::Form& form) override {
        EXPECT_EQ(&form, &form_);
        EXPECT_FALSE(std::exchange(ended_, true)) << "ended twice";
    }

private:
    const forms::Form& form_;
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

void FakeUserInterface::expectBox(platform::Answer answer, std::optional<wire::WideString> text) {
    expected_.push_back({answer, std::move(text), nullptr});
}

void FakeUserInterface::expectForm(std::function<void(forms::Form&)> script) {
    expected_.push_back({std::nullopt, std::nullopt, std::move(script)});
}

void FakeUserInterface::runThreads() {
    while (!threads_.empty()) {
        const auto work = std::move(threads_.front());
        threads_.pop_front();
        work();
    }
}

platform::Answer FakeUserInterface::messageBox(platform::WindowHandle owner, const wire::WideString& text,
                                               const wire::WideString& caption, std::uint32_t style) {
    boxes_.push_back({owner, text, caption, style, {}});
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

platform::Answer FakeUserInterface::messageBoxAbout(platform::WindowHandle owner, const wire::WideString& object,
                                                    const wire::WideString& text, const wire::WideString& caption,
                                                    std::uint32_t style) {
    const auto answer = messageBox(owner, text, caption, style);
    boxes_.back().object = object;
    return answer;
}

int FakeUserInterface::runModal(forms::Form& form, platform::WindowHandle owner) {
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

void FakeUserInterface::press(std::span<const platform::Key> keys) {
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
