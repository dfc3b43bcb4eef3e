#include "client/Exchange.h"

#include "client/ConnectFailed.h"
#include "client/RequestObserver.h"
#include "wire/Cancelled.h"

#include <stdexcept>

namespace client {
namespace {

[[noreturn]] void missingMessage(const protocol::Command& command) {
    throw std::runtime_error(command.reply == protocol::ReplyShape::list ? "failed to get message"
                                                                         : "No data received from server");
}

} // namespace

void announceRequest(CQVXAdminClass2& client, const protocol::Command& command, const wire::Message* data) {
    if (RequestObserver* const observer = client.settings().hooks.requests) {
        observer->requestMade(command, data != nullptr ? data->bytes() : std::span<const std::uint8_t>());
    }
}

Exchange::Exchange(CQVXAdminClass2& client, const protocol::Command& command, std::string summary)
    : client_(client), command_(command), start_(std::chrono::steady_clock::now()) {
    const auto& settings = client.settings();
    report_.opcode = command.opcode;
    report_.name = command.name;
    report_.target = settings.host + ":" + std::to_string(settings.port);
    report_.summary = std::move(summary);
    report(&CommandObserver::commandStarted);
}

Exchange::~Exchange() {
    if (transport_ != nullptr) {
        transport_->disconnect(0);
        report_.bytesSent = transport_->counts().bytesSent;
        report_.bytesReceived = transport_->counts().bytesReceived;
    }
    // A command that leaves its connection open no longer needs it once its frame has been sent.
    client_.transport.reset();
    report_.duration = std::chrono::steady_clock::now() - start_;
    if (report_.outcome == CommandOutcome::running) {
        report_.outcome = CommandOutcome::done;
    }
    report(&CommandObserver::commandEnded);
}

bool Exchange::connect() {
    return run([&] {
        if (command_.connection == protocol::Connection::member) {
            report_.connected = client_.connectMember();
            transport_ = client_.transport.get();
            if (!report_.connected) {
                fail("Failed to connect to server");
            }
        } else {
            owned_ = client_.openConnection();
            transport_ = owned_.get();
            report_.connected = true;
        }
        return report_.connected;
    });
}

bool Exchange::connect(std::unique_ptr<wire::ITransport> own, std::uint32_t timeoutSeconds) {
    return run([&] {
        owned_ = std::move(own);
        transport_ = owned_.get();
        report_.connected = transport_->connect(timeoutSeconds, {});
        if (!report_.connected) {
            fail("Failed to connect to server");
        }
        return report_.connected;
    });
}

void Exchange::send(std::unique_ptr<wire::Message> data) {
    run([&] {
        if (command_.reply != protocol::ReplyShape::none) {
            announceRequest(client_, command_, data.get());
        }
        transport_->addMessage(wire::makeCommandMessage(command_.opcode, command_.version));
        if (data) {
            transport_->addMessage(std::move(data));
        }
        const bool sent = transport_->sendMessages({});
        if (!sent && command_.send == protocol::SendForm::guarded) {
            throw std::runtime_error("failed to send messages");
        }
    });
}

std::unique_ptr<wire::Message> Exchange::receive(std::unique_ptr<wire::Message> used) {
    return run([&] {
        transport_->reuse(std::move(used));
        const bool received = transport_->getMessages({}, nullptr);
        if (!received && command_.reader == protocol::ReaderForm::strict) {
            throw std::runtime_error("failed to get messages");
        }
        auto message = transport_->getMessage(wire::MessageKind::Data);
        if (!message) {
            if (command_.reader != protocol::ReaderForm::plain) {
                missingMessage(command_);
            }
            fail("The server's reply ended early");
        }
        return message;
    });
}

std::int16_t Exchange::readCount(wire::Message& message) {
    return static_cast<std::int16_t>(message.getUInt16());
}

void Exchange::noteRecords(std::uint32_t records) {
    report_.records = records;
    transport_->noteRecords(records);
}

void Exchange::fail(std::string text) {
    report_.outcome = CommandOutcome::failed;
    report_.text = std::move(text);
}

void Exchange::noteException() {
    try {
        throw;
    } catch (const wire::Cancelled& cancelled) {
        report_.outcome = CommandOutcome::cancelled;
        report_.text = cancelled.what();
    } catch (const std::exception& exception) {
        fail(exception.what());
    } catch (const char* text) {
        fail(text);
    } catch (...) {
        fail("Unknown error");
    }
}

void Exchange::report(void (CommandObserver::*event)(const CommandReport&)) noexcept {
    try {
        if (CommandObserver* const observer = client_.settings().hooks.commands) {
            (observer->*event)(report_);
        }
    } catch (...) {
        // A failing observer is no reason for a command to fail.
    }
}

} // namespace client
