#pragma once

#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/Form.h"
#include "forms/MultiLineEdit.h"
#include "protocol/rules/UserMessage.h"

namespace rules {

// Creates or edits what the printing user sees: a message box, a balloon or a web page.
class NewMessageDlg final : public forms::Form {
public:
    explicit NewMessageDlg(platform::Platform& platform);
    NewMessageDlg(platform::Platform& platform, protocol::UserMessageRecord message);

    // As it was sent to the server, once the form has ended with OK.
    [[nodiscard]] const protocol::UserMessageRecord& message() const { return message_; }

    forms::EditBox name{*this, u"Message name"};
    forms::DropList type{*this, u"Type"};
    forms::EditBox caption{*this, u"Caption"};
    forms::MultiLineEdit text{*this, u"Text"};
    forms::DropList icon{*this, u"Icon"};
    forms::EditBox url{*this, u"Url"};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    [[nodiscard]] bool isWebPage() const;
    void typeChanged();
    void enableFields();
    void showMessage();
    // False, with a message, when the names are not acceptable.
    bool takeNames();

    bool editing_;
    protocol::UserMessageRecord message_;
};

} // namespace rules
