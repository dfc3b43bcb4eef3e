#include "hosts/ctl/FormWriter.h"

#include "hosts/ctl/DateTimeText.h"
#include "tests/hosts/ctl/TestForm.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace hosttest {
namespace {

class FormWriter : public testing::Test {
protected:
    nlohmann::json written() {
        std::ostringstream out;
        ctl::writeForm(out, form, ctl::Format::json);
        return nlohmann::json::parse(out.str());
    }
    nlohmann::json control(const std::string& label) {
        const auto all = written();
        for (const auto& one : all["controls"]) {
            if (one["label"] == label) {
                return one;
            }
        }
        ADD_FAILURE() << "no control " << label;
        return {};
    }

    support::TestPlatform platform;
    TestForm form{platform};
};

TEST_F(FormWriter, tellsABoxAndItsText) {
    form.name.setText(u"North");

    const auto box = control("Name");

    EXPECT_EQ(box["kind"], "box");
    EXPECT_EQ(box["value"], "North");
    EXPECT_EQ(box["changeable"], true);
}

TEST_F(FormWriter, aDisabledOrReadOnlyBoxIsNotChangeable) {
    form.name.setReadOnly(true);
    form.number.setEnabled(false);

    EXPECT_EQ(control("Name")["changeable"], false);
    EXPECT_EQ(control("Number")["changeable"], false);
}

TEST_F(FormWriter, tellsWhatCanBeChosen) {
    form.model.select(1);

    const auto list = control("Details: Model");

    EXPECT_EQ(list["value"], "Ink");
    EXPECT_EQ(list["choices"], nlohmann::json::parse(R"(["Laser", "Ink"])"));
}

TEST_F(FormWriter, tellsAListWithoutItsHiddenColumns) {
    form.drivers.select(1);

    const auto list = control("Drivers");

    EXPECT_EQ(list["value"], "Second");
    EXPECT_EQ(list["columns"], nlohmann::json::parse(R"(["Name", "Age"])"));
    EXPECT_EQ(list["rows"], nlohmann::json::parse(R"([["First", "new"], ["Second", "old"]])"));
}

TEST_F(FormWriter, tellsTheControlsOfAllPages) {
    EXPECT_EQ(control("First: Place")["changeable"], true);
    EXPECT_EQ(control("Second: Place")["changeable"], true);
}

TEST_F(FormWriter, leavesOutWhatIsHidden) {
    form.name.setVisible(false);

    const auto all = written();
    for (const auto& one : all["controls"]) {
        EXPECT_NE(one["label"], "Name");
    }
}

TEST_F(FormWriter, tellsTicksAndTreesAndDates) {
    form.hidden.setChecked(true);
    form.regions.select(2);
    form.from.setValue(forms::DateTime{.year = 2024, .month = 3, .day = 5, .hour = 17, .minute = 4, .second = 9});

    EXPECT_EQ(control("Details: Invisible")["value"], true);
    EXPECT_EQ(control("Regions")["value"], "North/Office");
    EXPECT_EQ(control("From")["value"], "2024-03-05 17:04:09");
}

TEST_F(FormWriter, theTableHasALineForEachControl) {
    std::ostringstream out;

    ctl::writeForm(out, form, ctl::Format::csv);

    EXPECT_THAT(out.str(), testing::StartsWith("Kind,Label,Value,Changeable,Choices\r\nbox,Name,,yes,\r\n"));
}

TEST(DateTimeText, isWrittenWithThePartsOfThePicker) {
    const forms::DateTime value{.year = 2024, .month = 3, .day = 5, .hour = 7, .minute = 4, .second = 9};

    EXPECT_EQ(ctl::formatDateTime({}, value), "2024-03-05 07:04:09");
    EXPECT_EQ(ctl::formatDateTime({.time = false}, value), "2024-03-05");
    EXPECT_EQ(ctl::formatDateTime({.date = false}, value), "07:04:09");
    EXPECT_EQ(ctl::formatDateTime({.optional = true}, std::nullopt), "none");
}

} // namespace
} // namespace hosttest
