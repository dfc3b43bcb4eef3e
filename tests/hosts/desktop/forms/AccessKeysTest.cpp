#include "hosts/desktop/forms/AccessKeys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace desktop {
namespace {

std::vector<std::string> assigned(std::initializer_list<const char*> labels) {
    AccessKeys keys;
    for (const char* label : labels) {
        keys.add(QString::fromUtf8(label));
    }
    std::vector<std::string> texts;
    for (const QString& text : keys.assign()) {
        texts.push_back(text.toStdString());
    }
    return texts;
}

using testing::ElementsAre;

TEST(AccessKeys, theFirstLetterIsTakenWhileItIsFree) {
    EXPECT_THAT(assigned({"OK", "Cancel", "Name"}), ElementsAre("&OK", "&Cancel", "&Name"));
}

TEST(AccessKeys, aLabelWhoseFirstLetterIsTakenGetsTheNextWord) {
    EXPECT_THAT(assigned({"Cancel", "Client Location"}), ElementsAre("&Cancel", "Client &Location"));
}

TEST(AccessKeys, lettersThatAreHardToSeeUnderlinedComeLast) {
    EXPECT_THAT(assigned({"Cancel", "City"}), ElementsAre("&Cancel", "Ci&ty"));
}

TEST(AccessKeys, anEarlierLabelGivesWayWhenALaterOneWouldGetNothing) {
    EXPECT_THAT(assigned({"OK", "O"}), ElementsAre("O&K", "&O"));
    EXPECT_THAT(assigned({"AB", "A"}), ElementsAre("A&B", "&A"));
}

TEST(AccessKeys, aLabelThatKeepsItsKeyDoesNotGiveWay) {
    AccessKeys keys;
    keys.add(QStringLiteral("OK"), AccessKeys::Claim::keeps);
    keys.add(QStringLiteral("O"));
    EXPECT_THAT(keys.assign(), ElementsAre(QStringLiteral("&OK"), QStringLiteral("O")));
}

TEST(AccessKeys, moreLabelsThanLettersLeaveTheLastWithoutAKey) {
    EXPECT_THAT(assigned({"A", "A"}), ElementsAre("&A", "A"));
}

TEST(AccessKeys, theKeyThatALabelWishesForComesFirst) {
    EXPECT_THAT(assigned({"Sa&ve", "&Name"}), ElementsAre("Sa&ve", "&Name"));
}

TEST(AccessKeys, blanksAtTheEndsGo) {
    EXPECT_THAT(assigned({"Server Name       ", "  &User "}), ElementsAre("&Server Name", "&User"));
}

TEST(AccessKeys, ampersandsThatArePartOfALabelStay) {
    EXPECT_THAT(assigned({"Poll && Use"}), ElementsAre("&Poll && Use"));
}

TEST(AccessKeys, aLabelWithoutLettersHasNoKey) {
    EXPECT_THAT(assigned({"...", ""}), ElementsAre("...", ""));
}

TEST(AccessKeys, keysDoNotDependOnCase) {
    EXPECT_THAT(assigned({"a", "A", "Ab"}), ElementsAre("&a", "A", "A&b"));
}

} // namespace
} // namespace desktop
