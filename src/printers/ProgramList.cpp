#include "printers/ProgramList.h"

#include "client/CQVXAdminClass.h"
#include "client/ConnectFailed.h"

#include <utility>

namespace printers {

// A program that no longer exists leaves nothing selected, so that the printer keeps it until another one is chosen.
void ProgramList::fill(const std::string& id) {
    list.clear();
    list.addItem(u"NONE");
    client::CQVXAdminClass client;
    if (!client.listAlarmPrograms(kind_)) {
        throw client::ConnectFailed();
    }
    for (protocol::AlarmProgramRecord program; client.nextAlarmProgram(program);) {
        list.addItem(std::move(program.name), std::move(program.id));
    }
    list.selectData(id);
}

} // namespace printers
