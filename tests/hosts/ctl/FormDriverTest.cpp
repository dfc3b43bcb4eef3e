#include "hosts/ctl/FormDriver.h"
#include "hosts/ctl/Failure.h"
#include "tests/hosts/ctl/TestForm.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>

namespace hosttest {
namespace {

using ctl::parseStep;
using ctl::perform;
using Kind = ctl::Step::Kind;
using testing::HasSubstr;

class FormDriver : public testing::Test {
protected:
    std::string refusal(Kind kind, const std::string& argument) {
        try {
            perform(form, parseStep(kind, argument));
        } catch (const ctl::Failure& failure) {
            EXPECT_EQ(failure.status(), ctl::ExitStatus::refused);
            return failure.what();
        }
        ADD_FAILURE() << "no refusal";
        return {};
    }

    support::TestPlatform platform;
    TestForm form{platform};
};

TEST_F(FormDriver, setTypesIntoABoxFoundWithoutCaseAndAccessKey) {
    perform(form, parseStep(Kind::set, "name=Hall=1"));

    EXPECT_EQ(form.name.text(), u"Hall=1");
}

TEST_F(FormDriver, setChecksABox) {
    perform(form, parseStep(Kind::set, "Invisible=yes"));

    EXPECT_TRUE(form.hidden.checked());
}

TEST_F(FormDriver, setTakesTheNameOfTheGroup) {
    perform(form, parseStep(Kind::set, "Details: Invisible=on"));

    EXPECT_TRUE(form.hidden.checked());
}

TEST_F(FormDriver, setPicksADayAndTime) {
    perform(form, parseStep(Kind::set, "From=2024-12-31 23:59"));

    EXPECT_EQ(form.from.value(), (forms::DateTime{2024, 12, 31, 23, 59, 0}));
}

TEST_F(FormDriver, selectPicksARowOfADropList) {
    perform(form, parseStep(Kind::select, "Model=ink"));

    EXPECT_EQ(form.model.selectedText(), u"Ink");
}

TEST_F(FormDriver, selectPicksARowOfAListByItsFirstVisibleColumn) {
    perform(form, parseStep(Kind::select, "Drivers=Second"));

    EXPECT_EQ(form.drivers.selection(), 1U);
}

TEST_F(FormDriver, selectPassesOverAColumnWithANegativeWidth) {
    form.drivers.setColumns({{u"Id", -1}, {u"Name", 100}});

    perform(form, parseStep(Kind::select, "Drivers=Second"));

    EXPECT_EQ(form.drivers.selection(), 1U);
}

TEST_F(FormDriver, pressChoosesFromTheMenuOfTheSelectedRow) {
    perform(form, parseStep(Kind::select, "Drivers=Second"));
    perform(form, parseStep(Kind::press, "drivers: delete"));

    EXPECT_EQ(form.chosen, u"Second-");
}

TEST_F(FormDriver, aMenuOnRowsNeedsASelectedRow) {
    EXPECT_THAT(refusal(Kind::press, "Drivers: Delete"), HasSubstr("no selected row"));
}

TEST_F(FormDriver, anUnknownButtonListsTheEntriesOfRowsToo) {
    EXPECT_THAT(refusal(Kind::press, "Drivers: Burn"), HasSubstr("\"Drivers: Edit\", \"Drivers: Delete\""));
}

TEST_F(FormDriver, theValueTellsACheckBoxFromTheBoxBesideIt) {
    perform(form, parseStep(Kind::set, "Limited to=yes"));
    perform(form, parseStep(Kind::set, "Limited to=1"));

    EXPECT_TRUE(form.limited.checked());
    EXPECT_EQ(form.amount.text(), u"1");
}

TEST_F(FormDriver, theValueTellsTheUnitBesideANumber) {
    perform(form, parseStep(Kind::set, "limited to=hours"));
    perform(form, parseStep(Kind::set, "limited to=3"));

    EXPECT_EQ(form.unit.selectedText(), u"hours");
    EXPECT_EQ(form.amount.text(), u"3");
}

TEST_F(FormDriver, setPicksARowOfAListByTheLabelOfItsRadioButton) {
    perform(form, parseStep(Kind::set, "Paper=A3"));

    EXPECT_EQ(form.paper.selectedText(), u"A3");
}

TEST_F(FormDriver, theGroupTellsBoxesOfOneLabelApart) {
    perform(form, parseStep(Kind::set, "copy: b/w=0.1"));

    EXPECT_EQ(form.changed, &form.copyPrice);
    EXPECT_EQ(form.copyPrice.text(), u"0.1");
}

TEST_F(FormDriver, aRowIsFoundByItsTextInAnyColumn) {
    perform(form, parseStep(Kind::select, "Drivers=old"));

    EXPECT_EQ(form.drivers.selection(), 1U);
}

TEST_F(FormDriver, pressChoosesARadioButton) {
    perform(form, parseStep(Kind::press, "One"));

    EXPECT_TRUE(form.one.chosen());
}

TEST_F(FormDriver, pressEndsTheForm) {
    perform(form, parseStep(Kind::press, "ok"));

    EXPECT_TRUE(form.ended());
    EXPECT_EQ(form.result(), forms::idOk);
}

TEST_F(FormDriver, anUnknownLabelListsTheChoicesOfItsKind) {
    EXPECT_THAT(refusal(Kind::select, "Brand=x"), HasSubstr("\"Details: Model\", \"Drivers\""));
}

TEST_F(FormDriver, anUnknownRowListsTheRows) {
    EXPECT_THAT(refusal(Kind::select, "Model=Stone"), HasSubstr("\"Laser\", \"Ink\""));
}

TEST_F(FormDriver, aDisabledControlSaysSo) {
    form.name.setEnabled(false);

    EXPECT_EQ(refusal(Kind::set, "Name=x"), "\"Name\" is disabled");
}

TEST_F(FormDriver, aBoxForDigitsTakesNoLetters) {
    EXPECT_THAT(refusal(Kind::set, "Number=x"), HasSubstr("digits only"));
}

TEST_F(FormDriver, aTextThatIsTooLongIsRefused) {
    EXPECT_THAT(refusal(Kind::set, "Number=123456"), HasSubstr("at most 5 characters"));
}

TEST_F(FormDriver, aCheckBoxTakesYesOrNo) {
    EXPECT_THAT(refusal(Kind::set, "Invisible=perhaps"), HasSubstr("yes or no"));
}

TEST_F(FormDriver, aDayThatIsNoneIsRefused) {
    EXPECT_THAT(refusal(Kind::set, "From=2023-02-29"), HasSubstr("a day and a time"));
}

TEST_F(FormDriver, rowsThatLookAlikeAreToldApartByTheirNumbers) {
    form.drivers.setRows(
        {{{u"1", u"Same", u"new"}, ""}, {{u"2", u"Other", u"old"}, ""}, {{u"3", u"Same", u"new"}, ""}});

    perform(form, parseStep(Kind::select, "Drivers=Same#2"));
    EXPECT_EQ(form.drivers.selection(), 2U);

    perform(form, parseStep(Kind::select, "Drivers=#1"));
    EXPECT_EQ(form.drivers.selection(), 0U);

    EXPECT_THAT(refusal(Kind::select, "Drivers=Same"), HasSubstr("\"Same#1\" to \"Same#2\""));
    EXPECT_THAT(refusal(Kind::select, "Drivers=Same#3"), HasSubstr("there is \"Same#1\", \"Other\", \"Same#2\""));
}

TEST_F(FormDriver, selectFindsAnItemOfATreeByItsPath) {
    perform(form, parseStep(Kind::select, "Regions=South/Office"));
    EXPECT_EQ(form.regions.selection(), 3U);

    perform(form, parseStep(Kind::select, "Regions=north/office"));
    EXPECT_EQ(form.regions.selection(), 2U);

    perform(form, parseStep(Kind::select, "Regions=South/Office/1\\/2"));
    EXPECT_EQ(form.regions.selection(), 4U);
}

TEST_F(FormDriver, selectFindsAnItemOfATreeByATextThatNoOtherHas) {
    perform(form, parseStep(Kind::select, "Regions=1/2"));

    EXPECT_EQ(form.regions.selection(), 4U);
}

TEST_F(FormDriver, selectWantsThePathOfAnItemWhoseTextStandsAtSeveralPlaces) {
    EXPECT_THAT(refusal(Kind::select, "Regions=Office"), HasSubstr("more than one"));
    EXPECT_THAT(refusal(Kind::select, "Regions=East"), HasSubstr("\"North/Office\""));
}

TEST_F(FormDriver, setFindsTheOneThatIsLeftWhenAPageIsHidden) {
    EXPECT_THAT(refusal(Kind::set, "Place=Hall"), HasSubstr("more than one"));
    form.first.setVisible(false);

    perform(form, parseStep(Kind::set, "Place=Hall"));

    EXPECT_EQ(form.secondPlace.text(), u"Hall");
    EXPECT_THAT(refusal(Kind::set, "First: Place=Hall"), HasSubstr("can't be reached"));
    EXPECT_THAT(refusal(Kind::set, "Nothing=Hall"), testing::Not(HasSubstr("First: Place")));
}

} // namespace
} // namespace hosttest
