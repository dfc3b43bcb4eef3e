#include "drivers/BrandAndModelLists.h"

#include "forms/Form.h"
#include "tests/support/DriverEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using support::dataMessage;
using support::frame;
using support::hex;
using Names = std::vector<wire::WideString>;
using Strings = std::vector<std::string>;

// A dialog that, like all that use the lists, can be confirmed only while they are known.
class Owner final : public forms::Form {
public:
    explicit Owner(platform::Platform& platform) : Form(platform, u"Owner"), lists(*this) {
        lists.onKnown = [this] { okButton().setEnabled(lists.known()); };
    }

    drivers::BrandAndModelLists lists;
};

class BrandsAndModels : public ::testing::Test {
protected:
    BrandsAndModels() { catalogue_.addSamples(); }

    static Names rowsOf(const forms::DropList& list) {
        Names names;
        for (const auto& item : list.items()) {
            names.push_back(item.text);
        }
        return names;
    }
    void breakModels() { estate_.brokenLists = {{5, frame({dataMessage(hex("01 00"))})}}; }

    support::TestPlatform platform_;
    support::FakeEstate estate_{platform_.platform().hooks};
    support::DriverEstate catalogue_{estate_};
    Owner owner_{platform_};
    drivers::BrandAndModelLists& lists_ = owner_.lists;
};

TEST_F(BrandsAndModels, beginWithTheBrandsByNameAndWithoutModels) {
    lists_.fill();

    EXPECT_EQ(rowsOf(lists_.brand), (Names{u"Acme", u"Oki"}));
    EXPECT_FALSE(lists_.brand.selection());
    EXPECT_TRUE(lists_.model.items().empty());
    EXPECT_EQ(lists_.modelId(), std::nullopt);
    EXPECT_EQ(estate_.requests(1), Strings{"4: "});
}

TEST_F(BrandsAndModels, areLabelled) {
    EXPECT_EQ(lists_.brand.label(), u"Brand");
    EXPECT_EQ(lists_.model.label(), u"Model");
}

TEST_F(BrandsAndModels, areListedOnceHoweverOftenTheyAreRead) {
    lists_.fillFor("o2");
    lists_.fill();

    EXPECT_EQ(lists_.brand.items().size(), 2U);
    EXPECT_FALSE(lists_.brand.selection());
    EXPECT_TRUE(lists_.model.items().empty());
}

TEST_F(BrandsAndModels, ofAChosenBrandAreItsModelsForDialogsInTheOrderOfTheServer) {
    lists_.fill();

    lists_.brand.userSelected(1);

    EXPECT_EQ(rowsOf(lists_.model), (Names{u"Oki C1", u"Oki C2"}));
    EXPECT_FALSE(lists_.model.selection());
    EXPECT_EQ(estate_.requests(2).back(), "5: 01 03 00 6F 6B 69");
}

TEST_F(BrandsAndModels, areReplacedWhenAnotherBrandIsChosen) {
    lists_.fillFor("o2");

    lists_.brand.userSelected(0);

    EXPECT_EQ(rowsOf(lists_.model), (Names{u"Acme Laser 1", u"Acme Laser 2"}));
    EXPECT_EQ(lists_.modelId(), std::nullopt);
}

TEST_F(BrandsAndModels, tellTheIdOfTheChosenModel) {
    lists_.fill();
    lists_.brand.userSelected(0);

    lists_.model.userSelected(1);

    EXPECT_EQ(lists_.modelId(), "a2");
}

TEST_F(BrandsAndModels, findABrandByItsTextSoThatTheFirstOfTwoNamesakesIsTaken) {
    catalogue_.brands.push_back({.brandId = "acme 2", .name = u"Acme"});
    catalogue_.models["acme 2"] = {{"x", u"Of the other", true}};
    lists_.fill();
    lists_.brand.userSelected(1);
    const auto fromSecondRow = rowsOf(lists_.model);

    lists_.brand.userSelected(0);

    EXPECT_EQ(rowsOf(lists_.model), fromSecondRow);
    EXPECT_EQ(fromSecondRow, Names{u"Of the other"}); // brands are listed the last of the server first
}

