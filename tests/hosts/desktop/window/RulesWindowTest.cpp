#include "tests/hosts/desktop/WindowFixture.h"

#include "client/CQVXAdminClass.h"

#include <algorithm>

namespace desktoptest {
namespace {

// Editing rules as a user does, in nested dialogs.
class RulesWindow : public WindowFixture {
protected:
    // The visible box or list with that label; fails the test and returns the dialog when there is none.
    static QWidget& field(QDialog& dialog, const QString& label) {
        for (auto* const widget : dialog.findChildren<QWidget*>()) {
            if (widget->accessibleName() == label && widget->isVisible()) {
                return *widget;
            }
        }
        ADD_FAILURE() << "there is no " << label.toStdString();
        return dialog;
    }
    static void enter(QDialog& dialog, const QString& label, const QString& text) {
        QTest::keyClicks(&field(dialog, label), text);
    }
    // Chooses the last row of a list, which is "<New>", and acts on the dialog that opens.
    void makeNew(QDialog& dialog, const QString& list, std::function<void(QDialog&)> act) {
        whenAsked(std::move(act));
        QTest::keyClick(&field(dialog, list), Qt::Key_End);
    }
    void add(QDialog& dialog, std::function<void(QDialog&)> act) {
        whenAsked(std::move(act));
        press(dialog, QStringLiteral("Add..."));
    }

    template <class Record>
    static Record called(const std::vector<Record>& records, const wire::WideString& name) {
        const auto found = std::ranges::find(records, name, &Record::name);
        EXPECT_NE(records.end(), found) << wire::toUtf8(name);
        return found != records.end() ? *found : Record();
    }
    static std::vector<protocol::RuleGroupRecord> groups() {
        client::CQVXAdminClass client;
        std::vector<protocol::RuleGroupRecord> groups;
        EXPECT_TRUE(client.listRuleGroups(groups));
        return groups;
    }
};

TEST_F(RulesWindow, aGroupIsMadeWithALimitAMessageAndSomebodyAffectedInOneGoOfNestedDialogs) {
    open(QStringLiteral("Rules/Rule Groups"));
    const auto newMessage = [](QDialog& dialog) {
        enter(dialog, QStringLiteral("Message name"), QStringLiteral("Too long"));
        press(dialog, QStringLiteral("OK"));
    };
    const auto newLimit = [&](QDialog& dialog) {
        enter(dialog, QStringLiteral("Name"), QStringLiteral("Ten pages a job"));
        makeNew(dialog, QStringLiteral("Message"), newMessage);
        press(dialog, QStringLiteral("OK"));
    };
    const auto newAffected = [](QDialog& dialog) {
        enter(dialog, QStringLiteral("Name"), QStringLiteral("first-years"));
        press(dialog, QStringLiteral("OK"));
    };
    const auto newEntry = [&](QDialog& dialog) {
        enter(dialog, QStringLiteral("Name"), QStringLiteral("Quota of first years"));
        makeNew(dialog, QStringLiteral("Affected"), newAffected);
        makeNew(dialog, QStringLiteral("Limits"), newLimit);
        press(dialog, QStringLiteral("OK"));
    };
    whenAsked([&](QDialog& dialog) {
        enter(dialog, QStringLiteral("Group Name"), QStringLiteral("First years"));
        add(dialog, newEntry);
        press(dialog, QStringLiteral("OK"));
    });

    choose(QStringLiteral("New Rule Group..."));

    EXPECT_TRUE(rows().contains(QStringLiteral("First years")));
    client::CQVXAdminClass client;
    std::vector<protocol::RuleEntryRecord> entries;
    client.listRuleEntries(called(groups(), u"First years").id, 0, entries);
    ASSERT_EQ(1U, entries.size());
    EXPECT_EQ(u"Quota of first years", entries[0].name);
    EXPECT_EQ(u"first-years", entries[0].affectedName);
    const auto limit = client.getPageLimit(entries[0].targetId);
    ASSERT_TRUE(limit.has_value());
    EXPECT_EQ(u"Ten pages a job", limit->name);
    std::vector<protocol::UserMessageRecord> messages;
    client.listUserMessages(messages);
    EXPECT_EQ(called(messages, u"Too long").id, limit->messageId);
}

TEST_F(RulesWindow, aNewGroupThatIsCancelledLeavesNothingOnTheServer) {
    open(QStringLiteral("Rules/Rule Groups"));
    const auto before = groups();
    std::vector<protocol::RuleGroupRecord> meanwhile;
    whenAsked([&](QDialog& dialog) {
        meanwhile = groups();
        enter(dialog, QStringLiteral("Group Name"), QStringLiteral("First years"));
        add(dialog, [](QDialog& entry) {
            enter(entry, QStringLiteral("Name"), QStringLiteral("Quota of first years"));
            press(entry, QStringLiteral("OK"));
        });
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });

    choose(QStringLiteral("New Rule Group..."));

    EXPECT_EQ(before.size() + 1, meanwhile.size());
    EXPECT_EQ(before, groups());
}

} // namespace
} // namespace desktoptest
