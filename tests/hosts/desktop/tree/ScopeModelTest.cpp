#include "hosts/desktop/tree/ScopeModel.h"

#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/tree/DragData.h"
#include "tests/hosts/desktop/ModelFixture.h"

#include <QMimeData>

#include <memory>

namespace desktoptest {
namespace {

using desktop::ScopeModel;

class ScopeModelTest : public ModelFixture {
protected:
    QString text(console::ScopeId id) const { return model.indexOf(id).data().toString(); }

    ScopeModel model{operations, observers, icons};
    Tested tested{model};
};

TEST_F(ScopeModelTest, isEmptyBeforeTheConsoleStarts) {
    EXPECT_EQ(0, model.rowCount({}));
    EXPECT_FALSE(model.hasChildren({}));
}

TEST_F(ScopeModelTest, showsTheRootAndItsChildrenOnceTheConsoleHasStarted) {
    start();
    ASSERT_EQ(1, model.rowCount({}));
    const auto root = model.index(0, 0, {});
    EXPECT_EQ(QStringLiteral("Top"), root.data().toString());
    ASSERT_EQ(2, model.rowCount(root));
    EXPECT_EQ(QStringLiteral("A"), model.index(0, 0, root).data().toString());
    EXPECT_EQ(root, model.index(1, 0, root).parent());
}

TEST_F(ScopeModelTest, aModelMadeAfterTheStartShowsTheSame) {
    start();
    const ScopeModel late(operations, observers, icons);
    EXPECT_EQ(1, late.rowCount({}));
    EXPECT_EQ(2, late.rowCount(late.index(0, 0, {})));
}

TEST_F(ScopeModelTest, anItemThatWasNotOpenedMayHaveChildren) {
    start();
    EXPECT_TRUE(model.hasChildren(model.indexOf(a())));
    EXPECT_EQ(0, model.rowCount(model.indexOf(a())));
    EXPECT_FALSE(model.indexOf(a()).flags().testFlag(Qt::ItemNeverHasChildren));
}

TEST_F(ScopeModelTest, leavesSayThatTheyNeverHaveChildren) {
    start();
    perform([&](shell::Shell& console) { return console.expand(b()); });
    const auto leaf = model.index(0, 0, model.indexOf(b()));
    ASSERT_TRUE(leaf.isValid());
    EXPECT_FALSE(model.hasChildren(leaf));
    EXPECT_TRUE(leaf.flags().testFlag(Qt::ItemNeverHasChildren));
}

TEST_F(ScopeModelTest, followsChildrenThatComeAndGoAtARefresh) {
    start();
    perform([&](shell::Shell& console) { return console.expand(a()) && console.select(a()); });
    const QPersistentModelIndex kept(model.indexOf(child(a(), u"A2")));
    estate.below["a"].erase(estate.below["a"].begin());
    estate.below["a"].push_back({.key = "a3", .name = u"A3"});
    perform(&shell::Shell::refresh);
    EXPECT_EQ(4, model.rowCount(model.indexOf(a())));
    EXPECT_EQ(QStringLiteral("A2"), kept.data().toString());
    EXPECT_EQ(QStringLiteral("A3"), text(child(a(), u"A3")));
}

TEST_F(ScopeModelTest, onlyTheSelectedItemCanBeRenamedWhereTheConsoleOffersIt) {
    start();
    perform([&](shell::Shell& console) { return console.select(a()); });
    EXPECT_TRUE(model.indexOf(a()).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_FALSE(model.indexOf(b()).flags().testFlag(Qt::ItemIsEditable));
}

TEST_F(ScopeModelTest, aNewNameGoesToTheNodeOnceTheEditorIsGone) {
    start();
    std::string renamed;
    estate.renamed = [&](auto&, const wire::WideString& name) { renamed = wire::toUtf8(name); };
    perform([&](shell::Shell& console) { return console.select(a()); });
    EXPECT_TRUE(model.setData(model.indexOf(a()), QStringLiteral("North"), Qt::EditRole));
    EXPECT_EQ("", renamed);
    settle();
    EXPECT_EQ("North", renamed);
}

TEST_F(ScopeModelTest, anUnchangedOrEmptyNameIsNotSent) {
    start();
    perform([&](shell::Shell& console) { return console.select(a()); });
    EXPECT_FALSE(model.setData(model.indexOf(a()), QStringLiteral("A"), Qt::EditRole));
    EXPECT_FALSE(model.setData(model.indexOf(a()), QString(), Qt::EditRole));
}

TEST_F(ScopeModelTest, namesAreShownAsOneLineOfPlainText) {
    estate.below["top"] = {{.key = "x", .name = u"<b>one</b>\ntwo"},
                           {.key = "y", .name = u"a\u202Eb"},
                           {.key = "z", .name = wire::WideString(65'535, u'z')}};
    start();
    EXPECT_EQ(QStringLiteral("<b>one</b>␊two"), text(child(top(), u"<b>one</b>\ntwo")));
    EXPECT_EQ(QString::fromUtf16(u"a\uFFFDb"), text(child(top(), u"a\u202Eb")));
    const auto longest = model.index(2, 0, model.index(0, 0, {}));
    EXPECT_EQ(401, longest.data().toString().size());
    EXPECT_EQ(65'535, longest.data(Qt::EditRole).toString().size());
}

TEST_F(ScopeModelTest, anItemIsDroppedOnlyWhereTheNodeTakesIt) {
    start();
    const std::unique_ptr<QMimeData> data(model.mimeData({model.indexOf(b())}));
    EXPECT_TRUE(model.canDropMimeData(data.get(), Qt::MoveAction, -1, -1, model.indexOf(a())));
    EXPECT_FALSE(model.canDropMimeData(data.get(), Qt::MoveAction, -1, -1, model.indexOf(b())));
    EXPECT_FALSE(model.canDropMimeData(data.get(), Qt::MoveAction, 0, 0, model.indexOf(a())));
    estate.pasteAllowed = false;
    EXPECT_FALSE(model.canDropMimeData(data.get(), Qt::MoveAction, -1, -1, model.indexOf(a())));
}

TEST_F(ScopeModelTest, aDropIsDoneWhenTheDragIsOver) {
    start();
    int pasted = 0;
    estate.pasted = [&](auto&, auto&) { ++pasted; };
    const std::unique_ptr<QMimeData> data(model.mimeData({model.indexOf(b())}));
    EXPECT_TRUE(model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, model.indexOf(a())));
    EXPECT_EQ(0, pasted);
    settle();
    EXPECT_EQ(1, pasted);
}

TEST_F(ScopeModelTest, dataOfOtherProgramsAreNotTaken) {
    start();
    QMimeData foreign;
    foreign.setText(QStringLiteral("A"));
    EXPECT_FALSE(model.canDropMimeData(&foreign, Qt::MoveAction, -1, -1, model.indexOf(a())));
    foreign.setData(QString::fromLatin1(desktop::dragFormat), "1 2 3");
    EXPECT_FALSE(model.canDropMimeData(&foreign, Qt::MoveAction, -1, -1, model.indexOf(a())));
}

} // namespace
} // namespace desktoptest
