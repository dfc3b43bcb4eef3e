#include "queues/QueueConfigurations.h"

#include "client/CQVXAdminClass.h"

#include <algorithm>
#include <utility>

namespace queues {

using protocol::QueueConfigEntry;

namespace {

std::unique_ptr<forms::Label> detail(forms::Container& container, QueueConfigurations::Details details,
                                     std::u16string_view label) {
    return details == QueueConfigurations::Details::shown ? std::make_unique<forms::Label>(container, label) : nullptr;
}

} // namespace

QueueConfigurations::QueueConfigurations(forms::Container& container, Details details)
    : list(container, u"Configuration"),
      driver(detail(container, details, u"Driver")),
      locale(detail(container, details, u"Locale")),
      package(container, u"Configuration Package", {.sorted = true}),
      apply(container, u"Apply") {
    apply.setBeside(package);
    // The program reads the ids of a row from the first two columns; nobody sees them.
    list.setColumns(
        {{u"ConfigId", 0}, {u"DriverMapId", 0}, {u"Driver", 340}, {u"Locale", 70}, {u"Configuration Package", 200}});
    list.onSelect = [this] { rowSelected(); };
    apply.onPress = [this] { applyPackage(); };
    package.setEnabled(false);
    apply.setEnabled(false);
}

void QueueConfigurations::open(const std::string& queueId) {
    queueId_ = queueId;
    read();
}

void QueueConfigurations::read() {
    entries_.clear();
    list.setRows({});
    client::CQVXAdminClass client;
    static_cast<void>(client.getConfigurations(queueId_, {}));
    for (QueueConfigEntry entry; client.nextConfiguration(entry);) {
        entries_.push_back(entry);
    }
    std::ranges::reverse(entries_); // they came the last of the server's list first
    std::vector<forms::ListRow> rows;
    rows.reserve(entries_.size());
    for (const auto& entry : entries_) {
        rows.push_back({.cells = {wire::toWide(entry.configId), wire::toWide(entry.driverMapId), entry.driverName,
                                  entry.locale, entry.packageName},
                        .data = entry.driverMapId});
    }
    list.setRows(std::move(rows));
}

const QueueConfigEntry* QueueConfigurations::selected() const {
    const auto row = list.selection();
    return row && *row < entries_.size() ? &entries_[*row] : nullptr;
}

void QueueConfigurations::rowSelected() {
    const auto* const entry = selected();
    showDetails(entry);
    package.clear();
    package.setEnabled(false);
    apply.setEnabled(false);
    if (entry != nullptr && readChoices(*entry)) {
        selectPackage(*entry);
        package.setEnabled(true);
        apply.setEnabled(true);
    }
}

void QueueConfigurations::showDetails(const QueueConfigEntry* entry) const {
    if (driver != nullptr && locale != nullptr) {
        driver->setText(entry != nullptr ? entry->driverName : wire::WideString());
        locale->setText(entry != nullptr ? entry->locale : wire::WideString());
    }
}

bool QueueConfigurations::readChoices(const QueueConfigEntry& entry) {
    client::CQVXAdminClass client;
    if (!client.getConfigChoices(entry.driverMapId)) {
        return false;
    }
    for (protocol::QueueConfigChoice choice; client.nextConfigChoice(choice);) {
        package.addItem(choice.name, choice.id);
    }
    package.addFirst(u"None");
    return true;
}

void QueueConfigurations::selectPackage(const QueueConfigEntry& entry) {
    if (!package.selectData(entry.configId) && !package.selectText(entry.packageName)) {
        package.select(0);
    }
}

// The list is read again in every case, to show what the server has.
void QueueConfigurations::applyPackage() {
    const auto* const entry = selected();
    if (entry == nullptr) {
        return;
    }
    const std::string driverMapId = entry->driverMapId;
    try {
        client::CQVXAdminClass().applyConfiguration(queueId_, driverMapId, package.selectedData());
    } catch (...) {
        readAgain(driverMapId);
        throw;
    }
    readAgain(driverMapId);
}

void QueueConfigurations::readAgain(const std::string& driverMapId) {
    read();
    const auto same = std::ranges::find(entries_, driverMapId, &QueueConfigEntry::driverMapId);
    if (same == entries_.end()) {
        rowSelected();
        return;
    }
    list.select(static_cast<std::size_t>(same - entries_.begin()));
    selectPackage(*same);
}

} // namespace queues