TEST_F(BrandsAndModels, compareTheTextOfABrandExactly) {
    catalogue_.brands.push_back({.brandId = "small", .name = u"acme"});
    catalogue_.models["small"] = {{"x", u"Of the small one", true}};
    lists_.fill();
    const auto rows = rowsOf(lists_.brand);
    const auto row = static_cast<std::size_t>(std::ranges::find(rows, u"acme") - rows.begin());

    lists_.brand.userSelected(row);

    EXPECT_EQ(rowsOf(lists_.model), Names{u"Of the small one"});
}

TEST_F(BrandsAndModels, showTheModelOfARecordAndItsBrand) {
    lists_.fillFor("o2");

    EXPECT_EQ(lists_.brand.selectedText(), u"Oki");
    EXPECT_EQ(lists_.model.selectedText(), u"Oki C2");
    EXPECT_EQ(lists_.modelId(), "o2");
    EXPECT_EQ(rowsOf(lists_.model), (Names{u"Oki C1", u"Oki C2"}));
}

TEST_F(BrandsAndModels, showNothingForARecordWithoutAModel) {
    lists_.fillFor({});

    EXPECT_FALSE(lists_.brand.selection());
    EXPECT_FALSE(lists_.model.selection());
    EXPECT_TRUE(lists_.known());
    EXPECT_EQ(estate_.requests(1).size(), 1U);
}

TEST_F(BrandsAndModels, showNothingForAModelThatNoBrandLists) {
    lists_.fillFor("gone");

    EXPECT_FALSE(lists_.brand.selection());
    EXPECT_TRUE(lists_.model.items().empty());
    EXPECT_TRUE(lists_.known());
}

TEST_F(BrandsAndModels, areKnownOnceTheyAreRead) {
    owner_.open();
    EXPECT_FALSE(lists_.known());

    lists_.fill();

    EXPECT_TRUE(lists_.known());
    EXPECT_TRUE(owner_.okButton().enabled());
}

TEST_F(BrandsAndModels, areNotKnownWhenTheBrandsBreakOff) {
    estate_.brokenLists = {{4, frame({dataMessage(hex("01 00"))})}};

    EXPECT_ANY_THROW(lists_.fill());

    EXPECT_FALSE(lists_.known());
    EXPECT_FALSE(owner_.okButton().enabled());
}

TEST_F(BrandsAndModels, areNotKnownWithoutAConnection) {
    estate_.goOffline();

    lists_.fillFor("o2");

    EXPECT_FALSE(lists_.known());
    EXPECT_FALSE(owner_.okButton().enabled());
}

TEST_F(BrandsAndModels, areNotKnownWhenTheModelsOfARecordsBrandBreakOff) {
    breakModels();

    EXPECT_ANY_THROW(lists_.fillFor("o2"));

    EXPECT_FALSE(lists_.known());
    EXPECT_FALSE(owner_.okButton().enabled());
}

TEST_F(BrandsAndModels, areNotKnownWhileTheModelsOfTheChosenBrandCannotBeRead) {
    lists_.fillFor("o2");
    breakModels();

    lists_.brand.userSelected(0);

    EXPECT_TRUE(lists_.model.items().empty());
    EXPECT_FALSE(owner_.okButton().enabled());
    EXPECT_EQ(platform_.failures().size(), 1U);
}

TEST_F(BrandsAndModels, areKnownAgainOnceABrandCouldBeRead) {
    lists_.fill();
    breakModels();
    lists_.brand.userSelected(0);
    estate_.brokenLists.clear();

    lists_.brand.userSelected(1);

    EXPECT_TRUE(owner_.okButton().enabled());
}

} // namespace
