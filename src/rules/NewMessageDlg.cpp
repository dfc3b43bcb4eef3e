#include "rules/NewMessageDlg.h"

#include "client/rules/NewRecord.h"
#include "forms/Questions.h"

#include <utility>

namespace rules {
namespace {

constexpr std::u16string_view emptyField = u"A required field is empty!";

} // namespace

NewMessageDlg::NewMessageDlg(platform::Platform& platform, std::optional<Record> edited)
    : RecordForm(platform, {u"New message", u"Edit Message"}, std::move(edited), client::newRecord<Record>()) {}

void NewMessageDlg::onInitDialog() {
    type.onSelect = [this] { typeChanged(); };
    showMessage();
    enableFields();
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
    type.selectValue(record_.type);
    name.setText(record_.name);
    if (isWebPage()) {
        url.setText(record_.text);
    } else {
        caption.setText(record_.caption);
        text.setText(record_.text);
    }
    icon.selectValue(record_.icon);
}

bool NewMessageDlg::take() {
    if (!takeNames()) {
        return false;
    }
    record_.type = type.value().value_or(protocol::messageType::box);
    record_.text = isWebPage() ? url.text() : text.text();
    record_.icon = icon.value().value_or(protocol::messageIcon::ok);
    return true;
}

// A web page keeps the caption that it had as another type. A message with only a caption gets that as its name.
bool NewMessageDlg::takeNames() {
    if (isWebPage()) {
        if (name.text().empty()) {
            forms::refuseBlank(name, u"Name cannot be blank!", emptyField);
            return false;
        }
        record_.name = name.text();
        return true;
    }
    if (name.text().empty() && caption.text().empty()) {
        forms::refuseBlank(name, u"Please enter either name or caption!", emptyField);
        return false;
    }
    record_.name = name.text().empty() ? caption.text() : name.text();
    record_.caption = caption.text();
    return true;
}

} // namespace rules
