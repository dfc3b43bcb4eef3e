#include "client/CQVXAdminClass.h"

#include "client/ServerMessages.h"

namespace client {

CQVXAdminClass::CQVXAdminClass() : CQVXAdminClass(theProperties) {}

CQVXAdminClass::CQVXAdminClass(std::shared_ptr<CQVXAdminClassProperties> settingsToUse)
    : CQVXAdminClass2(std::move(settingsToUse)) {}

bool CQVXAdminClass::showRefusal(const protocol::StatusReply& status) const {
    if (status.caption.empty())
        return false;
    if (ServerMessages* const messages = settings().hooks.messages)
        messages->show(status.caption, status.text, status.style);
    return true;
}

} // namespace client
