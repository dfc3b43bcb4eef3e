#pragma once

#include "console/UserInterface.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace support {

// The person at the screen, with answers prepared by the test. The running test fails on a question or a form that was
// not announced, on one that comes in another order, and on an announced one that never came.
class FakeUserInterface final : public console::UserInterface {
public:
    // A message box that was shown.
    struct Box {
        console::WindowHandle owner = 0;
        wire::WideString text;
        wire::WideString caption;
        std::uint32_t style = 0;
    };

    ~FakeUserInterface() override;

    // Announces the next message box, with its text when the test cares for it.
    void expectBox(console::Answer answer, std::optional<wire::WideString> text = std::nullopt);
    // Announces the next form. The script acts as the person does and has to bring the form to its end.
    void expectForm(std::function<void(console::Form&)> script);
    // The same for a form of the class Dialog.
    template <class Dialog>
    void expect(std::function<void(Dialog&)> script) {
        expectForm([script = std::move(script)](console::Form& form) { script(asKind<Dialog>(form)); });
    }

    const std::vector<Box>& boxes() const { return boxes_; }
    // Every sequence of keys that was pressed.
    const std::vector<std::vector<console::Key>>& presses() const { return presses_; }
    // The titles of all forms, as they stood once the form was filled.
    const std::vector<wire::WideString>& forms() const { return forms_; }

    bool runThreadsAtOnce = true;
    // Runs what startThread has kept.
    void runThreads();
    std::size_t waitingThreads() const { return threads_.size(); }

    console::WindowHandle active = 77;
    std::vector<console::WindowHandle> foreground; // windows brought to the front
    std::vector<console::WindowHandle> closed;

    console::Answer messageBox(console::WindowHandle owner, const wire::WideString& text,
                               const wire::WideString& caption, std::uint32_t style) override;
    int runModal(console::Form& form, console::WindowHandle owner) override;
    void press(std::span<const console::Key> keys) override;
    void startThread(std::function<void()> work) override;
    console::WindowHandle activeWindow() override { return active; }
    void setForeground(console::WindowHandle window) override { foreground.push_back(window); }
    void close(console::WindowHandle window) override { closed.push_back(window); }

    // The owners of the forms, in the order of forms().
    std::vector<console::WindowHandle> formOwners;

private:
    // Either a box or a form that the test has announced.
    struct Expected {
        std::optional<console::Answer> answer;
        std::optional<wire::WideString> text;
        std::function<void(console::Form&)> script;
    };

    template <class Dialog>
    static Dialog& asKind(console::Form& form) {
        return dynamic_cast<Dialog&>(form);
    }

    std::deque<Expected> expected_;
    std::vector<Box> boxes_;
    std::vector<std::vector<console::Key>> presses_;
    std::vector<wire::WideString> forms_;
    std::deque<std::function<void()>> threads_;
};

} // namespace support
