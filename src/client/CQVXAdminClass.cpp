#include "client/CQVXAdminClass.h"

#include "client/ServerMessages.h"

namespace client {

CQVXAdminClass::CQVXAdminClass() : CQVXAdminClass(theProperties) {}

CQVXAdminClass::CQVXAdminClass(std::shared_ptr<CQVXAdminClassProperties> settingsToUse)
    : CQVXAdminClass2(std::move(settingsToUse)),
      DriverCommands(static_cast<CQVXAdminClass2&>(*this)),
      ConfigurationCommands(static_cast<CQVXAdminClass2&>(*this)),
      RuleCommands(static_cast<CQVXAdminClass2&>(*this)),
      AlarmCommands(static_cast<CQVXAdminClass2&>(*this)),
      InventoryCommands(static_cast<CQVXAdminClass2&>(*this)) {}

bool CQVXAdminClass::showRefusal(const protocol::StatusReply& status) const {
    if (status.caption.empty()) {
        return false;
    }
    if (ServerMessages* const messages = settings().hooks.messages) {
        messages->show(status.caption, status.text, status.style);
    }
    return true;
}

} // namespace client
