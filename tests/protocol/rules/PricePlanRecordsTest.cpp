#include "protocol/rules/PaperCode.h"
#include "protocol/rules/PricePlan.h"
#include "tests/protocol/rules/RuleBytes.h"

#include <set>

namespace protocol {
namespace {

using namespace test; // the checks

const PricePlanRecord ordinaryPlan{.id = "p1",
                                   .payMethod = 3,
                                   .name = u"N",
                                   .comment = u"C",
                                   .defaultPrice = 1,
                                   .colorMultiplier = 2,
                                   .duplexMultiplier = 0.5F,
                                   .copyMultiplier = 1.5F,
                                   .scanMultiplier = 0,
                                   .vat = 2500};
const std::string beforePlanName = "02 00 70 31 03 ";
const std::string behindPlanName =
    "02 00 43 00 00 00 80 3F 00 00 00 40 00 00 00 3F 00 00 C0 3F 00 00 00 00 C4 09 00 00";
const std::string planFields = beforePlanName + "02 00 4E 00" + behindPlanName;

const PriceEntryRecord ordinaryEntry{.id = "r1",
                                     .paperName = "A4",
                                     .kind = PriceKind::print,
                                     .paperCode = 9,
                                     .basePrice = 0,
                                     .bwSimplex = 0.25F,
                                     .bwDuplex = 0.5F,
                                     .colorSimplex = 1,
                                     .colorDuplex = 2};
const std::string entryFields =
    "02 00 72 31 02 00 41 34 01 09 00 00 00 00 00 00 00 80 3E 00 00 00 3F 00 00 80 3F 00 00 00 40";

TEST(PricePlanRecord, theFiguresFollowTheTexts) {
    expectFields(ordinaryPlan, planFields);
    expectNoShorterMessage<PricePlanRecord>(planFields);
}

TEST(PricePlanRecord, anEmptyOneSendsAllItsFields) {
    expectFields(PricePlanRecord{}, "00 00 00 00 00 00 00  00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                    "00 00 00 00");
}

TEST(PricePlanRecord, namesOfEveryKindTravel) {
    expectNames<PricePlanRecord>(beforePlanName, behindPlanName);
}

TEST(PriceEntryRecord, thePricesFollowThePaper) {
    expectFields(ordinaryEntry, entryFields);
    expectNoShorterMessage<PriceEntryRecord>(entryFields);
    expectFields(PriceEntryRecord{},
                 "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST(PriceEntryRecord, aKindThatIsNotKnownKeepsItsNumber) {
    PriceEntryRecord entry = ordinaryEntry;
    entry.kind = static_cast<PriceKind>(0xFE);

    EXPECT_FALSE(isKnown(entry.kind));
    expectFields(entry, "02 00 72 31 02 00 41 34 FE 09 00 00 00 00 00 00 00 80 3E 00 00 00 3F 00 00 80 3F 00 00 00 40");
}

TEST(PriceEntryRecord, theLabelIsEightBitTextOfAnyBytes) {
    PriceEntryRecord entry;
    entry.paperName = "cm \xB2";
    expectFields(entry, "00 00 04 00 63 6D 20 B2 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    entry.paperName = std::string(65535, 'x');
    const auto fields = support::hex("00 00 FF FF") + repeated(65535, "78") + repeated(23, "00");
    EXPECT_EQ(hexOf(entry), support::toHex(support::dataMessage(fields)));
    EXPECT_EQ(fromFields<PriceEntryRecord>(fields), entry);
}

TEST(WritePricePlanRequest, carriesThePlanAndAllOfItsPrices) {
    expectFields(WritePricePlanRequest{.action = 2, .plan = ordinaryPlan, .entries = {ordinaryEntry, ordinaryEntry}},
                 "02" + planFields + "02 00" + entryFields + entryFields);
}

TEST(WritePricePlanRequest, aPlanWithoutPricesSendsACountOfZero) {
    expectFields(WritePricePlanRequest{.action = 1, .plan = ordinaryPlan, .entries = {}}, "01" + planFields + "00 00");
}

TEST(DeletePricePlanRequest, isActionThreeAndTheId) {
    expectFields(DeletePricePlanRequest{.id = "p1"}, "03 02 00 70 31");
}

TEST(ListPricePlansRequest, anEmptyFilterListsAll) {
    expectFields(ListPricePlansRequest{}, "00 00");
    expectFields(ListPricePlansRequest{.filter = "p1"}, "02 00 70 31");
}

TEST(ListPriceEntriesRequest, isTheIdOfThePlan) {
    expectFields(ListPriceEntriesRequest{.planId = "p1"}, "02 00 70 31");
}

TEST(PaperCode, papersAndAreasStandInTheirOrderAndShareNoCode) {
    std::vector<std::uint16_t> codes;
    std::u16string labels;
    for (const auto& list : {std::span<const PaperCode>(paperSizes), std::span<const PaperCode>(areaUnits)}) {
        for (const auto& [code, label] : list) {
            codes.push_back(code);
            labels.append(label).append(u",");
        }
    }

    EXPECT_EQ(codes, (std::vector<std::uint16_t>{9, 262, 263, 66, 8, 11, 5, 1, 257, 258, 259, 260, 261}));
    EXPECT_EQ(labels, u"A4,A0,A1,A2,A3,A5,Legal,Letter,cm ²,dm ²,m ²,in ²,ft ²,");
    EXPECT_EQ(std::set<std::uint16_t>(codes.begin(), codes.end()).size(), codes.size());
}

} // namespace
} // namespace protocol
