#include "checks/FormatCheck.h"

#include <algorithm>

namespace glossmill {

namespace {

using Uses = std::vector<FormatArgumentUse>;

bool isMixed(const FormatReading& format) {
  return format.hasPositions && format.hasSequential;
}

const FormatArgumentUse* firstUse(const Uses& uses, std::size_t argument) {
  const auto use = std::find_if(uses.begin(), uses.end(),
                                [argument](const FormatArgumentUse& one) { return one.argument == argument; });
  return use == uses.end() ? nullptr : &*use;
}

bool isFirstUse(const Uses& uses, const FormatArgumentUse& use) {
  return firstUse(uses, use.argument) == &use;
}

/// An argument behind this one is taken, which then reads it wrongly.
bool skips(const FormatReading& translation, std::size_t argument) {
  return translation.hasPositions &&
         std::any_of(translation.uses.begin(), translation.uses.end(),
                     [argument](const FormatArgumentUse& use) { return use.argument > argument; });
}

/// Compares the formats of two texts.
class FormatComparison {
 public:
  explicit FormatComparison(const CheckedText& text)
      : m_text(text), m_source(readFormat(text.source)), m_translation(readFormat(text.translation)) {}

  std::vector<Finding> findings() {
    if (!sourceIsFormat()) dropProse();
    if (sourceIsFormat() && m_source.strays.empty()) findStrays();
    if (isMixed(m_translation) && !isMixed(m_source)) {
      const TextRange mixed = m_translation.uses.front().range;
      add(FindingKind::PositionsMixed, Severity::Error, {}, mixed);
      return std::move(m_findings);
    }
    findMissing();
    for (const FormatArgumentUse& use : m_translation.uses) compareUse(use);
    return std::move(m_findings);
  }

 private:
  bool sourceIsFormat() const { return !m_source.uses.empty() || m_source.hasDoubled; }

  /// Where the source text says "100% safe", "100%sicher" has no specifier either.
  void dropProse() {
    if (m_source.strays.empty()) return;
    std::erase_if(m_translation.uses, [this](const FormatArgumentUse& use) {
      const std::size_t sign = use.range.begin;
      return use.kind != ArgumentKind::Object && sign > 0 && m_text.translation[sign - 1] >= '0' &&
             m_text.translation[sign - 1] <= '9';
    });
  }

  void findStrays() {
    for (const StraySign& stray : m_translation.strays) add(FindingKind::StraySign, Severity::Error, {}, stray.range);
  }

  void findMissing() {
    for (const FormatArgumentUse& use : m_source.uses) {
      if (!isFirstUse(m_source.uses, use) || firstUse(m_translation.uses, use.argument)) continue;
      const bool skipped = skips(m_translation, use.argument);
      add(skipped ? FindingKind::ArgumentSkipped : FindingKind::ArgumentMissing, Severity::Error, use.range, {});
    }
  }

  void compareUse(const FormatArgumentUse& use) {
    const FormatArgumentUse* const first = firstUse(m_source.uses, use.argument);
    if (!first) {
      if (isFirstUse(m_translation.uses, use)) add(FindingKind::ArgumentSurplus, Severity::Error, {}, use.range);
    } else if (!hasUse(use, &FormatComparison::isOfSameType)) {
      add(FindingKind::ArgumentOfOtherType, Severity::Error, first->range, use.range);
    } else if (!hasUse(use, &FormatComparison::isOfSameSize)) {
      add(FindingKind::ArgumentOfOtherSize, Severity::Warning, first->range, use.range);
    }
  }

  static bool isOfSameType(const FormatArgumentUse& one, const FormatArgumentUse& other) {
    return one.kind == other.kind && one.variable == other.variable;
  }

  static bool isOfSameSize(const FormatArgumentUse& one, const FormatArgumentUse& other) {
    return isOfSameType(one, other) && one.size == other.size;
  }

  /// Some use of the same argument in the source text is like this one.
  bool hasUse(const FormatArgumentUse& use, bool (*isLike)(const FormatArgumentUse&, const FormatArgumentUse&)) const {
    return std::any_of(m_source.uses.begin(), m_source.uses.end(), [&](const FormatArgumentUse& other) {
      return other.argument == use.argument && isLike(use, other);
    });
  }

  void add(FindingKind kind, Severity severity, TextRange inSource, TextRange inTranslation) {
    const std::string_view source = m_text.source.substr(inSource.begin, inSource.length);
    const std::string_view translation = m_text.translation.substr(inTranslation.begin, inTranslation.length);
    const bool onlySource = inTranslation.length == 0;
    m_findings.push_back({Check::Format, severity, kind, std::string(onlySource ? source : translation),
                          std::string(onlySource ? std::string_view() : source), inSource, inTranslation});
  }

  CheckedText m_text;
  FormatReading m_source;
  FormatReading m_translation;
  std::vector<Finding> m_findings;
};

}  // namespace

std::vector<Finding> formatFindings(const CheckedText& text) {
  if (text.source.find('%') == text.source.npos && text.translation.find('%') == text.translation.npos) return {};
  return FormatComparison(text).findings();
}

}  // namespace glossmill
