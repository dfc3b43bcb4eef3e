#include "printers/SnmpStatus.h"

#include <array>

namespace printers {

const char16_t* snmpStatusText(std::uint8_t status) {
    static constexpr std::array<const char16_t*, 10> words{u"",
                                                           u"WARNING:Low Paper",
                                                           u"WARNING:Low Toner",
                                                           u"WARNING:Service Needed",
                                                           u"ERROR:No Paper",
                                                           u"ERROR:No Toner",
                                                           u"ERROR:Offline",
                                                           u"ERROR:Door Open",
                                                           u"ERROR:Paper Jam",
                                                           u"ERROR:No Contact"};
    return status < words.size() ? words[status] : u"SNMP status";
}

} // namespace printers
