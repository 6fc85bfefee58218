#include "xcode/CatalogDocument.h"

#include <limits>
#include <set>
#include <unordered_map>
#include <utility>

#include "text/Utf8.h"
#include "xcode/CatalogNames.h"
#include "xcode/JsonTreeReader.h"
#include "xcode/LineCounter.h"

namespace glossmill {

CatalogDocument::CatalogDocument(std::string_view bytes) {
  decode(bytes);
  if (m_error) return;
  readTree();
  findKeys();
}

void CatalogDocument::decode(std::string_view bytes) {
  if (bytes.size() > std::numeric_limits<std::uint32_t>::max() / 4) {
    m_error = {{1, 1}, "The file is too long."};
    return;
  }
  const std::string_view valid = bytes.substr(0, validUtf8Prefix(bytes));
  const bool isUtf8 = detectEncoding(bytes).encoding == TextEncoding::Utf8;
  const TextPlace place = isUtf8 ? placeOf(valid, valid.size()) : TextPlace{1, 1};
  Result<DecodedFile> file = textOfFile(bytes, std::nullopt);
  if (file) {
    m_file = std::move(file.value());
  } else {
    m_error = {place, file.error().sentence};
  }
}

void CatalogDocument::readTree() {
  ReadTree read = readJsonTree(m_file.text);
  m_tree = std::move(read.tree);
  if (read.mistake) return fail(read.mistake->at, read.mistake->sentence);
  checkStructure();
}

void CatalogDocument::checkStructure() {
  if (!m_tree.isObject(0)) return fail(0, "The file is no string catalog: its outermost value is no object.");
  const ValueTree::Number strings = m_tree.member(0, kStringsName);
  if (strings != ValueTree::kNone && !m_tree.isObject(strings)) {
    return fail(m_tree.node(strings).begin, "“strings” is no object.");
  }
  m_tree.eachMember(strings, [this](ValueTree::Number key) {
    if (!m_error && !m_tree.isObject(key)) fail(m_tree.node(key).begin, "What a key stands for is no object.");
  });
}

void CatalogDocument::findKeys() {
  if (m_tree.empty()) return;
  std::unordered_map<std::string, std::size_t> places;
  m_tree.eachMember(m_tree.member(0, kStringsName), [&](ValueTree::Number key) {
    const auto [known, isNew] = places.emplace(m_tree.nameOf(key), m_keys.size());
    if (isNew) {
      m_keys.push_back(key);
    } else {
      m_keys[known->second] = key;
    }
  });
}

std::string CatalogDocument::sourceLanguage() const {
  const std::string language = m_tree.empty() ? "" : m_tree.textOf(m_tree.member(0, "sourceLanguage"));
  return language.empty() ? "en" : language;
}

CatalogKey CatalogDocument::keyAt(ValueTree::Number number) const {
  CatalogKey key;
  key.key = m_tree.nameOf(number);
  key.comment = m_tree.textOf(m_tree.member(number, kCommentName));
  key.extractionState = m_tree.textOf(m_tree.member(number, kExtractionStateName));
  const ValueTree::Number translates = m_tree.member(number, "shouldTranslate");
  key.shouldTranslate = translates == ValueTree::kNone || m_tree.spelled(translates) != "false";
  m_tree.eachMember(m_tree.member(number, kLocalizationsName),
                    [&](ValueTree::Number language) { collect(language, {}, m_tree.nameOf(language), key.units); });
  return key;
}

void CatalogDocument::collect(ValueTree::Number object, const Variation& variation, const std::string& language,
                              std::vector<CatalogUnit>& units) const {
  const ValueTree::Number unit = m_tree.member(object, kUnitName);
  const ValueTree::Number value = m_tree.member(unit, kValueName);
  if (m_tree.isText(value)) {
    units.push_back({language, variation, m_tree.textOf(m_tree.member(unit, kStateName)), m_tree.textOf(value)});
  }
  const auto collectAll = [&](ValueTree::Number group, const std::string& kind) {
    m_tree.eachMember(group, [&](ValueTree::Number member) {
      Variation inside = variation;
      inside.push_back({kind, m_tree.nameOf(member)});
      collect(member, inside, language, units);
    });
  };
  m_tree.eachMember(m_tree.member(object, kVariationsName),
                    [&](ValueTree::Number kind) { collectAll(kind, m_tree.nameOf(kind)); });
  collectAll(m_tree.member(object, kSubstitutionsName), std::string(kPartKind));
}

std::vector<std::string> CatalogDocument::languages() const {
  std::set<std::string> codes;
  for (const ValueTree::Number key : m_keys) {
    m_tree.eachMember(m_tree.member(key, kLocalizationsName),
                      [&](ValueTree::Number language) { codes.insert(m_tree.nameOf(language)); });
  }
  return {codes.begin(), codes.end()};
}

std::vector<CatalogDocument::RepeatedKey> CatalogDocument::repeatedKeys() const {
  std::vector<RepeatedKey> repeated;
  if (m_tree.empty()) return repeated;
  std::unordered_map<std::string, std::vector<std::size_t>> lines;
  LineCounter counter(m_file.text);
  m_tree.eachMember(m_tree.member(0, kStringsName), [&](ValueTree::Number key) {
    lines[m_tree.nameOf(key)].push_back(counter.lineOf(m_tree.node(key).member));
  });
  for (const ValueTree::Number key : m_keys) {
    const std::string name = m_tree.nameOf(key);
    if (lines[name].size() > 1) repeated.push_back({name, lines[name]});
  }
  return repeated;
}

void CatalogDocument::fail(std::size_t at, std::string_view sentence) {
  m_error = {placeOf(m_file.text, at), std::string(sentence)};
}

}  // namespace glossmill
