#pragma once

#include "rules/RuleEntryForm.h"

#include <cstdint>

namespace rules {

// Creates a rule entry inside a rule group, or on a region.
class AddRuleEntryDlg final : public RuleEntryForm {
public:
    enum class Mode : std::uint8_t { place, group };

    AddRuleEntryDlg(platform::Platform& platform, Mode mode, RuleEntryPlace place, std::optional<Record> edited = {});

protected:
    void addRecord(client::CQVXAdminClass& client) override;

private:
    Mode mode_;
};

} // namespace rules
