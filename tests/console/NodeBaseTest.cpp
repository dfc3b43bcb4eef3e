#include "tests/console/ShelfNode.h"
#include "tests/support/RecordingConsole.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace console {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class Node : public testing::Test {
protected:
    support::TestPlatform platform;
    support::RecordingConsole host;
    std::shared_ptr<ShelfNode> shelf = std::make_shared<ShelfNode>(platform);
    const ScopeId shelfRow = host.addScopeRow(shelf);

    Node() {
        shelf->records = {{"a", u"Apples"}, {"b", u"Bolts"}};
        host.verbs[Verb::paste] = true;
    }

    Notification from(Event event, std::intptr_t arg = 0, std::intptr_t param = 0) {
        return {.event = event, .arg = arg, .param = param, .componentData = &host};
    }
    Result expand(ExpandCode code = ExpandCode::expand) {
        return shelf->Notify(from(Event::expand, static_cast<std::intptr_t>(code), shelfRow));
    }
};

TEST_F(Node, componentDataAndItsConsoleAreRemembered) {
    shelf->Notify(from(Event::contextHelp));
    EXPECT_EQ(shelf->componentData(), &host);
    EXPECT_EQ(shelf->console(), &host);
}

TEST_F(Node, theConsoleOfAComponentIsUsedAndNotRemembered) {
    EXPECT_EQ(shelf->Notify({.event = Event::show, .arg = 1, .component = &host}), Result::ok);
    EXPECT_EQ(shelf->componentData(), nullptr);
    EXPECT_EQ(shelf->console(), nullptr);
    EXPECT_THAT(host.titles(), ElementsAre(u"Name", u"Weight", u"Kept automatic"));
}

TEST_F(Node, aNotificationWithoutAConsoleIsUnexpected) {
    EXPECT_EQ(shelf->Notify({.event = Event::select}), Result::unexpected);
    EXPECT_THAT(platform.failures(), IsEmpty());
}

TEST_F(Node, everyNotificationEnablesTheVerbsInOrderWhilePasteIsNotOffered) {
    for (const Event event : {Event::contextHelp, Event::buttonClick, Event::columnClick, Event::doubleClick}) {
        host.verbs.clear();
        host.verbCalls.clear();
        shelf->Notify(from(event));
        EXPECT_THAT(host.verbCalls, ElementsAre("delete on", "copy on", "refresh on", "rename on", "paste on"));
    }
}

TEST_F(Node, verbsStayAsTheyAreOnceTheSelectionOffersPaste) {
    shelf->Notify(from(Event::contextHelp));
    EXPECT_THAT(host.verbCalls, IsEmpty());
}

