#include "hosts/desktop/forms/GroupWidget.h"

#include "console/Group.h"

namespace desktop {

GroupWidget::GroupWidget(console::Group& group) : ControlWidget(group), box_(new QGroupBox) {
    setUp(box_);
}

} // namespace desktop
