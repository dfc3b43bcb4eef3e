#pragma once

#include "client/CQVXAdminClassProperties.h"
#include "wire/ITransport.h"

#include <memory>

namespace client {

// What all users of the server have in common: the settings to go by, and how a connection is opened. Cheap to make.
// Belongs to one thread.
class CQVXAdminClass2 : public CQVXAdminClassProperties {
public:
    // With a null parent the object's own settings count.
    explicit CQVXAdminClass2(std::shared_ptr<CQVXAdminClassProperties> settingsToUse);
    virtual ~CQVXAdminClass2();

    CQVXAdminClass2(const CQVXAdminClass2&) = delete;
    CQVXAdminClass2& operator=(const CQVXAdminClass2&) = delete;

    // The settings in use.
    [[nodiscard]] CQVXAdminClassProperties& settings();
    [[nodiscard]] const CQVXAdminClassProperties& settings() const;

    // A connection for one command. Throws ConnectFailed.
    [[nodiscard]] std::unique_ptr<wire::ITransport> openConnection();

    // Puts a connection for one command into transport, in place of what was there; false when it cannot be had.
    [[nodiscard]] bool connectMember();

    std::shared_ptr<CQVXAdminClassProperties> parent;
    std::unique_ptr<wire::ITransport> transport; // of the command in progress, when that uses connectMember

private:
    [[nodiscard]] std::unique_ptr<wire::ITransport> makeTransport() const;
};

} // namespace client
