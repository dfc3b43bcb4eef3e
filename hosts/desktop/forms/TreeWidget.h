#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QStandardItemModel>
#include <QTreeView>

#include <vector>

namespace forms {
class TreeView;
} // namespace forms

namespace desktop {

// A tree of a form, in which one item is picked.
class TreeWidget final : public ControlWidget {
public:
    explicit TreeWidget(forms::TreeView& tree);

protected:
    void update(forms::Aspect aspect) override;
    void refill() override;

private:
    void showSelection();
    void selected();

    forms::TreeView& tree_;
    QTreeView* view_;
    QStandardItemModel* model_;
    std::vector<QStandardItem*> items_; // by their numbers in the form
};

} // namespace desktop
