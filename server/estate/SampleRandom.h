#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace server {

// The random numbers of the sample estate: the same in each run for the same seed.
class SampleRandom {
public:
    explicit SampleRandom(std::uint32_t seed = std::mt19937::default_seed) : random_(seed) {}

    // From 0 to bound - 1.
    [[nodiscard]] std::uint32_t below(std::uint32_t bound) { return static_cast<std::uint32_t>(random_()) % bound; }

    template <class List>
    [[nodiscard]] const auto& anyOf(const List& list) {
        return list[below(static_cast<std::uint32_t>(list.size()))];
    }

    // A new uuid in its text form.
    [[nodiscard]] std::string newId();

private:
    std::mt19937 random_;
};

} // namespace server
