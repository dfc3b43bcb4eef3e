#pragma once

#include "client/CQVXAdminClass.h"
#include "tests/adversity/SampleMessages.h"

#include <functional>
#include <string>
#include <vector>

namespace adversity {

// An operation of a console that returns what it received as text for comparison: the same for the same answer.
struct Operation {
    std::string name;
    std::function<std::string(client::CQVXAdminClass&)> run;
};

// Operations that only read, each with a reply of a few hundred bytes.
[[nodiscard]] std::vector<Operation> shortReads();

// Adds a printer to region 1, where no other may have its name; returns "made" on success.
[[nodiscard]] Operation addingPrinter(const wire::WideString& name);

// Every list and every single read of the catalogue, with the fields of a sample.
[[nodiscard]] std::vector<Operation> everyRead();

// Runs an operation; what it throws, as text.
[[nodiscard]] std::string outcomeOf(const Operation& operation,
                                    const std::shared_ptr<client::CQVXAdminClassProperties>& settings);

} // namespace adversity
