#include "tests/transcripts/desktop/Person.h"

#include "hosts/ctl/BoxReply.h"
#include "hosts/desktop/look/Text.h"
#include "tests/transcripts/desktop/FormHands.h"
#include "tests/transcripts/desktop/Hands.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>

#include <utility>

namespace transcripts {
namespace {

namespace style = platform::boxStyle;

constexpr int blink = 5; // milliseconds

// As the console has asked for it.
std::uint32_t styleOf(const QMessageBox& box) {
    const auto buttons = box.standardButtons();
    std::uint32_t all = 0;
    if (buttons.testFlag(QMessageBox::Yes)) {
        all = buttons.testFlag(QMessageBox::Cancel) ? style::yesNoCancel : style::yesNo;
    } else if (buttons.testFlag(QMessageBox::Cancel)) {
        all = style::okCancel;
    }
    const auto icon = box.icon();
    return all | (icon == QMessageBox::Critical  ? style::iconStop
                  : icon == QMessageBox::Warning ? style::iconWarning
                                                 : 0U);
}

QMessageBox::StandardButton buttonOf(platform::Answer answer) {
    switch (answer) {
    case platform::Answer::cancel:
        return QMessageBox::Cancel;
    case platform::Answer::yes:
        return QMessageBox::Yes;
    case platform::Answer::no:
        return QMessageBox::No;
    default:
        return QMessageBox::Ok;
    }
}

} // namespace

Person::Person(std::function<void()> beforeStep) : beforeStep_(std::move(beforeStep)) {
    timer_.setInterval(blink);
    timer_.callOnTimeout(this, [this] { look(); });
    timer_.start();
}

void Person::look() {
    if (auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()); menu != nullptr && onMenu_) {
        std::exchange(onMenu_, nullptr)(*menu);
        return;
    }
    QPointer<QWidget> modal = QApplication::activeModalWidget();
    if (modal == nullptr || goes_ || (!busyWith_.empty() && busyWith_.back() == modal)) {
        return;
    }
    goes_ = true;
    // Not from within the timer, which would not fire while another dialog stands over this one.
    QMetaObject::invokeMethod(
        this,
        [this, modal] {
            goes_ = false;
            if (modal != nullptr && modal == QApplication::activeModalWidget()) {
                act(*modal);
            }
        },
        Qt::QueuedConnection);
}

void Person::act(QWidget& modal) {
    busyWith_.push_back(&modal);
    try {
        auto* const dialog = dynamic_cast<desktop::FormDialog*>(&modal);
        if (auto* const box = qobject_cast<QMessageBox*>(&modal)) {
            answer(*box);
        } else if (!goesOn()) {
            hands::press(modal, Qt::Key_Escape);
        } else if (dialog != nullptr) {
            const ctl::Step* const step = steps_.next();
            if (step == nullptr) {
                throw ctl::leftOpen(dialog->form());
            }
            if (step->kind == ctl::Step::Kind::answer) {
                throw ctl::notAsked(*step);
            }
            const ctl::Step taken = *step;
            steps_.done();
            performStep(*dialog, taken);
        }
    } catch (const ctl::Failure& failure) {
        fail(failure);
    }
    busyWith_.pop_back();
}

bool Person::goesOn() {
    if (!failure_) {
        try {
            beforeStep_();
        } catch (const ctl::Failure& failure) {
            fail(failure);
        }
    }
    return !failure_;
}

void Person::answer(QMessageBox& box) {
    if (QAbstractButton* const close = box.button(QMessageBox::Close)) {
        hands::click(*close); // an offer of the window itself, after what the server has said
        return;
    }
    const bool going = goesOn();
    const auto text = ctl::withObject(desktop::toWideString(box.text()), desktop::toWideString(box.informativeText()));
    const auto reply =
        ctl::replyTo(going ? steps_.next() : nullptr, text, desktop::toWideString(box.windowTitle()), styleOf(box));
    if (reply.takesStep) {
        steps_.done();
    }
    if (!reply.said.empty()) {
        said_ += "vantrelctl: " + reply.said + '\n';
    }
    if (reply.failure) {
        fail(*reply.failure);
    }
    hands::click(*box.button(buttonOf(reply.answer)));
}

void Person::fail(const ctl::Failure& failure) {
    if (!failure_) {
        failure_ = failure;
    }
}

void Person::finish() {
    if (failure_) {
        throw *failure_;
    }
    if (const ctl::Step* const step = steps_.next()) {
        throw ctl::leftOver(*step);
    }
}

} // namespace transcripts
