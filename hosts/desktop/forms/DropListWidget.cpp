#include "hosts/desktop/forms/DropListWidget.h"

#include "forms/DropList.h"
#include "hosts/desktop/forms/ShownText.h"

namespace desktop {
namespace {

constexpr int charactersWide = 28;
constexpr int rowsAtOnce = 15;

} // namespace

DropListWidget::DropListWidget(forms::DropList& list) : ControlWidget(list), list_(list), box_(new QComboBox) {
    setUp(box_);
    box_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box_->setMinimumContentsLength(charactersWide);
    box_->setMaxVisibleItems(rowsAtOnce);
    connect(box_, &QComboBox::activated, this, [this](int row) {
        if (!stale() && row >= 0) {
            list_.userSelected(static_cast<std::size_t>(row));
        }
        mirror(forms::Aspect::selection); // restore the form's state in case the change was refused
    });
}

void DropListWidget::update(forms::Aspect aspect) {
    if (aspect == forms::Aspect::items) {
        refillSoon();
    } else if (aspect == forms::Aspect::selection && !stale()) {
        showSelection();
    }
}

void DropListWidget::refill() {
    QStringList texts;
    for (const auto& item : list_.items()) {
        texts.append(shownLine(item.text));
    }
    box_->clear();
    box_->addItems(texts);
    showSelection();
}

void DropListWidget::showSelection() {
    box_->setCurrentIndex(list_.selection() ? static_cast<int>(*list_.selection()) : -1);
}

} // namespace desktop
