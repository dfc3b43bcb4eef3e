#pragma once

#include "bench/desktop/BareList.h"
#include "console/IConsole.h"
#include "hosts/desktop/list/ListView.h"
#include "shell/ShellUserInterface.h"
#include "tests/shell/TestSnapIn.h"
#include "tests/support/MemorySettingsStore.h"

#include <QTemporaryDir>
#include <QTreeView>

namespace bench {

constexpr int repetitions = 5; // of each benchmark

// A user interface without a user.
class NoPerson final : public shell::ShellUserInterface {
public:
    using ShellUserInterface::ShellUserInterface;
    platform::Answer messageBox(platform::WindowHandle, const wire::WideString&, const wire::WideString&,
                                std::uint32_t) override {
        return platform::Answer::ok;
    }
    int runModal(forms::Form&, platform::WindowHandle) override { return 2; }
};

// The long list as this program keeps it.
struct OurList {
    shell::Observers observers;
    shell::TaskQueue tasks;
    NoPerson ui{tasks};
    support::MemorySettingsStore settings;
    platform::Platform platform{.ui = ui, .settings = settings};
    shelltest::TestSnapIn snapIn{std::make_shared<Top>(platform)};
    shell::Shell shell{snapIn, tasks, observers};
    desktop::Operations operations{shell, tasks};
    const QTemporaryDir folder;
    desktop::ViewSettings viewSettings{folder.filePath(QStringLiteral("view.ini"))};
    desktop::IconStrips icons;

    OurList();
};

// This program's view of it.
struct OurView {
    desktop::ListModel model;
    desktop::ListView view;

    explicit OurView(OurList& list);
};

// A view of the bare list.
class BareView final : public QTreeView {
public:
    explicit BareView(QAbstractItemModel& model);
};

// One of each for all benchmarks.
OurList& ours();
BareList& bare();

void paint(QWidget& widget);

} // namespace bench
