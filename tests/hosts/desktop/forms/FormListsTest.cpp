#include "tests/hosts/desktop/forms/DialogFixture.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QRadioButton>
#include <QTest>
#include <QTreeView>

namespace desktop {
namespace {

class FormLists : public DialogFixture {
protected:
    void fillRules() {
        form.rules.setColumns({{u"Name", 120}, {u"Id", 0}, {u"Kind", 80}});
        form.rules.setRows({{{u"Rule 10", u"id-a", u"x"}, "a"}, {{u"Rule 9", u"id-b", u"y"}, "b"}, {{u"rule 1"}, "c"}});
    }
    QString cell(const QTreeView& view, int row, int column) {
        return view.model()->index(row, column).data().toString();
    }
};

TEST_F(FormLists, theRowsOfADropListAreShownAndPicked) {
    form.opening = [this] {
        form.brand.addItem(u"Beta", "2");
        form.brand.addItem(u"Alpha", "1");
    };
    show();
    auto& box = widget<QComboBox>(form.brand);
    ASSERT_EQ(box.count(), 2);
    EXPECT_EQ(box.itemText(0), QStringLiteral("Alpha"));
    EXPECT_EQ(box.currentIndex(), -1);
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(form.brand.selectedData(), "1");
    form.brand.selectData("2");
    EXPECT_EQ(box.currentIndex(), 1);
}

TEST_F(FormLists, aDropListThatIsFilledByAHandlerIsShownOnceItIsThrough) {
    show();
    for (int i = 0; i < 300; ++i) {
        form.brand.addItem(wire::toWide(std::to_string(i)));
    }
    form.brand.select(7);
    settle();
    EXPECT_EQ(widget<QComboBox>(form.brand).count(), 300);
    EXPECT_EQ(widget<QComboBox>(form.brand).currentIndex(), 7);
}

TEST_F(FormLists, aRowThatIsPickedBeforeTheScreenHasCaughtUpDoesNotCount) {
    form.opening = [this] { form.brand.addItem(u"Zeta"); };
    show();
    form.brand.clear();
    form.brand.addItem(u"Other");
    QTest::keyClick(&widget<QComboBox>(form.brand), Qt::Key_Down);
    EXPECT_FALSE(form.brand.selection());
    settle();
    EXPECT_EQ(widget<QComboBox>(form.brand).itemText(0), QStringLiteral("Other"));
}

TEST_F(FormLists, choosingARadioButtonLetsGoOfTheOthers) {
    form.opening = [this] { form.byBrand.choose(); };
    show();
    EXPECT_TRUE(widget<QRadioButton>(form.byBrand).isChecked());
    widget<QRadioButton>(form.byName).click();
    EXPECT_TRUE(form.byName.chosen());
    EXPECT_FALSE(widget<QRadioButton>(form.byBrand).isChecked());
    form.byBrand.choose();
    EXPECT_TRUE(widget<QRadioButton>(form.byBrand).isChecked());
    EXPECT_FALSE(widget<QRadioButton>(form.byName).isChecked());
}

TEST_F(FormLists, theArrowKeysChooseAmongRadioButtons) {
    form.opening = [this] { form.byBrand.choose(); };
    show();
    widget<QRadioButton>(form.byBrand).setFocus();
    QTest::keyClick(&widget<QRadioButton>(form.byBrand), Qt::Key_Down);
    EXPECT_TRUE(form.byName.chosen());
}

TEST_F(FormLists, aListStandsBehindTheRadioButtonThatItGoesWith) {
    const auto& dialog = show();
    const QRect button = placeOn(dialog, form.byBrand);
    const QRect list = placeOn(dialog, form.brand);
    EXPECT_GT(list.left(), button.right());
    EXPECT_LT(std::abs(list.center().y() - button.center().y()), 8);
    EXPECT_EQ(widget<QComboBox>(form.brand).accessibleName(), QStringLiteral("By brand"));
}

TEST_F(FormLists, aColumnWithoutWidthIsHidden) {
    form.opening = [this] { fillRules(); };
    show();
    const auto& view = widget<QTreeView>(form.rules);
    EXPECT_FALSE(view.isColumnHidden(0));
    EXPECT_TRUE(view.isColumnHidden(1));
    EXPECT_FALSE(view.isColumnHidden(2));
    EXPECT_GE(view.columnWidth(0), 120);
}

TEST_F(FormLists, aSelectedRowIsMirroredBothWays) {
    form.opening = [this] { fillRules(); };
    show();
    auto& view = widget<QTreeView>(form.rules);
    int selections = 0;
    form.rules.onSelect = [&] { ++selections; };
    view.setCurrentIndex(view.model()->index(1, 0));
    EXPECT_EQ(form.rules.selection(), 1U);
    EXPECT_EQ(selections, 1);
    form.rules.select(2);
    EXPECT_EQ(view.selectionModel()->selectedRows().front().row(), 2);
    form.rules.select(std::nullopt);
    EXPECT_TRUE(view.selectionModel()->selectedRows().isEmpty());
    EXPECT_EQ(selections, 1);
}

TEST_F(FormLists, aSortedListKeepsTheNumbersOfItsRows) {
    form.opening = [this] { fillRules(); };
    show();
    auto& view = widget<QTreeView>(form.rules);
    EXPECT_EQ(cell(view, 0, 0), QStringLiteral("Rule 10")) << "unsorted at first";
    view.header()->setSortIndicator(0, Qt::AscendingOrder);
    EXPECT_EQ(cell(view, 0, 0), QStringLiteral("rule 1"));
    EXPECT_EQ(cell(view, 1, 0), QStringLiteral("Rule 9"));
    view.setCurrentIndex(view.model()->index(0, 0));
    EXPECT_EQ(form.rules.selectedRow()->data, "c");
    form.rules.select(0);
    EXPECT_EQ(view.selectionModel()->selectedRows().front().row(), 2);
}

TEST_F(FormLists, aSortedListStaysSortedWhenItsRowsChange) {
    form.opening = [this] { fillRules(); };
    show();
    auto& view = widget<QTreeView>(form.rules);
    view.header()->setSortIndicator(0, Qt::AscendingOrder);
    form.rules.addRow({{u"Rule 2"}, "d"});
    form.rules.select(3);
    settle();
    EXPECT_EQ(cell(view, 1, 0), QStringLiteral("Rule 2"));
    EXPECT_EQ(view.selectionModel()->selectedRows().front().row(), 1);
    form.rules.removeRow(2);
    settle();
    EXPECT_EQ(view.model()->rowCount(), 3);
    EXPECT_EQ(form.rules.selectedRow()->data, "d");
    EXPECT_EQ(view.selectionModel()->selectedRows().front().row(), 0);
}

TEST_F(FormLists, aDoubleClickReachesTheRowUnderIt) {
    form.opening = [this] { fillRules(); };
    show();
    auto& view = widget<QTreeView>(form.rules);
    std::string opened;
    form.rules.onDoubleClick = [&] { opened = form.rules.selectedRow()->data; };
    const QPoint place = view.visualRect(view.model()->index(1, 0)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(opened, "b");
}

TEST_F(FormLists, theKeyboardOpensARowToo) {
    form.opening = [this] { fillRules(); };
    show();
    auto& view = widget<QTreeView>(form.rules);
    std::string opened;
    form.rules.onDoubleClick = [&] { opened = form.rules.selectedRow()->data; };
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(opened, "") << "no row yet";
    view.setCurrentIndex(view.model()->index(1, 0));
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(opened, "b");
    EXPECT_FALSE(form.ended());
}

TEST_F(FormLists, aRightClickOpensTheMenuOfTheRow) {
    form.opening = [this] { fillRules(); };
    form.rules.setRowMenu({u"Edit", u"Salt & pepper"});
    auto& dialog = show();
    auto& view = widget<QTreeView>(form.rules);
    std::string chosen;
    form.rules.onRowMenu = [&](std::size_t entry) {
        chosen = form.rules.selectedRow()->data + " " + std::to_string(entry);
    };
    const QPoint place = view.visualRect(view.model()->index(1, 0)).center();
    QContextMenuEvent click(QContextMenuEvent::Mouse, place, view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(view.viewport(), &click);
    const auto* const menu = dialog.findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_EQ(menu->actions()[1]->text(), QStringLiteral("Salt && pepper"));
    menu->actions()[1]->trigger();
    EXPECT_EQ(chosen, "b 1");
}

TEST_F(FormLists, theMenuKeyOpensTheMenuOfTheCurrentRow) {
    form.opening = [this] { fillRules(); };
    form.rules.setRowMenu({u"Edit"});
    auto& dialog = show();
    auto& view = widget<QTreeView>(form.rules);
    std::string chosen;
    form.rules.onRowMenu = [&](std::size_t /*entry*/) { chosen = form.rules.selectedRow()->data; };
    view.setCurrentIndex(view.model()->index(2, 0));
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&view, &key);
    const auto* const menu = dialog.findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    menu->actions().front()->trigger();
    EXPECT_EQ(chosen, "c");
}

TEST_F(FormLists, aListWithoutAMenuOrWithoutARowOpensNone) {
    auto& dialog = show();
    auto& view = widget<QTreeView>(form.rules);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    form.rules.setRowMenu({u"Edit"});
    QCoreApplication::sendEvent(&view, &key);
    EXPECT_EQ(dialog.findChild<QMenu*>(), nullptr) << "no row";
    fillRules();
    settle();
    form.rules.setRowMenu({});
    view.setCurrentIndex(view.model()->index(0, 0));
    QCoreApplication::sendEvent(&view, &key);
    EXPECT_EQ(dialog.findChild<QMenu*>(), nullptr) << "no menu";
}

TEST_F(FormLists, aRowThatIsGoneWhenItsMenuIsUsedIsLeftAlone) {
    form.opening = [this] { fillRules(); };
    form.rules.setRowMenu({u"Edit"});
    auto& dialog = show();
    auto& view = widget<QTreeView>(form.rules);
    int calls = 0;
    form.rules.onRowMenu = [&](std::size_t /*entry*/) { ++calls; };
    view.setCurrentIndex(view.model()->index(2, 0));
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&view, &key);
    const auto* const menu = dialog.findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    form.rules.setRows({});
    menu->actions().front()->trigger();
    settle();
    EXPECT_EQ(calls, 0);
}

// A number with its unit, a check with its box, and a list with its buttons.
class NeighboursForm final : public forms::Form {
public:
    explicit NeighboursForm(platform::Platform& owner) : Form(owner, u"Neighbours") {
        unit.setBeside(number);
        amount.setBeside(limited);
        edit.setBeside(list);
        remove.setBeside(list);
    }
    forms::EditBox number{*this, u"Number"};
    forms::DropList unit{*this, u""};
    forms::CheckBox limited{*this, u"Limited to"};
    forms::EditBox amount{*this, u""};
    forms::ListView list{*this, u"Messages"};
    forms::EditBox last{*this, u"Last"};
    forms::Button edit{*this, u"Edit"};
    forms::Button remove{*this, u"Delete"};
};

TEST(FormNeighbours, whatStandsBesideAnotherSharesItsLineAndItsName) {
    support::TestPlatform platform;
    NeighboursForm form(platform);
    FormDialog dialog(form);
    dialog.show();
    const auto sharesLine = [&](const forms::Control& left, const forms::Control& right) {
        const QRect first = placeOn(dialog, left);
        const QRect second = placeOn(dialog, right);
        return second.left() > first.right() && std::abs(first.center().y() - second.center().y()) < 8;
    };
    EXPECT_TRUE(sharesLine(form.number, form.unit));
    EXPECT_TRUE(sharesLine(form.limited, form.amount));
    EXPECT_EQ(dialog.widgetOf(form.unit)->accessibleName(), QStringLiteral("Number"));
    EXPECT_EQ(dialog.widgetOf(form.amount)->accessibleName(), QStringLiteral("Limited to"));
}

TEST(FormNeighbours, theButtonsOfAListStandBelowIt) {
    support::TestPlatform platform;
    NeighboursForm form(platform);
    FormDialog dialog(form);
    dialog.show();
    const auto top = [&](const forms::Control& control) { return dialog.widgetOf(control)->geometry().top(); };
    EXPECT_GT(top(form.edit), dialog.widgetOf(form.list)->geometry().bottom());
    EXPECT_EQ(top(form.edit), top(form.remove));
    EXPECT_LT(top(form.edit), top(form.last));
}

TEST_F(FormLists, aCellThatChangesIsShown) {
    form.opening = [this] { fillRules(); };
    show();
    form.rules.setCell(0, 2, u"<i>new</i>");
    settle();
    EXPECT_EQ(cell(widget<QTreeView>(form.rules), 0, 2), QStringLiteral("<i>new</i>"));
}

TEST_F(FormLists, aListThatShrinksBeforeTheScreenHasCaughtUpIsStillSafe) {
    form.opening = [this] { fillRules(); };
    show();
    form.rules.setRows({});
    const auto& view = widget<QTreeView>(form.rules);
    EXPECT_EQ(cell(view, 2, 0), QString());
    settle();
    EXPECT_EQ(view.model()->rowCount(), 0);
}

TEST_F(FormLists, anItemOfATreeIsMirroredBothWays) {
    form.opening = [this] {
        const auto top = form.regions.addItem({u"North", 1, std::nullopt});
        form.regions.addItem({u"South", 2, std::nullopt});
        form.regions.addItem({u"Harbour", 3, top});
    };
    show();
    form.tabs.show(1);
    auto& view = widget<QTreeView>(form.regions);
    const auto north = view.model()->index(0, 0);
    ASSERT_EQ(view.model()->rowCount(north), 1);
    EXPECT_EQ(view.model()->index(0, 0, north).data().toString(), QStringLiteral("Harbour"));
    view.setCurrentIndex(view.model()->index(0, 0, north));
    EXPECT_EQ(form.regions.selection(), 2U);
    form.regions.select(1);
    EXPECT_EQ(view.currentIndex().data().toString(), QStringLiteral("South"));
    form.regions.clear();
    settle();
    EXPECT_EQ(view.model()->rowCount(), 0);
}

TEST_F(FormLists, theItemThatIsSelectedInATreeIsInSight) {
    form.opening = [this] {
        const auto top = form.regions.addItem({u"All", 0, std::nullopt});
        for (int i = 1; i < 300; ++i) {
            form.regions.addItem({wire::toWide("Region " + std::to_string(i)), i, top});
        }
        form.regions.select(299);
        form.tabs.show(1);
    };
    show();
    auto& view = widget<QTreeView>(form.regions);
    EXPECT_TRUE(view.viewport()->rect().intersects(view.visualRect(view.currentIndex())));
    EXPECT_EQ(view.currentIndex().data().toString(), QStringLiteral("Region 299"));
}

TEST_F(FormLists, aSingleRowIsSelectedByTheArrowKeys) {
    form.opening = [this] {
        form.rules.setColumns({{u"Name", 120}});
        form.rules.setRows({{{u"Rule 1"}, "a"}});
    };
    show();
    auto& view = widget<QTreeView>(form.rules);
    view.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(form.rules.selection(), 0U);
}

TEST_F(FormLists, theFirstArrowKeySelectsTheRowThatHasTheFocus) {
    form.opening = [this] { fillRules(); };
    show();
    auto& view = widget<QTreeView>(form.rules);
    view.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(form.rules.selection(), 0U);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(form.rules.selection(), 1U);
}

TEST_F(FormLists, numbersAreAlignedAtTheRightWithTheirTitle) {
    form.rules.setColumns({{u"Name", 120}, {u"Price", 80, true}});
    form.rules.setRows({{{u"A4", u"0.5"}, "a"}});
    show();
    const auto* const model = widget<QTreeView>(form.rules).model();
    const auto alignment = [&](int column) {
        return Qt::Alignment(model->index(0, column).data(Qt::TextAlignmentRole).toInt());
    };
    EXPECT_TRUE(alignment(0).testFlag(Qt::AlignLeft));
    EXPECT_TRUE(alignment(1).testFlag(Qt::AlignRight));
    EXPECT_TRUE(
        Qt::Alignment(model->headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).toInt()).testFlag(Qt::AlignRight));
}

TEST_F(FormLists, aRowSaysMoreAboutItselfInItsToolTip) {
    form.rules.setColumns({{u"Name", 120}});
    form.rules.setRows({{{u"A4"}, "a", u"Prices of <copying>"}, {{u"A4"}, "b"}});
    show();
    const auto* const model = widget<QTreeView>(form.rules).model();
    EXPECT_TRUE(model->index(0, 0).data(Qt::ToolTipRole).toString().contains(QStringLiteral("&lt;copying&gt;")));
    EXPECT_EQ(model->index(0, 0).data(Qt::AccessibleDescriptionRole).toString(), QStringLiteral("Prices of <copying>"));
    EXPECT_FALSE(model->index(1, 0).data(Qt::ToolTipRole).isValid());
}

} // namespace
} // namespace desktop
