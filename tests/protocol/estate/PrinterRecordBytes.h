#pragma once

#include "protocol/estate/Printer.h"
#include "tests/support/Bytes.h"

namespace protocol {

// A record with a distinct value in nearly every field.
inline PrinterRecord ordinaryPrinter() {
    PrinterRecord record;
    record.ip = "10.0.0.7";
    record.id = "0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480";
    record.name = u"Ahrn";
    record.location = u"Hall";
    record.comment = u"\u00E9";
    record.modelName = u"X5";
    record.modelId = "m1";
    record.auxId = "a";
    record.lprQueueName = u"lp";
    record.port = 515;
    record.regionId = -2;
    record.jobs = 258;
    record.snmpStatus = '0';
    record.printingStatus = '3';
    record.queueState = '1';
    record.recordType = recordType::queue;
    record.auxByte = 9;
    record.auxText = u"t";
    record.timeToLive = 24;
    record.snmpActive = true;
    record.localDriverHandling = false;
    record.localConfigHandling = true;
    record.snmpIndex = 255;
    record.snmpCommunity = u"public";
    record.alarmProgramId = "p";
    record.invisible = 1;
    record.counterProgramId = "c9";
    record.accounting = 3;
    record.auxKey = "k";
    return record;
}

// Its fields on the wire.
inline support::Bytes ordinaryPrinterFields() {
    return support::hex("08 00 31 30 2E 30 2E 30 2E 37"          // ip
                        "00 00"                                  // fpBoxIp
                        "24 00 30 66 38 65 32 61 36 34 2D 35 62" // id
                        "31 64 2D 34 66 30 65 2D 39 63 33 37 2D"
                        "36 61 32 64 35 31 62 37 65 34 38 30"
                        "08 00 41 00 68 00 72 00 6E 00"             // name
                        "08 00 48 00 61 00 6C 00 6C 00"             // location
                        "02 00 E9 00"                               // comment
                        "04 00 58 00 35 00"                         // modelName
                        "02 00 6D 31"                               // modelId
                        "01 00 61"                                  // auxId
                        "04 00 6C 00 70 00"                         // lprQueueName
                        "03 02 00 00"                               // port
                        "FE FF FF FF"                               // regionId
                        "02 01"                                     // jobs
                        "30 33 31"                                  // snmpStatus, printingStatus, queueState
                        "01 00"                                     // recordType
                        "09"                                        // auxByte
                        "02 00 74 00"                               // auxText
                        "18 00"                                     // timeToLive
                        "01 00 01"                                  // snmpActive, local driver and config handling
                        "FF"                                        // snmpIndex
                        "0C 00 70 00 75 00 62 00 6C 00 69 00 63 00" // snmpCommunity
                        "01 00 70"                                  // alarmProgramId
                        "00 00"                                     // mailMessage
                        "01"                                        // invisible
                        "02 00 63 39"                               // counterProgramId
                        "03"                                        // accounting
                        "00"                                        // doNotAutoCreateQueue
                        "01 00 6B");                                // auxKey
}

} // namespace protocol
