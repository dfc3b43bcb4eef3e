#pragma once

#include "console/DropList.h"
#include "console/EditBox.h"
#include "console/Form.h"
#include "console/MultiLineEdit.h"
#include "protocol/rules/UserMessageRecord.h"

namespace rules {

// Makes or edits what a person who prints gets to see: a message box, a balloon or a web page.
class NewMessageDlg final : public console::Form {
public:
    explicit NewMessageDlg(console::Platform& platform);
    NewMessageDlg(console::Platform& platform, protocol::UserMessageRecord message);

    // As it was sent to the server, once the form has ended with OK.
    const protocol::UserMessageRecord& message() const { return message_; }

    console::EditBox name{*this, u"Message name"};
    console::DropList type{*this, u"Type"};
    console::EditBox caption{*this, u"Caption"};
    console::MultiLineEdit text{*this, u"Text"};
    console::DropList icon{*this, u"Icon"};
    console::EditBox url{*this, u"Url"};

protected:
    void onInitDialog() override;
    void onOk() override;

private:
    bool isWebPage() const;
    void typeChanged();
    void enableFields();
    void showMessage();
    // False, with a message, when the names given do not do.
    bool takeNames();
    void refuse(const wire::WideString& why);

    bool editing_;
    protocol::UserMessageRecord message_;
};

} // namespace rules
