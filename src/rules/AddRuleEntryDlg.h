#pragma once

#include "forms/Form.h"
#include "rules/RuleEntryFields.h"
#include "rules/RuleEntryPlace.h"

namespace rules {

// Creates a rule entry inside a rule group, or on a region.
class AddRuleEntryDlg final : public forms::Form {
public:
    enum class Mode : std::uint8_t { place, group };

    AddRuleEntryDlg(platform::Platform& platform, Mode mode, RuleEntryPlace place);
    AddRuleEntryDlg(platform::Platform& platform, Mode mode, RuleEntryPlace place, protocol::RuleEntryRecord entry);

    RuleEntryFields fields;

protected:
    void onInitDialog() override { fields.open(); }
    void onOk() override;

private:
    AddRuleEntryDlg(platform::Platform& platform, Mode mode, RuleEntryPlace place, bool editing,
                    protocol::RuleEntryRecord entry);
    void write(const RuleEntryPlace& place) const;

    Mode mode_;
    RuleEntryPlace place_;
    bool editing_;
};

} // namespace rules
