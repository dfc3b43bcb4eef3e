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

} // namespace
