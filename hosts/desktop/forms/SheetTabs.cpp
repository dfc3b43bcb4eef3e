#include "hosts/desktop/forms/SheetTabs.h"

#include <QTabBar>

namespace desktop {

SheetTabs::SheetTabs() {
    // The bar takes the keyboard focus, as a single tab stop.
    setFocusProxy(nullptr);
    setFocusPolicy(Qt::NoFocus);
    tabBar()->setAccessibleName(QStringLiteral("Sheets"));
}

void SheetTabs::reveal(const QWidget& widget) {
    for (QWidget* each = widget.parentWidget(); each != nullptr; each = each->parentWidget()) {
        if (auto* const tabs = dynamic_cast<SheetTabs*>(each)) {
            for (int sheet = 0; sheet < tabs->count(); ++sheet) {
                if (tabs->widget(sheet)->isAncestorOf(&widget)) {
                    tabs->setCurrentIndex(sheet);
                }
            }
        }
    }
}

} // namespace desktop
