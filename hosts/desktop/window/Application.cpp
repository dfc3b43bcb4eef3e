#include "hosts/desktop/window/Application.h"

#include <exception>

namespace desktop {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& exception) {
        qCritical("vantrel-admin: %s", exception.what());
    } catch (const char* text) {
        qCritical("vantrel-admin: %s", text);
    } catch (...) {
        qCritical("vantrel-admin: an unknown exception");
    }
    return false;
}

} // namespace desktop
