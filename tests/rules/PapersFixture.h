#pragma once

#include "forms/Form.h"
#include "rules/PapersGroup.h"
#include "tests/support/FixedLocale.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

inline constexpr std::size_t multiplier = 0;
inline constexpr std::size_t absolute = 1;

// A form with nothing but the prices of a plan.
class FormWithPapers final : public forms::Form {
public:
    explicit FormWithPapers(platform::Platform& platform) : Form(platform, u"Owner"), papers(*this, platform.locale) {}

    rules::PapersGroup papers;
};

// The prices of a plan in a form, without any row.
class PapersFixture : public ::testing::Test {
protected:
    PapersFixture() { owner_.open(); }

    void addMultiplier(std::size_t paper, const wire::WideString& price) {
        papers_.multiplierType.userSelected(multiplier);
        papers_.paper.userChose();
        papers_.paperList.userSelected(paper);
        papers_.fields.basePrice.box.userTyped(price);
        papers_.addButton.userPressed();
    }

    void typeAbsolutePrices() {
        papers_.multiplierType.userSelected(absolute);
        auto& fields = papers_.fields;
        int price = 0;
        for (auto* const box :
             {&fields.print.bwSimplex, &fields.print.bwDuplex, &fields.print.colorSimplex, &fields.print.colorDuplex,
              &fields.copy.bwSimplex, &fields.copy.bwDuplex, &fields.copy.colorSimplex, &fields.copy.colorDuplex,
              &fields.scan.bw, &fields.scan.color}) {
            ASSERT_TRUE(box->box.userTyped(wire::toWide(std::to_string(++price))));
        }
    }

    // Print, copy and scan on A4 with the prices 1 to 10.
    void addAbsolute() {
        typeAbsolutePrices();
        papers_.paperList.userSelected(0);
        papers_.addButton.userPressed();
    }

    void expectAdding() const {
        EXPECT_FALSE(papers_.updating());
        EXPECT_EQ(papers_.addButton.label(), u"Add");
        EXPECT_FALSE(papers_.removeButton.enabled());
        EXPECT_TRUE(papers_.paper.enabled());
        EXPECT_TRUE(papers_.area.enabled());
        EXPECT_TRUE(papers_.multiplierType.enabled());
    }

    [[nodiscard]] std::vector<int> kinds() const {
        std::vector<int> all;
        for (const auto& row : papers_.rows()) {
            all.push_back(static_cast<int>(row.kind));
        }
        return all;
    }

    support::TestPlatform platform_{support::germanLocale()};
    FormWithPapers owner_{platform_};
    rules::PapersGroup& papers_ = owner_.papers;
};
