#include "forms/RecordForm.h"

#include "forms/EditBox.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Contact {
    std::string id;
    wire::WideString name;
};

// Notes down what would be sent.
class ContactDlg final : public RecordForm<Contact> {
public:
    explicit ContactDlg(platform::Platform& platform, std::optional<Record> edited = {})
        : RecordForm(platform, {u"New contact", u"Edit contact"}, std::move(edited), {"fresh", u"Nobody"}) {}

    EditBox name{*this, u"Name"};
    std::vector<std::string> calls;

protected:
    void onInitDialog() override { name.setText(record_.name); }
    bool take() override {
        record_.name = name.text();
        return !record_.name.empty();
    }
    void addRecord(client::CQVXAdminClass& /*client*/) override { note("add "); }
    void updateRecord(client::CQVXAdminClass& /*client*/) override { note("update "); }

private:
    void note(const std::string& call) { calls.push_back(call + record_.id + ' ' + wire::toUtf8(record_.name)); }
};

class RecordFormTest : public testing::Test {
protected:
    support::TestPlatform platform;
    ContactDlg maker{platform};
    ContactDlg editor{platform, Contact{"c1", u"Ann"}};

    RecordFormTest() {
        maker.open();
        editor.open();
    }
};

TEST_F(RecordFormTest, makesARecordOrEditsOneAndIsCalledSo) {
    EXPECT_EQ(maker.title(), u"New contact");
    EXPECT_EQ(maker.name.text(), u"Nobody");
    EXPECT_EQ(editor.title(), u"Edit contact");
    EXPECT_EQ(editor.name.text(), u"Ann");
}

TEST_F(RecordFormTest, addsANewRecord) {
    maker.name.userTyped(u"Ben");

    maker.okButton().userPressed();

    EXPECT_THAT(maker.calls, ElementsAre("add fresh Ben"));
    EXPECT_EQ(maker.result(), idOk);
    EXPECT_EQ(maker.record().name, u"Ben");
}

TEST_F(RecordFormTest, updatesTheRecordThatItEdits) {
    editor.name.userTyped(u"Anna");

    editor.okButton().userPressed();

    EXPECT_THAT(editor.calls, ElementsAre("update c1 Anna"));
    EXPECT_EQ(editor.result(), idOk);
}

TEST_F(RecordFormTest, writesNothingAsLongAsSomethingIsMissing) {
    editor.name.userTyped(u"");

    editor.okButton().userPressed();

    EXPECT_THAT(editor.calls, IsEmpty());
    EXPECT_FALSE(editor.ended());
}

TEST_F(RecordFormTest, tellsItsOpenerOnceTheRecordIsWrittenAndBeforeItEnds) {
    editor.onWritten = [this](const Contact& written) {
        EXPECT_FALSE(editor.ended());
        editor.calls.push_back("told " + written.id);
    };

    editor.okButton().userPressed();

    EXPECT_THAT(editor.calls, ElementsAre("update c1 Ann", "told c1"));
}

TEST_F(RecordFormTest, tellsNobodyWhenItIsCancelled) {
    editor.onWritten = [this](const Contact& /*written*/) { editor.calls.emplace_back("told"); };

    editor.cancelButton().userPressed();

    EXPECT_THAT(editor.calls, IsEmpty());
}

TEST_F(RecordFormTest, staysWhereItsOpenerFails) {
    editor.onWritten = [](const Contact& /*written*/) { throw std::runtime_error("failed to get messages"); };

    editor.okButton().userPressed();

    EXPECT_FALSE(editor.ended());
    EXPECT_THAT(platform.failures(), ElementsAre("Edit contact: failed to get messages"));
}

} // namespace
} // namespace forms
