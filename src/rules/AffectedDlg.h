#pragma once

#include "forms/ChoiceList.h"
#include "forms/EditBox.h"
#include "forms/RecordForm.h"
#include "protocol/rules/Affected.h"

namespace rules {

// Creates or edits whom a rule affects: a user, a group, or all except one of these.
class AffectedDlg final : public forms::RecordForm<protocol::AffectedRecord> {
public:
    explicit AffectedDlg(platform::Platform& platform, std::optional<Record> edited = {});

    forms::EditBox name{*this, u"Name"};
    forms::ChoiceList<std::uint8_t> type{
        *this, u"Type", {{protocol::affectedType::group, u"Group"}, {protocol::affectedType::user, u"User"}}};
    forms::ChoiceList<std::uint8_t> equals{
        *this, u"Equals", {{protocol::affectedSense::isNot, u"IS NOT"}, {protocol::affectedSense::is, u"IS"}}};

protected:
    void onInitDialog() override;
    bool take() override;
    void addRecord(client::CQVXAdminClass& client) override { client.addAffected(record_); }
    void updateRecord(client::CQVXAdminClass& client) override { client.updateAffected(record_); }
};

} // namespace rules
