#include "bench/SampleRecord.h"

#include "bench/PrinterRecord.pb.h"
#include "wire/Text.h"

namespace bench {

protocol::PrinterRecord samplePrinter() {
    protocol::PrinterRecord printer;
    printer.ip = "10.24.17.203";
    printer.fpBoxIp = "10.24.17.9";
    printer.id = "0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480";
    printer.name = u"NORTH-3-COPY-17";
    printer.location = u"Building 3, floor 2, copy room";
    printer.comment = u"Serviced every second Tuesday";
    printer.modelName = u"Ardent 5400";
    printer.modelId = "7c1b9e52-3f6a-4d8e-8a10-2b94c6d0f713";
    printer.auxId = "41";
    printer.lprQueueName = u"copy17";
    printer.port = 515;
    printer.regionId = 12;
    printer.jobs = 4;
    printer.auxText = u"north";
    printer.timeToLive = 24;
    printer.snmpActive = true;
    printer.localDriverHandling = true;
    printer.snmpIndex = 1;
    printer.snmpCommunity = u"public";
    printer.alarmProgramId = "b3d0";
    printer.mailMessage = u"Please add paper";
    printer.counterProgramId = "9e77";
    printer.accounting = 3;
    printer.auxKey = "k17";
    return printer;
}

std::string sampleInProtobuf() {
    const auto printer = samplePrinter();
    anchor::PrinterRecord message;
    message.set_ip(printer.ip);
    message.set_fp_box_ip(printer.fpBoxIp);
    message.set_id(printer.id);
    message.set_name(wire::toUtf8(printer.name));
    message.set_location(wire::toUtf8(printer.location));
    message.set_comment(wire::toUtf8(printer.comment));
    message.set_model_name(wire::toUtf8(printer.modelName));
    message.set_model_id(printer.modelId);
    message.set_aux_id(printer.auxId);
    message.set_lpr_queue_name(wire::toUtf8(printer.lprQueueName));
    message.set_port(printer.port);
    message.set_region_id(printer.regionId);
    message.set_jobs(printer.jobs);
    message.set_snmp_status(printer.snmpStatus);
    message.set_printing_status(printer.printingStatus);
    message.set_queue_state(printer.queueState);
    message.set_record_type(printer.recordType);
    message.set_aux_byte(printer.auxByte);
    message.set_aux_text(wire::toUtf8(printer.auxText));
    message.set_time_to_live(printer.timeToLive);
    message.set_snmp_active(printer.snmpActive);
    message.set_local_driver_handling(printer.localDriverHandling);
    message.set_local_config_handling(printer.localConfigHandling);
    message.set_snmp_index(printer.snmpIndex);
    message.set_snmp_community(wire::toUtf8(printer.snmpCommunity));
    message.set_alarm_program_id(printer.alarmProgramId);
    message.set_mail_message(wire::toUtf8(printer.mailMessage));
    message.set_invisible(printer.invisible);
    message.set_counter_program_id(printer.counterProgramId);
    message.set_accounting(printer.accounting);
    message.set_do_not_auto_create_queue(printer.doNotAutoCreateQueue);
    message.set_aux_key(printer.auxKey);
    return message.SerializeAsString();
}

} // namespace bench
