#include "hosts/ctl/CommandLine.h"

#include "hosts/ctl/Failure.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <map>
#include <sstream>

namespace ctl {
namespace {

constexpr auto generalHelp = R"(
PATH is the display names from "Printers", "Queues", ... down, joined by "/"; a slash in a name is "\/".
The password comes from --password-file, else from the environment variable VANTREL_PASSWORD, else it is asked for.
Server, port, user and domain that are not given are those of the last login.

Ends with 0 done, 1 refused or failed, 2 usage, 3 no connection or no login.)";

// Builds the options of the command line and takes their values.
class Parser {
public:
    explicit Parser(Format format) {
        options_.format = format;
        addAll();
    }

    std::variant<Options, Information> parse(int count, const char* const* arguments) {
        try {
            app_.parse(count, arguments);
        } catch (const CLI::Success& success) {
            std::ostringstream text;
            app_.exit(success, text, text);
            return Information{text.str()};
        } catch (const CLI::ParseError& error) {
            const auto commands = app_.get_subcommands();
            const auto unknown = commands.empty() ? app_.remaining() : std::vector<std::string>();
            throw Failure(ExitStatus::usage,
                          (unknown.empty() ? oneLine(error.what()) : "There is no command \"" + unknown.front() + '"') +
                              " (see vantrelctl " + (commands.empty() ? "" : commands.front()->get_name() + ' ') +
                              "--help)");
        }
        options_.steps = stepsInOrder();
        return options_;
    }

private:
    static std::string oneLine(std::string text) {
        text.erase(std::find_if_not(text.rbegin(), text.rend(), [](char c) { return c == '\n'; }).base(), text.end());
        std::ranges::replace(text, '\n', ' ');
        return text;
    }

    void addAll() {
        app_.description("Administers the printers of a Vantrel print server from a shell or a script.");
        app_.footer(generalHelp);
        app_.set_version_flag("--version", "vantrelctl " VANTREL_VERSION);
        app_.require_subcommand(1);
        app_.fallthrough();
        addGlobal();
        addTreeCommands();
        addChanges();
        addRaw();
        addScript();
    }

    void addGlobal() {
        const auto connection = "Connection";
        const auto add = [&](const std::string& name, auto& value, const char* takes, const std::string& does) {
            return app_.add_option(name, value, does)->type_name(takes)->group(connection);
        };
        add("--server", options_.server, "HOST", "Name or address of the server");
        add("--port", options_.port, "PORT", "Port of the server")->check(CLI::Range(1, 65535).description(""));
        add("--user", options_.user, "NAME", "Name of the account");
        add("--domain", options_.domain, "NAME", "Domain of the account");
        add("--password-file", options_.passwordFile, "FILE", "File whose first line is the password");
        add("--settings", options_.settings, "FILE", "File of the settings, instead of your own");
        app_.add_option_function<std::string>(
                "--format", [this](const std::string& name) { options_.format = formatCalled(name); },
                "How the output is written")
            ->type_name("table|json|csv");
        app_.add_option("--activity", options_.activity,
                        "File to which each command sent to the server is appended as JSON")
            ->type_name("FILE");
    }

    static Format formatCalled(const std::string& name) {
        const std::map<std::string, Format> formats{
            {"table", Format::table}, {"json", Format::json}, {"csv", Format::csv}};
        const auto found = formats.find(CLI::detail::to_lower(name));
        if (found == formats.end()) {
            throw CLI::ValidationError("--format takes table, json or csv, not \"" + name + '"');
        }
        return found->second;
    }

    CLI::App& add(CommandKind kind, const std::string& name, const std::string& does, const std::string& example) {
        auto* const command = app_.add_subcommand(name, does);
        command->footer("Example:\n  vantrelctl " + example);
        command->callback([this, kind] { options_.command = kind; });
        return *command;
    }

    void addPath(CLI::App& command, bool required) {
        command.add_option("PATH", options_.path, "Names from a branch such as \"Printers\" down")
            ->required(required)
            ->type_name("");
    }

    void addRow(CLI::App& command) {
        command.add_option("--row", options_.row, "A row of the node's list instead of the node")->type_name("NAME");
    }

    // Names of columns may be cut short.
    void addListOptions(CLI::App& command) {
        const auto list = "List";
        command.add_option("--columns", options_.columns, "Only these columns")->type_name("A,B")->group(list);
        command.add_option("--sort", options_.sort, "By these columns, - for descending")
            ->type_name("A,-B")
            ->group(list);
        command
            .add_option("--filter", options_.filter,
                        "Only rows that pass, such as \"model:laser jobs:>0\"; see docs/filter.md")
            ->type_name("TEXT")
            ->group(list);
    }

