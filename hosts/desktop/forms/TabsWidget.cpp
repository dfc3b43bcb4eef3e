#include "hosts/desktop/forms/TabsWidget.h"

#include "forms/FormLabels.h"
#include "forms/Page.h"
#include "forms/Tabs.h"
#include "hosts/desktop/forms/ShownText.h"

#include <QTabBar>

namespace desktop {

TabsWidget::TabsWidget(forms::Tabs& tabs) : ControlWidget(tabs), tabs_(tabs), pages_(new QTabWidget) {
    setUp(pages_);
    // The bar takes the keyboard focus, as a single tab stop.
    pages_->setFocusProxy(nullptr);
    pages_->setFocusPolicy(Qt::NoFocus);
    for (std::size_t page = 0; page < tabs.pages().size(); ++page) {
        pages_->addTab(new QWidget, QString());
    }
    connect(pages_, &QTabWidget::currentChanged, this, [this](int page) {
        if (mirroring() || page < 0) {
            return;
        }
        tabs_.userShowed(static_cast<std::size_t>(page));
        mirror(forms::Aspect::selection); // restore the form's state in case the change was refused
    });
}

void TabsWidget::showLabels(const forms::FormLabels& labels) {
    for (std::size_t page = 0; page < tabs_.pages().size(); ++page) {
        pages_->setTabText(static_cast<int>(page), markedLine(labels.of(*tabs_.pages()[page])));
    }
}

std::vector<QWidget*> TabsWidget::tabStops() const {
    return {pages_->tabBar()};
}

void TabsWidget::update(forms::Aspect aspect) {
    if (aspect == forms::Aspect::selection) {
        pages_->setCurrentIndex(static_cast<int>(tabs_.current()));
    } else if (aspect == forms::Aspect::pages) {
        for (std::size_t page = 0; page < tabs_.pages().size(); ++page) {
            pages_->setTabVisible(static_cast<int>(page), tabs_.pages()[page]->visible());
        }
    }
}

void TabsWidget::enable(bool enabled) {
    pages_->tabBar()->setEnabled(enabled);
}

} // namespace desktop
