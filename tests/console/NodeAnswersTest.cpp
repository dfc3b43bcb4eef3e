#include "tests/console/ShelfNode.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace console {
namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;

class NodeAnswers : public testing::Test {
protected:
    support::TestPlatform platform;
    std::shared_ptr<ShelfNode> shelf = std::make_shared<ShelfNode>(platform);

    std::vector<std::uint8_t> filled(ClipboardFormat format) {
        std::vector<std::uint8_t> stream;
        EXPECT_EQ(shelf->FillData(format, stream), Result::ok);
        return stream;
    }
};

TEST_F(NodeAnswers, aNewNodeHasItsClassesNameAndRows) {
    const ScopeItemFields& scope = shelf->scopeFields();
    EXPECT_EQ(shelf->displayName(), u"Shelf");
    EXPECT_EQ(scope.mask, 0x6EU);
    EXPECT_EQ(scope.displayname, textCallback);
    EXPECT_EQ(scope.nImage, 0);
    EXPECT_EQ(scope.nOpenImage, 1);
    EXPECT_EQ(scope.cChildren, 2);
    EXPECT_EQ(scope.lParam, shelf.get());
    EXPECT_EQ(scope.relativeID, 0);
    EXPECT_EQ(scope.ID, 0);
}

TEST_F(NodeAnswers, theScopeRowIsAnsweredAsFarAsAskedFor) {
    shelf->setDisplayName(u"Top shelf");
    shelf->scopeFields().nState = 3;
    ScopeItemFields asked{.mask = 0x7E, .displayname = nullptr, .nImage = 99};
    EXPECT_EQ(shelf->GetScopePaneInfo(asked), Result::ok);
    EXPECT_EQ(std::u16string(asked.displayname), u"Top shelf");
    EXPECT_EQ(asked.nImage, 0);
    EXPECT_EQ(asked.nOpenImage, 1);
    EXPECT_EQ(asked.nState, 3U);
    EXPECT_EQ(asked.lParam, shelf.get());

    ScopeItemFields nothing{.mask = 0, .displayname = nullptr, .nImage = 99};
    shelf->GetScopePaneInfo(nothing);
    EXPECT_EQ(nothing.displayname, nullptr);
    EXPECT_EQ(nothing.nImage, 99);
    EXPECT_EQ(nothing.lParam, nullptr);
}

TEST_F(NodeAnswers, aResultRowIsAnsweredFromItsOwnFields) {
    shelf->resultFields().nImage = 12;
    shelf->resultFields().nIndex = 34;
    ResultItemFields asked{.mask = 0x36, .nCol = 0, .str = nullptr};
    EXPECT_EQ(shelf->GetResultPaneInfo(asked), Result::ok);
    EXPECT_EQ(std::u16string(asked.str), u"Shelf");
    EXPECT_EQ(asked.nImage, 12);
    EXPECT_EQ(asked.nIndex, 34);
    EXPECT_EQ(asked.lParam, shelf.get());
}

TEST_F(NodeAnswers, aScopeItemInTheListIsAnsweredFromTheScopeFieldsAndHasNoIndex) {
    shelf->resultFields().nImage = 12;
    shelf->resultFields().nIndex = 34;
    ResultItemFields asked{.mask = 0x36, .bScopeItem = true, .nIndex = -5, .nCol = 1, .str = nullptr};
    EXPECT_EQ(shelf->GetResultPaneInfo(asked), Result::ok);
    EXPECT_EQ(std::u16string(asked.str), u"");
    EXPECT_EQ(asked.nImage, 0);
    EXPECT_EQ(asked.nIndex, -5);
    EXPECT_EQ(asked.lParam, shelf.get());
}

TEST_F(NodeAnswers, theFirstColumnIsTheNameAndTheOthersAreEmpty) {
    EXPECT_EQ(std::u16string(shelf->GetResultPaneColInfo(0)), u"Shelf");
    EXPECT_EQ(std::u16string(shelf->GetResultPaneColInfo(1)), u"");
    EXPECT_EQ(std::u16string(shelf->GetResultPaneColInfo(-1)), u"");
}

TEST_F(NodeAnswers, theListIsTheConsolesOwnWithoutTheScopeChildren) {
    const char16_t* type = u"something";
    std::int32_t options = 0;
    EXPECT_EQ(shelf->GetResultViewType(type, options), Result::notDone);
    EXPECT_EQ(type, nullptr);
    EXPECT_EQ(options, 0x40);
}

TEST_F(NodeAnswers, propertyPagesAreNeverAdded) {
    EXPECT_EQ(shelf->CreatePropertyPages(DataObjectType::scope), Result::ok);
    EXPECT_EQ(shelf->QueryPagesFor(DataObjectType::result), Result::ok);
}

