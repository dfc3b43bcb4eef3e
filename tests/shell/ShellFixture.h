#pragma once

#include "shell/Observers.h"
#include "shell/Shell.h"
#include "shell/ShellUserInterface.h"
#include "shell/TaskQueue.h"
#include "tests/shell/Estate.h"
#include "tests/shell/TestSnapIn.h"
#include "tests/support/MemorySettingsStore.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace shelltest {

// A user interface without a user: boxes are answered with OK, forms are cancelled.
class QuietUserInterface final : public shell::ShellUserInterface {
public:
    using ShellUserInterface::ShellUserInterface;
    platform::Answer messageBox(platform::WindowHandle, const wire::WideString&, const wire::WideString&,
                                std::uint32_t) override {
        return platform::Answer::ok;
    }
    int runModal(forms::Form&, platform::WindowHandle) override { return 2; }
};

// A shell on this estate:
//
//     Top             its children are listed by the console itself
//         A           A2, A10 (folders), a1, a2 (leaves)
//         B           b1 (leaf)
class ShellFixture : public testing::Test {
protected:
    void SetUp() override {
        estate.below["top"] = {{.key = "a", .name = u"A"}, {.key = "b", .name = u"B"}};
        estate.below["a"] = {{.key = "a10", .name = u"A10"},
                             {.key = "a2", .name = u"A2"},
                             {.key = "l2", .name = u"a2", .number = u"7", .leaf = true},
                             {.key = "l1", .name = u"a1", .number = u"30", .leaf = true}};
        estate.below["b"] = {{.key = "m1", .name = u"b1", .number = u"1", .leaf = true}};
    }

    void start() {
        ASSERT_TRUE(shell.start());
        snapIn.log.clear();
        estate.lists.clear();
    }

    console::ScopeId top() const { return shell.tree().root(); }
    // The child with a text, of an item; 0 when there is none.
    console::ScopeId child(console::ScopeId parent, const wire::WideString& text) const {
        for (const auto id : shell.tree().children(parent)) {
            if (shell.tree().text(id) == text) {
                return id;
            }
        }
        return 0;
    }
    console::ScopeId a() const { return child(top(), u"A"); }
    console::ScopeId b() const { return child(top(), u"B"); }

    std::vector<std::string> treeBelow(console::ScopeId parent) const {
        std::vector<std::string> texts;
        for (const auto id : shell.tree().children(parent)) {
            texts.push_back(wire::toUtf8(shell.tree().text(id)));
        }
        return texts;
    }
    // The first cells of all rows.
    std::vector<std::string> rows() const {
        std::vector<std::string> texts;
        for (std::size_t row = 0; row < shell.pane().rowCount(); ++row) {
            texts.push_back(wire::toUtf8(shell.pane().cell(row, 0)));
        }
        return texts;
    }
    console::ResultId row(const std::string& text) const {
        for (std::size_t index = 0; index < shell.pane().rowCount(); ++index) {
            if (wire::toUtf8(shell.pane().cell(index, 0)) == text) {
                return shell.pane().row(index).id;
            }
        }
        return 0;
    }

    Estate estate;
    shell::Observers observers;
    shell::TaskQueue tasks;
    QuietUserInterface ui{tasks};
    support::MemorySettingsStore settings;
    platform::Platform platform{.ui = ui, .settings = settings};
    TestSnapIn snapIn{std::make_shared<FolderNode>(platform, estate, Estate::Entry{.key = "top", .name = u"Top"})};
    shell::Shell shell{snapIn, tasks, observers};
};

using Lines = std::vector<std::string>;

} // namespace shelltest
