#pragma once

#include "forms/DropList.h"
#include "protocol/drivers/DriverModel.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace drivers {

// The lists from which the model of a printer or a queue is chosen in a dialog. The brand only narrows the models.
class BrandAndModelLists {
public:
    explicit BrandAndModelLists(forms::Container& container);
    BrandAndModelLists(const BrandAndModelLists&) = delete;
    BrandAndModelLists& operator=(const BrandAndModelLists&) = delete;

    // Reads the brands. None is selected, and so there are no models.
    void fill();
    // The same, and selects the model with the id and its brand. Nothing is selected for an empty id, and for a model
    // that no brand lists. A record does not contain its brand, so the models of one brand after the other are read
    // until it is found.
    void fillFor(const std::string& modelId);

    // Whether everything that should be listed could be read. Confirming a dialog without it would write that there is
    // no model.
    [[nodiscard]] bool known() const { return known_; }
    // Called when known() may have changed.
    std::function<void()> onKnown;

    // The id in the selected row; none without one.
    [[nodiscard]] std::optional<std::string> modelId() const;

    forms::DropList brand; // the data of a row is the brand's id
    forms::DropList model; // and here the model's

private:
    using Models = std::vector<protocol::DriverModelRecord>;

    bool readBrands();
    // The models of a brand; none, and known() is false, when they could not be read.
    std::optional<Models> readModels(const std::string& brandId);
    void brandSelected();
    bool selectIn(const forms::DropListItem& brandRow, const std::string& modelId);
    void listModels(Models models);
    void setKnown(bool known);

    bool known_ = false;
};

} // namespace drivers
