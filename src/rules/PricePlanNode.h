#pragma once

#include "console/RecordRow.h"
#include "protocol/rules/PricePlan.h"

namespace rules {

// A price plan as a row of the list of all.
class PricePlanNode final : public console::RecordRow<PricePlanNode, protocol::PricePlanRecord> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Price Plan", .image = 12, .strip = console::driverAndShortIdStrip};
    static const char16_t* payMethodText(const protocol::PricePlanRecord& plan);
    static constexpr std::array cells{console::RecordCell(&protocol::PricePlanRecord::comment),
                                      console::RecordCell(&payMethodText)};
    static constexpr console::RowCommands rowCommands{.edit{u"Edit price plan", u"To edit price plan", 376},
                                                      .remove{u"Remove price plan", u"To remove price plan", 377},
                                                      .question = u"Do you want to delete the selected rule? "};

    using RecordRow::RecordRow;

protected:
    void openEditor() override;
    void deleteRecord() override;
};

} // namespace rules
