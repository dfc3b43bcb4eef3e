#pragma once

#include "tests/rules/RuleSamples.h"
#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Rules of printers, queues and regions, over an estate with a rule group and one of each kind of object.
class RulesFixture : public ::testing::Test {
protected:
    using Names = std::vector<wire::WideString>;
    using Strings = std::vector<std::string>;

    RulesFixture() {
        estate_.affected = {samples::affected("a1", u"Guests"), samples::affected("a2", u"Staff")};
        estate_.groups = {samples::group("group1", u"Students"), samples::group("group2", u"Teachers")};
        estate_.limits = {samples::limit("limit1", u"Ten pages")};
        estate_.plans = {samples::plan("plan1", u"Standard")};
    }

    support::TestPlatform platform_;
    support::RuleEstate estate_{platform_.platform().hooks};
};
