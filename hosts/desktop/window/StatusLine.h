#pragma once

#include "hosts/desktop/activity/ListAge.h"
#include "hosts/desktop/look/ElidedLabel.h"

class QStatusBar;

namespace desktop {

// The permanent part of the status bar: how many rows there are, when they were read, and who is logged in where.
class StatusLine {
public:
    // All outlive it; the bar owns the labels.
    StatusLine(QStatusBar& bar, const Operations& operations, const ListAge& age);

    void update();
    // "5 of 120 rows" under a filter.
    static QString countText(std::size_t shown, std::size_t all);

private:
    const Operations& operations_;
    const ListAge& age_;
    ElidedLabel* count_;
    ElidedLabel* readAt_;
    ElidedLabel* connection_;
};

} // namespace desktop
