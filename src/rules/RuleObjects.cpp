#include "rules/RuleObjects.h"

#include "client/CQVXAdminClass.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/NewPricePlanDlg.h"
#include "rules/PageLimitDlg.h"
#include "rules/ShortIdDlg.h"

namespace rules {
namespace {

using protocol::RuleEntryRecord;

std::string textOf(const std::string& id) {
    return id;
}

std::string textOf(const wire::Uuid& id) {
    return wire::toText(id);
}

// Objects whose list contains complete records.
template <class Record>
class RecordObjects : public RuleObjects {
public:
    [[nodiscard]] std::size_t size() const override { return records_.size(); }
    [[nodiscard]] const wire::WideString& name(std::size_t row) const override { return records_[row].name; }
    [[nodiscard]] std::string id(std::size_t row) const override { return textOf(records_[row].id); }

protected:
    using RuleObjects::RuleObjects;
    std::vector<Record> records_;
};

// The rule groups that an entry can apply as a whole.
class RuleGroupObjects final : public RecordObjects<protocol::RuleGroupRecord> {
public:
    RuleGroupObjects() : RecordObjects({u"Rule group", u"Rule group should not be blank!", {}}) {}

    bool read() override {
        records_.clear();
        return client::CQVXAdminClass().listRuleGroups(records_);
    }
};

// The price plans that an entry can apply.
class PricePlanObjects final : public RecordObjects<protocol::PricePlanRecord> {
public:
    PricePlanObjects()
        : RecordObjects({u"Plans", u"Plan field should not be blank!",
                         u"Are you sure you want to delete this Price Plan rule?"}) {}

    bool read() override {
        records_.clear();
        return client::CQVXAdminClass().listPricePlans(records_);
    }
    bool make(forms::Form& form, const RuleEntryRecord& entry) override {
        NewPricePlanDlg dialog(form.platform(), opener(entry));
        return form.runModal(dialog) == forms::idOk;
    }
    void edit(forms::Form& form, std::size_t row, const RuleEntryRecord& entry) override {
        NewPricePlanDlg dialog(form.platform(), opener(entry), records_[row]);
        form.runModal(dialog);
    }
    void remove(std::size_t row) override { client::CQVXAdminClass().deletePricePlan(records_[row].id); }

private:
    NewPricePlanDlg::Opener opener(const RuleEntryRecord& entry) {
        return {.plans = records_, .saved = saved, .entry = entry};
    }
};

// The rules about short ids that an entry can apply.
class ShortIdObjects final : public RecordObjects<protocol::ShortIdRecord> {
public:
    ShortIdObjects()
        : RecordObjects({u"Short Ids", u"Short id field should not be blank!",
                         u"Are you sure you want to delete this Short Id rule?"}) {}

    bool read() override {
        records_.clear();
        return client::CQVXAdminClass().listShortIds(records_);
    }
    bool make(forms::Form& form, const RuleEntryRecord& /*entry*/) override {
        ShortIdDlg dialog(form.platform());
        return run(form, dialog);
    }
    void edit(forms::Form& form, std::size_t row, const RuleEntryRecord& /*entry*/) override {
        ShortIdDlg dialog(form.platform(), records_[row]);
        run(form, dialog);
    }
    void remove(std::size_t row) override { client::CQVXAdminClass().deleteShortId(records_[row].id); }

private:
    // The dialog does not know the row: it is found once the list is read again.
    bool run(forms::Form& form, ShortIdDlg& dialog) {
        if (form.runModal(dialog) != forms::idOk) {
            return false;
        }
        read();
        const auto& shortId = dialog.shortId();
        saved.become(shortId.name, records_, shortId.id, &protocol::ShortIdRecord::id);
        return true;
    }
};

// The page limits that an entry can apply. The server lists only their ids and names.
class PageLimitObjects final : public RuleObjects {
public:
    PageLimitObjects()
        : RuleObjects({u"Limits", u"Limit field should not be blank!",
                       u"Are you sure you want to delete this Page Limit rule?"}) {}

    [[nodiscard]] std::size_t size() const override { return ids_.size(); }
    [[nodiscard]] const wire::WideString& name(std::size_t row) const override { return names_[row]; }
    [[nodiscard]] std::string id(std::size_t row) const override { return ids_[row]; }

    bool read() override { return client::CQVXAdminClass().listPageLimits(ids_, names_); }
    bool make(forms::Form& form, const RuleEntryRecord& entry) override {
        PageLimitDlg dialog(form.platform(), opener(entry));
        return form.runModal(dialog) == forms::idOk;
    }
    // Throws what getPageLimit throws when the limit no longer exists.
    void edit(forms::Form& form, std::size_t row, const RuleEntryRecord& entry) override {
        if (const auto limit = client::CQVXAdminClass().getPageLimit(ids_[row])) {
            PageLimitDlg dialog(form.platform(), opener(entry), *limit);
            form.runModal(dialog);
        }
    }
    // Reads the limit first, so that this ends here if it no longer exists; this must stay.
    void remove(std::size_t row) override {
        client::CQVXAdminClass client;
        if (const auto limit = client.getPageLimit(ids_[row])) {
            client.deletePageLimit(limit->id);
        }
    }

private:
    PageLimitDlg::Opener opener(const RuleEntryRecord& entry) {
        return {.ids = ids_, .names = names_, .saved = saved, .entry = entry};
    }

    std::vector<std::string> ids_;
    std::vector<wire::WideString> names_;
};

} // namespace

std::unique_ptr<RuleObjects> RuleObjects::ofType(std::uint8_t type) {
    switch (type) {
    case protocol::ruleEntryType::ruleGroup:
        return std::make_unique<RuleGroupObjects>();
    case protocol::ruleEntryType::pageLimit:
        return std::make_unique<PageLimitObjects>();
    case protocol::ruleEntryType::pricePlan:
        return std::make_unique<PricePlanObjects>();
    case protocol::ruleEntryType::shortId:
        return std::make_unique<ShortIdObjects>();
    default:
        return nullptr;
    }
}

} // namespace rules
