#include "rules/RulesRootNode.h"

#include "tests/rules/RuleTree.h"

namespace {

class RulesRoot : public RuleTree {
protected:
    std::shared_ptr<rules::RulesRootNode> node_ = std::make_shared<rules::RulesRootNode>(platform_);
    console::ScopeId row_ = console_.addScopeRow(node_);
};

TEST_F(RulesRoot, holdsItsChildrenInTheirOrder) {
    support::expand(console_, *node_, row_);

    EXPECT_EQ(console_.childNames(row_), (Names{u"Rule Groups", u"Price Plans", u"Page Limiters", u"Short Id"}));
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(RulesRoot, holdsNoChildTwiceWhenItIsExpandedAgain) {
    support::expand(console_, *node_, row_);
    const auto before = console_.children(row_);

    support::expand(console_, *node_, row_, 2);

    EXPECT_EQ(console_.children(row_), before);
}

TEST_F(RulesRoot, doesNothingWhenItIsCollapsed) {
    support::expand(console_, *node_, row_, 0);

    EXPECT_TRUE(console_.calls.empty());
}

} // namespace
