#include "forms/Form.h"

#include "forms/FormWalk.h"
#include "forms/SendableText.h"
#include "platform/Guard.h"

#include <utility>

namespace forms {
namespace {

// The container of the two standard buttons.
class Footer final : public Container {
public:
    explicit Footer(Form& owner) : owner_(owner) {}
    Form& form() override { return owner_; }
    [[nodiscard]] bool shown() const override { return true; }

private:
    Form& owner_;
};

} // namespace

Form::Form(platform::Platform& platform, std::u16string_view title, FormOptions options)
    : platform_(platform),
      title_(title),
      footer_(std::make_unique<Footer>(*this)),
      ok_(std::make_unique<Button>(*footer_, options.okLabel, true)),
      cancel_(std::make_unique<Button>(*footer_, options.cancelLabel)) {
    ok_->setVisible(!options.okLabel.empty());
    cancel_->setVisible(!options.cancelLabel.empty());
    ok_->setResourceId(idOk);
    cancel_->setResourceId(idCancel);
    ok_->onPress = [this] { confirm(); };
    cancel_->onPress = [this] { onCancel(); };
}

void Form::open() {
    if (!std::exchange(opened_, true)) {
        const bool filled = guarded([this] { onInitDialog(); });
        if (!filled) {
            ok_->disableForGood();
        }
    }
}

void Form::confirm() {
    if (canSendTexts(*this)) {
        onOk();
    }
}

void Form::userCancelled() {
    if (!ended_ && cancel_->enabled()) {
        guarded([this] { onCancel(); });
    }
}

Button* Form::defaultButton(const Control* focused) {
    for (Control* control : controlsOf(*this)) {
        auto* const button = dynamic_cast<Button*>(control);
        const bool meant = focused == nullptr || control->beside() == nullptr || control->beside() == focused;
        if (meant && button != nullptr && button->isDefault() && button->reachable()) {
            return button;
        }
    }
    return nullptr;
}

void Form::userPressedDefault(const Control* focused) {
    if (Button* const button = defaultButton(focused)) {
        button->userPressed();
    }
}

void Form::EndDialog(int result) {
    if (std::exchange(ended_, true)) {
        return;
    }
    result_ = result;
    if (observer_ != nullptr) {
        observer_->formEnded(*this);
    }
}

void Form::resume() {
    ended_ = false;
    result_ = idCancel;
}

void Form::setTitle(wire::WideString title) {
    title_ = std::move(title);
    if (observer_ != nullptr) {
        observer_->titleChanged(*this);
    }
}

platform::Answer Form::messageBox(const wire::WideString& text, const wire::WideString& caption, std::uint32_t style) {
    return platform_.ui.messageBox(platform_.ui.activeWindow(), text, caption, style);
}

int Form::runModal(Form& nested) {
    return platform_.ui.runModal(nested, platform_.ui.activeWindow());
}

void Form::controlChanged(Control& control, Aspect aspect) {
    if (observer_ != nullptr) {
        observer_->controlChanged(control, aspect);
    }
}

bool Form::guarded(const std::function<void()>& handler) {
    return platform::guarded(
        platform_, [this] { return wire::toUtf8(title_); }, handler);
}

} // namespace forms