TEST_F(Node, anEventThatItDoesNotKnowAnswersWhatTheVerbsAnswered) {
    EXPECT_EQ(shelf->Notify(from(Event::columnClick)), Result::ok);
    EXPECT_EQ(shelf->Notify(from(static_cast<Event>(0x80FF))), Result::ok);
    host.hasVerbs = false;
    EXPECT_EQ(shelf->Notify(from(Event::columnClick)), Result::failed);
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(Node, aConsoleWithoutVerbsStillGetsItsAnswer) {
    host.hasVerbs = false;
    EXPECT_EQ(expand(), Result::ok);
    EXPECT_THAT(host.childNames(shelfRow), ElementsAre(u"Apples", u"Bolts"));
}

TEST_F(Node, aDoubleClickSelectsItInTheTree) {
    expand();
    host.calls.clear();
    EXPECT_EQ(shelf->Notify(from(Event::doubleClick)), Result::ok);
    EXPECT_THAT(host.calls, ElementsAre("SelectScopeItem 1"));
}

TEST_F(Node, theDeleteKeyTakesTheRowAwayAndSendsNoCommand) {
    expand();
    host.calls.clear();
    EXPECT_EQ(shelf->Notify(from(Event::deleteItem)), Result::ok);
    EXPECT_THAT(host.calls, ElementsAre("DeleteItem 1 itself"));
    EXPECT_THAT(platform.commands(), IsEmpty());
}

TEST_F(Node, pastingShowsTheRowsAgainAndAnswersOkWhateverTheNodeThinksOfIt) {
    const auto box = std::make_shared<BoxNode>(platform, "x", u"Pasted");
    auto notification = from(Event::paste);
    notification.source = box.get();
    EXPECT_EQ(shelf->Notify(notification), Result::ok);
    EXPECT_EQ(shelf->pasted, box.get());
    EXPECT_THAT(shelf->shows, ElementsAre(Pair(false, 1)));
}

TEST_F(Node, pastingAsksTheNodeFirst) {
    const auto box = std::make_shared<BoxNode>(platform, "x", u"Box");
    auto notification = from(Event::queryPaste);
    notification.source = box.get();
    EXPECT_EQ(shelf->Notify(notification), Result::ok);
    notification.source = shelf.get();
    EXPECT_EQ(shelf->Notify(notification), Result::notDone);
}

TEST_F(Node, cuttingHandsOverWhatWasCut) {
    const auto box = std::make_shared<BoxNode>(platform, "x", u"Box");
    auto notification = from(Event::cutOrMove);
    notification.source = box.get();
    EXPECT_EQ(shelf->Notify(notification), Result::ok);
    EXPECT_EQ(shelf->cut, box.get());
}

TEST_F(Node, aNotificationThatLacksWhatItIsAboutIsABadPointer) {
    for (const Event event : {Event::paste, Event::queryPaste, Event::cutOrMove, Event::rename, Event::addImages}) {
        EXPECT_EQ(shelf->Notify(from(event)), Result::badPointer);
    }
    EXPECT_THAT(platform.failures(), IsEmpty());
}

TEST_F(Node, renamingPassesTheNewNameOn) {
    auto notification = from(Event::rename);
    notification.text = u"Top shelf";
    EXPECT_EQ(shelf->Notify(notification), Result::ok);
    EXPECT_EQ(shelf->renamedTo, u"Top shelf");
}

TEST_F(Node, selectingOffersRefreshAndNothingElse) {
    EXPECT_EQ(shelf->Notify(from(Event::select)), Result::ok);
    EXPECT_THAT(host.verbCalls, ElementsAre("refresh on", "cut off", "copy off", "delete off", "rename off"));
}

TEST_F(Node, imagesGoIntoTheListWithTheirTransparentColour) {
    auto notification = from(Event::addImages);
    notification.images = &host;
    EXPECT_EQ(shelf->Notify(notification), Result::ok);
    EXPECT_THAT(host.calls, ElementsAre("ImageListSetStrip 203 204 from 0 mask 8421376"));
}

TEST_F(Node, aMissingBitmapFails) {
    host.hasImages = false;
    auto notification = from(Event::addImages);
    notification.images = &host;
    EXPECT_EQ(shelf->Notify(notification), Result::failed);
}

TEST_F(Node, aClassWithoutImagesSetsNone) {
    const auto box = std::make_shared<BoxNode>(platform, "x", u"Box");
    auto notification = from(Event::addImages);
    notification.images = &host;
    EXPECT_EQ(box->Notify(notification), Result::notDone);
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(Node, helpIsNotDone) {
    EXPECT_EQ(shelf->Notify(from(Event::contextHelp)), Result::notDone);
}

TEST_F(Node, whatItDoesNotOverrideIsNotDone) {
    const auto box = std::make_shared<BoxNode>(platform, "x", u"Box");
    auto notification = from(Event::rename);
    notification.text = u"New";
    notification.source = shelf.get();
    EXPECT_EQ(box->Notify(notification), Result::notDone);
    notification.event = Event::queryPaste;
    EXPECT_EQ(box->Notify(notification), Result::notDone);
    notification.event = Event::cutOrMove;
    EXPECT_EQ(box->Notify(notification), Result::notDone);
    EXPECT_EQ(box->Notify(from(Event::expand, 1, 5)), Result::ok);
    EXPECT_EQ(box->Notify(from(Event::show, 1)), Result::ok);
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(Node, expandingReadsItsChildrenAndInsertsThem) {
    EXPECT_EQ(expand(), Result::ok);
    EXPECT_THAT(host.calls, ElementsAre("InsertItem Apples under 1", "InsertItem Bolts under 1"));
    EXPECT_EQ(shelf->row(), shelfRow);
    EXPECT_EQ(shelf->boxes[0]->row(), 2);
    EXPECT_EQ(shelf->boxes[0]->console(), &host);
}

TEST_F(Node, aRecordCountOfZeroInsertsNothingAndShowsAnEmptyListWithItsColumns) {
    shelf->records.clear();
    EXPECT_EQ(expand(), Result::ok);
    shelf->Notify(from(Event::show, 1));
    EXPECT_THAT(shelf->boxes, IsEmpty());
    EXPECT_THAT(host.childNames(shelfRow), IsEmpty());
    EXPECT_THAT(host.titles(), ElementsAre(u"Name", u"Weight", u"Kept automatic"));
    EXPECT_THAT(host.resultRows, IsEmpty());
}

TEST_F(Node, aSecondExpansionRemovesTheChildrenFirstSoThatNoneIsListedTwice) {
    expand();
    host.calls.clear();
    EXPECT_EQ(expand(), Result::ok);
    EXPECT_THAT(host.calls,
                ElementsAre("DeleteItem 1 children", "InsertItem Apples under 1", "InsertItem Bolts under 1"));
    EXPECT_THAT(host.childNames(shelfRow), ElementsAre(u"Apples", u"Bolts"));
}

TEST_F(Node, expandingWithCodeZeroDoesNothingNotEvenStoreTheConsole) {
    EXPECT_EQ(shelf->Notify({.event = Event::expand, .arg = 0, .param = shelfRow, .component = &host}), Result::ok);
    EXPECT_EQ(shelf->lastExpand, ExpandCode::collapse);
    EXPECT_EQ(shelf->console(), nullptr);
    EXPECT_EQ(shelf->row(), 0);
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(Node, collapsingKeepsTheChildrenInMemory) {
    expand();
    expand(ExpandCode::collapse);
    EXPECT_EQ(shelf->boxes.size(), 2U);
    EXPECT_THAT(host.childNames(shelfRow), ElementsAre(u"Apples", u"Bolts"));
}

TEST_F(Node, anyOtherTrueExpands) {
    shelf->Notify(from(Event::expand, -1, shelfRow));
    EXPECT_EQ(shelf->lastExpand, ExpandCode::expand);
}

TEST_F(Node, anExpansionThatThrowsLeavesTheSubtreeEmptyAndTheOldRowsInMemory) {
    expand();
    shelf->reading = [] { throw "Reading outside scope"; };
    EXPECT_EQ(expand(ExpandCode::refresh), Result::failed);
    EXPECT_THAT(host.childNames(shelfRow), IsEmpty());
    shelf->Notify(from(Event::show, 1));
    EXPECT_THAT(host.table(), ElementsAre(ElementsAre(u"Apples", u"", u""), ElementsAre(u"Bolts", u"", u"")));
    EXPECT_THAT(platform.failures(), ElementsAre("class ShelfNode: notification 32779: Reading outside scope"));
}

TEST_F(Node, aRecordThatStaysKeepsItsRowInTheResultPane) {
    expand();
    shelf->Notify(from(Event::show, 1));
    const ResultId bolts = shelf->boxes[1]->resultFields().itemID;
    shelf->boxes[1]->resultFields().nIndex = 17;
    shelf->records = {{"b", u"Bolts and nuts"}};
    expand(ExpandCode::refresh);
    const ResultItemFields& fresh = shelf->boxes[0]->resultFields();
    EXPECT_EQ(fresh.itemID, bolts);
    EXPECT_EQ(fresh.nIndex, 17);
    shelf->Notify(from(Event::viewChange));
    EXPECT_EQ(host.resultRows[0].id, bolts);
    EXPECT_EQ(host.resultRows[0].node, shelf->boxes[0]);
}

TEST_F(Node, theCarriedRowBelongsToTheNodeThatHoldsTheNewRecord) {
    expand();
    expand(ExpandCode::refresh);
    EXPECT_EQ(shelf->boxes[0]->resultFields().lParam, shelf->boxes[0].get());
}

TEST_F(Node, aCarriedRowLeavesTheScopeRowToTheNewNodeUnlessAskedFor) {
    expand();
    const ScopeId before = shelf->boxes[0]->row();
    host.scopeRows.clear();
    shelf->carryOver = CarryOver::resultRow;
    expand(ExpandCode::refresh);
    EXPECT_NE(shelf->boxes[0]->row(), before);
}

TEST_F(Node, theScopeRowIsCarriedWhereAskedFor) {
    NodeArray<BoxNode> current{std::make_shared<BoxNode>(platform, "a", u"Old")};
    current[0]->scopeFields().ID = 42;
    current[0]->resultFields().itemID = 7;
    NodeArray<BoxNode> fresh{std::make_shared<BoxNode>(platform, "a", u"New"),
                             std::make_shared<BoxNode>(platform, "n", u"Newcomer")};
    ShelfNode::replaceBoxes(current, std::move(fresh), CarryOver::resultRowAndScopeId);
    EXPECT_EQ(current[0]->row(), 42);
    EXPECT_EQ(current[0]->resultFields().itemID, 7);
    EXPECT_EQ(current[0]->displayName(), u"New");
    EXPECT_EQ(current[1]->row(), 0);
}

TEST_F(Node, aRecordThatVanishedHasNoNewChildAndLivesAsLongAsTheConsoleShowsIt) {
    expand();
    shelf->Notify(from(Event::show, 1));
    const std::weak_ptr<BoxNode> apples = shelf->boxes[0];
    shelf->records = {{"b", u"Bolts"}};
    expand(ExpandCode::refresh);
    EXPECT_THAT(host.childNames(shelfRow), ElementsAre(u"Bolts"));
    EXPECT_FALSE(apples.expired()) << "the result pane still shows it";
    shelf->Notify(from(Event::viewChange));
    EXPECT_TRUE(apples.expired());
}

TEST_F(Node, aNewRecordStartsWithTheConstructorsRow) {
    expand();
    shelf->records.push_back({"c", u"Cables"});
    expand(ExpandCode::refresh);
    const ResultItemFields& fields = shelf->boxes[2]->resultFields();
    EXPECT_EQ(fields.mask, 0x16U);
    EXPECT_EQ(fields.itemID, 0);
    EXPECT_EQ(fields.nIndex, 0);
    EXPECT_EQ(fields.nCol, 0);
    EXPECT_EQ(fields.str, textCallback);
    EXPECT_EQ(fields.nImage, 4);
    EXPECT_EQ(fields.nState, 0U);
    EXPECT_EQ(fields.iIndent, 0);
    EXPECT_FALSE(fields.bScopeItem);
    EXPECT_EQ(fields.lParam, shelf->boxes[2].get());
}

TEST_F(Node, twoRecordsWithOneKeyBothStayInTheList) {
    shelf->records = {{"a", u"First"}, {"a", u"Second"}};
    expand();
    shelf->Notify(from(Event::show, 1));
    expand(ExpandCode::refresh);
    shelf->Notify(from(Event::show, 1));
    EXPECT_THAT(host.table(), ElementsAre(ElementsAre(u"First", u"", u""), ElementsAre(u"Second", u"", u"")));
    EXPECT_NE(host.resultRows[0].id, host.resultRows[1].id);
}

TEST_F(Node, showingInsertsColumnsWithTruncatedWidthsAndThenTheRows) {
    expand();
    host.calls.clear();
    EXPECT_EQ(shelf->Notify(from(Event::show, 1)), Result::ok);
    EXPECT_THAT(host.calls, ElementsAre("InsertColumn 0 Name", "SetColumnWidth 0 250", "InsertColumn 1 Weight",
                                        "SetColumnWidth 1 133", "InsertColumn 2 Kept automatic", "DeleteAllRsltItems",
                                        "InsertRow Apples", "InsertRow Bolts"));
    EXPECT_TRUE(shelf->visible());
}

TEST_F(Node, hidingClearsTheVisibleFlagAndTouchesNothing) {
    shelf->Notify(from(Event::show, 1));
    host.calls.clear();
    EXPECT_EQ(shelf->Notify(from(Event::show, 0)), Result::ok);
    EXPECT_FALSE(shelf->visible());
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(Node, showingAgainRefillsTheRowsAndLeavesTheColumnsAndTheFlag) {
    expand();
    shelf->Notify(from(Event::show, 1));
    host.calls.clear();
    EXPECT_EQ(shelf->OnShow(host, false, 1), Result::ok);
    EXPECT_THAT(host.calls, ElementsAre("DeleteAllRsltItems", "InsertRow Apples", "InsertRow Bolts"));
    EXPECT_TRUE(shelf->visible());
}

TEST_F(Node, aChangeOfTheViewShowsItAnew) {
    EXPECT_EQ(shelf->Notify(from(Event::viewChange)), Result::ok);
    EXPECT_THAT(shelf->shows, ElementsAre(Pair(true, 0)));
}

TEST_F(Node, showingReadsNothing) {
    expand();
    shelf->reading = [] { FAIL() << "the server was asked"; };
    shelf->Notify(from(Event::show, 1));
    EXPECT_EQ(host.resultRows.size(), 2U);
}

TEST_F(Node, aListThatIsReadWhenItIsShownIsNotReadByARefresh) {
    shelf->whenRead = RowReading::whenShown;
    shelf->Notify(from(Event::show, 1));
    shelf->records.pop_back();
    shelf->OnShow(host, false, 1);
    EXPECT_EQ(host.resultRows.size(), 2U);
    shelf->Notify(from(Event::show, 1));
    EXPECT_EQ(host.resultRows.size(), 1U);
}

TEST_F(Node, aListMayBeReadOnARefreshToo) {
    shelf->whenRead = RowReading::whenShownOrAgain;
    shelf->Notify(from(Event::show, 1));
    shelf->records.pop_back();
    shelf->OnShow(host, false, 1);
    EXPECT_EQ(host.resultRows.size(), 1U);
    shelf->reading = [] { FAIL() << "nobody sees what is read for a list that goes"; };
    shelf->Notify(from(Event::show, 0));
}

TEST_F(Node, aListThatIsReadOnEveryShowIsReadBeforeItsColumnsAndAlsoWhenItGoes) {
    std::vector<std::size_t> callsBefore;
    shelf->whenRead = RowReading::onEveryShow;
    shelf->reading = [&] { callsBefore.push_back(host.calls.size()); };
    shelf->Notify(from(Event::show, 1));
    shelf->Notify(from(Event::show, 0));
    EXPECT_THAT(callsBefore, ElementsAre(0U, 8U));
}

TEST_F(Node, aListThatCantBeReadOnEveryShowShowsWhatStoodAndTellsTheFailure) {
    shelf->whenRead = RowReading::onEveryShow;
    shelf->Notify(from(Event::show, 1));
    shelf->reading = [] { throw "Reading outside scope"; };
    EXPECT_EQ(shelf->Notify(from(Event::viewChange)), Result::failed);
    EXPECT_EQ(host.resultRows.size(), 2U);
    EXPECT_EQ(platform.failures().size(), 1U);
}

TEST_F(Node, showsItselfAnewFromMemoryUnlessOnlyAShowReadsIt) {
    expand();
    shelf->reading = [] { FAIL() << "the server was asked"; };
    for (const auto reading : {RowReading::never, RowReading::whenShownOrAgain, RowReading::onEveryShow}) {
        shelf->whenRead = reading;
        EXPECT_EQ(shelf->showAnew(host), Result::ok);
        EXPECT_EQ(host.resultRows.size(), 2U);
    }
    bool read = false;
    shelf->reading = [&] { read = true; };
    shelf->whenRead = RowReading::whenShown;
    EXPECT_EQ(shelf->showAnew(host), Result::ok);
    EXPECT_TRUE(read);
}

TEST_F(Node, hasJustItsOwnRowRedrawn) {
    expand();
    shelf->boxes[0]->redrawRow();
    EXPECT_EQ(host.calls.back(), "InsertItem Bolts under 1") << "it stands in no list yet";
    shelf->Notify(from(Event::show, 1));
    shelf->boxes[1]->redrawRow();
    EXPECT_EQ(host.calls.back(), "UpdateRow 2");
}

TEST_F(Node, mayHaveAnotherImageInTheListThanInTheTree) {
    expand();
    shelf->boxes[0]->setResultImage(13);
    ScopeItemFields inTree;
    ResultItemFields inList;
    shelf->boxes[0]->GetScopePaneInfo(inTree);
    shelf->boxes[0]->GetResultPaneInfo(inList);
    EXPECT_EQ(inTree.nImage, 4);
    EXPECT_EQ(inList.nImage, 13);
    EXPECT_EQ((NodeIdentity{.image = 4}.resultImage), 4);
    EXPECT_EQ((NodeIdentity{.image = 4, .resultImage = 9}.resultImage), 9);
}

TEST_F(Node, aRefreshInTheTreeShowsTheOldRowsAndThenReads) {
    expand();
    shelf->Notify(from(Event::show, 1));
    shelf->records = {{"c", u"Cables"}};
    host.calls.clear();
    auto notification = from(Event::refresh, shelfRow);
    notification.type = DataObjectType::scope;
    EXPECT_EQ(shelf->Notify(notification), Result::ok);
    EXPECT_THAT(host.calls, ElementsAre("DeleteAllRsltItems", "InsertRow Apples", "InsertRow Bolts",
                                        "DeleteItem 1 children", "InsertItem Cables under 1"));
    EXPECT_EQ(shelf->lastExpand, ExpandCode::refresh);
    EXPECT_THAT(platform.ui.presses(), IsEmpty());
}

TEST_F(Node, aRefreshOnAResultRowInjectsTabThenF5AsOneSequenceAndReadsNothingByItself) {
    shelf->reading = [] { FAIL() << "the server was asked"; };
    for (const auto type : {DataObjectType::result, DataObjectType::uninitialized}) {
        auto notification = from(Event::refresh, shelfRow);
        notification.type = type;
        EXPECT_EQ(shelf->Notify(notification), Result::ok);
    }
    EXPECT_THAT(platform.ui.presses(), ElementsAre(ElementsAre(platform::Key::tab, platform::Key::f5),
                                                   ElementsAre(platform::Key::tab, platform::Key::f5)));
    EXPECT_FALSE(shelf->lastExpand.has_value());
}

TEST_F(Node, oneNodeRefreshesAnotherByShowingFromMemoryAndThenReading) {
    support::RecordingConsole view;
    EXPECT_EQ(shelf->RefreshNode(host, shelfRow, view), Result::ok);
    EXPECT_THAT(shelf->shows, ElementsAre(Pair(false, 1)));
    EXPECT_EQ(shelf->lastExpand, ExpandCode::refresh);
    EXPECT_THAT(view.calls, ElementsAre("DeleteAllRsltItems"));
    EXPECT_THAT(host.childNames(shelfRow), ElementsAre(u"Apples", u"Bolts"));
}

} // namespace
} // namespace console
