#pragma once

#include "client/CQVXAdminClassProperties.h"
#include "wire/ITransport.h"

#include <memory>

namespace client {

// What all users of the server have in common: the settings, and how a connection is opened. Cheap to make. Belongs to
// one thread.
class CQVXAdminClass2 : public CQVXAdminClassProperties {
public:
    // With a null parent the object uses its own settings.
    explicit CQVXAdminClass2(std::shared_ptr<CQVXAdminClassProperties> settingsToUse);
    virtual ~CQVXAdminClass2();

    CQVXAdminClass2(const CQVXAdminClass2&) = delete;
    CQVXAdminClass2& operator=(const CQVXAdminClass2&) = delete;

    // The settings in use.
    [[nodiscard]] CQVXAdminClassProperties& settings();
    [[nodiscard]] const CQVXAdminClassProperties& settings() const;

    // A connection for one command. Throws ConnectFailed.
    [[nodiscard]] std::unique_ptr<wire::ITransport> openConnection();

    // Opens a connection for one command in transport, replacing the previous one; false when that fails.
    [[nodiscard]] bool connectMember();

    std::shared_ptr<CQVXAdminClassProperties> parent;
    std::unique_ptr<wire::ITransport> transport; // of the command in progress, if that uses connectMember

private:
    [[nodiscard]] std::unique_ptr<wire::ITransport> makeTransport() const;
};

} // namespace client
