#pragma once

#include "forms/ChoiceList.h"
#include "forms/EditBox.h"
#include "forms/MultiLineEdit.h"
#include "forms/RecordForm.h"
#include "protocol/rules/UserMessage.h"

namespace rules {

// Creates or edits what the printing user sees: a message box, a balloon or a web page.
class NewMessageDlg final : public forms::RecordForm<protocol::UserMessageRecord> {
public:
    explicit NewMessageDlg(platform::Platform& platform, std::optional<Record> edited = {});

    forms::EditBox name{*this, u"Message name"};
    forms::ChoiceList<std::uint32_t> type{*this,
                                          u"Type",
                                          {{protocol::messageType::box, u"Message box"},
                                           {protocol::messageType::balloon, u"Balloon"},
                                           {protocol::messageType::webPage, u"Web page"}}};
    forms::EditBox caption{*this, u"Caption"};
    forms::MultiLineEdit text{*this, u"Text"};
    forms::ChoiceList<std::uint32_t> icon{*this,
                                          u"Icon",
                                          {{protocol::messageIcon::ok, u"OK"},
                                           {protocol::messageIcon::warning, u"Warning"},
                                           {protocol::messageIcon::stop, u"Stop"},
                                           {protocol::messageIcon::info, u"Info"}}};
    forms::EditBox url{*this, u"Url"};

protected:
    void onInitDialog() override;
    bool take() override;
    void addRecord(client::CQVXAdminClass& client) override { client.addUserMessage(record_); }
    void updateRecord(client::CQVXAdminClass& client) override { client.updateUserMessage(record_); }

private:
    [[nodiscard]] bool isWebPage() const { return type.value() == protocol::messageType::webPage; }
    void typeChanged();
    void enableFields();
    void showMessage();
    // False, with a message, when the names are not acceptable.
    bool takeNames();
};

} // namespace rules
