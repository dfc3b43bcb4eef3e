#pragma once

#include "protocol/estate/Login.h"
#include "tests/server/support/TestFolder.h"
#include "tests/torture/Database.h"
#include "tests/torture/FaultyServer.h"
#include "tests/torture/Requests.h"

#include <csignal>

namespace torture {

// The folder of a test, with a database of a small estate that no server has open and that contains everything that a
// server creates by itself.
class SampleDatabase {
public:
    // The visitor gets the port of a server that has it open, to look things up and to prepare them.
    template <class Visitor>
    explicit SampleDatabase(Visitor&& visitor) {
        server::test::VantreldProcess process(
            {"--database", file_.string(), "--sample", "small", "--port", "0", "--login-required", "0"});
        const auto port = process.waitForPort();
        const auto key = server::test::TestClient(port).send(requestOf(protocol::GetPublicKeyRequest{})).receiveFrame();
        visitor(port);
        process.signal(SIGTERM);
        if (process.wait() != 0 || key.empty()) {
            throw std::runtime_error("there is no sample: " + process.output());
        }
    }

    [[nodiscard]] const std::filesystem::path& file() const { return file_; }
    [[nodiscard]] SharedPlan& shared() { return shared_; }
    [[nodiscard]] FaultPlan& plan() { return shared_.plan(); }

    // For whatever else a test needs.
    [[nodiscard]] std::filesystem::path folder(const std::string& name) const { return makeFolder(folder_ / name); }

    // A fresh copy for experiments.
    [[nodiscard]] std::filesystem::path copy() const { return copyDatabase(file_, tries_); }

private:
    server::test::TestFolder folder_;
    std::filesystem::path file_ = folder_ / "estate.db";
    std::filesystem::path tries_ = makeFolder(folder_ / "tries");
    SharedPlan shared_{folder_ / "plan"};

    static std::filesystem::path makeFolder(const std::filesystem::path& path) {
        std::filesystem::create_directory(path);
        return path;
    }
};

} // namespace torture
