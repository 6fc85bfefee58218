#include "cli/FormatChoice.h"

#include <CLI/CLI.hpp>
#include <vector>

#include "exchange/ExchangeFormat.h"
#include "formats/XmlFormats.h"

namespace glossmill {

namespace {

const std::vector<ExchangeFormat>& allFormats() {
  static const std::vector<ExchangeFormat> kAll = [] {
    std::vector<ExchangeFormat> all(exchangeFormats().begin(), exchangeFormats().end());
    all.insert(all.end(), xmlFormats().begin(), xmlFormats().end());
    return all;
  }();
  return kAll;
}

}  // namespace

void addFormat(CLI::App& command, std::string& name) {
  std::vector<std::string> names;
  std::string list;
  for (const ExchangeFormat& format : allFormats()) {
    names.emplace_back(format.name);
    list += (list.empty() ? "" : ", ") + names.back();
  }
  command.add_option("--format", name, "By default as the file's name ends: " + list)
      ->check(CLI::IsMember(names))
      ->option_text("NAME");
}

const ExchangeFormat& chosenFormat(std::string_view name, const FileUrl& file) {
  const ExchangeFormat* found = name.empty() ? formatOfFile(allFormats(), file) : formatNamed(allFormats(), name);
  const bool isOwn = !found || found->name == exchangeFormats().front().name;
  return isOwn ? exchangeFormats().front() : *found;
}

}  // namespace glossmill
