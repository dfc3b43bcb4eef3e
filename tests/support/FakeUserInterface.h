#pragma once

#include "platform/UserInterface.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace support {

// The user, with answers prepared by the test. The running test fails on a box or a form that was not announced, on one
// out of order, and on an announced one that never appeared.
class FakeUserInterface final : public platform::UserInterface {
public:
    // A message box that was shown.
    struct Box {
        platform::WindowHandle owner = 0;
        wire::WideString text;
        wire::WideString caption;
        std::uint32_t style = 0;
        wire::WideString object; // that it is about
    };

    ~FakeUserInterface() override;

    // Announces the next message box, with its text if the test checks it.
    void expectBox(platform::Answer answer, std::optional<wire::WideString> text = std::nullopt);
    // Announces the next form. The script acts as the user does and has to end the form.
    void expectForm(std::function<void(forms::Form&)> script);
    // The same for a form of the class Dialog.
    template <class Dialog>
    void expect(std::function<void(Dialog&)> script) {
        expectForm([script = std::move(script)](forms::Form& form) { script(asKind<Dialog>(form)); });
    }

    [[nodiscard]] const std::vector<Box>& boxes() const { return boxes_; }
    // Every sequence of keys that was pressed.
    [[nodiscard]] const std::vector<std::vector<platform::Key>>& presses() const { return presses_; }
    // The titles of all forms, read once the form was filled.
    [[nodiscard]] const std::vector<wire::WideString>& forms() const { return forms_; }

    bool runThreadsAtOnce = true;
    // Runs the work passed to startThread.
    void runThreads();
    [[nodiscard]] std::size_t waitingThreads() const { return threads_.size(); }

    platform::WindowHandle active = 77;
    std::vector<platform::WindowHandle> foreground; // windows brought to the front
    std::vector<platform::WindowHandle> closed;

    platform::Answer messageBox(platform::WindowHandle owner, const wire::WideString& text,
                                const wire::WideString& caption, std::uint32_t style) override;
    platform::Answer messageBoxAbout(platform::WindowHandle owner, const wire::WideString& object,
                                     const wire::WideString& text, const wire::WideString& caption,
                                     std::uint32_t style) override;
    int runModal(forms::Form& form, platform::WindowHandle owner) override;
    void press(std::span<const platform::Key> keys) override;
    void startThread(std::function<void()> work) override;
    platform::WindowHandle activeWindow() override { return active; }
    void setForeground(platform::WindowHandle window) override { foreground.push_back(window); }
    void close(platform::WindowHandle window) override { closed.push_back(window); }

    // The owners of the forms, in the order of forms().
    std::vector<platform::WindowHandle> formOwners;

private:
    // Either a box or a form that the test has announced.
    struct Expected {
        std::optional<platform::Answer> answer;
        std::optional<wire::WideString> text;
        std::function<void(forms::Form&)> script;
    };

    template <class Dialog>
    static Dialog& asKind(forms::Form& form) {
        return dynamic_cast<Dialog&>(form);
    }

    std::deque<Expected> expected_;
    std::vector<Box> boxes_;
    std::vector<std::vector<platform::Key>> presses_;
    std::vector<wire::WideString> forms_;
    std::deque<std::function<void()>> threads_;
};

} // namespace support
