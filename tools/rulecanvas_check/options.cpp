#include "options.h"

namespace rulecanvas::check {
namespace {

std::string WhyUseless(const Options& options, bool hasOption) {
    if (options.help) {
        return std::string();
    }
    if (hasOption && !options.type) {
        return "--option belongs to a single configuration: give --type";
    }
    return options.files.empty() ? "no file given" : std::string();
}

} // namespace

const char* const Usage = "usage: rulecanvas-check [--json] FILE...\n"
                          "       rulecanvas-check [--json] --type TYPE [--option TEXT] FILE...\n"
                          "\n"
                          "Says for each rule of rules files, or for files with a single configuration of a shape,\n"
                          "whether the library takes it and, if not, why.\n"
                          "\n"
                          "  --type TYPE    the files are configurations of this shape type, for instance Polygon\n"
                          "  --option TEXT  mode word or style of that shape\n"
                          "  --json         one JSON object instead of lines\n"
                          "  --help         this text\n"
                          "\n"
                          "Exit code: 0 all are taken, 1 something is refused, 2 wrong usage or a file that cannot be "
                          "read.\n";

std::optional<Options> ReadOptions(const std::vector<std::string>& arguments, std::string& complaint) {
    Options options;
    bool hasOption = false;
    bool onlyFiles = false;
    for (size_t index = 0; index < arguments.size(); ++index) {
        const std::string& argument = arguments[index];
        const bool takesValue = argument == "--type" || argument == "--option";
        if (onlyFiles || argument.empty() || argument[0] != '-') {
            options.files.push_back(argument);
        } else if (takesValue && index + 1 < arguments.size()) {
            const std::string& value = arguments[++index];
            if (argument == "--type") {
                options.type = value;
            } else {
                options.option = value;
                hasOption = true;
            }
        } else if (argument == "--json") {
            options.json = true;
        } else if (argument == "--help" || argument == "-h") {
            options.help = true;
        } else if (argument == "--") {
            onlyFiles = true;
        } else {
            complaint = takesValue ? argument + " needs a value" : "unknown option " + argument;
            return std::nullopt;
        }
    }
    complaint = WhyUseless(options, hasOption);
    return complaint.empty() ? std::make_optional(options) : std::nullopt;
}

} // namespace rulecanvas::check
