#include "hosts/ctl/MenuWriter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

std::string written(ctl::Format format) {
    std::vector<shell::MenuItem> menu(3);
    menu[0].text = u"Create region";
    menu[0].statusText = u"To create a new region";
    menu[0].id = 247;
    menu[1].separator = true;
    menu[2].text = u"Delete region";
    menu[2].id = 302;
    std::ostringstream out;
    ctl::writeMenu(out, menu, format);
    return out.str();
}

TEST(MenuWriter, jsonHasSeparators) {
    EXPECT_EQ(written(ctl::Format::json), R"([
  {
    "text": "Create region",
    "status": "To create a new region",
    "id": 247
  },
  {
    "separator": true
  },
  {
    "text": "Delete region",
    "status": "",
    "id": 302
  }
]
)");
}

TEST(MenuWriter, aTableLeavesSeparatorsOut) {
    EXPECT_EQ(written(ctl::Format::table), "Id   Text           Status\n"
                                           "---  -------------  ----------------------\n"
                                           "247  Create region  To create a new region\n"
                                           "302  Delete region\n");
}

TEST(MenuWriter, csvLeavesSeparatorsOut) {
    EXPECT_EQ(written(ctl::Format::csv),
              "Id,Text,Status\r\n247,Create region,To create a new region\r\n302,Delete region,\r\n");
}

TEST(MenuWriter, tellsWhatIsCheckedAndWhatIsDisabled) {
    const std::vector<shell::MenuItem> menu{
        {.text = u"Set Verbose", .statusText = u"To set Verbose", .id = 339, .checked = true, .disabled = true},
        {.text = u"Set Quiet", .statusText = u"To set Quiet", .id = 337, .checked = true},
        {.text = u"Properties", .statusText = u"", .id = 386}};
    std::ostringstream table;
    std::ostringstream json;

    ctl::writeMenu(table, menu, ctl::Format::table);
    ctl::writeMenu(json, menu, ctl::Format::json);

    EXPECT_EQ(table.str(), "Id   Text         Status          Mark\n"
                           "---  -----------  --------------  -----------------\n"
                           "339  Set Verbose  To set Verbose  checked, disabled\n"
                           "337  Set Quiet    To set Quiet    checked\n"
                           "386  Properties\n");
    EXPECT_EQ(json.str(), R"([
  {
    "text": "Set Verbose",
    "status": "To set Verbose",
    "id": 339,
    "checked": true,
    "disabled": true
  },
  {
    "text": "Set Quiet",
    "status": "To set Quiet",
    "id": 337,
    "checked": true
  },
  {
    "text": "Properties",
    "status": "",
    "id": 386
  }
]
)");
}

} // namespace
