#include "bench/Goals.h"
#include "bench/PrinterRecord.pb.h"
#include "bench/SampleRecord.h"
#include "protocol/estate/Printer.h"
#include "wire/Frame.h"
#include "wire/Message.h"

#include <vector>

namespace bench {
namespace {

std::vector<std::uint8_t> sampleMessage() {
    const auto message = protocol::makeDataMessage(samplePrinter());
    return {message->bytes().begin(), message->bytes().end()};
}

void decodeReused(benchmark::State& state) {
    const auto bytes = sampleMessage();
    wire::Message message;
    protocol::PrinterRecord printer;
    for (auto _ : state) {
        message.loadMessage(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
        protocol::read(message, printer);
        benchmark::DoNotOptimize(printer);
    }
}

void decodeReusedProtobuf(benchmark::State& state) {
    const auto bytes = sampleInProtobuf();
    anchor::PrinterRecord printer;
    for (auto _ : state) {
        benchmark::DoNotOptimize(printer.ParseFromString(bytes));
    }
}

void decodeNew(benchmark::State& state) {
    const auto bytes = sampleMessage();
    for (auto _ : state) {
        wire::Message message;
        message.loadMessage(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
        const auto printer = protocol::read<protocol::PrinterRecord>(message);
        benchmark::DoNotOptimize(printer);
    }
}

void decodeNewProtobuf(benchmark::State& state) {
    const auto bytes = sampleInProtobuf();
    for (auto _ : state) {
        anchor::PrinterRecord printer;
        benchmark::DoNotOptimize(printer.ParseFromString(bytes));
    }
}

void encode(benchmark::State& state) {
    const auto printer = samplePrinter();
    for (auto _ : state) {
        const auto message = protocol::makeDataMessage(printer);
        benchmark::DoNotOptimize(message->bytes().data());
    }
}

void encodeProtobuf(benchmark::State& state) {
    anchor::PrinterRecord printer;
    printer.ParseFromString(sampleInProtobuf());
    for (auto _ : state) {
        const auto bytes = printer.SerializeAsString();
        benchmark::DoNotOptimize(bytes.data());
    }
}

void checksum(benchmark::State& state) {
    const auto bytes = sampleMessage();
    for (auto _ : state) {
        benchmark::DoNotOptimize(wire::frameChecksum(bytes));
    }
    state.counters["bytes"] = static_cast<double>(bytes.size());
}

BENCHMARK(decodeReused);
BENCHMARK(decodeReusedProtobuf);
BENCHMARK(decodeNew);
BENCHMARK(decodeNewProtobuf);
BENCHMARK(encode);
BENCHMARK(encodeProtobuf);
BENCHMARK(checksum);

} // namespace
} // namespace bench

int main(int argc, char** argv) {
    bench::Goals goals;
    goals.runBenchmarks(argc, argv);
    goals.ratioAtMost(0.5, "Decode into a record used before, beside protobuf", "decodeReused", "decodeReusedProtobuf");
    goals.ratioAtMost(0.6, "Decode into a new record, beside protobuf", "decodeNew", "decodeNewProtobuf");
    goals.ratioAtMost(0.5, "Encode a record, beside protobuf", "encode", "encodeProtobuf");
    goals.ratioAtMost(0.2, "Checksum of a record's frame, beside its decode", "checksum", "decodeReused");
    return goals.status();
}
