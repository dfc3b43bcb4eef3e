#include "bench/Goals.h"
#include "bench/desktop/Views.h"

#include <QApplication>
#include <QSortFilterProxyModel>

#include <malloc.h>

namespace bench {
namespace {

std::size_t memory() {
    return mallinfo2().uordblks;
}

void firstPaint(benchmark::State& state) {
    for (auto _ : state) {
        OurView shown(ours());
        paint(shown.view);
    }
}

void firstPaintBare(benchmark::State& state) {
    for (auto _ : state) {
        BareView view(bare());
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
    BareView view(bare());
    paint(view);
    for (auto _ : state) {
        bare().refresh();
        paint(view);
    }
}

// Sorted, as the rows of the console are.
void refreshSortedBare(benchmark::State& state) {
    QSortFilterProxyModel sorted;
    sorted.setSourceModel(&bare());
    sorted.sort(0);
    BareView view(sorted);
    paint(view);
    for (auto _ : state) {
        bare().refresh();
        paint(view);
    }
}

void sort(benchmark::State& state) {
    OurView shown(ours());
    paint(shown.view);
    shell::SortOrder order{.column = 1};
    for (auto _ : state) {
        ours().shell.sort(order);
        order.ascending = !order.ascending;
        paint(shown.view);
    }
    ours().shell.sort(std::nullopt);
}

void sortBare(benchmark::State& state) {
    QSortFilterProxyModel proxy;
    proxy.setSortCaseSensitivity(Qt::CaseInsensitive);
    proxy.setSourceModel(&bare());
    BareView view(proxy);
    paint(view);
    auto order = Qt::AscendingOrder;
    for (auto _ : state) {
        proxy.sort(1, order);
        order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
        paint(view);
    }
}

void filterBy(benchmark::State& state, wire::WideStringView text) {
    OurView shown(ours());
    paint(shown.view);
    for (auto _ : state) {
        ours().shell.filter(text);
        paint(shown.view);
        state.PauseTiming();
        ours().shell.filter(u"");
        state.ResumeTiming();
    }
}

// A column, or all.
void filterBareBy(benchmark::State& state, int column) {
    QSortFilterProxyModel proxy;
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setFilterKeyColumn(column);
    proxy.setSourceModel(&bare());
    BareView view(proxy);
    paint(view);
    for (auto _ : state) {
        proxy.setFilterFixedString(QStringLiteral("PRINTER 77"));
        paint(view);
        state.PauseTiming();
        proxy.setFilterFixedString({});
        state.ResumeTiming();
    }
}

void filter(benchmark::State& state) {
    filterBy(state, u"\"PRINTER 77\"");
}

void filterBare(benchmark::State& state) {
    filterBareBy(state, -1);
}

// Two conditions, while the bare view has one.
void filterColumns(benchmark::State& state) {
    filterBy(state, u"two:\"PRINTER 77\" three:>\"Cell 2 of printer 773\"");
}

void filterColumnBare(benchmark::State& state) {
    filterBareBy(state, 1);
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
BENCHMARK(filterColumns)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(filterColumnBare)->Unit(benchmark::kMillisecond)->Iterations(repetitions);

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
    goals.ratioAtMost(2, "Select all rows, beside a bare view", "selectAll", "selectAllBare");
    goals.ratioAtMost(2, "Copy all rows as text and as a table, beside a bare view", "copy", "copyBare");
    goals.ratioAtMost(2, "Details of one row after the other, beside a bare view", "details", "detailsBare");
    goals.ratioAtMost(2, "Filter by two columns, beside a bare view by one", "filterColumns", "filterColumnBare");
    goals.atMost(120, "What the view adds to a row", bench::overheadPerRow(), "bytes");
    goals.atMost(10, "More memory after twenty refreshes", bench::growth(), "%");
    return goals.status();
}
