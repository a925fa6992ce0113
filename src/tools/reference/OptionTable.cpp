#include "tools/reference/OptionTable.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <string_view>

namespace tarn {

namespace {

std::vector<std::string> SplitAt(const std::string& text, const std::string& separator) {
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (std::size_t at = text.find(separator); at != std::string::npos;
         at = text.find(separator, from)) {
        parts.push_back(text.substr(from, at - from));
        from = at + separator.size();
    }
    parts.push_back(text.substr(from));
    return parts;
}

std::string InOneLine(std::string text) {
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

/// What CLI11 adds to the name of a value: what the checks of the option say of themselves.
std::string ChecksOf(CLI::Option& option) {
    std::string checks;
    try {
        for (int i = 0;; ++i) {
            const std::string check = option.get_validator(i)->get_description();
            checks += check.empty() ? "" : ":" + check;
        }
    } catch (const CLI::OptionNotFound&) { // behind the last one
    }
    return checks;
}

/// The name of a value alone.
std::string ValueOf(CLI::Option& option) {
    if (option.get_type_size() == 0) {
        return {};
    }
    const std::string checks = ChecksOf(option);
    std::string name = option.get_type_name();
    if (!checks.empty() && name.ends_with(checks)) {
        name.erase(name.size() - checks.size());
    }
    return name;
}

std::vector<std::string> NamesOf(const std::set<CLI::Option*>& options) {
    std::vector<std::string> names;
    std::transform(options.begin(), options.end(), std::back_inserter(names),
                   [](const CLI::Option* each) { return each->get_name(); });
    std::sort(names.begin(), names.end());
    return names;
}

OptionRow RowOf(CLI::Option& option) {
    OptionRow row;
    row.IsArgument = option.get_positional();
    row.Name = row.IsArgument ? option.get_name(true) : "--" + option.get_lnames().front();
    row.Short = option.get_snames().empty() ? "" : "-" + option.get_snames().front();
    row.Value = row.IsArgument ? "" : ValueOf(option);
    row.Text = InOneLine(option.get_description());
    row.Default = row.Value.empty() ? "" : option.get_default_str();
    row.IsRequired = option.get_required();
    row.IsRepeated =
        !row.Value.empty() && option.get_multi_option_policy() == CLI::MultiOptionPolicy::TakeAll;
    row.Needs = NamesOf(option.get_needs());
    row.Excludes = NamesOf(option.get_excludes());
    return row;
}

/// The rows of options first, as they were described, then those of arguments.
std::vector<OptionRow> RowsOf(CLI::App& app) {
    std::vector<OptionRow> rows;
    for (CLI::Option* option : app.get_options()) {
        rows.push_back(RowOf(*option));
    }
    std::stable_partition(rows.begin(), rows.end(),
                          [](const OptionRow& row) { return !row.IsArgument; });
    return rows;
}

void TakeFooter(const std::string& footer, ProgramTable& table) {
    constexpr std::string_view ExitStatus = "Exit status: ";
    constexpr std::string_view Example = "Example:\n";
    for (const std::string& paragraph : SplitAt(footer, "\n\n")) {
        if (paragraph.starts_with(ExitStatus)) {
            table.ExitStatus = InOneLine(paragraph.substr(ExitStatus.size()));
        } else if (paragraph.starts_with(Example)) {
            for (const std::string& line : SplitAt(paragraph.substr(Example.size()), "\n")) {
                table.Examples.push_back(line.substr(line.find_first_not_of(' ')));
            }
        } else if (!paragraph.empty()) {
            table.Notes.push_back(InOneLine(paragraph));
        }
    }
}

bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), text) != words.end();
}

} // namespace

ProgramTable TableOf(CLI::App& app) {
    ProgramTable table;
    table.Name = app.get_name();
    table.Description = SplitAt(app.get_description(), "\n");
    table.Summary = table.Description.front();
    table.Description.erase(table.Description.begin());
    table.Rows = RowsOf(app);
    for (CLI::App* command :
         app.get_subcommands([](CLI::App* each) { return !each->get_name().empty(); })) {
        CommandTable row{command->get_name(), InOneLine(command->get_description()),
                         RowsOf(*command)};
        std::erase_if(row.Rows, [](const OptionRow& each) { return each.Name == "--help"; });
        table.Commands.push_back(std::move(row));
    }
    TakeFooter(app.get_footer(), table);
    return table;
}

ValueKind KindOf(const OptionRow& row) {
    const std::string& value = row.IsArgument ? row.Name : row.Value;
    if (value.empty()) {
        return ValueKind::None;
    }
    if (!ChoicesOf(row).empty()) {
        return ValueKind::Choice;
    }
    if (value.find("FILE") != std::string::npos || IsOneOf(value, {"NEW", "TARGET", "BACKUP"})) {
        return ValueKind::File;
    }
    return IsOneOf(value, {"DIR", "FOLDER"}) ? ValueKind::Folder : ValueKind::Other;
}

std::vector<std::string> ChoicesOf(const OptionRow& row) {
    const auto isPlain = [](char each) { return each == '|' || (each >= 'a' && each <= 'z'); };
    if (row.Value.find('|') == std::string::npos ||
        !std::all_of(row.Value.begin(), row.Value.end(), isPlain)) {
        return {};
    }
    return SplitAt(row.Value, "|");
}

std::string WrittenForm(const OptionRow& row) {
    const std::string name = row.Short.empty() ? row.Name : row.Short + ", " + row.Name;
    return row.Value.empty() ? name : name + " " + row.Value;
}

std::vector<std::string> ConditionsOf(const OptionRow& row) {
    std::vector<std::string> conditions;
    const auto addAll = [&](const char* word, const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            conditions.push_back(word + name);
        }
    };
    if (row.IsRequired) {
        conditions.emplace_back("required");
    }
    if (!row.Default.empty()) {
        conditions.push_back("default " + row.Default);
    }
    addAll("with ", row.Needs);
    addAll("not with ", row.Excludes);
    return conditions;
}

std::string ShortText(const std::string& text) {
    std::size_t end = text.size();
    for (const char* detail : {" (", "; ", ". ", ", for ", ", to the "}) {
        end = std::min(end, text.find(detail));
    }
    return text.substr(0, end);
}

} // namespace tarn
