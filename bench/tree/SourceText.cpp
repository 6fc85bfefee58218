#include "tree/SourceText.h"

#include <array>

#include "tree/Vocabulary.h"

namespace glossmill::bench {

namespace {

// In the patterns $v, $a and $n stand for a verb, an adjective and a noun, $V, $A and $N for the same with a capital,
// $d for a number and $C for the call. Some hold a parenthesis without a partner, as comments and strings of real
// sources do.
constexpr std::array<std::string_view, 20> kFillers = {
    "  [self.$n $vWith$N:$n animated:YES];\n",
    "  NSString *$nPath = [NSString stringWithFormat:@\"%@/$n-%d\", self.$nRoot, $d];\n",
    "  if ($n == nil || [$n count] < $d) {\n    return;\n  }\n",
    "  // $V the $a $n before the $n (see -$v$N:).\n",
    "  /* The $a $n is kept for the $n :-) */\n",
    "  for ($A$N *$n in self.$aItems) {\n    [$n $v];\n  }\n",
    "  NSLog(@\"$n: %@ ($a, %d)\", self.$n, $d);\n",
    "  CGRect frame = CGRectMake(0.0f, $d.0f, self.$n.bounds.size.width, $d.0f);\n",
    "  dispatch_async(dispatch_get_main_queue(), ^{\n    [self $v$A$N];\n  });\n",
    "  self.$n = [[$A$N alloc] initWithFrame:CGRectZero];\n",
    "  [[NSNotificationCenter defaultCenter] postNotificationName:@\"$A$NDid$V\" object:self];\n",
    "  static NSString *const k$A$N = @\"$n.$a:(\";\n",
    "  BOOL $a = ([self.$n $v] && ![self is$A]) || self.$n.$a;\n",
    "  @synchronized(self) {\n    _$n = [$n copy];\n  }\n",
    "  NSAssert($n != nil, @\"$A $n expected\");\n",
    "  $n.$a = [NSNumber numberWithInteger:($d + [$n integerValue]) * 2];\n",
    "#ifdef DEBUG\n  [$n $v];\n#endif\n",
    "  switch (self.$n.type) {\n    case k$N$A: [self $v]; break;\n    default: break;\n  }\n",
    "\t[_$n addObject:@{@\"$n\" : @($d), @\"$a\" : @\"$v\"}];\n",
    "}\n\n- (void)$v$A$N:(NSString *)$n {\n"};

constexpr std::array<std::string_view, 6> kCallers = {
    "  self.$nLabel.text = $C;\n",
    "  [self.$nButton setTitle:$C forState:UIControlStateNormal];\n",
    "  NSString *$nTitle = [NSString stringWithFormat:$C, $d];\n",
    "  [alert addButtonWithTitle:$C];\n",
    "  [menu addItemWithTitle:$C action:@selector($v$N:) keyEquivalent:@\"\"];\n",
    "  self.$n.toolTip = self.$a ? $C : nil;\n"};

std::string placeholderText(char placeholder, Random& random) {
  switch (placeholder) {
    case 'v':
      return std::string(random.pick(verbs()));
    case 'V':
      return capitalized(random.pick(verbs()));
    case 'a':
      return std::string(random.pick(adjectives()));
    case 'A':
      return capitalized(random.pick(adjectives()));
    case 'n':
      return std::string(random.pick(nouns()));
    case 'N':
      return capitalized(random.pick(nouns()));
    default:
      return std::to_string(random.below(400));
  }
}

std::string callText(const SourceCall& call, Random& random) {
  const std::string_view gap = random.oneIn(12) ? ",\n                        @\"" : ", @\"";
  std::string text = "NSLocalizedString(@\"";
  return text.append(call.key).append("\"").append(gap).append(call.comment).append("\")");
}

void appendPattern(std::string& text, std::string_view pattern, std::string_view call, Random& random) {
  while (true) {
    const std::size_t dollar = pattern.find('$');
    text += pattern.substr(0, dollar);
    if (dollar == std::string_view::npos) return;
    const char placeholder = pattern[dollar + 1];
    if (placeholder == 'C') {
      text += call;
    } else {
      text += placeholderText(placeholder, random);
    }
    pattern.remove_prefix(dollar + 2);
  }
}

std::string headText(std::string_view className, Random& random) {
  const std::string name(className);
  const std::string mark = random.oneIn(4) ? "\u00A9 " : "";
  return "//\n//  " + name + ".m\n//  App\n//\n//  Copyright " + mark +
         "2014 The App Authors. All rights reserved.\n//\n\n" + "#import \"" + name +
         ".h\"\n#import <UIKit/UIKit.h>\n\n@implementation " + name + "\n\n- (void)viewDidLoad {\n";
}

}  // namespace

void appendCall(std::string& text, const SourceCall& call, Random& random) {
  const std::string_view pattern = random.pick(kCallers);
  appendPattern(text, pattern, callText(call, random), random);
}

void appendFiller(std::string& text, Random& random) {
  appendPattern(text, random.pick(kFillers), {}, random);
}

std::string sourceText(std::string_view className, const std::vector<SourceCall>& calls, std::size_t targetBytes,
                       Random& random) {
  std::string text = headText(className, random);
  for (std::size_t index = 0; index < calls.size(); ++index) {
    while (text.size() < targetBytes * index / calls.size()) appendFiller(text, random);
    appendCall(text, calls[index], random);
  }
  while (text.size() < targetBytes) appendFiller(text, random);
  return text + "}\n\n@end\n";
}

}  // namespace glossmill::bench