TEST_F(NodeAnswers, theToolbarHearsOfSelectionsAndButtonsOnly) {
    EXPECT_EQ(shelf->ControlbarNotify(Event::select), Result::ok);
    EXPECT_EQ(shelf->ControlbarNotify(Event::buttonClick), Result::ok);
    EXPECT_EQ(shelf->ControlbarNotify(Event::show), Result::unexpected);
}

TEST_F(NodeAnswers, theRowsAreHandedOutByAddress) {
    ScopeItemFields* scope = nullptr;
    ResultItemFields* result = nullptr;
    EXPECT_EQ(shelf->GetScopeData(&scope), Result::ok);
    EXPECT_EQ(shelf->GetResultData(&result), Result::ok);
    EXPECT_EQ(scope, &shelf->scopeFields());
    EXPECT_EQ(result, &shelf->resultFields());
}

TEST_F(NodeAnswers, aNullPointerForTheRowsFails) {
    EXPECT_EQ(shelf->GetScopeData(nullptr), Result::failed);
    EXPECT_EQ(shelf->GetResultData(nullptr), Result::failed);
}

TEST_F(NodeAnswers, theNodeTypeIsSixteenBytesAsTheyStandInMemory) {
    EXPECT_THAT(filled(ClipboardFormat::nodeType), ElementsAreArray({0xB8, 0xA1, 0xCB, 0x13, 0xA1, 0xC9, 0x0B, 0x4A,
                                                                     0x85, 0x8C, 0xAE, 0x98, 0x1C, 0x15, 0x8B, 0x7D}));
}

TEST_F(NodeAnswers, theSnapInsClassIsTheSameForEveryNode) {
    EXPECT_THAT(filled(ClipboardFormat::snapInClassId),
                ElementsAreArray(
                    {0xE4, 0x7A, 0x25, 0x6F, 0xE0, 0xF4, 0xEC, 0x49, 0xAE, 0x9D, 0x61, 0x07, 0x89, 0x38, 0xE7, 0xCE}));
}

TEST_F(NodeAnswers, theNodeTypeAsTextKeepsItsCaseAndHasNoBracesAndATerminator) {
    const auto stream = filled(ClipboardFormat::nodeTypeText);
    std::u16string text;
    for (std::size_t i = 0; i + 1 < stream.size(); i += 2) {
        text += static_cast<char16_t>(stream[i] | stream[i + 1] << 8);
    }
    EXPECT_EQ(text, std::u16string(u"13CBA1B8-C9A1-4a0b-858C-AE981C158B7D") + u'\0');
}

TEST_F(NodeAnswers, aClassWithoutATypeHasAllZeros) {
    const auto box = std::make_shared<BoxNode>(platform, "x", u"Box");
    std::vector<std::uint8_t> stream;
    EXPECT_EQ(box->FillData(ClipboardFormat::nodeType, stream), Result::ok);
    EXPECT_EQ(stream, std::vector<std::uint8_t>(16, 0));
    EXPECT_EQ(BoxNode::identity.nodeType.text, u"00000000-0000-0000-0000-000000000000");
}

TEST_F(NodeAnswers, theDisplayNameOfTheDataIsThatOfTheClassAndNotOfTheNode) {
    shelf->setDisplayName(u"Top shelf");
    EXPECT_THAT(filled(ClipboardFormat::displayName),
                ElementsAreArray({0x53, 0x00, 0x68, 0x00, 0x65, 0x00, 0x6C, 0x00, 0x66, 0x00, 0x00, 0x00}));
}

TEST_F(NodeAnswers, anUnknownFormatIsRefusedAndWritesNothing) {
    std::vector<std::uint8_t> stream;
    EXPECT_EQ(shelf->FillData(static_cast<ClipboardFormat>(99), stream), Result::badClipboardFormat);
    EXPECT_THAT(stream, IsEmpty());
}

TEST_F(NodeAnswers, dataIsAppendedToWhatStandsInTheStream) {
    std::vector<std::uint8_t> stream{1};
    shelf->FillData(ClipboardFormat::nodeType, stream);
    EXPECT_EQ(stream.size(), 17U);
    EXPECT_EQ(stream[0], 1);
}

TEST_F(NodeAnswers, theClassNameIsTheRunTimeNameWithoutItsNamespace) {
    EXPECT_EQ(shelf->className(), "class ShelfNode");
}

TEST_F(NodeAnswers, aNodeIsKnownAfterARefreshByItsName) {
    shelf->setDisplayName(u"Größe");
    EXPECT_EQ(shelf->refreshKey(), "Gr\xC3\xB6\xC3\x9F"
                                   "e");
}

} // namespace
} // namespace console
