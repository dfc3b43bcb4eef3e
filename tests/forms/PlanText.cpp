#include "tests/forms/PlanText.h"

#include "forms/Control.h"
#include "forms/FormWalk.h"
#include "forms/Label.h"
#include "forms/Tabs.h"

namespace forms {
namespace {

std::string nameOf(const Control& control) {
    if (const auto* const label = dynamic_cast<const Label*>(&control); label != nullptr && label->label().empty()) {
        return wire::toUtf8(label->text());
    }
    if (dynamic_cast<const Tabs*>(&control) != nullptr) {
        return "tabs";
    }
    const std::string name = wire::toUtf8(readableLabel(control.label()));
    return name.empty() ? "_" : name;
}

std::string captionOf(const Control& control) {
    return "[" + nameOf(control) + "]";
}

// Writes the sections of a column.
class PlanWriter {
public:
    explicit PlanWriter(int indent) : indent_(indent) {}

    void operator()(const Rows& rows) {
        for (const auto& column : rows.columns) {
            begin(0) += (&column == rows.columns.data() ? "rows" : "and") + stretched(rows.stretch) + "\n";
            for (const Row& row : column) {
                begin(1) += front(row) + planText(row.line) + "\n";
            }
        }
    }
    void operator()(const Line& line) { begin(0) += "line " + planText(line) + "\n"; }
    void operator()(const Block& block) {
        const Control& first = *block.parts.front().control;
        begin(0) += "block" + (block.caption ? " " + captionOf(first) : "") + stretched(block.stretch) + "\n";
        for (const BlockPart& part : block.parts) {
            begin(1) += nameOf(*part.control) + "\n";
            for (const Column& column : part.insides) {
                begin(2) += "on it" + std::string(column.grows ? ", grows" : "") + "\n";
                text += planText(column, indent_ + 3);
            }
        }
        if (!block.below.empty()) {
            begin(1) += "below " + planText(block.below) + "\n";
        }
    }

    void operator()(const Abreast& abreast) {
        for (const Column& column : abreast.columns) {
            begin(0) += (&column == abreast.columns.data() ? "abreast" : "and") + stretched(abreast.stretch) + "\n";
            text += planText(column, indent_ + 1);
        }
    }
    void operator()(const Sheets& sheets) {
        for (const Sheet& sheet : sheets.sheets) {
            begin(0) += "sheet";
            for (const Control* control : sheet.titledBy) {
                text += " " + captionOf(*control);
            }
            text += stretched(sheets.stretch) + "\n" + planText(sheet.content, indent_ + 1);
        }
    }

    std::string text;

private:
    std::string& begin(int deeper) { return text.append(static_cast<std::size_t>(indent_ + deeper) * 2, ' '); }
    static std::string stretched(int stretch) { return stretch > 0 ? " *" + std::to_string(stretch) : ""; }
    static std::string front(const Row& row) {
        const std::string before = row.captionOf != nullptr ? captionOf(*row.captionOf) + " "
                                   : row.choice != nullptr  ? nameOf(*row.choice) + " "
                                                            : "";
        return row.spans ? before : before + "| ";
    }

    int indent_;
};

} // namespace

std::string planText(const Column& column, int indent) {
    PlanWriter writer(indent);
    for (const auto& section : column.sections) {
        std::visit(writer, section);
    }
    return std::move(writer.text);
}

std::string planText(const Line& line) {
    std::string text;
    for (const LineItem& item : line) {
        text += text.empty() ? "" : " ";
        text += item.caption ? captionOf(*item.control) + " " : "";
        text += item.remark ? "level " : "";
        text += item.widens ? "<" + nameOf(*item.control) + ">" : nameOf(*item.control);
    }
    return text;
}

} // namespace forms
