// Compares what the library does with golden decks with what it must do.
//
//   golden_test --root=FOLDER --output=FOLDER [NAME...]
//   golden_test --root=FOLDER --output=FOLDER --update-golden=NAME
//
// A name is that of a trace below the root without its extension: `grid/crlf_01`, `parts/numbers_01.early_topology=1`. Without names all
// cases are run, and each deck and log must belong to one. Ends with 0 when all passed, 1 when not, 64 on wrong usage. The library prints
// its progress to standard output, so all that is told here goes to standard error.
//
// --update-golden writes a case's expected files anew. The expectation must have been thought out before: use it to save typing, never
// without reading the change line by line.
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "golden_run.h"

namespace {

using btz::golden::FindCases;
using btz::golden::FindOrphans;
using btz::golden::JudgeCase;
using btz::golden::Judgement;
using btz::golden::MakeCase;
using btz::golden::UpdateCase;
using btz::golden::Verdict;

struct Arguments {
  std::string root;
  std::string output;
  std::string updated;  ///< Empty: compare.
  std::vector<std::string> names;
};

bool TakeOption(std::string_view argument, std::string_view head, std::string* value) {
  if (!argument.starts_with(head)) {
    return false;
  }
  *value = argument.substr(head.size());
  return true;
}

bool ParseArguments(int count, char** values, Arguments* arguments) {
  for (int i = 1; i < count; ++i) {
    const std::string_view argument = values[i];
    if (TakeOption(argument, "--root=", &arguments->root) || TakeOption(argument, "--output=", &arguments->output) ||
        TakeOption(argument, "--update-golden=", &arguments->updated)) {
      continue;
    }
    if (argument.starts_with("-")) {
      return false;
    }
    arguments->names.emplace_back(argument);
  }
  const bool isOneJob = arguments->updated.empty() || arguments->names.empty();
  return !arguments->root.empty() && !arguments->output.empty() && isOneJob;
}

int Update(const Arguments& arguments) {
  const Judgement judgement = UpdateCase(MakeCase(arguments.root, arguments.updated), arguments.output);
  if (judgement.verdict != Verdict::Passed) {
    std::fprintf(stderr, "FAILED %s: %s", arguments.updated.c_str(), judgement.details.c_str());
    return 1;
  }
  std::fprintf(stderr, "%s is written anew: read what has changed\n", arguments.updated.c_str());
  return 0;
}

int Compare(const Arguments& arguments) {
  const bool isWhole = arguments.names.empty();
  const std::vector<std::string> names = isWhole ? FindCases(arguments.root) : arguments.names;
  std::size_t failures = 0;
  for (const std::string& name : names) {
    const Judgement judgement = JudgeCase(MakeCase(arguments.root, name), arguments.output);
    if (judgement.verdict != Verdict::Passed) {
      std::fprintf(stderr, "FAILED %s: %s", name.c_str(), judgement.details.c_str());
      ++failures;
    }
  }
  std::fprintf(stderr, "%zu of %zu golden cases passed\n", names.size() - failures, names.size());
  const std::vector<std::string> orphans = isWhole ? FindOrphans(arguments.root) : std::vector<std::string>();
  for (const std::string& orphan : orphans) {
    std::fprintf(stderr, "FAILED %s: no trace belongs to it\n", orphan.c_str());
  }
  return failures == 0 && orphans.empty() && !names.empty() ? 0 : 1;
}

}  // namespace

int main(int argumentCount, char** argumentValues) {
  Arguments arguments;
  if (!ParseArguments(argumentCount, argumentValues, &arguments)) {
    std::fprintf(stderr, "usage: golden_test --root=FOLDER --output=FOLDER [NAME... | --update-golden=NAME]\n");
    return 64;
  }
  return arguments.updated.empty() ? Compare(arguments) : Update(arguments);
}
