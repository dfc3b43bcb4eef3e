#include "localprinters/LocalPrinterQueueNode.h"

#include "localprinters/LocalPrinterPropertiesDlg.h"
#include "tests/localprinters/LocalPrinterTree.h"
#include "tests/printers/PrinterDialogs.h"

namespace {

using console::DataObjectType;
using console::Result;
using localprinters::LocalPrinterPropertiesDlg;
using localprinters::LocalPrinterQueueNode;
using platform::Key;

class LocalPrinterNodes : public LocalPrinterTree {
protected:
    std::shared_ptr<LocalPrinterQueueNode> makePrinter() {
        auto record = support::printer("l1", 1, u"Desk");
        record.jobs = 65535;
        record.snmpStatus = 7;
        return std::make_shared<LocalPrinterQueueNode>(platform_, record);
    }
};

TEST_F(LocalPrinterNodes, areLeavesWithoutALevelOrAListBelow) {
    const auto printer = makePrinter();
    const auto row = console_.addScopeRow(printer, rootRow_);
    console_.calls.clear();

    EXPECT_EQ(expand(console_, *printer, row), Result::ok);
    EXPECT_EQ(show(console_, *printer), Result::ok);

    EXPECT_EQ(printer->nodeIdentity().children, 0);
    EXPECT_TRUE(console_.calls.empty());
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(LocalPrinterNodes, haveOneMenuEntryAndNoDelete) {
    EXPECT_EQ(menuOf(console_, *makePrinter()),
              (Menu{{u"Edit Queue/Queue Properties", u"To edit queue properties", 230, 0}}));
    EXPECT_EQ(makePrinter()->Command(294, DataObjectType::scope), Result::notDone);
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(LocalPrinterNodes, openTheirPropertiesAndPressNothingOnCancel) {
    platform_.ui.expect<LocalPrinterPropertiesDlg>(
        [](LocalPrinterPropertiesDlg& dialog) { dialog.cancelButton().userPressed(); });

    EXPECT_EQ(makePrinter()->Command(230, DataObjectType::scope), Result::notDone);

    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(LocalPrinterNodes, showTheWordsOfTheTreeForTheirStatus) {
    const auto printer = makePrinter();

    EXPECT_EQ(wire::toUtf8(printer->GetResultPaneColInfo(4)), "ERROR:Door Open");
    EXPECT_EQ(wire::toUtf8(printer->GetResultPaneColInfo(1)), "");
    EXPECT_EQ(wire::toUtf8(printer->GetResultPaneColInfo(6)), "");
}

TEST_F(LocalPrinterNodes, sayBesideTheColumnsWhatTheDigitsOfTheirStatusMean) {
    auto record = support::printer("l1", 5, u"Desk");
    record.snmpStatus = '7';
    record.printingStatus = '0';

    const auto state = LocalPrinterQueueNode(platform_, record).rowState();

    ASSERT_TRUE(state);
    EXPECT_EQ(console::describe(*state), u"Error: Paper Jam, Idle");
    EXPECT_EQ(state->severity, console::Severity::error);
}

TEST_F(LocalPrinterNodes, sortTheirJobsByNumber) {
    EXPECT_EQ(makePrinter()->sortValue(2), 65535);
    EXPECT_EQ(makePrinter()->sortValue(3), std::nullopt);
}

TEST_F(LocalPrinterNodes, offerOnlyRefresh) {
    EXPECT_EQ(verbsOf(console_, *makePrinter()),
              (Strings{"refresh on", "cut off", "copy off", "delete off", "rename off"}));
}

// A local printer with all that its dialog lists.
class EditedLocalPrinter : public PrinterDialogs {
protected:
    EditedLocalPrinter() { estate_.brokenLists[6] = support::countedList({bytesOf(samplePrinter())}); }
};

TEST_F(EditedLocalPrinter, hasItsParentReadAgain) {
    support::RecordingConsole console;
    const auto printer = std::make_shared<LocalPrinterQueueNode>(platform_, samplePrinter());
    const auto parent = console.addScopeRow(printer);
    expand(console, *printer, console.addScopeRow(printer, parent));
    printer->setParentRow(parent);
    for (int i = 0; i < 2; ++i) {
        platform_.ui.expect<LocalPrinterPropertiesDlg>(
            [](LocalPrinterPropertiesDlg& dialog) { dialog.okButton().userPressed(); });
    }

    EXPECT_EQ(printer->Command(230, DataObjectType::scope), Result::ok);
    EXPECT_EQ(printer->Command(230, DataObjectType::result), Result::ok);

    EXPECT_EQ(console.calls, Strings{"SelectScopeItem " + std::to_string(parent)});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5}, {Key::tab, Key::f5}}));
}

} // namespace
