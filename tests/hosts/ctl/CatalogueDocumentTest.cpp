#include "hosts/ctl/CatalogueDocument.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

namespace {

std::string chapters() {
    std::ostringstream out;
    ctl::writeCatalogueDocument(out);
    return out.str();
}

TEST(CatalogueDocument, aRowHasTheFieldsOfRequestAndReply) {
    EXPECT_THAT(chapters(), testing::HasSubstr("\n| 76 | 1 | GetStatusOctetOrder | gets the status octet order of a "
                                               "printer | `str8` printerId | `u32` order |\n"));
    EXPECT_THAT(chapters(), testing::HasSubstr(" | `str8` physicalPrinterId, `PrinterRecord` record | `StatusReply` "
                                               "status, `str8` id |\n"));
}

TEST(CatalogueDocument, aRowTellsFormsListsAndOtherRecords) {
    EXPECT_THAT(chapters(), testing::HasSubstr(" | action 1 adds, 2 updates: `u8` action, `PricePlanRecord` plan, "
                                               "`list16<PriceEntryRecord>` entries<br>action 3 deletes: "));
    EXPECT_THAT(chapters(), testing::HasSubstr(" | list of `DriverRecord`, or of `ShortDriverRecord` when the request "
                                               "begins with 2 |\n"));
    EXPECT_THAT(chapters(), testing::HasSubstr("`opt<uuid>` messageId"));
}

TEST(CatalogueDocument, recordsAreToldOnceAndByNameElsewhere) {
    EXPECT_THAT(chapters(), testing::HasSubstr("\n| `RegionRecord` | `str16` name, `i32` id, `i32` parentId |\n"));
    EXPECT_THAT(chapters(), testing::HasSubstr("\n| 10 | 2 | UpdateRecord | updates a printer, a queue or a local "
                                               "printer | `PrinterRecord` record | `StatusReply` |\n"));
}

TEST(CatalogueDocument, everyCommandIsDescribed) {
    EXPECT_THAT(chapters(), testing::Not(testing::HasSubstr("list of none")));
}

TEST(CatalogueDocument, theDocumentOnTheProtocolEndsWithIt) {
    std::ifstream file(PROTOCOL_DOCUMENT);
    const std::string document{std::istreambuf_iterator<char>(file), {}};

    EXPECT_TRUE(document.ends_with("\n\n" + chapters()))
        << "renew it with: sed -i '/^## All commands$/,$d' docs/protocol.md && "
           "build/bin/vantrelctl commands --markdown >>docs/protocol.md";
}

} // namespace
