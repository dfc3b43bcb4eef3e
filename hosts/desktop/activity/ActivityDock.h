#pragma once

#include "hosts/desktop/activity/ActivityModel.h"

#include <QDockWidget>

class QTreeView;

namespace desktop {

// The activity log at the lower edge of the window; it scrolls to new entries while its end is in view.
class ActivityDock final : public QDockWidget {
public:
    // The log outlives it.
    ActivityDock(ActivityLog& log, QWidget* parent);

    QTreeView& view() { return *view_; }

private:
    void copySelected() const;

    ActivityModel model_;
    QTreeView* view_;
};

} // namespace desktop
