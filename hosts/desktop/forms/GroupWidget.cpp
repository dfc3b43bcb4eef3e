#include "hosts/desktop/forms/GroupWidget.h"

#include "forms/Group.h"

namespace desktop {

GroupWidget::GroupWidget(forms::Group& group) : ControlWidget(group), box_(new QGroupBox) {
    setUp(box_);
}

} // namespace desktop
