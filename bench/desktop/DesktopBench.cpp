#include "bench/Goals.h"
#include "bench/desktop/BareList.h"
#include "console/IConsole.h"
#include "hosts/desktop/list/ListView.h"
#include "shell/ShellUserInterface.h"
#include "tests/shell/TestSnapIn.h"
#include "tests/support/MemorySettingsStore.h"

#include <QApplication>
#include <QSortFilterProxyModel>
#include <QTemporaryDir>

#include <malloc.h>

namespace bench {
namespace {

constexpr QSize viewSize(1000, 600);
constexpr int repetitions = 5;

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

std::size_t memory() {
    return mallinfo2().uordblks;
}

// This program's list model over the long list.
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

    OurList() {
        operations.perform(&shell::Shell::start);
        operations.perform([](shell::Shell& console) {
            return console.select(console.tree().children(console.tree().root()).front());
        });
    }
};

// Makes views of it.
struct OurView {
    desktop::ListModel model;
    desktop::ListView view;

    explicit OurView(OurList& list)
        : model(list.operations, list.observers, list.icons),
          view(list.operations, list.observers, model, list.viewSettings) {
        view.resize(viewSize);
    }
};

OurList& ours() {
    static OurList list;
    return list;
}

BareList& bare() {
    static BareList list;
    return list;
}

void prepare(QTreeView& view) {
    view.setRootIsDecorated(false);
    view.setUniformRowHeights(true);
    view.resize(viewSize);
}

void paint(QWidget& view) {
    benchmark::DoNotOptimize(view.grab().width());
}

void firstPaint(benchmark::State& state) {
    for (auto _ : state) {
        OurView shown(ours());
        paint(shown.view);
    }
}

void firstPaintBare(benchmark::State& state) {
    for (auto _ : state) {
        QTreeView view;
        prepare(view);
        view.setModel(&bare());
        paint(view);
    }
}

// The node makes all texts again and passes all of its rows to the console again.
void refresh(benchmark::State& state) {
    OurView shown(ours());
    paint(shown.view);
    for (auto _ : state) {
        ours().operations.perform(&shell::Shell::refresh);
        paint(shown.view);
    }
}

void refreshBare(benchmark::State& state) {
    QTreeView view;
    prepare(view);
    view.setModel(&bare());
    paint(view);
    for (auto _ : state) {
        bare().refresh();
        paint(view);
    }
}

// Sorted, as the rows of the console are.
void refreshSortedBare(benchmark::State& state) {
    QTreeView view;
    prepare(view);
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&bare());
    sorted.sort(0);
    view.setModel(&sorted);
    paint(view);
    for (auto _ : state) {
        bare().refresh();
        paint(view);
    }
}

void sort(benchmark::State& state) {
    OurView shown(ours());
    paint(shown.view);
    for (auto _ : state) {
        ours().operations.perform([](shell::Shell& console) { return console.clickColumn(1); });
        paint(shown.view);
    }
}

void sortBare(benchmark::State& state) {
    QTreeView view;
    prepare(view);
    QSortFilterProxyModel proxy;
    proxy.setSortCaseSensitivity(Qt::CaseInsensitive);
    proxy.setSourceModel(&bare());
    view.setModel(&proxy);
    paint(view);
    auto order = Qt::AscendingOrder;
    for (auto _ : state) {
        proxy.sort(1, order);
        order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
        paint(view);
    }
}

void filter(benchmark::State& state) {
    OurView shown(ours());
    paint(shown.view);
    for (auto _ : state) {
        ours().shell.filter(u"\"PRINTER 77\"");
        paint(shown.view);
        state.PauseTiming();
        ours().shell.filter(u"");
        state.ResumeTiming();
    }
}

void filterBare(benchmark::State& state) {
    QTreeView view;
    prepare(view);
    QSortFilterProxyModel proxy;
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setFilterKeyColumn(-1);
    proxy.setSourceModel(&bare());
    view.setModel(&proxy);
    paint(view);
    for (auto _ : state) {
        proxy.setFilterFixedString(QStringLiteral("PRINTER 77"));
        paint(view);
        state.PauseTiming();
        proxy.setFilterFixedString({});
        state.ResumeTiming();
    }
}

BENCHMARK(firstPaint)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(firstPaintBare)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(refresh)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(refreshBare)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(refreshSortedBare)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(sort)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(sortBare)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(filter)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(filterBare)->Unit(benchmark::kMillisecond)->Iterations(repetitions);

double overheadPerRow() {
    ours();
    const auto before = memory();
    OurView shown(ours());
    paint(shown.view);
    return static_cast<double>(memory() - before) / static_cast<double>(rowCount);
}

// The growth of memory after twenty refreshes, in per cent.
double growth() {
    OurView shown(ours());
    const auto refreshAndPaint = [&] {
        ours().operations.perform(&shell::Shell::refresh);
        paint(shown.view);
    };
    refreshAndPaint();
    const auto before = static_cast<double>(memory());
    for (int time = 0; time < 20; ++time) {
        refreshAndPaint();
    }
    return 100 * (static_cast<double>(memory()) - before) / before;
}

} // namespace
} // namespace bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    bench::Goals goals(bench::Goals::Time::processor);
    goals.runBenchmarks(argc, argv);
    goals.ratioAtMost(2, "First paint of 100,000 rows, beside a bare view", "firstPaint", "firstPaintBare");
    goals.ratioAtMost(1.2, "Refresh of all rows, beside a bare view", "refresh", "refreshBare");
    goals.ratioAtMost(2, "The same, beside a bare view that is sorted", "refresh", "refreshSortedBare");
    goals.ratioAtMost(2, "Sort, beside a bare view", "sort", "sortBare");
    goals.ratioAtMost(2, "Filter over all columns, beside a bare view", "filter", "filterBare");
    goals.atMost(120, "What the view adds to a row", bench::overheadPerRow(), "bytes");
    goals.atMost(10, "More memory after twenty refreshes", bench::growth(), "%");
    return goals.status();
}
