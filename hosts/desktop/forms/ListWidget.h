#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QSortFilterProxyModel>
#include <QTreeView>

#include <optional>

namespace forms {
class ListView;
} // namespace forms

namespace desktop {

class ListRows;

// A list with columns of a form. A click on a header sorts only the display; for the form the rows keep their numbers.
// Ctrl+Enter acts like a double click; the right button and the menu key open the menu of a row.
class ListWidget final : public ControlWidget {
public:
    explicit ListWidget(forms::ListView& list);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void update(forms::Aspect aspect) override;
    void refill() override;

private:
    void showColumns();
    void showSelection();
    void selected();
    void open(const QModelIndex& shown);
    void showRowMenu(const QModelIndex& shown, const QPoint& place);
    [[nodiscard]] std::optional<std::size_t> rowAt(const QModelIndex& shown) const;

    forms::ListView& list_;
    QTreeView* view_;
    ListRows* rows_;
    QSortFilterProxyModel* sorted_;
    bool newColumns_ = true;
};

} // namespace desktop
