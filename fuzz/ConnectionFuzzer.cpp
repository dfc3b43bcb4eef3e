#include "fuzz/Expect.h"
#include "fuzz/Fuzzer.h"
#include "fuzz/Input.h"
#include "server/Commands.h"
#include "server/Schema.h"
#include "server/log/Log.h"
#include "server/service/Connection.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>

// One connection of the server, and a peer that sends arbitrary bytes. Input: whether a login is required, in what
// pieces the bytes arrive, and the bytes.

namespace {

namespace asio = server::asio;

constexpr int runsOfAStore = 1000;
constexpr std::chrono::seconds longestRun(20);

// A temporary folder, removed at the end of the program.
class Folder {
public:
    Folder() {
        std::string name = (std::filesystem::temp_directory_path() / "vantrel-fuzz-XXXXXX").string();
        fuzz::expect(::mkdtemp(name.data()) != nullptr);
        path_ = name;
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

// A database that contains only what runs have added; and what its connections share.
class Place {
public:
    Place() : store_(folder_.path() / "estate.db", server::schema()), accounts_(store_) {
        for (const int required : {0, 1}) {
            services_.push_back(std::make_unique<server::Services>(context_, store_, accounts_, server::commands(),
                                                                   server::Limits{}, std::chrono::minutes(required)));
        }
    }
    ~Place() {
        for (const auto& one : services_) {
            one->writer.join();
            one->logins.join();
        }
    }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    void serve(bool loginRequired, std::size_t piece, std::span<const std::uint8_t> bytes);

private:
    Folder folder_;
    server::Store store_;
    server::Accounts accounts_;
    asio::io_context context_{1};
    std::vector<std::unique_ptr<server::Services>> services_;
};

// Receives what the server has sent, so that it never waits for buffer space.
void drain(int peer) {
    std::array<std::uint8_t, 65536> into;
    while (::recv(peer, into.data(), into.size(), MSG_DONTWAIT) > 0) {
    }
}

void Place::serve(bool loginRequired, std::size_t piece, std::span<const std::uint8_t> bytes) {
    auto& services = *services_[loginRequired ? 1 : 0];
    services.ledger = server::LoginLedger(std::chrono::minutes(loginRequired ? 1 : 0)); // failed logins cause no delays
    std::array<int, 2> ends{};
    fuzz::expect(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) == 0);
    asio::ip::tcp::socket socket(context_);
    socket.assign(asio::ip::tcp::v4(), ends[0]);

    bool done = false;
    {
        server::Connection connection(std::move(socket), asio::ip::address_v4::loopback(), services);
        asio::co_spawn(context_, connection.serve(), [&](const std::exception_ptr& failure) {
            fuzz::expect(failure == nullptr);
            done = true;
        });
        context_.restart();
        const auto start = std::chrono::steady_clock::now();
        bool ended = false;
        while (!done) {
            if (!bytes.empty()) {
                const auto sent =
                    ::send(ends[1], bytes.data(), std::min(piece, bytes.size()), MSG_DONTWAIT | MSG_NOSIGNAL);
                bytes = sent < 0 && errno != EAGAIN
                            ? bytes.last(0)
                            : bytes.subspan(static_cast<std::size_t>(std::max<ssize_t>(sent, 0)));
            } else if (!ended) {
                ended = ::shutdown(ends[1], SHUT_WR) == 0;
            }
            if (context_.poll() == 0) {
                context_.run_one_for(std::chrono::milliseconds(1));
            }
            drain(ends[1]);
            fuzz::expect(std::chrono::steady_clock::now() - start < longestRun);
        }
    }
    ::close(ends[1]);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool quiet = (server::log::silence(), true);
    fuzz::expect(quiet);
    static std::unique_ptr<Place> place;
    static int runs = 0;
    if (runs++ % runsOfAStore == 0) {
        place.reset();
        place = std::make_unique<Place>();
    }
    fuzz::Input input(data, size);
    const std::uint8_t manner = input.byte();
    const std::size_t piece = manner >> 1;

    place->serve((manner & 1) != 0, piece == 0 ? size : piece, input.rest());
    return 0;
}
