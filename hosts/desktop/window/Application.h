#pragma once

#include <QApplication>

namespace desktop {

// Keeps what an event's handler throws from ending the program: it is written to the errors, and the program goes on.
class Application final : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace desktop
