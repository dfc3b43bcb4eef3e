#pragma once

#include "protocol/CatalogueRow.h"
#include "protocol/drivers/Driver.h"
#include "protocol/drivers/DriverBrand.h"
#include "protocol/drivers/DriverDeployment.h"
#include "protocol/drivers/DriverModel.h"
#include "protocol/drivers/OperatingSystem.h"

namespace protocol {

// The commands for brands, models, drivers and deployments.
inline constexpr Command driverRows[] = {
    row(4, "ListDriverBrands", "lists the driver brands")
        .asks<ListDriverBrandsRequest>()
        .list<DriverBrandRecord>(ReaderForm::plain),
    row(5, "ListDriverModels", "lists driver models by kind of list")
        .asks<ListDriverModelsRequest>()
        .list<DriverModelRecord>(ReaderForm::strict)
        .over(Connection::open)
        .guarded(),
    row(11, "ListOperatingSystems", "lists the operating systems known to the driver catalogue")
        .asks<ListOperatingSystemsRequest>()
        .list<OperatingSystemRecord>(ReaderForm::plain),
    row(12, "ListDrivers", "lists drivers by kind of list")
        .asks<ListDriversRequest>()
        .list<DriverRecord>(ReaderForm::plain)
        .orWhenFirstIs<ShortDriverRecord>(driverList::shortOfModel)
        .leftOpen(),
    row(13, "DeleteDriver", "deletes a driver").asks<DeleteDriverRequest>().leftOpen(),
    row(14, "ListDriverDeployments", "lists the deployments of a model or of one of its drivers")
        .asks<ListDriverDeploymentsRequest>()
        .list<DriverDeploymentRecord>(ReaderForm::plain)
        .leftOpen(),
    row(15, "AddDriverDeployment", "adds a deployment, or replaces one").asks<AddDriverDeploymentRequest>().leftOpen(),
    row(16, "ChangeDriverDeployment", "changes or removes a deployment")
        .asksOneOf<UpdateDriverDeploymentRequest, RemoveDriverDeploymentRequest>()
        .leftOpen(),
    row(20, "SetDriverModelVisible", "shows or hides a model").asks<SetDriverModelVisibleRequest>().leftOpen(),
    row(46, "AddDriverModel", "adds a model to a brand").asks<AddDriverModelRequest>().leftOpen(),
    row(47, "AddBuiltInDriver", "adds the built-in driver to a model").asks<AddBuiltInDriverRequest>().leftOpen(),
    row(48, "AddAlternateDriver", "links an alternate model").asks<AddAlternateDriverRequest>().leftOpen(),
    row(49, "RemoveAlternateDriver", "unlinks an alternate model").asks<RemoveAlternateDriverRequest>().leftOpen(),
    row(75, "SetModelOctetOrder", "sets the status octet order of a driver model").asks<SetModelOctetOrderRequest>(),
    row(77, "GetModelOctetOrder", "gets the status octet order of a driver model")
        .asks<GetModelOctetOrderRequest>()
        .single<GetModelOctetOrderReply>(ReaderForm::plain)
        .leftOpen(),
    row(80, "CountDeploymentConfigs", "counts the queues with configurations of a deployment")
        .asks<CountDeploymentConfigsRequest>()
        .single<CountDeploymentConfigsReply>(ReaderForm::plain)
        .leftOpen(),
};

} // namespace protocol
