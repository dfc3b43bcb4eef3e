#pragma once

#include "tests/support/ScriptedServer.h"
#include "wire/CTrans.h"

#include <gtest/gtest.h>

// Connects to the server of a test.
inline void open(trans::CTrans& connection, const support::ScriptedServer& server) {
    connection.setHost("127.0.0.1");
    connection.setPort(server.port());
    ASSERT_TRUE(connection.connect(10, {}));
}
