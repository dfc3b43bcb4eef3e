#pragma once

#include "protocol/CatalogueRow.h"

namespace protocol {

// The commands for brands, models, drivers and deployments.
inline constexpr Command driverRows[] = {
    row(4, "ListDriverBrands", "lists the driver brands").list(ReaderForm::plain),
    row(5, "ListDriverModels", "lists driver models by kind of list").list(ReaderForm::strict).over(Connection::open).guarded(),
    row(11, "ListOperatingSystems", "lists the operating systems known to the driver catalogue").list(ReaderForm::plain),
    row(12, "ListDrivers", "lists drivers by kind of list").list(ReaderForm::plain).leftOpen(),
    row(13, "DeleteDriver", "deletes a driver").leftOpen(),
    row(14, "ListDriverDeployments", "lists the deployments of a driver").list(ReaderForm::plain).leftOpen(),
    row(15, "AddDriverDeployment", "adds a deployment").leftOpen(),
    row(16, "ChangeDriverDeployment", "changes or removes a deployment").leftOpen(),
    row(20, "SetDriverModelVisible", "shows or hides a model").leftOpen(),
    row(46, "AddDriverModel", "adds a model to a brand").leftOpen(),
    row(47, "AddBuiltInDriver", "adds the built-in driver to a model").leftOpen(),
    row(48, "AddAlternateDriver", "links an alternate model").leftOpen(),
    row(49, "RemoveAlternateDriver", "unlinks an alternate model").leftOpen(),
    row(75, "SetModelOctetOrder", "sets the status octet order of a driver model"),
    row(77, "GetModelOctetOrder", "gets the status octet order of a driver model").single(ReaderForm::plain).leftOpen(),
    row(80, "CountDeploymentConfigs", "counts the queues with configurations of a deployment").single(ReaderForm::plain).leftOpen(),
};

} // namespace protocol
