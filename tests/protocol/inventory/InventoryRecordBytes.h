#pragma once

#include "protocol/inventory/InventoryModel.h"
#include "protocol/inventory/InventoryPrinter.h"
#include "protocol/inventory/InventoryReport.h"
#include "protocol/inventory/IpRange.h"
#include "protocol/inventory/Schema.h"

// Records with a distinct value in every field, and their fields on the wire.
namespace protocol {

inline SchemaRecord ordinarySchema() {
    return {.creator = u"eva",
            .planNumber = -2,
            .newPrinterName = u"Q\u00E9",
            .newQueueId = "q1",
            .oldIp = "10.0.0.7",
            .oldPort = "IP_1",
            .oldPrinterName = u"HP",
            .oldModelName = u"X5",
            .schemaId = "s1",
            .schemaName = u"Plan",
            .action = 2,
            .planFlag = true};
}

constexpr const char* ordinarySchemaFields = "06 00 65 00 76 00 61 00"       // creator
                                             "FE FF FF FF"                   // planNumber
                                             "04 00 51 00 E9 00"             // newPrinterName
                                             "02 00 71 31"                   // newQueueId
                                             "08 00 31 30 2E 30 2E 30 2E 37" // oldIp
                                             "04 00 49 50 5F 31"             // oldPort
                                             "04 00 48 00 50 00"             // oldPrinterName
                                             "04 00 58 00 35 00"             // oldModelName
                                             "02 00 73 31"                   // schemaId
                                             "08 00 50 00 6C 00 61 00 6E 00" // schemaName
                                             "02 00 00 00"                   // action
                                             "01";                           // planFlag

constexpr const char* emptySchemaFields = "00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                          "00 00 00 00 00 00 00 00 00 00 00 00 00";

inline InventoryReportRecord ordinaryReport() {
    return {.reportId = "r1",
            .reportDate = u"2014",
            .reportUser = u"eva",
            .reportName = u"May",
            .comment = u"c",
            .ipScope = u"10.*",
            .reportType = 258};
}

constexpr const char* ordinaryReportFields = "02 00 72 31"                   // reportId
                                             "08 00 32 00 30 00 31 00 34 00" // reportDate
                                             "06 00 65 00 76 00 61 00"       // reportUser
                                             "06 00 4D 00 61 00 79 00"       // reportName
                                             "02 00 63 00"                   // comment
                                             "08 00 31 00 30 00 2E 00 2A 00" // ipScope
                                             "02 01";                        // reportType

inline InventoryPrinterRecord ordinaryFound() {
    return {.entryId = "e1",
            .windowsName = u"HP",
            .printerIp = "10.0.0.7",
            .printerPort = "IP_1",
            .location = u"L",
            .comment = u"c",
            .clientCount = 0x01020304,
            .model = u"X5",
            .mappedPrinterName = u"P",
            .mappedPrinterId = "p1",
            .mappedQueueName = u"Q",
            .mappedQueueId = "q1",
            .workstation = u"WS",
            .migrationPlan = u"M",
            .migrationAction = u"I",
            .spare = u"s"};
}

constexpr const char* ordinaryFoundFields = "02 00 65 31"                   // entryId
                                            "04 00 48 00 50 00"             // windowsName
                                            "08 00 31 30 2E 30 2E 30 2E 37" // printerIp
                                            "04 00 49 50 5F 31"             // printerPort
                                            "02 00 4C 00"                   // location
                                            "02 00 63 00"                   // comment
                                            "04 03 02 01"                   // clientCount
                                            "04 00 58 00 35 00"             // model
                                            "02 00 50 00"                   // mappedPrinterName
                                            "02 00 70 31"                   // mappedPrinterId
                                            "02 00 51 00"                   // mappedQueueName
                                            "02 00 71 31"                   // mappedQueueId
                                            "04 00 57 00 53 00"             // workstation
                                            "02 00 4D 00"                   // migrationPlan
                                            "02 00 49 00"                   // migrationAction
                                            "02 00 73 00";                  // spare

inline InventoryModelRecord ordinaryModel() {
    return {.modelName = u"X5",
            .modelExists = true,
            .driverExists = false,
            .queueCount = -1,
            .clientCount = 300,
            .modelId = "m1"};
}

constexpr const char* ordinaryModelFields = "04 00 58 00 35 00" // modelName
                                            "01 00"             // modelExists, driverExists
                                            "FF FF FF FF"       // queueCount
                                            "2C 01 00 00"       // clientCount
                                            "02 00 6D 31";      // modelId

inline IpRangeRecord ordinaryRange() {
    return {.rangeId = "i1",
            .active = true,
            .name = u"Hall",
            .comment = u"c",
            .startIp = u"10.1",
            .endIp = u"10.2",
            .rangeValue1 = 258,
            .creator = u"eva",
            .rangeText1 = u"t",
            .rangeType = 4,
            .rangeValue2 = -2,
            .rangeText2 = "u",
            .rangeText3 = u"v"};
}

constexpr const char* ordinaryRangeFields = "02 00 69 31"                   // rangeId
                                            "01"                            // active
                                            "08 00 48 00 61 00 6C 00 6C 00" // name
                                            "02 00 63 00"                   // comment
                                            "08 00 31 00 30 00 2E 00 31 00" // startIp
                                            "08 00 31 00 30 00 2E 00 32 00" // endIp
                                            "02 01"                         // rangeValue1
                                            "06 00 65 00 76 00 61 00"       // creator
                                            "02 00 74 00"                   // rangeText1
                                            "04 00 00 00"                   // rangeType
                                            "FE FF FF FF"                   // rangeValue2
                                            "01 00 75"                      // rangeText2
                                            "02 00 76 00";                  // rangeText3

constexpr const char* emptyRangeFields = "00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                         "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00";

} // namespace protocol
