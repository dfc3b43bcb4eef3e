#include "forms/AccessKeys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <string_view>

namespace forms {
namespace {

using testing::ElementsAre;

std::vector<wire::WideString> marked(const AccessKeys& keys, std::size_t count) {
    std::vector<wire::WideString> texts;
    for (std::size_t number = 0; number < count; ++number) {
        texts.push_back(keys.label(number).marked());
    }
    return texts;
}

AccessKeys assigned(std::initializer_list<std::u16string_view> labels) {
    AccessKeys keys;
    for (const auto label : labels) {
        keys.add(label);
    }
    keys.assign();
    return keys;
}

std::vector<wire::WideString> assignedTo(std::initializer_list<std::u16string_view> labels) {
    return marked(assigned(labels), labels.size());
}

TEST(AccessKeys, theFirstLetterIsTakenWhileItIsFree) {
    EXPECT_THAT(assignedTo({u"OK", u"Cancel", u"Name"}), ElementsAre(u"&OK", u"&Cancel", u"&Name"));
}

TEST(AccessKeys, aLabelWhoseFirstLetterIsTakenGetsTheNextWord) {
    EXPECT_THAT(assignedTo({u"Cancel", u"Client Location"}), ElementsAre(u"&Cancel", u"Client &Location"));
}

TEST(AccessKeys, lettersThatAreHardToSeeUnderlinedComeLast) {
    EXPECT_THAT(assignedTo({u"Cancel", u"City"}), ElementsAre(u"&Cancel", u"Ci&ty"));
}

TEST(AccessKeys, anEarlierLabelGivesWayWhenALaterOneWouldGetNothing) {
    EXPECT_THAT(assignedTo({u"OK", u"O"}), ElementsAre(u"O&K", u"&O"));
    EXPECT_THAT(assignedTo({u"AB", u"A"}), ElementsAre(u"A&B", u"&A"));
}

TEST(AccessKeys, severalLabelsGiveWayForOne) {
    EXPECT_THAT(assignedTo({u"AB", u"BC", u"CD", u"A"}), ElementsAre(u"A&B", u"B&C", u"C&D", u"&A"));
}

TEST(AccessKeys, aLabelThatKeepsItsKeyDoesNotGiveWay) {
    AccessKeys keys;
    keys.add(u"OK", AccessKeys::Claim::keeps);
    keys.add(u"O");
    keys.assign();
    EXPECT_THAT(marked(keys, 2), ElementsAre(u"&OK", u"O"));
}

TEST(AccessKeys, moreLabelsThanLettersLeaveTheLastWithoutAKey) {
    EXPECT_THAT(assignedTo({u"A", u"A"}), ElementsAre(u"&A", u"A"));
}

TEST(AccessKeys, theKeyThatALabelWishesForComesFirst) {
    EXPECT_THAT(assignedTo({u"Sa&ve", u"&Name"}), ElementsAre(u"Sa&ve", u"&Name"));
}

TEST(AccessKeys, blanksAtTheEndsGo) {
    EXPECT_THAT(assignedTo({u"Server Name       ", u"  &User ", u"  Ti&me"}),
                ElementsAre(u"&Server Name", u"&User", u"Ti&me"));
}

TEST(AccessKeys, ampersandsThatArePartOfALabelStay) {
    EXPECT_THAT(assignedTo({u"Poll && Use"}), ElementsAre(u"&Poll && Use"));
    EXPECT_EQ(assigned({u"Poll && Use"}).label(0).text, u"Poll & Use");
}

TEST(AccessKeys, aLabelWithoutLettersHasNoKey) {
    EXPECT_THAT(assignedTo({u"...", u"", u"\u20AC %"}), ElementsAre(u"...", u"", u"\u20AC %"));
}

TEST(AccessKeys, keysDoNotDependOnCase) {
    EXPECT_THAT(assignedTo({u"a", u"A", u"Ab"}), ElementsAre(u"&a", u"A", u"A&b"));
    EXPECT_THAT(assignedTo({u"\u00C4", u"\u00E4"}), ElementsAre(u"&\u00C4", u"\u00E4"));
}

TEST(AccessKeys, aDigitIsAKeyAsWell) {
    EXPECT_THAT(assignedTo({u"1: 2"}), ElementsAre(u"&1: 2"));
}

TEST(AccessKeys, aLabelThatChangesKeepsItsKeyWhereItCan) {
    AccessKeys keys = assigned({u"Cancel", u"Add", u"Area"});
    EXPECT_THAT(marked(keys, 3), ElementsAre(u"&Cancel", u"&Add", u"A&rea"));

    keys.change(1, u"Update all");

    EXPECT_THAT(marked(keys, 3), ElementsAre(u"&Cancel", u"Update &all", u"A&rea"));
}

TEST(AccessKeys, aLabelThatChangesTakesAFreeKeyAndLeavesTheOthersTheirs) {
    AccessKeys keys = assigned({u"Add", u"Dot"});

    keys.change(0, u"Dt");
    EXPECT_THAT(marked(keys, 2), ElementsAre(u"D&t", u"&Dot"));

    keys.change(0, u"D");
    EXPECT_THAT(marked(keys, 2), ElementsAre(u"D", u"&Dot")) << "the other could do with another, and must not";
}

} // namespace
} // namespace forms
