#include "hosts/desktop/forms/TreeWidget.h"

#include "forms/TreeView.h"
#include "hosts/desktop/forms/RoomyView.h"
#include "hosts/desktop/forms/ShownText.h"

namespace desktop {
namespace {

constexpr int numberRole = Qt::UserRole;
constexpr std::size_t fewEnoughToShowAll = 200;

} // namespace

TreeWidget::TreeWidget(forms::TreeView& tree)
    : ControlWidget(tree), tree_(tree), view_(new RoomyView), model_(new QStandardItemModel(this)) {
    setUp(view_);
    view_->setModel(model_);
    view_->setHeaderHidden(true);
    view_->setUniformRowHeights(true);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!mirroring()) {
            selected();
        }
    });
}

void TreeWidget::selected() {
    const auto rows = view_->selectionModel()->selectedRows();
    if (!stale() && !rows.isEmpty()) {
        tree_.userSelected(rows.front().data(numberRole).value<std::size_t>());
    }
    mirror(forms::Aspect::selection); // restore the form's state: the user can't clear the selection
}

void TreeWidget::update(forms::Aspect aspect) {
    if (aspect == forms::Aspect::items) {
        refillSoon();
    } else if (aspect == forms::Aspect::selection && !stale()) {
        showSelection();
    }
}

void TreeWidget::refill() {
    model_->clear();
    items_.clear();
    for (const auto& item : tree_.items()) {
        auto* const shown = new QStandardItem(shownLine(item.text));
        shown->setData(QVariant::fromValue(items_.size()), numberRole);
        (item.parent ? items_[*item.parent] : model_->invisibleRootItem())->appendRow(shown);
        items_.push_back(shown);
    }
    if (items_.size() <= fewEnoughToShowAll) {
        view_->expandAll();
    } else {
        view_->expandToDepth(0);
    }
    showSelection();
}

void TreeWidget::showSelection() {
    const auto number = tree_.selection();
    if (!number) {
        view_->clearSelection();
        return;
    }
    const auto index = items_[*number]->index();
    view_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    view_->scrollTo(index);
}

} // namespace desktop
