#include "snapin/PrintServer.h"

#include "alarms/AlarmRootNode.h"
#include "drivers/DriversRootNode.h"
#include "localprinters/LocalPrintersRootNode.h"
#include "migration/MigrationRootNode.h"
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
                std::make_shared<migration::MigrationRootNode>(platform)} {}

console::Result PrintServer::OnExpand(console::ExpandCode code, console::IConsole& console, console::ScopeId scopeId) {
    if (!beginExpand(code, console, scopeId)) {
        return console::Result::ok;
    }
    for (const auto& branch : branches_) {
        branch->setParent(*this);
        insertChild(console, *branch);
    }
    return console::Result::ok;
}

} // namespace snapin
