#pragma once

#include "shell/ResultPane.h"
#include "tests/shell/ShellFixture.h"

namespace shelltest {

// Records what happens to the rows.
class RowEvents final : public shell::ShellObserver {
public:
    void rowsInserted(std::size_t first, std::size_t count) override { add("in", first, count); }
    void rowsRemoved(std::size_t first, std::size_t count) override { add("out", first, count); }
    void rowsChanged(std::size_t first, std::size_t count) override { add("changed", first, count); }
    void rowsReset() override { log.emplace_back("reset"); }
    Lines log;

private:
    void add(const std::string& what, std::size_t first, std::size_t count) {
        log.push_back(what + " " + std::to_string(first) + " " + std::to_string(count));
    }
};

class ResultPane : public testing::Test {
protected:
    ResultPane() { observers.add(events); }

    std::shared_ptr<LeafNode> leaf(const wire::WideString& name) {
        return std::make_shared<LeafNode>(platform, estate,
                                          Estate::Entry{.key = wire::toUtf8(name), .name = name, .leaf = true});
    }
    std::shared_ptr<LeafNode> insert(const wire::WideString& name) {
        auto node = leaf(name);
        EXPECT_EQ(pane.InsertItem(node->resultFields()), console::Result::ok);
        return node;
    }
    void replaceBy(const std::vector<std::shared_ptr<LeafNode>>& nodes) {
        pane.DeleteAllRsltItems();
        for (const auto& node : nodes) {
            pane.InsertItem(node->resultFields());
        }
        pane.commit();
    }
    static std::string idOf(LeafNode& node) { return std::to_string(node.resultFields().itemID); }
    Lines rows() const {
        Lines texts;
        for (std::size_t row = 0; row < pane.rowCount(); ++row) {
            texts.push_back(wire::toUtf8(pane.cell(row, 0)));
        }
        return texts;
    }

    Estate estate;
    shell::TaskQueue tasks;
    QuietUserInterface ui{tasks};
    support::MemorySettingsStore settings;
    platform::Platform platform{.ui = ui, .settings = settings};
    shell::Observers observers;
    RowEvents events;
    shell::ResultPane pane{observers};
};

} // namespace shelltest
