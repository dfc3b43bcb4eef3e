#include "rules/AffectedDlg.h"

#include "client/rules/NewRecord.h"
#include "forms/Questions.h"

#include <utility>

namespace rules {
namespace {

protocol::AffectedRecord newAffected() {
    auto affected = client::newRecord<protocol::AffectedRecord>();
    affected.type = protocol::affectedType::group;
    return affected;
}

} // namespace

AffectedDlg::AffectedDlg(platform::Platform& platform, std::optional<Record> edited)
    : RecordForm(platform, {u"Affected", u"Affected"}, std::move(edited), newAffected()) {}

void AffectedDlg::onInitDialog() {
    name.setText(record_.name);
    type.selectValue(record_.type);
    equals.selectValue(record_.equals);
}

bool AffectedDlg::take() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Name field should not be blank!");
        return false;
    }
    record_.name = name.text();
    record_.type = type.value().value_or(protocol::affectedType::group);
    record_.equals = equals.value().value_or(protocol::affectedSense::isNot);
    return true;
}

} // namespace rules
