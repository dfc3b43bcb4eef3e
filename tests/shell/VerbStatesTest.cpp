#include "shell/VerbStates.h"

#include <gtest/gtest.h>

namespace {

using console::Result;
using console::Verb;
using console::VerbState;

TEST(VerbStates, beginWithNoVerb) {
    const shell::VerbStates verbs;

    EXPECT_FALSE(verbs.offers(Verb::refresh));
}

TEST(VerbStates, keepWhatWasSet) {
    shell::VerbStates verbs;
    verbs.SetVerbState(Verb::cut, VerbState::enabled, true);
    bool offered = false;

    EXPECT_EQ(verbs.GetVerbState(Verb::cut, VerbState::enabled, offered), Result::ok);
    EXPECT_TRUE(offered);
}

TEST(VerbStates, refuseANumberThatIsNoVerb) {
    shell::VerbStates verbs;

    EXPECT_EQ(verbs.SetVerbState(static_cast<Verb>(1), VerbState::enabled, true), Result::failed);
}

TEST(VerbStates, tellAChangeOnce) {
    shell::VerbStates verbs;
    verbs.SetVerbState(Verb::paste, VerbState::enabled, true);

    EXPECT_TRUE(verbs.takeChange());
    EXPECT_FALSE(verbs.takeChange());
}

} // namespace
