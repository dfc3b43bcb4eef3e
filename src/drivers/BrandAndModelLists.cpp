#include "drivers/BrandAndModelLists.h"

#include "client/CQVXAdminClass.h"

#include <algorithm>
#include <utility>

namespace drivers {

BrandAndModelLists::BrandAndModelLists(forms::Container& container)
    : brand(container, u"Brand", {.sorted = true}), model(container, u"Model") {
    brand.onSelect = [this] { brandSelected(); };
}

void BrandAndModelLists::fill() {
    setKnown(false);
    brand.clear();
    model.clear();
    setKnown(readBrands());
}

void BrandAndModelLists::fillFor(const std::string& modelId) {
    fill();
    if (modelId.empty() || !known_) {
        return;
    }
    for (const auto& row : brand.items()) {
        if (selectIn(row, modelId) || !known_) {
            return;
        }
    }
}

std::optional<std::string> BrandAndModelLists::modelId() const {
    return model.selection() ? std::optional(model.selectedData()) : std::nullopt;
}

bool BrandAndModelLists::readBrands() {
    client::CQVXAdminClass client;
    if (!client.listDriverBrands()) {
        return false;
    }
    protocol::DriverBrandRecord record;
    while (client.nextDriverBrand(record)) {
        brand.addItem(std::move(record.name), std::move(record.brandId));
    }
    return true;
}

// Stays unknown when the client throws.
std::optional<BrandAndModelLists::Models> BrandAndModelLists::readModels(const std::string& brandId) {
    setKnown(false);
    Models models;
    if (!client::CQVXAdminClass().listDriverModels(protocol::driverModelList::forDialogs, brandId, models)) {
        return std::nullopt;
    }
    setKnown(true);
    return models;
}

// The brand is found by its text and not by its row: of two brands of the same name, the models of the first are
// listed.
void BrandAndModelLists::brandSelected() {
    model.clear();
    const auto chosen = std::ranges::find(brand.items(), brand.selectedText(), &forms::DropListItem::text);
    if (chosen == brand.items().end()) {
        return;
    }
    if (auto models = readModels(chosen->data)) {
        listModels(std::move(*models));
    }
}

bool BrandAndModelLists::selectIn(const forms::DropListItem& brandRow, const std::string& modelId) {
    auto models = readModels(brandRow.data);
    if (!models || std::ranges::find(*models, modelId, &protocol::DriverModelRecord::modelId) == models->end()) {
        return false;
    }
    brand.selectData(brandRow.data);
    listModels(std::move(*models));
    return model.selectData(modelId);
}

void BrandAndModelLists::listModels(Models models) {
    for (auto& record : models) {
        model.addItem(std::move(record.name), std::move(record.modelId));
    }
}

void BrandAndModelLists::setKnown(bool known) {
    known_ = known;
    if (onKnown) {
        onKnown();
    }
}

} // namespace drivers
