#include "hosts/ctl/FormWriter.h"

#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ControlVisitor.h"
#include "forms/DateTimePicker.h"
#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/Form.h"
#include "forms/FormWalk.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/MultiLineEdit.h"
#include "forms/Page.h"
#include "forms/PasswordBox.h"
#include "forms/RadioButton.h"
#include "forms/Tabs.h"
#include "forms/TreeView.h"
#include "hosts/ctl/DateTimeText.h"
#include "hosts/ctl/ReplyJson.h"
#include "hosts/ctl/TableWriter.h"

#include <nlohmann/json.hpp>

#include <array>
#include <vector>

namespace ctl {
namespace {

using Texts = std::vector<wire::WideString>;

Json jsonOfTexts(const Texts& texts) {
    Json json = Json::array();
    for (const auto& text : texts) {
        json.push_back(wire::toUtf8(text));
    }
    return json;
}

// What is known about one control.
class ControlReader final : public forms::ControlVisitor {
public:
    explicit ControlReader(forms::Control& control) : changeable(control.reachable()) { control.accept(*this); }

    void visit(forms::Button& /*button*/) override { kind = "button"; }
    void visit(forms::CheckBox& box) override { tell("check box", box.checked()); }
    void visit(forms::DateTimePicker& picker) override {
        tell("date and time", wire::toWide(formatDateTime(picker.options(), picker.value())));
    }
    void visit(forms::DropList& list) override {
        tell("drop-down list", list.selectedText());
        for (const auto& item : list.items()) {
            choices.push_back(item.text);
        }
    }
    void visit(forms::EditBox& box) override { tellText("box", box); }
    void visit(forms::Group& /*group*/) override {}
    void visit(forms::Label& label) override {
        tell("label", label.text());
        changeable = false;
    }
    void visit(forms::ListView& list) override {
        kind = "list";
        more = {{"columns", Json::array()}, {"rows", Json::array()}};
        for (const auto& column : list.columns()) {
            if (!column.hidden()) {
                more["columns"].push_back(wire::toUtf8(column.title));
            }
        }
        for (const auto& row : list.rows()) {
            const auto cells = cellsShown(list, row);
            choices.push_back(cells.empty() ? wire::WideString() : cells.front());
            more["rows"].push_back(jsonOfTexts(cells));
        }
        value = list.selection() ? choices.at(*list.selection()) : wire::WideString();
        json = wire::toUtf8(value);
    }
    void visit(forms::MultiLineEdit& box) override { tellText("box of lines", box); }
    void visit(forms::PasswordBox& box) override {
        kind = "password box";
        changeable = changeable && !box.options().readOnly;
    }
    void visit(forms::RadioButton& button) override { tell("radio button", button.chosen()); }
    void visit(forms::Tabs& tabs) override {
        kind = "pages";
        for (const auto* const page : tabs.pages()) {
            if (page->visible()) {
                choices.push_back(page->title());
            }
        }
        json = nullptr;
    }
    void visit(forms::TreeView& tree) override {
        tell("tree", tree.selection() ? tree.path(*tree.selection()) : wire::WideString());
        for (std::size_t item = 0; item < tree.items().size(); ++item) {
            choices.push_back(tree.path(item));
        }
    }

    std::string kind; // empty for what is no control of its own
    wire::WideString value;
    Json json; // the value
    Texts choices;
    bool changeable;
    Json more = Json::object();

private:
    void tell(const char* itsKind, bool checked) {
        kind = itsKind;
        value = checked ? u"yes" : u"no";
        json = checked;
    }
    void tell(const char* itsKind, wire::WideString text) {
        kind = itsKind;
        value = std::move(text);
        json = wire::toUtf8(value);
    }
    void tellText(const char* itsKind, const forms::TextControl& box) {
        tell(itsKind, box.text());
        changeable = changeable && !box.options().readOnly;
    }
    static Texts cellsShown(const forms::ListView& list, const forms::ListRow& row) {
        Texts cells;
        for (std::size_t column = 0; column < list.columns().size(); ++column) {
            if (!list.columns()[column].hidden()) {
                cells.push_back(column < row.cells.size() ? row.cells[column] : wire::WideString());
            }
        }
        return cells;
    }
};

wire::WideString joined(const Texts& texts) {
    wire::WideString line;
    for (const auto& text : texts) {
        line.append(line.empty() ? u"" : u", ").append(text);
    }
    return line;
}

} // namespace

void writeForm(std::ostream& out, forms::Form& form, Format format) {
    Json controls = Json::array();
    std::vector<std::array<wire::WideString, 5>> rows;
    for (forms::Control* const control : forms::controlsOf(form)) {
        if (!forms::isOffered(*control) || !forms::reveal(*control)) {
            continue;
        }
        const ControlReader read(*control);
        if (read.kind.empty()) {
            continue;
        }
        const auto label = forms::fullName(*control);
        Json json{{"kind", read.kind},
                  {"label", wire::toUtf8(label)},
                  {"value", read.json},
                  {"choices", jsonOfTexts(read.choices)},
                  {"changeable", read.changeable}};
        json.update(read.more);
        controls.push_back(std::move(json));
        rows.push_back(
            {wire::toWide(read.kind), label, read.value, read.changeable ? u"yes" : u"no", joined(read.choices)});
    }
    if (format == Format::json) {
        out << dump({{"title", wire::toUtf8(form.title())}, {"controls", std::move(controls)}}, 2) << '\n';
        return;
    }
    writeTable(out,
               {.columns = {u"Kind", u"Label", u"Value", u"Changeable", u"Choices"},
                .rowCount = rows.size(),
                .cell = [&](std::size_t row, std::size_t column) -> wire::WideStringView { return rows[row][column]; }},
               format);
}

} // namespace ctl
