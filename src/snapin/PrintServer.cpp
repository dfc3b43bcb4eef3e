#include "snapin/PrintServer.h"

#include "alarms/AlarmRootNode.h"
#include "drivers/DriversRootNode.h"
#include "inventory/MigrationRootNode.h"
#include "localprinters/LocalPrintersRootNode.h"
#include "printers/PrintersRootNode.h"
#include "queues/FollowPrintersRootNode.h"
#include "queues/QueuesRootNode.h"
#include "rules/RulesRootNode.h"

namespace snapin {

PrintServer::PrintServer(platform::Platform& platform)
    : CBaseNodeItem(platform),
      branches_{std::make_shared<printers::PrintersRootNode>(platform),
                std::make_shared<queues::QueuesRootNode>(platform),
                std::make_shared<queues::FollowPrintersRootNode>(platform),
                std::make_shared<localprinters::LocalPrintersRootNode>(platform),
                std::make_shared<drivers::DriversRootNode>(platform),
                std::make_shared<alarms::AlarmRootNode>(platform),
                std::make_shared<rules::RulesRootNode>(platform),
                std::make_shared<inventory::MigrationRootNode>(platform)} {}

std::vector<console::ChildKind> PrintServer::childKinds() {
    return {fixedChildren(pointersTo(branches_))};
}

} // namespace snapin
