#include "forms/EditableList.h"

#include "forms/Form.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace forms {
namespace {

using platform::Answer;
using testing::ElementsAre;
using testing::IsEmpty;

// Lists names, and records what it is asked to do.
class NameList final : public EditableList {
public:
    explicit NameList(Container& container) : EditableList(container, u"Names", u"Edit...") {
        setOtherRows(true, {u"<Default>", wire::WideString(newItem)});
    }

    using EditableList::namedRecord;
    using EditableList::refill;
    using EditableList::selectedRecord;

    std::vector<wire::WideString> names{u"Ann", u"Ben"};
    std::vector<std::string> calls;
    std::u16string_view question;
    bool reads = true;
    bool throws = false;

private:
    bool read() override {
        if (throws) {
            throw std::runtime_error("failed to get message");
        }
        return reads;
    }
    [[nodiscard]] std::size_t size() const override { return names.size(); }
    [[nodiscard]] const wire::WideString& name(std::size_t record) const override { return names[record]; }
    [[nodiscard]] std::optional<std::size_t> rowToGoBackTo() const override { return rowOf(0); }
    void followSelection() override { enableButtons(namedRecord().has_value()); }
    [[nodiscard]] std::u16string_view deleteQuestion() const override { return question; }
    void make() override { calls.emplace_back("make"); }
    void edit(std::size_t record) override { calls.push_back("edit " + std::to_string(record)); }
    void remove(std::size_t record) override { calls.push_back("remove " + std::to_string(record)); }
    void afterSelection() override { calls.emplace_back("selected"); }
};

class Owner final : public Form {
public:
    explicit Owner(platform::Platform& platform) : Form(platform, u"Owner") {}

    NameList names{*this};
};

class EditableLists : public testing::Test {
protected:
    EditableLists() { list_.refill(); }

    support::TestPlatform platform_;
    Owner owner_{platform_};
    NameList& list_ = owner_.names;
};

TEST_F(EditableLists, holdTheRecordsBetweenTheOtherRows) {
    std::vector<wire::WideString> rows;
    for (const auto& item : list_.list.items()) {
        rows.push_back(item.text);
    }

    EXPECT_THAT(rows, ElementsAre(u"", u"Ann", u"Ben", u"<Default>", u"<New>"));
    EXPECT_EQ(list_.list.selectedText(), u"Ann");
    EXPECT_EQ(list_.selectedRecord(), 0U);
    EXPECT_EQ(list_.editButton.beside(), &list_.list);
}

TEST_F(EditableLists, makeOneWhenNewIsChosen) {
    list_.list.userSelected(4);
    list_.list.userSelected(3);

    EXPECT_THAT(list_.calls, ElementsAre("make", "selected", "selected"));
}

TEST_F(EditableLists, editAndDeleteTheRecordOfTheSelectedRow) {
    list_.list.userSelected(2);

    list_.editButton.userPressed();
    list_.deleteButton.userPressed();

    EXPECT_THAT(list_.calls, ElementsAre("selected", "edit 1", "remove 1"));
}

TEST_F(EditableLists, askBeforeADeleteWhereThereIsAQuestion) {
    list_.question = u"Sure?";
    platform_.ui.expectBox(Answer::cancel, u"Sure?");
    list_.deleteButton.userPressed();
    EXPECT_THAT(list_.calls, IsEmpty());

    platform_.ui.expectBox(Answer::ok, u"Sure?");
    list_.deleteButton.userPressed();
    EXPECT_THAT(list_.calls, ElementsAre("remove 0"));
}

TEST_F(EditableLists, takeNoOtherRowForARecord) {
    for (const std::size_t row : {0U, 3U, 4U}) {
        list_.list.select(row);
        EXPECT_EQ(list_.selectedRecord(), std::nullopt) << row;
    }
}

TEST_F(EditableLists, canNotTellARecordFromARowOfTheSameText) {
    list_.names = {u"<Default>", u"<New>", u""};
    list_.refill();

    EXPECT_EQ(list_.selectedRecord(), std::nullopt);
    list_.list.select(2);
    EXPECT_EQ(list_.selectedRecord(), std::nullopt);
    list_.list.select(3);
    EXPECT_EQ(list_.selectedRecord(), 2U);
    EXPECT_EQ(list_.namedRecord(), std::nullopt);
}

TEST_F(EditableLists, sayWhetherTheirRecordsCouldBeRead) {
    std::vector<bool> heard;
    list_.onKnown = [&] { heard.push_back(list_.known()); };
    EXPECT_TRUE(list_.known());

    list_.reads = false;
    list_.refill();
    list_.reads = true;
    list_.refill();
    list_.throws = true;
    EXPECT_THROW(list_.refill(), std::runtime_error);

    EXPECT_THAT(heard, ElementsAre(false, false, false, true, false));
    EXPECT_FALSE(list_.known());
    EXPECT_TRUE(list_.list.items().empty());
}

} // namespace
} // namespace forms
