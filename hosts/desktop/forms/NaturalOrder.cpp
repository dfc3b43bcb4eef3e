#include "hosts/desktop/forms/NaturalOrder.h"

#include "hosts/desktop/forms/ShownText.h"
#include "shell/NaturalOrder.h"

namespace desktop {

bool NaturalOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    return shell::naturalKey(exactText(left.data().toString())) < shell::naturalKey(exactText(right.data().toString()));
}

} // namespace desktop
