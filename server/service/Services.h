#pragma once

#include "server/commands/CommandTable.h"
#include "server/login/Accounts.h"
#include "server/login/LoginLedger.h"
#include "server/net/ArrivalOrder.h"
#include "server/net/PeerLog.h"
#include "server/store/ReaderPool.h"

namespace server {

// What all connections of a server share. The members are used on the network thread, except for the one connection
// that only the writer's thread uses and the accounts that only the login thread uses.
struct Services {
    Services(asio::io_context& context, const Store& store, Accounts& whoMayLogIn, const CommandTable& allCommands,
             const Limits& setLimits, std::chrono::minutes loginRequired)
        : limits(setLimits),
          commands(allCommands),
          order(context, limits),
          readers(store),
          writerConnection(store.openConnection()),
          accounts(whoMayLogIn),
          ledger(loginRequired) {}

    Limits limits;
    const CommandTable& commands;
    PeerLog log;
    ArrivalOrder order;
    ReaderPool readers;
    std::unique_ptr<StoreConnection> writerConnection;
    Accounts& accounts;
    LoginLedger ledger;
    asio::thread_pool writer{1};
    asio::thread_pool logins{1};
};

} // namespace server
