// rulecanvas-check: says whether the library takes the rules of a file and, if not, why.
#include "check_rules.h"
#include "json_file.h"
#include "options.h"
#include "report.h"
#include "rules_file.h"

#include <cstdio>

namespace rulecanvas::check {
namespace {

enum ExitCode { AllTaken = 0, SomeRefused = 1, WrongUsage = 2 };

RuleList Check(const std::string& text, const Options& options) {
    RuleList list = options.type ? ReadConfiguration(text, *options.type, options.option) : ReadRulesFile(text);
    CheckRules(list);
    return list;
}

int Run(const std::vector<std::string>& arguments) {
    std::string complaint;
    const std::optional<Options> options = ReadOptions(arguments, complaint);
    if (!options) {
        std::fprintf(stderr, "rulecanvas-check: %s\n%s", complaint.c_str(), Usage);
        return WrongUsage;
    }
    if (options->help) {
        std::fputs(Usage, stdout);
        return AllTaken;
    }
    std::vector<CheckedFile> files;
    bool taken = true;
    for (const std::string& path : options->files) {
        std::string text;
        if (!ReadFile(path, text)) {
            std::fprintf(stderr, "rulecanvas-check: cannot read %s\n", path.c_str());
            return WrongUsage;
        }
        files.push_back({path, Check(text, *options)});
        taken = taken && files.back().list.IsTaken();
    }
    std::fputs((options->json ? ReportAsJson(files) : ReportAsLines(files)).c_str(), stdout);
    return taken ? AllTaken : SomeRefused;
}

} // namespace
} // namespace rulecanvas::check

int main(int argc, char** argv) {
    return rulecanvas::check::Run(std::vector<std::string>(argv + 1, argv + argc));
}
