#include "rules/NewMessageDlg.h"

#include "protocol/rules/UserMessage.h"
#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace {

using platform::Answer;
using protocol::UserMessageRecord;
using protocol::WriteUserMessageRequest;
using rules::NewMessageDlg;

const wire::Uuid knownId = wire::parseUuid("0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480");

UserMessageRecord balloon() {
    return {.id = knownId,
            .name = u"Quota",
            .subtitle = {},
            .caption = u"Attention",
            .text = u"No pages left",
            .icon = 2,
            .type = 2,
            .builtIn = true};
}

class NewMessageDialog : public ::testing::Test {
protected:
    WriteUserMessageRequest sent() { return estate_.change<WriteUserMessageRequest>(1); }

    support::TestPlatform platform_;
    support::RuleEstate estate_{platform_.platform().hooks};
};

TEST_F(NewMessageDialog, startsAsAMessageBoxWithTheFirstIcon) {
    NewMessageDlg dialog(platform_);

    dialog.open();

    EXPECT_EQ(dialog.title(), u"New message");
    EXPECT_EQ(dialog.type.selectedText(), u"Message box");
    EXPECT_EQ(dialog.icon.selectedText(), u"OK");
    EXPECT_TRUE(dialog.caption.enabled());
    EXPECT_TRUE(dialog.text.enabled());
    EXPECT_TRUE(dialog.icon.enabled());
    EXPECT_FALSE(dialog.url.enabled());
}

TEST_F(NewMessageDialog, offersThreeTypesAndFourIcons) {
    NewMessageDlg dialog(platform_);

    dialog.open();

    ASSERT_EQ(dialog.type.items().size(), 3U);
    EXPECT_EQ(dialog.type.items()[1].text, u"Balloon");
    EXPECT_EQ(dialog.type.items()[2].text, u"Web page");
    ASSERT_EQ(dialog.icon.items().size(), 4U);
    EXPECT_EQ(dialog.icon.items()[1].text, u"Warning");
    EXPECT_EQ(dialog.icon.items()[2].text, u"Stop");
    EXPECT_EQ(dialog.icon.items()[3].text, u"Info");
}

TEST_F(NewMessageDialog, aWebPageHasTheIconOkAndNothingButItsUrl) {
    NewMessageDlg dialog(platform_);
    dialog.open();
    dialog.icon.userSelected(2);

    dialog.type.userSelected(2);

    EXPECT_EQ(dialog.icon.selectedText(), u"OK");
    EXPECT_FALSE(dialog.caption.enabled());
    EXPECT_FALSE(dialog.text.enabled());
    EXPECT_FALSE(dialog.icon.enabled());
    EXPECT_TRUE(dialog.url.enabled());
}

TEST_F(NewMessageDialog, aBalloonHasTheFieldsOfAMessageBox) {
    NewMessageDlg dialog(platform_);
    dialog.open();
    dialog.type.userSelected(2);

    dialog.type.userSelected(1);

    EXPECT_TRUE(dialog.caption.enabled());
    EXPECT_TRUE(dialog.text.enabled());
    EXPECT_TRUE(dialog.icon.enabled());
    EXPECT_FALSE(dialog.url.enabled());
}

TEST_F(NewMessageDialog, addsANewMessageWithAFreshId) {
    NewMessageDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Quota");
    dialog.caption.userTyped(u"Attention");
    dialog.text.userTyped(u"No pages left");
    dialog.icon.userSelected(3);

    dialog.okButton().userPressed();

    EXPECT_EQ(dialog.result(), forms::idOk);
    EXPECT_EQ(sent().action, 1);
    EXPECT_EQ(sent().message.name, u"Quota");
    EXPECT_EQ(sent().message.caption, u"Attention");
    EXPECT_EQ(sent().message.text, u"No pages left");
    EXPECT_EQ(sent().message.icon, 3U);
    EXPECT_EQ(sent().message.type, 1U);
    EXPECT_FALSE(sent().message.builtIn);
    EXPECT_EQ(sent().message.id.version(), wire::Uuid::version_random_number_based);
    EXPECT_EQ(dialog.record(), sent().message);
}

TEST_F(NewMessageDialog, aBlankNameWithACaptionStoresTheCaptionAsNameToo) {
    NewMessageDlg dialog(platform_);
    dialog.open();
    dialog.caption.userTyped(u"Attention");

    dialog.okButton().userPressed();

    EXPECT_EQ(sent().message.name, u"Attention");
    EXPECT_EQ(sent().message.caption, u"Attention");
    EXPECT_EQ(sent().message.text, u"");
}

TEST_F(NewMessageDialog, aNameAloneLeavesTheCaptionEmpty) {
    NewMessageDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Quota");

    dialog.okButton().userPressed();

    EXPECT_EQ(sent().message.name, u"Quota");
    EXPECT_EQ(sent().message.caption, u"");
}