    void addTreeCommands() {
        add(CommandKind::login, "login", "Tries the login and prints the result",
            "--server print.example.org --port 5005 --user admin login");
        auto& tree =
            add(CommandKind::tree, "tree", "Prints the tree, or the part below a path", "tree Printers --depth 2");
        addPath(tree, false);
        tree.add_option("--depth", options_.depth, "Number of levels; all by default")->type_name("LEVELS");
        addListOptions(tree);
        auto& show = add(CommandKind::show, "show", "Prints the list of a node", "show Printers/Berlin --format csv");
        addPath(show, true);
        addListOptions(show);
        auto& menu = add(CommandKind::menu, "menu", "Prints the menu of a node, or of a row of its list",
                         "menu Printers/Berlin --row \"Hall 1\"");
        addPath(menu, true);
        addRow(menu);
    }

    void addChanges() {
        auto& run = add(CommandKind::run, "run", "Chooses a menu entry, by its text or its id, and does the steps",
                        "run Printers \"Create region\" --set \"Region Name=North\" --press OK\n"
                        "  vantrelctl run Printers/North \"Delete region\" --answer ok");
        addPath(run, true);
        addEntry(run);
        addStep(run, Step::Kind::answer, "--answer", "ok|cancel|yes|no", "Answers a message box");
        auto& form = add(CommandKind::form, "form", "Prints the dialog that a menu entry opens, and cancels it",
                         "form Printers \"Create region\" --format json");
        addPath(form, true);
        addEntry(form);
        auto& rename = add(CommandKind::rename, "rename", "Renames a node", "rename Printers/North South");
        addPath(rename, true);
        rename.add_option("NEW", options_.newName, "The new name")->required()->type_name("");
        auto& move = add(CommandKind::move, "move", "Moves a node below another one",
                         "move \"Printers/North/Hall 1\" Printers/South");
        addPath(move, true);
        move.add_option("TARGET", options_.target, "The path of the node to move it to")->required()->type_name("");
    }

    void addRaw() {
        auto& call = add(CommandKind::call, "call", "Sends one command of the protocol and prints the reply as JSON",
                         "call 6 str8: u32:7 u16:0");
        call.add_option("OPCODE", options_.opcode, "Number or name of the command; see \"vantrelctl commands\"")
            ->required()
            ->type_name("");
        call.add_option("KIND:VALUE", options_.fields,
                        "The fields, in order; kinds are u8 u16 u32 i32 i64 f32 bool str8 str16 uuid and none.\n"
                        "A nested record is its fields. An optional field is none if it is left out,\n"
                        "otherwise bool:1 and then its value. A list is u16:COUNT and then its elements.")
            ->type_name("");
        auto& commands =
            add(CommandKind::commands, "commands", "Prints the commands of the protocol", "commands --format json");
        commands.add_flag("--markdown", options_.asDocument, "With all fields, as chapters of a document");
    }

    void addScript() {
        auto& script = add(CommandKind::script, "script", "Runs many commands with a single login",
                           "script new-branch.txt --keep-going\n\n"
                           "One command per line, written as after \"vantrelctl\", with shell quoting, and \"#\"\n"
                           "for comments:\n"
                           "  run Printers \"Create region\" --set \"Region Name=North\" --press OK   # a new region\n"
                           "  show Printers");
        script.add_option("FILE", options_.script, "The commands; - for standard input")->required()->type_name("");
        script.add_flag("--keep-going", options_.keepGoing, "Continues after a failed command, and prints a summary");
    }

    // The entry of the node's or the row's menu, and what is done with the form that it opens.
    void addEntry(CLI::App& command) {
        command.add_option("ENTRY", options_.entry, "Text or id of the entry")->required()->type_name("");
        addRow(command);
        addStep(command, Step::Kind::set, "--set", "LABEL=VALUE",
                "Fills a box, ticks one with yes or no, or selects a row of a list;\nLABEL is \"Group: Label\" where "
                "several have it");
        addStep(command, Step::Kind::select, "--select", "LABEL=ROW", "Selects a row of a list");
        addStep(command, Step::Kind::press, "--press", "BUTTON",
                "Presses a button, or \"List: Entry\" of the menu on the selected row");
    }

    void addStep(CLI::App& command, Step::Kind kind, const std::string& name, const std::string& takes,
                 const std::string& does) {
        auto* const option = command.add_option(name, written_[kind], does);
        option->allow_extra_args(false)->type_name(takes)->group("Steps, done in the order given");
        stepOptions_[option] = kind;
    }

    // The parser keeps one list of steps for each option; only the order of parsing shows how they were interleaved.
    std::vector<Step> stepsInOrder() {
        std::vector<Step> steps;
        std::map<Step::Kind, std::size_t> taken;
        for (const CLI::Option* const option : app_.get_subcommands().front()->parse_order()) {
            if (const auto found = stepOptions_.find(option); found != stepOptions_.end()) {
                const auto kind = found->second;
                steps.push_back(parseStep(kind, written_.at(kind).at(taken[kind]++)));
            }
        }
        return steps;
    }

    CLI::App app_{"", "vantrelctl"};
    Options options_;
    std::map<Step::Kind, std::vector<std::string>> written_;
    std::map<const CLI::Option*, Step::Kind> stepOptions_;
};

} // namespace

std::variant<Options, Information> parseCommandLine(int count, const char* const* arguments, Format format) {
    return Parser(format).parse(count, arguments);
}

} // namespace ctl
