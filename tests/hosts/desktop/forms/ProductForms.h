#pragma once

#include "forms/Form.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace desktop {

// A form of the product.
struct ProductForm {
    std::string name;
    std::function<std::unique_ptr<forms::Form>(platform::Platform&)> make;
};

// All of them.
std::vector<ProductForm> productForms();

} // namespace desktop
