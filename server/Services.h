#pragma once

#include "server/Accounts.h"
#include "server/ArrivalOrder.h"
#include "server/EstatePool.h"
#include "server/LoginLedger.h"
#include "server/PeerLog.h"

namespace server {

// What all connections of a server share. The members are used on the network thread, but for the one estate that only
// the writer's thread touches and the accounts that only the login thread touches.
struct Services {
    Services(asio::io_context& context, const Store& store, Accounts& whoMayLogIn, const Limits& setLimits,
             std::chrono::minutes loginRequired)
        : limits(setLimits),
          order(context, limits),
          readers(store),
          writerEstate(store.openEstate()),
          accounts(whoMayLogIn),
          ledger(loginRequired) {}

    Limits limits;
    PeerLog log;
    ArrivalOrder order;
    EstatePool readers;
    std::unique_ptr<Estate> writerEstate;
    Accounts& accounts;
    LoginLedger ledger;
    asio::thread_pool writer{1};
    asio::thread_pool logins{1};
};

} // namespace server
