#include "rules/NewMessageDlg.h"

#include "client/CQVXAdminClass.h"
#include "client/rules/NewRecord.h"
#include "forms/Questions.h"

#include <utility>

namespace rules {
namespace {

using protocol::messageType::webPage;

constexpr std::size_t webPageRow = 2;
constexpr std::u16string_view emptyField = u"A required field is empty!";

} // namespace

NewMessageDlg::NewMessageDlg(platform::Platform& platform)
    : Form(platform, u"New message"), editing_(false), message_(client::newRecord<protocol::UserMessageRecord>()) {}

NewMessageDlg::NewMessageDlg(platform::Platform& platform, protocol::UserMessageRecord message)
    : Form(platform, u"New message"), editing_(true), message_(std::move(message)) {}

void NewMessageDlg::onInitDialog() {
    for (const auto* const label : {u"OK", u"Warning", u"Stop", u"Info"}) {
        icon.addItem(label);
    }
    for (const auto* const label : {u"Message box", u"Balloon", u"Web page"}) {
        type.addItem(label);
    }
    icon.select(0);
    type.select(0);
    type.onSelect = [this] { typeChanged(); };
    if (editing_) {
        setTitle(u"Edit Message");
        showMessage();
    }
    enableFields();
}

bool NewMessageDlg::isWebPage() const {
    return type.selection() == webPageRow;
}

void NewMessageDlg::enableFields() {
    const bool page = isWebPage();
    caption.setEnabled(!page);
    text.setEnabled(!page);
    icon.setEnabled(!page);
    url.setEnabled(page);
}

void NewMessageDlg::typeChanged() {
    if (isWebPage()) {
        icon.select(0);
    }
    enableFields();
}

void NewMessageDlg::showMessage() {
    if (message_.type >= 1 && message_.type <= webPage) {
        type.select(message_.type - 1);
    }
    name.setText(message_.name);
    if (isWebPage()) {
        url.setText(message_.text);
    } else {
        caption.setText(message_.caption);
        text.setText(message_.text);
    }
    if (message_.icon <= protocol::messageIcon::last) {
        icon.select(message_.icon);
    }
}

void NewMessageDlg::onOk() {
    if (!takeNames()) {
        return;
    }
    message_.type = static_cast<std::uint32_t>(type.selection().value_or(0) + 1);
    message_.text = isWebPage() ? url.text() : text.text();
    message_.icon = static_cast<std::uint32_t>(icon.selection().value_or(0));
    client::CQVXAdminClass client;
    if (editing_) {
        client.updateUserMessage(message_);
    } else {
        client.addUserMessage(message_);
    }
    EndDialog(forms::idOk);
}

// A web page keeps the caption that it had as another type. A message with only a caption gets that as its name.
bool NewMessageDlg::takeNames() {
    if (isWebPage()) {
        if (name.text().empty()) {
            forms::refuseBlank(name, u"Name cannot be blank!", emptyField);
            return false;
        }
        message_.name = name.text();
        return true;
    }
    if (name.text().empty() && caption.text().empty()) {
        forms::refuseBlank(name, u"Please enter either name or caption!", emptyField);
        return false;
    }
    message_.name = name.text().empty() ? caption.text() : name.text();
    message_.caption = caption.text();
    return true;
}

} // namespace rules
