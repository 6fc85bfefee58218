#include "xcode/MacroDefinition.h"

#include <algorithm>
#include <utility>

#include "xcode/CLexer.h"
#include "xcode/NameSearch.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

constexpr std::string_view kVariadicName = "__VA_ARGS__";
constexpr std::size_t kMostParameters = 128;

/// Says whether "#define" at this word can have parameters: a look at its surface that saves the lexer most of them.
bool mayHaveParameters(std::string_view text, std::size_t at) {
  while (at < text.size() && isBlank(text[at])) ++at;
  const std::size_t end = plainWordEnd(text, at);
  return end == at || end == text.size() || text[end] == '(' || text[end] == '\\';
}

const NameSearch& defineSearch() {
  static const NameSearch kSearch({"define"});
  return kSearch;
}

class HeadReader {
 public:
  HeadReader(std::string_view text, const SourceToken& directive)
      : m_text(text.substr(0, directive.end)), m_lexer(m_text, directive.begin, CLexer::Directives::Marks) {}

  std::optional<MacroHead> read() {
    m_lexer.next();  // the "#"
    const SourceToken define = m_lexer.next();
    const SourceToken name = m_lexer.next();
    if (spelling(define) != "define" || name.kind != SourceToken::Kind::Word) return std::nullopt;
    MacroHead head;
    head.name = spelling(name);
    const std::size_t behind = afterContinuations(m_text, name.end);
    head.hasParameters = behind < m_text.size() && m_text[behind] == '(';
    if (head.hasParameters) readParameters(head);
    head.replacement = m_lexer.position();
    return head;
  }

 private:
  std::string spelling(const SourceToken& token) const {
    return withoutContinuations(m_text.substr(token.begin, token.end - token.begin));
  }

  void readParameters(MacroHead& head) {
    m_lexer.next();  // the "("
    bool isNew = true;
    for (SourceToken token = m_lexer.next(); token.kind != SourceToken::Kind::End; token = m_lexer.next()) {
      const char first = m_text[token.begin];
      if (first == ')' || head.parameters.size() == kMostParameters) return;
      if (first == '.') head.isVariadic = true;
      if (first == '.' && isNew) head.parameters.emplace_back(kVariadicName);
      if (token.kind == SourceToken::Kind::Word) head.parameters.push_back(spelling(token));
      isNew = first == ',';
    }
  }

  std::string_view m_text;
  CLexer m_lexer;
};

}  // namespace

std::optional<std::size_t> MacroHead::find(std::string_view parameter) const {
  const auto found = std::find(parameters.begin(), parameters.end(), parameter);
  if (found == parameters.end()) return std::nullopt;
  return static_cast<std::size_t>(found - parameters.begin());
}

std::optional<MacroHead> readMacroHead(std::string_view text, const SourceToken& directive) {
  return HeadReader(text, directive).read();
}

std::vector<MacroDefinition> readMacros(std::string_view text) {
  std::vector<MacroDefinition> macros;
  CLexer lexer(text);
  NameSearch::Hit hit = defineSearch().next(text, 0);
  while (hit.begin < text.size()) {
    const bool isDirective = mayHaveParameters(text, hit.end) && lexer.skipTo(hit.begin) == CLexer::Reached::Directive;
    if (isDirective) {
      const SourceToken directive = lexer.next();
      std::optional<MacroHead> head = readMacroHead(text, directive);
      if (head && head->hasParameters) {
        const std::size_t begin = std::exchange(head->replacement, 0);
        macros.push_back({*std::move(head), withoutContinuations(text.substr(begin, directive.end - begin))});
      }
    }
    hit = defineSearch().next(text, std::max(hit.end, lexer.position()));
  }
  return macros;
}

}  // namespace glossmill
