#include "hosts/desktop/forms/RoomyRows.h"

namespace desktop {
namespace {

constexpr int roomAboveAndBelow = 3;

} // namespace

QSize RoomyRows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index).grownBy({0, roomAboveAndBelow, 0, roomAboveAndBelow});
}

} // namespace desktop
