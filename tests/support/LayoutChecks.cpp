#include "tests/support/LayoutChecks.h"

#include "forms/ControlShape.h"
#include "forms/FormLabels.h"
#include "forms/FormWalk.h"
#include "forms/Page.h"
#include "forms/Tabs.h"
#include "wire/CaseFold.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <vector>

namespace support {
using namespace forms;

namespace {

// Counts how often a plan places each control and each label.
class PlacedCounter {
public:
    void operator()(const Rows& rows) {
        for (const auto& column : rows.columns) {
            for (const Row& row : column) {
                count(captions, row.captionOf);
                count(controls, row.choice);
                (*this)(row.line);
            }
        }
    }
    void operator()(const Line& line) {
        for (const LineItem& item : line) {
            count(controls, item.control);
            count(captions, item.caption ? item.control : nullptr);
        }
    }
    void operator()(const Block& block) {
        count(captions, block.caption ? block.parts.front().control : nullptr);
        for (const BlockPart& part : block.parts) {
            count(controls, part.control);
            for (const Column& inside : part.insides) {
                add(inside);
            }
        }
        (*this)(block.below);
    }
    void operator()(const Abreast& abreast) {
        for (const Column& column : abreast.columns) {
            add(column);
        }
    }
    void operator()(const Sheets& sheets) {
        for (const Sheet& sheet : sheets.sheets) {
            add(sheet.content);
        }
    }
    void add(const Column& column) {
        for (const auto& section : column.sections) {
            std::visit(*this, section);
        }
    }

    std::map<const Control*, int> controls;
    std::map<const Control*, int> captions;

private:
    static void count(std::map<const Control*, int>& counts, const Control* control) {
        if (control != nullptr) {
            ++counts[control];
        }
    }
};

// A label of a form: that of a page, or of a control that takes a key.
struct Keyed {
    KeyedLabel label;
    bool isStandard = false;

    [[nodiscard]] std::set<char16_t> letters() const {
        std::set<char16_t> all;
        for (const char16_t unit : label.text) {
            const bool isLetter = (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
            if (isLetter || (unit >= u'0' && unit <= u'9')) {
                all.insert(wire::foldCase(unit));
            }
        }
        return all;
    }
    [[nodiscard]] bool hasKey(char16_t key) const {
        return label.key && wire::foldCase(label.text.at(*label.key)) == key;
    }
};

std::vector<Keyed> keyedLabelsOf(Form& form) {
    const FormLabels labels(form);
    std::vector<Keyed> all;
    for (Control* control : controlsOf(form)) {
        if (const auto* const tabs = dynamic_cast<const Tabs*>(control)) {
            std::ranges::transform(tabs->pages(), std::back_inserter(all),
                                   [&](const Page* page) { return Keyed{.label = labels.of(*page)}; });
        } else if (shapeOf(*control).takesKey) {
            const bool isStandard = control == &form.okButton() || control == &form.cancelButton();
            all.push_back({.label = labels.of(*control), .isStandard = isStandard});
        }
    }
    return all;
}

// Whether no exchange of keys could free one for it: all its letters belong to labels for which the same is true, or to
// the standard buttons, which keep theirs.
bool hasNoChance(const Keyed& without, const std::vector<Keyed>& all) {
    std::vector<const Keyed*> seen{&without};
    for (std::size_t i = 0; i < seen.size(); ++i) {
        for (const char16_t key : seen[i]->letters()) {
            const auto owner = std::ranges::find_if(all, [key](const Keyed& each) { return each.hasKey(key); });
            if (owner == all.end()) {
                return false;
            }
            if (!owner->isStandard && std::ranges::find(seen, &*owner) == seen.end()) {
                seen.push_back(&*owner);
            }
        }
    }
    return true;
}

} // namespace

void expectPlacedOnce(Form& form, Arrangement arrangement) {
    const LayoutPlan plan = planOf(form, arrangement);
    PlacedCounter placed;
    placed.add(plan.body);
    placed(plan.foot);
    for (Control* control : controlsOf(form)) {
        SCOPED_TRACE("control \"" + wire::toUtf8(fullName(*control)) + "\"");
        EXPECT_EQ(placed.controls[control], 1);
        EXPECT_EQ(placed.captions[control], shapeOf(*control).hasCaption ? 1 : 0);
    }
    EXPECT_EQ(placed.controls.size(), controlsOf(form).size());
}

void expectAccessKeys(Form& form) {
    const auto all = keyedLabelsOf(form);
    std::set<char16_t> keys;
    for (const Keyed& each : all) {
        SCOPED_TRACE("label \"" + wire::toUtf8(each.label.text) + "\"");
        if (each.label.key) {
            EXPECT_TRUE(keys.insert(wire::foldCase(each.label.text.at(*each.label.key))).second) << "its key is taken";
        } else {
            EXPECT_TRUE(hasNoChance(each, all)) << "it could have a key";
        }
    }
}

void expectSteadyAccessKeys(Form& form) {
    const auto keys = [&form] {
        std::vector<wire::WideString> all;
        std::ranges::transform(keyedLabelsOf(form), std::back_inserter(all),
                               [](const Keyed& each) { return each.label.marked(); });
        return all;
    };
    const auto before = keys();
    for (Control* control : controlsOf(form)) {
        SCOPED_TRACE("control \"" + wire::toUtf8(fullName(*control)) + "\"");
        const bool visible = control->visible();
        const bool enabled = control->enabled();
        control->setVisible(!visible);
        EXPECT_EQ(keys(), before);
        control->setEnabled(!enabled);
        EXPECT_EQ(keys(), before);
        control->setVisible(visible);
        control->setEnabled(enabled);
    }
}

} // namespace support
