#include "rules/RuleObjects.h"

#include "client/CQVXAdminClass.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/NewPricePlanDlg.h"
#include "rules/PageLimitDlg.h"
#include "rules/ShortIdDlg.h"

#include <optional>
#include <utility>
#include <vector>

namespace rules {
namespace {

using protocol::RuleEntryRecord;

std::string textOf(const std::string& id) {
    return id;
}

std::string textOf(const wire::Uuid& id) {
    return wire::toText(id);
}

// Objects with what their list tells of them.
template <class Listed>
class RecordObjects : public RuleObjects {
public:
    [[nodiscard]] std::size_t size() const override { return records_.size(); }
    [[nodiscard]] const wire::WideString& name(std::size_t row) const override { return records_[row].name; }
    [[nodiscard]] std::string id(std::size_t row) const override { return textOf(records_[row].id); }
    bool read() override {
        records_.clear();
        client::CQVXAdminClass client;
        return list(client);
    }

protected:
    using RuleObjects::RuleObjects;
    virtual bool list(client::CQVXAdminClass& client) = 0;

    std::vector<Listed> records_;
};

// Objects that a dialog makes and edits.
template <class Dialog, class Listed = typename Dialog::Record>
class EditableObjects : public RecordObjects<Listed> {
public:
    using Record = typename Dialog::Record;

    bool make(forms::Form& form, const RuleEntryRecord& entry) override {
        Dialog dialog(form.platform());
        return run(form, dialog, entry);
    }
    void edit(forms::Form& form, std::size_t row, const RuleEntryRecord& entry) override {
        if (auto record = recordAt(row)) {
            Dialog dialog(form.platform(), std::move(record));
            run(form, dialog, entry);
        }
    }

protected:
    using RecordObjects<Listed>::RecordObjects;
    // None when it can't be read.
    [[nodiscard]] virtual std::optional<Record> recordAt(std::size_t row) const = 0;
    // Runs when the record is written, while the dialog is still open.
    virtual void written(const Record& record, const RuleEntryRecord& /*entry*/) { goBackTo(record); }
    // False when the person has cancelled.
    virtual bool run(forms::Form& form, Dialog& dialog, const RuleEntryRecord& entry) {
        dialog.onWritten = [&](const Record& record) { written(record, entry); };
        return form.runModal(dialog) == forms::idOk;
    }
    void goBackTo(const Record& record) {
        this->read();
        this->saved.become(record, this->records_);
    }
};

// The rule groups that an entry can apply as a whole.
class RuleGroupObjects final : public RecordObjects<protocol::RuleGroupRecord> {
public:
    RuleGroupObjects() : RecordObjects({u"Rule group", u"Rule group should not be blank!", {}}) {}

private:
    bool list(client::CQVXAdminClass& client) override { return client.listRuleGroups(records_); }
};

// The price plans that an entry can apply.
class PricePlanObjects final : public EditableObjects<NewPricePlanDlg> {
public:
    PricePlanObjects()
        : EditableObjects({u"Plans", u"Plan field should not be blank!",
                           u"Are you sure you want to delete this Price Plan rule?"}) {}

    void remove(std::size_t row) override { client::CQVXAdminClass().deletePricePlan(records_[row].id); }

private:
    bool list(client::CQVXAdminClass& client) override { return client.listPricePlans(records_); }
    [[nodiscard]] std::optional<Record> recordAt(std::size_t row) const override { return records_[row]; }
    void written(const Record& plan, const RuleEntryRecord& entry) override {
        pointAt(plan, entry);
        goBackTo(plan);
    }
};

// The rules about short ids that an entry can apply.
class ShortIdObjects final : public EditableObjects<ShortIdDlg> {
public:
    ShortIdObjects()
        : EditableObjects({u"Short Ids", u"Short id field should not be blank!",
                           u"Are you sure you want to delete this Short Id rule?"}) {}

    void remove(std::size_t row) override { client::CQVXAdminClass().deleteShortId(records_[row].id); }

private:
    bool list(client::CQVXAdminClass& client) override { return client.listShortIds(records_); }
    [[nodiscard]] std::optional<Record> recordAt(std::size_t row) const override { return records_[row]; }
    // Unlike the others, the list is read again only after the dialog has closed.
    bool run(forms::Form& form, ShortIdDlg& dialog, const RuleEntryRecord& /*entry*/) override {
        if (form.runModal(dialog) != forms::idOk) {
            return false;
        }
        goBackTo(dialog.record());
        return true;
    }
};

// The page limits that an entry can apply. The server lists only their ids and names. Unlike with a price plan, writing
// one leaves the entry's target as it is; this must stay.
class PageLimitObjects final : public EditableObjects<PageLimitDlg, protocol::PageLimitName> {
public:
    PageLimitObjects()
        : EditableObjects({u"Limits", u"Limit field should not be blank!",
                           u"Are you sure you want to delete this Page Limit rule?"}) {}

    // Reads the limit first, so that this ends here if it no longer exists; this must stay.
    void remove(std::size_t row) override {
        if (const auto limit = recordAt(row)) {
            client::CQVXAdminClass().deletePageLimit(limit->id);
        }
    }

private:
    bool list(client::CQVXAdminClass& client) override {
        std::vector<std::string> ids;
        std::vector<wire::WideString> names;
        const bool listed = client.listPageLimits(ids, names);
        for (std::size_t row = 0; row < ids.size(); ++row) {
            records_.push_back({std::move(ids[row]), std::move(names[row])});
        }
        return listed;
    }
    // Throws what getPageLimit throws when the limit no longer exists.
    [[nodiscard]] std::optional<Record> recordAt(std::size_t row) const override {
        return client::CQVXAdminClass().getPageLimit(records_[row].id);
    }
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
