#pragma once

#include <QString>

class QWidget;

namespace desktop {

// Warns of something and offers to do something about it. True when the user wants that; Escape and Close mean no.
// Without an offer it only warns.
bool warn(QWidget* owner, const QString& title, const QString& text, const QString& offer = {});

} // namespace desktop
