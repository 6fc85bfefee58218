#include "checks/FindingList.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <tuple>
#include <unordered_map>

#include "checks/CheckList.h"
#include "text/Format.h"

namespace glossmill {

namespace {

auto orderOf(const PlacedFinding& finding) {
  return std::tie(finding.file, finding.line, finding.column, finding.language, finding.check, finding.table,
                  finding.key, finding.sentence);
}

/// A hash that is the same in every run and on every machine.
class StableHash {
 public:
  void add(std::string_view text) {
    for (const char byte : text) addByte(static_cast<unsigned char>(byte));
    addByte(0);
  }

  std::uint64_t value() const { return m_value; }

 private:
  void addByte(unsigned char byte) {
    constexpr std::uint64_t kPrime = 0x100000001B3;
    m_value = (m_value ^ byte) * kPrime;
  }

  std::uint64_t m_value = 0xCBF29CE484222325;
};

/// What stays the same when lines move and texts are edited: the string that it is about, or else the file.
std::uint64_t identityOf(const PlacedFinding& finding) {
  StableHash hash;
  hash.add(entryOf(finding.check).name);
  hash.add(finding.language);
  hash.add(finding.table);
  hash.add(finding.key.empty() ? finding.file : finding.key);
  if (finding.kind == FindingKind::ReportedProblem) hash.add(finding.what);
  return hash.value();
}

std::string hexadecimal(std::uint64_t value) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text(16, '0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, value >>= 4) *digit = kDigits[value & 0xF];
  return text;
}

/// Findings of one identity are told apart by their number among them.
void giveFingerprints(std::vector<PlacedFinding>& findings) {
  std::unordered_map<std::uint64_t, std::uint64_t> counts;
  counts.reserve(findings.size());
  for (PlacedFinding& finding : findings) {
    const std::uint64_t identity = identityOf(finding);
    StableHash hash;
    hash.add(hexadecimal(identity));
    hash.add(std::to_string(counts[identity]++));
    finding.fingerprint = hexadecimal(hash.value());
  }
}

}  // namespace

std::optional<std::size_t> FindingList::add(PlacedFinding finding) {
  const FindingSubject subject{finding.check, finding.file, finding.table, finding.key, finding.language};
  if (m_policy.ignores(subject) || m_policy.isAccepted(subject, finding.source, finding.translation)) {
    return std::nullopt;
  }
  finding.severity = m_policy.severityOf(finding);
  finding.sentence = formatText(sentenceOf(finding.kind), {finding.what, finding.other});
  m_findings.push_back(std::move(finding));
  return m_findings.size() - 1;
}

std::vector<PlacedFinding> FindingList::take() {
  std::stable_sort(m_findings.begin(), m_findings.end(),
                   [](const PlacedFinding& a, const PlacedFinding& b) { return orderOf(a) < orderOf(b); });
  giveFingerprints(m_findings);
  return std::move(m_findings);
}

}  // namespace glossmill
