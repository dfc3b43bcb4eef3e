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
    row<ListDriverBrandsRequest>("lists the driver brands").list<DriverBrandRecord>(ReaderForm::plain),
    row<ListDriverModelsRequest>("lists driver models by kind of list")
        .list<DriverModelRecord>(ReaderForm::strict)
        .over(Connection::open)
        .guarded(),
    row<ListOperatingSystemsRequest>("lists the operating systems known to the driver catalogue")
        .list<OperatingSystemRecord>(ReaderForm::plain),
    row<ListDriversRequest>("lists drivers by kind of list")
        .list<DriverRecord>(ReaderForm::plain)
        .orWhenFirstIs<ShortDriverRecord>(driverList::shortOfModel)
        .leftOpen(),
    row<DeleteDriverRequest>("deletes a driver").leftOpen(),
    row<ListDriverDeploymentsRequest>("lists the deployments of a model or of one of its drivers")
        .list<DriverDeploymentRecord>(ReaderForm::plain)
        .leftOpen(),
    row<AddDriverDeploymentRequest>("adds a deployment, or replaces one").leftOpen(),
    row<UpdateDriverDeploymentRequest, RemoveDriverDeploymentRequest>("changes or removes a deployment")
        .called("ChangeDriverDeployment")
        .leftOpen(),
    row<SetDriverModelVisibleRequest>("shows or hides a model").leftOpen(),
    row<AddDriverModelRequest>("adds a model to a brand").leftOpen(),
    row<AddBuiltInDriverRequest>("adds the built-in driver to a model").leftOpen(),
    row<AddAlternateDriverRequest>("links an alternate model").leftOpen(),
    row<RemoveAlternateDriverRequest>("unlinks an alternate model").leftOpen(),
    row<SetModelOctetOrderRequest>("sets the status octet order of a driver model"),
    row<GetModelOctetOrderRequest>("gets the status octet order of a driver model")
        .single<GetModelOctetOrderReply>(ReaderForm::plain)
        .leftOpen(),
    row<CountDeploymentConfigsRequest>("counts the queues with configurations of a deployment")
        .single<CountDeploymentConfigsReply>(ReaderForm::plain)
        .leftOpen(),
};

} // namespace protocol
