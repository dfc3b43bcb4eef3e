#include "printers/RequiredModel.h"

#include "forms/Questions.h"

namespace printers {

bool modelChosen(drivers::BrandAndModelLists& brandAndModel) {
    if (!brandAndModel.modelId()) {
        forms::refuseBlank(brandAndModel.model, u"Please choose Brand and Model", u"Information",
                           platform::boxStyle::iconInformation);
        return false;
    }
    return true;
}

} // namespace printers
