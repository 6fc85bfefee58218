#include "project/ClassicCalls.h"

#include "scan/SourceScanner.h"
#include "xcode/PlaceCounter.h"

namespace glossmill {

std::vector<ClassicCall> classicCalls(std::string_view text) {
  std::vector<ClassicCall> calls;
  const CancelFlag canceled;
  SourceScanner scanner(text, canceled);
  PlaceCounter counter(text);
  while (scanner.next()) {
    const auto read = scanner.read();
    const TextPlace place = counter.at(scanner.place());
    ClassicCall call{{}, {}, static_cast<std::uint32_t>(place.line), static_cast<std::uint32_t>(place.column)};
    if (const auto* string = std::get_if<SourceString>(&read)) {
      call.key = string->name;
    } else {
      call.rejection = std::get<CallRejection>(read);
    }
    calls.push_back(call);
  }
  return calls;
}

std::string_view sentenceOf(CallRejection rejection) {
  switch (rejection) {
    case CallRejection::NoParenthesis:
      return "The call was not taken: no parenthesis follows its name.";
    case CallRejection::Unbalanced:
      return "The call was not taken: its parenthesis is not closed.";
    case CallRejection::NoKey:
      return "The call was not taken: its key is no literal.";
    case CallRejection::UnclosedKey:
      return "The call was not taken: the literal of its key is not closed.";
    case CallRejection::NoComma:
      return "The call was not taken: no comma follows its key.";
    case CallRejection::NoComment:
      return "The call was not taken: its comment is no literal.";
    case CallRejection::UnclosedComment:
      return "The call was not taken: the literal of its comment is not closed.";
    case CallRejection::Canceled:
      break;
  }
  return "The call was not looked at.";
}

}  // namespace glossmill
