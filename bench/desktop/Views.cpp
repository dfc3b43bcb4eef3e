#include "bench/desktop/Views.h"

#include <benchmark/benchmark.h>

namespace bench {
namespace {

constexpr QSize viewSize(1000, 600);

} // namespace

OurList::OurList() {
    operations.perform(&shell::Shell::start);
    operations.perform(
        [](shell::Shell& console) { return console.select(console.tree().children(console.tree().root()).front()); });
}

OurView::OurView(OurList& list)
    : model(list.operations, list.observers, list.icons),
      view(list.operations, list.observers, model, list.viewSettings) {
    view.resize(viewSize);
}

BareView::BareView(QAbstractItemModel& model) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    resize(viewSize);
    setModel(&model);
}

OurList& ours() {
    static OurList list;
    return list;
}

BareList& bare() {
    static BareList list;
    return list;
}

void paint(QWidget& widget) {
    benchmark::DoNotOptimize(widget.grab().width());
}

} // namespace bench
