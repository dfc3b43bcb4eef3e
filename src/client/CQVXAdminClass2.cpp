#include "client/CQVXAdminClass2.h"

#include "client/ConnectFailed.h"
#include "wire/CTrans.h"

namespace client {

CQVXAdminClass2::CQVXAdminClass2(std::shared_ptr<CQVXAdminClassProperties> settingsToUse)
    : parent(std::move(settingsToUse)) {}

CQVXAdminClass2::~CQVXAdminClass2() = default;

CQVXAdminClassProperties& CQVXAdminClass2::settings() {
    return parent ? *parent : static_cast<CQVXAdminClassProperties&>(*this);
}

const CQVXAdminClassProperties& CQVXAdminClass2::settings() const {
    return parent ? *parent : static_cast<const CQVXAdminClassProperties&>(*this);
}

std::unique_ptr<wire::ITransport> CQVXAdminClass2::openConnection() {
    auto connection = makeTransport();
    if (!connection->connect(settings().connectTimeout, {})) {
        throw ConnectFailed();
    }
    return connection;
}

bool CQVXAdminClass2::connectMember() {
    transport = makeTransport();
    return transport->connect(settings().connectTimeout, {});
}

std::unique_ptr<wire::ITransport> CQVXAdminClass2::makeTransport() const {
    auto connection = std::make_unique<trans::CTrans>();
    connection->setHost(settings().host);
    connection->setPort(settings().port);
    connection->setWaitObserver(settings().hooks.wait);
    return connection;
}

} // namespace client
