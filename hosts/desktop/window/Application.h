#pragma once

#include <QApplication>

namespace desktop {

// Keeps an exception from an event handler from ending the program: it is written to standard error, and the program
// goes on.
class Application final : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace desktop
