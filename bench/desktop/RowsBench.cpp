#include "bench/desktop/Views.h"
#include "hosts/desktop/list/CopyRows.h"
#include "hosts/desktop/window/DetailsDock.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTextBrowser>

#include <memory>

// What is done with rows of the list: selecting and copying them all, and reading one after the other.

namespace bench {
namespace {

constexpr QSize detailsSize(300, 600);
constexpr int detailedRows = 20;
constexpr int firstDetailed = 70'000;

// The windows report to the console from the event loop.
void settle() {
    QApplication::processEvents();
}

void selectAllIn(QTreeView& view, benchmark::State& state) {
    for (auto _ : state) {
        view.selectAll();
        settle();
        paint(view);
        state.PauseTiming();
        view.clearSelection();
        settle();
        state.ResumeTiming();
    }
}

void selectAll(benchmark::State& state) {
    OurView shown(ours());
    paint(shown.view);
    selectAllIn(shown.view, state);
}

void selectAllBare(benchmark::State& state) {
    BareView view(bare());
    paint(view);
    selectAllIn(view, state);
}

void copy(benchmark::State& state) {
    OurView shown(ours());
    shown.view.selectAll();
    settle();
    for (auto _ : state) {
        desktop::copyRows(shown.view.selectedTable());
    }
    shown.view.clearSelection();
    settle();
}

// As text and as a table, like the rows of this program.
void copyRowsOf(const QTreeView& view) {
    QString text;
    QString html = QStringLiteral("<table>");
    const auto rows = view.selectionModel()->selectedRows();
    for (const QModelIndex& row : rows) {
        html += QStringLiteral("<tr>");
        for (int column = 0; column < view.model()->columnCount(); ++column) {
            const QString cell = row.siblingAtColumn(column).data().toString();
            text += (column != 0 ? QStringLiteral("\t") : QString()) + cell;
            html += QStringLiteral("<td>") + cell.toHtmlEscaped() + QStringLiteral("</td>");
        }
        text += QLatin1Char('\n');
        html += QStringLiteral("</tr>");
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(text);
    data->setHtml(html + QStringLiteral("</table>"));
    QApplication::clipboard()->setMimeData(data.release());
}

void copyBare(benchmark::State& state) {
    BareView view(bare());
    view.selectAll();
    for (auto _ : state) {
        copyRowsOf(view);
    }
}

// The details follow the row.
void details(benchmark::State& state) {
    OurView shown(ours());
    desktop::DetailsDock dock(nullptr);
    dock.resize(detailsSize);
    paint(shown.view);
    for (auto _ : state) {
        for (int row = firstDetailed; row < firstDetailed + detailedRows; ++row) {
            shown.view.setCurrentIndex(shown.model.index(row, 0));
            settle();
            dock.update(ours().shell, shown.view.selectedRows().rows());
            paint(shown.view);
            paint(dock);
        }
    }
    shown.view.clearSelection();
    settle();
}

QString pageOf(const QModelIndex& row) {
    QString page = QStringLiteral("<h3>") + row.data().toString().toHtmlEscaped() + QStringLiteral("</h3><table>");
    for (int column = 0; column < row.model()->columnCount(); ++column) {
        page += QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>")
                    .arg(column)
                    .arg(row.siblingAtColumn(column).data().toString().toHtmlEscaped());
    }
    return page + QStringLiteral("</table>");
}

void detailsBare(benchmark::State& state) {
    BareView view(bare());
    QTextBrowser page;
    page.resize(detailsSize);
    paint(view);
    for (auto _ : state) {
        for (int row = firstDetailed; row < firstDetailed + detailedRows; ++row) {
            view.setCurrentIndex(bare().index(row, 0));
            settle();
            page.setHtml(pageOf(view.currentIndex()));
            paint(view);
            paint(page);
        }
    }
}

BENCHMARK(selectAll)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(selectAllBare)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(copy)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(copyBare)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(details)->Unit(benchmark::kMillisecond)->Iterations(repetitions);
BENCHMARK(detailsBare)->Unit(benchmark::kMillisecond)->Iterations(repetitions);

} // namespace
} // namespace bench