TEST_F(NewMessageDialog, wantsANameOrACaption) {
    NewMessageDlg dialog(platform_);
    dialog.open();
    platform_.ui.expectBox(Answer::ok, u"Please enter either name or caption!");

    dialog.okButton().userPressed();

    EXPECT_FALSE(dialog.ended());
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"A required field is empty!");
    EXPECT_EQ(platform_.ui.boxes().back().style, 0x30U);
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(NewMessageDialog, wantsTheNameOfAWebPage) {
    NewMessageDlg dialog(platform_);
    dialog.open();
    dialog.caption.userTyped(u"Attention");
    dialog.type.userSelected(2);
    platform_.ui.expectBox(Answer::ok, u"Name cannot be blank!");

    dialog.okButton().userPressed();

    EXPECT_FALSE(dialog.ended());
    EXPECT_EQ(dialog.focus(), &dialog.name);
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"A required field is empty!");
    EXPECT_EQ(platform_.ui.boxes().back().style, 0x30U);
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(NewMessageDialog, storesTheUrlOfAWebPageAsItsText) {
    NewMessageDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Intranet");
    dialog.text.userTyped(u"left over");
    dialog.type.userSelected(2);
    dialog.url.userTyped(u"https://print.example.com/");

    dialog.okButton().userPressed();

    EXPECT_EQ(sent().message.type, 3U);
    EXPECT_EQ(sent().message.text, u"https://print.example.com/");
    EXPECT_EQ(sent().message.icon, 0U);
}

TEST_F(NewMessageDialog, showsTheMessageToEdit) {
    NewMessageDlg dialog(platform_, balloon());

    dialog.open();

    EXPECT_EQ(dialog.title(), u"Edit Message");
    EXPECT_EQ(dialog.name.text(), u"Quota");
    EXPECT_EQ(dialog.type.selectedText(), u"Balloon");
    EXPECT_EQ(dialog.caption.text(), u"Attention");
    EXPECT_EQ(dialog.text.text(), u"No pages left");
    EXPECT_EQ(dialog.icon.selectedText(), u"Stop");
    EXPECT_EQ(dialog.url.text(), u"");
    EXPECT_FALSE(dialog.url.enabled());
}

TEST_F(NewMessageDialog, showsTheTextOfAWebPageAsItsUrl) {
    auto page = balloon();
    page.type = 3;
    NewMessageDlg dialog(platform_, page);

    dialog.open();

    EXPECT_EQ(dialog.url.text(), u"No pages left");
    EXPECT_EQ(dialog.caption.text(), u"");
    EXPECT_EQ(dialog.text.text(), u"");
    EXPECT_TRUE(dialog.url.enabled());
    EXPECT_FALSE(dialog.text.enabled());
}

TEST_F(NewMessageDialog, aWebPageKeepsTheCaptionThatItHad) {
    NewMessageDlg dialog(platform_, balloon());
    dialog.open();
    dialog.type.userSelected(2);

    dialog.okButton().userPressed();

    EXPECT_EQ(sent().message.caption, u"Attention");
    EXPECT_EQ(sent().message.text, u"");
}

TEST_F(NewMessageDialog, anIconThatDoesNotExistIsTheFirstOne) {
    auto odd = balloon();
    odd.icon = 4;
    NewMessageDlg dialog(platform_, odd);
    dialog.open();
    EXPECT_EQ(dialog.icon.selectedText(), u"OK");

    dialog.okButton().userPressed();

    EXPECT_EQ(sent().message.icon, 0U);
}

TEST_F(NewMessageDialog, aTypeThatDoesNotExistIsAMessageBox) {
    for (const std::uint32_t type : {0U, 4U, 0xFFFFFFFFU}) {
        auto odd = balloon();
        odd.type = type;
        NewMessageDlg dialog(platform_, odd);

        dialog.open();

        EXPECT_EQ(dialog.type.selectedText(), u"Message box");
        EXPECT_EQ(dialog.text.text(), u"No pages left");
    }
}

TEST_F(NewMessageDialog, aBuiltInMessageCanBeEdited) {
    NewMessageDlg dialog(platform_, balloon());
    dialog.open();
    dialog.text.userTyped(u"Ask the helpdesk");

    dialog.okButton().userPressed();

    auto expected = balloon();
    expected.text = u"Ask the helpdesk";
    EXPECT_EQ(sent().action, 2);
    EXPECT_EQ(sent().message, expected);
}

TEST_F(NewMessageDialog, sendsNothingOnCancel) {
    NewMessageDlg dialog(platform_, balloon());
    dialog.open();

    dialog.cancelButton().userPressed();

    EXPECT_EQ(dialog.result(), forms::idCancel);
    EXPECT_TRUE(platform_.commands().empty());
}

} // namespace
